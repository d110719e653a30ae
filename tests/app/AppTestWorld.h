#pragma once

// One world per test: an in-memory database with the schema, the suite's stand-ins, in-memory
// windows, a recording platform, and a small host that plays the host application's part:
// its base object, its frame, its notification target and its document data.

#include <QMap>
#include <QSet>
#include <QStringList>
#include <algorithm>
#include <map>
#include <memory>
#include <vector>

#include "app/cAdminJob.h"
#include "app/cMain.h"
#include "app/cOIAutoJobVerw.h"
#include "app/cProperties.h"
#include "app/cUIAutoJobVerw.h"
#include "program/ProgramServices.h"
#include "suite/SuiteServices.h"
#include "tests/common/CommonFakes.h"
#include "tests/headless/HeadlessTestKit.h"
#include "ui/windows/frmEigenschaften.h"
#include "ui/windows/frmPakete.h"

// The private parts the tests look at.
class AdminJobTestAccess {
  public:
    static long& jobIdKopiert(cAdminJob& a) { return a.mlJobIdKopiert; }
    static long& jobId(cAdminJob& a) { return a.mlJobId; }
    static QString& jobName(cAdminJob& a) { return a.msJobName; }
    static long& jobIdListe(cAdminJob& a) { return a.mlJobIdListe; }
    static long jobZeile(cAdminJob& a) { return a.mlJobZeile; }
    static std::vector<Auftragsart>& auftragsarten(cAdminJob& a) { return a.maAuftragsarten; }
    static const QString& jobNamen(cAdminJob& a) { return a.msJobNamen; }
    static std::shared_ptr<frmEigenschaften>& eigenschaften(cAdminJob& a) {
        return a.mofrmEigenschaften;
    }
    static QString auswahlBedingung(cAdminJob& a) { return a.msAuswahlBedingung(); }
    static void jobIdErmitteln(cAdminJob& a, long& lId, QString& sName) {
        a.mJobIdErmitteln(lId, sName);
    }
    static void menuStatus(cAdminJob& a) { a.mMenuStatus(); }
    static void eigenschaftenTool(cAdminJob& a, const QString& sTool) {
        a.mEigenschaftenTool(sTool);
    }
    static QString auftragsart(cAdminJob& a, long lDatenArt) {
        return a.msGetAuftragsart(lDatenArt);
    }
    static void initCbo(cAdminJob& a, IComboBox& cbo, std::uint8_t key, bool alle) {
        a.mInitCBOAuftragsart(cbo, key, alle);
    }
    static void initCboVonLogDaten(cAdminJob& a, IComboBox& cbo, long key, bool alle) {
        a.moLogDaten_evInitCBOAuftragsart(cbo, key, alle);
    }
    static bool archivJob(cAdminJob& a) { return a.mbArchivJob(); }
    static bool kestoDirekt(cAdminJob& a) { return a.mbKestoDirekt(); }
    static bool nivora(cAdminJob& a) { return a.mbNivora(); }
    static QString mandNr(cAdminJob& a, long lId) { return a.msMandNrErm(lId); }
};

class ApplicationTestAccess {
  public:
    static cAdminJob* adminJob(cUIAutoJobVerw& app) { return app.moAdminJob.get(); }
    static long status(cUIAutoJobVerw& app) { return app.mlStatus; }
    static std::shared_ptr<cProperties> properties(cUIAutoJobVerw& app) { return app.moProperties; }
};

namespace app_test {

// What the host sees and answers; shared by its objects.
struct HostState {
    bool basisNotify = true;
    bool istBeendet = false;
    int istBeendetFragen = 0;
    QStringList anmeldungen;
    std::vector<long> basisCodes;
    std::map<QString, bool> menu;  // "Bearbeiten.Neu" -> state last sent
    int menuMeldungen = 0;
    QStringList fortschritt;  // "hint|end hint"
};

struct FakeFrame : HostFrame {
    std::shared_ptr<HostState> state;
    void ZeigeFortschritt(const QString& sHinweis, const QString& sEndeHinweis) override {
        state->fortschritt << sHinweis + QLatin1Char('|') + sEndeHinweis;
    }
};

// The host's base object: creates the registered classes and keeps them, as the host does.
struct FakeBasis : ZPKyBasisAbruf {
    std::shared_ptr<HostState> state;
    FakeFrame frame;
    std::shared_ptr<HostObject> applikation;
    std::shared_ptr<HostObject> dokument;

    explicit FakeBasis(std::shared_ptr<HostState> s) : state(std::move(s)) { frame.state = state; }

