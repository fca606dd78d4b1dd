#include "project_script.h"

#include "project/code_stores.h"
#include "project/field_table.h"
#include "project/host.h"
#include "project/preferences.h"
#include "project/tree.h"
#include "project/widget_types.h"

#include <gtest/gtest.h>

#include <charconv>
#include <map>
#include <sstream>
#include <vector>

namespace {

std::string unescaped(const std::string& text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 1 < text.size()) {
            const char next = text[++i];
            result += next == 'n' ? "\r\n" : std::string(1, next);
        } else {
            result += text[i];
        }
    }
    return result;
}

std::string firstWord(std::string& line) {
    const std::size_t end = line.find(' ');
    const std::string word = line.substr(0, end);
    line = end == std::string::npos ? "" : line.substr(end + 1);
    return word;
}

std::vector<std::string> pieces(const std::string& line) {
    std::vector<std::string> result;
    std::size_t from = 0;
    for (std::size_t at = line.find(" ; "); at != std::string::npos; at = line.find(" ; ", from)) {
        result.push_back(unescaped(line.substr(from, at - from)));
        from = at + 3;
    }
    result.push_back(unescaped(line.substr(from)));
    return result;
}

std::vector<int> numbers(const std::string& line) {
    std::istringstream stream(line);
    std::vector<int> result;
    for (int number = 0; stream >> number;) result.push_back(number);
    return result;
}

struct Script {
    std::vector<WidgetNode*> levels; // the widget last named at each depth
    WidgetNode* widget = nullptr;
    MenuEntryRec* entry = nullptr;

    void setProject(std::string line) {
        const std::map<std::string, int*> fields = {
            {"gridMode", &project.gridMode},        {"gridHoriz", &project.gridHoriz},
            {"gridVert", &project.gridVert},        {"scalable", &project.scalable},
            {"language", &project.projectLanguage}, {"doubleBuffering", &project.doubleBuffering}};
        const std::string field = firstWord(line);
        if (field == "platform") {
            project.projectPlatform = line[0];
        } else if (field == "title") {
            project.projectTitle = line;
        } else {
            ASSERT_TRUE(fields.contains(field)) << field;
            *fields.at(field) = std::stoi(line);
        }
    }

    void setBlock(const std::string& line) {
        const std::size_t colon = line.find(": ");
        const int block = blockIndexOf(line.substr(0, colon));
        ASSERT_GE(block, 0) << line;
        project.codeBlocks[static_cast<std::size_t>(block)] = unescaped(line.substr(colon + 2));
    }

    void setSlot(const std::string& line) {
        const std::size_t colon = line.find(": ");
        const std::string name = line.substr(0, colon) + " Callback";
        const std::string code = unescaped(line.substr(colon + 2));
        if (entry) {
            ASSERT_GE(entrySlotIndexOf(name), 0) << line;
            entry->slots[static_cast<std::size_t>(entrySlotIndexOf(name))] = code;
        } else {
            ASSERT_GE(slotIndexOf(name), 0) << line;
            widget->slots[static_cast<std::size_t>(slotIndexOf(name))] = code;
        }
    }

    void setField(std::string line) {
        const std::string name = firstWord(line);
        for (const FieldRow& row : recordFields()) {
            if (name != row.name) continue;
            if (row.number) widget->*row.number = std::stoi(line);
            if (row.real) widget->*row.real = std::stof(line);
            if (row.string) widget->*row.string = unescaped(line);
            return;
        }
        if (name == "text") {
            widget->text = unescaped(line);
        } else {
            ASSERT_EQ(name, "buildInfo");
            widget->buildInfo = std::stoi(line);
        }
    }

    void addForm(const std::string& name) {
        widget = newForm();
        renameNode(*widget, name);
        renameNode(*widget->child, name + "_MainPanel");
    }

