// List boxes.
#include "toolkit/families/list_family.h"

#include "toolkit/families/family_support.h"
#include "toolkit/views/described_row.h"
#include "toolkit/views/icons/icons.h"
#include "toolkit/views/list_contents.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QListWidget>
#include <QPainter>
#include <QScrollBar>

#include <utility>

namespace orba {
namespace {

constexpr QAbstractItemView::SelectionMode selectionModes[] = {
    QAbstractItemView::SingleSelection, QAbstractItemView::MultiSelection, QAbstractItemView::ExtendedSelection};

// The list tells what its user does; the program's changes go unreported.
class ListView : public QListWidget {
public:
    using QListWidget::QListWidget;

    int handle = 0;
    bool wholeRows = false; // the height is cut to whole rows
    void setWholeRows(bool on) {
        wholeRows = on;
        cutToRows();
    }
    DescribedRow* rows = nullptr;
    int rowDragged = 0; // identifier, 0: rows stay where they are

protected:
    void focusInEvent(QFocusEvent* event) override {
        QListWidget::focusInEvent(event);
        if (byUser(*event)) post(handle, Slot::select, 1);
    }
    void focusOutEvent(QFocusEvent* event) override {
        QListWidget::focusOutEvent(event);
        if (byUser(*event)) post(handle, Slot::select, 0);
    }

    void mousePressEvent(QMouseEvent* event) override {
        const int before = currentRow();
        QListWidget::mousePressEvent(event);
        if (event->button() == Qt::LeftButton && itemAt(event->position().toPoint())) chosen(before, event->position());
        held_ = rowDragged && event->button() == Qt::LeftButton ? rowAt(event->position()) : -1;
        target_ = held_;
    }
    // A row that is dragged leaves the selection alone; a line shows where it would go.
    void mouseMoveEvent(QMouseEvent* event) override {
        if (held_ < 0) return QListWidget::mouseMoveEvent(event);
        const int row = rowAt(event->position());
        target_ = row >= 0 ? row : event->position().y() < 0 ? 0 : count() - 1;
        scrollToItem(item(target_));
        viewport()->update();
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        QListWidget::mouseReleaseEvent(event);
        const int from = std::exchange(held_, -1);
        viewport()->update();
        if (from < 0 || target_ == from || from >= count() || target_ >= count()) return;
        postIdentifier(rowDragged, handle, 0, from + 1, event->position());
        addEventValue(0, target_ + 1);
    }
    void paintEvent(QPaintEvent* event) override {
        QListWidget::paintEvent(event);
        if (held_ < 0 || target_ == held_ || !item(target_)) return;
        const QRect row = visualItemRect(item(target_));
        const int y = target_ > held_ ? row.bottom() : row.top();
        QPainter painter(viewport());
        painter.setPen(QPen(palette().color(QPalette::Highlight), 3));
        painter.drawLine(row.left(), y, row.right(), y);
    }
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        QListWidget::mouseDoubleClickEvent(event);
        if (event->button() == Qt::LeftButton && itemAt(event->position().toPoint()))
            post(handle, Slot::doubleClick, currentRow() + 1, event->position());
    }
    void keyPressEvent(QKeyEvent* event) override {
        const int before = currentRow();
        const QList<QListWidgetItem*> selected = selectedItems();
        QListWidget::keyPressEvent(event);
        const bool confirmed = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (currentRow() != before || selectedItems() != selected || (confirmed && currentItem())) chosen(before, {});
        if (confirmed) event->ignore(); // a default button may want it too
    }
    void resizeEvent(QResizeEvent* event) override {
        QListWidget::resizeEvent(event);
        if (!cutting_) asked_ = height();
        cutToRows();
    }
    void changeEvent(QEvent* event) override {
        QListWidget::changeEvent(event);
        if (event->type() == QEvent::FontChange) cutToRows();
    }
    void rowsInserted(const QModelIndex& parent, int first, int last) override {
        QListWidget::rowsInserted(parent, first, last);
        cutToRows();
    }

private:
    // Whatever comes first, the size, the font or the rows: the height is the last one asked for less what is spare.
    void cutToRows() {
        const int row = wholeRows && count() > 0 && asked_ > 0 ? sizeHintForRow(0) : 0;
        const int inside = asked_ - 2 * frameWidth();
        if (row <= 0 || cutting_) return;
        cutting_ = true;
        resize(width(), inside > row ? asked_ - inside % row : asked_);
        cutting_ = false;
    }
    int asked_ = 0; // pixels
    bool cutting_ = false;
    int held_ = -1, target_ = -1; // the row that is dragged and the one under the pointer, from 0

