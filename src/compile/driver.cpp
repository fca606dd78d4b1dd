#include "compile/driver.h"

#include "codegen/check.h"
#include "codegen/generate.h"
#include "compile/catalogue.h"
#include "compile/command_lines.h"
#include "compile/execute.h"
#include "compile/hooks.h"
#include "compile/log.h"
#include "compile/navigation.h"
#include "compile/run_logged.h"
#include "platform/environment.h"
#include "platform/file_times.h"
#include "platform/paths.h"
#include "project/busy_cursor.h"
#include "project/host.h"
#include "project/language.h"
#include "project/records.h"

#include <algorithm>

namespace {

std::string recordPath() { return ownFile(folders.dataDir, "wdcompzz", ".bat"); }
std::string logPath() { return ownFile(folders.dataDir, "wdesign", ".tmp"); }

// How the last build ended; the log of a compiler that was ended from here may say nothing of it.
bool lastFailed = false;
std::string missingProgram; // that the last build could not start, of the row that knows programs by name

// --- the steps

// A build on its way through its steps.
struct Build {
    CommandScene scene;
    LoggedRun run;
    bool force = false;
    int result = 1;          // above 0 as long as every step could be started
    bool exitCodes = false;  // tell how its commands end
    bool failed = false;     // one of them reported errors or was ended
    bool blocked = false;    // nothing may be built; the log says why
    std::string failedWords; // how the last of those ended
};

// The first word of the command and how it ended, for a log in which the compiler itself said nothing.
std::string endWords(const std::string& command, const Build& build) {
    return "wdesign: error: " + command.substr(0, command.find(' ')) + " " + exitWords(build.run.exitCode) + "\n";
}

std::string notStartedWords() {
    return "wdesign: error: " + missingProgram + " could not be started: " + lastSystemError.text +
           "; install it, or put its folder on PATH\n";
}

// False when the command could not be started.
bool runStep(Build& build, const BuildStep& step, bool reportFailure) {
    std::string command = commandText(step, build.scene);
    if (!runLogged(build.run, command, reportFailure)) {
        if (build.exitCodes) {
            missingProgram = command.substr(0, command.find(' '));
            writeLogFile(build.run.log, notStartedWords());
        }
        return false;
    }
    if (build.run.cancelled) build.failed = true;
    if (build.exitCodes && build.run.exitCode != 0) {
        build.failed = true;
        build.failedWords = build.run.cancelled ? std::string() : endWords(command, build);
    }
    return true;
}

// A row without a Fortran extension gets one for good.
void completeSourceRow(const Build& build, std::string& row) {
    constexpr const char* EXTENSIONS[] = {".FOR", ".for", ".F90", ".f90", ".FI", ".fi"};
    constexpr const char* GNU_EXTENSIONS[] = {".f", ".F"}; // with all that begin so: .f95, .ftn, .F03
    if (build.exitCodes && languageFacts(build.scene.language).family == LanguageFamily::C) return;
    for (const char* extension : EXTENSIONS) {
        if (row.find(extension) != std::string::npos) return;
    }
    for (const char* extension : GNU_EXTENSIONS) {
        if (build.exitCodes && fileNameOf(row).find(extension) != std::string::npos) return;
    }
    row += ".f90";
}

// Listed C sources are compiled every time, since nothing tells which headers they depend on.
bool sourceCurrent(const Build& build, const std::string& source, std::int64_t compiledTime) {
    if (build.force || (build.exitCodes && languageFacts(build.scene.language).family == LanguageFamily::C))
        return false;
    return fileTime(source) == compiledTime && compiledTime != 0 && pathExists(objectOf(build.scene, source));
}

void compileListedSources(Build& build, const BuildStep& step) {
    FileList& rows = project.fileLists[LIST_SOURCES];
    if (!build.scene.custom) return;
    project.sourceFileTimes.resize(rows.size());
    for (size_t i = 0; i < rows.size() && build.result > 0; i++) {
        if (rows[i].empty()) continue;
        completeSourceRow(build, rows[i]);
        build.scene.source = sourceOfRow(build.scene, rows[i]);
        if (sourceCurrent(build, build.scene.source, project.sourceFileTimes[i])) continue;
        build.result = runStep(build, step, true) ? 1 : 0;
        if (build.run.cancelled) return;
        bool compiled = build.result > 0 && !(build.exitCodes && build.run.exitCode != 0);
        if (compiled) project.sourceFileTimes[i] = fileTime(build.scene.source);
    }
}

void bindManifest(Build& build, const BuildStep& step) {
    if (runStep(build, step, false)) removeFile(build.scene.base + ".exe.manifest");
}

void runSteps(Build& build) {
    for (const BuildStep& step : buildSteps(build.scene.profile, build.scene.language)) {
        if (build.result <= 0 || build.run.cancelled) return;
        switch (step.kind) {
        case StepKind::eachSource: compileListedSources(build, step); break;
        case StepKind::manifest: bindManifest(build, step); break;
        case StepKind::withResource:
            if (build.scene.hasResource) build.result = runStep(build, step, true) ? 1 : 0;
            break;
        case StepKind::link:
            if (build.failed) return;
            [[fallthrough]];
        case StepKind::always: build.result = runStep(build, step, true) ? 1 : 0; break;
        }
    }
}

// --- around the steps

// A program left from an earlier build must not stand for one that could not be made. Where programs have no extension
// of their own, what bears the program's name may be something of the user's: then nothing is built.
void removeOldResults(Build& build) {
    const char* leftover = compilerOf(build.scene.profile).leftover;
    if (leftover[0] != '\0') removeFile(joinPath(build.scene.sourceDir, leftover));
    if (!build.exitCodes || !pathExists(build.scene.exe)) return;
    if (!findProgram(build.scene.exe).empty()) {
        removeFile(build.scene.exe);
        return;
    }
    build.blocked = true;
    writeLogFile(build.run.log, "wdesign: error: " + build.scene.exe +
                                    " is in the way of the program and is no program itself; rename it, or generate "
                                    "the source under another name\n");
}

// What a compiler is likely to stumble over in generated text, told by form, widget and property ahead of its own
// words.
void writeComplaints(const Build& build) {
    constexpr size_t MOST = 50;
    std::vector<Complaint> complaints = checkProject();
    for (size_t i = 0; i < std::min(complaints.size(), MOST); i++) {
        writeLogFile(build.run.log, "Check: " + complaintLine(complaints[i]) + "\n");
    }
    if (complaints.size() > MOST) {
        writeLogFile(build.run.log, "Check: and " + std::to_string(complaints.size() - MOST) + " more\n");
    }
}

void writeSwitchesLeftOut(const Build& build) {
    std::string words;
    for (const std::string& switches : {build.scene.compilerSwitches, build.scene.linkerSwitches}) {
        for (const std::string& word : wordsOf(switches)) {
            bool console = word.find("console") != std::string::npos; // that one is meant for us
            if (build.scene.custom && !console && switchLeftOut(build.scene, word)) words += " " + word;
        }
    }
    if (!words.empty()) writeLogFile(build.run.log, "Check: switches of other compilers are left out:" + words + "\n");
}

// What the compilers themselves may have left unsaid: each failed build must show why in its log.
void completeLog(Build& build) {
    if (!build.exitCodes || build.result <= 0) return;
    bool missing = !build.failed && !pathExists(build.scene.exe);
    if (!build.failed && !missing) return;
    CompilerLog log;
    readLog(build.run.logPath, build.scene.profile, log);
    if (scanLogLines(log.lines, build.scene.profile).result == 0) {
        writeLogFile(build.run.log, missing
                                        ? "\nwdesign: error: no program was made: " + build.scene.exe + " is missing\n"
                                        : "\n" + build.failedWords);
    }
    if (build.scene.toolkit.includeDirs.empty() && build.scene.toolkit.moduleDirs.empty()) {
        writeLogFile(build.run.log, "wdesign: note: the toolkit's headers and modules were not found; set ORBA to the "
                                    "folder that it is installed in\n");
    }
}

void removeIntermediates(const Build& build) {
    if (build.scene.hasResource) removeFile(build.scene.base + "rc.res");
    removeFile(build.scene.base + objectExtension(build.scene.profile));
    if (compilerOf(build.scene.profile).libraries.importList) removeFile(IMPORT_LIST);
}

bool upToDate(const CommandScene& scene, bool force) {
    return !force && pathExists(scene.exe) && fileTime(scene.exe) == project.exeTime;
}

// --- the command

bool generateIfStale() {
    if (project.sourceStale) buildHooks.generateSource();
    if (!project.sourceStale) return true;
    host.errorBox("Source not generated", "Compilation aborted.");
    return false;
}

void showWholeLog() {
    readLog(logPath(), compiler.profile, compilerLog);
    std::vector<std::string> entries;
    entries.reserve(compilerLog.lines.size());
    for (const std::string& line : compilerLog.lines) entries.push_back(logEntry(line));
    buildHooks.setLogLines(entries);
}

void finishStarted(const std::string& sourcePath, BusyCursor& busy) {
    showWholeLog();
    busy.end();
    if (scanLog(compiler.profile) > 0 || lastFailed) {
        buildHooks.showLog();
        buildHooks.enableCompile(true);
    } else if (!runProgram(executablePath(sourcePath))) {
        buildHooks.enableCompile(true);
    }
    buildHooks.enablePrintErrors(true);
}

// What a build writes into the project: the rows of sources that it completes, and the times by which it knows what
// needs no compiling.
struct BuildNotes {
    FileList sources;
    std::vector<std::int64_t> times;
    std::int64_t exeTime;
};

BuildNotes notes() { return {project.fileLists[LIST_SOURCES], project.sourceFileTimes, project.exeTime}; }

// The times alone are nothing that the user would miss, so they go into a file that was saved for this build and mark
// nothing otherwise.
void keepNotes(const BuildNotes& before, bool saved) {
    bool rows = project.fileLists[LIST_SOURCES] != before.sources;
    bool times = project.sourceFileTimes != before.times || project.exeTime != before.exeTime;
    if (project.projectModified || (!rows && !times)) return;
    bool kept = saved && !project.projectName.empty() && buildHooks.saveProject();
    if (rows && !kept) project.projectModified = 1;
}

void finishNotStarted() {
    showWholeLog();
    host.errorBox("Compile ",
                  !missingProgram.empty()
                      ? "Compile/Link process failed|" + missingProgram +
                            " could not be started|Install it, or put its folder on PATH and start the designer again"
                      : "Compile/Link process failed|Can not find compiler/linker in registry|"
                        "Restart ORBAWIDG Designer in compiler environment command window");
    buildHooks.enableCompile(true);
}

} // namespace

