// Writes the rows of the catalogue of routines that the code editor offers:
//     catalogue LIST MENU-C.H MENU_F77.F90 > catalogue_rows.cpp
//
// LIST gives the names and folders; the arguments come from the function table, for Fortran 77 from its module, and
// what a routine is about from the comments beside the declarations. So no signature stands twice, and a name in LIST
// that the library does not have ends the build.
#include "toolkit/bindgen/signature.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>

namespace {

using namespace orba;

struct Routine {
    std::string name;
    std::string arguments =
        {}; // "name type" parted by commas; a type that ends in '*' is a text that the routine fills
    std::string about = {};
    std::string keywords = {}; // parted by blanks; "*" stands for every property
    bool available = true;
    bool returns = false;
};

using Routines = std::map<std::string, Routine>;

std::string readFile(const char* path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string quoted(const std::string& text) {
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') out += '\\';
        out += c;
    }
    return out + '"';
}

// One line of the words of a comment, up to the first full stop, semicolon or aside.
std::string firstSentence(std::string comment) {
    comment = std::regex_replace(comment, std::regex(R"(\s+)"), " ");
    const std::size_t end = std::min(comment.find(". "), comment.find("; "));
    comment = comment.substr(0, end);
    while (!comment.empty() && std::strchr(" .;", comment.back())) comment.pop_back();
    return comment.substr(comment.find_first_not_of(' ') == std::string::npos ? 0 : comment.find_first_not_of(' '));
}

// ------------------------------------------------------------------------------------------------- Fortran 90 and C

std::string catalogueType(std::string type) {
    static constexpr const char* rows[][2] = {
        {"int", "Integer"}, {"int*", "Integer"},   {"ints", "Integer"}, {"ints*", "Integer"},  {"real", "Real"},
        {"real*", "Real"},  {"double*", "Double"}, {"reals", "Real"},   {"text", "Character"}, {"buffer", "Character*"},
    };
    for (const auto& row : rows)
        if (type == row[0]) return row[1];
    if (type.starts_with("const ")) type = type.substr(6);
    std::erase(type, '*');
    return type; // a record
}

std::string keywordsOf(const FunctionRow& row) {
    std::string names;
    for (const int* number = row.keywords; *number != 0; ++number) {
        const std::string name = *number == ANY ? "*" : keywordRow(*number)->name;
        if (*number == owLength) continue; // goes with each text by itself, in C it is written
        names += (names.empty() ? "" : " ") + name;
    }
    return names;
}

// What stands in a comment behind the declaration of a routine.
std::string commentOf(const std::string& header, const std::string& name) {
    for (std::size_t at = header.find(name + "("); at != std::string::npos; at = header.find(name + "(", at + 1)) {
        const bool declared = at > 0 && header[at - 1] == ' ' &&
                              (header.compare(at - 4, 4, "int ") == 0 || header.compare(at - 5, 5, "void ") == 0);
        if (!declared) continue;
        const std::size_t end = header.find(';', at), line = header.find('\n', end);
        const std::size_t open = header.find("/*", end);
        if (open >= line) return {};
        return firstSentence(header.substr(open + 2, header.find("*/", open) - open - 2));
    }
    return {};
}

Routines routinesOfTable(const std::string& header) {
    Routines all;
    for (int i = 0; i < static_cast<int>(Fn::count); ++i) {
        const FunctionRow& row = functionRow(static_cast<Fn>(i));
        Routine routine{.name = row.name};
        if (routine.name == "oEnqDrawingLimitsAt") routine.name = "oEnqDrawingLimits"; // under which programs call it
        for (const Parameter& parameter : parametersOf(row)) {
            if (parameter.type == "length") continue;
            routine.arguments +=
                (routine.arguments.empty() ? "" : ",") + parameter.name + " " + catalogueType(parameter.type);
        }
        routine.keywords = keywordsOf(row);
        routine.returns = row.result != Result::NONE;
        routine.about = commentOf(header, row.name);
        all[routine.name] = routine;
    }
    return all;
}

// --------------------------------------------------------------------------------------------------- Fortran 77

std::string typeOfDeclaration(const std::string& line) {
    static constexpr const char* rows[][2] = {
        {"integer", "Integer"}, {"real", "Real"}, {"double", "Double"}, {"character", "Character"}};
    for (const auto& row : rows)
        if (line.starts_with(row[0])) return row[1];
    const std::size_t open = line.find('(');
    return line.starts_with("type(") ? line.substr(open + 1, line.find(')') - open - 1) : "";
}

std::vector<std::string> wordsOf(const std::string& text) {
    static const std::regex name(R"([A-Za-z]\w*)");
    return {std::sregex_token_iterator(text.begin(), text.end(), name), {}};
}

// The public routines of the module, in the order in which it declares them public. Those that it only renames are told
// by the table.
std::vector<Routine> routinesOfModule(const std::string& module, const Routines& table) {
    std::vector<std::string> order;
    Routines found;
    Routine* open = nullptr;
    std::map<std::string, std::string> types;
    std::vector<std::string> arguments;
    std::string comment;
    const auto close = [&] {
        if (!open) return;
        for (const std::string& argument : arguments)
            open->arguments += (open->arguments.empty() ? "" : ",") + argument + " " + types[argument];
        open = nullptr;
    };
    static const std::regex head(R"(^(integer function|subroutine) (\w+)\s*\(([^)]*)\))");
    static const std::regex declaration(R"(^ +([^!]*?)\s*::\s*(.*)$)");
    static const std::regex renaming(R"((\w+) => (\w+))");
    std::stringstream lines(module);
    for (std::string line; std::getline(lines, line);) {
        std::smatch match;
        for (std::sregex_iterator name(line.begin(), line.end(), renaming), end; name != end; ++name) {
            Routine& routine = found[(*name)[1]] = table.at((*name)[2]);
            routine.name = (*name)[1];
            routine.keywords.clear();
        }
        if (line.starts_with("   public :: ")) {
            for (const std::string& name : wordsOf(line.substr(13))) order.push_back(name);
        } else if (std::regex_search(line, match, head)) {
            close();
            open = &found[match[2]];
            *open = {.name = match[2], .about = firstSentence(comment), .returns = match[1] != "subroutine"};
            arguments = wordsOf(match[3]);
            types.clear();
        } else if (open && line.starts_with("end ")) {
            close();
        } else if (open && std::regex_search(line, match, declaration)) {
            for (const std::string& name : wordsOf(match[2])) types.emplace(name, typeOfDeclaration(match[1]));
        }
        comment = !line.starts_with("! ") || line.starts_with("! ---") ? "" : comment + line.substr(1);
    }
    std::vector<Routine> routines;
    for (const std::string& name : order)
        if (found.contains(name)) routines.push_back(found[name]);
    return routines;
}

// -------------------------------------------------------------------------------------------------------- the list

struct Folder {
    std::string icon, first, label;
    std::vector<Routine> routines;
};

struct Catalogue {
    std::string languages; // numbers, parted by blanks
    std::vector<Folder> folders;
};

struct List {
    std::vector<Catalogue> catalogues;
    std::set<std::string> hidden;
    std::string fault;
};

List readList(const std::string& text, const std::vector<Routine>& table, const std::vector<Routine>& module) {
    List list;
    std::stringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        std::stringstream words(line);
        std::string word;
        if (!(words >> word) || word[0] == '#') continue;
        if (word == "language") {
            list.catalogues.push_back({line.substr(word.size() + 1), {}});
        } else if (word == "folder") {
            Folder folder;
            words >> folder.icon >> folder.first >> std::ws;
            std::getline(words, folder.label);
            list.catalogues.back().folders.push_back(folder);
        } else if (word == "hidden") {
            while (words >> word) list.hidden.insert(word);
        } else {
            do {
                const bool mayLack = word[0] == '-';
                const std::string name = word.substr(mayLack ? 1 : 0);
                const std::vector<Routine>& library = list.catalogues.back().languages == "77" ? module : table;
                const auto row = std::ranges::find(library, name, &Routine::name);
                if (row == library.end() && !mayLack) list.fault = name;
                list.catalogues.back().folders.back().routines.push_back(
                    row != library.end() ? *row : Routine{.name = name, .available = false});
            } while (words >> word);
        }
    }
    return list;
}

