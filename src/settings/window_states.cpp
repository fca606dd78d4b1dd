#include "settings/window_states.h"

#include "menu-c.h"
#include "platform/paths.h"
#include "platform/text_files.h"
#include "project/host.h"
#include "project/preferences.h"
#include "settings/places.h"
#include "surface/window_states.h"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace {

const char FILE_NAME[] = "wdesign.ini";

enum WindowKind { KIND_WINDOW, KIND_PANE, KIND_BAR };

struct WindowRowInfo {
    WindowRow row;
    WindowKind kind;
    WindowState fallback; // -1 as size of the master window: what the screen leaves
};

constexpr WindowRowInfo ROWS[] = {
    {WINDOW_MASTER, KIND_WINDOW, {4, 42, -1, -1, 4}},
    {WINDOW_PROPERTIES, KIND_PANE, {0, 0, 235, 513, POSITION_RIGHT}},
    {WINDOW_HIERARCHY, KIND_PANE, {0, 0, 150, 513, POSITION_LEFT}},
    {WINDOW_CODE_EDITOR, KIND_PANE, {0, 0, 560, 462, POSITION_LEFT}},
    {WINDOW_TEXT_EDITOR, KIND_WINDOW, {0, 0, 430, 300, 32}},
    {WINDOW_ICON_BAR, KIND_BAR, {0, 0, 1000, 0, POSITION_TOP}},
    {WINDOW_TOOL_BOX, KIND_BAR, {0, 0, 1000, 0, POSITION_TOP}},
    {WINDOW_COMPILER_LOG, KIND_PANE, {0, 0, 800, 119, POSITION_BOTTOM}},
};
constexpr bool rowsMatch() {
    for (int row = 0; row < WINDOW_ROWS; row++)
        if (ROWS[row].row != row) return false;
    return true;
}
static_assert(sizeof ROWS / sizeof *ROWS == WINDOW_ROWS && rowsMatch());

WindowState fallbackOf(const WindowRowInfo& info, int screenWidth, int screenHeight) {
    WindowState state = info.fallback;
    if (info.row == WINDOW_MASTER) {
        state.width = screenWidth - 8;
        state.height = screenHeight - 90;
    }
    return state;
}

// ---- Reading ----

constexpr int LARGEST_NUMBER = 999999; // that a row can hold
constexpr std::size_t FILE_LIMIT = 1 << 16;

using Row = std::vector<int>;

// The numbers of a line; nothing when something else stands there.
std::optional<Row> numbersOf(const std::string& line) {
    std::istringstream words(line);
    Row numbers;
    std::string word;
    while (words >> word) {
        std::size_t used = 0;
        const bool digits = word.size() <= 8 && word.find_first_not_of("0123456789", word[0] == '-') == word.npos;
        const int number = digits && word != "-" ? std::stoi(word, &used) : 0;
        if (used == 0 || number < -LARGEST_NUMBER || number > LARGEST_NUMBER) return std::nullopt;
        numbers.push_back(number);
    }
    return numbers;
}

// The editor's row ends with the size of the code font; the preferences hold the one in force.
std::size_t numbersIn(WindowRow row) { return row == WINDOW_CODE_EDITOR ? 6 : 5; }

// A row stands on its line, so that one that is damaged costs no other. In a file of numbers alone the lines may be
// broken anywhere, if they come to all the rows.
std::vector<Row> readRows() {
    std::vector<Row> rows;
    std::string text, line;
    readTextFile(settingsFileToRead(FILE_NAME), text, FILE_LIMIT);
    std::size_t wanted = 0;
    for (const WindowRowInfo& info : ROWS) wanted += numbersIn(info.row);
    const std::optional<Row> all = numbersOf(text);
    if (all && all->size() == wanted) {
        auto next = all->begin();
        for (const WindowRowInfo& info : ROWS) {
            const auto count = static_cast<std::ptrdiff_t>(numbersIn(info.row));
            rows.emplace_back(next, next + count);
            next += count;
        }
        return rows;
    }
    std::istringstream lines(text);
    while (rows.size() < WINDOW_ROWS && std::getline(lines, line)) rows.push_back(numbersOf(line).value_or(Row()));
    return rows;
}

