// The creation statements of C. They are written piece by piece with line ends at fixed places, and values that are
// the toolkit's own are mostly written all the same.

#include "codegen/c_language.h"
#include "codegen/quotes.h"

#include <string>

namespace {

// --- Pieces that many statements share.

void writeSwitch(Generation& g, std::string_view keyword, bool on) {
    if (on) write(g, ", %s,OON", keyword);
}

void writeSize(Generation& g, const WidgetNode& node) {
    if (node.size != 100) write(g, ", owSize,%d", node.size);
}

void writeHelpSide(Generation& g, const WidgetNode& node) {
    writeNamed(g, "owHelpJustify", HELP_SIDE, node.helpJustify);
}

// Behind the first line of a statement. Without a side there is no line end, and the next piece follows at once.
void writeHelp(Generation& g, const WidgetNode& node) {
    if (!node.bubbleHelp.empty()) {
        write(g, CONTINUATION);
        write(g, ",owHelp,\"%s\"", cText(node.bubbleHelp));
    }
    writeHelpSide(g, node);
    if (!nameOf(HELP_SIDE, node.helpJustify).empty()) write(g, "\n");
}

// Closes nearly every statement.
void writeTail(Generation& g, const WidgetNode& node) {
    writeOrigin(g, node);
    if (node.expand == 1) write(g, ", owExpand,OON");
    if (node.expand > 1) write(g, ", owExpand,%d", node.expand);
    write(g, ", 0);\n");
}

void writeTab(Generation& g, const WidgetNode& node) { writeNamed(g, "owTabList", OFF_ON, node.tabList); }

void writeScroll(Generation& g, const WidgetNode& node) {
    if (g.windows) write(g, ", owScrollMode,%s", nameOf(SCROLL_BARS, node.scrollMode, "ONOBARS"));
}

// The last boundary has its blank ahead of the comma on panels and arrays.
void writeBoundary(Generation& g, std::string_view keyword, int boundary, bool blankAhead) {
    const std::string_view name = nameOf(BOUNDARY, boundary, NO_BOUNDARY);
    write(g, blankAhead && name == "OINVERSECHISEL" ? " ,%s,%s\n" : ", %s,%s\n", keyword, name);
}

// "   name = routine(parent, x, y, width, height"
void beginCreation(Generation& g, const Placed& w, std::string_view routine) {
    write(g, "   %s = %s(%s, %d, %d, %d, %d", w.node.name, routine, w.parent, w.node.xpos, w.node.ypos, w.width,
          w.height);
}

void writeCharacterSet(Generation& g, const WidgetNode& node) {
    writeNamed(g, "owCharSet", CHARACTER_SET, node.charSet);
}

void writeTextFont(Generation& g, const WidgetNode& node) {
    if (!hasStandardFace(node)) write(g, ", owFontFace,\"%s\", owPointSize,%d", cText(node.fontFace), node.pointSize);
    writeSwitch(g, "owBold", node.bold != 0);
    writeSwitch(g, "owItalic", node.italic != 0);
    writeSwitch(g, "owUnderline", node.underline != 0);
    writeSwitch(g, "owStrikeout", node.strikeout != 0);
    writeCharacterSet(g, node);
}

void writeOtherFont(Generation& g, const WidgetNode& node) {
    if (!hasStandardFace(node)) write(g, " ,owFontFace,\"%s\" ,owPointSize,%d", cText(node.fontFace), node.pointSize);
    const auto writeStyle = [&](std::string_view keyword, int style) {
        if (style != 0) write(g, " ,%s,%d", keyword, style);
    };
    writeStyle("owBold", node.bold);
    writeStyle("owItalic", node.italic);
    writeStyle("owUnderline", node.underline);
    writeStyle("owStrikeout", node.strikeout);
    if (node.type != TYPE_VALUE_ENTRY && node.type != TYPE_VALUE_LABEL) writeCharacterSet(g, node);
}

void writeFont(Generation& g, const Placed& w) {
    if (!needsFont(g, w)) return;
    write(g, "   owSetFontAttribs(%s", w.node.name);
    if (isPlainText(w.node)) {
        writeTextFont(g, w.node);
    } else {
        writeOtherFont(g, w.node);
    }
    write(g, ", 0);\n");
}

// --- Widgets.

// Tool bar buttons and icons have their help inside the statement and are closed alike.
void endToolButton(Generation& g, const WidgetNode& node) {
    writeSwitch(g, "owDragMode", node.dragMode == 1);
    if (!node.bubbleHelp.empty()) write(g, ", owHelp,\"%s\"", cText(node.bubbleHelp));
    writeHelpSide(g, node);
    writeTab(g, node);
    write(g, ", 0);\n");
}

void createToolButton(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    write(g, "   %s = owCreateToolBarButton(%s, ", node.name, w.parent);
    write(g, "OTEXTBUTTON,\"%s\"\n", cText(node.text));
    write(g, CONTINUATION);
    endToolButton(g, node);
    writeFont(g, w);
    write(g, "   owSetWidgetProp(%s, owOnCol,%d, owOffCol,%d, owTextCol,%d,0);\n", node.name, node.colour1,
          node.colour2, node.colour3);
}

void createButton(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    if (node.onToolbar == 1) return createToolButton(g, w);
    beginCreation(g, w, "owCreatePushButton");
    write(g, ", \"%s\"\n", cText(node.text));
    writeHelp(g, node);
    write(g, CONTINUATION);
    write(g, ", owType,%s", nameOf(BUTTON_TYPE, node.subType, "OSTANDARD"));
    writeSwitch(g, "owDragMode", node.dragMode == 1);
    writeNamed(g, "owJustify", LEFT_RIGHT, node.justify);
    writeSize(g, node);
    write(g, ", owAccel,%d\n", node.accel);
    write(g, CONTINUATION);
    write(g, ", owOnCol,%d, owOffCol,%d, owTextCol,%d", node.colour1, node.colour2, node.colour3);
    writeTab(g, node);
    writeTail(g, node);
    writeFont(g, w);
}

void createToggle(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreateToggleButton");
    write(g, ", \"%s\", %d\n", cText(node.text), node.initialStatus);
    writeHelp(g, node);
    write(g, CONTINUATION);
    write(g, ", owType,%s", nameOf(TOGGLE_TYPE, node.subType, "OBEVELSQUARE"));
    writeSize(g, node);
    write(g, ", owAccel,%d\n", node.accel);
    write(g, CONTINUATION);
    write(g, ", owOnCol,%d, owOffCol,%d, owTextCol,%d", node.colour1, node.colour2, node.colour3);
    writeTab(g, node);
    writeTail(g, node);
    writeFont(g, w);
}

void createText(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    const bool editable = node.type == TYPE_TEXT_ENTRY;
    add(g, "   %s = owCreateTextEntry(%s, %d, %d, %d, %d,\"%s \", %d, %s\n", node.name, w.parent, node.xpos, node.ypos,
        w.width, w.height, cFieldText(fieldText(node)), node.fieldWidth, editable ? "OEDIT" : "ODISPLAY");
    writeStatementSplit(g);
    writeHelp(g, node);
    write(g, CONTINUATION);
    write(g, ", owEntryType,%s", nameOf(ENTRY_TYPE, node.subType, "OSTANDARD"));
    writeSize(g, node);
    writeNamed(g, "owJustify", CENTRE_RIGHT, node.justify);
    if (node.oleInserts == 0) write(g, ", owOLEInserts,OOFF");
    writeSwitch(g, "owAutoURL", node.autoUrl == 1);
    write(g, ", owBack1Col,%d, owBack2Col,%d, owTextCol,%d\n", node.colour1, node.colour2, node.colour3);
    write(g, CONTINUATION);
    writeScroll(g, node);
    if (g.windows) writeNamed(g, "owBorderType", ENTRY_BORDER, node.borderType);
    writeSwitch(g, "owReadOnly", editable && node.readOnly == 1);
    writeTab(g, node);
    writeTail(g, node);
    writeFont(g, w);
}

void createValue(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    const bool editable = node.type == TYPE_VALUE_ENTRY;
    beginCreation(g, w, "owCreateValueEntry");
    write(g, ", %#g, %d, %d, %s\n", node.value, node.fieldWidth, node.format, editable ? "OEDIT" : "ODISPLAY");
    if (editable) {
        write(g, CONTINUATION);
        write(g, ", owVmin,%#g, owVmax,%#g\n", node.minValue, node.maxValue);
    }
    writeHelp(g, node);
    write(g, CONTINUATION);
    write(g, ", owType,%s", nameOf(VALUE_TYPE, node.subType, "ODECIMAL"));
    write(g, ", owSign,%s", nameOf(VALUE_SIGN, node.sign, "ODEFAULT"));
    writeSize(g, node);
    write(g, ", owJustify,%s\n", nameOf(CENTRE_RIGHT, node.justify, "OLEFT"));
    write(g, CONTINUATION);
    write(g, ", owBack1Col,%d, owBack2Col,%d, owTextCol,%d", node.colour1, node.colour2, node.colour3);
    if (g.windows && editable) writeNamed(g, "owBorderType", ENTRY_BORDER, node.borderType);
    if (node.charSet == 1) write(g, ", owCharSet,OALPHANUMERIC");
    writeSwitch(g, "owReadOnly", editable && node.readOnly == 1);
    writeTab(g, node);
    writeTail(g, node);
    writeFont(g, w);
}

// A tool bar icon names its type in any case: without a word there the call would not stand.
void createToolIcon(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    write(g, "   %s = owCreateToolBarButton(%s, ", node.name, w.parent);
    write(g, "OICONBUTTON,\"%s\", \n", imageText(toolPicture(node)));
    write(g, CONTINUATION);
    write(g, "owIconType,%s", nameOf(ICON_TYPE, node.subType, "OBUTTON"));
    endToolButton(g, node);
}

void createPlainIcon(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    const Picture picture = iconPicture(g, node);
    beginCreation(g, w, "owCreateIcon");
    write(g, ",\"%s\", %d, %d\n", imageText(picture), picture.kind, node.iconId);
    writeHelp(g, node);
    write(g, CONTINUATION);
    writeNamed(g, "owType", ICON_TYPE, node.subType);
    writeSwitch(g, "owDragMode", node.dragMode == 1);
    if (!node.text.empty()) write(g, ", owLabel,\"%s\"", cText(node.text));
    writeSize(g, node);
    writeTab(g, node);
    writeTail(g, node);
}

void createIcon(Generation& g, const Placed& w) {
    if (w.node.onToolbar == 1) {
        createToolIcon(g, w);
    } else {
        createPlainIcon(g, w);
    }
    if (!w.node.text.empty()) writeFont(g, w);
}

void writeListAttributes(Generation& g, const WidgetNode& node) {
    writeNamed(g, "owSort", LIST_SORT, node.sorted);
    writeSwitch(g, "owUseIcons", node.displayIcons == 1);
    if (node.fieldWidth > 0) write(g, ", owDescWidth,%d", node.fieldWidth);
}

void createListBox(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreateListBox");
    write(g, ", %s\n", nameOf(CONTENTS, node.contents, "ONONE"));
    writeHelp(g, node);
    write(g, CONTINUATION);
    writeNamed(g, "owType", LIST_TYPE, node.subType);
    writeNamed(g, "owStyle", LIST_STYLE, node.approxSize);
    writeListAttributes(g, node);
    write(g, ", owOffCol,%d, owOnCol,%d, owTextCol,%d\n", node.colour1, node.colour2, node.colour3);
    write(g, CONTINUATION);
    writeTab(g, node);
    writeTail(g, node);
    writeFont(g, w);
    writeListEntries(g, node, g.language.listComment);
}

void createComboBox(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreateComboBox");
    write(g, ", %s, %d\n", nameOf(CONTENTS, node.contents, "ONONE"), node.editMode);
    writeHelp(g, node);
    write(g, CONTINUATION);
    writeListAttributes(g, node);
    writeTab(g, node);
    writeTail(g, node);
    writeFont(g, w);
    if (!hasListEntries(node)) return;
    writeListEntries(g, node, g.language.comboComment);
    write(g, "\n// Select first entry in list for display\n");
    write(g, "   owSetListEntry(%s,OSELECT,owEntry,1,0);\n", node.name);
}

void createSlider(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreateSlider");
    write(g, ", %f, %f, %f, %f\n", node.minValue, node.maxValue, node.stepValue, node.value);
    write(g, CONTINUATION);
    write(g, ", owType,%s", nameOf(SLIDER_TYPE, node.subType, "OHORIZONTAL"));
    writeSize(g, node);
    write(g, ", owBackCol,%d", node.colour3);
    writeTail(g, node);
    write(g, "\n// Set correct width/height for %s\n", node.name);
    write(g, "   owEnqWidgetInfo(%s,&Slider_attribs);\n", node.name);
    write(g, "      Slider_attribs.width = %d;\n", node.width);
    write(g, "      Slider_attribs.height = %d;\n", node.height);
    write(g, "   owSetWidgetInfo(%s,&Slider_attribs);\n", node.name);
}

void createPanel(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreatePanel");
    write(g, "\n");
    writeHelp(g, node);
    write(g, CONTINUATION);
    if (node.titleFlag != 0 && node.scrollMode == -1) write(g, ", owTitle,\"%s\"", cText(node.text));
    writeBoundary(g, "owType", node.subType, true);
    write(g, CONTINUATION);
    writeBorder(g, node);
    write(g, "\n");
    write(g, CONTINUATION);
    writeBackgroundImage(g, node);
    if (g.windows && !node.closeIcon.empty()) {
        write(g, ", owIcon,owGetIconResource(\"%s\")", iconResourceName(node.closeIcon));
    }
    writeScroll(g, node);
    writeTab(g, node);
    writeTail(g, node);
    writeFont(g, w);
}

void createRadioBox(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreateRadioBox");
    write(g, "\n");
    writeHelp(g, node);
    write(g, CONTINUATION);
    write(g, ", owType,OFREEFORM");
    if (node.titleFlag != 0) write(g, ", owTitle,\"%s\"", cText(node.text));
    writeBoundary(g, "owBorderType", node.borderType, false);
    write(g, CONTINUATION);
    writeBorder(g, node);
    writeTail(g, node);
}

void createGraphicsFrame(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    write(g, "\n// Define Graphics Frame limits\n");
    write(g, "   Graphics_frame.xmin = %f;\n", node.xMin);
    write(g, "   Graphics_frame.xmax = %f;\n", node.xMax);
    write(g, "   Graphics_frame.ymin = %f;\n", node.yMin);
    write(g, "   Graphics_frame.ymax = %f;\n", node.yMax);
    beginCreation(g, w, "owCreateGraphicsFrame");
    write(g, ", &Graphics_frame\n");
    writeHelp(g, node);
    write(g, CONTINUATION);
    if (g.windows) write(g, ", owFrameType,%s", node.subType == FRAME_OPENGL ? "OOPENGL" : "OGDI");
    writeTail(g, node);
}

void writeCells(Generation& g, const WidgetNode& node) {
    write(g, "   owEnqCellAttribs(%s, 1, 1, &arrayattribs);\n", node.name);
    for (const CellSize& cell : cellSizes(node)) {
        if (cell.changed) {
            write(g, "   arrayattribs.width=%d;\n", cell.width);
            write(g, "   arrayattribs.height=%d;\n", cell.height);
        }
        write(g, "   owSetCellAttribs(%s, %d, %d, &arrayattribs);\n", node.name, cell.column, cell.row);
    }
}

void writeArrayColours(Generation& g, const WidgetNode& node) {
    writeScroll(g, node);
    writeBoundary(g, "owBorderType", node.subType, true);
    write(g, CONTINUATION);
    write(g, ", owAxisBackColour,%d, owXtextColour,%d, owYtextColour,%d, owGridBackColour,%d\n", node.colour1,
          node.colour3, node.colour4, node.cellBackground);
    write(g, CONTINUATION);
    write(g, ", owCellBorderColour,%d, owCellBorderLineType,%d, owSelectedCellColour,%d\n", node.cellBorder,
          node.borderType, node.colour2);
}

void createArray(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, node.type == TYPE_TEXT_ARRAY ? "owCreateTextArray" : "owCreateValueArray");
    write(g, ", %d, %d\n", node.columns, node.rows);
    writeHelp(g, node);
    write(g, CONTINUATION);
    write(g, ", owXtext,\"%s\", owYtext,\"%s\"\n", cText(node.xLabels), cText(node.yLabels));
    write(g, CONTINUATION);
    write(g, ", owAxisW,%d", node.yLabelsWidth);
    write(g, ", owAxisH,%d", node.xLabelsHeight);
    writeNamed(g, "owXjust", LEFT_CENTRE_RIGHT, node.alignXLabels);
    writeNamed(g, "owYjust", LEFT_CENTRE_RIGHT, node.alignYLabels);
    if (g.windows) writeArrayColours(g, node);
    writeSwitch(g, "owReadOnly", node.readOnly == 1);
    writeTab(g, node);
    writeNamed(g, "owTabAction", TAB_ACTION, node.tabAction);
    writeTail(g, node);
    writeCells(g, w.node);
    writeFont(g, w);
}

