// The reader is one pass over the bytes: groups push and pop the state, control words change it, text runs go to the
// cursor.
#include "toolkit/views/text/rtf.h"

#include <QFont>
#include <QHash>
#include <QStringDecoder>
#include <QTextBlock>
#include <QTextList>
#include <algorithm>
#include <vector>

namespace orba {
namespace {

constexpr int maxDepth = 512;
constexpr int maxTableEntries = 4096;
constexpr double maxPoints = 1000;
constexpr int maxTwips = 100000;

// The upper half of the default code page, as far as it is not Latin-1.
constexpr char16_t codePage1252[32] = {0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                       0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD,
                                       0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                       0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

enum class Destination { Body, Skip, FontTable, ColourTable, FieldInstruction, BulletMark };

struct State {
    Destination destination = Destination::Body;
    QTextCharFormat characters;
    QTextBlockFormat paragraph;
    QString link;
    QTextOption::TabType tabType = QTextOption::LeftTab;
    int font = -1;
    int fallbackLength = 1; // characters that follow \u for readers that do not know it
    bool bullet = false;
    bool hidden = false;
};

class Reader {
public:
    Reader(QTextCursor& cursor, const QByteArray& bytes, const QTextCharFormat& base)
        : cursor_(cursor), bytes_(bytes), base_(base) {
        state_.characters = base;
        state_.paragraph = cursor.blockFormat();
    }
    void read();

private:
    using Action = void (Reader::*)(int value, bool given);
    static const QHash<QByteArray, Action>& actions();

    void controlWord();
    void controlSymbol(char symbol);
    void openGroup();
    void closeGroup();
    void add(QChar c);
    void addByte(uchar byte) { add(byte >= 0x80 && byte < 0xA0 ? QChar(codePage1252[byte - 0x80]) : QChar(byte)); }
    void flush();
    void endParagraph();
    void applyParagraph();
    void addToFontTable(QChar c);
    void addToColourTable(QChar c);

    // Characters
    void plain(int, bool) { state_.characters = base_; }
    void bold(int value, bool given) { state_.characters.setFontWeight(!given || value ? QFont::Bold : QFont::Normal); }
    void italic(int value, bool given) { state_.characters.setFontItalic(!given || value); }
    void underline(int value, bool given) { state_.characters.setFontUnderline(!given || value); }
    void underlineNone(int, bool) { state_.characters.setFontUnderline(false); }
    void strike(int value, bool given) { state_.characters.setFontStrikeOut(!given || value); }
    void size(int value, bool) { state_.characters.setFontPointSize(std::clamp(value / 2.0, 1.0, maxPoints)); }
    void font(int value, bool);
    void foreground(int value, bool);
    void background(int value, bool);
    void raised(int, bool) { state_.characters.setVerticalAlignment(QTextCharFormat::AlignSuperScript); }
    void lowered(int, bool) { state_.characters.setVerticalAlignment(QTextCharFormat::AlignSubScript); }
    void onLine(int, bool) { state_.characters.setVerticalAlignment(QTextCharFormat::AlignNormal); }
    void hidden(int value, bool given) { state_.hidden = !given || value; }
    // Text
    void unicode(int value, bool);
    void fallback(int value, bool) { state_.fallbackLength = std::clamp(value, 0, 16); }
    void paragraphEnd(int, bool) { endParagraph(); }
    void line(int, bool) { add(QChar::LineSeparator); }
    void tab(int, bool) { add(u'\t'); }
    void bulletSign(int, bool) { add(QChar(0x2022)); }
    void enDash(int, bool) { add(QChar(0x2013)); }
    void emDash(int, bool) { add(QChar(0x2014)); }
    void leftQuote(int, bool) { add(QChar(0x2018)); }
    void rightQuote(int, bool) { add(QChar(0x2019)); }
    void leftQuotes(int, bool) { add(QChar(0x201C)); }
    void rightQuotes(int, bool) { add(QChar(0x201D)); }
    // Paragraphs
    void paragraphPlain(int, bool);
    void left(int, bool) { state_.paragraph.setAlignment(Qt::AlignLeft); }
    void centre(int, bool) { state_.paragraph.setAlignment(Qt::AlignHCenter); }
    void right(int, bool) { state_.paragraph.setAlignment(Qt::AlignRight); }
    void justify(int, bool) { state_.paragraph.setAlignment(Qt::AlignJustify); }
    static double length(int twips) { return std::clamp(twips, -maxTwips, maxTwips) * pixelsPerTwip; }
    void leftIndent(int value, bool) { state_.paragraph.setLeftMargin(length(value)); }
    void rightIndent(int value, bool) { state_.paragraph.setRightMargin(length(value)); }
    void firstIndent(int value, bool) { state_.paragraph.setTextIndent(length(value)); }
    void spaceBefore(int value, bool) { state_.paragraph.setTopMargin(length(value)); }
    void spaceAfter(int value, bool) { state_.paragraph.setBottomMargin(length(value)); }
    void tabStop(int value, bool);
    void tabRight(int, bool) { state_.tabType = QTextOption::RightTab; }
    void tabCentre(int, bool) { state_.tabType = QTextOption::CenterTab; }
    void tabDecimal(int, bool) { state_.tabType = QTextOption::DelimiterTab; }
    void bulletParagraph(int, bool);
    // Tables and destinations
    void fontTable(int, bool) { state_.destination = Destination::FontTable; }
    void colourTable(int, bool) { state_.destination = Destination::ColourTable; }
    void red(int value, bool) { red_ = value, coloured_ = true; }
    void green(int value, bool) { green_ = value, coloured_ = true; }
    void blue(int value, bool) { blue_ = value, coloured_ = true; }
    void skipGroup(int, bool) { state_.destination = Destination::Skip; }
    void fieldInstruction(int, bool);
    void fieldResult(int, bool);

    QTextCursor& cursor_;
    const QByteArray& bytes_;
    const QTextCharFormat base_;
    qsizetype at_ = 0;
    State state_;
    std::vector<State> stack_;
    int tooDeep_ = 0;
    int skipCharacters_ = 0;
    bool optionalDestination_ = false;
    QString run_;
    QHash<int, QString> fonts_;
    QString fontName_;
    std::vector<QColor> colours_;
    int red_ = 0, green_ = 0, blue_ = 0;
    bool coloured_ = false;
    QString instruction_;
    QTextList* list_ = nullptr;
};

const QHash<QByteArray, Reader::Action>& Reader::actions() {
    static const QHash<QByteArray, Action> table{{"plain", &Reader::plain},
                                                 {"b", &Reader::bold},
                                                 {"i", &Reader::italic},
                                                 {"ul", &Reader::underline},
                                                 {"ulnone", &Reader::underlineNone},
                                                 {"strike", &Reader::strike},
                                                 {"fs", &Reader::size},
                                                 {"f", &Reader::font},
                                                 {"cf", &Reader::foreground},
                                                 {"highlight", &Reader::background},
                                                 {"cb", &Reader::background},
                                                 {"chcbpat", &Reader::background},
                                                 {"super", &Reader::raised},
                                                 {"sub", &Reader::lowered},
                                                 {"nosupersub", &Reader::onLine},
                                                 {"v", &Reader::hidden},
                                                 {"u", &Reader::unicode},
                                                 {"uc", &Reader::fallback},
                                                 {"par", &Reader::paragraphEnd},
                                                 {"sect", &Reader::paragraphEnd},
                                                 {"page", &Reader::paragraphEnd},
                                                 {"row", &Reader::paragraphEnd},
                                                 {"cell", &Reader::tab},
                                                 {"line", &Reader::line},
                                                 {"tab", &Reader::tab},
                                                 {"bullet", &Reader::bulletSign},
                                                 {"endash", &Reader::enDash},
                                                 {"emdash", &Reader::emDash},
                                                 {"lquote", &Reader::leftQuote},
                                                 {"rquote", &Reader::rightQuote},
                                                 {"ldblquote", &Reader::leftQuotes},
                                                 {"rdblquote", &Reader::rightQuotes},
                                                 {"pard", &Reader::paragraphPlain},
                                                 {"ql", &Reader::left},
                                                 {"qc", &Reader::centre},
                                                 {"qr", &Reader::right},
                                                 {"qj", &Reader::justify},
                                                 {"li", &Reader::leftIndent},
                                                 {"ri", &Reader::rightIndent},
                                                 {"fi", &Reader::firstIndent},
                                                 {"sb", &Reader::spaceBefore},
                                                 {"sa", &Reader::spaceAfter},
                                                 {"tx", &Reader::tabStop},
                                                 {"tqr", &Reader::tabRight},
                                                 {"tqc", &Reader::tabCentre},
                                                 {"tqdec", &Reader::tabDecimal},
                                                 {"pnlvlblt", &Reader::bulletParagraph},
                                                 {"ls", &Reader::bulletParagraph},
                                                 {"fonttbl", &Reader::fontTable},
                                                 {"colortbl", &Reader::colourTable},
                                                 {"red", &Reader::red},
                                                 {"green", &Reader::green},
                                                 {"blue", &Reader::blue},
                                                 {"fldinst", &Reader::fieldInstruction},
                                                 {"fldrslt", &Reader::fieldResult},
                                                 {"stylesheet", &Reader::skipGroup},
                                                 {"info", &Reader::skipGroup},
                                                 {"pict", &Reader::skipGroup},
                                                 {"object", &Reader::skipGroup},
                                                 {"header", &Reader::skipGroup},
                                                 {"footer", &Reader::skipGroup},
                                                 {"footnote", &Reader::skipGroup},
                                                 {"pntext", &Reader::skipGroup},
                                                 {"pntxtb", &Reader::skipGroup},
                                                 {"pntxta", &Reader::skipGroup},
                                                 {"listtext", &Reader::skipGroup},
                                                 {"listtable", &Reader::skipGroup},
                                                 {"listoverridetable", &Reader::skipGroup},
                                                 {"xe", &Reader::skipGroup},
                                                 {"nonshppict", &Reader::skipGroup},
                                                 {"themedata", &Reader::skipGroup},
                                                 {"datastore", &Reader::skipGroup}};
    return table;
}

void Reader::read() {
    while (at_ < bytes_.size()) {
        const char c = bytes_[at_++];
        if (c == '{')
            openGroup();
        else if (c == '}')
            closeGroup();
        else if (c == '\\')
            controlWord();
        else if (c != '\r' && c != '\n' && c != 0)
            addByte(uchar(c));
        if (stack_.empty() && c == '}') break; // the end of the text, whatever follows
    }
    flush();
    applyParagraph();
}

void Reader::openGroup() {
    if (stack_.size() >= maxDepth) {
        ++tooDeep_;
        return;
    }
    flush();
    skipCharacters_ = 0;
    stack_.push_back(state_);
}

void Reader::closeGroup() {
    if (tooDeep_) {
        --tooDeep_;
        return;
    }
    flush();
    skipCharacters_ = 0;
    if (stack_.empty()) return;
    const bool pushedBullet = state_.bullet && !stack_.back().bullet && state_.destination == Destination::BulletMark;
    const State inner = state_;
    state_ = stack_.back();
    stack_.pop_back();
    if (pushedBullet) state_.bullet = true;
    // A paragraph's attributes are those in force at its end, also when a group sets them and closes first.
    if (inner.destination == Destination::Body) state_.paragraph = inner.paragraph;
}

void Reader::controlWord() {
    if (at_ >= bytes_.size()) return;
    char c = bytes_[at_];
    auto letter = [](char ch) { return (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z'); };
    auto digit = [](char ch) { return ch >= '0' && ch <= '9'; };
    if (!letter(c)) {
        ++at_;
        return controlSymbol(c);
    }
    const qsizetype start = at_;
    while (at_ < bytes_.size() && letter(bytes_[at_]) && at_ - start < 32) ++at_;
    const QByteArray word = bytes_.mid(start, at_ - start);
    const bool negative = at_ < bytes_.size() && bytes_[at_] == '-';
    if (negative) ++at_;
    qint64 value = 0;
    bool given = false;
    for (; at_ < bytes_.size() && digit(bytes_[at_]); ++at_, given = true)
        value = std::min<qint64>(value * 10 + (bytes_[at_] - '0'), 100000000);
    if (negative) value = -value;
    if (at_ < bytes_.size() && bytes_[at_] == ' ') ++at_;
    if (word == "bin" && value > 0) { // raw bytes follow
        at_ = std::min<qsizetype>(bytes_.size(), at_ + value);
        return;
    }
    if (tooDeep_ || (state_.destination == Destination::Skip)) return;
    const auto action = actions().constFind(word);
    const bool optional = std::exchange(optionalDestination_, false);
    if (action == actions().constEnd()) {
        if (optional && word != "pn") state_.destination = Destination::Skip;
        if (optional && word == "pn") state_.destination = Destination::BulletMark;
        return;
    }
    flush();
    (this->*action.value())(int(value), given);
}

void Reader::controlSymbol(char symbol) {
    if (symbol == '*') {
        optionalDestination_ = true;
        return;
    }
    if (symbol == '\'') {
        bool good = false;
        const int byte = bytes_.mid(at_, 2).toInt(&good, 16);
        at_ = std::min<qsizetype>(bytes_.size(), at_ + 2);
        if (good) addByte(uchar(byte));
        return;
    }
    if (symbol == '\n' || symbol == '\r') return paragraphEnd(0, false);
    if (symbol == '~') return add(QChar(0xA0));
    if (symbol == '_') return add(QChar(0x2011));
    if (symbol == '\\' || symbol == '{' || symbol == '}') add(QChar::fromLatin1(symbol));
}

void Reader::add(QChar c) {
    if (tooDeep_) return;
    if (skipCharacters_ > 0) {
        --skipCharacters_;
        return;
    }
    switch (state_.destination) {
    case Destination::Body:
        if (!state_.hidden) run_.append(c);
        return;
    case Destination::FontTable: return addToFontTable(c);
    case Destination::ColourTable: return addToColourTable(c);
    case Destination::FieldInstruction:
        if (instruction_.size() < 4096) instruction_.append(c);
        return;
    case Destination::Skip:
    case Destination::BulletMark: return;
    }
}

void Reader::addToFontTable(QChar c) {
    if (c != u';') {
        if (fontName_.size() < 255) fontName_.append(c);
        return;
    }
    if (fonts_.size() < maxTableEntries) fonts_.insert(state_.font, fontName_.trimmed());
    fontName_.clear();
}

void Reader::addToColourTable(QChar c) {
    if (c != u';') return;
    auto part = [](int value) { return std::clamp(value, 0, 255); };
    if (colours_.size() < maxTableEntries)
        colours_.push_back(coloured_ ? QColor(part(red_), part(green_), part(blue_)) : QColor());
    red_ = green_ = blue_ = 0;
    coloured_ = false;
}

void Reader::flush() {
    if (run_.isEmpty()) return;
    QTextCharFormat format = state_.characters;
    if (!state_.link.isEmpty()) {
        format.setAnchor(true);
        format.setAnchorHref(state_.link);
        format.setFontUnderline(true);
        format.setForeground(QColor(0, 0, 0xEE));
    }
    cursor_.insertText(run_, format);
    run_.clear();
}

void Reader::applyParagraph() {
    QTextBlockFormat paragraph = state_.paragraph;
    if (state_.bullet) { // the list brings its own indent
        paragraph.setLeftMargin(std::max(0.0, paragraph.leftMargin() + std::min(0.0, paragraph.textIndent())));
        paragraph.setTextIndent(0);
    }
    cursor_.setBlockFormat(paragraph);
    if (!state_.bullet) {
        list_ = nullptr;
        if (QTextList* list = cursor_.currentList()) list->remove(cursor_.block());
    } else if (list_) {
        list_->add(cursor_.block());
    } else {
        list_ = cursor_.createList(QTextListFormat::ListDisc);
    }
}

void Reader::endParagraph() {
    if (state_.destination != Destination::Body || tooDeep_) return;
    flush();
    applyParagraph();
    cursor_.insertBlock(QTextBlockFormat(), state_.characters);
}

void Reader::font(int value, bool) {
    state_.font = value;
    if (state_.destination == Destination::Body)
        if (auto face = fonts_.constFind(value); face != fonts_.constEnd() && !face->isEmpty())
            state_.characters.setFontFamilies({*face});
}

void Reader::foreground(int value, bool) {
    const bool known = value > 0 && value < int(colours_.size()) && colours_[value].isValid();
    if (known)
        state_.characters.setForeground(colours_[value]);
    else
        state_.characters.clearForeground();
}

void Reader::background(int value, bool) {
    const bool known = value > 0 && value < int(colours_.size()) && colours_[value].isValid();
    if (known)
        state_.characters.setBackground(colours_[value]);
    else
        state_.characters.clearBackground();
}

void Reader::unicode(int value, bool) {
    add(QChar(ushort(value)));
    flush();
    skipCharacters_ = state_.fallbackLength;
}

void Reader::paragraphPlain(int, bool) {
    state_.paragraph = {};
    state_.bullet = false;
}

void Reader::tabStop(int value, bool) {
    QList<QTextOption::Tab> tabs = state_.paragraph.tabPositions();
    if (tabs.size() < 32) tabs.append(QTextOption::Tab(length(value), state_.tabType));
    state_.paragraph.setTabPositions(tabs);
    state_.tabType = QTextOption::LeftTab;
}

void Reader::bulletParagraph(int value, bool given) { state_.bullet = !given || value > 0; }

void Reader::fieldInstruction(int, bool) {
    state_.destination = Destination::FieldInstruction;
    instruction_.clear();
}

void Reader::fieldResult(int, bool) {
    const qsizetype open = instruction_.indexOf(u'"');
    const qsizetype close = instruction_.indexOf(u'"', open + 1);
    if (instruction_.trimmed().startsWith(u"HYPERLINK") && open >= 0 && close > open)
        state_.link = instruction_.mid(open + 1, close - open - 1);
}

} // namespace

void insertRtf(QTextCursor& cursor, const QByteArray& rtf, const QTextCharFormat& base) {
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    Reader(cursor, rtf, base).read();
    cursor.endEditBlock();
}

} // namespace orba
