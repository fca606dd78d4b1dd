// Message boxes, the file browser, and the choice of colours and fonts.
#include "toolkit/families/boxes.h"

#include "toolkit/frame/core.h"
#include "toolkit/views/icons/icons.h"
#include "toolkit/views/window_title.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QMessageBox>
#include <QPointer>
#include <QRegularExpression>
#include <QTreeView>
#include <array>

namespace orba {
namespace {

struct ButtonSet {
    int buttons; // number that programs pass
    QMessageBox::StandardButtons shown;
    QMessageBox::StandardButton preset, escape;
};
constexpr QMessageBox::StandardButton ok = QMessageBox::Ok, cancel = QMessageBox::Cancel, yes = QMessageBox::Yes,
                                      no = QMessageBox::No;
const ButtonSet buttonSets[] = {
    {0, ok, ok, ok},
    {1, ok | cancel, ok, cancel},
    {3, yes | no, yes, no},
    {4, yes | no | cancel, yes, cancel},
};

struct Answer {
    QMessageBox::StandardButton button;
    int number; // what programs read
};
constexpr Answer answers[] = {{ok, 4}, {cancel, 1}, {yes, 6}, {no, 3}};

constexpr QMessageBox::Icon boxIcons[] = {QMessageBox::NoIcon, QMessageBox::Question, QMessageBox::Warning,
                                          QMessageBox::Information, QMessageBox::Critical};

// Gives the focus back to what had it before a box came up; a box closed under a window manager may lose it otherwise.
class FocusKeeper {
public:
    FocusKeeper() : focus_(QApplication::focusWidget()) { icons::useTheme(); }
    ~FocusKeeper() {
        if (!focus_) return;
        focus_->activateWindow();
        focus_->setFocus();
    }
    FocusKeeper(const FocusKeeper&) = delete;
    FocusKeeper& operator=(const FocusKeeper&) = delete;

private:
    QPointer<QWidget> focus_;
};

QString& lastDirectory() {
    static QString directory;
    return directory;
}

QString startDirectory(const QString& wanted) {
    QString native = QDir::fromNativeSeparators(wanted);
    if (!native.isEmpty() && QFileInfo(native).isDir()) return native;
    if (!lastDirectory().isEmpty() && QFileInfo(lastDirectory()).isDir()) return lastDirectory();
    return QDir::currentPath();
}

// A box that follows another one at once finds no window active yet: the program's own then.
QWidget* ownerOfBox() {
    if (QWidget* active = QApplication::activeWindow()) return active;
    const Widget* master = widgetOf(1);
    return master && master->view ? master->view->window() : nullptr;
}

// Wide enough for its title; there is nothing to minimise. The buttons bear words alone: the theme has one picture for
// both No and Cancel.
void dress(QMessageBox& box) {
    constexpr int FRAME = 120; // pixels of icon, close box and margins of the title
    box.setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout()))
        grid->addItem(new QSpacerItem(box.fontMetrics().horizontalAdvance(box.windowTitle()) + FRAME, 0),
                      grid->rowCount(), 0, 1, grid->columnCount());
    for (QAbstractButton* button : box.buttons()) button->setIcon({});
}

} // namespace

int messageBox(const QString& title, const QString& text, int icon, int buttons) {
    const ButtonSet* set = &buttonSets[0];
    for (const ButtonSet& row : buttonSets)
        if (row.buttons == buttons) set = &row;
    const FocusKeeper keeper;
    QMessageBox box(ownerOfBox());
    box.setWindowTitle(windowTitle(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString(text).replace(QLatin1Char('|'), QLatin1Char('\n')));
    box.setIcon(icon >= 0 && icon < static_cast<int>(std::size(boxIcons)) ? boxIcons[icon] : QMessageBox::NoIcon);
    box.setStandardButtons(set->shown);
    box.setDefaultButton(set->preset);
    box.setEscapeButton(set->escape);
    dress(box);
    const int pressed = runBox(box);
    for (const Answer& answer : answers)
        if (pressed == answer.button) return answer.number;
    return 1;
}

QStringList dialogueFilters(const QString& filter) {
    static const QRegularExpression ownPattern(QStringLiteral(R"(\s*\([^()]*\)\s*$)"));
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i < parts.size(); i += 2) {
        QString patterns = parts[i].trimmed().replace(QLatin1Char(';'), QLatin1Char(' '));
        if (patterns.isEmpty()) continue;
        if (patterns == QLatin1String("*.*")) patterns = QStringLiteral("*"); // names without an ending are files too
        const QString description = parts.value(i + 1).trimmed().remove(ownPattern);
        filters << QStringLiteral("%1 (%2)").arg(description.isEmpty() ? patterns : description, patterns);
    }
    return filters;
}

bool fileBrowser(FileChoice& choice) {
    const FocusKeeper keeper;
    QFileDialog dialogue(ownerOfBox(), choice.title, startDirectory(choice.directory));
    dialogue.resize(760, 480);
    if (auto* files = dialogue.findChild<QTreeView*>(QStringLiteral("treeView"))) {
        constexpr int nameWidth = 290, dateWidth = 150;
        files->header()->resizeSection(0, nameWidth);
        files->header()->resizeSection(3, dateWidth);
    }
    const bool folder = choice.question == FileQuestion::directory;
    dialogue.setAcceptMode(choice.question == FileQuestion::save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogue.setFileMode(folder                                  ? QFileDialog::Directory
                         : choice.question == FileQuestion::save ? QFileDialog::AnyFile
                                                                 : QFileDialog::ExistingFile);
    dialogue.setOption(QFileDialog::ShowDirsOnly, folder);
    dialogue.setOption(QFileDialog::DontConfirmOverwrite);
    const QStringList filters = dialogueFilters(choice.filter);
    if (!folder && !filters.isEmpty()) dialogue.setNameFilters(filters);
    if (!folder && !choice.name.isEmpty()) dialogue.selectFile(choice.name);
    if (runBox(dialogue) != QDialog::Accepted || dialogue.selectedFiles().isEmpty()) return false;
    const QFileInfo chosen(dialogue.selectedFiles().constFirst());
    choice.directory = folder ? chosen.absoluteFilePath() : chosen.absolutePath();
    choice.name = folder ? QString() : chosen.fileName();
    lastDirectory() = choice.directory;
    choice.directory = QDir::toNativeSeparators(choice.directory);
    return true;
}

bool colourBox(QColor& colour) {
    const FocusKeeper keeper;
    QColorDialog dialogue(colour, ownerOfBox());
    if (runBox(dialogue) != QDialog::Accepted) return false;
    colour = dialogue.selectedColor();
    return colour.isValid();
}

} // namespace orba
