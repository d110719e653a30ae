#pragma once

#include "app/cAdminJob.h"
#include "ui/Controls.h"

// The controller's schedule members the tests call.
class ScheduleTestAccess {
  public:
    static std::unique_ptr<cSchedule>& schedule(cAdminJob& a) { return a.moSchedule; }
    static QString timeString(cAdminJob& a, const QString& s) { return a.msGetTimeString(s); }
    static void ausDb(cAdminJob& a, std::int32_t lId) { a.mSetzeScheduleObjektAusDB(lId); }
    static void standard(cAdminJob& a, long lZeilen) { a.mSetDefaultIntervallZeitplan(lZeilen); }
    static void init(cAdminJob& a) { a.mInitZeitplan(); }
    static void showIntervall(cAdminJob& a, ILabel& lbl, long lZeilen) {
        a.mShowZeitplanIntervall(lbl, lZeilen);
    }
    static QString intervall(cAdminJob& a) { return a.msGetIntervallString(); }
    static QString wochentage(cAdminJob& a, std::int32_t l) { return a.msGetWochentageString(l); }
    static QString stelle(cAdminJob& a, std::int32_t l) { return a.msStelleWochentag(l); }
    static QString relativ(cAdminJob& a, std::int32_t l) { return a.msWochentagRelativ(l); }
};

// A label that only keeps its caption.
class CaptionLabel : public ILabel {
  public:
    QString caption;
    QString Caption() const override { return caption; }
    void setCaption(const QString& text) override { caption = text; }
    long ForeColor() const override { return -1; }
    void setForeColor(long) override {}
    ControlKind kind() const override { return ControlKind::Label; }
    QString name() const override { return QStringLiteral("lblLabel"); }
    int index() const override { return 0; }
    bool Enabled() const override { return true; }
    void setEnabled(bool) override {}
    bool Visible() const override { return true; }
    void setVisible(bool) override {}
    bool TabStop() const override { return false; }
    void setTabStop(bool) override {}
    QString ToolTip() const override { return {}; }
    void setToolTip(const QString&) override {}
    int Top() const override { return 0; }
    void setTop(int) override {}
    int Height() const override { return 0; }
    void setHeight(int) override {}
    int Left() const override { return 0; }
    void setLeft(int) override {}
    int Width() const override { return 0; }
    void setWidth(int) override {}
    void SetFocus() override {}
    bool Focused() const override { return false; }
};
