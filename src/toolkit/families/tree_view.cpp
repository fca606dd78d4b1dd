// Tree view boxes and their entries. An entry is a widget of its own without a view; it keeps its item in the box.
#include "toolkit/frame/core.h"
#include "toolkit/views/icons/icons.h"
#include "toolkit/views/program_doing.h"

#include <QDropEvent>
#include <QFocusEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTimer>
#include <QToolTip>
#include <QTreeWidget>
#include <unordered_map>

namespace orba {
namespace {

// Pictures of an icon set: of an entry with children, closed and open, and of one without.
struct IconSet {
    int number;
    const char *closed, *open, *leaf;
};
constexpr IconSet iconSets[] = {
    {OFOLDERS, "folder", "folderopen", "document"},
    {OBOOKS, "book", "bookopen", "page"},
};

constexpr int handleRole = Qt::UserRole;

struct EntryData : FamilyData {
    QTreeWidgetItem* item = nullptr; // owned by the view
    Widget* box = nullptr;
    int icon = 0, closeIcon = 0, openIcon = 0; // resources of the entry's own pictures
};

// The box tells of what its user does to an entry; the program's changes go unreported. Selections by the program are
// shown at the next turn of the event loop, so that building a large tree row by row stays cheap.
class TreeView : public QTreeWidget {
public:
    explicit TreeView(QWidget* parent) : QTreeWidget(parent) {
        setHeaderHidden(true);
        setUniformRowHeights(true);
        setColumnCount(1);
        setExpandsOnDoubleClick(true);
        header()->setStretchLastSection(false);
        header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        setDragDropMode(QAbstractItemView::DragDrop);
        setDropIndicatorShown(false);
        selection_.setSingleShot(true);
        selection_.setInterval(0);
        connect(&selection_, &QTimer::timeout, this, [this] { showSelection(); });
        connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) { opened(item, 1); });
        connect(this, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* item) { opened(item, 0); });
    }

    int handle = 0; // of the box
    int iconSet = ONONE;
    ProgramDoing program;

    void selectItem(QTreeWidgetItem* item) {
        wanted_ = item;
        selection_.start();
    }
    void forget(const QTreeWidgetItem* item) {
        for (const QTreeWidgetItem* at = wanted_; at; at = at->parent())
            if (at == item) {
                wanted_ = nullptr;
                break;
            }
    }
    void showSelection() {
        if (!wanted_) return;
        const ProgramDoing::Mark mark(program);
        const int across = horizontalScrollBar()->value();
        setCurrentItem(wanted_);
        scrollToItem(wanted_);
        horizontalScrollBar()->setValue(across);
        wanted_ = nullptr;
    }

protected:
    void focusInEvent(QFocusEvent* event) override {
        QTreeWidget::focusInEvent(event);
        post(handle, Slot::select, 1);
    }
    void focusOutEvent(QFocusEvent* event) override {
        QTreeWidget::focusOutEvent(event);
        post(handle, Slot::select, 0);
    }
    void mousePressEvent(QMouseEvent* event) override {
        showSelection();
        const QTreeWidgetItem* before = currentItem();
        QTreeWidget::mousePressEvent(event);
        QTreeWidgetItem* pressed = itemAt(event->position().toPoint());
        if (!pressed) {
            post(handle, Slot::general, 0, event->position()); // beside the entries: the box itself
            return;
        }
        const bool onArrow = event->position().x() < visualItemRect(pressed).left();
        if (event->button() == Qt::LeftButton && !onArrow) chosen(pressed, before, event->position());
    }
    // The bubble of an entry, also of one that cannot be chosen.
    bool viewportEvent(QEvent* event) override {
        if (event->type() != QEvent::ToolTip) return QTreeWidget::viewportEvent(event);
        const auto* help = static_cast<QHelpEvent*>(event);
        const Widget* entry = widgetOf(handleOf(itemAt(help->pos())));
        if (!entry || entry->help.isEmpty()) return QTreeWidget::viewportEvent(event);
        QToolTip::showText(help->globalPos(), entry->help, viewport());
        return true;
    }
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        QTreeWidget::mouseDoubleClickEvent(event);
        if (QTreeWidgetItem* item = itemAt(event->position().toPoint()))
            post(handleOf(item), Slot::doubleClick, 0, event->position());
    }
    void keyPressEvent(QKeyEvent* event) override {
        showSelection();
        const QTreeWidgetItem* before = currentItem();
        QTreeWidget::keyPressEvent(event);
        const bool confirmed = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (currentItem() && (currentItem() != before || confirmed)) chosen(currentItem(), before, {});
        if (confirmed) event->ignore();
    }
    // Only entries that tell of drops can be dragged. Copied, so that Qt takes none away: moving them is the program's
    // to do.
    void startDrag(Qt::DropActions) override {
        const Widget* entry = widgetOf(handleOf(currentItem()));
        if (entry && hasCallback(*entry, Slot::dragDrop)) QTreeWidget::startDrag(Qt::CopyAction);
    }
    void dropEvent(QDropEvent* event) override {
        QTreeWidgetItem* target = itemAt(event->position().toPoint());
        const QTreeWidgetItem* dragged = currentItem();
        event->accept();
        if (target && dragged && target != dragged)
            post(handleOf(target), Slot::dragDrop, handleOf(dragged), event->position());
    }

