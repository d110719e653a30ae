#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

// An ini file as the suite writes it: "[Section]" lines, "Key=Value" lines, comment lines
// starting with ';' or '#'. Sections and keys are found without regard to case; a value is the
// text after the first '=', trimmed. The file is UTF-8, or Windows-1252 when it isn't valid
// UTF-8. Whatever is missing (file, section, key) reads as empty text.
class IniFile {
  public:
    IniFile() = default;

    static IniFile read(const QString& path);
    static IniFile parse(const QByteArray& bytes);

    QString value(const QString& section, const QString& key) const;
    bool contains(const QString& section, const QString& key) const;
    // The keys of a section as written, in file order.
    QStringList keys(const QString& section) const;

  private:
    struct Entry {
        QString key;
        QString value;
    };
    struct Section {
        QString name;
        QList<Entry> entries;
    };

    const Entry* find(const QString& section, const QString& key) const;
    qsizetype sectionIndex(const QString& section) const;

    QList<Section> sections_;
};
