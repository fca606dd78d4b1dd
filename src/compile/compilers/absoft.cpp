#include "compile/message_lines.h"

namespace {

constexpr BuildStep STEPS[] = {
    {StepKind::eachSource,
     R"(f90 -c "{src}"{m64} -o "{obj}"{cflags}{dirs} -p "{sourceDir}" -p "{lib}" -p "{lib}\modules")", " -p {dir}"},
    {StepKind::withResource, R"(rc -v "{rcFile}")"},
    {StepKind::link,
     R"(f90{m64}{dirs}{cflags} -p "{sourceDir}" -p "{lib}" -p "{lib}\modules" -o "{exe}" "{main}"{res}{objs}{objects}{files}{libraries}{linkWords})",
     R"( -p "{dir}")"},
};
constexpr LanguageSteps ALL_LANGUAGES[] = {{0, STEPS}};

MessagePosition position(const std::string& message) {
    const size_t words = message.find("on line");
    return words == std::string::npos ? MessagePosition{} : lineAt(message, words + 8);
}

} // namespace

constinit const Compiler compilers::ABSOFT = {
    .profile = COMPILER_ABSOFT,
    .word = "owidgwab",
    .name = "Absoft Pro Fortran",
    .compile = " -V",
    .moreName = {"", " - 64bit"},
    .place = {.key = "Absoft\\",
              .versionSuffix = both("\\Prod"),
              .value = "Dir",
              .binPath = both("\\bin\\"),
              .setup = {"absvars32.bat\"", "absvars64.bat\""},
              .homeVariable = "ABSOFT"},
    .steps = ALL_LANGUAGES,
    .libraries = {"ab", "", "", "T*SE", ".lib", ""},
    .leftover = "wdesign.mod",
    .messages = {.compile = {"f90fe: ERROR"}, .link = {"error LNK"}, .position = position},
};
