#include "compile/hooks.h"

#include "compile/navigation.h"

BuildHooks buildHooks = {
    .selectorTool = [] {},
    .saveFirst = [] { return false; },
    .saveProject = [] { return false; },
    .generateSource = [] { generateNoted(); },
    .commitEditor = [] {},
    .clearLog = [] {},
    .logFont = [] {},
    .appendLogLine = [](const std::string&) {},
    .setLogLines = [](const std::vector<std::string>&) {},
    .selectLogLine = [](int) {},
    .showLog = [] {},
    .idle = [] {},
    .cancelled = [] { return false; },
    .enableCompile = [](bool) {},
    .enableExecute = [](bool) {},
    .enableAbort = [](bool) {},
    .enablePrintErrors = [](bool) {},
    .watchTimer = [](int) {},
    .showLocation = [](const CodeLocation&) {},
};
