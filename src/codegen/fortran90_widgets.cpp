// The creation statements of Fortran 90. A statement is put together keyword by keyword and written split; keywords
// that tell the toolkit's own default are left out.

#include "codegen/fortran90.h"
#include "codegen/quotes.h"

#include <string>

namespace {

// --- Pieces that many statements share.

// ", keyword=number" unless the number is the toolkit's own.
void addNumber(Generation& g, std::string_view keyword, int value, int standard) {
    if (value != standard) add(g, ", %s=%d", keyword, value);
}

void addSwitch(Generation& g, std::string_view keyword, bool on) {
    if (on) add(g, ", %s=OON", keyword);
}

void addColours(Generation& g, const WidgetNode& node) {
    addNumber(g, "owOnCol", node.colour1, 0);
    addNumber(g, "owOffCol", node.colour2, 0);
    addNumber(g, "owTextCol", node.colour3, 1);
}

void addHelp(Generation& g, const WidgetNode& node) {
    if (node.bubbleHelp.empty()) return;
    add(g, ", owHelp='%s'", fortranText(node.bubbleHelp));
    addNamed(g, "owHelpJustify", HELP_SIDE, node.helpJustify);
}

void addTab(Generation& g, const WidgetNode& node) { addNamed(g, "owTabList", OFF_ON, node.tabList); }

void addScroll(Generation& g, const WidgetNode& node) {
    if (g.windows) add(g, ", owScrollMode=%s", nameOf(SCROLL_BARS, node.scrollMode, "ONOBARS"));
}

void addBoundary(Generation& g, std::string_view keyword, int boundary) {
    add(g, ", %s=%s", keyword, nameOf(BOUNDARY, boundary, NO_BOUNDARY));
}

void addContents(Generation& g, const WidgetNode& node) { add(g, ", %s", nameOf(CONTENTS, node.contents, "ONONE")); }

// "   name = routine(parent, x, y, width, height"
void beginCreation(Generation& g, const Placed& w, std::string_view routine) {
    add(g, "   %s = %s(%s, %d, %d, %d, %d", w.node.name, routine, w.parent, w.node.xpos, w.node.ypos, w.width,
        w.height);
}

// Text widgets spell their styles as numbers, all others as OON. A value widget's charSet is no character set.
void writeFont(Generation& g, const Placed& w) {
    if (!needsFont(g, w)) return;
    const WidgetNode& node = w.node;
    const bool numbers = isPlainText(node);
    add(g, "   call owSetFontAttribs(%s", node.name);
    if (!hasStandardFace(node)) add(g, ", owFontFace='%s', owPointSize=%d", fortranText(node.fontFace), node.pointSize);
    const auto addStyle = [&](std::string_view keyword, int style) {
        if (numbers) {
            addNumber(g, keyword, style, 0);
        } else {
            addSwitch(g, keyword, style != 0);
        }
    };
    addStyle("owBold", node.bold);
    addStyle("owItalic", node.italic);
    addStyle("owUnderline", node.underline);
    addStyle("owStrikeout", node.strikeout);
    if (node.type != TYPE_VALUE_ENTRY && node.type != TYPE_VALUE_LABEL) {
        addNamed(g, "owCharSet", CHARACTER_SET, node.charSet);
    }
    endStatement(g);
}

// --- Widgets.

void createToolButton(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    add(g, "   %s = owCreateToolBarButton(%s, OTEXTBUTTON, '%s'", node.name, w.parent, fortranText(node.text));
    addSwitch(g, "owDragMode", node.dragMode == 1);
    addHelp(g, node);
    addTab(g, node);
    endStatement(g);
    writeFont(g, w);
    write(g, "   call owSetWidgetProp(%s, owOnCol=%d, owOffCol=%d, owTextCol=%d)\n", node.name, node.colour1,
          node.colour2, node.colour3);
}

void createButton(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    if (node.onToolbar == 1) return createToolButton(g, w);
    beginCreation(g, w, "owCreatePushButton");
    add(g, ", '%s'", fortranText(node.text));
    addNamed(g, "owType", BUTTON_TYPE, node.subType);
    addNamed(g, "owJustify", LEFT_RIGHT, node.justify);
    addSwitch(g, "owDragMode", node.dragMode == 1);
    addNumber(g, "owSize", node.size, 100);
    addNumber(g, "owAccel", node.accel, 0);
    if (node.subType == 1) addColours(g, node);
    addPosition(g, node);
    addHelp(g, node);
    addTab(g, node);
    endStatement(g);
    writeFont(g, w);
}

void createToggle(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreateToggleButton");
    add(g, ", '%s', %d", fortranText(node.text), node.initialStatus);
    add(g, ", owType=%s", nameOf(TOGGLE_TYPE, node.subType, "OBEVELSQUARE"));
    addNumber(g, "owSize", node.size, 100);
    addNumber(g, "owAccel", node.accel, 0);
    addColours(g, node);
    addPosition(g, node);
    addHelp(g, node);
    addTab(g, node);
    endStatement(g);
    writeFont(g, w);
}

void addTextScroll(Generation& g, const WidgetNode& node) {
    if (g.windows && nameOf(SCROLL_BARS, node.scrollMode) == "OVERTICAL") {
        add(g, " ,owScrollMode=OVERTICAL"); // the blank stands ahead of the comma on text widgets
    } else {
        addScroll(g, node);
    }
}

void createText(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    const bool editable = node.type == TYPE_TEXT_ENTRY;
    beginCreation(g, w, "owCreateTextEntry");
    add(g, ",'%s '", fortranText(fieldText(node)));
    add(g, ", %d, %s", node.fieldWidth, editable ? "OEDIT" : "ODISPLAY");
    addNamed(g, "owEntryType", ENTRY_TYPE, node.subType);
    addNumber(g, "owSize", node.size, 100);
    addNamed(g, "owJustify", CENTRE_RIGHT, node.justify);
    if (node.oleInserts == 0) add(g, ", owOLEInserts=OOFF");
    addSwitch(g, "owAutoURL", node.autoUrl == 1);
    add(g, ", owBack1Col=%d, owBack2Col=%d, owTextCol=%d", node.colour1, node.colour2, node.colour3);
    addTextScroll(g, node);
    if (g.windows) addNamed(g, "owBorderType", ENTRY_BORDER, node.borderType);
    addPosition(g, node);
    addSwitch(g, "owReadOnly", editable && node.readOnly == 1);
    addHelp(g, node);
    addTab(g, node);
    endStatement(g);
    writeFont(g, w);
}

void createValue(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    const bool editable = node.type == TYPE_VALUE_ENTRY;
    beginCreation(g, w, "owCreateValueEntry");
    add(g, ", %#g, %d, %d, %s", node.value, node.fieldWidth, node.format, editable ? "OEDIT" : "ODISPLAY");
    if (editable) add(g, ", owVmin=%#g, owVmax=%#g", node.minValue, node.maxValue);
    add(g, ", owType=%s", nameOf(VALUE_TYPE, node.subType, "ODECIMAL"));
    addNamed(g, "owSign", VALUE_SIGN, node.sign);
    addNumber(g, "owSize", node.size, 100);
    addNamed(g, "owJustify", CENTRE_RIGHT, node.justify);
    add(g, ", owBack1Col=%d, owBack2Col=%d, owTextCol=%d", node.colour1, node.colour2, node.colour3);
    if (g.windows && editable) addNamed(g, "owBorderType", ENTRY_BORDER, node.borderType);
    if (node.charSet == 1) add(g, ", owCharSet=OALPHANUMERIC");
    addPosition(g, node);
    addSwitch(g, "owReadOnly", editable && node.readOnly == 1);
    addHelp(g, node);
    addTab(g, node);
    endStatement(g);
    writeFont(g, w);
}

void beginToolIcon(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    add(g, "   %s = owCreateToolBarButton(%s, OICONBUTTON, '%s'", node.name, w.parent, toolPicture(node).image);
    const std::string_view type = nameOf(ICON_TYPE, node.subType);
    if (type == "OBUTTON") {
        add(g, ", owIconType=%s", type);
    } else if (!type.empty()) {
        add(g, " ,owIconType=%s", type);
    }
    if (node.dragMode == 1) add(g, " ,owDragMode=OON");
}

void beginIcon(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    const Picture picture = iconPicture(g, node);
    beginCreation(g, w, "owCreateIcon");
    add(g, ",'%s', %d, %d", picture.image, picture.kind, node.iconId);
    addNamed(g, "owType", ICON_TYPE, node.subType);
    addSwitch(g, "owDragMode", node.dragMode == 1);
    addNumber(g, "owSize", node.size, 100);
    if (!node.text.empty()) add(g, ", owLabel='%s'", fortranText(node.text));
    addPosition(g, node);
}

void createIcon(Generation& g, const Placed& w) {
    if (w.node.onToolbar == 1) {
        beginToolIcon(g, w);
    } else {
        beginIcon(g, w);
    }
    addHelp(g, w.node);
    addTab(g, w.node);
    endStatement(g);
    if (!w.node.text.empty()) writeFont(g, w);
}

void addListAttributes(Generation& g, const WidgetNode& node) {
    addNamed(g, "owSort", LIST_SORT, node.sorted);
    addSwitch(g, "owUseIcons", node.displayIcons == 1);
    if (node.fieldWidth > 0) add(g, ", owDescWidth=%d", node.fieldWidth);
}

void createListBox(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreateListBox");
    addContents(g, node);
    addNamed(g, "owType", LIST_TYPE, node.subType);
    addNamed(g, "owStyle", LIST_STYLE, node.approxSize);
    addListAttributes(g, node);
    addPosition(g, node);
    add(g, ", owOffCol=%d, owOnCol=%d, owTextCol=%d", node.colour1, node.colour2, node.colour3);
    addHelp(g, node);
    addTab(g, node);
    endStatement(g);
    writeFont(g, w);
    writeListEntries(g, node, g.language.listComment);
}

void createComboBox(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreateComboBox");
    addContents(g, node);
    add(g, ", %d", node.editMode);
    addListAttributes(g, node);
    addPosition(g, node);
    addHelp(g, node);
    addTab(g, node);
    endStatement(g);
    writeFont(g, w);
    if (!hasListEntries(node)) return;
    writeListEntries(g, node, g.language.comboComment);
    write(g, "\n! Select first entry in list for display\n");
    write(g, "   call owSetListEntry(%s,OSELECT,owEntry=1)\n", node.name);
}

void createSlider(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreateSlider");
    add(g, ", %f, %f, %f, %f", node.minValue, node.maxValue, node.stepValue, node.value);
    add(g, ", owType=%s", nameOf(SLIDER_TYPE, node.subType, "OHORIZONTAL"));
    addNumber(g, "owSize", node.size, 100);
    add(g, ", owBackCol=%d", node.colour3);
    addPosition(g, node);
    endStatement(g);
    write(g, "\n! Set correct width/height for %s\n", node.name);
    write(g, "   call owEnqWidgetInfo(%s,Slider_attribs)\n", node.name);
    write(g, "      Slider_attribs%%width = %d\n", node.width);
    write(g, "      Slider_attribs%%height = %d\n", node.height);
    write(g, "   call owSetWidgetInfo(%s,Slider_attribs)\n", node.name);
}

void createPanel(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreatePanel");
    if (node.titleFlag != 0 && node.scrollMode == -1) add(g, ", owTitle='%s'", fortranText(node.text));
    addBoundary(g, "owType", node.subType);
    addBorder(g, node);
    addBackgroundImage(g, node);
    if (g.windows) addIconResource(g, "owIcon", node.closeIcon);
    addScroll(g, node);
    addPosition(g, node);
    addHelp(g, node);
    addTab(g, node);
    endStatement(g);
    writeFont(g, w);
}

void createRadioBox(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreateRadioBox");
    add(g, ", owType=OFREEFORM");
    addBoundary(g, "owBorderType", node.borderType);
    addBorder(g, node);
    if (node.titleFlag != 0) add(g, ", owTitle='%s'", fortranText(node.text));
    addPosition(g, node);
    addHelp(g, node);
    endStatement(g);
}

void createGraphicsFrame(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreateGraphicsFrame");
    add(g, ", &\n");
    writeStatementSplit(g);
    add(g, "         OLIMIT(%f, %f, %f, %f)", node.xMin, node.xMax, node.yMin, node.yMax);
    if (g.windows) add(g, ", owFrameType=%s", node.subType == FRAME_OPENGL ? "OOPENGL" : "OGDI");
    addPosition(g, node);
    addHelp(g, node);
    endStatement(g);
}

void writeCells(Generation& g, const WidgetNode& node) {
    add(g, "   call owEnqCellAttribs(%s, 1, 1, arrayattribs)\n", node.name);
    writeStatementSplit(g);
    for (const CellSize& cell : cellSizes(node)) {
        if (cell.changed) {
            write(g, "   arrayattribs%%width=%d\n", cell.width);
            write(g, "   arrayattribs%%height=%d\n", cell.height);
        }
        add(g, "   call owSetCellAttribs(%s, %d, %d, arrayattribs)\n", node.name, cell.column, cell.row);
        writeStatementSplit(g);
    }
}

void createArray(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, node.type == TYPE_TEXT_ARRAY ? "owCreateTextArray" : "owCreateValueArray");
    add(g, ", %d, %d, owAxisW=%d, owAxisH=%d, owXtext='%s', owYtext='%s'", node.columns, node.rows, node.yLabelsWidth,
        node.xLabelsHeight, fortranText(node.xLabels), fortranText(node.yLabels));
    addNamed(g, "owXjust", LEFT_CENTRE_RIGHT, node.alignXLabels);
    addNamed(g, "owYjust", LEFT_CENTRE_RIGHT, node.alignYLabels);
    if (g.windows) {
        addScroll(g, node);
        addBoundary(g, "owBorderType", node.subType);
        addNumber(g, "owAxisBackColour", node.colour1, 12);
        addNumber(g, "owXtextColour", node.colour3, 1);
        addNumber(g, "owYtextColour", node.colour4, 1);
        addNumber(g, "owGridBackColour", node.cellBackground, 0);
        addNumber(g, "owCellBorderColour", node.cellBorder, 0);
        addNumber(g, "owCellBorderLineType", node.borderType, 2);
        addNumber(g, "owSelectedCellColour", node.colour2, 0);
    }
    addPosition(g, node);
    addHelp(g, node);
    addTab(g, node);
    addNamed(g, "owTabAction", TAB_ACTION, node.tabAction);
    addSwitch(g, "owReadOnly", node.readOnly == 1);
    endStatement(g);
    writeCells(g, w.node);
    writeFont(g, w);
}

