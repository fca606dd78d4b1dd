// Where the user's code lives: nine blocks of the project, slots of widgets and entries; and the editing copies that
// the code editor works on until it commits.
#pragma once

#include "project/records.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The nine blocks, by CodeBlockIndex; the list position of a block is its index plus 1.
struct CodeBlockRow {
    const char* name;    // in the code editor's list
    const char* comment; // that marks it in generated source
};
extern const std::array<CodeBlockRow, CODE_BLOCKS> codeBlockTable;

inline constexpr int IDENTIFIER_STRIDE = 50000; // OIDENT

// The eighteen slots, by WidgetSlot.
struct SlotRow {
    WidgetSlot slot;
    const char* name;       // in the code editor's list
    int identifier;         // multiple of OIDENT added to the name in generated code; -1: inside the General branch...
    int windowStatus;       // ...under this status; -1 for the others
    const char* defineCall; // toolkit routine that defines it; "" for the window slots
};
extern const std::array<SlotRow, WIDGET_SLOTS> slotTable;

// Places of the slots in a file, and the version (times ten) that brought each.
struct SlotPlace {
    WidgetSlot slot;
    int since;
};
extern const std::array<SlotPlace, WIDGET_SLOTS> slotFileOrder;

// Slot of the table above that each entry slot answers to.
inline constexpr std::array<WidgetSlot, ENTRY_SLOTS> entrySlotKinds = {SLOT_GENERAL, SLOT_SELECT, SLOT_CHANGE,
                                                                       SLOT_DRAG_DROP, SLOT_DOUBLE_CLICK};

inline constexpr char SLOT_SEPARATOR_ROW[] = "------------------------------"; // between blocks and slots in the list
inline constexpr int SLOT_LIST_POSITION = 11;                                  // the remembered selection of all slots

bool isSlotName(std::string_view name);      // it contains "Callback"
int blockIndexOf(std::string_view name);     // CodeBlockIndex, -1 for none
int slotIndexOf(std::string_view name);      // WidgetSlot, -1 for none
int entrySlotIndexOf(std::string_view name); // EntrySlot, -1 for none

// Slots that a widget offers in the project, in list order; empty for a type that has none.
std::vector<WidgetSlot> offeredSlots(const WidgetNode& node);
// Slots of an entry: a menu entry's General, or all five of a tree view's.
std::vector<EntrySlot> offeredEntrySlots(const WidgetNode& owner);

enum EditTarget { EDIT_BLOCK, EDIT_WIDGET_SLOT, EDIT_MENU_SLOT, EDIT_TREE_SLOT };

// State of the code editor beside its text widget. One instance, `codeEditing`.
struct CodeEditing {
    EditTarget target = EDIT_BLOCK;
    int widget = 0; // id of the record whose slots the working slots copy
    std::array<std::string, CODE_BLOCKS> blockCopies;
    std::array<std::string, WIDGET_SLOTS> workingSlots; // of an entry: by entrySlotKinds
    std::array<int, 26> caretStart = allOnes<26>();     // selection last seen, by list position
    std::array<int, 26> caretEnd = allOnes<26>();
    int listPosition = 2;
    bool codeModified = false;

    int entryOwner = 0;                   // id of the form or tree view of the entry copy
    std::vector<MenuEntryRec> entryCopy;  // its entries and separators
    MenuEntryRec* currentEntry = nullptr; // in the copy
    std::string menuEntryName;            // last chosen
    std::string treeEntryName;
};
extern CodeEditing codeEditing;
WidgetNode* ownerOfEntryCopy(); // null when there is none, or no longer

void refreshBlockCopies();                 // from the committed blocks
void loadWorkingSlots(WidgetNode& widget); // copies of the widget's slots; the shown name follows what the type offers

// Chooses the name to show for a newly selected widget, and loads its slots when it has any.
void bindWidgetCode(WidgetNode& widget);

// Makes the private copy of the entries of `owner`, or drops it for null.
void copyEntriesForEditing(WidgetNode* owner);
// Makes the entry of that name current and loads its slots; false when there is none and nothing changed.
bool bindEntryCode(std::string_view entryName);

// The editing copy that project.currentBlockName names; the General slot for a name that matches nothing.
std::string& shownCode();

// Brings the editor's text into the stores. Nothing happens unless codeModified is set. The caret is remembered.
void commitCode(const std::string& text, int caretStart, int caretEnd);

void clearShownCode();   // the editing copy of the shown name
void clearAllCode();     // all nine blocks, and the slots of the widget or entry
void forgetCodeCopies(); // before a project is replaced

// Code of files of old versions: each tilde becomes a bar, each caret a tab.
void convertOldCode(std::string& code);
void convertOldCode(WidgetNode* list);
