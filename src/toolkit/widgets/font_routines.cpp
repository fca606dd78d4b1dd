// Fonts of widgets as programs set and read them.
#include "toolkit/widgets/family_support.h"
#include "toolkit/widgets/fonts.h"
#include "toolkit/widgets/panel.h"
#include "toolkit/widgets/program_text.h"
#include "toolkit/widgets/text_family.h"

#include <QApplication>
#include <QFontDialog>

namespace orba {
namespace {

constexpr int mostPoints = 500;

std::optional<bool> flag(const Arguments& call, int keyword) {
    if (!call.given(keyword)) return {};
    return call.keyword(keyword) == OON;
}

TextFont changeOf(const Arguments& call) {
    TextFont font;
    if (call.given(owFontFace)) font.face = call.keywordText(owFontFace);
    if (call.keyword(owPointSize) > 0) font.points = std::min(call.keyword(owPointSize), mostPoints);
    font.bold = flag(call, owBold);
    font.italic = flag(call, owItalic);
    font.underline = flag(call, owUnderline);
    font.strikeout = flag(call, owStrikeout);
    if (call.given(owTextCol)) font.colour = colourOf(call.keyword(owTextCol));
    return font;
}

Panel* panelOf(const Widget& widget) { return dynamic_cast<Panel*>(widget.view.data()); }

QFont fontOfWidget(const Widget& widget) {
    if (const Panel* panel = panelOf(widget)) return panel->look().titleFont;
    return widget.view ? widget.view->font() : QApplication::font();
}

void applyFont(Widget& widget, const QFont& font) {
    if (Panel* panel = panelOf(widget)) {
        PanelLook look = panel->look();
        look.titleFont = font;
        panel->setLook(look);
    } else if (widget.view) {
        widget.view->setFont(font);
    }
    if (widget.family->fontChanged) widget.family->fontChanged(widget);
}

void setFont(Widget& widget, const TextFont& change) {
    if (TextEntry* entry = textEntryOf(&widget)) {
        entry->setTextFont(change);
        return;
    }
    if (change.face) widget.fontFace = *change.face;
    if (change.points) widget.pointSize = int(*change.points);
    QFont font = fontOfWidget(widget);
    if (change.face || change.points) {
        const QFont base = fontFor(widget.fontFace, widget.pointSize);
        font.setFamilies(base.families());
        font.setPointSizeF(base.pointSizeF());
    }
    if (change.bold) font.setBold(*change.bold);
    if (change.italic) font.setItalic(*change.italic);
    if (change.underline) font.setUnderline(*change.underline);
    if (change.strikeout) font.setStrikeOut(*change.strikeout);
    applyFont(widget, font);
    if (change.colour && widget.view) {
        QPalette colours = widget.view->palette();
        for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            colours.setColor(role, *change.colour);
        widget.view->setPalette(colours);
    }
}

Word setFontAttribs(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    if (call.given(owCharSet)) widget.charSet = call.keyword(owCharSet);
    setFont(widget, changeOf(call));
    return 0;
}

// The face and size that the program named, not what stands for them on this desktop.
TextFont fontToTell(Widget& widget) {
    if (TextEntry* entry = textEntryOf(&widget)) {
        TextFont font = entry->textFont();
        if (font.face && *font.face == QApplication::font().family()) font.face = widget.fontFace;
        return font;
    }
    const QFont font = fontOfWidget(widget);
    return {widget.fontFace,  double(widget.pointSize), font.bold(), font.italic(),
            font.underline(), font.strikeOut(),         {}};
}

Word enquireFontAttribs(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    const TextFont font = fontToTell(widget);
    if (call.given(owFontFace))
        bytesOut(toProgram(*font.face), call.keywordRecord<char>(owFontFace), call.keyword(owLength));
    giveKeyword<int>(call, owPointSize, int(*font.points + 0.5));
    giveKeyword<int>(call, owCharSet, widget.charSet);
    giveKeyword<int>(call, owBold, *font.bold);
    giveKeyword<int>(call, owItalic, *font.italic);
    giveKeyword<int>(call, owUnderline, *font.underline);
    giveKeyword<int>(call, owStrikeout, *font.strikeout);
    return 0;
}

Word fontDialogue(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    TextEntry* entry = textEntryOf(&widget);
    QFontDialog box(entry ? entry->field()->font() : fontOfWidget(widget), widget.view);
    box.setWindowTitle(QStringLiteral("Font"));
    if (runBox(box) != QDialog::Accepted) return 0;
    const QFont chosen = box.selectedFont();
    setFont(widget, {chosen.family(),
                     chosen.pointSizeF(),
                     chosen.bold(),
                     chosen.italic(),
                     chosen.underline(),
                     chosen.strikeOut(),
                     {}});
    return 1;
}

const Registration registration({
    {Fn::owSetFontAttribs, setFontAttribs},
    {Fn::owEnqFontAttribs, enquireFontAttribs},
    {Fn::owFontAttribsDialogue, fontDialogue},
});

} // namespace
} // namespace orba
