// The way back by the texts that the generators write: comment lines ahead of the blocks, heads of the branches.
#pragma once

#include "compile/location.h"

#include <string>
#include <string_view>
#include <vector>

struct Marker {
    enum Kind { BLOCK, HEAD, STATUS };
    Kind kind = BLOCK;
    int line = 0;       // of the source, from 1
    int index = 0;      // CodeBlockIndex, or the status of a window's branch
    std::string name;   // HEAD: of the widget or entry
    std::string offset; // HEAD: what stands behind it, "+4*OIDENT"
};

// All markers of a source in the project's language, in one pass, by ascending line. A block's marker and a head count
// where they stand first.
std::vector<Marker> findMarkers(std::string_view source);

// The code behind the nearest marker ahead of `line`, as the project is now: markers of what has gone are passed over.
// Without any it is the first line of Global Definitions.
CodeLocation searchMarkers(const std::vector<Marker>& markers, int line, int column);
