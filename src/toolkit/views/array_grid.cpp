#include "toolkit/views/array_grid.h"

#include "toolkit/views/text/program_text.h"

#include <QAbstractButton>
#include <QAbstractTableModel>
#include <QApplication>
#include <QHash>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>
#include <optional>
#include <vector>

namespace orba {
namespace {

const QColor defaultCellBack(0xFF, 0xFF, 0xF0), defaultCellBorder(0xD4, 0xD0, 0xC8), defaultSelected(0x64, 0x1E, 0x1E);
constexpr int cellPad = 3; // pixels between the edge of a cell and its text
constexpr int smallestCell = 4;

Qt::Alignment justified(int justify) {
    return (justify < 0 ? Qt::AlignLeft : justify > 0 ? Qt::AlignRight : Qt::AlignHCenter) | Qt::AlignVCenter;
}

// A, B ... Z, AA, AB ...
QString letters(int index) {
    QString text;
    for (++index; index > 0; index = (index - 1) / 26) text.prepend(QChar(u'A' + (index - 1) % 26));
    return text;
}

std::optional<Qt::PenStyle> lineStyle(int line) {
    constexpr Qt::PenStyle styles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine};
    if (line < 0 || line > 3) return {};
    return styles[line];
}

bool dark(const QColor& colour) { return colour.lightnessF() < 0.5F; }

} // namespace

QString arrayLabel(const std::string& labels, int index) {
    const QLocale english(QLocale::English);
    if (labels.empty()) return {};
    if (labels == "*digits") return QString::number(index + 1);
    if (labels == "*letters") return letters(index);
    if (labels == "*months") return english.standaloneMonthName(index % 12 + 1, QLocale::ShortFormat);
    if (labels == "*days") return english.standaloneDayName(index % 7 + 1, QLocale::ShortFormat);
    return fromProgram(labels).split(u'|').value(index).trimmed();
}

// -------------------------------------------------------------------------------------------------------- model

class ArrayModel : public QAbstractTableModel {
public:
    explicit ArrayModel(ArrayGrid& grid) : grid_(grid) {}

    struct Cell {
        QString text;
        double value = 0;
        bool filled = false;
    };
    using Key = quint64;
    static Key key(int column, int row) { return Key(row) << 32 | Key(column); }

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns_; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    QString shown(int column, int row) const;
    CellLook look(int column, int row) const;
    void resize(int columns, int rows);
    void shift(bool columns, int at, int by);
    void refresh() { emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1)); }
    void refreshHeaders() {
        emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
        emit headerDataChanged(Qt::Vertical, 0, rows_ - 1);
    }
    void changed(int column, int row) { emit dataChanged(index(row - 1, column - 1), index(row - 1, column - 1)); }

    QHash<Key, Cell> cells;
    QHash<Key, CellLook> looks; // column or row 0: all

private:
    ArrayGrid& grid_;
    int columns_ = 0, rows_ = 0;
};

CellLook ArrayModel::look(int column, int row) const {
    for (Key k : {key(column, row), key(column, 0), key(0, row), key(0, 0)})
        if (auto found = looks.constFind(k); found != looks.constEnd()) return *found;
    return {};
}

QString ArrayModel::shown(int column, int row) const {
    auto found = cells.constFind(key(column, row));
    if (found == cells.constEnd() || !found->filled) return {};
    return grid_.options_.values ? fromProgram(formatValue(found->value, look(column, row).format)) : found->text;
}

QVariant ArrayModel::data(const QModelIndex& index, int role) const {
    const int column = index.column() + 1, row = index.row() + 1;
    if (role == Qt::DisplayRole) return shown(column, row);
    if (role == Qt::EditRole) {
        if (!grid_.options_.values) return shown(column, row);
        auto found = cells.constFind(key(column, row));
        return found == cells.constEnd() || !found->filled
                   ? QString()
                   : fromProgram(editableValue(found->value, look(column, row).format));
    }
    if (role == Qt::TextAlignmentRole) {
        const int justify = look(column, row).justify;
        return int(justified(justify >= -1 ? justify : grid_.options_.values ? 1 : -1));
    }
    return {};
}

