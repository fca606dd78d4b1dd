// The generator of source programs: from the open project to one source file in its language, with a resource script
// and a manifest beside it. Everything works on `project`; questions and messages go through `host`.
#pragma once

#include "project/records.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// Where pasted user code stands in a generated text.
struct PastedCode {
    enum Kind { PROJECT_BLOCK, WIDGET_SLOT, ENTRY_SLOT };
    Kind kind = PROJECT_BLOCK;
    int index = 0;      // CodeBlockIndex, WidgetSlot or EntrySlot, by kind
    std::string widget; // name of the widget that owns the slot; of the form or tree view of an entry
    std::string entry;  // name of the menu or tree entry
    int firstLine = 0;  // line of the text, from 1
    int lines = 0;      // at least 1
    int indent = 0;     // blanks ahead of every line
};

// A generated text and what leads from its lines back to the user's own.
struct GeneratedText {
    std::string text;
    std::vector<PastedCode> map; // by first line, ascending
};

// The pasted code that holds `line` of the generated text; null when the generator wrote that line itself. The line
// of the user's code is line - firstLine + 1, its column the text's column less indent.
const PastedCode* pastedCodeAt(const GeneratedText& generated, int line);

// Remembers the colours that host.enquireColour tells now as those that a program starts with; generated text defines
// the ones that differ. Without a call all colours from 20 on count as black.
void noteStartColours();

// "F90 Windows Project" and its like, by language and platform of the project.
std::string projectKind();

// The source file's full path from sourceDir and sourceName; empty without a name.
std::string sourcePath();

// `path` up to the last "." of its file name: the stem of the resource script and the manifest.
std::string basePath(std::string_view path);

// Takes the text piece by piece as it is written.
using TextSink = std::function<void(std::string_view piece)>;

// The whole source text, for a source file that will stand at `path`; with a sink it goes there instead, and
// generated.text stays empty. Reads the project and changes nothing in it; touches no file. False when the project has
// no master form: then there is no text.
bool generateText(const std::string& path, GeneratedText& generated, const TextSink& sink = {});

// Asks for the source file with host.fileDialogue, starting from sourceDir and sourceName, and asks before one is
// overwritten. True when one was chosen; on cancelling both names are as before.
bool chooseSourceFile();

// Writes the source to `path`, the manifest and the resource script, puts the master form first in the chain and clears
// sourceStale and exeTime. A file that would differ by its date alone stays as it is, its time too. `fileName` gives
// the project its title when it has none. An existing source is replaced only once the new text is complete. On failure
// an error box has told the user, sourceStale keeps its value and the result is false. The caller sets the title of its
// window. With `generated` it hands back the text with its map.
bool generateSource(const std::string& path, const std::string& fileName, GeneratedText* generated = nullptr);
