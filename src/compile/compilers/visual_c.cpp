#include "compile/message_lines.h"

namespace {

constexpr BuildStep STEPS[] = {
    {StepKind::withResource, R"(rc -v "{rcFile}")"},
    {StepKind::link,
     R"(cl  /Fe"{exe}" /I"{lib}" /I"{lib}\include"{dirs}{cflags} /I"{bin}{up}..\include" "{main}" /Fo"{base}.obj" {res}{sources}{objects}{files}{libraries} /link{lflags})",
     R"( /I"{dir}")"},
    {StepKind::manifest, BIND_MANIFEST},
};

constexpr LanguageSteps ALL_LANGUAGES[] = {{0, STEPS}};

} // namespace

constinit const Compiler compilers::VISUAL_C = {
    .profile = COMPILER_VISUAL_C,
    .word = "owidgwvc",
    .name = "Visual C/C++",
    .family = LanguageFamily::C,
    .compile = " /DGUIWIN ",
    .link = " /subsystem:windows",
    .variants = {{'d', "", "(DP)"}},
    .moreName = {"", " - 64bit"},
    .place = {.key = "Microsoft\\VisualStudio\\",
              .versionSuffix = both("\\Setup\\VC"),
              .value = "ProductDir",
              .binPath = {"\\bin\\", "\\bin\\amd64\\"},
              .setup = {"vcvars32.bat\"", "vcvars64.bat\""}},
    .steps = ALL_LANGUAGES,
    .libraries = {"vc", "", "", "T*", ".lib", ""},
    .messages = {.compile = {"error C"}, .link = {"error LNK"}, .position = lineBehindParenthesis},
};