QVariant ArrayModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const ArrayOptions& options = grid_.options_;
    const bool horizontal = orientation == Qt::Horizontal;
    switch (role) {
    case Qt::DisplayRole: return arrayLabel(horizontal ? options.columnLabels : options.rowLabels, section);
    case Qt::TextAlignmentRole: return int(justified(horizontal ? options.columnJustify : options.rowJustify));
    case Qt::BackgroundRole: return options.axisBack.isValid() ? QVariant(QBrush(options.axisBack)) : QVariant();
    case Qt::ForegroundRole: {
        const QColor& colour = horizontal ? options.columnText : options.rowText;
        return colour.isValid() ? QVariant(QBrush(colour)) : QVariant();
    }
    default: return {};
    }
}

bool ArrayModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !index.isValid()) return false;
    const int column = index.column() + 1, row = index.row() + 1;
    Cell& cell = cells[key(column, row)];
    if (grid_.options_.values) {
        const std::string typed = toProgram(value.toString());
        if (typed.find_first_not_of(" \t") == std::string::npos) {
            cell = {};
        } else {
            const std::optional<double> number = parseValue(typed, look(column, row).format);
            if (!number) {
                QApplication::beep();
                return false;
            }
            if (cell.filled && cell.value == *number) return true;
            cell.value = *number;
            cell.filled = true;
        }
    } else {
        if (cell.text == value.toString()) return true;
        cell.text = value.toString();
        cell.filled = !cell.text.isEmpty();
    }
    emit dataChanged(index, index);
    if (!grid_.program_ && grid_.hooks_.changed) grid_.hooks_.changed(column, row);
    return true;
}

Qt::ItemFlags ArrayModel::flags(const QModelIndex& index) const {
    const CellLook cell = look(index.column() + 1, index.row() + 1);
    Qt::ItemFlags flags = Qt::ItemNeverHasChildren;
    if (cell.disabled) return flags;
    flags |= Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (!grid_.options_.readOnly && !cell.readOnly) flags |= Qt::ItemIsEditable;
    return flags;
}

void ArrayModel::resize(int columns, int rows) {
    if (columns == columns_ && rows == rows_) return;
    beginResetModel();
    columns_ = columns;
    rows_ = rows;
    auto outside = [&](Key k) { return int(k & 0xFFFFFFFF) > columns || int(k >> 32) > rows; };
    cells.removeIf([&](auto it) { return outside(it.key()); });
    looks.removeIf([&](auto it) { return outside(it.key()); });
    endResetModel();
}

// Moves everything at or behind `at` by one column or row; what would land before `at` goes.
void ArrayModel::shift(bool columns, int at, int by) {
    auto moved = [&](const auto& from) {
        std::decay_t<decltype(from)> to;
        for (auto it = from.cbegin(); it != from.cend(); ++it) {
            int column = int(it.key() & 0xFFFFFFFF), row = int(it.key() >> 32);
            int& place = columns ? column : row;
            if (by < 0 && place == at) continue;
            if (place >= at) place += by;
            to.insert(key(column, row), it.value());
        }
        return to;
    };
    cells = moved(cells);
    looks = moved(looks);
}

// ----------------------------------------------------------------------------------------------------- delegate

