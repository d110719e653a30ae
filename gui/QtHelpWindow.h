#pragma once

#include <QDialog>
#include <QString>

class QTextBrowser;

// The program's own help: one window, not modal, that shows the German text kept in the
// resources for each help key. A key without a text names the key, so that nothing is lost.
class QtHelpWindow : public QDialog {
  public:
    explicit QtHelpWindow(QWidget* parent = nullptr);

    void showTopic(const QString& topic);
    QString topic() const { return topic_; }
    QTextBrowser* text() const { return text_; }

    // The resource path of a topic's text; empty when the program has none for it.
    static QString topicResource(const QString& topic);

    // The one help window of the program, created on first use.
    static QtHelpWindow* shared(QWidget* parent);

  private:
    QTextBrowser* text_ = nullptr;
    QString topic_;
};
