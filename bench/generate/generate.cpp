// wdgen --stdout and uic on the same forms: 10,000 and 100,000 widgets, time and memory of each process, the median of
// several runs in turn (of the large form one: uic takes minutes for it). The aims: at most 0.35 of uic's time and 0.5
// of its memory, reading included, and 100,000 widgets in at most 11 times what 10,000 take.

#include "project/files.h"
#include "project/tree.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr int WIDGETS_ON_A_FORM = 200;
constexpr int WIDGETS_ON_A_PANEL = 20;

// One kind of widget in both tools, with the Qt property that its text goes to; empty for none.
struct Kind {
    WidgetType type;
    const char* qtClass;
    const char* textProperty;
};

constexpr Kind KINDS[] = {
    {TYPE_BUTTON, "QPushButton", "text"},     {TYPE_TOGGLE, "QCheckBox", "text"},
    {TYPE_TEXT_ENTRY, "QLineEdit", "text"},   {TYPE_TEXT_LABEL, "QLabel", "text"},
    {TYPE_VALUE_ENTRY, "QDoubleSpinBox", ""}, {TYPE_LIST_BOX, "QListWidget", ""},
    {TYPE_COMBO_BOX, "QComboBox", ""},        {TYPE_SLIDER, "QSlider", ""},
    {TYPE_PROGRESS_BAR, "QProgressBar", ""},  {TYPE_ICON, "QToolButton", "text"},
};

// Writes a form file for uic as the records are made.
struct UiFile {
    std::ofstream out;

    explicit UiFile(const fs::path& path) : out(path) {
        out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ui version=\"4.0\">\n <class>Forms</class>\n"
               " <widget class=\"QWidget\" name=\"Forms\">\n";
    }
    ~UiFile() { out << " </widget>\n <resources/>\n <connections/>\n</ui>\n"; }

    void begin(const char* qtClass, const WidgetNode& node, const char* textProperty) {
        out << "<widget class=\"" << qtClass << "\" name=\"" << node.name
            << "\">\n<property name=\"geometry\"><rect><x>" << node.xpos << "</x><y>" << node.ypos << "</y><width>"
            << node.width << "</width><height>" << node.height << "</height></rect></property>\n";
        if (*textProperty != '\0') string(textProperty, node.text);
        if (!node.bubbleHelp.empty()) string("toolTip", node.bubbleHelp);
        if (node.bold != 0) {
            out << "<property name=\"font\"><font><family>" << node.fontFace << "</family><pointsize>" << node.pointSize
                << "</pointsize><bold>true</bold></font></property>\n";
        }
    }
    void end() { out << "</widget>\n"; }
    void string(const char* property, const std::string& text) {
        out << "<property name=\"" << property << "\"><string>" << text << "</string></property>\n";
    }
    void limits(const WidgetNode& node, const char* element) {
        for (const auto& [property, value] :
             {std::pair{"minimum", node.minValue}, {"maximum", node.maxValue}, {"value", node.value}}) {
            out << "<property name=\"" << property << "\"><" << element << '>' << value << "</" << element
                << "></property>\n";
        }
    }
    void item(const std::string& text) {
        out << "<item>\n";
        string("text", text);
        out << "</item>\n";
    }
};

void addEntries(WidgetNode& node, UiFile& ui) {
    for (const char* text : {"first", "second", "third"}) {
        node.listEntries.push_back({text, ""});
        ui.item(text);
    }
}

void addWidget(WidgetNode& parent, int number, UiFile& ui) {
    const Kind& kind = KINDS[static_cast<std::size_t>(number) % std::size(KINDS)];
    OwnedList made = createFromDefaults(kind.type, number % 20 * 10, number / 20 % 20 * 10);
    WidgetNode* node = made.get();
    node->name = "Widget" + std::to_string(number);
    node->text = *kind.textProperty != '\0' ? "Text of widget " + std::to_string(number) : "";
    if (number % 3 == 0) node->bubbleHelp = "What this widget is for";
    if (number % 5 == 0) node->bold = 1;
    node->value = 7;
    node->maxValue = 90;
    linkChild(parent, std::move(made));
    ui.begin(kind.qtClass, *node, kind.textProperty);
    if (node->listEntries.empty() && (kind.type == TYPE_LIST_BOX || kind.type == TYPE_COMBO_BOX)) addEntries(*node, ui);
    if (kind.type == TYPE_VALUE_ENTRY) ui.limits(*node, "double");
    if (kind.type == TYPE_SLIDER || kind.type == TYPE_PROGRESS_BAR) ui.limits(*node, "number");
    ui.end();
}

