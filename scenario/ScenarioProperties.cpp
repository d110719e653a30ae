#include "scenario/ScenarioProperties.h"

#include "headless/HeadlessBrowser.h"
#include "scenario/ScenarioError.h"
#include "ui/Grid.h"

namespace {

using V = ScenarioValue;

QString kindName(ControlKind kind) {
    switch (kind) {
        case ControlKind::TextBox:
            return QStringLiteral("text box");
        case ControlKind::Label:
            return QStringLiteral("label");
        case ControlKind::CheckBox:
            return QStringLiteral("check box");
        case ControlKind::OptionButton:
            return QStringLiteral("option button");
        case ControlKind::ComboBox:
            return QStringLiteral("combo box");
        case ControlKind::Button:
            return QStringLiteral("button");
        case ControlKind::Frame:
            return QStringLiteral("frame");
        case ControlKind::Picture:
            return QStringLiteral("picture");
        case ControlKind::Grid:
            return QStringLiteral("grid");
        case ControlKind::DatePicker:
            return QStringLiteral("date picker");
        case ControlKind::TimeBox:
            return QStringLiteral("time box");
        case ControlKind::TabControl:
            return QStringLiteral("tab control");
        case ControlKind::Timer:
            return QStringLiteral("timer");
        case ControlKind::Selection:
            return QStringLiteral("selection control");
        case ControlKind::ToolBar:
            return QStringLiteral("bar");
        case ControlKind::Browser:
            return QStringLiteral("browser");
        case ControlKind::FileDialog:
            return QStringLiteral("file dialog");
        case ControlKind::DirDialog:
            return QStringLiteral("directory dialog");
    }
    return QStringLiteral("control");
}

// The arguments of a property: none, or exactly n.
const QList<PathArg>& args(const PathPart& p, int n) {
    static const QList<PathArg> none;
    const qsizetype given = p.args ? p.args->size() : 0;
    if (given != n) {
        scenarioFail(n == 0 ? QStringLiteral("%1 takes no arguments").arg(p.name)
                            : QStringLiteral("%1 takes %2 argument(s)").arg(p.name).arg(n));
    }
    return p.args ? *p.args : none;
}

[[noreturn]] void noSuchProperty(const QString& what, const PathPart& p) {
    scenarioFail(QStringLiteral("a %1 has no property %2").arg(what, p.display()));
}

// The caption of any kind that has one; nothing for the others.
std::optional<QString> captionOf(IControl& c) {
    if (auto* x = dynamic_cast<ITextBox*>(&c)) {
        return x->Caption();
    }
    if (auto* x = dynamic_cast<ILabel*>(&c)) {
        return x->Caption();
    }
    if (auto* x = dynamic_cast<IButton*>(&c)) {
        return x->Caption();
    }
    if (auto* x = dynamic_cast<IFrame*>(&c)) {
        return x->Caption();
    }
    if (auto* x = dynamic_cast<ICheckBox*>(&c)) {
        return x->Caption();
    }
    if (auto* x = dynamic_cast<IOptionButton*>(&c)) {
        return x->Caption();
    }
    if (auto* x = dynamic_cast<IComboBox*>(&c)) {
        return x->Caption();
    }
    if (auto* x = dynamic_cast<IDatePicker*>(&c)) {
        return x->Caption();
    }
    if (auto* x = dynamic_cast<ISelection*>(&c)) {
        return x->Caption();
    }
    return std::nullopt;
}

std::optional<QString> textOf(IControl& c) {
    if (auto* x = dynamic_cast<ITextBox*>(&c)) {
        return x->Text();
    }
    if (auto* x = dynamic_cast<ITimeBox*>(&c)) {
        return x->Text();
    }
    if (auto* x = dynamic_cast<ISelection*>(&c)) {
        return x->Text();
    }
    if (auto* x = dynamic_cast<IComboBox*>(&c)) {
        return x->ItemText();
    }
    return std::nullopt;
}

std::optional<V> valueOf(IControl& c) {
    if (auto* x = dynamic_cast<ICheckBox*>(&c)) {
        return V::number(x->Value());
    }
    if (auto* x = dynamic_cast<IOptionButton*>(&c)) {
        return V::boolean(x->Value());
    }
    if (auto* x = dynamic_cast<IDatePicker*>(&c)) {
        return V::date(x->Value());
    }
    return std::nullopt;
}

template <class T>
T& as(IControl& c, const PathPart& p) {
    auto* x = dynamic_cast<T*>(&c);
    if (!x) {
        noSuchProperty(kindName(c.kind()), p);
    }
    return *x;
}

std::optional<V> gridProperty(IGrid& g, const PathPart& p) {
    const QString& n = p.name;
    if (n == QLatin1String("Rows")) {
        args(p, 0);
        return V::number(g.Rows());
    }
    if (n == QLatin1String("Cols")) {
        args(p, 0);
        return V::number(g.Cols());
    }
    if (n == QLatin1String("Row")) {
        args(p, 0);
        return V::number(g.Row());
    }
    if (n == QLatin1String("Col")) {
        args(p, 0);
        return V::number(g.Col());
    }
    if (n == QLatin1String("TextMatrix")) {
        const auto& a = args(p, 2);
        return V::text(g.TextMatrix(a[0].number(), a[1].number()));
    }
    if (n == QLatin1String("ColHidden")) {
        return V::boolean(g.ColHidden(args(p, 1)[0].number()));
    }
    if (n == QLatin1String("ColWidth")) {
        return V::number(g.ColWidth(args(p, 1)[0].number()));
    }
    if (n == QLatin1String("RowData")) {
        return V::fromVariant(g.RowData(args(p, 1)[0].number()));
    }
    if (n == QLatin1String("CellData")) {
        const auto& a = args(p, 2);
        return V::fromVariant(g.CellData(a[0].number(), a[1].number()));
    }
    if (n == QLatin1String("CellChecked")) {
        const auto& a = args(p, 2);
        return V::boolean(g.CellChecked(a[0].number(), a[1].number()));
    }
    if (n == QLatin1String("CellUnderline")) {
        const auto& a = args(p, 2);
        return V::boolean(g.CellUnderline(a[0].number(), a[1].number()));
    }
    if (n == QLatin1String("CellForeColor")) {
        const auto& a = args(p, 2);
        return V::number(g.CellForeColor(a[0].number(), a[1].number()));
    }
    return std::nullopt;
}

QString columnName(const PathArg& a) {
    if (!a.quoted) {
        scenarioFail(QStringLiteral("a browser's column is named in double quotes"));
    }
    return a.text;
}

std::optional<V> browserProperty(IBrowser& b, const PathPart& p) {
    ISelectionObject& sel = b.Auswahl();
    const QString& n = p.name;
    if (n == QLatin1String("RowCount")) {
        args(p, 0);
        return V::number(sel.RowCount());
    }
    if (n == QLatin1String("RecordCount")) {
        args(p, 0);
        return V::number(sel.RecordCount());
    }
    if (n == QLatin1String("SelCount")) {
        args(p, 0);
        return V::number(sel.SelCount());
    }
    if (n == QLatin1String("Row")) {
        args(p, 0);
        return V::number(sel.Row());
    }
    if (n == QLatin1String("Cell")) {
        const auto& a = args(p, 2);
        const int row = a[0].number();
        const QString column = columnName(a[1]);
        if (row < 1 || row > sel.RecordCount()) {
            scenarioFail(QStringLiteral("the browser has no row %1 (%2 records)")
                             .arg(row)
                             .arg(sel.RecordCount()));
        }
        for (const auto& [name, value] : sel.Item(row)) {
            if (name.compare(column, Qt::CaseInsensitive) == 0) {
                return V::fromVariant(value);
            }
        }
        scenarioFail(QStringLiteral("the browser has no column %1").arg(quoteText(column)));
    }
    if (n == QLatin1String("ColHidden")) {
        const QString column = columnName(args(p, 1)[0]);
        if (auto* hb = dynamic_cast<HeadlessBrowser*>(&b)) {
            if (!hb->SpaltenNamen().contains(column, Qt::CaseInsensitive)) {
                scenarioFail(QStringLiteral("the browser has no column %1").arg(quoteText(column)));
            }
            return V::boolean(hb->colHidden(column));
        }
        BrowserColumn* col = b.Spalte(column);
        if (!col) {
            scenarioFail(QStringLiteral("the browser has no column %1").arg(quoteText(column)));
        }
        return V::boolean(col->SpalteFlagA);
    }
    return std::nullopt;
}

}  // namespace

