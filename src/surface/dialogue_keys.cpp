#include "surface/dialogue_keys.h"

#include "menu-c.h"
#include "surface/commands.h"

#include <vector>

static std::vector<DialogueButton> buttons; // the home button first; empty while no dialogue is open
static int marked = 0;                      // handle

static void mark(const DialogueButton& button) {
    if (button.handle != marked) {
        if (marked) owSetWidgetProp(marked, owType, ODEFAULT, 0);
        owSetWidgetProp(button.handle, owType, ODEFAULTBUTTON, 0);
        marked = button.handle;
    }
    owDefineKeySelectCallback(OKEYRETURN, button.command);
}

void openDialogueKeys(int window, DialogueButton home, int cancelCommand) {
    buttons = {home};
    marked = home.handle;
    owDefineKeySelectCallback(OKEYRETURN, home.command);
    owDefineKeyCallback(OKEYESC, cancelCommand);
    owDefineKeySelectCallback(OKEYTAB, CMD_DIALOGUE_TAB);
    owDefineKeySelectCallback(OKEYSHIFTTAB, CMD_DIALOGUE_TAB);
    owSetActiveWindow(window);
}

void addDialogueButton(DialogueButton button) {
    if (!buttons.empty()) buttons.push_back(button);
}

void closeDialogueKeys() {
    buttons.clear();
    marked = 0;
    owDefineKeySelectCallback(OKEYRETURN, 0);
    owDefineKeyCallback(OKEYESC, 0);
    owDefineKeySelectCallback(OKEYTAB, 0);
    owDefineKeySelectCallback(OKEYSHIFTTAB, 0);
    owSetActiveWindow(0);
}

bool dialogueOpen() { return !buttons.empty(); }

void dialogueTabCommand() {
    if (buttons.empty()) return;
    const int active = owEnqActiveWidget();
    for (const DialogueButton& button : buttons)
        if (button.handle == active) {
            mark(button);
            return;
        }
    mark(buttons.front());
}
