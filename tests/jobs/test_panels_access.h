#pragma once

// The editor as the job-type panels and the checks see it: a fresh editor window handed to
// the controller of a started world, without the list's way of opening it.

#include <memory>

#include "common/FileSystem.h"
#include "tests/app/AppTestWorld.h"
#include "ui/windows/frmEigenschaften.h"

class PanelsTestAccess {
  public:
    static void datenart(cAdminJob& a, std::uint8_t bytArt) { a.mDatenart(bytArt); }
    static void mandKanz(cAdminJob& a, std::uint8_t bytKanz) { a.mMandKanz(bytKanz); }
    static void mitFremdformat(cAdminJob& a) { a.mChangeMitFremdformat(); }
    static bool check(cAdminJob& a) { return a.mbCheckEigenschaften(); }
    static bool backupPfad(cAdminJob& a) { return a.mbCheckBackupPfadVorhanden(); }
    static void fileSystemPfad(cAdminJob& a, int index) { a.mShowFileSystemPfad(index); }
    static void mappingDatei(cAdminJob& a) { a.mMappingDateiAuswaehlen(); }
    static long& fraImportHoehe(cAdminJob& a) { return a.mlFraImportHoehe; }
    static bool& backupGefragt(cAdminJob& a) { return a.mbBackupGefragt; }
    static std::uint8_t& bytMandKanz(cAdminJob& a) { return a.mbytMandKanz; }
    static std::uint8_t& bytDatenArt(cAdminJob& a) { return a.mbytDatenArt; }
    static QString& standardPfad(cAdminJob& a) { return a.msStandardPfad; }
};

namespace panels_test {

// Folders that exist as the workstation sees them.
struct Ordner : FileSystemObject {
    QSet<QString> folders;
    bool FileExists(const QString&) override { return false; }
    bool FolderExists(const QString& path) override { return folders.contains(path); }
    QStringList Files(const QString&) override { return {}; }
    qint64 FileSize(const QString&) override { return 0; }
    QDateTime DateLastModified(const QString&) override { return {}; }
};

class Editor {
  public:
    app_test::World w;
    std::shared_ptr<frmEigenschaften> f;
    std::shared_ptr<Ordner> ordner = std::make_shared<Ordner>();

    Editor() {
        w.config->paths[6] = QStringLiteral("/opt/suite/");
        w.start();
        services().fileSystem = ordner;
        neuesFenster();
    }

    // The editor made anew, its directory frame at 600 twips.
    void neuesFenster() {
        f = std::make_shared<frmEigenschaften>(
            services().windows->create(frmEigenschaften::declaration()));
        f->fraImport().setTop(600);
        f->fraNivora().setHeight(500);
        f->FraTxtImport().setHeight(900);
        PanelsTestAccess::fraImportHoehe(admin()) = 600;
        AdminJobTestAccess::eigenschaften(admin()) = f;
    }

    cAdminJob& admin() { return w.admin(); }

    // The type chosen as the user does: the combo stands on it, then the panels follow.
    void typ(std::uint8_t bytArt) {
        AdminJobTestAccess::initCbo(admin(), f->cboComboBox(frmEigenschaften::Cbo::Auftragsart),
                                    bytArt, false);
        PanelsTestAccess::datenart(admin(), bytArt);
    }

    QStringList boxen() const { return w.boxTexts(); }
};

}  // namespace panels_test
