// What the three languages share while one source is generated: the language's row of texts and writers, the text so
// far, and the flags that live for the length of one generation.
#pragma once

#include "codegen/generate.h"
#include "codegen/split.h"
#include "codegen/text.h"
#include "codegen/values.h"
#include "project/language.h"
#include "project/widget_types.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

struct Generation;

// A widget with what its place in the tree says about it.
struct Placed {
    const WidgetNode& node;
    const WidgetNode& form;
    std::string_view parent; // name of the parent that its creation names
    int width;               // of the creation call, by the sizing rule of its type
    int height;
};

// How the branches of the action loop's dispatch are spelled.
struct DispatchTexts {
    std::string_view ifHead; // up to the name of the widget
    std::string_view elseHead;
    std::string_view headEnd;
    std::string_view ifMasterClosed; // the branch on a master window being closed
    std::string_view elseMasterClosed;
    std::string_view masterClosedEnd; // behind its code
    std::string_view branchEnd;       // ahead of an "else if" head
    std::string_view enquireState;
    std::string_view ifStatus; // up to the digit
    std::string_view elseStatus;
    std::string_view statusEnd;     // behind the digit
    std::string_view statusCodeEnd; // behind the code of one test
    std::string_view statusChainEnd;
    std::string_view chainEnd;
};

// The comments ahead of the code blocks, each a whole piece of text; empty where none of its own is written.
using BlockComments = std::array<std::string_view, CODE_BLOCKS>;

using CreationWriter = void (*)(Generation&, const Placed&);

struct CreationRow {
    WidgetType type;
    CreationWriter write; // null for a type that the language has no words for
};
using CreationRows = CreationRow[WIDGET_TYPES];

// One language: fixed texts, formats with the places named behind them, and writers for what has a shape of its own.
struct Language {
    LanguageNumber number;
    SplitRule split;
    bool commentsLikeFree; // creation comments in the words of Fortran 90
    bool startsFromBlack;  // its programs have no colours from 20 on, whatever the toolkit starts with
    bool parentConstants;  // a dynamic form knows its parent by a constant of its module
    bool sliderHelp;       // a slider's creation writes its bubble help
    std::span<const std::string_view> reservedWords;
    std::span<const std::string_view> ownNames; // that the program declares itself
    std::span<const std::string_view> (*libraryNames)();
    BlockComments blockComments;

    std::string_view declareWidget;               // name
    std::string_view declareEntry;                // name
    std::array<std::string_view, 12> defineCalls; // name, name; in DEFINE_ORDER
    std::array<std::string_view, ENTRY_SLOTS> defineEntryCalls;
    std::string_view setStatus; // name, status
    std::span<const NamedValue> statusNames;
    std::string_view colourComment;
    std::string_view defineColour; // index, red, green, blue
    std::string_view generateForm; // name
    std::string_view listComment;  // name of the list box
    std::string_view comboComment; // name of the combo box
    std::string_view treeComment;  // name of the tree view
    DispatchTexts dispatch;

    void (*programHead)(Generation&);
    void (*actionLoop)(Generation&);
    void (*termination)(Generation&);
    const CreationRows& creation;
    void (*furtherProperties)(Generation&, const Placed&); // behind a creation; null where it says everything itself
    void (*menuBar)(Generation&, const MenuEntryRec& bar, const WidgetNode& form);
    void (*pullDown)(Generation&, const MenuEntryRec& menu, std::string_view above);
    void (*menuEntry)(Generation&, const MenuEntryRec& entry, std::string_view owner);
    void (*menuSeparator)(Generation&, const MenuEntryRec& separator, std::string_view owner);
    void (*treeEntry)(Generation&, const WidgetNode& tree, const MenuEntryRec& entry, std::string_view parent);
    void (*listEntry)(Generation&, const WidgetNode& list, const ListEntryRec& entry);
};

extern const Language FORTRAN_90;
extern const Language FORTRAN_77;
extern const Language C_LANGUAGE;
const Language& languageOf(int number);

