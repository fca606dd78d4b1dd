#include "checks.h"

#include "codegen/generate.h"
#include "project/files.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "shell/project_commands.h"
#include "support/files.h"
#include "support/records_equal.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace {

// ---- Files and sources.

// Without one there is no program to write, and the user is told so.
bool hasMaster() {
    for (const WidgetNode* form = project.forms; form; form = form->next)
        if (isMaster(*form)) return true;
    return false;
}

// Without the line that tells the time.
std::string sourceText() {
    GeneratedText generated;
    expect(generateText("monkey.source", generated) || !hasMaster(), "generate: refused");
    const std::size_t from = generated.text.find("Last created on"), to = generated.text.find('\n', from);
    return from == std::string::npos ? generated.text : generated.text.erase(from, to - from);
}

// The first line that the texts do not share, as the second has it.
std::string differentLine(const std::string& wanted, const std::string& got) {
    const auto at = std::ranges::mismatch(wanted, got).in2 - got.begin();
    const std::size_t from = got.rfind('\n', static_cast<std::size_t>(at)) + 1, to = got.find('\n', from);
    return " (" + got.substr(from, to - from) + ")";
}

void expectSameText(const std::string& wanted, const char* words) {
    const std::string text = sourceText();
    if (text != wanted) expect(false, words + differentLine(wanted, text));
}

std::string savedBytes(const std::string& name) {
    expect(saveProject(std::filesystem::current_path().string(), name, true), "save: failed");
    return readBytes(name);
}

std::string firstLine(const std::string& text) { return text.substr(0, text.find('\n')); }

template <typename Part>
void compare(const char* name, const ProjectState& left, const ProjectState& right, Part part) {
    expect(left.*part == right.*part, std::string("load: the project's ") + name + " is another than in memory");
}

void compareStates(const ProjectState& left, const ProjectState& right) {
    compare("language", left, right, &ProjectState::projectLanguage);
    compare("platform", left, right, &ProjectState::projectPlatform);
    compare("buffering", left, right, &ProjectState::doubleBuffering);
    compare("grid", left, right, &ProjectState::gridHoriz);
    compare("grid", left, right, &ProjectState::gridVert);
    compare("grid mode", left, right, &ProjectState::gridMode);
    compare("scaling", left, right, &ProjectState::scalable);
    compare("snap", left, right, &ProjectState::snapOn);
    compare("snap grid", left, right, &ProjectState::snapGrid);
    compare("next form number", left, right, &ProjectState::nextFormNumber);
    compare("counters", left, right, &ProjectState::counters);
    compare("count of widgets", left, right, &ProjectState::widgetCount);
    compare("switches", left, right, &ProjectState::compilerSwitches);
    compare("switches", left, right, &ProjectState::linkerSwitches);
    compare("file lists", left, right, &ProjectState::fileLists);
    compare("code blocks", left, right, &ProjectState::codeBlocks);
}

// A number as a project file keeps it, with six digits.
void keepSixDigits(float& number) {
    char digits[32];
    std::snprintf(digits, sizeof digits, "%g", static_cast<double>(number));
    number = std::strtof(digits, nullptr);
}

// What no file keeps: further digits of numbers, one choice, which every form that is read has on, and the hardware's
// buffering, which no project that is read has.
void forgetWhatNoFileKeeps() {
    project.doubleBuffering = 0;
    for (WidgetNode* node = project.forms; node; node = walkList(node, project.forms)) {
        node->buildInfo = 1;
        for (float WidgetNode::*number :
             {&WidgetNode::value, &WidgetNode::minValue, &WidgetNode::maxValue, &WidgetNode::stepValue})
            keepSixDigits(node->*number);
    }
}

} // namespace

void checkFiles() {
    forgetWhatNoFileKeeps();
    savedBytes("monkey-a.wdp"); // brings what was typed and dragged into the records
    const std::string text = sourceText();
    const std::string bytes = savedBytes("monkey-a.wdp");
    expectSameText(text, "generate: the second text is another");
    expect(byteDifference(savedBytes("monkey-b.wdp"), bytes).empty(), "generate: the project is changed by it");

    ProjectState before = project;
    before.forms = copyNode(project.forms, true).release();
    expect(openProjectFile(std::filesystem::current_path().string(), "monkey-a.wdp"), "load: refused");
    const std::string different = differences(before.forms, project.forms);
    expect(different.empty(), "load: " + firstLine(different));
    compareStates(before, project);
    deleteList(before.forms);

    const std::string again = byteDifference(savedBytes("monkey-b.wdp"), bytes);
    expect(again.empty(), "save: other bytes after a load, " + firstLine(again));
    expectSameText(text, "generate: another text after a load");
}
