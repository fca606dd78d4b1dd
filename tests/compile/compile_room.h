// The compile room with nothing above it: a data folder and a project folder of its own, and notes of every box and
// hook.
#pragma once

#include "compile/catalogue.h"
#include "compile/hooks.h"
#include "project/host.h"
#include "project/records.h"
#include "support/scratch.h"

#include <gtest/gtest.h>

// What the room asked of its surroundings since the test began.
struct Notes {
    std::vector<std::string> boxes; // "title: text"
    std::vector<std::string> calls; // "compile 0", "execute 1", "watch 2000", "show log", "select 3", in their order
    std::vector<std::string> fed;   // lines appended to the log list
    std::vector<std::string> list;  // the log list as it was set last
    std::vector<CodeLocation> shown;
    int idles = 0;
    int cancelAfter = -1; // idles after which a running command is cancelled; -1: never
    bool busy = false;
};
extern Notes notes;

bool noted(const std::string& call);

struct BuildRoom : testing::Test {
    ScratchFolder scratch{"build room"};
    ScopedVariable path{"PATH", "/usr/bin:/bin"};
    std::string data = scratch / "data";
    std::string install = scratch / "install";
    std::string work = scratch / "my project";

    BuildRoom();
    ~BuildRoom() override;

    // Puts `text` into the project folder as the generated source of a project that is not stale.
    std::string useSource(const std::string& name, const std::string& text);
    // A stand-in for a program on PATH, ahead of the real one.
    void useProgram(const std::string& name, const std::string& body);
    void setList(FileListIndex list, std::vector<std::string> rows);
    // Whether nothing is left running of what was started in the project folder.
    bool nothingLeftRunning() const;
};
