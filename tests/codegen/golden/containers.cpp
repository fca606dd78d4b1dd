// Program containers
// Last created on DATE
// Using ORBAWIDG Designer Version  v8.5

// Global Definitions
#include <menu-c.h>

//Function Definitions
void GenerateForm1(void);

// Widget identifier definitions
int Form1;
int Form1_MainPanel;
int Form1_Panel1;
int Form1_Panel2;
int Form1_Panel3;
int Form1_TabDiaBox1;
int Form1_Panel4;
int Form1_ToolBar1;
int Form1_Button1;
int Form1_Button2;
int Form1_Icon1;
int Form1_Icon2;
int Form1_Icon3;
int Form1_ToolSep1;
int Form1_ToolSep2;
int Form1_ToolSep3;
int Form1_ToolSep4;
int Form1_Combo1;
int Form1_ToolBar2;
int Form1_ToolBar3;
int Form1_ToolBar4;
int Form1_ToolBar5;
int Form1_Pane1;
int Form1_Text1;
int Form1_Pane2;
int Form1_Pane3;
int Form1_Pane4;
int Form1_Graphics1;
int Form1_Graphics2;
int Form1_Icon4;
int Form1_Icon5;
int Form1_Icon6;
int callid;
void GenerateForm1(void)
{
   static OLIMIT Graphics_frame;

// Set up master window Form1
   Form1 = owCreateMasterWindow(200, 130, 400, 550, OALL, "Form 1"
              	, owVpos,OTOP, owIconFormat,ODLLICON,owIconFile,"Gee",0);

// Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 400, 550
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owImage,"back_ground", owLineCol,1, owLineBorder,1, owFillCol,2, owFillBorder,1,0);

// Create panel Form1_Panel1 child of Form1_MainPanel
   Form1_Panel1 = owCreatePanel(Form1_MainPanel, 10, 20, 175, 125
              	,owHelp,"A panel"              	, owTitle,"Options", owType,OSINGLE
              	, owLineCol,4, owLineBorder,0, owFillCol,0, owFillBorder,0
              	, owImage,"panel", owIcon,owGetIconResource("my_tab"), owScrollMode,ONOBARS, owTabList,OON, owHpos,OCENTRE, owVpos,OTOP, owExpand,OON, 0);
   owSetFontAttribs(Form1_Panel1 ,owBold,1, 0);

// Create panel Form1_Panel2 child of Form1_MainPanel
   Form1_Panel2 = owCreatePanel(Form1_MainPanel, 10, 20, 175, 125
              	 ,owType,OINVERSECHISEL
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0
              	, owIcon,owGetIconResource("Stock"), owScrollMode,OBOTHBARS, owTabList,OON, owVpos,OTOP, 0);

// Create panel Form1_Panel3 child of Form1_MainPanel
   Form1_Panel3 = owCreatePanel(Form1_MainPanel, 10, 20, 175, 125
, owHelpJustify,OLEFT
              	, owType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0
              	, owScrollMode,OVERTICAL, owTabList,OON, owVpos,OTOP, 0);

// Create tabdded dialogue box Form1_TabDiaBox1 child of Form1_MainPanel
   Form1_TabDiaBox1 = owCreateTabDialogueBox(Form1_MainPanel, 10, 20, 0, 0
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, 0);
   owSetFontAttribs(Form1_TabDiaBox1 ,owUnderline,1, 0);

// Create panel Form1_Panel4 child of Form1_TabDiaBox1
   Form1_Panel4 = owCreatePanel(Form1_TabDiaBox1, 10, 20, 175, 125
              	, owTitle,"Page" ,owType,OINVERSECHISEL
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0
              	, owScrollMode,ONOBARS, owTabList,OON, owVpos,OTOP, 0);
   owSetWidgetStatus(Form1_Panel4, OUNSELECTABLE);

// Create ToolBar Form1_ToolBar1 child of Form1
   Form1_ToolBar1 = owCreateToolBar(Form1, OTOP, 35, owQuitMode,OREMOVE, owTitleFlag,OTITLE, owTitle,"Tools");
   owSetToolbarPos(Form1_ToolBar1, 30, 40, 300, 4);
   owDefineCallback(Form1_ToolBar1, (Form1_ToolBar1));

