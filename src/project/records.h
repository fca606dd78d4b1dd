// The records of a project: forms and widgets, their menu, tree and list entries, status bars, and the state of the
// open project. Plain data; what may be done with it is in tree.h, files.h, placement.h and code_stores.h.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// Dense, so that a table over the types is an array. Files know them by codes, see widget_types.h.
enum WidgetType : int {
    TYPE_NONE,       // of a cleared record; also "any" and "no other" in tables
    TYPE_FORM,       // a window; top level only
    TYPE_MAIN_PANEL, // one per form, its only child
    TYPE_BUTTON,
    TYPE_TOGGLE, // check box; a radio button as the child of a radio box
    TYPE_TEXT_ENTRY,
    TYPE_TEXT_LABEL,
    TYPE_VALUE_ENTRY,
    TYPE_VALUE_LABEL,
    TYPE_ICON,
    TYPE_LIST_BOX,
    TYPE_SLIDER,
    TYPE_PANEL,
    TYPE_COMBO_BOX,
    TYPE_RADIO_BOX, // a panel converted when its first radio button is placed
    TYPE_GRAPHICS_FRAME,
    TYPE_TEXT_ARRAY,
    TYPE_VALUE_ARRAY,
    TYPE_TOOL_BAR,
    TYPE_TAB_BOX,
    TYPE_GAUGE,
    TYPE_PROGRESS_BAR,
    TYPE_TTY_ENTRY,
    TYPE_TREE_VIEW,
    TYPE_TABLE_BOX,
    TYPE_TOOL_SEPARATOR,
    TYPE_PANE,    // docking pane
    TYPE_UNKNOWN, // the file's code names no type: the record is kept as it is, neither shown nor generated
};
inline constexpr int WIDGET_TYPES = TYPE_UNKNOWN - TYPE_FORM;

enum FormType : int {
    FORM_STATIC_SDI = 0,
    FORM_MASTER_SDI = 1,
    FORM_STATIC_MDI = 2,
    FORM_MASTER_MDI = 3,
    FORM_DYNAMIC_SDI = 4,
    FORM_DYNAMIC_MDI = 5,
};

enum MenuKind : int { MENU_BAR = 1001, MENU_PULL_DOWN = 1002, MENU_ENTRY = 1003, MENU_SEPARATOR = 1004 };

inline constexpr int NAME_LIMIT = 255;    // characters in every text field but `text`
inline constexpr int TEXT_LIMIT = 32768;  // characters in `text`
inline constexpr int STATUS_PANES = 32;   // most panes of a status bar
inline constexpr int FILE_LIST_ROWS = 50; // rows of each file table
inline constexpr int WIDGET_SLOTS = 18;
inline constexpr int ENTRY_SLOTS = 5;
inline constexpr int CODE_BLOCKS = 9;

// Code of a callback slot or a code block. The size that files store beside it is always its length plus 2.
using CallbackSlot = std::string;
using CodeBlock = std::string;
inline int storedSize(const std::string& code) { return static_cast<int>(code.size()) + 2; }

// The 18 slots of a widget in record order.
enum WidgetSlot : int {
    SLOT_GENERAL,
    SLOT_SELECT,
    SLOT_MOVE,
    SLOT_CHANGE,
    SLOT_DOUBLE_CLICK,
    SLOT_DRAG_SELECT,
    SLOT_DRAG_MOVE,
    SLOT_DRAG_DROP,
    SLOT_EXPOSE,
    SLOT_FILE_DROP,
    SLOT_WINDOW_MOVED, // the six window slots run inside the General branch, status 0 to 5
    SLOT_WINDOW_RESIZED,
    SLOT_WINDOW_QUIT,
    SLOT_WINDOW_MINIMIZED,
    SLOT_WINDOW_SCROLLED,
    SLOT_WINDOW_LOST_FOCUS,
    SLOT_VALUE_ERROR,
    SLOT_HYPERLINK,
};

// The five slots of a menu or tree entry in record order.
enum EntrySlot : int { ENTRY_GENERAL, ENTRY_SELECT, ENTRY_CHANGE, ENTRY_DRAG_DROP, ENTRY_DOUBLE_CLICK };

