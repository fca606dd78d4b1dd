#include "project/timeline_label.h"

#include "project/code_stores.h"

#include <algorithm>
#include <unordered_set>

namespace {

using N = WidgetNode;

// What an edit is called that changes nothing but these fields. The first row that explains a change names it.
struct EditWord {
    const char* word;
    bool (*explains)(const N& before, const N& after); // the rest is the same
};

// The record as `after`, with the fields that a kind of edit changes as they were before.
template <typename... Fields> N with(const N& after, const N& before, Fields... fields) {
    N same = after;
    ((same.*fields = before.*fields), ...);
    return same;
}

const EditWord EDIT_WORDS[] = {
    {"Move", [](const N& a, const N& b) { return with(b, a, &N::xpos, &N::ypos) == a; }},
    {"Resize",
     [](const N& a, const N& b) { return with(b, a, &N::xpos, &N::ypos, &N::width, &N::height, &N::fieldWidth) == a; }},
    {"Code of", [](const N& a, const N& b) { return with(b, a, &N::slots) == a; }},
    {"Name of", [](const N& a, const N& b) { return with(b, a, &N::name, &N::parentName) == a; }},
    {"Entries of", [](const N& a, const N& b) { return with(b, a, &N::entries, &N::listEntries) == a; }},
    {"Status bar of", [](const N& a, const N& b) { return with(b, a, &N::statusBar) == a; }},
    {"Text of", [](const N& a, const N& b) { return with(b, a, &N::text, &N::fieldWidth) == a; }},
};

const char* wordOf(const RecordChange& change) {
    const N& before = change.before->fields;
    const N& after = change.after->fields;
    if (change.before->parent != change.after->parent) return "Move";
    if (before == after) return "Order of";
    for (const EditWord& row : EDIT_WORDS)
        if (row.explains(before, after)) return row.word;
    return "Change";
}

std::string codeBlockLabel(const ProjectOptions& before, const ProjectOptions& after) {
    for (int block = 0; block < CODE_BLOCKS; block++)
        if (before.codeBlocks[block] != after.codeBlocks[block])
            return std::string("Code of ") + codeBlockTable[block].name;
    return "Project settings";
}

// Records of one kind of change, without what only came, went or moved with its parent or for its sibling.
struct Heads {
    std::vector<const RecordChange*> added, removed, changed;
};

// Ids of the records that came or went.
std::unordered_set<int> comingAndGoing(const TimelineStep& step) {
    std::unordered_set<int> ids;
    for (const RecordChange& change : step.records)
        if (comesOrGoes(change)) ids.insert(change.id);
    return ids;
}

Heads headsOf(const TimelineStep& step) {
    Heads heads;
    const std::unordered_set<int> ids = comingAndGoing(step);
    for (const RecordChange& change : step.records) {
        if (!change.before && !ids.contains(change.after->parent)) heads.added.push_back(&change);
        if (!change.after && !ids.contains(change.before->parent)) heads.removed.push_back(&change);
        if (!comesOrGoes(change) && !onlyFollowsAnother(change)) heads.changed.push_back(&change);
    }
    return heads;
}

std::string called(const char* word, const std::vector<const RecordChange*>& changes, Image RecordChange::*side) {
    if (changes.size() == 1) return std::string(word) + " " + (changes[0]->*side)->fields.name;
    return std::string(word) + " " + std::to_string(changes.size()) + " widgets";
}

} // namespace

std::string labelOfStep(const TimelineStep& step) {
    const Heads heads = headsOf(step);
    if (!heads.removed.empty() && heads.added.empty()) return called("Delete", heads.removed, &RecordChange::before);
    if (!heads.added.empty() && heads.removed.empty()) return called("New", heads.added, &RecordChange::after);
    if (!heads.added.empty()) return called("Move", heads.added, &RecordChange::after);
    if (heads.changed.empty()) {
        if (step.settingsBefore) return codeBlockLabel(*step.settingsBefore, *step.settingsAfter);
        return "Order of widgets";
    }
    const char* word = wordOf(*heads.changed.front());
    const bool same = std::ranges::all_of(heads.changed, [&](const RecordChange* one) { return wordOf(*one) == word; });
    return called(same ? word : "Change", heads.changed, &RecordChange::after);
}
