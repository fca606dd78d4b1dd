// The creation statements of Fortran 90. A statement is put together from its attributes and written split; keywords
// that tell the toolkit's own default are left out.

#include "codegen/attributes_text.h"
#include "codegen/fortran90.h"
#include "codegen/quotes.h"

#include <string>

namespace {

constexpr AttributeForms FORMS = {
    .blankAhead = &Attribute::blankAheadInFree,
    .namesEdges = true,
    .number = ", %s=%d",
    .name = ", %s=%s",
    .nameBehindBlank = " ,%s=%s",
    .string = ", %s='%s'",
    .resource = ", %s=owGetIconResource('%s')",
    .text = fortranText,
};

// --- Pieces that many statements share.

// ", keyword=number" unless the number is the toolkit's own.
void addNumber(Generation& g, std::string_view keyword, int value, int standard) {
    if (value != standard) add(g, ", %s=%d", keyword, value);
}

void addSwitch(Generation& g, std::string_view keyword, bool on) {
    if (on) add(g, ", %s=OON", keyword);
}

void addHelp(Generation& g, const WidgetNode& node) {
    if (node.bubbleHelp.empty()) return;
    add(g, ", owHelp='%s'", fortranText(node.bubbleHelp));
    addNamed(g, "owHelpJustify", HELP_SIDE, node.helpJustify);
}

void addTab(Generation& g, const WidgetNode& node) { addNamed(g, "owTabList", OFF_ON, node.tabList); }

void addContents(Generation& g, const WidgetNode& node) { add(g, ", %s", nameOf(CONTENTS, node.contents, "ONONE")); }

// "   name = routine(parent, x, y, width, height"
void beginCreation(Generation& g, const Placed& w) {
    add(g, "   %s = %s(%s, %d, %d, %d, %d", w.node.name, attributesOf(w.node.type)->routine, w.parent, w.node.xpos,
        w.node.ypos, w.width, w.height);
}

void addAttributes(Generation& g, const WidgetNode& node) {
    for (const Attribute& attribute : attributesOf(node.type)->attributes) {
        switch (attribute.keyword) {
        case Keyword::PLACE: addPosition(g, node); break;
        case Keyword::HELP: addHelp(g, node); break;
        case Keyword::TAB: addTab(g, node); break;
        default:
            if (!isStandard(attribute, node)) appendAttribute(g, g.statement, attribute, node, FORMS);
        }
    }
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

// --- Widgets. Their attributes stand behind what their creation call has at fixed places.

void endCreation(Generation& g, const Placed& w) {
    addAttributes(g, w.node);
    endStatement(g);
}
void endWithFont(Generation& g, const Placed& w) {
    endCreation(g, w);
    writeFont(g, w);
}

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
    if (w.node.onToolbar == 1) return createToolButton(g, w);
    beginCreation(g, w);
    add(g, ", '%s'", fortranText(w.node.text));
    endWithFont(g, w);
}

void createToggle(Generation& g, const Placed& w) {
    beginCreation(g, w);
    add(g, ", '%s', %d", fortranText(w.node.text), w.node.initialStatus);
    endWithFont(g, w);
}

void createText(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w);
    add(g, ",'%s '", fortranText(fieldText(node)));
    add(g, ", %d, %s", node.fieldWidth, node.type == TYPE_TEXT_ENTRY ? "OEDIT" : "ODISPLAY");
    endWithFont(g, w);
}

void createValue(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    const bool editable = node.type == TYPE_VALUE_ENTRY;
    beginCreation(g, w);
    add(g, ", %#g, %d, %d, %s", node.value, node.fieldWidth, node.format, editable ? "OEDIT" : "ODISPLAY");
    if (editable) add(g, ", owVmin=%#g, owVmax=%#g", node.minValue, node.maxValue);
    endWithFont(g, w);
}

void createToolIcon(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    add(g, "   %s = owCreateToolBarButton(%s, OICONBUTTON, '%s'", node.name, w.parent, toolPicture(node).image);
    const std::string_view type = nameOf(ICON_TYPE, node.subType);
    if (type == "OBUTTON") {
        add(g, ", owIconType=%s", type);
    } else if (!type.empty()) {
        add(g, " ,owIconType=%s", type);
    }
    if (node.dragMode == 1) add(g, " ,owDragMode=OON");
    addHelp(g, node);
    addTab(g, node);
    endStatement(g);
}

void createPlainIcon(Generation& g, const Placed& w) {
    const Picture picture = iconPicture(g, w.node);
    beginCreation(g, w);
    add(g, ",'%s', %d, %d", picture.image, picture.kind, w.node.iconId);
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
    addContents(g, w.node);
    endWithFont(g, w);
    writeListEntries(g, w.node, g.language.listComment);
}

void createComboBox(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w);
    addContents(g, node);
    add(g, ", %d", node.editMode);
    endWithFont(g, w);
    if (!hasListEntries(node)) return;
    writeListEntries(g, node, g.language.comboComment);
    write(g, "\n! Select first entry in list for display\n");
    write(g, "   call owSetListEntry(%s,OSELECT,owEntry=1)\n", node.name);
}

void createSlider(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w);
    add(g, ", %f, %f, %f, %f", node.minValue, node.maxValue, node.stepValue, node.value);
    endCreation(g, w);
    write(g, "\n! Set correct width/height for %s\n", node.name);
    write(g, "   call owEnqWidgetInfo(%s,Slider_attribs)\n", node.name);
    write(g, "      Slider_attribs%%width = %d\n", node.width);
    write(g, "      Slider_attribs%%height = %d\n", node.height);
    write(g, "   call owSetWidgetInfo(%s,Slider_attribs)\n", node.name);
}

// Types that have nothing at a fixed place.
void createPlain(Generation& g, const Placed& w) {
    beginCreation(g, w);
    endCreation(g, w);
}
void createWithFont(Generation& g, const Placed& w) {
    beginCreation(g, w);
    endWithFont(g, w);
}

void createGraphicsFrame(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    beginCreation(g, w);
    add(g, ", &\n");
    writeStatementSplit(g);
    add(g, "         OLIMIT(%f, %f, %f, %f)", node.xMin, node.xMax, node.yMin, node.yMax);
    endCreation(g, w);
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
    beginCreation(g, w);
    add(g, ", %d, %d", w.node.columns, w.node.rows);
    endCreation(g, w);
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

void createGauge(Generation& g, const Placed& w) {
    beginCreation(g, w);
    add(g, ", '%s'", w.node.icon);
    endCreation(g, w);
}

void createTtyEntry(Generation& g, const Placed& w) {
    beginCreation(g, w);
    add(g, ", %d,'%s '", w.node.size, fortranText(fieldText(w.node)));
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
        add(g, "   call owAddTableBoxColumn(%s, %d, %d", w.node.name, column.number, column.width);
        if (column.labelled) add(g, ", owLabel='%s'", fortranText(column.label));
        endStatement(g);
    }
    writeFont(g, w);
}

constexpr CreationRows CREATION = {
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

const CreationRows& FORTRAN_90_CREATION = CREATION;

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
