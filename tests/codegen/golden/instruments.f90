! Program instruments
! Last created on DATE
! Using ORBAWIDG Designer Version  v8.5

! Global Definitions
Module wdesign
use menu_f90


! Widget identifier definitions
integer :: Form1
integer :: Form1_MainPanel
integer :: Form1_Slider1
integer :: Form1_Slider2
integer :: Form1_Slider3
integer :: Form1_Slider4
integer :: Form1_Gauge1
integer :: Form1_Gauge2
integer :: Form1_Progress1
integer :: Form1_Progress2
integer :: Form1_TxtArray1
integer :: Form1_TxtArray2
integer :: Form1_ValArray1
integer :: Form1_ValArray2
integer :: Form1_TableBox1
integer :: Form1_TableBox2
integer :: Form1_TreeView1
integer ::  Fruit
integer ::  Apple
integer ::  Citrus
integer ::  Lemon
integer ::  Pear
integer ::  Nuts
integer :: Form1_TreeView2
integer ::  Root
integer :: Form1_TreeView3
integer :: callid
contains
subroutine GenerateForm1
type (OWIDGET) :: Slider_attribs
type(OARRAYCELL) arrayattribs

! Set up master window Form1
   Form1 = owCreateMasterWindow(200, 130, 400, 550, OALL, 'Form 1', owVpos=OTOP, owInitState=ONORMAL, owIconFormat=ODLLICON, &
      owIconFile='Gee')

! Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 400, 550, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)

! Create slider Form1_Slider1 child of Form1_MainPanel
   Form1_Slider1 = owCreateSlider(Form1_MainPanel, 10, 20, 75, 25, 0.000000, 5.000000, 1.000000, 0.000000, owType=OHORIZONTAL, &
      owBackCol=0, owVpos=OTOP)

! Set correct width/height for Form1_Slider1
   call owEnqWidgetInfo(Form1_Slider1,Slider_attribs)
      Slider_attribs%width = 75
      Slider_attribs%height = 25
   call owSetWidgetInfo(Form1_Slider1,Slider_attribs)

! Create slider Form1_Slider2 child of Form1_MainPanel
   Form1_Slider2 = owCreateSlider(Form1_MainPanel, 10, 20, 0, 25, -1.250000, 1000000.000000, 0.100000, 0.333333, &
      owType=OVERTICAL, owSize=40, owBackCol=3, owHpos=OCENTRE, owVpos=OTOP, owExpand=OON)

! Set correct width/height for Form1_Slider2
   call owEnqWidgetInfo(Form1_Slider2,Slider_attribs)
      Slider_attribs%width = 75
      Slider_attribs%height = 25
   call owSetWidgetInfo(Form1_Slider2,Slider_attribs)
   call owSetWidgetStatus(Form1_Slider2, OUNSELECTABLE)

! Create slider Form1_Slider3 child of Form1_MainPanel
   Form1_Slider3 = owCreateSlider(Form1_MainPanel, 10, 20, 75, 25, 0.000000, 5.000000, 1.000000, 0.000000, &
      owType=OREVERSEHORIZONTAL, owBackCol=0, owVpos=OTOP)

! Set correct width/height for Form1_Slider3
   call owEnqWidgetInfo(Form1_Slider3,Slider_attribs)
      Slider_attribs%width = 75
      Slider_attribs%height = 25
   call owSetWidgetInfo(Form1_Slider3,Slider_attribs)

! Create slider Form1_Slider4 child of Form1_MainPanel
   Form1_Slider4 = owCreateSlider(Form1_MainPanel, 10, 20, 75, 25, 0.000000, 5.000000, 1.000000, 0.000000, &
      owType=OREVERSEVERTICAL, owBackCol=0, owVpos=OTOP)

! Set correct width/height for Form1_Slider4
   call owEnqWidgetInfo(Form1_Slider4,Slider_attribs)
      Slider_attribs%width = 75
      Slider_attribs%height = 25
   call owSetWidgetInfo(Form1_Slider4,Slider_attribs)

! Create gauge Form1_Gauge1 child of Form1_MainPanel
   Form1_Gauge1 = owCreateGauge(Form1_MainPanel, 10, 20, 75, 25, 'C:\pics\thumb.ico', owMinimum=-10, owMaximum=99, &
      owIntValue=45, owTicks1=10, owTicks2=10, owAccess=ODISPLAY, owVpos=OTOP, owHelp='Gauge', owHelpJustify=OLEFT, &
      owTabList=OON)

