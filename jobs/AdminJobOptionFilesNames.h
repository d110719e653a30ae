#pragma once

#include <QString>

// Splits a full file name into its path, its name and its extension, so that path + name +
// extension gives the name back:
//   "/imp/kunden.txt" -> "/imp/", "kunden", ".txt"
// The path keeps its last separator ("/" or "\"), the extension its dot; a name without a
// dot has no extension. Joining a directory and a name therefore goes through joinPath,
// which adds no second separator.
void gStrSplitFileName(const QString& sDatei, QString& sPfad, QString& sName, QString& sExt);

// The extension as a file dialog's pattern wants it after "*.": without its dot.
QString extOhnePunkt(const QString& sExt);
