// Files that are replaced whole or not at all.

#include "codegen/resources.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

namespace fs = std::filesystem;

namespace {

bool writeWhole(const fs::path& path, std::string_view text) {
    std::FILE* file = std::fopen(path.string().c_str(), "wb");
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

// The text goes to a file beside it that then takes its name. Links and devices are written through.
bool replaceFile(const std::string& path, std::string_view text) {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(path, error);
    const bool plain = status.type() == fs::file_type::regular || status.type() == fs::file_type::not_found;
    const fs::path fresh = path + ".new";
    if (!plain || fs::exists(fresh, error)) return writeWhole(path, text);
    if (!writeWhole(fresh, text)) {
        fs::remove(fresh, error);
        return status.type() == fs::file_type::regular && fs::space(fs::path(path).parent_path(), error).available > text.size() &&
               writeWhole(path, text);
    }
    if (status.type() == fs::file_type::regular) fs::permissions(fresh, status.permissions(), error);
    fs::rename(fresh, path, error);
    if (!error) return true;
    fs::remove(fresh, error);
    return false;
}
