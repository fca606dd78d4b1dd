// The frame of all dialogues: a dialogue is a table of controls, and the frame makes the window, carries events to the
// handlers of the rows, and gives the input back at the end.
//
// How a dialogue is added:
//   1. Identifiers of its controls, in an enum of its own .cpp: those that the product names, else free ones between
//      15830 and 15979. No identifier may be one of a command (asserted when the dialogue opens) or of another dialogue
//      that can be open at the same time. Rows that nobody asks (labels) have none.
//   2. `constexpr Control CONTROLS[]`: a row for each control, a container ahead of what lies in it, in the order in
//      which Tab goes. Places are pixels from the lower left of the window or of `parent`, in cells that are 22 high:
//      the frame enlarges them together until the texts and a line of the desktop's font fit, and leaves gaps.
//   3. `const Dialogue DIALOGUE = {...}` and an opener that calls openDialogue(DIALOGUE). `fill` writes the first
//      contents before the window shows; `refresh`, the one place of the enable rules, runs behind every handler.
//   4. Handlers ask and set controls through namespace `dialogue` and end with closeDialogue(DIALOGUE). What a program
//      sets brings no event. A handler that refuses a field calls dialogue::refuse, so that an OK that was pressed to
//      leave the field does not count.
//   5. A command that opens it: its row below its handler, named in commands.h and commands.cpp. An editor of the
//   property sheet: its row in editors.cpp.
// Return presses the default button (behind the field's own commit), Esc and the close box the `cancel` control, F1
// shows `help`, Tab goes by the table, Alt and the mnemonic works on buttons and toggles.
//
// A modal dialogue takes the input from everything else; it may open another one. A modeless one stays above the master
// window, and all else can be worked; in its fields the keys are the fields' own.
#pragma once

#include "menu-c.h"

#include <functional>
#include <span>
#include <string>
#include <vector>

enum class Field : unsigned char {
    Label,      // text
    Note,       // text that the program sets
    Text,       // one line of at most `length` bytes
    Area,       // many lines
    RichArea,   // many lines of rich text
    Number,     // at most `length` digits, `decimals` of them behind the point; between minimum and maximum, if any
    Combo,      // a drop-down list whose text can be typed
    Choice,     // a drop-down list
    Fonts,      // a drop-down list of the desktop's fonts
    Toggle,     // check box
    Radio,      // at most one of those with the same parent is on
    Button,     // push button
    Default,    // the push button that Return presses
    Picture,    // button that shows the picture named `text`
    List,       // rows of text, with pictures where they have one
    MultiList,  // the same with more rows selected by Shift and Ctrl
    Tree,       // entries are made with owCreateTreeEntry and dialogue::ENTRY_EVENT as callback
    Properties, // property list; rows are made with owAddPropertyToList
    Slider,     // horizontal, minimum to maximum in whole steps
    Panel,      // container, titled `text` if that is not empty
    Tabs,       // container of pages
    Page,       // container in front of or behind others, titled `text`
};

struct Control {
    Field field = Field::Label;
    int id = 0;
    const char* text = "";
    short x = 0, y = 0, width = 0, height = 22; // see above; width 0: natural
    char mnemonic = 0;
    void (*changed)() = nullptr; // pressed, chosen, or committed by Return, Tab or a click elsewhere
    const char* help = nullptr;  // bubble help
    int parent = 0;              // id of the container
    int length = 255, decimals = 0;
    double minimum = 0, maximum = 0;
    void (*typed)() = nullptr;   // Text, Area: a character came or went. Properties: the "..." was pressed
    void (*entered)() = nullptr; // List: double click on a row
    void (*moved)(int from, int to) = nullptr; // List: the user dragged a row; rows count from 1
    short hpos = OLEFT, vpos = OBOTTOM; // edges that the control keeps its distance from, as the toolkit has them
    short expand = 0;                   // 1: fills the window along each axis that is centred
};

// A key of the dialogue's own. It runs the handler of a control that is enabled, or one of its own.
struct DialogueKey {
    int key = 0;                 // KeyCode
    int control = 0;             // id
    int within = 0;              // id of the control that must have the focus, 0 for any
    void (*pressed)() = nullptr; // instead of a control's
    int without = 0;             // id of a control that keeps the key, 0 for none
};

// An event of the dialogue that no control sends: of a menu entry or of a button on a bar that `fill` has made.
struct DialogueCommand {
    int id = 0;
    void (*run)() = nullptr;
};

struct Dialogue {
    const char* title = "";
    const char* icon = "";      // name of the window's icon
    const char* help = nullptr; // topic of F1, null for that of what was worked on before
    short width = 0, height = 0;
    int windowEvent = 0; // identifier of the window's events
    std::span<const Control> controls = {};
    std::span<const DialogueCommand> commands = {};
    int cancel = 0; // id of the control that Esc and the close box press; 0: they close the dialogue
    int first = 0;  // id of the control that has the focus at first; 0: the default button
    void (*fill)() = nullptr;
    void (*refresh)() = nullptr;
    void (*placed)() = nullptr; // the user moved or sized the window, see dialogue::place
    std::span<const DialogueKey> keys = {};
    bool modeless = false;
    bool resizable = false;
};

// Opens a dialogue, or brings one that is open to the front. Its record must last.
void openDialogue(const Dialogue& dialogue);
void closeDialogue(const Dialogue& dialogue); // nothing when it is not open
// An opener that keeps what is edited asks first: a double click on an icon sends its command twice.
bool isOpen(const Dialogue& dialogue);

// Runs what an identifier stands for in an open dialogue; false when it stands for nothing there.
bool dialogueEvent(int identifier);
void forgetDialogues(); // the toolkit is about to end

namespace dialogue {

inline constexpr int ENTRY_EVENT = 15990; // callback of the entries of trees, which leads to the row of the tree

int sender(); // id of the control or command whose handler runs

// Controls of the open dialogues by their ids, the topmost dialogue first.
int widget(int id); // handle, 0 for none
int window(int id); // handle of the window that holds it

std::string text(int id);
void setText(int id, const std::string& text); // of a Picture: its picture's name; a Label's, Button's or Page's label
double number(int id);
void setNumber(int id, double value);
bool isOn(int id);
void setOn(int id, bool on);

int choice(int id); // current row of a list or drop-down list, from 1; 0 for none
void choose(int id, int row);
std::vector<int> choices(int id); // selected rows of a MultiList
void setRows(int id, const std::vector<std::string>& rows);

bool isEnabled(int id);
void enable(int id, bool enabled); // a container: all that lies in it
void enable(std::initializer_list<int> ids, bool enabled);
void show(int id, bool shown);
void showPage(int id); // brings a Page to the front
void focus(int id);

// The value of a field is refused: the focus goes back to it, and a button that was pressed to leave it does not count.
void refuse(int id);

// Where the window of a dialogue stands, pixels of its client area.
struct Place {
    int x, y, width, height;
};
Place place(const Dialogue& dialogue);
void setPlace(const Dialogue& dialogue, Place place);

// Asks for a file, or with `folder` for a folder, and puts its path into a Text control. False when cancelled.
enum class Browse { Open, Save, Folder };
bool browse(int id, const char* title, const char* filter, Browse what = Browse::Open);

} // namespace dialogue
