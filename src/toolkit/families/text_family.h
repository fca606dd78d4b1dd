// Text entries and labels as widgets of the toolkit, for the files that act on them.
#pragma once

#include "toolkit/frame/core.h"
#include "toolkit/views/text/text_entry.h"

namespace orba {

struct TextData : FamilyData {
    int entryType = OSTANDARD;
    int display = OEDIT;
    int field = 0; // as the program gave it: negative when it scrolls
    int justify = OLEFT;
    int border = 0;
    int scroll = OBOTHBARS;
    int wordWrap = 1;
    int autoUrl = 0;
    int readOnly = OOFF;
    int oleInserts = 1;
    int margin = 0;
    int back1 = 0, back2 = 0, text = 0;
};

// The entry of a text entry, label or TTY entry; null for any other widget.
TextEntry* textEntryOf(Widget* widget);

// Hooks that post the events of `handle`.
TextHooks textHooks(int handle);

// Brings the entry into line with its data.
void showTextData(Widget& widget);

// Pixels up to which an entry is a single line.
int singleLineHeight();

} // namespace orba
