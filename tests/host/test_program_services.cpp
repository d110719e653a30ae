// The program users start and the scenario world are one composition: the world replaces
// only what a scenario must control.
#include <gtest/gtest.h>

#include <QApplication>
#include <QSet>
#include <map>
#include <typeinfo>

#include "headless/HeadlessWindow.h"
#include "scenario/ScenarioWorld.h"
#include "tests/host/ProgramFixture.h"

namespace {

template <class T>
QString typeOf(const T* object) {
    return object ? QString::fromLatin1(typeid(*object).name()) : QString();
}

template <class T>
QString product(const std::function<std::unique_ptr<T>()>& factory) {
    if (!factory) {
        return {};
    }
    auto object = factory();
    return typeOf(object.get());
}

// Each service of the registry by name: the type of what it is or makes, empty when none.
std::map<QString, QString> describe(const Services& s) {
    QStringList classes;
    for (const auto& entry : s.hostClasses) {
        classes << entry.first;
    }
    classes.sort();
    return {
        {QStringLiteral("clock"), typeOf(s.clock.get())},
        {QStringLiteral("ui"), typeOf(s.ui.get())},
        {QStringLiteral("newRecordset"), product(s.newRecordset)},
        {QStringLiteral("newCoreTools"), product(s.newCoreTools)},
        {QStringLiteral("newCoreError"), product(s.newCoreError)},
        {QStringLiteral("newCoreConvert"), product(s.newCoreConvert)},
        {QStringLiteral("newCoreHelp"), product(s.newCoreHelp)},
        {QStringLiteral("newLog"), product(s.newLog)},
        {QStringLiteral("newMitarbeiter"), product(s.newMitarbeiter)},
        {QStringLiteral("newMandant"), product(s.newMandant)},
        {QStringLiteral("newOptionFileReader"), product(s.newOptionFileReader)},
        {QStringLiteral("newBookingLogViewer"), product(s.newBookingLogViewer)},
        {QStringLiteral("bookingLogDisplay"), typeOf(s.bookingLogDisplay.get())},
        {QStringLiteral("fileSystem"), typeOf(s.fileSystem.get())},
        {QStringLiteral("shell"), typeOf(s.shell.get())},
        {QStringLiteral("windows"), typeOf(s.windows.get())},
        {QStringLiteral("newBasisAbruf"), product(s.newBasisAbruf)},
        {QStringLiteral("hostClasses"), classes.join(u',')},
        {QStringLiteral("coreGlobal"), typeOf(s.coreGlobal.get())},
        {QStringLiteral("coreTexte"), typeOf(s.coreTexte.get())},
    };
}

class NoAnswers : public ScenarioPrompter {
  public:
    long answerMessageBox(const QString&, long, const QString&) override { return 1; }
    std::optional<QString> answerFileDialog(const QString&) override { return {}; }
    std::optional<QString> answerDirDialog(const QString&) override { return {}; }
};

}  // namespace

using ProgramServicesTest = ProgramFixture;

TEST_F(ProgramServicesTest, EveryServiceOfTheProgramIsThere) {
    for (const auto& [name, type] : describe(services())) {
        EXPECT_FALSE(type.isEmpty()) << name.toStdString() << " is empty";
    }
}

TEST_F(ProgramServicesTest, ScenarioWorldReplacesOnlyWhatAScenarioControls) {
    const auto program = describe(services());
    NoAnswers prompter;
    std::map<QString, QString> world;
    {
        ScenarioWorld scenario(prompter, std::make_shared<HeadlessWindowFactory>());
        world = describe(services());
    }
    const QSet<QString> controlled{
        QStringLiteral("clock"),         QStringLiteral("ui"),
        QStringLiteral("shell"),         QStringLiteral("windows"),
        QStringLiteral("newBasisAbruf"), QStringLiteral("bookingLogDisplay")};
    for (const auto& [name, type] : program) {
        EXPECT_FALSE(world.at(name).isEmpty()) << name.toStdString() << " is empty in the world";
        if (!controlled.contains(name)) {
            EXPECT_EQ(world.at(name), type) << name.toStdString() << " differs";
        }
    }
    // A scenario starts no program: its shell writes the command lines down.
    EXPECT_NE(world.at(QStringLiteral("shell")), program.at(QStringLiteral("shell")));
    EXPECT_NE(world.at(QStringLiteral("clock")), program.at(QStringLiteral("clock")));
}
