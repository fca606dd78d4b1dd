#include "sheet.h"

#include "menu-c.h"
#include "project/naming.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "properties/edits.h"
#include "surface/live.h"
#include "surface/state.h"

#include <algorithm>
#include <functional>
#include <span>

namespace {

constexpr int ACROSS = 5, DOWN = 5;
constexpr int CELL_WIDTH = 150, CELL_HEIGHT = 104, GAP = 4;
constexpr int WIDTH = CELL_WIDTH - 2 * GAP, HEIGHT = CELL_HEIGHT - 2 * GAP;
constexpr int LINE = 24;

// ---- What stands in a cell.

// A widget of the size, at the top left of a cell that begins at x, y from the top of its parent.
WidgetNode& put(WidgetNode& parent, WidgetType type, int x, int y, int width, int height, const char* text = "") {
    static int number = 0;
    OwnedList made = createFromDefaults(type, 0, 0);
    WidgetNode* node = made.get();
    node->xpos = x + GAP;
    node->ypos = y + GAP;
    node->width = width;
    node->height = height;
    node->text = text;
    node->name = "W" + std::to_string(++number);
    linkChild(parent, std::move(made));
    ++project.widgetCount;
    return *node;
}

void addRows(WidgetNode& list) {
    for (const char* text : {"beta", "Alpha", "gamma delta"}) list.listEntries.push_back({text, ""});
}

void addEntries(WidgetNode& tree) {
    for (const char* label : {"", "Trunk", "Branch"}) {
        MenuEntryRec& entry = tree.entries.emplace_back();
        entry.kind = *label ? MENU_ENTRY : MENU_BAR;
        entry.label = label;
        entry.name = *label ? tree.name + label[0] : "";
    }
}

WidgetNode* button(WidgetNode& on, int x, int y) { return &put(on, TYPE_BUTTON, x, y, 100, LINE, "Press"); }
WidgetNode* userButton(WidgetNode& on, int x, int y) {
    WidgetNode* node = button(on, x, y);
    node->subType = 1;
    return node;
}
WidgetNode* checkBox(WidgetNode& on, int x, int y) {
    WidgetNode& node = put(on, TYPE_TOGGLE, x, y, 120, LINE, "Toggle");
    node.subType = 7;
    return &node;
}
WidgetNode* oldToggle(WidgetNode& on, int x, int y) { return &put(on, TYPE_TOGGLE, x, y, 120, LINE, "Toggle"); }
WidgetNode* entry(WidgetNode& on, int x, int y) { return &put(on, TYPE_TEXT_ENTRY, x, y, 120, LINE, "A text"); }
WidgetNode* lines(WidgetNode& on, int x, int y) {
    return &put(on, TYPE_TEXT_ENTRY, x, y, WIDTH, 70, "Several|lines of|text");
}
constexpr char RICH[] =
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Times;}}{\\colortbl ;}\n\\pard\\plain\\f0\\fs24 Rich \\b text "
    "\\par\n}";
