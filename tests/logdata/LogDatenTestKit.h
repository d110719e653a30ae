#pragma once

// A world for the log data viewer: the application's test world, a modal driver that plays
// the user inside the viewer's windows, and a record set that tells which statements ran.

#include <functional>
#include <map>
#include <memory>

#include "logdata/cLogDaten.h"
#include "tests/app/AppTestWorld.h"
#include "ui/windows/frmLogDaten.h"
#include "ui/windows/frmLogDatenDel.h"
#include "ui/windows/frmLogDatenDetails.h"

class LogDatenTestAccess {
  public:
    static long logArt(cLogDaten& o) { return o.mlLogArt; }
    static long aktZeile(cLogDaten& o) { return o.mlAktZeile; }
    static long& loeschArt(cLogDaten& o) { return o.mlLoeschArt; }
    static long loeschJobId(cLogDaten& o) { return o.mlLoeschJobId; }
    static bool destructor(cLogDaten& o) { return o.mbDestructor; }
    static std::shared_ptr<frmLogDaten> browser(cLogDaten& o) { return o.moFrmLogDaten; }
    static std::shared_ptr<frmLogDatenDel> loeschen(cLogDaten& o) { return o.moFrmLogDatenDel; }
    static std::shared_ptr<frmLogDatenDetails> details(cLogDaten& o) {
        return o.moFrmLogDatenDetails;
    }
    static void loeschenDirekt(cLogDaten& o, long lJobArt, long lJobId, long lLogArt,
                               const QDateTime& von, const QDateTime& bis, bool meldung) {
        o.mLogDatenDelete(lJobArt, lJobId, lLogArt, von, bis, meldung);
    }
    static void nav(cLogDaten& o, const QString& tool) { o.mLogDetailNav(tool); }
    static void details(cLogDaten& o, bool) { o.mShowLogDatenDetails(); }
};

namespace logdaten_test {

// Plays the user of each modal window with the step given for its name; a window without a
// step is closed by its close box.
struct Driver : ModalDriver {
    app_test::World* world = nullptr;
    std::map<QString, std::function<void(HeadlessWindow&)>> steps;
    void runModal(const QString& name) override {
        HeadlessWindow* w = world->windows->find(name);
        auto it = steps.find(name);
        if (it != steps.end()) {
            it->second(*w);
        }
        if (!w->isUnloaded() && w->Visible()) {
            w->userClose();
        }
    }
};

// Forwards to the real record set and keeps every statement Execute ran; Connect can fail.
class RecordingRecordset : public CRecordset {
  public:
    RecordingRecordset(std::unique_ptr<CRecordset> real, std::shared_ptr<QStringList> statements,
                       bool connectFails)
        : real_(std::move(real)), statements_(std::move(statements)), fails_(connectFails) {}

    void Connect() override {
        if (fails_) {
            throw RaisedError(3704, QStringLiteral("Keine Verbindung zur Datenbank."),
                              QStringLiteral("hdata"));
        }
        real_->Connect();
    }
    void Disconnect() override { real_->Disconnect(); }
    long OpenQuery(const QString& sql, long lockMode) override {
        return real_->OpenQuery(sql, lockMode);
    }
    void Close() override { real_->Close(); }
    void AddNew() override { real_->AddNew(); }
    void Update(long mode, bool confirm) override { real_->Update(mode, confirm); }
    bool Move(long direction) override { return real_->Move(direction); }
    long Execute(const QString& sql) override {
        *statements_ << sql;
        return real_->Execute(sql);
    }
    bool ReadBool(const QString& f) override { return real_->ReadBool(f); }
    QDateTime ReadDate(const QString& f) override { return real_->ReadDate(f); }
    long ReadLong(const QString& f) override { return real_->ReadLong(f); }
    QString ReadText(const QString& f) override { return real_->ReadText(f); }
    QStringList FieldNames() override { return real_->FieldNames(); }
    QVariant ReadValue(const QString& f) override { return real_->ReadValue(f); }
    void WriteBool(const QString& f, bool v) override { real_->WriteBool(f, v); }
    void WriteDate(const QString& f, const QDateTime& v) override { real_->WriteDate(f, v); }
    void WriteLong(const QString& f, long v) override { real_->WriteLong(f, v); }
    void WriteText(const QString& f, const QString& v) override { real_->WriteText(f, v); }

  private:
    std::unique_ptr<CRecordset> real_;
    std::shared_ptr<QStringList> statements_;
    bool fails_;
};

}  // namespace logdaten_test
