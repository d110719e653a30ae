#pragma once

#include <QDateTime>

// Every "now" and "today" of the system comes from here, so a test can fix the moment.
class IClock {
  public:
    virtual ~IClock() = default;
    virtual QDateTime now() const = 0;
    QDate today() const { return now().date(); }
};

class SystemClock : public IClock {
  public:
    QDateTime now() const override;
};

class FixedClock : public IClock {
  public:
    explicit FixedClock(QDateTime moment) : moment_(moment) {}
    QDateTime now() const override { return moment_; }
    void set(QDateTime moment) { moment_ = moment; }

  private:
    QDateTime moment_;
};
