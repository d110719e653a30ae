#include "suite/IniFile.h"

#include <QFile>
#include <QStringDecoder>

#include "common/DatabaseFiles.h"
#include "common/Password.h"

namespace {

QString decode(const QByteArray& bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8.decode(bytes);
    if (utf8.hasError()) {
        return fromAnsi(bytes);
    }
    return text;
}

bool sameName(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

}  // namespace

IniFile IniFile::read(const QString& path) {
    QFile file(path);
    if (path.isEmpty() || DatabaseFiles::isDatabaseFile(path) || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return parse(file.readAll());
}

IniFile IniFile::parse(const QByteArray& bytes) {
    IniFile ini;
    QString text = decode(bytes);
    if (text.startsWith(QChar(0xFEFF))) {
        text.remove(0, 1);
    }
    // Lines before the first section header belong to a section without name.
    qsizetype current = -1;
    for (QStringView raw : QStringView(text).split(QLatin1Char('\n'))) {
        const QString line = raw.trimmed().toString();
        if (line.isEmpty() || line.startsWith(QLatin1Char(';')) ||
            line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        if (line.startsWith(QLatin1Char('['))) {
            const qsizetype close = line.indexOf(QLatin1Char(']'));
            const QString name = line.mid(1, close < 0 ? -1 : close - 1).trimmed();
            current = ini.sectionIndex(name);
            if (current < 0) {
                ini.sections_.append(Section{name, {}});
                current = ini.sections_.size() - 1;
            }
            continue;
        }
        const qsizetype eq = line.indexOf(QLatin1Char('='));
        if (eq < 0) {
            continue;
        }
        if (current < 0) {
            ini.sections_.append(Section{});
            current = ini.sections_.size() - 1;
        }
        Section& section = ini.sections_[current];
        const QString key = line.left(eq).trimmed();
        bool known = false;
        for (const Entry& e : section.entries) {
            known = known || sameName(e.key, key);
        }
        // As with the platform's own reader, the first of two equal keys counts.
        if (!known) {
            section.entries.append(Entry{key, line.mid(eq + 1).trimmed()});
        }
    }
    return ini;
}

qsizetype IniFile::sectionIndex(const QString& section) const {
    for (qsizetype i = 0; i < sections_.size(); ++i) {
        if (sameName(sections_[i].name, section)) {
            return i;
        }
    }
    return -1;
}

const IniFile::Entry* IniFile::find(const QString& section, const QString& key) const {
    const qsizetype s = sectionIndex(section);
    if (s < 0) {
        return nullptr;
    }
    for (const Entry& e : sections_[s].entries) {
        if (sameName(e.key, key)) {
            return &e;
        }
    }
    return nullptr;
}

QString IniFile::value(const QString& section, const QString& key) const {
    const Entry* e = find(section, key);
    return e ? e->value : QString();
}

bool IniFile::contains(const QString& section, const QString& key) const {
    return find(section, key) != nullptr;
}

QStringList IniFile::keys(const QString& section) const {
    QStringList result;
    const qsizetype s = sectionIndex(section);
    if (s >= 0) {
        for (const Entry& e : sections_[s].entries) {
            result.append(e.key);
        }
    }
    return result;
}
