// Deep copies of records and of the chains that they own.
#include "project/tree.h"

namespace {

template <typename Entry> Entry* copyChain(const Entry* first) {
    Entry* head = nullptr;
    Entry** link = &head;
    for (; first; first = first->next) {
        *link = new Entry(*first);
        link = &(*link)->next;
        *link = nullptr;
    }
    return head;
}

template <typename Entry> void freeChain(Entry* first) {
    while (first) {
        Entry* next = first->next;
        delete first;
        first = next;
    }
}

// One record with all that it owns, standing alone.
WidgetNode* copyRecord(const WidgetNode& source) {
    auto* copy = new WidgetNode(source);
    copy->entries = copyEntries(source.entries);
    copy->listEntries = copyListEntries(source.listEntries);
    copy->child = copy->next = copy->parent = copy->lastChild = nullptr;
    copy->storedParentHandle = copy->storedFormCallbackId = 0; // the copy comes from no file
    copy->indexedName = 0;
    copy->indexedHandle = 0;
    copy->inProject = false;
    copy->id = 0;
    return copy;
}

} // namespace

MenuEntryRec* copyEntries(const MenuEntryRec* first) { return copyChain(first); }
ListEntryRec* copyListEntries(const ListEntryRec* first) { return copyChain(first); }
void freeEntries(MenuEntryRec* first) { freeChain(first); }
void freeListEntries(ListEntryRec* first) { freeChain(first); }

WidgetNode* copyNode(const WidgetNode* node, bool withSiblings) {
    if (!node) return nullptr;
    WidgetNode* top = copyRecord(*node);
    const WidgetNode* source = node;
    WidgetNode* copy = top;
    for (;;) {
        if (source->child) {
            source = source->child;
            WidgetNode* child = copyRecord(*source);
            child->parent = copy;
            copy->child = copy->lastChild = child;
            copy = child;
            continue;
        }
        // Up to the nearest record that has a follower within what is to be copied; at the top `copy` has no parent.
        while (copy->parent && !source->next) source = source->parent, copy = copy->parent;
        if (!source->next || (!copy->parent && !withSiblings)) return top;
        source = source->next;
        WidgetNode* sibling = copyRecord(*source);
        sibling->parent = copy->parent;
        if (copy->parent) copy->parent->lastChild = sibling;
        copy->next = sibling;
        copy = sibling;
    }
}
