! The six-letter interface of the toolkit for Fortran 77 programs, over the routines of menu_f90.
!
! It works by state: WIDMIN, WIDPOS, BUTATR and their like set values that the next creation routine takes up. Values of
! a family (BUTTYP, TEXATR, ...) hold until they are set again; WIDSTR is used up by the next window, panel or bar.
! Text arguments lose their trailing blanks. The last argument of a creation routine receives the new handle.
module menu_f77_routines
   use, intrinsic :: iso_c_binding, only: c_float
   use menu_f90
   ! Routines that have the same arguments under both names; here they go by the new one alone.
   ! session and events
   use menu_f90, only: ORBA => oOpenOrba, ORBEND => oCloseOrba, DEVEND => oCloseDevice, GUIWIN => oGuiwin, &
                       OGLWIN => oOglwin, MENEND => owCloseMenu, MANAGE => owManage, &
                       CALLBK => owDefineCallback, CALLSL => owDefineSelectCallback, &
                       CALLMV => owDefineMoveCallback, CALLEX => owDefineExposeCallback, &
                       CALLCH => owDefineChangeCallback, CALLDD => owDefineDoubleClickCallback, &
                       CALLFD => owDefineFileDropCallback, CALLVE => owDefineValueErrorCallback, &
                       CALLLK => owDefineLinkCallback, DRAGDR => owDefineDragDropCallback, &
                       DRAGSL => owDefineDragSelectCallback, DRAGMV => owDefineDragMoveCallback, &
                       DRGREC => owDefineDragRect, CALLKY => owDefineKeyCallback, &
                       CALLTM => owDefineTimerCallback
   ! grid and colours
   use menu_f90, only: GRDENQ => owEnqGuiGrid, GUIGRD => owDefineGuiGrid, GRDMOD => owSetGuiGridMode, &
                       RGBDEF => oDefineRGB
   ! state for the next creation
   use menu_f90, only: SCRENQ => owEnqScrollBarPos, SCRSET => owSetScrollBarPos
   ! windows, status bars, menus
   use menu_f90, only: WINREM => owRemoveWindow, WINTOP => owPopWindow, WINBOT => owPushWindow, &
                       ACTWIN => owSetActiveWindow, MDIACT => owMDIAction, STAPAN => owSetTextPanes, &
                       STATEX => owSetStatusBarText
   ! buttons, toggles, icons, tool bars
   use menu_f90, only: TOGENQ => owEnqToggleSwitch, TOGSET => owSetToggleSwitch
   ! text
   use menu_f90, only: TEXENQ => owEnqTextSetting, TEXSET => owSetTextSetting, TEXINS => owReplaceText, &
                       TEXPRT => owPrintTextWidget, TEXCLP => owCopyTextToClipboard, &
                       GETSEL => owEnqSelectedTextRange, SETSEL => owSetSelectedTextRange
   ! values
   use menu_f90, only: VALENQ => owEnqValueSetting, VALSET => owSetValueSetting, VALROG => owSetRogueValueStr, &
                       SLIENQ => owEnqSliderValue, SLISET => owSetSliderValue, GAGENQ => owEnqGaugeValue, &
                       GAGSET => owSetGaugeValue, PROSET => owSetProgressValue
   ! lists, trees, tables
   use menu_f90, only: LISSTA => owEnqListStatus, TREACT => owTreeViewAction, TREENQ => owEnqTreeViewLabel, &
                       TRESET => owSetTreeViewLabel, TABENQ => owEnqTableBoxLabel, &
                       TABSET => owSetTableBoxLabel, TABSIZ => owSetTableBoxAttribs
   ! arrays
   use menu_f90, only: ARRACM => owDefineArrayAction, ARRENQ => owEnqArrayCells, ARRSEL => owSelectArrayCells, &
                       CELSET => owSetCellSetting, CELACT => owSetActiveCell, ADDROW => owAddArrayRow, &
                       ADDCOL => owAddArrayColumn, REMROW => owRemoveArrayRow, REMCOL => owRemoveArrayColumn
   ! graphics frames and drawing
   use menu_f90, only: FRAPIX => owEnqGraphicsPixelBounds, FRAACT => owActivateGraphicsFrame, &
                       FRACLE => owClearGraphicsFrame, FRACLP => owCopyGraphicsToClipboard, &
                       MOVTO2 => oMoveTo2D, LINTO2 => oDrawLineTo2D, LINCOL => oSetLineColour, &
                       CHASTR => oDisplayStr, CHASIZ => oSetCharSize, CHAANG => oSetStrAngle, &
                       CHAJUS => oSetStrJustify, IMGDRA => owDrawImage
   ! every widget
   use menu_f90, only: WIDSTA => owSetWidgetStatus, WIDCUR => owSetGuiCursor, WIDDRA => owDrawWidget, &
                       WIDREM => owEraseWidget, ACTWID => owSetActiveWidget, LINKER => owDefineWidgetLinks
   ! boxes
   use menu_f90, only: GUIERR => owDisplayErrorBox, GUIINF => owDisplayInfoBox
   implicit none
   private

   integer :: min_width = 0, min_height = 0 ! of the next widget, WIDMIN
   integer :: horizontal = OLEFT, vertical = OBOTTOM, expansion = 0 ! WIDPOS
   integer :: unplaced_box = 0              ! tab box that the WIDPOS behind its PANMAS still places
   integer :: title_flag = 0                ! WIDTTL; windows take it negated
   character(len=:), allocatable :: title   ! WIDSTR
   integer :: draw_mode = ONORMAL           ! DRAMOD, as an initial state
   integer :: close_mode = OHIDE            ! REMMOD
   integer :: bars = OBOTHBARS              ! SCRMOD of widget 0
   integer :: description_width = 0, use_icons = 0 ! GUIESC 110 and 111
   integer :: entry_border = 0              ! GUIESC 74

   type family ! what the ...ATR, ...TYP and ...SIZ routines of one family set
      integer :: colour1 = 0, colour2 = 0, colour3 = 0, colour4 = 0
      integer :: kind = 0, sign = 0, size = 100, justify = OLEFT
   end type family
   type(family) :: button_set, toggle_set, text_set, value_set, slider_set, panel_set, icon_set
   integer :: list_choice = 0, list_style = 0, list_sort = 0
   integer :: combo_display = 0, combo_sort = 0
   integer :: frame_kind = OGDI, radio_kind = OFREEFORM
   integer :: axis_width = 10, axis_height = 10, xjust = OCENTRE, yjust = OCENTRE
   character(len=:), allocatable :: xtext, ytext

   public :: ORBA, ORBEND, DEVEND, GUIWIN, OGLWIN, MENU, MENEND, MANAGE, ACTION, ACTENQ, PAPENQ, DEVPAP
   public :: CALLBK, CALLSL, CALLMV, CALLEX, CALLCH, CALLDD, CALLFD, CALLVE, CALLLK, CALLKY, CALLKQ, CALLTM
   public :: DRAGDR, DRAGSL, DRAGMV, DRGREC, DRGPOL
   public :: GRDENQ, GUIGRD, GRDMOD, GRMENQ, GUIRGB, RGBDEF, RGBENQ
   public :: WIDMIN, WIDMAX, WIDPOS, WIDTTL, WIDSTR, DRAMOD, REMMOD, SCRMOD, SCRENQ, SCRSET
   public :: MASTER, MASMDI, DIACMP, DIAMDI, WINICO, WINDRA, WINREM, WINTOP, WINBOT, ACTWIN, MDIACT
   public :: STABAR, STAPAN, STATEX, MENBAR, MENPOP, MENENT, MENSEP
   public :: PANEL, PANATR, PANTYP, PANIMG, PANMAS, RADIO, RADTYP
   public :: BUTTON, BUTATR, BUTTYP, BUTSIZ, BUTICO, TOGGLE, TOGATR, TOGTYP, TOGSIZ, TOGACC, TOGENQ, TOGSET
   public :: ICODEF, ICOTYP, ICOSIZ, TOLBAR, TOLBUT, TOLSEP
   public :: TEXENT, TEXATR, TEXTYP, TEXSIZ, TEXENQ, TEXSET, TEXINS, TEXLEN, TEXPOS, TEXGET, TEXSAV, TEXPRT, TEXCLP
   public :: TEXUND, GETSEL, SETSEL, GETPAR, SETPAR, CLPINF, TTYENT
   public :: VALENT, VALATR, VALTYP, VALSIZ, VALLIM, VALENQ, VALSET, VALROG
   public :: SLIDER, SLIATR, SLITYP, SLISIZ, SLIENQ, SLISET, SPIBAR, GAUGE, GAGLIM, GAGTYP, GAGENQ, GAGSET
   public :: PROBAR, PROLIM, PROSET
   public :: LISBOX, LISTYP, LISSET, LISENQ, LISSTA, COMBO, COMTYP
   public :: TREBOX, TREENT, TREACT, TREENQ, TRESET, TABBOX, TABCOL, TABENT, TABENQ, TABSET, TABSIZ
   public :: TEXARR, VALARR, ARRATR, ARRACM, ARRENQ, ARRSEL, CELSIZ, CELATR, CELANQ, CELSET, CELENQ, CELACT
   public :: TARSET, TARENQ, VARSET, VARENQ, ADDROW, ADDCOL, REMROW, REMCOL
   public :: FRADEF, FRATYP, FRALIM, FRAENQ, FRAPIX, FRAACT, FRACLE, FRACLP
   public :: MOVTO2, LINTO2, LINCOL, POLTO2, POFTO2, RFILL, CHASTR, CHASIZ, CHAANG, CHAJUS, IMGDRA, IMGDMP
   public :: WIDSTA, WIDFNT, WIDFNQ, WIDHLP, WIDINF, WIDCHA, WIDLIS, WIDCUR, WIDDRA, WIDREM, WTYENQ, ACTWID
   public :: PRPSET, PRPENQ, LINKER, GUIERR, GUIINF, GUIMSG, GUIHLP, GUIPRT, BROWSE, GETCUR, GUIESC

