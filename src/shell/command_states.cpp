#include "shell/command_states.h"

#include "menu-c.h"
#include "project/preferences.h"
#include "project/records.h"
#include "project/timeline.h"
#include "shell/command_table.h"
#include "shell/keys.h"

#include <unordered_map>
#include <vector>

namespace {

// An entry or button that means one command on a form and another in the code editor.
struct ModeTwin {
    int design;
    int text;
    const char* designLabel; // once the code editor has had the input
    const char* designHelp;  // null: the entry has no icon on the Icon Bar
};

constexpr ModeTwin TWINS[] = {
    {CMD_UNDO, CMD_TEXT_UNDO, "Undo Move Resize Widget|Ctrl+Z", nullptr},
    {CMD_REDO, CMD_TEXT_REDO, "Redo Move Resize Widget|Ctrl+Y", nullptr},
    {CMD_CUT, CMD_TEXT_CUT, "Cut Widget|Ctrl+X", "Cut Widget from Form to Paste Buffer"},
    {CMD_COPY, CMD_TEXT_COPY, "Copy Widget|Ctrl+C", "Copy Widget from Form to Paste Buffer"},
    {CMD_PASTE, CMD_TEXT_PASTE, "Paste Widget|Ctrl+V", "Paste Widget to Form from Paste Buffer"},
    {CMD_DELETE, CMD_TEXT_DELETE, "Delete Widget|DEL", nullptr},
};

struct ShownWidget {
    CommandWidget kind;
    int handle;
    int status; // as last given to the toolkit
};

struct CommandState {
    int asked = STATUS_ENABLED;
    std::vector<ShownWidget> widgets; // of a twin, both commands' stand with the design command
};

// A command that does more while a preference is on, and says so.
struct PreferenceLabel {
    int command;
    int Preferences::*preference;
    const char* label; // with the preference on; the key behind the bar stays
};

constexpr PreferenceLabel PREFERENCE_LABELS[] = {
    {CMD_GENERATE, &Preferences::generateSavesProject, "Save Project and Generate Code"},
    {CMD_COMPILE, &Preferences::generateSavesProject, "Save Project, Compile, Link & Execute"},
    {CMD_SAVE_PROJECT, &Preferences::saveGeneratesCode, "Save Project and Generate Code"},
    {CMD_SAVE_PROJECT_AS, &Preferences::saveGeneratesCode, "Save Project As... and Generate Code"},
};

bool textMode = false;
bool modeInstalled = false; // false until the first mode has given the entries their labels
std::unordered_map<int, CommandState> states;

CommandState& stateOf(int id) {
    const auto found = states.find(id);
    if (found != states.end()) return found->second;
    const Command* command = findCommand(id);
    CommandState& state = states[id];
    if (command && (command->when & STARTS_DISABLED)) state.asked = STATUS_DISABLED;
    return state;
}

// The command that the widgets of `id` send at the moment.
int targetOf(int id) {
    for (const ModeTwin& twin : TWINS)
        if (twin.design == id && textMode) return twin.text;
    return id;
}

int widgetsOwner(int id) {
    for (const ModeTwin& twin : TWINS)
        if (twin.text == id) return twin.design;
    return id;
}

bool conditionsHold(const Command& command, bool text) {
    const unsigned when = command.when;
    return command.handler && (!(when & WHEN_TEXT_MODE) || text) &&
           (!(when & WHEN_WINDOWS) || project.projectPlatform == 'w') &&
           (!(when & WHEN_PIXELS) || project.gridMode == 0) && (!(when & WHEN_SYNTAX) || preferences.syntaxColours);
}

} // namespace

int commandStatus(int id) {
    const Command* command = findCommand(id);
    return command && conditionsHold(*command, textMode) ? stateOf(id).asked : STATUS_DISABLED;
}

bool commandAllowed(int id) {
    const Command* command = findCommand(id);
    return command && conditionsHold(*command, true) && stateOf(id).asked != STATUS_DISABLED;
}

namespace {

void showStatus(int owner) {
    const int status = commandStatus(targetOf(owner));
    for (ShownWidget& widget : stateOf(owner).widgets)
        if (widget.status != status) {
            widget.status = status;
            owSetWidgetStatus(widget.handle, status);
        }
}

} // namespace

