// Combo boxes, and the routines on entries that they share with list boxes.
#include "toolkit/families/family_support.h"
#include "toolkit/families/list_family.h"
#include "toolkit/views/described_row.h"
#include "toolkit/views/icons/icons.h"
#include "toolkit/views/list_contents.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>

namespace orba {
namespace {

class ComboView : public QComboBox {
public:
    using QComboBox::QComboBox;

    int handle = 0;
    DescribedRow* rows = nullptr;
    int listHeight = 0; // pixels that the list may open to, 0 as it likes

    // As wide as one character: the program says how wide it is. (Qt's own policy for that would make the list.)
    QSize sizeHint() const override {
        constexpr int ARROW_AND_FRAME = 40; // pixels
        return {fontMetrics().horizontalAdvance(QLatin1Char('X')) + ARROW_AND_FRAME, QComboBox::sizeHint().height()};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

    void showPopup() override {
        if (itemDelegate() != rows)
            setItemDelegate(rows); // not before: it makes the list, which costs more than the rest
        if (listHeight > 0 && count() > 0) {
            const int row = qMax(1, view()->sizeHintForRow(0));
            setMaxVisibleItems(qMax(4, listHeight / row));
        }
        view()->setMinimumWidth(qMax(width(), view()->sizeHintForColumn(0) + 24 + rows->width));
        QComboBox::showPopup();
    }

protected:
    void initStyleOption(QStyleOptionComboBox* option) const override {
        QComboBox::initStyleOption(option);
        if (rows && rows->width > 0) option->currentText = withoutDescription(option->currentText);
    }
    void focusInEvent(QFocusEvent* event) override {
        QComboBox::focusInEvent(event);
        if (byUser(*event)) post(handle, Slot::select, 1);
    }
    void focusOutEvent(QFocusEvent* event) override {
        QComboBox::focusOutEvent(event);
        if (byUser(*event)) post(handle, Slot::select, 0);
    }
    // A combo box that only stands under the pointer leaves the wheel to what scrolls around it.
    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus() || (lineEdit() && lineEdit()->hasFocus()))
            QComboBox::wheelEvent(event);
        else
            event->ignore();
    }
};

struct ComboData : FamilyData {
    bool sorted = false;
    QString typed; // last text that was reported
};

ComboView& comboOf(Widget& widget) { return *static_cast<ComboView*>(widget.view.data()); }

QString comboText(Widget& widget) { return comboOf(widget).currentText(); }

void setComboText(Widget& widget, const QString& text) {
    ComboView& combo = comboOf(widget);
    const QSignalBlocker quiet(&combo);
    const int row = combo.findText(text);
    if (row >= 0)
        combo.setCurrentIndex(row);
    else if (combo.isEditable())
        combo.setEditText(text);
    dataOf<ComboData>(widget).typed = combo.currentText();
}

bool getComboProperty(Widget& widget, int property, Value& value) {
    switch (property) {
    case propertyOf(owSort): value.integer = dataOf<ComboData>(widget).sorted ? OSORTED : OUNSORTED; return true;
    case propertyOf(owAccess): value.integer = comboOf(widget).isEditable() ? OEDIT : ODISPLAY; return true;
    case propertyOf(owDescWidth): value.integer = unitsAcross(comboOf(widget).rows->width); return true;
    case propertyOf(owHeight): value.integer = unitsDown(comboOf(widget).listHeight); return true;
    default: return false;
    }
}

bool setComboProperty(Widget& widget, int property, const Value& value) {
    ComboView& combo = comboOf(widget);
    const QSignalBlocker quiet(&combo);
    switch (property) {
    case propertyOf(owSort):
        dataOf<ComboData>(widget).sorted = value.integer == OSORTED;
        if (value.integer == OSORTED) combo.model()->sort(0);
        return true;
    case propertyOf(owAccess): combo.setEditable(value.integer == OEDIT); return true;
    case propertyOf(owDescWidth): combo.rows->width = pixelsAcross(value.integer); return true;
    case propertyOf(owHeight): combo.listHeight = pixelsDown(value.integer); return true;
    default: return false;
    }
}

// The height of the call is that of the opened list; closed, a combo box is as high as its text asks for.
QSize comboSize(Widget& widget) {
    const ComboView& combo = comboOf(widget);
    return {combo.sizeHint().width(),
            qMin(combo.sizeHint().height(), qMax(lineHeight(), combo.fontMetrics().height() + 6))};
}

const Family comboBoxes{.name = "combo box",
                        .get = getComboProperty,
                        .set = setComboProperty,
                        .text = comboText,
                        .setText = setComboText,
                        .naturalSize = comboSize,
                        .fontChanged = placeWidget};

void watch(Widget& widget) {
    ComboView& combo = comboOf(widget);
    const int handle = widget.handle;
    QObject::connect(&combo, &QComboBox::activated, &combo, [handle](int row) {
        if (Widget* chosen = widgetOf(handle)) dataOf<ComboData>(*chosen).typed = comboOf(*chosen).currentText();
        post(handle, Slot::general, row + 1);
    });
    if (!combo.lineEdit()) return;
    combo.setInsertPolicy(QComboBox::NoInsert);
    // Else a text that differs from a row by case alone becomes that row.
    combo.setCompleter(nullptr);
    QObject::connect(combo.lineEdit(), &QLineEdit::editingFinished, &combo, [handle] {
        Widget* typed = widgetOf(handle);
        if (!typed) return;
        const QString text = comboOf(*typed).currentText();
        if (dataOf<ComboData>(*typed).typed == text) return;
        dataOf<ComboData>(*typed).typed = text;
        post(handle, Slot::general, comboOf(*typed).findText(text) + 1);
    });
}

Word createComboBox(const Arguments& call) {
    auto* view = new ComboView(clientOf(call));
    view->setEditable(call.integer(6) == OEDIT);
    view->rows = new DescribedRow(view);
    view->rows->margin = 7;
    if (call.given(owDescWidth)) view->rows->width = pixelsAcross(call.keyword(owDescWidth));
    Widget& combo = addWidget<ComboData>(Kind::comboBox, comboBoxes, call, view);
    view->handle = combo.handle;
    view->listHeight = pixelsDown(call.integer(4));
    dataOf<ComboData>(combo).sorted = call.keyword(owSort) == OSORTED;
    watch(combo);
    const QSignalBlocker quiet(view);
    for (const ListRow& row : listContents(call.integer(5))) listEntry(combo, {OADD, 0, row.text, row.icon});
    const int handle = finishCreation(combo, call);
    combo.place.height = 0;
    placeWidget(combo);
    return handle;
}

void addRow(Widget& widget, int at, const ListEntry& entry) {
    ComboView& combo = comboOf(widget);
    if (dataOf<ComboData>(widget).sorted) {
        at = 0;
        while (at < combo.count() && combo.itemText(at).compare(entry.text, Qt::CaseInsensitive) <= 0) ++at;
    }
    const bool wasEmpty = combo.count() == 0;
    const QString typed = combo.isEditable() ? combo.currentText() : QString();
    combo.insertItem(at, entry.icon, entry.text);
    if (!wasEmpty) return;
    combo.setCurrentIndex(-1); // nothing is chosen until the program or the user chooses
    if (combo.isEditable()) combo.setEditText(typed);
}

int findRow(const ComboView& combo, const QString& text, bool whole) {
    std::vector<QString> rows;
    rows.reserve(static_cast<size_t>(combo.count()));
    for (int i = 0; i < combo.count(); ++i) rows.push_back(combo.itemText(i));
    return findListText(rows, text, whole);
}

void selectRow(ComboView& combo, int row, const QString& text) {
    if (row >= 0 && row < combo.count())
        combo.setCurrentIndex(row);
    else if (!text.isEmpty() && combo.isEditable())
        combo.setEditText(text);
}

// ---- Routines of list and combo boxes

Word setListEntry(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    const int action = call.integer(1);
    const int entry = call.given(owEntry) ? call.keyword(owEntry) : action == OADD ? 0 : -1;
    listEntry(widget, {action, entry, call.keywordText(owString), icons::iconOfResource(call.keyword(owIcon))});
    return 0;
}

Word enqListEntry(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    int entry = call.integer(1);
    const QString text = widget.kind == Kind::comboBox ? comboBoxText(widget, entry) : listBoxText(widget, entry);
    call.giveText(2, text);
    return entry;
}

Word enqListStatus(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    const ListStatus status = widget.kind == Kind::comboBox ? comboBoxStatus(widget) : listBoxStatus(widget);
    call.give(1, status.count);
    call.give(2, status.selected);
    call.give(3, status.current);
    return 0;
}

const Registration registration({{Fn::owCreateComboBox, createComboBox},
                                 {Fn::owSetListEntry, setListEntry},
                                 {Fn::owEnqListEntry, enqListEntry},
                                 {Fn::owEnqListStatus, enqListStatus}});

} // namespace

