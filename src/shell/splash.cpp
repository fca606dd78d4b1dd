#include "shell/splash.h"

#include "menu-c.h"
#include "platform/environment.h"
#include "shell/environment.h"
#include "shell/window_control.h"

namespace {

constexpr int PAUSE = 3000; // milliseconds
constexpr int SPLASH_END = 19990;
constexpr int WIDTH = 420;
constexpr int HEIGHT = 220;
constexpr int LAST_KEY = 542; // of the toolkit's key codes

void bindEveryKey(int callback) {
    for (int key = 1; key <= LAST_KEY; key++) owDefineKeyCallback(key, callback);
}

void addLine(int panel, int y, const std::string& text, int pointSize, int bold) {
    const int label =
        owCreateTextEntry(panel, 0, y, WIDTH, pointSize * 2 + 6, text.c_str(), 255, ODISPLAY, owVpos, OTOP, owJustify,
                          OCENTRE, owBorderType, ONOBORDER, owSelectCallback, SPLASH_END, 0);
    owSetFontAttribs(label, owPointSize, pointSize, owBold, bold, 0);
}

} // namespace

void showSplash() {
    if (environmentSet("ORBA_NO_SPLASH")) return;
    const int window = owCreateComplexDialogueBox(MASTER_WINDOW, 0, 0, WIDTH, HEIGHT, ONONE, "", owHpos, OCENTRE,
                                                  owVpos, OMIDDLE, owInitState, OCENTRED, 0);
    const int panel = owCreatePanel(window, 0, 0, WIDTH, HEIGHT, owType, OPROJECTED, owSelectCallback, SPLASH_END, 0);
    owCreateIcon(panel, WIDTH / 2 - 32, 24, 64, 64, "Light", ODLLICON, 0, owVpos, OTOP, owType, OPICTOGRAM, owCallback,
                 SPLASH_END, owSelectCallback, SPLASH_END, 0);
    addLine(panel, 100, environment.mainTitle, 18, 1);
    addLine(panel, 152, "Fortran/C++ GUI Builder", 10, 0);
    owDrawWindow(window, 1);
    bindEveryKey(SPLASH_END);
    owDefineTimerCallback(PAUSE, SPLASH_END);
    int callback = 0;
    while (owAction(&callback) != SPLASH_END && callback != -1) {
    }
    owDefineTimerCallback(PAUSE, 0);
    bindEveryKey(0);
    owEraseWidget(window);
}
