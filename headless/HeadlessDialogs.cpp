#include "headless/HeadlessDialogs.h"

#include "common/Services.h"

std::optional<QString> HeadlessFileDialog::ShowOpen(const FileDialogSettings& settings) {
    last_ = settings;
    const std::shared_ptr<PlatformUi> ui = services().ui;
    if (!ui) {
        return std::nullopt;
    }
    return ui->FileDialog(settings.title, settings.filter, settings.initialDirectory,
                          settings.fileName);
}

void HeadlessFileDialog::userKey(int, int) {
    unsupported("key");
}

std::optional<QString> HeadlessDirDialog::ShowDir(const QString& title, const QString& start) {
    const std::shared_ptr<PlatformUi> ui = services().ui;
    if (!ui) {
        return std::nullopt;
    }
    return ui->DirDialog(title, start);
}

void HeadlessDirDialog::userKey(int, int) {
    unsupported("key");
}
