#include "project/placement.h"

#include "project/host.h"
#include "project/tree.h"
#include "project/widget_types.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <initializer_list>

namespace {

constexpr ToolRow tools[] = {
    {TOOL_PUSH_BUTTON, "Push Button", TYPE_BUTTON, "Button %d"},
    {TOOL_CHECK_BOX, "Check Box", TYPE_TOGGLE, "Toggle %d"},
    {TOOL_LIST_BOX, "ListBox", TYPE_LIST_BOX, nullptr},
    {TOOL_SLIDER, "Slider", TYPE_SLIDER, nullptr},
    {TOOL_TEXT_ENTRY, "Text Entry", TYPE_TEXT_ENTRY, ""},
    {TOOL_VALUE_ENTRY, "Value Entry", TYPE_VALUE_ENTRY, nullptr},
    {TOOL_ICON, "Icon", TYPE_ICON, nullptr},
    {TOOL_TEXT_LABEL, "Text Label", TYPE_TEXT_LABEL, "Text Entry %d"},
    {TOOL_VALUE_LABEL, "Value Label", TYPE_VALUE_LABEL, ""},
    {TOOL_PANEL, "Panel", TYPE_PANEL, "Panel %d"},
    {TOOL_COMBO_BOX, "ComboBox", TYPE_COMBO_BOX, nullptr},
    {TOOL_GRAPHICS_FRAME, "Graphics Frame", TYPE_GRAPHICS_FRAME, nullptr},
    {TOOL_TEXT_ARRAY, "Text Array", TYPE_TEXT_ARRAY, "TxtArray %d"},
    {TOOL_VALUE_ARRAY, "Value Array", TYPE_VALUE_ARRAY, "ValArray %d"},
    {TOOL_TOOL_BAR, "ToolBar", TYPE_TOOL_BAR, "ToolBar %d"},
    {TOOL_TAB_BOX, "Tabbed Dialogue Box", TYPE_TAB_BOX, "TabDiaBox %d"},
    {TOOL_RADIO_BUTTON, "Radio Button", TYPE_TOGGLE, "Toggle %d"},
    {TOOL_GAUGE, "Gauge", TYPE_GAUGE, nullptr},
    {TOOL_PROGRESS_BAR, "Progress Bar", TYPE_PROGRESS_BAR, nullptr},
    {TOOL_TTY_ENTRY, "TTY Entry", TYPE_TTY_ENTRY, nullptr},
    {TOOL_TREE_VIEW, "Treeview", TYPE_TREE_VIEW, nullptr},
    {TOOL_TABLE_BOX, "Table Box", TYPE_TABLE_BOX, nullptr},
    {TOOL_TOOL_SEPARATOR, "Toolbar Separator", TYPE_TOOL_SEPARATOR, "ToolSep %d"},
    {TOOL_PANE, "Pane", TYPE_PANE, "Pane %d"},
};

constexpr char NO_PARENT[] = "Not a valid parent widget";
constexpr char NO_CHILDREN[] = "This widget cannot support child widgets.";
constexpr char MASTER_MDI[] = "Master MDI Form";
constexpr char MASTER_MDI_BARE[] = "Cannot place widgets on Master MDI form";
constexpr char SEPARATOR_PLACE[] = "Toolbar Separators can only be placed on toolbars";

using Codes = std::initializer_list<int>;

bool among(const Codes& codes, int code) { return std::find(codes.begin(), codes.end(), code) != codes.end(); }

const Codes containers = {TYPE_MAIN_PANEL, TYPE_PANEL,   TYPE_RADIO_BOX, TYPE_GRAPHICS_FRAME,
                          TYPE_TOOL_BAR,   TYPE_TAB_BOX, TYPE_PANE};

// What a click with a tool needs, tested in this order. A rule holds for one type of parent and names the tools that it
// takes, or for one tool and names the parents that it needs.
struct PlacementRule {
    int parent; // 0: any
    int tool;   // 0: any
    Codes fits; // tools of a parent's rule, parents of a tool's rule
    const char* refusal;
};
const PlacementRule placementRules[] = {
    {TYPE_TOOL_BAR,
     0,
     {TOOL_COMBO_BOX, TOOL_ICON, TOOL_TOOL_SEPARATOR, TOOL_PUSH_BUTTON},
     "Toolbars can only have combo boxes, buttons, |separators and icons as its children"},
    {TYPE_PANE,
     0,
     {TOOL_LIST_BOX, TOOL_PANEL, TOOL_TAB_BOX, TOOL_TABLE_BOX, TOOL_TREE_VIEW, TOOL_TEXT_ENTRY},
     "Docking Panes can only have list boxes, panels, |tab dialogue and table boxes and treeviews|as its children"},
    {TYPE_TAB_BOX, 0, {TOOL_PANEL}, "Tabbed dialogue boxes can only have panels as children"},
    {TYPE_RADIO_BOX, 0, {TOOL_RADIO_BUTTON}, "This widget can only have radio buttons as its children"},
    {0, TOOL_TOOL_BAR, {TYPE_MAIN_PANEL}, "Tool bar widgets can only be placed on forms"},
    {0, TOOL_PANE, {TYPE_MAIN_PANEL}, "Docking Pane widgets can only be placed on forms"},
    {0, TOOL_TOOL_SEPARATOR, {TYPE_TOOL_BAR}, SEPARATOR_PLACE},
    {0,
     TOOL_RADIO_BUTTON,
     {TYPE_RADIO_BOX, TYPE_PANEL}, // and no page of a tab box
     "Radio buttons can only be placed inside empty panels"},
    {TYPE_GRAPHICS_FRAME,
     0,
     {TOOL_PANEL, TOOL_TEXT_ENTRY, TOOL_TEXT_LABEL, TOOL_VALUE_ENTRY, TOOL_VALUE_LABEL},
     "This widget can only have panels, text or value entries as its children"},
};

// What a chain may hold to be put under a parent of one type.
struct PasteRule {
    int parent;
    bool allows; // false: `types` are those that it refuses
    Codes types;
    const char* refusal;
};
const PasteRule pasteRules[] = {
    {TYPE_PANEL, false, {TYPE_PANE, TYPE_TOOL_BAR}, "Panels can not support Panes or Tool bars"},
    {TYPE_RADIO_BOX, true, {TYPE_TOGGLE}, "Radio boxes can only support Toggles"},
    {TYPE_TAB_BOX, true, {TYPE_PANEL}, "Tab Dialogue boxes can only support Panels"},
    {TYPE_TOOL_BAR,
     true,
     {TYPE_BUTTON, TYPE_ICON, TYPE_COMBO_BOX},
     "Toolbars can only support Buttons, Icons and Combo Boxes"},
    {TYPE_PANE,
     true,
     {TYPE_TEXT_ENTRY, TYPE_LIST_BOX, TYPE_PANEL, TYPE_TAB_BOX, TYPE_TREE_VIEW, TYPE_TABLE_BOX},
     "Panes can only support List Boxes, Panels, Tabbed Dialogue Boxes,|Table Boxes, Tree Views and Text Editors"},
    {TYPE_GRAPHICS_FRAME,
     true,
     {TYPE_TEXT_ENTRY, TYPE_TEXT_LABEL, TYPE_VALUE_ENTRY, TYPE_VALUE_LABEL, TYPE_PANEL},
     "Graphics Frames can only support Panels, Text or Value Entries as children"},
};

bool refuse(const char* title, const char* text) {
    host.errorBox(title, text);
    return false;
}

void markProjectChanged() { project.projectModified = project.sourceStale = 1; }

bool isTabPage(const WidgetNode& node) { return node.parent && node.parent->type == TYPE_TAB_BOX; }

bool keepsRule(const PlacementRule& rule, int tool, const WidgetNode& parent) {
    if (rule.parent != 0) return rule.parent != parent.type || among(rule.fits, tool);
    if (rule.tool != tool) return true;
    if (tool == TOOL_RADIO_BUTTON && parent.type == TYPE_PANEL && isTabPage(parent)) return false;
    return among(rule.fits, parent.type);
}

// The record that takes the new widget; null after a refusal.
WidgetNode* checkedParent(int tool, WidgetNode* parent) {
    if (!parent) {
        refuse("No parent selected", "You must select a parent widget");
        return nullptr;
    }
    const WidgetNode* form = formOf(parent, project.forms);
    const bool docked = parent->type == TYPE_TOOL_BAR || parent->type == TYPE_PANE;
    if (form && form->formType == FORM_MASTER_MDI && tool != TOOL_TOOL_BAR && tool != TOOL_PANE && !docked) {
        refuse(MASTER_MDI, MASTER_MDI_BARE);
        return nullptr;
    }
    parent = containerFor(parent);
    if (!among(containers, parent->type)) {
        refuse(NO_PARENT, NO_CHILDREN);
        return nullptr;
    }
    for (const PlacementRule& rule : placementRules)
        if (!keepsRule(rule, tool, *parent)) {
            refuse(NO_PARENT, rule.refusal);
            return nullptr;
        }
    return parent;
}

float inPixels(int size, int cell) {
    return static_cast<float>(size) * static_cast<float>(project.gridMode == 1 ? cell : 1);
}

// A click in a graphics frame comes in the units of its drawing, upward.
void clickToPixels(const WidgetNode& parent, float& x, float& y) {
    if (parent.type != TYPE_GRAPHICS_FRAME) return;
    const float unitsWide = parent.xMax - parent.xMin;
    const float unitsHigh = parent.yMax - parent.yMin;
    if (unitsWide == 0 || unitsHigh == 0) return;
    x = x / unitsWide * inPixels(parent.width, project.gridPixelX);
    y = (unitsHigh - y) / unitsHigh * inPixels(parent.height, project.gridPixelY);
}

int wholePosition(float position) {
    constexpr float LARGEST = 1e6F;
    return std::isfinite(position) ? static_cast<int>(std::clamp(position, -LARGEST, LARGEST)) : 0;
}

std::string numbered(const char* pattern, int number) {
    std::string text = pattern;
    const std::size_t at = text.find("%d");
    if (at != std::string::npos) text.replace(at, 2, std::to_string(number));
    return text;
}

int& counterOf(int type) {
    static int none;
    const WidgetTypeRow* row = widgetType(type);
    return row && row->counter != COUNTER_NONE ? project.counters[static_cast<std::size_t>(row->counter)] : none;
}

void settleByPlatform(WidgetNode& node, bool inRadioBox) {
    const bool windows = project.projectPlatform == 'w';
    switch (node.type) {
    case TYPE_TOGGLE: node.subType = windows ? (inRadioBox ? 6 : 7) : (inRadioBox ? 4 : 0); break;
    case TYPE_TEXT_ENTRY:
    case TYPE_TEXT_LABEL:
        if (!windows) node.subType = 0;
        break;
    case TYPE_ICON:
        if (!windows) node.icon = "MBIG1001", node.iconId = 1;
        break;
    default: break;
    }
}

void convertToRadioBox(WidgetNode& panel) {
    panel.type = TYPE_RADIO_BOX;
    panel.borderType = panel.subType;
    if (panel.text.rfind("Panel ", 0) == 0) panel.text = numbered("Radio Box %d", counterOf(TYPE_RADIO_BOX));
    --project.widgetCount; // its old name
    defaultName(&panel, NAME_NEW, false);
    --counterOf(TYPE_PANEL);
}

} // namespace

