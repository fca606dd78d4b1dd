#include "project/timeline.h"

#include "project/colours.h"
#include "project/timeline_label.h"
#include "project/tree.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace {

struct Timeline {
    std::vector<TimelineStep> steps;
    std::size_t position = 0; // steps in force
    std::size_t saved = 0;    // position at the last save
    bool savedLost = false;   // the steps that led to the saved state are gone
    std::size_t bytes = 0;    // of all steps

    // The project at the last step.
    std::unordered_map<int, Image> images;
    std::vector<int> order; // ids in a walk over the tree
    std::shared_ptr<const ProjectOptions> settings;

    std::string label, merge; // of the edit that is being made
} timeline;

std::size_t bytesOf(const std::string& text) { return text.capacity() > sizeof text ? text.capacity() : 0; }

std::size_t bytesOf(const WidgetNode& node) {
    std::size_t bytes = sizeof(RecordImage) + bytesOf(node.text) + bytesOf(node.name) + bytesOf(node.bubbleHelp) +
                        node.entries.capacity() * sizeof(MenuEntryRec) +
                        node.listEntries.capacity() * sizeof(ListEntryRec) +
                        (node.columnWidths.capacity() + node.rowHeights.capacity()) * sizeof(int);
    for (const CallbackSlot& slot : node.slots) bytes += bytesOf(slot);
    for (const MenuEntryRec& entry : node.entries)
        for (const CallbackSlot& slot : entry.slots) bytes += bytesOf(slot);
    for (const ListEntryRec& entry : node.listEntries) bytes += bytesOf(entry.text);
    return bytes;
}

std::size_t bytesOf(const ProjectOptions& settings) {
    std::size_t bytes = sizeof settings;
    for (const CodeBlock& block : settings.codeBlocks) bytes += bytesOf(block);
    return bytes;
}

std::size_t bytesOf(const TimelineStep& step) {
    std::size_t bytes = sizeof step;
    for (const RecordChange& change : step.records)
        bytes += sizeof change + (change.before ? change.before->bytes : 0) + (change.after ? change.after->bytes : 0);
    if (step.settingsBefore) bytes += bytesOf(*step.settingsBefore) + bytesOf(*step.settingsAfter);
    return bytes;
}

// ---- Comparing the project with its images.

// A record alone, without what is live or linked.
Image imageOf(const WidgetNode& node, int parent, int previous) {
    auto image = std::make_shared<RecordImage>();
    image->fields = node;
    static_cast<WidgetLinks&>(image->fields) = {};
    image->fields.formHidden = node.formHidden;
    for (MenuEntryRec& entry : image->fields.entries) static_cast<LiveEntry&>(entry) = {};
    if (image->fields.statusBar) image->fields.statusBar->handle = 0;
    image->parent = parent;
    image->previous = previous;
    image->bytes = bytesOf(image->fields);
    return image;
}

// Calls visit(record, id of its parent, id of the sibling ahead) for every record of the project, in a walk's order.
template <typename Visit> void visitRecords(Visit visit) {
    std::unordered_map<const WidgetNode*, int> ahead; // of siblings that are still to come
    for (WidgetNode* node = project.forms; node; node = walkList(node, project.forms)) {
        int previous = 0;
        if (const auto found = ahead.find(node); found != ahead.end()) {
            previous = found->second;
            ahead.erase(found);
        }
        if (node->next) ahead[node->next] = node->id;
        visit(*node, node->parent ? node->parent->id : 0, previous);
    }
}

std::vector<RecordChange> changedRecords(std::vector<int>& order) {
    std::vector<RecordChange> changes;
    std::unordered_map<int, int> places; // in the new order
    visitRecords([&](WidgetNode& node, int parent, int previous) {
        deriveFieldWidth(node); // as saving does, which is no edit
        const int place = static_cast<int>(order.size());
        order.push_back(node.id);
        places[node.id] = place;
        const auto held = timeline.images.find(node.id);
        const Image before = held == timeline.images.end() ? nullptr : held->second;
        if (before && before->parent == parent && before->previous == previous && before->fields == node) return;
        changes.push_back({node.id, before, imageOf(node, parent, previous), 0, place});
    });
    std::unordered_map<int, RecordChange*> byId;
    for (RecordChange& change : changes) byId[change.id] = &change;
    std::vector<RecordChange> removed;
    for (std::size_t place = 0; place < timeline.order.size(); place++) {
        const int id = timeline.order[place];
        if (const auto change = byId.find(id); change != byId.end())
            change->second->orderBefore = static_cast<int>(place);
        else if (!places.contains(id))
            removed.push_back({id, timeline.images.at(id), nullptr, static_cast<int>(place), 0});
    }
    changes.insert(changes.end(), removed.begin(), removed.end());
    return changes;
}

