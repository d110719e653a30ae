#include "common/ModuleHelpers.h"

#include <QDir>

#include "common/ErrorExit.h"
#include "common/NavBar.h"

namespace {
const QString kModule = QStringLiteral("modDeklarationen");
}

QString pathSeparator() {
    return QString(QDir::separator());
}

QString joinPath(const QString& dir, const QString& name) {
    if (dir.isEmpty() || dir.endsWith(QLatin1Char('/')) || dir.endsWith(QLatin1Char('\\'))) {
        return dir + name;
    }
    return dir + pathSeparator() + name;
}

QString msGetTitel() {
    return withErrorExit<QString>(QStringLiteral("msGetTitel"), kModule, {}, [](ErrorExit&) {
        auto& texte = services().coreTexte;
        const QString head = texte ? texte->GetText(QVariant(1001)) : QString();
        return head + QStringLiteral("  Konfiguration automatischer Aufträge");
    });
}

bool msGetLogPath(QString& sPfad) {
    ErrorExit ex(QStringLiteral("msGetLogPath"), kModule);
    try {
        Services& s = services();
        auto oCoreTools = ex.create(s.newCoreTools, QStringLiteral("hcore.dll"),
                                    QStringLiteral("Set oCoreTools = New hcore.CoreToolsClass"));
        const long art = s.coreGlobal ? s.coreGlobal->GetInstallationsArt() : 0;
        if (art != 1) {
            const QString ini = oCoreTools->GetIniDatei();
            sPfad = oCoreTools->IniLesen(ini, QStringLiteral("Pfade"), QStringLiteral("Logfile")) +
                    pathSeparator();
        } else {
            auto text = [&](int id) {
                return s.coreTexte ? s.coreTexte->GetText(QVariant(id)) : QString();
            };
            QString path = joinPath(oCoreTools->GetPfad(83), text(1025));
            path = joinPath(path, text(1024));
            path = joinPath(path, text(1228));
            sPfad = joinPath(path, QStringLiteral("LogFile")) + pathSeparator();
        }
        return true;
    } catch (...) {
        ex.fail();
    }
    return false;
}

void mSetNavTools(long lPos, long lLetzte, NavBar* oBar) {
    ErrorExit ex(QStringLiteral("mSetNavTools"), kModule);
    try {
        if (!oBar || oBar->typeName() != QLatin1String("ActiveBar2")) {
            return;
        }
        const QString band = QStringLiteral("barMain");
        for (const char* tool : {"first", "previous", "next", "last"}) {
            oBar->setToolEnabled(band, QLatin1String(tool), true);
        }
        if (lPos == 1) {
            oBar->setToolEnabled(band, QStringLiteral("first"), false);
            oBar->setToolEnabled(band, QStringLiteral("previous"), false);
        }
        if (lPos == lLetzte) {
            oBar->setToolEnabled(band, QStringLiteral("next"), false);
            oBar->setToolEnabled(band, QStringLiteral("last"), false);
        }
    } catch (...) {
        ex.fail();
    }
}

bool mbDateiZumMandant(const QString& sDatei, long lDatenArt, const QString& sMandNr, long lKanzlei,
                       bool bFlag) {
    ErrorExit ex(QStringLiteral("mbDateiZumMandant"), kModule);
    try {
        const QString text = QStringLiteral("a") + sDatei + QStringLiteral("a");
        bool ok = false;
        const qlonglong mandNr = sMandNr.trimmed().toLongLong(&ok);
        bool result = false;
        QString digits;
        for (QChar c : text) {
            if (c >= QLatin1Char('0') && c <= QLatin1Char('9')) {
                digits.append(c);
            } else if (!digits.isEmpty()) {
                // A group longer than any client number cannot be one.
                bool groupOk = false;
                const qlonglong group = digits.toLongLong(&groupOk);
                result = ok && groupOk && group == mandNr;
                break;
            }
        }
        switch (lDatenArt) {
            case 4:
            case 5:
            case 17:
            case 18:
            case 28:
            case 30:
            case 99:
                return result;
            default:
                break;
        }
        if ((bFlag && lKanzlei == 5) || lKanzlei == 2 || lKanzlei == 4) {
            if (!text.toUpper().contains(sMandNr + QLatin1Char('K'))) {
                return false;
            }
        }
        return result;
    } catch (...) {
        ex.fail();
    }
    return false;
}

QString msDatumZeit(const QDateTime& dtWert) {
    return dtWert.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

void gShowWikiHelpExterneProgramme(const QString& sThema) {
    ErrorExit ex(QStringLiteral("gShowWikiHelpExterneProgramme"), kModule);
    try {
        auto oCoreHelp = ex.create(services().newCoreHelp, QStringLiteral("hcore.dll"),
                                   QStringLiteral("Set oCoreHelp = New hcore.CoreHelpClass"));
        oCoreHelp->ShowHelp(HelpKeys::kHelpFile, sThema);
    } catch (...) {
        ex.fail(true);
    }
}