enum CodeBlockIndex : int {
    BLOCK_GLOBAL_DEFINITIONS,
    BLOCK_GLOBAL_ROUTINES,
    BLOCK_LOCAL_VARIABLES,
    BLOCK_INITIALIZATION,
    BLOCK_PRE_ACTION,
    BLOCK_LOOP_START,
    BLOCK_LOOP_END,
    BLOCK_TERMINATION,
    BLOCK_USER_ROUTINES,
};

// The live side of an entry. Records are equal that hold the same, whatever stands for them on the screen.
struct LiveEntry {
    int handle = 0;     // of the live entry; not stored
    int callbackId = 0; // of the live entry; not stored
    bool operator==(const LiveEntry&) const { return true; }
};

// One entry of a form's menu or of a tree view. Their row is flat: `level` alone tells the nesting.
struct MenuEntryRec : LiveEntry {
    std::string label;
    std::string name;
    std::string help;
    std::string icon1; // menu: uncheck icon; tree: icon
    std::string icon2; // menu: check icon; tree: close icon
    std::string icon3; // menu: grey icon; tree: open icon
    int accel = 0;
    int kind = 0;         // MenuKind
    int level = 0;        // 0 at the top
    int storedHandle = 0; // what the file held there, kept for the next save
    std::array<CallbackSlot, ENTRY_SLOTS> slots;
    bool operator==(const MenuEntryRec&) const = default;
};
using TreeEntryRec = MenuEntryRec;

// One row of a list box or combo box.
struct ListEntryRec {
    std::string text;
    std::string icon; // empty for none
    bool operator==(const ListEntryRec&) const = default;
};

// The status bar of a form.
struct LiveStatusBar {
    int handle = 0; // not stored
    bool operator==(const LiveStatusBar&) const { return true; }
};
struct StatusBarRec : LiveStatusBar {
    int storedHandle = 0;                  // what the file held there, kept for the next save
    int panes = 0;                         // panes in use, at most STATUS_PANES
    std::array<int, STATUS_PANES> sizes{}; // running right edge in pixels, -1 for the pane that takes the rest
    std::array<std::string, STATUS_PANES> texts;
    std::string name; // in the name space of the widgets
    bool operator==(const StatusBarRec&) const = default;
};

// The status bar of a record: owned, copied deep with it.
struct StatusBarPtr : std::unique_ptr<StatusBarRec> {
    using std::unique_ptr<StatusBarRec>::unique_ptr;
    using std::unique_ptr<StatusBarRec>::operator=;
    StatusBarPtr() = default;
    StatusBarPtr(std::unique_ptr<StatusBarRec>&& other) : std::unique_ptr<StatusBarRec>(std::move(other)) {}
    StatusBarPtr(const StatusBarPtr& other)
        : std::unique_ptr<StatusBarRec>(other ? std::make_unique<StatusBarRec>(*other) : nullptr) {}
    StatusBarPtr(StatusBarPtr&&) noexcept = default;
    StatusBarPtr& operator=(const StatusBarPtr& other) {
        if (this != &other) reset(other ? new StatusBarRec(*other) : nullptr);
        return *this;
    }
    StatusBarPtr& operator=(StatusBarPtr&&) noexcept = default;
    ~StatusBarPtr() = default;
    bool operator==(const StatusBarPtr& other) const {
        return get() == other.get() || (get() && other.get() && *get() == *other.get());
    }
    bool operator==(std::nullptr_t) const { return !get(); }
};

struct WidgetNode;

// Where a record hangs in the tree, and what stands for it on the screen. Records are equal that hold the same,
// wherever they hang and whatever shows them.
struct WidgetLinks {
    WidgetNode* child = nullptr;
    WidgetNode* next = nullptr;
    // Kept by tree.h; not for others to write.
    WidgetNode* parent = nullptr;    // record that holds it; null for forms and detached records
    WidgetNode* lastChild = nullptr; // where linkChild goes on
    std::size_t indexedName = 0;     // key under which the index holds it, 0 for none
    int indexedHandle = 0;           // the same of its handle
    bool inProject = false;          // hangs in the tree of project.forms
    int id = 0;                      // of a record that was ever in a project, unique in the session; copies have none

    int handle = 0;           // of the live widget; set with setHandle so that the index follows
    int parentHandle = 0;     // live handle of the parent; not stored
    int designSelectId = 0;   // live: handle + OIDENT
    int designCallbackId = 0; // live: handle
    int formCallbackId = 0;   // live; not stored
    int hierarchyItem = 0;    // row of the hierarchy window
    int selected = 0;         // 1 on the current widget
    int formHidden = 0;       // stored, but no edit: it tells what is on the screen
    bool operator==(const WidgetLinks&) const { return true; }
};

