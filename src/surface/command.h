// What a command is: how it is called, where it shows, which key sends it, when it can be had and what it runs. Each
// file keeps the rows of its own handlers, a room joins those of its files, the shell those of the rooms.
#pragma once

#include "menu-c.h"

#include <initializer_list>
#include <span>
#include <vector>

// Key codes beside those of the toolkit.
constexpr int controlKey(char letter) { return letter - 'A' + 1; }
constexpr int functionKey(int number) { return OKEYF1 + number - 1; }
constexpr int shifted(int key) { return key + 1000; }

// What has to hold for a command to be enabled, beside having a handler.
enum CommandCondition : unsigned {
    WHEN_ALWAYS = 0,
    WHEN_TEXT_MODE = 1,   // the code editor has the input
    WHEN_WINDOWS = 2,     // a project of platform 'w'
    WHEN_PIXELS = 4,      // a project in pixel mode
    WHEN_SYNTAX = 8,      // syntax colouring is on
    STARTS_DISABLED = 16, // until someone enables it
    OPENS_WINDOW = 32,    // no condition: another window has the input when it has run
};

// Where the key of a command works: while a form, the hierarchy or a bar has the focus, the code editor's text, or
// anything else but a dialogue, such as a cell or a list, which keeps all other keys.
enum KeyMode : unsigned {
    IN_DESIGN = 1,
    IN_TEXT = 2,
    IN_FIELDS = 4,
    EVERYWHERE = IN_DESIGN | IN_TEXT | IN_FIELDS,
    WHEN_ENABLED = 8,
};

struct Command {
    int id = 0;
    const char* label = nullptr; // in menus; behind a bar the key as the menu shows it
    char mnemonic = 0;
    int key = 0; // KeyCode, 0 for none
    unsigned keyModes = IN_DESIGN;
    const char* menuIcon = nullptr;
    const char* greyIcon = nullptr;
    const char* barIcon = nullptr;
    const char* bubbleHelp = nullptr;
    int tool = 0; // tool code of a Tool Box button
    unsigned when = WHEN_ALWAYS;
    void (*handler)() = nullptr; // null: the command is not there yet, and stays disabled
};

inline std::vector<Command> joined(std::initializer_list<std::span<const Command>> tables) {
    std::vector<Command> all;
    for (const std::span<const Command> table : tables) all.insert(all.end(), table.begin(), table.end());
    return all;
}