contains

! --- session and events

subroutine MENU()
   title = ''
   xtext = ''
   ytext = ''
   call owInitializeMenu()
end subroutine
subroutine ACTION(callid)
   integer, intent(out) :: callid
   callid = owAction(callid)
end subroutine
! The event in hand: its identifier, widget, key, status, position in the widget, text, and its values.
subroutine ACTENQ(callid, widget, key, status, x, y, text, count, args, iargs)
   integer, intent(out) :: callid, widget, key, status, count, iargs(80)
   real, intent(out) :: x, y, args(80)
   character(*), intent(out) :: text
   type(OACTION) :: event
   integer :: i
   call owEnqActionState(event)
   status = event%status
   key = event%key
   widget = event%widget
   callid = event%callback
   x = event%xpos
   y = event%ypos
   text = ''
   do i = 1, min(len(text), size(event%text))
      if (ichar(event%text(i)) == 0) exit
      text(i:i) = event%text(i)
   end do
   count = event%count
   args = event%args
   iargs = event%iargs
   status = event%status
end subroutine
subroutine PAPENQ(x, y, kind)
   real, intent(out) :: x, y
   integer, intent(out) :: kind
   type(ODIM) :: paper
   call oEnqDrawingLimits(paper, kind)
   x = paper%x
   y = paper%y
end subroutine
subroutine DEVPAP(x, y, kind)
   real, intent(in) :: x, y
   integer, intent(in) :: kind
   call oSetDrawingLimits(ODIM(x, y), kind)
end subroutine
subroutine DRGPOL(widget, points, x, y)
   integer, intent(in) :: widget, points
   real, intent(in) :: x(*), y(*)
   call owDefineDragShape(widget, points, real(x(1:points), c_float), real(y(1:points), c_float))
end subroutine
subroutine CALLKQ(key, callid)
   integer, intent(in) :: key
   integer, intent(out) :: callid
   callid = owEnqKeyCallback(key)
end subroutine

! --- grid and colours

subroutine GRMENQ(mode)
   integer, intent(out) :: mode
   mode = owEnqGuiGridMode()
end subroutine
! Colour box; the three stay as they are when it is cancelled.
subroutine GUIRGB(red, green, blue)
   real, intent(inout) :: red, green, blue
   real :: r, g, b
   if (owColourControl(r, g, b) /= 1) return
   red = r
   green = g
   blue = b
