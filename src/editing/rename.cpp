#include "editing/rename.h"

#include "editing/all_code.h"
#include "project/host.h"
#include "project/language.h"
#include "project/tree.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <string_view>

namespace {

using NewNames = std::map<std::string, std::string>; // by the old one, in small letters where case does not matter

std::string keyOf(std::string_view name) {
    std::string key(name);
    if (!languageOfProject().caseMatters)
        std::ranges::transform(key, key.begin(), [](unsigned char c) { return std::tolower(c); });
    return key;
}

// The widget's own name and, of a form, those that followed it: they begin with the form's.
NewNames newNames(const std::string& from, const std::string& to) {
    NewNames names{{keyOf(from), to}};
    const WidgetNode* form = findName(project.forms, to, false);
    if (!form || form->type != TYPE_FORM) return names;
    const auto follow = [&](const std::string& name) {
        if (name.starts_with(to + "_")) names.emplace(keyOf(from + name.substr(to.size())), name);
    };
    for (const WidgetNode* node = project.forms; node; node = walkList(node, project.forms)) {
        follow(node->name);
        for (const MenuEntryRec& entry : node->entries) follow(entry.name);
    }
    return names;
}

Replaced renamed(const std::string& code, const NewNames& names) {
    Replaced result;
    for (size_t at = 0; at < code.size();) {
        size_t end = at;
        while (end < code.size() && isNamePart(code[end])) ++end;
        if (end == at) {
            result.code += code[at++];
            continue;
        }
        const std::string word = code.substr(at, end - at);
        const auto row = names.find(keyOf(word));
        result.code += row == names.end() ? word : row->second;
        if (row != names.end()) ++result.count;
        at = end;
    }
    return result;
}

} // namespace

int renameInCode(const std::string& from, const std::string& to) {
    if (from.empty()) return 0;
    const NewNames names = newNames(from, to);
    int hits = 0;
    eachCode([&](const CodePlace&, std::string& code) { hits += renamed(code, names).count; });
    if (hits == 0) return 0;
    const std::string question = std::to_string(hits) + " occurance(s) of the old widget name: " + from +
                                 "|have been found in the user code and callback code blocks||Do you want to change "
                                 "them all to the new widget name: " +
                                 to + "?";
    if (host.messageBox("Update Code Blocks", question, BOX_QUESTION, BOX_YES_NO) != ANSWER_YES) return 0;
    eachCode([&](const CodePlace&, std::string& code) {
        if (Replaced changed = renamed(code, names); changed.count > 0) code = std::move(changed.code);
    });
    return hits;
}
