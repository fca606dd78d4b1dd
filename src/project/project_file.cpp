// Project files, read and written in one order.
#include "platform/file_times.h"
#include "platform/paths.h"
#include "project/busy_cursor.h"
#include "project/code_stores.h"
#include "project/colours.h"
#include "project/defaults.h"
#include "project/files.h"
#include "project/header.h"
#include "project/host.h"
#include "project/records_io.h"
#include "project/tree.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr int PRE_31 = 31; // versions below had the X grid in grid mode

std::int64_t joinHalves(int low, int high) {
    return static_cast<std::int64_t>((static_cast<std::uint64_t>(static_cast<std::uint32_t>(high)) << 32) |
                                     static_cast<std::uint32_t>(low));
}

void readFileTime(FileReader& reader, std::int64_t& time) {
    int low = 0;
    int high = 0;
    readNumber(reader, low);
    readNumber(reader, high);
    if (!reader.ended) time = joinHalves(low, high);
}

void writeFileTime(FileWriter& writer, std::int64_t time) {
    writeNumber(writer, static_cast<int>(static_cast<std::uint32_t>(time)));
    writeNumber(writer, static_cast<int>(static_cast<std::uint32_t>(static_cast<std::uint64_t>(time) >> 32)));
}

// The six numbers at the head of a file.
struct GridNumbers {
    int horiz = 36;
    int vert = 27;
    int mode = 0;
    int scalable = 0;
    int snapOn = 1;
    int snapGrid = 10;
};

GridNumbers readGrid(FileReader& reader, int version) {
    GridNumbers grid;
    if (version < VERSION_30) grid.horiz = 32, grid.vert = 24;
    if (version >= VERSION_40) {
        readNumber(reader, grid.horiz);
        readNumber(reader, grid.vert);
        readNumber(reader, grid.mode);
        readNumber(reader, grid.scalable);
    }
    if (version >= VERSION_30) {
        readNumber(reader, grid.snapOn);
        readNumber(reader, grid.snapGrid);
    }
    return grid;
}

void readCounters(FileReader& reader, int version) {
    readNumber(reader, project.nextFormNumber);
    for (const CounterPlace& place : counterPlaces) {
        int unused = 0;
        if (version < place.since) continue;
        const bool used = place.counter != COUNTER_NONE;
        readNumber(reader, used ? project.counters[static_cast<std::size_t>(place.counter)] : unused);
    }
}

void writeCounters(FileWriter& writer) {
    writeNumber(writer, project.nextFormNumber);
    for (const CounterPlace& place : counterPlaces) {
        const Counter counter = place.counter == COUNTER_NONE ? place.copyOf : place.counter;
        writeNumber(writer, counter == COUNTER_NONE ? 1 : project.counters[static_cast<std::size_t>(counter)]);
    }
}

// A row of a table, as far as the table has room.
void addRow(FileList& list, std::string row) {
    if (list.size() < FILE_LIST_ROWS) list.push_back(std::move(row));
}

// A table always ends with an empty row.
void endList(FileList& list) {
    if (!list.empty() && list.back().empty()) return;
    if (list.size() >= FILE_LIST_ROWS)
        list.back().clear();
    else
        list.emplace_back();
}

void splitList(const std::string& text, FileList& list) {
    constexpr char BETWEEN[] = " ,\t\r\n";
    list.clear();
    for (std::size_t at = text.find_first_not_of(BETWEEN); at != std::string::npos;) {
        const std::size_t end = text.find_first_of(BETWEEN, at);
        addRow(list, text.substr(at, end == std::string::npos ? end : end - at));
        at = end == std::string::npos ? end : text.find_first_not_of(BETWEEN, end);
    }
    list.emplace_back();
    endList(list);
}

// Versions 1.0 to 2.1: blocks of one size, then the compile data as four strings.
void readOldTail(FileReader& reader, int version) {
    for (CodeBlockIndex block : oldBlockFileOrder)
        readText(reader, project.codeBlocks[block], OLD_BLOCK_BYTES, OLD_BLOCK_BYTES - 1);
    if (version < VERSION_20) return;
    readText(reader, project.codeBlocks[BLOCK_PRE_ACTION], OLD_BLOCK_BYTES, OLD_BLOCK_BYTES - 1);
    if (version >= VERSION_21)
        readText(reader, project.codeBlocks[BLOCK_USER_ROUTINES], OLD_BLOCK_BYTES, OLD_BLOCK_BYTES - 1);
    readNumber(reader, project.customSwitches);
    readString(reader, project.compilerSwitches);
    for (FileListIndex list : {LIST_MODULES, LIST_SOURCES, LIST_OBJECTS, LIST_LIBRARIES}) {
        std::string names;
        readString(reader, names);
        splitList(names, project.fileLists[list]);
    }
    project.sourceFileTimes.assign(project.fileLists[LIST_SOURCES].size(), 0);
}

