// Program dynamic_form1
// Last created on DATE
// Using ORBAWIDG Designer Version  v8.5

// Global Definitions
#include <menu-c.h>

//Function Definitions
void GenerateForm2(void);
void GenerateForm1(void);

// Widget identifier definitions
int Form2;
int Form2_MainPanel;
int Form1;
int Form1_MainPanel;
int Form1_Button1;
int callid;
void GenerateForm2(void)
{

// Set up master window Form2
   Form2 = owCreateMasterWindow(220, 150, 400, 550, OALL, "Form 2"
              	, owVpos,OTOP, owIconFormat,ODLLICON,owIconFile,"Gee",0);

// Create main panel for form
   Form2_MainPanel=owCreatePanel(Form2, 0, 0, 400, 550
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);
}
void GenerateForm1(void)
{

// Set up complex dialogue box Form1 child of Form2
   Form1 = owCreateComplexDialogueBox(Form2, 200, 130, 400, 550, OALL, "Form 1"
              	, owVpos,OTOP, owQuitMode,OHIDE, owIconFormat,ODLLICON,owIconFile,"Gee",0);

// Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 400, 550
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);

// Create button Form1_Button1 child of Form1_MainPanel
   Form1_Button1 = owCreatePushButton(Form1_MainPanel, 10, 20, 75, 25, ""
              	, owType,OSTANDARD, owAccel,0
              	, owOnCol,0, owOffCol,0, owTextCol,0, owTabList,OON, owVpos,OTOP, 0);
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
   GenerateForm2();

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
