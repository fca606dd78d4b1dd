// Builds example projects out of records, the way the designer does when a user draws them: each widget is a copy of
// its default record, placed, named and linked into its parent. Positions and sizes are pixels, y upward from the
// bottom.
#pragma once

#include "project/records.h"

#include <initializer_list>
#include <string>

namespace example {

// An empty project of a language (77, 90, 99) whose master window has this title and place for widgets.
WidgetNode& begin(int language, const std::string& name, const std::string& title, int width, int height);

WidgetNode& addForm(const std::string& name, const std::string& title, int formType, int width, int height);
WidgetNode& add(WidgetNode& parent, WidgetType type, const std::string& name, int x, int y, int width, int height,
                const std::string& text = "");
WidgetNode& addLabel(WidgetNode& parent, const std::string& name, int x, int y, int width, const std::string& text);
WidgetNode& addRadioBox(WidgetNode& parent, const std::string& name, int x, int y, int width, int height,
                        const std::string& title, std::initializer_list<const char*> choices);
void addListEntries(WidgetNode& list, std::initializer_list<const char*> texts);
void addStatusBar(WidgetNode& form, const std::string& name, std::initializer_list<int> edges,
                  std::initializer_list<const char*> texts);

// One entry of a tree view or menu; entries with a level above 0 hang below the entry ahead of them.
struct Entry {
    int level;
    const char* name;
    const char* label;
    std::string code = {}; // of the General slot
};
void addTreeEntries(WidgetNode& tree, std::initializer_list<Entry> entries);

// The menu of a form, in the same way; a label that is empty is a separator.
void addMenu(WidgetNode& form, std::initializer_list<Entry> entries);

// Code as the editor keeps it: lines end in carriage return and line feed, no line end at the start or the end.
std::string code(const char* text);

} // namespace example
