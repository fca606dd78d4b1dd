#include "dialogues/frame.h"

#include "dialogues/controls.h"
#include "platform/paths.h"
#include "project/host.h"
#include "surface/commands.h"
#include "surface/dialogue_keys.h"
#include "surface/event.h"
#include "surface/hooks.h"
#include "surface/state.h"

#include <algorithm>
#include <cassert>
#include <unordered_map>

namespace {

constexpr int TEXT_BYTES = 1 << 20;

struct Open {
    const Dialogue* dialogue = nullptr;
    int window = 0;
    std::unordered_map<int, int> handles;             // of the controls by their ids
    std::unordered_map<int, const Control*> controls; // by their handles
};

std::vector<Open> stack; // the open dialogues, the topmost last
int running = 0;         // id of the control whose handler runs
int refused = 0;         // markers that wait behind what was pressed before a refusal

Open* openOf(const Dialogue& dialogue) {
    const auto found = std::ranges::find(stack, &dialogue, &Open::dialogue);
    return found == stack.end() ? nullptr : &*found;
}

const Control* controlOf(const Dialogue& dialogue, int id) {
    const auto found = std::ranges::find(dialogue.controls, id, &Control::id);
    return id == 0 || found == dialogue.controls.end() ? nullptr : &*found;
}

const DialogueCommand* commandOf(const Dialogue& dialogue, int id) {
    const auto found = std::ranges::find(dialogue.commands, id, &DialogueCommand::id);
    return found == dialogue.commands.end() ? nullptr : &*found;
}

struct Found {
    Open* open = nullptr;
    const Control* control = nullptr;
};

Found findControl(int id) {
    for (auto open = stack.rbegin(); open != stack.rend(); ++open)
        if (const Control* control = controlOf(*open->dialogue, id)) return {&*open, control};
    return {};
}

Found findHandleOf(int handle) {
    for (auto open = stack.rbegin(); open != stack.rend(); ++open)
        if (const auto control = open->controls.find(handle); control != open->controls.end())
            return {&*open, control->second};
    return {};
}

// ---- Making the window

// Whether a control can have the identifier: no command has it, nor a dialogue that is open beside this one. Modal ones
// are never worked at the same time.
[[maybe_unused]] bool mayBear(const Open& open, int id) {
    if (id == 0) return true;
    const Found other = findControl(id);
    const bool beside = other.control && (open.dialogue->modeless || other.open->dialogue->modeless);
    return !beside && !hooks.hasCommand(id);
}

void createControls(Open& open, Scale scale) {
    for (const Control& control : open.dialogue->controls) {
        assert(mayBear(open, control.id));
        const int parent = control.parent ? open.handles.at(control.parent) : open.window;
        const int handle = createControl(control, parent, control.parent == 0, scale);
        if (control.id) open.handles[control.id] = handle;
        open.controls[handle] = &control;
        if (control.moved) owDefineRowDragCallback(handle, FRAME_ROW_MOVED);
    }
}

void sizeWindow(const Open& open, Scale scale) {
    const Dialogue& dialogue = *open.dialogue;
    const int width = static_cast<int>(dialogue.width * scale.across) + 2 * DIALOGUE_MARGIN;
    const int height = static_cast<int>(dialogue.height * scale.down) + 2 * DIALOGUE_MARGIN;
    OWIDGET master = {};
    owEnqWidgetInfo(1, &master);
    int screenWidth = 0, screenHeight = 0;
    owEnqScreenSize(&screenWidth, &screenHeight);
    const auto between = [](int start, int room, int length, int screen) {
        return std::max(0, std::min(start + (room - length) / 2, screen - length));
    };
    owSetWidgetProp(open.window, owWidth, width, owHeight, height, 0);
    owSetWidgetProp(open.window, owXpos, between(master.xpos, master.width, width, screenWidth), owYpos,
                    between(master.ypos, master.height, height, screenHeight), 0);
}

int createWindow(const Dialogue& dialogue) {
    const int buttons = OTITLE + OQUIT + (dialogue.resizable ? OMAXIMIZE : 0);
    return owCreateComplexDialogueBox(1, 0, 0, dialogue.width, dialogue.height, buttons, dialogue.title, owVpos, OTOP,
                                      owIconFile, dialogue.icon, owIconFormat, ODLLICON, owQuitMode, OLEAVE, owCallback,
                                      dialogue.windowEvent, 0);
}

void bindKeys(const Open& open) {
    for (const DialogueKey& key : open.dialogue->keys) {
        owDefineWidgetKeyCallback(key.within ? open.handles.at(key.within) : open.window, key.key, FRAME_KEY);
        if (key.without) owDefineWidgetKeyCallback(open.handles.at(key.without), key.key, OLEAVEKEY);
    }
}

int defaultButton(const Open& open) {
    for (const Control& control : open.dialogue->controls)
        if (control.field == Field::Default) return open.handles.at(control.id);
    return 0;
}

void takeKeys(const Open& open) {
    const Dialogue& dialogue = *open.dialogue;
    const int cancel = dialogue.cancel ? dialogue.cancel : dialogue.windowEvent;
    if (dialogue.modeless) {
        owDefineWidgetKeyCallback(open.window, OKEYESC, cancel);
        owDefineWidgetKeyCallback(open.window, OKEYF1, dialogue.help ? FRAME_HELP : 0);
        return;
    }
    const int home = defaultButton(open);
    openDialogueKeys(open.window, {home, home ? open.controls.at(home)->id : 0}, cancel, dialogue.help);
    for (const Control& control : dialogue.controls)
        if (control.field == Field::Button) addDialogueButton({open.handles.at(control.id), control.id});
}

void refresh(const Dialogue& dialogue) {
    if (dialogue.refresh && isOpen(dialogue)) dialogue.refresh();
}

// ---- Events

void switchOthersOff(const Open& open, const Control& radio) {
    for (const Control& other : open.dialogue->controls)
        if (other.field == Field::Radio && other.parent == radio.parent)
            owSetToggleSwitch(open.handles.at(other.id), other.id == radio.id ? 1 : 0);
}

void run(Found found, void (*handler)()) {
    const Dialogue& dialogue = *found.open->dialogue;
    if (found.control->field == Field::Radio) switchOthersOff(*found.open, *found.control);
    running = found.control->id;
    if (handler) handler();
    refresh(dialogue);
}

void runCommand(const Dialogue& dialogue, const DialogueCommand& command) {
    running = command.id;
    command.run();
    refresh(dialogue);
}

void press(const Dialogue& dialogue, int id) {
    if (const DialogueCommand* command = commandOf(dialogue, id)) return runCommand(dialogue, *command);
    const Open* open = openOf(dialogue);
    const Control* control = controlOf(dialogue, id);
    if (!open || !control || owEnqWidgetStatus(open->handles.at(id)) == OUNSELECTABLE) return;
    running = id;
    if (control->changed) control->changed();
    refresh(dialogue);
}

bool liesIn(const Open& open, int widget, int id) {
    const Found focused = findHandleOf(widget);
    return focused.open == &open && focused.control && focused.control->id == id;
}

void keyPressed() {
    const int active = owEnqActiveWidget();
    const Found focused = findHandleOf(active);
    const int window = focused.open ? focused.open->window : owEnqActiveWindow();
    const auto open = std::ranges::find(stack, window, &Open::window);
    if (open == stack.end()) return;
    for (const DialogueKey& key : open->dialogue->keys)
        if (key.key == action.key && (!key.within || liesIn(*open, active, key.within))) {
            const Dialogue& dialogue = *open->dialogue;
            if (!key.pressed) return press(dialogue, key.control);
            key.pressed();
            return refresh(dialogue);
        }
}

void windowEvent(const Dialogue& dialogue) {
    if (action.status == OMOVED || action.status == ORESIZED || action.status == OMINIMIZED) {
        if (dialogue.placed && action.widget) dialogue.placed();
        return;
    }
    if (action.status != OCLOSED && action.key != OKEYESC) return;
    if (dialogue.cancel)
        press(dialogue, dialogue.cancel);
    else
        closeDialogue(dialogue);
}

// The first dialogue from the top that has a tree, for the events of entries.
Found findTree() {
    for (auto open = stack.rbegin(); open != stack.rend(); ++open)
        for (const Control& control : open->dialogue->controls)
            if (control.field == Field::Tree) return {&*open, &control};
    return {};
}

bool frameEvent(int identifier) {
    const Found sender = findHandleOf(action.widget);
    switch (identifier) {
    case dialogue::ENTRY_EVENT:
        if (const Found tree = findTree(); tree.control) run(tree, tree.control->changed);
        return true;
    case FRAME_DOUBLE_CLICK:
        if (const Found entered = sender.control ? sender : findTree(); entered.control)
            run(entered, entered.control->entered);
        return true;
    case FRAME_TYPED:
        if (sender.control) run(sender, sender.control->typed);
        return true;
    case FRAME_ROW_MOVED:
        if (sender.control && sender.control->moved) {
            const Dialogue& dialogue = *sender.open->dialogue;
            sender.control->moved(action.status, action.iargs[0]);
            refresh(dialogue);
        }
        return true;
    case FRAME_REFUSED: --refused; return true;
    case FRAME_KEY: keyPressed(); return true;
    case FRAME_HELP:
        if (sender.open) design.helpContext = sender.open->dialogue->help;
        owPostCallback(CMD_HELP, 0);
        return true;
    default: return false;
    }
}

} // namespace

