#include "support/file_writer.h"
#include "project/widget_types.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

struct Stream {
    const FileImage& image;
    std::string bytes;

    bool from(int version) const { return image.version >= version; }

    void slot(const std::string& content, std::size_t size) {
        std::string field = content.substr(0, size);
        if (field.size() < size) field += '\0';
        field.resize(size, image.padding);
        bytes += field;
    }
    void num(int value) { slot(std::to_string(value), 25); }
    void real(const char* format, float value) {
        char text[64];
        std::snprintf(text, sizeof text, format, static_cast<double>(value));
        slot(text, 25);
    }
    void str(const std::string& value) { slot(value.substr(0, 255), 256); }
    void key(const char* word) { slot(word, 7); }
    void code(const std::string& text, const char* after = "") {
        slot(std::to_string(text.size() + 2) + after, 25);
        bytes += text;
        bytes += '\0';
        bytes += image.padding;
    }
};

void text(Stream& s, const WidgetNode& n) {
    std::size_t size = 256;
    if (s.from(30)) size = std::min<std::size_t>(static_cast<std::size_t>(std::llabs(n.fieldWidth)) + 1, 32769);
    std::string buffer(32769, '\0');
    buffer.replace(0, n.text.size(), n.text);
    s.bytes += buffer.substr(0, size);
}

void fields(Stream& s, const WidgetNode& n) {
    s.str(n.name);
    s.num(n.selected);
    s.num(n.storedFormCallbackId);
    s.str(n.icon);
    s.str(n.backgroundImage);
    s.str(n.parentName);
    if (s.from(20)) s.str(n.bubbleHelp);
    s.num(n.formType);
    s.num(codeOf(n));
    s.num(n.reserved);
    s.num(n.storedParentHandle);
    s.num(n.xpos);
    s.num(n.ypos);
    s.num(n.width);
    s.num(n.height);
    s.num(n.initialStatus);
    s.num(n.titleFlag);
    s.num(n.iconId);
    s.num(n.subType);
    s.num(n.size);
    s.num(n.accel);
    s.num(n.fieldWidth);
    s.num(n.justify);
    s.num(n.sign);
    s.num(n.format);
    s.num(n.editMode);
    s.num(n.columns);
    s.num(n.rows);
    for (float value : {n.value, n.minValue, n.maxValue, n.stepValue}) s.real("%g", value);
    s.num(n.borderType);
    for (int colour : {n.colour1, n.colour2, n.colour3, n.colour4}) s.num(colour);
    for (float limit : {n.xMin, n.yMin, n.xMax, n.yMax}) s.real("%f", limit);
    text(s, n);
    s.num(n.hpos);
    s.num(n.vpos);
    s.num(n.expand);
    s.num(n.sorted);
    s.num(n.approxSize);
    s.num(n.quitMode);
    if (s.from(20)) {
        s.num(n.yLabelsWidth);
        s.num(n.xLabelsHeight);
        s.str(n.xLabels);
        s.str(n.yLabels);
        s.num(n.alignXLabels);
        s.num(n.alignYLabels);
        if (!s.from(40)) s.num(s.image.strayGridMode);
        s.num(n.activeOnInit);
        s.num(n.iconSize);
        s.num(n.initialPosition);
        s.num(n.onToolbar);
    }
    if (s.from(30)) {
        s.num(n.initialState);
        s.num(n.scrollMode);
        s.num(n.dragMode);
        s.num(n.topTicks);
        s.num(n.bottomTicks);
        s.num(n.accessMode);
        s.str(n.fontFace);
        s.num(n.pointSize);
        s.num(n.charSet);
    }
    if (s.from(40))
        for (int number : {n.bold, n.italic, n.underline, n.strikeout, n.contents}) s.num(number);
    if (s.from(50)) {
        s.str(n.closeIcon);
        s.str(n.openIcon);
        for (int number : {n.displayIcons, n.helpJustify, n.oleInserts, n.cellBackground, n.cellBorder, n.readOnly})
            s.num(number);
    }
    if (s.from(70))
        for (int number : {n.formHidden, n.autoUrl, n.tabAction, n.tabList}) s.num(number);
}

