// The one order in which a project is walked: a record, what hangs below it, then the next one of its chain.
#pragma once

#include "project/records.h"

#include <vector>

enum class Siblings { FOLLOWED, LEFT };

// Calls visit(record, parent) for `top`, all below it and, with siblings followed, what comes next along its chain.
// The parent of a record of that chain itself is null. No recursion: files may nest as deep as they like.
template <class Visit> void preOrder(WidgetNode* top, Visit visit, Siblings siblings = Siblings::FOLLOWED) {
    std::vector<WidgetNode*> path;
    WidgetNode* node = top;
    while (node != nullptr) {
        visit(*node, path.empty() ? nullptr : path.back());
        if (node->child != nullptr) {
            path.push_back(node);
            node = node->child;
            continue;
        }
        while (node->next == nullptr && !path.empty()) {
            node = path.back();
            path.pop_back();
        }
        node = path.empty() && siblings == Siblings::LEFT ? nullptr : node->next;
    }
}
