// Fonts of widgets: the attributes are properties, so that a family which keeps them apart is asked first.
#include "toolkit/families/family_support.h"
#include "toolkit/views/text/program_text.h"

#include <QApplication>
#include <QFontDialog>

namespace orba {
namespace {

constexpr int attributes[] = {owFontFace, owPointSize, owCharSet,   owBold,
                              owItalic,   owUnderline, owStrikeout, owTextCol};
constexpr int switches[] = {owBold, owItalic, owUnderline, owStrikeout};

Word setFontAttribs(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    for (const int keyword : attributes) {
        if (!call.given(keyword)) continue;
        Value value;
        if (keyword == owFontFace)
            value.text = call.keywordText(keyword);
        else
            value.integer = call.keyword(keyword);
        setProperty(widget, propertyOf(keyword), value);
    }
    return 0;
}

Word enquireFontAttribs(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    for (const int keyword : attributes) {
        if (!call.given(keyword)) continue;
        Value value;
        getProperty(widget, propertyOf(keyword), value);
        if (keyword == owFontFace)
            bytesOut(toProgram(value.text), call.keywordRecord<char>(keyword), call.keyword(owLength));
        else
            giveKeyword<int>(call, keyword, value.integer);
    }
    return 0;
}

QFont shownFont(Widget& widget) {
    Value face;
    getProperty(widget, propertyOf(owFontFace), face);
    QFont font = fontFor(face.text, numberOf(widget, propertyOf(owPointSize)));
    for (const int keyword : switches) {
        Value value;
        getProperty(widget, propertyOf(keyword), value);
        setFontSwitch(font, propertyOf(keyword), value);
    }
    return font;
}

Word fontDialogue(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    QFontDialog box(shownFont(widget), widget.view);
    box.setOption(QFontDialog::DontUseNativeDialog);
    box.setWindowTitle(QStringLiteral("Font"));
    if (runBox(box) != QDialog::Accepted || !widgetOf(call.integer(0))) return 0;
    const QFont chosen = box.selectedFont();
    setProperty(widget, propertyOf(owFontFace), {.integer = 0, .real = 0, .text = chosen.family()});
    setProperty(widget, propertyOf(owPointSize), chosen.pointSize());
    for (const int keyword : switches) {
        Value value;
        getFontSwitch(chosen, propertyOf(keyword), value);
        setProperty(widget, propertyOf(keyword), value);
    }
    return 1;
}

const Registration registration({
    {Fn::owSetFontAttribs, setFontAttribs},
    {Fn::owEnqFontAttribs, enquireFontAttribs},
    {Fn::owFontAttribsDialogue, fontDialogue},
});

} // namespace
} // namespace orba
