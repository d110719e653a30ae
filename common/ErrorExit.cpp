#include "common/ErrorExit.h"

ErrObject currentExceptionAsErr() {
    try {
        throw;
    } catch (const RaisedError& r) {
        return r.err();
    } catch (const std::exception& x) {
        return ErrObject{ErrNumber::Internal, QString::fromLocal8Bit(x.what()), {}, 0};
    } catch (...) {
        return ErrObject{ErrNumber::Internal, QStringLiteral("Unbekannter Fehler"), {}, 0};
    }
}

void ErrorExit::fail(bool bRaise) {
    Err() = currentExceptionAsErr();
    Core_gFehlerMerken(sCreate_);
    Core_gFehlerZurueck();
    const QString extra = sCreate_;
    sCreate_.clear();
    Core_gFehler(sProc_, sKlasse_, bRaise, extra);
}

QString ErrorExit::formatCreateCommand(const QString& dll, const QString& command) {
    auto& global = services().coreGlobal;
    if (!global) {
        throwCannotCreate(QStringLiteral("hcore.dll"));
    }
    return global->FormatCreateCommand(dll, command);
}

void ErrorExit::throwCannotCreate(const QString& dll) {
    throw RaisedError(ErrNumber::CannotCreate,
                      QStringLiteral("Objekterstellung durch ActiveX-Komponente nicht möglich"),
                      dll);
}
