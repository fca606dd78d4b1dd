// The 24 default records that new widgets are copies of, and the file that keeps them. Sizes in them are pixels.
#pragma once

#include "project/tree.h"

#include <array>
#include <string>

inline constexpr int DEFAULT_RECORDS = 24;

// Types of the records in the order of the file.
extern const std::array<WidgetType, DEFAULT_RECORDS> defaultOrder; // by the cards of the types

// The set in force, by the order above. Null while the set is empty.
extern std::array<OwnedList, DEFAULT_RECORDS> defaultRecords;

OwnedList makeDefaultRecord(WidgetType type); // built-in values
WidgetNode* defaultRecord(WidgetType type);   // of the set, built in when the set is empty; null for a type without one
void makeDefaults();                          // the built-in set
void freeDefaults();

// From "wdesign.wdd" in `dataDir`, or built in when there is none.
void loadStartupDefaults(const std::string& dataDir);
bool loadDefaults(const std::string& path); // false after an error box; the old set then stays
bool saveDefaults(const std::string& path); // false after an error box

inline constexpr char STARTUP_DEFAULTS[] = "wdesign.wdd";
