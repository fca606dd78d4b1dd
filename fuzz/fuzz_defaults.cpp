// Any bytes as a defaults file: whatever comes, there are 24 records of the right types afterwards.
#include "memory_file.h"
#include "project/colours.h"
#include "project/defaults.h"
#include "project/tree.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    memoryFile("in.wdd", bytes, count);
    colourMarks = ColourMarks();
    if (!loadDefaults(memoryFolder() + "/in.wdd")) abort();
    for (std::size_t i = 0; i < defaultOrder.size(); ++i)
        if (!defaultRecords[i] || defaultRecords[i]->type != defaultOrder[i] || defaultRecords[i]->next) abort();
    createFromDefaults(TYPE_TABLE_BOX, 3, 4);
    if (!saveDefaults(memoryFolder() + "/out.wdd")) abort();
    freeDefaults();
    return 0;
}
