#include "toolkit/testing/robot.h"

#include "toolkit/families/menus.h"
#include "toolkit/frame/attributes.h"
#include "toolkit/frame/events.h"
#include "toolkit/frame/registry.h"
#include "toolkit/frame/report.h"
#include "toolkit/frame/windows.h"

#include <QAction>
#include <QApplication>
#include <QColorDialog>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <deque>

namespace orba::testing {
namespace {

constexpr int SENTINEL = 2'000'000'001; // event that closes a reading of the queue

std::vector<int> reportedNumbers;
Qt::KeyboardModifiers heldModifiers; // with all the mouse does
std::string reportedRoutine;

void noteReport(int number, const char* routine, int) {
    reportedNumbers.push_back(number);
    reportedRoutine = routine;
}

// One application for all tests of a program; the toolkit uses it where there is one.
void startApplication() {
    if (QCoreApplication::instance()) return;
    static int count = 1;
    static char name[] = "tests";
    static char* arguments[] = {name, nullptr};
    new QApplication(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
}

// ---------------------------------------------------------------------------------------------------------- boxes

enum class BoxKind { message, browser, colour, other };

struct ScriptLine {
    BoxKind kind;
    QString title;
    QString text;   // of a message
    int answer = 0; // of a message; 1 accepts another box
    QString path;   // of a browser
    QColor colour;
};

std::deque<ScriptLine>& script() {
    static std::deque<ScriptLine> lines;
    return lines;
}

QMessageBox::StandardButton buttonOf(int answer) {
    switch (answer) {
    case OANSWERYES: return QMessageBox::Yes;
    case OANSWERNO: return QMessageBox::No;
    case OANSWERCANCEL: return QMessageBox::Cancel;
    default: return QMessageBox::Ok;
    }
}

QString plain(const QString& text) { return text.trimmed(); }

void answerMessage(QMessageBox& box, const ScriptLine& line) {
    EXPECT_EQ(plain(box.text()).toStdString(), plain(barsToLines(line.text)).toStdString());
    QAbstractButton* button = box.button(buttonOf(line.answer));
    if (!button) {
        ADD_FAILURE() << "the box \"" << box.windowTitle().toStdString() << "\" has no button for answer "
                      << line.answer;
        box.reject();
        return;
    }
    button->click();
}

void answerBrowser(QFileDialog& box, const ScriptLine& line) {
    if (line.path.isEmpty()) {
        box.reject();
        return;
    }
    box.selectFile(line.path);
    if (auto* name = box.findChild<QLineEdit*>()) name->setText(line.path);
    QMetaObject::invokeMethod(&box, "accept");
}

void answer(QDialog& box) {
    if (script().empty()) {
        ADD_FAILURE() << "a box that nobody expects: \"" << box.windowTitle().toStdString() << "\"";
        box.reject();
        return;
    }
    const ScriptLine line = script().front();
    script().pop_front();
    if (line.kind != BoxKind::colour) {
        EXPECT_EQ(plain(box.windowTitle()).toStdString(), plain(line.title).toStdString());
    }
    auto* message = qobject_cast<QMessageBox*>(&box);
    auto* browser = qobject_cast<QFileDialog*>(&box);
    auto* colour = qobject_cast<QColorDialog*>(&box);
    if (line.kind == BoxKind::message && message) {
        answerMessage(*message, line);
    } else if (line.kind == BoxKind::browser && browser) {
        answerBrowser(*browser, line);
    } else if (line.kind == BoxKind::colour && colour) {
        if (line.colour.isValid()) colour->setCurrentColor(line.colour);
        line.colour.isValid() ? colour->accept() : colour->reject();
    } else if (line.kind == BoxKind::other) {
        line.answer == 1 ? box.accept() : box.reject();
    } else {
        ADD_FAILURE() << "another kind of box than expected: \"" << box.windowTitle().toStdString() << "\"";
        box.reject();
    }
}

void (*freeAnswer)(QDialog& box) = nullptr;

void watchBox(QDialog& box) {
    QTimer::singleShot(0, &box, [&box] { freeAnswer ? freeAnswer(box) : answer(box); });
}

// ------------------------------------------------------------------------------------------------------- input

QPoint pointIn(const QWidget& view, QPoint at) { return at == MIDDLE ? view.rect().center() : at; }

// The Qt widget below a point of a view gets the mouse, as on the screen.
std::pair<QWidget*, QPoint> targetAt(int handle, QPoint at) {
    QWidget* view = viewOf(handle);
    if (!view) {
        ADD_FAILURE() << "no view for handle " << handle;
        return {nullptr, {}};
    }
    const QPoint point = pointIn(*view, at);
    QWidget* child = view->childAt(point);
    if (!child) return {view, point};
    return {child, child->mapFrom(view, point)};
}

void dragOn(QWidget& view, QPoint from, QPoint to) {
    constexpr int STEPS = 6;
    const QPoint start = view.mapToGlobal(from);
    const QPoint distance = view.mapToGlobal(to) - start;
    QPointer<QWidget> target = &view;
    QTest::mousePress(target, Qt::LeftButton, heldModifiers, from);
    for (int i = 1; i <= STEPS && target; i++) {
        const QPoint global = start + distance * i / STEPS;
        QMouseEvent move(QEvent::MouseMove, target->mapFromGlobal(global), global, Qt::NoButton, Qt::LeftButton,
                         heldModifiers);
        QApplication::sendEvent(target, &move);
    }
    if (target) QTest::mouseRelease(target, Qt::LeftButton, heldModifiers, target->mapFromGlobal(start + distance));
}

QWidget* gripView(int grip) {
    for (QWidget* widget : QApplication::allWidgets()) {
        if (widget->objectName() == QStringLiteral("adoption-handle-%1").arg(grip)) return widget;
    }
    return nullptr;
}

QWidget* keyTarget(int handle) {
    if (handle != 0) focus(handle);
    QWidget* view = viewOf(handle);
    QWidget* focused = QApplication::focusWidget();
    if (!focused && view) focused = view->focusWidget() ? view->focusWidget() : view;
    return focused;
}

} // namespace

Toolkit::Toolkit(Master kind) {
    startApplication();
    reportedNumbers.clear();
    script().clear();
    setReportSink(noteReport);
    setBoxWatcher(watchBox);
    owInitializeMenu();
    if (kind == Master::none) return;
    if (kind == Master::mdi) {
        master = owCreateMDIMasterWindow(100, 100, 400, 300, OALL, "Test", owVpos, OTOP, 0);
    } else {
        master = owCreateMasterWindow(100, 100, 400, 300, OALL, "Test", owVpos, OTOP, 0);
        panel = owCreatePanel(master, 0, 0, 400, 300, owHpos, OCENTRE, owVpos, OMIDDLE, owExpand, OON, 0);
    }
    owManage();
    settle();
    events();
}

Toolkit::~Toolkit() {
    EXPECT_TRUE(scriptIsEmpty()) << "a box that was expected did not come";
    owCloseMenu();
    setReportSink(nullptr);
    setBoxWatcher(nullptr);
}

void watchProgram(bool on) {
    if (on) {
        startApplication();
        reportedNumbers.clear();
        script().clear();
    }
    setReportSink(on ? noteReport : nullptr);
    setBoxWatcher(on ? watchBox : nullptr);
}

QWidget* viewOf(int handle) {
    const Widget* widget = widgetOf(handle);
    return widget ? widget->view.data() : nullptr;
}

QAction* actionOf(int handle) {
    const Widget* entry = widgetOf(handle);
    return entry ? entryAction(*entry) : nullptr;
}

QWidget* frameOf(int handle) {
    const Widget* widget = widgetOf(handle);
    return widget ? outerOf(*widget) : nullptr;
}

QRect rectOf(int handle) {
    const QWidget* view = viewOf(handle);
    return view ? view->geometry() : QRect();
}

bool isShown(int handle) {
    const QWidget* view = viewOf(handle);
    return view && view->isVisible();
}

void press(int handle, QPoint at, Qt::MouseButton button) {
    const auto [target, point] = targetAt(handle, at);
    if (target) QTest::mousePress(target, button, heldModifiers, point);
}

void release(int handle, QPoint at, Qt::MouseButton button) {
    const auto [target, point] = targetAt(handle, at);
    if (target) QTest::mouseRelease(target, button, heldModifiers, point);
}

void click(int handle, QPoint at, Qt::MouseButton button) {
    const auto [target, point] = targetAt(handle, at);
    if (target) QTest::mouseClick(target, button, heldModifiers, point);
}

void moveHeld(int handle, QPoint to) {
    QWidget* view = viewOf(handle);
    if (!view) return;
    QMouseEvent move(QEvent::MouseMove, to, view->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, heldModifiers);
    QApplication::sendEvent(view, &move);
}

void hold(Qt::KeyboardModifiers modifiers) { heldModifiers = modifiers; }

void doubleClick(int handle, QPoint at) {
    const auto [target, point] = targetAt(handle, at);
    if (!target) return;
    const QPointer<QWidget> alive = target;
    QTest::mouseClick(target, Qt::LeftButton, heldModifiers, point);
    if (alive) QTest::mouseDClick(target, Qt::LeftButton, heldModifiers, point);
}

void drag(int handle, QPoint from, QPoint to) {
    const auto [target, point] = targetAt(handle, from);
    if (!target) return;
    const QPoint end = target->mapFrom(viewOf(handle), to);
    dragOn(*target, point, end);
}

void dragGrip(int grip, QPoint distance) {
    QWidget* view = gripView(grip);
    if (!view) {
        ADD_FAILURE() << "no handle " << grip;
        return;
    }
    const QPoint middle = view->rect().center();
    dragOn(*view, middle, middle + distance);
}

QRect rubberBand() {
    for (const QWidget* widget : QApplication::allWidgets()) {
        if (widget->objectName() == QLatin1String("rubber-band") && widget->isVisible())
            return {widget->mapToGlobal(QPoint(0, 0)), widget->size()};
    }
    return {};
}

QString outlineText() {
    for (QWidget* widget : QApplication::allWidgets()) {
        if (widget->objectName() == QLatin1String("outline-text") && widget->isVisible())
            return static_cast<QLabel*>(widget)->text();
    }
    return {};
}

int gripCount() {
    int count = 0;
    for (int grip = 0; grip < 8; grip++) {
        const QWidget* view = gripView(grip);
        if (view && view->isVisible()) count++;
    }
    return count;
}

void focus(int handle) {
    QWidget* view = viewOf(handle);
    if (!view) {
        ADD_FAILURE() << "no view for handle " << handle;
        return;
    }
    view->window()->activateWindow();
    QList<QWidget*> parts = view->findChildren<QWidget*>();
    parts.append(view);
    for (QWidget* one : parts) {
        if (one->focusPolicy() != Qt::NoFocus && !one->focusProxy()) {
            one->setFocus(Qt::MouseFocusReason);
            break;
        }
    }
    settle();
}

void type(int handle, const char* text) {
    if (QWidget* target = keyTarget(handle)) QTest::keyClicks(target, QString::fromUtf8(text));
}

void key(int handle, Qt::Key code, Qt::KeyboardModifiers modifiers) {
    if (QWidget* target = keyTarget(handle)) QTest::keyClick(target, code, modifiers);
}

void choose(int entry) {
    QAction* action = actionOf(entry);
    if (!action) {
        ADD_FAILURE() << "no menu entry of handle " << entry;
        return;
    }
    if (action->isEnabled() && action->isVisible()) action->trigger();
}

void moveByUser(int window, QPoint to) {
    frameOf(window)->move(to);
    settle();
}

void resizeByUser(int window, QSize size) {
    frameOf(window)->resize(size);
    settle();
}

void showWhole(int window) {
    auto* view = static_cast<QMainWindow*>(viewOf(window));
    view->resize(view->size() + windowArea(*widgetOf(window))->size() - view->centralWidget()->size());
    settle();
}

void closeByUser(int window) {
    frameOf(window)->close();
    settle();
}

void settle(int milliseconds) {
    if (milliseconds > 0) QTest::qWait(milliseconds);
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QImage picture(int handle) {
    QWidget* view = viewOf(handle);
    return view ? view->grab().toImage() : QImage();
}

QColor pixel(int handle, QPoint at) {
    const QImage image = picture(handle);
    const double ratio = image.devicePixelRatio();
    return image.pixelColor(static_cast<int>(at.x() * ratio), static_cast<int>(at.y() * ratio));
}

QString shownText(int handle) {
    Widget* widget = widgetOf(handle);
    return widget ? textOf(*widget) : QString();
}

QString toolTip(int handle) {
    if (const QAction* action = actionOf(handle)) return action->toolTip();
    const QWidget* view = viewOf(handle);
    return view ? view->toolTip() : QString();
}

std::vector<OACTION> events() {
    settle();
    std::vector<OACTION> all;
    if (!widgetOf(1)) return all;
    owPostCallback(SENTINEL, 0);
    for (;;) {
        int identifier = 0;
        owAction(&identifier);
        if (identifier == SENTINEL) return all;
        OACTION action{};
        owEnqActionState(&action);
        all.push_back(action);
    }
}

std::vector<int> identifiers() {
    std::vector<int> all;
    for (const OACTION& action : events()) all.push_back(action.callback);
    return all;
}

std::vector<int> reports() { return std::exchange(reportedNumbers, {}); }
std::string lastReportedRoutine() { return reportedRoutine; }

void expectBox(const char* title, const char* text, int answer) {
    script().push_back({BoxKind::message, QString::fromUtf8(title), QString::fromUtf8(text), answer, {}, {}});
}

void expectBrowser(const char* title, const std::string& path) {
    script().push_back({BoxKind::browser, QString::fromUtf8(title), {}, 0, QString::fromStdString(path), {}});
}

void expectColourBox(const QColor& choice) { script().push_back({BoxKind::colour, {}, {}, 0, {}, choice}); }

void expectDialogue(const char* title, bool accept) {
    script().push_back({BoxKind::other, QString::fromUtf8(title), {}, accept ? 1 : 0, {}, {}});
}

bool scriptIsEmpty() { return script().empty(); }

void answerBoxes(void (*answerer)(QDialog& box)) { freeAnswer = answerer; }

} // namespace orba::testing
