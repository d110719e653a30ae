#include "common/ErrorReport.h"

#include "common/Services.h"

namespace {

const QString kCrLf = QStringLiteral("\r\n");

ErrObject& currentErr() {
    static ErrObject err;
    return err;
}

SavedError& moduleValues() {
    static SavedError saved;
    return saved;
}

QString fourDigits(int n) {
    return QStringLiteral("%1").arg(n, 4, 10, QLatin1Char('0'));
}

}  // namespace

ErrObject& Err() {
    return currentErr();
}

const SavedError& savedError() {
    return moduleValues();
}

void Core_gFehlerMerken(const QString& sInfo) {
    ErrObject& e = Err();
    if (!sInfo.isEmpty()) {
        e.Source = e.Source + kCrLf + sInfo;
    }
    SavedError& saved = moduleValues();
    if (saved.number == 0) {
        saved.number = e.Number;
        saved.description = e.Description;
        saved.source = e.Source;
        const long erl = e.Erl;
        e.Clear();
        e.Erl = erl;  // the line belongs to the statement, not to the saved values
    }
}

void Core_gFehlerZurueck() {
    SavedError& saved = moduleValues();
    ErrObject& e = Err();
    e.Number = saved.number;
    e.Description = saved.description;
    e.Source = saved.source;
    saved = SavedError{};
}

void Core_gQuelleSetzen() {
    ErrObject& e = Err();
    if (e.Source.mid(12, 1) == QLatin1String("|")) {
        return;
    }
    const ProgramInfo& p = services().program;
    e.Source = fourDigits(p.major) + fourDigits(p.minor) + fourDigits(p.revision) +
               QLatin1Char('|') + p.fileName + QLatin1Char('|') + e.Source;
}

void Core_gFehler(const QString& sProc, const QString& sKlasse, bool bRaise,
                  const QString& sExtra) {
    Core_gQuelleSetzen();
    ErrObject& e = Err();
    e.Source = e.Source + kCrLf + services().program.fileName + QLatin1Char('.') + sKlasse +
               QLatin1Char('.') + sProc;
    if (!sExtra.isEmpty()) {
        e.Description = e.Description + kCrLf + kCrLf + sExtra;
    }
    if (e.Erl > 0) {
        e.Source =
            e.Source + QStringLiteral(" (Zeile ") + QString::number(e.Erl) + QLatin1Char(')');
    }
    if (bRaise) {
        // Raised again with its own number; description and source go along as they stand.
        ErrObject raised = e;
        raised.Erl = 0;
        e.Clear();
        throw RaisedError(raised);
    }
    Core_gErrorHandling(e);
}

void Core_gErrorHandling(ErrObject& oErr) {
    const long number = oErr.Number;
    const QString description = oErr.Description;
    const QString source = oErr.Source;
    QString sCreate;
    try {
        Services& s = services();
        if (s.ui) {
            s.ui->SetMousePointer(0);
        }
        sCreate = kCrLf + kCrLf + QStringLiteral("Folgender Befehl hat diesen Fehler ausgelöst:") +
                  kCrLf + QStringLiteral("\"Set oCoreError = New hcore.CoreErrorClass\"");
        std::unique_ptr<CoreErrorClass> oCoreError = s.newCoreError ? s.newCoreError() : nullptr;
        if (!oCoreError) {
            throw RaisedError(ErrNumber::CannotCreate,
                              QStringLiteral("Objekterstellung durch ActiveX-Komponente nicht "
                                             "möglich"),
                              QStringLiteral("hcore"));
        }
        sCreate.clear();
        oCoreError->Report(number, source, description);
        oErr.Clear();
    } catch (...) {
        // The plain message: the error of the report itself, with what it was doing.
        ErrObject failure;
        try {
            throw;
        } catch (const RaisedError& r) {
            failure = r.err();
        } catch (const std::exception& x) {
            failure = ErrObject{ErrNumber::Internal, QString::fromLocal8Bit(x.what()), {}, 0};
        } catch (...) {
            failure = ErrObject{ErrNumber::Internal, QStringLiteral("Unbekannter Fehler"), {}, 0};
        }
        failure.Description += sCreate;
        failure.Source += kCrLf + QStringLiteral("CoreErrorHandling.Core_gErrorHandling");
        const QString text = QStringLiteral("Fehler-Nr: ") + QString::number(failure.Number) +
                             kCrLf + failure.Description + kCrLf + kCrLf +
                             QStringLiteral("Fehlerquelle: ") + failure.Source;
        try {
            if (auto& ui = services().ui) {
                ui->MsgBox(text, 16, QStringLiteral("Fehler beim Zugriff auf eine DLL"));
            }
        } catch (...) {
            // Nothing is left to tell it with.
        }
        oErr.Clear();
    }
}
