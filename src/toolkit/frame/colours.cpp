#include "toolkit/frame/colours.h"

#include "toolkit/frame/registry.h"
#include "toolkit/frame/routines.h"
#include "toolkit/frame/session.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPalette>

#include <array>

namespace orba {
namespace {

constexpr int TABLE_SIZE = 256;
constexpr int FIXED_COLOURS = 20;
constexpr int TRUE_COLOUR = 0x1000000;

// The first twenty entries. Those with a palette role follow the desktop's theme.
struct FixedColour {
    const char* rgb; // null: the palette role
    QPalette::ColorRole role;
};
constexpr FixedColour fixedColours[FIXED_COLOURS] = {
    {nullptr, QPalette::Base},            // 0 background
    {nullptr, QPalette::WindowText},      // 1 foreground
    {"#e01b24", QPalette::NoRole},        // 2 red
    {"#2e9d3f", QPalette::NoRole},        // 3 green
    {"#1c5fd6", QPalette::NoRole},        // 4 blue
    {"#f5c211", QPalette::NoRole},        // 5 yellow
    {"#1aa6b7", QPalette::NoRole},        // 6 cyan
    {"#b832a8", QPalette::NoRole},        // 7 magenta
    {"#8a4b14", QPalette::NoRole},        // 8 brown
    {"#f07f13", QPalette::NoRole},        // 9 orange
    {"#7f7f7f", QPalette::NoRole},        // 10 grey
    {"#404040", QPalette::NoRole},        // 11 dark grey
    {nullptr, QPalette::Window},          // 12 window face
    {nullptr, QPalette::Light},           // 13 lit edge
    {nullptr, QPalette::Dark},            // 14 shaded edge
    {nullptr, QPalette::Shadow},          // 15 deep shade
    {nullptr, QPalette::WindowText},      // 16 window text
    {nullptr, QPalette::HighlightedText}, // 17 selected text
    {nullptr, QPalette::Base},            // 18 background of entries
    {nullptr, QPalette::Highlight},       // 19 selection
};

std::array<QColor, TABLE_SIZE> table;

Word defineRgb(const Arguments& call) {
    const int index = call.integer(0);
    if (index < 0 || index >= TABLE_SIZE) return 0;
    const auto part = [&call](int i) { return static_cast<float>(std::clamp(call.real(i), 0.0, 1.0)); };
    defineColour(index, QColor::fromRgbF(part(1), part(2), part(3)));
    return 0;
}

Word enquireRgb(const Arguments& call) {
    auto* rgb = call.record<ORGBSTY>(1);
    if (!rgb) return 0;
    const QColor colour = colourOf(call.integer(0));
    *rgb = {colour.redF(), colour.greenF(), colour.blueF()};
    return 0;
}

Word trueColour(const Arguments& call) {
    const auto part = [&call](int i) { return static_cast<int>(std::clamp(call.real(i), 0.0, 1.0) * 255 + 0.5); };
    return TRUE_COLOUR + (part(0) << 16) + (part(1) << 8) + part(2);
}

const Registration registration({
    {Fn::oDefineRGB, defineRgb},
    {Fn::oEnqRGB, enquireRgb},
    {Fn::oTrueCol, trueColour},
});

} // namespace

void loadColours() {
    const QPalette palette = QApplication::palette();
    for (int i = 0; i < TABLE_SIZE; i++) {
        QColor& entry = table[static_cast<std::size_t>(i)];
        if (i >= FIXED_COLOURS) {
            entry = Qt::black;
        } else {
            entry =
                fixedColours[i].rgb ? QColor(QLatin1String(fixedColours[i].rgb)) : palette.color(fixedColours[i].role);
        }
    }
}

bool isTrueColour(int colour) { return colour >= TRUE_COLOUR; }

QColor colourOf(int colour) {
    if (isTrueColour(colour)) return QColor::fromRgb(static_cast<QRgb>(colour & 0xFFFFFF));
    return table[static_cast<std::size_t>(std::clamp(colour, 0, TABLE_SIZE - 1))];
}

void defineColour(int index, const QColor& colour) {
    if (index < 0 || index >= TABLE_SIZE || table[static_cast<std::size_t>(index)] == colour) return;
    table[static_cast<std::size_t>(index)] = colour;
    if (session.state == 2) recolour();
}

void recolour() {
    forEachWidget([](Widget& widget) {
        if (widget.family->coloursChanged) widget.family->coloursChanged(widget);
    });
}

void setViewColour(QWidget* view, QPalette::ColorRole role, int colour) {
    const QPalette usual = QApplication::palette(view);
    const bool text = role == QPalette::Text || role == QPalette::WindowText || role == QPalette::ButtonText;
    QPalette palette = view->palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const bool greys = text && group == QPalette::Disabled; // whatever its colour, to show that it is
        palette.setColor(group, role, colour == 0 || greys ? usual.color(group, role) : colourOf(colour));
    }
    view->setPalette(palette);
}

int lineHeight() { return QFontMetrics(QApplication::font()).height() + 8; }

QString labelWithMnemonic(const QString& label, int accel) {
    QString text = label;
    qsizetype at = -1;
    if (accel > 32) {
        at = label.indexOf(QChar(accel));
        if (at < 0) at = label.indexOf(QChar(accel), 0, Qt::CaseInsensitive);
    }
    for (qsizetype i = text.size(); i-- > 0;) {
        if (text[i] == QLatin1Char('&')) text.insert(i, QLatin1Char('&'));
        if (i == at) text.insert(i, QLatin1Char('&'));
    }
    return text;
}

QString barsToLines(QString text) { return text.replace(QLatin1Char('|'), QLatin1Char('\n')); }

} // namespace orba
