#include "project.h"

#include "typed.h"

#include "examples/builder.h"
#include "project/tree.h"

#include <algorithm>

namespace {

constexpr std::size_t CAPTION = 255;

std::string barsAsLines(std::string text) {
    std::replace(text.begin(), text.end(), '|', '\n');
    return text;
}

// A menu entry's first bar leads to the key that is shown beside it.
std::string firstBarAsTab(std::string text) {
    const std::size_t bar = text.find('|');
    if (bar != std::string::npos) text[bar] = '\t';
    return text;
}

std::string asIs(std::string text) { return text; }

std::string trimmed(const std::string& text) {
    constexpr const char* BLANKS = " \t\n";
    const std::size_t from = text.find_first_not_of(BLANKS);
    return from == std::string::npos ? "" : text.substr(from, text.find_last_not_of(BLANKS) - from + 1);
}

std::string withoutTrailingBlanks(const std::string& text) { return text.substr(0, text.find_last_not_of(' ') + 1); }

std::vector<std::string> parted(const std::string& text) {
    std::vector<std::string> parts;
    std::size_t from = 0;
    for (std::size_t bar = text.find('|'); bar != std::string::npos; bar = text.find('|', from)) {
        parts.push_back(text.substr(from, bar - from));
        from = bar + 1;
    }
    parts.push_back(text.substr(from));
    return parts;
}

using View = std::string (*)(std::string);

struct Maker {
    int language;
    std::string form;
    const Typing& typing;
    std::vector<Shown>& shown;
    int widgets = 0;

