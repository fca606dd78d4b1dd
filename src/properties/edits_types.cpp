#include "properties/edits.h"

#include "menu-c.h"
#include "platform/letters.h"
#include "project/host.h"
#include "project/placement.h"
#include "surface/field_text.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/state.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace {

constexpr int LONGEST_STANDARD = 30000, LONGEST_RICH = 32767, LINE = 255; // field widths

// Money comes in negative forms of its own; every other number has just one.
bool takesSign(const WidgetNode& n) { return n.subType >= OPOUND && n.subType <= OYEN; }
bool keepsSign(const WidgetNode& n) { return n.subType >= OPOUND && n.subType <= OEURO; }

void dressRichText(const WidgetNode& n) {
    std::string text = n.text;
    if (!isSingleLine(n)) std::ranges::replace(text, '|', '\n'); // as its creation reads it
    owSetTextSetting(n.handle, text.c_str(), owEntryType, 1, 0);
    owSetFontAttribs(n.handle, owFontFace, n.fontFace.c_str(), owPointSize, n.pointSize, owCharSet, n.charSet, owBold,
                     n.bold, owItalic, n.italic, owUnderline, n.underline, owStrikeout, n.strikeout, 0);
    owSetWidgetProp(n.handle, owTextCol, n.colour3, 0);
    if (!isSingleLine(n)) owSetParagraphProp(n.handle, owJustify, n.justify, 0);
}

void switchOffSisters(WidgetNode& toggle) {
    if (!toggle.parent || toggle.parent->type != TYPE_RADIO_BOX) return;
    for (WidgetNode* sister = toggle.parent->child; sister; sister = sister->next) {
        if (sister->type != TYPE_TOGGLE) continue;
        sister->initialStatus = 0;
        owSetToggleSwitch(sister->handle, 0);
    }
}

void setToggleColours(WidgetNode& toggle) {
    const bool own = toggle.subType != O3DRADIO && toggle.subType != O3DCHECKBOX;
    if (!own) {
        toggle.colour1 = toggle.colour2 = 0;
        toggle.colour3 = 1;
    }
}

} // namespace

void editFormType(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    if (changeFormType(target, input.value)) markEdited();
}

void editButtonType(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    if (input.value != OUSERDEFINED) {
        target.colour1 = target.colour2 = target.colour3 = 0;
        target.justify = 0;
    }
    storeAndFollow(target, row, input);
}

void editToggleType(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    target.subType = input.value;
    setToggleColours(target);
    storeAndFollow(target, row, input);
    owSetToggleSwitch(target.handle, target.initialStatus);
}

void editTextType(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    if (target.subType == ORICHEDIT && input.value == OSTANDARD) {
        const int answer = host.messageBox("Change Text Widget Type",
                                           "This will remove all local text formatting||Do you want to continue?",
                                           BOX_WARNING, BOX_OK_CANCEL);
        if (answer != ANSWER_OK) return;
        if (!design.defaultsMode) {
            target.text = cutBetweenLetters(liveText(target, false), static_cast<size_t>(std::abs(target.fieldWidth)));
            owSetTextSetting(target.handle, target.text.c_str(), 0);
        }
    }
    target.subType = input.value;
    if (target.subType == OSTANDARD && target.fieldWidth > LONGEST_STANDARD) target.fieldWidth = LONGEST_STANDARD;
    if (target.subType == ORICHEDIT && target.fieldWidth == LINE) target.fieldWidth = LONGEST_RICH;
    rebuildLive(target);
    if (!design.defaultsMode && target.subType == ORICHEDIT) dressRichText(target);
    markEdited();
    hooks.showProperties(&target);
}

void editValueType(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    target.subType = input.value;
    if (!keepsSign(target)) target.sign = 0;
    rebuildLive(target);
    markEdited();
    hooks.showProperties(&target);
}

void editSign(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    target.sign = takesSign(target) ? input.value : 0;
    rebuildLive(target);
    markEdited();
}

void editSliderType(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    float value = target.value;
    owEnqSliderValue(target.handle, &value);
    storeAndFollow(target, row, input);
    owSetSliderValue(target.handle, static_cast<double>(value));
}

void editInitialStatus(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    switchOffSisters(target);
    target.initialStatus = input.value;
    owSetToggleSwitch(target.handle, input.value);
    markEdited();
}

void editPanelBoundary(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    const bool line = input.value == OSINGLE || input.value == ODOUBLE;
    if (!line) target.colour1 = 0;
    storeAndFollow(target, row, input);
}

void editScrollBars(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    if (target.type == TYPE_PANEL && input.value != ONOBARS) {
        target.subType = ONOBOUNDARY;
        target.colour1 = 0;
    }
    storeAndFollow(target, row, input);
}

void editArrayChoice(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    if (!design.defaultsMode) storeArrayGeometry(target);
    storeAndFollow(target, row, input);
}
