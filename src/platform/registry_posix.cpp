#include "platform/environment.h"
#include "platform/paths.h"
#include "platform/registry.h"
#include "platform/text_files.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <string_view>

namespace {

struct Entry {
    std::string name;
    RegistryValue value;
};
struct Key {
    std::string path; // root number and key, as the file has it
    std::vector<Entry> entries;
};

bool sameText(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

Entry parseEntry(std::string_view line) {
    constexpr std::string_view NUMBER = "dword:";
    size_t equals = line.find('=');
    Entry entry{std::string(line.substr(0, equals)), {}};
    std::string_view text = equals == std::string_view::npos ? std::string_view() : line.substr(equals + 1);
    if (text.substr(0, NUMBER.size()) == NUMBER) {
        entry.value.type = REGISTRY_NUMBER;
        entry.value.number = std::atoi(std::string(text.substr(NUMBER.size())).c_str());
    } else {
        entry.value.type = REGISTRY_TEXT;
        entry.value.text = text.substr(0, VALUE_LIMIT);
    }
    return entry;
}

std::vector<Key> readRegistry() {
    std::vector<Key> keys;
    std::string text;
    if (!readTextFile(joinPath(folders.dataDir, "registry.txt"), text, 4U << 20)) return keys;
    for (size_t from = 0; from < text.size();) {
        size_t end = std::min(text.find('\n', from), text.size());
        std::string_view line = std::string_view(text).substr(from, end - from);
        from = end + 1;
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        if (line.empty()) continue;
        if (line.front() == '[' && line.back() == ']') {
            std::string_view path = line.substr(1, line.size() - 2);
            while (!path.empty() && path.back() == '\\') path.remove_suffix(1);
            keys.push_back({std::string(path), {}});
        } else if (!keys.empty()) {
            keys.back().entries.push_back(parseEntry(line));
        }
    }
    return keys;
}

std::string fullPath(int root, std::string_view key) {
    while (!key.empty() && key.back() == '\\') key.remove_suffix(1);
    return std::to_string(root) + "\\" + std::string(key);
}

} // namespace

std::vector<std::string> registryKeys(int root, const std::string& key) {
    std::vector<std::string> names;
    std::string path = fullPath(root, key) + "\\";
    for (const Key& each : readRegistry()) {
        if (each.path.size() <= path.size() || !sameText(each.path.substr(0, path.size()), path)) continue;
        std::string name = each.path.substr(path.size());
        name.resize(std::min({name.size(), name.find('\\'), SUBKEY_LIMIT}));
        bool known = std::any_of(names.begin(), names.end(), [&](const std::string& n) { return sameText(n, name); });
        if (!known) names.push_back(name);
    }
    return names;
}

RegistryKeyInfo enquireRegistryKey(int root, const std::string& key) {
    RegistryKeyInfo info;
    for (const std::string& name : registryKeys(root, key)) {
        info.subkeys++;
        info.longestSubkey = std::max(info.longestSubkey, static_cast<int>(name.size()));
    }
    std::string path = fullPath(root, key);
    for (const Key& each : readRegistry()) {
        if (!sameText(each.path, path)) continue;
        for (const Entry& entry : each.entries) {
            info.values++;
            info.longestName = std::max(info.longestName, static_cast<int>(entry.name.size()));
            info.longestData = std::max(info.longestData, static_cast<int>(entry.value.text.size()));
        }
    }
    return info;
}

RegistryValue enquireRegistryValue(int root, const std::string& key, const std::string& value) {
    std::string path = fullPath(root, key);
    for (const Key& each : readRegistry()) {
        if (!sameText(each.path, path)) continue;
        for (const Entry& entry : each.entries) {
            if (sameText(entry.name, value)) return entry.value;
        }
    }
    return {};
}
