#include "editing/syntax.h"

#include "menu-c.h"
#include "platform/environment.h"
#include "platform/paths.h"
#include "project/host.h"

#include <array>
#include <set>
#include <vector>

SyntaxAttributes syntaxAttributes(int category) {
    constexpr int FACE_BYTES = 256;
    SyntaxAttributes found;
    char face[FACE_BYTES] = "";
    owEnqSyntaxFont(category, owLength, FACE_BYTES, owFontFace, face, owTextCol, &found.colour, owBold, &found.bold,
                    owItalic, &found.italic, owUnderline, &found.underline, owStrikeout, &found.strikeout, 0);
    found.face = face;
    return found;
}

void setSyntaxAttributes(int category, const SyntaxAttributes& attributes) {
    owSetSyntaxFont(category, owFontFace, attributes.face.c_str(), owTextCol, attributes.colour, owBold,
                    attributes.bold, owItalic, attributes.italic, owUnderline, attributes.underline, owStrikeout,
                    attributes.strikeout, 0);
}

namespace {

constexpr char USER_FILE[] = "wdesign.syn", DELIVERED_FILE[] = "defaults.syn";

using Paths = std::vector<std::string>;

Paths userPaths() { return {USER_FILE, joinPath(folders.dataDir, USER_FILE)}; }
Paths deliveredPaths() {
    return {DELIVERED_FILE, joinPath(folders.dataDir, DELIVERED_FILE), joinPath(folders.installDir, DELIVERED_FILE)};
}

using AllAttributes = std::array<SyntaxAttributes, SYNTAX_CATEGORIES>;

AllAttributes attributesInForce() {
    AllAttributes all;
    for (int category = 0; category < SYNTAX_CATEGORIES; ++category) all[category] = syntaxAttributes(category);
    return all;
}

// Only those that differ, as each change colours all code anew.
void putInForce(const AllAttributes& all) {
    for (int category = 0; category < SYNTAX_CATEGORIES; ++category)
        if (all[category] != syntaxAttributes(category)) setSyntaxAttributes(category, all[category]);
}

// Loads the first of the files that is one of attributes and returns its path, else nothing with all as it was.
// `damaged` becomes the first one ahead of it that is none.
std::string loadFirst(const Paths& paths, std::string& damaged) {
    for (const std::string& path : paths) {
        if (!pathExists(path)) continue;
        if (fileReadable(path) && owLoadSyntaxKeywords(path.c_str()) == 1) return path;
        if (damaged.empty()) damaged = path;
    }
    return {};
}

std::string damageWords(const std::string& damaged) {
    return damaged.empty() ? "" : damaged + " holds no syntax attributes.|";
}

void tellNotFound(const char* title, const std::string& damaged) {
    host.infoBox(title, damageWords(damaged) + "Cannot find defaults.syn.|Syntax highlighting not available");
}

void tellDamaged(const char* title, const std::string& damaged, const std::string& taken) {
    static std::set<std::string> told;
    if (!damaged.empty() && told.insert(damaged).second)
        host.infoBox(title, damageWords(damaged) + "Those of " + taken + " are in force.");
}

} // namespace

bool loadSyntaxAttributes() {
    constexpr char TITLE[] = "Load Syntax Attributes";
    std::string damaged;
    const std::string user = loadFirst(userPaths(), damaged);
    const AllAttributes own = attributesInForce();
    const std::string delivered = loadFirst(deliveredPaths(), damaged);
    if (user.empty() && delivered.empty()) {
        tellNotFound(TITLE, damaged);
        return false;
    }
    if (!user.empty()) putInForce(own);
    tellDamaged(TITLE, damaged, user.empty() ? delivered : user);
    return true;
}

bool loadDefaultSyntaxAttributes() {
    constexpr char TITLE[] = "Load Default Syntax Attributes";
    std::string damaged;
    const std::string delivered = loadFirst(deliveredPaths(), damaged);
    if (delivered.empty()) {
        tellNotFound(TITLE, damaged);
        return false;
    }
    tellDamaged(TITLE, damaged, delivered);
    return true;
}

bool saveSyntaxAttributes() {
    const std::string path = folders.dataDir.empty() ? USER_FILE : joinPath(folders.dataDir, USER_FILE);
    const AllAttributes all = attributesInForce();
    std::string damaged;
    const std::string words = loadFirst(deliveredPaths(), damaged);
    // Without a delivered file the words in force are all there are, and go into the user's.
    if (!words.empty()) owInitializeSyntaxTree();
    putInForce(all);
    const bool saved = owSaveSyntaxKeywords(path.c_str()) == 1;
    if (!words.empty()) {
        owLoadSyntaxKeywords(words.c_str());
        putInForce(all);
    }
    if (!saved) host.infoBox("Save Syntax Attributes", "Cannot open wdesign.syn to save attributes");
    return saved;
}
