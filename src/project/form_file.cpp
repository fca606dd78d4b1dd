// Form files: a part of the form list on its own.
#include "platform/paths.h"
#include "project/code_stores.h"
#include "project/files.h"
#include "project/header.h"
#include "project/host.h"
#include "project/naming.h"
#include "project/records_io.h"
#include "project/tree.h"

namespace {

// Full path of a form file that was inserted incomplete; the first save over it keeps it.
std::string damagedFormFile;

bool mayDiffer(const std::string& text) {
    return host.messageBox("Mismatch form type", text, BOX_WARNING, BOX_OK_CANCEL) != ANSWER_CANCEL;
}

bool headerFits(const FileHeader& header) {
    if (project.projectPlatform != 'w' && header.text.find("-w") != std::string::npos) {
        host.errorBox("Incompatable form type", "Cannot insert a Windows form into an X project");
        return false;
    }
    return header.language == project.projectLanguage ||
           mayDiffer("Code type does not match project|Callback code blocks may need converting");
}

bool knownVersion(const FileHeader& header) {
    if (header.version >= VERSION_30) return true;
    reportUnknownHeader(header, "7.0");
    return false;
}

bool snapFits(FileReader& reader) {
    int first = project.snapGrid;
    int second = project.snapGrid;
    readNumber(reader, first);
    readNumber(reader, second);
    return (first == project.snapGrid && second == project.snapGrid) ||
           mayDiffer("Form Snap Grid does not match project snap grid|Placement of widgets may be affected");
}

WidgetNode* lastForm() {
    WidgetNode* form = project.forms;
    while (form && form->next) form = form->next;
    return form;
}

// Appends the chain; false when its first form has a name that a form of the project has already.
bool appendForms(OwnedList forms) {
    WidgetNode* first = forms.get();
    const bool form = findForm(project.forms, first->name);
    if (form || NamesInUse().count(first->name) > 0) {
        host.errorBox("Invalid Form Name", form ? "Form of same name alredy exists in this project"
                                                : first->name + " is a name of something else in this project already");
        return false;
    }
    adoptForms(std::move(forms));
    const std::string changed = numberTakenNames(first);
    if (!changed.empty())
        host.infoBox("Insert Form", "Names of the form that this project has already were changed:|" +
                                        changed.substr(0, changed.size() - 1));
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
    if (!knownVersion(header) || !headerFits(header) || !snapFits(reader)) return 0;
    project.fileVersion = header.version;
    RecordSource source{.reader = reader, .version = header.version};
    OwnedList forms = readRecords(source);
    if (header.version < VERSION_71) convertOldCode(forms.get());
    WidgetNode* last = lastForm();
    if (!appendForms(std::move(forms))) return 0;
    project.formFileName = name;
    project.formFileDir = givenFolder;
    damagedFormFile.clear();
    if (mendForms(last) || reader.damaged) {
        damagedFormFile = path;
        reportIncomplete(path);
    }
    WidgetNode* inserted = last ? last->next : project.forms;
    if (!inserted) return 0; // the file held no form
    if (first) *first = inserted;
    takeNumber(project.nextFormNumber);
    return project.nextFormNumber;
}

bool loadFormAlone(const std::string& path) {
    FileReader reader;
    if (!openReader(reader, path)) {
        host.errorBox("Error opening file", "Cannot open Form file :" + fileNameOf(path));
        return false;
    }
    const FileHeader header = readHeader(reader);
    if (!knownVersion(header)) return false;
    resetProject();
    project.projectPlatform = header.platform;
    project.projectLanguage = header.language;
    project.doubleBuffering = 0;
    project.fileVersion = header.version;
    int second = 0;
    readNumber(reader, project.snapGrid);
    readNumber(reader, second);
    RecordSource source{.reader = reader, .version = header.version};
    OwnedList forms = readRecords(source);
    if (header.version < VERSION_71) convertOldCode(forms.get());
    adoptForms(std::move(forms));
    project.widgetCount = source.namedRecords;
    if (reader.damaged) {
        damagedFormFile = path;
        reportIncomplete(path);
    }
    return true;
}

bool saveForm(const std::string& path) {
    host.commitEditor();
    WidgetNode* form = activeForm(project.forms);
    return saveForms(path, form ? form : project.forms);
}

bool saveForms(const std::string& path, WidgetNode* form) {
    FileWriter writer;
    bool saved = openWriter(writer, path);
    if (saved) {
        writeHeader(writer);
        writeNumber(writer, project.snapGrid);
        writeNumber(writer, project.snapGrid);
        writeRecords(writer, form);
        saved = closeWriter(writer, sameFile(damagedFormFile, path));
    }
    if (!saved) reportSaveFailed(writer);
    if (saved && sameFile(damagedFormFile, path)) damagedFormFile.clear();
    return saved;
}
