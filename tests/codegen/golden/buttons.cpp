// Program buttons
// Last created on DATE
// Using ORBAWIDG Designer Version  v8.5

// Global Definitions
#include <menu-c.h>

//Function Definitions
void GenerateForm1(void);

// Widget identifier definitions
int Form1;
int Form1_MainPanel;
int Form1_Button1;
int Form1_Button2;
int Form1_Button3;
int Form1_Toggle1;
int Form1_Toggle2;
int Form1_Radio1;
int Form1_Toggle3;
int Form1_Toggle4;
int Form1_Radio2;
int callid;
void GenerateForm1(void)
{

// Set up master window Form1
   Form1 = owCreateMasterWindow(9, 6, 18, 25, OMAXIMIZE | OQUIT, "It's a \"form\""
              	, owHpos,ORIGHT, owVpos,OTOP, owInitState,OCENTRED, owIconFormat,ODLLICON,owIconFile,"Gee",0);

// Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 18, 25
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);

// Create button Form1_Button1 child of Form1_MainPanel
   Form1_Button1 = owCreatePushButton(Form1_MainPanel, 0, 0, 3, 1, "Plain"
              	, owType,OSTANDARD, owAccel,0
              	, owOnCol,0, owOffCol,0, owTextCol,0, owTabList,OON, owVpos,OTOP, 0);
   owDefineCallback(Form1_Button1, (Form1_Button1));

// Create button Form1_Button2 child of Form1_MainPanel
   Form1_Button2 = owCreatePushButton(Form1_MainPanel, 0, 0, 0, 0, "it's"
              	,owHelp,"Press me", owHelpJustify,OLEFT
              	, owType,OUSERDEFINED, owDragMode,OON, owJustify,OLEFT, owSize,80, owAccel,65
              	, owOnCol,3, owOffCol,4, owTextCol,5, owTabList,OOFF, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, 0);
   owSetFontAttribs(Form1_Button2 ,owBold,1, 0);
   owDefineSelectCallback(Form1_Button2,(Form1_Button2+OIDENT));
   owDefineDragMoveCallback(Form1_Button2,(Form1_Button2+9*OIDENT));
   owSetWidgetStatus(Form1_Button2, OUNSELECTABLE);

// Create button Form1_Button3 child of Form1_MainPanel
   Form1_Button3 = owCreatePushButton(Form1_MainPanel, 0, 0, 3, 1, ""
, owHelpJustify,ORIGHT
              	, owType,ODEFAULTBUTTON, owJustify,ORIGHT, owAccel,0
              	, owOnCol,9, owOffCol,0, owTextCol,0, owTabList,OON, owHpos,ORIGHT, owVpos,OTOP, owExpand,5, 0);
   owSetFontAttribs(Form1_Button3 ,owFontFace,"Courier New" ,owPointSize,12 ,owItalic,1 ,owUnderline,1 ,owStrikeout,1, owCharSet,OGREEKSET, 0);
   owSetWidgetStatus(Form1_Button3, OHIDDEN);

// Create toggle button Form1_Toggle1 child of Form1_MainPanel
   Form1_Toggle1 = owCreateToggleButton(Form1_MainPanel, 0, 0, 0, 1, "Tick", 1
              	, owType,OTICKBOX, owSize,50, owAccel,84
              	, owOnCol,1, owOffCol,2, owTextCol,3, owTabList,OON, owHpos,ORIGHT, owVpos,OMIDDLE, owExpand,2, 0);
   owSetWidgetStatus(Form1_Toggle1, OCHECKED);

// Create toggle button Form1_Toggle2 child of Form1_MainPanel
   Form1_Toggle2 = owCreateToggleButton(Form1_MainPanel, 0, 0, 4, 1, "", 0
              	, owType,OBEVELSQUARE, owAccel,0
              	, owOnCol,0, owOffCol,0, owTextCol,1, owTabList,OON, owVpos,OTOP, 0);

// Create radio box child Form1_Radio1 child of Form1_MainPanel
   Form1_Radio1 = owCreateRadioBox(Form1_MainPanel, 0, 0, 7, 5
              	,owHelp,"One of these"              	, owType,OFREEFORM, owTitle,"Choose", owBorderType,OINVERSECHISEL
              	, owLineCol,7, owLineBorder,1, owFillCol,8, owFillBorder,1, owVpos,OTOP, 0);

// Create toggle button Form1_Toggle3 child of Form1_Radio1
   Form1_Toggle3 = owCreateToggleButton(Form1_Radio1, 0, 0, 4, 1, "", 0
              	, owType,O3DRADIO, owAccel,0
              	, owOnCol,0, owOffCol,0, owTextCol,1, owTabList,OON, owVpos,OTOP, 0);
   owDefineCallback(Form1_Toggle3, (Form1_Toggle3));

// Create toggle button Form1_Toggle4 child of Form1_Radio1
   Form1_Toggle4 = owCreateToggleButton(Form1_Radio1, 0, 0, 4, 1, "", 0
              	, owType,OBEVELSQUARE, owAccel,0
              	, owOnCol,0, owOffCol,0, owTextCol,1, owTabList,OON, owVpos,OTOP, 0);

// Create radio box child Form1_Radio2 child of Form1_MainPanel
   Form1_Radio2 = owCreateRadioBox(Form1_MainPanel, 0, 0, 7, 5
              	, owType,OFREEFORM, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0, owVpos,OTOP, 0);
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
   owSetGuiGridMode(1);

// Generate Forms
   GenerateForm1();

// Start management
   owManage();

//   Set active widget
   owSetActiveWidget(Form1_Toggle1);

// Action loop
   do {
      owAction(&callid);

// Code to handle callbacks
      if (callid == (Form1_Button1)) {
         callid=101;
         }
      else if (callid == (Form1_Button2+OIDENT)) {
         callid=102;
         callid=103;
         }
      else if (callid == (Form1_Button2+9*OIDENT)) {
         callid=104;
         }
      else if (callid == (Form1_Toggle3)) {
         callid=105;
      }


   } while (callid != -1);

// Close device MENU and ORBA, and end program
   owCloseMenu();
   oCloseDevice();
   oCloseOrba();

return 0;
}
