#pragma once

#include <QString>
#include <functional>

class QtWindow;

// A hand-made layout of one window: puts the widgets of the window's controls on its widget.
using QtLayout = std::function<void(QtWindow& window)>;

// Registers the layout of the window of that name; it replaces the automatic layout.
void registerQtLayout(const QString& windowName, QtLayout layout);
// The layout registered for the window, or the built-in one; empty when there is none.
QtLayout qtLayoutFor(const QString& windowName);
