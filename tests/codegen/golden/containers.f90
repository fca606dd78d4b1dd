! Program containers
! Last created on DATE
! Using ORBAWIDG Designer Version  v8.5

! Global Definitions
Module wdesign
use menu_f90


! Widget identifier definitions
integer :: Form1
integer :: Form1_MainPanel
integer :: Form1_Panel1
integer :: Form1_Panel2
integer :: Form1_Panel3
integer :: Form1_TabDiaBox1
integer :: Form1_Panel4
integer :: Form1_ToolBar1
integer :: Form1_Button1
integer :: Form1_Button2
integer :: Form1_Icon1
integer :: Form1_Icon2
integer :: Form1_Icon3
integer :: Form1_ToolSep1
integer :: Form1_ToolSep2
integer :: Form1_ToolSep3
integer :: Form1_ToolSep4
integer :: Form1_Combo1
integer :: Form1_ToolBar2
integer :: Form1_ToolBar3
integer :: Form1_ToolBar4
integer :: Form1_ToolBar5
integer :: Form1_Pane1
integer :: Form1_Text1
integer :: Form1_Pane2
integer :: Form1_Pane3
integer :: Form1_Pane4
integer :: Form1_Graphics1
integer :: Form1_Graphics2
integer :: Form1_Icon4
integer :: Form1_Icon5
integer :: Form1_Icon6
integer :: callid
contains
subroutine GenerateForm1

! Set up master window Form1
   Form1 = owCreateMasterWindow(200, 130, 400, 550, OALL, 'Form 1', owVpos=OTOP, owInitState=ONORMAL, owIconFormat=ODLLICON, &
      owIconFile='Gee')

! Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 400, 550, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owImage='back_ground', owLineCol=1, owFillCol=2)

! Create panel Form1_Panel1 child of Form1_MainPanel
   Form1_Panel1 = owCreatePanel(Form1_MainPanel, 10, 20, 175, 125, owTitle='Options', owType=OSINGLE, owLineCol=4, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE, owImage='panel', owIcon=owGetIconResource('my_tab'), &
      owScrollMode=ONOBARS, owHpos=OCENTRE, owVpos=OTOP, owExpand=OON, owHelp='A panel', owTabList=OON)
   call owSetFontAttribs(Form1_Panel1, owBold=OON)

! Create panel Form1_Panel2 child of Form1_MainPanel
   Form1_Panel2 = owCreatePanel(Form1_MainPanel, 10, 20, 175, 125, owType=OINVERSECHISEL, owLineBorder=OOUTEREDGE, &
      owFillBorder=OOUTEREDGE, owIcon=owGetIconResource('Stock'), owScrollMode=OBOTHBARS, owVpos=OTOP, owTabList=OON)

! Create panel Form1_Panel3 child of Form1_MainPanel
   Form1_Panel3 = owCreatePanel(Form1_MainPanel, 10, 20, 175, 125, owType=ONOBOUNDARY, owLineBorder=OOUTEREDGE, &
      owFillBorder=OOUTEREDGE, owScrollMode=OVERTICAL, owVpos=OTOP, owTabList=OON)

! Create tabdded dialogue box Form1_TabDiaBox1 child of Form1_MainPanel
   Form1_TabDiaBox1 = owCreateTabDialogueBox(Form1_MainPanel, 10, 20, 0, 0, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON)
   call owSetFontAttribs(Form1_TabDiaBox1, owUnderline=OON)

! Create panel Form1_Panel4 child of Form1_TabDiaBox1
   Form1_Panel4 = owCreatePanel(Form1_TabDiaBox1, 10, 20, 175, 125, owTitle='Page', owType=OINVERSECHISEL, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE, owScrollMode=ONOBARS, owVpos=OTOP, owTabList=OON)
   call owSetWidgetStatus(Form1_Panel4, OUNSELECTABLE)

! Create ToolBar Form1_ToolBar1 child of Form1
   Form1_ToolBar1 = owCreateToolBar(Form1, OTOP, 35, owQuitMode=OREMOVE, owTitleFlag=OTITLE, owTitle='Tools')
   call owSetToolbarPos(Form1_ToolBar1, 30, 40, 300, 4)
   call owDefineCallback(Form1_ToolBar1, (Form1_ToolBar1))

