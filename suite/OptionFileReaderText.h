#pragma once

#include <QByteArray>

#include "common/OptionFileReader.h"

// Import scripts as plain UTF-8 text, one text file per line:
//
//   # comment (also "; comment")
//   BUCHUNGEN=/daten/import/buchungen.txt
//   KONTEN=/daten/import/konten_*.csv
//
// Table and file are trimmed; blank lines and comments are skipped; a file may be left
// empty ("KONTEN="). A line without "=" or without a table name makes the script unreadable.
class TextOptionFileReader : public OptionFileReader {
  public:
    QList<OptionFileEntry> Entries(const QString& optionFile) override;

    // The entries of a script's content; source names the script in the error text.
    static QList<OptionFileEntry> parse(const QByteArray& content, const QString& source);
};
