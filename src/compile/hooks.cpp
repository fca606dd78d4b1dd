#include "compile/hooks.h"

#include "codegen/generate.h"
#include "compile/navigation.h"

static void generateQuietly() {
    GeneratedText generated;
    if (generateSource(sourcePath(), project.sourceName, &generated)) noteGenerated(std::move(generated));
}

BuildHooks buildHooks = {
    .selectorTool = [] {},
    .saveFirst = [] { return false; },
    .saveProject = [] { return false; },
    .generateSource = generateQuietly,
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
