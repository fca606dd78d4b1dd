// A project whose every text is given, and what its program is to show of each.
#pragma once

#include "project/records.h"

#include <functional>
#include <string>
#include <vector>

struct Shown {
    std::string property; // and the form, for the message of a failure
    std::string what;     // as the probe calls it
    std::string text;
};

// The text for the next property, at most so many bytes.
using Typing = std::function<std::string(std::size_t limit)>;

WidgetNode& beginTexts(int language);
// A form with a widget of every type that has texts; everything typed is noted with what is to be seen of it.
void addTextForm(int language, const std::string& name, const Typing& typing, std::vector<Shown>& shown);
