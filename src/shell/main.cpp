#include "shell/designer.h"

#include <string>

namespace {

// The arguments as one line, as if the shell had not split them: a project name with blanks needs no quotes here.
std::string commandLine(int argc, char** argv) {
    if (argc < 2) return {};
    const std::string first = argv[1];
    return first.find(' ') == std::string::npos || first.front() == '"' ? first : '"' + first + '"';
}

} // namespace

int main(int argc, char** argv) { return runDesigner(commandLine(argc, argv)); }
