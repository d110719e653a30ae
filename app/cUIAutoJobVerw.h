#pragma once

#include <QVariant>
#include <memory>

#include "app/ClassTrace.h"
#include "app/HostInterfaces.h"

class cAdminJob;
class cMain;
class cProperties;
class frmPakete;
class IBrowser;

// The application object that the host drives: it holds the host's objects, the list window
// and the one controller, and turns the host's notifications into the controller's calls.
class cUIAutoJobVerw : public virtual HostObject, public IUIApplikation, public IUIFrmAbruf {
  public:
    // Class_Initialize and Class_Terminate.
    cUIAutoJobVerw();
    ~cUIAutoJobVerw() override;
    cUIAutoJobVerw(const cUIAutoJobVerw&) = delete;
    cUIAutoJobVerw& operator=(const cUIAutoJobVerw&) = delete;

    QString TypeName() const override { return QStringLiteral("cUIAutoJobVerw"); }

    // Called by cMain right after the registration.
    void fSetBasis(std::weak_ptr<ZPKyBasisAbruf> oBasis);
    void fSetMain(cMain* oMain);

    void IUIApplikation_AktionBearbeiten(const QString& sAktion) override;
    // Creates the list window; ofrmMain is that window, a frmPakete.
    bool IUIApplikation_Anlegen(HostObject* oDokumentInfo,
                                std::shared_ptr<HostObject>& ofrmMain) override;
    void IUIApplikation_EigenschaftenGeaendert(HostObject* oObjekt) override;
    // oDokumentInfo is the cProperties the document object made; creates the controller.
    void IUIApplikation_Initialisieren(HostObject* oDokumentInfo,
                                       std::shared_ptr<HostObject> ofrmMain) override;

    void IUIFrmAbruf_Anlegen(HostObject* frmAbruf) override;
    bool IUIFrmAbruf_AusgabeVorbereiten(HostObject* frmAbruf) override;
    void IUIFrmAbruf_Beenden(HostObject* frmAbruf) override;
    void IUIFrmAbruf_EingabenUebertragen(HostObject* frmAbruf) override;

    // Handles a notification after the host base object; reached through cMain's gNotify.
    // lParam may come back changed (-1000 when the host is ending).
    bool fbNotify(UIInterfaceClass* oNotify, long lCode, long& lParam, QVariant& vParam);

    // The list window, for the host that shows it.
    std::shared_ptr<frmPakete> listWindow() const { return moFrmPakete; }

  private:
    friend class ApplicationTestAccess;

    bool mbShowForms();
    void mStart(bool bRestart);
    void mShowHide(bool bShow);
    void mObjekteVerwerfen();
    void moAdminJob_evFortschritt(const QString& sHinweis, const QString& sEndeHinweis);

    ClassTrace moTrace{QStringLiteral("cUIAutoJobVerw")};
    std::shared_ptr<frmPakete> moFrmPakete;
    UIInterfaceClass* moNotify = nullptr;
    std::weak_ptr<ZPKyBasisAbruf> moBasis;
    HostFrame* moFrame = nullptr;
    cMain* moMain = nullptr;
    std::shared_ptr<HostObject> moDokument;
    std::shared_ptr<cProperties> moProperties;
    // 0 new, 1 first showing under way, 2 shown.
    long mlStatus = 0;
    std::unique_ptr<cAdminJob> moAdminJob;
    std::shared_ptr<IBrowser> moPakete;
};
