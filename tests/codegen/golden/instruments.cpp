// Program instruments
// Last created on DATE
// Using ORBAWIDG Designer Version  v8.5

// Global Definitions
#include <menu-c.h>

//Function Definitions
void GenerateForm1(void);

// Widget identifier definitions
int Form1;
int Form1_MainPanel;
int Form1_Slider1;
int Form1_Slider2;
int Form1_Slider3;
int Form1_Slider4;
int Form1_Gauge1;
int Form1_Gauge2;
int Form1_Progress1;
int Form1_Progress2;
int Form1_TxtArray1;
int Form1_TxtArray2;
int Form1_ValArray1;
int Form1_ValArray2;
int Form1_TableBox1;
int Form1_TableBox2;
int Form1_TreeView1;
int Fruit;
int Apple;
int Citrus;
int Lemon;
int Pear;
int Nuts;
int Form1_TreeView2;
int Root;
int Form1_TreeView3;
int callid;
void GenerateForm1(void)
{
   static OWIDGET Slider_attribs;
   static OARRAYCELL arrayattribs;

// Set up master window Form1
   Form1 = owCreateMasterWindow(200, 130, 400, 550, OALL, "Form 1"
              	, owVpos,OTOP, owIconFormat,ODLLICON,owIconFile,"Gee",0);

// Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 400, 550
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);

// Create slider Form1_Slider1 child of Form1_MainPanel
   Form1_Slider1 = owCreateSlider(Form1_MainPanel, 10, 20, 75, 25, 0.000000, 5.000000, 1.000000, 0.000000
              	, owType,OHORIZONTAL, owBackCol,0, owVpos,OTOP, 0);

// Set correct width/height for Form1_Slider1
   owEnqWidgetInfo(Form1_Slider1,&Slider_attribs);
      Slider_attribs.width = 75;
      Slider_attribs.height = 25;
   owSetWidgetInfo(Form1_Slider1,&Slider_attribs);

// Create slider Form1_Slider2 child of Form1_MainPanel
   Form1_Slider2 = owCreateSlider(Form1_MainPanel, 10, 20, 0, 25, -1.250000, 1000000.000000, 0.100000, 0.333333
              	, owType,OVERTICAL, owSize,40, owBackCol,3, owHpos,OCENTRE, owVpos,OTOP, owExpand,OON, 0);

// Set correct width/height for Form1_Slider2
   owEnqWidgetInfo(Form1_Slider2,&Slider_attribs);
      Slider_attribs.width = 75;
      Slider_attribs.height = 25;
   owSetWidgetInfo(Form1_Slider2,&Slider_attribs);
   owSetWidgetStatus(Form1_Slider2, OUNSELECTABLE);

// Create slider Form1_Slider3 child of Form1_MainPanel
   Form1_Slider3 = owCreateSlider(Form1_MainPanel, 10, 20, 75, 25, 0.000000, 5.000000, 1.000000, 0.000000
              	, owType,OREVERSEHORIZONTAL, owBackCol,0, owVpos,OTOP, 0);

// Set correct width/height for Form1_Slider3
   owEnqWidgetInfo(Form1_Slider3,&Slider_attribs);
      Slider_attribs.width = 75;
      Slider_attribs.height = 25;
   owSetWidgetInfo(Form1_Slider3,&Slider_attribs);

// Create slider Form1_Slider4 child of Form1_MainPanel
   Form1_Slider4 = owCreateSlider(Form1_MainPanel, 10, 20, 75, 25, 0.000000, 5.000000, 1.000000, 0.000000
              	, owType,OREVERSEVERTICAL, owBackCol,0, owVpos,OTOP, 0);

// Set correct width/height for Form1_Slider4
   owEnqWidgetInfo(Form1_Slider4,&Slider_attribs);
      Slider_attribs.width = 75;
      Slider_attribs.height = 25;
   owSetWidgetInfo(Form1_Slider4,&Slider_attribs);

// Create gauge Form1_Gauge1 child of Form1_MainPanel
   Form1_Gauge1 = owCreateGauge(Form1_MainPanel, 10, 20, 75, 25, "C:\\pics\\thumb.ico"
              	,owHelp,"Gauge", owHelpJustify,OLEFT
              	, owAccess,ODISPLAY, owTicks1,10, owTicks2,10, owMinimum,-10, owMaximum,99, owIntValue,45, owTabList,OON, owVpos,OTOP, 0);

// Create gauge Form1_Gauge2 child of Form1_MainPanel
   Form1_Gauge2 = owCreateGauge(Form1_MainPanel, 10, 20, 75, 0, "mthumb01"
              	, owAccess,OEDIT, owTicks1,3, owTicks2,4, owMinimum,0, owMaximum,100, owIntValue,0, owTabList,OON, owVpos,OMIDDLE, owExpand,OON, 0);