// Tool bars and panes end alike.
void endDocked(Generation& g, const WidgetNode& node) {
    addNamed(g, "owQuitMode", QUIT_MODE, node.quitMode);
    const std::string_view title = nameOf(DOCK_TITLE, node.titleFlag);
    if (!title.empty()) add(g, ", owTitleFlag=%s, owTitle='%s'", title, fortranText(node.text));
    endStatement(g);
}

// The two upright sides have their blank ahead of the comma.
void addDockSide(Generation& g, std::string_view side) {
    add(g, side == "OBOTTOM" || side == "OTOP" ? ", %s" : " ,%s", side);
}

void createToolBar(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    add(g, "   %s = owCreateToolBar(%s", node.name, w.parent);
    addDockSide(g, nameOf(DOCK_SIDE, node.initialPosition, "OTOP"));
    add(g, ", %d", node.iconSize);
    endDocked(g, node);
    if (node.initialPosition != FLOATING) return;
    add(g, "   call owSetToolbarPos(%s, %d, %d, %d, %d)\n", node.name, node.xpos, node.ypos, node.width,
        node.initialPosition);
    writeStatementSplit(g);
}

void createPane(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    add(g, "   %s = owCreateDockingPane(%s", node.name, w.parent);
    addDockSide(g, node.initialPosition == FLOATING ? "OFLOATING" : nameOf(DOCK_SIDE, node.initialPosition, "OTOP"));
    add(g, ", %d, %d, %d, %d", node.xpos, node.ypos, node.width, node.height);
    endDocked(g, node);
}

