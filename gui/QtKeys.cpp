#include "gui/QtKeys.h"

#include <array>
#include <utility>

namespace {

// Keys whose codes do not follow from letters, digits or function keys.
constexpr std::array<std::pair<int, int>, 22> kOtherKeys{{
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},      {Qt::Key_Return, 13}, {Qt::Key_Enter, 13},
    {Qt::Key_Shift, 16},    {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},    {Qt::Key_Pause, 19},
    {Qt::Key_Escape, 27},   {Qt::Key_Space, 32},   {Qt::Key_PageUp, 33}, {Qt::Key_PageDown, 34},
    {Qt::Key_End, 35},      {Qt::Key_Home, 36},    {Qt::Key_Left, 37},   {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},    {Qt::Key_Down, 40},    {Qt::Key_Insert, 45}, {Qt::Key_Delete, 46},
    {Qt::Key_Backtab, 9},   {Qt::Key_Menu, 93},
}};

}  // namespace

namespace QtKeys {

int codeOf(int qtKey) {
    if ((qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) || (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9)) {
        return qtKey;  // the same codes as the letters and digits
    }
    if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F24) {
        return 112 + (qtKey - Qt::Key_F1);
    }
    for (const auto& [key, code] : kOtherKeys) {
        if (key == qtKey) {
            return code;
        }
    }
    return 0;
}

int shiftOf(Qt::KeyboardModifiers modifiers) {
    int shift = 0;
    if (modifiers & Qt::ShiftModifier) {
        shift |= 1;
    }
    if (modifiers & Qt::ControlModifier) {
        shift |= 2;
    }
    if (modifiers & Qt::AltModifier) {
        shift |= 4;
    }
    return shift;
}

Qt::Key qtKeyOf(int code) {
    if ((code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9')) {
        return static_cast<Qt::Key>(code);
    }
    if (code >= 112 && code < 112 + 24) {
        return static_cast<Qt::Key>(Qt::Key_F1 + (code - 112));
    }
    for (const auto& [key, c] : kOtherKeys) {
        if (c == code) {
            return static_cast<Qt::Key>(key);
        }
    }
    return Qt::Key_unknown;
}

Qt::KeyboardModifiers modifiersOf(int shift) {
    Qt::KeyboardModifiers m;
    if (shift & 1) {
        m |= Qt::ShiftModifier;
    }
    if (shift & 2) {
        m |= Qt::ControlModifier;
    }
    if (shift & 4) {
        m |= Qt::AltModifier;
    }
    return m;
}

}  // namespace QtKeys
