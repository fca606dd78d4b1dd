// wdgen: the generator without a display, for makefiles and reviewers.

#include "batch_host.h"
#include "upgrade.h"

#include "codegen/check.h"
#include "codegen/generate.h"
#include "platform/environment.h"
#include "platform/paths.h"
#include "project/files.h"
#include "project/language.h"

#include <cstdio>

namespace {

constexpr char USAGE[] =
    "usage: wdgen PROJECT [-o SOURCE]     write the source program, its manifest and resource script\n"
    "       wdgen --stdout PROJECT        print the source program alone\n"
    "       wdgen --check PROJECT         list what a compiler or linker would reject\n"
    "       wdgen --upgrade FILE -o FILE [--x-windows]\n"
    "       wdgen --list FILE\n";

enum Action { WRITE, PRINT, CHECK };

struct Options {
    Action action = WRITE;
    std::string projectPath;
    std::string sourcePath; // empty for the project's own
    bool valid = true;
};

Options parse(const std::vector<std::string>& words) {
    Options options;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (word == "--stdout") {
            options.action = PRINT;
        } else if (word == "--check") {
            options.action = CHECK;
        } else if (word == "-o" && i + 1 < words.size()) {
            options.sourcePath = words[++i];
        } else if (options.projectPath.empty() && !word.empty() && word[0] != '-') {
            options.projectPath = word;
        } else {
            options.valid = false;
        }
    }
    options.valid = options.valid && !options.projectPath.empty();
    return options;
}

// The project's own source where its folder is there, else the project's name beside the project.
std::string ownSource() {
    const std::string& stored = project.storedSource;
    if (!stored.empty() && (folderOf(stored).empty() || folderExists(folderOf(stored)))) return stored;
    return joinPath(std::string_view(project.projectDir), project.projectTitle + languageOfProject().extension);
}

int printSource(const std::string& path) {
    GeneratedText generated;
    bool whole = true;
    const TextSink toOutput = [&](std::string_view piece) {
        whole = whole && std::fwrite(piece.data(), 1, piece.size(), stdout) == piece.size();
    };
    if (!generateText(path, generated, toOutput)) {
        std::fputs("wdgen: the project has no master form, so there is no program to generate\n", stderr);
        return 1;
    }
    if (whole && std::fflush(stdout) == 0) return 0;
    std::fputs("wdgen: the source could not be written to the end\n", stderr);
    return 1;
}

int printComplaints() {
    const std::vector<Complaint> complaints = checkProject();
    for (const Complaint& complaint : complaints) std::printf("%s\n", complaintLine(complaint).c_str());
    return complaints.empty() ? 0 : 1;
}

int generateCommand(const std::vector<std::string>& words) {
    const Options options = parse(words);
    if (!options.valid) {
        std::fputs(USAGE, stderr);
        return 1;
    }
    useBatchHost();
    if (!loadProject(folderOf(options.projectPath), fileNameOf(options.projectPath))) return 1;
    folders.architectureText = environmentValue("PROCESSOR_ARCHITECTURE");
    if (options.action == CHECK) return printComplaints();
    const std::string path = options.sourcePath.empty() ? ownSource() : options.sourcePath;
    if (options.action == PRINT) return printSource(path);
    return generateSource(path, fileNameOf(path)) ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    std::vector<std::string> words(argv + 1, argv + argc);
    const std::string command = words.empty() ? "" : words[0];
    if (command == "--upgrade") return upgradeCommand({words.begin() + 1, words.end()});
    if (command == "--list") return listCommand({words.begin() + 1, words.end()});
    if (command == "--help") {
        std::fputs(USAGE, stdout);
        return 0;
    }
    return generateCommand(words);
}
