#include "host/JobTransfer.h"

#include <QDate>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>
#include <optional>

#include "app/JournalAnlass.h"
#include "app/cSchedule.h"
#include "common/ColumnLimits.h"
#include "host/JobTransferFields.h"
#include "host/JobTransferSql.h"
#include "jobs/ClientKinds.h"
#include "jobs/JobRecord.h"
#include "jobs/JobStore.h"
#include "jobs/Zusatzinfo.h"
#include "schedule/RecurrenceRanges.h"
#include "schedule/ScheduleStore.h"
#include "suite/Database.h"

namespace JobTransfer {

namespace {

const QString kNoEnd = QStringLiteral("9999-12-31");

struct PlannedJob {
    JobRecord record;
    QList<cSchedule> schedules;
    bool needsPassword = false;
};

// Reads the values of one object of the document and notes each problem with its place.
class Reader {
  public:
    Reader(QStringList& problems, QString where, const QJsonObject& object)
        : problems_(problems), where_(std::move(where)), object_(object) {}

    void problem(const QString& text) { problems_ << where_ + QStringLiteral(": ") + text; }
    int problemCount() const { return static_cast<int>(problems_.size()); }

    std::optional<QString> text(const QString& key, bool required, int maxLength = -1) {
        const QJsonValue v = object_.value(key);
        if (v.isUndefined()) {
            if (required) {
                missing(key);
                return std::nullopt;
            }
            return QString();
        }
        if (!v.isString()) {
            problem(QStringLiteral("\"%1\" muss ein Text sein.").arg(key));
            return std::nullopt;
        }
        const QString value = v.toString();
        // Characters as the server counts them: a character beyond the 16-bit range is one.
        if (maxLength >= 0 && ColumnLimits::characters(value) > maxLength) {
            problem(QStringLiteral("\"%1\" ist länger als %2 Zeichen.").arg(key).arg(maxLength));
            return std::nullopt;
        }
        for (const QChar c : value) {
            if (c.unicode() < 0x20 && c != u'\t' && c != u'\n' && c != u'\r') {
                problem(QStringLiteral("\"%1\" enthält das Steuerzeichen U+%2, das nicht "
                                       "gespeichert werden kann.")
                            .arg(key, QString::number(c.unicode(), 16)
                                          .toUpper()
                                          .rightJustified(4, QLatin1Char('0'))));
                return std::nullopt;
            }
        }
        return value;
    }

    std::optional<bool> flag(const QString& key) {
        const QJsonValue v = object_.value(key);
        if (v.isUndefined()) {
            missing(key);
            return std::nullopt;
        }
        if (!v.isBool()) {
            problem(QStringLiteral("\"%1\" muss true oder false sein.").arg(key));
            return std::nullopt;
        }
        return v.toBool();
    }

    std::optional<int> number(const QString& key) {
        const QJsonValue v = object_.value(key);
        if (v.isUndefined()) {
            missing(key);
            return std::nullopt;
        }
        const double d = v.toDouble();
        if (!v.isDouble() || d != static_cast<double>(static_cast<long long>(d)) ||
            d < -2147483648.0 || d > 2147483647.0) {
            problem(QStringLiteral("\"%1\" muss eine ganze Zahl sein.").arg(key));
            return std::nullopt;
        }
        return static_cast<int>(d);
    }

    std::optional<int> inRange(const QString& key, int min, int max) {
        const std::optional<int> n = number(key);
        if (n && (*n < min || *n > max)) {
            problem(QStringLiteral("\"%1\" muss zwischen %2 und %3 liegen, nicht %4.")
                        .arg(key)
                        .arg(min)
                        .arg(max)
                        .arg(*n));
            return std::nullopt;
        }
        return n;
    }

    std::optional<int> oneOf(const QString& key, const QList<int>& codes) {
        const std::optional<int> n = number(key);
        if (n && !codes.contains(*n)) {
            problem(QStringLiteral("\"%1\" hat den unbekannten Wert %2.").arg(key).arg(*n));
            return std::nullopt;
        }
        return n;
    }