ScenarioValue windowProperty(HeadlessWindow& window, const PathPart& property) {
    if (property.name == QLatin1String("Caption")) {
        args(property, 0);
        return V::text(window.Caption());
    }
    if (property.name == QLatin1String("Visible")) {
        args(property, 0);
        return V::boolean(window.Visible());
    }
    noSuchProperty(QStringLiteral("window"), property);
}

ScenarioValue toolProperty(ITool& tool, const PathPart& property) {
    const QString& n = property.name;
    args(property, 0);
    if (n == QLatin1String("Enabled")) {
        return V::boolean(tool.Enabled());
    }
    if (n == QLatin1String("Visible")) {
        return V::boolean(tool.Visible());
    }
    if (n == QLatin1String("Caption")) {
        return V::text(tool.Caption());
    }
    if (n == QLatin1String("ToolTip")) {
        return V::text(tool.ToolTip());
    }
    noSuchProperty(QStringLiteral("tool"), property);
}

ScenarioValue controlProperty(IControl& c, const PathPart& p) {
    const QString what = kindName(c.kind());
    const QString& n = p.name;
    if (auto* g = dynamic_cast<IGrid*>(&c)) {
        if (auto v = gridProperty(*g, p)) {
            return *v;
        }
    }
    if (auto* b = dynamic_cast<IBrowser*>(&c)) {
        if (auto v = browserProperty(*b, p)) {
            return *v;
        }
    }
    if (n == QLatin1String("TabEnabled")) {
        return V::boolean(as<ITabControl>(c, p).TabEnabled(args(p, 1)[0].number()));
    }
    args(p, 0);
    if (n == QLatin1String("Enabled")) {
        return V::boolean(c.Enabled());
    }
    if (n == QLatin1String("Visible")) {
        return V::boolean(c.Visible());
    }
    if (n == QLatin1String("TabStop")) {
        return V::boolean(c.TabStop());
    }
    if (n == QLatin1String("ToolTip")) {
        return V::text(c.ToolTip());
    }
    if (n == QLatin1String("Top")) {
        return V::number(c.Top());
    }
    if (n == QLatin1String("Height")) {
        return V::number(c.Height());
    }
    if (n == QLatin1String("Focused")) {
        return V::boolean(c.Focused());
    }
    if (n == QLatin1String("Caption")) {
        if (auto t = captionOf(c)) {
            return V::text(*t);
        }
    } else if (n == QLatin1String("Text")) {
        if (auto t = textOf(c)) {
            return V::text(*t);
        }
    } else if (n == QLatin1String("Value")) {
        if (auto v = valueOf(c)) {
            return *v;
        }
    } else if (n == QLatin1String("Key")) {
        return V::number(as<IComboBox>(c, p).Key());
    } else if (n == QLatin1String("ItemText")) {
        return V::text(as<IComboBox>(c, p).ItemText());
    } else if (n == QLatin1String("ItemCount")) {
        return V::number(as<IComboBox>(c, p).ItemCount());
    } else if (n == QLatin1String("ForeColor")) {
        return V::number(as<ILabel>(c, p).ForeColor());
    } else if (n == QLatin1String("Mode")) {
        return V::number(as<ISelection>(c, p).Mode());
    } else if (n == QLatin1String("Id")) {
        return V::number(as<ISelection>(c, p).Id());
    } else if (n == QLatin1String("Locked")) {
        return V::boolean(as<ITextBox>(c, p).Locked());
    } else if (n == QLatin1String("Tab")) {
        return V::number(as<ITabControl>(c, p).Tab());
    } else if (n == QLatin1String("Ziffern")) {
        return V::text(as<ITimeBox>(c, p).Ziffern());
    }
    noSuchProperty(what, p);
}
