// The entries of the choice cells, each with the value that the record holds for it.
#pragma once

#include <span>
#include <string>

struct Choice {
    const char* label;
    int value;
    bool windowsOnly = false; // offered only in projects of platform 'w'
};

using Choices = std::span<const Choice>;

namespace choices {
extern const Choices offOn, onOff, falseTrue, leftCentreRight, horizontalOrigin, verticalOrigin, expand, fill, boundary,
    scrollBars, charSet, valueCharSet, formType, formTitle, barTitle, quitMode, formState, fourStates, threeStates,
    hiddenVisible, buttonType, toggleType, radioType, textType, textTypeMulti, border, valueType, sign, iconType,
    contents, listType, listSorting, comboSorting, listStyle, editable, sliderType, frameType, lineStyle, tabAction,
    barPosition, accessMode, progressType, iconSet, separatorType, pointSize;
} // namespace choices

// Label of `value`; empty when no entry has it. The later of two entries with one label is for reading only.
std::string labelOf(Choices entries, int value);

// Value of the entry of that label; false when there is none.
bool valueOf(Choices entries, const std::string& label, int& value);
