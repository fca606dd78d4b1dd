// The editor of the entries of a tree view.
#include "dialogues/editors.h"
#include "dialogues/entry_editor.h"
#include "project/menu_chain.h"
#include "project/tree.h"
#include "surface/live.h"
#include "surface/selection.h"
#include "surface/state.h"

namespace {

constexpr short TOP = ENTRY_LIST_HEIGHT; // of the list: the fields stand above it

constexpr Control CONTROLS[] = {
    entryLabel(" Caption:", TOP + 88),
    entryText(ENTRY_CAPTION, TOP + 88, 154, entry::captionChanged, entry::captionTyped),
    entryLabel(" Name:", TOP + 66),
    entryText(ENTRY_NAME, TOP + 66, 154, entry::nameChanged),
    entryLabel(" Icon:", TOP + 44),
    entryText(ENTRY_ICON1, TOP + 44, 132, entry::iconChanged),
    entryBrowse(ENTRY_BROWSE1, TOP + 44, entry::browse1),
    entryLabel(" Close Icon:", TOP + 22),
    entryText(ENTRY_ICON2, TOP + 22, 132, entry::iconChanged),
    entryBrowse(ENTRY_BROWSE2, TOP + 22, entry::browse2),
    entryLabel(" Open Icon:", TOP),
    entryText(ENTRY_ICON3, TOP, 132, entry::iconChanged),
    entryBrowse(ENTRY_BROWSE3, TOP, entry::browse3),
    {.field = Field::Default,
     .id = ENTRY_TREE_OK,
     .text = "OK",
     .x = 242,
     .y = TOP + 88,
     .width = 88,
     .mnemonic = 'O',
     .changed = entry::accept},
    rowButton(ENTRY_TREE_CANCEL, "Cancel", TOP + 66, 'C', entry::cancel),
    rowButton(ENTRY_CODE, "Code", TOP + 22, 'e', entry::code),
    entryArrow(ENTRY_LEFT, "larrow", 242, "Up one level (Alt+Left)", entry::left),
    entryArrow(ENTRY_RIGHT, "rarrow", 264, "Down one level (Alt+Right)", entry::right),
    entryArrow(ENTRY_UP, "uarrow", 286, "Up in the list (Alt+Up)", entry::up),
    entryArrow(ENTRY_DOWN, "darrow", 308, "Down in the list (Alt+Down)", entry::down),
    rowButton(ENTRY_NEXT, "Next", 88, 'N', entry::next),
    rowButton(ENTRY_PREV, "Prev", 66, 'P', entry::previous),
    rowButton(ENTRY_INSERT, "Insert", 44, 'I', entry::insert),
    rowButton(ENTRY_DELETE, "Delete", 22, 'D', entry::remove),
    rowButton(ENTRY_DELETE_ALL, "Delete All", 0, 'A', entry::removeAll),
    entryList(),
};

const Dialogue DIALOGUE = {.title = "Tree View Editor",
                           .icon = "Treeview",
                           .help = "Tree View Editor",
                           .width = 330,
                           .height = TOP + 110,
                           .windowEvent = ENTRY_TREE_WINDOW,
                           .controls = CONTROLS,
                           .cancel = ENTRY_TREE_CANCEL,
                           .first = ENTRY_CAPTION,
                           .fill = entry::fill,
                           .refresh = entry::refresh,
                           .keys = ENTRY_KEYS};

void selectAgain() {
    if (project.currentWidget) selectWidget(project.currentWidget);
}

void finish(const MenuEntries& entries) {
    WidgetNode* tree = editedOwner();
    if (!tree) return;
    owAdoptChild(0, 0, 0);
    tree->entries = buildChain(entries, *tree);
    rebuildWidget(*tree);
    selectAgain();
}

} // namespace

void openTreeEditor(WidgetNode& treeView) {
    selectTool(TOOL_SELECTOR);
    openEntryEditor({&DIALOGUE, false, nullptr, finish, selectAgain}, treeView);
}
