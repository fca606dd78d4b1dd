// Deep copies of records.
#include "project/tree.h"

namespace {

// One record with all that it owns, standing alone.
WidgetNode* copyRecord(const WidgetNode& source) {
    auto* copy = new WidgetNode(source);
    copy->child = copy->next = copy->parent = copy->lastChild = nullptr;
    copy->storedParentHandle = copy->storedFormCallbackId = 0; // the copy comes from no file
    copy->indexedName = 0;
    copy->indexedHandle = 0;
    copy->inProject = false;
    copy->id = 0;
    return copy;
}

} // namespace

OwnedList copyNode(const WidgetNode* node, bool withSiblings) {
    if (!node) return nullptr;
    OwnedList top(copyRecord(*node));
    const WidgetNode* source = node;
    WidgetNode* copy = top.get();
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
