// Links of the tree, the index of names and handles beside it, and the searches. The index is built by the first search
// that wants it and then follows every change that goes through here; its keys stand in the records, so that it never
// holds a record longer than the tree does.
#include "project/tree.h"

#include "project/widget_types.h"

#include <functional>
#include <unordered_map>

namespace {

struct Index {
    bool built = false;
    std::unordered_multimap<std::size_t, WidgetNode*> names;
    std::unordered_multimap<int, WidgetNode*> handles;
    std::unordered_map<int, WidgetNode*> ids;
};
Index searchIndex;
WidgetNode* lastForm = nullptr; // tail of project.forms as far as it is known

// Never 0, which stands for a record that is not in the index.
std::size_t nameKey(std::string_view name) {
    const std::size_t key = std::hash<std::string_view>{}(name);
    return key == 0 ? 1 : key;
}

void enterIndex(WidgetNode& node) {
    if (!node.name.empty()) {
        node.indexedName = nameKey(node.name);
        searchIndex.names.emplace(node.indexedName, &node);
    }
    if (node.handle > 0) {
        node.indexedHandle = node.handle;
        searchIndex.handles.emplace(node.handle, &node);
    }
    searchIndex.ids[node.id] = &node;
}

template <typename Map, typename Key> void eraseFrom(Map& map, Key& key, const WidgetNode* node) {
    if (key == 0) return;
    const auto range = map.equal_range(key);
    for (auto it = range.first; it != range.second; ++it)
        if (it->second == node) {
            map.erase(it);
            break;
        }
    key = 0;
}

void leaveIndex(WidgetNode& node) {
    eraseFrom(searchIndex.names, node.indexedName, &node);
    eraseFrom(searchIndex.handles, node.indexedHandle, &node);
    if (node.id == 0) return;
    const auto held = searchIndex.ids.find(node.id);
    if (held != searchIndex.ids.end() && held->second == &node) searchIndex.ids.erase(held);
}

void buildIndex() {
    if (searchIndex.built) return;
    searchIndex.built = true;
    for (WidgetNode* node = project.forms; node; node = walkList(node, project.forms)) enterIndex(*node);
}

void dropIndex() {
    searchIndex.names.clear();
    searchIndex.handles.clear();
    searchIndex.ids.clear();
    searchIndex.built = false;
}

// Whether `a` comes ahead of `b` in the walk of the project.
bool comesBefore(const WidgetNode* a, const WidgetNode* b) {
    int depthA = 0;
    int depthB = 0;
    for (const WidgetNode* n = a->parent; n; n = n->parent) ++depthA;
    for (const WidgetNode* n = b->parent; n; n = n->parent) ++depthB;
    const bool deeperB = depthB > depthA;
    while (depthA > depthB) a = a->parent, --depthA;
    while (depthB > depthA) b = b->parent, --depthB;
    if (a == b) return deeperB;
    while (a->parent != b->parent) a = a->parent, b = b->parent;
    for (; a; a = a->next)
        if (a == b) return true;
    return false;
}

// The first record of the walk under `key` that passes `test`.
template <typename Map, typename Key, typename Test> WidgetNode* firstIn(const Map& map, Key key, Test test) {
    WidgetNode* found = nullptr;
    const auto range = map.equal_range(key);
    for (auto it = range.first; it != range.second; ++it)
        if (test(*it->second) && (!found || comesBefore(it->second, found))) found = it->second;
    return found;
}

// Marks `top` and what is below it as part of the project, or no longer. A chain that was read marked, ahead of any
// index, needs no walk.
void setInProject(WidgetNode& top, bool inside) {
    if (inside && top.inProject && !searchIndex.built) return;
    for (WidgetNode* node = &top; node; node = walkBelow(node, &top)) {
        node->inProject = inside;
        if (inside && node->id == 0) node->id = newRecordId();
        if (inside) {
            if (searchIndex.built) enterIndex(*node);
        } else {
            leaveIndex(*node);
        }
    }
}

WidgetNode* lastOf(WidgetNode* hint, WidgetNode* first) {
    WidgetNode* last = hint ? hint : first;
    while (last && last->next) last = last->next;
    return last;
}

WidgetNode* rootOf(WidgetNode* node) {
    while (node && node->parent) node = node->parent;
    return node;
}

WidgetNode* findByHandle(int handle, WidgetNode* list) {
    if (handle <= 0) return nullptr;
    if (list == project.forms) return findHandle(handle);
    for (WidgetNode* node = list; node; node = walkList(node, list))
        if (node->handle == handle) return node;
    return nullptr;
}

// The record that holds `node`, as the live widgets see it: bars and panes live on the form's own window.
WidgetNode* holderOf(const WidgetNode* node) {
    if (isBarOrPane(*node)) return node->parent ? rootOf(node->parent) : nullptr;
    return node->parent;
}

bool standsInList(const WidgetNode* node, const WidgetNode* list) {
    if (list == project.forms) return node->inProject;
    while (node && node->parent != list->parent) node = node->parent;
    for (; list; list = list->next)
        if (list == node) return true;
    return false;
}

bool hasEntry(const WidgetNode& node, std::string_view name) {
    for (const MenuEntryRec& entry : node.entries)
        if (entry.name == name) return true;
    return false;
}

bool bearsName(const WidgetNode& node, std::string_view name) {
    return node.name == name || (node.statusBar && node.statusBar->name == name);
}

// One record; what it holds links to is freed on its own.
void freeRecord(WidgetNode* node) {
    leaveIndex(*node);
    if (node->parent && node->parent->lastChild == node) node->parent->lastChild = nullptr;
    if (lastForm == node) lastForm = nullptr;
    if (project.currentWidget == node) project.currentWidget = nullptr;
    delete node;
}

// Everything of `first` and, with `withSiblings`, behind it; freed from the tail to the head, leaves first.
void freeAll(WidgetNode* first, bool withSiblings) {
    std::vector<WidgetNode*> order;
    for (WidgetNode* node = first; node; node = withSiblings ? walkList(node, first) : walkBelow(node, first))
        order.push_back(node);
    for (auto it = order.rbegin(); it != order.rend(); ++it) freeRecord(*it);
}

} // namespace

