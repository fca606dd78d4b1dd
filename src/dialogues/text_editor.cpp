#include "dialogues/text_editor.h"

#include "dialogues/editors.h"
#include "project/host.h"
#include "project/tree.h"
#include "surface/field_text.h"
#include "surface/live.h"
#include "surface/selection.h"
#include "surface/state.h"
#include "surface/window_states.h"

#include <cstdlib>

namespace text_editor {

namespace {

struct State {
    int node = 0;       // id of the entry or label
    std::string before; // what the text widget held at first
} state;

constexpr int ROOM = 1 << 20; // bytes of a text with its formatting

bool isRich() {
    const WidgetNode* node = edited();
    return node && node->subType == ORICHEDIT;
}

void leave(const Dialogue& dialogue) {
    closeDialogue(dialogue);
    state = {};
    if (project.currentWidget) selectWidget(project.currentWidget);
}

} // namespace

WidgetNode* edited() { return findRecord(state.node); }

std::string held() {
    std::string text(ROOM, '\0');
    owEnqTextSetting(dialogue::widget(TEXT_AREA), text.data(), ROOM, owEntryType, isRich() ? 1 : 0, 0);
    text.resize(text.find('\0'));
    return text;
}

bool isModified() { return held() != state.before; }

void start(WidgetNode& node) {
    owAdoptChild(0, 0, 0);
    state.node = node.id;
}

void openAtPlace(const Dialogue& dialogue) {
    if (isOpen(dialogue)) return;
    openDialogue(dialogue);
    state.before = held();
    const WindowState& window = windowStates[WINDOW_TEXT_EDITOR];
    if (window.width <= 0 || window.height <= 0) return;
    dialogue::Place place = dialogue::place(dialogue);
    if (window.state != OCENTRED) place.x = window.x, place.y = window.y;
    place.width = window.width;
    place.height = window.height;
    dialogue::setPlace(dialogue, place);
}

void storePlace(const Dialogue& dialogue) {
    const dialogue::Place place = dialogue::place(dialogue);
    WindowState& window = windowStates[WINDOW_TEXT_EDITOR];
    window.x = place.x;
    window.y = place.y;
    window.width = place.width;
    window.height = place.height;
    window.state = ONORMAL;
}

void accept(const Dialogue& dialogue) {
    WidgetNode* node = edited();
    if (!node || !isModified()) return leave(dialogue);
    if (!storeFieldText(*node, held())) return dialogue::focus(TEXT_AREA);
    rebuildWidget(*node);
    markChanged();
    leave(dialogue);
}

void cancel(const Dialogue& dialogue) {
    if (isModified() && host.messageBox("Cancel Text Editor", "Text has been modified||OK to abandon?", BOX_WARNING,
                                        BOX_YES_NO) != ANSWER_YES)
        return dialogue::focus(TEXT_AREA);
    leave(dialogue);
}

} // namespace text_editor

// ---- The plain form

namespace {

extern const Dialogue PLAIN;

void fill() {
    const WidgetNode* node = text_editor::edited();
    const int area = dialogue::widget(TEXT_AREA);
    owSetFontAttribs(area, owFontFace, node->fontFace.c_str(), owPointSize, node->pointSize, owCharSet, node->charSet,
                     owBold, node->bold, owItalic, node->italic, owUnderline, node->underline, owStrikeout,
                     node->strikeout, 0);
    owSetWidgetProp(area, owTextCol, node->colour3, 0);
    owSetTextSetting(area, node->text.c_str(), 0);
    if (node->justify != OLEFT) {
        owSetSelectedTextRange(area, 1, OALL);
        owSetParagraphProp(area, owJustify, node->justify, 0);
        owSetSelectedTextRange(area, 0, 0);
    }
}

void showCount() {
    const WidgetNode* node = text_editor::edited();
    if (!node) return;
    dialogue::setText(TEXT_COUNT, std::to_string(dialogue::text(TEXT_AREA).size()) + " of " +
                                      std::to_string(std::abs(node->fieldWidth)) + " characters");
}

void accept() { text_editor::accept(PLAIN); }
void cancel() { text_editor::cancel(PLAIN); }

constexpr int CTRL_RETURN = OKEYRETURN + 2000;
constexpr DialogueKey KEYS[] = {{CTRL_RETURN, TEXT_OK}};

constexpr Control CONTROLS[] = {
    {.field = Field::Panel, .id = TEXT_STRIP, .height = 26, .hpos = OCENTRE, .vpos = OBOTTOM, .expand = 1},
    {.field = Field::Area,
     .id = TEXT_AREA,
     .width = 200,
     .height = 100,
     .length = 32767,
     .typed = showCount,
     .hpos = OCENTRE,
     .vpos = OMIDDLE,
     .expand = 1},
    {.field = Field::Label, .id = TEXT_COUNT, .text = "", .x = 4, .width = 176, .parent = TEXT_STRIP},
    {.field = Field::Button,
     .id = TEXT_OK,
     .text = "OK",
     .x = 88,
     .width = 88,
     .mnemonic = 'O',
     .changed = accept,
     .help = "Ctrl+Return",
     .parent = TEXT_STRIP,
     .hpos = ORIGHT},
    {.field = Field::Button,
     .id = TEXT_CANCEL,
     .text = "Cancel",
     .width = 88,
     .mnemonic = 'C',
     .changed = cancel,
     .parent = TEXT_STRIP,
     .hpos = ORIGHT},
};

const Dialogue PLAIN = {.title = "Text Entry",
                        .icon = "Text",
                        .help = "Text Editor",
                        .width = 430,
                        .height = 300,
                        .windowEvent = TEXT_WINDOW,
                        .controls = CONTROLS,
                        .cancel = TEXT_CANCEL,
                        .first = TEXT_AREA,
                        .fill = fill,
                        .refresh = showCount,
                        .placed = [] { text_editor::storePlace(PLAIN); },
                        .keys = KEYS,
                        .resizable = true};

} // namespace

void openPlainTextEditor(WidgetNode& text) {
    text_editor::start(text);
    text_editor::openAtPlace(PLAIN);
}