// Create button Form1_Button1 child of Form1_ToolBar1
   Form1_Button1 = owCreateToolBarButton(Form1_ToolBar1, OTEXTBUTTON,"it's"
              	, owDragMode,OON, owHelp,"Press", owTabList,OON, 0);
   owSetFontAttribs(Form1_Button1 ,owItalic,1, 0);
   owSetWidgetProp(Form1_Button1, owOnCol,1, owOffCol,2, owTextCol,3,0);
   owSetWidgetStatus(Form1_Button1, OUNSELECTABLE);

// Create button Form1_Button2 child of Form1_ToolBar1
   Form1_Button2 = owCreateToolBarButton(Form1_ToolBar1, OTEXTBUTTON,"Plain"
              	, owHelpJustify,OLEFT, owTabList,OON, 0);
   owSetWidgetProp(Form1_Button2, owOnCol,0, owOffCol,0, owTextCol,0,0);

// Create icon Form1_Icon1 child of Form1_ToolBar1
   Form1_Icon1 = owCreateToolBarButton(Form1_ToolBar1, OICONBUTTON,"save", 
              	owIconType,OBUTTON, owDragMode,OON, owHelpJustify,ORIGHT, owTabList,OON, 0);

// Create icon Form1_Icon2 child of Form1_ToolBar1
   Form1_Icon2 = owCreateToolBarButton(Form1_ToolBar1, OICONBUTTON,"C:\\pics\\open.bmp", 
              	owIconType,OPICTOGRAM, owHelp,"Open a file", owTabList,OON, 0);
   owSetFontAttribs(Form1_Icon2 ,owBold,1, 0);

// Create icon Form1_Icon3 child of Form1_ToolBar1
   Form1_Icon3 = owCreateToolBarButton(Form1_ToolBar1, OICONBUTTON,"MSML1001", 
              	owIconType,OMOUSESENSITIVE, owTabList,OON, 0);

// Create ToolBar Separator Form1_ToolSep1 child of Form1_ToolBar1
   Form1_ToolSep1 = owCreateToolBarSeparator(Form1_ToolBar1, owSeparatorType,OCHISEL);
   owSetWidgetStatus(Form1_ToolSep1, OUNSELECTABLE);

// Create ToolBar Separator Form1_ToolSep2 child of Form1_ToolBar1
   Form1_ToolSep2 = owCreateToolBarSeparator(Form1_ToolBar1, owSeparatorType,OINVERSECHISEL);

// Create ToolBar Separator Form1_ToolSep3 child of Form1_ToolBar1
   Form1_ToolSep3 = owCreateToolBarSeparator(Form1_ToolBar1, owSeparatorType,ONONE);

// Create ToolBar Separator Form1_ToolSep4 child of Form1_ToolBar1
   Form1_ToolSep4 = owCreateToolBarSeparator(Form1_ToolBar1, owSeparatorType,ODOUBLE);

// Create combo box Form1_Combo1 child of Form1_ToolBar1
   Form1_Combo1 = owCreateComboBox(Form1_ToolBar1, 10, 20, 125, 100, ONONE, 1
              	, owSort,OUNSORTED, owTabList,OON, owVpos,OTOP, 0);

// Create ToolBar Form1_ToolBar2 child of Form1
   Form1_ToolBar2 = owCreateToolBar(Form1, OLEFTSIDE, 35, owQuitMode,OLEAVE, owTitleFlag,OQUIT, owTitle,"");

// Create ToolBar Form1_ToolBar3 child of Form1
   Form1_ToolBar3 = owCreateToolBar(Form1, ORIGHTSIDE, 35, owQuitMode,OHIDE, owTitleFlag,OTITLE, owTitle,"");

// Create ToolBar Form1_ToolBar4 child of Form1
   Form1_ToolBar4 = owCreateToolBar(Form1, OBOTTOM, 35, owQuitMode,OHIDE, owTitleFlag,OTITLE, owTitle,"");

// Create ToolBar Form1_ToolBar5 child of Form1
   Form1_ToolBar5 = owCreateToolBar(Form1, OTOP, 35, owQuitMode,OHIDE);

// Create Docking Pane Form1_Pane1 child of Form1
   Form1_Pane1 = owCreateDockingPane(Form1, OFLOATING, 5, 6, 70, 80, owQuitMode,OHIDE, owTitleFlag,OTITLE, owTitle,"it's a pane");
   owDefineCallback(Form1_Pane1, (Form1_Pane1));
   owDefineDragDropCallback(Form1_Pane1,(Form1_Pane1+5*OIDENT));