// One form or widget. Which generic field means what depends on `type`. A record owns what it points to except the
// `child` and `next` chains, which belong to the tree. Whoever remembers a record beyond one event remembers its id.
struct WidgetNode : WidgetLinks {
    std::string name;                  // variable name in generated source, unique in the project
    std::vector<MenuEntryRec> entries; // form: menu; tree view: its entries
    WidgetType type = TYPE_NONE;
    int unknownCode = 0; // of an unknown type, as its file has it
    int reserved = 0;    // kept through load and save; nothing reads it
    int hpos = 0;        // -1 left, 0 centre, 1 right
    int vpos = 0;        // -1 bottom, 0 middle, 1 top
    int xpos = 0;        // of the origin point in the parent; cells in grid mode, else pixels
    int ypos = 0;        // upward from the parent's bottom
    int width = 0;
    int height = 0;
    int expand = 0; // 0 off, 1 on, 2 to 24 an expansion code
    int initialStatus = 0;
    int titleFlag = 0;
    int quitMode = 0; // 0 hide, 1 destroy, 2 ignore
    int subType = 0;
    int size = 0; // percent of the grid cell; TTY entry: number of lines
    int accel = 0;
    int fieldWidth = 0;
    int justify = 0; // -1 left, 0 centre, 1 right
    int sign = 0;
    int format = 0; // decimals, or the kind of image
    int editMode = 0;
    float value = 0;
    float minValue = 0;
    float maxValue = 0;
    float stepValue = 0;
    int borderType = 0;
    int colour1 = 0; // what the four colours colour depends on the type
    int colour2 = 0;
    int colour3 = 0;
    int colour4 = 0;
    int sorted = 0;
    int approxSize = 0;
    int columns = 0;
    int rows = 0;
    int iconId = 0;
    float xMin = 0;
    float xMax = 0;
    float yMin = 0;
    float yMax = 0;
    std::string text; // title, label or initial text, at most TEXT_LIMIT
    // Live numbers mean nothing in a file. What stood there when the record was read is kept, so that a project that is
    // only opened and saved stays the same file; 0 in a record that was made here.
    int storedParentHandle = 0;
    int storedFormCallbackId = 0;
    std::string icon;
    std::string backgroundImage;
    std::string parentName;
    int formType = 0;
    std::vector<ListEntryRec> listEntries;
    std::array<CallbackSlot, WIDGET_SLOTS> slots;
    std::string bubbleHelp;
    int activeOnInit = 0;
    int yLabelsWidth = 0;
    int xLabelsHeight = 0;
    std::string xLabels;
    std::string yLabels;
    int onToolbar = 0;
    int alignXLabels = 0;
    int alignYLabels = 0;
    int iconSize = 0;
    int initialPosition = 0;
    std::vector<int> columnWidths; // arrays, table box: `columns` of them
    std::vector<int> rowHeights;   // arrays: `rows` of them
    StatusBarPtr statusBar;
    int initialState = 0;
    int scrollMode = 0;
    int dragMode = 0;
    int topTicks = 0;
    int bottomTicks = 0;
    int accessMode = 0;
    std::string fontFace;
    int pointSize = 0;
    int charSet = 0;
    int bold = 0;
    int italic = 0;
    int underline = 0;
    int strikeout = 0;
    int contents = 0;
    std::string closeIcon;
    std::string openIcon;
    int displayIcons = 0;
    int helpJustify = 0;
    int oleInserts = 0;
    int cellBackground = 0;
    int cellBorder = 0;
    int readOnly = 0;
    int autoUrl = 0;
    int tabAction = 1;
    int tabList = 1;
    int buildInfo = 1; // not stored
    bool operator==(const WidgetNode&) const = default;
};

