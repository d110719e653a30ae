#pragma once

#include <QList>
#include <QString>

// What a user made of a browser: the order and widths of its columns and its sort, kept in
// the table tBrowserEinstellungen under the browser's key and the staff member, so that they
// follow the user to every workstation of the office.
struct BrowserSettings {
    struct Column {
        QString name;
        int width = 0;
        bool operator==(const Column&) const = default;
    };
    QList<Column> columns;  // in the order shown; empty when the user never changed them
    QString sortColumn;     // empty: the order of the query's key
    bool ascending = true;

    bool operator==(const BrowserSettings&) const = default;
};

// Reads the settings; none (the defaults) when there is no key or nothing is stored. Throws
// RaisedError when the database fails.
BrowserSettings readBrowserSettings(const QString& key, long staffId);
// Stores them, replacing what was stored; nothing without a key. Throws RaisedError.
void writeBrowserSettings(const QString& key, long staffId, const BrowserSettings& settings);
