#include "ui/windows/frmZeitplanCopy.h"

using contract::fire;
using contract::is;

namespace {

class Declaration {
  public:
    WindowDecl build() {
        d_.name = QStringLiteral("frmZeitplanCopy");
        d_.caption = QStringLiteral("Zeitplan kopieren");
        d_.width = 620;
        d_.height = 420;

        add("fraZeitplanCopy", ControlKind::Frame);
        container_ = QStringLiteral("fraZeitplanCopy");
        add("lblZeitplanHinweisCopy", ControlKind::Label);
        add("grdAuftrag", ControlKind::Grid);
        add("lblZeitplanCopyInfo", ControlKind::Label,
            "Zeitplan 'zzz' für xxx von yyy Aufträgen kopieren");
        container_.clear();
        add("chkUeberschreiben", ControlKind::CheckBox, "bestehende Zeitpläne überschreiben");
        // The two separators are lines of the layout, labels without a caption.
        add("ctlSeparator", ControlKind::Label);
        add("cmdAuswaehlen", ControlKind::Button, "Alle auswählen");
        add("cmdAbwaehlen", ControlKind::Button, "Alle abwählen");
        add("ctlSeparator1", ControlKind::Label);
        add("cmdOk", ControlKind::Button, "OK");
        add("cmdAbbrechen", ControlKind::Button, "Abbrechen");
        return d_;
    }

  private:
    void add(const char* name, ControlKind kind, const char* caption = "") {
        ControlDecl c;
        c.name = QString::fromUtf8(name);
        c.kind = kind;
        c.caption = QString::fromUtf8(caption);
        c.container = container_;
        d_.controls << c;
    }

    WindowDecl d_;
    QString container_;
};

}  // namespace

const WindowDecl& frmZeitplanCopy::declaration() {
    static const WindowDecl decl = Declaration().build();
    return decl;
}

frmZeitplanCopy::frmZeitplanCopy(std::unique_ptr<IWindow> w) : WindowContract(std::move(w)) {
    listen();
}

void frmZeitplanCopy::onControl(const ControlEvent& e) {
    if (e.type != EventType::Click) {
        return;
    }
    if (is(e, "cmdOk")) {
        std::uint8_t byZeitplanUeberschreiben =
            static_cast<std::uint8_t>(chkUeberschreiben().Value());
        if (auto handler = evZeitplanCopyOk) {
            handler(byZeitplanUeberschreiben);
        }
    } else if (is(e, "cmdAbbrechen")) {
        fire(evZeitplanCopyCancel);
    } else if (is(e, "cmdAbwaehlen") || is(e, "cmdAuswaehlen")) {
        bool bAbwaehlen = is(e, "cmdAbwaehlen");
        if (auto handler = evZeitplanWaehlen) {
            handler(bAbwaehlen);
        }
    } else if (is(e, "grdAuftrag")) {
        // The cell clicked: a click on the heading leaves the current row, and its tick, alone.
        fire(grdAuftrag_Click, e.row, e.col);
    }
}
