#pragma once

#include <QVariant>
#include <memory>

#include "app/ClassTrace.h"
#include "common/Host.h"

class cUIAutoJobVerw;

// What the host creates first: registers the component with the host base object, receives
// the application object from it and passes every notification on to it.
class cMain : public UIInterfaceClass {
  public:
    // Class_Initialize: registration with a new host base object.
    cMain();
    // Class_Terminate.
    ~cMain() override;
    cMain(const cMain&) = delete;
    cMain& operator=(const cMain&) = delete;

    QString TypeName() const override { return QStringLiteral("cMain"); }

    // UIInterfaceClass_gInstall: nothing to install.
    void gInstall() override {}
    // UIInterfaceClass_gNotify: a notification failed by the application object is answered
    // with code 402 to the notifier.
    void gNotify(UIInterfaceClass* oNotify, long lCode, long& lParam, QVariant& vParam) override;

    // The host's base object and the application object it made, for the host.
    std::shared_ptr<ZPKyBasisAbruf> basis() const { return moBasis; }
    std::shared_ptr<cUIAutoJobVerw> applikation() const { return moApplikation; }

  private:
    void mNotifyFehler(UIInterfaceClass* oNotify);

    std::shared_ptr<ZPKyBasisAbruf> moBasis;
    std::shared_ptr<cUIAutoJobVerw> moApplikation;
    ClassTrace moTrace{QStringLiteral("cMain")};
};
