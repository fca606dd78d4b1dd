// The editor of the text of a text entry or label: a plain one, and one for rich text. Both keep their window's place
// among the window states.
#pragma once

#include "dialogues/frame.h"
#include "project/records.h"

enum TextControl : int {
    TEXT_CANCEL = 15359,
    TEXT_OK = 15360,
    TEXT_WINDOW = 15522,
    TEXT_OPEN = 15530,
    TEXT_SAVE,
    TEXT_SAVE_AS,
    TEXT_PRINT,
    TEXT_UNDO,
    TEXT_LEFT,
    TEXT_CENTRE,
    TEXT_RIGHT,
    TEXT_JUSTIFIED,
    TEXT_LEFT_INDENT,
    TEXT_FIRST_INDENT,
    TEXT_RIGHT_INDENT,
    TEXT_NORMAL,
    TEXT_BULLET,
    TEXT_FONT,
    TEXT_SIZE,
    TEXT_COLOUR,
    TEXT_BOLD,
    TEXT_ITALIC,
    TEXT_UNDERLINE,
    TEXT_CUT,
    TEXT_COPY,
    TEXT_PASTE,
    TEXT_STATE = 15553,
    TEXT_AREA = 15843,
    TEXT_STRIP = 15844,
    TEXT_COUNT = 15845,
    TEXT_REDO = 15846,
};

// What both forms share.
namespace text_editor {
void start(WidgetNode& node);
WidgetNode* edited();
std::string held(); // what the text widget holds, as the record would
bool isModified();  // it differs from what the record holds
void openAtPlace(const Dialogue& dialogue);
void storePlace(const Dialogue& dialogue);
// OK and Cancel; both may leave the dialogue open.
void accept(const Dialogue& dialogue);
void cancel(const Dialogue& dialogue);
} // namespace text_editor
