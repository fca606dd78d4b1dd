#include "codegen/check_names.h"

#include "codegen/library_names.h"

#include "project/tree.h"

#include <algorithm>
#include <cctype>
#include <unordered_map>

namespace {

constexpr std::size_t FORTRAN_NAME_LIMIT = 63;

// Words that no variable of a C++ source may have for a name.
constexpr std::string_view C_KEYWORDS[] = {
    "alignas",   "alignof",  "and",      "and_eq",    "asm",          "auto",          "bitand",
    "bitor",     "bool",     "break",    "case",      "catch",        "char",          "char16_t",
    "char32_t",  "class",    "compl",    "const",     "const_cast",   "constexpr",     "continue",
    "decltype",  "default",  "delete",   "do",        "double",       "dynamic_cast",  "else",
    "enum",      "explicit", "export",   "extern",    "false",        "float",         "for",
    "friend",    "goto",     "if",       "inline",    "int",          "long",          "mutable",
    "namespace", "new",      "noexcept", "not",       "not_eq",       "nullptr",       "operator",
    "or",        "or_eq",    "private",  "protected", "public",       "register",      "reinterpret_cast",
    "return",    "short",    "signed",   "sizeof",    "static",       "static_assert", "static_cast",
    "struct",    "switch",   "template", "this",      "thread_local", "throw",         "true",
    "try",       "typedef",  "typeid",   "typename",  "union",        "unsigned",      "using",
    "virtual",   "void",     "volatile", "wchar_t",   "while",        "xor",           "xor_eq"};

// Names that the generated program declares itself.
constexpr std::string_view OWN_NAMES_90[] = {"wdesign",    "menu_f90", "callid",         "getmasterformid",
                                             "owdactlist", "istbar",   "slider_attribs", "arrayattribs"};
constexpr std::string_view OWN_NAMES_77[] = {"wdesign", "menu_f77", "callid", "oident", "istbar"};
constexpr std::string_view OWN_NAMES_C[] = {"callid", "main"};

std::string lowered(std::string_view text) {
    std::string result(text);
    for (char& c : result) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return result;
}

bool isFortran() { return project.projectLanguage != 99; }

// What the compiler takes for the same name.
std::string sameName(std::string_view name) { return isFortran() ? lowered(name) : std::string(name); }

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
    constexpr const char* LIBRARY = "a routine or constant of the library";
    if (project.projectLanguage == 77) {
        take(OWN_NAMES_77, PROGRAM);
        take(fixedLibraryNames(), LIBRARY);
    } else {
        take(isFortran() ? std::span<const std::string_view>(OWN_NAMES_90) : OWN_NAMES_C, PROGRAM);
        if (!isFortran()) take(C_KEYWORDS, "the language as a reserved word");
        take(libraryNames(), LIBRARY);
    }
    for (const WidgetNode* form = project.forms; form != nullptr; form = form->next) {
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
        if (isFortran() && name.size() > FORTRAN_NAME_LIMIT) {
            complain(form, name, "a Fortran name has at most 63 characters; shorten it");
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
    for (const WidgetNode* node = project.forms; node != nullptr; node = walkList(node, project.forms)) {
        if (node->parent == nullptr) form = node;
        names.check(*form, node->name);
        if (node->type == TYPE_FORM && node->statusBar != nullptr) names.check(*form, node->statusBar->name);
        for (const MenuEntryRec* entry = node->entries; entry != nullptr; entry = entry->next) {
            const bool structure = entry->kind == MENU_BAR || entry->kind == MENU_PULL_DOWN;
            if (node->type != TYPE_TREE_VIEW || !structure) names.check(*form, entry->name);
        }
    }
}