// Create progress bar Form1_Progress1 child of Form1_MainPanel
   Form1_Progress1 = owCreateProgressBar(Form1_MainPanel, 10, 20, 75, 25
              	,owHelp,"Busy"              	, owProgressType,OSMOOTH, owMinimum,0, owMaximum,100, owIntValue,12, owVpos,OTOP, 0);

// Create progress bar Form1_Progress2 child of Form1_MainPanel
   Form1_Progress2 = owCreateProgressBar(Form1_MainPanel, 10, 20, 75, 25
              	, owProgressType,ODEFAULT, owMinimum,0, owMaximum,100, owIntValue,0, owVpos,OTOP, 0);
   owSetWidgetStatus(Form1_Progress2, OHIDDEN);

// Create text array Form1_TxtArray1 child of Form1_MainPanel
   Form1_TxtArray1 = owCreateTextArray(Form1_MainPanel, 10, 20, 150, 150, 3, 2
              	, owXtext,"*digits", owYtext,"one|two"
              	, owAxisW,-1, owAxisH,-1, owXjust,OCENTRE, owYjust,OCENTRE, owScrollMode,OBOTHBARS, owBorderType,OPROJECTED
              	, owAxisBackColour,12, owXtextColour,1, owYtextColour,1, owGridBackColour,0
              	, owCellBorderColour,0, owCellBorderLineType,2, owSelectedCellColour,0
, owTabList,OON, owTabAction,OON, owVpos,OTOP, 0);
   owEnqCellAttribs(Form1_TxtArray1, 1, 1, &arrayattribs);
   arrayattribs.width=50;
   arrayattribs.height=20;
   owSetCellAttribs(Form1_TxtArray1, 0, 0, &arrayattribs);

// Create text array Form1_TxtArray2 child of Form1_MainPanel
   Form1_TxtArray2 = owCreateTextArray(Form1_MainPanel, 10, 20, 0, 0, 3, 5
              	,owHelp,"Cells"              	, owXtext,"*digits", owYtext,"*digits"
              	, owAxisW,30, owAxisH,40, owXjust,OLEFT, owYjust,ORIGHT, owScrollMode,OHORIZONTAL ,owBorderType,OINVERSECHISEL
              	, owAxisBackColour,3, owXtextColour,5, owYtextColour,6, owGridBackColour,7
              	, owCellBorderColour,8, owCellBorderLineType,-1, owSelectedCellColour,4
, owReadOnly,OON, owTabList,OOFF, owTabAction,OCYCLE, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, 0);
   owEnqCellAttribs(Form1_TxtArray2, 1, 1, &arrayattribs);
   arrayattribs.width=40;
   arrayattribs.height=20;
   owSetCellAttribs(Form1_TxtArray2, 1, 1, &arrayattribs);
   owSetCellAttribs(Form1_TxtArray2, 2, 2, &arrayattribs);
   arrayattribs.width=60;
   arrayattribs.height=20;
   owSetCellAttribs(Form1_TxtArray2, 3, 3, &arrayattribs);
   owSetCellAttribs(Form1_TxtArray2, 3, 4, &arrayattribs);
   owSetCellAttribs(Form1_TxtArray2, 3, 5, &arrayattribs);
   owSetFontAttribs(Form1_TxtArray2 ,owBold,1, 0);

// Create value array Form1_ValArray1 child of Form1_MainPanel
   Form1_ValArray1 = owCreateValueArray(Form1_MainPanel, 10, 20, 150, 150, 1, 2
              	, owXtext,"*digits", owYtext,"*digits"
              	, owAxisW,-1, owAxisH,-1, owXjust,ORIGHT, owYjust,OLEFT, owScrollMode,ONOBARS, owBorderType,OPROJECTED
              	, owAxisBackColour,12, owXtextColour,1, owYtextColour,1, owGridBackColour,0
              	, owCellBorderColour,0, owCellBorderLineType,2, owSelectedCellColour,0
, owTabList,OOFF, owTabAction,OOFF, owVpos,OTOP, 0);
   owEnqCellAttribs(Form1_ValArray1, 1, 1, &arrayattribs);
   arrayattribs.width=10;
   arrayattribs.height=20;
   owSetCellAttribs(Form1_ValArray1, 1, 1, &arrayattribs);
   arrayattribs.width=10;
   arrayattribs.height=30;
   owSetCellAttribs(Form1_ValArray1, 1, 2, &arrayattribs);

