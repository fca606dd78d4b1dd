#include "codegen/output.h"

#include <cstdio>
#include <memory>
#include <string>

namespace {

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

File openOne(const std::string& path) { return {openForReading(path), &std::fclose}; }

// The next line with its end; false behind the last one.
bool readLine(std::FILE* file, std::string& line) {
    line.clear();
    char part[4096];
    while (std::fgets(part, sizeof part, file)) {
        line += part;
        if (line.back() == '\n') return true;
    }
    return !line.empty();
}

std::string_view withoutDate(std::string_view line, std::string_view dated) {
    const std::size_t at = dated.empty() ? std::string_view::npos : line.find(dated);
    return at == std::string_view::npos ? line : line.substr(0, at + dated.size());
}

bool saySame(const std::string& one, const std::string& other, std::string_view dated) {
    const File first = openOne(one);
    const File second = openOne(other);
    if (!first || !second) return false;
    std::string line, twin;
    for (;;) {
        const bool more = readLine(first.get(), line);
        if (readLine(second.get(), twin) != more) return false;
        if (!more) return std::ferror(first.get()) == 0 && std::ferror(second.get()) == 0;
        if (line == twin) continue;
        if (withoutDate(line, dated) != withoutDate(twin, dated) || line.find(dated) == std::string::npos) return false;
        dated = {}; // one line bears the date
    }
}

} // namespace

bool commitWhatIsNew(SafeFile& file, std::string_view dated) {
    const bool whole = !file.failed && !file.temporary.empty();
    if (!whole || !saySame(file.temporary, file.target, dated)) return commitSafeFile(file);
    abandonSafeFile(file);
    return true;
}
