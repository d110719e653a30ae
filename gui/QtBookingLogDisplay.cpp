#include "gui/QtBookingLogDisplay.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace {

QLabel* wert(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

}  // namespace

QDialog* QtBookingLogDisplay::makeWindow(const BookingLogView& view) {
    auto* dialog = new QDialog;
    dialog->setObjectName(QStringLiteral("BookingLogViewer"));
    dialog->setWindowTitle(view.buchungen ? QStringLiteral("Importierte Buchungen")
                                          : QStringLiteral("Status/Fehlerprotokoll"));
    auto* column = new QVBoxLayout(dialog);
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Datei:"), wert(view.datei, dialog));
    form->addRow(QStringLiteral("Wirtschaftsjahr:"),
                 wert(QString::number(view.wirtschaftsjahr), dialog));
    form->addRow(QStringLiteral("Mitarbeiter:"), wert(QString::number(view.mitarbeiter), dialog));
    form->addRow(
        QStringLiteral("Anzeige:"),
        wert(view.buchungen ? QStringLiteral("Buchungen") : QStringLiteral("Status"), dialog));
    column->addLayout(form);
    auto* text = new QPlainTextEdit(dialog);
    text->setObjectName(QStringLiteral("txtInhalt"));
    text->setReadOnly(true);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text->setPlainText(view.gefunden ? view.text : QStringLiteral("Datei nicht gefunden"));
    column->addWidget(text, 1);
    auto* buttons = new QDialogButtonBox(dialog);
    buttons->addButton(QStringLiteral("Schließen"), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    column->addWidget(buttons);
    dialog->resize(640, 420);
    return dialog;
}

void QtBookingLogDisplay::show(const BookingLogView& view) {
    QDialog* dialog = makeWindow(view);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
}
