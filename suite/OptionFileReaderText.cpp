#include "suite/OptionFileReaderText.h"

#include <QFile>
#include <QFileInfo>

#include "common/DatabaseFiles.h"
#include "common/ErrObject.h"

namespace {

constexpr long kDateiNichtGefunden = 53;
constexpr long kFehlerhafteZeile = 62;
constexpr long kZuGross = 7;
// An import script names a few text files; anything larger is not one, and reading it whole
// would only cost memory.
constexpr qint64 kHoechstGroesse = 1024 * 1024;
const QString kQuelle = QStringLiteral("OptionFileReader");

bool isComment(const QString& line) {
    return line.startsWith(QLatin1Char('#')) || line.startsWith(QLatin1Char(';'));
}

}  // namespace

QList<OptionFileEntry> TextOptionFileReader::Entries(const QString& optionFile) {
    if (!QFileInfo(optionFile).isFile()) {
        throw RaisedError(kDateiNichtGefunden,
                          QStringLiteral("Datei nicht gefunden: ") + optionFile, kQuelle);
    }
    DatabaseFiles::refuse(optionFile, kQuelle);
    const qint64 groesse = QFileInfo(optionFile).size();
    if (groesse > kHoechstGroesse) {
        throw RaisedError(kZuGross,
                          QStringLiteral("Das Importskript %1 ist mit %2 Bytes zu groß; ein "
                                         "Importskript hat höchstens %3 Bytes.")
                              .arg(optionFile)
                              .arg(groesse)
                              .arg(kHoechstGroesse),
                          kQuelle);
    }
    QFile file(optionFile);
    if (!file.open(QIODevice::ReadOnly)) {
        throw RaisedError(kDateiNichtGefunden,
                          QStringLiteral("Datei kann nicht gelesen werden: ") + optionFile +
                              QStringLiteral(" (") + file.errorString() + QStringLiteral(")"),
                          kQuelle);
    }
    return parse(file.readAll(), optionFile);
}

QList<OptionFileEntry> TextOptionFileReader::parse(const QByteArray& content,
                                                   const QString& source) {
    QList<OptionFileEntry> entries;
    const QStringList lines = QString::fromUtf8(content).split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines.at(i).trimmed();
        if (line.isEmpty() || isComment(line)) {
            continue;
        }
        const qsizetype eq = line.indexOf(QLatin1Char('='));
        const QString table = eq < 0 ? QString() : line.left(eq).trimmed();
        if (table.isEmpty()) {
            throw RaisedError(kFehlerhafteZeile,
                              QStringLiteral("Fehlerhafte Zeile %1 im Importskript %2: %3")
                                  .arg(i + 1)
                                  .arg(source, line),
                              kQuelle);
        }
        entries.append({table, line.mid(eq + 1).trimmed()});
    }
    return entries;
}
