// The Source Code Viewer: the generated source in a window of its own, read only.

#include "codegen/generate.h"
#include "editing/commands.h"
#include "editing/text_view.h"
#include "menu-c.h"
#include "project/host.h"
#include "project/language.h"
#include "project/preferences.h"
#include "surface/event.h"
#include "surface/hooks.h"
#include "surface/window_states.h"

#include <algorithm>
#include <string>

namespace {

constexpr int FOOT_HEIGHT = 26, PANES = 4, FREE_CORNER = 80;
const int PANE_SIZES[PANES] = {300, 400, 500, -1};

struct Viewer {
    int window = 0;
    int text = 0;
    int lineEntry = 0;
    int statusBar = 0;
    int findNext = 0;   // menu entry
    std::string wanted; // text looked for last
} viewer;

struct ViewerEntry {
    const char* label; // null ends a pull-down
    int command;
};
struct ViewerMenu {
    const char* label;
    ViewerEntry entries[6];
};
const ViewerMenu MENUS[] = {
    {"File", {{"Print", CMD_VIEWER_PRINT}, {"Exit", CMD_VIEWER_EXIT}}},
    {"Edit",
     {{"Copy|Ctrl+C", CMD_VIEWER_COPY},
      {"Select All|Ctrl+A", CMD_VIEWER_SELECT_ALL},
      {"Find|Ctrl+F", CMD_VIEWER_FIND},
      {"Find Next|F3", CMD_VIEWER_FIND_NEXT}}},
    {"Help",
     {{"ORBAWIDG Designer Help Topics", CMD_HELP_DESIGNER},
      {"ORBAWIDG Help Topics", CMD_HELP_TOOLKIT},
      {"ORBA Help Topics", CMD_HELP_BASE},
      {"ORBAPLOT Help Topics", CMD_HELP_PLOT},
      {"ORBAMESH Help Topics", CMD_HELP_MESH}}},
};

constexpr int KEY_CTRL_A = 1, KEY_CTRL_C = 3, KEY_CTRL_F = 6, KEY_F3 = OKEYF1 + 2;

// Brings the file up to date as far as the user wishes; false when the command ends here.
bool prepareSource() {
    hooks.commitEditor();
    if (project.sourceName.empty()) return hooks.generateSource();
    if (!project.sourceStale) return true;
    const int answer =
        host.messageBox("Save Source Code", "Do you wish to save the latest changes?", BOX_QUESTION, BOX_YES_NO_CANCEL);
    if (answer == ANSWER_YES) return hooks.generateSource();
    return answer == ANSWER_NO;
}

int showLoading() {
    const int window = owCreateComplexDialogueBox(1, 400, 400, 200, 80, OTITLE, "Loading", owVpos, OTOP, 0);
    owCreateTextEntry(window, 0, 0, 200, 80, "Loading File - Please Wait...", NAME_LIMIT, ODISPLAY, owVpos, OMIDDLE,
                      owHpos, OCENTRE, owExpand, 1, owJustify, OCENTRE, 0);
    owDrawWindow(window, 1);
    return window;
}

void makeMenus() {
    const int bar = owCreateMenuBar(viewer.window);
    for (const ViewerMenu& menu : MENUS) {
        const int entry = owCreateMenuEntry(bar, menu.label, owAccel, menu.label[0], 0);
        const int pullDown = owCreatePullDownMenu(entry);
        for (const ViewerEntry& row : menu.entries) {
            if (!row.label) break;
            const int handle = owCreateMenuEntry(pullDown, row.label, owCallback, row.command, 0);
            if (row.command == CMD_VIEWER_FIND_NEXT) viewer.findNext = handle;
        }
    }
    owSetWidgetStatus(viewer.findNext, OUNSELECTABLE);
}

void makeFoot(int width) {
    const int foot = owCreatePanel(viewer.window, 0, 0, width, FOOT_HEIGHT, owVpos, OBOTTOM, owHpos, OCENTRE, owExpand,
                                   1, owBorderType, ONOBOUNDARY, 0);
    owCreateTextEntry(foot, 5, 2, 132, 22, "Goto Line Number:", NAME_LIMIT, ODISPLAY, 0);
    viewer.lineEntry = owCreateValueEntry(foot, 140, 2, 60, 22, 1.0, 5, 0, OEDIT, owCallback, CMD_VIEWER_GOTO, 0);
    owCreatePushButton(foot, 4, 2, 75, 22, "OK", owHpos, ORIGHT, owCallback, CMD_VIEWER_EXIT, 0);
}

void dressText() {
    owSetFontAttribs(viewer.text, owFontFace, "Courier New", owPointSize, preferences.codePointSize, 0);
    if (preferences.syntaxColours)
        owSetSyntaxHighlighting(viewer.text, 1, owLanguage, languageOfProject().syntaxLanguage, 0);
}

void showPosition() {
    const int caret = selectionOf(viewer.text).end;
    const std::string line = "Line: " + std::to_string(lineOf(viewer.text, -1));
    const std::string column = "Column: " + std::to_string(caret - std::max(caretLineStart(viewer.text), 1) + 1);
    owSetStatusBarText(viewer.statusBar, PANE_LINE, line.c_str());
    owSetStatusBarText(viewer.statusBar, PANE_COLUMN, column.c_str());
}

void makeViewer(const std::string& path) {
    const WindowState& place = windowStates[WINDOW_CODE_EDITOR];
    // A docked editor has no place of its own on the screen.
    const int left = std::max(place.x, FREE_CORNER), top = std::max(place.y, FREE_CORNER);
    const int width = std::max(place.width, 640), height = std::max(place.height, 480);
    const std::string title = "Source Code Viewer - [" + path + " - ReadOnly]";
    viewer.window =
        owCreateComplexDialogueBox(1, left, top, width, height, OALL, title.c_str(), owVpos, OTOP, owIconFile, "Called",
                                   owIconFormat, ODLLICON, owQuitMode, OLEAVE, owCallback, CMD_VIEWER_WINDOW, 0);
    makeMenus();
    viewer.statusBar = owCreateStatusBar(viewer.window, owPanes, PANES, owSizes, PANE_SIZES, 0);
    makeFoot(width);
    constexpr int UNLIMITED = 2147483646;
    viewer.text = owCreateTextEntry(viewer.window, 0, 0, width, height, "", UNLIMITED, OEDIT, owEntryType, ORICHEDIT,
                                    owReadOnly, 1, owWordWrap, 0, owScrollMode, OBOTHBARS, owVpos, OMIDDLE, owHpos,
                                    OCENTRE, owExpand, 1, owSelectCallback, CMD_VIEWER_CARET, 0);
    owGetTextFromFile(viewer.text, path.c_str(), 0);
    dressText();
    moveCaret(viewer.text, 1);
}

// Copy and Select All act on the text; a field keeps these keys for itself.
void bindKeys() {
    owDefineWidgetKeyCallback(viewer.text, KEY_CTRL_C, CMD_VIEWER_COPY);
    owDefineWidgetKeyCallback(viewer.text, KEY_CTRL_A, CMD_VIEWER_SELECT_ALL);
    owDefineWidgetKeyCallback(viewer.window, KEY_CTRL_F, CMD_VIEWER_FIND);
    owDefineWidgetKeyCallback(viewer.window, KEY_F3,
                              viewer.wanted.empty() ? 0 : static_cast<int>(CMD_VIEWER_FIND_NEXT));
}

void closeViewer() {
    if (!viewer.window) return;
    owRemoveWindow(viewer.window);
    owEraseWidget(viewer.window);
    viewer = {};
    hooks.giveInputBack();
}

void find() {
    char wanted[NAME_LIMIT + 1] = "";
    wanted[viewer.wanted.copy(wanted, NAME_LIMIT)] = 0;
    owFindTextDialogue(viewer.text, wanted, sizeof wanted);
    viewer.wanted = wanted;
    owSetWidgetStatus(viewer.findNext, viewer.wanted.empty() ? OUNSELECTABLE : OSELECTABLE);
    showPosition();
    bindKeys();
}

void findNext() {
    if (viewer.wanted.empty()) return;
    const TextRange range = selectionOf(viewer.text);
    int found = owFindText(viewer.text, range.end, viewer.wanted.c_str(), 0);
    if (found <= 0) found = owFindText(viewer.text, 1, viewer.wanted.c_str(), 0); // goes on at the top
    if (found > 0) select(viewer.text, {found, found + characters(viewer.wanted)});
    showPosition();
}

void goToLine() {
    float line = 1;
    owEnqValueSetting(viewer.lineEntry, &line);
    const int start = lineStart(viewer.text, std::max(static_cast<int>(line), 1) - 1);
    moveCaret(viewer.text, start > 0 ? start : textLength(viewer.text) + 1);
    owSetActiveWidget(viewer.text);
    showPosition();
}

void sourceViewerCommand() {
    if (!prepareSource() || project.sourceName.empty()) return;
    closeViewer();
    const int loading = showLoading();
    makeViewer(sourcePath());
    owRemoveWindow(loading);
    owEraseWidget(loading);
    owDrawWindow(viewer.window, 1);
    owSetActiveWidget(viewer.text);
    bindKeys();
    showPosition();
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_SOURCE_VIEWER, .label = "Source Code", .mnemonic = 'S', .when = OPENS_WINDOW, .handler = sourceViewerCommand},
    {.id = CMD_VIEWER_EXIT, .handler = closeViewer},
    {.id = CMD_VIEWER_PRINT, .handler = [] { owPrintTextWidget(viewer.text, 0, 0, 10); }},
    {.id = CMD_VIEWER_COPY, .handler = [] { owCopyTextToClipboard(viewer.text, OCOPY); }},
    {.id = CMD_VIEWER_SELECT_ALL, .handler = [] { select(viewer.text, {1, -1}); }},
    {.id = CMD_VIEWER_FIND, .handler = find},
    {.id = CMD_VIEWER_FIND_NEXT, .handler = findNext},
    {.id = CMD_VIEWER_WINDOW, .handler = [] { if (action.status == OCLOSED) closeViewer(); }},
    {.id = CMD_VIEWER_CARET, .handler = showPosition},
    {.id = CMD_VIEWER_GOTO, .handler = goToLine},
};
// clang-format on

} // namespace

std::span<const Command> sourceViewerCommands() { return COMMANDS; }