// Create text widget Form1_Text1 child of Form1_Pane1
   Form1_Text1 = owCreateTextEntry(Form1_Pane1, 10, 20, 100, 20," ", 255, OEDIT
              	, owEntryType,OSTANDARD, owJustify,OCENTRE, owBack1Col,0, owBack2Col,0, owTextCol,16
              	, owScrollMode,OVERTICAL, owTabList,OON, owVpos,OTOP, 0);
   owSetFontAttribs(Form1_Text1, 0);

// Create Docking Pane Form1_Pane2 child of Form1
   Form1_Pane2 = owCreateDockingPane(Form1, ORIGHTSIDE, 10, 20, 150, 150, owQuitMode,OREMOVE, owTitleFlag,OQUIT, owTitle,"");

// Create Docking Pane Form1_Pane3 child of Form1
   Form1_Pane3 = owCreateDockingPane(Form1, OBOTTOM, 10, 20, 150, 150, owQuitMode,OHIDE);

// Create Docking Pane Form1_Pane4 child of Form1
   Form1_Pane4 = owCreateDockingPane(Form1, OTOP, 10, 20, 150, 150, owQuitMode,OHIDE, owTitleFlag,OTITLE, owTitle,"");

// Create graphics frame Form1_Graphics1 child of Form1_MainPanel

// Define Graphics Frame limits
   Graphics_frame.xmin = -1.500000;
   Graphics_frame.xmax = 1000.250000;
   Graphics_frame.ymin = -0.000001;
   Graphics_frame.ymax = 750.000000;
   Form1_Graphics1 = owCreateGraphicsFrame(Form1_MainPanel, 10, 20, 0, 0, &Graphics_frame
              	,owHelp,"Plot", owHelpJustify,ORIGHT
              	, owFrameType,OGDI, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, 0);
   owDefineExposeCallback(Form1_Graphics1,(Form1_Graphics1+3*OIDENT));

// Create graphics frame Form1_Graphics2 child of Form1_MainPanel

// Define Graphics Frame limits
   Graphics_frame.xmin = 0.000000;
   Graphics_frame.xmax = 1000.000000;
   Graphics_frame.ymin = 0.000000;
   Graphics_frame.ymax = 750.000000;
   Form1_Graphics2 = owCreateGraphicsFrame(Form1_MainPanel, 10, 20, 125, 75, &Graphics_frame
              	, owFrameType,OOPENGL, owVpos,OTOP, 0);

// Create icon Form1_Icon4 child of Form1_MainPanel
   Form1_Icon4 = owCreateIcon(Form1_MainPanel, 10, 20, 50, 50,"tool_box", 4, 0
              	,owHelp,"An icon"              	, owType,OBUTTON, owDragMode,OON, owLabel,"it's labelled", owSize,60, owTabList,OOFF, owHpos,ORIGHT, owVpos,OTOP, 0);
   owSetFontAttribs(Form1_Icon4 ,owBold,1, 0);

// Create icon Form1_Icon5 child of Form1_MainPanel
   Form1_Icon5 = owCreateIcon(Form1_MainPanel, 10, 20, 50, 50,"menu.icn", 0, 12
              	, owType,OPICTOGRAM, owTabList,OON, owVpos,OTOP, 0);

// Create icon Form1_Icon6 child of Form1_MainPanel
   Form1_Icon6 = owCreateIcon(Form1_MainPanel, 10, 20, 50, 50,"a\\b\\c.bmp", 1, 0
              	, owType,OMOUSESENSITIVE, owTabList,OON, owVpos,OTOP, 0);
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
   GenerateForm1();

// Start management
   owManage();

// Action loop
   do {
      owAction(&callid);

// Code to handle callbacks
      if (callid == (Form1_ToolBar1)) {
         callid=101;
         owEnqActionState(&owdactlist);
         if(owdactlist.status == 0) {
         callid=102;
         }
         }
      else if (callid == (Form1_Pane1)) {
         
         owEnqActionState(&owdactlist);
         if(owdactlist.status == 2) {
         callid=104;
         }
         }
      else if (callid == (Form1_Pane1+5*OIDENT)) {
         callid=103;
         }
      else if (callid == (Form1_Graphics1+3*OIDENT)) {
         callid=105;
      }


   } while (callid != -1);

// Close device MENU and ORBA, and end program
   owCloseMenu();
   oCloseDevice();
   oCloseOrba();

return 0;
}
