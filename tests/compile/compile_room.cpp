#include "compile_room.h"

#include "compile/execute.h"
#include "compile/log.h"
#include "platform/environment.h"
#include "project/tree.h"

#include <algorithm>

Notes notes;

namespace {

void noteBox(const std::string& title, const std::string& text) { notes.boxes.push_back(title + ": " + text); }

void noteCall(const char* name, int value) { notes.calls.push_back(name + (" " + std::to_string(value))); }

void hookUp() {
    host.messageBox = [](const std::string& title, const std::string& text, int, int) {
        noteBox(title, text);
        return static_cast<int>(ANSWER_OK);
    };
    host.errorBox = noteBox;
    host.infoBox = noteBox;
    host.busyCursor = [](bool busy) { notes.busy = busy; };
    buildHooks.clearLog = [] { notes.list.clear(); };
    buildHooks.appendLogLine = [](const std::string& line) { notes.fed.push_back(line); };
    buildHooks.setLogLines = [](const std::vector<std::string>& lines) { notes.list = lines; };
    buildHooks.selectLogLine = [](int line) { noteCall("select", line); };
    buildHooks.showLog = [] { notes.calls.emplace_back("show log"); };
    buildHooks.idle = [] { notes.idles++; };
    buildHooks.cancelled = [] { return notes.cancelAfter >= 0 && notes.idles > notes.cancelAfter; };
    buildHooks.enableCompile = [](bool on) { noteCall("compile", on); };
    buildHooks.enableExecute = [](bool on) { noteCall("execute", on); };
    buildHooks.enableAbort = [](bool on) { noteCall("abort", on); };
    buildHooks.enablePrintErrors = [](bool on) { noteCall("print", on); };
    buildHooks.watchTimer = [](int period) { noteCall("watch", period); };
    buildHooks.showLocation = [](const CodeLocation& location) { notes.shown.push_back(location); };
}

} // namespace

bool noted(const std::string& call) {
    return std::find(notes.calls.begin(), notes.calls.end(), call) != notes.calls.end();
}

BuildRoom::BuildRoom() {
    for (const std::string& folder : {data, install, work, scratch / "bin"}) {
        std::filesystem::create_directories(folder);
    }
    notes = {};
    hookUp();
    resetProject();
    project.sourceStale = 0;
    project.compilerSwitches.clear();
    project.linkerSwitches.clear();
    project.customSwitches = 0;
    project.projectLanguage = 90;
    folders = {};
    folders.installDir = install;
    folders.dataDir = data;
    folders.architectureText = "x86";
    compiler = {};
    switchDefaults = {};
    compilerLog = {};
}

BuildRoom::~BuildRoom() {
    terminateProcess(childProcess, 0);
    resetProject();
}

std::string BuildRoom::useSource(const std::string& name, const std::string& text) {
    project.sourceDir = work;
    project.sourceName = name;
    return scratch.write("my project/" + name, text);
}

void BuildRoom::useProgram(const std::string& name, const std::string& body) {
    scratch.script("bin/" + name, body);
    setenv("PATH", ((scratch / "bin") + ":/usr/bin:/bin").c_str(), 1);
}

void BuildRoom::setList(FileListIndex list, std::vector<std::string> rows) {
    rows.emplace_back();
    project.fileLists[list] = std::move(rows);
    project.customSwitches = 1;
}

bool BuildRoom::nothingLeftRunning() const {
    auto running = [&] {
        std::error_code failure;
        for (const auto& entry : std::filesystem::directory_iterator("/proc", failure)) {
            std::string line = textOf(entry.path() / "cmdline");
            std::replace(line.begin(), line.end(), '\0', ' ');
            if (line.find(scratch.path.string()) != std::string::npos) return true;
        }
        return false;
    };
    return waitUntil([&] { return !running(); }, 3000);
}
