// Any bytes as a form file: inserted into a project, saved from it, read alone.
#include "memory_file.h"
#include "project/files.h"
#include "project/tree.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    resetProject();
    newForm()->name = "Mine";
    memoryFile("in.wdf", bytes, count);
    WidgetNode* first = nullptr;
    const int number = project.nextFormNumber;
    if (insertForm(memoryFolder(), "in.wdf", &first) != 0) {
        if (!first || project.forms->next != first) abort();
        if (!saveForms(memoryFolder() + "/out.wdf", first)) abort();
    } else if (project.nextFormNumber != number || project.forms->next) {
        abort();
    }
    (void)loadFormAlone(memoryFolder() + "/in.wdf");
    resetProject();
    return 0;
}
