#include "suite/CoreTools.h"

#include "suite/CoreStandIns.h"
#include "suite/IniFile.h"

QString SuiteCoreTools::GetPfad(long code) {
    return config_->paths.value(code);
}

QString SuiteCoreTools::GetIniDatei() {
    return config_->iniFilePath;
}

QString SuiteCoreTools::IniLesen(const QString& file, const QString& section, const QString& key) {
    return IniFile::read(file).value(section, key);
}

long SuiteCoreTools::MsgBox(const QString& text, long flags, const QString& title,
                            const QString& /*helpFile*/, long /*context*/) {
    return suiteUi().MsgBox(text, flags, title);
}