std::span<const ToolRow> placementTools() { return tools; }

const ToolRow* placementTool(int tool) {
    const auto* row =
        std::find_if(std::begin(tools), std::end(tools), [&](const ToolRow& r) { return r.tool == tool; });
    return row == std::end(tools) ? nullptr : row;
}

Placement placeWidget(int tool, WidgetNode* givenParent, float clickX, float clickY) {
    Placement placement;
    const ToolRow* row = placementTool(tool);
    WidgetNode* parent = row ? checkedParent(tool, givenParent) : nullptr;
    if (!parent) return placement;
    clickToPixels(*parent, clickX, clickY);
    WidgetNode* node = createFromDefaults(row->type, wholePosition(clickX), wholePosition(clickY));
    if (row->text) node->text = numbered(row->text, counterOf(row->type));
    if (tool == TOOL_RADIO_BUTTON && parent->type == TYPE_PANEL && !parent->child) {
        placement.oldName = parent->name;
        placement.converted = parent;
        convertToRadioBox(*parent);
    }
    settleByPlatform(*node, parent->type == TYPE_RADIO_BOX);
    linkChild(*parent, node);
    defaultName(node, NAME_NEW, false);
    node->onToolbar = parent->type == TYPE_TOOL_BAR ? 1 : 0;
    markProjectChanged();
    placement.widget = node;
    return placement;
}

