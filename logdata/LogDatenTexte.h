#pragma once

#include <QString>

// The texts and statements of the log data viewer, built exactly as the viewer shows and runs
// them.
namespace logdaten {

// Kinds of log entries a command names.
constexpr long kDienst = 1;
constexpr long kAuftraege = 2;

// The browser's statement over the view: the entries of the kind, of one job when lJobId > 0.
QString msAbfrage(long lLogArt, long lJobId);
// The browser's title and window caption; sTitelKopf is text 1001 of the suite.
QString msTitel(const QString& sTitelKopf, long lLogArt, long lJobId, const QString& sJobName);
// The key the browser keeps its settings under: one per kind, shared by all jobs.
QString msSchluessel(long lLogArt);

// The deletion window's caption.
QString msLoeschTitel(const QString& sTitelKopf, long lLogArt);

// The condition of the deletion; sVon and sBis are complete date literals or empty. The kind
// chooses the types (lLoeschArt 2: jobs, else the service) when lLogArt isn't 0; the job
// lLoeschJobId is a condition when lJobId > 0.
QString msLoeschBedingung(const QString& sVon, const QString& sBis, long lLogArt, long lLoeschArt,
                          long lJobArt, long lJobId, long lLoeschJobId);
// The message after a deletion of lAnzahl entries.
QString msLoeschErgebnis(long lAnzahl);

}  // namespace logdaten
