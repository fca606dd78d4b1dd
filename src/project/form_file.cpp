// Form files: a part of the form list on its own.
#include "platform/paths.h"
#include "project/code_stores.h"
#include "project/files.h"
#include "project/header.h"
#include "project/host.h"
#include "project/records_io.h"
#include "project/tree.h"

namespace {

// Full path of a form file that was inserted incomplete; the first save over it keeps it.
std::string damagedFormFile;

bool mayDiffer(const std::string& text) {
    return host.messageBox("Mismatch form type", text, BOX_WARNING, BOX_OK_CANCEL) != ANSWER_CANCEL;
}

bool headerFits(const FileHeader& header) {
    if (header.version < VERSION_30) {
        reportUnknownHeader(header, "7.0");
        return false;
    }
    if (project.projectPlatform != 'w' && header.text.find("-w") != std::string::npos) {
        host.errorBox("Incompatable form type", "Cannot insert a Windows form into an X project");
        return false;
    }
    return header.language == project.projectLanguage ||
           mayDiffer("Code type does not match project|Callback code blocks may need converting");
}

bool snapFits(FileReader& reader) {
    int first = project.snapGrid;
    int second = project.snapGrid;
    readNumber(reader, first);
    readNumber(reader, second);
    return (first == project.snapGrid && second == project.snapGrid) ||
           mayDiffer("Form Snap Grid does not match project snap grid|Placement of widgets may be affected");
}

// Appends the chain; false when its first form has a name that a form of the project has already.
bool appendForms(WidgetNode* first) {
    if (findForm(project.forms, first->name)) {
        deleteList(first);
        host.errorBox("Invalid Form Name", "Form of same name alredy exists in this project");
        return false;
    }
    while (first) {
        WidgetNode* next = first->next;
        appendForm(first);
        first = next;
    }
    return true;
}

} // namespace

int insertForm(const std::string& givenFolder, const std::string& givenName, WidgetNode** first) {
    const std::string name = givenName.find('.') == std::string::npos ? givenName + ".wdf" : givenName;
    const std::string path = joinPath(givenFolder, name);
    FileReader reader;
    if (!openReader(reader, path)) {
        host.errorBox("Error opening file", "Cannot open Form file :" + name);
        return 0;
    }
    const FileHeader header = readHeader(reader);
    if (!headerFits(header) || !snapFits(reader)) {
        closeReader(reader);
        return 0;
    }
    project.fileVersion = header.version;
    RecordSource source{.reader = reader, .version = header.version};
    WidgetNode* forms = readRecords(source);
    closeReader(reader);
    if (header.version < VERSION_71) convertOldCode(forms);
    if (!appendForms(forms)) return 0;
    project.widgetCount += source.namedRecords;
    project.formFileName = name;
    project.formFileDir = givenFolder;
    damagedFormFile.clear();
    if (reader.damaged) {
        damagedFormFile = path;
        reportIncomplete(path);
    }
    if (first) *first = forms;
    return ++project.nextFormNumber;
}

bool saveForm(const std::string& path) {
    WidgetNode* form = activeForm(project.forms);
    if (!form) form = project.forms;
    host.commitEditor();
    FileWriter writer;
    bool saved = openWriter(writer, path);
    if (saved) {
        writeHeader(writer);
        writeNumber(writer, project.snapGrid);
        writeNumber(writer, project.snapGrid);
        writeRecords(writer, form);
        saved = closeWriter(writer, damagedFormFile == path);
    }
    if (!saved) reportSaveFailed(writer);
    if (saved && damagedFormFile == path) damagedFormFile.clear();
    return saved;
}