void openDialogue(const Dialogue& dialogue) {
    if (const Open* open = openOf(dialogue)) {
        owPopWindow(open->window);
        if (dialogue.first) dialogue::focus(dialogue.first);
        return;
    }
    Open made{&dialogue, createWindow(dialogue), {}, {}};
    const Scale scale = scaleOf(dialogue, made.window);
    sizeWindow(made, scale);
    createControls(made, scale);
    made.controls[made.window] = nullptr;
    stack.push_back(std::move(made));
    bindKeys(stack.back());
    if (dialogue.fill) dialogue.fill();
    refresh(dialogue);
    const Open* open = openOf(dialogue);
    if (!open) return; // the filling gave up
    owDrawWindow(open->window, 1);
    takeKeys(*open);
    const int first = dialogue.first ? open->handles.at(dialogue.first) : defaultButton(*open);
    if (first) owSetActiveWidget(first);
}

void closeDialogue(const Dialogue& dialogue) {
    const auto open = std::ranges::find(stack, &dialogue, &Open::dialogue);
    if (open == stack.end()) return;
    const int window = open->window;
    stack.erase(open);
    if (!dialogue.modeless) closeDialogueKeys();
    owRemoveWindow(window);
    owEraseWidget(window);
    if (dialogue.modeless) hooks.giveInputBack();
}

