// The Fortran 90 program: modules of the dynamic forms, the module of everything else, the main program.

#include "codegen/fortran90.h"
#include "codegen/generation.h"
#include "codegen/library_names.h"
#include "codegen/quotes.h"

#include "project/preferences.h"
#include "project/tree.h"

#include <algorithm>
#include <cctype>

namespace {

// A dynamic form is made by the user's own code, so it has a module of its own and no master at hand: a private
// constant stands for its parent.
constexpr std::string_view PARENT_CONSTANT = "Form1";

void writeDynamicModule(Generation& g, const WidgetNode& form) {
    g.ownModules.insert(&form);
    write(g, "module %s_mod\n", form.name);
    write(g, "use menu_f90\n");
    write(g, "integer,private :: %s = 1\n", parentConstant(form));
    writeIdentifiers(g, form);
    write(g, "contains\n");
    writeFormRoutine(g, form);
    write(g, "return\n");
    write(g, "end subroutine\n");
    write(g, "end module %s_mod\n\n", form.name);
}

template <class Visit> void eachForm(const Generation& g, bool dynamic, Visit visit) {
    for (const WidgetNode* form : g.forms) {
        if (isDynamic(*form) == dynamic) visit(*form);
    }
}

void writeModule(Generation& g) {
    write(g, "%s Global Definitions\n", g.facts.comment);
    write(g, "Module wdesign\n");
    write(g, "use menu_f90\n\n");
    eachForm(g, true, [&](const WidgetNode& form) { write(g, "use %s_mod\n", form.name); });
    writeBlock(g, BLOCK_GLOBAL_DEFINITIONS);
    write(g, "\n! Widget identifier definitions\n");
    if (checksConfiguration()) {
        write(g, "character*256 :: %s\n", preferences.configDirExpr);
        write(g, "integer :: configstatus\n");
    }
    eachForm(g, false, [&](const WidgetNode& form) { writeIdentifiers(g, form); });
    write(g, "integer :: callid\n");
    write(g, "contains\n");
    eachForm(g, false, [&](const WidgetNode& form) {
        writeFormRoutine(g, form);
        write(g, "return\n");
        write(g, "end subroutine\n");
    });
    write(g, "%s GetMasterFormID Function\n", g.facts.comment);
    write(g, "   Integer Function GetMasterFormID()\n");
    write(g, "   GetMasterFormID = %s\n", g.forms.front()->name);
    write(g, "   end function\n");
    writeBlock(g, BLOCK_GLOBAL_ROUTINES);
    write(g, "End Module\n\n");
}

void writeOpening(Generation& g) {
    if (checksConfiguration()) {
        const std::string& folder = preferences.configDirExpr;
        write(g, "   configstatus = oEnqConfigStatus(cfgdir=%s)\n", folder);
        write(g, "   if(configstatus .ne. 0) then\n");
        write(g,
              "      call owDisplayErrorBox(\"The file ORBA.CON is invalid or has not been found in the "
              "directory\",%s)\n",
              folder);
        write(g, "      Stop\n");
        write(g, "   endif\n");
    } else {
        write(g, "   call oOpenOrba\n");
    }
    write(g, project.projectPlatform == 'x' ? "   call oGuiwin\n" : "   call oOglwin\n");
    if (g.windows && project.doubleBuffering == 1) {
        write(g, "   call oEnqDrawingLimits(owpaper,owpty)\n");
        write(g, "   call oSetDrawingLimits(owpaper,0)\n");
    }
    write(g, "   call owInitializeMenu\n");
}

void writeGrid(Generation& g) {
    if (project.scalable != 0) {
        write(g, "\n! Calculate required grid dimensions\n");
        write(g, "   call owEnqGuiGrid(xg,yg,xp,yp)\n");
        write(g, "   resx=xg*xp; resy=yg*yp\n");
        write(g, "   px=resx/%2d; py=resy/%2d\n", project.gridHoriz, project.gridVert);
        write(g, "   grx=800/px; gry=600/py\n");
        write(g, "   call owDefineGuiGrid(grx,gry)\n");
    } else {
        write(g, "\n! Define required grid\n");
        write(g, "   call owDefineGuiGrid(%2d,%2d)\n", project.gridHoriz, project.gridVert);
    }
    if (g.windows) write(g, "   call owSetGuiGridMode(%1d)\n", project.gridMode);
}

void writeProgramHead(Generation& g) {
    g.masterWritten = true;
    eachForm(g, true, [&](const WidgetNode& form) { writeDynamicModule(g, form); });
    g.masterWritten = false;
    writeModule(g);
    write(g, "use wdesign\n");
    write(g, "use menu_f90\n\n");
    writeBlock(g, BLOCK_LOCAL_VARIABLES);
    if (g.windowCallbacks) write(g, "   type (OACTION) owdactlist\n");
    if (g.windows && project.doubleBuffering == 1) {
        write(g, "      type (ODIM) owpaper\n");
        write(g, "      integer owpty\n");
    }
    if (project.scalable != 0) write(g, "   integer resx,resy,xp,yp,xg,yg,px,py,grx,gry\n");
    write(g, "\n! Initialise Orba, Device & Menu\n");
    writeOpening(g);
    writeGrid(g);
    writeUserColours(g);
    write(g, "\n! Generate Forms\n");
    writeGenerateCalls(g);
    writeUserColours(g);
    writeBlock(g, BLOCK_INITIALIZATION);
    write(g, "\n! Start management\n");
    write(g, "   call owManage\n");
    if (const WidgetNode* active = activeOnInit(g)) {
        write(g, "\n!   Set active widget\n");
        write(g, "   call owSetActiveWidget(%s)\n", active->name);
    }
}

void writeActionLoop(Generation& g) {
    writeBlock(g, BLOCK_PRE_ACTION);
    write(g, "\n! Action loop\n");
    write(g, "   do\n");
    write(g, "      callid=owAction(callid)\n");
    writeBlock(g, BLOCK_LOOP_START);
    write(g, "\n! Code to handle callbacks\n");
    writeDispatch(g);
    writeBlock(g, BLOCK_LOOP_END);
    write(g, "\n      if(callid == -1) exit");
    write(g, "\n   end do\n");
}

void writeTermination(Generation& g) {
    writeBlock(g, BLOCK_TERMINATION);
    write(g, "\n! Close device MENU and ORBA, and end program\n");
    write(g, "   call owCloseMenu\n");
    write(g, "   call oCloseDevice\n");
    write(g, "   call oCloseOrba\n");
    write(g, "\nstop\n");
    write(g, "end\n");
}

void writeMenuBar(Generation& g, const MenuEntryRec& bar, const WidgetNode& form) {
    write(g, "\n! Create menu bar %s child of %s\n", bar.name, form.name);
    write(g, "   %s = owCreateMenuBar(%s)\n", bar.name, form.name);
}

void writePullDown(Generation& g, const MenuEntryRec& menu, std::string_view above) {
    write(g, "\n! Create pull-down menu %s child of %s\n", menu.name, above);
    write(g, "   %s = owCreatePullDownMenu(%s)\n", menu.name, above);
}

void writeMenuEntry(Generation& g, const MenuEntryRec& entry, std::string_view owner) {
    add(g, "   %s = owCreateMenuEntry(%s, '%s', owAccel=%d", entry.name, owner, fortranText(entry.label), entry.accel);
    if (g.windows) {
        if (!entry.help.empty()) add(g, ", owHelp='%s'", fortranText(entry.help));
        addIconResource(g, "owUncheckIcon", entry.icon1);
        addIconResource(g, "owCheckIcon", entry.icon2);
        addIconResource(g, "owGreyIcon", entry.icon3);
    }
    add(g, ")\n");
    writeStatementSplit(g);
}

void writeMenuSeparator(Generation& g, const MenuEntryRec& separator, std::string_view owner) {
    write(g, "   %s = owCreateMenuSeparator(%s)\n", separator.name, owner);
}

constexpr BlockComments BLOCK_COMMENTS = {
    "",
    "! Global Routines\n",
    "! User defined variables\n",
    "\n! Initialization code\n",
    "\n!   Pre Action Code\n",
    "\n! Start of Action Loop\n",
    "\n! End of Action Loop\n",
    "\n! Program termination code\n",
    "! Additional User Routines/Functions\n",
};

constexpr DispatchTexts DISPATCH = {
    .ifHead = "      if (callid == (",
    .elseHead = "      else if (callid == (",
    .headEnd = ")) then\n",
    .ifMasterClosed = "      if(callid == -1) then\n",
    .elseMasterClosed = "      else if(callid == -1) then\n",
    .masterClosedEnd = "",
    .branchEnd = "",
    .enquireState = "         call owEnqActionState(owdactlist)\n",
    .ifStatus = "         if(owdactlist%status == ",
    .elseStatus = "         else if(owdactlist%status == ",
    .statusEnd = ") then\n",
    .statusCodeEnd = "",
    .statusChainEnd = "         end if\n",
    .chainEnd = "      end if\n\n",
};

// Names that the generated program declares itself.
constexpr std::string_view OWN_NAMES[] = {"wdesign",    "menu_f90", "callid",         "getmasterformid",
                                          "owdactlist", "istbar",   "slider_attribs", "arrayattribs"};

} // namespace

