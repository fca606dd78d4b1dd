// Files that are replaced whole or not at all. The new bytes go into a temporary file in the same folder; only when all
// of them are on the disk does it take the name of the old one. A crash, a full disk or a kill in between leaves the
// old file as it was, and the next save clears away what such an end left behind.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

// Opened once.
struct SafeFile {
    SafeFile() = default;
    SafeFile(const SafeFile&) = delete;
    SafeFile& operator=(const SafeFile&) = delete;
    ~SafeFile(); // abandons what was not committed

    std::intptr_t handle = -1; // -1 when not open
    std::string target;        // the file to replace; links are followed
    std::string temporary;     // empty for a device or pipe, which is written as it is
    bool failed = false;       // some write did not go through; the file cannot be committed any more
    int error = 0;             // the system's code of the first failure
};

// False when nothing can be created there, or when an existing file must not be written. `file.error` says why.
bool openSafeFile(SafeFile& file, const std::string& path);
void writeSafeFile(SafeFile& file, const void* bytes, std::size_t count);

// Flushes to the disk and takes the name. With `keepOld` the old file stays beside it with ".bak" behind its name.
// False when anything failed: the temporary file is gone then, and the old file is as it was.
bool commitSafeFile(SafeFile& file, bool keepOld = false);
void abandonSafeFile(SafeFile& file);

std::string errorText(int error); // the system's words

// A plain file opened for binary reading, null for anything that is none.
std::FILE* openForReading(const std::string& path);
