// The check before the compiler: names, texts that are written between quotes, image files, lengths of statements.

#include "codegen/check.h"

#include "codegen/check_names.h"
#include "codegen/generation.h"
#include "codegen/quotes.h"

#include "platform/paths.h"
#include "project/tree.h"

#include <algorithm>

namespace {

constexpr int CONTINUATION_LIMIT = 255; // lines that a Fortran statement may go on for

bool isC() { return languageOfProject().family == LanguageFamily::C; }

struct TextCheck {
    std::vector<Complaint>& complaints;
    const WidgetNode* form;
    std::string_view widget;

    void complain(const char* property, std::string message) {
        complaints.push_back({form->name, std::string(widget), property, std::move(message)});
    }

    void checkLineEnds(const char* property, std::string_view text) {
        if (text.find_first_of("\r\n") != std::string_view::npos) {
            complain(property, "a line end cannot stand in a text of the source; remove it");
        }
    }

    // A text of the user's: quotes and line ends are seen to, but an escape of C is kept.
    void checkText(const char* property, std::string_view text) {
        if (isC() && holdsEscape(text)) {
            complain(property, "a backslash begins an escape here, so the program shows what the escape stands for; "
                               "double the backslash to show it");
        }
    }

    // A name that reaches the source as it is stored: an image, an icon.
    void checkName(const char* property, std::string_view name) {
        checkLineEnds(property, name);
        if (isC()) {
            if (name.find('"') != std::string_view::npos)
                complain(property, "a double quote cannot stand in the name of an image; remove it");
        } else if (std::count(name.begin(), name.end(), '\'') % 2 != 0) {
            complain(property, "a single quote ends the text in the source; double it or remove it");
        } else if (!allDoubled(name)) {
            complain(property, "single quotes end the text in the source; double them or remove them");
        }
    }

