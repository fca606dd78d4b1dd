#include "toolkit/frame/attributes.h"

#include "toolkit/frame/creation.h"

#include <algorithm>

namespace orba {
namespace {

// Each routine has its own type keyword, and owType besides.
constexpr int typeKeywords[] = {owButtonType, owToggleType, owIconType, owSliderType, owEntryType, owValueType};

int numberFrom(const Arguments& call, int keyword) {
    if (std::find(std::begin(typeKeywords), std::end(typeKeywords), keyword) != std::end(typeKeywords))
        return typeKeyword(call, keyword);
    const int number = call.keyword(keyword);
    return keyword == owReadOnly && number != OON ? OOFF : number;
}

// What tells the attribute's value apart from those of other kinds.
int* integerOf(const Attribute& row, Widget& widget) {
    return row.integer ? row.integer(&widget, widget.data.get()) : nullptr;
}
double* realOf(const Attribute& row, Widget& widget) {
    return row.real ? row.real(&widget, widget.data.get()) : nullptr;
}
QString* textOf(const Attribute& row, Widget& widget) {
    return row.text ? row.text(&widget, widget.data.get()) : nullptr;
}

const Attribute* rowOf(const Family& family, int property) {
    for (const Attribute& row : family.attributes) {
        if (row.property == property && property != 0) return &row;
    }
    return nullptr;
}

QString* keptText(Widget& widget) {
    for (const Attribute& row : widget.family->attributes) {
        if (row.keyword == owLabel || row.keyword == owTitle) return textOf(row, widget);
    }
    return nullptr;
}

} // namespace

int typeKeyword(const Arguments& call, int keyword) {
    return call.given(keyword) ? call.keyword(keyword) : call.keyword(owType);
}

void takeAttributes(const Family& family, const Arguments& call, Widget* record, FamilyData* data) {
    for (const Attribute& row : family.attributes) {
        if (!readsKeyword(call.function, row.keyword)) continue;
        int* integer = row.integer ? row.integer(record, data) : nullptr;
        double* real = row.real ? row.real(record, data) : nullptr;
        QString* text = row.text ? row.text(record, data) : nullptr;
        if (integer) *integer = numberFrom(call, row.keyword);
        if (real && call.given(row.keyword)) *real = call.keywordReal(row.keyword);
        if (text && call.given(row.keyword)) *text = call.keywordText(row.keyword);
    }
}

bool getAttribute(Widget& widget, int property, Value& value) {
    const Attribute* row = rowOf(*widget.family, property);
    if (!row) return false;
    constexpr double limit = std::numeric_limits<int>::max();
    if (const int* integer = integerOf(*row, widget)) value.integer = *integer;
    if (const double* real = realOf(*row, widget)) {
        value.real = *real;
        value.integer = static_cast<int>(std::clamp(*real, -limit, limit));
    }
    if (const QString* text = textOf(*row, widget)) value.text = *text;
    return true;
}

bool setAttribute(Widget& widget, int property, const Value& value) {
    const Attribute* row = rowOf(*widget.family, property);
    if (!row) return false;
    if (int* integer = integerOf(*row, widget)) *integer = value.integer;
    if (double* real = realOf(*row, widget)) *real = value.real;
    if (QString* text = textOf(*row, widget)) *text = value.text;
    if (widget.family->show) widget.family->show(widget);
    return true;
}

bool hasText(Widget& widget) { return widget.family->text || keptText(widget); }

QString textOf(Widget& widget) {
    if (widget.family->text) return widget.family->text(widget);
    const QString* kept = keptText(widget);
    return kept ? *kept : QString();
}

bool setText(Widget& widget, const QString& text) {
    if (widget.family->setText) {
        widget.family->setText(widget, text);
        return true;
    }
    QString* kept = keptText(widget);
    if (!kept) return false;
    *kept = text;
    widget.family->show(widget);
    return true;
}

} // namespace orba
