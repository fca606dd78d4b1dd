// The step that drags keep to: a dialogue of the project.
#include "dialogues/snap_dialogue.h"

#include "dialogues/commands.h"
#include "dialogues/frame.h"
#include "project/records.h"
#include "surface/live.h"
#include "surface/selection.h"
#include "surface/state.h"

#include <algorithm>

namespace {

void fill();
void refresh();
void accept();
void cancel();

constexpr Control CONTROLS[] = {
    {.field = Field::Panel, .id = SNAP_PANEL, .text = "Snap Grid", .y = 34, .width = 242, .height = 88},
    {.field = Field::Radio, .id = SNAP_ON, .text = "On", .x = 16, .y = 34, .width = 66, .parent = SNAP_PANEL},
    {.field = Field::Number,
     .id = SNAP_STEP,
     .x = 110,
     .y = 34,
     .width = 66,
     .parent = SNAP_PANEL,
     .length = 2,
     .minimum = 1,
     .maximum = 99},
    {.field = Field::Radio, .id = SNAP_OFF, .text = "Off", .x = 16, .y = 8, .width = 66, .parent = SNAP_PANEL},
    {.field = Field::Default, .id = SNAP_OK, .text = "OK", .x = 66, .width = 88, .mnemonic = 'O', .changed = accept},
    {.field = Field::Button,
     .id = SNAP_CANCEL,
     .text = "Cancel",
     .x = 154,
     .width = 88,
     .mnemonic = 'C',
     .changed = cancel},
};

const Dialogue DIALOGUE = {.title = "Snap Grid Setting",
                           .icon = "Light",
                           .width = 242,
                           .height = 122,
                           .windowEvent = SNAP_WINDOW,
                           .controls = CONTROLS,
                           .cancel = SNAP_CANCEL,
                           .fill = fill,
                           .refresh = refresh};

void fill() {
    dialogue::setOn(project.snapOn ? SNAP_ON : SNAP_OFF, true);
    dialogue::setNumber(SNAP_STEP, project.snapGrid);
}

void refresh() { dialogue::enable(SNAP_STEP, dialogue::isOn(SNAP_ON)); }

void cancel() { closeDialogue(DIALOGUE); }

void accept() {
    const int on = dialogue::isOn(SNAP_ON) ? 1 : 0;
    const int step = std::max(static_cast<int>(dialogue::number(SNAP_STEP)), 1);
    if (on != project.snapOn || step != project.snapGrid) {
        project.snapOn = on;
        project.snapGrid = step;
        owSetSnapGrid(on ? step : 1);
        redrawAllForms();
        markChanged();
    }
    closeDialogue(DIALOGUE);
}

void snapDialogueCommand() {
    selectTool(TOOL_SELECTOR);
    openDialogue(DIALOGUE);
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_SNAP_DIALOGUE, .label = "Project Snap Grid...", .mnemonic = 'S', .when = WHEN_PIXELS, .handler = snapDialogueCommand},
};
// clang-format on

} // namespace

std::span<const Command> snapDialogueCommands() { return COMMANDS; }