// Tool bars and panes are closed alike, without the 0 that ends other keyword lists.
void endDocked(Generation& g, const WidgetNode& node) {
    writeNamed(g, "owQuitMode", QUIT_MODE, node.quitMode);
    const std::string_view title = nameOf(DOCK_TITLE, node.titleFlag);
    if (!title.empty()) write(g, ", owTitleFlag,%s, owTitle,\"%s\"", title, cText(node.text));
    write(g, ");\n");
}

void createToolBar(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    write(g, "   %s = owCreateToolBar(%s", node.name, w.parent);
    write(g, ", %s, %d", nameOf(DOCK_SIDE, node.initialPosition, "OTOP"), node.iconSize);
    endDocked(g, node);
    if (node.initialPosition != FLOATING) return;
    write(g, "   owSetToolbarPos(%s, %d, %d, %d, %d);\n", node.name, node.xpos, node.ypos, node.width,
          node.initialPosition);
}

void createPane(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    write(g, "   %s = owCreateDockingPane(%s", node.name, w.parent);
    write(g, ", %s", node.initialPosition == FLOATING ? "OFLOATING" : nameOf(DOCK_SIDE, node.initialPosition, "OTOP"));
    write(g, ", %d, %d, %d, %d", node.xpos, node.ypos, node.width, node.height);
    endDocked(g, node);
}

