// The C program: prototypes and identifiers, one routine for each form, the main function.

#include "codegen/c_language.h"
#include "codegen/generation.h"
#include "codegen/library_names.h"
#include "codegen/quotes.h"

#include "project/preferences.h"
#include "project/tree.h"

namespace {

template <class Visit> void eachForm(const Generation& g, Visit visit) {
    for (const WidgetNode* form : g.forms) visit(*form);
}

void writeDefinitions(Generation& g) {
    write(g, "// Global Definitions\n");
    if (checksConfiguration()) write(g, "extern \"C\" int orbcfg_(int *,char *,int);\n");
    write(g, "#include <menu-c.h>\n\n");
    writeBlock(g, BLOCK_GLOBAL_DEFINITIONS);
    write(g, "//Function Definitions\n");
    eachForm(g, [&](const WidgetNode& form) { write(g, "void Generate%s(void);\n", form.name); });
    write(g, "\n// Widget identifier definitions\n");
    if (checksConfiguration()) {
        write(g, "char %s[256];\n", preferences.configDirExpr);
        write(g, "int configstatus;\n");
    }
    eachForm(g, [&](const WidgetNode& form) { writeIdentifiers(g, form); });
    write(g, "int callid;\n");
}

void writeMainHead(Generation& g) {
    write(g, "#if defined(MWIN) || defined(GUIWIN)\n");
    write(g, "int PASCAL WinMain (HINSTANCE hInstance, HINSTANCE hPrevInstance,\n");
    write(g, "\t\t\t LPSTR lpszCmdParam, int nCmdShow)\n");
    write(g, "#else\n");
    write(g, "int main ()\n");
    write(g, "#endif\n");
    write(g, "{\n\n");
    writeBlock(g, BLOCK_LOCAL_VARIABLES);
    if (g.windowCallbacks) write(g, "   OACTION owdactlist;\n");
    if (project.scalable != 0) write(g, "   int resx,resy,xp,yp,xg,yg,px,py,grx,gry;\n");
    if (g.windows && project.doubleBuffering == 1) {
        write(g, "   int owpty;\n");
        write(g, "   ODIM owpaper;\n");
    }
}

void writeOpening(Generation& g) {
    write(g, "\n// Initialise Orba, Device & Menu\n");
    if (checksConfiguration()) {
        const std::string& folder = preferences.configDirExpr;
        write(g, "   orbcfg_(&configstatus,%s,strlen(%s));\n", folder, folder);
        write(g, "   if(configstatus != 0) {\n");
        write(g,
              "      owDisplayErrorBox(\"The file ORBA.CON is invalid or has not been found in the directory\",%s);\n",
              folder);
        write(g, "      exit(1);\n");
        write(g, "   }\n");
    } else {
        write(g, "   oOpenOrba();\n");
    }
    write(g, project.projectPlatform == 'x' ? "   oGuiwin();\n" : "   oOglwin();\n");
    if (g.windows && project.doubleBuffering == 1) {
        write(g, "   oEnqDrawingLimits(owpaper,&owpty);\n");
        write(g, "   oSetDrawingLimits(owpaper,0);\n");
    }
    write(g, "   owInitializeMenu();\n");
}

void writeGrid(Generation& g) {
    if (project.scalable != 0) {
        write(g, "\n// Calculate required grid dimensions \n");
        write(g, "   owEnqGuiGrid(&xg,&yg,&xp,&yp);\n");
        write(g, "   resx=xg*xp; resy=yg*yp;\n");
        write(g, "   px=resx/%2d; py=resy/%2d;\n", project.gridHoriz, project.gridVert);
        write(g, "   grx=800/px; gry=600/py;\n");
        write(g, "   owDefineGuiGrid(grx,gry);\n");
    } else {
        write(g, "\n// Define required grid\n");
        write(g, "   owDefineGuiGrid(%2d,%2d);\n", project.gridHoriz, project.gridVert);
    }
    if (g.windows) write(g, "   owSetGuiGridMode(%1d);\n", project.gridMode);
}

void writeProgramHead(Generation& g) {
    writeDefinitions(g);
    eachForm(g, [&](const WidgetNode& form) { writeFormRoutine(g, form); });
    write(g, "}\n"); // of the last form routine
    write(g, "// Global Routines\n");
    writeBlock(g, BLOCK_GLOBAL_ROUTINES);
    writeMainHead(g);
    writeOpening(g);
    writeGrid(g);
    writeUserColours(g);
    write(g, "\n// Generate Forms\n");
    writeGenerateCalls(g);
    writeUserColours(g);
    writeBlock(g, BLOCK_INITIALIZATION);
    write(g, "\n// Start management\n");
    write(g, "   owManage();\n");
    if (const WidgetNode* active = activeOnInit(g)) {
        write(g, "\n//   Set active widget\n");
        write(g, "   owSetActiveWidget(%s);\n", active->name);
    }
}

void writeActionLoop(Generation& g) {
    writeBlock(g, BLOCK_PRE_ACTION);
    write(g, "\n// Action loop\n");
    write(g, "   do {\n");
    write(g, "      owAction(&callid);\n");
    writeBlock(g, BLOCK_LOOP_START);
    write(g, "\n// Code to handle callbacks\n");
    writeDispatch(g);
    writeBlock(g, BLOCK_LOOP_END);
    write(g, "\n   } while (callid != -1);\n");
}

void writeTermination(Generation& g) {
    writeBlock(g, BLOCK_TERMINATION);
    write(g, "\n// Close device MENU and ORBA, and end program\n");
    write(g, "   owCloseMenu();\n");
    write(g, "   oCloseDevice();\n");
    write(g, "   oCloseOrba();\n");
    write(g, "\nreturn 0;\n");
    write(g, "}\n");
}

void writeMenuBar(Generation& g, const MenuEntryRec& bar, const WidgetNode& form) {
    write(g, "\n// Create menu bar %s child of %s\n", bar.name, form.name);
    write(g, "   %s = owCreateMenuBar(%s);\n", bar.name, form.name);
}

void writePullDown(Generation& g, const MenuEntryRec& menu, std::string_view above) {
    write(g, "\n// Create pull-down menu %s child of %s\n", menu.name, above);
    write(g, "   %s = owCreatePullDownMenu(%s);\n", menu.name, above);
}

void writeMenuEntry(Generation& g, const MenuEntryRec& entry, std::string_view owner) {
    write(g, "   %s = owCreateMenuEntry(%s, \"%s\", owAccel,%d", entry.name, owner, cText(entry.label), entry.accel);
    if (g.windows) {
        if (!entry.help.empty()) write(g, ",owHelp,\"%s\"", cText(entry.help));
        writeIconResource(g, "owUncheckIcon", entry.icon1);
        writeIconResource(g, "owCheckIcon", entry.icon2);
        writeIconResource(g, "owGreyIcon", entry.icon3);
    }
    write(g, ",0);\n");
}

void writeMenuSeparator(Generation& g, const MenuEntryRec& separator, std::string_view owner) {
    write(g, "   %s = owCreateMenuSeparator(%s);\n", separator.name, owner);
}

constexpr BlockComments BLOCK_COMMENTS = {
    "",
    "", // the comment of the global routines stands in any case
    "// User defined variables\n",
    "\n// Initialization code\n",
    "\n//   Pre Action Code\n",
    "\n// Start of Action Loop\n",
    "\n// End of Action Loop\n",
    "\n// Program termination code\n",
    "// Additional User Routines/Functions\n",
};

constexpr DispatchTexts DISPATCH = {
    .ifHead = "      if (callid == (",
    .elseHead = "      else if (callid == (",
    .headEnd = ")) {\n",
    .ifMasterClosed = "      if(callid == -1) {\n",
    .elseMasterClosed = "      else if(callid == -1) {\n",
    .masterClosedEnd = "         }\n",
    .branchEnd = "         }\n",
    .enquireState = "         owEnqActionState(&owdactlist);\n",
    .ifStatus = "         if(owdactlist.status == ",
    .elseStatus = "         else if(owdactlist.status == ",
    .statusEnd = ") {\n",
    .statusCodeEnd = "         }\n",
    .statusChainEnd = "",
    .chainEnd = "      }\n\n",
};

// Words that no variable of a C++ source may have for a name.
constexpr std::string_view RESERVED_WORDS[] = {
    "alignas",   "alignof",  "and",      "and_eq",    "asm",          "auto",          "bitand",
    "bitor",     "bool",     "break",    "case",      "catch",        "char",          "char16_t",
    "char32_t",  "class",    "compl",    "const",     "const_cast",   "constexpr",     "continue",
    "decltype",  "default",  "delete",   "do",        "double",       "dynamic_cast",  "else",
    "enum",      "explicit", "export",   "extern",    "false",        "float",         "for",
    "friend",    "goto",     "if",       "inline",    "int",          "long",          "mutable",
    "namespace", "new",      "noexcept", "not",       "not_eq",       "nullptr",       "operator",
    "or",        "or_eq",    "private",  "protected", "public",       "register",      "reinterpret_cast",
    "return",    "short",    "signed",   "sizeof",    "static",       "static_assert", "static_cast",
    "struct",    "switch",   "template", "this",      "thread_local", "throw",         "true",
    "try",       "typedef",  "typeid",   "typename",  "union",        "unsigned",      "using",
    "virtual",   "void",     "volatile", "wchar_t",   "while",        "xor",           "xor_eq"};

// Names that the generated program declares itself.
constexpr std::string_view OWN_NAMES[] = {"callid", "main"};

} // namespace

