#include "toolkit/frame/properties.h"

#include "toolkit/frame/attributes.h"
#include "toolkit/frame/colours.h"
#include "toolkit/frame/events.h"
#include "toolkit/frame/layout.h"
#include "toolkit/frame/registry.h"
#include "toolkit/frame/routines.h"
#include "toolkit/frame/session.h"
#include "toolkit/views/fonts.h"
#include "toolkit/views/text/tip_text.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QScrollBar>

#include <algorithm>
#include <cstddef>

namespace orba {
namespace {

// The integer members that every widget has.
struct MemberRow {
    int property;
    int Widget::*member;
};
constexpr MemberRow members[] = {
    {propertyOf(owTitleFlag), &Widget::titleFlag}, {propertyOf(owAccel), &Widget::accel},
    {propertyOf(owDragMode), &Widget::dragMode},   {propertyOf(owListType), &Widget::type},
    {propertyOf(owQuitMode), &Widget::quitMode},   {propertyOf(owHelpJustify), &Widget::helpJustify},
    {propertyOf(owHelpDelay), &Widget::helpDelay}, {propertyOf(owTabList), &Widget::tabList},
    {propertyOf(owCharSet), &Widget::charSet},
};

int Widget::*memberOf(int property) {
    for (const MemberRow& row : members) {
        if (row.property == property) return row.member;
    }
    return nullptr;
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

bool getGeometry(Widget& widget, int property, Value& value) {
    const Placement& place = widget.place;
    switch (property) {
    case propertyOf(owXpos): value.integer = unitsAcross(place.x); return true;
    case propertyOf(owYpos): value.integer = unitsDown(place.y); return true;
    case propertyOf(owWidth): value.integer = unitsAcross(width(widget)); return true;
    case propertyOf(owHeight): value.integer = unitsDown(height(widget)); return true;
    case propertyOf(owExpand): value.integer = place.expand; return true;
    case propertyOf(owHpos): value.integer = place.hpos; return true;
    case propertyOf(owVpos): value.integer = place.vpos; return true;
    default: return false;
    }
}

bool setGeometry(Widget& widget, int property, const Value& value) {
    Placement& place = widget.place;
    const int number = value.integer;
    switch (property) {
    case propertyOf(owXpos): place.x = pixelsAcross(number); break;
    case propertyOf(owYpos): place.y = pixelsDown(number); break;
    case propertyOf(owWidth): place.width = std::max(0, pixelsAcross(number)); break;
    case propertyOf(owHeight): place.height = std::max(0, pixelsDown(number)); break;
    case propertyOf(owExpand): place.expand = number; break;
    case propertyOf(owHpos): place.hpos = std::clamp(number, OLEFT, ORIGHT); break;
    case propertyOf(owVpos): place.vpos = std::clamp(number, OBOTTOM, OTOP); break;
    default: return false;
    }
    if (widget.parent && place.placed && place.expand > 0) {
        placeChildren(*widget.parent); // a strip may have changed the room of others
    } else {
        placeWidget(widget);
    }
    return true;
}

struct FontSwitch {
    int property;
    bool (QFont::*get)() const;
    void (QFont::*set)(bool);
};
const FontSwitch fontSwitches[] = {{propertyOf(owBold), &QFont::bold, &QFont::setBold},
                                   {propertyOf(owItalic), &QFont::italic, &QFont::setItalic},
                                   {propertyOf(owUnderline), &QFont::underline, &QFont::setUnderline},
                                   {propertyOf(owStrikeout), &QFont::strikeOut, &QFont::setStrikeOut}};

QFont fontOf(const Widget& widget) { return widget.view ? widget.view->font() : QApplication::font(); }

bool getFont(Widget& widget, int property, Value& value) {
    switch (property) {
    case propertyOf(owFontFace): value.text = widget.fontFace; return true;
    case propertyOf(owPointSize): value.integer = widget.pointSize; return true;
    default: return getFontSwitch(fontOf(widget), property, value);
    }
}

bool setFont(Widget& widget, int property, const Value& value) {
    QFont font = fontOf(widget);
    if (property == propertyOf(owFontFace) || property == propertyOf(owPointSize)) {
        if (!widget.view) return true;
        if (property == propertyOf(owFontFace)) widget.fontFace = value.text;
        if (property == propertyOf(owPointSize)) widget.pointSize = pointsFrom(value.integer);
        QFont face = fontFor(widget.fontFace, widget.pointSize);
        for (const FontSwitch& row : fontSwitches) (face.*row.set)((font.*row.get)());
        font = face;
    } else if (!setFontSwitch(font, property, value)) {
        return false;
    }
    if (!widget.view) return true;
    widget.view->setFont(font);
    if (widget.family->fontChanged) widget.family->fontChanged(widget);
    return true;
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
    const Widget* window = windowOf(&widget);
    switch (property) {
    case propertyOf(owParent): value.integer = widget.parent ? widget.parent->handle : 0; return true;
    case propertyOf(owFirstChild):
        value.integer = widget.children.empty() ? 0 : widget.children.front()->handle;
        return true;
    case propertyOf(owNextWidget): value.integer = siblingOf(widget); return true;
    case propertyOf(owWindow): value.integer = window ? window->handle : 0; return true;
    case propertyOf(owWindowState): value.integer = windowState(widget); return true;
    case propertyOf(owKind): value.integer = static_cast<int>(widget.kind); return true;
    default: return false;
    }
}

bool slotOfProperty(int property, Slot& slot) {
    for (int i = 0; i < static_cast<int>(Slot::count); i++) {
        if (property != 0 && propertyOf(slotRow(static_cast<Slot>(i)).keyword) == property) {
            slot = static_cast<Slot>(i);
            return true;
        }
    }
    return false;
}

bool getCommonProperty(Widget& widget, int property, Value& value) {
    if (const auto member = memberOf(property)) {
        value.integer = widget.*member;
        return true;
    }
    if (getGeometry(widget, property, value) || getFont(widget, property, value)) return true;
    Slot slot;
    if (slotOfProperty(property, slot)) {
        value.integer = widget.callbacks[static_cast<std::size_t>(slot)];
        return true;
    }
    switch (property) {
    case propertyOf(owWidgetStatus): value.integer = widget.status; return true;
    case propertyOf(owHelp): value.text = widget.help; return true;
    case propertyOf(owLabel):
    case propertyOf(owTitle): value.text = textOf(widget); return true;
    default: return getState(widget, property, value);
    }
}

bool setCommonProperty(Widget& widget, int property, const Value& value) {
    if (const auto member = memberOf(property)) {
        widget.*member = value.integer;
        if (member == &Widget::tabList) applyTabList(widget);
        if (member == &Widget::helpJustify || member == &Widget::helpDelay) showHelp(widget);
        return true;
    }
    if (setGeometry(widget, property, value) || setFont(widget, property, value)) return true;
    Slot slot;
    if (slotOfProperty(property, slot)) {
        defineCallback(widget, slot, value.integer);
        return true;
    }
    switch (property) {
    case propertyOf(owWidgetStatus): setStatus(widget, value.integer); return true;
    case propertyOf(owHelp):
        widget.help = value.text;
        showHelp(widget);
        return true;
    case propertyOf(owLabel):
    case propertyOf(owTitle): setText(widget, value.text); return true;
    default: return false;
    }
}

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
    for (const int keyword : {owXpos, owYpos, owWidth, owHeight}) {
        const int property = propertyOf(keyword);
        Value present;
        getProperty(widget, property, present);
        const int number = *infoMember(wanted, property);
        if (number != present.integer) setProperty(widget, property, number);
    }
    // A window's state comes last: a maximised window takes no place.
    constexpr int STATE = propertyOf(owWindowState);
    Value state;
    if (getProperty(widget, STATE, state) && state.integer != wanted.state) setProperty(widget, STATE, wanted.state);
    // Compared as the record holds it, so that a text longer than the record is not cut by writing it back.
    char present[sizeof info->text];
    textOut(textOf(widget), present, static_cast<int>(sizeof present));
    if (textIn(present) != textIn(info->text)) setText(widget, textIn(info->text));
    if (widget.family->takeInfo) widget.family->takeInfo(widget, *info);
    return 0;
}

Word setWidgetStatus(const Arguments& call) {
    setStatus(*widgetOf(call.integer(0)), call.integer(1));
    return 0;
}

Word enquireWidgetStatus(const Arguments& call) {
    return numberOf(*widgetOf(call.integer(0)), propertyOf(owWidgetStatus));
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

// An entry of a menu has no view: its family shows the help.
void showHelp(Widget& widget) {
    if (!widget.view) {
        if (widget.family->show) widget.family->show(widget);
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

bool getProperty(Widget& widget, int property, Value& value) {
    if (widget.family->get && widget.family->get(widget, property, value)) return true;
    return getAttribute(widget, property, value) || getCommonProperty(widget, property, value);
}

bool setProperty(Widget& widget, int property, const Value& value) {
    if (widget.family->set && widget.family->set(widget, property, value)) return true;
    return setAttribute(widget, property, value) || setCommonProperty(widget, property, value);
}

bool getFontSwitch(const QFont& font, int property, Value& value) {
    for (const FontSwitch& row : fontSwitches) {
        if (row.property != property) continue;
        value.integer = (font.*row.get)();
        return true;
    }
    return false;
}

bool setFontSwitch(QFont& font, int property, const Value& value) {
    for (const FontSwitch& row : fontSwitches) {
        if (row.property != property) continue;
        (font.*row.set)(value.integer != 0);
        return true;
    }
    return false;
}

int pointsFrom(int number) {
    constexpr int most = 400;
    return number > 0 ? std::min(number, most) : 10;
}

} // namespace orba
