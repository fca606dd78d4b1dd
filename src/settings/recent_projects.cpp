#include "settings/recent_projects.h"

#include "menu-c.h"
#include "platform/text_files.h"
#include "settings/places.h"

#include <sstream>
#include <vector>

static const char FILE_NAME[] = "wdesign.lst";
static constexpr std::size_t LINE_LIMIT = 254; // bytes of a path; a line with its end has one more

static std::vector<std::string> paths; // as the menu shows them
static std::vector<int> menuHandles;   // the separator and the entries

// False when there is no list.
static bool readList(std::vector<std::string>& lines) {
    std::string text;
    if (settingsPlaces.dataDir.empty() || !readTextFile(settingsFileToWrite(FILE_NAME), text)) return false;
    std::istringstream stream(text);
    std::string line;
    while (lines.size() < RECENT_PROJECTS && std::getline(stream, line))
        if (!line.empty()) lines.push_back(line.substr(0, LINE_LIMIT));
    return true;
}

void loadRecentProjects(int menu) {
    paths.clear();
    menuHandles.clear();
    if (!readList(paths)) return;
    menuHandles.push_back(owCreateMenuSeparator(menu));
    for (std::size_t row = 0; row < paths.size(); row++) {
        const std::string digit = std::to_string(row + 1);
        menuHandles.push_back(owCreateMenuEntry(menu, (digit + " " + paths[row]).c_str(), owAccel, digit[0], owCallback,
                                                RECENT_CALLBACK + static_cast<int>(row), 0));
    }
}

static void eraseEntries() {
    for (const int handle : menuHandles) owEraseWidget(handle);
    menuHandles.clear();
    paths.clear();
}

void addRecentProject(int menu, const std::string& path) {
    if (settingsPlaces.dataDir.empty()) return;
    std::vector<std::string> lines = {path.substr(0, LINE_LIMIT)};
    std::vector<std::string> olds;
    readList(olds);
    for (const std::string& old : olds)
        if (old != lines.front() && lines.size() < RECENT_PROJECTS) lines.push_back(old);
    std::string text;
    for (const std::string& line : lines) text += line + '\n';
    writeTextFile(settingsFileToWrite(FILE_NAME), text);
    eraseEntries();
    loadRecentProjects(menu);
}

std::string recentProject(int index) {
    return index >= 0 && index < static_cast<int>(paths.size()) ? paths[static_cast<std::size_t>(index)]
                                                                : std::string();
}
