#include "compile/toolkit_places.h"

#include "platform/paths.h"
#include "platform/text_files.h"

#include <algorithm>
#include <filesystem>
#include <string_view>

namespace {

struct PlacesKey {
    std::string_view name;
    std::vector<std::string> ToolkitPlaces::*folders;
};
constexpr PlacesKey PLACES_KEYS[] = {
    {"include", &ToolkitPlaces::includeDirs},
    {"module", &ToolkitPlaces::moduleDirs},
    {"module_dbl", &ToolkitPlaces::modulesDouble},
    {"library", &ToolkitPlaces::libraryDirs},
};

void readPlacesFile(const std::string& text, ToolkitPlaces& places) {
    for (size_t from = 0; from < text.size();) {
        size_t end = std::min(text.find('\n', from), text.size());
        std::string line = text.substr(from, end - from);
        from = end + 1;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        size_t equals = line.find('=');
        if (equals == std::string::npos) continue;
        for (const PlacesKey& key : PLACES_KEYS) {
            if (line.compare(0, equals, key.name) == 0) (places.*key.folders).push_back(line.substr(equals + 1));
        }
    }
}

constexpr const char* LIBRARY_FILES[] = {"liborbawidg.so", "liborbawidg.dylib", "liborbawidg.dll.a"};

bool holdsLibrary(const std::string& folder) {
    return std::any_of(std::begin(LIBRARY_FILES), std::end(LIBRARY_FILES),
                       [&](const char* file) { return pathExists(joinPath(folder, file)); });
}

// lib, lib64, and the folders of lib that systems with several architectures have.
std::vector<std::string> libraryFolders(const std::string& installDir) {
    std::vector<std::string> all = {joinPath(installDir, "lib"), joinPath(installDir, "lib64")};
    std::error_code failure;
    std::vector<std::string> below;
    for (const auto& entry : std::filesystem::directory_iterator(all[0], failure)) {
        if (entry.path().filename().string().find("-linux-") != std::string::npos)
            below.push_back(entry.path().string());
    }
    std::sort(below.begin(), below.end());
    all.insert(all.end(), below.begin(), below.end());
    return all;
}

void searchInstallation(const std::string& installDir, ToolkitPlaces& places) {
    std::string include = joinPath(joinPath(installDir, "include"), "orbawidg");
    if (fileReadable(joinPath(include, "menu-c.h"))) places.includeDirs.push_back(include);
    std::vector<std::string> moduleFolders = {include};
    for (const std::string& folder : libraryFolders(installDir)) {
        if (holdsLibrary(folder)) places.libraryDirs.push_back(folder);
        moduleFolders.push_back(joinPath(joinPath(folder, "orbawidg"), "finclude"));
    }
    for (const std::string& folder : moduleFolders) {
        if (fileReadable(joinPath(folder, "menu_f90.mod"))) places.moduleDirs.push_back(folder);
        std::string dbl = joinPath(folder, "dbl");
        if (fileReadable(joinPath(dbl, "menu_f90.mod"))) places.modulesDouble.push_back(dbl);
    }
}

void noteFortranDouble(ToolkitPlaces& places) {
    for (const std::string& folder : places.libraryDirs) {
        if (pathExists(joinPath(folder, "liborbawidg_fd.a"))) places.fortranDouble = true;
    }
}

} // namespace

ToolkitPlaces toolkitBelow(const std::string& installDir) {
    ToolkitPlaces places;
    if (!installDir.empty()) searchInstallation(installDir, places);
    noteFortranDouble(places);
    return places;
}

ToolkitPlaces toolkitPlaces(const std::string& installDir) {
    ToolkitPlaces places;
    std::string text;
    if (readTextFile(joinPath(folderOf(programPath()), "wdesign.places"), text)) readPlacesFile(text, places);
    bool built = std::any_of(places.libraryDirs.begin(), places.libraryDirs.end(), holdsLibrary);
    if (!built) return toolkitBelow(installDir);
    noteFortranDouble(places);
    return places;
}
