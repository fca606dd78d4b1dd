#include "project/naming.h"

#include "project/language.h"
#include "project/widget_types.h"

#include <algorithm>
#include <cctype>

namespace {

std::string keyOf(std::string_view name) {
    std::string key(name);
    if (!languageOfProject().caseMatters)
        for (char& c : key) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return key;
}

bool isLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool isFurther(char c) { return isLetter(c) || (c >= '0' && c <= '9') || c == '_'; }

// Calls `visit` with each name that a record brings into the source, and what it is the name of.
template <typename Visit> void eachName(const WidgetNode& node, Visit visit) {
    if (!node.name.empty()) visit(node.name, NameOf::Record);
    if (node.statusBar && !node.statusBar->name.empty()) visit(node.statusBar->name, NameOf::StatusBar);
    for (const MenuEntryRec& entry : node.entries) {
        const bool structure = entry.kind == MENU_BAR || entry.kind == MENU_PULL_DOWN;
        const bool declared = node.type != TYPE_TREE_VIEW || !structure; // the bar of a tree is no widget
        if (declared && !entry.name.empty()) visit(entry.name, NameOf::Entries);
    }
}

bool hasDefaultName(const WidgetNode& node) { return cardOf(node).counter != COUNTER_NONE; }

std::string nextDefaultName(const WidgetNode& node, NamesInUse& names) {
    const TypeCard& card = cardOf(node);
    const WidgetNode* form = formOf(&node, project.forms);
    const std::string stem = (form ? form->name : std::string()) + "_" + card.word;
    int& counter = project.counters[static_cast<std::size_t>(card.counter)];
    std::string name;
    int last = 0;
    do {
        last = counter;
        name = stem + std::to_string(takeNumber(counter));
    } while (names.count(name) > 0 && counter != last);
    if (names.count(name) > 0) return firstFreeName(stem, names); // the counter has come to its end
    names.add(name);
    return name;
}

void nameNew(WidgetNode& node, NamesInUse& names) {
    if (!hasDefaultName(node)) return;
    names.remove(node.name); // the one that it gives up
    renameNode(node, nextDefaultName(node, names));
    ++project.widgetCount;
}

// The part up to the first underscore names the form that the copy came from; another one gives way to `form`.
std::string pastedName(const std::string& name, const WidgetNode* form) {
    const std::size_t underscore = name.find('_');
    if (!form || underscore == std::string::npos || !findForm(project.forms, name.substr(0, underscore))) return name;
    return form->name + name.substr(underscore);
}

std::string withoutNumber(std::string_view name) {
    const std::size_t end = name.find_last_not_of("0123456789");
    return std::string(name.substr(0, end + 1));
}

// A name of its own for something that bears `name` together with something else.
std::string ownName(const std::string& name, NamesInUse& names) {
    names.remove(name);
    return firstFreeName(withoutNumber(name), names);
}

void nameEntriesOfCopy(WidgetNode& node, const WidgetNode* form, NamesInUse& names) {
    for (MenuEntryRec& entry : node.entries) {
        if (entry.name.empty() || names.count(entry.name) < 2) continue;
        const std::string pasted = pastedName(entry.name, form);
        if (names.count(pasted) == 0) {
            names.remove(entry.name);
            names.add(pasted);
            entry.name = pasted;
        } else {
            entry.name = ownName(entry.name, names);
        }
    }
}

void giveOwnName(WidgetNode& node, NamesInUse& names) {
    if (names.count(node.name) < 2) return;
    if (!hasDefaultName(node)) return renameNode(node, ownName(node.name, names));
    names.remove(node.name);
    renameNode(node, nextDefaultName(node, names));
}

void replaceIdentifier(std::string& code, const std::string& from, const std::string& to) {
    const std::string key = keyOf(from);
    for (std::size_t at = 0; at < code.size();) {
        if (!isFurther(code[at])) {
            ++at;
            continue;
        }
        std::size_t end = at;
        while (end < code.size() && isFurther(code[end])) ++end;
        if (keyOf(std::string_view(code).substr(at, end - at)) == key) {
            code.replace(at, end - at, to);
            end = at + to.size();
        }
        at = end;
    }
}

void replaceInCode(WidgetNode* first, const std::string& from, const std::string& to) {
    for (WidgetNode* node = first; node; node = walkList(node, first)) {
        for (CallbackSlot& slot : node->slots) replaceIdentifier(slot, from, to);
        for (MenuEntryRec& entry : node->entries)
            for (CallbackSlot& slot : entry.slots) replaceIdentifier(slot, from, to);
    }
}

} // namespace

