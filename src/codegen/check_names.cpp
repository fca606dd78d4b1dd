#include "codegen/check_names.h"

#include "codegen/generation.h"

#include "project/tree.h"

#include <algorithm>
#include <cctype>
#include <unordered_map>

namespace {

std::string lowered(std::string_view text) {
    std::string result(text);
    for (char& c : result) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return result;
}

// What the compiler takes for the same name.
std::string sameName(std::string_view name) {
    return languageOfProject().caseMatters ? std::string(name) : lowered(name);
}

bool isIdentifier(std::string_view name) {
    const auto letter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    const auto follows = [&](char c) { return letter(c) || (c >= '0' && c <= '9') || c == '_'; };
    return !name.empty() && letter(name[0]) && std::all_of(name.begin(), name.end(), follows);
}

// Names that are taken before the first widget, with what has taken them.
std::unordered_map<std::string, std::string> takenNames() {
    std::unordered_map<std::string, std::string> taken;
    const auto take = [&](std::span<const std::string_view> names, const char* by) {
        for (const std::string_view name : names) taken.emplace(sameName(name), by);
    };
    constexpr const char* PROGRAM = "the generated program itself";
    const Language& language = languageOf(project.projectLanguage);
    take(language.ownNames, PROGRAM);
    take(language.reservedWords, "the language as a reserved word");
    take(language.libraryNames(), "a routine or constant of the library");
    for (const WidgetNode* form = project.forms; form; form = form->next) {
        taken.emplace(sameName("Generate" + form->name), PROGRAM);
    }
    return taken;
}

struct NameCheck {
    std::vector<Complaint>& complaints;
    std::unordered_map<std::string, std::string> taken;

    void complain(const WidgetNode& form, std::string_view name, std::string message) {
        complaints.push_back({form.name, std::string(name), "Name", std::move(message)});
    }

    void check(const WidgetNode& form, std::string_view name) {
        if (!isIdentifier(name)) {
            complain(form, name,
                     "a name begins with a letter and goes on with letters, digits and underscores; change it");
            return;
        }
        const std::size_t limit = languageOfProject().nameLimit;
        if (limit > 0 && name.size() > limit) {
            complain(form, name, "a Fortran name has at most " + std::to_string(limit) + " characters; shorten it");
        }
        const auto [place, fresh] = taken.emplace(sameName(name), "\"" + std::string(name) + "\"");
        if (fresh) return;
        const bool byCase = place->second.front() == '"' && place->second != "\"" + std::string(name) + "\"";
        complain(form, name,
                 "this name is taken by " + place->second + (byCase ? ", from which it differs only in case" : "") +
                     "; change it");
    }
};

} // namespace

void checkNames(std::vector<Complaint>& complaints) {
    NameCheck names{complaints, takenNames()};
    const WidgetNode* form = nullptr;
    for (const WidgetNode* node = project.forms; node; node = walkList(node, project.forms)) {
        if (!node->parent) form = node;
        names.check(*form, node->name);
        if (node->type == TYPE_FORM && node->statusBar) names.check(*form, node->statusBar->name);
        for (const MenuEntryRec& entry : node->entries) {
            const bool structure = entry.kind == MENU_BAR || entry.kind == MENU_PULL_DOWN;
            if (node->type != TYPE_TREE_VIEW || !structure) names.check(*form, entry.name);
        }
    }
}