WidgetNode* richLines(WidgetNode& on, int x, int y) {
    WidgetNode& node = put(on, TYPE_TEXT_ENTRY, x, y, WIDTH, 70, RICH);
    node.subType = 1;
    node.fieldWidth = 2000;
    return &node;
}
WidgetNode* label(WidgetNode& on, int x, int y) { return &put(on, TYPE_TEXT_LABEL, x, y, 120, LINE, "A label"); }
WidgetNode* labelLines(WidgetNode& on, int x, int y) {
    return &put(on, TYPE_TEXT_LABEL, x, y, WIDTH, 70, "Several|lines of|a label");
}
WidgetNode* valueOf(WidgetNode& on, WidgetType type, int x, int y) {
    WidgetNode& node = put(on, type, x, y, 100, LINE);
    node.value = 24832.1F;
    node.fieldWidth = 10;
    return &node;
}
WidgetNode* valueEntry(WidgetNode& on, int x, int y) { return valueOf(on, TYPE_VALUE_ENTRY, x, y); }
WidgetNode* valueLabel(WidgetNode& on, int x, int y) { return valueOf(on, TYPE_VALUE_LABEL, x, y); }
WidgetNode* icon(WidgetNode& on, int x, int y) { return &put(on, TYPE_ICON, x, y, 50, 50); }
WidgetNode* labelledIcon(WidgetNode& on, int x, int y) { return &put(on, TYPE_ICON, x, y, 120, 60, "Icon"); }
WidgetNode* list(WidgetNode& on, int x, int y) {
    WidgetNode& node = put(on, TYPE_LIST_BOX, x, y, 120, 70);
    addRows(node);
    return &node;
}
WidgetNode* combo(WidgetNode& on, int x, int y) {
    WidgetNode& node = put(on, TYPE_COMBO_BOX, x, y, 120, 90);
    addRows(node);
    return &node;
}
WidgetNode* slider(WidgetNode& on, int x, int y) { return &put(on, TYPE_SLIDER, x, y, 120, 30); }
WidgetNode* panel(WidgetNode& on, int x, int y) { return &put(on, TYPE_PANEL, x, y, 120, 70, "Panel"); }
WidgetNode* linedPanel(WidgetNode& on, int x, int y) {
    WidgetNode* node = panel(on, x, y);
    node->subType = 1;
    return node;
}
WidgetNode* radioBox(WidgetNode& on, int x, int y) {
    WidgetNode& node = put(on, TYPE_PANEL, x, y, 120, 80, "Choice");
    node.type = TYPE_RADIO_BOX;
    node.borderType = 1;
    node.titleFlag = 1;
    put(node, TYPE_TOGGLE, 10, 16, 80, LINE, "One").subType = 6;
    put(node, TYPE_TOGGLE, 10, 42, 80, LINE, "Two").subType = 6;
    return &node;
}
WidgetNode* radioButton(WidgetNode& on, int x, int y) {
    WidgetNode* box = radioBox(on, x, y);
    deleteNode(box->child->next); // alone: it is moved about
    --project.widgetCount;
    return box->child;
}
WidgetNode* textArray(WidgetNode& on, int x, int y) { return &put(on, TYPE_TEXT_ARRAY, x, y, WIDTH, HEIGHT); }
WidgetNode* valueArray(WidgetNode& on, int x, int y) { return &put(on, TYPE_VALUE_ARRAY, x, y, WIDTH, HEIGHT); }
WidgetNode* tabBox(WidgetNode& on, int x, int y) {
    WidgetNode& node = put(on, TYPE_TAB_BOX, x, y, 130, 80);
    for (const char* title : {"First", "Second"}) {
        WidgetNode& page = put(node, TYPE_PANEL, 0, 0, 120, 50, title);
        page.scrollMode = ONOBARS;
        put(page, TYPE_BUTTON, 10, 4, 60, LINE, title);
    }
    return &node;
}
WidgetNode* tabPage(WidgetNode& on, int x, int y) { return tabBox(on, x, y)->child; }
WidgetNode* gauge(WidgetNode& on, int x, int y) { return &put(on, TYPE_GAUGE, x, y, 120, 50); }
WidgetNode* progressBar(WidgetNode& on, int x, int y) { return &put(on, TYPE_PROGRESS_BAR, x, y, 120, LINE); }
WidgetNode* ttyEntry(WidgetNode& on, int x, int y) { return &put(on, TYPE_TTY_ENTRY, x, y, WIDTH, 70, "Ready"); }
WidgetNode* tree(WidgetNode& on, int x, int y) {
    WidgetNode& node = put(on, TYPE_TREE_VIEW, x, y, WIDTH, 70);
    addEntries(node);
    return &node;
}
WidgetNode* ownIconsTree(WidgetNode& on, int x, int y) {
    WidgetNode* node = tree(on, x, y);
    node->subType = ORESOURCEICONS;
    return node;
}
WidgetNode* tableBox(WidgetNode& on, int x, int y) { return &put(on, TYPE_TABLE_BOX, x, y, WIDTH, 70); }

