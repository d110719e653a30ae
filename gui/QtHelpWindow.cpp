#include "gui/QtHelpWindow.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QPointer>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

// The texts live in a static library: their registration must be pulled in by hand.
static void loadHelpResources() {
    static const bool loaded = [] {
        Q_INIT_RESOURCE(help);
        return true;
    }();
    (void)loaded;
}

namespace {

const QString kResourceFolder = QStringLiteral(":/help/");

QString missingTopicHtml(const QString& topic) {
    return QStringLiteral(
               "<html><head><title>Hilfe</title></head><body>"
               "<h2>Hilfe</h2><p>Zu diesem Thema gibt es keinen Hilfetext:</p>"
               "<p><tt>%1</tt></p></body></html>")
        .arg(topic.toHtmlEscaped());
}

}  // namespace

QtHelpWindow::QtHelpWindow(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmHilfe"));
    setWindowTitle(QStringLiteral("Hilfe"));
    setModal(false);
    resize(560, 460);

    text_ = new QTextBrowser(this);
    text_->setObjectName(QStringLiteral("txtHilfe"));
    text_->setOpenLinks(false);

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* close =
        buttons->addButton(QStringLiteral("Schließen"), QDialogButtonBox::RejectRole);
    close->setObjectName(QStringLiteral("cmdSchliessen"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text_, 1);
    layout->addWidget(buttons);
}

QString QtHelpWindow::topicResource(const QString& topic) {
    loadHelpResources();
    const QString path = kResourceFolder + topic + QStringLiteral(".html");
    return !topic.isEmpty() && QFile::exists(path) ? path : QString();
}

void QtHelpWindow::showTopic(const QString& topic) {
    topic_ = topic;
    QString html;
    const QString path = topicResource(topic);
    QFile file(path);
    if (!path.isEmpty() && file.open(QIODevice::ReadOnly)) {
        html = QString::fromUtf8(file.readAll());
    } else {
        html = missingTopicHtml(topic);
    }
    text_->setHtml(html);
    const QString title = text_->documentTitle();
    setWindowTitle(title.isEmpty() || title == QStringLiteral("Hilfe")
                       ? QStringLiteral("Hilfe")
                       : QStringLiteral("Hilfe – %1").arg(title));
    show();
    raise();
    activateWindow();
}

QtHelpWindow* QtHelpWindow::shared(QWidget* parent) {
    static QPointer<QtHelpWindow> window;
    if (!window) {
        window = new QtHelpWindow(parent);
    } else if (window->parentWidget() != parent) {
        // Under a modal window only its own children take input: the help moves there.
        window->setParent(parent, Qt::Dialog);
    }
    return window;
}
