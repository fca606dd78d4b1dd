// What the lower rooms need of whoever hosts them: questions, boxes, colours, the grid. The designer fills it with
// toolkit calls, the batch generator with standard error and fixed answers, a test with a script of expected boxes.
#pragma once

#include <string>

struct WidgetNode;

// Icons and buttons of a message box, and its answers.
enum BoxIcon : int { BOX_QUESTION = 1, BOX_WARNING = 2, BOX_INFORMATION = 3 };
enum BoxButtons : int { BOX_OK = 0, BOX_OK_CANCEL = 1, BOX_YES_NO = 3, BOX_YES_NO_CANCEL = 4 };
enum BoxAnswer : int { ANSWER_CANCEL = 1, ANSWER_NO = 3, ANSWER_OK = 4, ANSWER_YES = 6 };

// Every pointer is always callable; the defaults do nothing (boxes answer OK or Yes).
struct Host {
    int (*messageBox)(const std::string& title, const std::string& text, int icon, int buttons);
    void (*errorBox)(const std::string& title, const std::string& text);
    void (*infoBox)(const std::string& title, const std::string& text);
    void (*busyCursor)(bool busy);
    void (*defineColour)(int index, float red, float green, float blue); // each 0 to 1
    void (*enquireColour)(int index, float& red, float& green, float& blue);
    void (*setGrid)(int horizontal, int vertical, int mode);      // mode 1 grid, 0 pixels
    void (*enquireGrid)(int& pixelX, int& pixelY);                // pixels of one cell of the grid in force
    void (*storeArrayGeometry)(WidgetNode& node);                 // brings column and row sizes up to date from the live widget
    // Asks for a file. `folder` and `name` go in as proposals and come back as chosen; false when cancelled.
    bool (*fileDialogue)(const std::string& title, const std::string& filter, bool saving, std::string& folder,
                         std::string& name);
};

extern Host host;
