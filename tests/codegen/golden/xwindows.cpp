// Program xwindows
// Last created on DATE
// Using ORBAWIDG Designer Version  v8.5

// Global Definitions
#include <menu-c.h>

//Function Definitions
void GenerateForm1(void);

// Widget identifier definitions
int Form1;
int Form1_Menubar;
int OpenEntry;
int Form1_MainPanel;
int Form1_Icon1;
int Form1_Icon2;
int Form1_Icon3;
int Form1_Text1;
int Form1_Value1;
int Form1_Panel1;
int Form1_Graphics1;
int Form1_TxtArray1;
int callid;
void GenerateForm1(void)
{
   static OLIMIT Graphics_frame;
   static OARRAYCELL arrayattribs;

// Set up master window Form1
   Form1 = owCreateMasterWindow(9, 6, 18, 25, OALL, "Form 1"
              	, owVpos,OTOP, owIconFormat,OMENUICON,owIconFile,"MENUBIG1.ICN",owIconID,84,0);

// Create menu structure for Form1

// Create menu bar Form1_Menubar child of Form1
   Form1_Menubar = owCreateMenuBar(Form1);
   OpenEntry = owCreateMenuEntry(Form1_Menubar, "Open", owAccel,79,0);

// Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 18, 25
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);

// Create icon Form1_Icon1 child of Form1_MainPanel
   Form1_Icon1 = owCreateIcon(Form1_MainPanel, 0, 0, 2, 2,"MENUSML1.ICN", 0, 2
              	, owType,OBUTTON, owTabList,OON, owVpos,OTOP, 0);

// Create icon Form1_Icon2 child of Form1_MainPanel
   Form1_Icon2 = owCreateIcon(Form1_MainPanel, 0, 0, 2, 2,"Other", 0, 3
              	, owType,OBUTTON, owTabList,OON, owVpos,OTOP, 0);

// Create icon Form1_Icon3 child of Form1_MainPanel
   Form1_Icon3 = owCreateIcon(Form1_MainPanel, 0, 0, 2, 2,"x", 4, 0
              	, owType,OBUTTON, owLabel,"x", owTabList,OON, owVpos,OTOP, 0);

// Create text widget Form1_Text1 child of Form1_MainPanel
   Form1_Text1 = owCreateTextEntry(Form1_MainPanel, 0, 0, 4, 1," ", 255, OEDIT
              	, owEntryType,OSTANDARD, owBack1Col,0, owBack2Col,0, owTextCol,16
              	, owTabList,OON, owVpos,OTOP, 0);

// Create value entry Form1_Value1 child of Form1_MainPanel
   Form1_Value1 = owCreateValueEntry(Form1_MainPanel, 0, 0, 4, 1, 0.00000, 8, 3, OEDIT
              	, owVmin,0.00000, owVmax,0.00000
              	, owType,ODECIMAL, owSign,ODEFAULT, owJustify,OLEFT
              	, owBack1Col,0, owBack2Col,0, owTextCol,0, owTabList,OON, owVpos,OTOP, 0);

// Create panel Form1_Panel1 child of Form1_MainPanel
   Form1_Panel1 = owCreatePanel(Form1_MainPanel, 0, 0, 7, 5
              	, owTitle,"" ,owType,OINVERSECHISEL
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0
              	, owTabList,OON, owVpos,OTOP, 0);

// Create graphics frame Form1_Graphics1 child of Form1_MainPanel

// Define Graphics Frame limits
   Graphics_frame.xmin = 0.000000;
   Graphics_frame.xmax = 1000.000000;
   Graphics_frame.ymin = 0.000000;
   Graphics_frame.ymax = 750.000000;
   Form1_Graphics1 = owCreateGraphicsFrame(Form1_MainPanel, 0, 0, 5, 3, &Graphics_frame
              	, owVpos,OTOP, 0);

// Create text array Form1_TxtArray1 child of Form1_MainPanel
   Form1_TxtArray1 = owCreateTextArray(Form1_MainPanel, 0, 0, 6, 6, 2, 2
              	, owXtext,"*digits", owYtext,"*digits"
              	, owAxisW,-1, owAxisH,-1, owXjust,OCENTRE, owYjust,OCENTRE, owTabList,OOFF, owTabAction,OON, owVpos,OTOP, 0);
   owEnqCellAttribs(Form1_TxtArray1, 1, 1, &arrayattribs);
   arrayattribs.width=5;
   arrayattribs.height=2;
   owSetCellAttribs(Form1_TxtArray1, 1, 1, &arrayattribs);
   arrayattribs.width=5;
   arrayattribs.height=3;
   owSetCellAttribs(Form1_TxtArray1, 2, 2, &arrayattribs);
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
   oGuiwin();
   owInitializeMenu();

// Define required grid
   owDefineGuiGrid(36,27);

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
