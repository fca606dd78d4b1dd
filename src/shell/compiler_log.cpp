#include "shell/compiler_log.h"

#include "compile/log.h"
#include "editing/modes.h"
#include "menu-c.h"
#include "project/preferences.h"
#include "shell/commands.h"
#include "surface/event.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr int LOG_CAPACITY = 2500; // lines that the list holds

int logList = 0;
void (*lineChosen)(int line) = nullptr; // null: the compiler's messages
int lineCount = 0;

} // namespace

void buildCompilerLog(int pane) {
    logList = owCreateListBox(pane, 0, 0, 800, 119, ONONE, owHpos, OCENTRE, owVpos, OMIDDLE, owExpand, 1, owCapacity,
                              LOG_CAPACITY, owCallback, CMD_LOG_LINE, owDoubleClickCallback, CMD_LOG_PLACE, 0);
    setLogFont();
}

int logWidget() { return logList; }

void clearLog() {
    lineChosen = nullptr;
    lineCount = 0;
    owSetListEntry(logList, OCLEAR, 0);
}

void appendLogLine(const std::string& line) { owSetListEntry(logList, OADD, owString, line.c_str(), 0); }

void setLogLines(const std::vector<std::string>& lines) {
    clearLog();
    for (const std::string& line : lines) appendLogLine(line);
}

void showLogLines(const std::vector<std::string>& lines, void (*chosen)(int)) {
    setLogLines({lines.begin(), lines.begin() + std::min<std::ptrdiff_t>(std::ssize(lines), LOG_CAPACITY)});
    lineCount = static_cast<int>(std::min<std::ptrdiff_t>(std::ssize(lines), LOG_CAPACITY));
    lineChosen = chosen;
}

bool stepInLog(int step) {
    if (!lineChosen) return false;
    const int line = currentLogLine() + step;
    if (line < 1 || line > lineCount) return true;
    selectLogLine(line);
    lineChosen(line);
    return true;
}

void selectLogLine(int line) { owSetListEntry(logList, OSELECT, owEntry, line, 0); }

int currentLogLine() {
    int count = 0, selected = 0, current = 0;
    owEnqListStatus(logList, &count, &selected, &current);
    return current;
}

void setLogFont() {
    owSetFontAttribs(logList, owFontFace, "Courier New", owPointSize, preferences.codePointSize, 0);
    owDrawWidget(logList);
}

namespace {

void logPlaceCommand() {
    const int line = currentLogLine();
    if (line <= 0) return;
    lineChosen ? lineChosen(line) : logEntryChosen(line);
}

// Who walks through the log with the keys goes on doing so.
void logLineCommand() {
    const bool chosen = action.key == OKEYLEFTBUTTON || action.key == OKEYRETURN;
    logPlaceCommand();
    if (!chosen) owSetActiveWidget(logList);
}

void printErrorsCommand() {
    owPrintTextWidget(logList, 0, 0, preferences.codePointSize);
    enterTextMode();
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_PRINT_ERRORS, .label = "Print Errors...", .mnemonic = 'E', .when = STARTS_DISABLED, .handler = printErrorsCommand},
    {.id = CMD_LOG_PLACE, .handler = logPlaceCommand},
    {.id = CMD_LOG_LINE, .handler = logLineCommand},
};
// clang-format on

} // namespace

std::span<const Command> logCommands() { return COMMANDS; }
