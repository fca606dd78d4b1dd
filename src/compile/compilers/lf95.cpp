// Two generations of one compiler; the later one takes short paths for its module directories.
#include "compile/message_lines.h"

namespace {

constexpr BuildStep STEPS[] = {
    {StepKind::eachSource, R"(lf95 -c "{src}" -o "{obj}" -mod "{dirs}{sourceDir}";"{lib}";"{modules}{cflags})",
     R"({dir}";")"},
    {StepKind::link,
     R"(lf95 "{main}"{rc}{objs}{objects} -mod "{dirs}{sourceDir}";"{lib}";"{modules}{cflags}{lflags}{files}{libraries})",
     R"({dir}";")"},
};

constexpr BuildStep STEPS_75[] = {
    {StepKind::eachSource, R"(lf95 -c "{src}" -o "{obj}" -mod {dirs}{sourceDir.short};"{lib}";"{modules}{cflags})",
     "{dir.short};"},
    {StepKind::link,
     R"(lf95 "{main}"{rc}{objs}{objects} -mod {dirs}{sourceDir.short};"{lib}";"{modules}{cflags}{lflags}{files}{libraries})",
     "{dir.short};"},
};

constexpr LanguageSteps ALL_LANGUAGES[] = {{0, STEPS}};
constexpr LanguageSteps ALL_LANGUAGES_75[] = {{0, STEPS_75}};

MessagePosition position(const std::string& message) {
    if (message.find("-S:") == std::string::npos && message.find("-W:") == std::string::npos) return {};
    const size_t word = message.find("line");
    return word == std::string::npos ? MessagePosition{} : lineAt(message, word + 5);
}

constexpr MessagePatterns MESSAGES = {.compile = {"-S:", "-W:"}, .link = {"rror LINK."}, .position = position};

} // namespace

constinit const Compiler compilers::LF95 = {
    .profile = COMPILER_LF95,
    .word = "owidgwl5",
    .name = "Lahey/Fujitsu LF95",
    .compile = " -nco -win",
    .link = " -nomap",
    .variants = {{'d', " -dbl", "(DP)"}},
    .steps = ALL_LANGUAGES,
    .doubleSwitches = {"-dbl"},
    .libraries = {"l5", "l5d", "l5d", "TSE*", ".dll", "", true},
    .messages = MESSAGES,
};

constinit const Compiler compilers::LF95_75 = {
    .profile = COMPILER_LF95_75,
    .word = "owidgwl6",
    .name = "Lahey/Fujitsu LF95 (7.5)",
    .compile = " -nco -win",
    .link = " -nomap",
    .variants = {{'d', " -dbl", "(DP)"}},
    .place = {.key = "Lahey\\Lahey/Fujitsu Fortran\\",
              .value = "InstallDirectory",
              .binPath = both("\\LF95\\bin\\"),
              .setup = both("lfvars.bat\"")},
    .steps = ALL_LANGUAGES_75,
    .doubleSwitches = {"-dbl"},
    .libraries = {"l6", "l6d", "l6d", "TSE*", ".lib", ""},
    .messages = MESSAGES,
};
