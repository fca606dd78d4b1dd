#include "shell/input.h"

#include "editing/editor_window.h"
#include "editing/modes.h"
#include "menu-c.h"
#include "properties/sheet.h"
#include "shell/command_table.h"
#include "shell/commands.h"
#include "shell/compiler_log.h"
#include "shell/environment.h"
#include "surface/dialogue_keys.h"
#include "surface/hierarchy.h"
#include "surface/live.h"
#include "surface/state.h"

#include <algorithm>

namespace {

enum class Holder { Form, Widget, Sheet };

// Widgets of the master window outside the property sheet. The hierarchy is made anew with each project, so that it is
// a place that is kept and no handle.
using Place = int (*)();
constexpr Place PLACES[] = {codeText,
                            logWidget,
                            hierarchyBox,
                            [] { return editor.blockList; },
                            [] { return editor.widgetList; },
                            [] { return editor.menuList; },
                            [] { return editor.treeList; }};

// Cells of the property sheet come and go, the forms' widgets too: they are kept by what they belong to.
struct {
    Holder holder = Holder::Form;
    Place place = nullptr; // of Holder::Widget
} input;

Place placeOf(int widget) {
    const auto place = std::ranges::find_if(PLACES, [widget](Place one) { return one() == widget; });
    return place == std::end(PLACES) ? nullptr : *place;
}

bool isForm(int window) {
    for (const WidgetNode* form = project.forms; form; form = form->next)
        if (form->handle == window) return true;
    return false;
}

} // namespace

void followInput() {
    input = {};
    owDefineInputCallback(CMD_INPUT_MOVED);
    owSetWindowInput(FORMS_ROOM);
}

namespace {

void inputMovedCommand() {
    const int active = owEnqActiveWidget();
    if (active == 0 || dialogueOpen()) return;
    inputMoved(active);
    const int window = owEnqActiveWindow();
    if (isForm(window)) {
        // A press on the menu bar or an icon makes the master window active: none of its fields is to get the keys.
        owSetWindowInput(FORMS_ROOM);
        input = {};
    } else if (const Place place = placeOf(active)) {
        input = {Holder::Widget, place};
    } else if (sheetHolds(active)) {
        input = {Holder::Sheet, 0};
    }
}

} // namespace

void giveInputBack() {
    switch (input.holder) {
    case Holder::Form:
        if (groupStands() && design.groupPanel)
            owSetActiveWidget(design.groupPanel);
        else
            activateWidget(project.currentWidget);
        break;
    case Holder::Widget: owSetActiveWidget(input.place()); break;
    case Holder::Sheet:
        if (propertyList()) owSetActiveWidget(propertyList());
        break;
    }
}

void giveInputBackAfter(int command) {
    const Command* row = findCommand(command);
    if (!row || !(row->label || row->barIcon) || (row->when & OPENS_WINDOW) || dialogueOpen()) return;
    if (owEnqActiveWidget() == FORMS_ROOM) giveInputBack();
}

namespace {

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_INPUT_MOVED, .handler = inputMovedCommand},
};
// clang-format on

} // namespace

std::span<const Command> inputCommands() { return COMMANDS; }
