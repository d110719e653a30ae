#pragma once

#include <memory>

#include "headless/HeadlessControl.h"

class QWidget;

// The Qt control of the declared kind, its widgets children of parent.
std::unique_ptr<HeadlessControl> makeQtControl(const ControlDecl& decl, HeadlessWindow& window,
                                               QWidget* parent);
