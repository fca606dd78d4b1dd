// Property lists: rows of a label and a cell. The combo box or value entry of a cell is a widget of the program with
// the list as its parent; when the user changes it, the list's change event comes, unless the widget has a general
// callback of its own.
#include "toolkit/families/family_support.h"
#include "toolkit/views/property_view.h"

#include <QApplication>
#include <QFocusEvent>

namespace orba {
namespace {

PropertyView& viewOf(Widget& widget) { return *static_cast<PropertyView*>(widget.view.data()); }

bool setListProperty(Widget& widget, int property, const Value& value) {
    PropertyView& view = viewOf(widget);
    switch (property) {
    case propertyOf(owColumnWidth): view.setLabelWidth(pixelsAcross(value.integer)); return true;
    case propertyOf(owRowHeight): view.setRowHeight(pixelsDown(value.integer)); return true;
    case propertyOf(owGridLines): view.setGridLines(value.integer != OOFF); return true;
    case propertyOf(owReadOnly): view.setReadOnly(value.integer == OON); return true;
    default: return false;
    }
}

bool getListProperty(Widget& widget, int property, Value& value) {
    const PropertyView& view = viewOf(widget);
    switch (property) {
    case propertyOf(owColumnWidth): value.integer = unitsAcross(view.labelWidth()); return true;
    case propertyOf(owRowHeight): value.integer = unitsDown(view.rowHeight()); return true;
    case propertyOf(owGridLines): value.integer = view.gridLines() ? OON : OOFF; return true;
    default: return false;
    }
}

// A widget that goes leaves its cell without one.
void childLeaving(Widget& list, Widget& child) {
    if (!list.view) return;
    for (int number = 1; number <= viewOf(list).rowCount(); ++number)
        if (viewOf(list).row(number)->handle == child.handle) {
            PropertyRow row = *viewOf(list).row(number);
            row.widget = nullptr;
            row.handle = 0;
            viewOf(list).setRow(number, std::move(row));
        }
}

// A child waits, out of sight, until a row takes it as its cell.
void placeChild(Widget&, Widget& child) {
    if (child.view) child.view->hide();
}

// Whether it shows is the table's to decide.
bool setChildStatus(Widget&, Widget& child, int status) {
    if (child.view) child.view->setEnabled(status != OUNSELECTABLE);
    return true;
}

void childEvent(Widget& list, Widget& child, Slot slot) {
    if (slot == Slot::general && list.view && child.view) viewOf(list).widgetChanged(child.view);
}

const Family propertyLists{.name = "property list",
                           .get = getListProperty,
                           .set = setListProperty,
                           .childLeaving = childLeaving,
                           .placeChild = placeChild,
                           .setChildStatus = setChildStatus,
                           .childEvent = childEvent};

// What was typed into the widget of a cell is taken over as if the focus had left it.
void takeOver(QWidget* cell) {
    QWidget* focus = QApplication::focusWidget();
    if (!focus || (focus != cell && !cell->isAncestorOf(focus))) return;
    QFocusEvent out(QEvent::FocusOut, Qt::OtherFocusReason), in(QEvent::FocusIn, Qt::OtherFocusReason);
    QApplication::sendEvent(focus, &out);
    QApplication::sendEvent(focus, &in);
}

Word createPropertyList(const Arguments& call) {
    auto* view = new PropertyView(clientOf(call));
    Widget& list = addWidget(Kind::propertyList, propertyLists, call, view, nullptr);
    if (call.given(owColumnWidth)) view->setLabelWidth(pixelsAcross(call.keyword(owColumnWidth)));
    if (call.given(owRowHeight)) view->setRowHeight(pixelsDown(call.keyword(owRowHeight)));
    view->setGridLines(call.keyword(owGridLines) != OOFF);
    const int handle = list.handle;
    QObject::connect(view, &PropertyView::rowSelected, view, [handle](int row) { post(handle, Slot::select, row); });
    QObject::connect(view, &PropertyView::buttonPressed, view, [handle](int row) { post(handle, Slot::general, row); });
    QObject::connect(view, &PropertyView::valueChanged, view, [handle](int row) { post(handle, Slot::change, row); });
    QObject::connect(view, &PropertyView::commitWanted, view, takeOver);
    return finishCreation(list, call);
}

// ---- Rows

void setCell(PropertyRow& row, Widget& cell) {
    row.handle = cell.handle;
    row.widget = cell.view;
    if (cell.kind == Kind::valueEntry) setProperty(cell, propertyOf(owBorderType), ONOBORDER);
}

// Another routine of the toolkit on the widget of a cell.
template <std::size_t N> void run(Fn function, const Word (&fixed)[N]) {
    if (const Handler handler = handlerOf(function)) handler({function, fixed, static_cast<int>(N), nullptr, 0});
}

void setValue(Widget& cell, double value) { run(Fn::owSetValueSetting, {wordOf(cell.handle), wordOf(value)}); }

double valueOf(const PropertyRow& row) {
    const Widget* cell = widgetOf(row.handle);
    double value = row.text.toDouble();
    if (cell && cell->kind == Kind::valueEntry)
        run(Fn::owEnqValueSettingDouble, {wordOf(cell->handle), wordOf(&value)});
    return value;
}

// The settings that a call gives a row.
void takeSettings(PropertyRow& row, const Arguments& call, Widget& list) {
    if (call.given(owPropertyLabel)) row.label = call.keywordText(owPropertyLabel);
    if (call.given(owString)) {
        row.text = call.keywordText(owString);
        row.colour.reset();
    }
    if (call.given(owBackCol)) {
        const int colour = call.keyword(owBackCol);
        row.colour = colour == 0 ? std::nullopt : std::optional(colourOf(colour)); // 0 shows the text
    }
    if (call.given(owPropertyStatus)) row.enabled = call.keyword(owPropertyStatus) != OUNSELECTABLE;
    if (call.given(owReadOnly)) row.typed = call.keyword(owReadOnly) != OON;
    if (call.given(owHelp)) row.help = call.keywordText(owHelp);
    if (call.given(owPropertyWidget)) {
        Widget* cell = widgetOf(call.keyword(owPropertyWidget));
        if (cell && cell->parent == &list && cell->view)
            setCell(row, *cell);
        else
            reportFailure(26, call.keyword(owPropertyWidget));
    }
    Widget* cell = widgetOf(row.handle);
    if (cell && call.given(owString)) setText(*cell, row.text);
    if (!call.given(owPropertyValue)) return;
    const double value = call.keywordReal(owPropertyValue);
    if (cell && cell->kind == Kind::valueEntry)
        setValue(*cell, value);
    else
        row.text = QString::number(value);
}

Word addPropertyToList(const Arguments& call) {
    Widget& list = *widgetOf(call.integer(0));
    const int kind = call.integer(1);
    if (kind < OPROPTEXT || kind > OPROPVALUE) {
        reportFailure(35, kind);
        return 0;
    }
    PropertyRow row;
    row.kind = static_cast<CellKind>(kind);
    row.label = call.text(2);
    row.typed = row.kind == CellKind::text;
    takeSettings(row, call, list);
    return viewOf(list).addRow(std::move(row));
}

// A row number of a call; 0 stands for the row of the event in hand, else for the current row.
int rowOf(Widget& list, int number) {
    if (number != 0) return number;
    const int eventRow = statusOfEvent(list);
    return eventRow > 0 ? eventRow : viewOf(list).currentRow();
}

Word setPropertySetting(const Arguments& call) {
    Widget& list = *widgetOf(call.integer(0));
    const int number = rowOf(list, call.integer(1));
    const PropertyRow* row = viewOf(list).row(number);
    if (!row) {
        reportFailure(35, call.integer(1));
        return 0;
    }
    PropertyRow changed = *row;
    takeSettings(changed, call, list);
    viewOf(list).setRow(number, std::move(changed));
    return 0;
}

Word enqPropertySetting(const Arguments& call) {
    Widget& list = *widgetOf(call.integer(0));
    const PropertyRow* row = viewOf(list).row(rowOf(list, call.integer(1)));
    if (!row) {
        reportFailure(35, call.integer(1));
        return 0;
    }
    const int length = call.given(owLength) ? call.keyword(owLength) : 256;
    const auto giveText = [&](int keyword, const QString& text) {
        if (char* buffer = call.keywordRecord<char>(keyword)) textOut(text, buffer, length);
    };
    giveText(owString, viewOf(list).shownText(*row));
    giveText(owPropertyLabel, row->label);
    giveKeyword<int>(call, owPropertyKind, static_cast<int>(row->kind));
    giveKeyword<int>(call, owPropertyStatus, row->enabled ? OSELECTABLE : OUNSELECTABLE);
    giveKeyword<int>(call, owPropertyWidget, row->handle);
    if (call.given(owPropertyValue)) giveKeyword<double>(call, owPropertyValue, valueOf(*row));
    return 0;
}

Word removePropertyFromList(const Arguments& call) {
    Widget& list = *widgetOf(call.integer(0));
    const PropertyRow* row = viewOf(list).row(call.integer(1));
    if (!row) {
        reportFailure(35, call.integer(1));
        return 0;
    }
    if (Widget* cell = widgetOf(row->handle)) eraseWidget(*cell);
    viewOf(list).removeRow(call.integer(1));
    return 0;
}

Word propertyItemCount(const Arguments& call) { return viewOf(*widgetOf(call.integer(0))).rowCount(); }
Word propertyItemNumber(const Arguments& call) { return viewOf(*widgetOf(call.integer(0))).findRow(call.text(1)); }

Word selectProperty(const Arguments& call) {
    viewOf(*widgetOf(call.integer(0))).selectRow(call.integer(1));
    return 0;
}

const Registration registration({{Fn::owCreatePropertyList, createPropertyList},
                                 {Fn::owAddPropertyToList, addPropertyToList},
                                 {Fn::owSetPropertySetting, setPropertySetting},
                                 {Fn::owEnqPropertySetting, enqPropertySetting},
                                 {Fn::owRemovePropertyFromList, removePropertyFromList},
                                 {Fn::owPropertyItemCount, propertyItemCount},
                                 {Fn::owPropertyItemNumber, propertyItemNumber},
                                 {Fn::owSelectProperty, selectProperty}});

} // namespace
} // namespace orba
