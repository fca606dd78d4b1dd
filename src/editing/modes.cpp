#include "editing/modes.h"

#include "editing/code_assist.h"
#include "editing/commands.h"
#include "editing/editor_window.h"
#include "menu-c.h"
#include "surface/commands.h"
#include "surface/hooks.h"
#include "surface/state.h"

namespace {

bool textMode = false;

// The history of the text has to be asked again after a change of mode.
void disableUndo() {
    for (const int command : {CMD_TEXT_UNDO, CMD_TEXT_REDO}) hooks.commandStatus(command, OUNSELECTABLE);
}

void install(bool text) {
    if (textMode != text) {
        textMode = text;
        disableUndo();
    }
    hooks.inputMode(text);
}

} // namespace

void inputMoved(int widget) {
    const bool text = widget == codeText();
    if (!text) removeAssist();
    if (text) {
        design.codeFocus = 1;
        design.helpContext = "Code Editor";
    }
    if (text != textMode) install(text);
}

void enterTextMode() {
    if (codeText()) owSetActiveWidget(codeText());
    install(true);
    inputMoved(codeText());
}

void leaveTextMode() {
    removeAssist();
    install(false);
}
