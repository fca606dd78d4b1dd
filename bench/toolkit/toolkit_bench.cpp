// Side by side in one run: a form of 1,000 mixed widgets made, shown and erased by the toolkit, and the equivalent form
// by Qt's own loader; then how many posted events pass owAction in a second. Runs without a display
// (QT_QPA_PLATFORM=offscreen).
#include <menu-c.h>

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <QUiLoader>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr int WIDGETS = 1000;
constexpr int RUNS = 9;
constexpr int EVENTS = 10'000;
constexpr int COLUMNS = 20;

// The same ten kinds in turn on both sides.
struct Kind {
    const char* qtClass;
    const char* property; // with %d for the number of the widget
    void (*create)(int parent, int x, int y, const char* text);
};

constexpr Kind kinds[] = {
    {"QPushButton", "text",
     [](int p, int x, int y, const char* t) { owCreatePushButton(p, x, y, 60, 22, t, owVpos, OTOP, 0); }},
    {"QCheckBox", "text",
     [](int p, int x, int y, const char* t) {
         owCreateToggleButton(p, x, y, 60, 22, t, 0, owVpos, OTOP, owType, O3DCHECKBOX, 0);
     }},
    {"QLineEdit", "text",
     [](int p, int x, int y, const char* t) { owCreateTextEntry(p, x, y, 60, 22, t, 80, OEDIT, owVpos, OTOP, 0); }},
    {"QLabel", "text",
     [](int p, int x, int y, const char* t) { owCreateTextEntry(p, x, y, 60, 22, t, 80, ODISPLAY, owVpos, OTOP, 0); }},
    {"QSlider", "",
     [](int p, int x, int y, const char*) { owCreateSlider(p, x, y, 60, 22, 0, 100, 1, 50, owVpos, OTOP, 0); }},
    {"QProgressBar", "",
     [](int p, int x, int y, const char*) { owCreateProgressBar(p, x, y, 60, 22, owVpos, OTOP, owIntValue, 24, 0); }},
    {"QComboBox", "",
     [](int p, int x, int y, const char*) { owCreateComboBox(p, x, y, 60, 22, ONONE, ODISPLAY, owVpos, OTOP, 0); }},
    {"QListWidget", "",
     [](int p, int x, int y, const char*) { owCreateListBox(p, x, y, 60, 22, ONONE, owVpos, OTOP, 0); }},
    {"QFrame", "",
     [](int p, int x, int y, const char*) { owCreatePanel(p, x, y, 60, 22, owVpos, OTOP, owBorderType, OSINGLE, 0); }},
    {"QDoubleSpinBox", "",
     [](int p, int x, int y, const char*) { owCreateValueEntry(p, x, y, 60, 22, 1.5, 8, 2, OEDIT, owVpos, OTOP, 0); }},
};
constexpr int KINDS = static_cast<int>(std::size(kinds));

int xOf(int i) { return 64 * (i % COLUMNS); }
int yOf(int i) { return 24 * (i / COLUMNS); }

QByteArray uiForm() {
    std::string form =
        "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\"><property name=\"geometry\">"
        "<rect><x>0</x><y>0</y><width>1280</width><height>1200</height></rect></property>";
    for (int i = 0; i < WIDGETS; i++) {
        const Kind& kind = kinds[i % KINDS];
        char text[400];
        std::snprintf(
            text, sizeof text,
            "<widget class=\"%s\" name=\"w%d\"><property name=\"geometry\"><rect><x>%d</x><y>%d</y><width>60</width>"
            "<height>22</height></rect></property>",
            kind.qtClass, i, xOf(i), yOf(i));
        form += text;
        if (kind.property[0]) {
            std::snprintf(text, sizeof text, "<property name=\"%s\"><string>Text %d</string></property>", kind.property,
                          i);
            form += text;
        }
        form += "</widget>";
    }
    return QByteArray::fromStdString(form + "</widget></ui>");
}

double milliseconds(const QElapsedTimer& timer) { return static_cast<double>(timer.nsecsElapsed()) / 1e6; }

double timeLoader(QUiLoader& loader, const QByteArray& form) {
    QElapsedTimer timer;
    timer.start();
    QBuffer buffer;
    buffer.setData(form);
    buffer.open(QIODevice::ReadOnly);
    QWidget* window = loader.load(&buffer);
    window->show();
    delete window;
    return milliseconds(timer);
}

double timeToolkit() {
    QElapsedTimer timer;
    timer.start();
    const int window = owCreateComplexDialogueBox(1, 0, 0, 1280, 1200, OALL, "Form", owVpos, OTOP, 0);
    for (int i = 0; i < WIDGETS; i++) {
        char text[20];
        std::snprintf(text, sizeof text, "Text %d", i);
        kinds[i % KINDS].create(window, xOf(i), yOf(i), text);
    }
    owDrawWindow(window, 1);
    owEraseWidget(window);
    return milliseconds(timer);
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double eventsPerSecond() {
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < EVENTS; i++) owPostCallback(1000 + i, 1);
    for (int i = 0; i < EVENTS; i++) {
        int identifier = 0;
        owAction(&identifier);
        if (identifier != 1000 + i) return 0;
    }
    return EVENTS / (milliseconds(timer) / 1000);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    owInitializeMenu();
    owCreateMasterWindow(0, 0, 200, 100, OALL, "Bench", 0);
    owManage();
    QUiLoader loader;
    const QByteArray form = uiForm();
    std::vector<double> own, qt;
    for (int run = 0; run <= RUNS; run++) { // the first run of each fills caches and does not count
        const double theirs = timeLoader(loader, form);
        const double ours = timeToolkit();
        if (run == 0) continue;
        qt.push_back(theirs);
        own.push_back(ours);
    }
    std::vector<double> rates;
    for (int run = 0; run < RUNS; run++) rates.push_back(eventsPerSecond());
    std::printf("1,000 widgets made and erased: toolkit %.1f ms, Qt loader %.1f ms, ratio %.2f (aim at most 1.3)\n",
                median(own), median(qt), median(own) / median(qt));
    std::printf("events through owAction: %.0f a second (aim above 200,000)\n", median(rates));
    owCloseMenu();
    return 0;
}
