// Syntax colouring as programs switch it: attributes of categories, keyword files, and the colouring of one text
// widget.
#include "toolkit/families/family_support.h"
#include "toolkit/families/text_family.h"
#include "toolkit/views/text/program_text.h"
#include "toolkit/views/text/syntax_tree.h"

namespace orba {
namespace {

void refreshColouredTexts() {
    forEachWidget([](Widget& widget) {
        if (TextEntry* entry = textEntryOf(&widget)) entry->refreshHighlighting();
    });
}

Word initializeTree(const Arguments&) {
    initializeSyntaxTree();
    return 0;
}

Word loadKeywords(const Arguments& call) {
    if (!loadSyntax(std::string(trimmedBytes(call.bytes(0))))) return 0;
    refreshColouredTexts();
    return 1;
}

Word saveKeywords(const Arguments& call) { return saveSyntax(std::string(trimmedBytes(call.bytes(0)))) ? 1 : 0; }

bool categoryGiven(const Arguments& call) { return call.integer(0) >= 0 && call.integer(0) < syntaxCategoryCount; }

Word addKeyword(const Arguments& call) {
    if (categoryGiven(call))
        addSyntaxKeyword(SyntaxLanguage::None, SyntaxCategory(call.integer(0)), trimmedBytes(call.bytes(1)));
    refreshColouredTexts();
    return 0;
}

struct StyleKeyword {
    int keyword;
    bool SyntaxFont::*field;
};
constexpr StyleKeyword styleKeywords[] = {{owBold, &SyntaxFont::bold},
                                          {owItalic, &SyntaxFont::italic},
                                          {owUnderline, &SyntaxFont::underline},
                                          {owStrikeout, &SyntaxFont::strikeout}};

Word setSyntaxFont(const Arguments& call) {
    if (!categoryGiven(call)) {
        reportFailure(35, call.integer(0));
        return 0;
    }
    SyntaxFont& font = syntaxTree().fonts[std::size_t(call.integer(0))];
    if (call.given(owFontFace)) font.face = toProgram(call.keywordText(owFontFace));
    if (call.given(owTextCol)) font.colour = call.keyword(owTextCol);
    for (const StyleKeyword& row : styleKeywords)
        if (call.given(row.keyword)) font.*row.field = call.keyword(row.keyword) != 0;
    syntaxChanged();
    refreshColouredTexts();
    return 0;
}

Word enquireSyntaxFont(const Arguments& call) {
    if (!categoryGiven(call)) {
        reportFailure(35, call.integer(0));
        return 0;
    }
    const SyntaxFont& font = syntaxTree().fonts[std::size_t(call.integer(0))];
    if (call.given(owFontFace)) bytesOut(font.face, call.keywordRecord<char>(owFontFace), call.keyword(owLength));
    giveKeyword<int>(call, owTextCol, font.colour);
    for (const StyleKeyword& row : styleKeywords) giveKeyword<int>(call, row.keyword, font.*row.field ? 1 : 0);
    return 0;
}

// Dark faces need lighter colours than the ones of the file, which are made for a white page.
QColor readableOn(const QColor& colour, const QColor& page) {
    if (page.lightnessF() > 0.5F || colour.lightnessF() > 0.5F) return colour;
    float hue = 0, saturation = 0, lightness = 0;
    colour.getHslF(&hue, &saturation, &lightness);
    return QColor::fromHslF(std::max(hue, 0.0F), saturation * 0.8F, 1.0F - lightness * 0.7F);
}

Word setHighlighting(const Arguments& call) {
    TextEntry* entry = textEntryOf(widgetOf(call.integer(0)));
    const int language = std::clamp(call.keyword(owLanguage), 0, 3);
    const bool on = call.integer(1) == OON;
    const SyntaxLanguage wanted = !on            ? SyntaxLanguage::None
                                  : language > 0 ? SyntaxLanguage(language)
                                                 : SyntaxLanguage::Fortran90;
    entry->setHighlighting(wanted, [entry](int colour) {
        return readableOn(colourOf(colour), entry->field()->palette().color(QPalette::Base));
    });
    return 0;
}

const Registration registration({
    {Fn::owInitializeSyntaxTree, initializeTree},
    {Fn::owLoadSyntaxKeywords, loadKeywords},
    {Fn::owSaveSyntaxKeywords, saveKeywords},
    {Fn::owAddSyntaxKeyword, addKeyword},
    {Fn::owSetSyntaxFont, setSyntaxFont},
    {Fn::owEnqSyntaxFont, enquireSyntaxFont},
    {Fn::owSetSyntaxHighlighting, setHighlighting},
});

} // namespace
} // namespace orba
