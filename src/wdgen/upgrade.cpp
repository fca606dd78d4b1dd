#include "upgrade.h"

#include "batch_host.h"
#include "project/defaults.h"
#include "project/files.h"
#include "project/tree.h"
#include "project/widget_types.h"

#include <algorithm>
#include <cstdio>

namespace {

// What stood on the command line behind the option that chose the command.
struct Arguments {
    std::string input;
    std::string output;
    bool xWindows = false;
    bool valid = true;
};

Arguments parse(const std::vector<std::string>& words) {
    Arguments result;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "-o" && i + 1 < words.size())
            result.output = words[++i];
        else if (words[i] == "--x-windows")
            result.xWindows = true;
        else if (result.input.empty() && !words[i].empty() && (words[i][0] != '-' || words[i] == "-"))
            result.input = words[i];
        else
            result.valid = false;
    }
    return result;
}

int usage(const char* text) {
    std::fprintf(stderr, "usage: wdgen %s\n", text);
    return 1;
}

bool load(const std::string& path) {
    switch (fileKind(path)) {
    case FILE_PROJECT: return loadProject("", path);
    case FILE_FORM: return loadFormAlone(path);
    case FILE_DEFAULTS: return loadDefaults(path);
    default: break;
    }
    std::fprintf(stderr, "wdgen: %s: the extension tells what a file is: .wdp project, .wdf form, .wdd defaults\n",
                 path.c_str());
    return false;
}

bool save(const std::string& path, ProjectFileKind kind) {
    switch (kind) {
    case FILE_FORM: return saveForms(path, project.forms);
    case FILE_DEFAULTS: return saveDefaults(path);
    default: return saveProject("", path, true);
    }
}

void print(int depth, const WidgetNode& node) {
    std::printf("%d %d %s %d %d %d %d\n", depth, codeOf(node), node.name.empty() ? "-" : node.name.c_str(), node.xpos,
                node.ypos, node.width, node.height);
}

int depthOf(const WidgetNode& node) {
    int depth = 0;
    for (const WidgetNode* above = node.parent; above; above = above->parent) ++depth;
    return depth;
}

void printBelow(const WidgetNode* top) {
    int depth = 0;
    const WidgetNode* previous = nullptr;
    for (const WidgetNode* node = top; node; previous = node, node = walkBelow(node, top)) {
        if (previous) depth = node->parent == previous ? depth + 1 : depthOf(*node);
        print(depth, *node);
    }
}

} // namespace

int upgradeCommand(const std::vector<std::string>& words) {
    const Arguments arguments = parse(words);
    if (!arguments.valid || arguments.input.empty() || arguments.output.empty())
        return usage("--upgrade FILE -o FILE [--x-windows]");
    useBatchHost(!arguments.xWindows);
    if (!load(arguments.input)) return 1;
    return save(arguments.output, fileKind(arguments.input)) ? 0 : 1;
}

int listCommand(const std::vector<std::string>& words) {
    const Arguments arguments = parse(words);
    if (!arguments.valid || arguments.input.empty()) return usage("--list FILE");
    useBatchHost();
    if (!load(arguments.input)) return 1;
    if (fileKind(arguments.input) == FILE_DEFAULTS) {
        for (const OwnedList& record : defaultRecords) printBelow(record.get());
        return 0;
    }
    for (const WidgetNode* form = project.forms; form; form = form->next) printBelow(form);
    return 0;
}
