! Program code
! Last created on DATE
! Using ORBAWIDG Designer Version  v8.5

! Global Definitions
Module wdesign
use menu_f90

integer :: mine
integer :: yours

! Widget identifier definitions
character*256 :: ORBDIR
integer :: configstatus
integer :: Form1
integer :: Form1_MainPanel
integer :: Form1_Button1
integer :: Form1_Button2
integer :: Form1_TreeView1
integer ::  Leaf
integer :: Form2
integer :: Form2_MainPanel
integer :: callid
contains
subroutine GenerateForm1

! Set up master window Form1
   Form1 = owCreateMasterWindow(9, 6, 18, 25, OALL, 'Form 1', owVpos=OTOP, owInitState=ONORMAL, owIconFormat=ODLLICON, &
      owIconFile='Gee')
   call owDefineCallback(Form1, (Form1))
   call owDefineDragDropCallback(Form1,(Form1+5*OIDENT))

! Create main panel for form
   Form1_MainPanel=owCreatePanel(Form1, 0, 0, 18, 25, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)

! Create button Form1_Button1 child of Form1_MainPanel
   Form1_Button1 = owCreatePushButton(Form1_MainPanel, 0, 0, 3, 1, '', owVpos=OTOP, owTabList=OON)
   call owDefineCallback(Form1_Button1, (Form1_Button1))
   call owDefineSelectCallback(Form1_Button1,(Form1_Button1+OIDENT))
   call owDefineMoveCallback(Form1_Button1,(Form1_Button1+2*OIDENT))
   call owDefineExposeCallback(Form1_Button1,(Form1_Button1+3*OIDENT))
   call owDefineChangeCallback(Form1_Button1,(Form1_Button1+4*OIDENT))
   call owDefineDragDropCallback(Form1_Button1,(Form1_Button1+5*OIDENT))
   call owDefineDoubleClickCallback(Form1_Button1,(Form1_Button1+6*OIDENT))
   call owDefineFileDropCallback(Form1_Button1,(Form1_Button1+7*OIDENT))
   call owDefineDragSelectCallback(Form1_Button1,(Form1_Button1+8*OIDENT))
   call owDefineDragMoveCallback(Form1_Button1,(Form1_Button1+9*OIDENT))
   call owDefineValueErrorCallback(Form1_Button1,(Form1_Button1+10*OIDENT))
   call owDefineLinkCallback(Form1_Button1,(Form1_Button1+11*OIDENT))
   call owSetWidgetStatus(Form1_Button1, OCHECKED)

! Create button Form1_Button2 child of Form1_MainPanel
   Form1_Button2 = owCreatePushButton(Form1_MainPanel, 0, 0, 3, 1, '', owVpos=OTOP, owTabList=OON)
   call owDefineCallback(Form1_Button2, (Form1_Button2))

! Create tree view Form1_TreeView1 child of Form1_MainPanel
   Form1_TreeView1 = owCreateTreeViewBox(Form1_MainPanel, 0, 0, 6, 6, owVpos=OTOP)

! Create entries for tree view Form1_TreeView1
   Leaf = owCreateTreeEntry(Form1_TreeView1, OLASTCHILD, 'Leaf')
   call owDefineCallback(Leaf, Leaf)
   call owDefineSelectCallback(Leaf, (Leaf+OIDENT))
   call owDefineChangeCallback(Leaf, (Leaf+4*OIDENT))
   call owDefineDragDropCallback(Leaf, (Leaf+5*OIDENT))
   call owDefineDoubleClickCallback(Leaf, (Leaf+6*OIDENT))
return
end subroutine
subroutine GenerateForm2

! Set up complex dialogue box Form2 child of Form1
   Form2 = owCreateComplexDialogueBox(Form1, 10, 7, 18, 25, OALL, 'Form 2', owVpos=OTOP, owQuitMode=OHIDE, &
      owInitState=ONORMAL, owIconFormat=ODLLICON, owIconFile='Gee')
   call owDefineCallback(Form2, (Form2))

! Create main panel for form
   Form2_MainPanel=owCreatePanel(Form2, 0, 0, 18, 25, owHpos=OCENTRE, owVpos=OMIDDLE, owExpand=OON, owType=ONOBOUNDARY, &
      owLineBorder=OOUTEREDGE, owFillBorder=OOUTEREDGE)
return
end subroutine
! GetMasterFormID Function
   Integer Function GetMasterFormID()
   GetMasterFormID = Form1
   end function
