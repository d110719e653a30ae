#include "gui/QtSearchMarks.h"

#include <QApplication>
#include <QPainter>

namespace {

const QColor kMarker(255, 230, 120);

bool wordStart(const QString& text, int at) {
    return at == 0 || !text.at(at - 1).isLetterOrNumber();
}

}  // namespace

QtSearchMarks::QtSearchMarks(std::function<QStringList()> words, QObject* parent)
    : QStyledItemDelegate(parent), words_(std::move(words)) {}

QList<QPair<int, int>> QtSearchMarks::marks(const QString& text, const QStringList& words) {
    QList<QPair<int, int>> found;
    for (const QString& w : words) {
        for (qsizetype at = text.indexOf(w, 0, Qt::CaseInsensitive); at >= 0;
             at = text.indexOf(w, at + 1, Qt::CaseInsensitive)) {
            if (wordStart(text, static_cast<int>(at))) {
                found << qMakePair(static_cast<int>(at), static_cast<int>(w.size()));
            }
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

void QtSearchMarks::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    const QStringList words = words_ ? words_() : QStringList();
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    const QList<QPair<int, int>> found =
        words.isEmpty() ? QList<QPair<int, int>>() : marks(opt.text, words);
    // Marks stand in left-aligned texts; numbers to the right are drawn as usual.
    if (found.isEmpty() || (opt.displayAlignment & Qt::AlignRight)) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    // The cell without its text, then the marker behind each piece, then the text.
    const QString text = opt.text;
    opt.text.clear();
    const QStyle* style = opt.widget ? opt.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);
    const QRect area =
        style->subElementRect(QStyle::SE_ItemViewItemText, &opt, opt.widget).adjusted(3, 0, -3, 0);
    const QFontMetrics metrics(opt.font);
    const QString shown = metrics.elidedText(text, opt.textElideMode, area.width());
    painter->save();
    painter->setClipRect(area);
    for (const auto& [at, length] : found) {
        if (at >= shown.size()) {
            continue;
        }
        const int x = area.left() + metrics.horizontalAdvance(shown.left(at));
        const int w = metrics.horizontalAdvance(shown.mid(at, length));
        painter->fillRect(QRect(x, area.top() + 1, w, area.height() - 2), kMarker);
    }
    painter->setFont(opt.font);
    const bool selected = opt.state & QStyle::State_Selected;
    painter->setPen(opt.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(area, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter), shown);
    // The marked pieces dark on the marker, also in a selected row.
    painter->setPen(Qt::black);
    for (const auto& [at, length] : found) {
        if (at >= shown.size()) {
            continue;
        }
        const int x = area.left() + metrics.horizontalAdvance(shown.left(at));
        painter->drawText(QRect(x, area.top(), area.right() - x, area.height()),
                          static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter),
                          shown.mid(at, length));
    }
    painter->restore();
}