void takeImages(const std::vector<RecordChange>& changes, Image RecordChange::*side) {
    for (const RecordChange& change : changes) {
        if (change.*side)
            timeline.images[change.id] = change.*side;
        else
            timeline.images.erase(change.id);
    }
}

// ---- Steps.

void dropUndone() {
    if (timeline.saved > timeline.position) timeline.savedLost = true;
    for (std::size_t i = timeline.position; i < timeline.steps.size(); i++) timeline.bytes -= timeline.steps[i].bytes;
    timeline.steps.resize(timeline.position);
}

void dropOldest() {
    std::size_t count = 0;
    while (timeline.bytes > TIMELINE_BYTES && count + 1 < timeline.steps.size())
        timeline.bytes -= timeline.steps[count++].bytes;
    if (count == 0) return;
    timeline.steps.erase(timeline.steps.begin(), timeline.steps.begin() + static_cast<std::ptrdiff_t>(count));
    timeline.position -= count;
    if (timeline.saved < count) timeline.savedLost = true;
    timeline.saved -= std::min(timeline.saved, count);
}

bool merges(const TimelineStep& step) {
    if (step.merge.empty() || timeline.position == 0 || timeline.position != timeline.steps.size()) return false;
    const bool savedBetween = timeline.saved == timeline.position && !timeline.savedLost;
    return !savedBetween && timeline.steps.back().merge == step.merge;
}

void mergeInto(TimelineStep& last, TimelineStep&& step) {
    for (RecordChange& change : step.records) {
        const auto held = std::ranges::find(last.records, change.id, &RecordChange::id);
        if (held == last.records.end()) {
            last.records.push_back(std::move(change));
            continue;
        }
        held->after = change.after;
        held->orderAfter = change.orderAfter;
    }
    if (step.settingsAfter) {
        if (!last.settingsBefore) last.settingsBefore = step.settingsBefore;
        last.settingsAfter = step.settingsAfter;
    }
}

void append(TimelineStep&& step) {
    if (merges(step)) {
        TimelineStep& last = timeline.steps.back();
        timeline.bytes -= last.bytes;
        mergeInto(last, std::move(step));
        last.bytes = bytesOf(last);
        timeline.bytes += last.bytes;
    } else {
        dropUndone();
        step.bytes = bytesOf(step);
        timeline.bytes += step.bytes;
        timeline.steps.push_back(std::move(step));
        timeline.position++;
    }
    dropOldest();
}

// ---- Taking a step in either direction.

// In which order records hang at the end that a step leads to.
int orderAt(const RecordChange& change, const StepEnds& ends) {
    return ends.to == STEP_BACK.to ? change.orderBefore : change.orderAfter;
}

// Writes what the image holds; what hangs and lives stays. Menus and status bars that are equal stay too, with their
// live sides.
void write(WidgetNode& node, const WidgetNode& image) {
    if (node.name != image.name) renameNode(node, image.name);
    const WidgetLinks links = node;
    std::vector<MenuEntryRec> entries = std::move(node.entries);
    StatusBarPtr statusBar = std::move(node.statusBar);
    node = image;
    static_cast<WidgetLinks&>(node) = links;
    if (entries == node.entries) node.entries = std::move(entries);
    if (statusBar == node.statusBar) node.statusBar = std::move(statusBar);
}

OwnedList madeAnew(int id, const WidgetNode& image) {
    OwnedList node(new WidgetNode(image));
    node->id = id;
    return node;
}

