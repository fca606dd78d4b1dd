// Program lists
// Last created on DATE
// Using ORBAWIDG Designer Version  v8.5

// Global Definitions
#include <menu-c.h>

//Function Definitions
void GenerateForm1(void);

// Widget identifier definitions
int Form1;
int Form1_MainPanel;
int Form1_List1;
int Form1_List2;
int Form1_List3;
int Form1_List4;
int Form1_Combo1;
int Form1_Combo2;
int Form1_Combo3;
int Form1_Combo4;
int Form1_Combo5;
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

// Create list box Form1_List1 child of Form1_MainPanel
   Form1_List1 = owCreateListBox(Form1_MainPanel, 10, 20, 125, 75, ONONE
              	, owType,OSINGLECHOICE, owStyle,OEXACT, owSort,OUNSORTED, owOffCol,0, owOnCol,0, owTextCol,0
              	, owTabList,OON, owVpos,OTOP, 0);

// Create entries for list box Form1_List1
   owSetListEntry(Form1_List1, OADD, owString,"one",0);
   owSetListEntry(Form1_List1, OADD, owString,"it's two", owIcon,owGetIconResource("second_pic"),0);
   owSetListEntry(Form1_List1, OADD, owString,"\"three\"", owIcon,owGetIconResource("Stock"),0);

// Create list box Form1_List2 child of Form1_MainPanel
   Form1_List2 = owCreateListBox(Form1_MainPanel, 10, 20, 1, 0, OFILES
              	,owHelp,"Files here"              	, owType,OMULTIPLECHOICE, owStyle,OAPPROX, owSort,OSORTED, owUseIcons,OON, owDescWidth,30, owOffCol,2, owOnCol,3, owTextCol,4
              	, owTabList,OON, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, 0);
   owSetFontAttribs(Form1_List2 ,owItalic,1, 0);
   owSetWidgetStatus(Form1_List2, OUNSELECTABLE);

// Create list box Form1_List3 child of Form1_MainPanel
   Form1_List3 = owCreateListBox(Form1_MainPanel, 10, 20, 125, 75, OPRINTERS
              	, owType,OMULTIPLECHOICE2, owOffCol,0, owOnCol,0, owTextCol,0
              	, owTabList,OON, owVpos,OTOP, 0);

// Create list box Form1_List4 child of Form1_MainPanel
   Form1_List4 = owCreateListBox(Form1_MainPanel, 10, 20, 125, 75, OFONTS
              	, owStyle,OEXACT, owSort,OUNSORTED, owOffCol,0, owOnCol,0, owTextCol,0
              	, owTabList,OON, owVpos,OTOP, 0);

// Create combo box Form1_Combo1 child of Form1_MainPanel
   Form1_Combo1 = owCreateComboBox(Form1_MainPanel, 10, 20, 0, 100, ONONE, 0
              	, owSort,OUNSORTED, owTabList,OON, owHpos,ORIGHT, owVpos,OTOP, owExpand,OON, 0);

// Create entries for combo box Form1_Combo1
   owSetListEntry(Form1_Combo1, OADD, owString,"first",0);
   owSetListEntry(Form1_Combo1, OADD, owString,"second", owIcon,owGetIconResource("arrow"),0);

// Select first entry in list for display
   owSetListEntry(Form1_Combo1,OSELECT,owEntry,1,0);

// Create combo box Form1_Combo2 child of Form1_MainPanel
   Form1_Combo2 = owCreateComboBox(Form1_MainPanel, 10, 20, 125, 100, ODOW, 1
              	,owHelp,"Choose a day", owHelpJustify,ORIGHT
              	, owSort,OSORTED, owUseIcons,OON, owDescWidth,12, owTabList,OOFF, owVpos,OTOP, 0);
   owSetFontAttribs(Form1_Combo2 ,owBold,1, 0);

// Create combo box Form1_Combo3 child of Form1_MainPanel
   Form1_Combo3 = owCreateComboBox(Form1_MainPanel, 10, 20, 125, 100, OMOY, 1
              	, owSort,OUNSORTED, owUseIcons,OON, owTabList,OON, owVpos,OTOP, 0);

// Create combo box Form1_Combo4 child of Form1_MainPanel
   Form1_Combo4 = owCreateComboBox(Form1_MainPanel, 10, 20, 125, 100, ODRIVES, 1
              	, owSort,OUNSORTED, owTabList,OON, owVpos,OTOP, 0);

// Create combo box Form1_Combo5 child of Form1_MainPanel
   Form1_Combo5 = owCreateComboBox(Form1_MainPanel, 10, 20, 125, 100, ODIRECTORIES, 1
              	, owSort,OUNSORTED, owTabList,OON, owVpos,OTOP, 0);
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
