#pragma once

#include <QDateTime>
#include <QString>

// The suite's staff object: one staff member, read by id.
class OIMitarbeiterClass {
  public:
    virtual ~OIMitarbeiterClass() = default;
    virtual void SetId(long id) = 0;
    virtual void Lesen() = 0;
    // True when the last Lesen found no record.
    virtual bool KeinDatensatz() = 0;
    virtual QString Anzeigename() = 0;
    virtual void Schliessen() = 0;
    // A complete date literal for a statement, delimiters included; the time part of a date
    // without time reads "00:00:00".
    virtual QString FormatSqlDate(const QDateTime& value, long mode) = 0;
};

// The suite's client object: one client or office, read by id.
class OIMandantClass {
  public:
    virtual ~OIMandantClass() = default;
    virtual void SetId(long id) = 0;
    virtual void Lesen() = 0;
    // The id of the record read, 0 when none was found.
    virtual long GetId() = 0;
    virtual long ManNr() = 0;
    // True when the record is an office.
    virtual bool IstKanzlei() = 0;
    virtual void Schliessen() = 0;
};
