// The compiler for plain programs and the one for managed ones.
#include "compile/message_lines.h"

namespace {

constexpr BuildStep STEPS[] = {
    {StepKind::always, R"(ftn95 "{main}"{cflags} /include "{bin}include" /mod_path "{dirs}{sourceDir};{lib};{modules})",
     "{dir};"},
    {StepKind::eachSource,
     R"(ftn95 "{src}"{cflags} /include "{bin}include" /mod_path "{dirs}{sourceDir};{lib};{modules})", "{dir};"},
    {StepKind::withResource, R"(src "{rcFile}")"},
    {StepKind::link, R"(slink {lflags} "{base}.obj"{rcObj}{objs}{objects}{files}{libraries} -file)"},
};

constexpr BuildStep NET_STEPS[] = {
    {StepKind::always,
     R"(ftn95 "{main}"{cflags} /include "{bin}include" /mod_path "{dirs}{sourceDir};{lib};{lib}\modules")",
     R"({dir}";")"},
    {StepKind::eachSource,
     R"(ftn95 "{src}"{cflags} /include "{bin}include" /mod_path "{dirs}{sourceDir};{lib};{lib}\modules")",
     R"({dir}";")"},
    {StepKind::withResource, R"(src "{rcFile}")"},
    {StepKind::link, R"(slink {lflags} "{base}.obj"{rcObj}{objs}{objects}{files}{libraries} -file)"},
};

constexpr LanguageSteps ALL_LANGUAGES[] = {{0, STEPS}};
constexpr LanguageSteps ALL_NET_LANGUAGES[] = {{0, NET_STEPS}};

constexpr MessagePatterns MESSAGES = {
    .compile = {"***"}, .link = {"***"}, .positionAbove = true, .position = lineAheadOfParenthesis};

} // namespace

constinit const Compiler compilers::FTN95 = {
    .profile = COMPILER_FTN95,
    .word = "owidgws9",
    .name = "Salford/Silverfrost FTN95",
    .variants = {{'d', " /dreal", "(DP)"}},
    .moreCompile = {"", " /64"},
    .moreName = {"", " - 64bit"},
    .place = {.key = "Silverfrost\\Silverfrost FTN95\\",
              .value = "InstallLocation",
              .binPath = both("\\"),
              .setup = both("fvars.bat\"")},
    .steps = ALL_LANGUAGES,
    .doubleSwitches = {"dreal"},
    .libraries = {"s9", "s9d", "s9d", "T*ES", ".dll", "MPBSE"},
    .messages = MESSAGES,
};

constinit const Compiler compilers::FTN95_NET = {
    .profile = COMPILER_FTN95_NET,
    .word = "owidgws3",
    .name = "Salford FTN95.NET",
    .compile = " /clr /dreal",
    .steps = ALL_NET_LANGUAGES,
    .libraries = {"s3", "", "", "T*ES", ".dll", "MPBSE"},
    .messages = MESSAGES,
};
