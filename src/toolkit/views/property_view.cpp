// The property list's table: model, drawing of cells, editors and the keyboard.
#include "toolkit/views/property_view.h"

#include "toolkit/views/text/tip_text.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <optional>
#include <utility>

namespace orba {

class PropertyModel : public QAbstractTableModel {
public:
    explicit PropertyModel(PropertyView* owner) : QAbstractTableModel(owner), view(owner) {}

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(rows.size());
    }
    int columnCount(const QModelIndex& = {}) const override { return 2; }

    QVariant data(const QModelIndex& index, int role) const override {
        const PropertyRow& row = rows[static_cast<size_t>(index.row())];
        if (role != Qt::DisplayRole && role != Qt::EditRole && role != Qt::AccessibleTextRole) return {};
        return index.column() == 0 ? row.label : view->shownText(row);
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
        return section == 0 ? PropertyView::tr("Property") : PropertyView::tr("Value");
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override {
        const PropertyRow& row = rows[static_cast<size_t>(index.row())];
        Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
        if (index.column() == 1 && row.enabled && row.typed && !row.widget) flags |= Qt::ItemIsEditable;
        return flags;
    }

    void insert(int at, PropertyRow row) {
        beginInsertRows({}, at, at);
        rows.insert(rows.begin() + at, std::move(row));
        endInsertRows();
    }
    void remove(int at) {
        beginRemoveRows({}, at, at);
        rows.erase(rows.begin() + at);
        endRemoveRows();
    }
    void clear() {
        beginResetModel();
        rows.clear();
        endResetModel();
    }
    void changed(int at) { emit dataChanged(index(at, 0), index(at, 1)); }

    PropertyView* view;
    std::vector<PropertyRow> rows;
};

namespace {

constexpr int longestText = 255; // characters of a text cell

class PropertyDelegate : public QStyledItemDelegate {
public:
    PropertyDelegate(PropertyModel* model, PropertyView* view)
        : QStyledItemDelegate(view), model_(model), view_(view) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const PropertyRow& row = model_->rows[static_cast<size_t>(index.row())];
        const bool current = view_->currentIndex().row() == index.row();
        const QPalette& palette = option.palette;
        const bool isLabel = index.column() == 0;
        const QPalette::ColorGroup group = !row.enabled                                   ? QPalette::Disabled
                                           : view_->hasFocus() || view_->isActiveWindow() ? QPalette::Active
                                                                                          : QPalette::Inactive;
        const bool lit = current && isLabel;
        painter->fillRect(option.rect, lit ? palette.brush(group, QPalette::Highlight)
                                           : palette.brush(isLabel ? QPalette::AlternateBase : QPalette::Base));
        const QRect button = isLabel ? QRect() : view_->buttonRect(index);
        QRect inner = option.rect.adjusted(5, 0, -3, 0);
        if (!button.isEmpty()) inner.setRight(button.left() - 3);
        if (!isLabel && row.colour)
            paintSwatch(painter, inner, *row.colour, row.enabled, palette);
        else {
            painter->setPen(palette.color(group, lit ? QPalette::HighlightedText : QPalette::Text));
            painter->setFont(option.font);
            const QString text = isLabel ? row.label : view_->shownText(row);
            painter->drawText(inner, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                              option.fontMetrics.elidedText(text, Qt::ElideRight, inner.width()));
        }
        if (!button.isEmpty()) paintButton(painter, button, row, option);
        if (!view_->gridLines()) return;
        painter->setPen(palette.color(QPalette::Active, QPalette::Midlight).darker(104));
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
        if (isLabel) painter->drawLine(option.rect.topRight(), option.rect.bottomRight());
    }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const override {
        auto* line = new QLineEdit(parent);
        line->setFrame(false);
        line->setMaxLength(longestText);
        line->setAutoFillBackground(true);
        view_->setActiveEditor(line);
        return line;
    }

    void setEditorData(QWidget* editor, const QModelIndex& index) const override {
        auto* line = static_cast<QLineEdit*>(editor);
        const QString& text = model_->rows[static_cast<size_t>(index.row())].text;
        if (line->text() != text) line->setText(text);
        if (!line->isModified()) line->selectAll();
    }

