// The editor of a form's menu, and the command that removes one.
#include "dialogues/commands.h"
#include "dialogues/entry_editor.h"
#include "project/host.h"
#include "project/menu_chain.h"
#include "project/tree.h"
#include "surface/hooks.h"
#include "surface/live_types.h"
#include "surface/selection.h"
#include "surface/state.h"

namespace {

constexpr short TOP = ENTRY_LIST_HEIGHT; // of the list: the fields stand above it

constexpr Control CONTROLS[] = {
    entryLabel(" Caption:", TOP + 132),
    entryText(ENTRY_CAPTION, TOP + 132, 154, entry::captionChanged, entry::captionTyped),
    entryLabel(" Name:", TOP + 110),
    entryText(ENTRY_NAME, TOP + 110, 154, entry::nameChanged),
    entryLabel(" Help Text:", TOP + 88),
    entryText(ENTRY_HELP, TOP + 88, 154, entry::helpChanged),
    entryLabel(" Uncheck Icon:", TOP + 66),
    entryText(ENTRY_ICON1, TOP + 66, 132, entry::iconChanged),
    entryBrowse(ENTRY_BROWSE1, TOP + 66, entry::browse1),
    entryLabel(" Check Icon:", TOP + 44),
    entryText(ENTRY_ICON2, TOP + 44, 132, entry::iconChanged),
    entryBrowse(ENTRY_BROWSE2, TOP + 44, entry::browse2),
    entryLabel(" Grey Icon:", TOP + 22),
    entryText(ENTRY_ICON3, TOP + 22, 132, entry::iconChanged),
    entryBrowse(ENTRY_BROWSE3, TOP + 22, entry::browse3),
    entryLabel(" Accelerator:", TOP),
    {.field = Field::Text,
     .id = ENTRY_ACCELERATOR,
     .x = 88,
     .y = TOP,
     .width = 33,
     .changed = entry::acceleratorChanged,
     .length = 4},
    {.field = Field::Default,
     .id = ENTRY_MENU_OK,
     .text = "OK",
     .x = 242,
     .y = TOP + 132,
     .width = 88,
     .mnemonic = 'O',
     .changed = entry::accept},
    rowButton(ENTRY_MENU_CANCEL, "Cancel", TOP + 110, 'C', entry::cancel),
    rowButton(ENTRY_CODE, "Code", TOP + 66, 'e', entry::code),
    entryArrow(ENTRY_LEFT, "larrow", 242, "Up one level (Alt+Left)", entry::left),
    entryArrow(ENTRY_RIGHT, "rarrow", 264, "Down one level (Alt+Right)", entry::right),
    entryArrow(ENTRY_UP, "uarrow", 286, "Up in the list (Alt+Up)", entry::up),
    entryArrow(ENTRY_DOWN, "darrow", 308, "Down in the list (Alt+Down)", entry::down),
    rowButton(ENTRY_SEPARATOR, "Separator", 110, 'S', entry::separator),
    rowButton(ENTRY_NEXT, "Next", 88, 'N', entry::next),
    rowButton(ENTRY_PREV, "Prev", 66, 'P', entry::previous),
    rowButton(ENTRY_INSERT, "Insert", 44, 'I', entry::insert),
    rowButton(ENTRY_DELETE, "Delete", 22, 'D', entry::remove),
    rowButton(ENTRY_DELETE_ALL, "Delete All", 0, 'A', entry::removeAll),
    entryList(),
};

const Dialogue DIALOGUE = {.title = "Menu Editor",
                           .icon = "Menu",
                           .help = "Menu Editor",
                           .width = 330,
                           .height = TOP + 154,
                           .windowEvent = ENTRY_MENU_WINDOW,
                           .controls = CONTROLS,
                           .cancel = ENTRY_MENU_CANCEL,
                           .first = ENTRY_CAPTION,
                           .fill = entry::fill,
                           .refresh = entry::refresh,
                           .keys = ENTRY_KEYS};

// ---- The live menu

int previewBar = 0; // menu bar of the form while it shows what is edited; 0: that of its record

void eraseLiveBar(WidgetNode& form) {
    if (previewBar)
        owEraseWidget(previewBar);
    else
        eraseLiveMenu(form);
    previewBar = 0;
}

void preview(const MenuEntries& entries) {
    WidgetNode* form = editedOwner();
    if (!form) return;
    eraseLiveBar(*form);
    MenuEntries chain = buildChain(entries, *form);
    previewBar = createLiveMenu(form->handle, chain);
    keepClientSize(*form);
}

void showRecord(WidgetNode& form) {
    eraseLiveBar(form);
    buildLiveMenu(form);
    keepClientSize(form);
}

// The live menu goes with the entries that hold its handles.
void setMenu(WidgetNode& form, MenuEntries chain) {
    eraseLiveBar(form);
    form.entries = std::move(chain);
    buildLiveMenu(form);
    keepClientSize(form);
}

void finish(const MenuEntries& entries) {
    if (WidgetNode* form = editedOwner()) setMenu(*form, buildChain(entries, *form));
}

void abandon() {
    WidgetNode* form = editedOwner();
    if (form && previewBar) showRecord(*form);
}

// ---- Commands

WidgetNode* formInHand() {
    WidgetNode* form = project.currentWidget ? formOf(project.currentWidget, project.forms) : nullptr;
    if (!form) host.errorBox("No valid form selected!", "You must select a valid form first");
    return form;
}

bool mayHaveMenu(const WidgetNode& form) {
    const bool child = form.formType == FORM_STATIC_SDI || form.formType == FORM_DYNAMIC_SDI;
    if (!child || !form.entries.empty()) return true;
    return host.messageBox("Child SDI Form current", "Are you sure you want to add a menu bar to this Child SDI Form?",
                           BOX_QUESTION, BOX_YES_NO) == ANSWER_YES;
}

void menuEditorCommand() {
    if (isOpen(DIALOGUE)) return;
    WidgetNode* form = formInHand();
    if (!form || !mayHaveMenu(*form)) return;
    selectTool(TOOL_SELECTOR);
    previewBar = 0;
    openEntryEditor({&DIALOGUE, true, preview, finish, abandon}, *form);
}

void deleteMenuBarCommand() {
    WidgetNode* form = formInHand();
    if (!form || form->entries.empty()) return;
    const int answer = host.messageBox("Confirm menu removal",
                                       "This will remove the menu bar and all associated pull-down menus from the "
                                       "current form.|Are you sure you want to continue?",
                                       BOX_QUESTION, BOX_YES_NO);
    if (answer != ANSWER_YES) return;
    hooks.commitEditor();
    previewBar = 0;
    for (WidgetNode* opened = project.forms; opened; opened = opened->next)
        for (const MenuEntryRec& entry : form->entries)
            if (!entry.name.empty() && opened->parentName == entry.name) opened->parentName = "NONE";
    setMenu(*form, {});
    markChanged();
    hooks.bindCode(project.currentWidget);
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_MENU_EDITOR, .label = "Menu entries...", .mnemonic = 'M', .menuIcon = "Menu&", .barIcon = "menu", .bubbleHelp = "Create/View Menu Bar", .handler = menuEditorCommand},
    {.id = CMD_DELETE_MENU_BAR, .label = "Delete Menu Bar", .mnemonic = 'M', .menuIcon = "deletemenu&", .handler = deleteMenuBarCommand},
};
// clang-format on

} // namespace

std::span<const Command> menuEditorCommands() { return COMMANDS; }
