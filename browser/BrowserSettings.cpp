#include "browser/BrowserSettings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <memory>

#include "common/ErrObject.h"
#include "common/Recordset.h"
#include "common/Services.h"

namespace {

std::unique_ptr<CRecordset> open(const QString& key, long staffId, long lockMode, long& count) {
    const auto& factory = services().newRecordset;
    std::unique_ptr<CRecordset> rs = factory ? factory() : nullptr;
    if (!rs) {
        throw RaisedError(ErrNumber::CannotCreate,
                          QStringLiteral("Das Objekt hdata.CRecordset kann nicht erstellt werden."),
                          QStringLiteral("ctlBrowser"));
    }
    QString quoted = key;
    quoted.replace(u'\'', QStringLiteral("''"));
    rs->Connect();
    count =
        rs->OpenQuery(QStringLiteral("SELECT * FROM tBrowserEinstellungen WHERE Schluessel = '%1' "
                                     "AND MitarbeiterId = %2")
                          .arg(quoted)
                          .arg(staffId),
                      lockMode);
    return rs;
}

QString columnsText(const QList<BrowserSettings::Column>& columns) {
    QJsonArray list;
    for (const auto& c : columns) {
        list.append(
            QJsonObject{{QStringLiteral("name"), c.name}, {QStringLiteral("width"), c.width}});
    }
    return QString::fromUtf8(QJsonDocument(list).toJson(QJsonDocument::Compact));
}

QList<BrowserSettings::Column> columnsFrom(const QString& text) {
    QList<BrowserSettings::Column> columns;
    for (const QJsonValue& v : QJsonDocument::fromJson(text.toUtf8()).array()) {
        const QJsonObject o = v.toObject();
        const QString name = o.value(QStringLiteral("name")).toString();
        if (!name.isEmpty()) {
            columns.append({name, o.value(QStringLiteral("width")).toInt()});
        }
    }
    return columns;
}

}  // namespace

BrowserSettings readBrowserSettings(const QString& key, long staffId) {
    BrowserSettings settings;
    if (key.isEmpty()) {
        return settings;
    }
    long count = 0;
    std::unique_ptr<CRecordset> rs = open(key, staffId, 0, count);
    if (count > 0) {
        settings.columns = columnsFrom(rs->ReadText(QStringLiteral("Spalten")));
        settings.sortColumn = rs->ReadText(QStringLiteral("SortSpalte"));
        settings.ascending = !rs->ReadBool(QStringLiteral("SortAbsteigend"));
    }
    rs->Close();
    rs->Disconnect();
    return settings;
}

void writeBrowserSettings(const QString& key, long staffId, const BrowserSettings& settings) {
    if (key.isEmpty()) {
        return;
    }
    long count = 0;
    std::unique_ptr<CRecordset> rs = open(key, staffId, 2, count);
    if (count == 0) {
        rs->AddNew();
        rs->WriteText(QStringLiteral("Schluessel"), key);
        rs->WriteLong(QStringLiteral("MitarbeiterId"), staffId);
    }
    rs->WriteText(QStringLiteral("Spalten"), columnsText(settings.columns));
    rs->WriteText(QStringLiteral("SortSpalte"), settings.sortColumn);
    rs->WriteBool(QStringLiteral("SortAbsteigend"), !settings.ascending);
    rs->Update(CRecordset::UpdateWrite);
    rs->Close();
    rs->Disconnect();
}
