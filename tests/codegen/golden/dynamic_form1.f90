! Program dynamic_form1
! Last created on DATE
! Using ORBAWIDG Designer Version  v8.5

module Form1_mod
use menu_f90
integer,private :: Form1_Parent = 1
integer :: Form1
integer :: Form1_MainPanel
integer :: Form1_Button1
contains
subroutine GenerateForm1

! Set up complex dialogue box Form1 child of Form1_Parent
   Form1 = owCreateComplexDialogueBox(Form1_Parent, 200, 130, 400, 550, OALL, 'Form 1', owVpos=OTOP, owQuitMode=OHIDE, &
      owInitState=ONORMAL, owIconFormat=ODLLICON, owIconFile='Gee')

! Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 400, 550, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)

! Create button Form1_Button1 child of Form1_MainPanel
   Form1_Button1 = owCreatePushButton(Form1_MainPanel, 10, 20, 75, 25, '', owVpos=OTOP, owTabList=OON)
return
end subroutine
end module Form1_mod

! Global Definitions
Module wdesign
use menu_f90

use Form1_mod

! Widget identifier definitions
integer :: Form2
integer :: Form2_MainPanel
integer :: callid
contains
subroutine GenerateForm2

! Set up master window Form2
   Form2 = owCreateMasterWindow(220, 150, 400, 550, OALL, 'Form 2', owVpos=OTOP, owInitState=ONORMAL, owIconFormat=ODLLICON, &
      owIconFile='Gee')

! Create main panel for form
   Form2_MainPanel=owCreatePanel(Form2, 0, 0, 400, 550, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)
return
end subroutine
! GetMasterFormID Function
   Integer Function GetMasterFormID()
   GetMasterFormID = Form2
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
