// Add ORBA Command: the tree of the routines that user code can call, and the call that one of them puts into the code.
#include "dialogues/catalogue_window.h"

#include "dialogues/commands.h"
#include "dialogues/frame.h"
#include "editing/catalogue.h"
#include "editing/commands.h"
#include "editing/editor_window.h"
#include "editing/help_file.h"
#include "editing/modes.h"
#include "editing/search.h"
#include "editing/text_view.h"
#include "project/code_stores.h"
#include "project/preferences.h"
#include "surface/event.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr char GENERATE_LABEL[] = "Generate Form";
constexpr char LACKING[] = "The installed library does not have this routine.";

struct Leaf {
    int entry;                       // handle
    const CatalogueRoutine* routine; // null: the call that makes a form
};
std::vector<Leaf> leaves;
std::vector<int> roots; // entries of the first level
const Leaf* chosen = nullptr;
dialogue::Place lastPlace = {};

void fill();
void refresh();
void filter();
void choose();
void insert();
void help();
void close();

constexpr Control CONTROLS[] = {
    {.field = Field::Text,
     .id = CATALOGUE_FILTER,
     .x = 4,
     .y = 412,
     .width = 342,
     .help = "Shows the routines whose names hold what is typed",
     .typed = filter},
    {.field = Field::Tree,
     .id = CATALOGUE_TREE,
     .x = 4,
     .y = 108,
     .width = 342,
     .height = 298,
     .changed = choose,
     .entered = insert},
    {.field = Field::Note, .id = CATALOGUE_SIGNATURE, .x = 4, .y = 58, .width = 342, .height = 44},
    {.field = Field::Note, .id = CATALOGUE_ABOUT, .x = 4, .y = 34, .width = 342},
    {.field = Field::Default,
     .id = CATALOGUE_OK,
     .text = "OK",
     .x = 22,
     .y = 4,
     .width = 66,
     .mnemonic = 'O',
     .changed = insert},
    {.field = Field::Button,
     .id = CATALOGUE_CANCEL,
     .text = "Cancel",
     .x = 110,
     .y = 4,
     .width = 66,
     .mnemonic = 'C',
     .changed = close},
    {.field = Field::Button,
     .id = CATALOGUE_HELP,
     .text = "Help",
     .x = 198,
     .y = 4,
     .width = 66,
     .mnemonic = 'H',
     .changed = help},
};

constexpr DialogueKey KEYS[] = {{.key = functionKey(1), .control = CATALOGUE_HELP}};

const Dialogue DIALOGUE = {.title = "Add ORBA Command",
                           .icon = "Crdfle1b",
                           .help = "Insert Command",
                           .width = 350,
                           .height = 438,
                           .windowEvent = CATALOGUE_WINDOW,
                           .controls = CONTROLS,
                           .cancel = CATALOGUE_CANCEL,
                           .first = CATALOGUE_FILTER,
                           .fill = fill,
                           .refresh = refresh,
                           .keys = KEYS,
                           .modeless = true};

int language() { return project.projectLanguage; }

// ---- The tree ---------------------------------------------------------------------------------------------------

int addEntry(int parent, const char* label, const char* icon) {
    const int resource = owGetIconResource(icon);
    return owCreateTreeEntry(parent, OLASTCHILD, label, owIcon, resource, owCallback, dialogue::ENTRY_EVENT, 0);
}

void addLeaf(int parent, const CatalogueRoutine* routine) {
    const char* const label = routine ? routine->name : GENERATE_LABEL;
    const int entry = owCreateTreeEntry(parent, OLASTCHILD, label, owCallback, dialogue::ENTRY_EVENT,
                                        owDoubleClickCallback, routine ? static_cast<int>(CATALOGUE_OK) : 0, 0);
    if (routine && !routine->available) {
        owSetWidgetStatus(entry, OUNSELECTABLE);
        owSetWidgetHelp(entry, LACKING, 0);
    } else if (routine && *routine->about) {
        owSetWidgetHelp(entry, routine->about, 0);
    }
    leaves.push_back({entry, routine});
}

bool holds(const std::string& name, const std::string& wanted) { return !findAll(name, {wanted}).empty(); }

