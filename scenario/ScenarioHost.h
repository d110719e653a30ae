#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>
#include <map>
#include <memory>
#include <optional>

#include "common/Host.h"

// The host application as a scenario plays it: what its base object answers, what it was
// told (menu states, progress texts, notifications) and the objects it created.
struct HostState {
    bool basisNotifyAnswer = true;
    bool istBeendetAnswer = false;
    // The document's name, the answer to code 503.
    QString docName = QStringLiteral("Aufträge");

    // "band.tool" -> enabled, as last sent through MenuStatus.
    std::map<QString, bool> menu;
    // The two texts of the last ZeigeFortschritt.
    std::optional<std::pair<QString, QString>> progress;
    // Codes the host received since the last check.
    QList<long> notified;
    // How many times the system told the host that a notification failed (code 402).
    int failedNotifications = 0;

    // The objects the base object created when the component registered.
    std::weak_ptr<HostObject> application;
    std::weak_ptr<HostObject> document;
};

// The host's frame: keeps the progress texts.
class ScenarioFrame : public HostFrame {
  public:
    explicit ScenarioFrame(HostState& state) : state_(state) {}
    void ZeigeFortschritt(const QString& sHinweis, const QString& sEndeHinweis) override;

  private:
    HostState& state_;
};

// The host base object. Anmelden creates the registered application and document objects
// by their program identifiers from the registry's host classes.
class ScenarioBasis : public ZPKyBasisAbruf {
  public:
    ScenarioBasis(std::shared_ptr<HostState> state, HostFrame& frame)
        : state_(std::move(state)), frame_(frame) {}

    void Anmelden(UIInterfaceClass* oMain, const QString& sDokumentProgId,
                  const QString& sApplikationProgId, long lApplikationId) override;
    std::shared_ptr<HostObject> GetApplikation() override { return application_; }
    std::shared_ptr<HostObject> GetDokument() override { return document_; }
    HostFrame* GetFrame() override { return &frame_; }
    void BasisNotify(UIInterfaceClass* oNotify, long lCode, long& lParam, QVariant& vParam,
                     bool& bOk) override;
    void IstBeendet(bool& bBeendet) override;
    void MenuStatus(const QString& sTool, const QString& sBand, bool bEnabled,
                    long& lErgebnis) override;

  private:
    std::shared_ptr<HostState> state_;
    HostFrame& frame_;
    std::shared_ptr<HostObject> application_;
    std::shared_ptr<HostObject> document_;
};

// The host's notification target: writes down every code and answers 503 with the
// document's name.
class HostNotifyTarget : public UIInterfaceClass {
  public:
    explicit HostNotifyTarget(std::shared_ptr<HostState> state) : state_(std::move(state)) {}
    void gNotify(UIInterfaceClass* oNotify, long lCode, long& lParam, QVariant& vParam) override;
    QString TypeName() const override { return QStringLiteral("HostNotify"); }

  private:
    std::shared_ptr<HostState> state_;
};

// The host's document data: read by name. Numbers are whole numbers, ManKurz and PropString
// texts.
class ScenarioDokumentDaten : public DokumentDaten {
  public:
    ScenarioDokumentDaten();
    QVariant Lesen(const QString& name) const override;
    // Sets a field from its written value; false for a name the document data do not have.
    // Throws ScenarioError when a number field gets no whole number.
    bool set(const QString& name, const QString& value);

  private:
    QMap<QString, QVariant> fields_;
};
