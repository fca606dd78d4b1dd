#include "settings/recent_projects.h"

#include "menu-c.h"
#include "platform/paths.h"
#include "platform/text_files.h"
#include "settings/places.h"

#include <algorithm>
#include <sstream>
#include <vector>

namespace {

const char FILE_NAME[] = "wdesign.lst";
constexpr std::size_t LINE_LIMIT = 254; // bytes of a path; a line with its end has one more

std::vector<std::string> paths; // as the menu shows them
std::vector<int> menuHandles;   // the separator and the entries

// A row that names a project from wherever the designer is started. A path that is cut would name another file.
bool usable(const std::string& line) {
    const bool plain = std::none_of(line.begin(), line.end(), [](unsigned char c) { return c < ' '; });
    return plain && line.size() <= LINE_LIMIT && isAbsolutePath(line);
}

// False when there is no list.
bool readList(std::vector<std::string>& lines) {
    std::string text;
    if (settingsPlaces.dataDir.empty() || !readTextFile(settingsFileToWrite(FILE_NAME), text)) return false;
    std::istringstream stream(text);
    std::string line;
    while (lines.size() < RECENT_PROJECTS && std::getline(stream, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (usable(line) && std::find(lines.begin(), lines.end(), line) == lines.end()) lines.push_back(line);
    }
    return true;
}

// Behind a bar an entry shows its key, so a bar in a name is shown as a broken one.
std::string caption(std::size_t row) {
    std::string text = std::to_string(row + 1) + " " + paths[row];
    for (std::size_t at = text.find('|'); at != text.npos; at = text.find('|', at)) text.replace(at, 1, "\u00A6");
    return text;
}

} // namespace

void loadRecentProjects(int menu) {
    paths.clear();
    menuHandles.clear();
    if (!readList(paths)) return;
    menuHandles.push_back(owCreateMenuSeparator(menu));
    for (std::size_t row = 0; row < paths.size(); row++) {
        const std::string text = caption(row);
        menuHandles.push_back(owCreateMenuEntry(menu, text.c_str(), owAccel, text[0], owCallback,
                                                CMD_RECENT_FIRST + static_cast<int>(row), 0));
    }
}

namespace {

void eraseEntries() {
    for (const int handle : menuHandles) owEraseWidget(handle);
    menuHandles.clear();
    paths.clear();
}

} // namespace

void addRecentProject(int menu, const std::string& path) {
    const std::string whole = absolutePath(path);
    if (settingsPlaces.dataDir.empty() || !usable(whole)) return;
    std::vector<std::string> lines = {whole};
    std::vector<std::string> olds;
    readList(olds);
    for (const std::string& old : olds)
        if (absolutePath(old) != whole && lines.size() < RECENT_PROJECTS) lines.push_back(old);
    std::string text;
    for (const std::string& line : lines) text += line + '\n';
    writeSettingsFile(FILE_NAME, text);
    eraseEntries();
    loadRecentProjects(menu);
}

std::string recentProject(int index) {
    return index >= 0 && index < static_cast<int>(paths.size()) ? paths[static_cast<std::size_t>(index)]
                                                                : std::string();
}
