// Program code
// Last created on DATE
// Using ORBAWIDG Designer Version  v8.5

// Global Definitions
extern "C" int orbcfg_(int *,char *,int);
#include <menu-c.h>

definitions
second line
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
routines
#if defined(MWIN) || defined(GUIWIN)
int PASCAL WinMain (HINSTANCE hInstance, HINSTANCE hPrevInstance,
			 LPSTR lpszCmdParam, int nCmdShow)
#else
int main ()
#endif
{

// User defined variables
variables
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
initial

// Start management
   owManage();

//   Set active widget
   owSetActiveWidget(Form1_Button2);

//   Pre Action Code
before

// Action loop
   do {
      owAction(&callid);

// Start of Action Loop
start


// Code to handle callbacks
      if(callid == -1) {
    form quit
         }
      else if (callid == (Form1)) {
    
         owEnqActionState(&owdactlist);
         if(owdactlist.status == 0) {
    form moved
         }
         else if(owdactlist.status == 1) {
    form resized
         }
         else if(owdactlist.status == 3) {
    form minimized
         }
         else if(owdactlist.status == 4) {
    form scrolled
         }
         else if(owdactlist.status == 5) {
    form lost
         }
         }
      else if (callid == (Form1+5*OIDENT)) {
    form dropped
         }
      else if (callid == (Form1_Button1)) {
    b general
    more
         }
      else if (callid == (Form1_Button1+OIDENT)) {
    b select
         }
      else if (callid == (Form1_Button1+2*OIDENT)) {
    b move
         }
      else if (callid == (Form1_Button1+3*OIDENT)) {
    b expose
         }
      else if (callid == (Form1_Button1+4*OIDENT)) {
    b change
         }
      else if (callid == (Form1_Button1+5*OIDENT)) {
    b drag drop
         }
      else if (callid == (Form1_Button1+6*OIDENT)) {
    b double
         }
      else if (callid == (Form1_Button1+7*OIDENT)) {
    b file drop
         }
      else if (callid == (Form1_Button1+8*OIDENT)) {
    b drag select
         }
      else if (callid == (Form1_Button1+9*OIDENT)) {
    b drag move
         }
      else if (callid == (Form1_Button1+10*OIDENT)) {
    b value error
         }
      else if (callid == (Form1_Button1+11*OIDENT)) {
    b link
         }
      else if (callid == (Form1_Button2)) {
    
         owEnqActionState(&owdactlist);
         if(owdactlist.status == 4) {
    only scrolled
         }
         }
      else if (callid == (Leaf)) {
    l general
         }
      else if (callid == (Leaf+OIDENT)) {
    l select
         }
      else if (callid == (Leaf+4*OIDENT)) {
    l change
         }
      else if (callid == (Leaf+5*OIDENT)) {
    l drop
         }
      else if (callid == (Leaf+6*OIDENT)) {
    l double
         }
      else if (callid == (Form2)) {
    f2 general
         owEnqActionState(&owdactlist);
         if(owdactlist.status == 2) {
    f2 quit
         }
      }


// End of Action Loop
end

   } while (callid != -1);

// Program termination code
finish

// Close device MENU and ORBA, and end program
   owCloseMenu();
   oCloseDevice();
   oCloseOrba();

return 0;
}
// Additional User Routines/Functions
user
routines
