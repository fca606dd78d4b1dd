#include "editing/rename.h"

#include "project/host.h"
#include "project/language.h"
#include "project/tree.h"

#include <cctype>

namespace {

bool sameLetter(char a, char b) {
    if (languageOfProject().caseMatters) return a == b;
    return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
}

size_t findName(const std::string& code, const std::string& name, size_t from) {
    for (size_t at = from; at + name.size() <= code.size(); ++at) {
        size_t same = 0;
        while (same < name.size() && sameLetter(code[at + same], name[same])) ++same;
        if (same == name.size()) return at;
    }
    return std::string::npos;
}

struct Rename {
    const std::string& from;
    const std::string& to;
    bool replacing; // else hits are only counted
    int hits = 0;

    void in(std::string& code) {
        for (size_t at = findName(code, from, 0); at != std::string::npos;) {
            ++hits;
            if (replacing) code.replace(at, from.size(), to);
            at = findName(code, from, at + (replacing ? to.size() : from.size()));
        }
    }
};

// All code of the project: the blocks, the slots of the widgets, then those of menu and tree entries.
int walk(const std::string& from, const std::string& to, bool replacing) {
    Rename rename{from, to, replacing};
    for (CodeBlock& block : project.codeBlocks) rename.in(block);
    for (WidgetNode* node = project.forms; node; node = walkList(node, project.forms))
        for (CallbackSlot& slot : node->slots) rename.in(slot);
    for (WidgetNode* node = project.forms; node; node = walkList(node, project.forms))
        for (MenuEntryRec& entry : node->entries)
            for (CallbackSlot& slot : entry.slots) rename.in(slot);
    return rename.hits;
}

} // namespace

int renameInCode(const std::string& from, const std::string& to) {
    if (from.empty()) return 0;
    const int hits = walk(from, to, false);
    if (hits == 0) return 0;
    const std::string question = std::to_string(hits) + " occurance(s) of the old widget name: " + from +
                                 "|have been found in the user code and callback code blocks||Do you want to change "
                                 "them all to the new widget name: " +
                                 to + "?";
    if (host.messageBox("Update Code Blocks", question, BOX_QUESTION, BOX_YES_NO) != ANSWER_YES) return 0;
    return walk(from, to, true);
}
