#include "project/code_stores.h"

#include "project/tree.h"
#include "project/widget_types.h"

#include <algorithm>

// clang-format off
const std::array<CodeBlockRow, CODE_BLOCKS> codeBlockTable = {{
    {"Global Definitions", "Global Definitions"},
    {"Global Routines", "Global Routines"},
    {"Local Variables", "User defined variables"},
    {"Initialization", "Initialization code"},
    {"Pre Action", "Pre Action Code"},
    {"Start of Action loop", "Start of Action Loop"},
    {"End of Action loop", "End of Action Loop"},
    {"Program termination", "Program termination code"},
    {"User Routines/Functions", "User Routines/Functions"},
}};

const std::array<SlotRow, WIDGET_SLOTS> slotTable = {{
    {SLOT_GENERAL, "General Callback", 0, -1, "owDefineCallback"},
    {SLOT_SELECT, "Select Callback", 1, -1, "owDefineSelectCallback"},
    {SLOT_MOVE, "Move Callback", 2, -1, "owDefineMoveCallback"},
    {SLOT_CHANGE, "Change Callback", 4, -1, "owDefineChangeCallback"},
    {SLOT_DOUBLE_CLICK, "Double Click Callback", 6, -1, "owDefineDoubleClickCallback"},
    {SLOT_DRAG_SELECT, "Drag Select Callback", 8, -1, "owDefineDragSelectCallback"},
    {SLOT_DRAG_MOVE, "Drag Move Callback", 9, -1, "owDefineDragMoveCallback"},
    {SLOT_DRAG_DROP, "Drag Drop Callback", 5, -1, "owDefineDragDropCallback"},
    {SLOT_EXPOSE, "Expose Callback", 3, -1, "owDefineExposeCallback"},
    {SLOT_FILE_DROP, "File Drop Callback", 7, -1, "owDefineFileDropCallback"},
    {SLOT_WINDOW_MOVED, "Window Moved Callback", -1, 0, ""},
    {SLOT_WINDOW_RESIZED, "Window Resized Callback", -1, 1, ""},
    {SLOT_WINDOW_QUIT, "Window Quit Callback", -1, 2, ""},
    {SLOT_WINDOW_MINIMIZED, "Window Minimized Callback", -1, 3, ""},
    {SLOT_WINDOW_SCROLLED, "Window Scrolled Callback", -1, 4, ""},
    {SLOT_WINDOW_LOST_FOCUS, "Window Lost Focus Callback", -1, 5, ""},
    {SLOT_VALUE_ERROR, "Value Error Callback", 10, -1, "owDefineValueErrorCallback"},
    {SLOT_HYPERLINK, "HyperLink Callback", 11, -1, "owDefineLinkCallback"},
}};

const std::array<SlotPlace, WIDGET_SLOTS> slotFileOrder = {{
    {SLOT_GENERAL, 10}, {SLOT_SELECT, 10}, {SLOT_MOVE, 10}, {SLOT_EXPOSE, 10}, {SLOT_CHANGE, 30},
    {SLOT_DOUBLE_CLICK, 30}, {SLOT_DRAG_SELECT, 30}, {SLOT_DRAG_MOVE, 30}, {SLOT_DRAG_DROP, 30},
    {SLOT_FILE_DROP, 40}, {SLOT_WINDOW_MOVED, 40}, {SLOT_WINDOW_RESIZED, 40}, {SLOT_WINDOW_QUIT, 40},
    {SLOT_WINDOW_MINIMIZED, 40}, {SLOT_WINDOW_SCROLLED, 40}, {SLOT_WINDOW_LOST_FOCUS, 40}, {SLOT_VALUE_ERROR, 50},
    {SLOT_HYPERLINK, 70},
}};
// clang-format on

CodeEditing codeEditing;

