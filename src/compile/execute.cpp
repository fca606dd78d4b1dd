#include "compile/execute.h"

#include "compile/driver.h"
#include "compile/hooks.h"
#include "platform/environment.h"
#include "platform/paths.h"
#include "project/files.h"
#include "project/host.h"
#include "project/records.h"

ChildProcess childProcess;

namespace {

constexpr std::uint32_t HIGHEST_SILENT_CODE = 1024; // codes above it are those of exceptions and signals

std::string runningProgram; // path of the child

void programEnded() {
    buildHooks.watchTimer(0);
    buildHooks.enableAbort(false);
    buildHooks.enableCompile(true);
    // Another project may have come in meanwhile.
    bool own = !project.sourceName.empty() && executablePath(projectSourcePath()) == runningProgram;
    buildHooks.enableExecute(own || executableCurrent());
    childProcess = {};
}

} // namespace

void reportSystemError(const std::string& title) {
    host.errorBox(title,
                  title + " failed with error " + std::to_string(lastSystemError.code) + ": " + lastSystemError.text);
}

bool runProgram(const std::string& exePath) {
    ProcessStart start;
    start.commandLine = "\"" + escapedForQuotes(exePath) + "\"";
    start.folder = folderOf(exePath);
    bool console = project.linkerSwitches.find("console") != std::string::npos;
    start.kind = console ? ProcessKind::console : ProcessKind::windowed;
    if (!startProcess(start, childProcess)) {
        reportSystemError("Execute Application");
        return false;
    }
    runningProgram = exePath;
    buildHooks.enableAbort(true);
    buildHooks.enableCompile(false);
    buildHooks.enableExecute(false);
    buildHooks.watchTimer(WATCH_PERIOD);
    return true;
}

void executeCommand() {
    if (childProcess.handle != 0) return;
    if (project.sourceName.empty()) {
        host.messageBox("Execute Project", "Must Compile & Link first", BOX_INFORMATION, BOX_OK);
        return;
    }
    runProgram(executablePath(projectSourcePath()));
}

void watchProgram() {
    std::uint32_t code = STILL_RUNNING;
    if (childProcess.handle == 0 || !processExitCode(childProcess, code) || code == STILL_RUNNING) return;
    if (code > HIGHEST_SILENT_CODE) host.errorBox("Application Terminted", "Unhandled Exception or Missing DLL");
    releaseProcess(childProcess, false);
    programEnded();
}

void abortCommand() {
    std::uint32_t code = STILL_RUNNING;
    if (!processExitCode(childProcess, code)) {
        host.errorBox("Abort Application", "Cannot find exit code of Project");
    } else if (code == STILL_RUNNING) {
        terminateProcess(childProcess, ABORT_GRACE, buildHooks.idle);
    }
    releaseProcess(childProcess, false);
    programEnded();
}

void forgetProgram() { releaseProcess(childProcess, false); }
