#include "editing/catalogue.h"

#include "project/language.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace {

bool isC(int language) { return languageFacts(language).family == LanguageFamily::C; }

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    while (!text.empty()) {
        const size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        text = end == std::string_view::npos ? "" : text.substr(end + 1);
    }
    return parts;
}

std::string folded(std::string_view name, int language) {
    std::string key(name);
    if (!languageFacts(language).caseMatters)
        std::ranges::transform(key, key.begin(), [](unsigned char c) { return std::tolower(c); });
    return key;
}

using Index = std::map<std::string, const CatalogueRoutine*, std::less<>>;

Index indexOf(int language) {
    Index index;
    for (const CatalogueFolder& folder : catalogueOf(language))
        for (const CatalogueRoutine& routine : folder.routines)
            index.emplace(folded(routine.name, language), &routine); // the first row of a name
    return index;
}

// "( , , )": a blank for each value, or its name when the language takes arguments by name.
std::string emptyArguments(const CatalogueRoutine& routine, int language, bool prompts) {
    std::string list;
    const auto add = [&list](const std::string& value) { list += (list.empty() ? "" : ",") + value; };
    for (const CatalogueArgument& argument : argumentsOf(routine)) {
        add(prompts ? std::string(argument.name) + "= " : " ");
        if (argument.filled && isC(language)) add(" "); // its length
    }
    if (isC(language) && *routine.keywords) add(" 0");
    return "(" + list + ")";
}

} // namespace

const CatalogueRoutine* findRoutine(std::string_view name, int language) {
    static std::map<int, Index> indices;
    Index& index = indices[language];
    if (index.empty()) index = indexOf(language);
    const auto row = index.find(folded(name, language));
    return row == index.end() ? nullptr : row->second;
}

std::vector<CatalogueArgument> argumentsOf(const CatalogueRoutine& routine) {
    std::vector<CatalogueArgument> arguments;
    for (const std::string_view one : split(routine.arguments, ',')) {
        const size_t blank = one.find(' ');
        CatalogueArgument argument{one.substr(0, blank), one.substr(blank + 1), one.back() == '*'};
        if (argument.filled) argument.type.remove_suffix(1);
        arguments.push_back(argument);
    }
    return arguments;
}

std::vector<std::string_view> keywordsOf(const CatalogueRoutine& routine) {
    std::vector<std::string_view> keywords;
    for (const std::string_view keyword : split(routine.keywords, ' ')) {
        if (keyword == "*")
            keywords.insert(keywords.end(), propertyKeywords().begin(), propertyKeywords().end());
        else
            keywords.push_back(keyword);
    }
    return keywords;
}

Signature signatureOf(const CatalogueRoutine& routine, int language) {
    Signature signature{.text = "(", .arguments = {}};
    const auto add = [&signature](const std::string& argument) {
        if (!signature.arguments.empty()) signature.text += ", ";
        const size_t start = signature.text.size();
        signature.text += argument;
        signature.arguments.push_back({start, signature.text.size()});
    };
    for (const CatalogueArgument& argument : argumentsOf(routine)) {
        add(std::string(argument.name) + ": " + std::string(argument.type));
        if (argument.filled && isC(language)) add(std::string(argument.name) + "Length: Integer");
    }
    if (*routine.keywords) signature.text += "... ";
    signature.text += ")";
    return signature;
}

Insertion insertionFor(const CatalogueRoutine& routine, int language, bool prompts) {
    const bool f77 = language == LANGUAGE_F77;
    const bool named = prompts && language == LANGUAGE_F90;
    const std::string name = routine.name;
    std::string arguments = emptyArguments(routine, language, named);
    if (f77 && arguments == "()") arguments.clear();
    std::string text = name + arguments;
    if (routine.returns)
        text = " = " + text; // the receiver is typed in front
    else if (!isC(language))
        text = (f77 ? "CALL " : "call ") + text;
    if (isC(language)) text += ";";
    size_t caret = std::min(text.find(name) + name.size() + 1, text.size());
    if (const size_t equals = text.find('=', caret); named && equals != std::string::npos) caret = equals + 1;
    return {text, static_cast<int>(caret)};
}

Insertion insertionForGenerate(int language) {
    const std::string call = "Generate()";
    const char* word = isC(language) ? "" : language == LANGUAGE_F77 ? "CALL " : "call ";
    const std::string text = word + call + (isC(language) ? ";" : "");
    constexpr size_t BRACKETS = 2;
    return {text, static_cast<int>(text.find(call) + call.size() - BRACKETS)};
}
