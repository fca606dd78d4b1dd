#include "platform/text_files.h"

#include "platform/paths.h"

#include <cstdio>

bool readTextFile(const std::string& path, std::string& text, size_t limit) {
    text.clear();
    if (!fileReadable(path)) return false;
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (!file) return false;
    char piece[1 << 16];
    while (text.size() < limit) {
        size_t got = std::fread(piece, 1, sizeof piece, file);
        if (got == 0) break;
        text.append(piece, got);
    }
    if (text.size() > limit) text.resize(limit);
    std::fclose(file);
    return true;
}

bool writeTextFile(const std::string& path, const std::string& text) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file) return false;
    bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    return std::fclose(file) == 0 && written;
}