! Create button Form1_Button1 child of Form1_ToolBar1
   Form1_Button1 = owCreateToolBarButton(Form1_ToolBar1, OTEXTBUTTON, 'it''s', owDragMode=OON, owHelp='Press', owTabList=OON)
   call owSetFontAttribs(Form1_Button1, owItalic=OON)
   call owSetWidgetProp(Form1_Button1, owOnCol=1, owOffCol=2, owTextCol=3)
   call owSetWidgetStatus(Form1_Button1, OUNSELECTABLE)

! Create button Form1_Button2 child of Form1_ToolBar1
   Form1_Button2 = owCreateToolBarButton(Form1_ToolBar1, OTEXTBUTTON, 'Plain', owTabList=OON)
   call owSetWidgetProp(Form1_Button2, owOnCol=0, owOffCol=0, owTextCol=0)

! Create icon Form1_Icon1 child of Form1_ToolBar1
   Form1_Icon1 = owCreateToolBarButton(Form1_ToolBar1, OICONBUTTON, 'save', owIconType=OBUTTON ,owDragMode=OON, owTabList=OON)

! Create icon Form1_Icon2 child of Form1_ToolBar1
   Form1_Icon2 = owCreateToolBarButton(Form1_ToolBar1, OICONBUTTON, 'C:\pics\open.bmp' ,owIconType=OPICTOGRAM, owHelp='Open a '// &
     'file', owTabList=OON)
   call owSetFontAttribs(Form1_Icon2, owBold=OON)

! Create icon Form1_Icon3 child of Form1_ToolBar1
   Form1_Icon3 = owCreateToolBarButton(Form1_ToolBar1, OICONBUTTON, 'MSML1001' ,owIconType=OMOUSESENSITIVE, owTabList=OON)

! Create ToolBar Separator Form1_ToolSep1 child of Form1_ToolBar1
   Form1_ToolSep1 = owCreateToolBarSeparator(Form1_ToolBar1, owSeparatorType=OCHISEL)
   call owSetWidgetStatus(Form1_ToolSep1, OUNSELECTABLE)

! Create ToolBar Separator Form1_ToolSep2 child of Form1_ToolBar1
   Form1_ToolSep2 = owCreateToolBarSeparator(Form1_ToolBar1, owSeparatorType=OINVERSECHISEL)

! Create ToolBar Separator Form1_ToolSep3 child of Form1_ToolBar1
   Form1_ToolSep3 = owCreateToolBarSeparator(Form1_ToolBar1, owSeparatorType=ONONE)

! Create ToolBar Separator Form1_ToolSep4 child of Form1_ToolBar1
   Form1_ToolSep4 = owCreateToolBarSeparator(Form1_ToolBar1, owSeparatorType=ODOUBLE)

! Create combo box Form1_Combo1 child of Form1_ToolBar1
   Form1_Combo1 = owCreateComboBox(Form1_ToolBar1, 10, 20, 125, 100, ONONE, 1, owSort=OUNSORTED, owVpos=OTOP, owTabList=OON)

! Create ToolBar Form1_ToolBar2 child of Form1
   Form1_ToolBar2 = owCreateToolBar(Form1 ,OLEFTSIDE, 35, owQuitMode=OLEAVE, owTitleFlag=OQUIT, owTitle='')

! Create ToolBar Form1_ToolBar3 child of Form1
   Form1_ToolBar3 = owCreateToolBar(Form1 ,ORIGHTSIDE, 35, owQuitMode=OHIDE, owTitleFlag=OTITLE, owTitle='')

! Create ToolBar Form1_ToolBar4 child of Form1
   Form1_ToolBar4 = owCreateToolBar(Form1, OBOTTOM, 35, owQuitMode=OHIDE, owTitleFlag=OTITLE, owTitle='')

! Create ToolBar Form1_ToolBar5 child of Form1
   Form1_ToolBar5 = owCreateToolBar(Form1, OTOP, 35, owQuitMode=OHIDE)