bool knownState(int state, WindowKind kind) {
    return kind == KIND_WINDOW ? state >= 0 : state >= POSITION_BOTTOM && state <= POSITION_FLOATING;
}

// False when the row cannot be shown.
bool takeRow(const Row& row, const WindowRowInfo& info, WindowState& state) {
    if (row.size() < numbersIn(info.row)) return false;
    state = {.x = row[0], .y = row[1], .width = row[2], .height = row[3], .state = row[4]};
    const bool sized = state.width > 0 && (info.kind == KIND_BAR ? state.height >= 0 : state.height > 0);
    return sized && knownState(state.state, info.kind);
}

// A window is as large as the screen at most, and then stands inside it.
void pullInsideScreen(WindowState& state, WindowKind kind, int screenWidth, int screenHeight) {
    state.width = std::min(state.width, screenWidth);
    state.height = std::min(state.height, screenHeight);
    if (kind != KIND_BAR) state.x = std::clamp(state.x, 0, screenWidth - state.width);
    state.y = std::clamp(state.y, 0, screenHeight - state.height);
}

} // namespace

void loadWindowStates(int screenWidth, int screenHeight) {
    const std::vector<Row> rows = readRows();
    for (const WindowRowInfo& info : ROWS) {
        WindowState state;
        const auto at = static_cast<std::size_t>(info.row);
        if (at < rows.size() && takeRow(rows[at], info, state))
            pullInsideScreen(state, info.kind, screenWidth, screenHeight);
        else
            state = fallbackOf(info, screenWidth, screenHeight);
        state.handle = windowStates[info.row].handle;
        windowStates[info.row] = state;
    }
}

// ---- Writing ----

namespace {

// Brings a row up to date from its live window. The rows of the master window and of the Text Editor follow their own
// events, so they hold what is to be stored.
void readLiveWindow(WindowState& state, WindowKind kind) {
    if (state.handle == 0) return;
    if (kind == KIND_BAR) {
        owEnqToolbarPos(state.handle, &state.x, &state.y, &state.width, &state.state);
        return;
    }
    if (kind == KIND_PANE) {
        int dockedWidth = 0, dockedHeight = 0, floatWidth = 0, floatHeight = 0;
        owEnqPanePos(state.handle, &state.x, &state.y, &dockedWidth, &dockedHeight, &floatWidth, &floatHeight,
                     &state.state);
        const bool floating = state.state == POSITION_FLOATING;
        state.width = floating ? floatWidth : dockedWidth;
        state.height = floating ? floatHeight : dockedHeight;
    }
}

std::string rowText(WindowRow row, const WindowState& state) {
    char line[128];
    int length = std::snprintf(line, sizeof line, "%6d %6d %6d %6d %3d", state.x, state.y, state.width, state.height,
                               state.state);
    if (row == WINDOW_CODE_EDITOR)
        length += std::snprintf(line + length, sizeof line - static_cast<std::size_t>(length), " %3d",
                                preferences.codePointSize);
    return std::string(line, static_cast<std::size_t>(length)) + '\n';
}

} // namespace

void saveWindowStates() {
    for (const WindowRowInfo& info : ROWS) readLiveWindow(windowStates[info.row], info.kind);
    std::string text;
    for (const WindowRowInfo& info : ROWS) text += rowText(info.row, windowStates[info.row]);
    if (!writeSettingsFile(FILE_NAME, text))
        host.infoBox("Save Window States", "Cannot open wdesign.ini to save window states");
}

void deleteWindowStates() { removeFile(settingsFileToRead(FILE_NAME)); }