! Create gauge Form1_Gauge2 child of Form1_MainPanel
   Form1_Gauge2 = owCreateGauge(Form1_MainPanel, 10, 20, 75, 0, 'mthumb01', owMinimum=0, owMaximum=100, owIntValue=0, &
      owTicks1=3, owTicks2=4, owAccess=OEDIT, owVpos=OMIDDLE, owExpand=OON, owTabList=OON)

! Create progress bar Form1_Progress1 child of Form1_MainPanel
   Form1_Progress1 = owCreateProgressBar(Form1_MainPanel, 10, 20, 75, 25, owMinimum=0, owMaximum=100, owIntValue=12, &
      owProgressType=OSMOOTH, owVpos=OTOP, owHelp='Busy')

! Create progress bar Form1_Progress2 child of Form1_MainPanel
   Form1_Progress2 = owCreateProgressBar(Form1_MainPanel, 10, 20, 75, 25, owMinimum=0, owMaximum=100, owIntValue=0, &
      owProgressType=ODEFAULT, owVpos=OTOP)
   call owSetWidgetStatus(Form1_Progress2, OHIDDEN)

! Create text array Form1_TxtArray1 child of Form1_MainPanel
   Form1_TxtArray1 = owCreateTextArray(Form1_MainPanel, 10, 20, 150, 150, 3, 2, owAxisW=-1, owAxisH=-1, owXtext='*digits', &
      owYtext='one|two', owXjust=OCENTRE, owYjust=OCENTRE, owScrollMode=OBOTHBARS, owBorderType=OPROJECTED, owVpos=OTOP, &
      owTabList=OON, owTabAction=OON)
   call owEnqCellAttribs(Form1_TxtArray1, 1, 1, arrayattribs)
   arrayattribs%width=50
   arrayattribs%height=20
   call owSetCellAttribs(Form1_TxtArray1, 0, 0, arrayattribs)

! Create text array Form1_TxtArray2 child of Form1_MainPanel
   Form1_TxtArray2 = owCreateTextArray(Form1_MainPanel, 10, 20, 0, 0, 3, 5, owAxisW=30, owAxisH=40, owXtext='*digits', &
      owYtext='*digits', owXjust=OLEFT, owYjust=ORIGHT, owScrollMode=OHORIZONTAL, owBorderType=OINVERSECHISEL, &
      owAxisBackColour=3, owXtextColour=5, owYtextColour=6, owGridBackColour=7, owCellBorderColour=8, &
      owCellBorderLineType=-1, owSelectedCellColour=4, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owHelp='Cells', &
      owTabList=OOFF, owTabAction=OCYCLE, owReadOnly=OON)
   call owEnqCellAttribs(Form1_TxtArray2, 1, 1, arrayattribs)
   arrayattribs%width=40
   arrayattribs%height=20
   call owSetCellAttribs(Form1_TxtArray2, 1, 1, arrayattribs)
   call owSetCellAttribs(Form1_TxtArray2, 2, 2, arrayattribs)
   arrayattribs%width=60
   arrayattribs%height=20
   call owSetCellAttribs(Form1_TxtArray2, 3, 3, arrayattribs)
   call owSetCellAttribs(Form1_TxtArray2, 3, 4, arrayattribs)
   call owSetCellAttribs(Form1_TxtArray2, 3, 5, arrayattribs)
   call owSetFontAttribs(Form1_TxtArray2, owBold=OON)

! Create value array Form1_ValArray1 child of Form1_MainPanel
   Form1_ValArray1 = owCreateValueArray(Form1_MainPanel, 10, 20, 150, 150, 1, 2, owAxisW=-1, owAxisH=-1, owXtext='*digits', &
      owYtext='*digits', owXjust=ORIGHT, owYjust=OLEFT, owScrollMode=ONOBARS, owBorderType=OPROJECTED, owVpos=OTOP, &
      owTabList=OOFF, owTabAction=OOFF)
   call owEnqCellAttribs(Form1_ValArray1, 1, 1, arrayattribs)
   arrayattribs%width=10
   arrayattribs%height=20
   call owSetCellAttribs(Form1_ValArray1, 1, 1, arrayattribs)
   arrayattribs%width=10
   arrayattribs%height=30
   call owSetCellAttribs(Form1_ValArray1, 1, 2, arrayattribs)

