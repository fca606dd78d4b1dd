// Project files (.wdp) and form files (.wdf): eleven versions are read, the current one is written. The old tree stays
// until a file has been opened and recognised. Saving never harms an existing file before the new one is complete.
#pragma once

#include "project/records.h"

#include <string>

// Reads a project in place of the open one; `name` without a point gets ".wdp". False after an error box, the open
// project unchanged. On true name and folder are remembered and the records are there; grid and array sizes are in the
// project's unit, handles mean nothing. A file that ends early loads as far as it goes, after a box that says so.
bool loadProject(const std::string& folder, const std::string& name);

// Makes what was loaded fit to be shown and edited, whatever the file held; see mendProject. Tells the user when that
// took something away. The designer calls it behind loadProject.
void mendLoadedProject();

// Writes the project. `quiet` for backups: names, title and the modified mark stay. True on success; else after an
// error box, with projectModified and any existing file as they were.
bool saveProject(const std::string& folder, const std::string& name, bool quiet);

// Writes a backup of a modified project beside it, or "Auto_Backup.wdp" in the current folder for an untitled one.
bool autoBackup();

// What was read becomes another project, to be saved under another name: it has no source and no program yet, so that
// it never writes over those of the first.
void startAnotherProject();

std::string backupName(const std::string& name); // "bridge.wdp": "bridge_Backup.wdp"

// Writes the active form and all forms behind it.
bool saveForm(const std::string& path);
bool saveForms(const std::string& path, WidgetNode* first); // the same from `first` on

// Appends the forms of a file. Returns the new value of nextFormNumber, or 0 when nothing was inserted. `first` is the
// first new form, for the caller to make live.
int insertForm(const std::string& folder, const std::string& name, WidgetNode** first = nullptr);

// Reads a form file in place of the open project, as a project of its own: language, platform and snap grid are the
// file's, nothing is asked. False after an error box. For the batch commands.
bool loadFormAlone(const std::string& path);

// What the file dialogues offer, patterns and captions by turns.
inline constexpr char PROJECT_FILES[] = "*.wdp|ORBAWIDG Designer project files (*.wdp)|*.*|All Files (*.*)";
inline constexpr char FORM_FILES[] = "*.wdf|ORBAWIDG Designer form files (*.wdf)|*.*|All Files (*.*)";

// Asks for the name of a file to write. A name without a point gets `extension`. With `askOverwrite` an existing file
// is asked about, No asks again. False when cancelled.
bool chooseSaveFile(const std::string& title, const std::string& extension, bool askOverwrite, std::string& folder,
                    std::string& name);

// True when the program that was last linked from the project's source is there and unchanged. A source that is gone is
// forgotten. The designer asks at the end of a load.
bool executableCurrent();

// Header string of the project's language and platform, as the next save writes it.
std::string headerString();

// What a reader found, for the batch commands.
enum ProjectFileKind { FILE_PROJECT, FILE_FORM, FILE_DEFAULTS, FILE_UNKNOWN };
ProjectFileKind fileKind(const std::string& path); // by the extension, in any case of letters