namespace {

class CellDelegate : public QStyledItemDelegate {
public:
    CellDelegate(ArrayGrid& grid, ArrayModel& model) : QStyledItemDelegate(&grid), grid_(grid), model_(model) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const ArrayOptions& options = grid_.options();
        const CellLook cell = model_.look(index.column() + 1, index.row() + 1);
        const QColor base = options.cellBack.isValid() ? options.cellBack : defaultCellBack;
        const QColor selected = options.selected.isValid() ? options.selected : defaultSelected;
        QColor back = cell.back.isValid() ? cell.back : base;
        const bool current = grid_.currentIndex() == index && grid_.options().selectable;
        const bool marked = grid_.options().selectable && grid_.selectionModel()->isSelected(index) && !current;
        if (marked)
            back = QColor((back.red() * 3 + selected.red()) / 4, (back.green() * 3 + selected.green()) / 4,
                          (back.blue() * 3 + selected.blue()) / 4);
        painter->fillRect(option.rect, back);
        const QColor border = cell.border.isValid()          ? cell.border
                              : options.cellBorder.isValid() ? options.cellBorder
                                                             : defaultCellBorder;
        if (auto style = lineStyle(cell.line >= -1 ? cell.line : options.borderLine)) {
            painter->setPen(QPen(border, 1, *style));
            painter->drawLine(option.rect.topRight(), option.rect.bottomRight());
            painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
        }
        const bool enabled = grid_.isEnabled() && !cell.disabled;
        QColor text = cell.text.isValid() ? cell.text : dark(back) ? Qt::white : Qt::black;
        if (!enabled)
            text = QColor((text.red() + back.red()) / 2, (text.green() + back.green()) / 2,
                          (text.blue() + back.blue()) / 2);
        painter->setPen(text);
        painter->setFont(grid_.font());
        const QRect area = option.rect.adjusted(cellPad, 0, -cellPad - 1, -1);
        const int alignment = index.data(Qt::TextAlignmentRole).toInt();
        const QString shown =
            painter->fontMetrics().elidedText(index.data(Qt::DisplayRole).toString(), Qt::ElideRight, area.width());
        painter->drawText(area, alignment | Qt::TextSingleLine, shown);
        if (!current) return;
        painter->setPen(QPen(selected, 2, grid_.hasFocus() ? Qt::SolidLine : Qt::DotLine));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
    }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const override {
        auto* line = new QLineEdit(parent);
        const CellLook cell = model_.look(index.column() + 1, index.row() + 1);
        line->setFrame(false);
        line->setFont(grid_.font());
        line->setAlignment(Qt::Alignment(index.data(Qt::TextAlignmentRole).toInt()));
        if (cell.field > 0) line->setMaxLength(cell.field);
        line->setTextMargins(cellPad - 2, 0, cellPad - 2, 0);
        return line;
    }

private:
    ArrayGrid& grid_;
    ArrayModel& model_;
};

} // namespace

// --------------------------------------------------------------------------------------------------------- grid

ArrayGrid::ArrayGrid(const ArrayOptions& options, const ArrayHooks& hooks, QWidget* parent)
    : QTableView(parent), options_(options), hooks_(hooks), model_(new ArrayModel(*this)) {
    model_->setParent(this);
    model_->resize(std::max(1, options.columns), std::max(1, options.rows));
    setModel(model_);
    setItemDelegate(new CellDelegate(*this, *model_));
    setShowGrid(false);
    setCornerButtonEnabled(false);
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
        header->setMinimumSectionSize(smallestCell);
        header->setSectionResizeMode(QHeaderView::Interactive);
        header->setHighlightSections(false);
        header->setSectionsClickable(true);
        header->viewport()->installEventFilter(this);
    }
    if (auto* corner = findChild<QAbstractButton*>()) corner->installEventFilter(this);
    horizontalHeader()->setDefaultSectionSize(std::max(smallestCell, options.cellWidth));
    verticalHeader()->setDefaultSectionSize(std::max(smallestCell, options.cellHeight));
    connect(itemDelegate(), &QAbstractItemDelegate::commitData, this, [this] {
        if (!program_ && hooks_.committed && currentIndex().isValid())
            hooks_.committed(currentIndex().column() + 1, currentIndex().row() + 1);
    });
    showOptions();
}

ArrayGrid::~ArrayGrid() { program_.forGood(); }

void ArrayGrid::setOptions(const ArrayOptions& options) {
    options_ = options;
    {
        const ProgramDoing::Mark mark(program_);
        model_->resize(std::max(1, options.columns), std::max(1, options.rows));
    }
    showOptions();
}