void createToolSeparator(Generation& g, const Placed& w) {
    add(g, "   %s = owCreateToolBarSeparator(%s", w.node.name, w.parent);
    addNamed(g, "owSeparatorType", SEPARATOR_TYPE, w.node.subType);
    endStatement(g);
}

void createTabBox(Generation& g, const Placed& w) {
    beginCreation(g, w, "owCreateTabDialogueBox");
    addPosition(g, w.node);
    endStatement(g);
    writeFont(g, w);
}

void createGauge(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreateGauge");
    add(g, ", '%s', owMinimum=%d, owMaximum=%d, owIntValue=%d, owTicks1=%d, owTicks2=%d", node.icon,
        wholeNumber(node.minValue), wholeNumber(node.maxValue), wholeNumber(node.value), node.topTicks,
        node.bottomTicks);
    addNamed(g, "owAccess", GAUGE_ACCESS, node.accessMode);
    addPosition(g, node);
    addHelp(g, node);
    addTab(g, node);
    endStatement(g);
}

void createProgressBar(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreateProgressBar");
    add(g, ", owMinimum=%d, owMaximum=%d, owIntValue=%d", wholeNumber(node.minValue), wholeNumber(node.maxValue),
        wholeNumber(node.value));
    addNamed(g, "owProgressType", PROGRESS_TYPE, node.subType);
    addPosition(g, node);
    addHelp(g, node);
    endStatement(g);
}

