#include "settings/window_states.h"

#include "menu-c.h"
#include "platform/paths.h"
#include "platform/text_files.h"
#include "project/host.h"
#include "project/preferences.h"
#include "settings/places.h"
#include "surface/window_states.h"

#include <cstdio>
#include <memory>
#include <string>

static const char FILE_NAME[] = "wdesign.ini";

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

enum WindowKind { KIND_WINDOW, KIND_PANE, KIND_BAR };

struct WindowRowInfo {
    WindowRow row;
    WindowKind kind;
    WindowState fallback; // -1 as size of the master window: what the screen leaves
};

static constexpr WindowRowInfo ROWS[] = {
    {WINDOW_MASTER, KIND_WINDOW, {4, 42, -1, -1, 4}},
    {WINDOW_PROPERTIES, KIND_PANE, {0, 0, 235, 513, POSITION_RIGHT}},
    {WINDOW_HIERARCHY, KIND_PANE, {0, 0, 150, 513, POSITION_LEFT}},
    {WINDOW_CODE_EDITOR, KIND_PANE, {0, 0, 560, 462, POSITION_LEFT}},
    {WINDOW_TEXT_EDITOR, KIND_WINDOW, {0, 0, 430, 300, 32}},
    {WINDOW_ICON_BAR, KIND_BAR, {0, 0, 1000, 0, POSITION_TOP}},
    {WINDOW_TOOL_BOX, KIND_BAR, {0, 0, 1000, 0, POSITION_TOP}},
    {WINDOW_COMPILER_LOG, KIND_PANE, {0, 0, 800, 119, POSITION_BOTTOM}},
};
static constexpr bool rowsMatch() {
    for (int row = 0; row < WINDOW_ROWS; row++)
        if (ROWS[row].row != row) return false;
    return true;
}
static_assert(sizeof ROWS / sizeof *ROWS == WINDOW_ROWS && rowsMatch());

static WindowState fallbackOf(const WindowRowInfo& info, int screenWidth, int screenHeight) {
    WindowState state = info.fallback;
    if (info.row == WINDOW_MASTER) {
        state.width = screenWidth - 8;
        state.height = screenHeight - 90;
    }
    return state;
}

// One line from where the last scan stopped, whether that one succeeded or not.
static bool scanRow(std::FILE* file, WindowRow row, WindowState& state) {
    int pointSize = 0; // stored for the editor's line, but the preferences hold the value in force
    if (row == WINDOW_CODE_EDITOR)
        return std::fscanf(file, "%6d %6d %6d %6d %3d %3d", &state.x, &state.y, &state.width, &state.height,
                           &state.state, &pointSize) == 6;
    return std::fscanf(file, "%6d %6d %6d %6d %3d", &state.x, &state.y, &state.width, &state.height, &state.state) == 5;
}

static void pullInsideScreen(WindowState& state, WindowKind kind, int screenWidth, int screenHeight) {
    if (kind != KIND_BAR && state.x < 0) state.x = 0;
    if (state.y < 0) state.y = 0;
    if (kind != KIND_BAR && state.x + state.width > screenWidth) state.x = screenWidth - state.width;
    if (state.y + state.height > screenHeight) state.y = screenHeight - state.height;
}

void loadWindowStates(int screenWidth, int screenHeight) {
    const File file(std::fopen(settingsFileToRead(FILE_NAME).c_str(), "r"), std::fclose);
    for (const WindowRowInfo& info : ROWS) {
        WindowState state;
        if (file && scanRow(file.get(), info.row, state))
            pullInsideScreen(state, info.kind, screenWidth, screenHeight);
        else
            state = fallbackOf(info, screenWidth, screenHeight);
        state.handle = windowStates[info.row].handle;
        windowStates[info.row] = state;
    }
}

// Brings a row up to date from its live window. The rows of the master window and of the Text Editor follow their own
// events, so they hold what is to be stored.
static void readLiveWindow(WindowState& state, WindowKind kind) {
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

static std::string rowText(WindowRow row, const WindowState& state) {
    char line[128];
    int length = std::snprintf(line, sizeof line, "%6d %6d %6d %6d %3d", state.x, state.y, state.width, state.height,
                               state.state);
    if (row == WINDOW_CODE_EDITOR)
        length += std::snprintf(line + length, sizeof line - static_cast<std::size_t>(length), " %3d",
                                preferences.codePointSize);
    return std::string(line, static_cast<std::size_t>(length)) + '\n';
}

void saveWindowStates() {
    for (const WindowRowInfo& info : ROWS) readLiveWindow(windowStates[info.row], info.kind);
    std::string text;
    for (const WindowRowInfo& info : ROWS) text += rowText(info.row, windowStates[info.row]);
    if (!writeTextFile(settingsFileToWrite(FILE_NAME), text))
        host.infoBox("Save Window States", "Cannot open wdesign.ini to save window states");
}

void deleteWindowStates() { removeFile(settingsFileToRead(FILE_NAME)); }