// Routines of the library that nobody listed, each to the folder whose names begin as it does.
void appendUnlisted(Catalogue& catalogue, const std::set<std::string>& hidden, const std::vector<Routine>& library) {
    std::set<std::string> listed = hidden;
    for (const Folder& folder : catalogue.folders)
        for (const Routine& routine : folder.routines) listed.insert(routine.name);
    for (const Routine& routine : library) {
        if (listed.contains(routine.name)) continue;
        Folder* home = nullptr;
        for (Folder& folder : catalogue.folders) {
            const bool fits = folder.first == "*" || routine.name.starts_with(folder.first);
            if (fits && (!home || folder.first.size() > home->first.size())) home = &folder;
        }
        if (home) home->routines.push_back(routine);
    }
}

void writeCatalogue(const Catalogue& catalogue, int number) {
    std::size_t i = 0;
    for (const Folder& folder : catalogue.folders) {
        std::printf("constexpr std::array<CatalogueRoutine, %zu> FOLDER_%d_%zu{{\n", folder.routines.size(), number,
                    i++);
        for (const Routine& routine : folder.routines)
            std::printf("    {%s, %s, %s, %s, %s, %s},\n", quoted(routine.name).c_str(),
                        quoted(routine.arguments).c_str(), quoted(routine.keywords).c_str(),
                        quoted(routine.about).c_str(), routine.available ? "true" : "false",
                        routine.returns ? "true" : "false");
        std::printf("}};\n");
    }
    std::printf("constexpr CatalogueFolder FOLDERS_%d[] = {\n", number);
    for (i = 0; i < catalogue.folders.size(); ++i)
        std::printf("    {%s, %s, FOLDER_%d_%zu},\n", quoted(catalogue.folders[i].label).c_str(),
                    quoted(catalogue.folders[i].icon).c_str(), number, i);
    std::printf("};\n\n");
}

