! Program hostile_texts
! Last created on DATE
! Using ORBAWIDG Designer Version  v8.5

! Global Definitions
Module wdesign
use menu_f90


! Widget identifier definitions
integer :: Form1
integer :: Bar
integer ::  Form1_Menu
integer ::  Form1_File
integer ::  Form1_Open
integer :: Form1_MainPanel
integer :: B
integer :: C
integer :: T
integer :: L
integer :: V
integer :: I
integer :: P
integer :: R
integer :: A
integer :: Tool
integer :: Y
integer :: Table
integer :: List
integer :: Tree
integer ::  Apple
integer :: Rich
integer :: Pane
integer :: callid
contains
subroutine GenerateForm1
integer :: ISTBAR(32)
type(OARRAYCELL) arrayattribs

! Set up master window Form1
   Form1 = owCreateMasterWindow(200, 130, 400, 550, OALL, 'it''s "quoted" 100% %s | & ö日 C:\Users\dir|line \', owVpos=OTOP, &
      owInitState=ONORMAL, owIconFormat=ODLLICON, owIconFile='Gee')

! Create Statusbar for Form1
   ISTBAR(1)=100
   ISTBAR(2)=100
   Bar=owCreateStatusBar(Form1, owPanes=2,owSizes=ISTBAR)
   call owSetStatusBarText(Bar,0,'it''s "quoted" 100% %s | & ö日 C:\Users\dir' )
   call owSetStatusBarText(Bar,1,'end\' )

! Create menu structure for Form1

! Create menu bar Form1_Menu child of Form1
   Form1_Menu = owCreateMenuBar(Form1)
   Form1_File = owCreateMenuEntry(Form1_Menu, 'it''s "quoted" 100% %s | & ö日 C:\Users\dir', owAccel=0, owHelp='it''s "quote'// &
     'd" 100% %s | & ö日 C:\Users\dir|line \')
   Form1_Open = owCreateMenuEntry(Form1_Menu, 'it''s "quoted" 100% %s | & ö日 C:\Users\dir|line \', owAccel=0, owHelp='it''s'// &
     ' "quoted" 100% %s | & ö日 C:\Users\dir')

! Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 400, 550, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)

! Create button B child of Form1_MainPanel
   B = owCreatePushButton(Form1_MainPanel, 10, 20, 75, 25, 'it''s "quoted" 100% %s | & ö日 C:\Users\dir|line \', &
      owVpos=OTOP, owHelp='it''s "quoted" 100% %s | & ö日 C:\Users\dir|line \', owTabList=OON)

! Create toggle button C child of Form1_MainPanel
   C = owCreateToggleButton(Form1_MainPanel, 10, 20, 100, 25, 'it''s "quoted" 100% %s | & ö日 C:\Users\dir|line \', 0, &
      owType=OBEVELSQUARE, owVpos=OTOP, owHelp='it''s "quoted" 100% %s | & ö日 C:\Users\dir|line \', owTabList=OON)

! Create text widget T child of Form1_MainPanel
   T = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 25,'it''s "quoted" 100% %s | & ö日 C:\Users\dir|line \ ', 255, OEDIT, &
      owBack1Col=0, owBack2Col=0, owTextCol=16 ,owScrollMode=OVERTICAL, owVpos=OTOP, owHelp='it''s "quoted" 100% %s | & ö日'// &
     ' C:\Users\dir|line \', owTabList=OON)

! Create text widget L child of Form1_MainPanel
   L = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 25,'it''s "quoted" 100% %s | & ö日 C:\Users\dir|line \ ', 255, &
      ODISPLAY, owBack1Col=0, owBack2Col=12, owTextCol=16 ,owScrollMode=OVERTICAL, owVpos=OTOP, owHelp='it''s "quoted" 100% %'// &
     's | & ö日 C:\Users\dir|line \', owTabList=OON)

! Create value entry V child of Form1_MainPanel
   V = owCreateValueEntry(Form1_MainPanel, 10, 20, 100, 25, 0.00000, 8, 3, OEDIT, owVmin=0.00000, owVmax=0.00000, &
      owType=ODECIMAL, owBack1Col=0, owBack2Col=0, owTextCol=0, owVpos=OTOP, owHelp='it''s "quoted" 100% %s | & ö日 C:\User'// &
     's\dir|line \', owTabList=OON)

! Create icon I child of Form1_MainPanel
   I = owCreateIcon(Form1_MainPanel, 10, 20, 50, 50,'Gee', 4, 0, owType=OBUTTON, owLabel='it''s "quoted" 100% %s | & ö日 C:\'// &
     'Users\dir|line \', owVpos=OTOP, owHelp='it''s "quoted" 100% %s | & ö日 C:\Users\dir|line \', owTabList=OON)

! Create panel P child of Form1_MainPanel
   P = owCreatePanel(Form1_MainPanel, 10, 20, 175, 125, owTitle='it''s "quoted" 100% %s | & ö日 C:\Users\dir|line \', &
      owType=OINVERSECHISEL, owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE, owScrollMode=ONOBARS, owVpos=OTOP, owHelp='it'''// &
     's "quoted" 100% %s | & ö日 C:\Users\dir|line \', owTabList=OON)

! Create radio box child R child of Form1_MainPanel
   R = owCreateRadioBox(Form1_MainPanel, 10, 20, 175, 125, owType=OFREEFORM, owBorderType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE, owTitle='it''s "quoted" 100% %s | & ö日 C:\Users\dir|line \', &
      owVpos=OTOP)

! Create text array A child of Form1_MainPanel
   A = owCreateTextArray(Form1_MainPanel, 10, 20, 150, 150, 10, 10, owAxisW=-1, owAxisH=-1, owXtext='it''s "quoted" 100% %s | '// &
     '& ö日 C:\Users\dir|line \', owYtext='it''s "quoted" 100% %s | & ö日 C:\Users\dir|line \', owXjust=OCENTRE, &
      owYjust=OCENTRE, owScrollMode=OBOTHBARS, owBorderType=OPROJECTED, owVpos=OTOP, owHelp='it''s "quoted" 100% %s | & ö日'// &
     ' C:\Users\dir|line \', owTabList=OOFF, owTabAction=OON)
   call owEnqCellAttribs(A, 1, 1, arrayattribs)
   arrayattribs%width=44
   arrayattribs%height=22
   call owSetCellAttribs(A, 0, 0, arrayattribs)

! Create ToolBar Tool child of Form1
   Tool = owCreateToolBar(Form1, OTOP, 35, owQuitMode=OHIDE, owTitleFlag=OTITLE, owTitle='it''s "quoted" 100% %s | & ö日 C:\'// &
     'Users\dir|line \')

! Create TTY entry Y child of Form1_MainPanel
   Y = owCreateTTYEntry(Form1_MainPanel, 10, 20, 150, 150, 80,'it''s "quoted" 100% %s | & ö日 C:\Users\dir|line \ ', &
      owPrompt='it''s "quoted" 100% %s | & ö日 C:\Users\dir|line \', owTextCol=0, owVpos=OTOP, owHelp='it''s "quoted" 100% '// &
     '%s | & ö日 C:\Users\dir|line \')

! Create table box view Table child of Form1_MainPanel
   Table = owCreateTableBox(Form1_MainPanel, 10, 20, 225, 100, owVpos=OTOP)
   call owAddTableBoxColumn(Table, 1, 44, owLabel='it''s "quoted" 100% %s ')
   call owAddTableBoxColumn(Table, 2, 44, owLabel=' & ö日 C:\Users\dir|line \')
   call owAddTableBoxColumn(Table, 3, 44)
   call owAddTableBoxColumn(Table, 4, 44)
   call owAddTableBoxColumn(Table, 5, 44)

! Create list box List child of Form1_MainPanel
   List = owCreateListBox(Form1_MainPanel, 10, 20, 125, 75, ONONE, owType=OSINGLECHOICE, owStyle=OEXACT, owSort=OUNSORTED, &
      owVpos=OTOP, owOffCol=0, owOnCol=0, owTextCol=0, owTabList=OON)

! Create entries for list box List
   call owSetListEntry(List, OADD, owString='it''s "quoted" 100% %s | & ö日 C:\Users\dir')
   call owSetListEntry(List, OADD, owString='end\')

! Create tree view Tree child of Form1_MainPanel
   Tree = owCreateTreeViewBox(Form1_MainPanel, 10, 20, 150, 150, owVpos=OTOP)

! Create entries for tree view Tree
   Apple = owCreateTreeEntry(Tree, OLASTCHILD, 'it''s "quoted" 100% %s | & ö日 C:\Users\dir|line \')

! Create text widget Rich child of Form1_MainPanel
   Rich = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 25,'{\rtf1\pard it''s "rich"\par|} ', 255, OEDIT, &
      owEntryType=ORICHEDIT, owBack1Col=0, owBack2Col=0, owTextCol=16 ,owScrollMode=OVERTICAL, owVpos=OTOP, owTabList=OON)

! Create Docking Pane Pane child of Form1
   Pane = owCreateDockingPane(Form1 ,OLEFTSIDE, 10, 20, 150, 150, owQuitMode=OHIDE, owTitleFlag=OTITLE, owTitle='it''s "quoted'// &
     '" 100% %s | & ö日 C:\Users\dir|line \')
return
end subroutine
! GetMasterFormID Function
   Integer Function GetMasterFormID()
   GetMasterFormID = Form1
   end function
End Module

use wdesign
use menu_f90


! Initialise Orba, Device & Menu
   call oOpenOrba
   call oOglwin
   call owInitializeMenu

! Define required grid
   call owDefineGuiGrid(36,27)
   call owSetGuiGridMode(0)

! Generate Forms
   call GenerateForm1

! Start management
   call owManage

! Action loop
   do
      callid=owAction(callid)

! Code to handle callbacks

      if(callid == -1) exit
   end do

! Close device MENU and ORBA, and end program
   call owCloseMenu
   call oCloseDevice
   call oCloseOrba

stop
end
