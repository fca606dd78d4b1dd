// Program long_texts
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
int Form1_Button_with_a_name_that_is_longer_than_most_names_are;
int Form1_Text1;
int Form1_Text2;
int Form1_List1;
int Form1_Toggle1;
int Form1_Graphics1;
int callid;
void GenerateForm1(void)
{
   static OLIMIT Graphics_frame;

// Set up master window Form1
   Form1 = owCreateMasterWindow(200, 130, 400, 550, OALL, "it's a title it's a title it's a title it's a title it's a title it's a title it's a title it's a title it's a title it's a title it's a title it's a title "
              	, owVpos,OTOP, owIconFormat,ODLLICON,owIconFile,"Gee",0);

// Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 400, 550
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);

// Create button Form1_Button1 child of Form1_MainPanel
   Form1_Button1 = owCreatePushButton(Form1_MainPanel, 10, 20, 75, 25, "''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''"
              	,owHelp,"Help"              	, owType,OSTANDARD, owAccel,0
              	, owOnCol,0, owOffCol,0, owTextCol,0, owTabList,OON, owVpos,OTOP, 0);

// Create button Form1_Button_with_a_name_that_is_longer_than_most_names_are child of Form1_MainPanel
   Form1_Button_with_a_name_that_is_longer_than_most_names_are = owCreatePushButton(Form1_MainPanel, 10, 20, 75, 25, "a,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(b"
              	, owType,OSTANDARD, owAccel,0
              	, owOnCol,0, owOffCol,0, owTextCol,0, owTabList,OON, owVpos,OTOP, 0);

// Create text widget Form1_Text1 child of Form1_MainPanel
   Form1_Text1 = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 100,"\"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it'"
     "s, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and"
     " it's, (well) \"C:\\dir\" and it's, (well) \"C:\\dir\" and it's, (well)  ", 255, OEDIT
              	, owEntryType,OSTANDARD, owBack1Col,0, owBack2Col,0, owTextCol,16
              	, owScrollMode,OVERTICAL, owTabList,OON, owVpos,OTOP, 0);

// Create text widget Form1_Text2 child of Form1_MainPanel
   Form1_Text2 = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 25,"\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"
     "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx ", 255, ODISPLAY
              	, owEntryType,OSTANDARD, owBack1Col,0, owBack2Col,12, owTextCol,16
              	, owScrollMode,OVERTICAL, owTabList,OON, owVpos,OTOP, 0);

// Create list box Form1_List1 child of Form1_MainPanel
   Form1_List1 = owCreateListBox(Form1_MainPanel, 10, 20, 125, 75, ONONE
              	, owType,OSINGLECHOICE, owStyle,OEXACT, owSort,OUNSORTED, owOffCol,0, owOnCol,0, owTextCol,0
              	, owTabList,OON, owVpos,OTOP, 0);

// Create entries for list box Form1_List1
   owSetListEntry(Form1_List1, OADD, owString,"an entry, (long) an entry, (long) an entry, (long) an entry, (long) an entry, (long) an entry, (long) an entry, (long) an entry, (long) an entry, (long) an entry, (long) an entry, (long) an entry, (long) an entry, (long) an entry, (long) ", owIcon,owGetIconResource("picture"),0);

// Create toggle button Form1_Toggle1 child of Form1_MainPanel
   Form1_Toggle1 = owCreateToggleButton(Form1_MainPanel, 10, 20, 100, 25, "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx", 0
              	, owType,OBEVELSQUARE, owAccel,0
              	, owOnCol,0, owOffCol,0, owTextCol,1, owTabList,OON, owVpos,OTOP, 0);

// Create graphics frame Form1_Graphics1 child of Form1_MainPanel

// Define Graphics Frame limits
   Graphics_frame.xmin = -123456792.000000;
   Graphics_frame.xmax = 987654336.000000;
   Graphics_frame.ymin = -123456792.000000;
   Graphics_frame.ymax = 987654336.000000;
   Form1_Graphics1 = owCreateGraphicsFrame(Form1_MainPanel, 10, 20, 125, 75, &Graphics_frame
              	,owHelp,"Very long help text Very long help text Very long help text Very long help text Very long help text Very long help text "              	, owFrameType,OGDI, owVpos,OTOP, 0);
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
