// Writes the first corpus: small files of every version and kind.
//   make_seeds FOLDER
#include "project/defaults.h"
#include "project/tree.h"
#include "support/file_writer.h"
#include "support/sample_project.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace {

void write(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 1;
    const std::string folder = argv[1];
    for (const char* kind : {"project", "form", "defaults"}) std::filesystem::create_directories(folder + "/" + kind);
    std::mt19937 random(1);
    for (int version : {10, 20, 21, 30, 40, 50, 51, 70, 71, 75, 80}) {
        FileImage image;
        image.version = version;
        const std::string name = "/v" + std::to_string(version);
        freshProject();
        write(folder + "/project" + name + "-small", encodeProject(image, project));
        if (version >= 30) {
            write(folder + "/form" + name + "-small", encodeForm(image, project.forms, 10, 10));
            makeDefaults();
            std::vector<const WidgetNode*> records;
            for (const OwnedList& record : defaultRecords) records.push_back(record.get());
            write(folder + "/defaults" + name, encodeDefaults(image, records));
        }
        randomProject(random, 1, 3);
        for (WidgetNode* n = project.forms; n; n = walkList(n, project.forms)) // long texts only slow the search down
            for (std::string& slot : n->slots) slot.resize(std::min<std::size_t>(slot.size(), 40));
        write(folder + "/project" + name, encodeProject(image, project));
        if (version >= 30) write(folder + "/form" + name, encodeForm(image, project.forms, 10, 10));
    }
    freshProject();
    write(folder + "/project/cut", encodeProject(FileImage(), project).substr(0, 3000));
    resetProject();
    freeDefaults();
    return 0;
}
