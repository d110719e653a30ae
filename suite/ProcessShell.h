#pragma once

#include "common/FileSystem.h"

// Starts programs as processes of their own, with an argument list and without a shell in
// between, and does not wait for them.
class ProcessShell : public Shell {
  public:
    bool Start(const QString& program, const QStringList& arguments, int windowStyle) override;
    // "explorer " + path: the desktop's default handler for the path (xdg-open here, the
    // explorer on Windows).
    bool Open(const QString& path) override;

    // The program and arguments that open a path with the desktop's default handler.
    static QString openProgram();
};
