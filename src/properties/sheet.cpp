#include "properties/sheet.h"
#include "properties/limits.h"

#include "menu-c.h"
#include "project/preferences.h"
#include "project/timeline.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "properties/commands.h"
#include "properties/edits.h"
#include "properties/rows.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/selection.h"
#include "surface/state.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr int LABEL_WIDTH = 140, ROW_MARGIN = 6; // pixels
constexpr char FALLBACK_LABEL[] = "Name";

// What a cell shows; which member counts follows from the kind of cell.
struct Content {
    std::string text;
    double number = 0;
    int colour = 0;
    bool enabled = true;
    bool operator==(const Content&) const = default;
};

// How a cell was made: when this changes the whole list is made again.
struct Build {
    Cell kind = Cell::Text;
    NumberFormat format;
    const Choice* choices = nullptr;
};

struct ShownRow {
    RowId id;
    int number; // in the list, from 1
    int widget; // combo box or value entry of the cell, 0 for none
    Build build;
    Content content;     // as written last
    CellInput seen;      // as read right after that
    bool edited = false; // the user changed it: write it again whatever it should show
};

struct Sheet {
    int pane = 0;
    int panel = 0;
    int list = 0;
    int labelWidth = LABEL_WIDTH; // of the labels, as the user left it
    WidgetNode* widget = nullptr; // null: no rows
    std::vector<ShownRow> rows;
    std::string label = FALLBACK_LABEL; // of the selected row
    void (*edited)() = [] {};           // behind each change of the user
} sheet;

Sheet atHome; // the one in the pane, while it is lent

// ---- Rows that open an editor.

struct ButtonRow {
    RowId row;
    Editor editor;
    int iconPosition; // of a tree view's icons that the choice would replace; 0 for none
};
constexpr ButtonRow BUTTON_ROWS[] = {
    {ROW_CLOSE_ICON, Editor::CloseIcon, 2},
    {ROW_OPEN_ICON, Editor::OpenIcon, 3},
    {ROW_ICON, Editor::Icon, 1},
    {ROW_TAB_ICON, Editor::TabIcon, 0},
    {ROW_BACKGROUND_IMAGE, Editor::BackgroundImage, 0},
};

Editor editorOf(const WidgetNode& widget, const PropertyRow& row) {
    if (row.id == ROW_ENTRIES) return widget.type == TYPE_TREE_VIEW ? Editor::Tree : Editor::List;
    if (row.id == ROW_TEXT) return widget.subType == ORICHEDIT ? Editor::RichText : Editor::PlainText;
    return std::ranges::find(BUTTON_ROWS, row.id, &ButtonRow::row)->editor;
}

bool isDead(const WidgetNode& widget, const PropertyRow& row) {
    return cellKind(widget, row) == Cell::Button && !hooks.hasEditor(editorOf(widget, row));
}

// A button that leads nowhere: what can be typed is, the rest is grey.
bool isTyped(const WidgetNode& widget, const PropertyRow& row) {
    return row.edit && !(row.id == ROW_TEXT && widget.subType == ORICHEDIT);
}

Cell cellOf(const WidgetNode& widget, const PropertyRow& row) {
    return isDead(widget, row) && isTyped(widget, row) ? Cell::Text : cellKind(widget, row);
}

// ---- What a row is to show.

Build buildOf(const WidgetNode& widget, const PropertyRow& row) {
    return {cellOf(widget, row), numberFormat(widget, row), choicesOf(widget, row).data()};
}

bool sameBuild(const Build& a, const Build& b) {
    return a.kind == b.kind && a.choices == b.choices && a.format.width == b.format.width &&
           a.format.decimals == b.format.decimals && a.format.minimum == b.format.minimum &&
           a.format.maximum == b.format.maximum;
}

Content contentOf(const WidgetNode& widget, const PropertyRow& row) {
    Content content;
    content.enabled = !isGrey(widget, row) && (!isDead(widget, row) || isTyped(widget, row));
    switch (cellKind(widget, row)) {
    case Cell::Number: content.number = shownNumber(widget, row); break;
    case Cell::Colour:
        content.colour = shownColour(widget, row);
        if (content.colour == 0) content.text = row.unset;
        break;
    default: content.text = shownText(widget, row); break;
    }
    return content;
}

// ---- Making the cells.

