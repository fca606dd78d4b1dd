#include "support/sample_project.h"

#include "project/defaults.h"
#include "project/host.h"
#include "project/tree.h"
#include "project/widget_types.h"

namespace {

struct Maker {
    std::mt19937& random;

    int number(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }
    bool chance(int percent) { return number(1, 100) <= percent; }

    // Any characters of a text that the user can type; bars, tildes and line ends among them.
    std::string text(int longest) {
        static const std::string letters = "abc XYZ_019'\"|~^\\#%&,;()\n\t\xc3\xa4";
        std::string result;
        for (int i = number(0, longest); i > 0; --i) result += letters[number(0, static_cast<int>(letters.size()) - 1)];
        return result;
    }
    // A number that "%g" and "%f" write without a loss.
    float real() { return static_cast<float>(number(-4000, 4000)) / 16.0F; }

    void code(std::string& slot) {
        if (chance(15)) slot = text(chance(10) ? 9000 : 120);
    }

    void fields(WidgetNode& n) {
        for (std::string WidgetNode::*field : {&WidgetNode::icon, &WidgetNode::backgroundImage, &WidgetNode::parentName,
                                               &WidgetNode::bubbleHelp, &WidgetNode::xLabels, &WidgetNode::yLabels,
                                               &WidgetNode::fontFace, &WidgetNode::closeIcon, &WidgetNode::openIcon})
            n.*field = text(chance(5) ? 255 : 12);
        for (int WidgetNode::*field : std::initializer_list<int WidgetNode::*>{&WidgetNode::storedFormCallbackId,
                                                                               &WidgetNode::reserved,
                                                                               &WidgetNode::storedParentHandle,
                                                                               &WidgetNode::xpos,
                                                                               &WidgetNode::ypos,
                                                                               &WidgetNode::width,
                                                                               &WidgetNode::height,
                                                                               &WidgetNode::initialStatus,
                                                                               &WidgetNode::titleFlag,
                                                                               &WidgetNode::iconId,
                                                                               &WidgetNode::subType,
                                                                               &WidgetNode::size,
                                                                               &WidgetNode::accel,
                                                                               &WidgetNode::justify,
                                                                               &WidgetNode::sign,
                                                                               &WidgetNode::format,
                                                                               &WidgetNode::editMode,
                                                                               &WidgetNode::borderType,
                                                                               &WidgetNode::colour1,
                                                                               &WidgetNode::colour2,
                                                                               &WidgetNode::colour3,
                                                                               &WidgetNode::colour4,
                                                                               &WidgetNode::hpos,
                                                                               &WidgetNode::vpos,
                                                                               &WidgetNode::expand,
                                                                               &WidgetNode::sorted,
                                                                               &WidgetNode::approxSize,
                                                                               &WidgetNode::quitMode,
                                                                               &WidgetNode::yLabelsWidth,
                                                                               &WidgetNode::xLabelsHeight,
                                                                               &WidgetNode::alignXLabels,
                                                                               &WidgetNode::alignYLabels,
                                                                               &WidgetNode::activeOnInit,
                                                                               &WidgetNode::iconSize,
                                                                               &WidgetNode::initialPosition,
                                                                               &WidgetNode::onToolbar,
                                                                               &WidgetNode::initialState,
                                                                               &WidgetNode::scrollMode,
                                                                               &WidgetNode::dragMode,
                                                                               &WidgetNode::topTicks,
                                                                               &WidgetNode::bottomTicks,
                                                                               &WidgetNode::accessMode,
                                                                               &WidgetNode::pointSize,
                                                                               &WidgetNode::charSet,
                                                                               &WidgetNode::bold,
                                                                               &WidgetNode::italic,
                                                                               &WidgetNode::underline,
                                                                               &WidgetNode::strikeout,
                                                                               &WidgetNode::contents,
                                                                               &WidgetNode::displayIcons,
                                                                               &WidgetNode::helpJustify,
                                                                               &WidgetNode::oleInserts,
                                                                               &WidgetNode::cellBackground,
                                                                               &WidgetNode::cellBorder,
                                                                               &WidgetNode::readOnly,
                                                                               &WidgetNode::formHidden,
                                                                               &WidgetNode::autoUrl,
                                                                               &WidgetNode::tabAction,
                                                                               &WidgetNode::tabList})
            n.*field = number(-40000, 40000);
        for (float WidgetNode::*field :
             {&WidgetNode::value, &WidgetNode::minValue, &WidgetNode::maxValue, &WidgetNode::stepValue,
              &WidgetNode::xMin, &WidgetNode::xMax, &WidgetNode::yMin, &WidgetNode::yMax})
            n.*field = real();
        n.text = text(chance(4) ? 3000 : 30);
        n.fieldWidth = static_cast<int>(n.text.size());
        if (n.type == TYPE_TEXT_ENTRY && chance(50)) n.fieldWidth = -n.fieldWidth; // it scrolls
        for (std::string& slot : n.slots) code(slot);
    }

