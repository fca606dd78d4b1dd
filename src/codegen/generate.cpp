// One generation from beginning to end: the file is chosen, the text is put together in memory, and only then the file
// is replaced.

#include "codegen/generate.h"

#include "codegen/generation.h"
#include "codegen/output.h"
#include "codegen/resources.h"

#include "platform/paths.h"
#include "platform/safe_file.h"
#include "project/busy_cursor.h"
#include "project/host.h"
#include "project/tree.h"

#include <algorithm>
#include <ctime>

namespace {

constexpr std::string_view DESIGNER_VERSION = " v8.5";
constexpr std::string_view DATED = " Last created on ";

// "Tue Nov 24 21:02:20 2026\n", whatever the locale.
std::string localTime() {
    constexpr const char* DAYS[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    constexpr const char* MONTHS[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                      "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const std::time_t now = std::time(nullptr);
    const std::tm* time = std::localtime(&now);
    if (!time) return "\n";
    const auto two = [](int number) { return std::string(number < 10 ? "0" : "") + std::to_string(number); };
    std::string text;
    put(text, "%s %s %2d %s:%s:%s %d\n", DAYS[time->tm_wday], MONTHS[time->tm_mon], time->tm_mday, two(time->tm_hour),
        two(time->tm_min), two(time->tm_sec), time->tm_year + 1900);
    return text;
}

// A folder's name may hold anything, but a comment ends with its line.
std::string inComment(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return text;
}

void writeProgram(Generation& g) {
    write(g, "%s Program %s\n", g.facts.comment, inComment(g.base));
    write(g, "%s%s%s", g.facts.comment, DATED, localTime());
    write(g, "%s Using ORBAWIDG Designer Version %s\n\n", g.facts.comment, DESIGNER_VERSION);
    g.language.programHead(g);
    g.language.actionLoop(g);
    g.language.termination(g);
    writeBlock(g, BLOCK_USER_ROUTINES);
}

bool mayBeMaster(const WidgetNode& form) {
    return !isDynamic(form) && !isMdiChild(form) && form.formType != FORM_STATIC_SDI;
}

// The form that stands first in the source; the other forms keep their order. Null when none may.
WidgetNode* findMaster() {
    WidgetNode* form = project.forms;
    while (form && !mayBeMaster(*form)) form = form->next;
    return form;
}

void noteForms(Generation& g, const WidgetNode* master) {
    g.forms.push_back(master);
    for (const WidgetNode* form = project.forms; form; form = form->next) {
        if (form != master) g.forms.push_back(form);
    }
    for (const WidgetNode* form : g.forms) g.formsByParent[form->parentName].push_back(form);
}

bool anyWindowCallback() {
    for (const WidgetNode* node = project.forms; node; node = walkList(node, project.forms)) {
        if (hasWindowCode(*node)) return true;
    }
    return false;
}

} // namespace

const Language& languageOf(int number) {
    for (const Language* language : {&FORTRAN_90, &FORTRAN_77}) {
        if (language->number == number) return *language;
    }
    return C_LANGUAGE;
}

std::string projectKind() {
    const char* platform = project.projectPlatform == 'w'   ? "Windows"
                           : project.projectPlatform == 'x' ? "X-Windows"
                                                            : "GLX-Windows";
    return std::string(languageOfProject().word) + " " + platform + " Project";
}

std::string sourcePath() {
    return project.sourceName.empty() ? std::string()
                                      : joinPath(std::string_view(project.sourceDir), project.sourceName);
}

std::string basePath(std::string_view path) { return withoutExtension(path); }

const PastedCode* pastedCodeAt(const GeneratedText& generated, int line) {
    const auto behind = std::upper_bound(generated.map.begin(), generated.map.end(), line,
                                         [](int wanted, const PastedCode& place) { return wanted < place.firstLine; });
    if (behind == generated.map.begin()) return nullptr;
    const PastedCode& place = *std::prev(behind);
    return line < place.firstLine + place.lines ? &place : nullptr;
}

bool generateText(const std::string& path, GeneratedText& generated, const TextSink& sink) {
    generated.text.clear();
    generated.map.clear();
    const WidgetNode* master = findMaster();
    if (!master) return false;

    const Language& language = languageOf(project.projectLanguage);
    Generation g{.language = language,
                 .facts = languageOfProject(),
                 .out = generated.text,
                 .sink = sink,
                 .map = generated.map,
                 .base = basePath(path)};
    g.windows = project.projectPlatform == 'w';
    g.windowCallbacks = anyWindowCallback();
    noteForms(g, master);
    writeProgram(g);
    if (sink) {
        sink(g.out);
        g.out.clear();
    }
    return true;
}

bool chooseSourceFile() {
    std::string folder = project.sourceDir;
    std::string name = project.sourceName;
    for (;;) {
        if (!host.fileDialogue("Create ORBAWIDG code", languageOfProject().filter, true, folder, name)) return false;
        if (name.empty()) return false;
        if (name.find('.') == std::string::npos) name += languageOfProject().extension;
        const bool taken = fileReadable(joinPath(std::string_view(folder), name));
        if (!taken || host.messageBox("Overwrite existing file?", "File already exists. Overwrite?", BOX_QUESTION,
                                      BOX_YES_NO) == ANSWER_YES) {
            project.sourceDir = folder;
            project.sourceName = name;
            return true;
        }
    }
}

namespace {

// Sizes that the user has dragged on live arrays come into the records.
void storeArraySizes() {
    for (WidgetNode* node = project.forms; node; node = walkList(node, project.forms)) {
        if (is(*node, HAS_CELLS)) host.storeArrayGeometry(*node);
    }
}

// What a source that is complete leaves in the project.
void markGenerated(const std::string& fileName) {
    moveFormToHead(findMaster());
    if (project.projectTitle.empty()) project.projectTitle = withoutExtension(fileName);
    project.sourceStale = 0;
    project.exeTime = 0;
}

bool reportUnwritable() {
    host.errorBox("Error during save",
                  "File to save code to could not be created or opened.|Make sure the file is not open "
                  "in another application, then try again");
    return false;
}

} // namespace

bool generateSource(const std::string& path, const std::string& fileName, GeneratedText* generated) {
    SafeFile file;
    if (!openSafeFile(file, path)) return reportUnwritable();
    BusyCursor busy;
    storeArraySizes();
    const TextSink toFile = [&](std::string_view piece) { writeSafeFile(file, piece.data(), piece.size()); };
    GeneratedText own;
    const bool made = generated ? generateText(path, *generated) : generateText(path, own, toFile);
    if (!made) {
        busy.end();
        host.errorBox("Error during save",
                      "The project has no master form, so there is no program to generate.|Set the Form "
                      "Type of one form to Master, then try again");
        return false;
    }
    if (generated) toFile(generated->text);
    const bool written = commitWhatIsNew(file, DATED);
    if (written) {
        markGenerated(fileName);
        const std::string base = basePath(path);
        if (!writeManifest(base, project.projectTitle)) reportUnwritable();
        if (!writeResourceScript(base)) reportUnwritable();
    }
    busy.end();
    return written || reportUnwritable();
}
