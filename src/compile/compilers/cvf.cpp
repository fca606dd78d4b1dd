#include "compile/message_lines.h"

namespace {

constexpr BuildStep STEPS[] = {
    {StepKind::eachSource,
     R"(f90 /c "{src}" /object:"{obj}"{cflags} /include:"{dirs}{sourceDir}","{lib}","{modules} /include:"{bin}..\include" /module:"{sourceDir}")",
     R"({dir}",")"},
    {StepKind::always,
     R"(f90 /c "{main}" /object:"{base}.obj"{cflags} /include:"{dirs}{sourceDir}","{lib}","{modules} /include:"{bin}..\include" /module:"{sourceDir}")",
     R"({dir}",")"},
    {StepKind::withResource, R"(rc -v "{rcFile}")"},
    {StepKind::link,
     R"(link "{base}.obj" /out:"{exe}"{res}{objs}{objects}{files}{libraries}{lflags} /entry:mainCRTStartup)"},
};

constexpr LanguageSteps ALL_LANGUAGES[] = {{0, STEPS}};

} // namespace

constinit const Compiler compilers::CVF = {
    .profile = COMPILER_CVF,
    .word = "owidgwdg",
    .name = "Compaq Visual Fortran",
    .link = " /subsystem:windows",
    .variants = {{'d', " /real_size:64", "(DP)"}},
    .place = {.key = "Microsoft\\VisualStudio\\",
              .versionSuffix = both("\\Setup\\DIGITAL Visual Fortran"),
              .value = "ProductDir",
              .binPath = both("\\bin\\"),
              .setup = both("dfvars.bat\"")},
    .steps = ALL_LANGUAGES,
    .doubleSwitches = {"/real_size:64"},
    .libraries = {"dg", "dgd", "dg", "T*E", ".lib", ""},
    .messages = {.compile = {": Error:", ": error"}, .link = {"error LNK"}, .position = lineBehindParenthesis},
};
