#include "checks.h"

#include "targets.h"

#include "editing/editor_window.h"
#include "toolkit/frame/core.h"
#include "toolkit/frame/session.h"
#include "toolkit/testing/robot.h"

#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QTreeWidget>

#include <algorithm>
#include <array>
#include <set>

namespace robot = orba::testing;
using orba::Kind;

namespace {

// ---- What the control windows list.

void listRecords(const WidgetNode* node, int level, std::vector<std::string>& rows) {
    for (; node; node = node->next) {
        const bool row = node->type != TYPE_MAIN_PANEL;
        if (row) rows.push_back(std::string(static_cast<std::size_t>(level), ' ') + node->name);
        listRecords(node->child, level + (row ? 1 : 0), rows);
    }
}

void listItems(const QTreeWidgetItem* item, int level, std::vector<std::string>& rows) {
    for (int i = 0; i < item->childCount(); i++) {
        const QTreeWidgetItem* child = item->child(i);
        rows.push_back(std::string(static_cast<std::size_t>(level), ' ') + child->text(0).toStdString());
        listItems(child, level + 1, rows);
    }
}

QTreeWidget* hierarchyView() {
    static QTreeWidget* view;
    view = nullptr;
    orba::forEachWidget([](orba::Widget& widget) {
        if (widget.kind != Kind::treeView || findHandle(widget.handle)) return;
        orba::Widget* window = orba::windowOf(&widget);
        if (auto* tree = qobject_cast<QTreeWidget*>(widget.view); tree && window && window->handle == 1) view = tree;
    });
    return view;
}

std::string firstDifference(const std::vector<std::string>& shown, const std::vector<std::string>& wanted) {
    for (std::size_t i = 0; i < std::max(shown.size(), wanted.size()); i++) {
        const std::string left = i < shown.size() ? shown[i] : "nothing";
        const std::string right = i < wanted.size() ? wanted[i] : "nothing";
        if (left != right) return "row " + std::to_string(i) + " shows \"" + left + "\" for \"" + right + "\"";
    }
    return "";
}

} // namespace

void checkLists() {
    std::vector<std::string> wanted, shown;
    listRecords(project.forms, 0, wanted);
    QTreeWidget* tree = hierarchyView();
    expect(tree != nullptr, "hierarchy: its tree is gone");
    if (!tree) return;
    listItems(tree->invisibleRootItem(), 0, shown);
    expect(shown == wanted, "hierarchy: " + firstDifference(shown, wanted));

    shown.clear();
    wanted.clear();
    forEachRecord([&](const WidgetNode& node) {
        if (node.type != TYPE_MAIN_PANEL) wanted.push_back(node.name);
    });
    if (const auto* list = qobject_cast<QComboBox*>(robot::viewOf(editor.widgetList)))
        for (int i = 0; i < list->count(); i++) shown.push_back(list->itemText(i).toStdString());
    std::ranges::sort(shown);
    std::ranges::sort(wanted);
    expect(shown == wanted, "names list: " + firstDifference(shown, wanted));
    expect(project.widgetCount == static_cast<int>(wanted.size()), "names list: the count of widgets is wrong");
}

// ---- Live widgets.

