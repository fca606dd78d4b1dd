// One act of the monkey, named so that it means the same when the acts ahead of it are left out: a target is the name
// of a record, the identifier of a command, or the way to a part of the designer's own windows.
#pragma once

#include <string>
#include <vector>

enum class Verb {
    Click,   // on `target` at x, y; `count` 2 for a double click
    Drag,    // from x, y by dx, dy
    Place,   // takes tool `code` and clicks on `target`
    Grip,    // drags handle `code` of the adopted widget by dx, dy
    Key,     // `code` with `modifiers` to whatever has the input
    Type,    // `text` to whatever has the input
    Command, // chooses the menu entry of command `code`
    Choose,  // entry `code` of the combo box `target`
    Move,    // the window `target` to x, y
    Resize,  // the window `target` to x, y pixels
    Close,   // the window `target` by its close box
    Wheel,   // over `target` at x, y by dy
    Check,   // everything that must hold, see invariants.h
    COUNT
};

struct Event {
    Verb verb = Verb::Check;
    std::string target = {};
    int x = 0, y = 0, dx = 0, dy = 0; // pixels
    int button = 1;                   // Qt::MouseButton
    int count = 1;
    int code = 0;
    unsigned modifiers = 0; // Qt::KeyboardModifiers
    unsigned answer = 0;    // what chooses the answers of the boxes that the act brings up
    std::string text = {};
};

std::string lineOf(const Event& event); // one line without its end
bool eventOf(const std::string& line, Event& event);

std::vector<Event> readEvents(const std::string& path);
void writeEvents(const std::string& path, const std::vector<Event>& events);
