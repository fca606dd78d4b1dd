// The registry of installed programs, in its three enquiries. On Windows the system's own; elsewhere the text file
// "registry.txt" in the data folder, empty when there is none:
//
//     [2\Software\Vendor\Product\1.0]     root number and key path
//     ProductDir=C:\Product               a text value
//     StartCount=dword:1                  a number, in decimal
//
// Keys and value names are compared without regard to case. A key exists when it or a key below it stands in the file.
#pragma once

#include <string>
#include <vector>

enum RegistryRoot : int { REGISTRY_USER = 1, REGISTRY_MACHINE = 2 };

struct RegistryKeyInfo {
    int subkeys = 0;
    int longestSubkey = 0;
    int values = 0;
    int longestName = 0;
    int longestData = 0;
};

inline constexpr int REGISTRY_TEXT = 1;     // type of a text value
inline constexpr int REGISTRY_NUMBER = 4;   // type of a number
inline constexpr size_t SUBKEY_LIMIT = 72;  // characters of a subkey's name
inline constexpr size_t VALUE_LIMIT = 1024; // characters of a value's text

struct RegistryValue {
    int type = 0; // 0 when there is none
    std::string text;
    int number = 0;
};

RegistryKeyInfo enquireRegistryKey(int root, const std::string& key);
std::vector<std::string> registryKeys(int root, const std::string& key); // in the order of the registry
RegistryValue enquireRegistryValue(int root, const std::string& key, const std::string& value);