end subroutine
subroutine RGBENQ(colour, red, green, blue)
   integer, intent(in) :: colour
   real, intent(out) :: red, green, blue
   type(ORGBSTY) :: rgb
   call oEnqRGB(colour, rgb)
   red = rgb%red
   green = rgb%green
   blue = rgb%blue
end subroutine

! --- state for the next creation

subroutine WIDMIN(width, height)
   integer, intent(in) :: width, height
   min_width = width
   min_height = height
   unplaced_box = 0
end subroutine
! The largest size is that of WIDMIN in this toolkit; the call stands in generated programs.
subroutine WIDMAX(width, height)
   integer, intent(in) :: width, height
   if (width < 0 .or. height < 0) call GUIERR('WIDMAX', 'A size below 0 is no size.')
end subroutine
subroutine WIDPOS(code, expand)
   integer, intent(in) :: code, expand
   vertical = code/3 - 1
   horizontal = mod(code, 3) - 1
   expansion = expand
   if (unplaced_box == 0) return
   call owSetWidgetProp(unplaced_box, owHpos=horizontal, owVpos=vertical, owExpand=expansion)
   unplaced_box = 0
end subroutine
subroutine WIDTTL(flag)
   integer, intent(in) :: flag
   title_flag = flag
end subroutine
subroutine WIDSTR(text)
   character(*), intent(in) :: text
   title = trim(text)
end subroutine
subroutine DRAMOD(mode)
   integer, intent(in) :: mode
   integer, parameter :: states(0:3) = [ONORMAL, OMINIMIZE, OMAXIMIZE, OCENTRED]
   draw_mode = states(max(0, min(3, mode)))
end subroutine
subroutine REMMOD(mode)
   integer, intent(in) :: mode
   close_mode = mode
end subroutine
! Scroll bars: -1 none, 0 both, 1 vertical, 2 horizontal; of a widget, or with widget 0 of the next ones.
subroutine SCRMOD(widget, mode)
   integer, intent(in) :: widget, mode
   integer, parameter :: modes(-1:2) = [ONOBARS, OBOTHBARS, OVERTICAL, OHORIZONTAL]
   integer :: keyword
   keyword = modes(max(-1, min(2, mode)))
   if (widget > 0) then
      call owSetWidgetProp(widget, owScrollMode=keyword)
   else
      bars = keyword
   end if
end subroutine
function taken_title() result(text)
   character(len=:), allocatable :: text
   text = title
   title = ''
end function

! --- windows, status bars, menus

subroutine MASTER(x, y, window)
   integer, intent(in) :: x, y
   integer, intent(out) :: window
   window = owCreateMasterWindow(x, y, min_width, min_height, -title_flag, taken_title(), owHpos=horizontal, &
                                 owVpos=vertical, owInitState=draw_mode)
end subroutine
subroutine MASMDI(x, y, window)
   integer, intent(in) :: x, y
   integer, intent(out) :: window
   window = owCreateMDIMasterWindow(x, y, min_width, min_height, -title_flag, taken_title(), owHpos=horizontal, &
                                    owVpos=vertical, owInitState=draw_mode)
end subroutine
subroutine DIACMP(parent, x, y, window)
   integer, intent(in) :: parent, x, y
   integer, intent(out) :: window
   window = owCreateComplexDialogueBox(parent, x, y, min_width, min_height, -title_flag, taken_title(), &
                                       owHpos=horizontal, owVpos=vertical, owInitState=draw_mode, owQuitMode=close_mode)
end subroutine
subroutine DIAMDI(parent, x, y, window)
   integer, intent(in) :: parent, x, y
   integer, intent(out) :: window
   window = owCreateMDIComplexDialogueBox(parent, x, y, min_width, min_height, -title_flag, taken_title(), &
                                          owInitState=draw_mode, owQuitMode=close_mode)
end subroutine
subroutine WINICO(window, file, format, number)
   integer, intent(in) :: window, format, number
   character(*), intent(in) :: file
   if (file /= ' ') call owSetWindowIcon(window, file, format, number)
end subroutine
subroutine WINDRA(window)
   integer, intent(in) :: window
   call owDrawWindow(window, 1)
end subroutine
subroutine STABAR(window, panes, bar)
   integer, intent(in) :: window, panes
   integer, intent(out) :: bar
   bar = owCreateStatusBar(window, owPanes=panes)
end subroutine
subroutine MENBAR(window, x, y, bar)
   integer, intent(in) :: window, x, y
   integer, intent(out) :: bar
   bar = 0
   if (x == -1 .and. y == -1) bar = owCreateMenuBar(window)
end subroutine
! A pull-down menu on an entry, or a pop-up menu at x, y of a window.
subroutine MENPOP(parent, x, y, menu)
   integer, intent(in) :: parent, x, y
   integer, intent(out) :: menu
   type(OWIDGET) :: info
   call owEnqWidgetInfo(parent, info)
   if (info%kind == 0 .or. info%kind == 2) then
      menu = owCreatePopupMenu(parent, x, y, -title_flag, taken_title())
   else
      menu = owCreatePullDownMenu(parent)
   end if
end subroutine
subroutine MENENT(menu, label, accel, entry)
   integer, intent(in) :: menu, accel
   character(*), intent(in) :: label
   integer, intent(out) :: entry
   entry = owCreateMenuEntry(menu, label, owAccel=accel)
end subroutine
subroutine MENSEP(menu, separator)
   integer, intent(in) :: menu
   integer, intent(out) :: separator
   separator = owCreateMenuSeparator(menu)
end subroutine

! --- panels and radio boxes

subroutine PANATR(line, line_border, fill, fill_border)
   integer, intent(in) :: line, line_border, fill, fill_border
   panel_set%colour1 = line
   panel_set%colour2 = line_border
   panel_set%colour3 = fill
   panel_set%colour4 = fill_border
end subroutine
subroutine PANTYP(boundary)
   integer, intent(in) :: boundary
   panel_set%kind = boundary
end subroutine
subroutine PANEL(parent, x, y, widget)
   integer, intent(in) :: parent, x, y
   integer, intent(out) :: widget
   widget = owCreatePanel(parent, x, y, min_width, min_height, owType=panel_set%kind, owTitle=taken_title(), &
                          owLineCol=panel_set%colour1, owLineBorder=panel_set%colour2, owFillCol=panel_set%colour3, &
                          owFillBorder=panel_set%colour4, owHpos=horizontal, owVpos=vertical, owExpand=expansion, &
                          owScrollMode=bars)
