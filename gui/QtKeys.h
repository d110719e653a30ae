#pragma once

#include <Qt>

class QKeyEvent;

// Key codes and shift states as the system knows them (13 Enter, 46 Delete, 112 F1; shift
// 1, ctrl 2, alt 4) and Qt's keys.
namespace QtKeys {

// The system's code of a Qt key, 0 for a key it has no code for.
int codeOf(int qtKey);
int shiftOf(Qt::KeyboardModifiers modifiers);
// The Qt key of a code, Qt::Key_unknown for none.
Qt::Key qtKeyOf(int code);
Qt::KeyboardModifiers modifiersOf(int shift);

}  // namespace QtKeys
