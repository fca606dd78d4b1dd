// The editor of rich text: a small word processor.
#include "dialogues/editors.h"
#include "dialogues/text_editor.h"
#include "platform/paths.h"
#include "project/host.h"
#include "surface/state.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <vector>

namespace {

extern const Dialogue RICH;

constexpr char NEW_TITLE[] = "* Text Editor"; // no file is bound
constexpr int INDENT = 500;                   // twentieths of a point

struct State {
    std::map<int, std::vector<int>> widgets; // entries and buttons by the command that they send
    int font = 0, size = 0;                  // combo boxes
    int statusBar = 0;
    std::vector<int> sizes; // rows of the list of sizes
    std::string file;       // bound to it; empty for none
} state;

std::string lastFolder, lastName; // of the file box, from one opening to the next

int area() { return dialogue::widget(TEXT_AREA); }

void setStatus(int command, int status) {
    for (const int widget : state.widgets[command]) owSetWidgetStatus(widget, status);
}

// ---- Attributes

// An attribute of the paragraph that commands set: to a value of their own, or on and off.
struct ParagraphRow {
    int command, keyword, value;
    bool toggles;
};
constexpr ParagraphRow PARAGRAPH[] = {
    {TEXT_LEFT, owJustify, OLEFT, false},
    {TEXT_CENTRE, owJustify, OCENTRE, false},
    {TEXT_RIGHT, owJustify, ORIGHT, false},
    {TEXT_JUSTIFIED, owJustify, OJUSTIFY, false},
    {TEXT_LEFT_INDENT, owLeftIndent, INDENT, true},
    {TEXT_FIRST_INDENT, owFirstIndent, INDENT, true},
    {TEXT_RIGHT_INDENT, owRightIndent, INDENT, true},
    {TEXT_NORMAL, owBullet, 0, false},
    {TEXT_BULLET, owBullet, 1, false},
};

struct FontRow {
    int command, keyword;
};
constexpr FontRow FONT[] = {{TEXT_BOLD, owBold}, {TEXT_ITALIC, owItalic}, {TEXT_UNDERLINE, owUnderline}};

int paragraphValue(int keyword) {
    int value = 0;
    owEnqParagraphProp(area(), keyword, &value, 0);
    return value;
}

int fontValue(int keyword) {
    int value = 0;
    owEnqFontAttribs(area(), keyword, &value, 0);
    return value;
}

bool holds(const ParagraphRow& row) {
    const int value = paragraphValue(row.keyword);
    return row.toggles ? value != 0 : value == row.value;
}

void showFont() {
    char face[80] = "";
    owEnqFontAttribs(area(), owLength, static_cast<int>(sizeof face), owFontFace, face, 0);
    const int size = fontValue(owPointSize);
    owSetListEntry(state.font, OSELECT, owEntry, -2, owString, face, 0);
    auto row = std::ranges::find(state.sizes, size);
    if (row == state.sizes.end()) {
        owSetListEntry(state.size, OADD, owString, std::to_string(size).c_str(), 0);
        state.sizes.push_back(size);
        row = std::prev(state.sizes.end());
    }
    owSetListEntry(state.size, OSELECT, owEntry, static_cast<int>(row - state.sizes.begin()) + 1, 0);
}

void showPlace(int start) {
    const int line = owEnqTextPos(area(), 0, owPosition, start, 0);
    const int column = start - owEnqTextPos(area(), 1, owPosition, line, 0);
    const WidgetNode* node = text_editor::edited();
    const std::string count = std::to_string(owEnqTextPos(area(), 5, 0)) + " characters";
    owSetStatusBarText(state.statusBar, 0, node ? count.c_str() : "");
    owSetStatusBarText(state.statusBar, 1, ("LINE:" + std::to_string(line)).c_str());
    owSetStatusBarText(state.statusBar, 2, ("COLUMN:" + std::to_string(column)).c_str());
}

void showState() {
    int start = 0, end = 0;
    owEnqSelectedTextRange(area(), &start, &end, 0);
    for (const int command : {TEXT_CUT, TEXT_COPY}) setStatus(command, start != end ? OSELECTABLE : OUNSELECTABLE);
    for (const ParagraphRow& row : PARAGRAPH) setStatus(row.command, holds(row) ? OCHECKED : OSELECTABLE);
    for (const FontRow& row : FONT) setStatus(row.command, fontValue(row.keyword) ? OCHECKED : OSELECTABLE);
    setStatus(TEXT_UNDO, owTextUndoAction(area(), OCANUNDO) ? OSELECTABLE : OUNSELECTABLE);
    setStatus(TEXT_REDO, owTextUndoAction(area(), OCANREDO) ? OSELECTABLE : OUNSELECTABLE);
    showFont();
    showPlace(start);
}

void backToText() {
    dialogue::focus(TEXT_AREA);
    showState();
}

void setParagraph() {
    const auto row = std::ranges::find(PARAGRAPH, dialogue::sender(), &ParagraphRow::command);
    if (row == std::end(PARAGRAPH)) return;
    owSetParagraphProp(area(), row->keyword, row->toggles && holds(*row) ? 0 : row->value, 0);
    backToText();
}

void flipFont(int command) {
    const auto row = std::ranges::find(FONT, command, &FontRow::command);
    if (row == std::end(FONT)) return;
    owSetFontAttribs(area(), row->keyword, fontValue(row->keyword) ? 0 : 1, 0);
    backToText();
}

void setFont() { flipFont(dialogue::sender()); }

void setFace() {
    char face[80] = "";
    owEnqListEntry(state.font, 0, face, sizeof face, 0);
    if (*face) owSetFontAttribs(area(), owFontFace, face, 0);
    backToText();
}

void setSize() {
    char text[80] = "";
    owEnqListEntry(state.size, 0, text, sizeof text, 0);
    if (const int points = std::atoi(text); points > 0) owSetFontAttribs(area(), owPointSize, points, 0);
    backToText();
}

// A colour of its own: those of the table belong to the project's widgets.
void setColour() {
    float red = 0, green = 0, blue = 0;
    if (owColourControl(&red, &green, &blue))
        owSetFontAttribs(area(), owTextCol,
                         oTrueCol(static_cast<double>(red), static_cast<double>(green), static_cast<double>(blue)), 0);
    backToText();
}

// ---- Files and clipboard

void bindFile(const std::string& path) {
    state.file = path;
    owSetWidgetProp(dialogue::window(TEXT_AREA), owTitle, path.empty() ? NEW_TITLE : path.c_str(), 0);
}

bool chooseFile(const char* title, const char* filter, bool saving, std::string& path) {
    std::string folder = lastFolder, name = lastName;
    if (!host.fileDialogue(title, filter, saving, folder, name)) return false;
    lastFolder = folder;
    lastName = name;
    path = joinPath(folder, name);
    return true;
}

void openFile() {
    std::string path;
    if (chooseFile("Open", "*.rtf|Rich Text Format|*.txt|Text File", false, path)) {
        if (owGetTextFromFile(area(), path.c_str(), 0))
            bindFile(path);
        else
            host.errorBox("Error opening file", path + " could not be read|Choose another file");
    }
    backToText();
}

void saveTo(const std::string& path) {
    if (owSaveTextToFile(area(), path.c_str(), 0))
        bindFile(path);
    else
        host.errorBox("Error saving file", path + " could not be written|Choose another file or folder");
}

bool mayReplace(const std::string& path) {
    return !pathExists(path) || host.messageBox("File already exists", path + "|Do you want to replace it?",
                                                BOX_WARNING, BOX_YES_NO) == ANSWER_YES;
}

void saveAs() {
    std::string path;
    if (chooseFile("Save As", "*.rtf|Rich Text Format|*.txt|Text File|*.*|All Files", true, path) && mayReplace(path))
        saveTo(path);
    backToText();
}

void save() {
    if (state.file.empty()) return saveAs();
    saveTo(state.file);
    backToText();
}

void print() {
    constexpr int ALL_TEXT = 0, STYLE = 2, POINTS = 12;
    owPrintTextWidget(area(), ALL_TEXT, STYLE, POINTS);
    backToText();
}

void undo() {
    owTextUndoAction(area(), OUNDO);
    backToText();
}

void redo() {
    owTextUndoAction(area(), OREDO);
    backToText();
}

void clipboard() {
    const int command = dialogue::sender();
    if (command != TEXT_PASTE)
        owCopyTextToClipboard(area(), command == TEXT_CUT ? OCUT : OCOPY);
    else if (owEnqClipboardStatus(OPLAINTEXT))
        owCopyTextToClipboard(area(), OPASTE);
    backToText();
}

// ---- Menus and bars

void accept() { text_editor::accept(RICH); }
void cancel() { text_editor::cancel(RICH); }

struct EntryRow {
    const char* label; // null: a separator; a title of the bar when it sends nothing
    char mnemonic = 0;
    int command = 0;
    const char* help = "";
    const char* icon = "";
};
constexpr EntryRow RULE = {nullptr};

// clang-format off
constexpr EntryRow MENUS[] = {
    {"File", 'F'},
    {"Open", 'O', TEXT_OPEN, "Open Text Document from file", "fileopen&"},
    {"Save", 'S', TEXT_SAVE, "Save Text Document to File", "save&"},
    {"Save As...", 'A', TEXT_SAVE_AS, "Save Text Document as a new File", "saveas&"},
    {"Print...", 'P', TEXT_PRINT, "Print Text Document", "print&"},
    RULE,
    {"Cancel", 'C', TEXT_CANCEL, "Abandon Text Editor"},
    RULE,
    {"Apply and Exit", 'x', TEXT_OK, "Exit Text Editor"},
    {"Edit", 'E'},
    {"Undo|Ctrl+Z", 'U', TEXT_UNDO, "Undo the last change", "undo&"},
    {"Redo|Ctrl+Y", 'd', TEXT_REDO, "", "redo&"},
    {"Justification", 'J'},
    {"Left", 'L', TEXT_LEFT, "Left Justify Paragraph", "mstd1012"},
    {"Centre", 'C', TEXT_CENTRE, "Centre Justify Paragraph", "mstd1013"},
    {"Right", 'R', TEXT_RIGHT, "Right Justify Paragraph", "mstd1014"},
    {"Justified", 'J', TEXT_JUSTIFIED, "Justified Paragraph", "mstd1015"},
    {"Indentation", 'I'},
    {"Left Indent", 'L', TEXT_LEFT_INDENT, "Left Indent Entire Paragraph"},
    {"First Line Indent", 'F', TEXT_FIRST_INDENT, "Left Indent First Line of Paragraph"},
    {"Right Indent", 'R', TEXT_RIGHT_INDENT, "Right Indent Paragraph"},
    {"Effects", 'f'},
    {"Normal Text", 'N', TEXT_NORMAL, "Normal non-bulleted text"},
    {"Bullet", 'B', TEXT_BULLET, "Bulleted Text"},
};

constexpr EntryRow FORMAT_BUTTONS[] = {
    {"msml1020", 0, TEXT_COLOUR, "Colour Selector"},
    RULE,
    {"cut&", 0, TEXT_CUT, "Cut to Clipboard"},
    {"copy&", 0, TEXT_COPY, "Copy to Clipboard"},
    {"paste&", 0, TEXT_PASTE, "Paste from Clipboard"},
};
constexpr EntryRow STYLE_BUTTONS[] = {
    {"mstd1012", 0, TEXT_LEFT, "Left Justify Paragraph"},
    {"mstd1013", 0, TEXT_CENTRE, "Centre Justify Paragraph"},
    {"mstd1014", 0, TEXT_RIGHT, "Right Justify Paragraph"},
    {"mstd1015", 0, TEXT_JUSTIFIED, "Justified Paragraph"},
    RULE,
    {"mstd1009", 0, TEXT_BOLD, "Bold Selected Text"},
    {"mstd1010", 0, TEXT_ITALIC, "Italicize Selected Text"},
    {"mstd1011", 0, TEXT_UNDERLINE, "Underline Selected Text"},
};

constexpr DialogueCommand COMMANDS[] = {
    {TEXT_CANCEL, cancel}, {TEXT_OK, accept}, {TEXT_OPEN, openFile}, {TEXT_SAVE, save}, {TEXT_SAVE_AS, saveAs},
    {TEXT_PRINT, print}, {TEXT_UNDO, undo}, {TEXT_REDO, redo}, {TEXT_LEFT, setParagraph}, {TEXT_CENTRE, setParagraph},
    {TEXT_RIGHT, setParagraph}, {TEXT_JUSTIFIED, setParagraph}, {TEXT_LEFT_INDENT, setParagraph},
    {TEXT_FIRST_INDENT, setParagraph}, {TEXT_RIGHT_INDENT, setParagraph}, {TEXT_NORMAL, setParagraph},
    {TEXT_BULLET, setParagraph}, {TEXT_FONT, setFace}, {TEXT_SIZE, setSize}, {TEXT_COLOUR, setColour},
    {TEXT_BOLD, setFont}, {TEXT_ITALIC, setFont}, {TEXT_UNDERLINE, setFont}, {TEXT_CUT, clipboard},
    {TEXT_COPY, clipboard}, {TEXT_PASTE, clipboard}, {TEXT_STATE, showState},
};
// clang-format on

void makeMenus(int window) {
    const int bar = owCreateMenuBar(window);
    int menu = bar;
    for (const EntryRow& row : MENUS) {
        if (!row.label) {
            owCreateMenuSeparator(menu);
            continue;
        }
        const int parent = row.command ? menu : bar;
        const int entry = owCreateMenuEntry(parent, row.label, owAccel, row.mnemonic, owHelp, row.help, owCallback,
                                            row.command, owUncheckIcon, owGetIconResource(row.icon), 0);
        if (row.command)
            state.widgets[row.command].push_back(entry);
        else
            menu = owCreatePullDownMenu(entry);
    }
}

constexpr int BAR_HEIGHT = 22, SEPARATOR_TYPE = 5;

void makeButtons(int bar, std::span<const EntryRow> rows) {
    for (const EntryRow& row : rows) {
        if (!row.label)
            owCreateToolBarSeparator(bar, owSeparatorType, SEPARATOR_TYPE);
        else
            state.widgets[row.command].push_back(owCreateToolBarButton(
                bar, OICONBUTTON, row.label, owIconType, OMOUSESENSITIVE, owHelp, row.help, owCallback, row.command));
    }
}

void makeFormatBar(int window) {
    constexpr int FONTS_WIDTH = 150, SIZES_WIDTH = 60, LIST_HEIGHT = 200;
    const int bar = owCreateToolBar(window, OTOP, BAR_HEIGHT, owTitle, "Text Format Toolbar");
    state.font = owCreateComboBox(bar, 0, 0, FONTS_WIDTH, LIST_HEIGHT, OFONTS, ODISPLAY, owCallback, TEXT_FONT, 0);
    state.size = owCreateComboBox(bar, 0, 0, SIZES_WIDTH, LIST_HEIGHT, ONONE, OEDIT, owCallback, TEXT_SIZE, 0);
    state.sizes = {6, 8, 10, 12, 14, 16, 18, 24, 32, 48, 72};
    for (const int size : state.sizes)
        owSetListEntry(state.size, OADD, owString, ((size < 10 ? "  " : " ") + std::to_string(size)).c_str(), 0);
    makeButtons(bar, FORMAT_BUTTONS);
}

void fill() {
    state = {};
    const int window = dialogue::window(TEXT_AREA);
    makeMenus(window);
    makeFormatBar(window);
    makeButtons(owCreateToolBar(window, OTOP, BAR_HEIGHT, owTitle, "Text Style Toolbar"), STYLE_BUTTONS);
    constexpr int PANES = 4;
    constexpr int EDGES[PANES] = {100, 170, 250, -1};
    state.statusBar = owCreateStatusBar(window, owPanes, PANES, owSizes, EDGES, 0);
    if (const WidgetNode* node = text_editor::edited()) owSetTextSetting(area(), node->text.c_str(), owEntryType, 1, 0);
    owDefineSelectCallback(area(), TEXT_STATE);
    owDefineChangeCallback(area(), TEXT_STATE);
    showState();
}

constexpr Control CONTROLS[] = {
    {.field = Field::RichArea,
     .id = TEXT_AREA,
     .width = 200,
     .height = 100,
     .length = 32767,
     .hpos = OCENTRE,
     .vpos = OMIDDLE,
     .expand = 1},
};

constexpr int CTRL_B = 2, CTRL_U = 21, CTRL_S = 19;
const DialogueKey KEYS[] = {{.key = CTRL_B, .pressed = [] { flipFont(TEXT_BOLD); }},
                            {.key = CTRL_U, .pressed = [] { flipFont(TEXT_UNDERLINE); }},
                            {.key = CTRL_S, .pressed = save}};

const Dialogue RICH = {.title = NEW_TITLE,
                       .icon = "Text",
                       .help = "Text Editor",
                       .width = 430,
                       .height = 300,
                       .windowEvent = TEXT_WINDOW,
                       .controls = CONTROLS,
                       .commands = COMMANDS,
                       .cancel = TEXT_CANCEL,
                       .first = TEXT_AREA,
                       .fill = fill,
                       .placed = [] { text_editor::storePlace(RICH); },
                       .keys = KEYS,
                       .resizable = true};

} // namespace

void openRichTextEditor(WidgetNode& text) {
    text_editor::start(text);
    text_editor::openAtPlace(RICH);
}
