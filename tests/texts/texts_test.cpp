// What the user types is what the program shows: every text of every type of widget with quotes, apostrophes,
// backslashes, bars, percent signs, line ends, ampersands and letters of other alphabets, in each language.
#include "project.h"
#include "typed.h"

#include "project/files.h"
#include "support/program_languages.h"
#include "support/scratch.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <ostream>
#include <regex>
#include <sstream>

namespace fs = std::filesystem;

namespace {

using Texts = std::multimap<std::string, std::string>; // what it is and what it says

std::string unescaped(const std::string& text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char next = text[i] == '\\' && i + 1 < text.size() ? text[++i] : '\0';
        result += next == '\0' ? text[i] : next == 't' ? '\t' : next == 'n' ? '\n' : next;
    }
    return result;
}

Texts readTexts(const std::string& file) {
    Texts texts;
    std::istringstream lines(textOf(file));
    for (std::string line; std::getline(lines, line);) {
        const std::size_t tab = line.find('\t');
        texts.emplace(line.substr(0, tab), unescaped(line.substr(tab + 1)));
    }
    return texts;
}

// Runs a command of the shell; its output stays in `log` for the message.
bool run(const std::string& folder, const std::string& command) {
    const std::string log = folder + "/log";
    if (std::system(("cd " + folder + " && ( " + command + " ) > log 2>&1").c_str()) == 0) return true;
    ADD_FAILURE() << command << "\n" << textOf(log).substr(0, 3000);
    return false;
}

// The open project as a program that has run: every text in it.
Texts programTexts(const ProgramLanguage& language, const std::string& folder) {
    if (!saveProject(folder, "texts.wdp", true)) return {};
    if (!run(folder, makeCommand(language, "texts"))) return {};
    const std::string seen = folder + "/seen";
    if (!run(folder, "QT_QPA_PLATFORM=offscreen LD_PRELOAD=" ORBA_PROBE_LIBRARY " ORBA_PROBE_TEXTS=" + seen +
                         " timeout 60 ./texts"))
        return {};
    return readTexts(seen);
}

// The mark in the middle of a text tells what became of it.
std::string likeIt(const Texts& texts, const Shown& shown) {
    std::smatch mark;
    if (!std::regex_search(shown.text, mark, std::regex("#[0-9]+#"))) return "nothing like it";
    for (const auto& [what, text] : texts) {
        if (what == shown.what && text.find(mark.str()) != std::string::npos) return text;
    }
    return "nothing like it";
}

void expectShown(const Texts& texts, const std::vector<Shown>& expected) {
    ASSERT_FALSE(texts.empty()) << "the program did not come so far";
    int lost = 0;
    for (const Shown& shown : expected) {
        const auto [from, to] = texts.equal_range(shown.what);
        const auto found = std::find_if(from, to, [&](const auto& row) { return row.second == shown.text; });
        if (found != to) continue;
        if (++lost <= 10)
            ADD_FAILURE() << shown.property << " shows\n  " << likeIt(texts, shown) << "\nand not\n  " << shown.text;
    }
    EXPECT_EQ(lost, 0) << "of " << expected.size();
}

class TextsOfPrograms : public testing::TestWithParam<ProgramLanguage> {
protected:
    // Every text is marked with its number, so that each is looked for by itself.
    Typing marking(std::function<std::string(std::size_t)> next) {
        return [this, next](std::size_t limit) { return marked(next(limit), ++number, limit); };
    }
    int number = 0;
};

} // namespace

TEST_P(TextsOfPrograms, HostileTextsArriveInEveryProperty) {
    const ScratchFolder folder("texts");
    beginTexts(GetParam().number);
    std::vector<Shown> shown;
    int form = 0;
    for (const std::string& text : hostileTexts()) {
        const auto next = [&](std::size_t) { return text; };
        addTextForm(GetParam().number, "T" + std::to_string(++form), marking(next), shown);
    }
    expectShown(programTexts(GetParam(), folder.path.string()), shown);
}

TEST_P(TextsOfPrograms, RandomTextsArrive) {
    constexpr int PROJECTS = 4;
    constexpr int FORMS = 10; // each stands for a small project of its own
    for (int project = 0; project < PROJECTS; ++project) {
        const ScratchFolder folder("texts");
        beginTexts(GetParam().number);
        std::vector<Shown> shown;
        for (int form = 1; form <= FORMS; ++form) {
            const int seed = project * FORMS + form;
            std::mt19937 random(static_cast<unsigned>(seed));
            const auto next = [&](std::size_t limit) { return randomText(random, limit); };
            addTextForm(GetParam().number, "Seed" + std::to_string(seed), marking(next), shown);
        }
        expectShown(programTexts(GetParam(), folder.path.string()), shown);
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, TextsOfPrograms, testing::ValuesIn(PROGRAM_LANGUAGES),
                         [](const auto& info) { return std::string(info.param.name); });