private:
    static int handleOf(const QTreeWidgetItem* item) { return item ? item->data(0, handleRole).toInt() : 0; }

    void chosen(QTreeWidgetItem* item, const QTreeWidgetItem* before, QPointF position) {
        if (before && before != item) post(handleOf(before), Slot::select, 0, position);
        post(handleOf(item), Slot::select, 1, position);
        post(handleOf(item), Slot::general, 0, position);
    }

    void opened(QTreeWidgetItem* item, int open);

    QTimer selection_;
    QTreeWidgetItem* wanted_ = nullptr;
};

TreeView& boxOf(Widget& widget) {
    Widget* box = widget.kind == Kind::treeEntry ? dataOf<EntryData>(widget).box : &widget;
    return *static_cast<TreeView*>(box->view.data());
}

QTreeWidgetItem* itemOf(Widget& entry) { return dataOf<EntryData>(entry).item; }

// The picture that suits an entry now.
QIcon pictureOf(const TreeView& box, const EntryData& data) {
    const bool parent = data.item->childCount() > 0;
    const bool open = parent && data.item->isExpanded();
    for (const IconSet& set : iconSets)
        if (set.number == box.iconSet)
            return icons::iconByName(QLatin1String(open ? set.open : parent ? set.closed : set.leaf));
    if (box.iconSet != ORESOURCEICONS) return {};
    int resource = open ? data.openIcon : parent ? data.closeIcon : data.icon;
    if (resource == 0) resource = data.icon;
    if (resource == 0) resource = data.closeIcon;
    return icons::iconOfResource(resource);
}

void showPicture(Widget& entry) {
    if (entry.kind == Kind::treeEntry) itemOf(entry)->setIcon(0, pictureOf(boxOf(entry), dataOf<EntryData>(entry)));
}

void TreeView::opened(QTreeWidgetItem* item, int open) {
    Widget* entry = widgetOf(handleOf(item));
    if (!entry) return;
    showPicture(*entry);
    if (!program) post(*entry, Slot::change, open);
}

void showPictures(Widget& widget) {
    showPicture(widget);
    for (Widget* child : widget.children) showPictures(*child);
}

// ---- The box

bool setBoxProperty(Widget& widget, int property, const Value& value) {
    switch (property) {
    case propertyOf(owIconSet):
        boxOf(widget).iconSet = value.integer;
        showPictures(widget);
        return true;
    case propertyOf(owOffCol): setViewColour(widget.view, QPalette::Base, value.integer); return true;
    case propertyOf(owTextCol): setViewColour(widget.view, QPalette::Text, value.integer); return true;
    default: return false;
    }
}

bool getBoxProperty(Widget& widget, int property, Value& value) {
    if (property != propertyOf(owIconSet)) return false;
    value.integer = boxOf(widget).iconSet;
    return true;
}

void boxErased(Widget& widget) { boxOf(widget).selectItem(nullptr); }

const Family treeBoxes{.name = "tree view", .get = getBoxProperty, .set = setBoxProperty, .erased = boxErased};

Word createTreeViewBox(const Arguments& call) {
    auto* view = new TreeView(clientOf(call));
    Widget& box = addWidget(Kind::treeView, treeBoxes, call, view, nullptr);
    view->handle = box.handle;
    view->iconSet = call.keyword(owIconSet);
    return finishCreation(box, call);
}

// ---- Entries

QString entryText(Widget& entry) { return itemOf(entry)->text(0); }
void setEntryText(Widget& entry, const QString& text) { itemOf(entry)->setText(0, text); }

