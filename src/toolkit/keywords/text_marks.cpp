#include "toolkit/frame/registry.h"
#include "toolkit/views/text/text_entry.h"

#include "menu-c.h"

void owMarkTextLine(int text, int line) {
    const orba::Widget* widget = orba::widgetOf(text);
    if (auto* entry = widget ? dynamic_cast<orba::TextEntry*>(widget->view.data()) : nullptr) entry->markLine(line);
}