    int rowAt(QPointF position) const { return indexAt(position.toPoint()).row(); }

    void chosen(int before, QPointF position) {
        if (currentRow() != before) post(handle, Slot::change, currentRow() + 1, position);
        post(handle, Slot::general, currentRow() + 1, position);
    }
};

struct ListData : FamilyData {
    bool sorted = false;
    bool icons = true;
    int capacity = 0; // most rows, 0 for any number
};

ListView& listOf(Widget& widget) { return *static_cast<ListView*>(widget.view.data()); }

void setListType(Widget& widget, int type) {
    widget.type = type;
    const bool known = type >= 0 && type < static_cast<int>(std::size(selectionModes));
    listOf(widget).setSelectionMode(selectionModes[known ? type : 0]);
}

bool setListProperty(Widget& widget, int property, const Value& value) {
    ListView& list = listOf(widget);
    switch (property) {
    case propertyOf(owOffCol): setViewColour(&list, QPalette::Base, value.integer); return true;
    case propertyOf(owOnCol): setViewColour(&list, QPalette::Highlight, value.integer); return true;
    case propertyOf(owTextCol): setViewColour(&list, QPalette::Text, value.integer); return true;
    case propertyOf(owListType): setListType(widget, value.integer); return true;
    case propertyOf(owSort):
        dataOf<ListData>(widget).sorted = value.integer == OSORTED;
        if (value.integer == OSORTED) list.sortItems();
        return true;
    case propertyOf(owListStyle): list.setWholeRows(value.integer == OAPPROX); return true;
    case propertyOf(owDescWidth):
        list.rows->width = pixelsAcross(value.integer);
        list.viewport()->update();
        return true;
    default: return false;
    }
}

bool getListProperty(Widget& widget, int property, Value& value) {
    const ListView& list = listOf(widget);
    switch (property) {
    case propertyOf(owListType): value.integer = widget.type; return true;
    case propertyOf(owSort): value.integer = dataOf<ListData>(widget).sorted ? OSORTED : OUNSORTED; return true;
    case propertyOf(owListStyle): value.integer = list.wholeRows ? OAPPROX : OEXACT; return true;
    case propertyOf(owDescWidth): value.integer = unitsAcross(list.rows->width); return true;
    default: return false;
    }
}

// The text of the current row.
QString listText(Widget& widget) {
    const QListWidgetItem* item = listOf(widget).currentItem();
    return item ? item->text() : QString();
}

QSize listSize(Widget& widget) {
    const ListView& list = listOf(widget);
    return {list.sizeHintForColumn(0) + 40, list.fontMetrics().height() * 6};
}

const Family listBoxes{
    .name = "list box", .get = getListProperty, .set = setListProperty, .text = listText, .naturalSize = listSize};

Word createListBox(const Arguments& call) {
    auto* view = new ListView(clientOf(call));
    auto* rows = new DescribedRow(view);
    view->rows = rows;
    view->setItemDelegate(rows);
    view->setUniformItemSizes(true);
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    Widget& list = addWidget<ListData>(Kind::listBox, listBoxes, call, view);
    view->handle = list.handle;
    auto& data = dataOf<ListData>(list);
    data.sorted = call.keyword(owSort) == OSORTED;
    data.capacity = call.given(owCapacity) ? call.keyword(owCapacity) : 0;
    data.icons = call.keyword(owUseIcons) != OOFF;
    const int contents = call.integer(5);
    for (const ListRow& row : listContents(contents)) listEntry(list, {OADD, 0, row.text, row.icon});
    const int type = typeKeyword(call, owListType);
    const int handle = finishCreation(list, call);
    setListType(list, type);
    view->setWholeRows((call.given(owListStyle) ? call.keyword(owListStyle) : call.keyword(owStyle)) == OAPPROX);
    if (call.given(owDescWidth)) rows->width = pixelsAcross(call.keyword(owDescWidth));
    for (const int keyword : {owOffCol, owOnCol, owTextCol})
        if (call.given(keyword)) setProperty(list, propertyOf(keyword), call.keyword(keyword));
    return handle;
}

void addRow(Widget& widget, int at, const ListEntry& entry) {
    ListView& list = listOf(widget);
    const ListData& data = dataOf<ListData>(widget);
    auto* item = new QListWidgetItem(entry.text);
    if (!entry.icon.isNull()) item->setIcon(entry.icon);
    if (data.sorted) {
        at = 0;
        while (at < list.count() && list.item(at)->text().compare(entry.text, Qt::CaseInsensitive) <= 0) ++at;
    }
    const bool atEnd = list.verticalScrollBar()->value() == list.verticalScrollBar()->maximum();
    list.insertItem(at, item);
    if (data.capacity > 0 && list.count() > data.capacity) delete list.takeItem(0);
    if (data.capacity > 0 && atEnd) list.scrollToBottom(); // a log follows its last line
}

std::vector<QString> rowsOf(const ListView& list) {
    std::vector<QString> rows;
    rows.reserve(static_cast<size_t>(list.count()));
    for (int i = 0; i < list.count(); ++i) rows.push_back(list.item(i)->text());
    return rows;
}

void selectRow(ListView& list, int row) {
    if (row < 0 || row >= list.count()) return;
    list.setCurrentRow(row, QItemSelectionModel::Select | (list.selectionMode() == QAbstractItemView::SingleSelection
                                                               ? QItemSelectionModel::Clear
                                                               : QItemSelectionModel::NoUpdate));
    list.scrollToItem(list.item(row));
}

// The row that an action names: from 1, or the current one for -1.
int namedRow(const ListView& list, int entry) { return entry == -1 ? list.currentRow() : entry - 1; }

} // namespace

