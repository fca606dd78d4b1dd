#include "platform/paths.h"

#include <filesystem>
#include <system_error>

namespace {

constexpr std::string_view SEPARATORS = "/\\";

// Position of the extension's dot, or npos.
size_t extensionDot(std::string_view path) {
    size_t dot = path.rfind('.');
    size_t slash = path.find_last_of(SEPARATORS);
    if (dot == std::string_view::npos || (slash != std::string_view::npos && dot < slash))
        return std::string_view::npos;
    return dot;
}

} // namespace

std::string joinPath(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!path.empty() && SEPARATORS.find(path.back()) == std::string_view::npos) path += nativeSeparator();
    return path.append(name);
}

std::string folderOf(std::string_view path) {
    size_t slash = path.find_last_of(SEPARATORS);
    if (slash == std::string_view::npos) return {};
    return std::string(path.substr(0, slash == 0 ? 1 : slash));
}

std::string fileNameOf(std::string_view path) {
    size_t slash = path.find_last_of(SEPARATORS);
    return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

std::string nativePath(std::string path) {
    for (char& c : path) {
        if (SEPARATORS.find(c) != std::string_view::npos) c = nativeSeparator();
    }
    return path;
}

bool isAbsolutePath(std::string_view path) {
    if (path.empty()) return false;
    return SEPARATORS.find(path[0]) != std::string_view::npos || (path.size() > 1 && path[1] == ':');
}

std::string withoutExtension(std::string_view path) { return std::string(path.substr(0, extensionDot(path))); }

std::string withExtension(std::string_view path, std::string_view extension) {
    return withoutExtension(path).append(extension);
}

std::string executablePath(std::string_view sourcePath) {
    bool dotted = extensionDot(sourcePath) != std::string_view::npos;
#ifdef _WIN32
    dotted = false;
#endif
    return withExtension(sourcePath, dotted ? "" : ".exe");
}

bool pathExists(const std::string& path) {
    std::error_code failure;
    return !path.empty() && std::filesystem::exists(path, failure);
}

bool folderExists(const std::string& path) {
    std::error_code failure;
    return !path.empty() && std::filesystem::is_directory(path, failure);
}

bool removeFile(const std::string& path) {
    std::error_code failure;
    if (!std::filesystem::is_regular_file(std::filesystem::symlink_status(path, failure)) && pathExists(path)) {
        return false;
    }
    std::filesystem::remove(path, failure);
    return !failure;
}

std::string absolutePath(const std::string& path) {
    if (path.empty()) return path;
    std::error_code failure;
    // Behind a link ".." is another folder than the name ahead of it says, so there the disk is asked.
    const bool goesUp = path.find("..") != std::string::npos;
    const std::filesystem::path whole = std::filesystem::absolute(path, failure);
    const std::filesystem::path named = goesUp ? std::filesystem::weakly_canonical(whole, failure) : whole;
    return failure ? path : named.lexically_normal().string();
}

std::string currentFolder() {
    std::error_code failure;
    return std::filesystem::current_path(failure).string();
}

bool makeFolders(const std::string& path) {
    std::error_code failure;
    std::filesystem::create_directories(path, failure);
    return folderExists(path);
}
