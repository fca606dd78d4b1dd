// Start and end of the toolkit.
#include "toolkit/frame/session.h"

#include "toolkit/frame/colours.h"
#include "toolkit/frame/designing.h"
#include "toolkit/frame/events.h"
#include "toolkit/frame/keys.h"
#include "toolkit/frame/registry.h"
#include "toolkit/frame/routines.h"

#include <QApplication>
#include <QMessageBox>

#include <cstdio>
#include <cstdlib>

namespace orba {
namespace {

QApplication* ownApplication = nullptr; // null when the program brought its own
std::vector<void (*)()>& closers() {
    static std::vector<void (*)()> list;
    return list;
}

// Programs place their own windows, which only X11 allows.
void preferX11() {
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return;
    if (qEnvironmentVariableIsSet("DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "xcb");
    } else if (!qEnvironmentVariableIsSet("WAYLAND_DISPLAY")) {
        std::fprintf(stderr, "There is no display to open windows on: set DISPLAY, or QT_QPA_PLATFORM=offscreen.\n");
        std::exit(1);
    }
}

// The call that does it is under way.
void resetSession() {
    const ProgramDoing program = session.program;
    session = Session{};
    session.program = program;
}

Word initializeMenu(const Arguments&) {
    if (session.state != 0) return 0;
    startQt();
    resetSession();
    resetRegistry();
    loadColours();
    installInputFilter();
    session.state = 1;
    return 0;
}

void eraseEverything() {
    session.activeWindow = 0;
    if (Widget* master = widgetOf(1)) eraseWidget(*master);
    forEachWidget([](Widget& widget) {
        if (!widget.parent) session.doomed.push_back(widget.handle);
    });
    for (int handle : std::exchange(session.doomed, {})) {
        if (Widget* widget = widgetOf(handle)) eraseWidget(*widget);
    }
}

Word closeMenu(const Arguments&) {
    if (session.state == 0) return 0;
    closeTimers();
    eraseEverything();
    forgetDesigning();
    removeInputFilter();
    for (auto* closer : closers()) closer();
    resetSession();
    delete ownApplication;
    ownApplication = nullptr;
    return 0;
}

Word nothing(const Arguments&) { return 0; }

const Registration registration({
    {Fn::owInitializeMenu, initializeMenu},
    {Fn::owCloseMenu, closeMenu},
    {Fn::oOpenOrba, nothing},
    {Fn::oCloseOrba, nothing},
    {Fn::oGuiwin, nothing},
    {Fn::oOglwin, nothing},
    {Fn::oCloseDevice, nothing},
    {Fn::oEnqConfigStatus, nothing},
});

} // namespace

int sessionState() { return session.state; }
void setSessionState(int state) { session.state = state; }

void onClose(void (*callback)()) { closers().push_back(callback); }

void startQt() {
    if (QCoreApplication::instance()) return;
    preferX11();
    static int count = 1;
    static char name[] = "orbawidg";
    static char* arguments[] = {name, nullptr};
    ownApplication = new QApplication(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
}

void abortSession() {
    startQt();
    std::fprintf(stderr, "ACTION called without a master window defined\n");
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Program Abort"),
                    QStringLiteral("ACTION called without a master window defined"), QMessageBox::Ok);
    runBox(box);
    closeMenu({Fn::owCloseMenu, nullptr, 0, nullptr, 0});
    std::exit(1);
}

} // namespace orba
