#include "shell/help.h"

#include "editing/help_file.h"
#include "menu-c.h"
#include "platform/environment.h"
#include "platform/paths.h"
#include "project/host.h"
#include "project/language.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "properties/sheet.h"
#include "shell/command_table.h"
#include "shell/commands.h"
#include "shell/environment.h"
#include "shell/window_control.h"
#include "surface/dialogue_keys.h"
#include "surface/state.h"

namespace {

const char HELP_VERSION[] = "85";

struct WidgetTopic {
    WidgetType type;
    const char* topic; // null for one of another kind, see widgetTopic
};

constexpr WidgetTopic WIDGET_TOPICS[] = {
    {TYPE_FORM, "Form"},
    {TYPE_MAIN_PANEL, "Form"},
    {TYPE_BUTTON, "Button"},
    {TYPE_TOGGLE, nullptr},
    {TYPE_TEXT_ENTRY, "Text Entry"},
    {TYPE_TEXT_LABEL, "Text Label"},
    {TYPE_VALUE_ENTRY, "Value Entry"},
    {TYPE_VALUE_LABEL, "Value Label"},
    {TYPE_ICON, "Icon Button"},
    {TYPE_LIST_BOX, "List Box"},
    {TYPE_SLIDER, "Slider"},
    {TYPE_PANEL, "Panel"},
    {TYPE_COMBO_BOX, "Combo Box"},
    {TYPE_RADIO_BOX, nullptr},
    {TYPE_GRAPHICS_FRAME, "Graphics Frame"},
    {TYPE_TEXT_ARRAY, "Text Array"},
    {TYPE_VALUE_ARRAY, "Value Array"},
    {TYPE_TOOL_BAR, "Tool Bar"},
    {TYPE_TAB_BOX, "Tabbed Dialogue Box"},
    {TYPE_GAUGE, "Gauge"},
    {TYPE_PROGRESS_BAR, "Progress Bar"},
    {TYPE_TTY_ENTRY, "TTY Entry"},
    {TYPE_TREE_VIEW, "Tree View"},
    {TYPE_TABLE_BOX, "Table Box"},
    {TYPE_TOOL_SEPARATOR, "Tool Bar Separator"},
    {TYPE_PANE, "Docking Pane"},
};
static_assert(Missing<missingRow(WIDGET_TOPICS)>::none);

// A library whose topics the Help menu opens.
struct HelpLibrary {
    int command;
    const char* stem;
    const char* fixedFormFile; // of projects in Fortran 77; null: the same file for all
    const char* missing;
};

constexpr HelpLibrary HELP_LIBRARIES[] = {
    {CMD_HELP_DESIGNER, "Wdesign", nullptr, "ORBAWIDG Designer help file could not be found"},
    {CMD_HELP_TOOLKIT, "Menu", "Menuf77.hlp", "ORBAWIDG help file could not be found"},
    {CMD_HELP_BASE, "Orba", "Orbaf77.hlp", "ORBA help file could not be found"},
    {CMD_HELP_PLOT, "Plot", "Plotf77.hlp", "ORBAPLOT help file could not be found"},
    {CMD_HELP_MESH, "Mesh", "Meshf77.hlp", "ORBAMESH help file could not be found"},
};

bool contains(const std::string& text, const char* part) { return text.find(part) != std::string::npos; }

std::string widgetTopic(const WidgetNode& widget) {
    if (widget.type == TYPE_TOGGLE) {
        if (project.projectPlatform != 'w') return {};
        const WidgetNode* parent = parentOf(&widget, project.forms);
        return parent && parent->type == TYPE_RADIO_BOX ? "Radio Button" : "Check Box";
    }
    const WidgetTopic* row = rowOf(WIDGET_TOPICS, widget.type);
    return row && row->topic ? row->topic : "";
}

} // namespace

std::string helpTopic() {
    if (contains(design.helpContext, "Properties Box")) {
        const std::string& label = selectedPropertyLabel();
        return contains(label, "Initial State (Not WYSIWYG)") ? "Initial State" : label;
    }
    if (!contains(design.helpContext, "Form")) return design.helpContext;
    return project.currentWidget ? widgetTopic(*project.currentWidget) : std::string();
}

