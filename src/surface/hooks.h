// What the surface, the property sheet and the code editor ask of the rooms above them. Every pointer is always
// callable; the defaults do nothing. The property sheet and the code editor fill their own parts when they are built
// (buildPropertySheet, buildCodeEditor); the shell fills the first group, the dialogues the last.
#pragma once

#include "project/records.h"

#include <string>
#include <vector>

enum StatusPane : int { PANE_SELECTION = 0, PANE_LINE = 1, PANE_COLUMN = 2 };

// Editors that the dialogues room opens on the current widget. The editor writes the record on OK.
enum class Editor { List, Tree, PlainText, RichText, Icon, CloseIcon, OpenIcon, TabIcon, BackgroundImage };

struct SurfaceHooks {
    // Filled by the shell.
    void (*statusText)(int pane, const std::string& text); // StatusPane of the master window's status bar
    void (*commandStatus)(int command, int status);        // all entries and buttons of it: 0 disabled, 1, 2 pressed
    void (*toolStatus)(int tool, int status);              // Tool Box button of a tool code
    void (*inputMode)(bool text); // gives the shared Edit entries, icons and popup their labels and commands of the
                                  // mode; all from the command table
    void (*formMade)(int window); // a form came to life
    void (*stepsChanged)();       // Undo and Redo are about other steps
    void (*kindChanged)();        // language, platform or grid of the project
    void (*keysChanged)();        // another command may have a key now
    void (*parkKeys)(bool);       // while a dialogue has the input no command has its key
    void (*giveInputBack)();      // to what had it before a dialogue
    void (*drawControlWindows)(); // hierarchy and compiler log
    void (*showCodeEditor)();     // its pane, if it is hidden
    // Lines in the place of the compiler's messages; a click on one calls `chosen` with its number, from 1.
    void (*showLog)(const std::vector<std::string>& lines, void (*chosen)(int line));
    void (*formFileForgotten)(); // the remembered form file name is emptied

    // Filled by the property sheet.
    void (*showProperties)(WidgetNode* widget); // null: an empty table
    void (*refreshProperties)();                // its cells again from the record

    // Filled by the code editor.
    bool (*hasCommand)(int command);          // something answers to it
    void (*commitEditor)();                   // brings the shown text into its block or slot
    void (*bindCode)(WidgetNode* widget);     // the editor follows the selection
    void (*showCallback)(WidgetNode& widget); // brings the editor up on the widget's callback
    void (*showEntryCallback)(WidgetNode& owner, const std::string& entry); // and of an entry of its menu or tree
    void (*enterTextMode)();
    void (*leaveTextMode)();
    void (*nameAdded)(const std::string& name); // the list of all widgets
    void (*nameRemoved)(const std::string& name);
    void (*namesCleared)();
    void (*nameChanged)(const std::string& from, const std::string& to);
    void (*menuChanged)(WidgetNode& form);                               // the live menu of a form was built
    int (*renameInCode)(const std::string& from, const std::string& to); // number of places changed

    // Filled by the dialogues.
    bool (*hasEditor)(Editor editor); // else there is no button for it
    void (*openEditor)(Editor editor, WidgetNode& widget);
    bool (*generateSource)(); // false when cancelled or failed
};

extern SurfaceHooks hooks;