std::string projectSourcePath() { return sourcePath(); }

int buildProject(bool force, int compilerProfile, const std::string& sourcePath, int customSwitches) {
    Build build;
    build.force = force;
    build.exitCodes = compilerOf(compilerProfile).ofThisSystem;
    build.scene = commandScene(compilerProfile, sourcePath, customSwitches);
    lastFailed = false;
    missingProgram.clear();
    if (upToDate(build.scene, force)) {
        loadBuildSource(sourcePath);
        return 1;
    }
    buildHooks.logFont();
    buildHooks.appendLogLine("Building Project Executable");
    buildHooks.appendLogLine("Please wait ...");
    build.run.show = true;
    build.run.plainMessages = build.exitCodes;
    if (!openLoggedRun(build.run, recordPath(), logPath())) {
        reportSystemError("Compile/Link");
        loadBuildSource(sourcePath);
        return 0;
    }
    removeOldResults(build);
    writeComplaints(build);
    writeSwitchesLeftOut(build);
    if (!build.blocked) runSteps(build);
    if (!build.blocked) completeLog(build);
    closeLoggedRun(build.run);
    if (build.result > 0) project.exeTime = build.blocked || build.failed ? 0 : fileTime(build.scene.exe);
    lastFailed = build.failed || build.blocked;
    removeIntermediates(build);
    loadBuildSource(sourcePath);
    return build.result;
}

void compileCommand(bool force) {
    if (childProcess.handle != 0) return;
    buildHooks.selectorTool();
    buildHooks.commitEditor();
    bool saved = buildHooks.saveFirst() && buildHooks.saveProject();
    if (!generateIfStale()) return;
    BuildNotes before = notes();

    buildHooks.enableCompile(false);
    buildHooks.enableExecute(false);
    buildHooks.enableAbort(true); // ends a compiler that does not come to an end
    BusyCursor busy;
    buildHooks.clearLog();
    std::string path = projectSourcePath();
    int started = buildProject(force, compiler.profile, path, project.customSwitches);
    buildHooks.enableAbort(false);
    keepNotes(before, saved);
    if (started > 0) {
        finishStarted(path, busy);
    } else {
        finishNotStarted();
    }
    removeFile(recordPath());
    removeFile(logPath());
}
