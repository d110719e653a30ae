#pragma once

#include <QStringList>
#include <QStyledItemDelegate>
#include <functional>

// Draws a cell's text with every word that begins with one of the searched words marked in
// the highlight of a text marker, compared without regard to case. Cells without such a word
// are drawn as usual.
class QtSearchMarks : public QStyledItemDelegate {
  public:
    QtSearchMarks(std::function<QStringList()> words, QObject* parent);

    // Start and length of each marked piece of the text.
    static QList<QPair<int, int>> marks(const QString& text, const QStringList& words);

  protected:
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

  private:
    std::function<QStringList()> words_;
};
