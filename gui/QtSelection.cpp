#include "gui/QtSelection.h"

#include "common/Recordset.h"
#include "common/Services.h"

namespace {

// Reloads its list each time it opens, so that records added meanwhile are there.
class SelectionCombo : public QComboBox {
  public:
    using QComboBox::QComboBox;
    std::function<void()> beforePopup;

    void showPopup() override {
        if (beforePopup) {
            beforePopup();
        }
        QComboBox::showPopup();
    }
};

}  // namespace

QList<SelectionEntry> readSelectionEntries(bool staff, long mode) {
    QList<SelectionEntry> entries;
    const auto& factory = services().newRecordset;
    if (!factory) {
        return entries;
    }
    try {
        std::unique_ptr<CRecordset> rs = factory();
        if (!rs) {
            return entries;
        }
        rs->Connect();
        const bool office = (mode & 1) != 0;
        const QString sql =
            staff ? QStringLiteral("SELECT MitId, Name FROM tMitarbeiter ORDER BY Name")
                  : QStringLiteral("SELECT ManId, ManNr, Name FROM tMandant WHERE Kanzlei = ") +
                        QString::number(office ? 1 : 0) + QStringLiteral(" ORDER BY ManNr");
        if (rs->OpenQuery(sql, 0) > 0) {
            do {
                SelectionEntry e;
                if (staff) {
                    e.id = rs->ReadLong(QStringLiteral("MitId"));
                    e.text = rs->ReadText(QStringLiteral("Name"));
                } else {
                    e.id = rs->ReadLong(QStringLiteral("ManId"));
                    const QString number = QString::number(rs->ReadLong(QStringLiteral("ManNr")));
                    e.text = (office ? QStringLiteral("K") : QString()) + number +
                             QLatin1Char(' ') + rs->ReadText(QStringLiteral("Name"));
                    e.text = e.text.trimmed();
                }
                entries << e;
            } while (rs->Move(CRecordset::MoveNext));
        }
        rs->Close();
        rs->Disconnect();
    } catch (...) {
        // The list is the window's help, not the system's data: without it the id stays.
        entries.clear();
    }
    return entries;
}

QtSelection::QtSelection(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent)
    : QtControl(decl, window),
      staff_(decl.name.contains(QLatin1String("Mitarbeiter"), Qt::CaseInsensitive)) {
    auto* combo = new SelectionCombo(parent);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(20);
    combo->beforePopup = [this] {
        const QSignalBlocker block(combo_);
        loaded_ = false;
        sync();
    };
    combo_ = combo;
    QObject::connect(combo_, &QComboBox::activated, guard(), [this](int i) {
        if (!updating() && i >= 0) {
            WidgetCall::run(
                [&] { HeadlessSelection::userSelect(combo_->itemData(i).toLongLong()); });
        }
    });
    attach(combo_, combo_, new QLabel(parent));
}

QtSelection::~QtSelection() {
    if (auto* combo = static_cast<SelectionCombo*>(combo_.data())) {
        combo->beforePopup = nullptr;  // the widget may outlive the control for a moment
    }
}

void QtSelection::load() {
    entries_ = readSelectionEntries(staff_, Mode());
    loaded_ = true;
    loadedMode_ = Mode();
}

int QtSelection::indexOfId(long id) const {
    for (int i = 0; i < combo_->count(); ++i) {
        if (combo_->itemData(i).toLongLong() == id) {
            return i;
        }
    }
    return -1;
}

void QtSelection::refresh() {
    captionLabel()->setText(Caption());
    if (!loaded_ || loadedMode_ != Mode()) {
        load();
    }
    combo_->clear();
    combo_->addItem(QString(), QVariant::fromValue<qlonglong>(0));
    for (const SelectionEntry& e : entries_) {
        combo_->addItem(e.text, QVariant::fromValue<qlonglong>(e.id));
    }
    if (indexOfId(Id()) < 0) {
        // An id the list does not know (yet): shown by its number.
        combo_->addItem(QString::number(Id()), QVariant::fromValue<qlonglong>(Id()));
    }
    combo_->setCurrentIndex(indexOfId(Id()));
}

void QtSelection::userSelect(long id) {
    int i = indexOfId(id);
    if (i < 0) {
        const QSignalBlocker block(combo_);
        combo_->addItem(QString::number(id), QVariant::fromValue<qlonglong>(id));
        i = combo_->count() - 1;
    }
    {
        const QSignalBlocker block(combo_);
        combo_->setCurrentIndex(i);
    }
    throughWidget([&] { Q_EMIT combo_->activated(i); });
}
