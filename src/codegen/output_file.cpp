// Files that are replaced whole or not at all.

#include "codegen/resources.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace {

// Writes and closes an open file.
bool writeWhole(std::FILE* file, std::string_view text) {
    if (file == nullptr) return false;
    const bool whole = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    return std::fclose(file) == 0 && whole;
}

} // namespace

bool mayWriteFile(const std::string& path) {
    std::error_code ignored;
    if (path.empty() || fs::is_directory(path, ignored)) return false;
    const bool existed = fs::exists(path, ignored);
    std::FILE* file = std::fopen(path.c_str(), "ab");
    if (file == nullptr) return false;
    std::fclose(file);
    if (!existed) fs::remove(path, ignored);
    return true;
}

// The text goes to a file beside it that then takes its name. Links and devices are written through, and so is a file
// in a folder that takes no new ones.
bool replaceFile(const std::string& path, std::string_view text) {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(path, error);
    const bool regular = status.type() == fs::file_type::regular;
    const std::string fresh = path + ".unfinished";
    std::FILE* file = regular || status.type() == fs::file_type::not_found ? std::fopen(fresh.c_str(), "wb") : nullptr;
    if (file == nullptr) return writeWhole(std::fopen(path.c_str(), "wb"), text);
    const bool whole = writeWhole(file, text);
    if (whole && regular) fs::permissions(fresh, status.permissions(), error);
    if (whole) fs::rename(fresh, path, error);
    if (whole && !error) return true;
    fs::remove(fresh, error);
    return false;
}
