#include "dialogues/entry_editor.h"

#include "dialogues/choose_icon.h"
#include "dialogues/row_editor.h"
#include "editing/code_lists.h"
#include "platform/letters.h"
#include "project/code_stores.h"
#include "project/host.h"
#include "project/menu_chain.h"
#include "project/tree.h"
#include "surface/event.h"
#include "surface/hooks.h"
#include "surface/state.h"

#include <algorithm>
#include <array>

namespace {

struct EditedEntry {
    MenuEntryRec record;
    std::string oldName; // before the editor was opened, empty for a new entry
};

struct State {
    EntryEditor editor;
    int owner = 0; // id of the form or tree view
    Rows<EditedEntry> entries;
    RowList list;
    std::string previewed; // what the preview shows, to know when it is to be made anew
} state;

struct IconField {
    int control, browse;
    std::string MenuEntryRec::*icon;
};
constexpr std::array<IconField, 3> ICON_FIELDS = {{{ENTRY_ICON1, ENTRY_BROWSE1, &MenuEntryRec::icon1},
                                                   {ENTRY_ICON2, ENTRY_BROWSE2, &MenuEntryRec::icon2},
                                                   {ENTRY_ICON3, ENTRY_BROWSE3, &MenuEntryRec::icon3}}};

MenuEntryRec& now() { return state.entries.now().record; }

bool isMenu() { return state.editor.menu; }

// A tree whose entries have icons of their own.
bool hasIcons(const WidgetNode& tree) { return tree.subType == ORESOURCEICONS; }

EditedEntry newEntry(int level) {
    EditedEntry entry;
    entry.record.kind = MENU_ENTRY;
    entry.record.level = level;
    const WidgetNode* owner = editedOwner();
    if (!isMenu() && owner) {
        entry.record.icon1 = owner->icon;
        entry.record.icon2 = owner->closeIcon;
        entry.record.icon3 = owner->openIcon;
    }
    return entry;
}

MenuEntries records() {
    MenuEntries all;
    for (const EditedEntry& entry : state.entries.rows) all.push_back(entry.record);
    return all;
}

// ---- Between fields and entry

void readFields() {
    MenuEntryRec& entry = now();
    entry.label = dialogue::text(ENTRY_CAPTION);
    entry.name = dialogue::text(ENTRY_NAME);
    for (const IconField& field : ICON_FIELDS) entry.*field.icon = dialogue::text(field.control);
    if (isMenu()) entry.help = dialogue::text(ENTRY_HELP);
}

void showFields() {
    const MenuEntryRec& entry = now();
    dialogue::setText(ENTRY_CAPTION, entry.label);
    dialogue::setText(ENTRY_NAME, entry.name);
    for (const IconField& field : ICON_FIELDS) dialogue::setText(field.control, entry.*field.icon);
    if (!isMenu()) return;
    dialogue::setText(ENTRY_HELP, entry.help);
    dialogue::setText(ENTRY_ACCELERATOR, letterText(static_cast<char32_t>(entry.accel)));
}

std::string rowIcon(std::size_t row) {
    const std::vector<EditedEntry>& rows = state.entries.rows;
    const MenuEntryRec& entry = rows[row].record;
    if (isMenu()) return entry.level > 0 ? entry.icon1 : std::string();
    const WidgetNode* tree = editedOwner();
    if (!tree || !hasIcons(*tree)) return {};
    const bool parent = row + 1 < rows.size() && rows[row + 1].record.level > entry.level;
    return parent && !entry.icon2.empty() ? entry.icon2 : entry.icon1;
}

ShownRow shownRow(std::size_t row) {
    constexpr int DEEPEST_SHOWN = 40; // of entries that an old file has anywhere
    const MenuEntryRec& entry = state.entries.rows[row].record;
    std::string text;
    for (int level = 0; level < std::min(entry.level, DEEPEST_SHOWN); ++level) text += "----";
    return {text + entry.label, rowIcon(row)};
}

void showList() {
    std::vector<ShownRow> rows;
    for (std::size_t row = 0; row < state.entries.rows.size(); ++row) rows.push_back(shownRow(row));
    state.list.show(std::move(rows), state.entries.current);
}

void showIcons() {
    for (const IconField& field : ICON_FIELDS) {
        const std::string& icon = now().*field.icon;
        dialogue::setText(field.browse, icon.empty() ? "dotdotdot" : icon);
    }
}

void showEntry() {
    showFields();
    dialogue::focus(ENTRY_CAPTION);
}

// ---- Names

bool nameIsGood(const std::string& name) {
    const WidgetNode* owner = editedOwner();
    return isIdentifier(name) && owner && namesBeside(records(), *owner).count(name) < 2;
}

void nameFromCaption() {
    MenuEntryRec& entry = now();
    const WidgetNode* owner = editedOwner();
    if (!owner || entry.label.empty() || !entry.name.empty()) return;
    NamesInUse names = namesBeside(records(), *owner);
    entry.name = entryNameFrom(*owner, entry.label, names);
    dialogue::setText(ENTRY_NAME, entry.name);
}

// Fields into the entry before something else becomes of it.
void leaveEntry() {
    readFields();
    nameFromCaption();
}

// ---- Preview

std::string signature(const MenuEntries& entries) {
    std::string all;
    for (const MenuEntryRec& entry : entries) {
        for (const std::string* part : {&entry.label, &entry.icon1, &entry.icon2, &entry.icon3, &entry.help})
            all += *part + '\n';
        all += std::to_string(entry.level) + ' ' + std::to_string(entry.accel) + '\n';
    }
    return all;
}

void showPreview() {
    if (!state.editor.preview) return;
    const MenuEntries entries = records();
    std::string wanted = signature(entries);
    if (wanted == state.previewed) return;
    state.previewed = std::move(wanted);
    state.editor.preview(entries);
}

// ---- After OK

// Forms that an entry opens follow its name; those of an entry that is gone are opened by the program's own code.
void followInForms(const std::vector<std::string>& before) {
    for (WidgetNode* form = project.forms; form; form = form->next) {
        if (std::ranges::find(before, form->parentName) == before.end()) continue;
        const auto entry = std::ranges::find(state.entries.rows, form->parentName, &EditedEntry::oldName);
        form->parentName = entry == state.entries.rows.end() ? "NONE" : entry->record.name;
    }
}

void followInCode() {
    for (const EditedEntry& entry : state.entries.rows)
        if (!entry.oldName.empty() && entry.oldName != entry.record.name && !entry.record.name.empty())
            hooks.renameInCode(entry.oldName, entry.record.name);
}

bool refused(const WidgetNode& owner) {
    const std::vector<ChainFault> faults = checkEntries(records(), owner);
    for (const ChainFault& fault : faults) host.errorBox(fault.title, fault.text);
    if (faults.empty()) return false;
    state.entries.go(faults.front().row);
    showEntry();
    return true;
}

bool apply() {
    leaveEntry();
    WidgetNode* owner = editedOwner();
    if (!owner || refused(*owner)) return false;
    std::vector<std::string> before;
    for (const MenuEntryRec& entry : owner->entries) before.push_back(entry.name);
    closeDialogue(*state.editor.dialogue);
    state.editor.finish(records());
    followInForms(before);
    followInCode();
    markChanged();
    if (project.currentWidget) hooks.bindCode(project.currentWidget);
    return true;
}

void end() {
    state.owner = 0;
    state.entries = {};
}

} // namespace

