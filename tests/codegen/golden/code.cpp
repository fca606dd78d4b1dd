// Program code
// Last created on DATE
// Using ORBAWIDG Designer Version  v8.5

// Global Definitions
extern "C" int orbcfg_(int *,char *,int);
#include <menu-c.h>

#include <stdlib.h>
#include <string.h>
//Function Definitions
void GenerateForm1(void);
void GenerateForm2(void);

// Widget identifier definitions
char ORBDIR[256];
int configstatus;
int Form1;
int Form1_MainPanel;
int Form1_Button1;
int Form1_Button2;
int Form1_TreeView1;
int Leaf;
int Form2;
int Form2_MainPanel;
int callid;
void GenerateForm1(void)
{

// Set up master window Form1
   Form1 = owCreateMasterWindow(9, 6, 18, 25, OALL, "Form 1"
              	, owVpos,OTOP, owIconFormat,ODLLICON,owIconFile,"Gee",0);
   owDefineCallback(Form1, (Form1));
   owDefineDragDropCallback(Form1,(Form1+5*OIDENT));

// Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 18, 25
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);

// Create button Form1_Button1 child of Form1_MainPanel
   Form1_Button1 = owCreatePushButton(Form1_MainPanel, 0, 0, 3, 1, ""
              	, owType,OSTANDARD, owAccel,0
              	, owOnCol,0, owOffCol,0, owTextCol,0, owTabList,OON, owVpos,OTOP, 0);
   owDefineCallback(Form1_Button1, (Form1_Button1));
   owDefineSelectCallback(Form1_Button1,(Form1_Button1+OIDENT));
   owDefineMoveCallback(Form1_Button1,(Form1_Button1+2*OIDENT));
   owDefineExposeCallback(Form1_Button1,(Form1_Button1+3*OIDENT));
   owDefineChangeCallback(Form1_Button1,(Form1_Button1+4*OIDENT));
   owDefineDragDropCallback(Form1_Button1,(Form1_Button1+5*OIDENT));
   owDefineDoubleClickCallback(Form1_Button1,(Form1_Button1+6*OIDENT));
   owDefineFileDropCallback(Form1_Button1,(Form1_Button1+7*OIDENT));
   owDefineDragSelectCallback(Form1_Button1,(Form1_Button1+8*OIDENT));
   owDefineDragMoveCallback(Form1_Button1,(Form1_Button1+9*OIDENT));
   owDefineValueErrorCallback(Form1_Button1,(Form1_Button1+10*OIDENT));
   owDefineLinkCallback(Form1_Button1,(Form1_Button1+11*OIDENT));
   owSetWidgetStatus(Form1_Button1, OCHECKED);

// Create button Form1_Button2 child of Form1_MainPanel
   Form1_Button2 = owCreatePushButton(Form1_MainPanel, 0, 0, 3, 1, ""
              	, owType,OSTANDARD, owAccel,0
              	, owOnCol,0, owOffCol,0, owTextCol,0, owTabList,OON, owVpos,OTOP, 0);
   owDefineCallback(Form1_Button2, (Form1_Button2));

// Create tree view Form1_TreeView1 child of Form1_MainPanel
   Form1_TreeView1 = owCreateTreeViewBox(Form1_MainPanel, 0, 0, 6, 6
              	, owVpos,OTOP, 0);

// Create entries for tree view Form1_TreeView1
   Leaf = owCreateTreeEntry(Form1_TreeView1, OLASTCHILD, "Leaf",0);
   owDefineCallback(Leaf, Leaf);
   owDefineSelectCallback(Leaf, (Leaf+OIDENT));
   owDefineChangeCallback(Leaf, (Leaf+4*OIDENT));
   owDefineDragDropCallback(Leaf, (Leaf+5*OIDENT));
   owDefineDoubleClickCallback(Leaf, (Leaf+6*OIDENT));
}
void GenerateForm2(void)
{

// Set up complex dialogue box Form2 child of Form1
   Form2 = owCreateComplexDialogueBox(Form1, 10, 7, 18, 25, OALL, "Form 2"
              	, owVpos,OTOP, owQuitMode,OHIDE, owIconFormat,ODLLICON,owIconFile,"Gee",0);
   owDefineCallback(Form2, (Form2));

// Create main panel for form
   Form2_MainPanel=owCreatePanel(Form2, 0, 0, 18, 25
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);
}
// Global Routines
static void globalRoutine(void)
{
}
#if defined(MWIN) || defined(GUIWIN)
int PASCAL WinMain (HINSTANCE hInstance, HINSTANCE hPrevInstance,
			 LPSTR lpszCmdParam, int nCmdShow)
