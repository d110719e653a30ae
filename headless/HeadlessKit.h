#pragma once

// The in-memory window kit: every control kind, the window and its factory.
#include "headless/HeadlessBrowser.h"
#include "headless/HeadlessChoices.h"
#include "headless/HeadlessControl.h"
#include "headless/HeadlessDialogs.h"
#include "headless/HeadlessGrid.h"
#include "headless/HeadlessSimpleControls.h"
#include "headless/HeadlessTextBox.h"
#include "headless/HeadlessTimeBox.h"
#include "headless/HeadlessTool.h"
#include "headless/HeadlessToolBar.h"
#include "headless/HeadlessValueControls.h"
#include "headless/HeadlessWindow.h"
