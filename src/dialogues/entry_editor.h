// What the editors of menus and of tree views share: a private copy of the entries, the fields of the one that is
// edited, and everything that can be done with them. Each editor has its own table of controls and says by `finish`
// what becomes of the entries on OK.
#pragma once

#include "dialogues/row_editor.h"
#include "project/records.h"

enum EntryControl : int {
    ENTRY_ACCELERATOR = 15231,
    ENTRY_MENU_CANCEL = 15233,
    ENTRY_CAPTION = 15234,
    ENTRY_DELETE = 15235,
    ENTRY_DELETE_ALL = 15236,
    ENTRY_DOWN = 15237,
    ENTRY_HELP = 15238,
    ENTRY_INSERT = 15239,
    ENTRY_LEFT = 15240,
    ENTRY_LIST = 15241,
    ENTRY_NAME = 15242,
    ENTRY_NEXT = 15243,
    ENTRY_MENU_OK = 15244,
    ENTRY_PREV = 15246,
    ENTRY_RIGHT = 15248,
    ENTRY_SEPARATOR = 15250,
    ENTRY_UP = 15253,
    ENTRY_ICON1 = 15256, // uncheck icon of a menu entry, icon of a tree entry
    ENTRY_BROWSE1 = 15257,
    ENTRY_BROWSE2 = 15258,
    ENTRY_BROWSE3 = 15259,
    ENTRY_TREE_WINDOW = 15521,
    ENTRY_TREE_OK = 15560,
    ENTRY_TREE_CANCEL = 15561,
    ENTRY_ICON2 = 15832, // check icon, close icon
    ENTRY_ICON3 = 15833, // grey icon, open icon
    ENTRY_CODE = 15834,
    ENTRY_MENU_WINDOW = 15835,
};

using MenuEntries = std::vector<MenuEntryRec>;

struct EntryEditor {
    const Dialogue* dialogue = nullptr;
    bool menu = false;                                     // of a form; else of a tree view
    void (*preview)(const MenuEntries& entries) = nullptr; // shown after every change; null for nothing
    void (*finish)(const MenuEntries& entries) = nullptr;  // OK: they have no fault
    void (*abandon)() = nullptr;                           // Cancel
};

void openEntryEditor(const EntryEditor& editor, WidgetNode& owner);
WidgetNode* editedOwner(); // null when none is edited

// Handlers of the controls.
namespace entry {
void captionTyped();
void captionChanged();
void nameChanged();
void helpChanged();
void acceleratorChanged();
void iconChanged();
void browse1();
void browse2();
void browse3();
void chooseRow();
void editRow(); // double click
void next();
void previous();
void insert();
void remove();
void removeAll();
void separator();
void left();
void right();
void up();
void down();
void moveRow(int from, int to);
void code();
void accept();
void cancel();
void fill();
void refresh();
} // namespace entry

// ---- Rows of the tables.

inline constexpr short ENTRY_LIST_HEIGHT = 242;

constexpr Control entryLabel(const char* text, short y) {
    return {.field = Field::Label, .text = text, .y = y, .width = 88};
}
constexpr Control entryText(int id, short y, short width, void (*changed)(), void (*typed)() = nullptr) {
    return {.field = Field::Text, .id = id, .x = 88, .y = y, .width = width, .changed = changed, .typed = typed};
}
constexpr Control entryBrowse(int id, short y, void (*pressed)()) {
    return {.field = Field::Picture,
            .id = id,
            .text = "dotdotdot",
            .x = 220,
            .y = y,
            .width = 22,
            .changed = pressed,
            .help = "Browse for more icons"};
}
constexpr Control entryArrow(int id, const char* icon, short x, const char* help, void (*pressed)()) {
    return {.field = Field::Picture,
            .id = id,
            .text = icon,
            .x = x,
            .y = 132,
            .width = 22,
            .changed = pressed,
            .help = help};
}
constexpr Control entryList() {
    return {.field = Field::List,
            .id = ENTRY_LIST,
            .width = 242,
            .height = ENTRY_LIST_HEIGHT,
            .changed = entry::chooseRow,
            .entered = entry::editRow,
            .moved = entry::moveRow};
}

// The cursor keys with Alt move and indent the entry; Del in the list deletes it.
constexpr int withAlt(int key) { return key + 4000; }
inline constexpr DialogueKey ENTRY_KEYS[] = {
    {withAlt(OKEYLEFT), ENTRY_LEFT}, {withAlt(OKEYRIGHT), ENTRY_RIGHT},   {withAlt(OKEYUP), ENTRY_UP},
    {withAlt(OKEYDOWN), ENTRY_DOWN}, {OKEYDEL, ENTRY_DELETE, ENTRY_LIST},
};