void addEntries(int combo, const WidgetNode& widget, const PropertyRow& row) {
    const Choices entries = choicesOf(widget, row);
    for (size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].windowsOnly && project.projectPlatform != 'w') continue;
        const bool repeated = std::any_of(entries.begin(), entries.begin() + static_cast<long>(i),
                                          [&](const Choice& e) { return std::string(e.label) == entries[i].label; });
        if (!repeated) owSetListEntry(combo, OADD, owString, entries[i].label, 0);
    }
    if (row.id != ROW_X_LABELS && row.id != ROW_Y_LABELS) return;
    bool known = false;
    const std::string shown = shownText(widget, row);
    for (const char* label : {"Digits", "Letters", "Months", "Days"}) {
        owSetListEntry(combo, OADD, owString, label, 0);
        known |= shown == label;
    }
    if (!known) owSetListEntry(combo, OADD, owString, shown.c_str(), 0);
}

int makeCellWidget(const WidgetNode& widget, const PropertyRow& row, const Content& content) {
    constexpr int WIDTH = 200, HEIGHT = 20, LIST_HEIGHT = 320;
    const NumberFormat format = numberFormat(widget, row);
    switch (cellKind(widget, row)) {
    case Cell::Choice:
    case Cell::EditableChoice: {
        const bool fonts = row.id == ROW_FONT_FACE;
        const int display = cellKind(widget, row) == Cell::Choice ? ODISPLAY : OEDIT;
        const int combo = owCreateComboBox(sheet.list, 0, 0, WIDTH, LIST_HEIGHT, fonts ? OFONTS : ONONE, display, 0);
        addEntries(combo, widget, row);
        return combo;
    }
    case Cell::Number:
        if (format.maximum > format.minimum)
            return owCreateValueEntry(sheet.list, 0, 0, WIDTH, HEIGHT, content.number, format.width, format.decimals,
                                      OEDIT, owVmin, format.minimum, owVmax, format.maximum, 0);
        return owCreateValueEntry(sheet.list, 0, 0, WIDTH, HEIGHT, content.number, format.width, format.decimals, OEDIT,
                                  0);
    default: return 0;
    }
}

void writeCell(ShownRow& shown) {
    const Content& content = shown.content;
    const int status = content.enabled ? 1 : 0;
    switch (shown.build.kind) {
    case Cell::Number:
        owSetPropertySetting(sheet.list, shown.number, owPropertyValue, content.number, owPropertyStatus, status, 0);
        break;
    case Cell::Colour:
        if (content.text.empty())
            owSetPropertySetting(sheet.list, shown.number, owString, "", owBackCol, content.colour, owPropertyStatus,
                                 status, 0);
        else
            owSetPropertySetting(sheet.list, shown.number, owString, content.text.c_str(), owPropertyStatus, status, 0);
        break;
    default:
        owSetPropertySetting(sheet.list, shown.number, owString, content.text.c_str(), owPropertyStatus, status, 0);
        break;
    }
}

CellInput readCell(const ShownRow& shown) {
    CellInput input;
    if (shown.build.kind == Cell::Number) {
        owEnqValueSettingDouble(shown.widget, &input.number);
        return input;
    }
    char text[NAME_LIMIT + 1] = "";
    owEnqPropertySetting(sheet.list, shown.number, owLength, static_cast<int>(sizeof text), owString, text, 0);
    input.text = text;
    return input;
}

bool sameInput(const CellInput& a, const CellInput& b) { return a.text == b.text && a.number == b.number; }

void fillCell(ShownRow& shown, const WidgetNode& widget) {
    shown.content = contentOf(widget, propertyRow(shown.id));
    shown.edited = false;
    writeCell(shown);
    shown.seen = readCell(shown);
}

int listKind(Cell cell) {
    switch (cell) {
    case Cell::Text: return OPROPTEXT;
    case Cell::Button:
    case Cell::Colour: return OPROPBUTTON;
    case Cell::Choice:
    case Cell::EditableChoice: return OPROPCOMBO;
    case Cell::Number: return OPROPVALUE;
    }
    return OPROPTEXT;
}

void addRow(const WidgetNode& widget, RowId id) {
    const PropertyRow& row = propertyRow(id);
    ShownRow shown{.id = id, .number = 0, .widget = 0, .build = buildOf(widget, row), .content = {}, .seen = {}};
    shown.widget = makeCellWidget(widget, row, contentOf(widget, row));
    const int kind = listKind(shown.build.kind);
    const bool typed =
        row.edit && shown.build.kind != Cell::Colour; // a name of an icon may also be typed beside its button
    shown.number = shown.widget ? owAddPropertyToList(sheet.list, kind, row.label, owPropertyWidget, shown.widget, 0)
                                : owAddPropertyToList(sheet.list, kind, row.label, owReadOnly, typed ? 0 : 1, 0);
    fillCell(shown, widget);
    sheet.rows.push_back(std::move(shown));
}

