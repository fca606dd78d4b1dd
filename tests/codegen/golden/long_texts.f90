! Program long_texts
! Last created on DATE
! Using ORBAWIDG Designer Version  v8.5

! Global Definitions
Module wdesign
use menu_f90


! Widget identifier definitions
integer :: Form1
integer :: Form1_MainPanel
integer :: Form1_Button1
integer :: Form1_Button_with_a_name_that_is_longer_than_most_names_are
integer :: Form1_Text1
integer :: Form1_Text2
integer :: Form1_List1
integer :: Form1_Toggle1
integer :: Form1_Graphics1
integer :: callid
contains
subroutine GenerateForm1

! Set up master window Form1
   Form1 = owCreateMasterWindow(200, 130, 400, 550, OALL, 'it''s a title it''s a title it''s a title it''s a title it''s a tit'// &
     'le it''s a title it''s a title it''s a title it''s a title it''s a title it''s a title it''s a title ', owVpos=OTOP, &
      owInitState=ONORMAL, owIconFormat=ODLLICON, owIconFile='Gee')

! Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 400, 550, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)

! Create button Form1_Button1 child of Form1_MainPanel
   Form1_Button1 = owCreatePushButton(Form1_MainPanel, 10, 20, 75, 25, ''''''''''''''''''''''''''''''''''''''''''''''''''''''''// &
     ''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''// &
     ''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''''// &
     '''''''', owVpos=OTOP, owHelp='Help', owTabList=OON)

! Create button Form1_Button_with_a_name_that_is_longer_than_most_names_are child of Form1_MainPanel
   Form1_Button_with_a_name_that_is_longer_than_most_names_are = owCreatePushButton(Form1_MainPanel, 10, 20, 75, 25, 'a,(ba,(b'// &
     'a,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(b'// &
     'a,(ba,(ba,(ba,(ba,(ba,(ba,(ba,(b', owVpos=OTOP, owTabList=OON)

! Create text widget Form1_Text1 child of Form1_MainPanel
   Form1_Text1 = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 100,'"C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) '// &
     '"C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\'// &
     '" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it'// &
     '''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (we'// &
     'll) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\'// &
     'dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" an'// &
     'd it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s,'// &
     ' (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) '// &
     '"C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\'// &
     '" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it'// &
     '''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (we'// &
     'll) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\'// &
     'dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" an'// &
     'd it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s,'// &
     ' (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) '// &
     '"C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\'// &
     '" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well) "C:\dir\" and it''s, (well)  ', 255, OEDIT, &
      owBack1Col=0, owBack2Col=0, owTextCol=16 ,owScrollMode=OVERTICAL, owVpos=OTOP, owTabList=OON)

! Create text widget Form1_Text2 child of Form1_MainPanel
   Form1_Text2 = owCreateTextEntry(Form1_MainPanel, 10, 20, 100, 25,'\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\'// &
     '\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\'// &
     '\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\'// &
     '\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\'// &
     '\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\'// &
     '\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx'// &
     'xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx'// &
     'xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx'// &
     'xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx'// &
     'xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx ', 255, ODISPLAY, owBack1Col=0, &
      owBack2Col=12, owTextCol=16 ,owScrollMode=OVERTICAL, owVpos=OTOP, owTabList=OON)

! Create list box Form1_List1 child of Form1_MainPanel
   Form1_List1 = owCreateListBox(Form1_MainPanel, 10, 20, 125, 75, ONONE, owType=OSINGLECHOICE, owStyle=OEXACT, &
      owSort=OUNSORTED, owVpos=OTOP, owOffCol=0, owOnCol=0, owTextCol=0, owTabList=OON)

! Create entries for list box Form1_List1
   call owSetListEntry(Form1_List1, OADD, owString='an entry, (long) an entry, (long) an entry, (long) an entry, (long) an ent'// &
     'ry, (long) an entry, (long) an entry, (long) an entry, (long) an entry, (long) an entry, (long) an entry, (long) an entr'// &
     'y, (long) an entry, (long) an entry, (long) ',owIcon=owGetIconResource('picture'))

! Create toggle button Form1_Toggle1 child of Form1_MainPanel
   Form1_Toggle1 = owCreateToggleButton(Form1_MainPanel, 10, 20, 100, 25, 'xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx'// &
     'xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx'// &
     'xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx'// &
     'xxxxxxxxx', 0, owType=OBEVELSQUARE, owVpos=OTOP, owTabList=OON)

! Create graphics frame Form1_Graphics1 child of Form1_MainPanel
   Form1_Graphics1 = owCreateGraphicsFrame(Form1_MainPanel, 10, 20, 125, 75, &
         OLIMIT(-123456792.000000, 987654336.000000, -123456792.000000, 987654336.000000), owFrameType=OGDI, owVpos=OTOP, &
      owHelp='Very long help text Very long help text Very long help text Very long help text Very long help text Very long h'// &
     'elp text ')
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