void createTtyEntry(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreateTTYEntry");
    add(g, ", %d,'%s '", node.size, fortranText(fieldText(node)));
    if (!node.icon.empty()) add(g, ", owPrompt='%s'", fortranText(node.icon));
    addSwitch(g, "owReadOnly", node.readOnly == 1);
    addColours(g, node);
    addPosition(g, node);
    addHelp(g, node);
    endStatement(g);
    writeFont(g, w);
}

void createTreeView(Generation& g, const Placed& w) {
    beginCreation(g, w, "owCreateTreeViewBox");
    addNamed(g, "owIconSet", TREE_ICONS, w.node.subType);
    addPosition(g, w.node);
    endStatement(g);
    writeTreeEntries(g, w.node);
    writeFont(g, w);
}

void createTableBox(Generation& g, const Placed& w) {
    beginCreation(g, w, "owCreateTableBox");
    addPosition(g, w.node);
    endStatement(g);
    for (const TableColumn& column : tableColumns(w.node)) {
        add(g, "   call owAddTableBoxColumn(%s, %d, %d", w.node.name, column.number, column.width);
        if (column.labelled) add(g, ", owLabel='%s'", fortranText(column.label));
        endStatement(g);
    }
    writeFont(g, w);
}

constexpr CreationRow CREATION[] = {
    {TYPE_FORM, createFreeForm},
    {TYPE_MAIN_PANEL, createFreeMainPanel},
    {TYPE_BUTTON, createButton},
    {TYPE_TOGGLE, createToggle},
    {TYPE_TEXT_ENTRY, createText},
    {TYPE_TEXT_LABEL, createText},
    {TYPE_VALUE_ENTRY, createValue},
    {TYPE_VALUE_LABEL, createValue},
    {TYPE_ICON, createIcon},
    {TYPE_LIST_BOX, createListBox},
    {TYPE_SLIDER, createSlider},
    {TYPE_PANEL, createPanel},
    {TYPE_COMBO_BOX, createComboBox},
    {TYPE_RADIO_BOX, createRadioBox},
    {TYPE_GRAPHICS_FRAME, createGraphicsFrame},
    {TYPE_TEXT_ARRAY, createArray},
    {TYPE_VALUE_ARRAY, createArray},
    {TYPE_TOOL_BAR, createToolBar},
    {TYPE_TAB_BOX, createTabBox},
    {TYPE_GAUGE, createGauge},
    {TYPE_PROGRESS_BAR, createProgressBar},
    {TYPE_TTY_ENTRY, createTtyEntry},
    {TYPE_TREE_VIEW, createTreeView},
    {TYPE_TABLE_BOX, createTableBox},
    {TYPE_TOOL_SEPARATOR, createToolSeparator},
    {TYPE_PANE, createPane},
};

} // namespace

