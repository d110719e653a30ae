#include "logdata/LogDatenTexte.h"

namespace logdaten {

namespace {
const QString kAnsicht = QStringLiteral("SYS_JobAgentLogDaten_Anzeigen");
}  // namespace

QString msAbfrage(long lLogArt, long lJobId) {
    QString sSql = QStringLiteral("SELECT * FROM ") + kAnsicht + QStringLiteral(" WHERE (") +
                   kAnsicht + QStringLiteral(".") + QStringLiteral("Typ");
    if (lLogArt == kDienst) {
        sSql += QStringLiteral(" IN (") + QStringLiteral("1") + QStringLiteral(", ") +
                QStringLiteral("3") + QStringLiteral(")");
    } else if (lLogArt == kAuftraege) {
        sSql += QStringLiteral(" = ") + QStringLiteral("2");
    }
    sSql += QStringLiteral(")");
    if (lJobId > 0) {
        sSql += QStringLiteral(" AND ( ") + kAnsicht + QStringLiteral(".") +
                QStringLiteral("AutoJobId") + QStringLiteral(" = ") + QString::number(lJobId) +
                QStringLiteral(")");
    }
    return sSql;
}

QString msTitel(const QString& sTitelKopf, long lLogArt, long lJobId, const QString& sJobName) {
    QString sTitel = sTitelKopf + QStringLiteral("  Logdaten ");
    const QString sFuerAuftrag = QStringLiteral(" für Auftrag '") + sJobName + QStringLiteral("'");
    if (lLogArt == kDienst) {
        sTitel += QStringLiteral("Dienst");
        if (lJobId > 0) {
            sTitel += sFuerAuftrag;
        }
    } else if (lJobId >= 1) {
        sTitel += sFuerAuftrag;
    } else {
        sTitel += QStringLiteral("Aufträge");
    }
    return sTitel;
}

QString msSchluessel(long lLogArt) {
    return QStringLiteral("Sys.JobAgent.LogDaten.") +
           (lLogArt == kDienst ? QStringLiteral("Dienst") : QStringLiteral("Auftrag"));
}

QString msLoeschTitel(const QString& sTitelKopf, long lLogArt) {
    return sTitelKopf + QStringLiteral("  Logdaten ") +
           (lLogArt == kDienst ? QStringLiteral("Dienst") : QStringLiteral("Auftrag")) +
           QStringLiteral(" löschen");
}

QString msLoeschBedingung(const QString& sVon, const QString& sBis, long lLogArt, long lLoeschArt,
                          long lJobArt, long lJobId, long lLoeschJobId) {
    const QString sSpalte = QStringLiteral("DatumUhrzeit");
    QString sWhere;
    if (!sVon.isEmpty() && !sBis.isEmpty()) {
        sWhere = QStringLiteral("(") + sSpalte + QStringLiteral(" BETWEEN ") + sVon +
                 QStringLiteral(" AND ") + sBis + QStringLiteral(")");
    } else if (!sVon.isEmpty()) {
        sWhere =
            QStringLiteral("(") + sSpalte + QStringLiteral(" >= ") + sVon + QStringLiteral(")");
    } else if (!sBis.isEmpty()) {
        sWhere =
            QStringLiteral("(") + sSpalte + QStringLiteral(" <= ") + sBis + QStringLiteral(")");
    }
    auto und = [&sWhere] {
        if (!sWhere.isEmpty()) {
            sWhere += QStringLiteral(" AND ");
        }
    };
    if (lLogArt != 0) {
        und();
        sWhere += QStringLiteral("(") + QStringLiteral("LogTyp");
        if (lLoeschArt == kAuftraege) {
            sWhere += QStringLiteral(" = ") + QStringLiteral("2");
        } else {
            sWhere += QStringLiteral(" IN (") + QStringLiteral("1") + QStringLiteral(", ") +
                      QStringLiteral("3") + QStringLiteral(")");
        }
        sWhere += QStringLiteral(")");
    }
    if (lJobArt != 0) {
        und();
        sWhere += QStringLiteral("(") + QStringLiteral("JobArt") + QStringLiteral(" = ") +
                  QString::number(lJobArt) + QStringLiteral(")");
    }
    if (lJobId > 0) {
        und();
        sWhere += QStringLiteral("(") + QStringLiteral("AutoJobId") + QStringLiteral(" = ") +
                  QString::number(lLoeschJobId) + QStringLiteral(")");
    }
    return sWhere;
}

QString msLoeschErgebnis(long lAnzahl) {
    QString sAnzahl;
    QString sEndung;
    if (lAnzahl == 0) {
        sAnzahl = QStringLiteral("n keine");
        sEndung = QStringLiteral("äge");
    } else if (lAnzahl == 1) {
        sAnzahl = QStringLiteral(" ") + QStringLiteral("1");
        sEndung = QStringLiteral("ag");
    } else {
        sAnzahl = QStringLiteral("n ") + QString::number(lAnzahl);
        sEndung = QStringLiteral("äge");
    }
    return QStringLiteral("Es wurde") + sAnzahl + QStringLiteral(" Logeintr") + sEndung +
           QStringLiteral(" gelöscht.");
}

}  // namespace logdaten
