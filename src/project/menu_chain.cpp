#include "project/menu_chain.h"

#include "platform/letters.h"
#include "project/language.h"

#include <algorithm>

namespace {

constexpr std::size_t NUMBER_ROOM = 8; // letters kept free for a number behind a name

bool isEmpty(const MenuEntryRec& entry) { return entry.label.empty() && entry.name.empty(); }

bool isTree(const WidgetNode& owner) { return owner.type == TYPE_TREE_VIEW; }

// Makes an identifier of what is to begin a name: a letter first, and no longer than the language allows.
std::string stemFrom(std::string_view text, std::size_t beside = 0) {
    std::string stem = identifierFrom(text);
    const bool letter = !stem.empty() && isIdentifier(stem.substr(0, 1));
    if (!letter) stem.insert(0, "m");
    const std::size_t limit = languageOfProject().nameLimit ? languageOfProject().nameLimit : NAME_LIMIT;
    stem.resize(std::min(stem.size(), limit - std::min(limit, beside + NUMBER_ROOM)));
    return stem;
}

std::string freeName(const std::string& name, NamesInUse& names) {
    if (names.count(name) == 0) {
        names.add(name);
        return name;
    }
    return firstFreeName(name, names);
}

// ---- Faults

struct Check {
    const std::vector<MenuEntryRec>& entries; // without empty ends
    const WidgetNode& owner;
    int first; // row of the first of them

    int row(std::size_t index) const { return static_cast<int>(index) + first; }
};

const char* wordOf(const WidgetNode& owner) { return isTree(owner) ? "tree view" : "menu"; }

void checkDepth(const Check& check, std::vector<ChainFault>& faults) {
    if (std::ranges::any_of(check.entries, [](const MenuEntryRec& entry) { return entry.level > 0; })) return;
    faults.push_back({"Incomplete menu bar", "Menu bar must have some indented entries", check.row(0)});
}

void checkNamed(const Check& check, std::vector<ChainFault>& faults) {
    for (std::size_t i = 0; i < check.entries.size(); ++i) {
        if (!check.entries[i].label.empty() && !check.entries[i].name.empty()) continue;
        faults.push_back({"Entry not named",
                          std::string("One or more ") + wordOf(check.owner) + " entries do not have a caption or name",
                          check.row(i)});
        return;
    }
}

void checkLevels(const Check& check, std::vector<ChainFault>& faults) {
    int above = -1;
    for (std::size_t i = 0; i < check.entries.size(); ++i) {
        const int level = check.entries[i].level;
        if (level <= above + 1) {
            above = level;
            continue;
        }
        const std::string item =
            isTree(check.owner) ? "A tree view item or tree view items" : "A menu item or menu items";
        faults.push_back({"Level Error", item + " have skipped a level of indentation", check.row(i)});
        return;
    }
}

void checkSeparators(const Check& check, std::vector<ChainFault>& faults) {
    for (std::size_t i = 0; i + 1 < check.entries.size(); ++i) {
        if (!isSeparatorCaption(check.entries[i].label) || check.entries[i + 1].level <= check.entries[i].level)
            continue;
        faults.push_back({"Cascading entry is child of separator",
                          "A cascading entry is set up as the child of a separator", check.row(i + 1)});
        return;
    }
}

void checkNames(const Check& check, std::vector<ChainFault>& faults) {
    const NamesInUse names = namesBeside(check.entries, check.owner);
    for (std::size_t i = 0; i < check.entries.size(); ++i) {
        const std::string& name = check.entries[i].name;
        if (name.empty() || (isIdentifier(name) && names.count(name) < 2)) continue;
        faults.push_back({"Invalid Name", name + " is a duplicate or invalid Fortran/C variable name", check.row(i)});
        return;
    }
}

// ---- The chain

MenuEntryRec structureRecord(int kind, std::string name, int level) {
    MenuEntryRec record;
    record.kind = kind;
    record.name = std::move(name);
    record.level = level;
    return record;
}

// In a tree a pull-down is no widget of its own and bears the name of the entry that it opens under.
std::string pullDownName(const MenuEntryRec& above, const WidgetNode& owner, NamesInUse& names) {
    if (isTree(owner)) return above.name;
    constexpr std::string_view END = "_Pop";
    return firstFreeName(stemFrom(above.label, END.size()) + std::string(END), names);
}

// The deepest level that can follow.
int deepestBehind(const MenuEntryRec& last) {
    if (last.kind == MENU_BAR) return 0;
    return last.kind == MENU_SEPARATOR ? last.level : last.level + 1;
}

} // namespace

