// Boxes that work on a text: find, replace, and printing to a printer or a PDF file.
#include "toolkit/families/family_support.h"
#include "toolkit/families/text_family.h"
#include "toolkit/views/text/program_text.h"

#include <QAbstractItemView>
#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextDocument>

namespace orba {
namespace {

constexpr int longestWanted = 255;

// The box for finding, and for replacing as well. It works on the text while it is up.
class FindBox : public QDialog {
public:
    FindBox(TextEntry& entry, bool replacing, QWidget* parent) : QDialog(parent), entry_(entry) {
        setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
        setWindowTitle(replacing ? QStringLiteral("Find and Replace") : QStringLiteral("Find"));
        auto* grid = new QGridLayout(this);
        const QString selected = fromProgram(entry.selectedText());
        wanted_->setText(selected.contains(u'\n') ? QString() : selected.left(longestWanted));
        wanted_->setMaxLength(longestWanted);
        wanted_->selectAll();
        grid->addWidget(label(QStringLiteral("&Find what:"), wanted_), 0, 0);
        grid->addWidget(wanted_, 0, 1);
        if (replacing) {
            grid->addWidget(label(QStringLiteral("Replace &with:"), replacement_), 1, 0);
            grid->addWidget(replacement_, 1, 1);
        }
        replacement_->setVisible(replacing);
        grid->addWidget(matchCase_, 2, 1);
        grid->addWidget(message_, 3, 0, 1, 2);
        auto* buttons = new QDialogButtonBox(Qt::Vertical);
        auto* next = buttons->addButton(QStringLiteral("Find &Next"), QDialogButtonBox::ActionRole);
        next->setDefault(true);
        connect(next, &QPushButton::clicked, this, [this] { find(); });
        if (replacing) {
            connect(buttons->addButton(QStringLiteral("&Replace"), QDialogButtonBox::ActionRole), &QPushButton::clicked,
                    this, [this] { replace(); });
            connect(buttons->addButton(QStringLiteral("Replace &All"), QDialogButtonBox::ActionRole),
                    &QPushButton::clicked, this, [this] { replaceAll(); });
        }
        connect(buttons->addButton(QDialogButtonBox::Close), &QPushButton::clicked, this, &QDialog::accept);
        grid->addWidget(buttons, 0, 2, 4, 1);
        grid->setColumnMinimumWidth(1, 220);
    }

    QString wanted() const { return wanted_->text(); }
    bool found() const { return found_; }

private:
    static QLabel* label(const QString& text, QWidget* buddy) {
        auto* result = new QLabel(text);
        result->setBuddy(buddy);
        return result;
    }

    bool matchesSelection() const {
        const QString selected = fromProgram(entry_.selectedText());
        return selected.compare(wanted(), matchCase_->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive) == 0 &&
               !selected.isEmpty();
    }

    // From behind the selection, and once more from the top.
    bool find() {
        int start = 1, end = 1;
        entry_.selection(start, end);
        int at = entry_.index().find(wanted(), end, matchCase_->isChecked());
        if (at == 0) at = entry_.index().find(wanted(), 1, matchCase_->isChecked());
        message_->setText(at ? QString() : QStringLiteral("String not found"));
        if (at == 0) return false;
        entry_.select(at, at + int(wanted().size()));
        found_ = true;
        return true;
    }

    void replace() {
        if (matchesSelection()) entry_.replaceSelection(toProgram(replacement_->text()), false);
        find();
    }

    void replaceAll() {
        int count = 0;
        if (!wanted().isEmpty())
            for (int at = 1; (at = entry_.index().find(wanted(), at, matchCase_->isChecked())) > 0; ++count) {
                entry_.select(at, at + int(wanted().size()));
                entry_.replaceSelection(toProgram(replacement_->text()), false);
                at += int(replacement_->text().size());
            }
        found_ = found_ || count > 0;
        message_->setText(count == 1 ? QStringLiteral("1 replacement made")
                                     : QStringLiteral("%1 replacements made").arg(count));
    }

    TextEntry& entry_;
    QLineEdit* wanted_ = new QLineEdit(this);
    QLineEdit* replacement_ = new QLineEdit(this); // stands in no layout while the box only finds
    QCheckBox* matchCase_ = new QCheckBox(QStringLiteral("Match &case"));
    QLabel* message_ = new QLabel;
    bool found_ = false;
};

Word findBox(const Arguments& call, bool replacing) {
    Widget& widget = *widgetOf(call.integer(0));
    FindBox box(*textEntryOf(&widget), replacing, widget.view->window());
    runBox(box);
    giveBytes(call, 1, toProgram(box.wanted()));
    return box.found() ? 1 : 0;
}

Word findDialogue(const Arguments& call) { return findBox(call, false); }
Word replaceDialogue(const Arguments& call) { return findBox(call, true); }

// ---------------------------------------------------------------------------------------------------- printing

constexpr int selectionOnly = 1;

std::unique_ptr<QTextDocument> listDocument(const Widget& widget, int pointSize) {
    auto document = std::make_unique<QTextDocument>();
    QFont font = widget.view->font();
    if (pointSize > 0) font.setPointSize(pointSize);
    document->setDefaultFont(font);
    QStringList rows;
    if (const auto* view = dynamic_cast<QAbstractItemView*>(widget.view.data()); view && view->model())
        for (int row = 0; row < view->model()->rowCount(); ++row)
            rows.append(view->model()->index(row, 0).data().toString());
    document->setPlainText(rows.join(u'\n'));
    return document;
}

// The name of what is printed becomes a file's name: of a title that ends in a path in brackets, the file.
QString documentName(const QString& title) {
    const qsizetype path = title.lastIndexOf(QRegularExpression(QStringLiteral("[/\\\\]")));
    QString name = title.mid(path + 1);
    return name.remove(QRegularExpression(QStringLiteral("[\\[\\]:*?\"<>|]"))).trimmed();
}

Word printText(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    const TextEntry* entry = textEntryOf(&widget);
    const int pointSize = std::clamp(call.integer(3), 0, 200);
    const std::unique_ptr<QTextDocument> document =
        entry ? entry->printable(pointSize, call.integer(1) == selectionOnly) : listDocument(widget, pointSize);
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(documentName(widget.view->window()->windowTitle()));
    QPrintDialog box(&printer, widget.view->window());
    box.setOption(QAbstractPrintDialog::PrintSelection, false);
    if (runBox(box) != QDialog::Accepted) return 0;
    document->print(&printer);
    return 0;
}

const Registration registration({
    {Fn::owFindTextDialogue, findDialogue},
    {Fn::owReplaceTextDialogue, replaceDialogue},
    {Fn::owPrintTextWidget, printText},
});

} // namespace
} // namespace orba
