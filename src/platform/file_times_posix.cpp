#include "platform/file_times.h"

#include <sys/stat.h>

std::int64_t fileTime(const std::string& path) {
    constexpr std::int64_t TICKS = 10'000'000; // of 100 ns in a second
    constexpr std::int64_t SECONDS_1601_TO_1970 = 11'644'473'600LL;
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) return 0;
    return (status.st_mtim.tv_sec + SECONDS_1601_TO_1970) * TICKS + status.st_mtim.tv_nsec / 100;
}
