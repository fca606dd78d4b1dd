// A window on a running program for end-to-end tests: loaded ahead of the program (LD_PRELOAD), it answers on a local
// socket what the program shows and where, so that a test can aim a real mouse at it. It changes nothing in the
// program.
//
// The socket is $ORBA_PROBE_DIR/<process id>. Each line sent to it is answered by one line for each thing on the
// screen, fields parted by tabs, and an empty line at the end:
//   kind  x  y  width  height  state  text  tooltip  window
// x and y are screen pixels of the top left corner; state is a set of letters: e enabled, c checked, f focus, a active
// window. Tabs, line ends and backslashes in texts are written \t, \n and \\.
//
// With $ORBA_PROBE_TEXTS the program instead writes every text that it holds, shown or not, into that file once its
// windows stand, and ends. One line a text: what it is (text, title, tip, pane, entry, cell, head, tab), a tab, the
// text. Marks of mnemonics are left out.
//
// With $ORBA_PROBE_PICTURES it writes a picture of each of its windows into that folder instead, named by the window's
// title, and ends. No widget has the input in them.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocalServer>
#include <QLocalSocket>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTabBar>
#include <QTextDocument>
#include <QTextEdit>
#include <QTimer>

#include <cstdlib>
#include <utility>

namespace {

QByteArray escaped(const QString& text) {
    QByteArray bytes = text.toUtf8();
    bytes.replace('\\', "\\\\");
    bytes.replace('\t', "\\t");
    bytes.replace('\n', "\\n");
    return bytes;
}

struct Thing {
    QString kind;
    QRect place; // on the screen
    QString state;
    QString text;
    QString tooltip;
    QString window; // title of the window it stands in
};

void writeThing(QByteArray& out, const Thing& thing) {
    out += thing.kind.toUtf8() + '\t' + QByteArray::number(thing.place.x()) + '\t' +
           QByteArray::number(thing.place.y()) + '\t' + QByteArray::number(thing.place.width()) + '\t' +
           QByteArray::number(thing.place.height()) + '\t' + thing.state.toUtf8() + '\t' + escaped(thing.text) + '\t' +
           escaped(thing.tooltip) + '\t' + escaped(thing.window) + '\n';
}

QString shownText(const QWidget* widget) {
    if (auto* button = qobject_cast<const QAbstractButton*>(widget)) return button->text();
    if (auto* label = qobject_cast<const QLabel*>(widget)) return label->text();
    if (auto* line = qobject_cast<const QLineEdit*>(widget)) return line->text();
    if (auto* text = qobject_cast<const QTextEdit*>(widget)) return text->toPlainText();
    if (auto* plain = qobject_cast<const QPlainTextEdit*>(widget)) return plain->toPlainText();
    if (auto* combo = qobject_cast<const QComboBox*>(widget)) return combo->currentText();
    if (auto* box = qobject_cast<const QGroupBox*>(widget)) return box->title();
    if (auto* menu = qobject_cast<const QMenu*>(widget)) return menu->title();
    if (auto* bar = qobject_cast<const QProgressBar*>(widget)) return QString::number(bar->value());
    if (auto* slider = qobject_cast<const QAbstractSlider*>(widget)) return QString::number(slider->value());
    if (!widget->accessibleDescription().isEmpty())
        return widget->accessibleDescription(); // painted, as status bars are
    return widget->windowTitle();
}

QString stateOf(const QWidget* widget) {
    QString state;
    if (widget->isEnabled()) state += 'e';
    if (auto* button = qobject_cast<const QAbstractButton*>(widget); button && button->isChecked()) state += 'c';
    if (widget->hasFocus()) state += 'f';
    if (widget->isActiveWindow()) state += 'a';
    return state;
}

// The title of the nearest window around the widget; a child window inside the master's client area counts.
QString windowOf(const QWidget* widget) {
    for (const QWidget* at = widget; at; at = at->parentWidget()) {
        if (qobject_cast<const QMdiSubWindow*>(at) || at->isWindow()) return at->windowTitle();
    }
    return {};
}

void writeActions(QByteArray& out, const QWidget* bar, const QList<QAction*>& actions,
                  const std::function<QRect(QAction*)>& geometry) {
    for (QAction* action : actions) {
        if (action->isSeparator() || !action->isVisible()) continue;
        const QRect place = geometry(action);
        if (!place.isValid()) continue;
        QString state;
        if (action->isEnabled()) state += 'e';
        if (action->isChecked()) state += 'c';
        writeThing(out, {"Action",
                         {bar->mapToGlobal(place.topLeft()), place.size()},
                         state,
                         action->text(),
                         action->toolTip(),
                         windowOf(bar)});
    }
}

void writeRows(QByteArray& out, const QAbstractItemView* view, const QModelIndex& parent) {
    const QAbstractItemModel* model = view->model();
    const QRect shown = view->viewport()->rect();
    for (int row = 0; row < model->rowCount(parent); ++row) {
        for (int column = 0; column < model->columnCount(parent); ++column) {
            const QModelIndex index = model->index(row, column, parent);
            const QRect place = view->visualRect(index) & shown;
            QString state = index.flags() & Qt::ItemIsEnabled ? "e" : "";
            if (view->selectionModel() && view->selectionModel()->isSelected(index)) state += 'c';
            if (!place.isEmpty())
                writeThing(out, {"Cell",
                                 {view->viewport()->mapToGlobal(place.topLeft()), place.size()},
                                 state,
                                 index.data().toString(),
                                 index.data(Qt::ToolTipRole).toString(),
                                 windowOf(view)});
        }
        writeRows(out, view, model->index(row, 0, parent));
    }
}

void writeTabs(QByteArray& out, const QTabBar* bar) {
    for (int tab = 0; tab < bar->count(); ++tab) {
        const QRect place = bar->tabRect(tab);
        writeThing(out, {"Tab",
                         {bar->mapToGlobal(place.topLeft()), place.size()},
                         bar->currentIndex() == tab ? "ec" : "e",
                         bar->tabText(tab),
                         bar->tabToolTip(tab),
                         windowOf(bar)});
    }
}

QByteArray screen() {
    QByteArray out;
    for (QWidget* widget : QApplication::allWidgets()) {
        if (!widget->isVisible()) continue;
        writeThing(out, {widget->metaObject()->className(),
                         {widget->mapToGlobal(QPoint(0, 0)), widget->size()},
                         stateOf(widget),
                         shownText(widget),
                         widget->toolTip(),
                         windowOf(widget)});
        if (auto* menu = qobject_cast<QMenu*>(widget))
            writeActions(out, menu, menu->actions(), [menu](QAction* action) { return menu->actionGeometry(action); });
        if (auto* bar = qobject_cast<QMenuBar*>(widget))
            writeActions(out, bar, bar->actions(), [bar](QAction* action) { return bar->actionGeometry(action); });
        if (auto* view = qobject_cast<QAbstractItemView*>(widget);
            view && view->model() && !qobject_cast<QHeaderView*>(widget))
            writeRows(out, view, view->rootIndex());
        if (auto* tabs = qobject_cast<QTabBar*>(widget)) writeTabs(out, tabs);
    }
    return out + '\n';
}

// --- every text

void writeText(QByteArray& out, const char* what, const QString& text) {
    if (!text.isEmpty()) out += what + ('\t' + escaped(text)) + '\n';
}

// "&" marks the next letter, a pair of them is one.
QString unmarked(const QString& text) {
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&' && i + 1 < text.size()) ++i;
        plain += text[i];
    }
    return plain;
}

