// Text arrays and value arrays.
#include "toolkit/families/family_support.h"
#include "toolkit/views/array_grid.h"
#include "toolkit/views/text/program_text.h"

#include <QHeaderView>

namespace orba {
namespace {

constexpr int allCells = 0;
constexpr int eventTextLength = 255;

struct ArrayData : FamilyData {
    bool values = false;
    int columns = 1, rows = 1;
    int axisWidth = 0, axisHeight = 0; // in pixels
    QString columnLabels = QStringLiteral("*letters"), rowLabels = QStringLiteral("*digits");
    int columnJustify = OCENTRE, rowJustify = OCENTRE;
    int scroll = OBOTHBARS;
    int boundary = ONOBOUNDARY;
    int axisBack = 12, columnText = 1, rowText = 1, cellBack = 0, cellBorder = 0, selected = 0;
    int borderLine = 2;
    int readOnly = OOFF;
    int cellSelect = OON;
    int tabAction = OON;
    int returnAction = 1;
};

ArrayGrid& gridOf(Widget& widget) { return static_cast<ArrayGrid&>(*widget.view); }
ArrayGrid& gridOf(const Arguments& call) { return gridOf(*widgetOf(call.integer(0))); }

ArrayOptions optionsOf(const ArrayData& data) {
    ArrayOptions options;
    options.values = data.values;
    options.columns = data.columns;
    options.rows = data.rows;
    options.axisWidth = std::clamp(data.axisWidth, 0, 5000);
    options.axisHeight = std::clamp(data.axisHeight, 0, 5000);
    options.columnLabels = toProgram(data.columnLabels);
    options.rowLabels = toProgram(data.rowLabels);
    options.columnJustify = data.columnJustify;
    options.rowJustify = data.rowJustify;
    const bool both = data.scroll == OBOTHBARS;
    options.scrollVertical = both || data.scroll == OVERTICAL || data.scroll == 1;
    options.scrollHorizontal = both || data.scroll == OHORIZONTAL || data.scroll == 2;
    options.boundary = boundaryOf(data.boundary);
    options.axisBack = data.axisBack == 12 ? QColor() : colourOrNone(data.axisBack);
    options.columnText = textColourOrNone(data.columnText);
    options.rowText = textColourOrNone(data.rowText);
    options.cellBack = colourOrNone(data.cellBack);
    options.cellBorder = colourOrNone(data.cellBorder);
    options.selected = colourOrNone(data.selected);
    options.borderLine = data.borderLine;
    options.readOnly = data.readOnly == OON;
    options.selectable = data.cellSelect != OOFF;
    options.tabAction = data.tabAction;
    options.returnAction = data.returnAction;
    options.cellHeight = lineHeight();
    options.cellWidth = 3 * lineHeight();
    return options;
}

void showArray(Widget& widget) { gridOf(widget).setOptions(optionsOf(dataOf<ArrayData>(widget))); }

constexpr Attribute attributes[] = {
    keeps<&ArrayData::boundary>(owBorderType),
    keeps<&ArrayData::axisHeight>(owAxisH),
    keeps<&ArrayData::axisWidth>(owAxisW),
    keeps<&ArrayData::scroll>(owScrollMode),
    keeps<&ArrayData::columnJustify>(owXjust),
    keeps<&ArrayData::rowJustify>(owYjust),
    keeps<&ArrayData::columnLabels>(owXtext),
    keeps<&ArrayData::rowLabels>(owYtext),
    keeps<&ArrayData::axisBack>(owAxisBackColour),
    keeps<&ArrayData::columnText>(owXtextColour),
    keeps<&ArrayData::rowText>(owYtextColour),
    keeps<&ArrayData::cellBack>(owGridBackColour),
    keeps<&ArrayData::cellBorder>(owCellBorderColour),
    keeps<&ArrayData::borderLine>(owCellBorderLineType),
    keeps<&ArrayData::selected>(owSelectedCellColour),
    keeps<&ArrayData::readOnly>(owReadOnly),
    keeps<&ArrayData::cellSelect>(owCellSelect),
    keeps<&ArrayData::tabAction>(owTabAction),
};

QSize naturalSize(Widget& widget) {
    const ArrayGrid& grid = gridOf(widget);
    return {std::min(grid.horizontalHeader()->length() + grid.options().axisWidth + 4, 400),
            std::min(grid.verticalHeader()->length() + grid.options().axisHeight + 4, 300)};
}

const Family arrays{.name = "array",
                    .attributes = attributes,
                    .show = showArray,
                    .naturalSize = naturalSize,
                    .coloursChanged = showArray};

// Column and row travel as the first two values of the event, the text of the cell as its text.
void postCell(int handle, Slot slot, int status, int column, int row) {
    Widget* widget = widgetOf(handle);
    if (!widget || !hasCallback(*widget, slot)) return;
    post(handle, slot, status, {}, gridOf(*widget).cellText(column, row).left(eventTextLength));
    addEventValue(float(column), column);
    addEventValue(float(row), row);
}

ArrayHooks hooksOf(int handle) {
    ArrayHooks hooks;
    hooks.committed = [handle](int column, int row) { postCell(handle, Slot::general, 0, column, row); };
    hooks.selected = [handle](int column, int row) { postCell(handle, Slot::select, 1, column, row); };
    hooks.changed = [handle](int column, int row) { postCell(handle, Slot::change, 1, column, row); };
    hooks.doubleClicked = [handle](int column, int row) { postCell(handle, Slot::doubleClick, 0, column, row); };
    hooks.pressedElsewhere = [handle] { post(handle, Slot::select, 1); };
    return hooks;
}

Word create(const Arguments& call, bool values) {
    auto data = dataFrom<ArrayData>(arrays, call);
    data->values = values;
    data->columns = call.integer(5);
    data->rows = call.integer(6);
    // The label area is given in pixels in either mode; a negative size asks for the usual one.
    if (!call.given(owAxisW) || data->axisWidth < 0) data->axisWidth = 40;
    if (!call.given(owAxisH) || data->axisHeight < 0) data->axisHeight = lineHeight();
    auto* grid = new ArrayGrid(optionsOf(*data), {}, clientOf(call));
    Widget& widget = addWidget(Kind::array, arrays, call, grid, std::move(data));
    grid->setHooks(hooksOf(widget.handle));
    return finishCreation(widget, call);
}

Word createTextArray(const Arguments& call) { return create(call, false); }
Word createValueArray(const Arguments& call) { return create(call, true); }

// A cell that the array has; else a report.
bool cellGiven(const Arguments& call) {
    if (gridOf(call).hasCell(call.integer(1), call.integer(2))) return true;
    reportFailure(35, gridOf(call).hasCell(call.integer(1), 1) ? call.integer(2) : call.integer(1));
    return false;
}

// As cellGiven, where 0 stands for every column or row.
bool cellsGiven(const Arguments& call) {
    const int column = call.integer(1), row = call.integer(2);
    if (gridOf(call).hasCell(column == allCells ? 1 : column, row == allCells ? 1 : row)) return true;
    reportFailure(35, column);
    return false;
}

// ---------------------------------------------------------------------------------------------- cell attributes

CellLook lookOf(const OARRAYCELL& cell) {
    CellLook look;
    look.back = colourOrNone(cell.backCol);
    look.text = textColourOrNone(cell.textCol);
    look.border = colourOrNone(cell.borderCol);
    look.line = cell.borderCol > 0 || cell.borderType != 0 ? cell.borderType : -2;
    look.justify = cell.justify != 0 && cell.justify >= -1 && cell.justify <= 1 ? cell.justify : -2;
    look.readOnly = cell.readOnly == OON;
    look.disabled = cell.status == OHIDDEN;
    look.format = {valueType(cell.type), ValueSign::Minus, std::clamp(cell.decimals, 0, 15)};
    look.field = std::clamp(cell.field, 0, 32767);
    return look;
}

Word setCellAttribs(const Arguments& call) {
    const auto* cell = call.record<const OARRAYCELL>(3);
    if (!cell || !cellsGiven(call)) return 0;
    ArrayGrid& grid = gridOf(call);
    const int column = call.integer(1), row = call.integer(2);
    grid.setCellSize(column, row, pixelsAcross(cell->width), pixelsDown(cell->height));
    CellLook look = lookOf(*cell);
    look.source = *cell;
    grid.setCellLook(column, row, look);
    return 0;
}

// What a program set is told again as it was; the sizes are those of the screen.
Word enquireCellAttribs(const Arguments& call) {
    auto* cell = call.record<OARRAYCELL>(3);
    if (!cell) return 0;
    *cell = {};
    if (!cellsGiven(call)) return 0;
    ArrayGrid& grid = gridOf(call);
    const int column = std::max(call.integer(1), 1), row = std::max(call.integer(2), 1);
    *cell = grid.cellLook(column, row).source;
    cell->width = std::max(1, unitsAcross(grid.columnWidth(column - 1)));
    cell->height = std::max(1, unitsDown(grid.rowHeight(row - 1)));
    return 0;
}

// ---------------------------------------------------------------------------------------------------- contents

Word setCell(const Arguments& call) {
    if (!cellGiven(call)) return 0;
    ArrayGrid& grid = gridOf(call);
    if (grid.options().values)
        grid.setCellValue(call.integer(1), call.integer(2), call.real(3));
    else
        grid.setCellText(call.integer(1), call.integer(2), fromProgram(trimmedBytes(call.bytes(4))));
    return 0;
}

Word enquireCell(const Arguments& call) {
    if (!cellGiven(call)) return 0;
    const ArrayGrid& grid = gridOf(call);
    call.give(3, grid.cellValue(call.integer(1), call.integer(2)));
    giveBytes(call, 4, toProgram(grid.cellText(call.integer(1), call.integer(2))));
    return 0;
}

Word setTextCell(const Arguments& call) {
    if (cellGiven(call))
        gridOf(call).setCellText(call.integer(1), call.integer(2), fromProgram(trimmedBytes(call.bytes(3))));
    return 0;
}

Word enquireTextCell(const Arguments& call) {
    giveBytes(call, 3, {});
    if (cellGiven(call)) giveBytes(call, 3, toProgram(gridOf(call).cellText(call.integer(1), call.integer(2))));
    return 0;
}

Word setValueCell(const Arguments& call) {
    if (cellGiven(call)) gridOf(call).setCellValue(call.integer(1), call.integer(2), call.real(3));
    return 0;
}

Word enquireValueCell(const Arguments& call) {
    call.give(3, cellGiven(call) ? float(gridOf(call).cellValue(call.integer(1), call.integer(2))) : 0.0F);
    return 0;
}

Word clearCell(const Arguments& call) {
    if (cellsGiven(call)) gridOf(call).clearCell(call.integer(1), call.integer(2));
    return 0;
}

// ------------------------------------------------------------------------------------------- rows and columns

void takeCounts(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    ArrayData& data = dataOf<ArrayData>(widget);
    data.columns = gridOf(widget).columns();
    data.rows = gridOf(widget).rows();
}

template <void (ArrayGrid::*Change)(int)> Word changeCount(const Arguments& call) {
    (gridOf(call).*Change)(call.integer(1));
    takeCounts(call);
    return 0;
}

Word setActiveCell(const Arguments& call) {
    if (cellGiven(call)) gridOf(call).setActiveCell(call.integer(1), call.integer(2));
    return 0;
}

Word selectCells(const Arguments& call) {
    gridOf(call).selectCells(call.integer(1), call.integer(2), call.integer(3), call.integer(4));
    return 0;
}

Word enquireCells(const Arguments& call) {
    int column1 = 0, row1 = 0, column2 = 0, row2 = 0;
    gridOf(call).selectedCells(column1, row1, column2, row2);
    call.give(1, column1);
    call.give(2, row1);
    call.give(3, column2);
    call.give(4, row2);
    return 0;
}

// What Tab and Return do behind an entry.
Word defineAction(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    dataOf<ArrayData>(widget).tabAction = call.integer(1);
    showArray(widget);
    return 0;
}

Word setReturnAction(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    dataOf<ArrayData>(widget).returnAction = call.integer(1);
    showArray(widget);
    return 0;
}

Word enquireReturnAction(const Arguments& call) { return dataOf<ArrayData>(*widgetOf(call.integer(0))).returnAction; }

const Registration registration({
    {Fn::owCreateTextArray, createTextArray},
    {Fn::owCreateValueArray, createValueArray},
    {Fn::owSetCellAttribs, setCellAttribs},
    {Fn::owEnqCellAttribs, enquireCellAttribs},
    {Fn::owSetCellSetting, setCell},
    {Fn::owEnqCellSetting, enquireCell},
    {Fn::owSetTextArray, setTextCell},
    {Fn::owEnqTextArray, enquireTextCell},
    {Fn::owSetValueArray, setValueCell},
    {Fn::owEnqValueArray, enquireValueCell},
    {Fn::owClearArrayCell, clearCell},
    {Fn::owAddArrayRow, changeCount<&ArrayGrid::insertRow>},
    {Fn::owAddArrayColumn, changeCount<&ArrayGrid::insertColumn>},
    {Fn::owRemoveArrayRow, changeCount<&ArrayGrid::removeRow>},
    {Fn::owRemoveArrayColumn, changeCount<&ArrayGrid::removeColumn>},
    {Fn::owSetActiveCell, setActiveCell},
    {Fn::owSelectArrayCells, selectCells},
    {Fn::owEnqArrayCells, enquireCells},
    {Fn::owDefineArrayAction, defineAction},
    {Fn::owSetArrayGridReturnAction, setReturnAction},
    {Fn::owEnqArrayGridReturnAction, enquireReturnAction},
});

} // namespace
} // namespace orba
