// Forms in Fortran 90: the routine of each, its window with status bar and menu, its main panel.

#include "codegen/fortran90.h"
#include "codegen/quotes.h"

namespace {

void addTitle(Generation& g, const WidgetNode& form) {
    const TitleFlags& flags = titleFlags(form.titleFlag);
    if (flags.second.empty()) {
        add(g, ", %s", flags.first);
    } else {
        add(g, ", ior(%s,%s)", flags.first, flags.second);
    }
}

void addFormIcon(Generation& g, const WidgetNode& form) {
    const Picture picture = formPicture(g, form);
    switch (picture.kind) {
    case 0: add(g, ", owIconFormat=OMENUICON, owIconFile='%s', owIconID=%d", picture.image, form.iconId); break;
    case 1: add(g, ", owIconFormat=OBMPFILE, owIconFile='%s'", picture.image); break;
    case 3: add(g, ", owIconFormat=ODLLICON, owIconFile='%s'", form.backgroundImage); break;
    case 4: add(g, ", owIconFormat=ODLLICON, owIconFile='%s'", picture.image); break;
    default: break;
    }
}

void beginMaster(Generation& g, const WidgetNode& form) {
    write(g, "\n! Set up master window %s\n", form.name);
    add(g, "   %s = %s(%d, %d, %d, %d", form.name,
        form.formType == FORM_MASTER_MDI ? "owCreateMDIMasterWindow" : "owCreateMasterWindow", form.xpos, form.ypos,
        form.width, form.height);
    rememberMaster(g, form);
}

// A child of an MDI master stands at its offset from the master, less what the master's frame takes.
void beginDialogue(Generation& g, const WidgetNode& form) {
    const std::string_view parent = parentName(g, form);
    write(g, "\n! Set up complex dialogue box %s child of %s\n", form.name, parent);
    if (isMdiChild(form)) {
        add(g,
            project.gridMode != 0 ? "   %s = owCreateMDIComplexDialogueBox(%s, %d, %d-1, %d, %d"
                                  : "   %s = owCreateMDIComplexDialogueBox(%s, %d-4, %d-24, %d, %d",
            form.name, parent, difference(form.xpos, g.masterX), difference(form.ypos, g.masterY), form.width,
            form.height);
    } else {
        add(g, "   %s = owCreateComplexDialogueBox(%s, %d, %d, %d, %d", form.name, parent, form.xpos, form.ypos,
            form.width, form.height);
    }
}

void writeStatusBar(Generation& g, const WidgetNode& form) {
    if (!form.statusBar) return;
    const StatusBarRec& bar = *form.statusBar;
    write(g, "\n! Create Statusbar for %s\n", form.name);
    for (int pane = 0; pane < bar.panes && pane < STATUS_PANES; ++pane) {
        write(g, "   ISTBAR(%d)=%d\n", pane + 1, bar.sizes[static_cast<std::size_t>(pane)]);
    }
    add(g, "   %s=owCreateStatusBar(%s, owPanes=%d,owSizes=ISTBAR)\n", bar.name, form.name, bar.panes);
    writeStatementSplit(g);
    for (int pane = 0; pane < bar.panes && pane < STATUS_PANES; ++pane) {
        add(g, "   call owSetStatusBarText(%s,%d,'%s' )\n", bar.name, pane,
            fortranText(bar.texts[static_cast<std::size_t>(pane)]));
        writeStatementSplit(g);
    }
}

} // namespace

void createFreeForm(Generation& g, const Placed& w) {
    const WidgetNode& form = w.node;
    const TypeSet types = typesBelow(form);
    write(g, "subroutine Generate%s\n", form.name);
    if (types.holds(TYPE_SLIDER)) write(g, "type (OWIDGET) :: Slider_attribs\n");
    if (hasStatusBar(form)) write(g, "integer :: ISTBAR(32)\n");
    if (types.holds(TYPE_TEXT_ARRAY) || types.holds(TYPE_VALUE_ARRAY)) {
        write(g, "type(OARRAYCELL) arrayattribs\n");
    }

    if (g.masterWritten) {
        beginDialogue(g, form);
    } else {
        beginMaster(g, form);
    }
    addTitle(g, form);
    add(g, ", '%s'", fortranText(form.text));
    if (!isMdiChild(form)) addPosition(g, form);
    if (g.masterWritten) addNamed(g, "owQuitMode", QUIT_MODE, form.quitMode);
    if (form.formType == FORM_MASTER_MDI && form.child) addBackgroundImage(g, *form.child);
    add(g, ", owInitState=%s", nameOf(INITIAL_STATE, form.initialState, "ONORMAL"));
    if (!g.masterWritten && form.buildInfo == 0) add(g, ", owBuildInfo=OOFF");
    addFormIcon(g, form);
    endStatement(g);
    g.masterWritten = true;

    writeStatusBar(g, form);
    if (!form.entries.empty()) {
        write(g, "\n! Create menu structure for %s\n", form.name);
        writeMenu(g, form);
    }
}

void createFreeMainPanel(Generation& g, const Placed& w) {
    if (w.form.formType == FORM_MASTER_MDI) return;
    write(g, "\n! Create main panel for form\n");
    add(g, "   %s=owCreatePanel(%s, 0, 0, %d, %d", w.node.name, w.form.name, w.node.width, w.node.height);
    addPosition(g, w.node);
    add(g, ", owType=ONOBOUNDARY");
    addBackgroundImage(g, w.node);
    addBorder(g, w.node);
    endStatement(g);
}
