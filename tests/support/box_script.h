// A host that plays the user: boxes come up in the order of a script and are answered from it; a box that is not in the
// script, and one of the script that never came, fail the test. Everything else of the host is that of a machine
// without a display. The real host is back when the script goes.
#pragma once

#include "project/host.h"

#include <initializer_list>
#include <string>
#include <vector>

struct ExpectedBox {
    std::string title;
    std::string text;
    int answer = ANSWER_OK; // of a question; a box with one button needs none
};

class BoxScript {
public:
    BoxScript(std::initializer_list<ExpectedBox> boxes = {});
    ~BoxScript();
    BoxScript(const BoxScript&) = delete;
    BoxScript& operator=(const BoxScript&) = delete;

    void expect(const ExpectedBox& box);
    void finish(); // all boxes must have come by now
    // Takes any box from here on, with the answers of a machine without a display; `titles` collects them.
    void allowAll();

    std::vector<std::string> titles;
    bool busy = false;

private:
    Host before;
};