void slots(Stream& s, const WidgetNode& n) {
    for (int slot : {SLOT_GENERAL, SLOT_SELECT, SLOT_MOVE, SLOT_EXPOSE}) s.code(n.slots[slot]);
    if (s.from(30))
        for (int slot : {SLOT_CHANGE, SLOT_DOUBLE_CLICK, SLOT_DRAG_SELECT, SLOT_DRAG_MOVE, SLOT_DRAG_DROP})
            s.code(n.slots[slot]);
    if (s.from(40))
        for (int slot : {SLOT_FILE_DROP, SLOT_WINDOW_MOVED, SLOT_WINDOW_RESIZED, SLOT_WINDOW_QUIT,
                         SLOT_WINDOW_MINIMIZED, SLOT_WINDOW_SCROLLED, SLOT_WINDOW_LOST_FOCUS})
            s.code(n.slots[slot]);
    if (s.from(50)) s.code(n.slots[SLOT_VALUE_ERROR]);
    if (s.from(70)) s.code(n.slots[SLOT_HYPERLINK]);
}

void entry(Stream& s, const MenuEntryRec& e) {
    s.str(e.name);
    s.str(e.label);
    if (s.from(50))
        for (const std::string* icon : {&e.icon1, &e.icon2, &e.icon3}) s.str(*icon);
    if (s.from(21)) s.str(e.help);
    s.code(e.slots[ENTRY_GENERAL], "\n");
    if (s.from(50))
        for (int slot : {ENTRY_SELECT, ENTRY_CHANGE, ENTRY_DRAG_DROP, ENTRY_DOUBLE_CLICK}) s.code(e.slots[slot], "\n");
    for (int number : {e.kind, e.level, e.storedHandle, e.accel}) s.num(number);
}

void chain(Stream& s, const WidgetNode* n);

void record(Stream& s, const WidgetNode& n) {
    fields(s, n);
    slots(s, n);
    if (!n.columnWidths.empty()) {
        s.key("ARRAY");
        for (int width : n.columnWidths) s.num(width);
        for (int height : n.rowHeights) s.num(height);
    }
    if (n.statusBar && n.type == TYPE_FORM) {
        s.key("STABAR");
        s.num(n.statusBar->storedHandle);
        for (int size : n.statusBar->sizes) s.num(size);
        for (const std::string& pane : n.statusBar->texts) s.str(pane);
        s.num(n.statusBar->panes);
        s.str(n.statusBar->name);
    }
    if (!n.entries.empty()) s.key("MENU");
    for (const MenuEntryRec& e : n.entries) {
        entry(s, e);
        s.key(&e != &n.entries.back() ? "NEXT" : "END");
    }
    if (!n.listEntries.empty()) s.key("LIST");
    for (const ListEntryRec& e : n.listEntries) {
        s.str(e.text);
        if (s.from(50)) s.str(e.icon);
        s.key(&e != &n.listEntries.back() ? "NEXT" : "END");
    }
    if (n.child) {
        s.key("CHILD");
        chain(s, n.child);
    }
}

void chain(Stream& s, const WidgetNode* n) {
    for (; n; n = n->next) {
        record(s, *n);
        s.key(n->next ? "NEXT" : n->type == TYPE_FORM ? "ENDFIL" : "END");
    }
}

void header(Stream& s) {
    const std::string version = std::to_string(s.image.version / 10) + "." + std::to_string(s.image.version % 10);
    s.slot("ORBAWIDGDESIGNV" + version + "-" + s.image.marks, 100);
}

void counters(Stream& s, const ProjectState& p) {
    const auto& c = p.counters;
    s.num(p.nextFormNumber);
    for (int counter : {COUNTER_BUTTON, COUNTER_TOGGLE, COUNTER_LIST, COUNTER_SLIDER, COUNTER_SLIDER, COUNTER_TEXT,
                        COUNTER_VALUE, COUNTER_ICON})
        s.num(c[counter]);
    for (int unused = 0; unused < 3; ++unused) s.num(1);
    for (int counter : {COUNTER_PANEL, COUNTER_COMBO, COUNTER_RADIO, COUNTER_GRAPHICS}) s.num(c[counter]);
    s.num(1);
    if (!s.from(20)) return;
    for (int counter : {COUNTER_TXT_ARRAY, COUNTER_VAL_ARRAY, COUNTER_TOOL_BAR}) s.num(c[counter]);
    s.num(1);
    s.num(c[COUNTER_TAB_DIA_BOX]);
    s.num(1);
    if (!s.from(30)) return;
    for (int counter : {COUNTER_GAUGE, COUNTER_PROGRESS, COUNTER_TTY_ENTRY, COUNTER_TREE_VIEW, COUNTER_TABLE_BOX})
        s.num(c[counter]);
    if (!s.from(71)) return;
    for (int counter : {COUNTER_TOOL_SEP, COUNTER_PANE}) s.num(c[counter]);
}

