#include "support/box_script.h"

#include <gtest/gtest.h>

#include <deque>

namespace {

std::deque<ExpectedBox> script;
BoxScript* current = nullptr;
bool anything = false;

int play(const std::string& title, const std::string& text, int buttons) {
    if (current) current->titles.push_back(title);
    if (anything) return headless::messageBox(title, text, 0, buttons);
    if (script.empty()) {
        ADD_FAILURE() << "unexpected box \"" << title << "\": " << text;
        return ANSWER_CANCEL;
    }
    const ExpectedBox box = script.front();
    script.pop_front();
    EXPECT_EQ(title, box.title);
    EXPECT_EQ(text, box.text) << "in the box " << title;
    return box.answer;
}

} // namespace

BoxScript::BoxScript(std::initializer_list<ExpectedBox> boxes) : before(host) {
    script = boxes;
    current = this;
    anything = false;
    host = Host();
    host.messageBox = [](const std::string& title, const std::string& text, int, int buttons) {
        return play(title, text, buttons);
    };
    host.errorBox = [](const std::string& title, const std::string& text) { play(title, text, BOX_OK); };
    host.infoBox = host.errorBox;
    host.busyCursor = [](bool on) {
        if (current) current->busy = on;
    };
}

BoxScript::~BoxScript() {
    finish();
    current = nullptr;
    host = before;
}

void BoxScript::expect(const ExpectedBox& box) { script.push_back(box); }

void BoxScript::finish() {
    for (const ExpectedBox& box : script) ADD_FAILURE() << "the box \"" << box.title << "\" never came";
    script.clear();
}

void BoxScript::allowAll() { anything = true; }
