// Program glxmdi
// Last created on DATE
// Using ORBAWIDG Designer Version  v8.5

// Global Definitions
#include <menu-c.h>

//Function Definitions
void GenerateForm1(void);
void GenerateForm2(void);

// Widget identifier definitions
int Form1;
int Form1_MainPanel;
int Form2;
int Form2_MainPanel;
int Form2_Toggle1;
int callid;
void GenerateForm1(void)
{

// Set up master window Form1
   Form1 = owCreateMDIMasterWindow(3, 4, 18, 25, OALL, "Form 1"
              	, owVpos,OTOP, owIconFormat,OMENUICON,owIconFile,"MENUBIG1.ICN",owIconID,84,0);
}
void GenerateForm2(void)
{

// Set up complex dialogue box Form2 child of Form1
   Form2 = owCreateMDIComplexDialogueBox(Form1, 7, -2-1, 18, 25, OALL, "Form 2"
              	, owQuitMode,OHIDE, owIconFormat,OMENUICON,owIconFile,"MENUBIG1.ICN",owIconID,84,0);

// Create main panel for form
   Form2_MainPanel=owCreatePanel(Form2, 0, 0, 18, 25
              	, owHpos,OCENTRE, owVpos,OMIDDLE, owExpand,OON, owBorderType,ONOBOUNDARY
              	, owLineCol,0, owLineBorder,0, owFillCol,0, owFillBorder,0,0);

// Create toggle button Form2_Toggle1 child of Form2_MainPanel
   Form2_Toggle1 = owCreateToggleButton(Form2_MainPanel, 0, 0, 0, 1, "", 0
              	, owType,OBEVELSQUARE, owAccel,0
              	, owOnCol,0, owOffCol,0, owTextCol,1, owTabList,OON, owVpos,OTOP, owExpand,3, 0);
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
   owDefineGuiGrid(100,27);

// Generate Forms
   GenerateForm1();
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
