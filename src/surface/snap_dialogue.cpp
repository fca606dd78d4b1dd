// The step that drags keep to: a dialogue of the project.

#include "menu-c.h"
#include "project/records.h"
#include "surface/commands.h"
#include "surface/dialogue_keys.h"
#include "surface/event.h"
#include "surface/live.h"
#include "surface/selection.h"
#include "surface/state.h"

#include <algorithm>

namespace {

struct Dialogue {
    int window = 0;
    int on = 0, off = 0; // toggles
    int step = 0;        // value entry
} dialogue;

bool switchedOn() {
    int on = 0;
    owEnqToggleSwitch(dialogue.on, &on);
    return on != 0;
}

void showSwitch(bool on) {
    owSetToggleSwitch(dialogue.on, on ? 1 : 0);
    owSetToggleSwitch(dialogue.off, on ? 0 : 1);
    owSetWidgetStatus(dialogue.step, on ? OSELECTABLE : OUNSELECTABLE);
}

void close() {
    if (!dialogue.window) return;
    closeDialogueKeys();
    owRemoveWindow(dialogue.window);
    owEraseWidget(dialogue.window);
    dialogue = {};
}

void snapDialogueCommand() {
    if (dialogue.window) return;
    selectTool(TOOL_SELECTOR);
    dialogue.window =
        owCreateComplexDialogueBox(1, 300, 250, 264, 132, OTITLE + OQUIT, "Snap Grid Setting", owVpos, OTOP, owIconFile,
                                   "Light", owIconFormat, ODLLICON, owQuitMode, OLEAVE, owCallback, CMD_SNAP_WINDOW, 0);
    const int panel =
        owCreatePanel(dialogue.window, 12, 8, 240, 76, owVpos, OTOP, owTitle, "Snap Grid", owBorderType, OCHISEL, 0);
    dialogue.on = owCreateToggleButton(panel, 16, 18, 70, 24, "On", 0, owVpos, OTOP, owType, O3DRADIO, owCallback,
                                       CMD_SNAP_ON, 0);
    dialogue.off = owCreateToggleButton(panel, 16, 44, 70, 24, "Off", 0, owVpos, OTOP, owType, O3DRADIO, owCallback,
                                        CMD_SNAP_OFF, 0);
    dialogue.step = owCreateValueEntry(panel, 110, 18, 60, 24, static_cast<double>(project.snapGrid), 2, 0, OEDIT,
                                       owVpos, OTOP, owVmin, 1.0, owVmax, 99.0, 0);
    const int ok = owCreatePushButton(dialogue.window, 94, 96, 75, 25, "OK", owVpos, OTOP, owType, ODEFAULTBUTTON,
                                      owCallback, CMD_SNAP_OK, 0);
    const int cancel =
        owCreatePushButton(dialogue.window, 177, 96, 75, 25, "Cancel", owVpos, OTOP, owCallback, CMD_SNAP_CANCEL, 0);
    showSwitch(project.snapOn != 0);
    openDialogueKeys(dialogue.window, {ok, CMD_SNAP_OK}, CMD_SNAP_CANCEL);
    addDialogueButton({cancel, CMD_SNAP_CANCEL});
    owDrawWindow(dialogue.window, 1);
}

void snapOnCommand() { showSwitch(true); }

void snapOffCommand() { showSwitch(false); }

void snapOkCommand() {
    if (!dialogue.window) return;
    float value = 0;
    owEnqValueSetting(dialogue.step, &value);
    const int on = switchedOn() ? 1 : 0, step = std::max(static_cast<int>(value), 1);
    if (on != project.snapOn || step != project.snapGrid) {
        project.snapOn = on;
        project.snapGrid = step;
        owSetSnapGrid(on ? step : 1);
        redrawAllForms();
        markChanged();
    }
    close();
}

void snapCancelCommand() { close(); }

void snapWindowEvent() {
    if (action.status == OCLOSED) close();
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_SNAP_DIALOGUE, .label = "Project Snap Grid...", .mnemonic = 'S', .when = WHEN_PIXELS, .handler = snapDialogueCommand},
    {.id = CMD_SNAP_ON, .handler = snapOnCommand},
    {.id = CMD_SNAP_OFF, .handler = snapOffCommand},
    {.id = CMD_SNAP_OK, .handler = snapOkCommand},
    {.id = CMD_SNAP_CANCEL, .handler = snapCancelCommand},
    {.id = CMD_SNAP_WINDOW, .handler = snapWindowEvent},
};
// clang-format on

} // namespace

std::span<const Command> snapDialogueCommands() { return COMMANDS; }
