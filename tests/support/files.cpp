#include "support/files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>

std::string readBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    EXPECT_TRUE(in) << "no file " << path;
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

void writeBytes(const std::string& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    EXPECT_TRUE(out.good()) << "cannot write " << path;
}

std::string byteDifference(const std::string& got, const std::string& wanted) {
    if (got == wanted) return "";
    const auto shorter = std::min(got.size(), wanted.size());
    std::size_t at = 0;
    while (at < shorter && got[at] == wanted[at]) ++at;
    const auto around = [&](const std::string& bytes) {
        std::string text;
        for (char c : bytes.substr(at > 20 ? at - 20 : 0, 60)) text += c >= ' ' && c < 127 ? c : '.';
        return text;
    };
    return "sizes " + std::to_string(got.size()) + " and " + std::to_string(wanted.size()) + ", parted at " +
           std::to_string(at) + "\n  got    " + around(got) + "\n  wanted " + around(wanted);
}
