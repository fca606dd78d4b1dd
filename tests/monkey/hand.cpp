#include "hand.h"

#include "clock.h"
#include "invariants.h"
#include "targets.h"

#include "menu-c.h"
#include "shell/command_states.h"
#include "shell/command_table.h"
#include "shell/designer.h"
#include "surface/dialogue_keys.h"
#include "surface/selection.h"
#include "surface/state.h"
#include "toolkit/testing/robot.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QDrag>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <array>
#include <ctime>
#include <iterator>

namespace robot = orba::testing;

namespace {

constexpr int END_OF_QUEUE = 2'000'000'003;
constexpr int MOST_CALLBACKS = 20000;    // that can follow from one act
constexpr int MOST_ROUNDS = 50;          // until the loop is idle
constexpr double LONGEST_SECONDS = 10.0; // of processor time for one act
constexpr int UNTIL_NEXT_ACT = 400;      // milliseconds

std::string trouble; // the first one since the last act

void note(const std::string& text) {
    if (trouble.empty()) trouble = text;
}

// ---- Boxes. The act says which answer the first one gets; one more the next.

unsigned nextAnswer = 0;
int boxesOfAct = 0;
constexpr int MOST_BOXES = 40;

template <typename List> auto& pick(const List& list) { return list[nextAnswer++ % std::size(list)]; }

void answerFileBox(QFileDialog& box) {
    static const std::array OPEN = {"", "empty.wdp", "one.wdp", "one.wdf", "two.wdf", "text.txt", "missing.wdp"};
    static const std::array SAVE = {"", "one.wdp", "two", "one.wdf", "two.wdf", "source", "source.f90"};
    const std::string name = box.acceptMode() == QFileDialog::AcceptSave ? pick(SAVE) : pick(OPEN);
    auto* field = box.findChild<QLineEdit*>();
    if (name.empty() || !field) return box.reject();
    box.setDirectory(QDir::currentPath());
    field->setText(QString::fromStdString(name));
    QMetaObject::invokeMethod(&box, "accept");
    if (box.isVisible()) box.reject(); // no such file
}

void answerBox(QDialog& box) {
    if (++boxesOfAct > MOST_BOXES) {
        note("boxes: they never end, the last is \"" + box.windowTitle().toStdString() + "\"");
        return box.reject();
    }
    if (auto* files = qobject_cast<QFileDialog*>(&box)) return answerFileBox(*files);
    if (box.inherits("QAbstractPrintDialog")) return box.reject(); // paper is dear
    if (auto* message = qobject_cast<QMessageBox*>(&box)) {
        const QList<QAbstractButton*> buttons = message->buttons();
        if (!buttons.isEmpty()) return pick(buttons)->click();
    }
    nextAnswer++ % 2 ? box.accept() : box.reject();
}

// Boxes that come up inside a box, or that the toolkit does not announce; and, within an act, menus with a loop of
// their own and drags that wait for the screen's pointer. What is met at several calls in a row is waiting.
bool acting = false;

void helpOut() {
    constexpr int PATIENCE = 3;
    static QPointer<QWidget> last;
    static int met = 0;
    QWidget* waiting = acting ? QApplication::activePopupWidget() : nullptr;
    if (!waiting) waiting = QApplication::activeModalWidget();
    met = waiting == last ? met + 1 : 0;
    last = waiting;
    if (met < PATIENCE) return;
    met = 0;
    if (auto* box = qobject_cast<QDialog*>(waiting)) return answerBox(*box);
    if (!acting) return;
    if (!waiting) return QDrag::cancel();
    waiting->close();
}

// ---- The designer's loop, with the exit refused.

int pumpOnce() {
    robot::settle();
    owPostCallback(END_OF_QUEUE, 0);
    int count = 0, callback = 0;
    for (owAction(&callback); callback != END_OF_QUEUE && count < MOST_CALLBACKS; owAction(&callback)) {
        handleEvent(callback);
        design.quitRequested = 0;
        count++;
    }
    return count;
}

void runLoop() {
    int rounds = 0, count = 0, all = 0;
    do {
        count = pumpOnce();
        all += count;
    } while (count > 0 && ++rounds < MOST_ROUNDS && all < MOST_CALLBACKS);
    if (count > 0) note("loop: it never goes idle");
}

// ---- Mouse and keys, through the window system's own entry, so that focus, grabs and popups go their way.

QWindow* windowOf(const QWidget* part) { return part->window()->windowHandle(); }

void bringUp(QWidget* part) {
    if (QApplication::activePopupWidget() || QApplication::activeModalWidget()) return;
    if (part->window()->isActiveWindow()) return;
    part->window()->activateWindow();
    robot::settle();
}

QPoint onWindow(const QWidget* part, QPoint at) {
    const QWidget* window = part->window();
    const QPoint point = part->mapTo(window, at);
    return {std::clamp(point.x(), 0, window->width() - 1), std::clamp(point.y(), 0, window->height() - 1)};
}

Qt::KeyboardModifiers modifiersOf(const Event& event) { return Qt::KeyboardModifiers(event.modifiers); }

void clickAt(const Event& event, QWidget* part) {
    bringUp(part);
    QWindow* window = windowOf(part);
    if (!window) return;
    const auto button = static_cast<Qt::MouseButton>(event.button);
    const QPoint point = onWindow(part, {event.x, event.y});
    const QPointer<QWindow> alive = window;
    QTest::mouseClick(window, button, modifiersOf(event), point);
    if (event.count == 2 && alive && alive->isVisible()) QTest::mouseDClick(alive, button, modifiersOf(event), point);
}

void dragFrom(const Event& event, QWidget* part, QPoint from) {
    constexpr int STEPS = 4;
    bringUp(part);
    const QPointer<QWindow> window = windowOf(part);
    if (!window) return;
    const auto button = static_cast<Qt::MouseButton>(event.button);
    const QPoint start = onWindow(part, from), way(event.dx, event.dy);
    QTest::mousePress(window, button, modifiersOf(event), start);
    const auto at = [&](int step) {
        const QPoint point = start + way * step / STEPS;
        const QSize size = window->size();
        return QPoint(std::clamp(point.x(), 0, std::max(size.width() - 1, 0)),
                      std::clamp(point.y(), 0, std::max(size.height() - 1, 0)));
    };
    for (int step = 1; step <= STEPS && window; step++) QTest::mouseMove(window, at(step));
    if (window) QTest::mouseRelease(window, button, modifiersOf(event), at(STEPS));
}

void pressKey(const Event& event) {
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* active = popup ? popup : QApplication::activeWindow();
    if (!active || !windowOf(active)) return;
    if (event.verb == Verb::Key) {
        QTest::keyClick(windowOf(active), static_cast<Qt::Key>(event.code), modifiersOf(event));
        return;
    }
    for (const QChar letter : QString::fromStdString(event.text)) {
        active = QApplication::activeWindow();
        if (!active || !windowOf(active)) return;
        QTest::sendKeyEvent(QTest::Click, windowOf(active), Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }
}

void place(const Event& event, QWidget* part) {
    robot::settle();
    for (const Command& command : commandTable()) {
        if (command.tool != event.code) continue;
        QWidget* button = robot::viewOf(commandWidget(command.id, CommandWidget::Button));
        if (!button || !button->isVisible()) return;
        Event press;
        press.x = button->width() / 2;
        press.y = button->height() / 2;
        clickAt(press, button);
    }
    runLoop();
    if (QWidget* still = partOf(event.target)) clickAt(event, still == part ? part : still);
}

void dragGrip(const Event& event) {
    const std::string name = "adoption-handle-" + std::to_string(event.code);
    for (QWidget* window : windowsShown())
        for (QWidget* part : partsShown(window))
            if (part->objectName().toStdString() == name) return dragFrom(event, part, part->rect().center());
}

void chooseCommand(const Event& event) {
    if (QApplication::activeModalWidget() || dialogueOpen()) return; // no mouse comes to the menus
    const int entry = commandWidget(event.code, CommandWidget::MenuEntry);
    QAction* action = robot::actionOf(entry);
    if (action && action->isEnabled() && action->isVisible()) action->trigger();
}

void choose(const Event& event, QWidget* part) {
    auto* combo = qobject_cast<QComboBox*>(part);
    if (!combo || !combo->isEnabled() || combo->count() == 0) return;
    bringUp(combo);
    combo->setFocus(Qt::MouseFocusReason);
    combo->setCurrentIndex(event.code % combo->count());
    Q_EMIT combo->activated(combo->currentIndex());
}

void wheel(const Event& event, QWidget* part) {
    bringUp(part);
    const QPoint at(event.x, event.y);
    QWheelEvent turn(at, part->mapToGlobal(at), {}, {0, event.dy}, Qt::NoButton, modifiersOf(event), Qt::NoScrollPhase,
                     false);
    QApplication::sendEvent(part, &turn);
}

void act(const Event& event) {
    if (event.verb == Verb::Key || event.verb == Verb::Type) return pressKey(event);
    if (event.verb == Verb::Command) return chooseCommand(event);
    if (event.verb == Verb::Grip) return dragGrip(event);
    QWidget* part = partOf(event.target);
    if (!part) return;
    switch (event.verb) {
    case Verb::Click: return clickAt(event, part);
    case Verb::Drag: return dragFrom(event, part, {event.x, event.y});
    case Verb::Place: return place(event, part);
    case Verb::Choose: return choose(event, part);
    case Verb::Move: return part->window()->move(event.x, event.y);
    case Verb::Resize: return part->window()->resize(event.x, event.y);
    case Verb::Close: part->window()->close(); return;
    case Verb::Wheel: return wheel(event, part);
    default: return;
    }
}

double secondsOfProcessor() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

std::string reportsOfToolkit() {
    const std::vector<int> numbers = robot::reports();
    if (numbers.empty()) return "";
    return "report: " + std::to_string(numbers.front()) + " in " + robot::lastReportedRoutine();
}

} // namespace

void openDesigner(const std::string& file) {
    robot::watchProgram(true);
    robot::answerBoxes(answerBox);
    startDesigner(file);
    runLoop();
}

void closeDesigner() {
    if (QApplication::activePopupWidget()) QApplication::activePopupWidget()->close();
    endDesigner();
    robot::watchProgram(false);
    robot::answerBoxes(nullptr);
}

std::string perform(const Event& event) {
    trouble.clear();
    nextAnswer = event.answer;
    boxesOfAct = 0;
    const double start = secondsOfProcessor();
    QTimer helper;
    QObject::connect(&helper, &QTimer::timeout, helpOut);
    helper.start(30);
    acting = true;
    act(event);
    acting = false;
    runLoop();
    passTime(UNTIL_NEXT_ACT);
    runLoop(); // what waited for the hand to rest
    if (event.verb == Verb::Check) {
        note(brokenInvariant());
        runLoop();
    }
    note(reportsOfToolkit());
    const double seconds = secondsOfProcessor() - start;
    if (event.verb != Verb::Check && seconds > LONGEST_SECONDS)
        note("slow: an act took " + std::to_string(seconds) + " seconds");
    return trouble;
}
