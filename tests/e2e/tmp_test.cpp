#include "designer.h"
#include <gtest/gtest.h>
#include <unistd.h>
TEST(Tmp, A) {
    ASSERT_TRUE(desk::open());
    pid_t p = designer::open(desk::scratchFolder());
    designer::moveForm(p, "Form 1", 740, 150);
    designer::place(p, "Button", "Form 1", 20, 130);
    designer::replaceCode(p, "call x");
    designer::place(p, "Button", "Form 1", 120, 130);
    desk::picture("/tmp/t1.png");
    for (auto& t : desk::look(p))
        if (t.kind == "Cell" && t.text == "Name") desk::clickAt(t.x + t.width + 30, t.y + 8);
    desk::picture("/tmp/t2.png");
    desk::key("ctrl+a");
    desk::picture("/tmp/t3.png");
    desk::type("Leave");
    desk::picture("/tmp/t4.png");
    desk::key("Return");
    desk::picture("/tmp/t5.png");
    desk::click(desk::waitFor(p, "the block list", desk::withTip("Select Code Block")));
    desk::picture("/tmp/t6.png");
    for (auto& t : desk::look(p))
        printf("%s|%d %d %d %d|%s|%s|%s|%s\n", t.kind.c_str(), t.x, t.y, t.width, t.height, t.state.c_str(),
               t.text.substr(0, 30).c_str(), t.tooltip.c_str(), t.window.c_str());
    desk::stop(p, 0);
}
