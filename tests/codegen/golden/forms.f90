! Program forms
! Last created on DATE
! Using ORBAWIDG Designer Version  v8.5

module Dyn1_mod
use menu_f90
integer,private :: Form1 = 1
integer :: Dyn1
integer ::  Dyn1_Menubar
integer ::  Dyn1Entry
integer ::  DynBack
integer :: Dyn1_MainPanel
integer :: Dyn1_Button1
contains
subroutine GenerateDyn1

! Set up complex dialogue box Dyn1 child of Form1
   Dyn1 = owCreateComplexDialogueBox(Form1, 280, 220, 400, 550, ONONE, 'Form 5', owVpos=OTOP, owQuitMode=OHIDE, &
      owInitState=ONORMAL)

! Create menu structure for Dyn1

! Create menu bar Dyn1_Menubar child of Dyn1
   Dyn1_Menubar = owCreateMenuBar(Dyn1)
   Dyn1Entry = owCreateMenuEntry(Dyn1_Menubar, 'Next', owAccel=0)
   call owDefineCallback(Dyn1Entry, Dyn1Entry)
   DynBack = owCreateMenuEntry(Dyn1_Menubar, 'Back', owAccel=0)

! Create main panel for form
   Dyn1_MainPanel=owCreatePanel(Dyn1, 0, 0, 400, 550, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)

! Create button Dyn1_Button1 child of Dyn1_MainPanel
   Dyn1_Button1 = owCreatePushButton(Dyn1_MainPanel, 10, 20, 75, 25, '', owVpos=OTOP, owTabList=OON)
   call owDefineCallback(Dyn1_Button1, (Dyn1_Button1))
return
end subroutine
end module Dyn1_mod

module Dyn2_mod
use menu_f90
integer,private :: Form1 = 1
integer :: Dyn2
integer :: Dyn2_MainPanel
contains
subroutine GenerateDyn2

! Set up complex dialogue box Dyn2 child of Form1
   Dyn2 = owCreateMDIComplexDialogueBox(Form1, 40-4, 50-24, 400, 550, OTOOL, 'Form 6', owQuitMode=OHIDE, owInitState=ONORMAL, &
      owIconFormat=ODLLICON, owIconFile='Gee')

! Create main panel for form
   Dyn2_MainPanel=owCreatePanel(Dyn2, 0, 0, 400, 550, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)
return
end subroutine
end module Dyn2_mod

module Dyn3_mod
use menu_f90
integer,private :: Form1 = 1
integer :: Dyn3
integer :: Dyn3_MainPanel
integer :: Dyn3_Slider1
contains
subroutine GenerateDyn3
type (OWIDGET) :: Slider_attribs

! Set up complex dialogue box Dyn3 child of Form1
   Dyn3 = owCreateComplexDialogueBox(Form1, 330, 260, 400, 550, OMINIMIZE, 'Form 7', owVpos=OTOP, owQuitMode=OHIDE, &
      owInitState=ONORMAL, owIconFormat=ODLLICON, owIconFile='Gee')

! Create main panel for form
   Dyn3_MainPanel=owCreatePanel(Dyn3, 0, 0, 400, 550, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)

! Create slider Dyn3_Slider1 child of Dyn3_MainPanel
   Dyn3_Slider1 = owCreateSlider(Dyn3_MainPanel, 10, 20, 75, 25, 0.000000, 5.000000, 1.000000, 0.000000, owType=OHORIZONTAL, &
      owBackCol=0, owVpos=OTOP)

! Set correct width/height for Dyn3_Slider1
   call owEnqWidgetInfo(Dyn3_Slider1,Slider_attribs)
      Slider_attribs%width = 75
      Slider_attribs%height = 25
   call owSetWidgetInfo(Dyn3_Slider1,Slider_attribs)
return
end subroutine
end module Dyn3_mod

! Global Definitions
Module wdesign
use menu_f90

use Dyn1_mod
use Dyn2_mod
use Dyn3_mod

! Widget identifier definitions
integer :: Main
integer :: Main_Status
integer ::  Main_Menubar
integer ::  FileEntry
integer ::  File_Pop1
integer ::  OpenEntry
integer ::  RecentEntry
integer ::  Recent_Pop2
integer ::  LastEntry
integer ::  separator1
integer ::  ExitEntry
integer ::  HelpEntry
integer ::  Help_Pop3
integer ::  AboutEntry
integer :: Main_MainPanel
integer :: Main_ToolBar1
integer :: Main_Button1
integer :: Child1
integer :: Child1_MainPanel
integer :: Child1_Button1
integer :: Doc1
integer :: Doc1_MainPanel
integer :: About
integer :: About_MainPanel
integer :: Tail
integer :: Tail_MainPanel
integer :: callid
contains
subroutine GenerateMain
integer :: ISTBAR(32)

! Set up master window Main
   Main = owCreateMDIMasterWindow(20, 30, 400, 550, ior(OMINIMIZE,OQUIT), 'Form 2', owHpos=ORIGHT, owVpos=OTOP, owExpand=2, &
      owImage='sea', owInitState=OMAXIMIZE, owBuildInfo=OOFF, owIconFormat=ODLLICON, owIconFile='main')

! Create Statusbar for Main
   ISTBAR(1)=100
   ISTBAR(2)=-1
   Main_Status=owCreateStatusBar(Main, owPanes=2,owSizes=ISTBAR)
   call owSetStatusBarText(Main_Status,0,'Ready' )
   call owSetStatusBarText(Main_Status,1,'it is' )

! Create menu structure for Main

