! Program buttons
! Last created on DATE
! Using ORBAWIDG Designer Version  v8.5

! Global Definitions
Module wdesign
use menu_f90


! Widget identifier definitions
integer :: Form1
integer :: Form1_MainPanel
integer :: Form1_Button1
integer :: Form1_Button2
integer :: Form1_Button3
integer :: Form1_Toggle1
integer :: Form1_Toggle2
integer :: Form1_Radio1
integer :: Form1_Toggle3
integer :: Form1_Toggle4
integer :: Form1_Radio2
integer :: callid
contains
subroutine GenerateForm1

! Set up master window Form1
   Form1 = owCreateMasterWindow(9, 6, 18, 25, ior(OMAXIMIZE,OQUIT), 'It''s a "form"', owHpos=ORIGHT, owVpos=OTOP, &
      owInitState=OCENTRED, owIconFormat=ODLLICON, owIconFile='Gee')

! Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 18, 25, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)

! Create button Form1_Button1 child of Form1_MainPanel
   Form1_Button1 = owCreatePushButton(Form1_MainPanel, 0, 0, 3, 1, 'Plain', owVpos=OTOP, owTabList=OON)
   call owDefineCallback(Form1_Button1, (Form1_Button1))

! Create button Form1_Button2 child of Form1_MainPanel
   Form1_Button2 = owCreatePushButton(Form1_MainPanel, 0, 0, 0, 0, 'it''s', owType=OUSERDEFINED, owJustify=OLEFT, &
      owDragMode=OON, owSize=80, owAccel=65, owOnCol=3, owOffCol=4, owTextCol=5, owHpos=OCENTRE, owVpos=OMIDDLE, &
      owExpand=OON, owHelp='Press me', owHelpJustify=OLEFT, owTabList=OOFF)
   call owSetFontAttribs(Form1_Button2, owBold=OON)
   call owDefineSelectCallback(Form1_Button2,(Form1_Button2+OIDENT))
   call owDefineDragMoveCallback(Form1_Button2,(Form1_Button2+9*OIDENT))
   call owSetWidgetStatus(Form1_Button2, OUNSELECTABLE)

! Create button Form1_Button3 child of Form1_MainPanel
   Form1_Button3 = owCreatePushButton(Form1_MainPanel, 0, 0, 3, 1, '', owType=ODEFAULTBUTTON, owJustify=ORIGHT, owHpos=ORIGHT, &
      owVpos=OTOP, owExpand=5, owTabList=OON)
   call owSetFontAttribs(Form1_Button3, owFontFace='Courier New', owPointSize=12, owItalic=OON, owUnderline=OON, &
      owStrikeout=OON, owCharSet=OGREEKSET)
   call owSetWidgetStatus(Form1_Button3, OHIDDEN)

! Create toggle button Form1_Toggle1 child of Form1_MainPanel
   Form1_Toggle1 = owCreateToggleButton(Form1_MainPanel, 0, 0, 0, 1, 'Tick', 1, owType=OTICKBOX, owSize=50, owAccel=84, &
      owOnCol=1, owOffCol=2, owTextCol=3, owHpos=ORIGHT, owVpos=OMIDDLE, owExpand=2, owTabList=OON)
   call owSetWidgetStatus(Form1_Toggle1, OCHECKED)

! Create toggle button Form1_Toggle2 child of Form1_MainPanel
   Form1_Toggle2 = owCreateToggleButton(Form1_MainPanel, 0, 0, 4, 1, '', 0, owType=OBEVELSQUARE, owVpos=OTOP, owTabList=OON)

! Create radio box child Form1_Radio1 child of Form1_MainPanel
   Form1_Radio1 = owCreateRadioBox(Form1_MainPanel, 0, 0, 7, 5, owType=OFREEFORM, owBorderType=OINVERSECHISEL, owLineCol=7, &
      owFillCol=8, owTitle='Choose', owVpos=OTOP, owHelp='One of these')

! Create toggle button Form1_Toggle3 child of Form1_Radio1
   Form1_Toggle3 = owCreateToggleButton(Form1_Radio1, 0, 0, 4, 1, '', 0, owType=O3DRADIO, owVpos=OTOP, owTabList=OON)
   call owDefineCallback(Form1_Toggle3, (Form1_Toggle3))

! Create toggle button Form1_Toggle4 child of Form1_Radio1
   Form1_Toggle4 = owCreateToggleButton(Form1_Radio1, 0, 0, 4, 1, '', 0, owType=OBEVELSQUARE, owVpos=OTOP, owTabList=OON)

! Create radio box child Form1_Radio2 child of Form1_MainPanel
   Form1_Radio2 = owCreateRadioBox(Form1_MainPanel, 0, 0, 7, 5, owType=OFREEFORM, owBorderType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE, owVpos=OTOP)
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
   call owSetGuiGridMode(1)

! Generate Forms
   call GenerateForm1

! Start management
   call owManage

!   Set active widget
   call owSetActiveWidget(Form1_Toggle1)

! Action loop
   do
      callid=owAction(callid)

! Code to handle callbacks
      if (callid == (Form1_Button1)) then
         callid=101;
      else if (callid == (Form1_Button2+OIDENT)) then
         callid=102;
         callid=103;
      else if (callid == (Form1_Button2+9*OIDENT)) then
         callid=104;
      else if (callid == (Form1_Toggle3)) then
         callid=105;
      end if


      if(callid == -1) exit
   end do

! Close device MENU and ORBA, and end program
   call owCloseMenu
   call oCloseDevice
   call oCloseOrba

stop
end
