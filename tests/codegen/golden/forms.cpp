// Program forms
// Last created on DATE
// Using ORBAWIDG Designer Version  v8.5

// Global Definitions
#include <menu-c.h>

//Function Definitions
void GenerateMain(void);
void GenerateChild1(void);
void GenerateDoc1(void);
void GenerateAbout(void);
void GenerateDyn1(void);
void GenerateDyn2(void);
void GenerateDyn3(void);
void GenerateTail(void);

// Widget identifier definitions
int Main;
int Main_Status;
int Main_Menubar;
int FileEntry;
int File_Pop1;
int OpenEntry;
int RecentEntry;
int Recent_Pop2;
int LastEntry;
int separator1;
int ExitEntry;
int HelpEntry;
int Help_Pop3;
int AboutEntry;
int Main_MainPanel;
int Main_ToolBar1;
int Main_Button1;
int Child1;
int Child1_MainPanel;
int Child1_Button1;
int Doc1;
int Doc1_MainPanel;
int About;
int About_MainPanel;
int Dyn1;
int Dyn1_Menubar;
int Dyn1Entry;
int DynBack;
int Dyn1_MainPanel;
int Dyn1_Button1;
int Dyn2;
int Dyn2_MainPanel;
int Dyn3;
int Dyn3_MainPanel;
int Dyn3_Slider1;
int Tail;
int Tail_MainPanel;
int callid;
void GenerateMain(void)
{
   int ISTBAR[32];

// Set up master window Main
   Main = owCreateMDIMasterWindow(20, 30, 400, 550, OMINIMIZE | OQUIT, "Form 2"
              	, owHpos,ORIGHT, owVpos,OTOP, owInitState,OMAXIMIZE, owBuildInfo,OOFF, owImage,"sea", owIconFormat,ODLLICON,owIconFile,"main",0);

// Create Statusbar for Main
   ISTBAR[0]=100;
   ISTBAR[1]=-1;
   Main_Status=owCreateStatusBar(Main, owPanes,2,owSizes,ISTBAR,0);
   owSetStatusBarText(Main_Status,0,"Ready" );
   owSetStatusBarText(Main_Status,1,"it is" );

// Create menu structure for Main

// Create menu bar Main_Menubar child of Main
   Main_Menubar = owCreateMenuBar(Main);
   FileEntry = owCreateMenuEntry(Main_Menubar, "File", owAccel,70,0);

// Create pull-down menu File_Pop1 child of FileEntry
   File_Pop1 = owCreatePullDownMenu(FileEntry);
   OpenEntry = owCreateMenuEntry(File_Pop1, "Op'en", owAccel,79,owHelp,"Opens a file",owUncheckIcon,owGetIconResource("open_pic"),owGreyIcon,owGetIconResource("grey"),0);
   owDefineCallback(OpenEntry, OpenEntry);
   RecentEntry = owCreateMenuEntry(File_Pop1, "Recent", owAccel,82,0);

// Create pull-down menu Recent_Pop2 child of RecentEntry
   Recent_Pop2 = owCreatePullDownMenu(RecentEntry);
   LastEntry = owCreateMenuEntry(Recent_Pop2, "Last", owAccel,0,0);
   separator1 = owCreateMenuSeparator(File_Pop1);
   ExitEntry = owCreateMenuEntry(File_Pop1, "Exit", owAccel,0,owCheckIcon,owGetIconResource("check"),0);
   HelpEntry = owCreateMenuEntry(Main_Menubar, "Help", owAccel,0,0);

// Create pull-down menu Help_Pop3 child of HelpEntry
   Help_Pop3 = owCreatePullDownMenu(HelpEntry);
   AboutEntry = owCreateMenuEntry(Help_Pop3, "About", owAccel,0,0);
   owDefineCallback(AboutEntry, AboutEntry);
   owDefineCallback(Main, (Main));
   owDefineCallback(OpenEntry, OpenEntry);
   owDefineSelectCallback(LastEntry, (LastEntry+OIDENT));

// Create ToolBar Main_ToolBar1 child of Main
   Main_ToolBar1 = owCreateToolBar(Main, OTOP, 35, owQuitMode,OHIDE, owTitleFlag,OTITLE, owTitle,"");

// Create button Main_Button1 child of Main_ToolBar1
   Main_Button1 = owCreateToolBarButton(Main_ToolBar1, OTEXTBUTTON,"Tool"
              	, owTabList,OON, 0);
   owSetWidgetProp(Main_Button1, owOnCol,0, owOffCol,0, owTextCol,0,0);
}
void GenerateChild1(void)
{

// Set up complex dialogue box Child1 child of Main
   Child1 = owCreateComplexDialogueBox(Main, 200, 130, 400, 550, OALL, "Child of the master"
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owInitState,OTOP, owQuitMode,OREMOVE, owIconFormat,ODLLICON,owIconFile,"Gee",0);

// Create main panel for form
   Child1_MainPanel=owCreatePanel(Child1, 0, 0, 400, 550
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);

// Create button Child1_Button1 child of Child1_MainPanel
   Child1_Button1 = owCreatePushButton(Child1_MainPanel, 10, 20, 75, 25, "One"
              	, owType,OSTANDARD, owAccel,0
              	, owOnCol,0, owOffCol,0, owTextCol,0, owTabList,OON, owVpos,OTOP, 0);
}
void GenerateDoc1(void)
{

// Set up complex dialogue box Doc1 child of Main
   Doc1 = owCreateMDIComplexDialogueBox(Main, 100-4, 100-24, 400, 550, OTOOL | OQUIT, "Form 3"
              	, owQuitMode,OLEAVE, owIconFormat,OMENUICON,owIconFile,"doc.icn",owIconID,3,0);

// Create main panel for form
   Doc1_MainPanel=owCreatePanel(Doc1, 0, 0, 400, 550
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);
}
void GenerateAbout(void)
{

// Set up complex dialogue box About child of AboutEntry
   About = owCreateComplexDialogueBox(AboutEntry, 260, 190, 400, 550, OMINIMIZE | OMAXIMIZE, "Form 4"
              	, owVpos,OTOP, owInitState,OMINIMIZE, owQuitMode,OHIDE, owIconFormat,OBMPFILE,owIconFile,"C:\\pics\\about.bmp",0);

// Create main panel for form
   About_MainPanel=owCreatePanel(About, 0, 0, 400, 550
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);
}
void GenerateDyn1(void)
{

// Set up complex dialogue box Dyn1 child of OpenEntry
   Dyn1 = owCreateComplexDialogueBox(OpenEntry, 280, 220, 400, 550, ONONE, "Form 5"
              	, owVpos,OTOP, owQuitMode,OHIDE,0);

// Create menu structure for Dyn1

// Create menu bar Dyn1_Menubar child of Dyn1
   Dyn1_Menubar = owCreateMenuBar(Dyn1);
   Dyn1Entry = owCreateMenuEntry(Dyn1_Menubar, "Next", owAccel,0,0);
   owDefineCallback(Dyn1Entry, Dyn1Entry);
   DynBack = owCreateMenuEntry(Dyn1_Menubar, "Back", owAccel,0,0);

// Create main panel for form
   Dyn1_MainPanel=owCreatePanel(Dyn1, 0, 0, 400, 550
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);

// Create button Dyn1_Button1 child of Dyn1_MainPanel
   Dyn1_Button1 = owCreatePushButton(Dyn1_MainPanel, 10, 20, 75, 25, ""
              	, owType,OSTANDARD, owAccel,0
              	, owOnCol,0, owOffCol,0, owTextCol,0, owTabList,OON, owVpos,OTOP, 0);
   owDefineCallback(Dyn1_Button1, (Dyn1_Button1));
}
void GenerateDyn2(void)
{

// Set up complex dialogue box Dyn2 child of Dyn1Entry
   Dyn2 = owCreateMDIComplexDialogueBox(Dyn1Entry, 20-4, 20-24, 400, 550, OTOOL, "Form 6"
              	, owQuitMode,OHIDE, owIconFormat,ODLLICON,owIconFile,"Gee",0);

// Create main panel for form
   Dyn2_MainPanel=owCreatePanel(Dyn2, 0, 0, 400, 550
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);
}
void GenerateDyn3(void)
{
   static OWIDGET Slider_attribs;

// Set up complex dialogue box Dyn3 child of Main
   Dyn3 = owCreateComplexDialogueBox(Main, 330, 260, 400, 550, OMINIMIZE, "Form 7"
              	, owVpos,OTOP, owQuitMode,OHIDE, owIconFormat,ODLLICON,owIconFile,"Gee",0);

// Create main panel for form
   Dyn3_MainPanel=owCreatePanel(Dyn3, 0, 0, 400, 550
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);

// Create slider Dyn3_Slider1 child of Dyn3_MainPanel
   Dyn3_Slider1 = owCreateSlider(Dyn3_MainPanel, 10, 20, 75, 25, 0.000000, 5.000000, 1.000000, 0.000000
              	, owType,OHORIZONTAL, owBackCol,0, owVpos,OTOP, 0);

// Set correct width/height for Dyn3_Slider1
   owEnqWidgetInfo(Dyn3_Slider1,&Slider_attribs);
      Slider_attribs.width = 75;
      Slider_attribs.height = 25;
   owSetWidgetInfo(Dyn3_Slider1,&Slider_attribs);
}
void GenerateTail(void)
{

// Set up complex dialogue box Tail child of Main
   Tail = owCreateComplexDialogueBox(Main, 350, 280, 400, 550, OMAXIMIZE, "Form 8"
              	, owVpos,OTOP, owQuitMode,OHIDE, owIconFormat,ODLLICON,owIconFile,"Gee",0);

// Create main panel for form
   Tail_MainPanel=owCreatePanel(Tail, 0, 0, 400, 550
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);
}
// Global Routines
#if defined(MWIN) || defined(GUIWIN)
int PASCAL WinMain (HINSTANCE hInstance, HINSTANCE hPrevInstance,
			 LPSTR lpszCmdParam, int nCmdShow)
#else
int main ()
#endif
{

   OACTION owdactlist;

// Initialise Orba, Device & Menu
   oOpenOrba();
   oOglwin();
   owInitializeMenu();

// Define required grid
   owDefineGuiGrid(36,27);
   owSetGuiGridMode(0);

// Generate Forms
   GenerateMain();
   GenerateChild1();
   GenerateDoc1();
   GenerateAbout();
   GenerateTail();

// Start management
   owManage();

// Action loop
   do {
      owAction(&callid);

// Code to handle callbacks
      if(callid == -1) {
         callid=101;
         }
      else if (callid == (Main)) {
         
         owEnqActionState(&owdactlist);
         if(owdactlist.status == 1) {
         callid=102;
         }
         }
      else if (callid == (OpenEntry)) {
         callid=103;
         }
      else if (callid == (LastEntry+OIDENT)) {
         callid=104;
         }
      else if (callid == (Dyn1_Button1)) {
         callid=105;
      }


   } while (callid != -1);

// Close device MENU and ORBA, and end program
   owCloseMenu();
   oCloseDevice();
   oCloseOrba();

return 0;
}
