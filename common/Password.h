#pragma once

#include <QByteArray>
#include <QString>

// The form in which a password is stored in a text column: hex of the ANSI codes, reversed.
QString msPasswortKodieren(const QString& sText, bool bKodieren);
// Each character as its ANSI code in two lower-case hexadecimal digits.
QString msTextNachHex(const QString& sText);
// Each pair of hexadecimal digits as the character of that ANSI code.
QString msHexNachText(const QString& sText);

// The ANSI code page of the suite, Windows-1252. Characters outside it become '?'.
QByteArray toAnsi(const QString& text);
QString fromAnsi(const QByteArray& bytes);
