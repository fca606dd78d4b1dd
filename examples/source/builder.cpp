#include "builder.h"

#include "project/defaults.h"
#include "project/tree.h"

namespace example {

WidgetNode& mainPanelOf(WidgetNode& form) { return *form.child; }

WidgetNode& begin(int language, const std::string& name, const std::string& title, int width, int height) {
    makeDefaults();
    deleteList(project.forms);
    resetProject();
    project.projectLanguage = language;
    project.projectPlatform = 'w';
    WidgetNode& form = *newForm();
    renameNode(*form.child, name + "_MainPanel");
    renameNode(form, name);
    form.text = title;
    form.xpos = 160;
    form.ypos = 120;
    form.width = width;
    form.height = height;
    form.child->width = width;
    form.child->height = height;
    form.selected = 1;
    project.currentWidget = &form;
    return form;
}

WidgetNode& addForm(const std::string& name, const std::string& title, int formType, int width, int height) {
    WidgetNode& form = *newForm();
    renameNode(*form.child, name + "_MainPanel");
    renameNode(form, name);
    form.text = title;
    form.formType = formType;
    form.xpos = 260;
    form.ypos = 220;
    form.width = width;
    form.height = height;
    form.child->width = width;
    form.child->height = height;
    return form;
}

WidgetNode& add(WidgetNode& parent, WidgetType type, const std::string& name, int x, int y, int width, int height,
                const std::string& text) {
    WidgetNode& home = parent.type == TYPE_FORM && type != TYPE_TOOL_BAR ? mainPanelOf(parent) : parent;
    OwnedList made = createFromDefaults(type, x, y);
    WidgetNode* node = made.get();
    node->xpos = x;
    node->ypos = home.height - y - height; // default records count from the top
    node->width = width;
    node->height = height;
    node->text = text;
    node->name.clear();
    linkChild(home, std::move(made));
    renameNode(*node, name);
    project.widgetCount++;
    return *node;
}

WidgetNode& addLabel(WidgetNode& parent, const std::string& name, int x, int y, int width, const std::string& text) {
    return add(parent, TYPE_TEXT_LABEL, name, x, y, width, 22, text);
}

WidgetNode& addRadioBox(WidgetNode& parent, const std::string& name, int x, int y, int width, int height,
                        const std::string& title, std::initializer_list<const char*> choices) {
    WidgetNode& box = add(parent, TYPE_PANEL, name, x, y, width, height, title);
    box.type = TYPE_RADIO_BOX;
    box.borderType = 5;
    box.titleFlag = 1;
    int row = 0;
    for (const char* choice : choices) {
        ++row;
        WidgetNode& button =
            add(box, TYPE_TOGGLE, name + std::to_string(row), 14, height - 26 - 26 * row, width - 28, 22, choice);
        button.subType = 6;
        button.initialStatus = row == 1;
    }
    return box;
}

void addListEntries(WidgetNode& list, std::initializer_list<const char*> texts) {
    for (const char* text : texts) list.listEntries.push_back({text, ""});
}

void addStatusBar(WidgetNode& form, const std::string& name, std::initializer_list<int> edges,
                  std::initializer_list<const char*> texts) {
    form.statusBar = std::make_unique<StatusBarRec>();
    form.statusBar->name = name;
    form.statusBar->panes = static_cast<int>(edges.size());
    int pane = 0;
    for (int edge : edges) form.statusBar->sizes[pane++] = edge;
    pane = 0;
    for (const char* text : texts) form.statusBar->texts[pane++] = text;
}

void addTreeEntries(WidgetNode& tree, std::initializer_list<Entry> entries) {
    const auto append = [&](int kind, int level, const std::string& name, const std::string& label) -> MenuEntryRec& {
        MenuEntryRec& entry = tree.entries.emplace_back();
        entry.kind = kind;
        entry.level = level;
        entry.name = name;
        entry.label = label;
        return entry;
    };
    append(MENU_BAR, 0, tree.name + "_TreeView", "");
    int level = 0;
    std::string above;
    for (const Entry& row : entries) {
        if (row.level > level) append(MENU_PULL_DOWN, row.level, above, ""); // goes by the name of its entry
        above = row.name;
        level = row.level;
        append(MENU_ENTRY, row.level, row.name, row.label).slots[ENTRY_GENERAL] = row.code;
    }
}

void addMenu(WidgetNode& form, std::initializer_list<Entry> entries) {
    const auto append = [&](int kind, int level, const std::string& name, const std::string& label) -> MenuEntryRec& {
        MenuEntryRec& entry = form.entries.emplace_back();
        entry.kind = kind;
        entry.level = level;
        entry.name = name;
        entry.label = label;
        return entry;
    };
    append(MENU_BAR, 0, form.name + "_Menubar", "");
    int level = 0, pullDowns = 0, separators = 0;
    std::string above;
    for (const Entry& row : entries) {
        if (row.level > level) append(MENU_PULL_DOWN, row.level, above + "_Pop" + std::to_string(++pullDowns), "");
        level = row.level;
        if (*row.label == 0) {
            append(MENU_SEPARATOR, row.level, "separator" + std::to_string(++separators), "");
            continue;
        }
        above = row.name;
        MenuEntryRec& entry = append(MENU_ENTRY, row.level, row.name, row.label);
        entry.accel = row.label[0];
        entry.slots[ENTRY_GENERAL] = row.code;
    }
}

std::string code(const char* text) {
    std::string out;
    if (*text == '\n') ++text;
    for (; *text; ++text) {
        if (*text == '\n' && text[1] == 0) break;
        if (*text == '\n') out += '\r';
        out += *text;
    }
    return out;
}

} // namespace example
