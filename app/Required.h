#pragma once

// An object the procedure needs but that is not there: error 424 of the classic runtime,
// "Objekt erforderlich", for the procedure's error exit to report.
[[noreturn]] void raiseObjektErforderlich();

// The object behind a pointer of any kind, or error 424 when it is empty.
template <class Pointer>
auto& required(const Pointer& p) {
    if (!p) {
        raiseObjektErforderlich();
    }
    return *p;
}
