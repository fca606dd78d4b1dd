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

constexpr IntegerProperty<TextData> properties[] = {
    {20, &TextData::border},      {25, &TextData::back1},     {26, &TextData::back2},     {27, &TextData::text},
    {30, &TextData::justify},     {40, &TextData::margin},    {51, &TextData::entryType}, {78, &TextData::scroll},
    {117, &TextData::oleInserts}, {125, &TextData::wordWrap}, {129, &TextData::readOnly}, {137, &TextData::autoUrl},
};
constexpr int selectedTextProperty = 94, textColourProperty = 27, tabListProperty = 131;

// Fonts go to the selection of rich text, else to the whole text.
bool getFontProperty(Widget& widget, int property, Value& value) {
    const TextFont font = textEntryOf(&widget)->textFont();
    const bool whole = textEntryOf(&widget)->formatsWholeText();
    switch (property) {
    case 45: value.integer = *font.bold; return true;
    case 53:
        value.text = whole || *font.face == QApplication::font().family() ? widget.fontFace : *font.face;
        return true;
    case 65: value.integer = *font.italic; return true;
    case 72: value.integer = whole ? widget.pointSize : int(std::lround(*font.points)); return true;
    case 79: value.integer = *font.strikeout; return true;
    case 84: value.integer = *font.underline; return true;
    default: return false;
    }
}

bool setFontProperty(Widget& widget, int property, const Value& value) {
    constexpr int mostPoints = 400;
    TextFont font;
    switch (property) {
    case 45: font.bold = value.integer != 0; break;
    case 53: font.face = value.text; break;
    case 65: font.italic = value.integer != 0; break;
    case 72:
        if (value.integer < 1) return true;
        font.points = std::min(value.integer, mostPoints);
        break;
    case 79: font.strikeout = value.integer != 0; break;
    case 84: font.underline = value.integer != 0; break;
    default: return false;
    }
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
    if (property == selectedTextProperty) {
        value.text = fromProgram(textEntryOf(&widget)->selectedText());
        return true;
    }
    return getInteger(properties, dataOf<TextData>(widget), property, value) ||
           getFontProperty(widget, property, value);
}

bool setTextProperty(Widget& widget, int property, const Value& value) {
    if (property == textColourProperty && coloursSelection(widget)) {
        TextFont font;
        font.colour = colourOf(value.integer);
        textEntryOf(&widget)->setTextFont(font);
        return true;
    }
    if (property == tabListProperty && widget.tabList == value.integer) return true;
    if (property == tabListProperty)
        widget.tabList = value.integer;
    else if (!setInteger(properties, dataOf<TextData>(widget), property, value))
        return setFontProperty(widget, property, value);
    showTextData(widget);
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
    Widget* parent = widgetOf(call.integer(0));
    auto data = std::make_unique<TextData>();
    data->entryType = typeKeyword(call, owEntryType);
    data->display = call.integer(7);
    data->field = call.integer(6);
    if (call.given(owScrollable))
        data->field = call.keyword(owScrollable) ? -std::abs(data->field) : std::abs(data->field);
    data->justify = call.keyword(owJustify);
    data->border = call.keyword(owBorderType);
    data->scroll = call.keyword(owScrollMode);
    data->wordWrap = call.keyword(owWordWrap);
    data->autoUrl = call.keyword(owAutoURL);
    data->readOnly = call.keyword(owReadOnly) == OON ? OON : OOFF;
    data->oleInserts = call.keyword(owOLEInserts);
    data->margin = call.keyword(owTextMargin);
    data->back1 = call.keyword(owBack1Col);
    data->back2 = call.keyword(owBack2Col);
    data->text = call.keyword(owTextCol);
    const TextOptions options = optionsOf(*data);
    const int asked = pixelsDown(call.integer(4));
    const int height = asked > 0 ? asked : call.keyword(owExpand) ? 2 * singleLinePixels : lineHeight();
    auto* entry = new TextEntry(options, {}, singleLineHeight(), height, clientOf(parent));
    Widget& widget = addWidget(options.label ? Kind::textLabel : Kind::textEntry, textEntries, parent, entry);
    if (widget.handle == 0) return 0; // no handle was left
    widget.data = std::move(data);
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
