// Projects for tests: one of every widget type, and random ones.
#pragma once

#include "project/records.h"

#include <random>
#include <string>

// A record of `type` with default values and the name, linked below `parent`, or appended as a form when it is null.
WidgetNode* addRecord(WidgetNode* parent, WidgetType type, const std::string& name);
void addEntry(WidgetNode& owner, int kind, int level, const std::string& label, const std::string& name);
void addListEntry(WidgetNode& owner, const std::string& text, const std::string& icon = "");

// An empty project of one form with its main panel.
WidgetNode* freshProject();

// Replaces the open project by one of `widgets` records or a few more over `forms` forms, every field with a value of
// its own, every type where it may stand. The same seed makes the same project.
void randomProject(std::mt19937& random, int forms, int widgets);

// The same with plain values, for measurements: `widgets` records below panels of 50, code in one of ten.
void largeProject(int widgets);