void apply(const TimelineStep& step, const StepEnds& ends) {
    std::unordered_map<int, WidgetNode*> nodes; // found before any is unlinked, for what hangs below it is out as well
    for (const RecordChange& change : step.records)
        if (WidgetNode* node = findRecord(change.id)) nodes[change.id] = node;
    std::unordered_map<int, OwnedList> loose;
    for (const RecordChange& change : step.records)
        if (changesPlace(change) && nodes.contains(change.id)) loose[change.id] = unlinkNode(nodes[change.id]);
    std::vector<const RecordChange*> hanging;
    for (const RecordChange& change : step.records) {
        const Image& target = change.*ends.to;
        if (!target) continue;
        if (const auto held = nodes.find(change.id); held != nodes.end())
            write(*held->second, target->fields);
        else
            loose[change.id] = madeAnew(change.id, target->fields);
        if (changesPlace(change)) hanging.push_back(&change);
    }
    std::ranges::sort(hanging, {}, [&](const RecordChange* change) { return orderAt(*change, ends); });
    for (const RecordChange* change : hanging) {
        const Image& target = change->*ends.to;
        WidgetNode* previous = findRecord(target->previous);
        WidgetNode* parent = findRecord(target->parent);
        OwnedList node = std::move(loose[change->id]);
        if (parent)
            linkChildAfter(*parent, previous, std::move(node));
        else
            linkFormAfter(previous, std::move(node));
    }
}

void take(const TimelineStep& step, const StepEnds& ends) {
    apply(step, ends);
    takeImages(step.records, ends.to);
    timeline.order.clear();
    for (WidgetNode* node = project.forms; node; node = walkList(node, project.forms))
        timeline.order.push_back(node->id);
    const auto& settings = ends.to == STEP_BACK.to ? step.settingsBefore : step.settingsAfter;
    if (!settings) return;
    static_cast<ProjectOptions&>(project) = *settings;
    timeline.settings = settings;
}

} // namespace

bool comesOrGoes(const RecordChange& change) { return !change.before != !change.after; }

bool changesPlace(const RecordChange& change) {
    return comesOrGoes(change) || change.before->parent != change.after->parent ||
           change.before->previous != change.after->previous;
}

bool onlyFollowsAnother(const RecordChange& change) {
    return !comesOrGoes(change) && change.before->parent == change.after->parent &&
           change.before->fields == change.after->fields;
}

void startTimeline() {
    timeline = {};
    std::vector<int> order;
    const std::vector<RecordChange> all = changedRecords(order);
    takeImages(all, &RecordChange::after);
    timeline.order = std::move(order);
    timeline.settings = std::make_shared<ProjectOptions>(project);
}

void nameStep(const std::string& label, const std::string& merge) {
    timeline.label = label;
    timeline.merge = merge;
}

bool recordStep() {
    TimelineStep step;
    step.label = std::exchange(timeline.label, {});
    step.merge = std::exchange(timeline.merge, {});
    std::vector<int> order;
    step.records = changedRecords(order);
    if (*timeline.settings != static_cast<const ProjectOptions&>(project)) {
        step.settingsBefore = timeline.settings;
        step.settingsAfter = timeline.settings = std::make_shared<ProjectOptions>(project);
    }
    if (step.records.empty() && !step.settingsBefore) return false;
    takeImages(step.records, &RecordChange::after);
    timeline.order = std::move(order);
    if (step.label.empty()) step.label = labelOfStep(step);
    append(std::move(step));
    return true;
}

const std::vector<TimelineStep>& timelineSteps() { return timeline.steps; }

std::size_t timelinePosition() { return timeline.position; }

const TimelineStep* stepToUndo() { return timeline.position > 0 ? &timeline.steps[timeline.position - 1] : nullptr; }

const TimelineStep* stepToRedo() {
    return timeline.position < timeline.steps.size() ? &timeline.steps[timeline.position] : nullptr;
}

void undoStep() {
    if (const TimelineStep* step = stepToUndo()) {
        take(*step, STEP_BACK);
        timeline.position--;
    }
}

void redoStep() {
    if (const TimelineStep* step = stepToRedo()) {
        take(*step, STEP_FORTH);
        timeline.position++;
    }
}

void markTimelineSaved() {
    timeline.saved = timeline.position;
    timeline.savedLost = false;
}

bool timelineAtSaved() { return !timeline.savedLost && timeline.saved == timeline.position; }