    void forbidden(const QString& key, const QString& why) {
        if (object_.contains(key)) {
            problem(QStringLiteral("\"%1\" ist hier nicht erlaubt: %2.").arg(key, why));
        }
    }

  private:
    void missing(const QString& key) { problem(QStringLiteral("\"%1\" fehlt.").arg(key)); }

    QStringList& problems_;
    QString where_;
    QJsonObject object_;
};

// Staff members and clients of the target database, looked up by what the document names.
struct Lookups {
    QHash<QString, qlonglong> staff;    // name -> the lowest id of that name
    QHash<QString, qlonglong> clients;  // "10010" or "K1" -> id
    QSet<QString> jobNames;

    explicit Lookups(const QSqlDatabase& db) {
        QSqlQuery s =
            run(db, QStringLiteral("select Name, MitId from tMitarbeiter order by MitId"));
        while (s.next()) {
            if (!staff.contains(s.value(0).toString())) {
                staff.insert(s.value(0).toString(), s.value(1).toLongLong());
            }
        }
        QSqlQuery c = run(db, QStringLiteral("select ManNr, Kanzlei, ManId from tMandant"));
        while (c.next()) {
            const QString prefix = c.value(1).toInt() != 0 ? QStringLiteral("K") : QString();
            clients.insert(prefix + c.value(0).toString(), c.value(2).toLongLong());
        }
        QSqlQuery j = run(db, QStringLiteral("select Name from tAutoJobJob"));
        while (j.next()) {
            jobNames.insert(j.value(0).toString());
        }
    }
};

std::optional<int> parseTime(Reader& r, const QString& key) {
    const std::optional<QString> t = r.text(key, true);
    if (!t) {
        return std::nullopt;
    }
    static const QRegularExpression form(QStringLiteral("^(\\d\\d):(\\d\\d):(\\d\\d)$"));
    const QRegularExpressionMatch m = form.match(*t);
    if (!m.hasMatch() || m.captured(1).toInt() > 23 || m.captured(2).toInt() > 59 ||
        m.captured(3).toInt() > 59) {
        r.problem(QStringLiteral("\"%1\" ist keine Uhrzeit (HH:MM:SS): \"%2\".").arg(key, *t));
        return std::nullopt;
    }
    return m.captured(1).toInt() * 10000 + m.captured(2).toInt() * 100 + m.captured(3).toInt();
}

std::optional<QDate> parseDate(Reader& r, const QString& key) {
    const std::optional<QString> t = r.text(key, true);
    if (!t) {
        return std::nullopt;
    }
    const QDate d = QDate::fromString(*t, QStringLiteral("yyyy-MM-dd"));
    if (!d.isValid()) {
        r.problem(QStringLiteral("\"%1\" ist kein Datum (JJJJ-MM-TT): \"%2\".").arg(key, *t));
        return std::nullopt;
    }
    return d;
}

namespace Typ {
constexpr int Einmal = 1;
constexpr int Taeglich = 4;
constexpr int Woechentlich = 8;
constexpr int Monatlich = 16;
constexpr int MonatlichRelativ = 32;
}  // namespace Typ

std::optional<cSchedule> readSchedule(QStringList& problems, const QString& jobWhere, int index,
                                      const QJsonValue& value) {
    const QJsonObject o = value.toObject();
    const QString name = o.value(Key::kName).toString();
    const QString where =
        jobWhere + (name.isEmpty() ? QStringLiteral(", Zeitplan Nr. %1").arg(index + 1)
                                   : QStringLiteral(", Zeitplan \"%1\"").arg(name));
    Reader r(problems, where, o);
    if (!value.isObject()) {
        r.problem(QStringLiteral("ein Zeitplan muss ein Objekt sein."));
        return std::nullopt;
    }
    const int before = r.problemCount();
    const auto sName = r.text(Key::kName, true, ColumnLimits::kZeitplanName);
    if (sName && sName->trimmed().isEmpty()) {
        r.problem(QStringLiteral("\"name\" darf nicht leer sein."));
    }
    const auto aktiviert = r.flag(Key::kAktiviert);
    const auto typ = r.oneOf(Key::kTyp, {Typ::Einmal, Typ::Taeglich, Typ::Woechentlich,
                                         Typ::Monatlich, Typ::MonatlichRelativ});
    std::optional<int> intervall;
    std::optional<int> wiederholung;
    std::optional<int> relativ;
    switch (typ.value_or(0)) {
        case Typ::Einmal:
            intervall = r.inRange(Key::kIntervall, 0, 0);
            wiederholung = r.inRange(Key::kWiederholung, 0, 0);
            relativ = r.inRange(Key::kRelativesIntervall, 0, 0);
            break;
        case Typ::Taeglich:
            intervall = r.inRange(Key::kIntervall, 1, ZeitintervallBereich::kTage);
            wiederholung = r.inRange(Key::kWiederholung, 0, 0);
            relativ = r.inRange(Key::kRelativesIntervall, 0, 0);
            break;
        case Typ::Woechentlich:
            intervall = r.inRange(Key::kIntervall, 1, 127);
            wiederholung = r.inRange(Key::kWiederholung, 1, ZeitintervallBereich::kWochen);
            relativ = r.inRange(Key::kRelativesIntervall, 0, 0);
            break;
        case Typ::Monatlich:
            intervall = r.inRange(Key::kIntervall, 1, ZeitintervallBereich::kMonatstage);
            wiederholung = r.inRange(Key::kWiederholung, 1, ZeitintervallBereich::kMonate);
            relativ = r.inRange(Key::kRelativesIntervall, 0, 0);
            break;
        case Typ::MonatlichRelativ:
            intervall = r.inRange(Key::kIntervall, 1, 10);
            wiederholung = r.inRange(Key::kWiederholung, 1, ZeitintervallBereich::kMonate);
            relativ = r.oneOf(Key::kRelativesIntervall, {1, 2, 4, 8, 16});
            break;
        default:
            break;
    }
    const auto einheit = r.oneOf(Key::kTagesEinheit, {1, 4, 8});
    std::optional<int> tagesIntervall;
    switch (einheit.value_or(0)) {
        case 1:
            tagesIntervall = r.inRange(Key::kTagesIntervall, 0, 1);
            break;
        case 4:
            tagesIntervall = r.inRange(Key::kTagesIntervall, 1, ZeitintervallBereich::kMinuten);
            break;
        case 8:
            tagesIntervall = r.inRange(Key::kTagesIntervall, 1, ZeitintervallBereich::kStunden);
            break;
        default:
            break;
    }
    const auto startZeit = parseTime(r, Key::kStartZeit);
    const auto endZeit = parseTime(r, Key::kEndZeit);
    const auto startDatum = parseDate(r, Key::kStartDatum);
    const auto endDatum = parseDate(r, Key::kEndDatum);
    if (startZeit && endZeit && *endZeit < *startZeit) {
        r.problem(QStringLiteral("\"endZeit\" liegt vor \"startZeit\"."));
    }
    if (startDatum && endDatum && *endDatum < *startDatum) {
        r.problem(QStringLiteral("\"endDatum\" liegt vor \"startDatum\"."));
    }
    if (typ == Typ::Einmal && startDatum && endDatum && *endDatum != *startDatum) {
        r.problem(QStringLiteral("ein einmaliger Zeitplan endet an seinem \"startDatum\"."));
    }
    if (r.problemCount() != before) {
        return std::nullopt;
    }
    cSchedule schedule;
    schedule.psName = *sName;
    schedule.pbyAktiviert = *aktiviert ? 1 : 0;
    schedule.plFrequencyType = *typ;
    schedule.plFrequencyRecurreFactor = *wiederholung;
    schedule.plFrequencyIntervall = *intervall;
    schedule.plFrequencyRelativeIntervall = *relativ;
    schedule.plFrequencySubDayIntervall = *tagesIntervall;
    schedule.plFrequencySubDay = *einheit;
    schedule.pvActiveStartTimeOfDay = *startZeit;
    schedule.pvActiveEndTimeOfDay = *endZeit;
    schedule.pdtActiveStartDate = QDateTime(*startDatum, QTime(0, 0));
    schedule.pdtActiveEndDate = QDateTime(*endDatum, QTime(0, 0));
    return schedule;
}

std::optional<PlannedJob> readJob(QStringList& problems, const Lookups& lookups, int index,
                                  const QJsonValue& value) {
    const QJsonObject o = value.toObject();
    const QString name = o.value(Key::kName).toString();
    const QString where = name.trimmed().isEmpty() ? QStringLiteral("Auftrag Nr. %1").arg(index + 1)
                                                   : QStringLiteral("Auftrag \"%1\"").arg(name);
    Reader r(problems, where, o);
    if (!value.isObject()) {
        r.problem(QStringLiteral("ein Auftrag muss ein Objekt sein."));
        return std::nullopt;
    }
    const int before = r.problemCount();
    const auto sName = r.text(Key::kName, true, ColumnLimits::kAuftragName);
    if (sName && sName->trimmed().isEmpty()) {
        r.problem(QStringLiteral("\"name\" darf nicht leer sein."));
    }
    const auto art = r.number(Key::kAuftragsart);
    if (art && auftragsartLabel(*art).isEmpty()) {
        r.problem(QStringLiteral("\"auftragsart\" hat den unbekannten Wert %1.").arg(*art));
    }
    const auto beschreibung = r.text(Key::kBeschreibung, false);
    const auto aktiviert = r.flag(Key::kAktiviert);
    const auto einzelLog = r.flag(Key::kEinzelLog);
    const auto fremdFormat = r.flag(Key::kFremdFormat);
    const auto filter = r.text(Key::kFremdDateifilter, false, ColumnLimits::kFremdDateifilter);
    const auto mapping = r.text(Key::kFremdMapping, false, ColumnLimits::kFremdMapping);
    const auto verzeichnis3 = r.text(Key::kVerzeichnis3, false, ColumnLimits::kErrorMTA);

    const auto mandKanz =
        r.inRange(Key::kMandKanz, MandKanz::Mandant, MandKanz::AlleMandantenKanzleien);
    const auto mandant = r.text(Key::kMandant, true);
    qlonglong mandantId = 0;
    if (mandKanz && mandant) {
        if (mandKanzFuerAlle(*mandKanz)) {
            if (!mandant->isEmpty()) {
                r.problem(
                    QStringLiteral("\"mandant\" muss leer sein, wenn der Auftrag für "
                                   "alle gilt."));
            }
        } else {
            const bool office = *mandKanz == MandKanz::Kanzlei;
            if (mandant->startsWith(QLatin1Char('K')) != office ||
                !lookups.clients.contains(*mandant)) {
                r.problem(QStringLiteral("%1 \"%2\" gibt es in dieser Datenbank nicht.")
                              .arg(office ? QStringLiteral("Die Kanzlei")
                                          : QStringLiteral("Den Mandanten"),
                                   *mandant));
            } else {
                mandantId = lookups.clients.value(*mandant);
            }
        }
    }

    const long artCode = art.value_or(0);
    const bool archiv = jobHatArchivAnmeldung(artCode);
    std::optional<QString> verzeichnis1 = QString();
    std::optional<QString> verzeichnis2 = QString();
    if (archiv) {
        r.forbidden(Key::kVerzeichnis1, QStringLiteral("die Auftragsart hat eine Archivanmeldung"));
        r.forbidden(Key::kVerzeichnis2, QStringLiteral("Kennwörter werden nicht übertragen"));
    } else {
        verzeichnis1 = r.text(Key::kVerzeichnis1, false, ColumnLimits::kMTAPath);
        verzeichnis2 = r.text(Key::kVerzeichnis2, false);
    }
    qlonglong staffId = 0;
    if (archiv || zusatzinfoMitMitarbeiter(artCode)) {
        const auto staff = r.text(Key::kMitarbeiter, false);
        if (staff && !staff->isEmpty()) {
            if (!lookups.staff.contains(*staff)) {
                r.problem(QStringLiteral("Den Mitarbeiter \"%1\" gibt es in dieser Datenbank "
                                         "nicht.")
                              .arg(*staff));
            } else {
                staffId = lookups.staff.value(*staff);
            }
        }
    }
    Zusatzinfo info;
    info.lMitarbeiterId = static_cast<long>(staffId);
    if (artCode == DatenArt::Nivora) {
        if (const auto key = r.inRange(Key::kHaendlerSchluessel, 1, 3)) {
            info.lHaendlerSchluessel = *key;
        }
    }
    if (artCode == DatenArt::Textdatei) {
        info.sSkript = r.text(Key::kSkript, false).value_or(QString());
        info.sTextdateien = r.text(Key::kTextdateien, false).value_or(QString());
    }

    PlannedJob job;
    const QJsonValue zeitplaene = o.value(Key::kZeitplaene);
    if (!zeitplaene.isArray()) {
        r.problem(zeitplaene.isUndefined()
                      ? QStringLiteral("\"zeitplaene\" fehlt.")
                      : QStringLiteral("\"zeitplaene\" muss eine Liste sein."));
    } else {
        const QJsonArray list = zeitplaene.toArray();
        for (int i = 0; i < list.size(); ++i) {
            if (auto s = readSchedule(problems, where, i, list.at(i))) {
                job.schedules << *s;
            }
        }
    }
    if (r.problemCount() != before) {
        return std::nullopt;
    }
    job.needsPassword = archiv;
    JobRecord& rec = job.record;
    rec.lJobId = -1;
    rec.sName = *sName;
    rec.sBeschreibung = *beschreibung;
    rec.bytAktiviert = *aktiviert ? 1 : 0;
    rec.bytDatenArt = static_cast<std::uint8_t>(artCode);
    rec.sVerzeichnis1 = *verzeichnis1;
    rec.sVerzeichnis2 = *verzeichnis2;
    rec.sVerzeichnis3 = *verzeichnis3;
    rec.lArchivMitarbeiter = static_cast<long>(staffId);
    rec.lMandant = static_cast<long>(mandantId);
    rec.bytMandKanz = static_cast<std::uint8_t>(*mandKanz);
    rec.sZusatzinfo = zusatzinfoSchreiben(artCode, info);
    rec.bSingleLog = *einzelLog;
    rec.bFremdFormat = *fremdFormat;
    rec.sFremdDateifilter = *filter;
    rec.sFremdMapping = *mapping;
    return job;
}

QList<PlannedJob> readDocument(QStringList& problems, const Lookups& lookups,
                               const QByteArray& document) {
    QJsonParseError error;
    const QJsonDocument json = QJsonDocument::fromJson(document, &error);
    if (error.error != QJsonParseError::NoError) {
        problems << QStringLiteral("Das Dokument ist kein gültiges JSON: %1 (an Stelle %2).")
                        .arg(error.errorString())
                        .arg(error.offset);
        return {};
    }
    const QJsonObject root = json.object();
    if (!json.isObject() || root.value(Key::kFormat).toString() != kFormat) {
        problems << QStringLiteral(
                        "Das Dokument enthält keine Auftragsdefinitionen "
                        "(\"format\" ist nicht \"%1\").")
                        .arg(kFormat);
        return {};
    }
    const QJsonValue version = root.value(Key::kVersion);
    if (!version.isDouble() || version.toDouble() != kVersion) {
        problems << QStringLiteral(
                        "Die Version %1 des Dokuments wird nicht unterstützt "
                        "(erwartet: %2).")
                        .arg(version.isDouble()
                                 ? QString::number(version.toDouble())
                                 : QStringLiteral("\"%1\"").arg(version.toVariant().toString()))
                        .arg(kVersion);
        return {};
    }
    if (!root.value(Key::kAuftraege).isArray()) {
        problems << QStringLiteral("Das Dokument hat keine Liste \"auftraege\".");
        return {};
    }
    const QJsonArray list = root.value(Key::kAuftraege).toArray();
    QList<PlannedJob> jobs;
    for (int i = 0; i < list.size(); ++i) {
        if (auto job = readJob(problems, lookups, i, list.at(i))) {
            jobs << *job;
        }
    }
    return jobs;
}

// Each job and its schedules go in through the same writer as the editor's save, on the
// connection of the import's transaction.
void write(CRecordset& recordset, const QList<PlannedJob>& jobs, long staffId,
           const QDateTime& now) {
    recordset.Connect();
    {
        const JournalAnlass anlass(recordset, QStringLiteral("Import"));
        for (const PlannedJob& job : jobs) {
            const long jobId = JobStore::insert(recordset, job.record, staffId, now);
            for (const cSchedule& s : job.schedules) {
                ScheduleStore::insert(recordset, s, jobId, staffId, now);
            }
        }
    }
    recordset.Disconnect();
}

}  // namespace

ImportResult importJobs(Database& database, const QByteArray& document, long staffId) {
    ImportResult result;
    QSqlDatabase db = QSqlDatabase::database(database.connectionName(), false);
    try {
        const Lookups lookups(db);
        const QList<PlannedJob> jobs = readDocument(result.problems, lookups, document);
        if (!result.problems.isEmpty()) {
            return result;
        }
        database.inTransaction(
            [&] { write(*database.recordsetFactory()(), jobs, staffId, database.clock().now()); });
        QSet<QString> named;  // a name twice in the document clashes as one already stored
        for (const PlannedJob& job : jobs) {
            const QString& name = job.record.sName;
            result.imported << name;
            if ((lookups.jobNames.contains(name) || named.contains(name)) &&
                !result.nameClashes.contains(name)) {
                result.nameClashes << name;
            }
            named.insert(name);
            if (job.needsPassword) {
                result.needPassword << name;
            }
        }
        result.written = true;
    } catch (const RaisedError& e) {
        result.problems << QStringLiteral("Die Aufträge konnten nicht gespeichert werden: %1")
                               .arg(e.err().Description);
    }
    return result;
}

QString importReport(const ImportResult& result, int listed) {
    // At most `listed` lines of a list (all when negative), then how many more there are.
    const auto shortened = [listed](const QStringList& lines) {
        if (listed < 0 || lines.size() <= listed) {
            return lines.join(QLatin1Char('\n'));
        }
        return (lines.mid(0, listed)
                << QStringLiteral("  … und %1 weitere").arg(lines.size() - listed))
            .join(QLatin1Char('\n'));
    };
    const auto quoted = [&](const QStringList& names) {
        QStringList lines;
        for (const QString& n : names) {
            lines << QStringLiteral("  \"%1\"").arg(n);
        }
        return shortened(lines);
    };
    if (!result.written) {
        return QStringLiteral("Es wurde kein Auftrag importiert:\n") + shortened(result.problems);
    }
    // The summary first, the warnings next, the jobs written last.
    QString text = result.imported.isEmpty()
                       ? QStringLiteral("Das Dokument enthält keinen Auftrag.")
                   : result.imported.size() == 1
                       ? QStringLiteral("1 Auftrag importiert.")
                       : QStringLiteral("%1 Aufträge importiert.").arg(result.imported.size());
    if (!result.nameClashes.isEmpty()) {
        text += QStringLiteral(
                    "\n\nDiese Namen gab es schon; die Aufträge wurden als neue "
                    "Aufträge angelegt:\n") +
                quoted(result.nameClashes);
    }
    if (!result.needPassword.isEmpty()) {
        text += QStringLiteral(
                    "\n\nKennwörter werden nicht übertragen. Bitte das "
                    "Archivkennwort eintragen bei:\n") +
                quoted(result.needPassword);
    }
    if (!result.imported.isEmpty()) {
        text += QStringLiteral("\n\nImportiert:\n") + quoted(result.imported);
    }
    return text;
}

}  // namespace JobTransfer
