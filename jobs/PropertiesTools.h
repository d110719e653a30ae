#pragma once

#include <QString>

// The tools of the properties window's bar, band "barMain".
namespace PropertiesTool {
inline const QString Save = QStringLiteral("save");
inline const QString New = QStringLiteral("new");
inline const QString Delete = QStringLiteral("delete");
inline const QString First = QStringLiteral("first");
inline const QString Previous = QStringLiteral("previous");
inline const QString Next = QStringLiteral("next");
inline const QString Last = QStringLiteral("last");
}  // namespace PropertiesTool
