// The creation statements of C. They are written piece by piece with line ends at fixed places, and values that are
// the toolkit's own are mostly written all the same.

#include "codegen/attributes_text.h"
#include "codegen/c_language.h"
#include "codegen/quotes.h"

#include <algorithm>
#include <string>

namespace {

constexpr AttributeForms FORMS = {
    .blankAhead = &Attribute::blankAheadInC,
    .namesEdges = false,
    .number = ", %s,%d",
    .name = ", %s,%s",
    .nameBehindBlank = " ,%s,%s",
    .string = ", %s,\"%s\"",
    .resource = ", %s,owGetIconResource(\"%s\")",
    .text = cText,
};

// --- Pieces that many statements share.

void writeSwitch(Generation& g, std::string_view keyword, bool on) {
    if (on) write(g, ", %s,OON", keyword);
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

// "   name = routine(parent, x, y, width, height"
void beginCreation(Generation& g, const Placed& w) {
    write(g, "   %s = %s(%s, %d, %d, %d, %d", w.node.name, attributesOf(w.node.type)->routine, w.parent, w.node.xpos,
          w.node.ypos, w.width, w.height);
}

void writeAttribute(Generation& g, const AttributesOfType& type, Keyword keyword, const WidgetNode& node) {
    const bool always = keyword == Keyword::LINE;
    switch (keyword) {
    case Keyword::TAB: writeTab(g, node); break;
    case Keyword::LINE:
    case Keyword::WINDOWS_LINE:
        if (always || g.windows) write(g, "\n%s", CONTINUATION);
        break;
    case Keyword::WINDOWS_END:
        if (g.windows) write(g, "\n");
        break;
    default: {
        const auto attribute = std::ranges::find(type.attributes, keyword, &Attribute::keyword);
        if (isTold(*attribute, node)) appendAttribute(g, g.out, *attribute, node, FORMS);
    }
    }
}

// The lines of a statement behind the one that holds what stands at fixed places.
void endCreation(Generation& g, const Placed& w) {
    const AttributesOfType& type = *attributesOf(w.node.type);
    if (std::ranges::find(type.attributes, Keyword::HELP, &Attribute::keyword) != type.attributes.end()) {
        writeHelp(g, w.node);
    }
    write(g, CONTINUATION);
    for (const Keyword keyword : type.inC) writeAttribute(g, type, keyword, w.node);
    writeTail(g, w.node);
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

void endWithFont(Generation& g, const Placed& w) {
    endCreation(g, w);
    writeFont(g, w);
}

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
    if (w.node.onToolbar == 1) return createToolButton(g, w);
    beginCreation(g, w);
    write(g, ", \"%s\"\n", cText(w.node.text));
    endWithFont(g, w);
}

void createToggle(Generation& g, const Placed& w) {
    beginCreation(g, w);
    write(g, ", \"%s\", %d\n", cText(w.node.text), w.node.initialStatus);
    endWithFont(g, w);
}

void createText(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    add(g, "   %s = owCreateTextEntry(%s, %d, %d, %d, %d,\"%s \", %d, %s\n", node.name, w.parent, node.xpos, node.ypos,
        w.width, w.height, cFieldText(fieldText(node)), node.fieldWidth,
        node.type == TYPE_TEXT_ENTRY ? "OEDIT" : "ODISPLAY");
    writeStatementSplit(g);
    endWithFont(g, w);
}

void createValue(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    const bool editable = node.type == TYPE_VALUE_ENTRY;
    beginCreation(g, w);
    write(g, ", %#g, %d, %d, %s\n", node.value, node.fieldWidth, node.format, editable ? "OEDIT" : "ODISPLAY");
    if (editable) {
        write(g, CONTINUATION);
        write(g, ", owVmin,%#g, owVmax,%#g\n", node.minValue, node.maxValue);
    }
    endWithFont(g, w);
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
    const Picture picture = iconPicture(g, w.node);
    beginCreation(g, w);
    write(g, ",\"%s\", %d, %d\n", imageText(picture), picture.kind, w.node.iconId);
    endCreation(g, w);
}

void createIcon(Generation& g, const Placed& w) {
    if (w.node.onToolbar == 1) {
        createToolIcon(g, w);
    } else {
        createPlainIcon(g, w);
    }
    if (!w.node.text.empty()) writeFont(g, w);
}

void createListBox(Generation& g, const Placed& w) {
    beginCreation(g, w);
    write(g, ", %s\n", nameOf(CONTENTS, w.node.contents, "ONONE"));
    endWithFont(g, w);
    writeListEntries(g, w.node, g.language.listComment);
}

void createComboBox(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w);
    write(g, ", %s, %d\n", nameOf(CONTENTS, node.contents, "ONONE"), node.editMode);
    endWithFont(g, w);
    if (!hasListEntries(node)) return;
    writeListEntries(g, node, g.language.comboComment);
    write(g, "\n// Select first entry in list for display\n");
    write(g, "   owSetListEntry(%s,OSELECT,owEntry,1,0);\n", node.name);
}

void createSlider(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w);
    write(g, ", %f, %f, %f, %f\n", node.minValue, node.maxValue, node.stepValue, node.value);
    endCreation(g, w);
    write(g, "\n// Set correct width/height for %s\n", node.name);
    write(g, "   owEnqWidgetInfo(%s,&Slider_attribs);\n", node.name);
    write(g, "      Slider_attribs.width = %d;\n", node.width);
    write(g, "      Slider_attribs.height = %d;\n", node.height);
    write(g, "   owSetWidgetInfo(%s,&Slider_attribs);\n", node.name);
}