    void note(const std::string& property, const char* what, const std::string& text) {
        shown.push_back({form + " " + property, what, text});
    }
    std::string type(const std::string& property, const char* what, View view = asIs, std::size_t limit = CAPTION,
                     bool field = false) {
        const std::string typed = field ? withoutPairs(typing(limit)) : typing(limit);
        note(property, what, view(held(language, typed, field)));
        return typed;
    }
    void noteLabels(const std::string& property, const std::vector<std::string>& labels, std::size_t count) {
        for (std::size_t i = 0; i < std::min(count, labels.size()); ++i) {
            if (!labels[i].empty()) note(property, "head", labels[i]);
        }
    }
    // Labels of columns and rows of an array: one between two bars.
    std::string typeLabels(const std::string& property, std::size_t count) {
        const std::string typed = typing(CAPTION);
        std::vector<std::string> labels = parted(held(language, typed, false));
        for (std::string& label : labels) label = trimmed(label);
        noteLabels(property, labels, count);
        return typed;
    }
    // Those of a table box are parted while they are generated: a line end in one parts no labels.
    std::string typeColumns(const std::string& property, std::size_t count) {
        const std::string typed = typing(CAPTION);
        std::vector<std::string> labels = parted(typed);
        for (std::string& label : labels) label = withoutTrailingBlanks(held(language, label, false));
        noteLabels(property, labels, count);
        return typed;
    }
    std::string nextName() { return form + "_" + std::to_string(++widgets); }
    WidgetNode& add(WidgetNode& parent, WidgetType type, int width = 120, int height = 24) {
        const int place = widgets;
        WidgetNode& node =
            example::add(parent, type, nextName(), 10 + 130 * (place % 6), 10 + 110 * (place / 6), width, height, "");
        if (type != TYPE_TOOL_BAR && type != TYPE_PANE && type != TYPE_TREE_VIEW && type != TYPE_TABLE_BOX)
            node.bubbleHelp = this->type("Bubble Help of " + node.name, "tip", barsAsLines);
        return node;
    }
};

MenuEntryRec& append(WidgetNode& owner, int kind, int level, const std::string& name, const std::string& label) {
    MenuEntryRec& entry = owner.entries.emplace_back();
    entry.kind = kind;
    entry.level = level;
    entry.name = name;
    entry.label = label;
    return entry;
}

void addMenu(Maker& m, WidgetNode& form) {
    const std::string bar = form.name + "_Menu";
    append(form, MENU_BAR, 0, bar, "");
    append(form, MENU_ENTRY, 0, bar + "1", m.type("Menu entry", "entry", firstBarAsTab));
    append(form, MENU_PULL_DOWN, 1, bar + "Down", "");
    append(form, MENU_ENTRY, 1, bar + "2", m.type("Menu entry below", "entry", firstBarAsTab)).help =
        m.type("Help of a menu entry", "tip", barsAsLines);
}

void addStatusBar(Maker& m, WidgetNode& form) {
    example::addStatusBar(form, form.name + "_Status", {100, 200, -1}, {"", "", ""});
    std::string all;
    for (int pane = 0; pane < 3; ++pane) {
        std::string& text = form.statusBar->texts[static_cast<std::size_t>(pane)];
        text = m.typing(CAPTION);
        all += (pane > 0 ? "; " : "") + held(m.language, text, false);
    }
    m.note("Status bar", "pane", all);
}

void addButtons(Maker& m, WidgetNode& form) {
    m.add(form, TYPE_BUTTON).text = m.type("Button", "text", barsAsLines);
    m.add(form, TYPE_TOGGLE).text = m.type("Check box", "text", barsAsLines);
    WidgetNode& icon = m.add(form, TYPE_ICON, 60, 60);
    icon.text = m.type("Icon label", "text");
}

void addTexts(Maker& m, WidgetNode& form) {
    constexpr std::size_t LONGEST = 32000; // with its doubled apostrophes it is no longer than a literal may be
    for (const WidgetType type : {TYPE_TEXT_ENTRY, TYPE_TEXT_LABEL}) {
        WidgetNode& lines = m.add(form, type, 120, 60);
        WidgetNode& line = m.add(form, type, 120, 24);
        lines.fieldWidth = line.fieldWidth = LONGEST;
        lines.text = m.type("Text of lines " + lines.name, "text", barsAsLines, LONGEST, true);
        line.text = m.type("Text of one line " + line.name, "text", asIs, LONGEST, true);
    }
    WidgetNode& rich = m.add(form, TYPE_TEXT_ENTRY, 120, 60); // as the designer writes what is typed into it
    rich.subType = 1;
    rich.fieldWidth = LONGEST;
    rich.text =
        "{\\rtf1\\ansi\\uc1{\\fonttbl{\\f0\\fnil Sans;}}{\\colortbl ;}\n\\pard \\plain\\f0\\fs18 it's \"one\" | " +
        form.name + "\\par\n\\pard \\plain\\f0\\fs18 \\{two\\} \\\\ three\n}";
    m.note("Rich text", "text", "it's \"one\" | " + form.name + "\n{two} \\ three");
    WidgetNode& roll = m.add(form, TYPE_TTY_ENTRY, 120, 60);
    roll.text = m.typing(3000);
    roll.icon = m.typing(CAPTION);
    roll.size = 10;
    const std::string prompt = held(m.language, roll.icon, false) + " ";
    m.note("TTY entry", "text", barsAsLines(held(m.language, roll.text, false)) + "\n" + prompt);
}

void addLists(Maker& m, WidgetNode& form) {
    for (const WidgetType type : {TYPE_LIST_BOX, TYPE_COMBO_BOX}) {
        WidgetNode& list = m.add(form, type, 120, 60);
        const std::string one = m.type("List entry", "cell");
        const std::string two = m.type("List entry", "cell");
        example::addListEntries(list, {one.c_str(), two.c_str()});
    }
    WidgetNode& tree = m.add(form, TYPE_TREE_VIEW, 120, 60);
    append(tree, MENU_BAR, 0, tree.name + "_T", "");
    append(tree, MENU_ENTRY, 0, tree.name + "_T1", m.type("Tree entry", "cell"));
    append(tree, MENU_PULL_DOWN, 1, tree.name + "_T1", "");
    append(tree, MENU_ENTRY, 1, tree.name + "_T2", m.type("Tree entry below", "cell"));
    WidgetNode& array = m.add(form, TYPE_TEXT_ARRAY, 120, 80);
    array.columns = 2;
    array.rows = 2;
    array.columnWidths = {60, 60};
    array.rowHeights = {20, 20};
    array.xLabels = m.typeLabels("X labels", 2);
    array.yLabels = m.typeLabels("Y labels", 2);
    WidgetNode& table = m.add(form, TYPE_TABLE_BOX, 120, 60);
    table.columns = 3;
    table.columnWidths = {50, 50, 50};
    table.xLabels = m.typeColumns("Column labels", 3);
}

void addContainers(Maker& m, WidgetNode& form) {
    WidgetNode& panel = m.add(form, TYPE_PANEL, 120, 60);
    panel.titleFlag = 1;
    panel.scrollMode = -1;
    panel.text = m.type("Panel", "title");
    WidgetNode& box = m.add(form, TYPE_PANEL, 120, 60);
    box.type = TYPE_RADIO_BOX;
    box.titleFlag = 1;
    box.text = m.type("Radio box", "title");
    m.add(box, TYPE_TOGGLE, 100, 22).text = m.type("Radio button", "text", barsAsLines);
    WidgetNode& tabs = m.add(form, TYPE_TAB_BOX, 120, 80);
    tabs.bubbleHelp.clear();
    m.shown.pop_back();
    WidgetNode& page = example::add(tabs, TYPE_PANEL, m.nextName(), 0, 0, 100, 60, "");
    page.titleFlag = 1;
    page.scrollMode = -1;
    page.text = m.type("Tab", "tab");
}

void addBars(Maker& m, WidgetNode& form) {
    WidgetNode& bar = m.add(form, TYPE_TOOL_BAR, 300, 30);
    bar.titleFlag = 1;
    bar.text = m.type("Tool bar", "title");
    WidgetNode& button = m.add(bar, TYPE_BUTTON, 60, 24);
    button.onToolbar = 1;
    button.text = m.type("Button on a tool bar", "text");
    if (m.language == 77) return;
    WidgetNode& pane = m.add(form, TYPE_PANE, 120, 100);
    pane.titleFlag = 1;
    pane.initialPosition = 2;
    pane.text = m.type("Pane", "title");
}

} // namespace

WidgetNode& beginTexts(int language) { return example::begin(language, "Main", "Texts", 300, 200); }

void addTextForm(int language, const std::string& name, const Typing& typing, std::vector<Shown>& shown) {
    Maker m{language, name, typing, shown};
    WidgetNode& form = example::addForm(name, "", FORM_STATIC_SDI, 800, 600);
    form.text = m.type("Form", "title");
    addMenu(m, form);
    addStatusBar(m, form);
    addButtons(m, form);
    addTexts(m, form);
    addLists(m, form);
    addContainers(m, form);
    addBars(m, form);
}
