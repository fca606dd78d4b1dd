// The text of a text entry or label between its live widget and its record, whose field width bounds it.
#pragma once

#include "project/records.h"

#include <string>
#include <string_view>

// What the live widget holds; `rich`: with its formatting.
std::string liveText(const WidgetNode& node, bool rich);

// Puts `text` into the record. Plain text is cut to the field width, between letters. Rich text is none without its
// end: the field is widened to hold it. False, after a box, when a project cannot hold it; the record is as it was
// then.
bool storeFieldText(WidgetNode& node, std::string_view text);
