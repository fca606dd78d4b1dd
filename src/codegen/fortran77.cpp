// The Fortran 77 program in fixed form: one module with all form routines, the main program.

#include "codegen/fortran77.h"
#include "codegen/generation.h"
#include "codegen/library_names.h"
#include "codegen/quotes.h"

#include "project/tree.h"

namespace {

template <class Visit> void eachForm(const Generation& g, Visit visit) {
    for (const WidgetNode* form : g.forms) visit(*form);
}

void writeModule(Generation& g) {
    write(g, "C Global Definitions\n");
    write(g, "      MODULE WDESIGN\n");
    write(g, "      USE MENU_F77\n");
    write(g, "      INTEGER :: OIDENT=50000\n");
    writeBlock(g, BLOCK_GLOBAL_DEFINITIONS);
    write(g, "C Widget identifier definitions\n");
    eachForm(g, [&](const WidgetNode& form) { writeIdentifiers(g, form); });
    if (g.windows) write(g, "      INTEGER ISTBAR(32)\n");
    write(g, "      INTEGER CALLID\n");
    write(g, "      CONTAINS\n");
    eachForm(g, [&](const WidgetNode& form) { writeFormRoutine(g, form); });
    write(g, "      RETURN\n"); // of the last form routine
    write(g, "      END SUBROUTINE\n");
    write(g, "C     Global Routines\n");
    writeBlock(g, BLOCK_GLOBAL_ROUTINES);
    write(g, "      END MODULE\n\n");
}

void writeDeclarations(Generation& g) {
    write(g, "C     PROGRAM %s\n", g.base);
    write(g, "      USE WDESIGN\n");
    write(g, "      USE MENU_F77\n\n");
    writeBlock(g, BLOCK_LOCAL_VARIABLES);
    if (g.windowCallbacks) {
        write(g, "      DIMENSION OWDARGS(80),IOWDARGS(80)\n");
        write(g, "      CHARACTER OWDTEXT*80\n");
    }
    if (g.windows && project.doubleBuffering == 1) {
        write(g, "      REAL XPAP,YPAP\n");
        write(g, "      INTEGER IP\n");
    }
}

void writeOpening(Generation& g) {
    write(g, "C initialise Orba,Device & Menu\n");
    write(g, "      CALL ORBA\n");
    write(g, project.projectPlatform == 'x' ? "      CALL GUIWIN\n" : "      CALL OGLWIN\n");
    if (g.windows && project.doubleBuffering == 1) {
        write(g, "      CALL PAPENQ(XPAP,YPAP,IP)\n");
        write(g, "      CALL DEVPAP(XPAP,YPAP,0)\n");
    }
    write(g, "      CALL MENU\n");
}

void writeGrid(Generation& g) {
    if (project.scalable != 0) {
        write(g, "\nC Calculate required grid dimensions\n");
        write(g, "      CALL GRDENQ(IXG,IYG,IXP,IYP)\n");
        write(g, "      IRESX=IXG*IXP\n");
        write(g, "      IRESY=IYG*IYP\n");
        write(g, "      IPX=IRESX/%2d\n", project.gridHoriz);
        write(g, "      IPY=IRESY/%2d\n", project.gridVert);
        write(g, "      IGX=800/IPX\n");
        write(g, "      IGY=600/IPY\n");
        write(g, "      CALL GUIGRD(IGX,IGY)\n");
    } else {
        write(g, "\nC Define required grid\n");
        write(g, "      CALL GUIGRD(%2d,%2d)\n", project.gridHoriz, project.gridVert);
    }
    if (g.windows) write(g, "      CALL GRDMOD(%1d)\n", project.gridMode);
}

void writeProgramHead(Generation& g) {
    writeModule(g);
    writeDeclarations(g);
    writeOpening(g);
    writeGrid(g);
    writeUserColours(g);
    write(g, "\nC Generate Forms\n");
    writeGenerateCalls(g);
    writeUserColours(g);
    writeBlock(g, BLOCK_INITIALIZATION);
    write(g, "C start management\n");
    write(g, "      CALL MANAGE\n");
    if (const WidgetNode* active = activeOnInit(g)) {
        write(g, "\n!   Set active widget\n");
        write(g, "      call ACTWID(%s)\n", active->name);
    }
}

void writeActionLoop(Generation& g) {
    writeBlock(g, BLOCK_PRE_ACTION);
    write(g, "C action loop\n");
    write(g, "10    CALL ACTION(CALLID)\n");
    writeBlock(g, BLOCK_LOOP_START);
    write(g, "C code to handle callbacks\n");
    writeDispatch(g);
    writeBlock(g, BLOCK_LOOP_END);
    write(g, "      IF(CALLID.NE.-1)GOTO 10\n");
    write(g, "C\n");
    write(g, "999   CONTINUE\n");
}

void writeTermination(Generation& g) {
    writeBlock(g, BLOCK_TERMINATION);
    write(g, "C close menu suspend device close orba and end program\n");
    write(g, "      CALL MENEND\n");
    write(g, "      CALL DEVEND\n");
    write(g, "      CALL ORBEND\n");
    write(g, "      STOP\n");
    write(g, "      END\n");
}

void writeMenuBar(Generation& g, const MenuEntryRec& bar, const WidgetNode& form) {
    write(g, "C create menu bar %s child of %s\n", bar.name, form.name);
    write(g, "      CALL MENBAR(%s,-1,-1,%s)\n", form.name, bar.name);
}

void writePullDown(Generation& g, const MenuEntryRec& menu, std::string_view above) {
    write(g, "C create pull-down menu %s child of %s\n", menu.name, above);
    write(g, "      CALL WIDTTL(0)\n");
    write(g, "      CALL MENPOP(%s,0,0,%s)\n", above, menu.name);
}

// An entry with a picture for its unchecked state gets all three.
void writeMenuEntry(Generation& g, const MenuEntryRec& entry, std::string_view owner) {
    write(g, "      CALL MENENT(%s,'%s',%d,%s)\n", owner, fortranText(entry.label), entry.accel, entry.name);
    if (!g.windows) return;
    writeHelpStatement(g, entry.name, entry.help);
    if (entry.icon1.empty()) return;
    writeFetchIcon(g, "iret1", entry.icon1);
    writeFetchIcon(g, "iret2", entry.icon2);
    writeFetchIcon(g, "iret3", entry.icon3);
    write(g, "      CALL GUIESC(854,%s,iret2,iret1,iret3,0,0,iret1,iret2,' ')\n", entry.name);
}

void writeMenuSeparator(Generation& g, const MenuEntryRec& separator, std::string_view owner) {
    write(g, "      CALL MENSEP(%s,%s)\n", owner, separator.name);
}

constexpr BlockComments BLOCK_COMMENTS = {
    "",
    "", // the comment of the global routines stands in any case
    "C User defined variables\n",
    "C Initialization code\n",
    "C pre action code\n",
    "\nC Start of Action Loop\n",
    "\nC End of Action Loop\n",
    "C Program termination code\n",
    "C Additional User Routines/Functions\n",
};

constexpr NamedValue STATUS_NUMBERS[] = {{-1, "-1"}, {0, "0"}, {2, "2"}};

constexpr DispatchTexts DISPATCH = {
    .ifHead = "      IF(CALLID.EQ.(",
    .elseHead = "      ELSE IF(CALLID.EQ.(",
    .headEnd = "))THEN\n",
    .ifMasterClosed = "      IF(CALLID.EQ.-1) THEN\n",
    .elseMasterClosed = "      ELSE IF(CALLID.EQ.-1) THEN\n",
    .masterClosedEnd = "",
    .branchEnd = "",
    .enquireState = "         CALL ACTENQ(ICALLID,IOWD,IOWD,IOWDSTAT,OWDX,OWDY,OWDTEXT,\n"
                    "     +        IOWD,OWDARGS,IOWDARGS)\n",
    .ifStatus = "         IF(IOWDSTAT.EQ.",
    .elseStatus = "         ELSE IF(IOWDSTAT.EQ.",
    .statusEnd = ") THEN\n",
    .statusCodeEnd = "",
    .statusChainEnd = "      END IF\n",
    .chainEnd = "      END IF\n\n",
};

// Names that the generated program declares itself.
constexpr std::string_view OWN_NAMES[] = {"wdesign", "menu_f77", "callid", "oident", "istbar"};

} // namespace