end subroutine
subroutine PANIMG(widget, mode, image)
   integer, intent(in) :: widget, mode
   character(*), intent(in) :: image
   if (mode == 0) call owSetWidgetProp(widget, owImage=image)
end subroutine
! A tab box is placed by the WIDPOS that comes right behind it; what the widget before was told is not meant for it.
subroutine PANMAS(parent, x, y, widget)
   integer, intent(in) :: parent, x, y
   integer, intent(out) :: widget
   widget = owCreateTabDialogueBox(parent, x, y, min_width, min_height)
   unplaced_box = widget
end subroutine
subroutine RADTYP(kind)
   integer, intent(in) :: kind
   radio_kind = kind
end subroutine
subroutine RADIO(parent, x, y, widget)
   integer, intent(in) :: parent, x, y
   integer, intent(out) :: widget
   widget = owCreateRadioBox(parent, x, y, min_width, min_height, owType=radio_kind, owBorderType=panel_set%kind, &
                             owTitle=taken_title(), owLineCol=panel_set%colour1, owLineBorder=panel_set%colour2, &
                             owFillCol=panel_set%colour3, owFillBorder=panel_set%colour4, owHpos=horizontal, &
                             owVpos=vertical, owExpand=expansion)
end subroutine

! --- buttons, toggles, icons, tool bars

subroutine BUTATR(on, off, text)
   integer, intent(in) :: on, off, text
   button_set%colour1 = on
   button_set%colour2 = off
   button_set%colour3 = text
end subroutine
subroutine BUTTYP(kind)
   integer, intent(in) :: kind
   button_set%kind = kind
end subroutine
subroutine BUTSIZ(size)
   integer, intent(in) :: size
   button_set%size = size
end subroutine
subroutine BUTTON(parent, x, y, label, accel, widget)
   integer, intent(in) :: parent, x, y, accel
   character(*), intent(in) :: label
   integer, intent(out) :: widget
   widget = owCreatePushButton(parent, x, y, min_width, min_height, label, owType=button_set%kind, &
                               owOnCol=button_set%colour1, owOffCol=button_set%colour2, owTextCol=button_set%colour3, &
                               owSize=button_set%size, owAccel=accel, owHpos=horizontal, owVpos=vertical, &
                               owExpand=expansion)
   button_set%size = 100
end subroutine
! An icon with a label; the picture by name.
subroutine BUTICO(parent, x, y, label, image, widget)
   integer, intent(in) :: parent, x, y
   character(*), intent(in) :: label, image
   integer, intent(out) :: widget
   widget = owCreateIcon(parent, x, y, min_width, min_height, image, ODLLICON, 0, owLabel=label, owSize=icon_set%size, &
                         owType=icon_type(), owHpos=horizontal, owVpos=vertical, owExpand=expansion)
end subroutine
subroutine TOGATR(on, off, text)
   integer, intent(in) :: on, off, text
   toggle_set%colour1 = on
   toggle_set%colour2 = off
   toggle_set%colour3 = text
end subroutine
subroutine TOGTYP(kind)
   integer, intent(in) :: kind
   toggle_set%kind = kind
end subroutine
subroutine TOGSIZ(size)
   integer, intent(in) :: size
   toggle_set%size = size
end subroutine
subroutine TOGGLE(parent, x, y, status, label, widget)
   integer, intent(in) :: parent, x, y, status
   character(*), intent(in) :: label
   integer, intent(out) :: widget
   widget = owCreateToggleButton(parent, x, y, min_width, min_height, label, status, owType=toggle_set%kind, &
                                 owOnCol=toggle_set%colour1, owOffCol=toggle_set%colour2, owTextCol=toggle_set%colour3, &
                                 owSize=toggle_set%size, owHpos=horizontal, owVpos=vertical, owExpand=expansion)
end subroutine
subroutine TOGACC(widget, accel)
   integer, intent(in) :: widget, accel
   if (accel /= 0) call owSetWidgetProp(widget, owAccel=accel)
end subroutine
subroutine ICOTYP(kind) ! 0 icon button, 1 pictogram, 2 mouse sensitive
   integer, intent(in) :: kind
   icon_set%kind = kind
end subroutine
subroutine ICOSIZ(size)
   integer, intent(in) :: size
   icon_set%size = size
end subroutine
integer function icon_type()
   icon_type = merge(OBUTTON, icon_set%kind, icon_set%kind == 0)
end function
subroutine ICODEF(parent, x, y, image, format, number, widget)
   integer, intent(in) :: parent, x, y, format, number
   character(*), intent(in) :: image
   integer, intent(out) :: widget
   widget = owCreateIcon(parent, x, y, min_width, min_height, image, format, number, owSize=icon_set%size, &
                         owType=icon_type(), owHpos=horizontal, owVpos=vertical, owExpand=expansion)
end subroutine
! place: 0 top, 1 bottom, 2 left, 3 right. REMMOD 2 gives a bar with a title only, any other mode a close box as well.
subroutine TOLBAR(window, place, size, bar)
   integer, intent(in) :: window, place, size
   integer, intent(out) :: bar
   integer, parameter :: positions(0:3) = [OTOP, OBOTTOM, OLEFTSIDE, ORIGHTSIDE]
   bar = owCreateToolBar(window, positions(max(0, min(3, place))), size, &
                         owTitleFlag=merge(OTITLE, OQUIT, close_mode == OLEAVE), owTitle=taken_title())
end subroutine
subroutine TOLBUT(bar, style, string, widget)
   integer, intent(in) :: bar, style
   character(*), intent(in) :: string
   integer, intent(out) :: widget
   widget = owCreateToolBarButton(bar, style, string, owIconType=icon_type())
end subroutine
subroutine TOLSEP(bar, separator)
   integer, intent(in) :: bar
   integer, intent(out) :: separator
   separator = owCreateToolBarSeparator(bar)
end subroutine

! --- text

subroutine TEXATR(back1, back2, text, justify)
   integer, intent(in) :: back1, back2, text, justify
   text_set%colour1 = back1
   text_set%colour2 = back2
   text_set%colour3 = text
   text_set%justify = justify
end subroutine
subroutine TEXTYP(kind, sign)
   integer, intent(in) :: kind, sign
   text_set%kind = kind
   text_set%sign = sign
