// Forms in C: the routine of each, its window with status bar and menu, its main panel.

#include "codegen/c_language.h"
#include "codegen/quotes.h"

namespace {

void writeTitle(Generation& g, const WidgetNode& form) {
    const TitleFlags& flags = titleFlags(form.titleFlag);
    write(g, flags.second.empty() ? "%s, " : "%s | ", flags.first);
    if (!flags.second.empty()) write(g, "%s, ", flags.second);
}

void endFormWithIcon(Generation& g, const WidgetNode& form) {
    const Picture picture = formPicture(g, form);
    switch (picture.kind) {
    case 0: write(g, ", owIconFormat,OMENUICON,owIconFile,\"%s\",owIconID,%d", imageText(picture), form.iconId); break;
    case 1: write(g, ", owIconFormat,OBMPFILE,owIconFile,\"%s\"", imageText(picture)); break;
    case 3: write(g, ", owIconFormat,ODLLICON,owIconFile,\"%s\"", form.backgroundImage); break;
    case 4: write(g, ", owIconFormat,ODLLICON,owIconFile,\"%s\"", imageText(picture)); break;
    default: break;
    }
    write(g, ",0);\n");
}

void beginMaster(Generation& g, const WidgetNode& form) {
    write(g, "\n// Set up master window %s\n", form.name);
    write(g, "   %s = %s(%d, %d, %d, %d, ", form.name,
          form.formType == FORM_MASTER_MDI ? "owCreateMDIMasterWindow" : "owCreateMasterWindow", form.xpos, form.ypos,
          form.width, form.height);
    rememberMaster(g, form);
}

void beginDialogue(Generation& g, const WidgetNode& form) {
    const std::string_view parent = parentName(g, form);
    write(g, "\n// Set up complex dialogue box %s child of %s\n", form.name, parent);
    if (isMdiChild(form)) {
        write(g,
              project.gridMode != 0 ? "   %s = owCreateMDIComplexDialogueBox(%s, %d, %d-1, %d, %d, "
                                    : "   %s = owCreateMDIComplexDialogueBox(%s, %d-4, %d-24, %d, %d, ",
              form.name, parent, difference(form.xpos, g.masterX), difference(form.ypos, g.masterY), form.width,
              form.height);
    } else {
        write(g, "   %s = owCreateComplexDialogueBox(%s, %d, %d, %d, %d, ", form.name, parent, form.xpos, form.ypos,
              form.width, form.height);
    }
}

void writeStatusBar(Generation& g, const WidgetNode& form) {
    if (!form.statusBar) return;
    const StatusBarRec& bar = *form.statusBar;
    write(g, "\n// Create Statusbar for %s\n", form.name);
    for (int pane = 0; pane < bar.panes && pane < STATUS_PANES; ++pane) {
        write(g, "   ISTBAR[%d]=%d;\n", pane, bar.sizes[static_cast<std::size_t>(pane)]);
    }
    write(g, "   %s=owCreateStatusBar(%s, owPanes,%d,owSizes,ISTBAR,0);\n", bar.name, form.name, bar.panes);
    for (int pane = 0; pane < bar.panes && pane < STATUS_PANES; ++pane) {
        write(g, "   owSetStatusBarText(%s,%d,\"%s\" );\n", bar.name, pane,
              cText(bar.texts[static_cast<std::size_t>(pane)]));
    }
}

void beginRoutine(Generation& g, const WidgetNode& form) {
    if (g.masterWritten) write(g, "}\n"); // of the form before
    const TypeSet types = typesBelow(form);
    write(g, "void Generate%s(void)\n", form.name);
    write(g, "{\n");
    if (types.holds(TYPE_GRAPHICS_FRAME)) write(g, "   static OLIMIT Graphics_frame;\n");
    if (types.holds(TYPE_SLIDER)) write(g, "   static OWIDGET Slider_attribs;\n");
    if (hasStatusBar(form)) write(g, "   int ISTBAR[32];\n");
    if (types.holds(TYPE_TEXT_ARRAY) || types.holds(TYPE_VALUE_ARRAY)) {
        write(g, "   static OARRAYCELL arrayattribs;\n");
    }
}

} // namespace

void createCForm(Generation& g, const Placed& w) {
    const WidgetNode& form = w.node;
    beginRoutine(g, form);
    if (g.masterWritten) {
        beginDialogue(g, form);
    } else {
        beginMaster(g, form);
    }
    writeTitle(g, form);
    write(g, "\"%s\"\n", cText(form.text));
    write(g, CONTINUATION);
    if (!isMdiChild(form)) writeOrigin(g, form);
    writeNamed(g, "owInitState", INITIAL_STATE, form.initialState);
    if (g.masterWritten) writeNamed(g, "owQuitMode", QUIT_MODE, form.quitMode);
    if (!g.masterWritten && form.buildInfo == 0) write(g, ", owBuildInfo,OOFF");
    if (form.formType == FORM_MASTER_MDI && form.child) writeBackgroundImage(g, *form.child);
    endFormWithIcon(g, form);
    g.masterWritten = true;

    writeStatusBar(g, form);
    if (!form.entries.empty()) {
        write(g, "\n// Create menu structure for %s\n", form.name);
        writeMenu(g, form);
    }
}

// Its place is fixed, whatever the record's origin says.
void createCMainPanel(Generation& g, const Placed& w) {
    const WidgetNode& node = w.node;
    if (w.form.formType == FORM_MASTER_MDI) return;
    write(g, "\n// Create main panel for form\n");
    write(g, "   %s=owCreatePanel(%s, 0, 0, %d, %d\n", node.name, w.form.name, node.width, node.height);
    write(g, CONTINUATION);
    write(g, ", owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY\n");
    write(g, CONTINUATION);
    writeBackgroundImage(g, node);
    writeBorder(g, node);
    write(g, ",0);\n");
}
