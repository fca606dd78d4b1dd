// The table behind a property list: two columns, a label and a cell of one of four kinds. Values set by the program
// raise no signal; what the user does raises exactly one of the three signals.
#pragma once

#include "toolkit/views/program_doing.h"

#include <QAbstractItemDelegate>
#include <QColor>
#include <QComboBox>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTableView>
#include <optional>
#include <vector>

namespace orba {

enum class CellKind : int {
    text = 0,   // free text
    button = 1, // a text or a colour with a button at the right end
    combo = 2,  // a combo box of the program
    value = 3,  // a value entry of the program
};

// One row of a property list. Rows are numbered from 1.
struct PropertyRow {
    CellKind kind = CellKind::text;
    QString label;
    QString text;                 // what a text or button cell shows
    std::optional<QColor> colour; // shown instead of the text when set
    QPointer<QWidget> widget; // the combo box or value entry of the cell; it comes up while its row is the current one
    int handle = 0;           // of that widget
    bool enabled = true;      // a disabled row is grey and cannot be edited
    bool typed = true;        // the text can be typed: false for button cells unless asked for
    QString help;             // shown as bubble help over the row
};

class PropertyModel;

class PropertyView : public QTableView {
    Q_OBJECT
public:
    explicit PropertyView(QWidget* parent = nullptr);
    ~PropertyView() override;

    int rowCount() const;
    const PropertyRow* row(int number) const; // null when there is no such row
    int addRow(PropertyRow row);              // returns the number of the new row
    void insertRow(int number, PropertyRow row);
    bool removeRow(int number);
    int findRow(const QString& label) const; // 0 when there is none
    void setRow(int number, PropertyRow row);

    void selectRow(int number); // makes a row the current one and scrolls it into view; raises no signal
    int currentRow() const;     // 0 when none is
    int changedRow() const { return changedRow_; } // row of the last change by the user, 0 before one

    void setLabelWidth(int pixels);
    int labelWidth() const;
    void setRowHeight(int pixels);
    int rowHeight() const;
    void setGridLines(bool shown);
    bool gridLines() const { return gridLines_; }
    void setReadOnly(bool readOnly) { readOnly_ = readOnly; }

    // Takes over what stands in an open editor, as if the user had pressed Return. Whoever is about to lose the table
    // calls it.
    void commitEditor();
    void editRow(int number); // opens the editor of a row; a button cell that is not typed is pressed instead

    // The widget of a cell was changed by the user: raises valueChanged for its row.
    void widgetChanged(const QWidget* widget);

    // Used by the delegate.
    QRect buttonRect(const QModelIndex& index) const; // empty for cells without a button
    void userChanged(int number, const QString& text);
    QString shownText(const PropertyRow& row) const; // of a widget cell what its widget shows
    void setActiveEditor(QWidget* editor);

signals:
    void rowSelected(int number);
    void buttonPressed(int number);
    void valueChanged(int number);
    void commitWanted(QWidget* cellWidget); // the widget of a cell shall take over what was typed into it

protected:
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    bool viewportEvent(QEvent* event) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void placeCellWidget(); // shows the widget of the current row in its cell and hides the others
    void adoptCellWidget(const PropertyRow& row);
    QWidget* cellWidget() const; // of the current row, null when it has none or is disabled
    int clickedRow(const QPoint& position) const;
    bool onSplitter(const QPoint& position) const;
    void makeCurrent(int number, bool byUser);
    bool editable(int number) const;
    void finishEditing(); // takes over and closes the open editor
    void moveEditor(int step);
    void handToCell(QKeyEvent* event);
    bool movesOn(const QKeyEvent* event, QWidget* editor);

    PropertyModel* model_;
    QPointer<QWidget> editor_;    // the open line editor
    QPointer<QWidget> cellShown_; // the widget of the current row's cell, while it is up
    int changedRow_ = 0;
    int pressedButton_ = 0;           // row whose button is held down
    QPointer<QComboBox> pressedList_; // that opens when the mouse button is let go: a list under it would close again
    bool dragging_ = false;           // the splitter between the columns
    bool handing_ = false;            // a key is with the current row's cell and must not come back
    ProgramDoing program_;
    bool readOnly_ = false;
    bool gridLines_ = true;
    int rowHeight_ = 0; // 0 follows the font
};

} // namespace orba
