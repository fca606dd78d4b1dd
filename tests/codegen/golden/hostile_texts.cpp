// Program hostile_texts
// Last created on DATE
// Using ORBAWIDG Designer Version  v8.5

// Global Definitions
#include <menu-c.h>

//Function Definitions
void GenerateForm1(void);

// Widget identifier definitions
int Form1;
int Bar;
int Form1_Menu;
int Form1_File;
int Form1_Open;
int Form1_MainPanel;
int B;
int C;
int T;
int L;
int V;
int I;
int P;
int R;
int A;
int Tool;
int Y;
int Table;
int List;
int Tree;
int Apple;
int Rich;
int Pane;
int callid;
void GenerateForm1(void)
{
   int ISTBAR[32];
   static OARRAYCELL arrayattribs;

// Set up master window Form1
   Form1 = owCreateMasterWindow(200, 130, 400, 550, OALL, "it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\"
              	, owVpos,OTOP, owIconFormat,ODLLICON,owIconFile,"Gee",0);

// Create Statusbar for Form1
   ISTBAR[0]=100;
   ISTBAR[1]=100;
   Bar=owCreateStatusBar(Form1, owPanes,2,owSizes,ISTBAR,0);
   owSetStatusBarText(Bar,0,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir" );
   owSetStatusBarText(Bar,1,"end\\" );

// Create menu structure for Form1

// Create menu bar Form1_Menu child of Form1
   Form1_Menu = owCreateMenuBar(Form1);
   Form1_File = owCreateMenuEntry(Form1_Menu, "it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir", owAccel,0,owHelp,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\",0);
   Form1_Open = owCreateMenuEntry(Form1_Menu, "it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\", owAccel,0,owHelp,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir",0);

// Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 400, 550
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);

// Create button B child of Form1_MainPanel
   B = owCreatePushButton(Form1_MainPanel, 10, 20, 75, 25, "it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\"
              	,owHelp,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\"              	, owType,OSTANDARD, owAccel,0
              	, owOnCol,0, owOffCol,0, owTextCol,0, owTabList,OON, owVpos,OTOP, 0);

// Create toggle button C child of Form1_MainPanel
   C = owCreateToggleButton(Form1_MainPanel, 10, 20, 100, 25, "it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\", 0
              	,owHelp,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\"              	, owType,OBEVELSQUARE, owAccel,0
              	, owOnCol,0, owOffCol,0, owTextCol,1, owTabList,OON, owVpos,OTOP, 0);

// Create text widget T child of Form1_MainPanel
   T = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 25,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\ ", 255, OEDIT
              	,owHelp,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\"              	, owEntryType,OSTANDARD, owBack1Col,0, owBack2Col,0, owTextCol,16
              	, owScrollMode,OVERTICAL, owTabList,OON, owVpos,OTOP, 0);

// Create text widget L child of Form1_MainPanel
   L = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 25,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\ ", 255, ODISPLAY
              	,owHelp,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\"              	, owEntryType,OSTANDARD, owBack1Col,0, owBack2Col,12, owTextCol,16
              	, owScrollMode,OVERTICAL, owTabList,OON, owVpos,OTOP, 0);

// Create value entry V child of Form1_MainPanel
   V = owCreateValueEntry(Form1_MainPanel, 10, 20, 100, 25, 0.00000, 8, 3, OEDIT
              	, owVmin,0.00000, owVmax,0.00000
              	,owHelp,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\"              	, owType,ODECIMAL, owSign,ODEFAULT, owJustify,OLEFT
              	, owBack1Col,0, owBack2Col,0, owTextCol,0, owTabList,OON, owVpos,OTOP, 0);