end subroutine
subroutine TEXSIZ(size)
   integer, intent(in) :: size
   text_set%size = size
end subroutine
subroutine TEXENT(parent, x, y, string, field, display, widget)
   integer, intent(in) :: parent, x, y, field, display
   character(*), intent(in) :: string
   integer, intent(out) :: widget
   widget = owCreateTextEntry(parent, x, y, min_width, min_height, string, field, display, owEntryType=text_set%kind, &
                              owBack1Col=text_set%colour1, owBack2Col=text_set%colour2, owTextCol=text_set%colour3, &
                              owJustify=text_set%justify, owSize=text_set%size, owBorderType=entry_border, &
                              owScrollMode=bars, owHpos=horizontal, owVpos=vertical, owExpand=expansion)
   text_set%size = 100
   entry_border = 0
end subroutine
subroutine TTYENT(parent, x, y, lines, string, widget)
   integer, intent(in) :: parent, x, y, lines
   character(*), intent(in) :: string
   integer, intent(out) :: widget
   widget = owCreateTTYEntry(parent, x, y, min_width, min_height, lines, string, owOffCol=text_set%colour1, &
                             owOnCol=text_set%colour2, owTextCol=text_set%colour3, owHpos=horizontal, &
                             owVpos=vertical, owExpand=expansion)
end subroutine
subroutine TEXLEN(string, pixels)
   character(*), intent(in) :: string
   integer, intent(out) :: pixels
   pixels = owEnqTextLength(string)
end subroutine
subroutine TEXPOS(widget, property, position, value)
   integer, intent(in) :: widget, property, position
   integer, intent(out) :: value
   value = owEnqTextPos(widget, property, owPosition=position)
end subroutine
subroutine TEXGET(widget, file, status)
   integer, intent(in) :: widget
   character(*), intent(in) :: file
   integer, intent(out) :: status
   status = owGetTextFromFile(widget, file)
end subroutine
subroutine TEXSAV(widget, file, status)
   integer, intent(in) :: widget
   character(*), intent(in) :: file
   integer, intent(out) :: status
   status = owSaveTextToFile(widget, file)
end subroutine
subroutine TEXUND(widget, mode, status)
   integer, intent(in) :: widget, mode
   integer, intent(out) :: status
   status = owTextUndoAction(widget, mode)
end subroutine
subroutine GETPAR(widget, justify, numbering)
   integer, intent(in) :: widget
   integer, intent(out) :: justify, numbering
   call owEnqParagraphProp(widget, owJustify=justify, owBullet=numbering)
end subroutine
subroutine SETPAR(widget, justify, numbering)
   integer, intent(in) :: widget, justify, numbering
   call owSetParagraphProp(widget, owJustify=justify, owBullet=numbering)
end subroutine
subroutine CLPINF(format, status)
   integer, intent(in) :: format
   integer, intent(out) :: status
   status = owEnqClipboardStatus(format)
end subroutine

! --- values

subroutine VALATR(back1, back2, text, justify)
   integer, intent(in) :: back1, back2, text, justify
   value_set%colour1 = back1
   value_set%colour2 = back2
   value_set%colour3 = text
   value_set%justify = justify
end subroutine
subroutine VALTYP(kind, sign)
   integer, intent(in) :: kind, sign
   value_set%kind = kind
   value_set%sign = sign
end subroutine
subroutine VALSIZ(size)
   integer, intent(in) :: size
   value_set%size = size
end subroutine
subroutine VALENT(parent, x, y, value, field, decimals, display, widget)
   integer, intent(in) :: parent, x, y, field, decimals, display
   real, intent(in) :: value
   integer, intent(out) :: widget
   widget = owCreateValueEntry(parent, x, y, min_width, min_height, value, field, decimals, display, &
                               owType=value_set%kind, owSign=value_set%sign, owBack1Col=value_set%colour1, &
                               owBack2Col=value_set%colour2, owTextCol=value_set%colour3, owJustify=value_set%justify, &
                               owSize=value_set%size, owBorderType=entry_border, owHpos=horizontal, owVpos=vertical, &
                               owExpand=expansion)
   value_set%size = 100
   entry_border = 0
end subroutine
subroutine VALLIM(widget, low, high)
   integer, intent(in) :: widget
   real, intent(in) :: low, high
   call owSetWidgetProp(widget, owVmin=low, owVmax=high)
end subroutine
subroutine SLIATR(first, second, back)
   integer, intent(in) :: first, second, back
   slider_set%colour1 = first
   slider_set%colour2 = second
   slider_set%colour3 = back
end subroutine
subroutine SLITYP(kind) ! 0 horizontal, 1 vertical, 2 and 3 the same reversed
   integer, intent(in) :: kind
   integer, parameter :: kinds(0:3) = [OHORIZONTAL, OVERTICAL, OREVERSEHORIZONTAL, OREVERSEVERTICAL]
   slider_set%kind = kinds(max(0, min(3, kind)))
end subroutine
subroutine SLISIZ(size)
   integer, intent(in) :: size
   slider_set%size = size
end subroutine
subroutine SLIDER(parent, x, y, low, high, step, value, widget)
   integer, intent(in) :: parent, x, y
   real, intent(in) :: low, high, step, value
   integer, intent(out) :: widget
   widget = owCreateSlider(parent, x, y, min_width, min_height, low, high, step, value, owType=slider_set%kind, &
                           owSize=slider_set%size, owBackCol=slider_set%colour3, owHpos=horizontal, owVpos=vertical, &
                           owExpand=expansion)
end subroutine
subroutine SPIBAR(parent, x, y, buddy, step, widget)
   integer, intent(in) :: parent, x, y, buddy, step
   integer, intent(out) :: widget
   widget = owCreateSpinner(parent, x, y, min_width, min_height, owBuddy=buddy, owStep=step, owHpos=horizontal, &
                            owVpos=vertical, owExpand=expansion)
end subroutine
subroutine GAUGE(parent, x, y, value, image, widget)
   integer, intent(in) :: parent, x, y, value
   character(*), intent(in) :: image
   integer, intent(out) :: widget
   widget = owCreateGauge(parent, x, y, min_width, min_height, image, owIntValue=value, owHpos=horizontal, &
                          owVpos=vertical, owExpand=expansion)