namespace {

bool fits(Kind kind, WidgetType type) {
    struct Row {
        WidgetType type;
        std::vector<Kind> kinds;
    };
    static const std::vector<Row> rows = {
        {TYPE_FORM, {Kind::window, Kind::master}},
        {TYPE_MAIN_PANEL, {Kind::panel}},
        {TYPE_BUTTON, {Kind::pushButton, Kind::toolButton}},
        {TYPE_TOGGLE, {Kind::toggle, Kind::toolButton}},
        {TYPE_TEXT_ENTRY, {Kind::textEntry, Kind::textLabel}},
        {TYPE_TEXT_LABEL, {Kind::textLabel, Kind::textEntry}},
        {TYPE_VALUE_ENTRY, {Kind::valueEntry}},
        {TYPE_VALUE_LABEL, {Kind::valueEntry}},
        {TYPE_ICON, {Kind::icon, Kind::toolButton}},
        {TYPE_LIST_BOX, {Kind::listBox}},
        {TYPE_SLIDER, {Kind::slider}},
        {TYPE_PANEL, {Kind::panel}},
        {TYPE_RADIO_BOX, {Kind::radioBox, Kind::panel}},
        {TYPE_COMBO_BOX, {Kind::comboBox}},
        {TYPE_GRAPHICS_FRAME, {Kind::graphicsFrame, Kind::openGlFrame}},
        {TYPE_TEXT_ARRAY, {Kind::array}},
        {TYPE_VALUE_ARRAY, {Kind::array}},
        {TYPE_TOOL_BAR, {Kind::toolBar}},
        {TYPE_TAB_BOX, {Kind::tabBox}},
        {TYPE_GAUGE, {Kind::gauge}},
        {TYPE_PROGRESS_BAR, {Kind::progressBar}},
        {TYPE_TTY_ENTRY, {Kind::ttyEntry}},
        {TYPE_TREE_VIEW, {Kind::treeView}},
        {TYPE_TABLE_BOX, {Kind::tableBox}},
        {TYPE_TOOL_SEPARATOR, {Kind::toolSeparator}},
        {TYPE_PANE, {Kind::dockingPane}},
    };
    const auto row = std::ranges::find(rows, type, &Row::type);
    return row != rows.end() && std::ranges::find(row->kinds, kind) != row->kinds.end();
}

void checkHandles() {
    std::set<int> handles;
    forEachRecord([&handles](const WidgetNode& node) {
        const std::string who = " of type " + std::to_string(node.type) + " (" + node.name + ")";
        const orba::Widget* widget = orba::widgetOf(node.handle);
        expect(node.handle > 0, "live: no handle" + who);
        expect(widget != nullptr, "live: the handle names nothing" + who);
        if (!widget) return;
        expect(handles.insert(node.handle).second, "live: a handle of another record" + who);
        expect(findHandle(node.handle) == &node, "live: the index does not lead from the handle to the record" + who);
        expect(fits(widget->kind, node.type),
               "live: a widget of kind " + std::to_string(static_cast<int>(widget->kind)) + who);
        expect(node.type == TYPE_FORM || orba::widgetOf(node.parentHandle), "live: the parent's handle is dead" + who);
    });
}

bool isEntry(Kind kind) {
    constexpr std::array entries = {Kind::menuBar,   Kind::popupMenu,     Kind::pullDownMenu, Kind::menuEntry,
                                    Kind::statusBar, Kind::menuSeparator, Kind::treeEntry};
    return std::ranges::find(entries, kind) != entries.end();
}

// A blank child keeps an empty bar or pane open.
bool isPlaceholder(const orba::Widget& widget) {
    const WidgetNode* holder = widget.parent ? findHandle(widget.parent->handle) : nullptr;
    return holder && (holder->type == TYPE_TOOL_BAR || holder->type == TYPE_PANE) && !holder->child &&
           widget.parent->children.size() == 1;
}

void checkLeftovers() {
    orba::forEachWidget([](orba::Widget& widget) {
        if (findHandle(widget.handle) || isEntry(widget.kind) || isPlaceholder(widget)) return;
        for (const orba::Widget* up = widget.parent; up; up = up->parent)
            if (const WidgetNode* holder = findHandle(up->handle))
                return expect(false, "live: a widget of kind " + std::to_string(static_cast<int>(widget.kind)) +
                                         " that belongs to no record, on " + holder->name);
    });
}

} // namespace

void checkLive() {
    checkHandles();
    checkLeftovers();
}

// ---- The screen.

namespace {

bool isBlank(const QImage& image) {
    const QRgb first = image.pixel(0, 0);
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3)
            if (image.pixel(x, y) != first) return false;
    return true;
}

} // namespace

void checkScreen() {
    QWidget* master = robot::viewOf(1);
    expect(master && master->isVisible(), "screen: the main window is not shown");
    if (!master) return;
    expect(master->isEnabled(), "screen: the main window takes no input");
    for (const QWidget* window : windowsShown())
        for (const QWidget* part : partsShown(const_cast<QWidget*>(window)))
            expect(part->updatesEnabled(),
                   std::string("screen: a ") + part->metaObject()->className() + " is not painted any more");
    expect(!QApplication::overrideCursor(), "screen: the busy cursor stays");
    expect(!QApplication::activeModalWidget(), "screen: a box is still up");
    expect(!orba::session.program, "events: the toolkit takes the user for the program");
    expect(orba::session.openBoxes == 0, "events: the toolkit believes that a box is up");
    if (!master->isMinimized()) expect(!isBlank(master->grab().toImage()), "screen: the main window is blank");
}
