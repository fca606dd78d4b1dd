#include "dialogues/editors.h"

#include "dialogues/icon_rows.h"
#include "surface/hooks.h"

#include <algorithm>
#include <iterator>

namespace {

struct EditorRow {
    Editor editor;
    void (*open)(WidgetNode& widget);
};

constexpr EditorRow EDITORS[] = {
    {Editor::List, openListEditor},
    {Editor::Tree, openTreeEditor},
    {Editor::PlainText, openPlainTextEditor},
    {Editor::RichText, openRichTextEditor},
    {Editor::Icon, [](WidgetNode& widget) { chooseRowIcon(widget, ROW_ICON); }},
    {Editor::CloseIcon, [](WidgetNode& widget) { chooseRowIcon(widget, ROW_CLOSE_ICON); }},
    {Editor::OpenIcon, [](WidgetNode& widget) { chooseRowIcon(widget, ROW_OPEN_ICON); }},
    {Editor::TabIcon, [](WidgetNode& widget) { chooseRowIcon(widget, ROW_TAB_ICON); }},
    {Editor::BackgroundImage, [](WidgetNode& widget) { chooseRowIcon(widget, ROW_BACKGROUND_IMAGE); }},
};

} // namespace

void joinEditors() {
    hooks.hasEditor = [](Editor editor) {
        return std::ranges::find(EDITORS, editor, &EditorRow::editor) != std::end(EDITORS);
    };
    hooks.openEditor = [](Editor editor, WidgetNode& widget) {
        const auto row = std::ranges::find(EDITORS, editor, &EditorRow::editor);
        if (row != std::end(EDITORS)) row->open(widget);
    };
}