WidgetNode* walkBelow(const WidgetNode* node, const WidgetNode* root) {
    if (node->child) return node->child;
    while (node != root) {
        if (node->next) return node->next;
        node = node->parent;
        if (!node) return nullptr;
    }
    return nullptr;
}

WidgetNode* walkList(const WidgetNode* node, const WidgetNode* list) {
    if (node->child) return node->child;
    while (node) {
        if (node->next) return node->next;
        if (node->parent == list->parent) return nullptr;
        node = node->parent;
    }
    return nullptr;
}

WidgetNode* parentOf(const WidgetNode* node, WidgetNode* list) {
    if (!node || !list) return nullptr;
    if (node == list) return list;
    if (!node->inProject) return findByHandle(node->parentHandle, list);
    WidgetNode* holder = holderOf(node);
    return holder && standsInList(holder, list) ? holder : nullptr;
}

WidgetNode* formOf(const WidgetNode* node, WidgetNode* list) {
    if (!node || !list) return nullptr;
    if (!node->inProject && list == project.forms) {
        if (WidgetNode* live = findHandle(node->handle)) return rootOf(live);
        return nullptr;
    }
    WidgetNode* root = const_cast<WidgetNode*>(node);
    while (root->parent && root->parent != list->parent) root = root->parent;
    return standsInList(root, list) ? root : nullptr;
}

WidgetNode* findName(WidgetNode* list, std::string_view name, bool skipCurrent) {
    if (!list || name.empty()) return nullptr;
    if (list == project.forms && !skipCurrent) {
        buildIndex();
        WidgetNode* found =
            firstIn(searchIndex.names, nameKey(name), [&](const WidgetNode& n) { return n.name == name; });
        for (WidgetNode* form = list; form; form = form->next) // only forms have status bars
            if (form->statusBar && form->statusBar->name == name)
                return !found || comesBefore(form, found) ? form : found;
        return found;
    }
    for (WidgetNode* node = list; node;) {
        if (skipCurrent && node == project.currentWidget) { // step over it with all below
            WidgetNode* after = node;
            while (after && !after->next && after->parent != list->parent) after = after->parent;
            node = after ? after->next : nullptr;
            continue;
        }
        if (bearsName(*node, name) || (skipCurrent && hasEntry(*node, name))) return node;
        node = walkList(node, list);
    }
    return nullptr;
}

WidgetNode* findForm(WidgetNode* list, std::string_view name) {
    for (; list; list = list->next)
        if (list->name == name) return list;
    return nullptr;
}

WidgetNode* findSelected(WidgetNode* list) {
    for (WidgetNode* node = list; node; node = walkList(node, list))
        if (node->selected == 1) return node;
    return nullptr;
}

WidgetNode* activeForm(WidgetNode* list) { return formOf(findSelected(list), list); }

WidgetNode* findActiveOnInit(WidgetNode* list) {
    for (WidgetNode* node = list; node; node = walkList(node, list))
        if (node->activeOnInit == 1) return node;
    return nullptr;
}

WidgetNode* findHandle(int handle) {
    if (handle <= 0) return nullptr;
    buildIndex();
    return firstIn(searchIndex.handles, handle, [&](const WidgetNode& n) { return n.handle == handle; });
}

WidgetNode* findRecord(int id) {
    buildIndex();
    const auto found = searchIndex.ids.find(id);
    return found == searchIndex.ids.end() ? nullptr : found->second;
}

int newRecordId() {
    static int last = 0;
    return ++last;
}

