#include "toolkit/widgets/screen.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QGuiApplication>
#include <QScreen>

void widgets::screenSize(int& width, int& height) {
    const QScreen* screen = qGuiApp ? QGuiApplication::primaryScreen() : nullptr;
    width = screen ? screen->geometry().width() : 0;
    height = screen ? screen->geometry().height() : 0;
}

bool widgets::shiftHeld() { return qGuiApp && (QGuiApplication::queryKeyboardModifiers() & Qt::ShiftModifier); }

void widgets::updateWindows() {
    if (qApp) QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}