! Create value array Form1_ValArray2 child of Form1_MainPanel
   Form1_ValArray2 = owCreateValueArray(Form1_MainPanel, 10, 20, 150, 150, 2, 1, owAxisW=-1, owAxisH=-1, owXtext='*digits', &
      owYtext='*digits', owXjust=OCENTRE, owYjust=OCENTRE, owScrollMode=OVERTICAL, owBorderType=OPROJECTED, owVpos=OTOP, &
      owTabList=OOFF)
   call owEnqCellAttribs(Form1_ValArray2, 1, 1, arrayattribs)
   arrayattribs%width=10
   arrayattribs%height=20
   call owSetCellAttribs(Form1_ValArray2, 1, 1, arrayattribs)
   arrayattribs%width=20
   arrayattribs%height=20
   call owSetCellAttribs(Form1_ValArray2, 2, 1, arrayattribs)
   call owSetWidgetStatus(Form1_ValArray2, OUNSELECTABLE)

! Create table box view Form1_TableBox1 child of Form1_MainPanel
   Form1_TableBox1 = owCreateTableBox(Form1_MainPanel, 10, 20, 0, 100, owHpos=OCENTRE, owVpos=OTOP, owExpand=OON)
   call owAddTableBoxColumn(Form1_TableBox1, 1, 80, owLabel='Name')
   call owAddTableBoxColumn(Form1_TableBox1, 2, 60, owLabel='')
   call owAddTableBoxColumn(Form1_TableBox1, 3, 40, owLabel='Size')
   call owAddTableBoxColumn(Form1_TableBox1, 4, 20)

! Create table box view Form1_TableBox2 child of Form1_MainPanel
   Form1_TableBox2 = owCreateTableBox(Form1_MainPanel, 10, 20, 225, 100, owVpos=OTOP)
   call owAddTableBoxColumn(Form1_TableBox2, 1, 1, owLabel='A')
   call owAddTableBoxColumn(Form1_TableBox2, 2, 2, owLabel='B')
   call owAddTableBoxColumn(Form1_TableBox2, 3, 3)
   call owSetFontAttribs(Form1_TableBox2, owItalic=OON)
   call owSetWidgetStatus(Form1_TableBox2, OUNSELECTABLE)

! Create tree view Form1_TreeView1 child of Form1_MainPanel
   Form1_TreeView1 = owCreateTreeViewBox(Form1_MainPanel, 10, 20, 150, 150, owIconSet=ORESOURCEICONS, owVpos=OTOP)

! Create entries for tree view Form1_TreeView1
   Fruit = owCreateTreeEntry(Form1_TreeView1, OLASTCHILD, 'Fruit', owIcon=owGetIconResource('fruit_one'), &
      owOpenIcon=owGetIconResource('open'))
   Apple = owCreateTreeEntry(Fruit, OLASTCHILD, 'It''s an apple')
   Citrus = owCreateTreeEntry(Fruit, OLASTCHILD, 'Citrus')
   Lemon = owCreateTreeEntry(Citrus, OLASTCHILD, 'Lemon', owCloseIcon=owGetIconResource('Stock'))
   Pear = owCreateTreeEntry(Fruit, OLASTCHILD, 'Pear')
   Nuts = owCreateTreeEntry(Form1_TreeView1, OLASTCHILD, '"Nuts"')
   call owSetFontAttribs(Form1_TreeView1, owBold=OON)
   call owDefineCallback(Apple, Apple)
   call owDefineDoubleClickCallback(Apple, (Apple+6*OIDENT))
   call owDefineDragDropCallback(Nuts, (Nuts+5*OIDENT))

! Create tree view Form1_TreeView2 child of Form1_MainPanel
   Form1_TreeView2 = owCreateTreeViewBox(Form1_MainPanel, 10, 20, 0, 150, owIconSet=OFOLDERS, owHpos=OCENTRE, owVpos=OTOP, &
      owExpand=OON)

! Create entries for tree view Form1_TreeView2
   Root = owCreateTreeEntry(Form1_TreeView2, OLASTCHILD, 'Root')
   call owSetWidgetStatus(Form1_TreeView2, OUNSELECTABLE)

! Create tree view Form1_TreeView3 child of Form1_MainPanel
   Form1_TreeView3 = owCreateTreeViewBox(Form1_MainPanel, 10, 20, 150, 150, owIconSet=OBOOKS, owVpos=OTOP)
   call owSetFontAttribs(Form1_TreeView3, owItalic=OON)
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
      if (callid == (Apple)) then
         callid=101;
      else if (callid == (Apple+6*OIDENT)) then
         callid=102;
      else if (callid == (Nuts+5*OIDENT)) then
         callid=103;
      end if


      if(callid == -1) exit
   end do

! Close device MENU and ORBA, and end program
   call owCloseMenu
   call oCloseDevice
   call oCloseOrba

stop
end