struct Generation {
    const Language& language;
    const LanguageFacts& facts;
    std::string& out;     // the source so far, or what the sink has not taken yet
    const TextSink& sink; // empty: the whole text stays in `out`
    std::vector<PastedCode>& map;
    std::string base;           // path of the source without its extension
    bool windows = false;       // the platform is Windows
    bool masterWritten = false; // from then on a form is a dialogue box
    bool branchOpen = false;    // the dispatch has its first branch
    bool branchUnended = false; // the last branch still waits for its end
    int masterX = 0;            // place and name of the master, once it is written
    int masterY = 0;
    std::string_view masterName{};
    bool windowCallbacks = false;           // some widget has code in a window slot
    std::string statement{};                // being put together, to be split
    std::size_t linesCountedTo = 0;         // place in `out` up to which...
    int linesCounted = 0;                   // ...line ends are counted
    std::vector<const WidgetNode*> forms{}; // in walking order: the master first
    // The forms that each menu entry opens, in chain order, by the name of their parent.
    std::unordered_map<std::string_view, std::vector<const WidgetNode*>> formsByParent{};
    std::unordered_set<const WidgetNode*> ownModules{}; // forms written as modules of their own so far
};

// --- Writing. A format's places are filled as in text.h.

template <class... Values> void write(Generation& g, std::string_view format, const Values&... values) {
    put(g.out, format, values...);
}
template <class... Values> void add(Generation& g, std::string_view format, const Values&... values) {
    put(g.statement, format, values...);
}
void writeStatementSplit(Generation& g); // and begins the next one
void passOn(Generation& g);              // a large piece of text to the sink; between two widgets

// Pastes a block with its comment when it holds code.
void writeBlock(Generation& g, CodeBlockIndex block);
// Pastes code; indented, every line gets the blanks that the user prefers.
void pasteCode(Generation& g, PastedCode place, std::string_view code, bool indented);

// --- Enquiries.

bool hasStatusBar(const WidgetNode& form); // one that a Windows program shows
bool checksConfiguration();                // the program looks for its configuration file itself
bool hasWindowCode(const WidgetNode& node);
bool needsGeneralCallback(const WidgetNode& node); // for its own code or for a window slot
bool hasListEntries(const WidgetNode& list);       // of the user's own
TypeSet typesBelow(const WidgetNode& form);        // of the form and below
int difference(int a, int b);                      // without overflow: a file may hold any numbers
int wholeNumber(float value);                      // truncated, held to what an integer can be

// The font of a widget asks for a statement. `standardFace`: it has the standard face and size.
bool hasStandardFace(const WidgetNode& node);
bool needsFont(const Generation& g, const Placed& widget);
bool isPlainText(const WidgetNode& node);      // text entry or label that is not rich text
std::string fieldText(const WidgetNode& node); // of a text or TTY entry or a label, as the source is to tell it

// The picture that a form or icon shows: kind of image, its name, and whether that is the record's `icon`.
struct Picture {
    int kind;
    std::string_view image;
    bool isIcon;
};
Picture formPicture(const Generation& g, const WidgetNode& form);
Picture iconPicture(const Generation& g, const WidgetNode& icon);
Picture toolPicture(const WidgetNode& icon);

// --- The shared walk.

void writeHeader(Generation& g);
void writeIdentifiers(Generation& g, const WidgetNode& form);
void writeFormRoutine(Generation& g, const WidgetNode& form); // with all below it, in pre-order
void writeUserColours(Generation& g);
void writeGenerateCalls(Generation& g);
void writeDispatch(Generation& g);
void writeMenu(Generation& g, const WidgetNode& form);
void writeListEntries(Generation& g, const WidgetNode& list, std::string_view comment);
void writeTreeEntries(Generation& g, const WidgetNode& tree);

// What the source calls the parent of a dialogue: the master where the record names none.
std::string_view parentName(const Generation& g, const WidgetNode& form);
void rememberMaster(Generation& g, const WidgetNode& form);
const WidgetNode* activeOnInit(const Generation& g); // the widget that has the input at the start; null for none

// Sizes of an array's cells: one item for all when they agree, else one for each column and row in step.
struct CellSize {
    int column; // from 1, 0 for all
    int row;
    int width;
    int height;
    bool changed; // differs from the item before
};
std::vector<CellSize> cellSizes(const WidgetNode& array);

// Columns of a table box. The label is absent once the labels have run out.
struct TableColumn {
    int number; // from 1
    int width;
    bool labelled;
    std::string_view label;
};
std::vector<TableColumn> tableColumns(const WidgetNode& table);
