#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QVariant>
#include <cstdint>

// Times of day are stored as decimal HHMMSS without leading zeros: 0 is midnight, 93000 is
// 09:30:00. Dates are calendar days; 9999-12-31 as end date means the schedule never ends.

inline constexpr std::int32_t kMitternacht = 0;
inline constexpr std::int32_t kTagesende = 235959;

// "93000" -> "09:30:00"; empty text stays empty. Text that is no number keeps its characters.
QString zeitAnzeige(const QString& sZeit);

// A time field as the text the display form starts from: a number in decimal, digit text as
// it stands, nothing for an empty field.
QString zeitAlsText(const QVariant& vZeit);

// A time field as the number written to the table: empty and null give 0. Text that is no
// whole number raises a type mismatch, a value beyond 32 bits an overflow.
std::int32_t zeitAlsZahl(const QVariant& vZeit);

// The end date that stands for no end.
QDateTime keinEndDatum();
bool istOhneEnde(const QDateTime& dtEnde);

// The day of a moment at midnight.
QDateTime tagesBeginn(const QDateTime& dtMoment);
