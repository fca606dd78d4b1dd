// A place in the user's code.
#pragma once

struct MenuEntryRec;
struct WidgetNode;

enum class CodePlace {
    none,            // the message leads nowhere
    block,           // one of the nine project blocks
    widgetSlot,      // a slot of `widget`
    entrySlot,       // a slot of the menu or tree entry `entry` of `widget`
    widgetStatement, // generated text that belongs to `widget`; no user's line
};

struct CodeLocation {
    CodePlace place = CodePlace::none;
    int block = 0;                // CodeBlockIndex
    WidgetNode* widget = nullptr; // owner; of the open project
    MenuEntryRec* entry = nullptr;
    int slot = 0;   // WidgetSlot or EntrySlot
    int line = 1;   // of the block or slot, from 1
    int column = 0; // character in that line, from 1; 0: the message told none
};

// The name that the block or slot bears in the "Select Code Block" list: "Initialization", "General Callback".
const char* placeName(const CodeLocation& location);
