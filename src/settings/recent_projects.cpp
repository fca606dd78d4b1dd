#include "settings/recent_projects.h"

#include "menu-c.h"
#include "settings/places.h"

#include <fstream>
#include <vector>

static const char FILE_NAME[] = "wdesign.lst";
static constexpr std::size_t LINE_LIMIT = 254; // bytes of a path; a line with its end has one more

static std::vector<std::string> paths; // as the menu shows them
static std::vector<int> menuHandles;   // the separator and the entries

static std::vector<std::string> readList() {
    std::vector<std::string> lines;
    std::ifstream file(settingsFileToWrite(FILE_NAME));
    std::string line;
    while (lines.size() < RECENT_PROJECTS && std::getline(file, line))
        if (!line.empty()) lines.push_back(line.substr(0, LINE_LIMIT));
    return lines;
}

static bool listExists() {
    return !settingsPlaces.dataDir.empty() && std::ifstream(settingsFileToWrite(FILE_NAME)).good();
}

void loadRecentProjects(int menu) {
    if (!listExists()) return;
    paths = readList();
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
    for (const std::string& old : readList())
        if (old != lines.front() && lines.size() < RECENT_PROJECTS) lines.push_back(old);
    {
        std::ofstream file(settingsFileToWrite(FILE_NAME), std::ios::trunc);
        for (const std::string& line : lines) file << line << '\n';
    }
    eraseEntries();
    loadRecentProjects(menu);
}

std::string recentProject(int index) {
    return index >= 0 && index < static_cast<int>(paths.size()) ? paths[static_cast<std::size_t>(index)]
                                                                : std::string();
}