// A name may be declared only once, in whatever case: in the module of a form that bears the constant's own name the
// constant gets another one.
std::string_view parentConstant(const WidgetNode& form) {
    const bool taken =
        std::equal(form.name.begin(), form.name.end(), PARENT_CONSTANT.begin(), PARENT_CONSTANT.end(),
                   [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == std::tolower(b); });
    return taken ? "Form1_Parent" : PARENT_CONSTANT;
}

const Language FORTRAN_90 = {
    .number = LANGUAGE_F90,
    .split = SPLIT_FREE,
    .commentsLikeFree = true,
    .startsFromBlack = false,
    .parentConstants = true,
    .sliderHelp = false,
    .reservedWords = {},
    .ownNames = OWN_NAMES,
    .libraryNames = libraryNames,
    .blockComments = BLOCK_COMMENTS,
    .declareWidget = "integer :: %s\n",
    .declareEntry = "integer ::  %s\n",
    .defineCalls = {"   call owDefineCallback(%s, (%s))\n", "   call owDefineSelectCallback(%s,(%s+OIDENT))\n",
                    "   call owDefineMoveCallback(%s,(%s+2*OIDENT))\n",
                    "   call owDefineExposeCallback(%s,(%s+3*OIDENT))\n",
                    "   call owDefineChangeCallback(%s,(%s+4*OIDENT))\n",
                    "   call owDefineDragDropCallback(%s,(%s+5*OIDENT))\n",
                    "   call owDefineDoubleClickCallback(%s,(%s+6*OIDENT))\n",
                    "   call owDefineFileDropCallback(%s,(%s+7*OIDENT))\n",
                    "   call owDefineDragSelectCallback(%s,(%s+8*OIDENT))\n",
                    "   call owDefineDragMoveCallback(%s,(%s+9*OIDENT))\n",
                    "   call owDefineValueErrorCallback(%s,(%s+10*OIDENT))\n",
                    "   call owDefineLinkCallback(%s,(%s+11*OIDENT))\n"},
    .defineEntryCalls = {"   call owDefineCallback(%s, %s)\n", "   call owDefineSelectCallback(%s, (%s+OIDENT))\n",
                         "   call owDefineChangeCallback(%s, (%s+4*OIDENT))\n",
                         "   call owDefineDragDropCallback(%s, (%s+5*OIDENT))\n",
                         "   call owDefineDoubleClickCallback(%s, (%s+6*OIDENT))\n"},
    .setStatus = "   call owSetWidgetStatus(%s, %s)\n",
    .statusNames = WIDGET_STATUS,
    .colourComment = "\n! Define user defined colour indices used\n",
    .defineColour = "   call oDefineRGB(%d, %f, %f, %f)\n",
    .generateForm = "   call Generate%s\n",
    .listComment = "\n! Create entries for list box %s\n",
    .comboComment = "\n! Create entries for combo box %s\n",
    .treeComment = "\n! Create entries for tree view %s\n",
    .dispatch = DISPATCH,
    .programHead = writeProgramHead,
    .actionLoop = writeActionLoop,
    .termination = writeTermination,
    .creation = FORTRAN_90_CREATION,
    .furtherProperties = nullptr,
    .menuBar = writeMenuBar,
    .pullDown = writePullDown,
    .menuEntry = writeMenuEntry,
    .menuSeparator = writeMenuSeparator,
    .treeEntry = writeFreeTreeEntry,
    .listEntry = writeFreeListEntry,
};
