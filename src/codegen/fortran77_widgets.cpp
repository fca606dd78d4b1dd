// The creation statements of Fortran 77. The old interface works by state: small routines set what the next creation
// takes up, so one widget is a run of statements.

#include "codegen/fortran77.h"
#include "codegen/quotes.h"

#include <string>

namespace {

// --- Statements that many widgets share.

void writeMinimum(Generation& g, const Placed& w) { write(g, "      CALL WIDMIN(%d,%d)\n", w.width, w.height); }
void writeMaximum(Generation& g, const Placed& w) { write(g, "      CALL WIDMAX(%d,%d)\n", w.width, w.height); }
void resetMaximum(Generation& g) { write(g, "      CALL WIDMAX(0,0)\n"); }

// 0 at the bottom left, 4 in the centre, 8 at the top right.
void writePosition(Generation& g, const WidgetNode& node) {
    const unsigned code = (static_cast<unsigned>(node.vpos) + 1) * 3 + static_cast<unsigned>(node.hpos) + 1;
    write(g, "      CALL WIDPOS(%d,%d)\n", static_cast<int>(code), node.expand);
}

void writeHelp(Generation& g, const WidgetNode& node) { writeHelpStatement(g, node.name, node.bubbleHelp); }

void writeStatus(Generation& g, const WidgetNode& node) {
    if (node.initialState != 1) write(g, "      CALL WIDSTA(%s, %d)\n", node.name, node.initialState);
}

void writeTitleText(Generation& g, const WidgetNode& node) {
    writeSplit(g, "      CALL WIDSTR('%s')\n", fortranText(node.text));
}

void writeFont(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    if (!needsFont(g, w)) return;
    if (!hasStandardFace(node)) {
        writeSplit(g, "      CALL WIDFNT(%s,0,0,'%s')\n", node.name, fortranText(node.fontFace));
        writeSplit(g, "      CALL WIDFNT(%s,1,%d,' ')\n", node.name, node.pointSize);
    }
    const auto writeStyle = [&](int attribute, int value) {
        if (value != 0) write(g, "      CALL WIDFNT(%s,%d,%d,' ')\n", node.name, attribute, value);
    };
    writeStyle(3, node.charSet);
    writeStyle(4, node.bold);
    writeStyle(5, node.italic);
    writeStyle(6, node.underline);
    writeStyle(7, node.strikeout);
}

// How most types end.
void writeEnding(Generation& g, const Placed& w) {
    writeHelp(g, w.node);
    writeFont(g, w);
    writeStatus(g, w.node);
}

constexpr NamedValue SCROLL_CODES[] = {{-1, "-1"}, {0, "0"}, {32763, "1"}, {32764, "2"}};

// For the widget that comes next (target 0) or for one that is there already.
void writeScroll(Generation& g, std::string_view target, const WidgetNode& node) {
    const std::string_view code = nameOf(SCROLL_CODES, node.scrollMode);
    if (g.windows && !code.empty()) write(g, "      CALL SCRMOD(%s,%s)\n", target, code);
}
void resetScroll(Generation& g) {
    if (g.windows) write(g, "      CALL SCRMOD(0,0)\n");
}

void writeEntryBorder(Generation& g, const WidgetNode& node) {
    if (g.windows) write(g, "      CALL GUIESC(74,%d,0,0,0,0,0,IRET1,IRET2,' ')\n", node.borderType);
}

void writePanelColours(Generation& g, const WidgetNode& node) {
    write(g, "      CALL PANATR(%d,%d,%d,%d)\n", node.colour1, node.colour2, node.colour3, node.colour4);
}

void writePanelImage(Generation& g, const WidgetNode& node) {
    if (g.windows && node.format == 1) write(g, "      CALL PANIMG(%s,0,'%s')\n", node.name, node.backgroundImage);
}

// --- Forms.

void writeInitialState(Generation& g, const WidgetNode& form) {
    constexpr NamedValue MODES[] = {{0, "0"}, {8, "1"}, {4, "2"}, {32, "3"}};
    const std::string_view mode = nameOf(MODES, form.initialState);
    if (!mode.empty()) write(g, "      CALL DRAMOD(%s)\n", mode);
}

void createMaster(Generation& g, const Placed& w) {
    const WidgetNode& form = w.node;
    write(g, "C set up master window %s\n", form.name);
    writeMinimum(g, w);
    writeMaximum(g, w);
    write(g, "      CALL WIDTTL(%d)\n", difference(0, form.titleFlag));
    writeTitleText(g, form);
    writePosition(g, form);
    writeInitialState(g, form);
    write(g, form.formType == FORM_MASTER_MDI ? "      CALL MASMDI(%d,%d,%s)\n" : "      CALL MASTER(%d,%d,%s)\n",
          form.xpos, form.ypos, form.name);
    rememberMaster(g, form);
}

// A child of an MDI master stands at its offset from the master, less what the master's frame takes.
void createDialogue(Generation& g, const Placed& w) {
    const WidgetNode& form = w.node;
    const std::string_view parent = parentName(g, form);
    write(g, "C set up complex dialogue box %s child of %s\n", form.name, parent);
    writeMinimum(g, w);
    writeMaximum(g, w);
    if (!isMdiChild(form)) writePosition(g, form);
    writeInitialState(g, form);
    write(g, "      CALL REMMOD(%d)\n", form.quitMode);
    write(g, "      CALL WIDTTL(%d*(-1))\n", form.titleFlag);
    writeTitleText(g, form);
    if (isMdiChild(form)) {
        write(g, project.gridMode != 0 ? "      CALL DIAMDI(%s,%d,%d-1,%s)\n" : "      CALL DIAMDI(%s,%d-4,%d-24,%s)\n",
              parent, difference(form.xpos, g.masterX), difference(form.ypos, g.masterY), form.name);
    } else {
        write(g, "      CALL DIACMP(%s,%d,%d,%s)\n", parent, form.xpos, form.ypos, form.name);
    }
}

void writeStatusBar(Generation& g, const WidgetNode& form) {
    if (!form.statusBar) return;
    const StatusBarRec& bar = *form.statusBar;
    write(g, "\nC Create Statusbar for %s\n", form.name);
    write(g, "      CALL STABAR(%s,0,%s)\n", form.name, bar.name);
    for (int pane = 0; pane < bar.panes && pane < STATUS_PANES; ++pane) {
        write(g, "      ISTBAR(%d)=%d\n", pane + 1, bar.sizes[static_cast<std::size_t>(pane)]);
    }
    write(g, "      CALL STAPAN(%s,%d,ISTBAR)\n", bar.name, bar.panes);
    for (int pane = 0; pane < bar.panes && pane < STATUS_PANES; ++pane) {
        write(g, "      CALL STATEX(%s,%d,'%s')\n", bar.name, pane,
              fortranText(bar.texts[static_cast<std::size_t>(pane)]));
    }
}

void beginRoutine(Generation& g, const WidgetNode& form) {
    if (g.masterWritten) { // the form before is complete
        write(g, "      RETURN\n");
        write(g, "      END SUBROUTINE\n");
    }
    write(g, "      SUBROUTINE GENERATE%s\n", form.name);
    if (typesBelow(form).holds(TYPE_SLIDER)) {
        write(g, "      INTEGER OWDIVALUES(42)\n");
        write(g, "      REAL OWDRVALUES(6)\n");
        write(g, "      CHARACTER * 256 OWDTEXTSTRING\n");
    }
}

void createForm(Generation& g, const Placed& w) {
    const WidgetNode& form = w.node;
    beginRoutine(g, form);
    if (g.masterWritten) {
        createDialogue(g, w);
    } else {
        createMaster(g, w);
    }
    g.masterWritten = true;
    if (g.windows && form.formType == FORM_MASTER_MDI && form.child && form.child->format == 1) {
        write(g, "      CALL GUIESC(1300,%s,0,0,0,0,0,IRET1,IRET2,\"%s\")\n", form.parentName,
              form.child->backgroundImage);
    }
    const Picture picture = iconPicture(g, form);
    write(g, "      CALL WINICO(%s,'%s',%d,%d)\n", form.name, picture.image, picture.kind, form.iconId);
    resetMaximum(g);
    writeStatusBar(g, form);
    if (!form.entries.empty()) {
        write(g, "C create menu structure for %s\n", form.name);
        writeMenu(g, form);
    }
}

void createMainPanel(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    if (w.form.formType == FORM_MASTER_MDI) return;
    write(g, "C create main panel for form\n");
    write(g, "      CALL WIDTTL(%d)\n", node.titleFlag);
    writePanelColours(g, node);
    write(g, "      CALL PANTYP(0)\n");
    writeMinimum(g, w);
    writeMaximum(g, w);
    write(g, "      CALL WIDPOS(4,1)\n");
    if (g.windows) write(g, "      CALL SCRMOD(0,-1)\n");
    write(g, "      CALL PANEL(%s,0,0,%s)\n", w.form.name, node.name);
    resetScroll(g);
    writePanelImage(g, node);
    resetMaximum(g);
}

// --- Widgets.

void createToolButton(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    write(g, "      CALL ICOTYP(0)\n");
    write(g, "      CALL TOLBUT(%s,1,'%s',%s)\n", w.parent, fortranText(node.text), node.name);
    writeFont(g, w);
    write(g, "      CALL PRPSET(%s,25,%d,0.0D0,' ')\n", node.name, node.colour2);
    write(g, "      CALL PRPSET(%s,26,%d,0.0D0,' ')\n", node.name, node.colour1);
    write(g, "      CALL PRPSET(%s,27,%d,0.0D0,' ')\n", node.name, node.colour3);
    writeHelp(g, node);
    resetMaximum(g);
    writeStatus(g, node);
}

void createButton(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    if (node.onToolbar == 1) return createToolButton(g, w);
    writeMinimum(g, w);
    writeMaximum(g, w);
    write(g, "      CALL BUTATR(%d,%d,%d)\n", node.colour1, node.colour2, node.colour3);
    if (node.size != 100) write(g, "      CALL BUTSIZ(%d)\n", node.size);
    write(g, "      CALL BUTTYP(%d)\n", node.subType);
    writePosition(g, node);
    writeSplit(g, "      CALL BUTTON(%s,%d,%d,'%s',%d,%s)\n", w.parent, node.xpos, node.ypos, fortranText(node.text),
               node.accel, node.name);
    writeFont(g, w);
    writeHelp(g, node);
    resetMaximum(g);
    writeStatus(g, node);
}

void createToggle(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    writeMinimum(g, w);
    write(g, "      CALL TOGTYP(%d)\n", node.subType);
    write(g, "      CALL TOGSIZ(%d)\n", node.size);
    write(g, "      CALL TOGATR(%d,%d,%d)\n", node.colour1, node.colour2, node.colour3);
    writePosition(g, node);
    writeSplit(g, "      CALL TOGGLE(%s,%d,%d,%d,'%s',%s)\n", w.parent, node.xpos, node.ypos, node.initialStatus,
               fortranText(node.text), node.name);
    write(g, "      CALL TOGACC(%s,%d)\n", node.name, node.accel);
    writeEnding(g, w);
}

// A label's line ends become bars like an entry's: a string cannot run over the end of a line.
void createText(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    const bool editable = node.type == TYPE_TEXT_ENTRY;
    writeMinimum(g, w);
    write(g, "      CALL TEXATR(%d,%d,%d,%d)\n", node.colour1, node.colour2, node.colour3, node.justify);
    write(g, "      CALL TEXTYP(%d,%d)\n", node.subType, node.sign);
    if (node.size != 100) write(g, "      CALL TEXSIZ(%d)\n", node.size);
    writePosition(g, node);
    writeEntryBorder(g, node);
    writeScroll(g, "0", node);
    writeSplit(g, "      CALL TEXENT(%s,%d,%d,'%s ',%d,%d,%s)\n", w.parent, node.xpos, node.ypos,
               fortranText(fieldText(node)), node.fieldWidth, editable ? 0 : 1, node.name);
    writeHelp(g, node);
    if (editable) resetScroll(g);
    writeFont(g, w);
    writeStatus(g, node);
}

void createValue(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    const bool editable = node.type == TYPE_VALUE_ENTRY;
    writeMinimum(g, w);
    if (editable) writeEntryBorder(g, node);
    write(g, "      CALL VALATR(%d,%d,%d,%d)\n", node.colour1, node.colour2, node.colour3,
          editable ? -1 : node.justify);
    write(g, "      CALL VALTYP(%d,%d)\n", node.subType, node.sign);
    if (node.size != 100) write(g, "      CALL VALSIZ(%d)\n", node.size);
    writePosition(g, node);
    writeSplit(g, "      CALL VALENT(%s,%d,%d,%#g,%d,%d,%d,%s)\n", w.parent, node.xpos, node.ypos, node.value,
               node.fieldWidth, node.format, editable ? 0 : 1, node.name);
    if (editable) write(g, "      CALL VALLIM(%s,%#g,%#g)\n", node.name, node.minValue, node.maxValue);
    writeEnding(g, w);
}

constexpr int ICON_BUTTON = 7; // subType; the old interface calls it 0

void writeIconType(Generation& g, const WidgetNode& node) {
    write(g, "      CALL ICOTYP(%d)\n", node.subType == ICON_BUTTON ? 0 : node.subType);
}

// The image of a labelled icon is a string, so it stands between quotes.
void createPlainIcon(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    const Picture picture = iconPicture(g, node);
    writeMinimum(g, w);
    write(g, "      CALL ICOSIZ(%d)\n", node.size);
    writeIconType(g, node);
    writePosition(g, node);
    if (picture.kind == 4 && !node.text.empty()) {
        writeSplit(g, "      CALL BUTICO(%s,%d,%d,'%s','%s',%s)\n", w.parent, node.xpos, node.ypos,
                   fortranText(node.text), picture.image, node.name);
    } else {
        writeSplit(g, "      CALL ICODEF(%s,%d,%d,'%s',%d,%d,%s)\n", w.parent, node.xpos, node.ypos, picture.image,
                   picture.kind, node.iconId, node.name);
    }
}

void createIcon(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    if (node.onToolbar == 1) {
        writeIconType(g, node);
        write(g, "      CALL TOLBUT(%s,0,'%s',%s)\n", w.parent, toolPicture(node).image, node.name);
    } else {
        createPlainIcon(g, w);
    }
    writeHelp(g, node);
    if (!node.text.empty()) writeFont(g, w);
    writeStatus(g, node);
}

// Description width and icons are set ahead of the creation and reset behind it; `operation` is that of the type.
void writeListCreation(Generation& g, const Placed& w, int operation, std::string_view format) {
    const WidgetNode& node = w.node;
    const bool described = node.fieldWidth > 0 || node.displayIcons == 1;
    const auto writeDescription = [&](int width, int icons) {
        if (described) {
            write(g, "      CALL GUIESC(%d, %d, %d, 0, 0, 0, 0, iret1, iret2, ' ')\n", operation, width, icons);
        }
    };
    writeDescription(node.fieldWidth, node.displayIcons);
    writeSplit(g, format, w.parent, node.xpos, node.ypos, node.contents, node.name);
    writeDescription(0, 0);
}

void createListBox(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    writeMinimum(g, w);
    writeMaximum(g, w);
    write(g, "      CALL LISTYP(%d,%d,%d)\n", node.subType, node.approxSize, node.sorted);
    writePosition(g, node);
    writeListCreation(g, w, 111, "      CALL LISBOX(%s,%d,%d,%d,%s)\n");
    writeHelp(g, node);
    writeFont(g, w);
    writeListEntries(g, node, g.language.listComment);
    writeStatus(g, node);
    resetMaximum(g);
}

void createComboBox(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    writeMinimum(g, w);
    write(g, "      CALL COMTYP(%d,%d)\n", node.editMode, node.sorted);
    writePosition(g, node);
    writeListCreation(g, w, 110, "      CALL COMBO(%s,%d,%d,%d,%s)\n");
    writeHelp(g, node);
    writeFont(g, w);
    if (hasListEntries(node)) {
        writeListEntries(g, node, g.language.comboComment);
        write(g, "C select first entry in list for display\n");
        write(g, "      CALL LISSET(%s,1,' ',2)\n", node.name);
    }
    writeStatus(g, node);
}

int sliderType(int subType) { return subType == 32764 ? 0 : subType == 32763 ? 1 : subType; }

void createSlider(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    writeMinimum(g, w);
    write(g, "      CALL SLITYP(%d)\n", sliderType(node.subType));
    write(g, "      CALL SLISIZ(%d)\n", node.size);
    write(g, "      CALL SLIATR(%d,%d,%d)\n", node.colour1, node.colour2, node.colour3);
    writePosition(g, node);
    writeSplit(g, "      CALL SLIDER(%s,%d,%d,%f,%f,%f,%f,%s)\n", w.parent, node.xpos, node.ypos, node.minValue,
               node.maxValue, node.stepValue, node.value, node.name);
    writeHelp(g, node);
    write(g, "C set correct width/height for %s\n", node.name);
    writeSplit(g, "      CALL WIDINF(%s,OWDTEXTSTRING,OWDIVALUES,42,OWDRVALUES,6)\n", node.name);
    write(g, "      OWDIVALUES(3) = %d\n", node.width);
    write(g, "      OWDIVALUES(4) = %d\n", node.height);
    writeSplit(g, "      CALL WIDCHA(%s,OWDTEXTSTRING,OWDIVALUES,42,OWDRVALUES,6)\n", node.name);
    writeStatus(g, node);
}

void createPanel(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    writeMinimum(g, w);
    writePanelColours(g, node);
    write(g, "      CALL PANTYP(%d)\n", node.subType);
    write(g, "      CALL WIDTTL(%d)\n", node.titleFlag);
    if (node.titleFlag != 0 && node.scrollMode == -1) writeTitleText(g, node);
    writePosition(g, node);
    writeScroll(g, "0", node);
    writeSplit(g, "      CALL PANEL(%s,%d,%d,%s)\n", w.parent, node.xpos, node.ypos, node.name);
    writePanelImage(g, node);
    writeHelp(g, node);
    if (node.titleFlag != 0) writeFont(g, w);
    resetScroll(g);
    writeStatus(g, node);
}

void createRadioBox(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    writeMinimum(g, w);
    writePanelColours(g, node);
    write(g, "      CALL PANTYP(%d)\n", node.borderType);
    write(g, "      CALL RADTYP(2)\n");
    write(g, "      CALL WIDTTL(%d)\n", node.titleFlag);
    if (node.titleFlag != 0) writeTitleText(g, node);
    writePosition(g, node);
    writeSplit(g, "      CALL RADIO(%s,%d,%d,%s)\n", w.parent, node.xpos, node.ypos, node.name);
    writeHelp(g, node);
    writeStatus(g, node);
}

void createGraphicsFrame(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    writeMinimum(g, w);
    writePosition(g, node);
    if (g.windows && node.subType == 0) write(g, "      CALL FRATYP(0)\n");
    if (g.windows && node.subType == FRAME_OPENGL) write(g, "      CALL FRATYP(1)\n");
    writeSplit(g, "      CALL FRADEF(%s,%d,%d,%f,%f,%s)\n", w.parent, node.xpos, node.ypos, node.xMax, node.yMax,
               node.name);
    writeHelp(g, node);
    writeSplit(g, "      CALL FRALIM(%s,%f,%f,%f,%f)\n", node.name, node.xMin, node.yMin, node.xMax, node.yMax);
    writeStatus(g, node);
    write(g, "      CALL FRACLE(%s)\n", node.name);
}

void createArray(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    writeMinimum(g, w);
    writeMaximum(g, w);
    writeSplit(g, "      CALL ARRATR(%d,%d,0,%d,%d,'%s','%s')\n", node.yLabelsWidth, node.xLabelsHeight,
               node.alignXLabels, node.alignYLabels, fortranText(node.xLabels), fortranText(node.yLabels));
    writePosition(g, node);
    writeSplit(g,
               node.type == TYPE_TEXT_ARRAY ? "      CALL TEXARR(%s,%d,%d,%d,%d,%s)\n"
                                            : "      CALL VALARR(%s,%d,%d,%d,%d,%s)\n",
               w.parent, node.xpos, node.ypos, node.columns, node.rows, node.name);
    writeHelp(g, node);
    writeScroll(g, node.name, node);
    for (const CellSize& cell : cellSizes(w.node)) {
        write(g, "      CALL CELSIZ(%s,%d,%d,%d,%d)\n", node.name, cell.column, cell.row, cell.width, cell.height);
    }
    writeFont(g, w);
    writeStatus(g, node);
    resetMaximum(g);
}

int dockSide(int initialPosition) {
    return initialPosition == -1 ? 1 : initialPosition == 2 || initialPosition == 3 ? initialPosition : 0;
}

void createToolBar(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    write(g, "      CALL WIDSTR('%s')\n", fortranText(node.text));
    if (node.titleFlag == 1) write(g, "      CALL REMMOD(2)\n");
    if (node.titleFlag == 2) write(g, "      CALL REMMOD(0)\n");
    write(g, "      CALL TOLBAR(%s,%d,%d,%s)\n", w.parent, dockSide(node.initialPosition), node.iconSize, node.name);
    if (node.initialPosition != FLOATING) return;
    writeSplit(g, "      CALL GUIESC(5050, %s, %d, %d, %d, %d, 0, iret1, iret2, ' ')\n", node.name, node.xpos,
               node.ypos, node.width, node.initialPosition);
}

void createTabBox(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    writeMinimum(g, w);
    writeMaximum(g, w);
    write(g, "      CALL PANMAS(%s,%d,%d,%s)\n", w.parent, node.xpos, node.ypos, node.name);
    writePosition(g, node);
    writeFont(g, w);
}

void createGauge(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    writeMinimum(g, w);
    writePosition(g, node);
    writeSplit(g, "      CALL GAUGE(%s,%d,%d,%d,'%s',%s)\n", w.parent, node.xpos, node.ypos, wholeNumber(node.value),
               node.icon, node.name);
    writeSplit(g, "      CALL GAGLIM(%s,%d,%d)\n", node.name, wholeNumber(node.minValue), wholeNumber(node.maxValue));
    writeSplit(g, "      CALL GAGTYP(%s,%d,%d,%d)\n", node.name, node.subType, node.topTicks, node.bottomTicks);
    writeHelp(g, node);
    writeStatus(g, node);
}

constexpr int PROGRESS_SMOOTH = 32745; // subType; the old interface calls it 1

void createProgressBar(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    writeMinimum(g, w);
    writePosition(g, node);
    writeSplit(g, "      CALL PROBAR(%s,%d,%d,%d,%s)\n", w.parent, node.xpos, node.ypos,
               node.subType == PROGRESS_SMOOTH ? 1 : 0, node.name);
    writeSplit(g, "      CALL PROLIM(%s,%d,%d)\n", node.name, wholeNumber(node.minValue), wholeNumber(node.maxValue));
    if (wholeNumber(node.value) != 0) write(g, "      CALL PROSET(%s,%d)\n", node.name, wholeNumber(node.value));
    writeHelp(g, node);
    writeStatus(g, node);
}

// Line ends become bars: a string cannot run over the end of a line.
void createTtyEntry(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    writeMinimum(g, w);
    write(g, "      CALL TEXATR(%d,%d,%d,-1)\n", node.colour1, node.colour2, node.colour3);
    write(g, "      CALL TEXTYP(0,%d)\n", node.sign);
    writePosition(g, node);
    writeSplit(g, "      CALL TTYENT(%s,%d,%d,%d,'%s',%s)\n", w.parent, node.xpos, node.ypos, node.size,
               fortranText(fieldText(node)), node.name);
    writeEnding(g, w);
}

void createTreeView(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    writeMinimum(g, w);
    writeMaximum(g, w);
    writePosition(g, node);
    writeSplit(g, "      CALL TREBOX(%s,%d,%d,%d,%s)\n", w.parent, node.xpos, node.ypos, node.subType, node.name);
    writeTreeEntries(g, node);
    writeFont(g, w);
    writeStatus(g, node);
    resetMaximum(g);
}

void createTableBox(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    writeMinimum(g, w);
    writeMaximum(g, w);
    writePosition(g, node);
    writeSplit(g, "      CALL TABBOX(%s,%d,%d,%s)\n", w.parent, node.xpos, node.ypos, node.name);
    for (const TableColumn& column : tableColumns(w.node)) {
        if (column.labelled) {
            writeSplit(g, "      CALL TABCOL(%s, %d, %d, -1,'%s');\n", node.name, column.number, column.width,
                       fortranText(column.label));
        } else {
            writeSplit(g, "      CALL TABCOL(%s, %d, %d, -1, ' ');\n", node.name, column.number, column.width);
        }
    }
    writeFont(g, w);
    writeStatus(g, node);
    resetMaximum(g);
}

void createToolSeparator(Generation& g, const Placed& w) {
    write(g, "      CALL TOLSEP(%s,%s)\n", w.parent, w.node.name);
    write(g, "      CALL PRPSET(%s,42,%d,0.0D0,' ')\n", w.node.name, w.node.subType);
    writeEnding(g, w);
}

// Docking panes are unknown to the old interface.
constexpr CreationRows CREATION = {
    {TYPE_FORM, createForm},
    {TYPE_MAIN_PANEL, createMainPanel},
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
    {TYPE_PANE, nullptr},
};
static_assert(Missing<missingRow(CREATION)>::none);

} // namespace

const CreationRows& FORTRAN_77_CREATION = CREATION;
