// Every source of the folder golden is generated anew from the script beside it. A new golden is two files:
// NAME.project, and NAME with the extension of a language. ORBA_UPDATE_GOLDENS=1 writes the sources that are there
// instead of comparing them.

#include "project_script.h"
#include "support/scratch.h"

#include "codegen/generate.h"
#include "project/files.h"
#include "project/language.h"
#include "project/records.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace {

const fs::path GOLDEN = fs::path(ORBA_SOURCE_DIR) / "tests/codegen/golden";

std::string fileText(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

int languageOfExtension(const std::string& extension) {
    for (const int language : {77, 90, 99}) {
        if (extension == languageFacts(language).extension) return language;
    }
    return 0;
}

std::vector<std::string> goldens() {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(GOLDEN)) {
        if (languageOfExtension(entry.path().extension().string()) != 0)
            names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

// The date of the header changes from run to run.
std::string withoutDate(const std::string& text) {
    const std::size_t from = text.find(" Last created on ");
    const std::size_t to = text.find('\n', from);
    return text.substr(0, from) + " Last created on DATE" + text.substr(to);
}

// The lines around the first difference, for the message of a failure.
std::string firstDifference(const std::string& expected, const std::string& actual) {
    std::istringstream a(expected);
    std::istringstream b(actual);
    for (int number = 1;; ++number) {
        std::string lineA;
        std::string lineB;
        const bool moreA = static_cast<bool>(std::getline(a, lineA));
        const bool moreB = static_cast<bool>(std::getline(b, lineB));
        if (!moreA && !moreB) return "the same lines";
        if (lineA != lineB || moreA != moreB) {
            return "line " + std::to_string(number) + "\n  golden    [" + lineA + "]\n  generated [" + lineB + "]";
        }
    }
}

class Golden : public testing::TestWithParam<std::string> {};

TEST_P(Golden, IsGeneratedToTheLetter) {
    const fs::path path = GOLDEN / GetParam();
    const std::string script = fileText(fs::path(path).replace_extension(".project"));
    ASSERT_FALSE(script.empty());
    project.projectLanguage = languageOfExtension(path.extension().string());
    readProjectScript(script);
    GeneratedText generated;
    ASSERT_TRUE(generateText(GetParam(), generated));
    const std::string text = withoutDate(generated.text);
    if (std::getenv("ORBA_UPDATE_GOLDENS")) {
        std::ofstream(path, std::ios::binary) << text;
        return;
    }
    const std::string golden = fileText(path);
    EXPECT_TRUE(text == golden) << firstDifference(golden, text);
}

// The project as its file holds it.
std::string storedProject() {
    const ScratchFolder folder("golden");
    EXPECT_TRUE(saveProject(folder.path, "stored.wdp", true));
    return fileText(folder.path / "stored.wdp");
}

// Putting the text together leaves no trace in the project, and the next source is the same.
TEST_P(Golden, LeavesTheProjectAsItWas) {
    const fs::path path = GOLDEN / GetParam();
    project.projectLanguage = languageOfExtension(path.extension().string());
    readProjectScript(fileText(fs::path(path).replace_extension(".project")));
    const std::string before = storedProject();
    GeneratedText first;
    ASSERT_TRUE(generateText(GetParam(), first));
    GeneratedText second;
    ASSERT_TRUE(generateText(GetParam(), second));
    EXPECT_TRUE(storedProject() == before);
    EXPECT_TRUE(withoutDate(second.text) == withoutDate(first.text));
}

std::string testName(const testing::TestParamInfo<std::string>& info) {
    std::string name = info.param;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Sources, Golden, testing::ValuesIn(goldens()), testName);

} // namespace