    void Anmelden(UIInterfaceClass* oMain, const QString& sDok, const QString& sApp,
                  long lId) override {
        state->anmeldungen << QStringLiteral("%1 %2 %3 %4")
                                  .arg(oMain ? oMain->TypeName() : QStringLiteral("-"), sDok, sApp)
                                  .arg(lId);
        applikation = services().hostClasses.at(sApp)();
        dokument = services().hostClasses.at(sDok)();
    }
    std::shared_ptr<HostObject> GetApplikation() override { return applikation; }
    std::shared_ptr<HostObject> GetDokument() override { return dokument; }
    HostFrame* GetFrame() override { return &frame; }
    void BasisNotify(UIInterfaceClass*, long lCode, long&, QVariant&, bool& bOk) override {
        state->basisCodes.push_back(lCode);
        bOk = state->basisNotify;
    }
    void IstBeendet(bool& bBeendet) override {
        ++state->istBeendetFragen;
        bBeendet = state->istBeendet;
    }
    void MenuStatus(const QString& sTool, const QString& sBand, bool bEnabled, long&) override {
        state->menu[sBand + QLatin1Char('.') + sTool] = bEnabled;
        ++state->menuMeldungen;
    }
};

// The host's own notification target; answers 503 with the document's name.
struct FakeHostTarget : UIInterfaceClass {
    std::vector<long> codes;
    QString docName = QStringLiteral("Aufträge");
    QString TypeName() const override { return QStringLiteral("Host"); }
    void gNotify(UIInterfaceClass*, long lCode, long&, QVariant& vParam) override {
        codes.push_back(lCode);
        if (lCode == 503) {
            vParam = docName;
        }
    }
};

struct FakeDokumentDaten : DokumentDaten {
    QMap<QString, QVariant> werte{{QStringLiteral("ManId"), 1},
                                  {QStringLiteral("MitId"), 1},
                                  {QStringLiteral("ManNr"), 1},
                                  {QStringLiteral("ManKurz"), QStringLiteral("M1")},
                                  {QStringLiteral("AktenTyp"), 4}};
    QVariant Lesen(const QString& name) const override { return werte.value(name); }
};

struct FakeLog : LogClass {
    std::shared_ptr<QStringList> lines;
    long antwort = 1;
    long IsTraceOn() override { return antwort; }
    void Write(long level, const QString& text) override {
        *lines << QString::number(level) + QLatin1Char(' ') + text;
    }
};

struct FakeShell : Shell {
    struct Start {
        QString program;
        QStringList arguments;
        int style;
    };
    std::vector<Start> starts;
    bool gelingt = true;
    bool Start(const QString& program, const QStringList& arguments, int style) override {
        starts.push_back({program, arguments, style});
        return gelingt;
    }
    bool Open(const QString&) override { return true; }
};

struct FakeFileSystem : FileSystemObject {
    QSet<QString> files;
    bool FileExists(const QString& path) override { return files.contains(path); }
    bool FolderExists(const QString&) override { return false; }
    QStringList Files(const QString&) override { return {}; }
    qint64 FileSize(const QString&) override { return 0; }
    QDateTime DateLastModified(const QString&) override { return {}; }
};

inline const QString kTitel = QStringLiteral("Suite  Konfiguration automatischer Aufträge");
inline const QString kProgrammDir = QStringLiteral("/opt/suite/bin/");

class World {
  public:
    World() : World(std::make_shared<SuiteConfig>()) {}

    explicit World(std::shared_ptr<SuiteConfig> cfg)
        : config(std::move(cfg)),
          clock(std::make_shared<FixedClock>(QDateTime(QDate(2026, 11, 22), QTime(10, 0)))),
          db(Database::open(QStringLiteral(":memory:"), clock)),
          scope(makeServices()) {}

    std::shared_ptr<SuiteConfig> config;
    std::shared_ptr<FixedClock> clock;
    std::shared_ptr<Database> db;
    std::shared_ptr<RecordingUi> ui = std::make_shared<RecordingUi>();
    std::shared_ptr<HeadlessWindowFactory> windows = std::make_shared<HeadlessWindowFactory>();
    std::shared_ptr<FakeShell> shell = std::make_shared<FakeShell>();
    std::shared_ptr<FakeFileSystem> fileSystem = std::make_shared<FakeFileSystem>();
    std::shared_ptr<HostState> host = std::make_shared<HostState>();
    std::shared_ptr<QStringList> traces = std::make_shared<QStringList>();
    long traceAntwort = 0;
    ScopedServices scope;

    FakeHostTarget target;
    FakeDokumentDaten daten;
    std::unique_ptr<cMain> main;
    std::shared_ptr<HostObject> properties;
    std::shared_ptr<HostObject> frmMain;

    void sql(const char* script) { db->runScript(QString::fromUtf8(script)); }