void readFileLists(FileReader& reader, int version) {
    readNumber(reader, project.customSwitches);
    std::array<int, FILE_LISTS> counts{};
    for (int& count : counts) readNumber(reader, count);
    readString(reader, project.compilerSwitches);
    readString(reader, project.linkerSwitches);
    for (int list = 0; list < FILE_LISTS; ++list) {
        FileList rows;
        std::vector<std::int64_t> times;
        for (int i = 0; i < counts[static_cast<std::size_t>(list)] && !reader.ended; ++i) {
            std::string row;
            std::int64_t time = 0;
            readString(reader, row);
            if (reader.ended) break;
            if (list == LIST_SOURCES && version >= VERSION_40) readFileTime(reader, time);
            addRow(rows, std::move(row));
            if (times.size() < FILE_LIST_ROWS) times.push_back(time);
        }
        endList(rows);
        times.resize(rows.size());
        project.fileLists[static_cast<std::size_t>(list)] = std::move(rows);
        if (list == LIST_SOURCES) project.sourceFileTimes = std::move(times);
    }
}

// Version 3.0 on: everything behind the counters.
void readTail(FileReader& reader, int version) {
    readFileLists(reader, version);
    readString(reader, project.sourceDir);
    if (version >= VERSION_40) {
        readString(reader, project.sourceName);
        readNumber(reader, project.sourceStale);
        readNumber(reader, project.sourceStale); // the same once more
        readFileTime(reader, project.exeTime);
    }
    for (const BlockPlace& place : blockFileOrder) {
        if (version < place.since) continue;
        int size = 0;
        readNumber(reader, size);
        readText(reader, project.codeBlocks[place.block], size, SIZE_MAX);
    }
    if (version >= VERSION_70) readString(reader, project.currentBlockName, BLOCK_NAME_BYTES);
}

void writeTail(FileWriter& writer) {
    writeNumber(writer, project.customSwitches);
    for (const FileList& list : project.fileLists) writeNumber(writer, static_cast<int>(list.size()));
    writeString(writer, project.compilerSwitches);
    writeString(writer, project.linkerSwitches);
    for (std::size_t list = 0; list < FILE_LISTS; ++list)
        for (std::size_t i = 0; i < project.fileLists[list].size(); ++i) {
            writeString(writer, project.fileLists[list][i]);
            if (list == LIST_SOURCES)
                writeFileTime(writer, i < project.sourceFileTimes.size() ? project.sourceFileTimes[i] : 0);
        }
    const bool missing = project.sourceName.empty() && !project.missingSource.name.empty();
    const int stale = missing ? project.missingSource.stale : project.sourceStale;
    writeString(writer, missing ? project.missingSource.folder : project.sourceDir);
    writeString(writer, missing ? project.missingSource.name : project.sourceName);
    writeNumber(writer, stale);
    writeNumber(writer, stale);
    writeFileTime(writer, project.exeTime);
    for (const BlockPlace& place : blockFileOrder) {
        const CodeBlock& block = project.codeBlocks[place.block];
        const std::size_t size = std::min(block.find('\0'), block.size()) + 2;
        writeNumber(writer, static_cast<int>(size));
        writeText(writer, block, size);
    }
    writeString(writer, project.currentBlockName, BLOCK_NAME_BYTES);
}

void convertCodeOfOldFile() {
    for (CodeBlock& block : project.codeBlocks) convertOldCode(block);
    convertOldCode(project.forms);
}

// Platform and language; the first version had only one platform, so the user chooses.
bool takeHeader(const FileHeader& header) {
    bool changed = false;
    project.projectPlatform = header.platform;
    project.projectLanguage = header.language;
    project.doubleBuffering = 0;
    project.fileVersion = header.version;
    if (header.version == VERSION_10) {
        changed = host.messageBox("Menu Functionality", "Do you want to utilize new Windows functionality?",
                                  BOX_QUESTION, BOX_YES_NO) == ANSWER_YES;
        project.projectPlatform = changed ? 'w' : 'x';
    }
    return changed;
}

void takeGrid(const GridNumbers& grid) {
    project.gridHoriz = grid.horiz;
    project.gridVert = grid.vert;
    project.gridMode = grid.mode;
    project.snapOn = grid.snapOn;
    project.snapGrid = grid.snapGrid;
    applyGrid();
}

void readContents(FileReader& reader, int version, const GridNumbers& grid) {
    resetProject();
    project.scalable = grid.scalable;
    RecordSource source{.reader = reader, .version = version, .gridMode = &project.gridMode, .intoProject = true};
    adoptForms(readRecords(source));
    project.widgetCount = source.namedRecords;
    readProjectColours(reader);
    readCounters(reader, version);
    if (version < VERSION_30)
        readOldTail(reader, version);
    else
        readTail(reader, version);
}

// What the grid of an old project comes to once its records have told the mode.
void settleOldGrid(int version) {
    if (version < VERSION_30) {
        const bool windowsPixels = project.projectPlatform == 'w' && project.gridMode == 0;
        project.snapOn = windowsPixels ? 0 : 1;
        project.snapGrid = windowsPixels ? 24 : 25;
    }
    if (version < PRE_31 && project.gridMode == 1) project.gridHoriz = 32, project.gridVert = 24;
    applyGrid();
}

std::string titleOf(const std::string& name) { return name.substr(0, name.rfind('.')); }