bool isIdentifier(std::string_view name) {
    return !name.empty() && name.size() <= NAME_LIMIT && isLetter(name[0]) &&
           std::all_of(name.begin(), name.end(), isFurther);
}

std::string identifierFrom(std::string_view caption) {
    std::string name(caption);
    for (char& c : name)
        if (!isFurther(c)) c = '_';
    return name;
}

bool nameFree(std::string_view name, const WidgetNode* owner, NameOf what) {
    if (!isIdentifier(name)) return false;
    const std::string key = keyOf(name);
    bool free = true;
    for (const WidgetNode* node = project.forms; node && free; node = walkList(node, project.forms))
        eachName(*node, [&](const std::string& other, NameOf kind) {
            const bool own = node == owner && kind == what;
            if (!own && other.size() == key.size() && keyOf(other) == key) free = false;
        });
    return free;
}

NamesInUse::NamesInUse() {
    for (const WidgetNode* node = project.forms; node; node = walkList(node, project.forms))
        eachName(*node, [this](const std::string& name, NameOf) { add(name); });
}

int NamesInUse::count(std::string_view name) const {
    const auto found = counts.find(keyOf(name));
    return found == counts.end() ? 0 : found->second;
}

void NamesInUse::add(std::string_view name) { ++counts[keyOf(name)]; }

void NamesInUse::remove(std::string_view name) {
    const auto found = counts.find(keyOf(name));
    if (found != counts.end() && --found->second == 0) counts.erase(found);
}

std::string firstFreeName(std::string_view stem, NamesInUse& names) {
    constexpr std::size_t DIGITS = 10;
    const std::string shortened(stem.substr(0, NAME_LIMIT - DIGITS));
    std::string name;
    for (int number = 1; name.empty() || names.count(name) > 0; ++number) name = shortened + std::to_string(number);
    names.add(name);
    return name;
}

void defaultName(WidgetNode* node, NameMode mode, bool withSiblings) {
    NamesInUse names;
    for (WidgetNode* n = node; n; n = withSiblings ? walkList(n, node) : walkBelow(n, node)) {
        if (n->type == TYPE_FORM || n->type == TYPE_MAIN_PANEL) continue;
        if (mode == NAME_NEW) {
            nameNew(*n, names);
        } else {
            renameNode(*n, pastedName(n->name, formOf(n, project.forms)));
            ++project.widgetCount;
        }
    }
}

void nameCopies(const Records& records) {
    if (records.empty()) return;
    for (WidgetNode* top : records) defaultName(top, NAME_PASTED, false);
    NamesInUse names;
    const WidgetNode* form = formOf(records.front(), project.forms);
    for (WidgetNode* top : records)
        for (WidgetNode* node = top; node; node = walkBelow(node, top)) {
            giveOwnName(*node, names);
            nameEntriesOfCopy(*node, form, names);
        }
}

std::string familyName(const std::string& name, std::string_view from, std::string_view to) {
    const std::string prefix = std::string(from) + "_";
    return name.starts_with(prefix) ? std::string(to) + name.substr(from.size()) : name;
}

std::string clashOfFormName(const WidgetNode& form, std::string_view to) {
    NamesInUse names;
    std::vector<std::string> fresh; // what the form and its family would be called
    const auto follow = [&](const std::string& name, const std::string& next) {
        if (next == name) return;
        names.remove(name);
        fresh.push_back(next);
    };
    for (const WidgetNode* node = project.forms; node; node = walkList(node, project.forms))
        eachName(*node, [&](const std::string& name, NameOf kind) {
            if (node == &form && kind == NameOf::Record)
                follow(name, std::string(to));
            else if (kind != NameOf::StatusBar)
                follow(name, familyName(name, form.name, to));
        });
    for (const std::string& name : fresh) {
        if (names.count(name) > 0 || name.size() > NAME_LIMIT) return name;
        names.add(name);
    }
    return {};
}

std::string numberTakenNames(WidgetNode* first) {
    NamesInUse names;
    std::string told;
    const auto renumber = [&](const std::string& taken, auto give) {
        if (taken.empty() || names.count(taken) < 2) return;
        const std::string name = taken; // which is the new one once it is given
        const std::string fresh = ownName(name, names);
        give(fresh);
        replaceInCode(first, name, fresh);
        told += name + " is now " + fresh + "|";
    };
    for (WidgetNode* node = first; node; node = walkList(node, first)) {
        renumber(node->name, [&](const std::string& fresh) { renameNode(*node, fresh); });
        if (node->statusBar)
            renumber(node->statusBar->name, [&](const std::string& fresh) { node->statusBar->name = fresh; });
        for (MenuEntryRec& entry : node->entries)
            renumber(entry.name, [&](const std::string& fresh) { entry.name = fresh; });
    }
    return told;
}
