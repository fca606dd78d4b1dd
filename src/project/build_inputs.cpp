#include "project/build_inputs.h"

#include <algorithm>
#include <cstdint>

namespace {

FileList tidied(const FileList& rows) {
    FileList kept;
    for (const std::string& row : rows)
        if (!row.empty() && kept.size() + 1 < FILE_LIST_ROWS) kept.push_back(row.substr(0, NAME_LIMIT));
    kept.emplace_back();
    return kept;
}

std::vector<std::int64_t> timesFor(const FileList& sources) {
    const FileList& before = project.fileLists[LIST_SOURCES];
    std::vector<std::int64_t> times;
    for (const std::string& source : sources) {
        const auto at = static_cast<std::size_t>(std::ranges::find(before, source) - before.begin());
        times.push_back(!source.empty() && at < project.sourceFileTimes.size() ? project.sourceFileTimes[at] : 0);
    }
    return times;
}

} // namespace

BuildInputs buildInputs() { return {project.fileLists, project.compilerSwitches, project.linkerSwitches}; }

void setBuildInputs(const BuildInputs& inputs) {
    BuildInputs given = inputs;
    for (FileList& list : given.lists) list = tidied(list);
    project.sourceFileTimes = timesFor(given.lists[LIST_SOURCES]);
    project.fileLists = given.lists;
    project.compilerSwitches = given.compilerSwitches;
    project.linkerSwitches = given.linkerSwitches;
    const bool noRows = std::ranges::all_of(project.fileLists, [](const FileList& list) { return list.size() <= 1; });
    project.customSwitches = noRows && given.compilerSwitches.empty() && given.linkerSwitches.empty() ? 0 : 1;
    markProjectChanged();
}
