// The file is text. A head line, then for each category its number and name, its attributes and its keywords:
//
//     ORBAWIDG syntax 1
//     category 5 Language
//     face Courier New
//     colour 0x010000C0
//     style bold underline
//     fortran allocate call do ...
//     c break case do ...
#include "toolkit/views/text/syntax_tree.h"

#include <QSaveFile>
#include <QString>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <fstream>
#include <map>
#include <sstream>
#include <vector>

namespace orba {
namespace {

constexpr std::string_view headLine = "ORBAWIDG syntax 1";
constexpr std::size_t lineWidth = 116; // keywords are wrapped here when saved
constexpr int trueColour = 0x1000000;

constexpr std::array<const char*, syntaxCategoryCount> categoryNames{
    "Plain Text", "Comments", "Fortran Strings", "C Strings", "Numerics", "Language", "Preprocessor", "Types",
    "Parameters", "ORBA",     "ORBAPLOT",        "ORBAMESH",  "ORBAWIDG", "Optionals"};

struct StyleWord {
    const char* word;
    bool SyntaxFont::*field;
};
constexpr std::array<StyleWord, 4> styleWords{{{"bold", &SyntaxFont::bold},
                                               {"italic", &SyntaxFont::italic},
                                               {"underline", &SyntaxFont::underline},
                                               {"strikeout", &SyntaxFont::strikeout}}};

using Words = std::unordered_map<std::string, SyntaxCategory>;
struct WordList {
    const char* name;
    Words SyntaxTree::*words;
    bool lowerCase;
};
constexpr std::array<WordList, 2> wordLists{{{"fortran", &SyntaxTree::fortran, true}, {"c", &SyntaxTree::c, false}}};

int revision = 0;

std::string lower(std::string_view word) {
    std::string text(word);
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return char(std::tolower(c)); });
    return text;
}

int readColour(std::string_view text) {
    int base = text.starts_with("0x") ? 16 : 10;
    if (base == 16) text.remove_prefix(2);
    int value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value, base);
    return value < 0 || value > 0x1FFFFFF ? 0 : value;
}

void readStyles(const std::string& rest, SyntaxFont& font) {
    std::istringstream words(rest);
    for (std::string word; words >> word;)
        for (const StyleWord& style : styleWords)
            if (word == style.word) font.*style.field = true;
}

void readLine(SyntaxTree& tree, int& category, const std::string& key, const std::string& rest) {
    if (key == "category") {
        int number = -1;
        std::from_chars(rest.data(), rest.data() + rest.size(), number);
        category = number >= 0 && number < syntaxCategoryCount ? number : -1;
        return;
    }
    if (category < 0) return;
    SyntaxFont& font = tree.fonts[category];
    if (key == "face") font.face = rest.substr(0, 255);
    if (key == "colour") font.colour = readColour(rest);
    if (key == "style") readStyles(rest, font);
    for (const WordList& list : wordLists) {
        if (key != list.name) continue;
        std::istringstream words(rest);
        for (std::string word; words >> word;)
            (tree.*list.words)[list.lowerCase ? lower(word) : word] = static_cast<SyntaxCategory>(category);
    }
}

void writeWords(std::ostream& out, const char* name, const std::vector<std::string>& words) {
    std::string line;
    for (const std::string& word : words) {
        if (!line.empty() && line.size() + word.size() >= lineWidth) {
            out << line << '\n';
            line.clear();
        }
        if (line.empty()) line = name;
        line += ' ' + word;
    }
    if (!line.empty()) out << line << '\n';
}

void writeCategory(std::ostream& out, const SyntaxTree& tree, int category) {
    const SyntaxFont& font = tree.fonts[category];
    std::array<char, 16> colour{};
    std::snprintf(colour.data(), colour.size(), font.colour >= trueColour ? "0x%08X" : "%d", unsigned(font.colour));
    out << "\ncategory " << category << ' ' << categoryNames[category] << '\n';
    if (!font.face.empty()) out << "face " << font.face << '\n';
    out << "colour " << colour.data() << '\n';
    std::string styles;
    for (const StyleWord& style : styleWords)
        if (font.*style.field) styles += std::string(" ") + style.word;
    if (!styles.empty()) out << "style" << styles << '\n';
    for (const WordList& list : wordLists) {
        std::vector<std::string> words;
        for (const auto& [word, of] : tree.*list.words)
            if (static_cast<int>(of) == category) words.push_back(word);
        std::sort(words.begin(), words.end());
        writeWords(out, list.name, words);
    }
}

} // namespace

SyntaxTree& syntaxTree() {
    static SyntaxTree tree;
    return tree;
}

int syntaxRevision() { return revision; }
void syntaxChanged() { ++revision; }

void initializeSyntaxTree() {
    syntaxTree() = {};
    syntaxChanged();
}

void addSyntaxKeyword(SyntaxLanguage language, SyntaxCategory category, std::string_view word) {
    if (word.empty()) return;
    if (language != SyntaxLanguage::C) syntaxTree().fortran[lower(word)] = category;
    if (language == SyntaxLanguage::C || language == SyntaxLanguage::None) syntaxTree().c[std::string(word)] = category;
    syntaxChanged();
}

SyntaxCategory syntaxCategoryOf(std::string_view word, SyntaxLanguage language) {
    bool isC = language == SyntaxLanguage::C;
    const Words& words = isC ? syntaxTree().c : syntaxTree().fortran;
    auto found = words.find(isC ? std::string(word) : lower(word));
    return found == words.end() ? SyntaxCategory::Plain : found->second;
}

bool loadSyntax(const std::string& path) {
    std::ifstream in(path);
    std::string line;
    if (!std::getline(in, line) || !line.starts_with(headLine)) return false;
    SyntaxTree tree;
    int category = -1;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        std::size_t blank = line.find(' ');
        if (line.empty() || line.front() == '#' || blank == std::string::npos) continue;
        readLine(tree, category, line.substr(0, blank), line.substr(blank + 1));
    }
    syntaxTree() = std::move(tree);
    syntaxChanged();
    return true;
}

bool saveSyntax(const std::string& path) {
    std::ostringstream text;
    text << headLine << '\n';
    for (int category = 0; category < syntaxCategoryCount; ++category) writeCategory(text, syntaxTree(), category);
    QSaveFile file(QString::fromStdString(path)); // whole or not at all, also where two programs save at once
    return file.open(QIODevice::WriteOnly) && file.write(QByteArray::fromStdString(text.str())) >= 0 && file.commit();
}

} // namespace orba
