// Properties by number, status, help and information of every widget.
#include "toolkit/frame/frame.h"
#include "toolkit/views/text/tip_text.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QScrollBar>

#include <algorithm>
#include <cstddef>

namespace orba {
namespace {

// The integer members that every widget has, by property number.
struct MemberRow {
    int property;
    int Widget::*member;
};
constexpr MemberRow members[] = {
    {16, &Widget::titleFlag}, {21, &Widget::accel},    {24, &Widget::dragMode},
    {42, &Widget::type},      {77, &Widget::quitMode}, {126, &Widget::helpJustify},
    {98, &Widget::helpDelay}, {131, &Widget::tabList}, {49, &Widget::charSet},
};

int Widget::*memberOf(int property) {
    for (const MemberRow& row : members) {
        if (row.property == property) return row.member;
    }
    return nullptr;
}

bool isGeometry(int property) {
    return (property >= 1 && property <= 4) || property == 6 || property == 57 || property == 58;
}

bool isFont(int property) {
    for (int one : {45, 53, 65, 72, 79, 84}) {
        if (property == one) return true;
    }
    return false;
}

// Size the widget has, for one that fills or follows its contents.
int width(const Widget& widget) {
    const bool told = widget.place.width > 0 && (widget.place.expand == 0 || widget.place.hpos != OCENTRE);
    return told || !widget.view ? widget.place.width : widget.view->width() + widget.place.inset.width();
}

int height(const Widget& widget) {
    const bool told = widget.place.height > 0 && (widget.place.expand == 0 || widget.place.vpos != OMIDDLE);
    return told || !widget.view ? widget.place.height : widget.view->height() + widget.place.inset.height();
}

void getGeometry(Widget& widget, int property, Value& value) {
    const Placement& place = widget.place;
    switch (property) {
    case 1: value.integer = unitsAcross(place.x); break;
    case 2: value.integer = unitsDown(place.y); break;
    case 3: value.integer = unitsAcross(width(widget)); break;
    case 4: value.integer = unitsDown(height(widget)); break;
    case 6: value.integer = place.expand; break;
    case 57: value.integer = place.hpos; break;
    case 58: value.integer = place.vpos; break;
    default: break;
    }
}

void setGeometry(Widget& widget, int property, const Value& value) {
    Placement& place = widget.place;
    const int number = value.integer;
    switch (property) {
    case 1: place.x = pixelsAcross(number); break;
    case 2: place.y = pixelsDown(number); break;
    case 3: place.width = std::max(0, pixelsAcross(number)); break;
    case 4: place.height = std::max(0, pixelsDown(number)); break;
    case 6: place.expand = number; break;
    case 57: place.hpos = std::clamp(number, OLEFT, ORIGHT); break;
    case 58: place.vpos = std::clamp(number, OBOTTOM, OTOP); break;
    default: break;
    }
    if (widget.parent && place.placed && place.expand > 0) {
        placeChildren(*widget.parent); // a strip may have changed the room of others
    } else {
        placeWidget(widget);
    }
}

QFont fontOf(const Widget& widget) { return widget.view ? widget.view->font() : QApplication::font(); }

void getFont(Widget& widget, int property, Value& value) {
    const QFont font = fontOf(widget);
    switch (property) {
    case 45: value.integer = font.bold(); break;
    case 53: value.text = widget.fontFace; break;
    case 65: value.integer = font.italic(); break;
    case 72: value.integer = widget.pointSize; break;
    case 79: value.integer = font.strikeOut(); break;
    case 84: value.integer = font.underline(); break;
    default: break;
    }
}

void setFont(Widget& widget, int property, const Value& value) {
    if (!widget.view) return;
    QFont font = widget.view->font();
    switch (property) {
    case 45: font.setBold(value.integer != 0); break;
    case 53: widget.fontFace = value.text; break;
    case 65: font.setItalic(value.integer != 0); break;
    case 72: widget.pointSize = value.integer > 0 ? std::min(value.integer, 400) : 10; break;
    case 79: font.setStrikeOut(value.integer != 0); break;
    case 84: font.setUnderline(value.integer != 0); break;
    default: break;
    }
    if (property == 53 || property == 72) {
        QFont face = fontFor(widget.fontFace, widget.pointSize);
        face.setBold(font.bold());
        face.setItalic(font.italic());
        face.setUnderline(font.underline());
        face.setStrikeOut(font.strikeOut());
        font = face;
    }
    widget.view->setFont(font);
    if (widget.family->fontChanged) widget.family->fontChanged(widget);
}

void applyTabList(Widget& widget) {
    if (!widget.view) return;
    QWidget* view = widget.view;
    if (view->focusProxy()) view = view->focusProxy();
    if (view->focusPolicy() == Qt::NoFocus) return;
    const Qt::FocusPolicy policy = view->focusPolicy();
    view->setFocusPolicy(widget.tabList ? static_cast<Qt::FocusPolicy>(policy | Qt::TabFocus)
                                        : static_cast<Qt::FocusPolicy>(policy & ~Qt::TabFocus));
}

int siblingOf(const Widget& widget) {
    if (!widget.parent) return 0;
    const auto& row = widget.parent->children;
    for (std::size_t i = 0; i + 1 < row.size(); i++) {
        if (row[i] == &widget) return row[i + 1]->handle;
    }
    return 0;
}

int windowState(const Widget& widget) {
    if (!widget.view || (widget.kind != Kind::master && widget.kind != Kind::window)) return 0;
    const QWidget* outer = widget.kind == Kind::window && !widget.view->isWindow() && widget.view->parentWidget()
                               ? widget.view->parentWidget()
                               : widget.view.data();
    if (outer->windowState() & Qt::WindowMinimized) return OMINIMIZE;
    return outer->windowState() & Qt::WindowMaximized ? OMAXIMIZE : 1;
}

// What can only be asked.
bool getState(Widget& widget, int property, Value& value) {
    switch (property) {
    case 5: value.integer = widget.parent ? widget.parent->handle : 0; return true;
    case 7: value.integer = widget.children.empty() ? 0 : widget.children.front()->handle; return true;
    case 8: value.integer = siblingOf(widget); return true;
    case 9: {
        const Widget* window = windowOf(&widget);
        value.integer = window ? window->handle : 0;
        return true;
    }
    case 10: value.integer = windowState(widget); return true;
    case 15: value.integer = static_cast<int>(widget.kind); return true;
    default: return false;
    }
}

bool slotOfProperty(int property, Slot& slot) {
    for (int i = 0; i < static_cast<int>(Slot::count); i++) {
        if (slotRow(static_cast<Slot>(i)).property == property && property != 0) {
            slot = static_cast<Slot>(i);
            return true;
        }
    }
    return false;
}

QString textOf(Widget& widget) { return widget.family->text ? widget.family->text(widget) : QString(); }

Word setProperties(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    for (int i = 0; i < call.keywordCount; i++) {
        const KeywordValue& given = call.keywords[i];
        const KeywordRow* row = keywordRow(given.keyword);
        if (!row || row->property == 0 || row->enquiryOnly) continue;
        Value value;
        switch (row->kind) {
        case ValueKind::TEXT: value.text = textIn(static_cast<const char*>(addressOf(given.value))); break;
        case ValueKind::REAL: value.real = realOf(given.value); break;
        default: value.integer = static_cast<int>(given.value); break;
        }
        setProperty(widget, row->property, value);
    }
    return 0;
}

void giveValue(const KeywordRow& row, const KeywordValue& wanted, const Value& value, int length) {
    void* result = addressOf(wanted.value);
    if (!result) return;
    switch (row.kind) {
    case ValueKind::TEXT: textOut(value.text, static_cast<char*>(result), length); break;
    case ValueKind::REAL: *static_cast<double*>(result) = value.real; break;
    default: *static_cast<int*>(result) = value.integer; break;
    }
}

Word enquireProperties(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    int length = keywordDefault(call.function, owLength);
    for (int i = 0; i < call.keywordCount; i++) {
        const KeywordValue& wanted = call.keywords[i];
        if (wanted.keyword == owLength) {
            length = static_cast<int>(wanted.value);
            continue;
        }
        const KeywordRow* row = keywordRow(wanted.keyword);
        if (!row || row->property == 0) continue;
        Value value;
        getProperty(widget, row->property, value);
        giveValue(*row, wanted, value, length);
    }
    return 0;
}

// The properties 1 to 42 are the integers of the record in order.
int* infoMember(OWIDGET& info, int property) { return &info.xpos + (property - 1); }
static_assert(offsetof(OWIDGET, value) == 42 * sizeof(int));

Word enquireInfo(const Arguments& call) {
    auto* info = call.record<OWIDGET>(1);
    if (!info) return 0;
    Widget& widget = *widgetOf(call.integer(0));
    *info = OWIDGET{};
    for (int property = 1; property <= 42; property++) {
        Value value;
        if (getProperty(widget, property, value)) *infoMember(*info, property) = value.integer;
    }
    textOut(textOf(widget), info->text, static_cast<int>(sizeof info->text));
    if (widget.family->enquireInfo) widget.family->enquireInfo(widget, *info);
    return 0;
}

Word takeInfo(const Arguments& call) {
    const auto* info = call.record<const OWIDGET>(1);
    if (!info) return 0;
    Widget& widget = *widgetOf(call.integer(0));
    OWIDGET wanted = *info;
    for (int property = 1; property <= 4; property++) {
        Value present;
        getProperty(widget, property, present);
        const int number = *infoMember(wanted, property);
        if (number != present.integer) setProperty(widget, property, {.integer = number, .real = 0, .text = {}});
    }
    // A window's state comes last: a maximised window takes no place.
    constexpr int STATE = 10;
    Value state;
    if (getProperty(widget, STATE, state) && state.integer != wanted.state)
        setProperty(widget, STATE, {.integer = wanted.state, .real = 0, .text = {}});
    // Compared as the record holds it, so that a text longer than the record is not cut by writing it back.
    char present[sizeof info->text];
    textOut(textOf(widget), present, static_cast<int>(sizeof present));
    if (widget.family->setText && textIn(present) != textIn(info->text))
        widget.family->setText(widget, textIn(info->text));
    if (widget.family->takeInfo) widget.family->takeInfo(widget, *info);
    return 0;
}

Word setWidgetStatus(const Arguments& call) {
    setStatus(*widgetOf(call.integer(0)), call.integer(1));
    return 0;
}

Word enquireWidgetStatus(const Arguments& call) {
    Value value;
    getProperty(*widgetOf(call.integer(0)), 29, value);
    return value.integer;
}

Word setHelp(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    widget.help = call.text(1);
    if (call.given(owHelpJustify)) widget.helpJustify = call.keyword(owHelpJustify);
    if (call.given(owHelpDelay)) widget.helpDelay = call.keyword(owHelpDelay);
    showHelp(widget);
    return 0;
}

Word drawWidget(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    if (widget.view) {
        if (widget.status != OHIDDEN && widget.kind == Kind::dockingPane) setStatus(widget, OSELECTABLE);
        widget.view->update();
        widget.view->raise();
    }
    return 0;
}

Word erase(const Arguments& call) {
    eraseWidget(*widgetOf(call.integer(0)));
    return 0;
}

Word setBubbleHelp(const Arguments& call) {
    session.bubbleHelp = call.integer(0) == 1;
    return 0;
}

Word enquireBubbleHelp(const Arguments&) { return session.bubbleHelp ? 1 : 0; }

Word childList(const Arguments& call) {
    const Widget& widget = *widgetOf(call.integer(0));
    auto* list = call.record<int>(1);
    const int room = list ? call.integer(2) : 0;
    for (int i = 0; i < room && i < static_cast<int>(widget.children.size()); i++) {
        list[i] = widget.children[static_cast<std::size_t>(i)]->handle;
    }
    return static_cast<Word>(widget.children.size());
}

QAbstractScrollArea* scrollAreaOf(const Widget& widget) {
    if (!widget.view) return nullptr;
    if (auto* area = qobject_cast<QAbstractScrollArea*>(widget.view.data())) return area;
    return widget.view->findChild<QAbstractScrollArea*>();
}

Word setScrollBars(const Arguments& call) {
    if (auto* area = scrollAreaOf(*widgetOf(call.integer(0)))) {
        area->horizontalScrollBar()->setValue(call.integer(1));
        area->verticalScrollBar()->setValue(call.integer(2));
    }
    return 0;
}

Word enquireScrollBars(const Arguments& call) {
    const auto* area = scrollAreaOf(*widgetOf(call.integer(0)));
    call.give<int>(1, area ? area->horizontalScrollBar()->value() : 0);
    call.give<int>(2, area ? area->verticalScrollBar()->value() : 0);
    return 0;
}

const Registration registration({
    {Fn::owSetWidgetProp, setProperties},
    {Fn::owEnqWidgetProp, enquireProperties},
    {Fn::owSetWidgetInfo, takeInfo},
    {Fn::owEnqWidgetInfo, enquireInfo},
    {Fn::owSetWidgetStatus, setWidgetStatus},
    {Fn::owEnqWidgetStatus, enquireWidgetStatus},
    {Fn::owSetWidgetHelp, setHelp},
    {Fn::owDrawWidget, drawWidget},
    {Fn::owEraseWidget, erase},
    {Fn::owSetBubbleHelpSwitch, setBubbleHelp},
    {Fn::owEnqBubbleHelpSwitch, enquireBubbleHelp},
    {Fn::owReturnChildList, childList},
    {Fn::owSetScrollBarPos, setScrollBars},
    {Fn::owEnqScrollBarPos, enquireScrollBars},
});

} // namespace

void setStatus(Widget& widget, int status) {
    const bool wasHidden = widget.status == OHIDDEN;
    widget.status = status;
    const Family* parent = widget.parent ? widget.parent->family : nullptr;
    if (parent && parent->setChildStatus && parent->setChildStatus(*widget.parent, widget, status)) return;
    if (widget.family->setStatus) {
        widget.family->setStatus(widget, status);
    } else if (widget.view) {
        widget.view->setEnabled(status != OUNSELECTABLE);
        widget.view->setVisible(status != OHIDDEN);
    }
    if (wasHidden != (status == OHIDDEN) && widget.parent && widget.place.expand > 0) placeChildren(*widget.parent);
}

constexpr int HELP_PROPERTY = 55;

// An entry of a menu has no view: its family shows the help.
void showHelp(Widget& widget) {
    if (!widget.view) {
        Value help;
        help.text = widget.help;
        if (widget.family->set) widget.family->set(widget, HELP_PROPERTY, help);
        return;
    }
    const QString lines = barsToLines(widget.help);
    QString text = tipText(lines);
    if (lines.contains(QLatin1Char('\n')) && widget.helpJustify != OLEFT) {
        const char* align = widget.helpJustify == ORIGHT ? "right" : "center";
        text = QStringLiteral("<div style=\"white-space:pre\" align=\"%1\">%2</div>")
                   .arg(QLatin1String(align), lines.toHtmlEscaped());
    }
    widget.view->setToolTip(text);
    widget.view->setToolTipDuration(widget.helpDelay > 0 ? widget.helpDelay : -1);
}

bool getCommonProperty(Widget& widget, int property, Value& value) {
    if (const auto member = memberOf(property)) {
        value.integer = widget.*member;
        return true;
    }
    if (isGeometry(property)) {
        getGeometry(widget, property, value);
        return true;
    }
    if (isFont(property)) {
        getFont(widget, property, value);
        return true;
    }
    Slot slot;
    if (slotOfProperty(property, slot)) {
        value.integer = widget.callbacks[static_cast<std::size_t>(slot)];
        return true;
    }
    switch (property) {
    case 29: value.integer = widget.status; return true;
    case 55: value.text = widget.help; return true;
    case 66:
    case 82: value.text = textOf(widget); return true;
    default: return getState(widget, property, value);
    }
}

bool setCommonProperty(Widget& widget, int property, const Value& value) {
    if (const auto member = memberOf(property)) {
        widget.*member = value.integer;
        if (property == 131) applyTabList(widget);
        if (property == 126 || property == 98) showHelp(widget);
        return true;
    }
    if (isGeometry(property)) {
        setGeometry(widget, property, value);
        return true;
    }
    if (isFont(property)) {
        setFont(widget, property, value);
        return true;
    }
    Slot slot;
    if (slotOfProperty(property, slot)) {
        defineCallback(widget, slot, value.integer);
        return true;
    }
    switch (property) {
    case 29: setStatus(widget, value.integer); return true;
    case 55:
        widget.help = value.text;
        showHelp(widget);
        return true;
    case 66:
    case 82:
        if (widget.family->setText) widget.family->setText(widget, value.text);
        return true;
    default: return false;
    }
}

bool getProperty(Widget& widget, int property, Value& value) {
    if (widget.family->get && widget.family->get(widget, property, value)) return true;
    return getCommonProperty(widget, property, value);
}

bool setProperty(Widget& widget, int property, const Value& value) {
    if (widget.family->set && widget.family->set(widget, property, value)) return true;
    return setCommonProperty(widget, property, value);
}

} // namespace orba