namespace {

void contextHelpCommand() {
    const bool toggle = project.currentWidget && project.currentWidget->type == TYPE_TOGGLE;
    const std::string topic = helpTopic();
    if (topic.empty() && toggle) return; // toggles of other platforms have no page
    if (!showHelpFile(std::string("Wdesign") + HELP_VERSION + ".chm", topic))
        host.errorBox("Error opening help file", HELP_LIBRARIES[0].missing);
}

void helpTopicsCommand() {
    for (const HelpLibrary& library : HELP_LIBRARIES) {
        if (library.command != currentCommand()) continue;
        const std::string stem = std::string(library.stem) + HELP_VERSION;
        const bool fixedForm = languageOfProject().shortNames && library.fixedFormFile;
        if (!showHelpFile(fixedForm ? library.fixedFormFile : stem + ".chm", stem))
            host.errorBox("Error opening help file", library.missing);
    }
}

} // namespace

// ---- About ----------------------------------------------------------------------------------------------------

namespace {

int aboutBox = 0;

constexpr int ABOUT_SIZE = 308;

void addAboutLine(int panel, int y, const std::string& text) {
    owCreateTextEntry(panel, 0, y, ABOUT_SIZE, 22, text.c_str(), 255, ODISPLAY, owVpos, OTOP, owJustify, OCENTRE,
                      owBorderType, ONOBORDER, 0);
}

void aboutCommand() {
    if (aboutBox) return;
    aboutBox =
        owCreateComplexDialogueBox(MASTER_WINDOW, 0, 0, ABOUT_SIZE, ABOUT_SIZE, ONONE, "", owInitState, OCENTRED, 0);
    const int panel = owCreatePanel(aboutBox, 0, 0, ABOUT_SIZE, ABOUT_SIZE, owType, OPROJECTED, 0);
    addAboutLine(panel, 24, environment.aboutTitle);
    owCreateIcon(panel, 132, 62, 44, 44, "Light", ODLLICON, 0, owVpos, OTOP, owType, OPICTOGRAM, 0);
    addAboutLine(panel, 124, "Fortran/C++ GUI Builder");
    addAboutLine(panel, 150, "");
    addAboutLine(panel, 176, "ORBA = " + folders.installDir);
    const int ok =
        owCreatePushButton(panel, 110, 11, 88, 22, "OK", owType, ODEFAULTBUTTON, owCallback, CMD_ABOUT_OK, 0);
    owDrawWindow(aboutBox, 1);
    openDialogueKeys(aboutBox, {ok, CMD_ABOUT_OK}, CMD_ABOUT_OK);
    owSetActiveWidget(ok);
}

void aboutOkCommand() {
    if (!aboutBox) return;
    closeDialogueKeys();
    owEraseWidget(aboutBox);
    aboutBox = 0;
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_HELP_DESIGNER, .label = "ORBAWIDG Designer Help Topics", .mnemonic = 'S', .when = OPENS_WINDOW, .handler = helpTopicsCommand},
    {.id = CMD_HELP_TOOLKIT, .label = "ORBAWIDG Help Topics", .mnemonic = 'M', .when = OPENS_WINDOW, .handler = helpTopicsCommand},
    {.id = CMD_HELP_BASE, .label = "ORBA Help Topics", .mnemonic = 'G', .when = OPENS_WINDOW, .handler = helpTopicsCommand},
    {.id = CMD_HELP_PLOT, .label = "ORBAPLOT Help Topics", .mnemonic = 'R', .when = OPENS_WINDOW, .handler = helpTopicsCommand},
    {.id = CMD_HELP_MESH, .label = "ORBAMESH Help Topics", .mnemonic = 'S', .when = OPENS_WINDOW, .handler = helpTopicsCommand},
    {.id = CMD_ABOUT, .label = "About ORBAWIDG Designer", .mnemonic = 'A', .handler = aboutCommand},
    {.id = CMD_ABOUT_OK, .handler = aboutOkCommand},
    {.id = CMD_HELP, .key = OKEYF1, .keyModes = IN_DESIGN | IN_FIELDS, .handler = contextHelpCommand},
};
// clang-format on

} // namespace

std::span<const Command> helpCommands() { return COMMANDS; }
