! Program glxmdi
! Last created on DATE
! Using ORBAWIDG Designer Version  v8.5

! Global Definitions
Module wdesign
use menu_f90


! Widget identifier definitions
integer :: Form1
integer :: Form1_MainPanel
integer :: Form2
integer :: Form2_MainPanel
integer :: Form2_Toggle1
integer :: callid
contains
subroutine GenerateForm1

! Set up master window Form1
   Form1 = owCreateMDIMasterWindow(3, 4, 18, 25, OALL, 'Form 1', owVpos=OTOP, owInitState=ONORMAL, owIconFormat=OMENUICON, &
      owIconFile='MENUBIG1.ICN', owIconID=84)
return
end subroutine
subroutine GenerateForm2

! Set up complex dialogue box Form2 child of Form1
   Form2 = owCreateMDIComplexDialogueBox(Form1, 7, -2-1, 18, 25, OALL, 'Form 2', owQuitMode=OHIDE, owInitState=ONORMAL, &
      owIconFormat=OMENUICON, owIconFile='MENUBIG1.ICN', owIconID=84)

! Create main panel for form
   Form2_MainPanel=owCreatePanel(Form2, 0, 0, 18, 25, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)

! Create toggle button Form2_Toggle1 child of Form2_MainPanel
   Form2_Toggle1 = owCreateToggleButton(Form2_MainPanel, 0, 0, 0, 1, '', 0, owType=OBEVELSQUARE, owVpos=OTOP, owExpand=3, &
      owTabList=OON)
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
   call owDefineGuiGrid(100,27)

! Generate Forms
   call GenerateForm1
   call GenerateForm2

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
