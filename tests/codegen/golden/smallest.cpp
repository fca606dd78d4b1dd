// Program smallest
// Last created on DATE
// Using ORBAWIDG Designer Version  v8.5

// Global Definitions
#include <menu-c.h>

//Function Definitions
void GenerateForm1(void);

// Widget identifier definitions
int Form1;
int Form1_MainPanel;
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