end subroutine
subroutine GAGLIM(widget, low, high)
   integer, intent(in) :: widget, low, high
   call owSetWidgetProp(widget, owMinimum=low, owMaximum=high)
end subroutine
subroutine GAGTYP(widget, kind, ticks1, ticks2)
   integer, intent(in) :: widget, kind, ticks1, ticks2
   call owSetWidgetProp(widget, owAccess=kind, owTicks1=ticks1, owTicks2=ticks2)
end subroutine
subroutine PROBAR(parent, x, y, kind, widget) ! kind 0 in steps, 1 smooth
   integer, intent(in) :: parent, x, y, kind
   integer, intent(out) :: widget
   widget = owCreateProgressBar(parent, x, y, min_width, min_height, owProgressType=merge(OSMOOTH, ODEFAULT, kind == 1), &
                                owHpos=horizontal, owVpos=vertical, owExpand=expansion)
end subroutine
subroutine PROLIM(widget, low, high)
   integer, intent(in) :: widget, low, high
   call owSetWidgetProp(widget, owMinimum=low, owMaximum=high)
end subroutine

! --- lists, trees, tables

subroutine LISTYP(choice, style, sort)
   integer, intent(in) :: choice, style, sort
   list_choice = choice
   list_style = style
   list_sort = sort
end subroutine
subroutine LISBOX(parent, x, y, contents, widget)
   integer, intent(in) :: parent, x, y, contents
   integer, intent(out) :: widget
   widget = owCreateListBox(parent, x, y, min_width, min_height, contents, owType=list_choice, owStyle=list_style, &
                            owSort=list_sort, owDescWidth=description_width, owUseIcons=use_icons, owHpos=horizontal, &
                            owVpos=vertical, owExpand=expansion)
end subroutine
! action 0 adds, 1 inserts before the row, 2 selects, 3 deselects, -1 deletes, -2 empties.
subroutine LISSET(widget, row, string, action)
   integer, intent(in) :: widget, row, action
   character(*), intent(in) :: string
   if (action == OADD) then
      call owSetListEntry(widget, OADD, owString=string)
   else if (action == OINSERT) then
      call owSetListEntry(widget, OINSERT, owString=string, owEntry=row)
   else if (string == ' ') then
      call owSetListEntry(widget, action, owEntry=row)
   else
      call owSetListEntry(widget, action, owString=string, owEntry=-1)
   end if
end subroutine
subroutine LISENQ(widget, row, string, found)
   integer, intent(in) :: widget, row
   character(*), intent(out) :: string
   integer, intent(out) :: found
   found = owEnqListEntry(widget, row, string)
end subroutine
subroutine COMTYP(display, sort)
   integer, intent(in) :: display, sort
   combo_display = display
   combo_sort = sort
end subroutine
subroutine COMBO(parent, x, y, contents, widget)
   integer, intent(in) :: parent, x, y, contents
   integer, intent(out) :: widget
   widget = owCreateComboBox(parent, x, y, min_width, min_height, contents, combo_display, owSort=combo_sort, &
                             owDescWidth=description_width, owUseIcons=use_icons, owHpos=horizontal, owVpos=vertical, &
                             owExpand=expansion)
end subroutine
subroutine TREBOX(parent, x, y, icons, widget)
   integer, intent(in) :: parent, x, y, icons
   integer, intent(out) :: widget
   widget = owCreateTreeViewBox(parent, x, y, min_width, min_height, owIconSet=icons, owHpos=horizontal, &
                                owVpos=vertical, owExpand=expansion)
end subroutine
subroutine TREENT(parent, position, label, entry) ! position 1: the last child, others as in owCreateTreeEntry
   integer, intent(in) :: parent, position
   character(*), intent(in) :: label
   integer, intent(out) :: entry
   entry = owCreateTreeEntry(parent, merge(OLASTCHILD, position, position == 1), label)
end subroutine
subroutine TABBOX(parent, x, y, widget)
   integer, intent(in) :: parent, x, y
   integer, intent(out) :: widget
   widget = owCreateTableBox(parent, x, y, min_width, min_height, owHpos=horizontal, owVpos=vertical, owExpand=expansion)
end subroutine
subroutine TABCOL(widget, column, width, justify, label)
   integer, intent(in) :: widget, column, width, justify
   character(*), intent(in) :: label
   if (justify < OLEFT .or. justify > ORIGHT) return
   if (label == ' ') then
      call owAddTableBoxColumn(widget, column, width)
   else
      call owAddTableBoxColumn(widget, column, width, owLabel=label)
   end if
end subroutine
subroutine TABENT(widget, row, column, string, added)
   integer, intent(in) :: widget, row, column
   character(*), intent(in) :: string
   integer, intent(out) :: added
   added = owAddTableBoxEntry(widget, row, column, string)
end subroutine

! --- arrays

subroutine ARRATR(width, height, mode, align_x, align_y, labels_x, labels_y)
   integer, intent(in) :: width, height, mode, align_x, align_y
   character(*), intent(in) :: labels_x, labels_y
   if (mode /= 0) return
   axis_width = width
   axis_height = height
   xjust = align_x
   yjust = align_y
   xtext = trim(labels_x)
   ytext = trim(labels_y)
end subroutine
subroutine TEXARR(parent, x, y, columns, rows, widget)
   integer, intent(in) :: parent, x, y, columns, rows
   integer, intent(out) :: widget
   widget = owCreateTextArray(parent, x, y, min_width, min_height, columns, rows, owAxisW=axis_width, &
                              owAxisH=axis_height, owXjust=xjust, owYjust=yjust, owXtext=xtext, owYtext=ytext, &
                              owBorderType=OPROJECTED, owHpos=horizontal, owVpos=vertical, owExpand=expansion)
end subroutine
subroutine VALARR(parent, x, y, columns, rows, widget)
   integer, intent(in) :: parent, x, y, columns, rows
   integer, intent(out) :: widget
   widget = owCreateValueArray(parent, x, y, min_width, min_height, columns, rows, owAxisW=axis_width, &
                               owAxisH=axis_height, owXjust=xjust, owYjust=yjust, owXtext=xtext, owYtext=ytext, &
                               owBorderType=OPROJECTED, owHpos=horizontal, owVpos=vertical, owExpand=expansion)
