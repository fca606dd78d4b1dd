// Rows of lists with a description: an entry "Fe|iron" shows its second part in a column of its own at the right.
#pragma once

#include <QStyledItemDelegate>

namespace orba {

// The text of an entry without its description.
QString withoutDescription(const QString& text);

class DescribedRow : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    int width = 0;  // pixels of the descriptions; 0 shows entries as they stand
    int margin = 0; // pixels of air around a row's text, above and below together

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace orba
