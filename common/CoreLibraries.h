#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QVariant>

// Interfaces of the suite's core library. The system reaches them only through the creation
// guard (ErrorExit.h) and the service registry (Services.h).

class CoreToolsClass {
  public:
    virtual ~CoreToolsClass() = default;
    // A directory of the suite by number: 41 program directory, 83 data root, 6 suite path.
    virtual QString GetPfad(long code) = 0;
    // The suite's ini file.
    virtual QString GetIniDatei() = 0;
    // One value of an ini file; empty when file, section or key is missing.
    virtual QString IniLesen(const QString& file, const QString& section, const QString& key) = 0;
    // The suite's message box: flags and answers as the platform's (6 yes, 7 no, 2 cancel).
    virtual long MsgBox(const QString& text, long flags, const QString& title,
                        const QString& helpFile, long context) = 0;
};

class CoreErrorClass {
  public:
    virtual ~CoreErrorClass() = default;
    // Shows the suite's error dialog.
    virtual void Report(long number, const QString& source, const QString& description) = 0;
};

class CoreConvertClass {
  public:
    virtual ~CoreConvertClass() = default;
    // A variant as a 32-bit value; text that is no number raises a type mismatch.
    virtual long ToLong(const QVariant& value) = 0;
};

class CoreHelpClass {
  public:
    virtual ~CoreHelpClass() = default;
    virtual long ShowHelp(const QString& helpFile, const QString& topic) = 0;
};

class CoreGlobalClass {
  public:
    virtual ~CoreGlobalClass() = default;
    // The creation text of the creation guard for a library object.
    virtual QString FormatCreateCommand(const QString& dll, const QString& command) = 0;
    // 1 is the local kind of installation.
    virtual long GetInstallationsArt() = 0;
};

// Something a picture of the suite can be put on: a window's icon or a bar's tools. The
// window kit implements it.
class PictureTarget {
  public:
    virtual ~PictureTarget() = default;
    virtual void setIconPicture(long pictureId) = 0;
    virtual void setToolPicture(const QString& tool, long pictureId) = 0;
};

// The suite's picture every window of the system gets as its icon, after it has been filled
// and before it is shown.
inline constexpr long kFensterSymbol = 1000;

class CoreTexteClass {
  public:
    virtual ~CoreTexteClass() = default;
    // A numbered text of the suite's text table; empty when there is none.
    virtual QString GetText(const QVariant& textId) = 0;
    // Gives a window its icon from the suite's pictures (kFensterSymbol for every window).
    virtual void SetFormIcon(PictureTarget& window, long pictureId) = 0;
    // Sets the pictures of a bar's tools in one call.
    virtual void GetBilder(PictureTarget& bar, const QList<QPair<QString, long>>& tools) = 0;
};

// The suite's trace log.
class LogClass {
  public:
    virtual ~LogClass() = default;
    // Only the lowest bit of the answer counts.
    virtual long IsTraceOn() = 0;
    virtual void Write(long level, const QString& text) = 0;
};
