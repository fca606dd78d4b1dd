// Fonts of widgets: the attributes are properties, so that a family which keeps them apart is asked first.
#include "toolkit/families/family_support.h"
#include "toolkit/frame/frame.h"
#include "toolkit/views/text/program_text.h"

#include <QApplication>
#include <QFontDialog>

namespace orba {
namespace {

struct FontAttribute {
    int keyword;
    int property;
};
constexpr FontAttribute attributes[] = {{owFontFace, 53}, {owPointSize, 72}, {owCharSet, 49},   {owBold, 45},
                                        {owItalic, 65},   {owUnderline, 84}, {owStrikeout, 79}, {owTextCol, 27}};

Word setFontAttribs(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    for (const FontAttribute& row : attributes) {
        if (!call.given(row.keyword)) continue;
        Value value;
        if (row.keyword == owFontFace)
            value.text = call.keywordText(owFontFace);
        else
            value.integer = call.keyword(row.keyword);
        setProperty(widget, row.property, value);
    }
    return 0;
}

Word enquireFontAttribs(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    for (const FontAttribute& row : attributes) {
        if (!call.given(row.keyword)) continue;
        Value value;
        getProperty(widget, row.property, value);
        if (row.keyword == owFontFace)
            bytesOut(toProgram(value.text), call.keywordRecord<char>(owFontFace), call.keyword(owLength));
        else
            giveKeyword<int>(call, row.keyword, value.integer);
    }
    return 0;
}

QFont shownFont(Widget& widget) {
    auto number = [&widget](int property) {
        Value value;
        getProperty(widget, property, value);
        return value;
    };
    QFont font = fontFor(number(53).text, number(72).integer);
    font.setBold(number(45).integer != 0);
    font.setItalic(number(65).integer != 0);
    font.setUnderline(number(84).integer != 0);
    font.setStrikeOut(number(79).integer != 0);
    return font;
}

Word fontDialogue(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    QFontDialog box(shownFont(widget), widget.view);
    box.setOption(QFontDialog::DontUseNativeDialog);
    box.setWindowTitle(QStringLiteral("Font"));
    if (runBox(box) != QDialog::Accepted || !widgetOf(call.integer(0))) return 0;
    const QFont chosen = box.selectedFont();
    setProperty(widget, 53, {.integer = 0, .real = 0, .text = chosen.family()});
    const std::pair<int, int> parts[] = {{72, chosen.pointSize()},
                                         {45, chosen.bold()},
                                         {65, chosen.italic()},
                                         {84, chosen.underline()},
                                         {79, chosen.strikeOut()}};
    for (const auto& [property, number] : parts)
        setProperty(widget, property, {.integer = number, .real = 0, .text = {}});
    return 1;
}

const Registration registration({
    {Fn::owSetFontAttribs, setFontAttribs},
    {Fn::owEnqFontAttribs, enquireFontAttribs},
    {Fn::owFontAttribsDialogue, fontDialogue},
});

} // namespace
} // namespace orba
