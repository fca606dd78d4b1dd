// Any bytes as a project file: loaded, saved, loaded again with as many records, mended, searched, copied and freed.
#include "memory_file.h"
#include "project/files.h"
#include "project/tree.h"

#include <cstdlib>

namespace {

int countRecords() {
    int count = 0;
    for (WidgetNode* n = project.forms; n; n = walkList(n, project.forms)) ++count;
    return count;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    memoryFile("in.wdp", bytes, count);
    if (!loadProject(memoryFolder(), "in.wdp")) return 0;
    const int records = countRecords();
    if (!saveProject(memoryFolder(), "out.wdp", true)) abort();
    if (!loadProject(memoryFolder(), "out.wdp")) abort();
    if (countRecords() != records) abort();
    mendProject();
    if (!project.forms || project.forms->type != TYPE_FORM || !project.forms->child) abort();
    copyNode(project.forms, true);
    for (WidgetNode* n = project.forms; n; n = walkList(n, project.forms)) {
        if (!n->name.empty() && !findName(project.forms, n->name, false)) abort();
        if (formOf(n, project.forms)->type != TYPE_FORM) abort();
    }
    resetProject();
    return 0;
}