void ArrayGrid::showOptions() {
    horizontalHeader()->setVisible(options_.axisHeight > 0);
    verticalHeader()->setVisible(options_.axisWidth > 0);
    if (options_.axisHeight > 0) horizontalHeader()->setFixedHeight(options_.axisHeight);
    if (options_.axisWidth > 0) verticalHeader()->setFixedWidth(options_.axisWidth);
    setVerticalScrollBarPolicy(options_.scrollVertical ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(options_.scrollHorizontal ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setEditTriggers(options_.readOnly ? QAbstractItemView::NoEditTriggers
                                      : QAbstractItemView::AnyKeyPressed | QAbstractItemView::DoubleClicked |
                                            QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
    setTabKeyNavigation(options_.tabAction != 0);
    // The frame keeps room for the boundary, which is drawn in event().
    setFrameStyle(options_.boundary == Boundary::None ? int(QFrame::NoFrame) : int(QFrame::Box) | int(QFrame::Plain));
    setLineWidth(std::max(1, boundaryWidth(options_.boundary)));
    QPalette colours = palette();
    colours.setColor(QPalette::Base, palette().color(QPalette::Window).darker(106));
    viewport()->setPalette(colours);
    model_->refreshHeaders();
    viewport()->update();
}

int ArrayGrid::columns() const { return model_->columnCount(); }
int ArrayGrid::rows() const { return model_->rowCount(); }
bool ArrayGrid::hasCell(int column, int row) const {
    return column >= 1 && row >= 1 && column <= columns() && row <= rows();
}

void ArrayGrid::setCellText(int column, int row, const QString& text) {
    ArrayModel::Cell& cell = model_->cells[ArrayModel::key(column, row)];
    cell.text = text;
    cell.filled = !text.isEmpty();
    if (options_.values)
        if (auto number = parseValue(toProgram(text), model_->look(column, row).format))
            cell.value = *number, cell.filled = true;
    model_->changed(column, row);
}

void ArrayGrid::setCellValue(int column, int row, double value) {
    ArrayModel::Cell& cell = model_->cells[ArrayModel::key(column, row)];
    cell.value = value;
    cell.filled = true;
    if (!options_.values) cell.text = fromProgram(formatValue(value, model_->look(column, row).format));
    model_->changed(column, row);
}

void ArrayGrid::clearCell(int column, int row) {
    if (column > 0 && row > 0)
        model_->cells.remove(ArrayModel::key(column, row));
    else
        model_->cells.removeIf([&](auto it) {
            return (column <= 0 || int(it.key() & 0xFFFFFFFF) == column) && (row <= 0 || int(it.key() >> 32) == row);
        });
    model_->refresh();
}

QString ArrayGrid::cellText(int column, int row) const { return model_->shown(column, row); }

double ArrayGrid::cellValue(int column, int row) const {
    auto found = model_->cells.constFind(ArrayModel::key(column, row));
    if (found == model_->cells.constEnd()) return 0;
    if (!options_.values) return parseValue(toProgram(found->text), model_->look(column, row).format).value_or(0);
    return found->value;
}

void ArrayGrid::setCellLook(int column, int row, const CellLook& look) {
    column = std::max(column, 0);
    row = std::max(row, 0);
    // What was said of single cells gives way to what is now said of all of them.
    model_->looks.removeIf([&](auto it) {
        return (column == 0 || int(it.key() & 0xFFFFFFFF) == column) && (row == 0 || int(it.key() >> 32) == row);
    });
    model_->looks.insert(ArrayModel::key(column, row), look);
    model_->refresh();
}

CellLook ArrayGrid::cellLook(int column, int row) const { return model_->look(column, row); }

void ArrayGrid::setCellSize(int column, int row, int width, int height) {
    width = std::min(width, 10000);
    height = std::min(height, 10000);
    if (width > 0 && column <= 0) horizontalHeader()->setDefaultSectionSize(std::max(smallestCell, width));
    if (height > 0 && row <= 0) verticalHeader()->setDefaultSectionSize(std::max(smallestCell, height));
    for (int c = column > 0 ? column : 1; width > 0 && c <= (column > 0 ? std::min(column, columns()) : columns()); ++c)
        setColumnWidth(c - 1, width);
    for (int r = row > 0 ? row : 1; height > 0 && r <= (row > 0 ? std::min(row, rows()) : rows()); ++r)
        setRowHeight(r - 1, height);
}

namespace {
std::vector<int> sectionSizes(const QHeaderView& header) {
    std::vector<int> sizes;
    sizes.reserve(std::size_t(header.count()));
    for (int i = 0; i < header.count(); ++i) sizes.push_back(header.sectionSize(i));
    return sizes;
}
void setSectionSizes(QHeaderView& header, const std::vector<int>& sizes) {
    for (int i = 0; i < std::min<int>(header.count(), int(sizes.size())); ++i)
        header.resizeSection(i, sizes[std::size_t(i)]);
}
} // namespace

void ArrayGrid::insertColumn(int before) {
    std::vector<int> sizes = sectionSizes(*horizontalHeader()), heights = sectionSizes(*verticalHeader());
    before = before < 1 || before > columns() ? columns() + 1 : before;
    sizes.insert(sizes.begin() + before - 1, horizontalHeader()->defaultSectionSize());
    model_->shift(true, before, 1);
    ++options_.columns;
    setOptions(options_);
    setSectionSizes(*horizontalHeader(), sizes);
    setSectionSizes(*verticalHeader(), heights);
}

void ArrayGrid::insertRow(int before) {
    std::vector<int> sizes = sectionSizes(*verticalHeader()), widths = sectionSizes(*horizontalHeader());
    before = before < 1 || before > rows() ? rows() + 1 : before;
    sizes.insert(sizes.begin() + before - 1, verticalHeader()->defaultSectionSize());
    model_->shift(false, before, 1);
    ++options_.rows;
    setOptions(options_);
    setSectionSizes(*verticalHeader(), sizes);
    setSectionSizes(*horizontalHeader(), widths);
}

void ArrayGrid::removeColumn(int column) {
    if (column < 1 || column > columns() || columns() == 1) return;
    std::vector<int> sizes = sectionSizes(*horizontalHeader()), heights = sectionSizes(*verticalHeader());
    sizes.erase(sizes.begin() + column - 1);
    model_->shift(true, column, -1);
    --options_.columns;
    setOptions(options_);
    setSectionSizes(*horizontalHeader(), sizes);
    setSectionSizes(*verticalHeader(), heights);
}

void ArrayGrid::removeRow(int row) {
    if (row < 1 || row > rows() || rows() == 1) return;
    std::vector<int> sizes = sectionSizes(*verticalHeader()), widths = sectionSizes(*horizontalHeader());
    sizes.erase(sizes.begin() + row - 1);
    model_->shift(false, row, -1);
    --options_.rows;
    setOptions(options_);
    setSectionSizes(*verticalHeader(), sizes);
    setSectionSizes(*horizontalHeader(), widths);
}

void ArrayGrid::setActiveCell(int column, int row) {
    if (!hasCell(column, row)) return;
    const ProgramDoing::Mark mark(program_);
    setCurrentIndex(model_->index(row - 1, column - 1));
}

void ArrayGrid::selectCells(int column1, int row1, int column2, int row2) {
    if (!hasCell(column1, row1) || !hasCell(column2, row2)) return clearSelection();
    const ProgramDoing::Mark mark(program_);
    setCurrentIndex(model_->index(row1 - 1, column1 - 1));
    selectionModel()->select(QItemSelection(model_->index(std::min(row1, row2) - 1, std::min(column1, column2) - 1),
                                            model_->index(std::max(row1, row2) - 1, std::max(column1, column2) - 1)),
                             QItemSelectionModel::ClearAndSelect);
}

void ArrayGrid::selectedCells(int& column1, int& row1, int& column2, int& row2) const {
    column1 = row1 = column2 = row2 = 0;
    const QItemSelection selection = selectionModel()->selection();
    if (selection.isEmpty()) {
        column1 = column2 = currentIndex().column() + 1;
        row1 = row2 = currentIndex().row() + 1;
        return;
    }
    const QItemSelectionRange& range = selection.first();
    column1 = range.left() + 1;
    row1 = range.top() + 1;
    column2 = range.right() + 1;
    row2 = range.bottom() + 1;
}

// ------------------------------------------------------------------------------------------- what the user does

// To the next or previous cell that can be entered, in reading order. False at the ends, unless Tab starts again there.
bool ArrayGrid::moveCell(int steps) {
    const int count = columns() * rows();
    int at = currentIndex().isValid() ? currentIndex().row() * columns() + currentIndex().column()
             : steps > 0              ? -1
                                      : count;
    for (int tried = 0; tried < count; ++tried) {
        at += steps;
        if (at < 0 || at >= count) {
            if (options_.tabAction != 2) return false;
            at = at < 0 ? count - 1 : 0;
        }
        const QModelIndex next = model_->index(at / columns(), at % columns());
        if (!(model_->flags(next) & Qt::ItemIsEnabled)) continue;
        setCurrentIndex(next);
        return true;
    }
    return false;
}

// Past QAbstractItemView, which would hand the key back to keyPressEvent.
void ArrayGrid::leave(bool forward) {
    QAbstractScrollArea::focusNextPrevChild(forward);
} // NOLINT(bugprone-parent-virtual-call)

bool ArrayGrid::event(QEvent* event) {
    if (event->type() != QEvent::Paint) return QTableView::event(event);
    QPainter painter(this);
    drawBoundary(painter, rect(), options_.boundary, palette().color(QPalette::WindowText), palette());
    return true;
}

bool ArrayGrid::eventFilter(QObject* watched, QEvent* event) {
    const bool header = watched == horizontalHeader()->viewport() || watched == verticalHeader()->viewport();
    const bool corner = qobject_cast<QAbstractButton*>(watched);
    const bool press = event->type() == QEvent::MouseButtonPress;
    if ((header || corner) && press && hooks_.pressedElsewhere) hooks_.pressedElsewhere();
    if (corner && (press || event->type() == QEvent::MouseButtonRelease)) {
        event->accept(); // it is disabled: the press would go on to what lies around the array
        return true;
    }
    return QTableView::eventFilter(watched, event);
}

void ArrayGrid::keyPressEvent(QKeyEvent* event) {
    const bool tab = event->key() == Qt::Key_Tab, backTab = event->key() == Qt::Key_Backtab;
    if (tab || backTab) {
        if (options_.tabAction == 0 || !moveCell(tab ? 1 : -1)) leave(tab);
        return;
    }
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && state() != EditingState) {
        if (currentIndex().isValid() && model_->flags(currentIndex()) & Qt::ItemIsEditable) edit(currentIndex());
        return;
    }
    if ((event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) && state() != EditingState) {
        for (const QModelIndex& index : selectionModel()->selectedIndexes())
            if (model_->flags(index) & Qt::ItemIsEditable) model_->setData(index, QString(), Qt::EditRole);
        return;
    }
    QTableView::keyPressEvent(event);
}

void ArrayGrid::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    switch (hint) {
    case QAbstractItemDelegate::EditNextItem:
    case QAbstractItemDelegate::EditPreviousItem: {
        const bool next = hint == QAbstractItemDelegate::EditNextItem;
        if (options_.tabAction == 0 || !moveCell(next ? 1 : -1)) leave(next);
        break;
    }
    case QAbstractItemDelegate::SubmitModelCache: {
        QModelIndex to = currentIndex();
        if (options_.returnAction == 1) to = to.siblingAtRow(to.row() + 1);
        if (options_.returnAction == 2) to = to.siblingAtColumn(to.column() + 1);
        if (to.isValid()) setCurrentIndex(to);
        break;
    }
    default: break;
    }
}

void ArrayGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    viewport()->update();
    if (!program_ && current.isValid() && hooks_.selected) hooks_.selected(current.column() + 1, current.row() + 1);
}

void ArrayGrid::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    viewport()->update();
}

void ArrayGrid::mousePressEvent(QMouseEvent* event) {
    const QModelIndex before = currentIndex();
    QTableView::mousePressEvent(event);
    // A press on the cell that is current already, or beside the cells, tells the program all the same.
    if (!program_ && !indexAt(event->pos()).isValid() && hooks_.pressedElsewhere)
        hooks_.pressedElsewhere();
    else if (before.isValid() && before == currentIndex() && !program_ && hooks_.selected)
        hooks_.selected(before.column() + 1, before.row() + 1);
}

void ArrayGrid::mouseDoubleClickEvent(QMouseEvent* event) {
    QTableView::mouseDoubleClickEvent(event);
    const QModelIndex at = indexAt(event->pos());
    if (at.isValid() && hooks_.doubleClicked) hooks_.doubleClicked(at.column() + 1, at.row() + 1);
}

} // namespace orba
