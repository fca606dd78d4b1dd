// Any bytes as the registry: keys and values within their limits, and a catalogue that comes to its end with each
// library word.
#include "compile/catalogue.h"
#include "memory_file.h"
#include "platform/environment.h"
#include "platform/registry.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    folders.installDir = folders.dataDir = memoryFolder();
    memoryFile("registry.txt", bytes, count);
    for (const char* key : {"Software", "Software\\Intel\\Compilers\\FORTRAN\\", ""}) {
        const RegistryKeyInfo info = enquireRegistryKey(REGISTRY_MACHINE, key);
        for (const std::string& name : registryKeys(REGISTRY_MACHINE, key)) {
            if (name.size() > SUBKEY_LIMIT || static_cast<int>(name.size()) > info.longestSubkey) abort();
        }
    }
    for (const std::string word : {"owidgwl6", "owidgwi8d", "owidgwvc", "owidgwab"}) {
        memoryFile("menubld.bat", reinterpret_cast<const std::uint8_t*>(word.data()), word.size());
        readCompilerCatalogue();
        if (compiler.profile == COMPILER_NONE || compiler.varsCommand.empty() != compiler.binDir.empty()) abort();
    }
    return 0;
}