end subroutine
subroutine CELSIZ(widget, column, row, width, height)
   integer, intent(in) :: widget, column, row, width, height
   type(OARRAYCELL) :: cell
   call owEnqCellAttribs(widget, max(1, column), max(1, row), cell)
   cell%width = width
   cell%height = height
   call owSetCellAttribs(widget, column, row, cell)
end subroutine
subroutine CELATR(widget, column, row, back, text, border, line, justify)
   integer, intent(in) :: widget, column, row, back, text, border, line, justify
   type(OARRAYCELL) :: cell
   call owEnqCellAttribs(widget, max(1, column), max(1, row), cell)
   cell%backCol = back
   cell%textCol = text
   cell%borderCol = border
   cell%borderType = line
   cell%justify = justify
   call owSetCellAttribs(widget, column, row, cell)
end subroutine
subroutine CELANQ(widget, column, row, back, text, border, line, justify)
   integer, intent(in) :: widget, column, row
   integer, intent(out) :: back, text, border, line, justify
   type(OARRAYCELL) :: cell
   call owEnqCellAttribs(widget, column, row, cell)
   back = cell%backCol
   text = cell%textCol
   border = cell%borderCol
   line = cell%borderType
   justify = cell%justify
end subroutine
subroutine CELENQ(widget, column, row, value, string)
   integer, intent(in) :: widget, column, row
   real, intent(out) :: value
   character(*), intent(out) :: string
   double precision :: wide
   call owEnqCellSetting(widget, column, row, wide, string)
   value = real(wide)
end subroutine
! A block of columns by rows, from the first cell on.
subroutine TARSET(widget, column, row, columns, rows, strings)
   integer, intent(in) :: widget, column, row, columns, rows
   character(*), intent(in) :: strings(columns, rows)
   integer :: i, j
   do j = 1, rows
      do i = 1, columns
         call owSetTextArray(widget, column + i - 1, row + j - 1, strings(i, j))
      end do
   end do
end subroutine
subroutine TARENQ(widget, column, row, columns, rows, strings)
   integer, intent(in) :: widget, column, row, columns, rows
   character(*), intent(out) :: strings(columns, rows)
   integer :: i, j
   do j = 1, rows
      do i = 1, columns
         call owEnqTextArray(widget, column + i - 1, row + j - 1, strings(i, j))
      end do
   end do
end subroutine
subroutine VARSET(widget, column, row, columns, rows, values)
   integer, intent(in) :: widget, column, row, columns, rows
   real, intent(in) :: values(columns, rows)
   integer :: i, j
   do j = 1, rows
      do i = 1, columns
         call owSetValueArray(widget, column + i - 1, row + j - 1, values(i, j))
      end do
   end do
end subroutine
subroutine VARENQ(widget, column, row, columns, rows, values)
   integer, intent(in) :: widget, column, row, columns, rows
   real, intent(out) :: values(columns, rows)
   integer :: i, j
   do j = 1, rows
      do i = 1, columns
         call owEnqValueArray(widget, column + i - 1, row + j - 1, values(i, j))
      end do
   end do
end subroutine

! --- graphics frames and drawing

subroutine FRATYP(kind) ! 0 plain, 1 accelerated
   integer, intent(in) :: kind
   frame_kind = merge(OOPENGL, OGDI, kind == 1)
end subroutine
subroutine FRADEF(parent, x, y, xmax, ymax, widget)
   integer, intent(in) :: parent, x, y
   real, intent(in) :: xmax, ymax
   integer, intent(out) :: widget
   widget = owCreateGraphicsFrame(parent, x, y, min_width, min_height, OLIMIT(min(0.0, xmax - 1.0), xmax, &
                                  min(0.0, ymax - 1.0), ymax), owFrameType=frame_kind, owHpos=horizontal, &
                                  owVpos=vertical, owExpand=expansion)
end subroutine
subroutine FRALIM(widget, xmin, ymin, xmax, ymax)
   integer, intent(in) :: widget
   real, intent(in) :: xmin, ymin, xmax, ymax
   call owSetGraphicsFrameBounds(widget, OLIMIT(xmin, xmax, ymin, ymax))
end subroutine
subroutine FRAENQ(widget, xmin, ymin, xmax, ymax)
   integer, intent(in) :: widget
   real, intent(out) :: xmin, ymin, xmax, ymax
   type(OLIMIT) :: limits
   call owEnqGraphicsFrameBounds(widget, limits)
   xmin = limits%xmin
   ymin = limits%ymin
   xmax = limits%xmax
   ymax = limits%ymax
end subroutine
subroutine POLTO2(x, y, points)
   integer, intent(in) :: points
   real, intent(in) :: x(points), y(points)
   integer :: i
   call oDrawPolylineTo2D(points, [(OPOINT(x(i), y(i)), i=1, points)])
end subroutine
subroutine POFTO2(x, y, points, style, colour, edge)
   integer, intent(in) :: points, style, colour, edge
   real, intent(in) :: x(points), y(points)
   integer :: i
   call oSetFillMode(style, colour)
   call oFillPolygonTo2D(points, [(OPOINT(x(i), y(i)), i=1, points)])
   if (edge /= 0) call oDrawPolylineTo2D(points + 1, [(OPOINT(x(i), y(i)), i=1, points), OPOINT(x(1), y(1))])
end subroutine
subroutine RFILL(x1, y1, x2, y2, style, colour)
   real, intent(in) :: x1, y1, x2, y2
   integer, intent(in) :: style, colour
   call oSetFillMode(style, colour)
   call oFillRect(x1, y1, x2, y2)
end subroutine
subroutine IMGDMP(widget, file, status)
   integer, intent(in) :: widget
   character(*), intent(in) :: file
   integer, intent(out) :: status
   status = owDumpImage(widget, file)
end subroutine

! --- every widget

! property: 0 face, 1 points, 3 character set, 4 bold, 5 italic, 6 underline, 7 strikeout
subroutine WIDFNT(widget, property, value, face)
   integer, intent(in) :: widget, property, value
   character(*), intent(in) :: face
   select case (property)
   case (0); call owSetFontAttribs(widget, owFontFace=face)
   case (1); call owSetFontAttribs(widget, owPointSize=value)
   case (3); call owSetFontAttribs(widget, owCharSet=value)
   case (4); call owSetFontAttribs(widget, owBold=value)
   case (5); call owSetFontAttribs(widget, owItalic=value)
   case (6); call owSetFontAttribs(widget, owUnderline=value)
   case (7); call owSetFontAttribs(widget, owStrikeout=value)
   end select