    // A job row of type 17 for client 1.
    void job(int id, const char* name, int aktiv = 1, int datenArt = 17) {
        db->runScript(QStringLiteral("INSERT INTO tAutoJobJob (idAutoJob, Name, Aktiviert, "
                                     "DatenArt, MandKanz, Ps_Id_Mandant, Ps_Id_Mitarbeiter) "
                                     "VALUES (%1, '%2', %3, %4, 1, 1, 1)")
                          .arg(id)
                          .arg(QString::fromUtf8(name))
                          .arg(aktiv)
                          .arg(datenArt));
    }

    // What the host does at the start: cMain, code 25, the document's record, Anlegen and
    // Initialisieren, then code 2.
    void start() {
        registrieren();
        notify(2);
    }

    void registrieren() {
        main = std::make_unique<cMain>();
        notify(25);
        auto* dokument = dynamic_cast<IOIDokInfo*>(basis().GetDokument().get());
        dokument->IOIDokInfo_Anlegen(false, &daten, properties);
        app().IUIApplikation_Anlegen(properties.get(), frmMain);
        app().IUIApplikation_Initialisieren(properties.get(), frmMain);
    }

    struct Antwort {
        long lParam;
        bool ok;
    };
    // A notification from the host; ok is false when the component answered with 402.
    Antwort notify(long code, long lParam = 0) {
        const auto vorher = std::count(target.codes.begin(), target.codes.end(), 402L);
        QVariant vParam;
        main->gNotify(&target, code, lParam, vParam);
        const auto nachher = std::count(target.codes.begin(), target.codes.end(), 402L);
        return {lParam, nachher == vorher};
    }

    void tool(const QString& name) { app().IUIApplikation_AktionBearbeiten(name); }

    FakeBasis& basis() { return dynamic_cast<FakeBasis&>(*main->basis()); }
    cUIAutoJobVerw& app() { return *main->applikation(); }
    cAdminJob& admin() { return *ApplicationTestAccess::adminJob(app()); }
    cProperties& props() { return dynamic_cast<cProperties&>(*properties); }
    HeadlessWindow& listWindow() { return *windows->find(QStringLiteral("frmPakete")); }
    HeadlessBrowser& browser() {
        return dynamic_cast<HeadlessBrowser&>(
            *listWindow().headlessControl(QStringLiteral("ctlPakete")));
    }
    IToolBar& barMenu() { return listWindow().get<IToolBar>(QStringLiteral("barMenu")); }

    void select(const QList<int>& rows) { browser().userBrowserSelect(rows); }

    // Every tool name of the browser's bar or menu that is on, in order.
    QStringList toolsAn(IToolList& list) {
        QStringList an;
        for (int i = 0; i < list.Count(); ++i) {
            ITool* t = list.At(i);
            if (!t->IsSeparator() && t->Enabled()) {
                an << t->Name();
            }
        }
        return an;
    }
    QStringList bandAn(const QString& band) {
        QStringList an;
        for (const QString& name : barMenu().ToolNames(band)) {
            if (barMenu().Tool(band, name)->Enabled()) {
                an << name;
            }
        }
        return an;
    }

    QStringList boxTexts() const {
        QStringList texts;
        for (const auto& b : ui->boxes) {
            texts << b.text;
        }
        return texts;
    }
    QStringList errorSources() const {
        QStringList sources;
        for (const auto& r : ui->reports) {
            sources << r.source.section(QStringLiteral("\r\n"), -1) + QStringLiteral(": ") +
                           r.description;
        }
        return sources;
    }

    QString scalar(const QString& query) {
        auto rs = services().newRecordset();
        rs->Connect();
        QString value;
        if (rs->OpenQuery(query, 0) >= 1) {
            value = rs->ReadValue(rs->FieldNames().value(0)).toString();
        }
        rs->Close();
        return value;
    }

  private:
    Services makeServices() {
        config->paths[41] = kProgrammDir;
        Services s = composeProgramServices({config, db, clock, ui, windows, nullptr});
        db->applySchema();
        db->runScript(
            QStringLiteral("INSERT INTO tMitarbeiter (MitId, Name) VALUES (1, 'Anna Admin');"
                           "INSERT INTO tSuiteText (TextId, Text) VALUES (1001, 'Suite');"
                           "INSERT INTO tSuiteText (TextId, Text) VALUES (1236, 'Kesto');"));
        s.shell = shell;
        s.fileSystem = fileSystem;
        auto state = host;
        s.newBasisAbruf = [state] { return std::make_unique<FakeBasis>(state); };
        auto lines = traces;
        auto* self = this;
        s.newLog = [lines, self] {
            auto log = std::make_unique<FakeLog>();
            log->lines = lines;
            log->antwort = self->traceAntwort;
            return log;
        };
        return s;
    }
};

}  // namespace app_test