const Language FORTRAN_77 = {
    .number = LANGUAGE_F77,
    .split = SPLIT_FIXED,
    .commentsLikeFree = false,
    .startsFromBlack = true,
    .parentConstants = false,
    .sliderHelp = true,
    .reservedWords = {},
    .ownNames = OWN_NAMES,
    .libraryNames = fixedLibraryNames,
    .blockComments = BLOCK_COMMENTS,
    .declareWidget = "      INTEGER %s\n",
    .declareEntry = "      INTEGER %s\n",
    .defineCalls = {"      CALL CALLBK(%s,%s)\n", "      CALL CALLSL(%s,(%s+OIDENT))\n",
                    "      CALL CALLMV(%s,(%s+2*OIDENT))\n", "      CALL CALLEX(%s,(%s+3*OIDENT))\n",
                    "      CALL CALLCH(%s,(%s+4*OIDENT))\n", "      CALL DRAGDR(%s,(%s+5*OIDENT))\n",
                    "      CALL CALLDD(%s,(%s+6*OIDENT))\n", "      CALL CALLFD(%s,(%s+7*OIDENT))\n",
                    "      CALL DRAGSL(%s,(%s+8*OIDENT))\n", "      CALL DRAGMV(%s,(%s+9*OIDENT))\n",
                    "      CALL CALLVE(%s,(%s+10*OIDENT))\n", "      CALL CALLLK(%s,(%s+11*OIDENT))\n"},
    .defineEntryCalls = {"      CALL CALLBK(%s,%s)\n", "      CALL CALLSL(%s,(%s+OIDENT))\n",
                         "      CALL CALLCH(%s,(%s+4*OIDENT))\n", "      CALL DRAGDR(%s,(%s+5*OIDENT))\n",
                         "      CALL CALLDD(%s,(%s+6*OIDENT))\n"},
    .setStatus = "      call WIDSTA(%s, %s)\n",
    .statusNames = STATUS_NUMBERS,
    .colourComment = "C define user defined colour indices used\n",
    .defineColour = "      CALL RGBDEF(%d,%f,%f,%f)\n",
    .generateForm = "      CALL GENERATE%s\n",
    .listComment = "C create entries for list box %s\n",
    .comboComment = "C create entries for combo box %s\n",
    .treeComment = "C create entries for tree view %s\n",
    .dispatch = DISPATCH,
    .programHead = writeProgramHead,
    .actionLoop = writeActionLoop,
    .termination = writeTermination,
    .creation = FORTRAN_77_CREATION,
    .furtherProperties = writeFurtherProperties,
    .menuBar = writeMenuBar,
    .pullDown = writePullDown,
    .menuEntry = writeMenuEntry,
    .menuSeparator = writeMenuSeparator,
    .treeEntry = writeFixedTreeEntry,
    .listEntry = writeFixedListEntry,
};