namespace {

constexpr char GENERAL[] = "General Callback";
constexpr std::size_t CURRENT_NAME_LIMIT = 50;

bool inEntryMode() { return codeEditing.target == EDIT_MENU_SLOT || codeEditing.target == EDIT_TREE_SLOT; }

// The working copies of an entry stand under the slots that they answer to.
void loadEntryCopies(const MenuEntryRec& entry) {
    for (std::size_t i = 0; i < ENTRY_SLOTS; ++i) codeEditing.workingSlots[entrySlotKinds[i]] = entry.slots[i];
}

void storeEntryCopies(MenuEntryRec& entry) {
    for (std::size_t i = 0; i < ENTRY_SLOTS; ++i) entry.slots[i] = codeEditing.workingSlots[entrySlotKinds[i]];
}

MenuEntryRec* entryNamed(std::vector<MenuEntryRec>& entries, std::string_view name) {
    const auto entry = std::ranges::find(entries, name, &MenuEntryRec::name);
    return entry == entries.end() ? nullptr : &*entry;
}

bool offers(const WidgetNode& node, std::string_view name) {
    const std::vector<WidgetSlot> slots = offeredSlots(node);
    return std::any_of(slots.begin(), slots.end(), [&](WidgetSlot slot) { return name == slotTable[slot].name; });
}

int listPositionOf(std::string_view name) {
    const int block = blockIndexOf(name);
    return block >= 0 ? block + 1 : SLOT_LIST_POSITION;
}

void commitEntry() {
    if (!codeEditing.currentEntry) return;
    storeEntryCopies(*codeEditing.currentEntry);
    WidgetNode* owner = ownerOfEntryCopy();
    if (!owner) return;
    if (MenuEntryRec* real = entryNamed(owner->entries, codeEditing.currentEntry->name))
        real->slots = codeEditing.currentEntry->slots;
}

} // namespace

WidgetNode* ownerOfEntryCopy() { return findRecord(codeEditing.entryOwner); }

bool isSlotName(std::string_view name) { return name.find("Callback") != std::string_view::npos; }

int blockIndexOf(std::string_view name) {
    for (std::size_t i = 0; i < codeBlockTable.size(); ++i)
        if (name == codeBlockTable[i].name) return static_cast<int>(i);
    return -1;
}

int slotIndexOf(std::string_view name) {
    for (const SlotRow& row : slotTable)
        if (name == row.name) return row.slot;
    return -1;
}

int entrySlotIndexOf(std::string_view name) {
    for (std::size_t i = 0; i < ENTRY_SLOTS; ++i)
        if (name == slotTable[entrySlotKinds[i]].name) return static_cast<int>(i);
    return -1;
}

std::vector<WidgetSlot> offeredSlots(const WidgetNode& node) {
    std::vector<WidgetSlot> slots;
    for (const OfferedSlot& offered : cardOf(node).slots) {
        if (offered.condition == SLOT_ON_WINDOWS && project.projectPlatform != 'w') continue;
        if (offered.condition == SLOT_ON_MASTER_MDI && node.formType != FORM_MASTER_MDI) continue;
        slots.push_back(offered.slot);
    }
    return slots;
}

std::vector<EntrySlot> offeredEntrySlots(const WidgetNode& owner) {
    if (owner.type != TYPE_TREE_VIEW) return {ENTRY_GENERAL};
    return {ENTRY_GENERAL, ENTRY_SELECT, ENTRY_CHANGE, ENTRY_DOUBLE_CLICK, ENTRY_DRAG_DROP};
}

void refreshBlockCopies() { codeEditing.blockCopies = project.codeBlocks; }

void loadWorkingSlots(WidgetNode& widget) {
    codeEditing.widget = widget.id;
    codeEditing.workingSlots = widget.slots;
    if (isSlotName(project.currentBlockName) && !offers(widget, project.currentBlockName))
        project.currentBlockName = GENERAL;
    codeEditing.target = isSlotName(project.currentBlockName) ? EDIT_WIDGET_SLOT : EDIT_BLOCK;
}

