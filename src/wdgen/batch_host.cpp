#include "batch_host.h"

#include "project/host.h"

#include <algorithm>
#include <cstdio>

namespace {

bool functionality = true;

// A bar is a line break in the texts of boxes.
void say(const std::string& title, const std::string& text) {
    std::string lines = text;
    std::replace(lines.begin(), lines.end(), '|', '\n');
    std::fprintf(stderr, "wdgen: %s: %s\n", title.c_str(), lines.c_str());
}

int answer(const std::string& title, const std::string& text, int, int buttons) {
    if (title == "Menu Functionality") return functionality ? ANSWER_YES : ANSWER_NO;
    say(title, text);
    return buttons == BOX_OK || buttons == BOX_OK_CANCEL ? ANSWER_OK : ANSWER_YES;
}

} // namespace

void useBatchHost(bool windowsFunctionality) {
    functionality = windowsFunctionality;
    host.messageBox = answer;
    host.infoBox = say;
    host.errorBox = say;
}
