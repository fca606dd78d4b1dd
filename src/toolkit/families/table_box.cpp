// Table boxes: rows of texts under labelled columns, chosen by row.
#include "toolkit/families/family_support.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QTableWidget>

namespace orba {
namespace {

constexpr int mostRows = 1000000;
constexpr int eventTextLength = 255;

QTableWidget& tableOf(Widget& widget) { return static_cast<QTableWidget&>(*widget.view); }
QTableWidget& tableOf(const Arguments& call) { return tableOf(*widgetOf(call.integer(0))); }

QSize naturalSize(Widget&) { return {240, 150}; }

void fontChanged(Widget& widget) {
    QTableWidget& table = tableOf(widget);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 6);
    table.horizontalHeader()->setFont(table.font());
}

const Family tables{.name = "table box", .naturalSize = naturalSize, .fontChanged = fontChanged};

QString rowText(const QTableWidget& table, int row) {
    const QTableWidgetItem* item = table.item(row, 0);
    return item ? item->text().left(eventTextLength) : QString();
}

void postRow(int handle, Slot slot, int row) {
    Widget* widget = widgetOf(handle);
    if (!widget || !hasCallback(*widget, slot) || row < 0) return;
    post(handle, slot, row + 1, {}, rowText(tableOf(*widget), row));
    addEventValue(float(row + 1), row + 1);
}

// A press beside the rows, or on a label, is an event as well: row 0.
class ElsewherePress : public QObject {
public:
    ElsewherePress(QTableWidget* table, int handle) : QObject(table), table_(table), handle_(handle) {
        for (QWidget* part : {table->viewport(), table->horizontalHeader()->viewport()}) part->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::MouseButtonPress) return false;
        const bool onRow = watched == table_->viewport() && table_->itemAt(static_cast<QMouseEvent*>(event)->pos());
        if (!onRow) post(handle_, Slot::general, 0);
        return false;
    }

private:
    QTableWidget* table_;
    int handle_;
};

Word createTableBox(const Arguments& call) {
    auto* table = new QTableWidget(clientOf(call));
    Widget& widget = addWidget(Kind::tableBox, tables, call, table, nullptr);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setTabKeyNavigation(false);
    table->setAlternatingRowColors(true);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setMinimumSectionSize(4);
    fontChanged(widget);
    const int handle = widget.handle;
    new ElsewherePress(table, handle);
    QObject::connect(table, &QTableWidget::itemSelectionChanged, table, [table, handle] {
        if (!table->selectedItems().isEmpty()) postRow(handle, Slot::general, table->currentRow());
    });
    QObject::connect(table, &QTableWidget::cellDoubleClicked, table,
                     [handle](int row, int) { postRow(handle, Slot::doubleClick, row); });
    QObject::connect(table, &QTableWidget::cellActivated, table,
                     [handle](int row, int) { postRow(handle, Slot::general, row); });
    return finishCreation(widget, call);
}

void setLabel(QTableWidget& table, int column, const QString& label) {
    auto* item = new QTableWidgetItem(label);
    item->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.setHorizontalHeaderItem(column, item);
}

// Column numbers count from 1. A number beyond the last appends.
Word addColumn(const Arguments& call) {
    QTableWidget& table = tableOf(call);
    const int at = std::min(call.integer(1), table.columnCount() + 1) - 1;
    table.insertColumn(at);
    setLabel(table, at, call.keywordText(owLabel));
    table.setColumnWidth(at, std::max(4, pixelsAcross(call.integer(2))));
    return 0;
}

bool columnGiven(const Arguments& call) {
    const bool good = call.integer(1) >= 1 && call.integer(1) <= tableOf(call).columnCount();
    if (!good) reportFailure(35, call.integer(1));
    return good;
}

Word removeColumn(const Arguments& call) {
    if (columnGiven(call)) tableOf(call).removeColumn(call.integer(1) - 1);
    return 0;
}

// Row 0 or one beyond the last appends a row. Returns the row.
Word addEntry(const Arguments& call) {
    QTableWidget& table = tableOf(call);
    const QSignalBlocker quiet(table);
    int row = call.integer(1);
    const int column = call.integer(2);
    if (column < 1 || column > table.columnCount()) {
        reportFailure(35, column);
        return 0;
    }
    if (row < 1 || row > table.rowCount()) row = table.rowCount() + 1;
    if (row > mostRows) return 0;
    if (row > table.rowCount()) table.setRowCount(row);
    table.setItem(row - 1, column - 1, new QTableWidgetItem(call.text(3)));
    return row;
}

Word setColumnLabel(const Arguments& call) {
    if (columnGiven(call)) setLabel(tableOf(call), call.integer(1) - 1, call.text(2));
    return 0;
}

Word enquireColumnLabel(const Arguments& call) {
    call.giveText(2, {});
    if (!columnGiven(call)) return 0;
    if (const QTableWidgetItem* item = tableOf(call).horizontalHeaderItem(call.integer(1) - 1))
        call.giveText(2, item->text());
    return 0;
}

Word setWidth(const Arguments& call) {
    if (columnGiven(call))
        tableOf(call).setColumnWidth(call.integer(1) - 1, std::max(4, pixelsAcross(call.integer(2))));
    return 0;
}

Word enquireWidth(const Arguments& call) {
    call.give(2, columnGiven(call) ? std::max(1, unitsAcross(tableOf(call).columnWidth(call.integer(1) - 1))) : 0);
    return 0;
}

const Registration registration({
    {Fn::owCreateTableBox, createTableBox},
    {Fn::owAddTableBoxColumn, addColumn},
    {Fn::owRemoveTableBoxColumn, removeColumn},
    {Fn::owAddTableBoxEntry, addEntry},
    {Fn::owSetTableBoxLabel, setColumnLabel},
    {Fn::owEnqTableBoxLabel, enquireColumnLabel},
    {Fn::owSetTableBoxAttribs, setWidth},
    {Fn::owEnqTableBoxAttribs, enquireWidth},
});

} // namespace
} // namespace orba
