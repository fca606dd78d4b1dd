// One run of the whole designer in this process: in a folder of its own, without the splash, with boxes answered from
// the script. What the script still expects at the end, and errors that nobody asked for, fail the test.
#pragma once

#include "support/scratch.h"

#include <filesystem>
#include <string>

class DesignerSession {
public:
    DesignerSession();
    ~DesignerSession();
    DesignerSession(const DesignerSession&) = delete;
    DesignerSession& operator=(const DesignerSession&) = delete;

    void start(const std::string& commandLine = "");
    void end();
    // Handles every event that waits, and those that come of them, as the action loop does.
    static void pump();
    // Runs a command as its entry, button or key does.
    static void send(int command);

private:
    ScratchFolder scratch_{"orba-designer"};
    std::filesystem::path before_ = std::filesystem::current_path();
    bool running_ = false;

public:
    const std::filesystem::path root = scratch_.path, data = root / "data"; // the current folder; that of the settings
};
