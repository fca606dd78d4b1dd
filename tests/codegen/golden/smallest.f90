! Program smallest
! Last created on DATE
! Using ORBAWIDG Designer Version  v8.5

! Global Definitions
Module wdesign
use menu_f90


! Widget identifier definitions
integer :: Form1
integer :: Form1_MainPanel
integer :: callid
contains
subroutine GenerateForm1

! Set up master window Form1
   Form1 = owCreateMasterWindow(200, 130, 400, 550, OALL, 'Form 1', owVpos=OTOP, owInitState=ONORMAL, owIconFormat=ODLLICON, &
      owIconFile='Gee')

! Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 400, 550, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)
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
