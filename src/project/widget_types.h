// What is known of each type of widget, one row each: the names it goes by and the slots of code it offers.
#pragma once

#include "project/records.h"

#include <span>

// A slot that a type offers in the code editor's list.
enum SlotCondition : int { SLOT_ALWAYS, SLOT_ON_WINDOWS, SLOT_ON_MASTER_MDI };
struct OfferedSlot {
    WidgetSlot slot;
    SlotCondition condition = SLOT_ALWAYS;
};

struct WidgetTypeRow {
    WidgetType type;
    const char* label;                  // as the Widget Defaults list names it; "" for types without a default record
    const char* word;                   // of default names: form name, underscore, word, number; "" for none
    Counter counter;                    // that gives the number
    bool onWindowsOnly;                 // cannot stand in an X project
    std::span<const OfferedSlot> slots; // in the order of the code editor's list
};

std::span<const WidgetTypeRow> widgetTypes();
const WidgetTypeRow* widgetType(int type); // null for a code that names no type

// Word of a counter, as default names carry it: "Button", "TxtArray".
const char* counterWord(Counter counter);
