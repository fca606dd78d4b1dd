// Writes the example projects and what new projects begin with:
//     make_examples FOLDER
// puts FOLDER/heat/heat.wdp and so on there, and FOLDER/templates/tool_f90.wdp.
#include "examples.h"

#include "project/files.h"

#include <cstdio>
#include <filesystem>

int main(int count, char** words) {
    if (count != 2) {
        std::fprintf(stderr, "usage: make_examples FOLDER\n");
        return 1;
    }
    for (const example::Row& row : example::examples) {
        const std::filesystem::path folder = std::filesystem::path(words[1]) / row.name;
        std::filesystem::create_directories(folder);
        row.make();
        if (!saveProject(folder.string(), std::string(row.name) + ".wdp", true)) return 1;
        std::printf("%s\n", (folder / row.name).string().c_str());
    }
    const std::filesystem::path folder = std::filesystem::path(words[1]) / "templates";
    std::filesystem::create_directories(folder);
    for (const example::TemplateRow& row : example::templates)
        for (const int language : {90, 99}) {
            row.make(language);
            const std::string name = std::string(row.name) + (language == 99 ? "_c.wdp" : "_f90.wdp");
            if (!saveProject(folder.string(), name, true)) return 1;
            std::printf("%s\n", (folder / name).string().c_str());
        }
    return 0;
}
