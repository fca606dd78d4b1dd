// The resource script: one line for the manifest, one for each icon and bitmap that the project names.

#include "codegen/resources.h"

#include "codegen/output.h"
#include "codegen/quotes.h"
#include "codegen/text.h"

#include "platform/paths.h"
#include "platform/safe_file.h"
#include "project/host.h"
#include "project/tree.h"

#include <unordered_set>

namespace {

constexpr std::string_view ICON_LINE = "%s ICON \"%s\"\n";
constexpr std::string_view BITMAP_LINE = "%s BITMAP \"%s\"\n";

struct Script {
    std::string text;
    std::unordered_set<std::string> lines; // those that stand in it already
};

void addLine(Script& script, const std::string& line) {
    script.text += line;
    script.lines.insert(line);
}

void tellMissing(std::string_view source, std::string_view name, std::string_view relation, std::string_view path) {
    std::string message;
    put(message, "%s%s%s%s which cannot now be found", source, name, relation, path);
    host.errorBox("Generating resource file", message);
}

std::string resourceLine(std::string_view format, std::string_view name, std::string_view path) {
    std::string line;
    put(line, format, name, doubledBackslashes(path));
    return line;
}

// The three states of an icon lie beside it under names of their own; not having them is no fault.
void addStates(Script& script, const WidgetNode& node) {
    const std::string stem = node.icon.substr(0, node.icon.rfind('.'));
    for (const char state : {'#', '!', '&'}) {
        const std::string path = stem + state + ".ico";
        if (fileReadable(path)) addLine(script, resourceLine(ICON_LINE, node.backgroundImage + state, path));
    }
}

void addIcon(Script& script, const WidgetNode& node) {
    const std::string line = resourceLine(ICON_LINE, node.backgroundImage, node.icon);
    if (script.lines.contains(line)) return;
    if (fileReadable(node.icon)) {
        addLine(script, line);
    } else {
        tellMissing("Widget ", node.name, " references an icon ", node.icon);
    }
    addStates(script, node);
}

void addBitmap(Script& script, const WidgetNode& node) {
    const std::string line = resourceLine(BITMAP_LINE, node.backgroundImage, node.icon);
    if (script.lines.contains(line)) return;
    if (fileReadable(node.icon)) {
        addLine(script, line);
    } else {
        tellMissing("Widget ", node.name, " references an BMP file ", node.icon);
    }
}

// An icon text without "." names a resource that is there already.
bool namesFile(std::string_view icon) { return icon.find('.') != std::string_view::npos; }

void addEntryIcon(Script& script, std::string_view source, std::string_view name, const std::string& icon) {
    if (!namesFile(icon)) return;
    const std::string line = resourceLine(ICON_LINE, iconResourceName(icon), icon);
    if (script.lines.contains(line)) return;
    if (fileReadable(icon)) {
        addLine(script, line);
    } else {
        tellMissing(source, name, " references an icon ", icon);
    }
}

void addListIcons(Script& script, const WidgetNode& list) {
    const std::string_view source = list.type == TYPE_LIST_BOX ? "ListBox " : "ComboBox ";
    for (const ListEntryRec& entry : list.listEntries) {
        addEntryIcon(script, source, list.name, entry.icon);
    }
}

void addEntryIcons(Script& script, const WidgetNode& owner) {
    const bool tree = owner.type == TYPE_TREE_VIEW;
    for (const MenuEntryRec& entry : owner.entries) {
        if (entry.kind != MENU_ENTRY) continue;
        for (const std::string* icon : {&entry.icon1, &entry.icon2, &entry.icon3}) {
            addEntryIcon(script, tree ? "Treeview " : "MenuBar Entry ", tree ? owner.name : entry.name, *icon);
        }
    }
}

void addResources(Script& script, const WidgetNode& node) {
    switch (node.type) {
    case TYPE_FORM:
    case TYPE_ICON:
    case TYPE_GAUGE:
        if (node.format == 3) addIcon(script, node);
        break;
    case TYPE_MAIN_PANEL:
    case TYPE_PANEL:
        if (node.format == 1) addBitmap(script, node);
        break;
    case TYPE_LIST_BOX:
    case TYPE_COMBO_BOX: addListIcons(script, node); break;
    default: break;
    }
    addEntryIcons(script, node);
}

} // namespace

bool writeResourceScript(const std::string& base) {
    SafeFile file;
    if (!openSafeFile(file, base + "rc.rc")) return false;
    Script script;
    put(script.text, "CREATEPROCESS_MANIFEST_RESOURCE_ID RT_MANIFEST \"%s.exe.manifest\"\n", doubledBackslashes(base));
    for (const WidgetNode* node = project.forms; node; node = walkList(node, project.forms)) {
        addResources(script, *node);
    }
    writeSafeFile(file, script.text.data(), script.text.size());
    return commitWhatIsNew(file);
}