void makeList() {
    int width = 0, height = 0;
    owEnqWidgetProp(sheet.panel, owWidth, &width, owHeight, &height, 0);
    sheet.list = owCreatePropertyList(sheet.panel, 0, 0, width, height, owColumnWidth, sheet.labelWidth, owRowHeight,
                                      preferences.codePointSize + 2 * ROW_MARGIN, owExpand, 1, owVpos, OMIDDLE, owHpos,
                                      OCENTRE, owSelectCallback, CMD_PROPERTY_SELECTED, owCallback, CMD_PROPERTY_BUTTON,
                                      owChangeCallback, CMD_PROPERTY_CHANGED, 0);
}

void eraseList() {
    sheet.rows.clear();
    if (sheet.list) {
        owEnqWidgetProp(sheet.list, owColumnWidth, &sheet.labelWidth, 0);
        owEraseWidget(sheet.list);
    }
    sheet.list = 0;
}

void setTitle(const char* title) {
    if (sheet.pane) owSetWidgetProp(sheet.pane, owTitle, title, 0);
}

// The label area of an array as the live widget has it.
void fetchLabelArea(WidgetNode& array) {
    if (array.handle <= 0) return;
    owEnqWidgetProp(array.handle, owAxisW, &array.yLabelsWidth, owAxisH, &array.xLabelsHeight, 0);
}

void selectRow(const std::string& label) {
    int number = owPropertyItemNumber(sheet.list, label.c_str());
    if (number == 0) {
        sheet.label = FALLBACK_LABEL;
        number = owPropertyItemNumber(sheet.list, FALLBACK_LABEL);
    }
    if (number > 0) owSelectProperty(sheet.list, number);
}

std::string currentLabel() {
    char label[NAME_LIMIT + 1] = "";
    owEnqPropertySetting(sheet.list, 0, owLength, static_cast<int>(sizeof label), owPropertyLabel, label, 0);
    return label;
}

// True when the list still fits the widget and only its cells have to follow.
bool listFits(const WidgetNode& widget) {
    const std::vector<RowId> rows = sheetOf(widget);
    if (rows.size() != sheet.rows.size()) return false;
    for (size_t i = 0; i < rows.size(); ++i) {
        const ShownRow& shown = sheet.rows[i];
        if (shown.id != rows[i] || !sameBuild(shown.build, buildOf(widget, propertyRow(rows[i])))) return false;
    }
    return true;
}

void refreshProperties() {
    if (!sheet.widget) return;
    WidgetNode& widget = *sheet.widget;
    if (!listFits(widget)) return showProperties(&widget);
    for (ShownRow& shown : sheet.rows)
        if (shown.edited || !(contentOf(widget, propertyRow(shown.id)) == shown.content)) fillCell(shown, widget);
}

// ---- Changes of the user.

struct Change {
    RowId id;
    CellInput input;
};

std::vector<Change> takeChanges() {
    std::vector<Change> changes;
    for (ShownRow& shown : sheet.rows) {
        const CellInput now = readCell(shown);
        if (sameInput(now, shown.seen)) continue;
        shown.edited = true;
        changes.push_back({shown.id, now});
    }
    return changes;
}

// The value of a chosen entry; false for a text that is none.
bool resolveChoice(const WidgetNode& widget, const PropertyRow& row, CellInput& input) {
    return row.cell != Cell::Choice || valueOf(choicesOf(widget, row), input.text, input.value);
}

bool keepsValue(const WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    if (!row.onlyChanges || !row.whole) return false;
    const int value = row.cell == Cell::Number ? static_cast<int>(input.number) : input.value;
    return target.*row.whole == value;
}

void applyChange(WidgetNode& widget, const PropertyRow& row, CellInput input) {
    if (isGrey(widget, row) || !resolveChoice(widget, row, input) || !isSane(row, input)) return;
    WidgetNode& target = targetOf(widget, row);
    if (keepsValue(target, row, input)) return;
    if (row.edit)
        row.edit(target, row, input);
    else
        storeAndFollow(target, row, input);
}

