// Rows of lists with a description: an entry "Fe|iron" shows its second part in a column of its own at the right.
#pragma once

#include <QStyledItemDelegate>

namespace orba {

// The text of an entry without its description.
QString withoutDescription(const QString& text);

class DescribedRow : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    int width = 0; // pixels of the descriptions; 0 shows entries as they stand

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace orba
