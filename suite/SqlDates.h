#pragma once

#include <QDateTime>
#include <QString>
#include <QStringView>
#include <optional>

// Dates as the database holds them: ISO text 'yyyy-MM-dd HH:mm:ss', or a number of days since
// 1899-12-30 whose fraction is the time of day, as the server converts numbers to dates.

// Day 0; 9999-12-31 is day 2958465.
QDate dayNumberOrigin();
QDateTime dateFromDayNumber(double days);
// The stored form of a date: 'yyyy-MM-dd HH:mm:ss'.
QString storedDateText(const QDateTime& value);
// ISO forms ('yyyy-MM-dd', with ' ' or 'T' and a time, with or without seconds and fractions)
// and the German forms 'dd.MM.yyyy' and 'dd.MM.yyyy HH:mm[:ss]'. Blanks around are ignored.
std::optional<QDateTime> parseDateText(QStringView text);

// The units of the server's datediff.
enum class DatePart { Year, Quarter, Month, Week, Day, Hour, Minute, Second };

// The server's names and abbreviations of a unit (day, dd, d, week, wk, ww, ...), any case.
std::optional<DatePart> datePartFromName(QStringView name);
// The one name per unit that the translated statements carry.
QString datePartName(DatePart part);
// The number of unit boundaries crossed from a to b, negative when b lies before a. A week
// begins on Sunday.
qint64 dateDiff(DatePart part, const QDateTime& a, const QDateTime& b);
// The earliest moment t with dateDiff(part, t, now) <= n: the start of the unit that lies n
// units before the one of now (a week starting on Sunday). Every later moment, the future
// included, counts n or fewer boundaries up to now.
QDateTime startOfUnitsBefore(DatePart part, const QDateTime& now, qint64 n);