// Create icon I child of Form1_MainPanel
   I = owCreateIcon(Form1_MainPanel, 10, 20, 50, 50,"Gee", 4, 0
              	,owHelp,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\"              	, owType,OBUTTON, owLabel,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\", owTabList,OON, owVpos,OTOP, 0);

// Create panel P child of Form1_MainPanel
   P = owCreatePanel(Form1_MainPanel, 10, 20, 175, 125
              	,owHelp,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\"              	, owTitle,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\" ,owType,OINVERSECHISEL
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0
              	, owScrollMode,ONOBARS, owTabList,OON, owVpos,OTOP, 0);

// Create radio box child R child of Form1_MainPanel
   R = owCreateRadioBox(Form1_MainPanel, 10, 20, 175, 125
              	, owType,OFREEFORM, owTitle,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\", owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0, owVpos,OTOP, 0);

// Create text array A child of Form1_MainPanel
   A = owCreateTextArray(Form1_MainPanel, 10, 20, 150, 150, 10, 10
              	,owHelp,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\"              	, owXtext,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\", owYtext,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\"
              	, owAxisW,-1, owAxisH,-1, owXjust,OCENTRE, owYjust,OCENTRE, owScrollMode,OBOTHBARS, owBorderType,OPROJECTED
              	, owAxisBackColour,12, owXtextColour,1, owYtextColour,1, owGridBackColour,0
              	, owCellBorderColour,0, owCellBorderLineType,2, owSelectedCellColour,0
, owTabList,OOFF, owTabAction,OON, owVpos,OTOP, 0);
   owEnqCellAttribs(A, 1, 1, &arrayattribs);
   arrayattribs.width=44;
   arrayattribs.height=22;
   owSetCellAttribs(A, 0, 0, &arrayattribs);

// Create ToolBar Tool child of Form1
   Tool = owCreateToolBar(Form1, OTOP, 35, owQuitMode,OHIDE, owTitleFlag,OTITLE, owTitle,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\");

// Create TTY entry Y child of Form1_MainPanel
   Y = owCreateTTYEntry(Form1_MainPanel, 10, 20, 150, 150, 80,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\ "
              	,owHelp,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\"              	, owPrompt,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\", owOffCol,0, owOnCol,0, owTextCol,0, owVpos,OTOP, 0);

// Create table box view Table child of Form1_MainPanel
   Table = owCreateTableBox(Form1_MainPanel, 10, 20, 225, 100
              	, owVpos,OTOP, 0);
   owAddTableBoxColumn(Table, 1, 44, owLabel,"it's \"quoted\" 100% %s ");
   owAddTableBoxColumn(Table, 2, 44, owLabel," & ö日 C:\\Users\\dir|line \\");
   owAddTableBoxColumn(Table, 3, 44);
   owAddTableBoxColumn(Table, 4, 44);
   owAddTableBoxColumn(Table, 5, 44);

// Create list box List child of Form1_MainPanel
   List = owCreateListBox(Form1_MainPanel, 10, 20, 125, 75, ONONE
              	, owType,OSINGLECHOICE, owStyle,OEXACT, owSort,OUNSORTED, owOffCol,0, owOnCol,0, owTextCol,0
              	, owTabList,OON, owVpos,OTOP, 0);

// Create entries for list box List
   owSetListEntry(List, OADD, owString,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir",0);
   owSetListEntry(List, OADD, owString,"end\\",0);

// Create tree view Tree child of Form1_MainPanel
   Tree = owCreateTreeViewBox(Form1_MainPanel, 10, 20, 150, 150
              	, owVpos,OTOP, 0);

// Create entries for tree view Tree
   Apple = owCreateTreeEntry(Tree, OLASTCHILD, "it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\",0);

// Create text widget Rich child of Form1_MainPanel
   Rich = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 25,"{\\rtf1\\pard it's \"rich\"\\par|} ", 255, OEDIT
              	, owEntryType,ORICHEDIT, owBack1Col,0, owBack2Col,0, owTextCol,16
              	, owScrollMode,OVERTICAL, owTabList,OON, owVpos,OTOP, 0);

// Create Docking Pane Pane child of Form1
   Pane = owCreateDockingPane(Form1, OLEFTSIDE, 10, 20, 150, 150, owQuitMode,OHIDE, owTitleFlag,OTITLE, owTitle,"it's \"quoted\" 100% %s | & ö日 C:\\Users\\dir|line \\");
}
// Global Routines
#if defined(MWIN) || defined(GUIWIN)
int PASCAL WinMain (HINSTANCE hInstance, HINSTANCE hPrevInstance,
			 LPSTR lpszCmdParam, int nCmdShow)
#else
int main ()
#endif
{


// Initialise Orba, Device & Menu
   oOpenOrba();
   oOglwin();
   owInitializeMenu();

// Define required grid
   owDefineGuiGrid(36,27);
   owSetGuiGridMode(0);

// Generate Forms
   GenerateForm1();

// Start management
   owManage();

// Action loop
   do {
      owAction(&callid);

// Code to handle callbacks

   } while (callid != -1);

// Close device MENU and ORBA, and end program
   owCloseMenu();
   oCloseDevice();
   oCloseOrba();

return 0;
}
