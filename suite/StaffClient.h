#pragma once

#include "common/StaffClient.h"

// The suite's staff object over the table tMitarbeiter.
class SuiteMitarbeiter : public OIMitarbeiterClass {
  public:
    void SetId(long id) override;
    void Lesen() override;
    bool KeinDatensatz() override;
    QString Anzeigename() override;
    void Schliessen() override;
    // "'yyyy-MM-dd HH:mm:ss'", the literal of the database's ISO dates; the mode is not
    // looked at. An invalid date gives the zero date.
    QString FormatSqlDate(const QDateTime& value, long mode) override;

  private:
    long id_ = 0;
    bool found_ = false;
    QString name_;
};

// The suite's client object over the table tMandant, clients and offices alike.
class SuiteMandant : public OIMandantClass {
  public:
    void SetId(long id) override;
    void Lesen() override;
    long GetId() override;
    long ManNr() override;
    bool IstKanzlei() override;
    void Schliessen() override;

  private:
    long id_ = 0;
    long foundId_ = 0;
    long manNr_ = 0;
    bool kanzlei_ = false;
};