// As the tooltip draws it: what looks like rich text is rich text.
QString drawnTip(const QString& tip) {
    if (!Qt::mightBeRichText(tip)) return tip;
    QTextDocument document;
    document.setHtml(tip);
    return document.toPlainText();
}

void writeCells(QByteArray& out, const QAbstractItemModel& model, const QModelIndex& parent) {
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column)
            writeText(out, "cell", model.index(row, column, parent).data().toString());
        writeCells(out, model, model.index(row, 0, parent));
    }
}

void writeHeads(QByteArray& out, const QAbstractItemModel& model) {
    for (int column = 0; column < model.columnCount(); ++column)
        writeText(out, "head", model.headerData(column, Qt::Horizontal).toString());
    for (int row = 0; row < model.rowCount(); ++row)
        writeText(out, "head", model.headerData(row, Qt::Vertical).toString());
}

void writeWidgetTexts(QByteArray& out, QWidget* widget) {
    const QString text = shownText(widget);
    writeText(out, "text", qobject_cast<QAbstractButton*>(widget) ? unmarked(text) : text);
    writeText(out, "title", widget->windowTitle());
    writeText(out, "title", widget->accessibleName());
    writeText(out, "pane", widget->accessibleDescription());
    writeText(out, "tip", drawnTip(widget->toolTip()));
    for (const QAction* action : widget->actions()) {
        writeText(out, "entry", unmarked(action->text()));
        writeText(out, "tip", drawnTip(action->toolTip()));
    }
    if (auto* combo = qobject_cast<QComboBox*>(widget)) writeCells(out, *combo->model(), {});
    if (auto* view = qobject_cast<QAbstractItemView*>(widget); view && view->model()) {
        if (!qobject_cast<QHeaderView*>(widget)) writeCells(out, *view->model(), {});
        if (!qobject_cast<QHeaderView*>(widget)) writeHeads(out, *view->model());
    }
    if (auto* tabs = qobject_cast<QTabBar*>(widget))
        for (int tab = 0; tab < tabs->count(); ++tab) writeText(out, "tab", unmarked(tabs->tabText(tab)));
}