void comboBoxEntry(Widget& widget, const ListEntry& entry) {
    ComboView& combo = comboOf(widget);
    const QSignalBlocker quiet(&combo);
    switch (entry.action) {
    case OADD: addRow(widget, combo.count(), entry); break;
    case OINSERT: addRow(widget, entry.entry < 1 ? combo.count() : qMin(entry.entry - 1, combo.count()), entry); break;
    case OSELECT:
        if (entry.entry > 0)
            selectRow(combo, entry.entry - 1, {});
        else
            selectRow(combo, findRow(combo, entry.text, entry.entry == -2), entry.text);
        break;
    case ODESELECT:
        combo.setCurrentIndex(-1);
        combo.clearEditText();
        break;
    case ODELETE: combo.removeItem(entry.entry == -1 ? combo.currentIndex() : entry.entry - 1); break;
    case OCLEAR:
        combo.clear();
        combo.clearEditText();
        break;
    default: break;
    }
    dataOf<ComboData>(widget).typed = combo.currentText();
    combo.update();
}

QString comboBoxText(Widget& widget, int& entry) {
    const ComboView& combo = comboOf(widget);
    if (entry > 0) {
        const bool there = entry <= combo.count();
        QString text = there ? combo.itemText(entry - 1) : QString();
        if (!there) entry = 0;
        return text;
    }
    QString text = combo.currentText();
    entry = combo.isEditable() ? combo.findText(text) + 1 : combo.currentIndex() + 1;
    return text;
}

ListStatus comboBoxStatus(Widget& widget) {
    const ComboView& combo = comboOf(widget);
    int entry = 0;
    comboBoxText(widget, entry);
    return {combo.count(), entry > 0 ? 1 : 0, entry};
}

void listEntry(Widget& widget, const ListEntry& entry) {
    if (widget.kind == Kind::comboBox)
        comboBoxEntry(widget, entry);
    else
        listBoxEntry(widget, entry);
}

} // namespace orba
