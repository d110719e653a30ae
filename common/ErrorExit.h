#pragma once

#include <QString>
#include <memory>

#include "common/ErrorReport.h"
#include "common/Services.h"

// The error exit every procedure arms. Usage:
//
//   bool cAdminJob::mbSomething() {
//       ErrorExit ex("mbSomething", "cAdminJob");
//       try {
//           auto oTL = ex.create(services().newRecordset, "hdata.dll",
//                                "Set oTL = New hdata.CRecordset");
//           ...
//           return true;
//       } catch (...) {
//           ex.fail();
//       }
//       return false;
//   }
//
// Objects created inside the try block are released (record sets closed and disconnected)
// while the exception unwinds, before fail() reports; the error itself travels in the
// exception, so cleaning up cannot destroy it. fail() reports once and returns so that the
// caller goes on; with bRaise it throws the error on into the caller's own exit.
class ErrorExit {
  public:
    ErrorExit(QString sProc, QString sKlasse)
        : sProc_(std::move(sProc)), sKlasse_(std::move(sKlasse)) {}

    // The creation guard: the creation text is set while the object is being created, so an
    // error exit taken meanwhile tells which command failed in which library.
    template <class T>
    std::unique_ptr<T> create(const Services::Factory<T>& factory, const QString& dll,
                              const QString& command) {
        sCreate_ = formatCreateCommand(dll, command);
        std::unique_ptr<T> object = factory ? factory() : nullptr;
        if (!object) {
            throwCannotCreate(dll);
        }
        sCreate_.clear();
        return object;
    }

    // To be called only from a catch block.
    void fail(bool bRaise = false);

    const QString& sProc() const { return sProc_; }
    const QString& creationText() const { return sCreate_; }

  private:
    static QString formatCreateCommand(const QString& dll, const QString& command);
    [[noreturn]] static void throwCannotCreate(const QString& dll);

    QString sProc_;
    QString sKlasse_;
    QString sCreate_;
};

// The error of the exception being handled, as an ErrObject.
ErrObject currentExceptionAsErr();

// Runs body under an error exit of its own and gives def when it fails. For small procedures
// that need no creation guard.
template <class R, class Body>
R withErrorExit(const QString& sProc, const QString& sKlasse, R def, Body&& body) {
    ErrorExit ex(sProc, sKlasse);
    try {
        return body(ex);
    } catch (...) {
        ex.fail();
    }
    return def;
}