    static bool allDoubled(std::string_view text) {
        for (std::size_t at = text.find('\''); at != std::string_view::npos; at = text.find('\'', at + 2)) {
            if (at + 1 >= text.size() || text[at + 1] != '\'') return false;
        }
        return true;
    }
};

// Texts of a record beside its own, and on which records they are.
struct OtherText {
    std::string WidgetNode::*field;
    const char* property;
    bool (*written)(const WidgetNode&);
};

bool hasHelp(const WidgetNode& node) {
    if (node.type == TYPE_SLIDER) return languageOf(project.projectLanguage).sliderHelp;
    return is(node, HAS_HELP);
}
bool hasNamedImage(const WidgetNode& node) {
    if (node.type == TYPE_FORM || node.type == TYPE_ICON) return node.format == 3;
    return (node.type == TYPE_MAIN_PANEL || node.type == TYPE_PANEL) && node.format == 1;
}

constexpr OtherText OTHER_TEXTS[] = {
    {&WidgetNode::bubbleHelp, "Bubble Help", hasHelp},
    {&WidgetNode::fontFace, "Font Face", [](const WidgetNode&) { return project.projectPlatform == 'w'; }},
    {&WidgetNode::xLabels, "X Labels", isArray},
    {&WidgetNode::yLabels, "Y Labels", isArray},
    {&WidgetNode::xLabels, "Column Labels", [](const WidgetNode& node) { return node.type == TYPE_TABLE_BOX; }},
    {&WidgetNode::icon, "Prompt", [](const WidgetNode& node) { return node.type == TYPE_TTY_ENTRY; }},
};

// Whether the text stands in the source, and whether it may run over several lines.
enum TextUse { NOT_WRITTEN, ONE_LINE, SEVERAL_LINES };
TextUse textUse(const WidgetNode& node) {
    switch (node.type) {
    case TYPE_FORM:
    case TYPE_BUTTON:
    case TYPE_TOGGLE:
    case TYPE_ICON:
    case TYPE_TOOL_BAR:
    case TYPE_PANE: return ONE_LINE;
    case TYPE_PANEL: return node.titleFlag != 0 && node.scrollMode == -1 ? ONE_LINE : NOT_WRITTEN;
    case TYPE_RADIO_BOX: return node.titleFlag != 0 ? ONE_LINE : NOT_WRITTEN;
    case TYPE_TEXT_ENTRY:
    case TYPE_TEXT_LABEL:
    case TYPE_TTY_ENTRY: return SEVERAL_LINES;
    default: return NOT_WRITTEN;
    }
}

const char* textProperty(const WidgetNode& node) {
    if (textUse(node) == SEVERAL_LINES) return "Text";
    return is(node, IS_TITLED) ? "Title" : "Label";
}

void checkOwnText(TextCheck& check, const WidgetNode& node) {
    if (node.type == TYPE_TTY_ENTRY) {
        check.checkText("Text", node.text);
    } else if (textUse(node) == ONE_LINE) {
        check.checkText(textProperty(node), node.text);
    }
}

void checkTexts(TextCheck check, const WidgetNode& node) {
    checkOwnText(check, node);
    for (const OtherText& row : OTHER_TEXTS) {
        if (row.written(node)) check.checkText(row.property, node.*row.field);
    }
    if (node.type == TYPE_FORM || node.type == TYPE_ICON || node.type == TYPE_GAUGE) check.checkName("Icon", node.icon);
    if (hasNamedImage(node)) check.checkName("Background Image", node.backgroundImage);
    if (node.type == TYPE_PANEL) check.checkName("Tab Icon", node.closeIcon);
    if (node.statusBar) {
        check.widget = node.statusBar->name;
        for (int pane = 0; pane < std::min(node.statusBar->panes, STATUS_PANES); ++pane) {
            check.checkText("Text", node.statusBar->texts[static_cast<std::size_t>(pane)]);
        }
    }
}

void checkEntries(TextCheck check, const WidgetNode& node) {
    if (node.contents == 0) {
        for (const ListEntryRec& entry : node.listEntries) {
            check.checkText("Entries", entry.text);
            check.checkName("Entries", iconResourceName(entry.icon));
        }
    }
    for (const MenuEntryRec& entry : node.entries) {
        if (entry.kind != MENU_ENTRY) continue;
        check.widget = entry.name;
        check.checkText("Caption", entry.label);
        check.checkText("Help Text", entry.help);
        for (const std::string* icon : {&entry.icon1, &entry.icon2, &entry.icon3}) {
            check.checkName("Icon", iconResourceName(*icon));
        }
    }
}

// Files that the resource script names; without one the resource compiler stops.
void checkImageFiles(TextCheck check, const WidgetNode& node) {
    const auto need = [&](const char* property, const std::string& path) {
        if (!fileReadable(path)) {
            check.complain(property, "the image file \"" + path + "\" cannot be found; choose another one");
        }
    };
    const auto needIfFile = [&](const char* property, const std::string& icon) {
        if (icon.find('.') != std::string::npos) need(property, icon);
    };
    if (hasNamedImage(node)) need(node.format == 1 ? "Background Image" : "Icon", node.icon);
    if (node.type == TYPE_GAUGE && node.format == 3) need("Icon", node.icon);
    for (const ListEntryRec& entry : node.listEntries) {
        needIfFile("Entries", entry.icon);
    }
    for (const MenuEntryRec& entry : node.entries) {
        if (entry.kind != MENU_ENTRY) continue;
        check.widget = entry.name;
        needIfFile("Icon", entry.icon1);
        needIfFile("Icon", entry.icon2);
        needIfFile("Icon", entry.icon3);
    }
}

// Only Windows programs have the array that a status bar's panes are sized by.
void checkPlatform(TextCheck check, const WidgetNode& node) {
    if (node.statusBar && project.projectPlatform != 'w') {
        check.widget = node.statusBar->name;
        check.complain("Statusbar", "an X project cannot hold a status bar; delete it");
    }
}

bool continues(std::string_view line) {
    const SplitRule& split = languageOf(project.projectLanguage).split;
    return split.mark.empty() ? line.starts_with(split.prefix) : line.ends_with(split.mark);
}

// Counts continuation lines in the source itself. The comment ahead of a statement names its widget.
void checkLengths(std::vector<Complaint>& complaints) {
    GeneratedText generated;
    if (isC() || !generateText("check", generated)) return;
    std::string_view rest = generated.text;
    std::string widget;
    int lines = 0;
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        const std::size_t child = line.find(" child of ");
        if (child != std::string_view::npos) {
            const std::size_t name = line.rfind(' ', child - 1) + 1;
            widget = line.substr(name, child - name);
        }
        lines = continues(line) ? lines + 1 : 0;
        if (lines != CONTINUATION_LIMIT + 1) continue;
        const WidgetNode* node = findName(project.forms, widget, false);
        const WidgetNode* form = node ? formOf(node, project.forms) : project.forms;
        complaints.push_back({form->name, widget, node ? textProperty(*node) : "",
                              "its statement goes on for more than 255 lines, the most of Fortran; shorten the text"});
    }
}

} // namespace

std::string complaintLine(const Complaint& complaint) {
    std::string line;
    for (const std::string* part : {&complaint.form, &complaint.widget, &complaint.property}) {
        if (!part->empty()) line += *part + ": ";
    }
    return line + complaint.message;
}

std::vector<Complaint> checkProject() {
    std::vector<Complaint> complaints;
    checkNames(complaints);
    const WidgetNode* form = nullptr;
    bool master = false;
    for (const WidgetNode* node = project.forms; node; node = walkList(node, project.forms)) {
        if (!node->parent) form = node;
        master = master || node->formType == FORM_MASTER_SDI || node->formType == FORM_MASTER_MDI;
        const TextCheck check{complaints, form, node->name};
        checkTexts(check, *node);
        checkEntries(check, *node);
        checkImageFiles(check, *node);
        checkPlatform(check, *node);
    }
    if (master) {
        checkLengths(complaints);
    } else {
        complaints.push_back({"", "", "Form Type", "no form is the master; set one form to Master"});
    }
    return complaints;
}