QByteArray everyText() {
    QByteArray out;
    for (QWidget* widget : QApplication::allWidgets()) writeWidgetTexts(out, widget);
    return out;
}

void writeTexts(const QString& path) {
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) file.write(everyText());
}

void writePictures(const QString& folder) {
    if (QWidget* input = QApplication::focusWidget()) input->clearFocus();
    for (QWidget* window : QApplication::topLevelWidgets())
        if (qobject_cast<QMainWindow*>(window) && window->isVisible())
            window->grab().save(folder + '/' + window->windowTitle() + ".png");
}

// Calls `writeAll` and ends. The program is ready when it has windows and nothing changes any more.
void writeWhenReady(const QString& path, void (*writeAll)(const QString& path)) {
    auto* timer = new QTimer(QCoreApplication::instance());
    QObject::connect(timer, &QTimer::timeout, [path, writeAll, last = QByteArray()]() mutable {
        const QByteArray texts = everyText();
        if (texts.isEmpty() || texts != std::exchange(last, texts)) return;
        writeAll(path);
        std::_Exit(0);
    });
    timer->start(200);
}

void answer(QLocalSocket* socket) {
    while (socket->canReadLine()) {
        socket->readLine();
        socket->write(screen());
    }
}

void listen() {
    if (!qobject_cast<QApplication*>(QCoreApplication::instance())) return;
    const QString texts = qEnvironmentVariable("ORBA_PROBE_TEXTS"),
                  pictures = qEnvironmentVariable("ORBA_PROBE_PICTURES");
    if (!texts.isEmpty()) writeWhenReady(texts, writeTexts);
    if (!pictures.isEmpty()) writeWhenReady(pictures, writePictures);
    const QString folder = qEnvironmentVariable("ORBA_PROBE_DIR");
    if (folder.isEmpty()) return;
    auto* server = new QLocalServer(QCoreApplication::instance());
    const QString path = folder + '/' + QString::number(QCoreApplication::applicationPid());
    QLocalServer::removeServer(path);
    server->listen(path);
    QObject::connect(server, &QLocalServer::newConnection, [server] {
        while (QLocalSocket* socket = server->nextPendingConnection()) {
            QObject::connect(socket, &QLocalSocket::readyRead, [socket] { answer(socket); });
            QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(listen)