void chooseColour(WidgetNode& widget, const PropertyRow& row) {
    ORGBSTY rgb = {};
    oEnqRGB(shownColour(widget, row), &rgb);
    if (!owColourControl(&rgb.red, &rgb.green, &rgb.blue)) return;
    WidgetNode& target = targetOf(widget, row);
    row.edit(target, row, {.text = {}, .value = colourIndex(rgb.red, rgb.green, rgb.blue, false)});
}

void openEditorOf(WidgetNode& widget, const PropertyRow& row) {
    if (isDead(widget, row)) return;
    if (row.id == ROW_TEXT) owAdoptChild(0, 0, 0);
    const auto button = std::ranges::find(BUTTON_ROWS, row.id, &ButtonRow::row);
    const int icon = button == std::end(BUTTON_ROWS) ? 0 : button->iconPosition;
    if (widget.type == TYPE_TREE_VIEW && icon > 0 && !mayReplaceEntryIcons(widget, icon)) return;
    hooks.openEditor(editorOf(widget, row), widget);
}

} // namespace

void buildPropertySheet(int pane, int panel) {
    sheet = {};
    sheet.pane = pane;
    sheet.panel = panel;
    makeList();
    hooks.showProperties = showProperties;
    hooks.refreshProperties = refreshProperties;
}

void showProperties(WidgetNode* widget) {
    if (!sheet.panel) return;
    sheet.widget = widget;
    eraseList();
    makeList();
    const bool group = groupStands();
    setTitle(widget ? "Properties" : group ? "Widget group selected" : "No widget selected");
    if (widget) {
        if (isArray(*widget) && !design.defaultsMode) fetchLabelArea(*widget);
        for (const RowId id : sheetOf(*widget)) addRow(*widget, id);
        selectRow(sheet.label);
    }
    owDrawWidget(sheet.list);
}

void lendSheet(int panel, void (*edited)()) {
    showProperties(nullptr);
    atHome = std::exchange(sheet, Sheet());
    sheet.panel = panel;
    sheet.edited = edited;
    makeList();
}

void returnSheet() {
    eraseList();
    sheet = std::exchange(atHome, Sheet());
}

const std::string& selectedPropertyLabel() { return sheet.label; }
bool sheetHolds(int widget) {
    return widget == sheet.list || std::ranges::find(sheet.rows, widget, &ShownRow::widget) != sheet.rows.end();
}
int propertyList() { return sheet.list; }

namespace {

void propertySelectedCommand() {
    design.helpContext = "Properties Box";
    const std::string label = currentLabel();
    if (!label.empty()) sheet.label = label;
    if (!sheet.widget || project.gridMode != 1 || !isArray(*sheet.widget)) return;
    storeArrayGeometry(*sheet.widget);
    applyArrayGeometry(*sheet.widget);
}

void propertyChangedCommand() {
    if (!sheet.widget) return;
    owAdoptChild(0, 0, 0);
    WidgetNode* widget = sheet.widget;
    for (const Change& change : takeChanges()) {
        sheet.label = propertyRow(change.id).label;
        nameStep(sheet.label + " of " + widget->name,
                 "cell " + std::to_string(widget->id) + " " + std::to_string(static_cast<int>(change.id)));
        applyChange(*widget, propertyRow(change.id), change.input);
        if (sheet.widget != widget) break;
    }
    refreshProperties();
    sheet.edited();
    if (!design.defaultsMode && project.currentWidget) adoptWidget(*project.currentWidget);
}

void propertyButtonCommand() {
    if (!sheet.widget) return;
    WidgetNode& widget = *sheet.widget;
    sheet.label = currentLabel();
    const auto shown =
        std::ranges::find_if(sheet.rows, [](const ShownRow& row) { return sheet.label == propertyRow(row.id).label; });
    if (shown == sheet.rows.end() || !shown->content.enabled) return;
    const PropertyRow& row = propertyRow(shown->id);
    if (row.cell == Cell::Colour) {
        chooseColour(widget, row);
        refreshProperties();
        sheet.edited();
    } else {
        openEditorOf(widget, row);
    }
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_PROPERTY_SELECTED, .handler = propertySelectedCommand},
    {.id = CMD_PROPERTY_BUTTON, .handler = propertyButtonCommand},
    {.id = CMD_PROPERTY_CHANGED, .handler = propertyChangedCommand},
    {.id = CMD_FONT_FACE, .handler = propertyChangedCommand},
    {.id = CMD_POINT_SIZE, .handler = propertyChangedCommand},
};
// clang-format on

} // namespace

std::span<const Command> propertyCommands() { return COMMANDS; }
