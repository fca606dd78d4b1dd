#include "project/placement.h"

#include "project/host.h"
#include "project/tree.h"
#include "project/widget_types.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>

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

// What a click with a tool needs, tested in this order. A rule holds for one type of parent, which takes what its card
// says, or for one tool and names the parents that it needs.
struct PlacementRule {
    WidgetType parent; // none: any
    int tool;          // 0: any
    TypeSet parents;   // of a tool's rule
    const char* refusal;
};
constexpr PlacementRule placementRules[] = {
    {TYPE_TOOL_BAR, 0, {}, "Toolbars can only have combo boxes, buttons, |separators and icons as its children"},
    {TYPE_PANE,
     0,
     {},
     "Docking Panes can only have list boxes, panels, |tab dialogue and table boxes and treeviews|as its children"},
    {TYPE_TAB_BOX, 0, {}, "Tabbed dialogue boxes can only have panels as children"},
    {TYPE_RADIO_BOX, 0, {}, "This widget can only have radio buttons as its children"},
    {TYPE_NONE, TOOL_TOOL_BAR, {TYPE_MAIN_PANEL}, "Tool bar widgets can only be placed on forms"},
    {TYPE_NONE, TOOL_PANE, {TYPE_MAIN_PANEL}, "Docking Pane widgets can only be placed on forms"},
    {TYPE_NONE, TOOL_TOOL_SEPARATOR, {TYPE_TOOL_BAR}, SEPARATOR_PLACE},
    {TYPE_NONE,
     TOOL_RADIO_BUTTON,
     {TYPE_RADIO_BOX, TYPE_PANEL}, // and no page of a tab box
     "Radio buttons can only be placed inside empty panels"},
    {TYPE_GRAPHICS_FRAME, 0, {}, "This widget can only have panels, text or value entries as its children"},
};

// What is said of a chain that holds what a parent of one type does not take.
struct PasteRule {
    WidgetType parent;
    const char* refusal;
};
constexpr PasteRule pasteRules[] = {
    {TYPE_PANEL, "Panels can not support Panes or Tool bars"},
    {TYPE_RADIO_BOX, "Radio boxes can only support Toggles"},
    {TYPE_TAB_BOX, "Tab Dialogue boxes can only support Panels"},
    {TYPE_TOOL_BAR, "Toolbars can only support Buttons, Icons and Combo Boxes"},
    {TYPE_PANE,
     "Panes can only support List Boxes, Panels, Tabbed Dialogue Boxes,|Table Boxes, Tree Views and Text Editors"},
    {TYPE_GRAPHICS_FRAME, "Graphics Frames can only support Panels, Text or Value Entries as children"},
};

bool refuse(const char* title, const char* text) {
    host.errorBox(title, text);
    return false;
}

// A radio box takes toggles that are radio buttons from the start.
bool takes(const WidgetNode& parent, const ToolRow& tool) {
    const bool checkBox = parent.type == TYPE_RADIO_BOX && tool.tool != TOOL_RADIO_BUTTON;
    return cardOf(parent).takes.holds(tool.type) && !checkBox;
}

bool keepsRule(const PlacementRule& rule, const ToolRow& tool, const WidgetNode& parent) {
    if (rule.parent != TYPE_NONE) return rule.parent != parent.type || takes(parent, tool);
    if (rule.tool != tool.tool) return true;
    if (tool.tool == TOOL_RADIO_BUTTON && isTabPage(parent)) return false;
    return rule.parents.holds(parent.type);
}

// The record that takes the new widget; null after a refusal.
WidgetNode* checkedParent(const ToolRow& tool, WidgetNode* parent) {
    if (!parent) {
        refuse("No parent selected", "You must select a parent widget");
        return nullptr;
    }
    const WidgetNode* form = formOf(parent, project.forms);
    const bool docked = isBarOrPane(*parent) || tool.tool == TOOL_TOOL_BAR || tool.tool == TOOL_PANE;
    if (form && form->formType == FORM_MASTER_MDI && !docked) {
        refuse(MASTER_MDI, MASTER_MDI_BARE);
        return nullptr;
    }
    parent = containerFor(parent);
    if (cardOf(*parent).takes.empty()) {
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

int& counterOf(WidgetType type) { return project.counters[static_cast<std::size_t>(cardOf(type).counter)]; }

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
    WidgetNode* parent = row ? checkedParent(*row, givenParent) : nullptr;
    if (!parent) return placement;
    clickToPixels(*parent, clickX, clickY);
    OwnedList made = createFromDefaults(row->type, wholePosition(clickX), wholePosition(clickY));
    if (row->text) made->text = numbered(row->text, counterOf(row->type));
    if (tool == TOOL_RADIO_BUTTON && parent->type == TYPE_PANEL && !parent->child) {
        placement.oldName = parent->name;
        placement.converted = parent;
        convertToRadioBox(*parent);
    }
    settleByPlatform(*made, parent->type == TYPE_RADIO_BOX);
    WidgetNode* node = linkChild(*parent, std::move(made));
    defaultName(node, NAME_NEW, false);
    node->onToolbar = parent->type == TYPE_TOOL_BAR ? 1 : 0;
    markProjectChanged();
    placement.widget = node;
    return placement;
}

Refusal refusalToHold(const WidgetNode& target, const Records& records) {
    const TypeSet& taken = cardOf(target).takes;
    if (taken.empty()) return {NO_PARENT, NO_CHILDREN};
    const WidgetNode* form = formOf(&target, project.forms);
    const bool masterMdi = form && form->formType == FORM_MASTER_MDI && !isBarOrPane(target);
    for (const WidgetNode* node : records) {
        if (masterMdi && !isBarOrPane(*node)) return {MASTER_MDI, MASTER_MDI_BARE};
        const bool separator = node->type == TYPE_TOOL_SEPARATOR; // placed anew, never pasted
        const bool fits = taken.holds(node->type) && !(separator && target.type == TYPE_TOOL_BAR);
        const auto* rule = std::ranges::find(pasteRules, target.type, &PasteRule::parent);
        if (!fits && rule != std::end(pasteRules)) return {NO_PARENT, rule->refusal};
        if (separator) return {NO_PARENT, SEPARATOR_PLACE};
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