Refusal refusalToHold(const WidgetNode& target, const Records& records) {
    if (!among(containers, target.type)) return {NO_PARENT, NO_CHILDREN};
    const WidgetNode* form = formOf(&target, project.forms);
    const bool bar = target.type == TYPE_TOOL_BAR || target.type == TYPE_PANE;
    const bool masterMdi = form && form->formType == FORM_MASTER_MDI && !bar;
    for (const WidgetNode* node : records) {
        const bool docked = node->type == TYPE_TOOL_BAR || node->type == TYPE_PANE;
        if (masterMdi && !docked) return {MASTER_MDI, MASTER_MDI_BARE};
        for (const PasteRule& rule : pasteRules)
            if (rule.parent == target.type && among(rule.types, node->type) != rule.allows)
                return {NO_PARENT, rule.refusal};
        if (node->type == TYPE_TOOL_SEPARATOR) return {NO_PARENT, SEPARATOR_PLACE};
    }
    return {};
}

bool mayHold(const WidgetNode& target, const Records& records) {
    const Refusal refusal = refusalToHold(target, records);
    return !refusal.text || refuse(refusal.title, refusal.text);
}

WidgetNode* containerFor(WidgetNode* node) { return node->type == TYPE_FORM && node->child ? node->child : node; }

bool followLook(WidgetNode& node, const WidgetNode& parent) {
    constexpr int RADIO = 6, CHECK = 7; // of the modern kinds
    if (node.type != TYPE_TOGGLE) return false;
    if (node.subType == RADIO && (parent.type == TYPE_PANEL || parent.type == TYPE_MAIN_PANEL))
        node.subType = CHECK;
    else if (node.subType == CHECK && parent.type == TYPE_RADIO_BOX)
        node.subType = RADIO;
    else
        return false;
    return true;
}

bool settleInside(const WidgetNode& target, const Records& records) {
    if (records.empty()) return true;
    const WidgetNode& first = *records.front();
    if (first.xpos <= target.width && first.ypos <= target.height) return true;
    const int answer = host.messageBox("Paste widget position outside parent dimensions",
                                       "Do you want to reposition near origin?", BOX_QUESTION, BOX_YES_NO_CANCEL);
    if (answer != ANSWER_YES) return answer == ANSWER_NO;
    constexpr int FAR_AWAY = 99999;
    constexpr int NEAR_ORIGIN = 10;
    int left = FAR_AWAY;
    int bottom = FAR_AWAY;
    for (const WidgetNode* node : records) {
        left = std::min(left, node->xpos);
        bottom = std::min(bottom, node->ypos);
    }
    const auto shifted = [](int position, int least) {
        return static_cast<int>(std::min<std::int64_t>(std::int64_t{position} - least + NEAR_ORIGIN, FAR_AWAY));
    };
    for (WidgetNode* node : records) {
        node->xpos = shifted(node->xpos, left);
        node->ypos = shifted(node->ypos, bottom);
    }
    return true;
}
