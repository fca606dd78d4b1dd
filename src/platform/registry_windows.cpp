#include "platform/registry.h"

#include <windows.h>

namespace {

// Callers spell the 32-bit view out in their keys, so every key is opened in the view of the system itself.
struct OpenKey {
    HKEY key = nullptr;
    OpenKey(int root, const std::string& path) {
        HKEY from = root == REGISTRY_MACHINE ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
        if (RegOpenKeyExA(from, path.c_str(), 0, KEY_READ | KEY_WOW64_64KEY, &key) != ERROR_SUCCESS) key = nullptr;
    }
    ~OpenKey() {
        if (key) RegCloseKey(key);
    }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;
};

} // namespace

RegistryKeyInfo enquireRegistryKey(int root, const std::string& key) {
    OpenKey open(root, key);
    DWORD subkeys = 0;
    DWORD longestSubkey = 0;
    DWORD values = 0;
    DWORD longestName = 0;
    DWORD longestData = 0;
    if (!open.key || RegQueryInfoKeyA(open.key, nullptr, nullptr, nullptr, &subkeys, &longestSubkey, nullptr, &values,
                                      &longestName, &longestData, nullptr, nullptr) != ERROR_SUCCESS) {
        return {};
    }
    return {static_cast<int>(subkeys), static_cast<int>(longestSubkey), static_cast<int>(values),
            static_cast<int>(longestName), static_cast<int>(longestData)};
}

std::vector<std::string> registryKeys(int root, const std::string& key) {
    std::vector<std::string> names;
    OpenKey open(root, key);
    char name[256];
    for (DWORD i = 0; open.key; i++) {
        DWORD length = sizeof name;
        if (RegEnumKeyExA(open.key, i, name, &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
        names.emplace_back(name, length < SUBKEY_LIMIT ? length : SUBKEY_LIMIT);
    }
    return names;
}

RegistryValue enquireRegistryValue(int root, const std::string& key, const std::string& value) {
    OpenKey open(root, key);
    DWORD type = 0;
    BYTE data[VALUE_LIMIT + 1] = {};
    DWORD length = VALUE_LIMIT;
    if (!open.key || RegQueryValueExA(open.key, value.c_str(), nullptr, &type, data, &length) != ERROR_SUCCESS)
        return {};
    RegistryValue found;
    found.type = static_cast<int>(type);
    if (type == REG_SZ) found.text = reinterpret_cast<const char*>(data);
    if (type == REG_DWORD) found.number = static_cast<int>(*reinterpret_cast<const DWORD*>(data));
    return found;
}