std::vector<MenuEntryRec> editableEntries(const std::vector<MenuEntryRec>& chain) {
    std::vector<MenuEntryRec> entries;
    for (const MenuEntryRec& entry : chain) {
        if (entry.kind != MENU_ENTRY && entry.kind != MENU_SEPARATOR) continue;
        entries.push_back(entry);
        MenuEntryRec& copy = entries.back();
        copy.level = std::max(copy.level, 0);
        copy.handle = copy.callbackId = copy.storedHandle = 0;
        if (copy.kind == MENU_SEPARATOR && !isSeparatorCaption(copy.label)) copy.label = "##" + copy.label;
    }
    return entries;
}

std::vector<MenuEntryRec> withoutEmptyEnds(std::vector<MenuEntryRec> entries) {
    if (!entries.empty() && isEmpty(entries.back())) entries.pop_back();
    if (!entries.empty() && isEmpty(entries.front())) entries.erase(entries.begin());
    return entries;
}

NamesInUse namesBeside(const std::vector<MenuEntryRec>& entries, const WidgetNode& owner) {
    NamesInUse names;
    for (const MenuEntryRec& entry : owner.entries) {
        const bool structure = entry.kind == MENU_BAR || entry.kind == MENU_PULL_DOWN;
        if (!entry.name.empty() && !(isTree(owner) && structure)) names.remove(entry.name);
    }
    for (const MenuEntryRec& entry : entries)
        if (!entry.name.empty()) names.add(entry.name);
    return names;
}

std::vector<ChainFault> checkEntries(const std::vector<MenuEntryRec>& entries, const WidgetNode& owner) {
    const std::vector<MenuEntryRec> kept = withoutEmptyEnds(entries);
    std::vector<ChainFault> faults;
    if (kept.empty()) return faults;
    const Check check{kept, owner, isEmpty(entries.front()) ? 1 : 0};
    if (!isTree(owner)) checkDepth(check, faults);
    checkNamed(check, faults);
    checkLevels(check, faults);
    if (!isTree(owner)) checkSeparators(check, faults);
    checkNames(check, faults);
    return faults;
}

std::vector<MenuEntryRec> buildChain(const std::vector<MenuEntryRec>& entries, const WidgetNode& owner) {
    const std::vector<MenuEntryRec> kept = withoutEmptyEnds(entries);
    std::vector<MenuEntryRec> chain;
    if (kept.empty()) return chain;
    NamesInUse names = namesBeside(kept, owner);
    const char* head = isTree(owner) ? "_TreeView" : "_Menubar";
    const std::string headName = owner.name + head;
    chain.push_back(structureRecord(MENU_BAR, isTree(owner) ? headName : freeName(headName, names), 0));
    for (const MenuEntryRec& entry : kept) {
        MenuEntryRec record = entry;
        record.kind = !isTree(owner) && isSeparatorCaption(entry.label) ? MENU_SEPARATOR : MENU_ENTRY;
        record.level = std::clamp(record.level, 0, deepestBehind(chain.back()));
        if (!isTree(owner) && record.level == 0) record.help.clear(); // entries of the bar show none
        if (chain.back().kind == MENU_ENTRY && record.level > chain.back().level)
            chain.push_back(structureRecord(MENU_PULL_DOWN, pullDownName(chain.back(), owner, names), record.level));
        chain.push_back(std::move(record));
    }
    return chain;
}

std::string entryNameFrom(const WidgetNode& owner, std::string_view caption, NamesInUse& names) {
    constexpr std::string_view END = "_entry";
    const std::string stem = stemFrom(owner.name + "_" + std::string(caption), END.size());
    return freeName(stem + std::string(END), names);
}

MenuEntryRec newSeparator(int level, NamesInUse& names) {
    MenuEntryRec separator;
    separator.kind = MENU_SEPARATOR;
    separator.level = level;
    separator.name = firstFreeName("separator", names);
    separator.label = "##sep" + separator.name.substr(std::string_view("separator").size());
    return separator;
}
