// What the lower rooms need of whoever hosts them: questions, boxes, colours, the grid. The designer fills it with
// toolkit calls, the batch generator with standard error and fixed answers, a test with a script of expected boxes.
#pragma once

#include <string>

struct WidgetNode;

// Icons and buttons of a message box, and its answers.
enum BoxIcon : int { BOX_QUESTION = 1, BOX_WARNING = 2, BOX_INFORMATION = 3 };
enum BoxButtons : int { BOX_OK = 0, BOX_OK_CANCEL = 1, BOX_YES_NO = 3, BOX_YES_NO_CANCEL = 4 };
enum BoxAnswer : int { ANSWER_CANCEL = 1, ANSWER_NO = 3, ANSWER_OK = 4, ANSWER_YES = 6 };

// Without a display: boxes answer OK or Yes and show nothing, colours and the grid live in plain memory.
namespace headless {
int messageBox(const std::string& title, const std::string& text, int icon, int buttons);
void defineColour(int index, float red, float green, float blue);
// The fixed colours 0 to 19 belong to a display; here each is a colour of its own that equals no other.
void enquireColour(int index, float& red, float& green, float& blue);
void setGrid(int horizontal, int vertical, int mode);
void enquireGrid(int& pixelX, int& pixelY);
} // namespace headless

// Every pointer is always callable; the defaults do nothing, or what a machine without a display can do.
struct Host {
    int (*messageBox)(const std::string& title, const std::string& text, int icon, int buttons) = headless::messageBox;
    void (*errorBox)(const std::string& title, const std::string& text) = [](const std::string&, const std::string&) {};
    void (*infoBox)(const std::string& title, const std::string& text) = [](const std::string&, const std::string&) {};
    void (*busyCursor)(bool busy) = [](bool) {};
    void (*defineColour)(int index, float red, float green, float blue) = headless::defineColour; // each 0 to 1
    void (*enquireColour)(int index, float& red, float& green, float& blue) = headless::enquireColour;
    void (*setGrid)(int horizontal, int vertical, int mode) = headless::setGrid; // mode 1 grid, 0 pixels
    void (*enquireGrid)(int& pixelX, int& pixelY) = headless::enquireGrid; // pixels of one cell of the grid in force
    // Brings column and row sizes up to date from the live widget.
    void (*storeArrayGeometry)(WidgetNode& node) = [](WidgetNode&) {};
    // Asks for a file. `folder` and `name` go in as proposals and come back as chosen; false when cancelled.
    bool (*fileDialogue)(const std::string& title, const std::string& filter, bool saving, std::string& folder,
                         std::string& name) = [](const std::string&, const std::string&, bool, std::string&,
                                                 std::string&) { return false; };
    // Brings text that the code editor still holds into its block or slot; called before a project is written.
    void (*commitEditor)() = [] {};
    // Takes the live forms down and forgets every pointer to a record; called before the records of a project are
    // freed.
    void (*closeForms)() = [] {};
};

extern Host host;