end subroutine
subroutine WIDFNQ(widget, property, value, face)
   integer, intent(in) :: widget, property
   integer, intent(out) :: value
   character(*), intent(out) :: face
   value = 0
   face = ' '
   select case (property)
   case (0); call owEnqFontAttribs(widget, owFontFace=face)
   case (1); call owEnqFontAttribs(widget, owPointSize=value)
   case (3); call owEnqFontAttribs(widget, owCharSet=value)
   case (4); call owEnqFontAttribs(widget, owBold=value)
   case (5); call owEnqFontAttribs(widget, owItalic=value)
   case (6); call owEnqFontAttribs(widget, owUnderline=value)
   case (7); call owEnqFontAttribs(widget, owStrikeout=value)
   end select
end subroutine
subroutine WIDHLP(widget, place, text)
   integer, intent(in) :: widget, place
   character(*), intent(in) :: text
   call owSetWidgetHelp(widget, text, owHelpPos=place)
end subroutine
! What is known of a widget: its text, whole numbers in the order of OWIDGET, and reals.
subroutine WIDINF(widget, text, integers, integer_count, reals, real_count)
   integer, intent(in) :: widget, integer_count, real_count
   character(*), intent(out) :: text
   integer, intent(out) :: integers(integer_count)
   real, intent(out) :: reals(real_count)
   type(OWIDGET) :: info
   integer :: whole(42), i
   call owEnqWidgetInfo(widget, info)
   whole = transfer(info, whole, 42)
   integers = 0
   integers(1:min(42, integer_count)) = whole(1:min(42, integer_count))
   reals = 0
   do i = 1, min(6, real_count)
      reals(i) = part(info, i)
   end do
   text = ' '
   do i = 1, min(len(text), size(info%text))
      if (ichar(info%text(i)) == 0) exit
      text(i:i) = info%text(i)
   end do
end subroutine
subroutine WIDCHA(widget, text, integers, integer_count, reals, real_count)
   integer, intent(in) :: widget, integer_count, real_count
   character(*), intent(in) :: text
   integer, intent(in) :: integers(integer_count)
   real, intent(in) :: reals(real_count)
   type(OWIDGET) :: info
   integer :: i
   call owEnqWidgetInfo(widget, info)
   if (integer_count >= 4) then
      info%xpos = integers(1)
      info%ypos = integers(2)
      info%width = integers(3)
      info%height = integers(4)
   end if
   if (real_count >= 4) then
      info%value = reals(1)
      info%vmin = reals(2)
      info%vmax = reals(3)
      info%step = reals(4)
   end if
   info%text = char(0)
   do i = 1, min(len_trim(text), size(info%text) - 1)
      info%text(i) = text(i:i)
   end do
   call owSetWidgetInfo(widget, info)
end subroutine
real function part(info, number)
   type(OWIDGET), intent(in) :: info
   integer, intent(in) :: number
   real :: values(6)
   values = [info%value, info%vmin, info%vmax, info%step, info%real5, info%real6]
   part = values(number)
end function
subroutine WIDLIS(widget, children, length, count)
   integer, intent(in) :: widget, length
   integer, intent(out) :: children(length), count
   count = owReturnChildList(widget, children, length)
end subroutine
integer function WTYENQ(widget)
   integer, intent(in) :: widget
   type(OWIDGET) :: info
   call owEnqWidgetInfo(widget, info)
   WTYENQ = info%kind
end function
! A property by its number, the value as a whole number, a real or a text.
subroutine PRPSET(widget, property, whole, wide, text)
   integer, intent(in) :: widget, property, whole
   double precision, intent(in) :: wide
   character(*), intent(in) :: text
   call owSetProperty(widget, property, whole, wide, text)
end subroutine
subroutine PRPENQ(widget, property, whole, wide, text)
   integer, intent(in) :: widget, property
   integer, intent(out) :: whole
   double precision, intent(out) :: wide
   character(*), intent(out) :: text
   call owEnqProperty(widget, property, whole, wide, text)
end subroutine

! --- boxes

subroutine GUIMSG(title_text, text, picture, buttons, answer)
   character(*), intent(in) :: title_text, text
   integer, intent(in) :: picture, buttons
   integer, intent(out) :: answer
   answer = owDisplayMessageBox(title_text, text, picture, buttons)
end subroutine
subroutine GUIHLP(file, topic, shown)
   character(*), intent(in) :: file, topic
   integer, intent(out) :: shown
   shown = owDisplayHelpWindow(file, topic)
end subroutine
subroutine GUIPRT(widget, points)
   integer, intent(in) :: widget, points
   call TEXPRT(widget, 0, 0, points)
end subroutine
subroutine BROWSE(filter, title_text, mode, name, directory, chosen)
   character(*), intent(in) :: filter, title_text
   integer, intent(in) :: mode
   character(*), intent(inout) :: name, directory
   integer, intent(out) :: chosen
   chosen = owFileBrowser(name, directory, filter, owTitle=title_text, owType=mode)
end subroutine
subroutine GETCUR(name, cursor)
   character(*), intent(in) :: name
   integer, intent(out) :: cursor
   cursor = owGetCursorResource(name)
end subroutine

! Any operation by number. Those that set values for the next creation are kept here; the rest goes to the toolkit.
! The results may be the caller's arguments as well, so they come last.
subroutine GUIESC(operation, a, b, c, d, e, f, out1, out2, string)
   integer, intent(in) :: operation, a, b, c, d, e, f
   integer, intent(out) :: out1, out2
   character(*), intent(in) :: string
   integer :: result1, result2
   result1 = 0
   result2 = 0
   select case (operation)
   case (74)
      entry_border = a
   case (110, 111)
      description_width = a
      use_icons = b
   case default
      call owDispatch(operation, a, b, c, d, e, f, result1, result2, string)
   end select
   out1 = result1
   out2 = result2
end subroutine

end module menu_f77_routines

! What a Fortran 77 program uses: the routines, and the constants under the names that all languages share.
module menu_f77
   use menu_constants
   use menu_f77_routines
end module menu_f77
