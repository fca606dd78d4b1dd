#include "compile/navigation.h"

#include "codegen/generate.h"
#include "compile/catalogue.h"
#include "compile/hooks.h"
#include "compile/log.h"
#include "compile/markers_search.h"
#include "platform/letters.h"
#include "platform/text_files.h"
#include "project/busy_cursor.h"
#include "project/code_stores.h"
#include "project/host.h"
#include "project/language.h"
#include "project/records.h"
#include "project/tree.h"

#include <algorithm>
#include <cctype>

namespace {

// The source of the last build.
struct BuildSource {
    std::string path;
    std::string text;
    std::vector<size_t> lineStarts; // offset of each line
    bool mapped = false;
    GeneratedText generated;     // its map, when mapped...
    std::vector<Marker> markers; // ...otherwise these
};
BuildSource source;
GeneratedText noted;

std::string_view sourceLine(int line) {
    if (line < 1 || line > static_cast<int>(source.lineStarts.size())) return {};
    size_t from = source.lineStarts[static_cast<size_t>(line - 1)];
    return std::string_view(source.text).substr(from, source.text.find('\n', from) - from);
}

// The header's second line carries the date of its generation.
bool sameButForDate(const std::string& a, const std::string& b) {
    size_t firstA = a.find('\n');
    size_t firstB = b.find('\n');
    if (firstA != firstB || firstA == std::string::npos || a.compare(0, firstA, b, 0, firstB) != 0) return false;
    size_t restA = a.find('\n', firstA + 1);
    size_t restB = b.find('\n', firstB + 1);
    if (restA == std::string::npos || restB == std::string::npos) return false;
    return std::string_view(a).substr(restA) == std::string_view(b).substr(restB);
}

// --- where the map leads

MenuEntryRec* entryNamed(WidgetNode* owner, const std::string& name) {
    const auto entry = std::ranges::find(owner->entries, name, &MenuEntryRec::name);
    return entry == owner->entries.end() ? nullptr : &*entry;
}

CodeLocation placeOfPasted(const PastedCode& pasted, int line, int column) {
    CodeLocation location;
    location.line = line - pasted.firstLine + 1;
    if (column > 0) location.column = std::max(1, column - pasted.indent);
    if (pasted.kind == PastedCode::PROJECT_BLOCK) {
        location.place = CodePlace::block;
        location.block = pasted.index;
        return location;
    }
    // By name, since the widget may have been deleted or made anew after the build.
    location.widget = findName(project.forms, pasted.widget, false);
    location.slot = pasted.index;
    if (!location.widget) return {};
    location.place = CodePlace::widgetSlot;
    if (pasted.kind == PastedCode::ENTRY_SLOT) {
        location.entry = entryNamed(location.widget, pasted.entry);
        if (!location.entry) return {};
        location.place = CodePlace::entrySlot;
    }
    return location;
}

// --- whose statement a generated line is

constexpr std::string_view CHILD_WORDS = " child of ";

// The last word of `text`.
std::string lastWord(std::string_view text) {
    size_t from = text.find_last_of(' ');
    return std::string(from == std::string_view::npos ? text : text.substr(from + 1));
}

// The first name on the line that a widget bears.
WidgetNode* widgetOnLine(std::string_view line) {
    auto inName = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; };
    for (size_t from = 0; from < line.size();) {
        size_t end = from;
        while (end < line.size() && inName(line[end])) end++;
        if (end > from) {
            WidgetNode* widget = findName(project.forms, line.substr(from, end - from), false);
            if (widget) return widget;
        }
        from = end + 1;
    }
    return nullptr;
}

// The comment that opens a widget's statements names it; other lines may name one themselves.
WidgetNode* widgetOfStatement(int line) {
    for (int above = line; above >= 1; above--) {
        std::string_view text = sourceLine(above);
        if (text.empty() || pastedCodeAt(source.generated, above)) break;
        size_t words = text.find(CHILD_WORDS);
        if (words == std::string_view::npos || std::string_view("!/C").find(text[0]) == std::string_view::npos)
            continue;
        WidgetNode* widget = findName(project.forms, lastWord(text.substr(0, words)), false);
        if (widget) return widget;
        break;
    }
    return widgetOnLine(sourceLine(line));
}