// The project and the form file, NAME.wdp and NAME.ui.
void makeFiles(const fs::path& folder, const std::string& name, int widgets) {
    resetProject();
    project.projectLanguage = 90;
    UiFile ui(folder / (name + ".ui"));
    WidgetNode* form = nullptr;
    WidgetNode* panel = nullptr;
    for (int number = 0; number < widgets; ++number) {
        if (number % WIDGETS_ON_A_FORM == 0) {
            if (form) ui.end();
            form = newForm();
            ui.begin("QWidget", *form, "windowTitle");
        }
        if (number % WIDGETS_ON_A_PANEL == 0) {
            if (number % WIDGETS_ON_A_FORM != 0) ui.end();
            panel = linkChild(*form->child, createFromDefaults(TYPE_PANEL, 10, number % WIDGETS_ON_A_FORM));
            panel->name = "Panel" + std::to_string(number);
            panel->text = "Panel";
            ui.begin("QGroupBox", *panel, "title");
        }
        addWidget(*panel, number, ui);
        if (number % WIDGETS_ON_A_FORM == WIDGETS_ON_A_FORM - 1) ui.end();
    }
    if (form) ui.end();
    if (!saveProject(folder.string(), name + ".wdp", true)) std::exit(1);
}

// In a process of its own: what this one holds would count for the processes that it measures.
void makeFilesAside(const fs::path& folder, const std::string& name, int widgets) {
    const pid_t child = fork();
    if (child == 0) {
        makeFiles(folder, name, widgets);
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (status != 0) std::exit(1);
}

struct Cost {
    double milliseconds; // of the processor, so that what runs beside does not count
    double megabytes;    // most memory the process had
};

Cost measure(const std::vector<std::string>& command, const fs::path& output) {
    const pid_t child = fork();
    if (child == 0) {
        const int out = open(output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        dup2(out, STDOUT_FILENO);
        std::vector<char*> words;
        for (const std::string& word : command) words.push_back(const_cast<char*>(word.c_str()));
        words.push_back(nullptr);
        execv(words[0], words.data());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    const auto milliseconds = [](const timeval& time) {
        return 1e3 * static_cast<double>(time.tv_sec) + 1e-3 * static_cast<double>(time.tv_usec);
    };
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "%s failed\n", command[0].c_str());
        std::exit(1);
    }
    return {milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime), static_cast<double>(usage.ru_maxrss) / 1024};
}

Cost median(std::vector<Cost> costs) {
    const auto middle = costs.begin() + static_cast<std::ptrdiff_t>(costs.size() / 2);
    std::nth_element(costs.begin(), middle, costs.end(),
                     [](const Cost& a, const Cost& b) { return a.milliseconds < b.milliseconds; });
    return *middle;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) return 1;
    const int runs = argc > 3 ? std::atoi(argv[3]) : 5;
    const fs::path folder = fs::temp_directory_path() / ("bench_generate_" + std::to_string(getpid()));
    fs::create_directories(folder);
    std::vector<double> own;
    for (const int widgets : {10000, 100000}) {
        const std::string name = "form" + std::to_string(widgets);
        makeFilesAside(folder, name, widgets);
        std::vector<Cost> ours;
        std::vector<Cost> theirs;
        if (widgets > 10000) std::puts("uic takes many minutes for the next form ...");
        const int rounds = widgets > 10000 ? 1 : runs; // uic takes minutes for the large form
        for (int run = widgets > 10000 ? 1 : 0; run <= rounds; ++run) {
            const Cost wdgen =
                measure({argv[1], "--stdout", (folder / (name + ".wdp")).string()}, folder / "source.f90");
            const Cost uic = measure({argv[2], (folder / (name + ".ui")).string()}, folder / "ui.h");
            if (run == 0) continue; // the first pair only warms the caches
            ours.push_back(wdgen);
            theirs.push_back(uic);
        }
        const Cost a = median(ours);
        const Cost b = median(theirs);
        own.push_back(a.milliseconds);
        std::printf("%6d widgets: wdgen %7.1f ms %6.1f MB, uic %7.1f ms %6.1f MB, ratio %.2f time, %.2f memory\n",
                    widgets, a.milliseconds, a.megabytes, b.milliseconds, b.megabytes, a.milliseconds / b.milliseconds,
                    a.megabytes / b.megabytes);
        std::fflush(stdout);
    }
    std::printf("100,000 widgets take %.1f times what 10,000 take\n", own[1] / own[0]);
    std::error_code ignored;
    fs::remove_all(folder, ignored);
    return 0;
}