// What fills a form of its own.
WidgetNode& barOf(WidgetNode& form) {
    WidgetNode& bar = put(*form.child, TYPE_TOOL_BAR, 0, 0, 200, 30, "Tools");
    bar.onToolbar = 0;
    const auto onBar = [&](WidgetType type, const char* text) -> WidgetNode& {
        WidgetNode& node = put(bar, type, 0, 0, 60, LINE, text);
        node.onToolbar = 1;
        return node;
    };
    onBar(TYPE_BUTTON, "Tool");
    onBar(TYPE_TOOL_SEPARATOR, "");
    onBar(TYPE_ICON, "");
    addRows(onBar(TYPE_COMBO_BOX, ""));
    return bar;
}
WidgetNode* toolBar(WidgetNode& form, int, int) { return &barOf(form); }
WidgetNode* emptyToolBar(WidgetNode& form, int, int) { return &put(*form.child, TYPE_TOOL_BAR, 0, 0, 200, 30, "Bare"); }
WidgetNode* toolButton(WidgetNode& form, int, int) { return barOf(form).child; }
WidgetNode* separator(WidgetNode& form, int, int) { return barOf(form).child->next; }
WidgetNode* toolIcon(WidgetNode& form, int, int) { return barOf(form).child->next->next; }
WidgetNode* toolCombo(WidgetNode& form, int, int) { return barOf(form).child->next->next->next; }
WidgetNode* pane(WidgetNode& form, int, int) {
    WidgetNode& node = put(*form.child, TYPE_PANE, 0, 0, 100, 80, "Pane");
    put(node, TYPE_PANEL, 0, 0, 80, 60, "In it");
    return &node;
}
WidgetNode* wholeForm(WidgetNode& form, int, int) { return &form; }

constexpr Scene SCENES[] = {
    {"Push Button", TYPE_BUTTON, button},
    {"User Defined Button", TYPE_BUTTON, userButton},
    {"Check Box", TYPE_TOGGLE, checkBox},
    {"Bevelled Check Box", TYPE_TOGGLE, oldToggle},
    {"Radio Button", TYPE_TOGGLE, radioButton},
    {"Text Entry", TYPE_TEXT_ENTRY, entry},
    {"Text Entry of lines", TYPE_TEXT_ENTRY, lines},
    {"Rich Text Entry", TYPE_TEXT_ENTRY, richLines},
    {"Text Label", TYPE_TEXT_LABEL, label},
    {"Text Label of lines", TYPE_TEXT_LABEL, labelLines},
    {"Value Entry", TYPE_VALUE_ENTRY, valueEntry},
    {"Value Label", TYPE_VALUE_LABEL, valueLabel},
    {"Icon", TYPE_ICON, icon},
    {"Labelled Icon", TYPE_ICON, labelledIcon},
    {"ListBox", TYPE_LIST_BOX, list},
    {"Slider", TYPE_SLIDER, slider},
    {"Panel", TYPE_PANEL, panel},
    {"Panel with a line", TYPE_PANEL, linedPanel},
    {"Tab Page", TYPE_PANEL, tabPage},
    {"ComboBox", TYPE_COMBO_BOX, combo},
    {"Radio Box", TYPE_RADIO_BOX, radioBox},
    {"Text Array", TYPE_TEXT_ARRAY, textArray},
    {"Value Array", TYPE_VALUE_ARRAY, valueArray},
    {"Tabbed Dialogue Box", TYPE_TAB_BOX, tabBox},
    {"Gauge", TYPE_GAUGE, gauge},
    {"Progress Bar", TYPE_PROGRESS_BAR, progressBar},
    {"TTY Entry", TYPE_TTY_ENTRY, ttyEntry},
    {"Treeview", TYPE_TREE_VIEW, tree},
    {"Treeview with own icons", TYPE_TREE_VIEW, ownIconsTree},
    {"Table Box", TYPE_TABLE_BOX, tableBox},
};

constexpr Scene FORM_SCENES[] = {
    {"Form", TYPE_FORM, wholeForm},
    {"ToolBar", TYPE_TOOL_BAR, toolBar},
    {"Empty ToolBar", TYPE_TOOL_BAR, emptyToolBar},
    {"Button on a ToolBar", TYPE_BUTTON, toolButton},
    {"Icon on a ToolBar", TYPE_ICON, toolIcon},
    {"ComboBox on a ToolBar", TYPE_COMBO_BOX, toolCombo},
    {"Toolbar Separator", TYPE_TOOL_SEPARATOR, separator},
    {"Pane", TYPE_PANE, pane},
};

// ---- What is done to it.