const Language C_LANGUAGE = {
    .number = LANGUAGE_C,
    .split = SPLIT_C,
    .commentsLikeFree = true,
    .startsFromBlack = false,
    .parentConstants = false,
    .sliderHelp = false,
    .reservedWords = RESERVED_WORDS,
    .ownNames = OWN_NAMES,
    .libraryNames = libraryNames,
    .blockComments = BLOCK_COMMENTS,
    .declareWidget = "int %s;\n",
    .declareEntry = "int %s;\n",
    .defineCalls =
        {"   owDefineCallback(%s, (%s));\n", "   owDefineSelectCallback(%s,(%s+OIDENT));\n",
         "   owDefineMoveCallback(%s,(%s+2*OIDENT));\n", "   owDefineExposeCallback(%s,(%s+3*OIDENT));\n",
         "   owDefineChangeCallback(%s,(%s+4*OIDENT));\n", "   owDefineDragDropCallback(%s,(%s+5*OIDENT));\n",
         "   owDefineDoubleClickCallback(%s,(%s+6*OIDENT));\n", "   owDefineFileDropCallback(%s,(%s+7*OIDENT));\n",
         "   owDefineDragSelectCallback(%s,(%s+8*OIDENT));\n", "   owDefineDragMoveCallback(%s,(%s+9*OIDENT));\n",
         "   owDefineValueErrorCallback(%s,(%s+10*OIDENT));\n", "   owDefineLinkCallback(%s,(%s+11*OIDENT));\n"},
    .defineEntryCalls = {"   owDefineCallback(%s, %s);\n", "   owDefineSelectCallback(%s, (%s+OIDENT));\n",
                         "   owDefineChangeCallback(%s, (%s+4*OIDENT));\n",
                         "   owDefineDragDropCallback(%s, (%s+5*OIDENT));\n",
                         "   owDefineDoubleClickCallback(%s, (%s+6*OIDENT));\n"},
    .setStatus = "   owSetWidgetStatus(%s, %s);\n",
    .statusNames = WIDGET_STATUS,
    .colourComment = "\n// Define user defined colour indices used\n",
    .defineColour = "   oDefineRGB(%d, %f, %f, %f);\n",
    .generateForm = "   Generate%s();\n",
    .listComment = "\n// Create entries for list box %s\n",
    .comboComment = "\n// Create entries for combo box %s\n",
    .treeComment = "\n// Create entries for tree view %s\n",
    .dispatch = DISPATCH,
    .programHead = writeProgramHead,
    .actionLoop = writeActionLoop,
    .termination = writeTermination,
    .creation = C_CREATION,
    .furtherProperties = nullptr,
    .menuBar = writeMenuBar,
    .pullDown = writePullDown,
    .menuEntry = writeMenuEntry,
    .menuSeparator = writeMenuSeparator,
    .treeEntry = writeCTreeEntry,
    .listEntry = writeCListEntry,
};
