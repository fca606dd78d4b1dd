// Help files in a window of our own, so that help looks and searches alike on every desktop.
#include "toolkit/views/help_window.h"

#include "toolkit/views/icons/icons.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QPointer>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>

namespace orba {
namespace {

constexpr const char* readableEndings[] = {".html", ".htm", ".md", ".txt"};

bool isReadable(const QString& path) {
    for (const char* ending : readableEndings)
        if (path.endsWith(QLatin1String(ending), Qt::CaseInsensitive)) return true;
    return false;
}

// The file that the window can show for a name; empty when there is none.
QString readableFile(const QString& name) {
    const QString path = QString(name).replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (isReadable(path)) return QFileInfo(path).isFile() ? path : QString();
    const QFileInfo asked(path);
    for (const char* ending : readableEndings) {
        QString sibling = asked.path() + QLatin1Char('/') + asked.completeBaseName() + QLatin1String(ending);
        if (QFileInfo(sibling).isFile()) return sibling;
    }
    return {};
}

struct Heading {
    QString text;
    int level;    // from 1
    int position; // in the document
};

class HelpWindow : public QMainWindow {
public:
    HelpWindow() : text_(new QTextBrowser), contents_(new QListWidget), search_(new QLineEdit) {
        setWindowIcon(icons::iconByName(QStringLiteral("help")));
        auto* split = new QSplitter;
        split->addWidget(contents_);
        split->addWidget(text_);
        split->setStretchFactor(1, 1);
        split->setSizes({220, 560});
        setCentralWidget(split);
        resize(800, 600);
        makeBar();
        text_->setOpenExternalLinks(true);
        contents_->setFrameShape(QFrame::NoFrame);
        text_->setFrameShape(QFrame::NoFrame);
        text_->document()->setDocumentMargin(14);
        connect(contents_, &QListWidget::currentRowChanged, this, [this](int row) { goTo(row); });
        connect(text_, &QTextBrowser::sourceChanged, this, [this] { listHeadings(); });
    }

    void open(const QString& file, const QString& topic) {
        const QUrl url = QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath());
        if (text_->source() != url) text_->setSource(url);
        setWindowTitle(QFileInfo(file).completeBaseName());
        listHeadings();
        find(topic);
        show();
        raise();
        activateWindow();
    }

private:
    void makeBar() {
        auto* bar = addToolBar(QString());
        bar->setMovable(false);
        bar->addAction(icons::iconByName(QStringLiteral("MSML1021")), tr("Back"), text_, &QTextBrowser::backward);
        bar->addAction(icons::iconByName(QStringLiteral("MSML1022")), tr("Forward"), text_, &QTextBrowser::forward);
        bar->addAction(icons::iconByName(QStringLiteral("MSML1029")), tr("Beginning"), this, [this] { goTo(0); });
        search_->setPlaceholderText(tr("Search"));
        search_->setClearButtonEnabled(true);
        bar->addWidget(search_);
        connect(search_, &QLineEdit::returnPressed, this, [this] { findWord(search_->text()); });
    }

    void listHeadings() {
        headings_.clear();
        for (QTextBlock block = text_->document()->begin(); block.isValid(); block = block.next())
            if (const int level = block.blockFormat().headingLevel(); level > 0)
                headings_.push_back({block.text().trimmed(), level, block.position()});
        const QSignalBlocker quiet(contents_);
        contents_->clear();
        for (const Heading& heading : headings_)
            contents_->addItem(QString(qsizetype{3} * (heading.level - 1), QLatin1Char(' ')) + heading.text);
        contents_->setVisible(!headings_.empty());
    }

    void show(int position) {
        QTextCursor cursor(text_->document());
        cursor.movePosition(QTextCursor::End);
        text_->setTextCursor(cursor); // from the end upwards, so that the place stands at the top of the window
        cursor.setPosition(position);
        text_->setTextCursor(cursor);
    }
    using QMainWindow::show;

    void goTo(int row) {
        if (row >= 0 && row < static_cast<int>(headings_.size()))
            show(headings_[static_cast<size_t>(row)].position);
        else
            text_->moveCursor(QTextCursor::Start);
    }

    int headingRow(const QString& topic, bool whole) const {
        for (size_t i = 0; i < headings_.size(); ++i) {
            const QString& text = headings_[i].text;
            if (whole ? text.compare(topic, Qt::CaseInsensitive) == 0 : text.contains(topic, Qt::CaseInsensitive))
                return static_cast<int>(i);
        }
        return -1;
    }

    void find(const QString& topic) {
        text_->moveCursor(QTextCursor::Start);
        if (topic.trimmed().isEmpty()) return;
        int row = headingRow(topic, true);
        if (row < 0) row = headingRow(topic, false);
        if (row >= 0) {
            const QSignalBlocker quiet(contents_);
            contents_->setCurrentRow(row);
            goTo(row);
        } else
            findWord(topic);
    }

    void findWord(const QString& word) {
        if (word.isEmpty() || text_->find(word)) return;
        text_->moveCursor(QTextCursor::Start); // once more from the beginning
        text_->find(word);
    }

    QTextBrowser* text_;
    QListWidget* contents_;
    QLineEdit* search_;
    std::vector<Heading> headings_;
};

QPointer<HelpWindow>& theWindow() {
    static QPointer<HelpWindow> window;
    return window;
}

} // namespace

bool showHelp(const QString& path, const QString& topic) {
    const QString file = readableFile(path);
    if (file.isEmpty()) {
        const QString native = QString(path).replace(QLatin1Char('\\'), QLatin1Char('/'));
        if (!QFileInfo(native).isFile()) return false;
        return QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(native).absoluteFilePath()));
    }
    QPointer<HelpWindow>& window = theWindow();
    if (!window) window = new HelpWindow;
    window->open(file, topic);
    return true;
}

} // namespace orba
