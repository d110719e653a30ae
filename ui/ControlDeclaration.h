#pragma once

#include "ui/Window.h"

namespace declare {

// One control of a window's declaration: its name, its index in the control array (-1 for a
// single control), its kind, caption and hint.
inline ControlDecl control(const char* name, int index, ControlKind kind, const char* caption = "",
                           const char* hint = "") {
    ControlDecl c;
    c.name = QString::fromUtf8(name);
    c.index = index;
    c.kind = kind;
    c.caption = QString::fromUtf8(caption);
    c.hint = QString::fromUtf8(hint);
    return c;
}

}  // namespace declare