    void addWidget(WidgetType type, const std::string& name, std::size_t depth) {
        entry = nullptr;
        if (type == TYPE_FORM) {
            addForm(name);
        } else if (type == TYPE_MAIN_PANEL) {
            widget = levels.at(depth - 1)->child;
        } else {
            OwnedList made = createFromDefaults(type == TYPE_RADIO_BOX ? TYPE_PANEL : type, 10, 20);
            widget = made.get();
            widget->type = type;
            widget->name = name;
            linkChild(*levels.at(depth - 1), std::move(made));
            if (widget->parent->type == TYPE_TOOL_BAR) widget->onToolbar = 1;
        }
        levels.resize(depth);
        levels.push_back(widget);
    }

    void addEntry(std::string line) {
        MenuEntryRec& added = widget->entries.emplace_back();
        added.kind = std::stoi(firstWord(line));
        added.level = std::stoi(firstWord(line));
        std::vector<std::string> parts = pieces(line);
        parts.resize(7);
        added.name = parts[0];
        added.label = parts[1];
        added.accel = parts[2].empty() ? 0 : std::stoi(parts[2]);
        added.help = parts[3];
        added.icon1 = parts[4];
        added.icon2 = parts[5];
        added.icon3 = parts[6];
        entry = &added;
    }

    void addListEntry(const std::string& line) {
        std::vector<std::string> parts = pieces(line);
        parts.resize(2);
        widget->listEntries.push_back({parts[0], parts[1]});
    }

    void addStatusBar(const std::string& line) {
        std::vector<std::string> parts = pieces(line);
        widget->statusBar = std::make_unique<StatusBarRec>();
        widget->statusBar->name = parts[0];
        widget->statusBar->panes = static_cast<int>(parts.size()) - 1;
        for (std::size_t pane = 0; pane + 1 < parts.size(); ++pane) {
            widget->statusBar->sizes[pane] = std::stoi(firstWord(parts[pane + 1]));
            widget->statusBar->texts[pane] = parts[pane + 1];
        }
    }

    void setColumns(const std::string& line) {
        widget->columnWidths = numbers(line);
        widget->columns = static_cast<int>(widget->columnWidths.size());
    }
    void setRows(const std::string& line) {
        widget->rowHeights = numbers(line);
        widget->rows = static_cast<int>(widget->rowHeights.size());
    }

    void defineColour(const std::string& line) {
        std::istringstream stream(line);
        int index = 0;
        float red = 0;
        float green = 0;
        float blue = 0;
        stream >> index >> red >> green >> blue;
        host.defineColour(index, red, green, blue);
    }

    void readLine(std::string line) {
        const std::size_t blanks = line.find_first_not_of(' ');
        if (blanks == std::string::npos) return;
        line = line.substr(blanks);
        if (line.rfind("--", 0) == 0) return;
        if (line[0] == '[') {
            if (std::stoi(line.substr(1)) != project.projectLanguage) return;
            line = line.substr(line.find(' ') + 1);
        }
        if (line[0] == '.') return setField(line.substr(1));
        const std::string item = firstWord(line);
        if (item == "project") return setProject(line);
        if (item == "block") return setBlock(line);
        if (item == "colour") return defineColour(line);
        if (item == "columns") return setColumns(line);
        if (item == "rows") return setRows(line);
        if (item == ">") return setSlot(line);
        if (item == "+") return addEntry(line);
        if (item == "*") return addListEntry(line);
        if (item == "=") return addStatusBar(line);
        if (item == "indent") {
            preferences.globalIndent = std::stoi(line);
        } else if (item == "config") {
            preferences.configCheck = 1;
            preferences.configDirExpr = line;
        } else {
            int code = 0;
            std::from_chars(item.data(), item.data() + item.size(), code);
            const WidgetType type = typeOfCode(code);
            ASSERT_TRUE(isKnown(type)) << item;
            addWidget(type, line, blanks / 2);
        }
    }
};

} // namespace

void readProjectScript(const std::string& text) {
    resetProject();
    preferences = Preferences();
    project.projectTitle.clear();
    project.projectPlatform = 'w';
    project.gridMode = 0;
    project.doubleBuffering = 0;
    project.gridHoriz = 36;
    project.gridVert = 27;
    for (int index = 20; index < 256; ++index) host.defineColour(index, 0, 0, 0);
    Script script;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) script.readLine(line);
}