! Global Routines
subroutine global_routine
end subroutine
End Module

use wdesign
use menu_f90

! User defined variables
integer :: local
   type (OACTION) owdactlist
      type (ODIM) owpaper
      integer owpty
   integer resx,resy,xp,yp,xg,yg,px,py,grx,gry

! Initialise Orba, Device & Menu
   configstatus = oEnqConfigStatus(cfgdir=ORBDIR)
   if(configstatus .ne. 0) then
      call owDisplayErrorBox("The file ORBA.CON is invalid or has not been found in the directory",ORBDIR)
      Stop
   endif
   call oOglwin
   call oEnqDrawingLimits(owpaper,owpty)
   call oSetDrawingLimits(owpaper,0)
   call owInitializeMenu

! Calculate required grid dimensions
   call owEnqGuiGrid(xg,yg,xp,yp)
   resx=xg*xp; resy=yg*yp
   px=resx/32; py=resy/ 9
   grx=800/px; gry=600/py
   call owDefineGuiGrid(grx,gry)
   call owSetGuiGridMode(1)

! Define user defined colour indices used
   call oDefineRGB(20, 1.000000, 0.500000, 0.000000)
   call oDefineRGB(255, 0.000000, 0.000000, 0.250000)

! Generate Forms
   call GenerateForm1
   call GenerateForm2

! Define user defined colour indices used
   call oDefineRGB(20, 1.000000, 0.500000, 0.000000)
   call oDefineRGB(255, 0.000000, 0.000000, 0.250000)

! Initialization code
      callid=1;

! Start management
   call owManage

!   Set active widget
   call owSetActiveWidget(Form1_Button2)

!   Pre Action Code
      callid=2;

! Action loop
   do
      callid=owAction(callid)

! Start of Action Loop
      callid=3;


! Code to handle callbacks
      if(callid == -1) then
       callid=103;
      else if (callid == (Form1)) then
       
         call owEnqActionState(owdactlist)
         if(owdactlist%status == 0) then
       callid=101;
         else if(owdactlist%status == 1) then
       callid=102;
         else if(owdactlist%status == 3) then
       callid=104;
         else if(owdactlist%status == 4) then
       callid=105;
         else if(owdactlist%status == 5) then
       callid=106;
         end if
      else if (callid == (Form1+5*OIDENT)) then
       callid=107;
      else if (callid == (Form1_Button1)) then
       callid=108;
       callid=109;
      else if (callid == (Form1_Button1+OIDENT)) then
       callid=110;
      else if (callid == (Form1_Button1+2*OIDENT)) then
       callid=111;
      else if (callid == (Form1_Button1+3*OIDENT)) then
       callid=117;
      else if (callid == (Form1_Button1+4*OIDENT)) then
       callid=112;
      else if (callid == (Form1_Button1+5*OIDENT)) then
       callid=116;
      else if (callid == (Form1_Button1+6*OIDENT)) then
       callid=113;
      else if (callid == (Form1_Button1+7*OIDENT)) then
       callid=118;
      else if (callid == (Form1_Button1+8*OIDENT)) then
       callid=114;
      else if (callid == (Form1_Button1+9*OIDENT)) then
       callid=115;
      else if (callid == (Form1_Button1+10*OIDENT)) then
       callid=119;
      else if (callid == (Form1_Button1+11*OIDENT)) then
       callid=120;
      else if (callid == (Form1_Button2)) then
       
         call owEnqActionState(owdactlist)
         if(owdactlist%status == 4) then
       callid=121;
         end if
      else if (callid == (Leaf)) then
       callid=122;
      else if (callid == (Leaf+OIDENT)) then
       callid=123;
      else if (callid == (Leaf+4*OIDENT)) then
       callid=124;
      else if (callid == (Leaf+5*OIDENT)) then
       callid=125;
      else if (callid == (Leaf+6*OIDENT)) then
       callid=126;
      else if (callid == (Form2)) then
       callid=127;
         call owEnqActionState(owdactlist)
         if(owdactlist%status == 2) then
       callid=128;
         end if
      end if


! End of Action Loop
      callid=4;

      if(callid == -1) exit
   end do

! Program termination code
      callid=5;

! Close device MENU and ORBA, and end program
   call owCloseMenu
   call oCloseDevice
   call oCloseOrba

stop
end
! Additional User Routines/Functions
subroutine user_routine
end