void listBoxEntry(Widget& widget, const ListEntry& entry) {
    ListView& list = listOf(widget);
    const int row = namedRow(list, entry.entry);
    switch (entry.action) {
    case OADD: addRow(widget, list.count(), entry); break;
    case OINSERT: addRow(widget, entry.entry < 1 ? list.count() : qMin(entry.entry - 1, list.count()), entry); break;
    case OSELECT:
        if (entry.entry > 0)
            selectRow(list, entry.entry - 1);
        else
            selectRow(list, findListText(rowsOf(list), entry.text, entry.entry == -2));
        break;
    case ODESELECT:
        if (entry.entry > 0 && list.item(row))
            list.item(row)->setSelected(false);
        else
            list.clearSelection();
        break;
    case ODELETE: delete list.takeItem(row); break;
    case OCLEAR: list.clear(); break;
    default: break;
    }
}

QString listBoxText(Widget& widget, int& entry) {
    const ListView& list = listOf(widget);
    const int row = entry < 1 ? list.currentRow() : entry - 1;
    const QListWidgetItem* item = list.item(row);
    entry = item ? row + 1 : 0;
    return item ? item->text() : QString();
}

ListStatus listBoxStatus(Widget& widget) {
    const ListView& list = listOf(widget);
    return {list.count(), static_cast<int>(list.selectedItems().size()), list.currentRow() + 1};
}

namespace {

// Combo boxes have neither.
Word enqListSelected(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    const QListWidgetItem* item = widget.kind == Kind::listBox ? listOf(widget).item(call.integer(1) - 1) : nullptr;
    return item && item->isSelected() ? 1 : 0;
}

Word defineRowDrag(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    if (widget.kind == Kind::listBox) listOf(widget).rowDragged = call.integer(1);
    return 0;
}

const Registration registration({{Fn::owCreateListBox, createListBox},
                                 {Fn::owEnqListSelected, enqListSelected},
                                 {Fn::owDefineRowDragCallback, defineRowDrag}});
} // namespace

} // namespace orba
