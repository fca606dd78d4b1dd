#include "editing/code_assist.h"

#include "editing/catalogue.h"
#include "editing/editor_window.h"
#include "editing/search.h"
#include "editing/text_view.h"
#include "menu-c.h"
#include "project/language.h"
#include "project/preferences.h"
#include "project/records.h"
#include "project/tree.h"

#include <algorithm>
#include <cctype>
#include <set>

namespace {

bool startsName(char c) { return isNamePart(c) && !std::isdigit(static_cast<unsigned char>(c)); }

std::string small(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

// The line up to `caret` with blanks in the place of strings; nothing when the place is in a string or a comment.
std::optional<std::string> codeAhead(const std::string& line, size_t caret, int language) {
    const LanguageFacts& facts = languageFacts(language);
    const bool c = facts.family == LanguageFamily::C;
    std::string code = line.substr(0, caret);
    if (language == LANGUAGE_F77 && !code.empty() && (std::string("Cc*").find(code[0]) != std::string::npos)) return {};
    char quote = 0;
    for (size_t i = 0; i < code.size(); ++i) {
        const char letter = code[i];
        if (quote) {
            if (c && letter == '\\' && i + 1 < code.size()) code[i++] = ' ';
            if (letter == quote) quote = 0;
            code[i] = ' ';
        } else if (letter == '"' || letter == '\'') {
            quote = letter;
            code[i] = ' ';
        } else if (c ? code.compare(i, 2, "//") == 0 : letter == '!') {
            return {};
        }
    }
    if (quote) return {};
    return code;
}

std::string wordBefore(const std::string& code, size_t end) {
    size_t from = end;
    while (from > 0 && isNamePart(code[from - 1])) --from;
    const std::string word = code.substr(from, end - from);
    return word.empty() || !startsName(word[0]) ? std::string() : word;
}

} // namespace

std::optional<OpenCall> callAt(const std::string& line, size_t caret, int language) {
    const std::optional<std::string> code = codeAhead(line, caret, language);
    if (!code) return {};
    int depth = 0;
    OpenCall call;
    for (size_t at = code->size(); at-- > 0;) {
        const char letter = (*code)[at];
        if (letter == ')') ++depth;
        if (letter == ',' && depth == 0) ++call.argument;
        if (letter != '(') continue;
        if (depth-- > 0) continue;
        call.name = wordBefore(*code, at);
        if (!call.name.empty()) return call;
        depth = 0; // brackets of an expression: the call around it counts
        call.argument = 1;
    }
    return {};
}

std::string nameAhead(const std::string& line, size_t caret, int language) {
    const std::optional<std::string> code = codeAhead(line, caret, language);
    return code ? wordBefore(*code, code->size()) : std::string();
}

std::vector<std::string> namesIn(const std::string& code, int language) {
    std::vector<std::string> names;
    std::set<std::string> known;
    for (size_t from = 0; from < code.size();) {
        const size_t end = std::min(code.find('\n', from), code.size());
        const std::string line = code.substr(from, end - from);
        for (size_t at = 0; at < line.size();) {
            size_t behind = at;
            while (behind < line.size() && isNamePart(line[behind])) ++behind;
            const std::string word = line.substr(at, behind - at);
            if (!word.empty() && startsName(word[0]) && nameAhead(line, behind, language) == word &&
                known.insert(small(word)).second)
                names.push_back(word);
            at = std::max(behind, at + 1);
        }
        from = end + 1;
    }
    return names;
}

std::vector<OfferedWord> offeredWords(const OpenCall* call, const std::string& start) {
    const int language = project.projectLanguage;
    std::vector<OfferedWord> words;
    std::set<std::string> known;
    const std::string wanted = small(start);
    const auto add = [&](const std::string& word, const std::string& note) {
        if (small(word).starts_with(wanted) && known.insert(word).second) words.push_back({word, note});
    };
    if (const CatalogueRoutine* routine = call ? findRoutine(call->name, language) : nullptr)
        for (const std::string_view keyword : keywordsOf(*routine)) add(std::string(keyword), "keyword");
    for (const CodeBlockIndex block : {BLOCK_GLOBAL_DEFINITIONS, BLOCK_LOCAL_VARIABLES})
        for (const std::string& name : namesIn(project.codeBlocks[block], language)) add(name, "yours");
    for (const WidgetNode* node = project.forms; node; node = walkList(node, project.forms)) {
        if (node->type != TYPE_MAIN_PANEL) add(node->name, "widget");
        for (const MenuEntryRec& entry : node->entries)
            if (entry.kind == MENU_ENTRY && !entry.name.empty()) add(entry.name, "entry");
    }
    for (const CatalogueFolder& folder : catalogueOf(language))
        for (const CatalogueRoutine& routine : folder.routines)
            if (routine.available) add(routine.name, signatureOf(routine, language).text);
    return words;
}

// ---- On the screen ----------------------------------------------------------------------------------------------

namespace {

constexpr int POPUP_HEIGHT = 17, EDGE = 2, SIDE = 20; // pixels
constexpr size_t LETTERS_TO_OFFER = 3;

struct {
    int panel = 0;
    int text = 0;
    int line = 0; // where it was opened
    std::string routine;
    int argument = -1; // shown bold
} popup;

void removePopup() {
    if (popup.panel) owEraseWidget(popup.panel);
    popup = {};
}

struct CaretLine {
    int line = 1;
    std::string text;
    size_t caret = 0; // bytes ahead of it
};

CaretLine caretLine() {
    const int start = std::max(caretLineStart(editor.text), 1);
    CaretLine place{lineOf(editor.text, -1), extract(editor.text, {start, start + lineLength(editor.text, start)}), 0};
    place.caret = bytesAt(place.text, selectionOf(editor.text).end - start + 1);
    return place;
}

int pixels(int property) { return owEnqTextPos(editor.text, property, owPosition, -1, 0); }

// Above the caret; below it in the first line, where there is no room.
void showPopup(const CatalogueRoutine& routine, int line) {
    const Signature signature = signatureOf(routine, project.projectLanguage);
    OWIDGET text = {};
    owEnqWidgetInfo(editor.text, &text);
    const int lineHeight = pixels(9), height = std::max(POPUP_HEIGHT, lineHeight + EDGE);
    const int width = owEnqTextLength(signature.text.c_str(), owBold, 1, 0) + SIDE;
    constexpr int X = 7, Y = 8;
    const int left = std::clamp(pixels(X) - 1, 0, std::max(static_cast<int>(text.width) - width - EDGE, 0));
    const int top = line == 1 ? pixels(Y) + lineHeight : pixels(Y) - height;
    const int yellow = oTrueCol(1.0, 1.0, 0.8627451), black = oTrueCol(0.0, 0.0, 0.0);
    popup.panel =
        owCreatePanel(editor.body, left, top + editor.textTop, width + EDGE, height, owVpos, OTOP, owType, 1, 0);
    popup.text = owCreateTextEntry(popup.panel, 0, 0, width, height - EDGE, signature.text.c_str(), NAME_LIMIT,
                                   ODISPLAY, owEntryType, ORICHEDIT, owWordWrap, 0, owScrollMode, ONOBARS, owBack1Col,
                                   yellow, owOffCol, yellow, owTextCol, black, 0);
    popup.line = line;
    popup.routine = routine.name;
}

// The argument in force is bold; past the last one nothing is.
void showArgument(const CatalogueRoutine& routine, int argument) {
    if (popup.argument == argument) return;
    popup.argument = argument;
    const Signature signature = signatureOf(routine, project.projectLanguage);
    select(popup.text, {1, -1});
    owSetFontAttribs(popup.text, owBold, 0, 0);
    if (argument <= static_cast<int>(signature.arguments.size())) {
        const Signature::Range range = signature.arguments[static_cast<size_t>(argument) - 1];
        select(popup.text, {static_cast<int>(range.start) + 1, static_cast<int>(range.end) + 1});
        owSetFontAttribs(popup.text, owBold, 1, 0);
    }
    moveCaret(popup.text, 1);
}

void followCall(const CaretLine& place) {
    const std::optional<OpenCall> call =
        place.caret > 0 ? callAt(place.text, place.caret, project.projectLanguage) : std::nullopt;
    const CatalogueRoutine* routine = call ? findRoutine(call->name, project.projectLanguage) : nullptr;
    if (!routine || !routine->available || routine->name != popup.routine || place.line != popup.line) removePopup();
    if (!routine || !routine->available) return;
    if (!popup.panel) showPopup(*routine, place.line);
    showArgument(*routine, call->argument);
}

void offer(const CaretLine& place, const std::string& start, bool asked) {
    const std::optional<OpenCall> call = callAt(place.text, place.caret, project.projectLanguage);
    std::string rows;
    for (const OfferedWord& row : offeredWords(call ? &*call : nullptr, asked ? "" : start))
        if (row.word != start) rows += row.word + "\t" + row.note + "\n";
    if (!rows.empty()) owOfferWords(editor.text, characters(start), rows.c_str(), asked ? 1 : 0);
}

} // namespace

void removeAssist() {
    removePopup();
    if (editor.text) owOfferWords(editor.text, 0, "", 0);
}

void forgetAssist() { popup = {}; }

void assistAfterKey(bool changed) {
    if (!preferences.codeAssist) return removePopup();
    if (owEnqActiveWidget() != editor.text) return;
    const CaretLine place = caretLine();
    followCall(place);
    if (!changed || owEnqWordsOffered(editor.text)) return;
    const std::string start = nameAhead(place.text, place.caret, project.projectLanguage);
    const bool goesOn = place.caret < place.text.size() && isNamePart(place.text[place.caret]);
    if (start.size() >= LETTERS_TO_OFFER && !goesOn) offer(place, start, false);
}

void offerWordsNow() {
    const CaretLine place = caretLine();
    offer(place, nameAhead(place.text, place.caret, project.projectLanguage), true);
}
