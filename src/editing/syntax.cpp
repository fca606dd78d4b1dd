#include "editing/syntax.h"

#include "menu-c.h"
#include "platform/environment.h"
#include "platform/paths.h"

#include <fstream>
#include <string>

namespace {

constexpr char USER_FILE[] = "wdesign.syn", DELIVERED_FILE[] = "defaults.syn";

bool canBeRead(const std::string& path) { return std::ifstream(path).good(); }

} // namespace

bool loadSyntaxAttributes() {
    const std::string candidates[] = {USER_FILE, joinPath(folders.dataDir, USER_FILE), DELIVERED_FILE,
                                      joinPath(folders.installDir, DELIVERED_FILE)};
    for (const std::string& path : candidates) {
        if (!canBeRead(path)) continue;
        owInitializeSyntaxTree();
        return owLoadSyntaxKeywords(path.c_str()) == 1;
    }
    return false;
}