// The end of the code that stands ahead of `line`, since what it leaves open shows only behind it.
CodeLocation endOfCodeAhead(int line) {
    const PastedCode* ahead = nullptr;
    for (const PastedCode& pasted : source.generated.map) {
        if (pasted.firstLine >= line) break;
        ahead = &pasted;
    }
    CodeLocation start;
    start.place = CodePlace::block;
    return ahead ? placeOfPasted(*ahead, ahead->firstLine + ahead->lines - 1, 0) : start;
}

CodeLocation findByMap(int line, int column) {
    if (const PastedCode* pasted = pastedCodeAt(source.generated, line)) return placeOfPasted(*pasted, line, column);
    CodeLocation location;
    location.widget = widgetOfStatement(line);
    location.place = CodePlace::widgetStatement;
    return location.widget ? location : endOfCodeAhead(line);
}

// gfortran counts bytes. g++ counts what a screen shows: tabs reach to the next eighth.
int characterColumn(std::string_view line, int told, bool asShown) {
    constexpr int TAB = 8;
    int column = 0;
    int counted = 0;
    for (size_t at = 0; at < line.size() && counted < told; at++) {
        bool starts = !continuesLetter(line[at]);
        if (starts) column++;
        if (asShown && line[at] == '\t') {
            counted = counted / TAB * TAB + TAB;
        } else if (starts || !asShown) {
            counted++;
        }
    }
    return column + (told - counted); // beyond the end of the line as far as it was told
}

void showPosition(MessagePosition position, int compilerProfile) {
    if (position.line < 1) return;
    if (position.column > 0 && compilerOf(compilerProfile).ofThisSystem) {
        bool asShown = languageOfProject().family == LanguageFamily::C;
        position.column = characterColumn(sourceLine(position.line), position.column, asShown);
    }
    buildHooks.commitEditor();
    const BusyCursor busy;
    CodeLocation location = findLocation(position.line, position.column);
    if (location.place != CodePlace::none) buildHooks.showLocation(location);
}

} // namespace

void noteGenerated(GeneratedText generated) { noted = std::move(generated); }

bool generateNoted() {
    GeneratedText generated;
    if (!generateSource(sourcePath(), project.sourceName, &generated)) return false;
    noteGenerated(std::move(generated));
    return true;
}

void loadBuildSource(const std::string& sourcePath) {
    source = {};
    source.path = sourcePath;
    readTextFile(sourcePath, source.text);
    source.lineStarts.push_back(0);
    for (size_t at = 0; (at = source.text.find('\n', at)) != std::string::npos; at++) {
        source.lineStarts.push_back(at + 1);
    }
    if (source.text.empty()) return;
    if (noted.text == source.text) {
        source.generated = noted;
        source.mapped = true;
    } else {
        source.mapped =
            generateText(sourcePath, source.generated) && sameButForDate(source.generated.text, source.text);
        if (!source.mapped) source.generated = {};
        if (!source.mapped) source.markers = findMarkers(source.text);
    }
    source.generated.text.clear();
}

bool buildSourceMapped() { return source.mapped; }

CodeLocation findLocation(int line, int column) {
    if (source.mapped) return findByMap(line, column);
    return searchMarkers(source.markers, line, column);
}

const char* placeName(const CodeLocation& location) {
    switch (location.place) {
    case CodePlace::block: return codeBlockTable[static_cast<size_t>(location.block)].name;
    case CodePlace::widgetSlot: return slotTable[static_cast<size_t>(location.slot)].name;
    case CodePlace::entrySlot: return slotTable[entrySlotKinds[static_cast<size_t>(location.slot)]].name;
    default: return "";
    }
}

bool logEntryLeads(int entry) { return logPosition(compilerLog.lines, entry, compiler.profile, source.path).line > 0; }

void goToLogEntry(int entry, int compilerProfile) {
    showPosition(logPosition(compilerLog.lines, entry, compilerProfile, source.path), compilerProfile);
}
