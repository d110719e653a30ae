#pragma once

#include <QList>
#include <QString>

// One text file of an import script: the table it fills and the file it reads.
struct OptionFileEntry {
    QString TableName;
    QString TextFileName;
};

// Reads an import script (*.opt) and gives its text files, in the script's order. A script
// that cannot be read raises RaisedError.
class OptionFileReader {
  public:
    virtual ~OptionFileReader() = default;
    virtual QList<OptionFileEntry> Entries(const QString& optionFile) = 0;
};