    void setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const override {
        view_->userChanged(index.row() + 1, static_cast<QLineEdit*>(editor)->text());
    }

    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override {
        QRect rect = option.rect.adjusted(1, 0, 0, -1);
        const QRect button = view_->buttonRect(index);
        if (!button.isEmpty()) rect.setRight(button.left() - 1);
        editor->setGeometry(rect);
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return {80, option.fontMetrics.height() + 6};
    }

private:
    static void paintSwatch(QPainter* painter, QRect rect, const QColor& colour, bool enabled,
                            const QPalette& palette) {
        rect.adjust(-2, 2, 0, -3);
        QColor shown = colour;
        if (!enabled) shown.setAlphaF(0.45F);
        painter->fillRect(rect, shown);
        painter->setPen(palette.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::Mid).darker(130));
        painter->drawRect(rect.adjusted(0, 0, -1, -1));
    }

    void paintButton(QPainter* painter, const QRect& rect, const PropertyRow& row,
                     const QStyleOptionViewItem& option) const {
        QStyleOptionButton button;
        button.initFrom(view_);
        button.rect = rect;
        button.state.setFlag(QStyle::State_Enabled, row.enabled);
        button.state.setFlag(QStyle::State_HasFocus, false);
        button.state.setFlag(QStyle::State_MouseOver, false);
        button.state |= QStyle::State_Raised;
        if (row.kind == CellKind::combo) {
            button.state.setFlag(QStyle::State_Raised, false);
            button.rect = QRect(rect.center() - QPoint(4, 4), QSize(9, 9));
            view_->style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &button, painter, view_);
            return;
        }
        view_->style()->drawPrimitive(QStyle::PE_PanelButtonCommand, &button, painter, view_);
        painter->setPen(
            option.palette.color(row.enabled ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
        painter->drawText(rect.adjusted(0, -2, 0, -2), Qt::AlignCenter, QStringLiteral("…"));
    }

    PropertyModel* model_;
    PropertyView* view_;
};

// Keys that a command may be bound to: what is being typed must be taken over before the command runs.
bool mayBeCommand(const QKeyEvent* key) {
    if (key->key() >= Qt::Key_F1 && key->key() <= Qt::Key_F35) return true;
    if (!(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) return false;
    constexpr int editing[] = {Qt::Key_C,       Qt::Key_V,   Qt::Key_X,         Qt::Key_Z,
                               Qt::Key_Y,       Qt::Key_A,   Qt::Key_Left,      Qt::Key_Right,
                               Qt::Key_Home,    Qt::Key_End, Qt::Key_Backspace, Qt::Key_Delete,
                               Qt::Key_Control, Qt::Key_Alt, Qt::Key_Shift,     Qt::Key_Down};
    return std::find(std::begin(editing), std::end(editing), key->key()) == std::end(editing);
}

} // namespace

PropertyView::PropertyView(QWidget* parent) : QTableView(parent), model_(new PropertyModel(this)) {
    setModel(model_);
    setItemDelegate(new PropertyDelegate(model_, this));
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(8);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView* columns = horizontalHeader();
    columns->setSectionResizeMode(0, QHeaderView::Interactive);
    columns->setSectionResizeMode(1, QHeaderView::Stretch);
    columns->setHighlightSections(false);
    columns->setMinimumSectionSize(30);
    columns->resizeSection(0, 140);
    setShowGrid(false);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTabKeyNavigation(false);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    setRowHeight(0);
    qApp->installEventFilter(this);
}

PropertyView::~PropertyView() { qApp->removeEventFilter(this); }

int PropertyView::rowCount() const { return model_->rowCount(); }

const PropertyRow* PropertyView::row(int number) const {
    return number >= 1 && number <= rowCount() ? &model_->rows[static_cast<size_t>(number) - 1] : nullptr;
}

int PropertyView::addRow(PropertyRow row) {
    if (row.widget) adoptCellWidget(row);
    model_->insert(rowCount(), std::move(row));
    return rowCount();
}

void PropertyView::insertRow(int number, PropertyRow row) {
    model_->insert(qBound(0, number - 1, rowCount()), std::move(row));
}

bool PropertyView::removeRow(int number) {
    if (!row(number)) return false;
    const ProgramDoing::Mark mark(program_);
    model_->remove(number - 1);
    return true;
}

int PropertyView::findRow(const QString& label) const {
    for (int i = 1; i <= rowCount(); ++i)
        if (row(i)->label == label) return i;
    return 0;
}

void PropertyView::setRow(int number, PropertyRow row) {
    if (!this->row(number)) return;
    if (row.widget) adoptCellWidget(row);
    model_->rows[static_cast<size_t>(number) - 1] = std::move(row);
    const bool editing = editor_ && currentRow() == number;
    if (editing && !editable(number)) closeEditor(editor_, QAbstractItemDelegate::NoHint);
    model_->changed(number - 1);
    placeCellWidget();
}

namespace {

// The line in which a cell's widget is typed into; null for a list-only combo box.
QLineEdit* lineOf(QWidget* widget) {
    if (auto* line = qobject_cast<QLineEdit*>(widget)) return line;
    return widget ? widget->findChild<QLineEdit*>() : nullptr;
}

} // namespace

QString PropertyView::shownText(const PropertyRow& row) const {
    if (const auto* combo = qobject_cast<const QComboBox*>(row.widget.data())) return combo->currentText();
    if (const QLineEdit* line = lineOf(row.widget)) return line->text();
    return row.text;
}

// The widget stays the program's own; the table only gives it a place, without a frame, and follows what it shows.
void PropertyView::adoptCellWidget(const PropertyRow& row) {
    QWidget* widget = row.widget;
    if (widget->parentWidget() == viewport()) return;
    widget->hide();
    widget->setParent(viewport());
    if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        combo->setFrame(false);
        connect(combo, &QComboBox::currentTextChanged, viewport(), qOverload<>(&QWidget::update));
    }
    if (QLineEdit* line = lineOf(widget)) {
        line->setFrame(false);
        connect(line, &QLineEdit::textChanged, viewport(), qOverload<>(&QWidget::update));
    }
}

