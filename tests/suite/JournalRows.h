#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QSysInfo>

#include "common/Recordset.h"

// The change journal as one line per row, oldest first: "Art Anlass who job schedule
// field:before>after ..." with the fields of fieldsShown; "-" for a side without a row. A row
// from another workstation than this one says so; the time stands at the end, unless withTime
// is false (the server's own clock runs).
inline QStringList journalRows(CRecordset& rs, const QStringList& fieldsShown,
                               bool withTime = true) {
    QStringList rows;
    if (rs.OpenQuery(QStringLiteral("SELECT * FROM tAutoJobJournal ORDER BY idAutoJobJournal"), 2) <
        1) {
        rs.Close();
        return rows;
    }
    do {
        const QString vorher = rs.ReadText(QStringLiteral("Vorher"));
        const QString nachher = rs.ReadText(QStringLiteral("Nachher"));
        const QJsonObject before = QJsonDocument::fromJson(vorher.toUtf8()).object();
        const QJsonObject after = QJsonDocument::fromJson(nachher.toUtf8()).object();
        QString row = QStringLiteral("%1 %2 %3 %4 %5")
                          .arg(rs.ReadLong(QStringLiteral("Art")))
                          .arg(rs.ReadText(QStringLiteral("Anlass")))
                          .arg(rs.ReadLong(QStringLiteral("Ps_Id_Mitarbeiter")))
                          .arg(rs.ReadLong(QStringLiteral("idAutoJob")))
                          .arg(rs.ReadLong(QStringLiteral("idAutoJobSchedule")));
        auto side = [](const QString& json, const QJsonObject& o, const QString& f) {
            return json.isEmpty() ? QStringLiteral("-") : o.value(f).toVariant().toString();
        };
        for (const QString& f : fieldsShown) {
            row += QStringLiteral(" %1:%2>%3")
                       .arg(f, side(vorher, before, f), side(nachher, after, f));
        }
        if (rs.ReadText(QStringLiteral("Arbeitsplatz")) != QSysInfo::machineHostName()) {
            row += QStringLiteral(" @") + rs.ReadText(QStringLiteral("Arbeitsplatz"));
        }
        if (withTime) {
            row += QStringLiteral(" ") + rs.ReadDate(QStringLiteral("Zeitpunkt"))
                                             .toString(QStringLiteral("dd.MM.yyyy HH:mm:ss"));
        }
        rows << row;
    } while (rs.Move(CRecordset::MoveNext));
    rs.Close();
    return rows;
}