// Types that have nothing at a fixed place.
void createPlain(Generation& g, const Placed& w) {
    beginCreation(g, w);
    write(g, "\n");
    endCreation(g, w);
}
void createWithFont(Generation& g, const Placed& w) {
    createPlain(g, w);
    writeFont(g, w);
}

void createGraphicsFrame(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    write(g, "\n// Define Graphics Frame limits\n");
    write(g, "   Graphics_frame.xmin = %f;\n", node.xMin);
    write(g, "   Graphics_frame.xmax = %f;\n", node.xMax);
    write(g, "   Graphics_frame.ymin = %f;\n", node.yMin);
    write(g, "   Graphics_frame.ymax = %f;\n", node.yMax);
    beginCreation(g, w);
    write(g, ", &Graphics_frame\n");
    endCreation(g, w);
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

void createArray(Generation& g, const Placed& w) {
    beginCreation(g, w);
    write(g, ", %d, %d\n", w.node.columns, w.node.rows);
    endCreation(g, w);
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

void createGauge(Generation& g, const Placed& w) {
    beginCreation(g, w);
    write(g, ", \"%s\"\n", doubledBackslashes(w.node.icon));
    endCreation(g, w);
}

void createTtyEntry(Generation& g, const Placed& w) {
    beginCreation(g, w);
    write(g, ", %d,\"%s \"\n", w.node.size, cText(w.node.text));
    endWithFont(g, w);
}

void createTreeView(Generation& g, const Placed& w) {
    createPlain(g, w);
    writeTreeEntries(g, w.node);
    writeFont(g, w);
}

void createTableBox(Generation& g, const Placed& w) {
    createPlain(g, w);
    for (const TableColumn& column : tableColumns(w.node)) {
        write(g, "   owAddTableBoxColumn(%s, %d, %d", w.node.name, column.number, column.width);
        if (column.labelled) write(g, ", owLabel,\"%s\"", cText(column.label));
        write(g, ");\n");
    }
    writeFont(g, w);
}

constexpr CreationRows CREATION = {
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
    {TYPE_PANEL, createWithFont},
    {TYPE_COMBO_BOX, createComboBox},
    {TYPE_RADIO_BOX, createPlain},
    {TYPE_GRAPHICS_FRAME, createGraphicsFrame},
    {TYPE_TEXT_ARRAY, createArray},
    {TYPE_VALUE_ARRAY, createArray},
    {TYPE_TOOL_BAR, createToolBar},
    {TYPE_TAB_BOX, createWithFont},
    {TYPE_GAUGE, createGauge},
    {TYPE_PROGRESS_BAR, createPlain},
    {TYPE_TTY_ENTRY, createTtyEntry},
    {TYPE_TREE_VIEW, createTreeView},
    {TYPE_TABLE_BOX, createTableBox},
    {TYPE_TOOL_SEPARATOR, createToolSeparator},
    {TYPE_PANE, createPane},
};
static_assert(Missing<missingRow(CREATION)>::none);

} // namespace

const CreationRows& C_CREATION = CREATION;

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
