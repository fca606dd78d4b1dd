// A virtual desk for end-to-end tests: an X server with a window manager, programs started on it, a real mouse and
// keyboard (xdotool), and a look at what the programs show (the probe library of the toolkit's testing folder).
#pragma once

#include <functional>
#include <map>
#include <string>
#include <sys/types.h>
#include <vector>

namespace desk {

// One thing that a program shows. Positions are screen pixels of the top left corner.
struct Thing {
    std::string kind; // Qt class, or "Action", "Cell", "Tab"
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    std::string state; // letters: e enabled, c checked or selected, f focus, a in the active window
    std::string text;
    std::string tooltip;
    std::string window; // title of its window
    bool has(char letter) const { return state.find(letter) != std::string::npos; }
};

using Test = std::function<bool(const Thing&)>;

// Starts the X server and the window manager once for the process; false when either is not installed.
bool open(int width = 1400, int height = 1000);
std::string scratchFolder(); // of this test process, removed when it ends well

// Starts a program on the desk with the probe loaded; -1 when it can't be started. `output` gets its standard streams.
pid_t start(const std::vector<std::string>& command, const std::map<std::string, std::string>& environment,
            const std::string& folder, const std::string& output);
bool running(pid_t program);
int stop(pid_t program, int seconds = 10); // waits for the end, kills after that; the exit status or -signal

std::vector<Thing> look(pid_t program); // empty while the program doesn't answer
std::vector<pid_t> probed();            // every living program with a probe, in order of their start

// Wait until something holds; false after `seconds`.
bool waitUntil(const std::function<bool()>& holds, double seconds = 10);
// Waits for the first thing that passes and returns it; fails the test when none comes.
Thing waitFor(pid_t program, const std::string& what, const Test& test, double seconds = 10);
// Waits until the program shows windows and they stand still: the window manager may move a window after it has come
// up.
void settle(pid_t program);
bool shows(pid_t program, const Test& test);

Test withText(const std::string& text);               // shown text equals; mnemonic marks are passed over
Test withTip(const std::string& tip);                 // tooltip equals
Test inWindow(const std::string& window, Test test);  // and its window's title contains
Test ofKind(const std::string& kind, Test test = {}); // and its class equals

// Mouse and keys, as a user would use them. A click goes to the middle unless an offset in the thing is given.
void click(const Thing& thing, int button = 1);
void clickAt(int x, int y, int button = 1);
void doubleClick(const Thing& thing);
void drag(int fromX, int fromY, int toX, int toY);
void key(const std::string& keys); // as xdotool names them: "ctrl+s", "F5", "Return"
void type(const std::string& text);

void picture(const std::string& file); // of the whole desk, PNG

} // namespace desk
