// Alignment of the widgets of a group.
#include "dialogues/commands.h"
#include "dialogues/frame.h"
#include "project/timeline.h"
#include "surface/align.h"
#include "surface/commands.h"
#include "surface/selection.h"
#include "surface/state.h"

#include <algorithm>
#include <span>

namespace {

enum AlignmentControl : int {
    ALIGN_OK = 15477,
    ALIGN_CANCEL = 15478,
    ALIGN_ACROSS = 15960, // panel
    ALIGN_LEFT,
    ALIGN_CENTRE,
    ALIGN_RIGHT,
    ALIGN_DOWN, // panel
    ALIGN_TOP,
    ALIGN_MIDDLE,
    ALIGN_BOTTOM,
};

// The rows of one panel exclude each other; the first that is on counts.
struct Choice {
    int control;
    Align align;
};
constexpr Choice ACROSS[] = {{ALIGN_LEFT, Align::Near}, {ALIGN_RIGHT, Align::Far}, {ALIGN_CENTRE, Align::Middle}};
constexpr Choice DOWN[] = {{ALIGN_TOP, Align::Near}, {ALIGN_BOTTOM, Align::Far}, {ALIGN_MIDDLE, Align::Middle}};

template <int Pressed> void choose() {
    for (const auto& panel : {ACROSS, DOWN}) {
        const std::span<const Choice> rows(panel, std::size(ACROSS));
        const bool here = std::ranges::find(rows, Pressed, &Choice::control) != rows.end();
        for (const Choice& row : rows)
            if (here && row.control != Pressed && dialogue::isOn(Pressed)) dialogue::setOn(row.control, false);
    }
}

void accept();
void cancel();

// clang-format off
constexpr Control CONTROLS[] = {
    {.field = Field::Panel, .id = ALIGN_ACROSS, .text = "Vertical Alignment", .x = 10, .y = 62, .width = 175, .height = 140},
    {.field = Field::Toggle, .id = ALIGN_LEFT, .text = "Left", .x = 40, .y = 84, .width = 110, .mnemonic = 'L', .changed = choose<ALIGN_LEFT>, .parent = ALIGN_ACROSS},
    {.field = Field::Toggle, .id = ALIGN_CENTRE, .text = "Centre", .x = 40, .y = 52, .width = 110, .mnemonic = 'e', .changed = choose<ALIGN_CENTRE>, .parent = ALIGN_ACROSS},
    {.field = Field::Toggle, .id = ALIGN_RIGHT, .text = "Right", .x = 40, .y = 20, .width = 110, .mnemonic = 'R', .changed = choose<ALIGN_RIGHT>, .parent = ALIGN_ACROSS},
    {.field = Field::Panel, .id = ALIGN_DOWN, .text = "Horizontal Alignment", .x = 210, .y = 62, .width = 175, .height = 140},
    {.field = Field::Toggle, .id = ALIGN_TOP, .text = "Top", .x = 40, .y = 84, .width = 110, .mnemonic = 'T', .changed = choose<ALIGN_TOP>, .parent = ALIGN_DOWN},
    {.field = Field::Toggle, .id = ALIGN_MIDDLE, .text = "Middle", .x = 40, .y = 52, .width = 110, .mnemonic = 'M', .changed = choose<ALIGN_MIDDLE>, .parent = ALIGN_DOWN},
    {.field = Field::Toggle, .id = ALIGN_BOTTOM, .text = "Bottom", .x = 40, .y = 20, .width = 110, .mnemonic = 'B', .changed = choose<ALIGN_BOTTOM>, .parent = ALIGN_DOWN},
    {.field = Field::Button, .id = ALIGN_CANCEL, .text = "Cancel", .x = 220, .y = 20, .width = 75, .mnemonic = 'C', .changed = cancel},
    {.field = Field::Default, .id = ALIGN_OK, .text = "OK", .x = 310, .y = 20, .width = 75, .mnemonic = 'O', .changed = accept},
};
// clang-format on

const Dialogue DIALOGUE = {
    .title = "Alignment", .icon = "Gee", .width = 400, .height = 222, .controls = CONTROLS, .cancel = ALIGN_CANCEL};

void cancel() { closeDialogue(DIALOGUE); }

Align chosen(std::span<const Choice> rows) {
    for (const Choice& row : rows)
        if (dialogue::isOn(row.control)) return row.align;
    return Align::Off;
}

void accept() {
    const Align across = chosen(ACROSS), down = chosen(DOWN);
    closeDialogue(DIALOGUE);
    if (!groupStands()) return;
    const Records members = design.selection;
    alignRecords(members, across, down);
    groupSelection(members); // brings them to their places and groups them again
    markChanged();
    nameStep("Align " + std::to_string(members.size()) + " widgets");
}

void alignCommand() {
    if (groupStands()) openDialogue(DIALOGUE);
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_ALIGN, .label = "Align Widgets", .mnemonic = 'A', .when = STARTS_DISABLED, .handler = alignCommand},
};
// clang-format on

} // namespace

std::span<const Command> alignmentCommands() { return COMMANDS; }
