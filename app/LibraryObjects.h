#pragma once

#include <memory>

#include "common/ErrorExit.h"

// The record object of a procedure, created under the procedure's creation guard.
inline std::unique_ptr<CRecordset> neuesRecordset(ErrorExit& ex) {
    return ex.create(services().newRecordset, QStringLiteral("hdata.dll"),
                     QStringLiteral("Set oTL = New hdata.CRecordset"));
}