// Rows that say nothing of how a widget looks, and those that lead to a box of their own.
bool showsNothing(const WidgetNode& widget, RowId row) {
    if (widget.type == TYPE_FORM && row == ROW_TITLE) return true; // outside of its picture
    constexpr RowId ROWS[] = {ROW_NAME,         ROW_FORM_TYPE, ROW_QUIT_MODE, ROW_BUILD_INFO,      ROW_BUBBLE_HELP,
                              ROW_BUBBLE_ALIGN, ROW_DRAG,      ROW_TAB_LIST,  ROW_ACTIVE_ON_INIT,  ROW_TAB_ACTION,
                              ROW_ACCESS_MODE,  ROW_OLE,       ROW_ENTRIES,   ROW_BACKGROUND_IMAGE};
    return std::ranges::find(ROWS, row) != std::end(ROWS) ||
           std::string(propertyRow(row).label).find("Not WYSIWYG") != std::string::npos;
}

// Origin and expansion are edited together, see PLACES.
bool isPlace(RowId row) { return row == ROW_HORIZONTAL || row == ROW_VERTICAL || row == ROW_EXPAND; }

std::vector<CellInput> choicesFor(const WidgetNode& widget, const PropertyRow& row) {
    std::vector<CellInput> inputs;
    for (const Choice& choice : choicesOf(widget, row)) {
        if (row.whole && widget.*row.whole == choice.value) continue;
        inputs.push_back({.text = choice.label, .number = 0, .value = choice.value});
        if (row.id == ROW_CHAR_SET && inputs.size() == 2) break; // all of them are fonts of the same letters
    }
    return inputs;
}

std::vector<CellInput> textsFor(const PropertyRow& row) {
    if (row.id == ROW_FONT_FACE) return {{.text = "Times"}};
    if (row.id == ROW_POINT_SIZE) return {{.text = "18", .number = 18, .value = 18}};
    if (row.id == ROW_ICON || row.id == ROW_TAB_ICON || row.id == ROW_CLOSE_ICON || row.id == ROW_OPEN_ICON)
        return {{.text = "MBIG1001"}};
    if (row.id == ROW_ACCELERATOR) return {{.text = "s"}};
    if (row.cell == Cell::Text || row.cell == Cell::EditableChoice)
        return {{.text = "Else & more|again"}, {.text = ""}};
    return {};
}

std::vector<CellInput> numbersFor(const WidgetNode& widget, const PropertyRow& row) {
    const double stored = row.real ? static_cast<double>(widget.*row.real) : widget.*row.whole;
    const NumberFormat format = numberFormat(widget, row);
    const bool limited = format.maximum > format.minimum;
    const double next = stored == 0 && !limited ? 40 : stored + 2;
    return {{.text = {}, .number = !limited || next <= format.maximum ? next : stored - 2}};
}

std::vector<CellInput> inputsFor(const WidgetNode& widget, const PropertyRow& row) {
    switch (cellKind(widget, row)) {
    case Cell::Choice: return choicesFor(widget, row);
    case Cell::Colour: return {{.text = {}, .number = 0, .value = 3}};
    case Cell::Number: return numbersFor(widget, row);
    default: return textsFor(row);
    }
}

void edit(WidgetNode& widget, const PropertyRow& row, const CellInput& input) {
    const std::vector<RowId> rows = sheetOf(widget);
    if (std::ranges::find(rows, row.id) == rows.end() || isGrey(widget, row)) return;
    WidgetNode& target = targetOf(widget, row);
    row.edit ? row.edit(target, row, input) : storeAndFollow(target, row, input);
}

// ---- The sheet.

struct Sheet {
    std::vector<Spot> cells;
    std::vector<std::function<void()>> edits; // once all is live
    WidgetNode* form = nullptr;
    int next = ACROSS * DOWN; // place on the form
    int forms = 0;

    WidgetNode& addForm(int width, int height) {
        form = forms++ == 0 ? project.forms : newForm();
        for (WidgetNode* node : {form, form->child}) {
            node->width = width;
            node->height = height;
        }
        form->xpos = form->ypos = 20;
        form->text = "F" + std::to_string(forms);
        renameNode(*form, form->text);
        renameNode(*form->child, form->text + "P");
        return *form;
    }

