#include "shell/keys.h"

#include "editing/editor_window.h"
#include "menu-c.h"
#include "project/language.h"
#include "project/preferences.h"
#include "project/records.h"
#include "shell/command_states.h"
#include "shell/command_table.h"
#include "shell/environment.h"
#include "surface/state.h"
#include "surface/window_states.h"

#include <set>

namespace {

bool parked = false;

// ---- What a key means -----------------------------------------------------------------------------------------

bool sends(const Command& command, int key, unsigned where) {
    if (command.key != key || !(command.keyModes & where) || !command.handler) return false;
    if ((command.keyModes & WHEN_ENABLED) && !commandAllowed(command.id)) return false;
    if (command.id == CMD_POPUP && design.unadopted) return false;
    return command.id != CMD_DELETE || preferences.delDeletes;
}

} // namespace

int keyCommand(int key, unsigned where) {
    for (const Command& command : commandTable()) {
        if (!sends(command, key, where)) continue;
        if (command.id == CMD_CODE_HELP && languageOfProject().shortNames) return CMD_HELP; // no topics of routines
        return command.id;
    }
    return 0;
}

// ---- Binding --------------------------------------------------------------------------------------------------

namespace {

// A key that means nothing there is left to what has the focus, whatever it means elsewhere.
void bindOn(int widget, int key, unsigned where) {
    if (widget <= 0) return;
    const int command = keyCommand(key, where);
    owDefineWidgetKeyCallback(widget, key, command ? command : OLEAVEKEY);
}

} // namespace

void bindKey(int key) {
    owDefineKeyCallback(key, parked ? 0 : keyCommand(key, IN_FIELDS));
    bindOn(codeText(), key, IN_TEXT);
    bindOn(FORMS_ROOM, key, IN_DESIGN);
    for (const WindowRow row : {WINDOW_HIERARCHY, WINDOW_ICON_BAR, WINDOW_TOOL_BOX})
        bindOn(windowStates[row].handle, key, IN_DESIGN);
    for (const WidgetNode* form = project.forms; form; form = form->next) bindOn(form->handle, key, IN_DESIGN);
}

namespace {

const std::set<int>& boundKeys() {
    static const std::set<int> keys = [] {
        std::set<int> all;
        for (const Command& command : commandTable())
            if (command.key) all.insert(command.key);
        return all;
    }();
    return keys;
}

} // namespace

void bindKeys() {
    for (const int key : boundKeys()) bindKey(key);
}

void bindKeysOn(int window) {
    for (const int key : boundKeys()) bindOn(window, key, IN_DESIGN);
}

void parkKeys(bool dialogue) {
    parked = dialogue;
    for (const int key : boundKeys()) owDefineKeyCallback(key, parked ? 0 : keyCommand(key, IN_FIELDS));
}