void createToolSeparator(Generation& g, const Placed& w) {
    write(g, "   %s = owCreateToolBarSeparator(%s", w.node.name, w.parent);
    writeNamed(g, "owSeparatorType", SEPARATOR_TYPE, w.node.subType);
    write(g, ");\n");
}

void createTabBox(Generation& g, const Placed& w) {
    beginCreation(g, w, "owCreateTabDialogueBox");
    write(g, "\n");
    write(g, CONTINUATION);
    writeTail(g, w.node);
    writeFont(g, w);
}

void createGauge(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreateGauge");
    write(g, ", \"%s\"\n", doubledBackslashes(node.icon));
    writeHelp(g, node);
    write(g, CONTINUATION);
    writeNamed(g, "owAccess", GAUGE_ACCESS, node.accessMode);
    write(g, ", owTicks1,%d", node.topTicks);
    write(g, ", owTicks2,%d", node.bottomTicks);
    write(g, ", owMinimum,%d", wholeNumber(node.minValue));
    write(g, ", owMaximum,%d", wholeNumber(node.maxValue));
    write(g, ", owIntValue,%d", wholeNumber(node.value));
    writeTab(g, node);
    writeTail(g, node);
}

void createProgressBar(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreateProgressBar");
    write(g, "\n");
    writeHelp(g, node);
    write(g, CONTINUATION);
    writeNamed(g, "owProgressType", PROGRESS_TYPE, node.subType);
    write(g, ", owMinimum,%d", wholeNumber(node.minValue));
    write(g, ", owMaximum,%d", wholeNumber(node.maxValue));
    write(g, ", owIntValue,%d", wholeNumber(node.value));
    writeTail(g, node);
}