// One next-number counter per word that default names carry. Two types can share one.
enum Counter : int {
    COUNTER_NONE = -1,
    COUNTER_BUTTON,
    COUNTER_TOGGLE,
    COUNTER_LIST,
    COUNTER_SLIDER,
    COUNTER_TEXT,
    COUNTER_VALUE,
    COUNTER_ICON,
    COUNTER_PANEL,
    COUNTER_COMBO,
    COUNTER_RADIO,
    COUNTER_GRAPHICS,
    COUNTER_TXT_ARRAY,
    COUNTER_VAL_ARRAY,
    COUNTER_TOOL_BAR,
    COUNTER_TAB_DIA_BOX,
    COUNTER_GAUGE,
    COUNTER_PROGRESS,
    COUNTER_TTY_ENTRY,
    COUNTER_TREE_VIEW,
    COUNTER_TABLE_BOX,
    COUNTER_TOOL_SEP,
    COUNTER_PANE,
    COUNTERS,
};

template <int N> std::array<int, N> allOnes() {
    std::array<int, N> ones;
    ones.fill(1);
    return ones;
}

// The number that a counter gives next; it then stands on the one behind. Files can hold any number.
inline int takeNumber(int& counter) { return counter < 2147483647 ? counter++ : counter; }

// A table of file names of the build, always with one empty row at its end.
using FileList = std::vector<std::string>;

enum FileListIndex : int { LIST_SOURCES, LIST_OBJECTS, LIST_LIBRARIES, LIST_MODULES, FILE_LISTS };

// A source that the project's file names and that is not there. The project goes without one until another is chosen;
// the file keeps the name, for the source may come back.
struct MissingSource {
    std::string folder;
    std::string name; // empty: none is missing
    int stale = 1;
};

// What all forms and the whole source of a project depend on.
struct ProjectKind {
    int projectLanguage = 90;   // 77, 90 or 99 (C)
    char projectPlatform = 'w'; // 'w' Windows, 'x' X-Windows, 'g' GLX-Windows
    int doubleBuffering = 0;
    int gridHoriz = 36;
    int gridVert = 27;
    int gridMode = 0;
    int scalable = 0;
    bool operator==(const ProjectKind&) const = default;
};

// What the user chooses for the project as a whole, beside its records.
struct ProjectOptions : ProjectKind {
    int snapOn = 1;
    int snapGrid = 10; // pixels
    int nextFormNumber = 1;
    std::array<int, COUNTERS> counters = allOnes<COUNTERS>(); // next number per widget word, by Counter
    int nextFormX = 200;
    int nextFormY = 132;
    int customSwitches = 0;
    std::string compilerSwitches;
    std::string linkerSwitches;
    std::array<FileList, FILE_LISTS> fileLists; // by FileListIndex: sources, objects, libraries, module directories
    std::array<CodeBlock, CODE_BLOCKS> codeBlocks;
    bool operator==(const ProjectOptions&) const = default;
};

// The open project. One instance, `project`; the model writes it, everybody reads it.
struct ProjectState : ProjectOptions {
    WidgetNode* forms = nullptr;
    WidgetNode* currentWidget = nullptr; // shown in the property sheet; null when nothing is selected
    int gridPixelX = 22;                 // pixels of one cell
    int gridPixelY = 22;
    int widgetCount = 0; // named records; main panels do not count
    int projectModified = 0;
    int edits = 0; // so many since the program began; tells the timeline whether there is something to compare
    int sourceStale = 1;
    std::vector<std::int64_t> sourceFileTimes; // 100 ns since 1601, one per row of the sources
    std::string sourceDir;
    std::string sourceName;
    std::string storedSource; // path of the source that the project's file names, whether or not it is there
    MissingSource missingSource;
    std::string projectTitle; // name without extension; default of the file dialogues
    std::string projectName;  // remembered file name, empty for an untitled project
    std::string projectDir;   // its folder
    std::string formFileName; // of the last form file inserted or saved; empty when none is remembered
    std::string formFileDir;  // its folder
    std::string damagedFile;  // full path of the file that the project was read from, if it was incomplete
    std::int64_t exeTime = 0; // of the executable at the last link
    std::string currentBlockName = "General Callback"; // at most 50 characters
    int fileVersion = 80;                              // of the file being read, times ten
};

extern ProjectState project;

// Every change of the project ends here: it has to be saved, and its source generated again.
inline void markProjectChanged() {
    project.projectModified = project.sourceStale = 1;
    project.edits++;
}

// Switches of the compiler in force, that an empty project starts with. The build room sets them.
struct SwitchDefaults {
    std::string compiler;
    std::string linker;
};
extern SwitchDefaults switchDefaults;