bool isOpen(const Dialogue& dialogue) { return openOf(dialogue) != nullptr; }

bool dialogueEvent(int identifier) {
    if (stack.empty()) return false;
    if (frameEvent(identifier)) return true;
    for (auto open = stack.rbegin(); open != stack.rend(); ++open)
        if (identifier == open->dialogue->windowEvent) return windowEvent(*open->dialogue), true;
    for (auto open = stack.rbegin(); open != stack.rend(); ++open)
        if (const DialogueCommand* command = commandOf(*open->dialogue, identifier))
            return runCommand(*open->dialogue, *command), true;
    const Found found = findControl(identifier);
    if (!found.control) return false;
    if (refused == 0 || !isButton(found.control->field)) run(found, found.control->changed);
    return true;
}

void forgetDialogues() {
    while (!stack.empty()) closeDialogue(*stack.back().dialogue);
    refused = 0;
}

namespace dialogue {

int sender() { return running; }

int widget(int id) {
    const Found found = findControl(id);
    return found.control ? found.open->handles.at(id) : 0;
}

int window(int id) {
    const Found found = findControl(id);
    return found.open ? found.open->window : 0;
}

namespace {

Field fieldOf(int id) {
    const Found found = findControl(id);
    return found.control ? found.control->field : Field::Label;
}

bool isCombo(Field field) { return field == Field::Combo || field == Field::Choice || field == Field::Fonts; }

std::string comboText(int handle) {
    char text[1024] = "";
    owEnqListEntry(handle, 0, text, sizeof text);
    return text;
}

} // namespace

std::string text(int id) {
    const int handle = widget(id);
    if (!handle) return {};
    if (isCombo(fieldOf(id))) return comboText(handle);
    std::string text(TEXT_BYTES, '\0');
    owEnqTextSetting(handle, text.data(), TEXT_BYTES, 0);
    text.resize(text.find('\0'));
    return text;
}

void setText(int id, const std::string& text) {
    const int handle = widget(id);
    if (!handle) return;
    switch (fieldOf(id)) {
    case Field::Combo:
    case Field::Choice:
    case Field::Fonts: owSetListEntry(handle, OSELECT, owEntry, -2, owString, text.c_str(), 0); break;
    case Field::Picture: owSetWidgetProp(handle, owIconHandle, owGetIconResource(text.c_str()), 0); break;
    case Field::Label:
    case Field::Note:
    case Field::Text:
    case Field::Area:
    case Field::RichArea: owSetTextSetting(handle, text.c_str(), 0); break;
    case Field::Page:
    case Field::Panel: owSetWidgetProp(handle, owTitle, text.c_str(), 0); break;
    default: owSetWidgetProp(handle, owLabel, text.c_str(), 0); break;
    }
}

double number(int id) {
    if (fieldOf(id) == Field::Slider) {
        float value = 0;
        owEnqSliderValue(widget(id), &value);
        return value;
    }
    double value = 0;
    if (widget(id)) owEnqValueSettingDouble(widget(id), &value);
    return value;
}

void setNumber(int id, double value) {
    if (!widget(id)) return;
    if (fieldOf(id) == Field::Slider)
        owSetSliderValue(widget(id), value);
    else
        owSetValueSetting(widget(id), value);
}

bool isOn(int id) {
    int on = 0;
    if (widget(id)) owEnqToggleSwitch(widget(id), &on);
    return on != 0;
}

void setOn(int id, bool on) {
    const Found found = findControl(id);
    if (!found.control) return;
    if (on && found.control->field == Field::Radio) switchOthersOff(*found.open, *found.control);
    owSetToggleSwitch(widget(id), on ? 1 : 0);
}

int choice(int id) {
    int count = 0, selected = 0, current = 0;
    if (widget(id)) owEnqListStatus(widget(id), &count, &selected, &current);
    return current;
}

void choose(int id, int row) {
    if (widget(id)) owSetListEntry(widget(id), OSELECT, owEntry, row, 0);
}

std::vector<int> choices(int id) {
    std::vector<int> rows;
    int count = 0, selected = 0, current = 0;
    if (widget(id)) owEnqListStatus(widget(id), &count, &selected, &current);
    for (int row = 1; row <= count; ++row)
        if (owEnqListSelected(widget(id), row)) rows.push_back(row);
    return rows;
}

void setRows(int id, const std::vector<std::string>& rows) {
    const int handle = widget(id);
    if (!handle) return;
    owSetListEntry(handle, OCLEAR, 0);
    for (const std::string& row : rows) owSetListEntry(handle, OADD, owString, row.c_str(), 0);
}

bool isEnabled(int id) { return widget(id) && owEnqWidgetStatus(widget(id)) != OUNSELECTABLE; }

void enable(int id, bool enabled) {
    const Found found = findControl(id);
    if (!found.control) return;
    if (isContainer(found.control->field))
        for (const Control& inside : found.open->dialogue->controls)
            if (inside.parent == id && inside.id) enable(inside.id, enabled);
    if (!isContainer(found.control->field) && isEnabled(id) != enabled)
        owSetWidgetStatus(widget(id), enabled ? OSELECTABLE : OUNSELECTABLE);
}

void enable(std::initializer_list<int> ids, bool enabled) {
    for (const int id : ids) enable(id, enabled);
}

void show(int id, bool shown) {
    if (widget(id)) owSetWidgetStatus(widget(id), shown ? OSELECTABLE : OHIDDEN);
}

void showPage(int id) {
    if (widget(id)) owSetWidgetStatus(widget(id), OCHECKED);
}

void focus(int id) {
    if (widget(id)) owSetActiveWidget(widget(id));
}

void refuse(int id) {
    ++refused;
    owPostCallback(FRAME_REFUSED, 0);
    focus(id);
}

Place place(const Dialogue& dialogue) {
    Place place{};
    if (const Open* open = openOf(dialogue))
        owEnqWidgetProp(open->window, owXpos, &place.x, owYpos, &place.y, owWidth, &place.width, owHeight,
                        &place.height, 0);
    return place;
}

void setPlace(const Dialogue& dialogue, Place place) {
    const Open* open = openOf(dialogue);
    if (!open) return;
    owSetWidgetProp(open->window, owWidth, place.width, owHeight, place.height, 0);
    owSetWidgetProp(open->window, owXpos, place.x, owYpos, place.y, 0);
}

bool browse(int id, const char* title, const char* filter, Browse what) {
    constexpr int PATH_BYTES = 4096;
    const std::string old = text(id);
    char name[PATH_BYTES] = "", folder[PATH_BYTES] = "";
    const bool wantsFolder = what == Browse::Folder;
    const std::string oldFolder = wantsFolder ? old : folderOf(old);
    const std::string oldName = wantsFolder ? std::string() : fileNameOf(old);
    oldFolder.copy(folder, PATH_BYTES - 1);
    oldName.copy(name, PATH_BYTES - 1);
    const int type = wantsFolder ? OPICKDIRECTORY : what == Browse::Save ? OSAVEFILE : OOPENFILE;
    if (!owFileBrowser(name, PATH_BYTES, folder, PATH_BYTES, filter, owTitle, title, owType, type, 0)) return false;
    setText(id, wantsFolder ? std::string(folder) : joinPath(folder, name));
    return true;
}

} // namespace dialogue