void addCommandWidget(int id, CommandWidget kind, int handle) {
    stateOf(id).widgets.push_back({kind, handle, STATUS_ENABLED});
    showStatus(id);
}

int commandWidget(int id, CommandWidget kind) {
    for (const ShownWidget& widget : stateOf(id).widgets)
        if (widget.kind == kind) return widget.handle;
    return 0;
}

void forgetCommandWidgets() {
    states.clear();
    textMode = modeInstalled = false;
}

void setCommandStatus(int id, int status) {
    CommandState& state = stateOf(id);
    if (state.asked == status) return;
    state.asked = status;
    showStatus(widgetsOwner(id));
    const Command* command = findCommand(id);
    if (command && command->key && (command->keyModes & WHEN_ENABLED)) bindKey(command->key);
}

void setToolStatus(int tool, int status) {
    for (const Command& command : commandTable())
        if (tool != 0 && command.tool == tool) setCommandStatus(command.id, status);
}

void setCommandLabel(int id, const std::string& label) {
    for (const ShownWidget& widget : stateOf(id).widgets)
        if (widget.kind != CommandWidget::Button) owSetWidgetProp(widget.handle, owLabel, label.c_str(), 0);
}

void setCommandHelp(int id, const std::string& bubbleHelp) {
    for (const ShownWidget& widget : stateOf(id).widgets)
        if (widget.kind == CommandWidget::Button) owSetWidgetProp(widget.handle, owHelp, bubbleHelp.c_str(), 0);
}

void showPreferenceLabels() {
    for (const PreferenceLabel& row : PREFERENCE_LABELS) {
        const Command& command = *findCommand(row.command);
        const bool on = preferences.*row.preference != 0;
        const std::string plain = command.label;
        const std::size_t bar = plain.find('|');
        const std::string key = bar == std::string::npos ? "" : plain.substr(bar);
        setCommandLabel(row.command, on ? row.label + key : plain);
        if (command.bubbleHelp) setCommandHelp(row.command, on ? row.label : command.bubbleHelp);
    }
}

void refreshCommands() {
    for (const Command& command : commandTable()) showStatus(command.id);
    bindKeys();
}

namespace {

// "Undo Move Form1_Button1" while there is such a step.
std::string stepLabel(const ModeTwin& twin, const TimelineStep* step) {
    const std::string label = twin.designLabel;
    if (!step) return label;
    return label.substr(0, label.find(' ')) + " " + step->label + label.substr(label.find('|'));
}

std::string designLabel(const ModeTwin& twin) {
    if (twin.design == CMD_UNDO) return stepLabel(twin, stepToUndo());
    if (twin.design == CMD_REDO) return stepLabel(twin, stepToRedo());
    const std::string label = twin.designLabel;
    const bool keyIsFree = twin.design == CMD_DELETE && !preferences.delDeletes;
    return keyIsFree ? label.substr(0, label.find('|')) : label;
}

void retarget(const ModeTwin& twin) {
    const Command& text = *findCommand(twin.text);
    setCommandLabel(twin.design, textMode ? text.label : designLabel(twin));
    if (twin.designHelp) setCommandHelp(twin.design, textMode ? text.bubbleHelp : twin.designHelp);
    for (const ShownWidget& widget : stateOf(twin.design).widgets)
        owDefineCallback(widget.handle, targetOf(twin.design));
}

} // namespace

void refreshInputMode() {
    for (const ModeTwin& twin : TWINS) retarget(twin);
    refreshCommands();
}

void setInputMode(bool text) {
    const bool changed = textMode != text || !modeInstalled;
    textMode = text;
    modeInstalled = true;
    if (changed) return refreshInputMode();
    refreshCommands();
}

void showStepLabels() {
    if (textMode || !modeInstalled) return;
    for (const ModeTwin& twin : TWINS)
        if (twin.design == CMD_UNDO || twin.design == CMD_REDO) setCommandLabel(twin.design, designLabel(twin));
}

bool textModeInForce() { return textMode; }

void enableCompile(bool enabled) {
    setCommandStatus(CMD_COMPILE, enabled);
    setCommandStatus(CMD_REBUILD, enabled);
}

void enableExecute(bool enabled) { setCommandStatus(CMD_EXECUTE, enabled); }