void writeLookups(const List& list) {
    std::printf("} // namespace\n\nstd::span<const CatalogueFolder> catalogueOf(int language) {\n    switch (language) "
                "{\n");
    for (std::size_t i = 0; i < list.catalogues.size(); ++i) {
        std::stringstream numbers(list.catalogues[i].languages);
        for (int language; numbers >> language;) std::printf("    case %d: return FOLDERS_%zu;\n", language, i);
    }
    std::printf("    default: return {};\n    }\n}\n\nstd::span<const char* const> propertyKeywords() {\n"
                "    static constexpr const char* names[] = {\n");
    int count = 0;
    const KeywordRow* rows = keywordRows(&count);
    for (int i = 0; i < count; ++i)
        if (rows[i].property != 0 && std::strncmp(rows[i].name, "owKeyword", 9) != 0)
            std::printf("        \"%s\",\n", rows[i].name);
    std::printf("    };\n    return names;\n}\n");
}

} // namespace

int main(int count, char** words) {
    if (count != 4) {
        std::fprintf(stderr, "usage: catalogue LIST MENU-C.H MENU_F77.F90 > catalogue_rows.cpp\n");
        return 1;
    }
    const Routines byName = routinesOfTable(readFile(words[2]));
    std::vector<Routine> table;
    for (const auto& [name, routine] : byName) table.push_back(routine);
    const std::vector<Routine> module = routinesOfModule(readFile(words[3]), byName);
    List list = readList(readFile(words[1]), table, module);
    if (!list.fault.empty()) {
        std::fprintf(stderr, "%s: %s is no routine of the library; write -%s if it is to be listed all the same\n",
                     words[1], list.fault.c_str(), list.fault.c_str());
        return 1;
    }
    std::printf("// Written by bindgen from the list of the catalogue and the function table. Changes belong there.\n"
                "#include \"editing/catalogue.h\"\n\n#include <array>\n\nnamespace {\n\n");
    for (std::size_t i = 0; i < list.catalogues.size(); ++i) {
        appendUnlisted(list.catalogues[i], list.hidden, list.catalogues[i].languages == "77" ? module : table);
        writeCatalogue(list.catalogues[i], static_cast<int>(i));
    }
    writeLookups(list);
    return 0;
}