void createTtyEntry(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w, "owCreateTTYEntry");
    write(g, ", %d,\"%s \"\n", node.size, cText(node.text));
    writeHelp(g, node);
    write(g, CONTINUATION);
    if (!node.icon.empty()) write(g, ", owPrompt,\"%s\"", cText(node.icon));
    write(g, ", owOffCol,%d, owOnCol,%d, owTextCol,%d", node.colour1, node.colour2, node.colour3);
    writeSwitch(g, "owReadOnly", node.readOnly == 1);
    writeTail(g, node);
    writeFont(g, w);
}

void createTreeView(Generation& g, const Placed& w) {
    beginCreation(g, w, "owCreateTreeViewBox");
    write(g, "\n");
    write(g, CONTINUATION);
    writeNamed(g, "owIconSet", TREE_ICONS, w.node.subType);
    writeTail(g, w.node);
    writeTreeEntries(g, w.node);
    writeFont(g, w);
}

void createTableBox(Generation& g, const Placed& w) {
    beginCreation(g, w, "owCreateTableBox");
    write(g, "\n");
    write(g, CONTINUATION);
    writeTail(g, w.node);
    for (const TableColumn& column : tableColumns(w.node)) {
        write(g, "   owAddTableBoxColumn(%s, %d, %d", w.node.name, column.number, column.width);
        if (column.labelled) write(g, ", owLabel,\"%s\"", cText(column.label));
        write(g, ");\n");
    }
    writeFont(g, w);
}

