#pragma once

#include <QStringList>
#include <memory>
#include <vector>

#include "common/NavBar.h"
#include "common/Services.h"

// A platform that records what it is asked and answers from a queue.
struct RecordingUi : PlatformUi {
    struct Box {
        QString text;
        long flags;
        QString title;
    };
    struct Report {
        long number;
        QString source;
        QString description;
    };
    std::vector<Box> boxes;
    std::vector<Report> reports;
    QStringList helpTopics;
    std::vector<long> answers;
    int pointer = 11;

    long MsgBox(const QString& text, long flags, const QString& title) override {
        boxes.push_back({text, flags, title});
        if (answers.empty()) {
            return 1;
        }
        const long a = answers.front();
        answers.erase(answers.begin());
        return a;
    }
    void ShowErrorReport(long number, const QString& source, const QString& description) override {
        reports.push_back({number, source, description});
    }
    void ShowHelp(const QString& file, const QString& topic) override {
        helpTopics << file + QStringLiteral("#") + topic;
    }
    std::optional<QString> FileDialog(const QString&, const QString&, const QString&,
                                      const QString&) override {
        return std::nullopt;
    }
    std::optional<QString> DirDialog(const QString&, const QString&) override {
        return std::nullopt;
    }
    void SetMousePointer(int p) override { pointer = p; }
};

struct FakeCoreGlobal : CoreGlobalClass {
    QString FormatCreateCommand(const QString& dll, const QString& command) override {
        return QStringLiteral("<") + dll + QStringLiteral(":") + command + QStringLiteral(">");
    }
    long GetInstallationsArt() override { return 0; }
};

struct UiCoreError : CoreErrorClass {
    void Report(long number, const QString& source, const QString& description) override {
        services().ui->ShowErrorReport(number, source, description);
    }
};

struct FakeBar : NavBar {
    QString type = QStringLiteral("ActiveBar2");
    std::map<QString, bool> enabled;
    QString typeName() const override { return type; }
    void setToolEnabled(const QString& band, const QString& tool, bool on) override {
        enabled[band + QStringLiteral(".") + tool] = on;
    }
};

// A registry with a recording platform, a core error object that reports through it and a
// global object; everything else unset.
inline Services recordingServices(std::shared_ptr<RecordingUi> ui) {
    Services s;
    s.ui = ui;
    s.clock = std::make_shared<FixedClock>(QDateTime(QDate(2026, 11, 22), QTime(10, 0)));
    s.coreGlobal = std::make_shared<FakeCoreGlobal>();
    s.newCoreError = [] { return std::make_unique<UiCoreError>(); };
    return s;
}