void setEntryStatus(Widget& entry, int status) {
    itemOf(entry)->setHidden(status == OHIDDEN);
    itemOf(entry)->setDisabled(status == OUNSELECTABLE);
}

constexpr Attribute entryAttributes[] = {keeps<&EntryData::icon>(owIcon), keeps<&EntryData::openIcon>(owOpenIcon),
                                         keeps<&EntryData::closeIcon>(owCloseIcon)};

void entryErased(Widget& entry) {
    TreeView& box = boxOf(entry);
    QTreeWidgetItem* item = itemOf(entry);
    box.forget(item);
    const ProgramDoing::Mark mark(box.program);
    // Else each of many entries that go passes the mark, and the view, on to the next.
    if (box.currentItem() == item) box.setCurrentItem(nullptr);
    QTreeWidgetItem* above = item->parent() ? item->parent() : box.invisibleRootItem();
    const int last = above->childCount() - 1;
    if (above->child(last) == item) above->takeChild(last); // without a search among its siblings
    delete item;
    const bool childless = entry.parent->kind == Kind::treeEntry && itemOf(*entry.parent)->childCount() == 0;
    if (childless) showPicture(*entry.parent); // it is no branch any more
}

const Family treeEntries{.name = "tree entry",
                         .attributes = entryAttributes,
                         .show = showPicture,
                         .setStatus = setEntryStatus,
                         .text = entryText,
                         .setText = setEntryText,
                         .erased = entryErased};

// Position -1 is the first, -2 the last, from 1 the place among the parent's entries.
int placeAmong(const QTreeWidgetItem* parent, int position) {
    if (position == OFIRSTCHILD) return 0;
    return position > 0 ? qMin(position - 1, parent->childCount()) : parent->childCount();
}

Word createTreeEntry(const Arguments& call) {
    Widget* parent = widgetOf(call.integer(0));
    auto data = dataFrom<EntryData>(treeEntries, call);
    data->box = parent->kind == Kind::treeEntry ? dataOf<EntryData>(*parent).box : parent;
    TreeView& box = boxOf(*parent);
    data->item = new QTreeWidgetItem(QStringList(call.text(2)));
    QTreeWidgetItem* item = data->item;
    Widget& entry = addWidget(Kind::treeEntry, treeEntries, call, nullptr, std::move(data));
    item->setData(0, handleRole, entry.handle);
    QTreeWidgetItem* above = parent->kind == Kind::treeEntry ? itemOf(*parent) : box.invisibleRootItem();
    above->insertChild(placeAmong(above, call.integer(1)), item);
    showPicture(entry);
    if (above->childCount() == 1) showPicture(*parent);
    return finishCreation(entry, call);
}

Word treeViewAction(const Arguments& call) {
    Widget& entry = *widgetOf(call.integer(0));
    if (entry.kind != Kind::treeEntry) return 0;
    TreeView& box = boxOf(entry);
    QTreeWidgetItem* item = itemOf(entry);
    const ProgramDoing::Mark mark(box.program);
    switch (call.integer(1)) {
    case OCLOSEENTRY: item->setExpanded(false); break;
    case OOPENENTRY: item->setExpanded(true); break;
    case OTOGGLEENTRY: item->setExpanded(!item->isExpanded()); break;
    case OSHOWENTRY: box.scrollToItem(item); break;
    case OSELECTENTRY: box.selectItem(item); break;
    default: break;
    }
    return 0;
}

Word setTreeViewLabel(const Arguments& call) {
    Widget& entry = *widgetOf(call.integer(0));
    if (entry.kind == Kind::treeEntry) setEntryText(entry, call.text(1));
    return 0;
}

// Of a box the label of its selected entry.
Word enqTreeViewLabel(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    TreeView& box = boxOf(widget);
    box.showSelection();
    const QTreeWidgetItem* item = widget.kind == Kind::treeEntry ? itemOf(widget) : box.currentItem();
    call.giveText(1, item ? item->text(0) : QString());
    return 0;
}

const Registration registration({{Fn::owCreateTreeViewBox, createTreeViewBox},
                                 {Fn::owCreateTreeEntry, createTreeEntry},
                                 {Fn::owTreeViewAction, treeViewAction},
                                 {Fn::owSetTreeViewLabel, setTreeViewLabel},
                                 {Fn::owEnqTreeViewLabel, enqTreeViewLabel}});

} // namespace
} // namespace orba