constexpr CreationRow CREATION[] = {
    {TYPE_FORM, createCForm},
    {TYPE_MAIN_PANEL, createCMainPanel},
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

const std::span<const CreationRow> C_CREATION = CREATION;

void writeOrigin(Generation& g, const WidgetNode& node) {
    writeNamed(g, "owHpos", HORIZONTAL_ORIGIN, node.hpos);
    writeNamed(g, "owVpos", VERTICAL_ORIGIN, node.vpos);
}

void writeBorder(Generation& g, const WidgetNode& node) {
    write(g, ", owLineCol,%d, owLineBorder,%d, owFillCol,%d, owFillBorder,%d", node.colour1, node.colour2, node.colour3,
          node.colour4);
}

void writeBackgroundImage(Generation& g, const WidgetNode& node) {
    if (g.windows && node.format == 1) write(g, ", owImage,\"%s\"", node.backgroundImage);
}

std::string imageText(const Picture& picture) {
    return picture.isIcon ? doubledBackslashes(picture.image) : std::string(picture.image);
}

void writeIconResource(Generation& g, std::string_view keyword, std::string_view icon) {
    if (!icon.empty()) write(g, ",%s,owGetIconResource(\"%s\")", keyword, iconResourceName(icon));
}

// Only a tree whose icons are the user's own takes them from its entries.
void writeCTreeEntry(Generation& g, const WidgetNode& tree, const MenuEntryRec& entry, std::string_view parent) {
    write(g, "   %s = owCreateTreeEntry(%s, OLASTCHILD, \"%s\"", entry.name, parent, cText(entry.label));
    if (tree.subType == TREE_OWN_ICONS) {
        writeIconResource(g, "owIcon", entry.icon1);
        writeIconResource(g, "owCloseIcon", entry.icon2);
        writeIconResource(g, "owOpenIcon", entry.icon3);
    }
    write(g, ",0);\n");
}

void writeCListEntry(Generation& g, const WidgetNode& list, const ListEntryRec& entry) {
    add(g, "   owSetListEntry(%s, OADD, owString,\"%s\"", list.name, cText(entry.text));
    if (!entry.icon.empty()) add(g, ", owIcon,owGetIconResource(\"%s\")", iconResourceName(entry.icon));
    add(g, ",0);\n");
    writeStatementSplit(g);
}
