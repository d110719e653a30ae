#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "common/Host.h"
#include "suite/SuiteConfig.h"

// The host's side of the program: its base object, its frame and its notification target,
// as the suite's host application would give them to a registered component.

// Shows the component's progress texts.
class DesktopFrame : public HostFrame {
  public:
    std::function<void(const QString&, const QString&)> onProgress;
    void ZeigeFortschritt(const QString& sHinweis, const QString& sEndeHinweis) override;
};

// Receives the component's notifications: answers 503 with the document's name, tells 402.
class DesktopNotifyTarget : public UIInterfaceClass {
  public:
    explicit DesktopNotifyTarget(QString docName) : docName_(std::move(docName)) {}
    QString TypeName() const override { return QStringLiteral("UIInterfaceClass"); }
    void gNotify(UIInterfaceClass* oNotify, long lCode, long& lParam, QVariant& vParam) override;
    std::function<void()> onFailedNotification;

  private:
    QString docName_;
};

// The host base object: creates the registered application and document objects, lets every
// notification through and passes the menu state on.
class DesktopBasis : public ZPKyBasisAbruf {
  public:
    explicit DesktopBasis(std::shared_ptr<DesktopFrame> frame) : frame_(std::move(frame)) {}

    void Anmelden(UIInterfaceClass* oMain, const QString& sDokumentProgId,
                  const QString& sApplikationProgId, long lApplikationId) override;
    std::shared_ptr<HostObject> GetApplikation() override { return applikation_; }
    std::shared_ptr<HostObject> GetDokument() override { return dokument_; }
    HostFrame* GetFrame() override { return frame_.get(); }
    void BasisNotify(UIInterfaceClass*, long, long&, QVariant&, bool& bOk) override { bOk = true; }
    void IstBeendet(bool& bBeendet) override { bBeendet = false; }
    void MenuStatus(const QString& sTool, const QString& sBand, bool bEnabled,
                    long& lErgebnis) override;

    std::function<void(const QString& band, const QString& tool, bool enabled)> onMenuStatus;

  private:
    std::shared_ptr<DesktopFrame> frame_;
    std::shared_ptr<HostObject> applikation_;
    std::shared_ptr<HostObject> dokument_;
};

// The document data the host hands over when it opens the job agent's document.
class DesktopDokumentDaten : public DokumentDaten {
  public:
    explicit DesktopDokumentDaten(const SuiteConfig& config) : config_(config) {}
    QVariant Lesen(const QString& name) const override;

  private:
    const SuiteConfig& config_;
};
