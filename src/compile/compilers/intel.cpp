#include "compile/message_lines.h"

#include "compile/catalogue.h"
#include "platform/registry.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr BuildStep STEPS[] = {
    {StepKind::eachSource,
     R"(ifort /c "{src}" /object:"{obj}"{cflags}{dirs} /include:"{sourceDir}" /include:"{lib}" /include:"{modules} /module:"{sourceDir}")",
     R"( /include:"{dir}")"},
    {StepKind::always,
     R"(ifort /c /MT "{main}" /object:"{base}.obj"{dirs}{cflags} /include:"{sourceDir}" /include:"{lib}" /include:"{modules} /module:"{sourceDir}")",
     R"( /include:"{dir}")"},
    {StepKind::withResource, R"(rc -v "{rcFile}")"},
    {StepKind::link,
     R"(link "{base}.obj" /out:"{exe}"{res}{objs}{objects}{files}{libraries}{lflags} /entry:mainCRTStartup)"},
    {StepKind::manifest, BIND_MANIFEST},
};
constexpr LanguageSteps ALL_LANGUAGES[] = {{0, STEPS}};

constexpr double VISUAL_STUDIO_FROM = 120.0; // versions from here on must be told which Visual Studio to use

// Which Visual Studio a version works with: the words that its setup batch file takes, or nothing.
std::string visualStudioWords(const RegistryPlace& place, const std::string& version) {
    if (versionNumber(version) < VISUAL_STUDIO_FROM) return {};
    const std::string prefix = registryPrefix();
    const BySize folder = {"\\IA32", "\\EMT64_NATIVE"};
    std::vector<std::string> keys = registryKeys(REGISTRY_MACHINE, prefix + place.key + version + folder.get());
    std::reverse(keys.begin(), keys.end());
    for (const std::string& key : keys) {
        const size_t n = key.find('N');
        if (n == std::string::npos) continue;
        std::string tag = "vs" + (n + 3 <= key.size() ? key.substr(n + 3) : std::string());
        for (const char* start : {"Start", "n_Start"}) {
            if (enquireRegistryValue(REGISTRY_USER, prefix + "Intel\\PSIDEXE", start + tag).number > 0) return tag;
        }
    }
    return {};
}

} // namespace

constinit const Compiler compilers::INTEL = {
    .profile = COMPILER_INTEL,
    .word = "owidgwi8",
    .name = "Intel Visual Fortran",
    .link = " /subsystem:windows",
    .variants = {{'c', " /us /name:lowercase", ""}, {'d', " /real_size:64", " (DP)"}},
    .variantAnywhere = true,
    .moreName = {"", " - 64bit"},
    .place = {.key = "Intel\\Compilers\\FORTRAN\\",
              .versionSuffix = {"\\IA32", "\\em64t_native"},
              .noSuffixFrom = 111.0,
              .value = "ProductDir",
              .binPath = both("\\bin\\"),
              .setup = {"ifortvars.bat\" ia32 ", "ifortvars.bat\" intel64 "},
              .setupWords = visualStudioWords},
    .steps = ALL_LANGUAGES,
    .doubleSwitches = {"/real_size:64"},
    .libraries = {"i8", "i8d", "i8", "T*E", ".lib", ""},
    .messages = {.compile = {": Error:", ": error"}, .link = {"error LNK"}, .position = lineBehindParenthesis},
};
