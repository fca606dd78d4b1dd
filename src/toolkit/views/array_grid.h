// Text and value arrays: a grid of cells with labelled columns and rows, edited in place.
#pragma once

#include "toolkit/include/menu-c.h"
#include "toolkit/views/panel.h"
#include "toolkit/views/program_doing.h"
#include "toolkit/views/text/value_format.h"

#include <QColor>
#include <QString>
#include <QTableView>
#include <functional>
#include <string>

namespace orba {

// Columns and rows count from 1 here as they do for programs.

struct CellLook { // colours: not valid, or line -2, or justify -2: the array's own
    QColor back, text, border;
    int line = -2;
    int justify = -2;
    bool readOnly = false;
    bool disabled = false;
    ValueFormat format;  // value arrays
    int field = 0;       // most characters, 0 any number
    OARRAYCELL source{}; // as a program set it
};

struct ArrayOptions {
    bool values = false; // cells hold numbers
    int columns = 1, rows = 1;
    int axisWidth = 40, axisHeight = 20;                         // pixels of the row and column labels, 0 none
    std::string columnLabels = "*digits", rowLabels = "*digits"; // or *letters, *months, *days, or texts split at bars
    int columnJustify = 0, rowJustify = 0;
    bool scrollVertical = true, scrollHorizontal = true;
    Boundary boundary = Boundary::None;
    QColor axisBack, columnText, rowText, cellBack, cellBorder, selected;
    int borderLine = 0; // -1 none, 0 solid, 1 dashed, 2 dotted, 3 dash-dotted
    bool readOnly = false;
    bool selectable = true;
    int tabAction =
        1; // 0 Tab leaves the array, 1 it goes from cell to cell and leaves behind the last, 2 it starts again
    int returnAction = 1; // after an entry: 0 stay, 1 down, 2 to the right
    int cellWidth = 64, cellHeight = 20;
};

struct ArrayHooks { // what a user does
    std::function<void(int column, int row)> committed, selected, changed, doubleClicked;
    std::function<void()> pressedElsewhere; // beside the cells
};

// Label number `index` (from 0) of the row of labels that the text describes.
QString arrayLabel(const std::string& labels, int index);

class ArrayModel;

class ArrayGrid : public QTableView {
public:
    ArrayGrid(const ArrayOptions& options, const ArrayHooks& hooks, QWidget* parent);
    ~ArrayGrid() override;

    const ArrayOptions& options() const { return options_; }
    void setHooks(const ArrayHooks& hooks) { hooks_ = hooks; }
    void setOptions(const ArrayOptions& options); // columns and rows included
    int columns() const;
    int rows() const;
    bool hasCell(int column, int row) const;

    void setCellText(int column, int row, const QString& text);
    void setCellValue(int column, int row, double value);
    void clearCell(int column, int row);
    QString cellText(int column, int row) const;
    double cellValue(int column, int row) const;

    // Column or row 0: every one.
    void setCellLook(int column, int row, const CellLook& look);
    CellLook cellLook(int column, int row) const;
    void setCellSize(int column, int row, int width, int height); // pixels; below 1 leaves as it is
    void insertColumn(int before);
    void insertRow(int before);
    void removeColumn(int column);
    void removeRow(int row);

    void setActiveCell(int column, int row); // without an event
    void selectCells(int column1, int row1, int column2, int row2);
    void selectedCells(int& column1, int& row1, int& column2, int& row2) const;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    friend class ArrayModel;
    void showOptions();
    bool moveCell(int steps);
    void leave(bool forward);

    ArrayOptions options_;
    ArrayHooks hooks_;
    ArrayModel* model_;
    ProgramDoing program_;
};

} // namespace orba
