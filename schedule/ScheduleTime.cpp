#include "schedule/ScheduleTime.h"

#include <limits>

#include "common/ErrObject.h"

namespace {

constexpr int kStellen = 6;

QString sechsStellig(qlonglong lZahl) {
    const QString sZiffern =
        QStringLiteral("%1").arg(lZahl < 0 ? -lZahl : lZahl, kStellen, 10, QLatin1Char('0'));
    return lZahl < 0 ? QLatin1Char('-') + sZiffern : sZiffern;
}

}  // namespace

QString zeitAnzeige(const QString& sZeit) {
    if (sZeit.isEmpty()) {
        return {};
    }
    bool bZahl = false;
    const qlonglong lZahl = sZeit.trimmed().toLongLong(&bZahl);
    const QString s = bZahl ? sechsStellig(lZahl) : sZeit;
    return s.mid(0, 2) + QLatin1Char(':') + s.mid(2, 2) + QLatin1Char(':') + s.mid(4, 2);
}

QString zeitAlsText(const QVariant& vZeit) {
    if (!vZeit.isValid() || vZeit.isNull()) {
        return {};
    }
    return vZeit.toString();
}

std::int32_t zeitAlsZahl(const QVariant& vZeit) {
    const QString sZeit = zeitAlsText(vZeit).trimmed();
    if (sZeit.isEmpty()) {
        return 0;
    }
    bool bZahl = false;
    const qlonglong lZahl = sZeit.toLongLong(&bZahl);
    if (!bZahl) {
        throw RaisedError(ErrNumber::TypeMismatch, QStringLiteral("Typen unverträglich"));
    }
    if (lZahl < std::numeric_limits<std::int32_t>::min() ||
        lZahl > std::numeric_limits<std::int32_t>::max()) {
        throw RaisedError(ErrNumber::Overflow, QStringLiteral("Überlauf"));
    }
    return static_cast<std::int32_t>(lZahl);
}

QDateTime keinEndDatum() {
    return QDateTime(QDate(9999, 12, 31), QTime(0, 0));
}

bool istOhneEnde(const QDateTime& dtEnde) {
    return dtEnde.date() == QDate(9999, 12, 31);
}

QDateTime tagesBeginn(const QDateTime& dtMoment) {
    return QDateTime(dtMoment.date(), QTime(0, 0));
}
