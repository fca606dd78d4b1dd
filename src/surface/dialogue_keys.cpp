#include "surface/dialogue_keys.h"

#include "menu-c.h"
#include "surface/commands.h"
#include "surface/hooks.h"
#include "surface/state.h"

#include <string>
#include <vector>

namespace {

struct Dialogue {
    int window = 0;
    std::vector<DialogueButton> buttons; // the home button first
    int marked = 0;                      // handle
    int input = 0;                       // widget that had the focus when another dialogue opened above
    std::string helpContext;             // of what was below
};

std::vector<Dialogue> stack; // the open dialogues, the one with the input last

void mark(Dialogue& dialogue, const DialogueButton& button) {
    if (button.handle == dialogue.marked) return;
    if (dialogue.marked) owSetWidgetProp(dialogue.marked, owType, ODEFAULT, 0);
    if (button.handle) owSetWidgetProp(button.handle, owType, ODEFAULTBUTTON, 0); // a dialogue may have no home button
    dialogue.marked = button.handle;
}

void bindTab(bool bound) {
    for (const int key : {OKEYTAB, OKEYSHIFTTAB})
        owDefineKeySelectCallback(key, bound ? static_cast<int>(CMD_DIALOGUE_TAB) : 0);
}

} // namespace

void openDialogueKeys(int window, DialogueButton home, int cancelCommand, const char* topic) {
    if (stack.empty()) {
        hooks.parkKeys(true);
        bindTab(true);
    } else {
        stack.back().input = owEnqActiveWidget();
    }
    stack.push_back({window, {home}, home.handle, 0, design.helpContext});
    if (topic) design.helpContext = topic;
    owDefineWidgetKeyCallback(window, OKEYESC, cancelCommand);
    owDefineWidgetKeyCallback(window, OKEYF1, CMD_HELP);
    owSetActiveWindow(window);
}

void addDialogueButton(DialogueButton button) {
    if (!stack.empty()) stack.back().buttons.push_back(button);
}

void closeDialogueKeys() {
    if (stack.empty()) return;
    owDefineWidgetKeyCallback(stack.back().window, OKEYESC, 0);
    owDefineWidgetKeyCallback(stack.back().window, OKEYF1, 0);
    design.helpContext = stack.back().helpContext;
    stack.pop_back();
    if (!stack.empty()) {
        owSetActiveWindow(stack.back().window);
        if (stack.back().input) owSetActiveWidget(stack.back().input);
        return;
    }
    bindTab(false);
    hooks.parkKeys(false);
    owSetActiveWindow(0);
    hooks.giveInputBack();
}

bool dialogueOpen() { return !stack.empty(); }

namespace {

void dialogueTabCommand() {
    if (stack.empty()) return;
    Dialogue& dialogue = stack.back();
    const int active = owEnqActiveWidget();
    for (const DialogueButton& button : dialogue.buttons)
        if (button.handle == active) return mark(dialogue, button);
    mark(dialogue, dialogue.buttons.front());
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_DIALOGUE_TAB, .handler = dialogueTabCommand},
};
// clang-format on

} // namespace

std::span<const Command> dialogueKeyCommands() { return COMMANDS; }