WidgetNode* editedOwner() { return findRecord(state.owner); }

void openEntryEditor(const EntryEditor& editor, WidgetNode& owner) {
    if (isOpen(*editor.dialogue)) return;
    hooks.commitEditor();
    state = {};
    state.editor = editor;
    state.owner = owner.id;
    std::vector<EditedEntry> entries;
    for (const MenuEntryRec& entry : editableEntries(owner.entries)) entries.push_back({entry, entry.name});
    state.entries.start(std::move(entries), newEntry(0));
    state.previewed = signature(records());
    openDialogue(*editor.dialogue);
}

namespace entry {

void fill() {
    state.list.open(ENTRY_LIST);
    showFields();
}

void refresh() {
    const MenuEntryRec& entry = now();
    const WidgetNode* owner = editedOwner();
    const bool separator = isMenu() && isSeparatorCaption(entry.label);
    const bool below = entry.level > 0;
    const bool pictures = isMenu() ? below && !separator && project.projectPlatform == 'w' : owner && hasIcons(*owner);
    for (const IconField& field : ICON_FIELDS) dialogue::enable({field.control, field.browse}, pictures);
    dialogue::enable(ENTRY_LEFT, below);
    dialogue::enable(ENTRY_RIGHT, state.entries.current > 0);
    dialogue::enable(ENTRY_UP, state.entries.current > 0);
    dialogue::enable(ENTRY_DOWN, !state.entries.atEnd());
    if (isMenu()) {
        dialogue::enable(ENTRY_HELP, pictures);
        dialogue::enable(ENTRY_SEPARATOR, below && !separator);
        dialogue::enable(ENTRY_ACCELERATOR, !separator);
        dialogue::enable(ENTRY_CODE, below && !separator);
    }
    showIcons();
    showList();
    showPreview();
}

void captionTyped() { now().label = dialogue::text(ENTRY_CAPTION); }

void captionChanged() {
    const bool unnamed = now().name.empty();
    leaveEntry();
    if (unnamed && !now().name.empty() && owEnqActiveWidget() == dialogue::widget(ENTRY_CAPTION))
        dialogue::focus(ENTRY_NAME);
}

void nameChanged() {
    const std::string name = dialogue::text(ENTRY_NAME), before = now().name;
    now().name = name;
    if (name.empty() || nameIsGood(name)) return;
    host.errorBox("Invalid Name", name + " is a duplicate or invalid Fortran/C variable name");
    dialogue::refuse(ENTRY_NAME);
}

void helpChanged() {
    const std::string help = dialogue::text(ENTRY_HELP);
    if (now().level > 0 || help.empty()) {
        now().help = help;
        return;
    }
    host.errorBox("Cannot set help text", "You cannot set help text for a menu bar entry.");
    now().help.clear();
    dialogue::setText(ENTRY_HELP, "");
    dialogue::refuse(ENTRY_CAPTION);
}

void acceleratorChanged() {
    MenuEntryRec& current = now();
    const int key = static_cast<int>(firstLetter(dialogue::text(ENTRY_ACCELERATOR)));
    const auto taken = [&](const EditedEntry& other) { return &other.record != &current && other.record.accel == key; };
    const bool shared = project.projectPlatform == 'w' || key == 0 || key == ' ';
    if (!shared && std::ranges::any_of(state.entries.rows, taken)) {
        host.errorBox("Duplicate Accelerator Key", "Another Menu Entry has this accelerator key");
        dialogue::refuse(ENTRY_ACCELERATOR);
    } else {
        current.accel = key;
    }
    dialogue::setText(ENTRY_ACCELERATOR, letterText(static_cast<char32_t>(current.accel)));
}

void iconChanged() { readFields(); }

namespace {

void browse(std::size_t slot) {
    readFields();
    const IconField& field = ICON_FIELDS[slot];
    chooseIcon(ALL_ICONS, now().*field.icon, [control = field.control](const IconChoice& choice) {
        dialogue::setText(control, choice.name);
        readFields();
        refresh();
        dialogue::focus(control);
    });
}

} // namespace

void browse1() { browse(0); }
void browse2() { browse(1); }
void browse3() { browse(2); }

// By the cursor keys the list keeps the focus, so that they can go on.
void chooseRow() {
    const int row = dialogue::choice(ENTRY_LIST) - 1;
    if (row == static_cast<int>(state.entries.current)) return;
    leaveEntry();
    if (!state.entries.go(row)) return;
    showFields();
}

void editRow() { dialogue::focus(ENTRY_CAPTION); }

void next() {
    leaveEntry();
    if (!state.entries.atEnd())
        state.entries.next();
    else if (!now().label.empty())
        state.entries.add(newEntry(0));
    showEntry();
}

void previous() {
    leaveEntry();
    state.entries.previous();
    showEntry();
}

void insert() {
    leaveEntry();
    state.entries.insert(newEntry(now().level));
    showEntry();
}

void remove() {
    state.entries.remove(newEntry(0));
    showEntry();
}

void removeAll() {
    state.entries.clear(newEntry(0));
    showEntry();
}

void separator() {
    leaveEntry();
    const WidgetNode* owner = editedOwner();
    if (!owner) return;
    NamesInUse names = namesBeside(records(), *owner);
    state.entries.insertAbove({newSeparator(now().level, names), {}});
    showEntry();
}

void left() {
    leaveEntry();
    MenuEntryRec& current = now();
    if (current.level == 0) return;
    const bool hasCode = std::ranges::any_of(current.slots, [](const CallbackSlot& slot) { return !slot.empty(); });
    if (isMenu() && current.level == 1 && hasCode) {
        const int answer = host.messageBox("Entry has callback code attached",
                                           "If you proceed, you will lose the code attached to this entry! Do you wish "
                                           "to continue?",
                                           BOX_WARNING, BOX_YES_NO);
        if (answer != ANSWER_YES) return;
        current.slots = {};
    }
    --current.level;
}

void right() {
    leaveEntry();
    ++now().level;
}

void up() {
    leaveEntry();
    state.entries.up();
}

void down() {
    leaveEntry();
    state.entries.down();
}

void moveRow(int from, int to) {
    leaveEntry();
    state.entries.move(static_cast<std::size_t>(from) - 1, static_cast<std::size_t>(to) - 1);
    showFields();
}

void accept() {
    if (apply()) end();
}

void code() {
    const WidgetNode* owner = editedOwner();
    const std::string name = [] {
        leaveEntry();
        return now().name;
    }();
    if (!owner || !apply()) return;
    WidgetNode* record = editedOwner();
    end();
    if (record && !name.empty()) showEntryCode(record, name, slotTable[SLOT_GENERAL].name, 1, 1);
}

void cancel() {
    closeDialogue(*state.editor.dialogue);
    if (state.editor.abandon) state.editor.abandon();
    end();
}

} // namespace entry