// Create value array Form1_ValArray2 child of Form1_MainPanel
   Form1_ValArray2 = owCreateValueArray(Form1_MainPanel, 10, 20, 150, 150, 2, 1
              	, owXtext,"*digits", owYtext,"*digits"
              	, owAxisW,-1, owAxisH,-1, owXjust,OCENTRE, owYjust,OCENTRE, owScrollMode,OVERTICAL, owBorderType,OPROJECTED
              	, owAxisBackColour,12, owXtextColour,1, owYtextColour,1, owGridBackColour,0
              	, owCellBorderColour,0, owCellBorderLineType,2, owSelectedCellColour,0
, owTabList,OOFF, owVpos,OTOP, 0);
   owEnqCellAttribs(Form1_ValArray2, 1, 1, &arrayattribs);
   arrayattribs.width=10;
   arrayattribs.height=20;
   owSetCellAttribs(Form1_ValArray2, 1, 1, &arrayattribs);
   arrayattribs.width=20;
   arrayattribs.height=20;
   owSetCellAttribs(Form1_ValArray2, 2, 1, &arrayattribs);
   owSetWidgetStatus(Form1_ValArray2, OUNSELECTABLE);

// Create table box view Form1_TableBox1 child of Form1_MainPanel
   Form1_TableBox1 = owCreateTableBox(Form1_MainPanel, 10, 20, 0, 100
              	, owHpos,OCENTRE, owVpos,OTOP, owExpand,OON, 0);
   owAddTableBoxColumn(Form1_TableBox1, 1, 80, owLabel,"Name");
   owAddTableBoxColumn(Form1_TableBox1, 2, 60, owLabel,"");
   owAddTableBoxColumn(Form1_TableBox1, 3, 40, owLabel,"Size");
   owAddTableBoxColumn(Form1_TableBox1, 4, 20);

// Create table box view Form1_TableBox2 child of Form1_MainPanel
   Form1_TableBox2 = owCreateTableBox(Form1_MainPanel, 10, 20, 225, 100
              	, owVpos,OTOP, 0);
   owAddTableBoxColumn(Form1_TableBox2, 1, 1, owLabel,"A");
   owAddTableBoxColumn(Form1_TableBox2, 2, 2, owLabel,"B");
   owAddTableBoxColumn(Form1_TableBox2, 3, 3);
   owSetFontAttribs(Form1_TableBox2 ,owItalic,1, 0);
   owSetWidgetStatus(Form1_TableBox2, OUNSELECTABLE);

// Create tree view Form1_TreeView1 child of Form1_MainPanel
   Form1_TreeView1 = owCreateTreeViewBox(Form1_MainPanel, 10, 20, 150, 150
              	, owIconSet,ORESOURCEICONS, owVpos,OTOP, 0);

// Create entries for tree view Form1_TreeView1
   Fruit = owCreateTreeEntry(Form1_TreeView1, OLASTCHILD, "Fruit",owIcon,owGetIconResource("fruit_one"),owOpenIcon,owGetIconResource("open"),0);
   Apple = owCreateTreeEntry(Fruit, OLASTCHILD, "It's an apple",0);
   Citrus = owCreateTreeEntry(Fruit, OLASTCHILD, "Citrus",0);
   Lemon = owCreateTreeEntry(Citrus, OLASTCHILD, "Lemon",owCloseIcon,owGetIconResource("Stock"),0);
   Pear = owCreateTreeEntry(Fruit, OLASTCHILD, "Pear",0);
   Nuts = owCreateTreeEntry(Form1_TreeView1, OLASTCHILD, "\"Nuts\"",0);
   owSetFontAttribs(Form1_TreeView1 ,owBold,1, 0);
   owDefineCallback(Apple, Apple);
   owDefineDoubleClickCallback(Apple, (Apple+6*OIDENT));
   owDefineDragDropCallback(Nuts, (Nuts+5*OIDENT));

// Create tree view Form1_TreeView2 child of Form1_MainPanel
   Form1_TreeView2 = owCreateTreeViewBox(Form1_MainPanel, 10, 20, 0, 150
              	, owIconSet,OFOLDERS, owHpos,OCENTRE, owVpos,OTOP, owExpand,OON, 0);

// Create entries for tree view Form1_TreeView2
   Root = owCreateTreeEntry(Form1_TreeView2, OLASTCHILD, "Root",0);
   owSetWidgetStatus(Form1_TreeView2, OUNSELECTABLE);

// Create tree view Form1_TreeView3 child of Form1_MainPanel
   Form1_TreeView3 = owCreateTreeViewBox(Form1_MainPanel, 10, 20, 150, 150
              	, owIconSet,OBOOKS, owVpos,OTOP, 0);
   owSetFontAttribs(Form1_TreeView3 ,owItalic,1, 0);
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
      if (callid == (Apple)) {
         callid=101;
         }
      else if (callid == (Apple+6*OIDENT)) {
         callid=102;
         }
      else if (callid == (Nuts+5*OIDENT)) {
         callid=103;
      }


   } while (callid != -1);

// Close device MENU and ORBA, and end program
   owCloseMenu();
   oCloseDevice();
   oCloseOrba();

return 0;
}