    void sections(WidgetNode& n) {
        const bool array = n.type == TYPE_TEXT_ARRAY || n.type == TYPE_VALUE_ARRAY || n.type == TYPE_TABLE_BOX;
        n.columns = array ? number(1, 6) : number(0, 9);
        n.rows = array ? number(1, 6) : number(0, 9);
        n.columnWidths.clear();
        n.rowHeights.clear();
        if (array) {
            for (int i = 0; i < n.columns; ++i) n.columnWidths.push_back(number(1, 99));
            for (int i = 0; i < n.rows; ++i) n.rowHeights.push_back(number(1, 99));
        }
        if (n.type == TYPE_LIST_BOX || n.type == TYPE_COMBO_BOX)
            for (int i = number(0, 4); i > 0; --i) addListEntry(n, "row" + text(9), text(5));
        if (n.type == TYPE_TREE_VIEW || (n.type == TYPE_FORM && chance(60))) {
            addEntry(n, MENU_BAR, 0, "", n.name + "_Menubar");
            for (int i = number(0, 5); i > 0; --i)
                addEntry(n, number(MENU_PULL_DOWN, MENU_SEPARATOR), number(0, 3), text(9), n.name + std::to_string(i));
            for (MenuEntryRec& e : n.entries)
                for (std::string& slot : e.slots) code(slot);
        }
        if (n.type == TYPE_FORM && chance(60)) {
            n.statusBar = std::make_unique<StatusBarRec>();
            n.statusBar->panes = number(1, 32);
            n.statusBar->name = n.name + "_Status";
            for (int& size : n.statusBar->sizes) size = number(-1, 900);
            for (std::string& pane : n.statusBar->texts) pane = text(20);
        }
    }

    void fill(WidgetNode& n) {
        fields(n);
        sections(n);
    }
};

} // namespace

WidgetNode* addRecord(WidgetNode* parent, WidgetType type, const std::string& name) {
    OwnedList made = makeDefaultRecord(type);
    if (!made) made.reset(new WidgetNode());
    WidgetNode* node = made.get();
    node->type = type;
    node->name = name;
    if (parent)
        linkChild(*parent, std::move(made));
    else
        appendForm(std::move(made));
    if (type != TYPE_MAIN_PANEL) ++project.widgetCount;
    return node;
}

void addEntry(WidgetNode& owner, int kind, int level, const std::string& label, const std::string& name) {
    MenuEntryRec& entry = owner.entries.emplace_back();
    entry.kind = kind;
    entry.level = level;
    entry.label = label;
    entry.name = name;
}

void addListEntry(WidgetNode& owner, const std::string& text, const std::string& icon) {
    owner.listEntries.push_back({text, icon});
}

WidgetNode* freshProject() {
    project.projectLanguage = 90;
    project.projectPlatform = 'w';
    project.doubleBuffering = 0;
    project.gridMode = 0;
    project.gridHoriz = 36;
    project.gridVert = 27;
    project.gridPixelX = project.gridPixelY = 22;
    project.snapOn = 1;
    project.snapGrid = 10;
    project.fileVersion = 80;
    resetProject();
    makeDefaults();
    return newForm();
}

void randomProject(std::mt19937& random, int forms, int widgets) {
    Maker maker{random};
    freshProject();
    deleteList(project.forms);
    project.widgetCount = 0;
    std::vector<WidgetNode*> parents;
    for (int i = 1; i <= forms; ++i) {
        WidgetNode* form = addRecord(nullptr, TYPE_FORM, "Form" + std::to_string(i));
        maker.fill(*form);
        WidgetNode* panel = addRecord(form, TYPE_MAIN_PANEL, form->name + "_MainPanel");
        maker.fill(*panel);
        parents.push_back(panel);
    }
    const auto types = typeCards();
    for (int i = 0; i < widgets; ++i) {
        const WidgetType type =
            types[static_cast<std::size_t>(i) % (types.size() - 2) + 2].type; // no form, no main panel
        WidgetNode* parent = parents[static_cast<std::size_t>(maker.number(0, static_cast<int>(parents.size()) - 1))];
        WidgetNode* node = addRecord(parent, type, "Form1_Widget" + std::to_string(i));
        maker.fill(*node);
        if (type == TYPE_PANEL || type == TYPE_TAB_BOX || type == TYPE_PANE) parents.push_back(node);
    }
    project.forms->selected = 1;
    project.gridHoriz = maker.number(1, 90);
    project.gridVert = maker.number(1, 90);
    project.gridMode = maker.number(0, 1);
    project.scalable = maker.number(0, 1);
    project.snapOn = maker.number(0, 1);
    project.snapGrid = maker.number(1, 50);
    project.nextFormNumber = forms + 1;
    for (int& counter : project.counters) counter = maker.number(1, 99);
    project.customSwitches = 1;
    project.compilerSwitches = maker.text(40);
    project.linkerSwitches = maker.text(40);
    project.sourceFileTimes.clear();
    for (FileList& list : project.fileLists) {
        list.clear();
        for (int i = maker.number(0, 4); i > 0; --i) list.push_back("file" + std::to_string(i) + ".f90");
        list.emplace_back();
    }
    for (std::size_t i = 0; i < project.fileLists[LIST_SOURCES].size(); ++i)
        project.sourceFileTimes.push_back(std::int64_t{maker.number(-99999, 99999)} * 123456789012LL);
    project.exeTime = 132223104000000000LL + maker.number(0, 99999);
    project.sourceStale = maker.number(0, 1);
    project.sourceDir = maker.text(40);
    project.sourceName = maker.text(20);
    for (CodeBlock& block : project.codeBlocks)
        if (maker.chance(70)) block = maker.text(400);
    project.currentBlockName = "Initialization";
}

void largeProject(int widgets) {
    WidgetNode* panel = freshProject()->child;
    const auto types = typeCards();
    for (int i = 0; i < widgets; ++i) {
        if (i % 50 == 0) panel = addRecord(project.forms->child, TYPE_PANEL, "Form1_Panel" + std::to_string(i));
        const WidgetType type = types[static_cast<std::size_t>(i) % (types.size() - 2) + 2].type;
        WidgetNode* node = addRecord(panel, type, "Form1_Widget" + std::to_string(i));
        node->text = "Widget " + std::to_string(i);
        node->bubbleHelp = "What it does";
        if (i % 10 == 0) node->slots[SLOT_GENERAL] = "   call work(" + std::to_string(i) + ")\n";
    }
}
