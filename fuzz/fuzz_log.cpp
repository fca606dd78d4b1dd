// Any bytes as the log of any compiler and as a source that was edited by hand: lines that can be shown, few enough for
// the list, and a place for every message.
#include "compile/catalogue.h"
#include "compile/log.h"
#include "compile/markers_search.h"
#include "compile/navigation.h"
#include "memory_file.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    memoryFile("log", bytes, count);
    const std::string source(reinterpret_cast<const char*>(bytes), count);
    for (int profile = COMPILER_NONE; profile <= COMPILER_GNU; profile++) {
        CompilerLog log;
        if (!readLog(memoryFolder() + "/log", profile, log) || log.lines.size() > 2500) abort();
        const LogScan scan = scanLogLines(log.lines, profile);
        if (scan.result < 0 || scan.result > static_cast<int>(log.lines.size()) || scan.analysed > scan.result) abort();
        for (int entry = 0; entry <= static_cast<int>(log.lines.size()) + 1; entry++) {
            if (logPosition(log.lines, entry, profile, "/a/main.f90").line < 0) abort();
        }
    }
    const std::vector<Marker> markers = findMarkers(source);
    for (int line : {1, 2, 50, 1000000}) {
        const CodeLocation place = searchMarkers(markers, line, line);
        if (place.place == CodePlace::none || place.line < 1 || place.column < 1) abort();
    }
    return 0;
}