void clearTree() {
    for (const int root : roots) owEraseWidget(root);
    roots.clear();
    leaves.clear();
    chosen = nullptr;
}

// All folders, the last one opened; with a filter the routines that fit, those that can be called first.
void showTree(const std::string& wanted) {
    clearTree();
    const int tree = dialogue::widget(CATALOGUE_TREE);
    owSetWidgetProp(tree, owIconSet, ORESOURCEICONS, 0);
    const auto folders = catalogueOf(language());
    if (wanted.empty()) {
        addLeaf(tree, nullptr);
        roots.push_back(leaves.back().entry);
        for (const CatalogueFolder& folder : folders) {
            roots.push_back(addEntry(tree, folder.label, folder.icon));
            for (const CatalogueRoutine& routine : folder.routines) addLeaf(roots.back(), &routine);
        }
        owTreeViewAction(roots.back(), OOPENENTRY);
    } else {
        for (const bool available : {true, false})
            for (const CatalogueFolder& folder : folders)
                for (const CatalogueRoutine& routine : folder.routines) {
                    if (routine.available != available || !holds(routine.name, wanted)) continue;
                    addLeaf(tree, &routine);
                    roots.push_back(leaves.back().entry);
                }
    }
    if (leaves.empty()) return;
    if (leaves.front().routine && !leaves.front().routine->available) return;
    chosen = &leaves.front();
    owTreeViewAction(chosen->entry, OSELECTENTRY);
}

void fill() { showTree(""); }

void filter() {
    showTree(dialogue::text(CATALOGUE_FILTER));
    refresh();
}

void choose() {
    const auto leaf = std::ranges::find(leaves, action.widget, &Leaf::entry);
    chosen = leaf == leaves.end() ? nullptr : &*leaf;
}

void refresh() {
    const bool routine = chosen && chosen->routine && chosen->routine->available;
    dialogue::setText(CATALOGUE_SIGNATURE,
                      routine ? chosen->routine->name + signatureOf(*chosen->routine, language()).text : "");
    dialogue::setText(CATALOGUE_ABOUT, routine ? chosen->routine->about : "");
    dialogue::enable(CATALOGUE_OK, routine || (chosen && !chosen->routine));
    dialogue::enable(CATALOGUE_HELP, routine);
}

// ---- The call ---------------------------------------------------------------------------------------------------

// In front of a selection, which stays; else the caret goes to where the first value is typed.
void insertCall(const Insertion& insertion) {
    const TextRange selected = selectionOf(editor.text);
    const int start = selected.start;
    replaceRange(editor.text, {start, start}, insertion.text);
    const int length = characters(insertion.text);
    if (selected.start == selected.end)
        moveCaret(editor.text, start + insertion.caret);
    else
        select(editor.text, {selected.start + length, selected.end + length});
    codeEditing.codeModified = true;
    project.projectModified = 1;
    showLineColumn(selectionOf(editor.text).end);
}

void insert() {
    if (!chosen || (chosen->routine && !chosen->routine->available)) return;
    const Insertion insertion = chosen->routine
                                    ? insertionFor(*chosen->routine, language(), preferences.argumentPrompts != 0)
                                    : insertionForGenerate(language());
    close();
    insertCall(insertion);
}

void help() {
    if (chosen && chosen->routine) showRoutineHelp(chosen->routine->name);
}

void close() {
    lastPlace = dialogue::place(DIALOGUE);
    clearTree();
    closeDialogue(DIALOGUE);
    enterTextMode();
}

void insertCommand() {
    openDialogue(DIALOGUE);
    if (lastPlace.width > 0) dialogue::setPlace(DIALOGUE, lastPlace);
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_INSERT_COMMAND, .when = OPENS_WINDOW, .handler = insertCommand},
};
// clang-format on

} // namespace

int catalogueEntry(const char* name) {
    for (const Leaf& leaf : leaves)
        if (name == std::string(leaf.routine ? leaf.routine->name : GENERATE_LABEL)) return leaf.entry;
    return 0;
}

std::span<const Command> catalogueCommands() { return COMMANDS; }