QWidget* PropertyView::cellWidget() const {
    const PropertyRow* current = row(currentRow());
    return current && current->enabled && !readOnly_ ? current->widget.data() : nullptr;
}

void PropertyView::placeCellWidget() {
    QWidget* shown = cellWidget();
    if (cellShown_ && cellShown_ != shown) cellShown_->hide();
    cellShown_ = shown;
    if (!shown) return;
    shown->setGeometry(visualRect(model_->index(currentRow() - 1, 1)).adjusted(1, 0, 0, -1));
    shown->show();
    shown->raise();
}

void PropertyView::updateGeometries() {
    QTableView::updateGeometries();
    placeCellWidget();
}

void PropertyView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    placeCellWidget();
}

void PropertyView::widgetChanged(const QWidget* widget) {
    for (int number = 1; number <= rowCount(); ++number)
        if (row(number)->widget == widget) {
            changedRow_ = number;
            viewport()->update();
            emit valueChanged(number);
            return;
        }
}

void PropertyView::selectRow(int number) { makeCurrent(number, false); }

int PropertyView::currentRow() const { return currentIndex().isValid() ? currentIndex().row() + 1 : 0; }

void PropertyView::makeCurrent(int number, bool byUser) {
    if (!row(number)) return;
    {
        std::optional<ProgramDoing::Mark> mark;
        if (!byUser) mark.emplace(program_);
        setCurrentIndex(model_->index(number - 1, 1));
    }
    scrollTo(model_->index(number - 1, 1));
}

void PropertyView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    viewport()->update();
    placeCellWidget();
    if (!program_ && current.isValid() && current.row() != previous.row()) emit rowSelected(current.row() + 1);
}

void PropertyView::setLabelWidth(int pixels) { horizontalHeader()->resizeSection(0, qMax(30, pixels)); }
int PropertyView::labelWidth() const { return horizontalHeader()->sectionSize(0); }

void PropertyView::setRowHeight(int pixels) {
    rowHeight_ = pixels;
    const int height = qMax(pixels, fontMetrics().height() + 6);
    verticalHeader()->setDefaultSectionSize(height);
    horizontalHeader()->setFixedHeight(height);
}
int PropertyView::rowHeight() const { return verticalHeader()->defaultSectionSize(); }

void PropertyView::setGridLines(bool shown) {
    gridLines_ = shown;
    viewport()->update();
}

void PropertyView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) setRowHeight(rowHeight_);
}

QRect PropertyView::buttonRect(const QModelIndex& index) const {
    const PropertyRow* shown = row(index.row() + 1);
    if (!shown || index.column() != 1) return {};
    const bool choice = shown->kind == CellKind::combo;
    if (shown->kind != CellKind::button && !choice) return {};
    if (choice && !shown->enabled) return {};
    QRect rect = visualRect(model_->index(index.row(), 1));
    rect.setLeft(rect.right() - (choice ? 18 : 22));
    return rect.adjusted(0, 1, -1, -2);
}

bool PropertyView::editable(int number) const {
    return row(number) && !readOnly_ && (model_->flags(model_->index(number - 1, 1)) & Qt::ItemIsEditable);
}