! Create menu bar Main_Menubar child of Main
   Main_Menubar = owCreateMenuBar(Main)
   FileEntry = owCreateMenuEntry(Main_Menubar, 'File', owAccel=70)

! Create pull-down menu File_Pop1 child of FileEntry
   File_Pop1 = owCreatePullDownMenu(FileEntry)
   OpenEntry = owCreateMenuEntry(File_Pop1, 'Op''en', owAccel=79, owHelp='Opens a file', owUncheckIcon=owGetIconResource('open'// &
     '_pic'), owGreyIcon=owGetIconResource('grey'))
   RecentEntry = owCreateMenuEntry(File_Pop1, 'Recent', owAccel=82)

! Create pull-down menu Recent_Pop2 child of RecentEntry
   Recent_Pop2 = owCreatePullDownMenu(RecentEntry)
   LastEntry = owCreateMenuEntry(Recent_Pop2, 'Last', owAccel=0)
   separator1 = owCreateMenuSeparator(File_Pop1)
   ExitEntry = owCreateMenuEntry(File_Pop1, 'Exit', owAccel=0, owCheckIcon=owGetIconResource('check'))
   HelpEntry = owCreateMenuEntry(Main_Menubar, 'Help', owAccel=0)

! Create pull-down menu Help_Pop3 child of HelpEntry
   Help_Pop3 = owCreatePullDownMenu(HelpEntry)
   AboutEntry = owCreateMenuEntry(Help_Pop3, 'About', owAccel=0)
   call owDefineCallback(AboutEntry, AboutEntry)
   call owDefineCallback(Main, (Main))
   call owDefineCallback(OpenEntry, OpenEntry)
   call owDefineSelectCallback(LastEntry, (LastEntry+OIDENT))

! Create ToolBar Main_ToolBar1 child of Main
   Main_ToolBar1 = owCreateToolBar(Main, OTOP, 35, owQuitMode=OHIDE, owTitleFlag=OTITLE, owTitle='')

! Create button Main_Button1 child of Main_ToolBar1
   Main_Button1 = owCreateToolBarButton(Main_ToolBar1, OTEXTBUTTON, 'Tool', owTabList=OON)
   call owSetWidgetProp(Main_Button1, owOnCol=0, owOffCol=0, owTextCol=0)
return
end subroutine
subroutine GenerateChild1

! Set up complex dialogue box Child1 child of Main
   Child1 = owCreateComplexDialogueBox(Main, 200, 130, 400, 550, OALL, 'Child of the master', owHpos=OCENTRE, owVpos=OMIDDLE, &
      owExpand=OON, owQuitMode=OREMOVE, owInitState=OTOP, owIconFormat=ODLLICON, owIconFile='Gee')

! Create main panel for form
   Child1_MainPanel=owCreatePanel(Child1, 0, 0, 400, 550, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)

! Create button Child1_Button1 child of Child1_MainPanel
   Child1_Button1 = owCreatePushButton(Child1_MainPanel, 10, 20, 75, 25, 'One', owVpos=OTOP, owTabList=OON)
return
end subroutine
subroutine GenerateDoc1

! Set up complex dialogue box Doc1 child of Main
   Doc1 = owCreateMDIComplexDialogueBox(Main, 100-4, 100-24, 400, 550, ior(OTOOL,OQUIT), 'Form 3', owQuitMode=OLEAVE, &
      owInitState=ONORMAL, owIconFormat=OMENUICON, owIconFile='doc.icn', owIconID=3)

! Create main panel for form
   Doc1_MainPanel=owCreatePanel(Doc1, 0, 0, 400, 550, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)
return
end subroutine
subroutine GenerateAbout

! Set up complex dialogue box About child of AboutEntry
   About = owCreateComplexDialogueBox(AboutEntry, 260, 190, 400, 550, ior(OMINIMIZE,OMAXIMIZE), 'Form 4', owVpos=OTOP, &
      owQuitMode=OHIDE, owInitState=OMINIMIZE, owIconFormat=OBMPFILE, owIconFile='C:\pics\about.bmp')

! Create main panel for form
   About_MainPanel=owCreatePanel(About, 0, 0, 400, 550, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)
return
end subroutine
subroutine GenerateTail

! Set up complex dialogue box Tail child of Main
   Tail = owCreateComplexDialogueBox(Main, 350, 280, 400, 550, OMAXIMIZE, 'Form 8', owVpos=OTOP, owQuitMode=OHIDE, &
      owInitState=ONORMAL, owIconFormat=ODLLICON, owIconFile='Gee')

! Create main panel for form
   Tail_MainPanel=owCreatePanel(Tail, 0, 0, 400, 550, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)
return
end subroutine
! GetMasterFormID Function
   Integer Function GetMasterFormID()
   GetMasterFormID = Main
   end function
End Module

use wdesign
use menu_f90

   type (OACTION) owdactlist

! Initialise Orba, Device & Menu
   call oOpenOrba
   call oOglwin
   call owInitializeMenu

! Define required grid
   call owDefineGuiGrid(36,27)
   call owSetGuiGridMode(0)

! Generate Forms
   call GenerateMain
   call GenerateChild1
   call GenerateDoc1
   call GenerateAbout
   call GenerateTail

! Start management
   call owManage

! Action loop
   do
      callid=owAction(callid)

! Code to handle callbacks
      if(callid == -1) then
         callid=101;
      else if (callid == (Main)) then
         
         call owEnqActionState(owdactlist)
         if(owdactlist%status == 1) then
         callid=102;
         end if
      else if (callid == (OpenEntry)) then
         callid=103;
      else if (callid == (LastEntry+OIDENT)) then
         callid=104;
      else if (callid == (Dyn1_Button1)) then
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
