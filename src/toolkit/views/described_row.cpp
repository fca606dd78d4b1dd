#include "toolkit/views/described_row.h"

#include <QApplication>
#include <QPainter>

namespace orba {

QString withoutDescription(const QString& text) { return text.section(QLatin1Char('|'), 0, 0); }

QSize DescribedRow::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width(), qMax(size.height(), option.fontMetrics.height() + margin)};
}

void DescribedRow::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QString text = index.data().toString();
    const qsizetype cut = width > 0 ? text.indexOf(QLatin1Char('|')) : -1;
    if (cut < 0) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text = text.left(cut);
    const QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, option.widget);
    const bool lit = option.state & QStyle::State_Selected;
    QColor ink = option.palette.color(lit ? QPalette::HighlightedText : QPalette::Text);
    ink.setAlphaF(lit ? 0.85F : 0.65F);
    painter->setPen(ink);
    QRect place = option.rect;
    place.setLeft(place.right() - width + 1);
    painter->drawText(place.adjusted(3, 0, -3, 0), Qt::AlignVCenter | Qt::TextSingleLine,
                      option.fontMetrics.elidedText(text.mid(cut + 1), Qt::ElideRight, place.width() - 6));
}

} // namespace orba
