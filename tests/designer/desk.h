// The whole designer in the test's own process, worked by mouse and keys on the offscreen platform.
#pragma once

#define QT_NO_KEYWORDS // the records have a field of the name slots

#include "designer_session.h"

#include "menu-c.h"
#include "project/placement.h"
#include "project/preferences.h"
#include "project/records.h"
#include "project/tools.h"
#include "project/tree.h"
#include "shell/command_table.h"
#include "shell/designer.h"
#include "surface/selection.h"
#include "surface/state.h"
#include "toolkit/testing/robot.h"

#include <gtest/gtest.h>

#include <string>

// Starts on an empty project with Form1 and ends without a question.
struct Desk {
    Desk();

    // Carries all events that wait to their commands and to the forms.
    void run();
    // Takes the tool and clicks on `parent`, pixels from its top left; returns the new record, null when refused.
    WidgetNode* place(int tool, WidgetNode* parent, int x, int y);
    // A click on a live widget, and on the background of a panel.
    void click(WidgetNode* widget);
    void click(WidgetNode* panel, int x, int y);
    // Types into a cell of the property sheet, or chooses an entry there, as far as a user could.
    void setProperty(const char* label, const std::string& text);
    std::string property(const char* label);
    bool propertyEnabled(const char* label);
    void command(int identifier);

    DesignerSession session;
    WidgetNode* form = nullptr;
    WidgetNode* panel = nullptr; // the main panel
};

enum PlacementTool : int {
    PLACE_BUTTON = TOOL_PUSH_BUTTON,
    PLACE_CHECK_BOX = TOOL_CHECK_BOX,
    PLACE_LIST = TOOL_LIST_BOX,
    PLACE_SLIDER = TOOL_SLIDER,
    PLACE_TEXT_ENTRY = TOOL_TEXT_ENTRY,
    PLACE_VALUE_ENTRY = TOOL_VALUE_ENTRY,
    PLACE_TEXT_LABEL = TOOL_TEXT_LABEL,
    PLACE_PANEL = TOOL_PANEL,
    PLACE_TOOL_BAR = TOOL_TOOL_BAR,
    PLACE_TAB_BOX = TOOL_TAB_BOX,
    PLACE_PANE = TOOL_PANE,
};
