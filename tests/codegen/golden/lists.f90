! Program lists
! Last created on DATE
! Using ORBAWIDG Designer Version  v8.5

! Global Definitions
Module wdesign
use menu_f90


! Widget identifier definitions
integer :: Form1
integer :: Form1_MainPanel
integer :: Form1_List1
integer :: Form1_List2
integer :: Form1_List3
integer :: Form1_List4
integer :: Form1_Combo1
integer :: Form1_Combo2
integer :: Form1_Combo3
integer :: Form1_Combo4
integer :: Form1_Combo5
integer :: callid
contains
subroutine GenerateForm1

! Set up master window Form1
   Form1 = owCreateMasterWindow(200, 130, 400, 550, OALL, 'Form 1', owVpos=OTOP, owInitState=ONORMAL, owIconFormat=ODLLICON, &
      owIconFile='Gee')

! Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 400, 550, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)

! Create list box Form1_List1 child of Form1_MainPanel
   Form1_List1 = owCreateListBox(Form1_MainPanel, 10, 20, 125, 75, ONONE, owType=OSINGLECHOICE, owStyle=OEXACT, &
      owSort=OUNSORTED, owVpos=OTOP, owOffCol=0, owOnCol=0, owTextCol=0, owTabList=OON)

! Create entries for list box Form1_List1
   call owSetListEntry(Form1_List1, OADD, owString='one')
   call owSetListEntry(Form1_List1, OADD, owString='it''s two',owIcon=owGetIconResource('second_pic'))
   call owSetListEntry(Form1_List1, OADD, owString='"three"',owIcon=owGetIconResource('Stock'))

! Create list box Form1_List2 child of Form1_MainPanel
   Form1_List2 = owCreateListBox(Form1_MainPanel, 10, 20, 1, 0, OFILES, owType=OMULTIPLECHOICE, owStyle=OAPPROX, &
      owSort=OSORTED, owUseIcons=OON, owDescWidth=30, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owOffCol=2, owOnCol=3, &
      owTextCol=4, owHelp='Files here', owTabList=OON)
   call owSetFontAttribs(Form1_List2, owItalic=OON)
   call owSetWidgetStatus(Form1_List2, OUNSELECTABLE)

! Create list box Form1_List3 child of Form1_MainPanel
   Form1_List3 = owCreateListBox(Form1_MainPanel, 10, 20, 125, 75, OPRINTERS, owType=OMULTIPLECHOICE2, owVpos=OTOP, &
      owOffCol=0, owOnCol=0, owTextCol=0, owTabList=OON)

! Create list box Form1_List4 child of Form1_MainPanel
   Form1_List4 = owCreateListBox(Form1_MainPanel, 10, 20, 125, 75, OFONTS, owStyle=OEXACT, owSort=OUNSORTED, owVpos=OTOP, &
      owOffCol=0, owOnCol=0, owTextCol=0, owTabList=OON)

! Create combo box Form1_Combo1 child of Form1_MainPanel
   Form1_Combo1 = owCreateComboBox(Form1_MainPanel, 10, 20, 0, 100, ONONE, 0, owSort=OUNSORTED, owHpos=ORIGHT, owVpos=OTOP, &
      owExpand=OON, owTabList=OON)

! Create entries for combo box Form1_Combo1
   call owSetListEntry(Form1_Combo1, OADD, owString='first')
   call owSetListEntry(Form1_Combo1, OADD, owString='second',owIcon=owGetIconResource('arrow'))

! Select first entry in list for display
   call owSetListEntry(Form1_Combo1,OSELECT,owEntry=1)

! Create combo box Form1_Combo2 child of Form1_MainPanel
   Form1_Combo2 = owCreateComboBox(Form1_MainPanel, 10, 20, 125, 100, ODOW, 1, owSort=OSORTED, owUseIcons=OON, owDescWidth=12, &
      owVpos=OTOP, owHelp='Choose a day', owHelpJustify=ORIGHT, owTabList=OOFF)
   call owSetFontAttribs(Form1_Combo2, owBold=OON)

! Create combo box Form1_Combo3 child of Form1_MainPanel
   Form1_Combo3 = owCreateComboBox(Form1_MainPanel, 10, 20, 125, 100, OMOY, 1, owSort=OUNSORTED, owUseIcons=OON, owVpos=OTOP, &
      owTabList=OON)

! Create combo box Form1_Combo4 child of Form1_MainPanel
   Form1_Combo4 = owCreateComboBox(Form1_MainPanel, 10, 20, 125, 100, ODRIVES, 1, owSort=OUNSORTED, owVpos=OTOP, owTabList=OON)

! Create combo box Form1_Combo5 child of Form1_MainPanel
   Form1_Combo5 = owCreateComboBox(Form1_MainPanel, 10, 20, 125, 100, ODIRECTORIES, 1, owSort=OUNSORTED, owVpos=OTOP, &
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