const std::span<const CreationRow> FORTRAN_90_CREATION = CREATION;

void addPosition(Generation& g, const WidgetNode& node) {
    addNamed(g, "owHpos", HORIZONTAL_ORIGIN, node.hpos);
    addNamed(g, "owVpos", VERTICAL_ORIGIN, node.vpos);
    if (node.expand == 1) add(g, ", owExpand=OON");
    if (node.expand > 1) add(g, ", owExpand=%d", node.expand);
}

void addBorder(Generation& g, const WidgetNode& node) {
    addNumber(g, "owLineCol", node.colour1, 0);
    if (node.colour2 == 0) add(g, ", owLineBorder=OOUTEREDGE");
    addNumber(g, "owFillCol", node.colour3, 0);
    if (node.colour4 == 0) add(g, ", owFillBorder=OOUTEREDGE");
}

void addBackgroundImage(Generation& g, const WidgetNode& node) {
    if (g.windows && node.format == 1) add(g, ", owImage='%s'", node.backgroundImage);
}

void endStatement(Generation& g) {
    add(g, ")\n");
    writeStatementSplit(g);
}

void addIconResource(Generation& g, std::string_view keyword, std::string_view icon) {
    if (!icon.empty()) add(g, ", %s=owGetIconResource('%s')", keyword, iconResourceName(icon));
}

// Only a tree whose icons are the user's own takes them from its entries.
void writeFreeTreeEntry(Generation& g, const WidgetNode& tree, const MenuEntryRec& entry, std::string_view parent) {
    add(g, "   %s = owCreateTreeEntry(%s, OLASTCHILD, '%s'", entry.name, parent, fortranText(entry.label));
    if (tree.subType == TREE_OWN_ICONS) {
        addIconResource(g, "owIcon", entry.icon1);
        addIconResource(g, "owCloseIcon", entry.icon2);
        addIconResource(g, "owOpenIcon", entry.icon3);
    }
    endStatement(g);
}

void writeFreeListEntry(Generation& g, const WidgetNode& list, const ListEntryRec& entry) {
    add(g, "   call owSetListEntry(%s, OADD, owString='%s'", list.name, fortranText(entry.text));
    if (!entry.icon.empty()) add(g, ",owIcon=owGetIconResource('%s')", iconResourceName(entry.icon));
    endStatement(g);
}
