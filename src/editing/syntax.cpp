#include "editing/syntax.h"

#include "menu-c.h"
#include "platform/environment.h"
#include "platform/paths.h"
#include "project/host.h"

#include <string>

namespace {

constexpr char USER_FILE[] = "wdesign.syn", DELIVERED_FILE[] = "defaults.syn";

constexpr char TITLE[] = "Load Syntax Attributes";

// False when the file is none of attributes; what is in force then stays.
bool take(const std::string& path) { return owLoadSyntaxKeywords(path.c_str()) == 1; }

} // namespace

bool loadSyntaxAttributes() {
    const std::string candidates[] = {USER_FILE, joinPath(folders.dataDir, USER_FILE), DELIVERED_FILE,
                                      joinPath(folders.installDir, DELIVERED_FILE)};
    std::string damaged;
    for (const std::string& path : candidates) {
        if (!pathExists(path)) continue;
        if (fileReadable(path) && take(path)) {
            if (!damaged.empty())
                host.infoBox(TITLE, damaged + " holds no syntax attributes.|Those of " + path + " are in force.");
            return true;
        }
        if (damaged.empty()) damaged = path;
    }
    const std::string why = damaged.empty() ? "" : damaged + " holds no syntax attributes.|";
    host.infoBox(TITLE, why + "Cannot find defaults.syn.|Syntax highlighting not available");
    return false;
}
