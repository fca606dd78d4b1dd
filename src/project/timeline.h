// The timeline of the open project: every edit is a step with a name that can be taken back and done again.
//
// No edit announces itself. The timeline keeps an image of every record as it was at the last step; at the end of an
// event that changed something the records are compared with their images once, and what differs is the step. Records
// go by their ids, for the records themselves come and go.
#pragma once

#include "project/records.h"

#include <memory>
#include <string>
#include <vector>

// What a record held at one time, and where it hung.
struct RecordImage {
    WidgetNode fields;     // alone: nothing live, no links
    int parent = 0;        // id of the record that held it, 0 for a form
    int previous = 0;      // id of the sibling ahead of it, 0 for the first
    std::size_t bytes = 0; // of memory
};
using Image = std::shared_ptr<const RecordImage>;

struct RecordChange {
    int id = 0;
    Image before, after;                 // null: there was no such record, or there is none any more
    int orderBefore = 0, orderAfter = 0; // places in a walk over the whole tree
};

struct TimelineStep {
    std::string label; // "Move Form1_Button1"
    std::string merge; // steps of the same one become one step; empty: it stays one of its own
    std::vector<RecordChange> records;
    std::shared_ptr<const ProjectOptions> settingsBefore, settingsAfter; // null: they are the same
    std::size_t bytes = 0;
};

// The project as it stands becomes the start: after a new project was begun or one was loaded.
void startTimeline();

// Name of the edit that is being made, where the change itself does not tell it well, and what it merges with. Holds
// until the next recordStep.
void nameStep(const std::string& label, const std::string& merge = "");

// What has changed since the last step becomes a step; the steps that were taken back are forgotten then. False when
// nothing has changed.
bool recordStep();

// The steps in their order; the first `timelinePosition()` of them are in force.
const std::vector<TimelineStep>& timelineSteps();
std::size_t timelinePosition();
const TimelineStep* stepToUndo(); // null: there is none
const TimelineStep* stepToRedo();

// Brings the records, and the settings, to the other end of the step at hand. Nothing live follows: that is for the
// caller. Records that are gone in the other state are freed.
void undoStep();
void redoStep();

// The project was saved as it stands; whether it stands so again.
void markTimelineSaved();
bool timelineAtSaved();

// Bytes that all steps together may take; the oldest are dropped beyond.
inline constexpr std::size_t TIMELINE_BYTES = 64U << 20U;

// The two directions of a step: the side that it comes from, and the side that it leads to.
struct StepEnds {
    Image RecordChange::*from;
    Image RecordChange::*to;
};
inline constexpr StepEnds STEP_BACK = {&RecordChange::after, &RecordChange::before};
inline constexpr StepEnds STEP_FORTH = {&RecordChange::before, &RecordChange::after};

bool comesOrGoes(const RecordChange& change);
bool changesPlace(const RecordChange& change);       // the record hangs elsewhere, came or went
bool onlyFollowsAnother(const RecordChange& change); // the same record in the same parent, behind another sibling