    Spot& addCell(const Scene& scene, RowId row, const std::string& value) {
        const std::string what = std::string(scene.name) + ": " + propertyRow(row).label + " = " + value;
        cells.push_back({what, scene.type, row, {}, 0, 0, 0, 0});
        return cells.back();
    }

    // The cell's top left on its form.
    void placeOnForm(Spot& cell) {
        if (next == ACROSS * DOWN) {
            addForm(ACROSS * CELL_WIDTH, DOWN * CELL_HEIGHT);
            next = 0;
        }
        cell.form = form->text;
        cell.x = next % ACROSS * CELL_WIDTH;
        cell.y = next / ACROSS * CELL_HEIGHT;
        cell.width = CELL_WIDTH;
        cell.height = CELL_HEIGHT;
        ++next;
    }

    void addEdit(WidgetNode& widget, RowId id, const CellInput& input) {
        edits.push_back([&widget, id, input] { edit(widget, propertyRow(id), input); });
    }

    void addOnCell(const Scene& scene, RowId row, const std::string& value, const CellInput& input) {
        Spot& cell = addCell(scene, row, value);
        placeOnForm(cell);
        addEdit(*scene.make(*form->child, cell.x, cell.y), row, input);
    }

    void addOnForm(const Scene& scene, RowId row, const std::string& value, const CellInput& input) {
        Spot& cell = addCell(scene, row, value);
        addForm(300, 160);
        put(*form->child, TYPE_BUTTON, 100, 60, 80, LINE, "Beside");
        cell.form = form->text;
        cell.width = cell.height = 10000;
        addEdit(*scene.make(*form, 0, 0), row, input);
        next = ACROSS * DOWN;
    }

    // In a panel of its own, for it grows with its parent.
    void addOrigin(const Scene& scene, int hpos, int vpos) {
        Spot& cell = addCell(scene, ROW_EXPAND, std::to_string(hpos) + ", " + std::to_string(vpos));
        placeOnForm(cell);
        WidgetNode& holder = put(*form->child, TYPE_PANEL, cell.x, cell.y, WIDTH, HEIGHT);
        holder.subType = 0;
        holder.titleFlag = 0;
        WidgetNode& widget = *scene.make(holder, 0, 0);
        addEdit(widget, ROW_HORIZONTAL, {.text = {}, .number = 0, .value = hpos});
        addEdit(widget, ROW_VERTICAL, {.text = {}, .number = 0, .value = vpos});
        addEdit(widget, ROW_EXPAND, {.text = {}, .number = 0, .value = 1});
    }
};

std::string shownValue(const PropertyRow& row, const CellInput& input) {
    return row.cell == Cell::Number ? std::to_string(input.number)
           : input.text.empty()     ? std::to_string(input.value)
                                    : input.text;
}

// Every row of a scene that is in force there, with every value.
template <typename Add> void eachEdit(const Scene& scene, bool onForm, Add add) {
    WidgetNode* stage = newForm();
    const WidgetNode& sample = *scene.make(onForm ? *stage : *stage->child, 0, 0);
    std::vector<std::pair<RowId, CellInput>> edits;
    for (const RowId id : sheetOf(sample)) {
        const PropertyRow& row = propertyRow(id);
        if (showsNothing(sample, id) || isPlace(id) || isGrey(sample, row)) continue;
        for (const CellInput& input : inputsFor(targetOf(sample, row), row)) edits.emplace_back(id, input);
    }
    deleteNode(stage);
    for (const auto& [id, input] : edits) add(id, input);
}

} // namespace

std::vector<Spot> makeSheet() {
    Sheet sheet;
    eraseForms(project.forms);
    for (const Scene& scene : SCENES) {
        eachEdit(scene, false, [&](RowId row, const CellInput& input) {
            sheet.addOnCell(scene, row, shownValue(propertyRow(row), input), input);
        });
        for (const int hpos : {-1, 0, 1})
            for (const int vpos : {-1, 0, 1}) sheet.addOrigin(scene, hpos, vpos);
    }
    for (const Scene& scene : FORM_SCENES)
        eachEdit(scene, true, [&](RowId row, const CellInput& input) {
            sheet.addOnForm(scene, row, shownValue(propertyRow(row), input), input);
        });
    realiseForms(project.forms);
    for (const auto& one : sheet.edits) one();
    return sheet.cells;
}