void PropertyView::editRow(int number) {
    const PropertyRow* shown = row(number);
    if (!shown || !shown->enabled) return;
    if (shown->widget) {
        shown->widget->setFocus(Qt::OtherFocusReason);
        if (QLineEdit* line = lineOf(shown->widget)) line->selectAll();
        return;
    }
    if (!editable(number)) {
        if (shown->kind == CellKind::button) emit buttonPressed(number);
        return;
    }
    const QModelIndex cell = model_->index(number - 1, 1);
    if (!editor_ || currentIndex() != cell) edit(cell);
}

void PropertyView::setActiveEditor(QWidget* editor) { editor_ = editor; }

void PropertyView::commitEditor() {
    if (editor_)
        commitData(editor_);
    else if (cellShown_)
        emit commitWanted(cellShown_);
}

void PropertyView::finishEditing() {
    commitEditor();
    if (editor_)
        closeEditor(editor_, QAbstractItemDelegate::NoHint);
    else if (cellShown_ && cellShown_->isAncestorOf(QApplication::focusWidget()))
        setFocus();
}

// A closed editor lives until the next turn of the event loop; it is no longer the open one.
void PropertyView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    if (editor == editor_) editor_ = nullptr;
    QTableView::closeEditor(editor, hint);
}

void PropertyView::userChanged(int number, const QString& text) {
    const PropertyRow* shown = row(number);
    if (!shown || shown->text == text) return;
    model_->rows[static_cast<size_t>(number) - 1].text = text;
    changedRow_ = number;
    model_->changed(number - 1);
    emit valueChanged(number);
}

int PropertyView::clickedRow(const QPoint& position) const {
    const QModelIndex index = indexAt(position);
    return index.isValid() ? index.row() + 1 : 0;
}

bool PropertyView::onSplitter(const QPoint& position) const { return std::abs(position.x() - labelWidth()) <= 3; }

void PropertyView::mousePressEvent(QMouseEvent* event) {
    const QPoint position = event->position().toPoint();
    if (event->button() != Qt::LeftButton) return;
    if (onSplitter(position)) {
        dragging_ = true;
        return;
    }
    const int number = clickedRow(position);
    if (number == 0) {
        commitEditor();
        return;
    }
    makeCurrent(number, true);
    const PropertyRow& pressed = *row(number);
    const bool onButton = buttonRect(model_->index(number - 1, 1)).contains(position);
    if (pressed.kind == CellKind::button && onButton && pressed.enabled) {
        pressedButton_ = number;
        return;
    }
    if (!editable(number) && !pressed.widget) return;
    editRow(number);
    auto* combo = qobject_cast<QComboBox*>(cellWidget());
    const bool wantsList = combo && position.x() > labelWidth() && (onButton || !combo->isEditable());
    if (wantsList) pressedList_ = combo;
}

void PropertyView::mouseDoubleClickEvent(QMouseEvent* event) {
    const int number = clickedRow(event->position().toPoint());
    const PropertyRow* shown = row(number);
    mousePressEvent(event);
    if (shown && shown->enabled && shown->kind == CellKind::button && !shown->typed && pressedButton_ == 0)
        emit buttonPressed(number);
}

void PropertyView::mouseMoveEvent(QMouseEvent* event) {
    const QPoint position = event->position().toPoint();
    if (dragging_) {
        setLabelWidth(qBound(30, position.x(), viewport()->width() - 30));
        return;
    }
    viewport()->setCursor(onSplitter(position) ? Qt::SplitHCursor : Qt::ArrowCursor);
}

void PropertyView::mouseReleaseEvent(QMouseEvent* event) {
    dragging_ = false;
    if (QComboBox* list = std::exchange(pressedList_, nullptr)) return list->showPopup();
    const int pressed = pressedButton_;
    pressedButton_ = 0;
    if (pressed == 0 || !row(pressed)) return;
    if (buttonRect(model_->index(pressed - 1, 1)).contains(event->position().toPoint())) emit buttonPressed(pressed);
}

void PropertyView::moveEditor(int step) {
    for (int number = currentRow() + step; row(number); number += step)
        if (row(number)->enabled) {
            makeCurrent(number, true);
            if (row(number)->kind != CellKind::button || row(number)->typed) editRow(number);
            return;
        }
}

// A key that the cell has no use for goes on to the cell's parents, this table among them.
void PropertyView::handToCell(QKeyEvent* event) {
    QWidget* target = editor_ ? editor_.data() : cellWidget();
    if (!target) return event->ignore();
    handing_ = true;
    QApplication::sendEvent(target, event);
    handing_ = false;
}