#else
int main ()
#endif
{

// User defined variables
int local = 0;
   OACTION owdactlist;
   int resx,resy,xp,yp,xg,yg,px,py,grx,gry;
   int owpty;
   ODIM owpaper;

// Initialise Orba, Device & Menu
   orbcfg_(&configstatus,ORBDIR,strlen(ORBDIR));
   if(configstatus != 0) {
      owDisplayErrorBox("The file ORBA.CON is invalid or has not been found in the directory",ORBDIR);
      exit(1);
   }
   oOglwin();
   oEnqDrawingLimits(owpaper,&owpty);
   oSetDrawingLimits(owpaper,0);
   owInitializeMenu();

// Calculate required grid dimensions 
   owEnqGuiGrid(&xg,&yg,&xp,&yp);
   resx=xg*xp; resy=yg*yp;
   px=resx/32; py=resy/ 9;
   grx=800/px; gry=600/py;
   owDefineGuiGrid(grx,gry);
   owSetGuiGridMode(1);

// Define user defined colour indices used
   oDefineRGB(20, 1.000000, 0.500000, 0.000000);
   oDefineRGB(255, 0.000000, 0.000000, 0.250000);

// Generate Forms
   GenerateForm1();
   GenerateForm2();

// Define user defined colour indices used
   oDefineRGB(20, 1.000000, 0.500000, 0.000000);
   oDefineRGB(255, 0.000000, 0.000000, 0.250000);

// Initialization code
      callid=1;

// Start management
   owManage();

//   Set active widget
   owSetActiveWidget(Form1_Button2);

//   Pre Action Code
      callid=2;

// Action loop
   do {
      owAction(&callid);

// Start of Action Loop
      callid=3;


// Code to handle callbacks
      if(callid == -1) {
       callid=103;
         }
      else if (callid == (Form1)) {
       
         owEnqActionState(&owdactlist);
         if(owdactlist.status == 0) {
       callid=101;
         }
         else if(owdactlist.status == 1) {
       callid=102;
         }
         else if(owdactlist.status == 3) {
       callid=104;
         }
         else if(owdactlist.status == 4) {
       callid=105;
         }
         else if(owdactlist.status == 5) {
       callid=106;
         }
         }
      else if (callid == (Form1+5*OIDENT)) {
       callid=107;
         }
      else if (callid == (Form1_Button1)) {
       callid=108;
       callid=109;
         }
      else if (callid == (Form1_Button1+OIDENT)) {
       callid=110;
         }
      else if (callid == (Form1_Button1+2*OIDENT)) {
       callid=111;
         }
      else if (callid == (Form1_Button1+3*OIDENT)) {
       callid=117;
         }
      else if (callid == (Form1_Button1+4*OIDENT)) {
       callid=112;
         }
      else if (callid == (Form1_Button1+5*OIDENT)) {
       callid=116;
         }
      else if (callid == (Form1_Button1+6*OIDENT)) {
       callid=113;
         }
      else if (callid == (Form1_Button1+7*OIDENT)) {
       callid=118;
         }
      else if (callid == (Form1_Button1+8*OIDENT)) {
       callid=114;
         }
      else if (callid == (Form1_Button1+9*OIDENT)) {
       callid=115;
         }
      else if (callid == (Form1_Button1+10*OIDENT)) {
       callid=119;
         }
      else if (callid == (Form1_Button1+11*OIDENT)) {
       callid=120;
         }
      else if (callid == (Form1_Button2)) {
       
         owEnqActionState(&owdactlist);
         if(owdactlist.status == 4) {
       callid=121;
         }
         }
      else if (callid == (Leaf)) {
       callid=122;
         }
      else if (callid == (Leaf+OIDENT)) {
       callid=123;
         }
      else if (callid == (Leaf+4*OIDENT)) {
       callid=124;
         }
      else if (callid == (Leaf+5*OIDENT)) {
       callid=125;
         }
      else if (callid == (Leaf+6*OIDENT)) {
       callid=126;
         }
      else if (callid == (Form2)) {
       callid=127;
         owEnqActionState(&owdactlist);
         if(owdactlist.status == 2) {
       callid=128;
         }
      }


// End of Action Loop
      callid=4;

   } while (callid != -1);

// Program termination code
      callid=5;

// Close device MENU and ORBA, and end program
   owCloseMenu();
   oCloseDevice();
   oCloseOrba();

return 0;
}
// Additional User Routines/Functions
void userRoutine(void)
{
}
