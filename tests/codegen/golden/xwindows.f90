! Program xwindows
! Last created on DATE
! Using ORBAWIDG Designer Version  v8.5

! Global Definitions
Module wdesign
use menu_f90


! Widget identifier definitions
integer :: Form1
integer ::  Form1_Menubar
integer ::  OpenEntry
integer :: Form1_MainPanel
integer :: Form1_Icon1
integer :: Form1_Icon2
integer :: Form1_Icon3
integer :: Form1_Text1
integer :: Form1_Value1
integer :: Form1_Panel1
integer :: Form1_Graphics1
integer :: Form1_TxtArray1
integer :: callid
contains
subroutine GenerateForm1
type(OARRAYCELL) arrayattribs

! Set up master window Form1
   Form1 = owCreateMasterWindow(9, 6, 18, 25, OALL, 'Form 1', owVpos=OTOP, owInitState=ONORMAL, owIconFormat=OMENUICON, &
      owIconFile='MENUBIG1.ICN', owIconID=84)

! Create menu structure for Form1

! Create menu bar Form1_Menubar child of Form1
   Form1_Menubar = owCreateMenuBar(Form1)
   OpenEntry = owCreateMenuEntry(Form1_Menubar, 'Open', owAccel=79)

! Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 18, 25, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)

! Create icon Form1_Icon1 child of Form1_MainPanel
   Form1_Icon1 = owCreateIcon(Form1_MainPanel, 0, 0, 2, 2,'MENUSML1.ICN', 0, 2, owType=OBUTTON, owVpos=OTOP, owTabList=OON)

! Create icon Form1_Icon2 child of Form1_MainPanel
   Form1_Icon2 = owCreateIcon(Form1_MainPanel, 0, 0, 2, 2,'Other', 0, 3, owType=OBUTTON, owVpos=OTOP, owTabList=OON)

! Create icon Form1_Icon3 child of Form1_MainPanel
   Form1_Icon3 = owCreateIcon(Form1_MainPanel, 0, 0, 2, 2,'x', 4, 0, owType=OBUTTON, owLabel='x', owVpos=OTOP, owTabList=OON)

! Create text widget Form1_Text1 child of Form1_MainPanel
   Form1_Text1 = owCreateTextEntry(Form1_MainPanel, 0, 0, 4, 1,' ', 255, OEDIT, owBack1Col=0, owBack2Col=0, owTextCol=16, &
      owVpos=OTOP, owTabList=OON)

! Create value entry Form1_Value1 child of Form1_MainPanel
   Form1_Value1 = owCreateValueEntry(Form1_MainPanel, 0, 0, 4, 1, 0.00000, 8, 3, OEDIT, owVmin=0.00000, owVmax=0.00000, &
      owType=ODECIMAL, owBack1Col=0, owBack2Col=0, owTextCol=0, owVpos=OTOP, owTabList=OON)

! Create panel Form1_Panel1 child of Form1_MainPanel
   Form1_Panel1 = owCreatePanel(Form1_MainPanel, 0, 0, 7, 5, owTitle='', owType=OINVERSECHISEL, owLineBorder=OOUTEREDGE, &
      owFillBorder=OOUTEREDGE, owVpos=OTOP, owTabList=OON)

! Create graphics frame Form1_Graphics1 child of Form1_MainPanel
   Form1_Graphics1 = owCreateGraphicsFrame(Form1_MainPanel, 0, 0, 5, 3, &
         OLIMIT(0.000000, 1000.000000, 0.000000, 750.000000), owVpos=OTOP)

! Create text array Form1_TxtArray1 child of Form1_MainPanel
   Form1_TxtArray1 = owCreateTextArray(Form1_MainPanel, 0, 0, 6, 6, 2, 2, owAxisW=-1, owAxisH=-1, owXtext='*digits', owYtext=''// &
     '*digits', owXjust=OCENTRE, owYjust=OCENTRE, owVpos=OTOP, owTabList=OOFF, owTabAction=OON)
   call owEnqCellAttribs(Form1_TxtArray1, 1, 1, arrayattribs)
   arrayattribs%width=5
   arrayattribs%height=2
   call owSetCellAttribs(Form1_TxtArray1, 1, 1, arrayattribs)
   arrayattribs%width=5
   arrayattribs%height=3
   call owSetCellAttribs(Form1_TxtArray1, 2, 2, arrayattribs)
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
   call oGuiwin
   call owInitializeMenu

! Define required grid
   call owDefineGuiGrid(36,27)

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
