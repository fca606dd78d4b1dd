// Program text
// Last created on DATE
// Using ORBAWIDG Designer Version  v8.5

// Global Definitions
#include <menu-c.h>

//Function Definitions
void GenerateForm1(void);

// Widget identifier definitions
int Form1;
int Form1_MainPanel;
int Form1_Text1;
int Form1_Text2;
int Form1_Text3;
int Form1_Text4;
int Form1_Text5;
int Form1_Text6;
int Form1_Text7;
int Form1_Value1;
int Form1_Value2;
int Form1_Value3;
int Form1_Value4;
int Form1_TTY1;
int Form1_TTY2;
int callid;
void GenerateForm1(void)
{

// Set up master window Form1
   Form1 = owCreateMasterWindow(200, 130, 400, 550, OALL, "Form 1"
              	, owVpos,OTOP, owIconFormat,ODLLICON,owIconFile,"Gee",0);

// Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 400, 550
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);

// Create text widget Form1_Text1 child of Form1_MainPanel
   Form1_Text1 = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 25,"One line ", 255, OEDIT
              	, owEntryType,OSTANDARD, owBack1Col,0, owBack2Col,0, owTextCol,16
              	, owScrollMode,OVERTICAL, owTabList,OON, owVpos,OTOP, 0);

// Create text widget Form1_Text2 child of Form1_MainPanel
   Form1_Text2 = owCreateTextEntry(Form1_MainPanel, 10, 20, 0, 0,"first|second \"quoted\"|C:\\data\\new ", -40, OEDIT
              	,owHelp,"Several lines", owHelpJustify,ORIGHT
              	, owEntryType,OSECURITY, owSize,90, owJustify,OCENTRE, owOLEInserts,OOFF, owAutoURL,OON, owBack1Col,5, owBack2Col,6, owTextCol,7
              	, owScrollMode,OBOTHBARS, owBorderType,OBLACK3D, owReadOnly,OON, owTabList,OON, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, 0);
   owSetFontAttribs(Form1_Text2, 0);

// Create text widget Form1_Text3 child of Form1_MainPanel
   Form1_Text3 = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 25,"Rich ", 255, OEDIT
              	, owEntryType,ORICHEDIT, owJustify,ORIGHT, owBack1Col,0, owBack2Col,0, owTextCol,16
              	, owScrollMode,OHORIZONTAL, owBorderType,OBLACK2D, owTabList,OON, owVpos,OTOP, 0);
   owSetFontAttribs(Form1_Text3 ,owBold,1, owCharSet,OTHAISET, 0);

// Create text widget Form1_Text4 child of Form1_MainPanel
   Form1_Text4 = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 25," ", 255, OEDIT
              	, owEntryType,OSTANDARD, owBack1Col,0, owBack2Col,0, owTextCol,16
              	, owScrollMode,ONOBARS, owBorderType,ONOBORDER, owTabList,OON, owVpos,OTOP, 0);
   owSetFontAttribs(Form1_Text4, owFontFace,"Arial", owPointSize,14, owBold,OON, owItalic,OON, owUnderline,OON, owStrikeout,OON, owCharSet,OANSISET, 0);
   owSetWidgetStatus(Form1_Text4, OUNSELECTABLE);

// Create text widget Form1_Text5 child of Form1_MainPanel
   Form1_Text5 = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 60,"it's a label|of two lines ", 255, ODISPLAY
              	, owEntryType,OSTANDARD, owBack1Col,0, owBack2Col,12, owTextCol,16
              	, owScrollMode,OVERTICAL, owTabList,OON, owVpos,OTOP, 0);

// Create text widget Form1_Text6 child of Form1_MainPanel
   Form1_Text6 = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 60,"aligned|lines ", 255, ODISPLAY
              	, owEntryType,OSTANDARD, owJustify,ORIGHT, owBack1Col,0, owBack2Col,12, owTextCol,16
              	, owScrollMode,ONOBARS, owTabList,OON, owVpos,OTOP, 0);
   owSetFontAttribs(Form1_Text6, 0);

