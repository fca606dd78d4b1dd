#include "editing/modes.h"

#include "editing/editor_window.h"
#include "menu-c.h"
#include "surface/commands.h"
#include "surface/hooks.h"
#include "surface/state.h"

namespace {

bool textMode = false;

// Both histories have to be asked again after a change of mode.
void disableUndo() {
    for (const int command : {CMD_UNDO, CMD_REDO, CMD_TEXT_UNDO, CMD_TEXT_REDO})
        hooks.commandStatus(command, OUNSELECTABLE);
}

void install(bool text) {
    const bool changed = textMode != text;
    textMode = text;
    if (changed) disableUndo();
    hooks.inputMode(text);
    for (const int key : {OKEYRETURN, OKEYESC, OKEYSHIFTTAB}) owDefineKeyCallback(key, 0);
    owDefineKeyCallback(OKEYTAB, text ? static_cast<int>(CMD_TEXT_TAB) : 0);
}

} // namespace

void enterTextMode() {
    install(true);
    design.codeFocus = 1;
    design.helpContext = "Code Editor";
    if (codeText() && owEnqActiveWidget() != codeText()) owSetActiveWidget(codeText());
}

void leaveTextMode() { install(false); }

bool inTextMode() { return textMode; }