void bindWidgetCode(WidgetNode& widget) {
    copyEntriesForEditing(nullptr);
    refreshBlockCopies();
    if (offeredSlots(widget).empty()) {
        codeEditing.widget = 0;
        codeEditing.target = EDIT_BLOCK;
        if (isSlotName(project.currentBlockName)) project.currentBlockName = codeBlockTable[BLOCK_LOCAL_VARIABLES].name;
    } else {
        if (!isSlotName(project.currentBlockName)) project.currentBlockName = GENERAL;
        loadWorkingSlots(widget);
    }
    codeEditing.listPosition = listPositionOf(project.currentBlockName);
}

void copyEntriesForEditing(WidgetNode* owner) {
    codeEditing.entryCopy.clear();
    codeEditing.currentEntry = nullptr;
    codeEditing.entryOwner = owner ? owner->id : 0;
    if (!owner) return;
    for (const MenuEntryRec& entry : owner->entries)
        if (entry.kind == MENU_ENTRY || entry.kind == MENU_SEPARATOR) codeEditing.entryCopy.push_back(entry);
}

bool bindEntryCode(std::string_view entryName) {
    const WidgetNode* owner = ownerOfEntryCopy();
    if (entryName.empty() || !owner) return false;
    MenuEntryRec* entry = entryNamed(codeEditing.entryCopy, entryName);
    if (!entry) return false;
    const bool tree = owner->type == TYPE_TREE_VIEW;
    codeEditing.currentEntry = entry;
    (tree ? codeEditing.treeEntryName : codeEditing.menuEntryName) = entryName;
    refreshBlockCopies();
    loadEntryCopies(*entry);
    project.currentBlockName = GENERAL;
    codeEditing.target = tree ? EDIT_TREE_SLOT : EDIT_MENU_SLOT;
    codeEditing.listPosition = SLOT_LIST_POSITION;
    return true;
}

std::string& shownCode() {
    const int block = blockIndexOf(project.currentBlockName);
    if (block >= 0) return codeEditing.blockCopies[static_cast<std::size_t>(block)];
    const int slot = slotIndexOf(project.currentBlockName);
    return codeEditing.workingSlots[static_cast<std::size_t>(slot < 0 ? static_cast<int>(SLOT_GENERAL) : slot)];
}

void commitCode(const std::string& text, int caretStart, int caretEnd) {
    if (!codeEditing.codeModified) return;
    const bool block = blockIndexOf(project.currentBlockName) >= 0;
    if (block || slotIndexOf(project.currentBlockName) >= 0) shownCode() = text;
    if (inEntryMode())
        commitEntry();
    else if (WidgetNode* widget = block ? nullptr : findRecord(codeEditing.widget))
        widget->slots = codeEditing.workingSlots;
    const int position = listPositionOf(project.currentBlockName);
    codeEditing.caretStart[static_cast<std::size_t>(position)] = caretStart;
    codeEditing.caretEnd[static_cast<std::size_t>(position)] = caretEnd;
    project.codeBlocks = codeEditing.blockCopies;
    codeEditing.codeModified = false;
    markProjectChanged();
}

void clearShownCode() {
    shownCode().clear();
    codeEditing.codeModified = true;
}

void clearAllCode() {
    if (inEntryMode())
        for (WidgetSlot slot : entrySlotKinds) codeEditing.workingSlots[slot].clear();
    else if (codeEditing.target == EDIT_WIDGET_SLOT)
        for (std::string& slot : codeEditing.workingSlots) slot.clear();
    for (std::string& copy : codeEditing.blockCopies) copy.clear();
    codeEditing.codeModified = true;
}

void forgetCodeCopies() {
    copyEntriesForEditing(nullptr);
    codeEditing = CodeEditing();
}

void convertOldCode(std::string& code) {
    std::replace(code.begin(), code.end(), '~', '|');
    std::replace(code.begin(), code.end(), '^', '\t');
}

void convertOldCode(WidgetNode* list) {
    for (WidgetNode* node = list; node; node = walkList(node, list)) {
        for (CallbackSlot& slot : node->slots) convertOldCode(slot);
        for (MenuEntryRec& entry : node->entries)
            for (CallbackSlot& slot : entry.slots) convertOldCode(slot);
    }
}
