// Text entries and labels: creation, properties, events.
#include "toolkit/families/text_family.h"

#include "toolkit/families/family_support.h"
#include "toolkit/views/text/program_text.h"
#include "toolkit/views/text/rtf.h"

#include <QApplication>
#include <cmath>

namespace orba {
namespace {

constexpr int singleLinePixels = 25;
constexpr int eventTextLength = 255;

ScrollMode scrollMode(int mode) {
    switch (mode) {
    case OBOTHBARS: return ScrollMode::Both;
    case OVERTICAL:
    case 1: return ScrollMode::Vertical;
    case OHORIZONTAL:
    case 2: return ScrollMode::Horizontal;
    default: return ScrollMode::None;
    }
}

TextOptions optionsOf(const TextData& data) {
    TextOptions options;
    options.kind = data.entryType == OSECURITY   ? TextKind::Security
                   : data.entryType == ORICHEDIT ? TextKind::Rich
                                                 : TextKind::Standard;
    options.label = data.display != OEDIT;
    options.readOnly = data.readOnly == OON;
    // Of rich text the field length bounds the text with its marks, which a user does not see: it bounds no typing.
    options.limit =
        options.kind == TextKind::Rich || data.field == std::numeric_limits<int>::min() ? 0 : std::abs(data.field);
    options.justify = std::clamp(data.justify, -1, 2);
    options.border = data.border >= 0 && data.border <= 3 ? TextBorder(data.border) : TextBorder::Default;
    options.scroll = scrollMode(data.scroll);
    options.wordWrap = data.wordWrap != 0;
    options.autoUrl = data.autoUrl == OON;
    options.inactive = colourOrNone(data.back1);
    options.active = colourOrNone(data.back2);
    options.text = textColourOrNone(data.text);
    options.margin = std::clamp(data.margin, 0, 100);
    return options;
}

constexpr Attribute attributes[] = {
    keeps<&TextData::border>(owBorderType),     keeps<&TextData::back1>(owBack1Col),
    keeps<&TextData::back2>(owBack2Col),        keeps<&TextData::text>(owTextCol),
    keeps<&TextData::justify>(owJustify),       keeps<&TextData::margin>(owTextMargin),
    keeps<&TextData::entryType>(owEntryType),   keeps<&TextData::scroll>(owScrollMode),
    keeps<&TextData::oleInserts>(owOLEInserts), keeps<&TextData::wordWrap>(owWordWrap),
    keeps<&TextData::readOnly>(owReadOnly),     keeps<&TextData::autoUrl>(owAutoURL),
};

struct StyleRow {
    int property;
    std::optional<bool> TextFont::*style;
};
constexpr StyleRow styles[] = {{propertyOf(owBold), &TextFont::bold},
                               {propertyOf(owItalic), &TextFont::italic},
                               {propertyOf(owUnderline), &TextFont::underline},
                               {propertyOf(owStrikeout), &TextFont::strikeout}};

// Fonts go to the selection of rich text, else to the whole text.
bool getFontProperty(Widget& widget, int property, Value& value) {
    const TextFont font = textEntryOf(&widget)->textFont();
    const bool whole = textEntryOf(&widget)->formatsWholeText();
    if (property == propertyOf(owFontFace)) {
        value.text = whole || *font.face == QApplication::font().family() ? widget.fontFace : *font.face;
        return true;
    }
    if (property == propertyOf(owPointSize)) {
        value.integer = whole ? widget.pointSize : int(std::lround(*font.points));
        return true;
    }
    for (const StyleRow& row : styles) {
        if (row.property != property) continue;
        value.integer = *(font.*row.style);
        return true;
    }
    return false;
}

// The part of a font that a property stands for; false for one that stands for none, or for no size.
bool fontPart(int property, const Value& value, TextFont& font) {
    if (property == propertyOf(owFontFace)) font.face = value.text;
    if (property == propertyOf(owPointSize) && value.integer > 0) font.points = pointsFrom(value.integer);
    for (const StyleRow& row : styles)
        if (row.property == property) font.*row.style = value.integer != 0;
    return font.face || font.points || font.bold || font.italic || font.underline || font.strikeout;
}

bool setFontProperty(Widget& widget, int property, const Value& value) {
    TextFont font;
    if (!fontPart(property, value, font)) return property == propertyOf(owPointSize);
    // Of a whole text the desktop's own face has the desktop's own size where programs write 10 points.
    if ((font.face || font.points) && textEntryOf(&widget)->formatsWholeText()) {
        if (font.face) widget.fontFace = *font.face;
        if (font.points) widget.pointSize = int(*font.points);
        font.face = widget.fontFace;
        font.points = fontFor(widget.fontFace, widget.pointSize).pointSizeF();
    }
    textEntryOf(&widget)->setTextFont(font);
    return true;
}

// The colour of selected rich text is an attribute of its characters.
bool coloursSelection(Widget& widget) {
    int start = 0, end = 0;
    TextEntry& entry = *textEntryOf(&widget);
    if (entry.rich()) entry.selection(start, end);
    return start < end;
}

bool getTextProperty(Widget& widget, int property, Value& value) {
    if (property != propertyOf(owSelectedText)) return getFontProperty(widget, property, value);
    value.text = fromProgram(textEntryOf(&widget)->selectedText());
    return true;
}

bool setTextProperty(Widget& widget, int property, const Value& value) {
    if (property != propertyOf(owTextCol) || !coloursSelection(widget))
        return setTabStop(widget, property, value) || setFontProperty(widget, property, value);
    TextFont font;
    font.colour = colourOf(value.integer);
    textEntryOf(&widget)->setTextFont(font);
    return true;
}

QString labelOf(Widget& widget) {
    return fromProgram(std::string_view(textEntryOf(&widget)->text(false)).substr(0, eventTextLength));
}

void setLabel(Widget& widget, const QString& text) { textEntryOf(&widget)->setText(toProgram(text), true); }

QSize naturalSize(Widget& widget) {
    TextEntry& entry = *textEntryOf(&widget);
    const int field = std::clamp(std::abs(dataOf<TextData>(widget).field), 4, 60);
    return {entry.fontMetrics().averageCharWidth() * field + 12, lineHeight()};
}

void coloursChanged(Widget& widget) {
    showTextData(widget);
    textEntryOf(&widget)->refreshHighlighting();
}

const Family textEntries{.name = "text entry",
                         .attributes = attributes,
                         .show = showTextData,
                         .get = getTextProperty,
                         .set = setTextProperty,
                         .text = labelOf,
                         .setText = setLabel,
                         .naturalSize = naturalSize,
                         .coloursChanged = coloursChanged};

// Bars in the text of a creation call are line breaks. In rich text they are text, but for those that can only have
// been line ends of its source; see withSourceLines.
std::string createdText(const Arguments& call, bool singleLine) {
    std::string text(trimmedBytes(call.bytes(5)));
    if (isRtf(QByteArray::fromRawData(text.data(), qsizetype(text.size())))) return withSourceLines(text);
    if (!singleLine) std::replace(text.begin(), text.end(), '|', '\n');
    return text;
}

Word createTextEntry(const Arguments& call) {
    auto data = dataFrom<TextData>(textEntries, call);
    data->display = call.integer(7);
    data->field = call.integer(6);
    if (call.given(owScrollable))
        data->field = call.keyword(owScrollable) ? -std::abs(data->field) : std::abs(data->field);
    const TextOptions options = optionsOf(*data);
    const int asked = pixelsDown(call.integer(4));
    const int height = asked > 0 ? asked : call.keyword(owExpand) ? 2 * singleLinePixels : lineHeight();
    auto* entry = new TextEntry(options, {}, singleLineHeight(), height, clientOf(call));
    const Kind kind = options.label ? Kind::textLabel : Kind::textEntry;
    Widget& widget = addWidget(kind, textEntries, call, entry, std::move(data));
    entry->setHooks(textHooks(widget.handle));
    entry->setText(createdText(call, entry->singleLine()), true);
    return finishCreation(widget, call);
}

const Registration registration({{Fn::owCreateTextEntry, createTextEntry}});

} // namespace

int singleLineHeight() { return gridMode() ? gridCell().height() + 1 : singleLinePixels; }

TextEntry* textEntryOf(Widget* widget) {
    if (!widget ||
        (widget->kind != Kind::textEntry && widget->kind != Kind::textLabel && widget->kind != Kind::ttyEntry))
        return nullptr;
    return dynamic_cast<TextEntry*>(widget->view.data());
}

void showTextData(Widget& widget) {
    TextOptions options = optionsOf(dataOf<TextData>(widget));
    options.tabStop = widget.tabList != OOFF;
    textEntryOf(&widget)->setOptions(options);
}

TextHooks textHooks(int handle) {
    TextHooks hooks;
    auto shown = [handle] {
        TextEntry* entry = textEntryOf(widgetOf(handle));
        return entry && entry->lineEdit() && entry->options().kind != TextKind::Security
                   ? entry->lineEdit()->text().left(eventTextLength)
                   : QString();
    };
    hooks.committed = [handle, shown] { post(handle, Slot::general, 0, {}, shown()); };
    hooks.selected = [handle] { post(handle, Slot::select, 1); };
    hooks.changed = [handle] { post(handle, Slot::change, 1); };
    hooks.linked = [handle](const QString& url) { post(handle, Slot::link, 1, {}, url.left(eventTextLength)); };
    return hooks;
}

} // namespace orba
