// The chain of branches in the action loop that finds the code of the event's identifier.

#include "codegen/generation.h"
#include "codegen/markers.h"

#include "project/code_stores.h"
#include "project/tree.h"

namespace {

constexpr int MASTER_CLOSED_STATUS = 2;

void pasteSlot(Generation& g, const WidgetNode& node, WidgetSlot slot) {
    pasteCode(g, {.kind = PastedCode::WIDGET_SLOT, .index = slot, .widget = node.name, .entry = {}}, node.slots[slot],
              true);
}

void endBranch(Generation& g) {
    if (g.branchUnended) g.out += g.language.dispatch.branchEnd;
    g.branchUnended = false;
}

void openBranch(Generation& g, std::string_view name, std::string_view offset) {
    const DispatchTexts& texts = g.language.dispatch;
    endBranch(g);
    g.out += g.branchOpen ? texts.elseHead : texts.ifHead;
    g.out += name;
    g.out += offset;
    g.out += texts.headEnd;
    g.branchOpen = true;
    g.branchUnended = true;
}

void writeMasterClosed(Generation& g, const WidgetNode& master) {
    const DispatchTexts& texts = g.language.dispatch;
    endBranch(g);
    g.out += g.branchOpen ? texts.elseMasterClosed : texts.ifMasterClosed;
    pasteSlot(g, master, SLOT_WINDOW_QUIT);
    g.out += texts.masterClosedEnd;
    g.branchOpen = true;
}

// The window slots share the general branch and are told apart by the status of the action.
void writeWindowSlots(Generation& g, const WidgetNode& node) {
    const DispatchTexts& texts = g.language.dispatch;
    g.out += texts.enquireState;
    bool chainOpen = false;
    for (int status = 0; status <= SLOT_WINDOW_LOST_FOCUS - SLOT_WINDOW_MOVED; ++status) {
        const WidgetSlot slot = static_cast<WidgetSlot>(SLOT_WINDOW_MOVED + status);
        if (node.slots[slot].empty() || (status == MASTER_CLOSED_STATUS && isMaster(node))) continue;
        g.out += chainOpen ? texts.elseStatus : texts.ifStatus;
        g.out += static_cast<char>('0' + status);
        g.out += texts.statusEnd;
        pasteSlot(g, node, slot);
        g.out += texts.statusCodeEnd;
        chainOpen = true;
    }
    if (chainOpen) g.out += texts.statusChainEnd;
}

void writeWidgetBranches(Generation& g, const WidgetNode& node) {
    if (needsGeneralCallback(node)) {
        if (isMaster(node) && !node.slots[SLOT_WINDOW_QUIT].empty()) writeMasterClosed(g, node);
        openBranch(g, node.name, "");
        pasteSlot(g, node, SLOT_GENERAL);
        if (hasWindowCode(node)) writeWindowSlots(g, node);
    }
    for (const WidgetSlot slot : DEFINE_ORDER) {
        if (slot == SLOT_GENERAL || node.slots[slot].empty()) continue;
        openBranch(g, node.name, slotOffset(slot));
        pasteSlot(g, node, slot);
    }
}

void writeEntryBranches(Generation& g, const WidgetNode& owner) {
    for (const MenuEntryRec& entry : owner.entries) {
        for (int slot = 0; slot < ENTRY_SLOTS; ++slot) {
            const CallbackSlot& code = entry.slots[static_cast<std::size_t>(slot)];
            if (code.empty()) continue;
            openBranch(g, entry.name, slotOffset(entrySlotKinds[static_cast<std::size_t>(slot)]));
            pasteCode(g, {.kind = PastedCode::ENTRY_SLOT, .index = slot, .widget = owner.name, .entry = entry.name},
                      code, true);
        }
    }
}

} // namespace

void writeDispatch(Generation& g) {
    g.branchOpen = false;
    g.branchUnended = false;
    for (const WidgetNode* form : g.forms) {
        for (const WidgetNode* node = form; node; node = walkBelow(node, form)) {
            writeWidgetBranches(g, *node);
            writeEntryBranches(g, *node);
            passOn(g);
        }
    }
    if (g.branchOpen) g.out += g.language.dispatch.chainEnd;
}
