#pragma once

#include <QString>

// What the module helpers need of a tool bar: its type name and the enabled state of a tool.
// The window kit's bars implement it.
class NavBar {
  public:
    virtual ~NavBar() = default;
    virtual QString typeName() const = 0;
    virtual void setToolEnabled(const QString& band, const QString& tool, bool enabled) = 0;
};
