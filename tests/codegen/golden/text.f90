! Program text
! Last created on DATE
! Using ORBAWIDG Designer Version  v8.5

! Global Definitions
Module wdesign
use menu_f90


! Widget identifier definitions
integer :: Form1
integer :: Form1_MainPanel
integer :: Form1_Text1
integer :: Form1_Text2
integer :: Form1_Text3
integer :: Form1_Text4
integer :: Form1_Text5
integer :: Form1_Text6
integer :: Form1_Text7
integer :: Form1_Value1
integer :: Form1_Value2
integer :: Form1_Value3
integer :: Form1_Value4
integer :: Form1_TTY1
integer :: Form1_TTY2
integer :: callid
contains
subroutine GenerateForm1

! Set up master window Form1
   Form1 = owCreateMasterWindow(200, 130, 400, 550, OALL, 'Form 1', owVpos=OTOP, owInitState=ONORMAL, owIconFormat=ODLLICON, &
      owIconFile='Gee')

! Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 400, 550, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)

! Create text widget Form1_Text1 child of Form1_MainPanel
   Form1_Text1 = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 25,'One line ', 255, OEDIT, owBack1Col=0, owBack2Col=0, &
      owTextCol=16 ,owScrollMode=OVERTICAL, owVpos=OTOP, owTabList=OON)

! Create text widget Form1_Text2 child of Form1_MainPanel
   Form1_Text2 = owCreateTextEntry(Form1_MainPanel, 10, 20, 0, 0,'first|second "quoted"|C:\data\new ', -40, OEDIT, &
      owEntryType=OSECURITY, owSize=90, owJustify=OCENTRE, owOLEInserts=OOFF, owAutoURL=OON, owBack1Col=5, owBack2Col=6, &
      owTextCol=7, owScrollMode=OBOTHBARS, owBorderType=OBLACK3D, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, &
      owReadOnly=OON, owHelp='Several lines', owHelpJustify=ORIGHT, owTabList=OON)
   call owSetFontAttribs(Form1_Text2)

! Create text widget Form1_Text3 child of Form1_MainPanel
   Form1_Text3 = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 25,'Rich ', 255, OEDIT, owEntryType=ORICHEDIT, &
      owJustify=ORIGHT, owBack1Col=0, owBack2Col=0, owTextCol=16, owScrollMode=OHORIZONTAL, owBorderType=OBLACK2D, &
      owVpos=OTOP, owTabList=OON)
   call owSetFontAttribs(Form1_Text3, owBold=OON, owCharSet=OTHAISET)

! Create text widget Form1_Text4 child of Form1_MainPanel
   Form1_Text4 = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 25,' ', 255, OEDIT, owBack1Col=0, owBack2Col=0, owTextCol=16, &
      owScrollMode=ONOBARS, owBorderType=ONOBORDER, owVpos=OTOP, owTabList=OON)
   call owSetFontAttribs(Form1_Text4, owFontFace='Arial', owPointSize=14, owBold=1, owItalic=1, owUnderline=1, owStrikeout=1, &
      owCharSet=OANSISET)
   call owSetWidgetStatus(Form1_Text4, OUNSELECTABLE)

! Create text widget Form1_Text5 child of Form1_MainPanel
   Form1_Text5 = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 60,'it''s a label|of two lines ', 255, ODISPLAY, &
      owBack1Col=0, owBack2Col=12, owTextCol=16 ,owScrollMode=OVERTICAL, owVpos=OTOP, owTabList=OON)

! Create text widget Form1_Text6 child of Form1_MainPanel
   Form1_Text6 = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 60,'aligned|lines ', 255, ODISPLAY, owJustify=ORIGHT, &
      owBack1Col=0, owBack2Col=12, owTextCol=16, owScrollMode=ONOBARS, owVpos=OTOP, owTabList=OON)
   call owSetFontAttribs(Form1_Text6)

! Create text widget Form1_Text7 child of Form1_MainPanel
   Form1_Text7 = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 25,'ends in \ ', 255, ODISPLAY, owJustify=OCENTRE, &
      owBack1Col=0, owBack2Col=12, owTextCol=16 ,owScrollMode=OVERTICAL, owVpos=OTOP, owTabList=OON)

! Create value entry Form1_Value1 child of Form1_MainPanel
   Form1_Value1 = owCreateValueEntry(Form1_MainPanel, 10, 20, 100, 25, 1.50000, 8, 3, OEDIT, owVmin=-100.000, owVmax=123457., &
      owType=ODECIMAL, owBack1Col=0, owBack2Col=0, owTextCol=0, owVpos=OTOP, owTabList=OON)

! Create value entry Form1_Value2 child of Form1_MainPanel
   Form1_Value2 = owCreateValueEntry(Form1_MainPanel, 10, 20, 0, 25, 1.23400e-05, 12, 2, OEDIT, owVmin=-2.50000e+09, &
      owVmax=1.23457e+06, owType=OEURO, owSign=OREDCREDIT, owSize=70, owJustify=ORIGHT, owBack1Col=3, owBack2Col=4, &
      owTextCol=5, owBorderType=ONOBORDER, owCharSet=OALPHANUMERIC, owVpos=OTOP, owExpand=OON, owReadOnly=OON, owHelp='Enter '// &
     'a value', owHelpJustify=OLEFT, owTabList=OOFF)
   call owSetFontAttribs(Form1_Value2)

! Create value entry Form1_Value3 child of Form1_MainPanel
   Form1_Value3 = owCreateValueEntry(Form1_MainPanel, 10, 20, 100, 25, 100000., 8, 3, ODISPLAY, owType=OCELCIUS, &
      owSign=OCREDIT1, owBack1Col=0, owBack2Col=0, owTextCol=0, owVpos=OTOP, owTabList=OON)
   call owSetFontAttribs(Form1_Value3, owStrikeout=OON)
   call owSetWidgetStatus(Form1_Value3, OHIDDEN)

! Create value entry Form1_Value4 child of Form1_MainPanel
   Form1_Value4 = owCreateValueEntry(Form1_MainPanel, 10, 20, 100, 25, 1.00000e+06, 8, 3, ODISPLAY, owType=ODECIMAL, &
      owSign=OCREDIT2, owJustify=OCENTRE, owBack1Col=0, owBack2Col=0, owTextCol=0, owVpos=OTOP, owTabList=OON)

! Create TTY entry Form1_TTY1 child of Form1_MainPanel
   Form1_TTY1 = owCreateTTYEntry(Form1_MainPanel, 10, 20, 0, 150, 24,'Ready|it''s "on" ', owPrompt='Prompt>', owReadOnly=OON, &
      owOffCol=2, owOnCol=3, owTextCol=4, owHpos=OCENTRE, owVpos=OTOP, owExpand=2, owHelp='Type here')
   call owSetWidgetStatus(Form1_TTY1, OUNSELECTABLE)

! Create TTY entry Form1_TTY2 child of Form1_MainPanel
   Form1_TTY2 = owCreateTTYEntry(Form1_MainPanel, 10, 20, 150, 150, 80,' ', owVpos=OTOP)
   call owSetFontAttribs(Form1_TTY2, owFontFace='Courier New', owPointSize=10)
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
