#include "host/DesktopProgram.h"

#include <QTableView>

#include "common/Clock.h"
#include "common/ModuleHelpers.h"
#include "forecast/cAusfuehrungsplan.h"
#include "gui/QtBookingLogDisplay.h"
#include "gui/QtUi.h"
#include "gui/QtWindowFactory.h"
#include "host/DesktopSession.h"
#include "host/HostMainWindow.h"
#include "host/JobTransferCommands.h"
#include "program/ProgramServices.h"
#include "suite/SuiteServices.h"
#include "ui/windows/frmPakete.h"

namespace {

// The tools of the list's menu bar, whose bands become the host's menus.
QList<ToolDecl> menuTools() {
    QList<ToolDecl> tools;
    for (const ToolDecl& t : frmPakete::declaration().tools) {
        if (t.bar == QLatin1String("barMenu")) {
            tools << t;
        }
    }
    return tools;
}

}  // namespace

Services desktopServices(std::shared_ptr<SuiteConfig> config, std::shared_ptr<Database> db,
                         std::shared_ptr<IClock> clock) {
    return composeProgramServices(
        {std::move(config), std::move(db), clock, std::make_shared<QtUi>(),
         std::make_shared<QtWindowFactory>(nullptr), std::make_shared<QtBookingLogDisplay>()});
}

DesktopProgram::DesktopProgram(std::shared_ptr<SuiteConfig> config, std::shared_ptr<IClock> clock)
    : config_(std::move(config)),
      clock_(clock ? std::move(clock) : std::make_shared<SystemClock>()),
      db_(openSuiteDatabase(*config_, clock_)),
      window_(std::make_unique<HostMainWindow>(QString(), menuTools())),
      session_(std::make_unique<DesktopSession>(*config_, *window_)) {
    Services s = desktopServices(config_, db_, clock_);
    s.newBasisAbruf = [session = session_.get()] { return session->makeBasis(); };
    scope_ = std::make_unique<ScopedServices>(std::move(s));

    window_->setWindowTitle(msGetTitel());
    window_->onTool = [session = session_.get()](const QString& tool) { session->tool(tool); };
    window_->onClose = [this] { end(); };
    window_->onExport = [this] {
        const QWidget* list = window_->centralWidget();
        JobTransfer::exportFromMenu(
            window_.get(), *db_,
            JobTransfer::selectedJobIds(list ? list->findChild<QTableView*>() : nullptr));
    };
    window_->onImport = [this] {
        JobTransfer::importFromMenu(window_.get(), *db_, config_->mitId,
                                    [session = session_.get()] { session->refresh(); });
    };
    window_->onRefresh = [session = session_.get()] { session->refresh(); };
    window_->onPlan = [] { cAusfuehrungsplan().zeigen(0); };
}

DesktopProgram::~DesktopProgram() {
    end();
    window_->onTool = nullptr;
    window_->onClose = nullptr;
    window_->onExport = nullptr;
    window_->onImport = nullptr;
    window_->onRefresh = nullptr;
    window_->onPlan = nullptr;
    session_.reset();
    window_.reset();
    scope_.reset();
}

void DesktopProgram::start() {
    session_->start();
    window_->show();
}

void DesktopProgram::end() {
    session_->end();
}