void PropertyView::keyPressEvent(QKeyEvent* event) {
    if (handing_) return event->ignore();
    const int number = currentRow();
    switch (event->key()) {
    case Qt::Key_Up: makeCurrent(number - 1, true); return;
    case Qt::Key_Down:
        if (event->modifiers() & Qt::AltModifier) break;
        makeCurrent(number + 1, true);
        return;
    case Qt::Key_Home: makeCurrent(1, true); return;
    case Qt::Key_End: makeCurrent(rowCount(), true); return;
    case Qt::Key_PageUp: makeCurrent(qMax(1, number - qMax(1, viewport()->height() / rowHeight() - 1)), true); return;
    case Qt::Key_PageDown:
        makeCurrent(qMin(rowCount(), number + qMax(1, viewport()->height() / rowHeight() - 1)), true);
        return;
    default: break;
    }
    const bool opens = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_F2 ||
                       event->key() == Qt::Key_F4 || event->key() == Qt::Key_Down || event->key() == Qt::Key_Space;
    if (opens) {
        editRow(number);
        if (auto* combo = qobject_cast<QComboBox*>(cellWidget())) combo->showPopup();
        return;
    }
    const QString typed = event->text();
    const bool isText =
        !typed.isEmpty() && typed.at(0).isPrint() && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    const QWidget* cell = cellWidget();
    const bool hadKey = cell && (cell->hasFocus() || cell->isAncestorOf(QApplication::focusWidget()));
    if (isText && !hadKey && (editable(number) || cell)) {
        editRow(number);
        handToCell(event);
        return;
    }
    event->ignore();
}

void PropertyView::focusInEvent(QFocusEvent* event) {
    const QModelIndex before = currentIndex();
    const ProgramDoing::Mark mark(program_);
    QTableView::focusInEvent(event);
    if (!before.isValid() && rowCount() > 0) makeCurrent(1, false);
}

// While a cell is being edited: a press anywhere else and a key that may be a command take the text over first, so that
// whoever handles them sees the value; Tab goes on to the next cell.
bool PropertyView::eventFilter(QObject* watched, QEvent* event) {
    QWidget* editor = editor_ ? editor_.data() : cellShown_.data();
    if (!editor) return QTableView::eventFilter(watched, event);
    const auto* widget = qobject_cast<QWidget*>(watched);
    const bool inside = widget && (widget == editor || editor->isAncestorOf(widget));
    if (event->type() == QEvent::Wheel && inside) {
        event->ignore(); // scrolls the table; a value is never changed by the way
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress && widget && !inside && !QApplication::activePopupWidget() &&
        widget->window() == window())
        finishEditing();
    if (event->type() == QEvent::ShortcutOverride && inside && mayBeCommand(static_cast<QKeyEvent*>(event)))
        commitEditor();
    if (event->type() == QEvent::KeyPress && inside && movesOn(static_cast<QKeyEvent*>(event), editor)) return true;
    return QTableView::eventFilter(watched, event);
}

// Return takes a line of text over. Tab and Shift+Tab, and from a line the arrows up and down, do so and go to another
// row.
bool PropertyView::movesOn(const QKeyEvent* event, QWidget* editor) {
    const int key = event->key();
    const bool tab = key == Qt::Key_Tab || key == Qt::Key_Backtab;
    const bool isLine = !qobject_cast<QComboBox*>(editor) && lineOf(editor);
    if (editor == editor_ && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        finishEditing();
        setFocus();
        return true;
    }
    const bool arrow = isLine && (key == Qt::Key_Up || key == Qt::Key_Down);
    if (!tab && !arrow) return false;
    finishEditing();
    if (tab)
        moveEditor(key == Qt::Key_Tab ? 1 : -1);
    else
        makeCurrent(currentRow() + (key == Qt::Key_Down ? 1 : -1), true);
    return true;
}

bool PropertyView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QTableView::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    const PropertyRow* shown = index.isValid() ? row(index.row() + 1) : nullptr;
    QString text;
    if (shown && !shown->help.isEmpty())
        text = shown->help;
    else if (shown) {
        const QString cell = index.column() == 0 ? shown->label : shown->text;
        if (fontMetrics().horizontalAdvance(cell) > visualRect(index).width() - 10) text = cell;
    }
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(help->globalPos(), tipText(text), viewport());
    return true;
}

} // namespace orba