Records chainOf(WidgetNode* first) {
    Records records;
    for (; first; first = first->next) records.push_back(first);
    return records;
}

bool liesWithin(const WidgetNode* node, const WidgetNode* root) {
    while (node && node != root) node = node->parent;
    return node == root;
}

void clearSelected(WidgetNode* list) {
    for (WidgetNode* node = list; node; node = walkList(node, list)) node->selected = 0;
}

WidgetNode* appendForm(OwnedList owned) {
    WidgetNode* form = owned.release();
    form->parent = nullptr;
    form->next = nullptr;
    WidgetNode* last = project.forms ? lastOf(lastForm, project.forms) : nullptr;
    (last ? last->next : project.forms) = form;
    lastForm = form;
    setInProject(*form, true);
    return form;
}

std::vector<OwnedList> parted(OwnedList chain) {
    std::vector<OwnedList> records;
    for (WidgetNode* node = chain.release(); node;) {
        WidgetNode* next = node->next;
        node->next = nullptr;
        records.emplace_back(node);
        node = next;
    }
    return records;
}

void adoptForms(OwnedList first) {
    for (OwnedList& form : parted(std::move(first))) appendForm(std::move(form));
}

void moveFormToHead(WidgetNode* form) {
    if (project.forms == form) return;
    linkFormAfter(nullptr, unlinkNode(form));
}

WidgetNode* linkFormAfter(WidgetNode* previous, OwnedList owned) {
    WidgetNode* form = owned.release();
    WidgetNode*& link = previous ? previous->next : project.forms;
    form->next = link;
    link = form;
    if (!form->next) lastForm = form;
    setInProject(*form, true);
    return form;
}

WidgetNode* linkChild(WidgetNode& parent, OwnedList owned) {
    WidgetNode* node = owned.release();
    WidgetNode* last = lastOf(parent.lastChild, parent.child);
    (last ? last->next : parent.child) = node;
    parent.lastChild = node;
    node->next = nullptr;
    node->parent = &parent;
    if (parent.inProject) setInProject(*node, true);
    return node;
}

WidgetNode* linkChildAfter(WidgetNode& parent, WidgetNode* previous, OwnedList owned) {
    WidgetNode* node = owned.release();
    WidgetNode*& link = previous ? previous->next : parent.child;
    node->next = link;
    link = node;
    node->parent = &parent;
    if (!node->next) parent.lastChild = node;
    if (parent.inProject) setInProject(*node, true);
    return node;
}

OwnedList unlinkNode(WidgetNode* node) {
    WidgetNode* parent = node->parent;
    WidgetNode* previous = nullptr;
    for (WidgetNode* n = parent ? parent->child : project.forms; n && n != node; n = n->next) previous = n;
    WidgetNode*& link = previous ? previous->next : (parent ? parent->child : project.forms);
    if (link == node) link = node->next;
    if (parent && parent->lastChild == node) parent->lastChild = previous;
    if (lastForm == node) lastForm = previous;
    if (node->inProject) setInProject(*node, false);
    node->next = nullptr;
    node->parent = nullptr;
    return OwnedList(node);
}

void setHandle(WidgetNode& node, int handle, int parentHandle) {
    eraseFrom(searchIndex.handles, node.indexedHandle, &node);
    node.handle = handle;
    node.parentHandle = parentHandle;
    if (!node.inProject || !searchIndex.built || handle <= 0) return;
    node.indexedHandle = handle;
    searchIndex.handles.emplace(handle, &node);
}

void renameNode(WidgetNode& node, std::string_view name) {
    eraseFrom(searchIndex.names, node.indexedName, &node);
    node.name.assign(name.substr(0, NAME_LIMIT));
    if (!node.inProject || !searchIndex.built || node.name.empty()) return;
    node.indexedName = nameKey(node.name);
    searchIndex.names.emplace(node.indexedName, &node);
}

void deleteNode(WidgetNode* node) {
    if (!node) return;
    if (node->inProject)
        unlinkNode(node); // which nobody takes
    else
        freeAll(node, false);
}

void deleteList(WidgetNode* node) {
    if (!node) return;
    if (node == project.forms) {
        project.forms = lastForm = nullptr;
        dropIndex();
        for (WidgetNode* n = node; n; n = walkList(n, node)) n->indexedName = 0, n->indexedHandle = 0;
    } else if (node->inProject || node->parent) {
        WidgetNode*& head = node->parent ? node->parent->child : project.forms;
        WidgetNode* previous = nullptr;
        for (WidgetNode* n = head; n && n != node; n = n->next) previous = n;
        (previous ? previous->next : head) = nullptr;
        if (node->parent)
            node->parent->lastChild = previous;
        else
            lastForm = previous;
    }
    freeAll(node, true);
}

void deriveFieldWidth(WidgetNode& node) {
    if (!is(node, USERS_FIELD_WIDTH)) node.fieldWidth = static_cast<int>(node.text.size());
}
