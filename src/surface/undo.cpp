// Undo and redo on the live project: the records go back by the timeline, and what shows them follows.
#include "surface/undo.h"

#include "menu-c.h"
#include "project/placement.h"
#include "project/timeline.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "surface/commands.h"
#include "surface/hierarchy.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/selection.h"
#include "surface/state.h"

#include <algorithm>
#include <set>

namespace {

int seenEdits = 0; // as many of the project's edits as the timeline has looked at

// Code and names do not show on a form.
bool looksOther(const WidgetNode& a, const WidgetNode& b) {
    WidgetNode same = b;
    same.name = a.name;
    same.parentName = a.parentName;
    same.slots = a.slots;
    return !(same == a);
}

bool standsOnWindow(const WidgetNode& fields) {
    return fields.type == TYPE_FORM || fields.type == TYPE_MAIN_PANEL || isBarOrPane(fields) || fields.onToolbar;
}

// What a step means for the screen, by record ids.
struct Effect {
    std::set<int> forms;   // to be made anew whole
    std::set<int> made;    // to be made, alone
    std::set<int> widgets; // to be made anew, alone
    bool rows = false;     // the hierarchy shows other rows
};

// The form of a record that is in the tree; 0 for none.
int formIdOf(int id) {
    const WidgetNode* node = findRecord(id);
    const WidgetNode* form = node ? formOf(node, project.forms) : nullptr;
    return form ? form->id : 0;
}

// The form's window itself, or what docks to it, or the order of its widgets changes: little of it stays.
bool needsForm(const RecordChange& change, bool stepReorders) {
    const WidgetNode& fields = change.before ? change.before->fields : change.after->fields;
    if (standsOnWindow(fields) || (change.after && standsOnWindow(change.after->fields))) return true;
    if (comesOrGoes(change)) return false;
    if (change.before->parent != change.after->parent) return true;
    return stepReorders && changesPlace(change);
}

Effect effectOf(const TimelineStep& step, const StepEnds& ends) {
    Effect effect;
    const bool comings = std::ranges::any_of(step.records, comesOrGoes);
    for (const RecordChange& change : step.records) {
        if (changesPlace(change) || change.before->fields.name != change.after->fields.name) effect.rows = true;
        if (needsForm(change, !comings))
            effect.forms.insert(formIdOf(change.id));
        else if (!(change.*ends.to))
            continue;
        else if (!(change.*ends.from))
            effect.made.insert(change.id);
        else if (looksOther(change.before->fields, change.after->fields))
            effect.widgets.insert(change.id);
    }
    return effect;
}

// Live widgets of records that go; those below them go along.
void takeDown(const TimelineStep& step, const StepEnds& ends) {
    std::set<int> going;
    for (const RecordChange& change : step.records)
        if (!(change.*ends.to)) going.insert(change.id);
    for (const int id : going) {
        WidgetNode* node = findRecord(id);
        if (!node || node->handle <= 0 || (node->parent && going.contains(node->parent->id))) continue;
        owEraseWidget(node->handle);
    }
}

bool onTabBox(const WidgetNode& node) { return node.parent && node.parent->type == TYPE_TAB_BOX; }

// A record that came: alone where it is the last of plain children, else with its form.
void place(const WidgetNode& node, Effect& effect) {
    const bool parentLives = node.parent && node.parent->handle > 0;
    if (!parentLives) return; // made with its parent
    if (node.next || onTabBox(node) || standsOnWindow(*node.parent)) {
        if (node.parent->type != TYPE_MAIN_PANEL || node.next) effect.forms.insert(formIdOf(node.id));
    }
}

void bringUp(Effect& effect, const TimelineStep& step) {
    for (const RecordChange& change : step.records)
        if (const WidgetNode* node = findRecord(change.id)) {
            if (needsForm(change, false)) effect.forms.insert(formIdOf(change.id));
            if (effect.made.contains(change.id)) place(*node, effect);
        }
    for (const int id : effect.forms)
        if (WidgetNode* form = findRecord(id)) replaceLive(*form);
    const auto alone = [&](int id) {
        WidgetNode* node = findRecord(id);
        return node && !effect.forms.contains(formIdOf(id)) ? node : nullptr;
    };
    for (const int id : effect.made) {
        WidgetNode* node = alone(id);
        if (!node || node->handle > 0 || !node->parent || node->parent->handle <= 0) continue;
        realiseWidget(*node, node->parent->handle, false);
        redrawWidget(*node, false);
    }
    for (const int id : effect.widgets)
        if (WidgetNode* node = alone(id)) replaceLive(onTabBox(*node) ? *node->parent : *node);
}

void rebuildRows() {
    clearHierarchy();
    project.widgetCount = 0;
    for (WidgetNode* node = project.forms; node; node = walkList(node, project.forms)) {
        node->hierarchyItem = 0;
        if (node->type != TYPE_MAIN_PANEL) project.widgetCount++;
    }
    buildHierarchy(project.forms);
}

// ---- What is selected afterwards: what the step is about, or what held it.

bool onlyMoved(const RecordChange& change) {
    return change.before && change.after && change.before->fields.hpos == OLEFT && change.before->fields.vpos == OTOP &&
           (change.before->fields.xpos != change.after->fields.xpos ||
            change.before->fields.ypos != change.after->fields.ypos || changesPlace(change));
}

void selectAfter(const TimelineStep& step, const StepEnds& ends) {
    Records members;
    WidgetNode* fallback = nullptr;
    for (const RecordChange& change : step.records) {
        WidgetNode* node = findRecord(change.id);
        if (!node) {
            WidgetNode* holder = (change.*ends.from) ? findRecord((change.*ends.from)->parent) : nullptr;
            if (!fallback) fallback = holder;
            continue;
        }
        if (node->type != TYPE_MAIN_PANEL && !onlyFollowsAnother(change)) members.push_back(node);
    }
    const bool group = members.size() > 1 && members.front()->parent &&
                       std::ranges::all_of(step.records, [&](const RecordChange& change) {
                           const WidgetNode* node = findRecord(change.id);
                           return std::ranges::find(members, node) == members.end() ||
                                  (onlyMoved(change) && node->parent == members.front()->parent);
                       });
    if (group) {
        groupSelection(members);
        return showSelectionCount();
    }
    // Of records that came together, the one that holds the others.
    const auto head = std::ranges::find_if(members, [&](const WidgetNode* one) {
        return std::ranges::none_of(members,
                                    [&](const WidgetNode* other) { return other != one && liesWithin(one, other); });
    });
    WidgetNode* node = head != members.end() ? *head : fallback;
    if (node && node->type == TYPE_MAIN_PANEL) node = formOf(node, project.forms);
    selectWidget(node ? node : project.forms);
}

// The project's kind or grid: all forms look different then.
bool changesKind(const TimelineStep& step) {
    if (!step.settingsBefore) return false;
    const ProjectKind& before = *step.settingsBefore;
    const ProjectKind& after = *step.settingsAfter;
    return before != after;
}

void followSettings(const TimelineStep& step) {
    if (step.settingsBefore) owSetSnapGrid(project.snapOn ? project.snapGrid : 1);
    if (!changesKind(step)) return;
    applyGrid();
    hooks.kindChanged();
}

void showStep(Effect& effect, const TimelineStep& step) {
    if (changesKind(step)) return discardForms(project.forms);
    bringUp(effect, step);
    if (effect.rows) rebuildRows();
}

void takeStep(const StepEnds& ends) {
    takeTypedText();
    hooks.commitEditor();
    noteEdit(); // what is not yet a step becomes one
    const bool back = ends.to == STEP_BACK.to;
    const TimelineStep* found = back ? stepToUndo() : stepToRedo();
    if (!found) return;
    const TimelineStep& step = *found; // stays where it is
    owAdoptChild(0, 0, 0);
    dropSelection();
    hooks.showProperties(nullptr);
    hooks.bindCode(nullptr);
    clearSelected(project.forms);
    project.currentWidget = nullptr;
    Effect effect = effectOf(step, ends);
    takeDown(step, ends);
    if (back)
        undoStep();
    else
        redoStep();
    followSettings(step);
    showStep(effect, step);
    design.skipCommit = 1; // the editor shows code of before
    selectAfter(step, ends);
    project.projectModified = timelineAtSaved() ? 0 : 1;
    project.sourceStale = 1;
    showSteps();
}

void undoCommand() { takeStep(STEP_BACK); }

void redoCommand() { takeStep(STEP_FORTH); }

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_UNDO, .label = "Undo Move/Resize Widget|Ctrl+Z", .mnemonic = 'd', .key = controlKey('Z'), .menuIcon = "undo&", .when = STARTS_DISABLED, .handler = undoCommand},
    {.id = CMD_REDO, .label = "Redo Move/Resize Widget|Ctrl+Y", .mnemonic = 'R', .key = controlKey('Y'), .menuIcon = "redo&", .when = STARTS_DISABLED, .handler = redoCommand},
};
// clang-format on

} // namespace

void showSteps() {
    hooks.commandStatus(CMD_UNDO, stepToUndo() ? OSELECTABLE : OUNSELECTABLE);
    hooks.commandStatus(CMD_REDO, stepToRedo() ? OSELECTABLE : OUNSELECTABLE);
    hooks.stepsChanged();
}

void noteEdit() {
    if (design.defaultsMode || project.edits == seenEdits) return;
    seenEdits = project.edits;
    if (recordStep()) showSteps();
}

void beginTimeline() {
    seenEdits = project.edits;
    startTimeline();
    markTimelineSaved();
    showSteps();
}

void noteSaved() {
    noteEdit();
    markTimelineSaved();
}

std::span<const Command> undoCommands() { return COMMANDS; }