// Create text widget Form1_Text7 child of Form1_MainPanel
   Form1_Text7 = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 25,"ends in \\ ", 255, ODISPLAY
              	, owEntryType,OSTANDARD, owJustify,OCENTRE, owBack1Col,0, owBack2Col,12, owTextCol,16
              	, owScrollMode,OVERTICAL, owTabList,OON, owVpos,OTOP, 0);

// Create value entry Form1_Value1 child of Form1_MainPanel
   Form1_Value1 = owCreateValueEntry(Form1_MainPanel, 10, 20, 100, 25, 1.50000, 8, 3, OEDIT
              	, owVmin,-100.000, owVmax,123457.
              	, owType,ODECIMAL, owSign,ODEFAULT, owJustify,OLEFT
              	, owBack1Col,0, owBack2Col,0, owTextCol,0, owTabList,OON, owVpos,OTOP, 0);

// Create value entry Form1_Value2 child of Form1_MainPanel
   Form1_Value2 = owCreateValueEntry(Form1_MainPanel, 10, 20, 0, 25, 1.23400e-05, 12, 2, OEDIT
              	, owVmin,-2.50000e+09, owVmax,1.23457e+06
              	,owHelp,"Enter a value", owHelpJustify,OLEFT
              	, owType,OEURO, owSign,OREDCREDIT, owSize,70, owJustify,ORIGHT
              	, owBack1Col,3, owBack2Col,4, owTextCol,5, owBorderType,ONOBORDER, owCharSet,OALPHANUMERIC, owReadOnly,OON, owTabList,OOFF, owVpos,OTOP, owExpand,OON, 0);
   owSetFontAttribs(Form1_Value2, 0);

// Create value entry Form1_Value3 child of Form1_MainPanel
   Form1_Value3 = owCreateValueEntry(Form1_MainPanel, 10, 20, 100, 25, 100000., 8, 3, ODISPLAY
              	, owType,OCELCIUS, owSign,OCREDIT1, owJustify,OLEFT
              	, owBack1Col,0, owBack2Col,0, owTextCol,0, owTabList,OON, owVpos,OTOP, 0);
   owSetFontAttribs(Form1_Value3 ,owStrikeout,1, 0);
   owSetWidgetStatus(Form1_Value3, OHIDDEN);

// Create value entry Form1_Value4 child of Form1_MainPanel
   Form1_Value4 = owCreateValueEntry(Form1_MainPanel, 10, 20, 100, 25, 1.00000e+06, 8, 3, ODISPLAY
              	, owType,ODECIMAL, owSign,OCREDIT2, owJustify,OCENTRE
              	, owBack1Col,0, owBack2Col,0, owTextCol,0, owTabList,OON, owVpos,OTOP, 0);

// Create TTY entry Form1_TTY1 child of Form1_MainPanel
   Form1_TTY1 = owCreateTTYEntry(Form1_MainPanel, 10, 20, 0, 150, 24,"Ready|it's \"on\" "
              	,owHelp,"Type here"              	, owPrompt,"Prompt>", owOffCol,2, owOnCol,3, owTextCol,4, owReadOnly,OON, owHpos,OCENTRE, owVpos,OTOP, owExpand,2, 0);
   owSetWidgetStatus(Form1_TTY1, OUNSELECTABLE);

// Create TTY entry Form1_TTY2 child of Form1_MainPanel
   Form1_TTY2 = owCreateTTYEntry(Form1_MainPanel, 10, 20, 150, 150, 80," "
              	, owOffCol,0, owOnCol,0, owTextCol,1, owVpos,OTOP, 0);
   owSetFontAttribs(Form1_TTY2 ,owFontFace,"Courier New" ,owPointSize,10, 0);
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