! Create Docking Pane Form1_Pane1 child of Form1
   Form1_Pane1 = owCreateDockingPane(Form1 ,OFLOATING, 5, 6, 70, 80, owQuitMode=OHIDE, owTitleFlag=OTITLE, owTitle='it''s a pane')
   call owDefineCallback(Form1_Pane1, (Form1_Pane1))
   call owDefineDragDropCallback(Form1_Pane1,(Form1_Pane1+5*OIDENT))

! Create text widget Form1_Text1 child of Form1_Pane1
   Form1_Text1 = owCreateTextEntry(Form1_Pane1, 10, 20, 100, 20,' ', 255, OEDIT, owJustify=OCENTRE, owBack1Col=0, &
      owBack2Col=0, owTextCol=16 ,owScrollMode=OVERTICAL, owVpos=OTOP, owTabList=OON)
   call owSetFontAttribs(Form1_Text1)

! Create Docking Pane Form1_Pane2 child of Form1
   Form1_Pane2 = owCreateDockingPane(Form1 ,ORIGHTSIDE, 10, 20, 150, 150, owQuitMode=OREMOVE, owTitleFlag=OQUIT, owTitle='')

! Create Docking Pane Form1_Pane3 child of Form1
   Form1_Pane3 = owCreateDockingPane(Form1, OBOTTOM, 10, 20, 150, 150, owQuitMode=OHIDE)

! Create Docking Pane Form1_Pane4 child of Form1
   Form1_Pane4 = owCreateDockingPane(Form1, OTOP, 10, 20, 150, 150, owQuitMode=OHIDE, owTitleFlag=OTITLE, owTitle='')

! Create graphics frame Form1_Graphics1 child of Form1_MainPanel
   Form1_Graphics1 = owCreateGraphicsFrame(Form1_MainPanel, 10, 20, 0, 0, &
         OLIMIT(-1.500000, 1000.250000, -0.000001, 750.000000), owFrameType=OGDI, owHpos=OCENTRE, owVpos=OMIDDLE, &
      owExpand=OON, owHelp='Plot', owHelpJustify=ORIGHT)
   call owDefineExposeCallback(Form1_Graphics1,(Form1_Graphics1+3*OIDENT))

! Create graphics frame Form1_Graphics2 child of Form1_MainPanel
   Form1_Graphics2 = owCreateGraphicsFrame(Form1_MainPanel, 10, 20, 125, 75, &
         OLIMIT(0.000000, 1000.000000, 0.000000, 750.000000), owFrameType=OOPENGL, owVpos=OTOP)

! Create icon Form1_Icon4 child of Form1_MainPanel
   Form1_Icon4 = owCreateIcon(Form1_MainPanel, 10, 20, 50, 50,'tool_box', 4, 0, owType=OBUTTON, owDragMode=OON, owSize=60, &
      owLabel='it''s labelled', owHpos=ORIGHT, owVpos=OTOP, owHelp='An icon', owTabList=OOFF)
   call owSetFontAttribs(Form1_Icon4, owBold=OON)

! Create icon Form1_Icon5 child of Form1_MainPanel
   Form1_Icon5 = owCreateIcon(Form1_MainPanel, 10, 20, 50, 50,'menu.icn', 0, 12, owType=OPICTOGRAM, owVpos=OTOP, owTabList=OON)

! Create icon Form1_Icon6 child of Form1_MainPanel
   Form1_Icon6 = owCreateIcon(Form1_MainPanel, 10, 20, 50, 50,'a\\b\c.bmp', 1, 0, owType=OMOUSESENSITIVE, owVpos=OTOP, &
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

   type (OACTION) owdactlist

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
      if (callid == (Form1_ToolBar1)) then
         callid=101;
         call owEnqActionState(owdactlist)
         if(owdactlist%status == 0) then
         callid=102;
         end if
      else if (callid == (Form1_Pane1)) then
         
         call owEnqActionState(owdactlist)
         if(owdactlist%status == 2) then
         callid=104;
         end if
      else if (callid == (Form1_Pane1+5*OIDENT)) then
         callid=103;
      else if (callid == (Form1_Graphics1+3*OIDENT)) then
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