// Whether the file at hand is the one that was read incomplete.
bool overDamagedFile(const std::string& path) { return sameFile(project.damagedFile, path); }

} // namespace

bool loadProject(const std::string& folder, const std::string& givenName) {
    const std::string name = givenName.find('.') == std::string::npos ? givenName + ".wdp" : givenName;
    const std::string path = joinPath(folder, name);
    BusyCursor busy;
    FileReader reader;
    if (!openReader(reader, path)) {
        busy.end();
        host.errorBox("Error opening file", "Cannot open Project file :" + name);
        return false;
    }
    const FileHeader header = readHeader(reader);
    if (header.version == 0) {
        busy.end();
        reportUnknownHeader(header, " v8.5");
        return false;
    }
    const bool changed = takeHeader(header);
    const GridNumbers grid = readGrid(reader, header.version);
    takeGrid(grid);
    readContents(reader, header.version, grid);
    if (header.version < VERSION_71) convertCodeOfOldFile();
    settleOldGrid(header.version);
    mapDefaultColours();
    project.projectName = name;
    project.projectDir = folder;
    project.projectTitle = titleOf(name);
    project.projectModified = changed ? 1 : 0;
    project.storedSource = project.sourceName.empty() ? "" : joinPath(project.sourceDir, project.sourceName);
    busy.end();
    if (reader.damaged) {
        project.damagedFile = path;
        reportIncomplete(path);
    }
    return true;
}

void mendLoadedProject() {
    if (!mendProject() || !project.damagedFile.empty()) return;
    project.damagedFile = joinPath(project.projectDir, project.projectName);
    reportIncomplete(project.damagedFile);
}

bool saveProject(const std::string& folder, const std::string& name, bool quiet) {
    host.commitEditor();
    BusyCursor busy;
    const std::string path = joinPath(folder, name);
    if (project.projectModified) project.missingSource.stale = 1;
    FileWriter writer;
    bool saved = openWriter(writer, path);
    if (saved) {
        writeHeader(writer);
        for (int number : {project.gridHoriz, project.gridVert, project.gridMode, project.scalable, project.snapOn,
                           project.snapGrid})
            writeNumber(writer, number);
        writeRecords(writer, project.forms);
        writeColours(writer);
        writeCounters(writer);
        writeTail(writer);
        saved = closeWriter(writer, overDamagedFile(path));
    }
    busy.end();
    if (!saved) {
        reportSaveFailed(writer);
        return false;
    }
    if (overDamagedFile(path)) project.damagedFile.clear();
    if (quiet) return true;
    project.projectModified = 0;
    project.projectName = name;
    project.projectDir = folder;
    project.projectTitle = titleOf(name);
    return true;
}

std::string backupName(const std::string& name) {
    const std::size_t point = std::min(name.find('.'), name.size());
    return name.substr(0, point) + "_Backup" + name.substr(point);
}

bool autoBackup() {
    host.commitEditor();
    if (!project.projectModified) return true;
    if (project.projectName.empty()) return saveProject(currentFolder(), "Auto_Backup.wdp", true);
    return saveProject(project.projectDir, backupName(project.projectName), true);
}

void startAnotherProject() {
    project.sourceName.clear();
    project.sourceDir.clear();
    project.missingSource = {};
    project.sourceStale = 1;
    project.exeTime = 0;
}

bool executableCurrent() {
    if (project.fileVersion < VERSION_40 || project.sourceName.empty()) return false;
    const std::string source = joinPath(project.sourceDir, project.sourceName);
    if (!fileReadable(source)) {
        project.missingSource = {project.sourceDir, project.sourceName, project.sourceStale};
        project.sourceStale = 1;
        project.sourceDir.clear();
        project.sourceName.clear();
    }
    const std::string program = executablePath(source);
    return fileReadable(program) && fileTime(program) == project.exeTime;
}

bool chooseSaveFile(const std::string& title, const std::string& extension, bool askOverwrite, std::string& folder,
                    std::string& name) {
    for (;;) {
        std::string chosenFolder = folder;
        std::string chosen = name;
        const char* filter = extension == ".wdf" ? FORM_FILES : PROJECT_FILES;
        if (!host.fileDialogue(title, filter, true, chosenFolder, chosen) || chosen.empty()) return false;
        if (chosen.find('.') == std::string::npos) chosen += extension;
        const bool refused = askOverwrite && pathExists(joinPath(chosenFolder, chosen)) &&
                             host.messageBox("Overwrite existing file?", "File already exists. Overwrite?",
                                             BOX_QUESTION, BOX_YES_NO) != ANSWER_YES;
        folder = chosenFolder;
        name = chosen;
        if (!refused) return true;
    }
}

ProjectFileKind fileKind(const std::string& path) {
    const std::size_t point = path.rfind('.');
    std::string extension = point == std::string::npos ? "" : path.substr(point);
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension == ".wdp"   ? FILE_PROJECT
           : extension == ".wdf" ? FILE_FORM
           : extension == ".wdd" ? FILE_DEFAULTS
                                 : FILE_UNKNOWN;
}