void halves(Stream& s, std::int64_t time) {
    std::int32_t parts[2];
    std::memcpy(parts, &time, sizeof time);
    s.num(parts[0]);
    s.num(parts[1]);
}

std::string joined(const FileList& list) {
    std::string names;
    for (const std::string& name : list)
        if (!name.empty()) names += (names.empty() ? "" : ", ") + name;
    return names;
}

void oldTail(Stream& s, const ProjectState& p) {
    const auto block = [&](int index) { s.slot(p.codeBlocks[index], 32768); };
    for (int index : {BLOCK_LOCAL_VARIABLES, BLOCK_INITIALIZATION, BLOCK_LOOP_START, BLOCK_TERMINATION}) block(index);
    if (!s.from(20)) return;
    block(BLOCK_PRE_ACTION);
    if (s.from(21)) block(BLOCK_USER_ROUTINES);
    s.num(p.customSwitches);
    s.str(p.compilerSwitches);
    for (int list : {LIST_MODULES, LIST_SOURCES, LIST_OBJECTS, LIST_LIBRARIES}) s.str(joined(p.fileLists[list]));
}

void tail(Stream& s, const ProjectState& p) {
    s.num(p.customSwitches);
    for (const FileList& list : p.fileLists) s.num(static_cast<int>(list.size()));
    s.str(p.compilerSwitches);
    s.str(p.linkerSwitches);
    for (int list = 0; list < FILE_LISTS; ++list)
        for (std::size_t i = 0; i < p.fileLists[list].size(); ++i) {
            s.str(p.fileLists[list][i]);
            if (list == LIST_SOURCES && s.from(40)) halves(s, p.sourceFileTimes[i]);
        }
    s.str(p.sourceDir);
    if (s.from(40)) {
        s.str(p.sourceName);
        s.num(p.sourceStale);
        s.num(p.sourceStale);
        halves(s, p.exeTime);
    }
    for (int block = 0; block < CODE_BLOCKS; ++block)
        if (block != BLOCK_GLOBAL_ROUTINES || s.from(51)) s.code(p.codeBlocks[block]);
    if (s.from(70)) s.slot(p.currentBlockName, 51);
}

} // namespace

std::string encodeChain(const FileImage& image, const WidgetNode* first) {
    Stream s{image, {}};
    chain(s, first);
    return s.bytes;
}

std::string encodeProject(const FileImage& image, const ProjectState& p) {
    Stream s{image, {}};
    header(s);
    if (s.from(40))
        for (int number : {p.gridHoriz, p.gridVert, p.gridMode, p.scalable}) s.num(number);
    if (s.from(30))
        for (int number : {p.snapOn, p.snapGrid}) s.num(number);
    chain(s, p.forms);
    for (float part : image.colours) s.real("%f", part);
    counters(s, p);
    s.from(30) ? tail(s, p) : oldTail(s, p);
    return s.bytes;
}

std::string encodeForm(const FileImage& image, const WidgetNode* first, int snapX, int snapY) {
    Stream s{image, {}};
    header(s);
    s.num(snapX);
    s.num(snapY);
    chain(s, first);
    return s.bytes;
}

std::string encodeDefaults(const FileImage& image, const std::vector<const WidgetNode*>& records) {
    Stream s{image, {}};
    if (s.from(40)) header(s);
    for (float part : image.colours) s.real("%f", part);
    for (const WidgetNode* n : records) {
        const bool later = n->type == TYPE_TREE_VIEW || n->type == TYPE_TABLE_BOX ? !s.from(40)
                           : n->type == TYPE_TOOL_SEPARATOR                       ? !s.from(50)
                           : n->type == TYPE_PANE                                 ? !s.from(70)
                                                                                  : false;
        if (later) continue;
        record(s, *n);
        s.key(n->type == TYPE_FORM ? "ENDFIL" : "END");
    }
    return s.bytes;
}
