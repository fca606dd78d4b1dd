/* The public interface of liborbawidg for C and C++: constants, record types and every routine of the widget toolkit,
 * with the part of the base library that draws in graphics frames.
 *
 * Handles. Every creation routine returns the handle of the new widget, above 0, or 0 when it refused. Handle 1 is the
 * master window. A routine given a wrong handle or value reports a numbered error and has no effect.
 *
 * Events. Widgets never call the program. owAction waits for the next event and gives its callback identifier;
 * owEnqActionState tells the rest. An identifier is what the program defined for a widget; the value 50000 (OIDENT)
 * given with a callback keyword asks for the automatic one: the handle plus the offset of that callback (OIDENT for
 * Select, 2 * OIDENT for Move and so on), and the handle itself for the general callback. 0 defines none.
 *
 * Keyword lists. Where a declaration ends in "...", pairs of keyword and value may follow, closed by 0:
 *     owCreatePushButton(form, 10, 20, 88, 22, "OK", owType, ODEFAULTBUTTON, owCallback, 4711, 0);
 * Integers pass as int, reals as double, texts as pointers to NUL-terminated UTF-8.
 *
 * Units. Positions and sizes are pixels, or grid cells in grid mode (owSetGuiGridMode). A position is the distance of
 * the widget from the edge that owHpos and owVpos name: OLEFT and OBOTTOM unless told otherwise, so ypos counts upward
 * from the bottom of the parent. Colours are indices 0 to 255 of the colour table, or true colours (oTrueCol).
 *
 * Texts out. A buffer is followed by its length in bytes, which counts the closing NUL. Trailing blanks are removed. */
#ifndef ORBA_MENU_C_H
#define ORBA_MENU_C_H

#ifdef __cplusplus
extern "C" {
#endif

/* ---------------------------------------------------------------------------------------------- constants */

#define OIDENT 50000 /* stride of callback identifiers */

/* Switches and status values */
#define OOFF 0
#define OON 1
#define OCYCLE 2         /* owTabAction: Tab leaves the array after its last cell */
#define OHIDDEN (-1)     /* owSetWidgetStatus, owWidgetStatus */
#define OUNSELECTABLE 0  /* shown and disabled */
#define OSELECTABLE 1    /* shown and enabled */
#define OCHECKED 2       /* checked or pressed; a tab page: in front */
#define ODEFAULTSTATUS (-2)

/* Origins and justification */
#define OLEFT (-1)
#define OCENTRE 0
#define ORIGHT 1
#define OJUSTIFY 2
#define OBOTTOM (-1)
#define OMIDDLE 0
#define OTOP 1           /* also a docking position and an initial state */

/* Docking positions of tool bars and panes, beside OBOTTOM and OTOP. 0 is hidden. */
#define OLEFTSIDE 2
#define ORIGHTSIDE 3
#define OFLOATING 4

/* Title flags of windows; flags are combined by adding. Tool bars and panes take OTITLE or OQUIT. */
#define OALL (-1)
#define ONONE 0
#define OTITLE 1
#define OQUIT 2
#define OMAXIMIZE 4      /* also an initial state */
#define OMINIMIZE 8      /* also an initial state */
#define OTOOL 16

/* Initial states of windows (owInitState), beside OTOP, OMAXIMIZE and OMINIMIZE */
#define ONORMAL 0
#define OCENTRED 32

/* What the close box of a window, bar or pane does (owQuitMode). Each also raises the callback with status 2. */
#define OHIDE 0
#define OREMOVE 1        /* the window is erased once the event has been handled */
#define OLEAVE 2         /* only the event */

/* Status of a window's callback */
#define OMOVED 0
#define ORESIZED 1
#define OCLOSED 2
#define OMINIMIZED 3     /* minimised or restored: a change of state that needs no geometry */
#define OSCROLLED 4
#define OLOSTFOCUS 5

/* Boundaries of panels and arrays, line types of tool bar separators */
#define ONOBOUNDARY 0
#define OSINGLE 1
#define ODOUBLE 2
#define OPRESSED 3
#define OPROJECTED 4
#define OCHISEL 5
#define OINVERSECHISEL 6
#define OOUTEREDGE 0     /* owLineBorder, owFillBorder */
#define OOUTERGRID 1     /* the default: the outer edge of the grid cell */

/* owType of the families. 0 is the default everywhere but for sliders. */
#define ODEFAULT 0
#define OSTANDARD 0          /* push button, text entry */
#define OUSERDEFINED 1       /* push button with colours of its own */
#define ODEFAULTBUTTON 2
#define OBEVELSQUARE 0       /* toggles */
#define OBEVELDIAMOND 1
#define OSIMPLESQUARE 2
#define OTICKBOX 3
#define OSIMPLECIRCLE 4
#define OCHECKBOX 5
#define O3DRADIO 6
#define O3DCHECKBOX 7
#define OSECURITY (-1)       /* text entries */
#define ORICHEDIT 1
#define OEDIT 0              /* display argument of text, value and combo widgets; owAccess of a gauge */
#define ODISPLAY 1           /* a combo box: choice from the list only */
#define OBLACK3D 1           /* borders of text and value entries */
#define OBLACK2D 2
#define ONOBORDER 3
#define ODECIMAL 0           /* value entries */
#define OSCIENTIFIC 1
#define OBINARY 2
#define OOCTAL 3
#define OHEX 4
#define ODEGREES 5
#define OMPERCENT 6
#define OFAHRENHEIT 7
#define OCELCIUS 8
#define OKELVIN 9
#define OPOUND 10
#define ODOLLAR 11
#define ODM 12
#define OFRANC 13
#define OYEN 14
#define OEURO 15
#define OCREDIT1 1           /* signs of negative values: [12] */
#define OCREDIT2 2           /* (12) */
#define OREDCREDIT 3         /* red characters */
#define OALPHANUMERIC 1      /* owCharSet of a value entry */
#define OICONBUTTON 0        /* tool bar buttons */
#define OTEXTBUTTON 1
#define OPICTOGRAM 1         /* icons */
#define OMOUSESENSITIVE 2
#define OBUTTON 7
#define OSINGLECHOICE 0      /* list boxes */
#define OMULTIPLECHOICE 1
#define OMULTIPLECHOICE2 2   /* with Shift and Ctrl */
#define OEXACT 0
#define OAPPROX 1            /* height rounded to whole rows */
#define OUNSORTED 0
#define OSORTED 1
#define OFILES 1             /* contents of list and combo boxes, beside ONONE */
#define ODIRECTORIES 2
#define ODRIVES 3
#define OFONTS 4
#define ODOW 5
#define OMOY 6
#define OPRINTERS 7
#define OREVERSEHORIZONTAL 2 /* sliders */
#define OREVERSEVERTICAL 3
#define OVERTICAL 32763      /* also a scroll mode */
#define OHORIZONTAL 32764    /* also a scroll mode */
#define ONOBARS (-1)         /* scroll modes */
#define OBOTHBARS 0
#define OFREEFORM 2          /* radio boxes */
#define OGDI 0               /* graphics frames */
#define OOPENGL 40
#define OSMOOTH 32745        /* progress bars */
#define OFOLDERS 1           /* icon sets of tree views */
#define OBOOKS 2
#define ORESOURCEICONS 3
#define OFIRSTCHILD (-1)     /* positions of tree entries; a position above 0 counts from 1 */
#define OLASTCHILD (-2)
#define OINVISIBLE (-1)      /* line types: cell borders, graphics */
#define OSOLID 0
#define ODASHED 1
#define ODOTTED 2
#define ODASHDOTTED 3

/* Kinds of window icon and icon image */
#define OMENUICON 0
#define OBMPFILE 1
#define OICOFILE 3
#define ODLLICON 4           /* a stock or program resource, by name */

/* Actions of owSetListEntry */
#define OADD 0
#define OINSERT 1
#define OSELECT 2
#define ODESELECT 3
#define ODELETE (-1)
#define OCLEAR (-2)

/* Actions of owTextUndoAction */
#define OUNDO 0
#define OCANUNDO 1
#define ORESETUNDO 2
#define OREDO 3
#define OCANREDO 4

/* Actions of owCopyTextToClipboard */
#define ODELETESELECTION (-1)
#define OCUT 0
#define OCOPY 1
#define OPASTE 2
#define OPLAINTEXT 32746     /* format of owEnqClipboardStatus */

/* Actions of owTreeViewAction */
#define OCLOSEENTRY 1
#define OOPENENTRY 2
#define OTOGGLEENTRY 3
#define OSHOWENTRY 4         /* scrolls the entry into view */
#define OSELECTENTRY 5

/* Pictures, buttons and answers of message boxes */
#define OQUESTION 1
#define OWARNING 2
#define OINFORMATION 3
#define OBOXOK 0
#define OBOXOKCANCEL 1
#define OBOXYESNO 3
#define OBOXYESNOCANCEL 4
#define OANSWERCANCEL 1
#define OANSWERNO 3
#define OANSWEROK 4
#define OANSWERYES 6

/* Modes of owFileBrowser (owType) */
#define OOPENFILE 0
#define OSAVEFILE 1          /* the program asks about overwriting, not the box */
#define OPICKDIRECTORY 2

/* Cells of a property list */
#define OPROPTEXT 0          /* free text of at most 255 characters */
#define OPROPBUTTON 1        /* read-only cell with a button at its right end */
#define OPROPCOMBO 2         /* owPropertyWidget is a combo box made with the list as parent */
#define OPROPVALUE 3         /* owPropertyWidget is a value entry made with the list as parent */

/* Character sets */
#define OANSISET 1
#define OSYMBOLSET 2
#define OOEMSET 3
#define OGREEKSET 4
#define OBALTICSET 5
#define OCHINESESET 6
#define OEASTEUROPESET 7
#define OGB2312SET 8
#define OHANGULSET 9
#define OMACSET 10
#define ORUSSIANSET 11
#define OJAPANESESET 12
#define OTURKISHSET 13
#define OVIETNAMESESET 14
#define OJOHABSET 15
#define OARABICSET 16
#define OHEBREWSET 17
#define OTHAISET 18

/* Key codes of owDefineKeyCallback and OACTION.key: printable characters and the control keys 1 to 26 (Ctrl+A to
 * Ctrl+Z) stand for themselves; with Shift a special key counts 1000 more, with Ctrl 2000 more. */
#define OKEYTAB 9
#define OKEYRETURN 13
#define OKEYESC 27
#define OKEYLEFT 37
#define OKEYUP 38
#define OKEYRIGHT 39
#define OKEYDOWN 40
#define OKEYDEL 127
#define OKEYF1 513           /* to OKEYF1 + 11 */
#define OKEYHOME 530
#define OKEYEND 531
#define OKEYPAGEUP 532
#define OKEYPAGEDOWN 533
#define OKEYINSERT 534
#define OKEYSHIFTTAB 542
#define OKEYLEFTBUTTON (-1)
#define OKEYMIDDLEBUTTON (-2)
#define OKEYRIGHTBUTTON (-3)

/* Pointer shapes of owSetGuiCursor */
#define OCURSORDEFAULT 0
#define OCURSORARROW 1
#define OCURSORCROSS 2
#define OCURSORBUSY 3
#define OCURSORHAND 4
#define OCURSORTEXT 5
#define OCURSORMOVE 6

/* ----------------------------------------------------------------------------------------------- keywords */

enum OKEYWORD {
    owStartPosition = 32077,      /* value entry */
    owThousands = 32078,          /* value entry: 1 groups thousands */
    owIncrement = 32079,          /* value entry: step of the arrow keys, a real */
    owLinkCallback = 32088,       /* the user followed a link */
    owAutoURL = 32089,            /* 1 turns addresses into links */
    owNumbering = 32091,          /* paragraph: 0 none, 1 bullet, 2 digits, 3 letters */
    owBuddy = 32093,              /* spinner: value entry that it steps */
    owStep = 32094,               /* spinner, slider: step, a whole number on a spinner */
    owTabAction = 32095,          /* array: OOFF, OON, OCYCLE */
    owTabList = 32096,            /* 1 in the tab order, the default */
    owCellSelect = 32098,         /* array: cells can be selected, default 1 */
    owReadOnly = 32099,
    owFixedSize = 32101,
    owValueErrorCallback = 32102, /* a value outside the limits was entered */
    owHelpJustify = 32104,
    owLength = 32105,             /* bytes of the buffer that owString names, default 256 */
    owSelectedCellColour = 32106,
    owCellBorderLineType = 32107,
    owCellBorderColour = 32108,
    owGridBackColour = 32109,
    owYtextColour = 32110,
    owXtextColour = 32111,
    owAxisBackColour = 32112,
    owWordWrap = 32113,           /* text entry, default 1 */
    owOLEInserts = 32114,
    owBuildInfo = 32117,          /* master window: 0 leaves the toolkit out of the system menu */
    owGreyIcon = 32118,
    owIconLabelPos = 32119,
    owUseIcons = 32120,
    owIconHandle = 32121,         /* picture from owGetIconResource on a button, icon or panel */
    owCloseIcon = 32122,
    owOpenIcon = 32123,
    owIcon = 32124,
    owUncheckIcon = 32127,
    owCheckIcon = 32128,
    owFileDropCallback = 32136,
    owCapacity = 32137,           /* list box: most rows; the oldest goes when one more is added */
    owLanguage = 32138,           /* syntax: 1 Fortran 77, 2 Fortran 90, 3 C */
    owHelpDelay = 32139,          /* milliseconds, -1 the default */
    owSeparatorType = 32140,
    owDescWidth = 32141,          /* list, combo: width of the description, which stands behind a bar in the entry's text */
    owColumnWidth = 32158,        /* property list: width of the label column */
    owPropertyValue = 32160,      /* property list: a real */
    owPropertyWidget = 32161,     /* property list: handle of the widget in the cell */
    owPropertyKind = 32162,
    owPropertyLabel = 32163,
    owPropertyStatus = 32164,     /* property list: 0 disabled, 1 enabled */
    owSelectedText = 32165,
    owMatchCase = 32169,
    owDoubleClickCallback = 32170,
    owGridLines = 32171,          /* property list, default 1 */
    owRowHeight = 32172,
    owProgressType = 32173,
    owIntValue = 32174,
    owRealValue = 32175,
    owMinimum = 32180,
    owParent = 32181,
    owTitleBorder = 32182,
    owMinWidth = 32183,
    owMinHeight = 32184,
    owWidgetStatus = 32185,
    owTitleFlag = 32186,
    owKind = 32187,               /* enquiry: kind of the widget, see OWIDGET */
    owSliderTicks = 32188,
    owEntryType = 32194,
    owDragMode = 32196,
    owPrefix = 32197,             /* value entry: text before the number */
    owPostfix = 32198,            /* value entry: text behind the number */
    owValueType = 32199,
    owIconSet = 32200,
    owIconType = 32201,
    owToggleType = 32202,
    owChangeCallback = 32203,
    owSliderType = 32204,
    owRadioType = 32205,
    owScrollMode = 32207,
    owListStyle = 32208,
    owListType = 32209,
    owButtonType = 32210,
    owDragMoveCallback = 32211,
    owDragSelectCallback = 32212,
    owFrameType = 32213,
    owDragDropCallback = 32214,
    owPosition = 32216,           /* text enquiries: a position or line */
    owDialogueMode = 32218,
    owRightIndent = 32219,        /* paragraph: twips, 20 to a point */
    owFirstIndent = 32220,
    owLeftIndent = 32221,
    owBullet = 32222,             /* paragraph: 0 none, 1 disc, 2 digits, 3 letters */
    owStrikeout = 32223,
    owUnderline = 32224,
    owItalic = 32225,
    owBold = 32226,
    owCharSet = 32227,
    owPointSize = 32228,
    owFontFace = 32229,
    owPrompt = 32230,
    owMaximum = 32231,
    owScrollable = 32232,         /* field length: 1 scrolls, 0 does not */
    owTicks2 = 32234,
    owTicks1 = 32235,
    owAccess = 32236,             /* gauge: OEDIT or ODISPLAY */
    owLabel = 32237,
    owSizes = 32239,
    owPanes = 32240,
    owRowLines = 32241,
    owImage = 32242,
    owHelp = 32243,
    owHelpPos = 32244,
    owLinkColour = 32248,
    owYtext = 32249,
    owXtext = 32250,
    owYjust = 32251,
    owXjust = 32252,
    owAxisH = 32253,
    owAxisW = 32254,
    owString = 32255,
    owEntry = 32256,
    owSort = 32257,
    owStyle = 32258,
    owQuitMode = 32259,
    owInitState = 32260,
    owExpand = 32261,             /* 1 fills, 2 to 24 takes so many 24ths of the parent along each centred origin */
    owVpos = 32262,
    owHpos = 32263,
    owIconID = 32264,
    owIconFormat = 32265,
    owIconFile = 32266,
    owExposeCallback = 32267,
    owMoveCallback = 32268,
    owVmax = 32270,
    owVmin = 32271,
    owSign = 32272,
    owJustify = 32273,
    owTextCol = 32274,
    owTextMargin = 32275,
    owBack2Col = 32276,           /* the same as owOnCol */
    owBack1Col = 32277,           /* the same as owOffCol */
    owBackCol = 32278,
    owBorderType = 32281,
    owFillBorder = 32282,
    owFillCol = 32283,
    owLineBorder = 32284,
    owLineCol = 32285,
    owTitle = 32286,
    owMaxHeight = 32287,          /* forms: accepted beside the height of the call */
    owMaxWidth = 32288,
    owOffCol = 32289,
    owOnCol = 32290,
    owSize = 32291,
    owType = 32292,
    owCallback = 32293,
    owSelectCallback = 32294,
    owAccel = 32295,
    owHeight = 32296,
    owWidth = 32297,
    owYpos = 32298,
    owXpos = 32299
};

/* ------------------------------------------------------------------------------------------------ records */

/* The event of the last owAction. */
typedef struct OACTION {
    int callback;     /* identifier of the event; -1 a closed master window */
    int widget;       /* handle of the widget, menu entry or tree entry that raised it */
    int key;          /* code of a key event, or of the key that led to this one, else 0 */
    int status;       /* what happened, by kind of event */
    float xpos, ypos; /* pointer in pixels in the widget, from its top left; drawing units when status is -1 */
    int count;        /* number of values in args */
    float args[80];
    int iargs[80];
    char text[256];
} OACTION;

/* What is known of a widget; the integers are the properties 1 to 42 in order. owSetWidgetInfo takes position, size,
 * maximum, minimum, values and text. */
typedef struct OWIDGET {
    int xpos, ypos, width, height; /* in the unit in force */
    int parent;                    /* handle, 0 for the master window */
    int expand;
    int child, next;               /* handles, 0 for none */
    int window;                    /* handle of the window that holds it */
    int state;                     /* window: 1 normal, 4 maximised, 8 minimised; else 0 */
    int dragMoveCallback, dragSelectCallback;
    int spare13, spare14;
    int kind;                      /* 0 master, 1 menu bar, 2 window, 3 pop-up menu, 4 pull-down menu, 15 panel ... */
    int titleFlag, exposeCallback, moveCallback, callback;
    int borderType, accel, fillCol, dragDropCallback, dragMode;
    int offCol, onCol, textCol, size, status, justify;
    int minWidth, minHeight, spare33, access;
    int lineCol, lineBorder, fillColour, fillBorder, selectCallback;
    int sign, sort, type;
    float value, vmin, vmax, step; /* value entry, slider, gauge; graphics frame: xmin, xmax, ymin, ymax */
    float real5, real6;
    char text[256];                /* label, title or the beginning of the text */
} OWIDGET;

/* Size and looks of a cell of an array. Colours: 0 the default. */
typedef struct OARRAYCELL {
    int width, height; /* in the unit in force */
    int backCol, textCol, borderCol, borderType;
    int justify;
    int readOnly;
    int status;        /* OHIDDEN: the cell can neither be entered nor selected */
    int type;          /* value array: type, field and decimals of the number */
    int field, decimals;
} OARRAYCELL;

typedef struct OLIMIT { float xmin, xmax, ymin, ymax; } OLIMIT;
typedef struct ODIM { float x, y; } ODIM;
typedef struct OPOINT { float x, y; } OPOINT;
typedef struct OPIXEL { int x, y; } OPIXEL;
typedef struct ORGBSTY { float red, green, blue; } ORGBSTY; /* each 0 to 1 */

/* ------------------------------------------------------------------------------------- session and events */

void owInitializeMenu(void);  /* starts the toolkit; before any other ow routine */
void owCloseMenu(void);       /* erases all windows and ends it */
void owManage(void);          /* shows the windows made so far; before the first owAction */
int owAction(int* callback);  /* waits for an event; gives and returns its identifier */
void owEnqActionState(OACTION* action);
void owPostCallback(int callback, int widget); /* appends an event of the program's own */
void owFlushCallbackQueue(void);               /* forgets the events not yet read */
int owStopAsked(int callback); /* as owUpdateWindows, but menus, what calls back with `callback`, and Esc can be used: 1
                                 when one of them did. Other input waits for the next owAction. */
void owUpdateWindows(void); /* repaints what has changed while a long command runs; input waits for the next owAction */
void owEnqScreenSize(int* width, int* height); /* of the main screen, in pixels */
int owEnqShiftKey(void); /* 1 while a Shift key is held down */
/* A key of a widget's own, for it and all that lies in it: taken like one of owDefineKeyCallback, ahead of that and of
 * what the widgets around say. OLEAVEKEY leaves the key to the widget that has the focus, 0 takes the row back. */
#define OLEAVEKEY (-1)
void owDefineWidgetKeyCallback(int widget, int key, int callback);
int owEnqWidgetKeyCallback(int widget, int key); /* what the key sends while `widget` has the focus; 0: it has the key */
/* Sent, with the widget, after the focus has moved to another one; 0 ends it. Moves that follow one another without
 * an owAction between them are one. */
void owDefineInputCallback(int callback);
/* The widget that has the focus once its window is active: unlike with owSetActiveWidget the window stays where it
 * is. */
void owSetWindowInput(int widget);

void owDefineCallback(int widget, int callback);
void owDefineSelectCallback(int widget, int callback);
void owDefineMoveCallback(int widget, int callback);
void owDefineExposeCallback(int widget, int callback);
void owDefineChangeCallback(int widget, int callback);
void owDefineDragDropCallback(int widget, int callback);
void owDefineDoubleClickCallback(int widget, int callback);
void owDefineFileDropCallback(int widget, int callback);
void owDefineDragSelectCallback(int widget, int callback);
void owDefineDragMoveCallback(int widget, int callback);
void owDefineValueErrorCallback(int widget, int callback);
void owDefineLinkCallback(int widget, int callback);
/* A letter's key is its character, with Ctrl 1 to 26; other keys are the codes OKEY..., plus 1000 with Shift, 2000 with
 * Ctrl, 4000 with Alt. */
void owDefineKeyCallback(int key, int callback);       /* key at least -20; the key is taken from the widgets; 0 frees it */
void owDefineKeySelectCallback(int key, int callback); /* the key still reaches the widget that has the focus */
int owEnqKeyCallback(int key);
int owEnqKeySelectCallback(int key);
void owDefineTimerCallback(int milliseconds, int callback); /* repeats; 0 milliseconds or callback 0 stops it. One
                                                               timer for each callback; callback 0 stops the timers of
                                                               that period */

/* -------------------------------------------------------------------------------------------- grid, colours */

void owDefineGuiGrid(int columns, int rows); /* cells of the reference screen of 800 by 600 */
void owEnqGuiGrid(int* columns, int* rows, int* cellWidth, int* cellHeight); /* of this screen; cells in pixels */
void owSetGuiGridMode(int mode);             /* 1 grid cells, 0 pixels */
int owEnqGuiGridMode(void);
void owSetGuiStyle(int style);               /* 0 to 3; kept, without effect */
int owEnqGuiStyle(void);
void owSetSnapGrid(int pixels);              /* step of dragging an adopted widget, at least 1 */
int owEnqSnapGrid(void);
int owColourControl(float* red, float* green, float* blue); /* colour box; 1 when one was chosen */
void owSetBubbleHelpSwitch(int on);
int owEnqBubbleHelpSwitch(void);

/* --------------------------------------------------------------------------------------------------- windows */

int owCreateMasterWindow(int xpos, int ypos, int width, int height, int tflag, const char* title, ...);
int owCreateMDIMasterWindow(int xpos, int ypos, int width, int height, int tflag, const char* title, ...);
int owCreateComplexDialogueBox(int parent, int xpos, int ypos, int width, int height, int tflag, const char* title, ...);
int owCreateMDIComplexDialogueBox(int parent, int xpos, int ypos, int width, int height, int tflag, const char* title, ...);
void owSetWindowIcon(int window, const char* file, int format, int iconid);
void owDrawWindow(int window, int front, ...); /* shows a window with all its widgets; front 1 above its siblings */
void owRemoveWindow(int window);               /* takes it from the screen, alive */
void owPushWindow(int window);                 /* to the back */
void owPopWindow(int window);                  /* to the front */
void owSetActiveWindow(int window);            /* confines the input to a window; 0 or 1 gives it back */
int owEnqActiveWindow(void);
void owMDIAction(int action);                  /* 0 cascade, 1 tile horizontally, 2 tile vertically, 3 next, 4 previous */
int owEnqSystemMenu(int window, int* entries);
int owGetWidgetHandle(int window, const char* title);

/* ----------------------------------------------------------------------------------------------------- menus */

int owCreateMenuBar(int parent, ...);
int owCreatePullDownMenu(int entry, ...);
int owCreateMenuEntry(int menu, const char* label, ...); /* "text|key": the key is shown at the right; see
                                                            owDefineKeyCallback for the key itself */
int owCreateMenuSeparator(int menu, ...);
int owCreatePopupMenu(int parent, int xpos, int ypos, int tflag, const char* title, ...); /* shown by owDrawWindow at
                                                                                             the pointer */
int owCreateStatusBar(int window, ...);        /* owPanes, owSizes: right edges in pixels, -1 the rest */
void owSetStatusBarText(int bar, int pane, const char* text); /* panes count from 0 */
void owSetTextPanes(int bar, int panes, const int* sizes);

/* ------------------------------------------------------------------------------------------- bars and panes */

int owCreateToolBar(int parent, int position, int size, ...); /* size of icons in pixels */
int owCreateToolBarButton(int bar, int style, const char* string, ...); /* style OICONBUTTON or OTEXTBUTTON */
int owCreateToolBarSeparator(int bar, ...);
int owCreateDockingPane(int parent, int position, int xpos, int ypos, int width, int height, ...);
void owSetToolbarPos(int bar, int xpos, int ypos, int width, int position);
void owEnqToolbarPos(int bar, int* xpos, int* ypos, int* width, int* position);
void owSetPanePos(int pane, int xpos, int ypos, int width, int height, int position);
void owEnqPanePos(int pane, int* xpos, int* ypos, int* dockedWidth, int* dockedHeight, int* floatWidth, int* floatHeight,
                  int* position);

/* -------------------------------------------------------------------------------------------------- widgets */

int owCreatePanel(int parent, int xpos, int ypos, int width, int height, ...);
int owCreateRadioBox(int parent, int xpos, int ypos, int width, int height, ...);
int owCreateTabDialogueBox(int parent, int xpos, int ypos, int width, int height, ...); /* its children are panels */
int owCreatePushButton(int parent, int xpos, int ypos, int width, int height, const char* label, ...);
int owCreateToggleButton(int parent, int xpos, int ypos, int width, int height, const char* label, int status, ...);
int owCreateIcon(int parent, int xpos, int ypos, int width, int height, const char* file, int format, int iconid, ...);
int owCreateTextEntry(int parent, int xpos, int ypos, int width, int height, const char* string, int field, int display, ...);
int owCreateTTYEntry(int parent, int xpos, int ypos, int width, int height, int lines, const char* string, ...);
int owCreateValueEntry(int parent, int xpos, int ypos, int width, int height, double value, int field, int ndp, int display, ...);
int owCreateSlider(int parent, int xpos, int ypos, int width, int height, double smin, double smax, double step, double value, ...);
int owCreateSpinner(int parent, int xpos, int ypos, int width, int height, ...);
int owCreateGauge(int parent, int xpos, int ypos, int width, int height, const char* icon, ...);
int owCreateProgressBar(int parent, int xpos, int ypos, int width, int height, ...);
int owCreateListBox(int parent, int xpos, int ypos, int width, int height, int list, ...);
int owCreateComboBox(int parent, int xpos, int ypos, int width, int height, int list, int display, ...);
int owCreateTextArray(int parent, int xpos, int ypos, int width, int height, int cols, int rows, ...);
int owCreateValueArray(int parent, int xpos, int ypos, int width, int height, int cols, int rows, ...);
int owCreateTableBox(int parent, int xpos, int ypos, int width, int height, ...);
int owCreateTreeViewBox(int parent, int xpos, int ypos, int width, int height, ...);
int owCreateTreeEntry(int parent, int position, const char* label, ...);
int owCreatePropertyList(int parent, int xpos, int ypos, int width, int height, ...);
int owCreateGraphicsFrame(int parent, int xpos, int ypos, int width, int height, const OLIMIT* limits, ...);

/* ------------------------------------------------------------------------------------------- of every widget */

void owDrawWidget(int widget);  /* shows a widget after a change */
void owEraseWidget(int widget); /* removes it with all its children; their handles are dead */
void owSetWidgetStatus(int widget, int status);
int owEnqWidgetStatus(int widget);
void owSetWidgetProp(int widget, ...);
void owEnqWidgetProp(int widget, ...); /* each value a pointer to the result; owLength before a text */
void owSetWidgetInfo(int widget, const OWIDGET* info);
void owEnqWidgetInfo(int widget, OWIDGET* info);
void owSetWidgetHelp(int widget, const char* text, ...); /* a bar is a line break; empty text removes it */
void owSetFontAttribs(int widget, ...);
void owEnqFontAttribs(int widget, ...); /* each value a pointer to the result */
int owFontAttribsDialogue(int widget);  /* 1 when a font was chosen */
void owSetActiveWidget(int widget);     /* focus; a negative handle gives it back after a refused entry */
int owEnqActiveWidget(void);
void owSetGuiCursor(int widget, int format, int cursor); /* widget 0: everywhere */
void owSetCursorPos(int widget, int xpos, int ypos);
void owAdoptChild(int widget, int moved, int doubleClick); /* drag handles on one widget; three zeros end it. The event
                                                              moved has the widget under the pointer as its status, and
                                                              in iargs the new left and top in that widget, in pixels */
void owDesignWindow(int window, int moved, int across, int down); /* its widgets are drawn, not worked: rubber bands
                                                              show, the arrow keys and Esc go to the callback below,
                                                              positions are told in units of across by down pixels,
                                                              what has no room is scrolled; unless moved is 1 the window
                                                              keeps off the master's bars and panes */
void owDesignPicture(int panel);                           /* the widgets on it are only to look at: clicks are its own */
void owSetDesignCallback(int callback);                    /* 0 leaves the keys of designed windows to the widgets */
void owSetTrackingPos(int xpos, int ypos);   /* -1, -1 follows the pointer again */
void owEnqTrackingPos(int* xpos, int* ypos);
void owSetScrollBarPos(int widget, int xpos, int ypos);
void owEnqScrollBarPos(int widget, int* xpos, int* ypos);
void owChangeWidgetOrder(int widget, int after); /* tab order; 0 first */
int owReturnChildList(int widget, int* children, int length); /* number of children */
void owDefineWidgetLinks(int widget, int other, int action, int state);
void owDefineDragRect(int widget, int xpos, int ypos, int width, int height);
void owDefineDragShape(int widget, int points, const float* x, const float* y);

/* ------------------------------------------------------------------------------------------- values, toggles */

void owEnqToggleSwitch(int toggle, int* status);
void owSetToggleSwitch(int toggle, int status);
void owEnqValueSetting(int entry, float* value);
void owEnqValueSettingDouble(int entry, double* value);
void owEnqValueSettingInteger(int entry, int* value);
void owSetValueSetting(int entry, double value);
void owClearValueEntry(int entry);
void owSetRogueValueStr(int entry, double value, const char* text); /* shown in place of that value */
void owEnqSliderValue(int slider, float* value);
void owSetSliderValue(int slider, double value);
void owEnqGaugeValue(int gauge, int* value);
void owSetGaugeValue(int gauge, int value);
void owSetProgressValue(int bar, int value);

/* ---------------------------------------------------------------------------------------------- list, table */

void owSetListEntry(int list, int action, ...);
int owEnqListEntry(int list, int entry, char* buffer, int length, ...); /* rows count from 1; 0 or -1 the current row;
                                                                           returns the row, 0 for none */
void owEnqListStatus(int list, int* count, int* selected, int* current);
int owEnqListSelected(int list, int row); /* of a list box: 1 when the row is selected */
/* Rows of a list box can be dragged: the status is the row from 1, iargs[0] where it is to go; the program moves it. */
void owDefineRowDragCallback(int list, int callback);
void owAddTableBoxColumn(int table, int column, int width, ...);
void owRemoveTableBoxColumn(int table, int column);
int owAddTableBoxEntry(int table, int row, int column, const char* text);
void owSetTableBoxLabel(int table, int column, const char* label);
void owEnqTableBoxLabel(int table, int column, char* buffer, int length);
void owSetTableBoxAttribs(int table, int column, int width);
void owEnqTableBoxAttribs(int table, int column, int* width);
void owTreeViewAction(int item, int action);
void owSetTreeViewLabel(int item, const char* text);
void owEnqTreeViewLabel(int item, char* buffer, int length);

/* -------------------------------------------------------------------------------------------- property list */

int owAddPropertyToList(int list, int kind, const char* label, ...); /* owString, owPropertyValue, owPropertyWidget,
                                                                        owPropertyStatus, owBackCol, owHelp; owReadOnly 0
                                                                        lets a button cell be typed into; returns the
                                                                        row */
void owRemovePropertyFromList(int list, int row);
int owPropertyItemCount(int list);
int owPropertyItemNumber(int list, const char* label); /* rows count from 1; 0 for none */
void owSelectProperty(int list, int row);
void owSetPropertySetting(int list, int row, ...);
void owEnqPropertySetting(int list, int row, ...);     /* row 0: the current one; each value a pointer to the result */

/* ---------------------------------------------------------------------------------------------------- arrays */

void owAddArrayRow(int array, int before);
void owAddArrayColumn(int array, int before);
void owRemoveArrayRow(int array, int row);
void owRemoveArrayColumn(int array, int column);
void owSetCellAttribs(int array, int column, int row, const OARRAYCELL* cell); /* from 1; 0 every column or row */
void owEnqCellAttribs(int array, int column, int row, OARRAYCELL* cell);
void owSetCellSetting(int array, int column, int row, double value, const char* text);
void owEnqCellSetting(int array, int column, int row, double* value, char* buffer, int length);
void owSetTextArray(int array, int column, int row, const char* text);
void owEnqTextArray(int array, int column, int row, char* buffer, int length);
void owSetValueArray(int array, int column, int row, double value);
void owEnqValueArray(int array, int column, int row, float* value);
void owClearArrayCell(int array, int column, int row);
void owSetActiveCell(int array, int column, int row);
void owSelectArrayCells(int array, int column1, int row1, int column2, int row2);
void owEnqArrayCells(int array, int* column1, int* row1, int* column2, int* row2);
void owDefineArrayAction(int array, int action);
void owSetArrayGridReturnAction(int array, int action);
int owEnqArrayGridReturnAction(int array);

/* ------------------------------------------------------------------------------------------------------ text */

void owEnqTextSetting(int text, char* buffer, int length, ...); /* owEntryType 1: rich text as RTF */
void owSetTextSetting(int text, const char* string, ...);
void owReplaceText(int text, const char* string, ...);          /* in place of the selection */
int owGetTextFromFile(int text, const char* file, ...);         /* 1 done, 0 not */
int owSaveTextToFile(int text, const char* file, ...);
int owExtractText(int text, int start, int end, char* buffer, int length);
int owExtractWord(int text, int position, char* buffer, int length); /* position of the word's start, 0 for none */
int owEnqTextLength(const char* string, ...);                   /* pixels; owFontFace, owPointSize, owBold, owItalic */
int owEnqTextPos(int text, int property, ...);                  /* owPosition; 0 line of a position, 1 characters before
                                                                   a line, 2 length of the line that begins at a
                                                                   position, 5 last position, 6 bytes of the text,
                                                                   7 and 8 x and y of a position and 9 the caret's
                                                                   height, in pixels from the top left */
void owEnqSelectedTextRange(int text, int* start, int* end, ...); /* owLength, owString: the text as well */
void owSetSelectedTextRange(int text, int start, int end);      /* 1, 0 or 1, -1 all; 0, 0 nothing */
void owEnqSelectedText(int text, char* buffer, int length);
void owMarkTextLine(int text, int line);                        /* shades a line, from 1, until the text changes; 0: none */
/* A text entry of many lines as an editor of code: line numbers, the current line, matching brackets, guides every
 * `indent` blanks, Returns that indent. Ctrl with the wheel sends the callback with status 1 up and -1 down, with Space 0.
 * There owMarkTextLine holds until the line is edited. */
void owShowCodeView(int text, int indent, int callback);
/* Underlines `length` characters, 0 for a word, at a line and column from 1, with words for a bubble and a mark beside
 * the line, until it is edited. Line 0 takes all away. */
void owMarkTextFinding(int text, int line, int column, int length, int error, const char* words);
int owEnqTextFindings(int text);                                /* how many there are */
/* Shows one of several texts of an entry, each with a history of its own; empty at first. 1 when it was there. */
int owShowTextDocument(int text, int document);
void owForgetTextDocuments(int text);                           /* all but the shown one, which is number 0 then */
/* Offers words below the caret, one a line, a note behind a tab. `typed` characters ahead of the caret are the start
 * of the word. `chosen` 1: Return takes the first one; no words: the list goes. */
void owOfferWords(int text, int typed, const char* words, int chosen);
int owEnqWordsOffered(int text);                                /* 1 while the list is there */
int owFindText(int text, int start, const char* string, ...);   /* position of the match, 0 for none */
int owFindTextDialogue(int text, char* buffer, int length);     /* 1 found; the string looked for comes back */
int owReplaceTextDialogue(int text, char* buffer, int length);
int owTextUndoAction(int text, int action);
void owCopyTextToClipboard(int text, int action);
int owEnqClipboardStatus(int format);
void owPrintTextWidget(int widget, int range, int style, int pointSize); /* range 0 all, 1 the selection */
void owSetParagraphProp(int text, ...);
void owEnqParagraphProp(int text, ...);
void owAddParagraphTabstop(int text, int position);
void owRemoveParagraphTabstop(int text, int number);
int owEnqParagraphTabstop(int text, int number);
void owFreezeRTFChanges(int text, int on);
void owInitializeSyntaxTree(void);
int owLoadSyntaxKeywords(const char* file);
int owSaveSyntaxKeywords(const char* file);
void owAddSyntaxKeyword(int category, const char* word);
void owSetSyntaxFont(int category, ...);
void owEnqSyntaxFont(int category, ...);
void owSetSyntaxHighlighting(int text, int on, ...);
void owSetEntrySelectionMode(int mode); /* 1 selects the text of an entry that takes the focus */
int owEnqEntrySelectionMode(void);

/* ----------------------------------------------------------------------------------------------------- boxes */

int owDisplayMessageBox(const char* title, const char* text, int icon, int buttons);
void owDisplayErrorBox(const char* title, const char* text);
void owDisplayInfoBox(const char* title, const char* text);
int owFileBrowser(char* filename, int filenameLength, char* directory, int directoryLength, const char* filter, ...);
                                       /* 1 chosen, 0 not, and filename is then empty; filter "*.f90|Fortran|*.*|All";
                                          owTitle, owType */
int owDisplayHelpWindow(const char* file, const char* topic); /* 0 when the file cannot be shown */
int owDisplayHelp(const char* file, const char* topic);

/* -------------------------------------------------------------------------------------------- icons, images */

int owGetIconResource(const char* name);   /* a picture by name, above 0; 0 for an empty name */
int owGetBitmapResource(const char* name);
int owGetCursorResource(const char* name);
int owEnqIconPicture(const char* name, char* buffer, int length); /* what a stock name shows, in words; 0 for others */
int owEnqResourceImageInfo(const char* name, int* width, int* height);
void owDrawImage(const char* file, double xpos, double ypos, double width, double height); /* in the active frame */
int owDumpImage(int frame, const char* file); /* saves what a frame or widget shows as PNG; 1 done */
void owCopyGraphicsToClipboard(int frame);

/* ------------------------------------------------------------------------------------------- graphics frames */

void owActivateGraphicsFrame(int frame);
void owClearGraphicsFrame(int frame);
void owSetGraphicsFrameBounds(int frame, const OLIMIT* limits);
void owEnqGraphicsFrameBounds(int frame, OLIMIT* limits);
void owEnqGraphicsPixelBounds(int frame, int* width, int* height);
void owEnqPixelPos(double x, double y, int* xpixel, int* ypixel);
void owEnqPosofPixel(int xpixel, int ypixel, float* x, float* y);

/* Any operation by number, with six integers, two results and a text. */
void owDispatch(int operation, int a, int b, int c, int d, int e, int f, int* out1, int* out2, const char* string);

/* ----------------------------------------------------------------------------------------------- base library
 * Drawing goes to the active graphics frame, in the units of its limits, and stays on it until it is cleared. */

void oOpenOrba(void);
void oCloseOrba(void);
void oGuiwin(void);
void oOglwin(void);
void oCloseDevice(void);
int oEnqConfigStatus(const char* cfgdir); /* 0 ready */
void oEnqDrawingLimitsAt(ODIM* paper, int* type);
void oSetDrawingLimits(ODIM paper, int type);

void oDefineRGB(int index, double red, double green, double blue); /* index 20 to 255; each 0 to 1 */
void oEnqRGB(int index, ORGBSTY* rgb);
int oTrueCol(double red, double green, double blue); /* a colour value of its own for colour keywords */
void oSetLineColour(int colour);
void oEnqLineColour(int* colour);
void oSetLineStyle(int style);              /* OSOLID, ODASHED, ODOTTED, ODASHDOTTED, OINVISIBLE */
void oSetLineWidth(double width);           /* drawing units; 0 one pixel */
void oSetLineWidthPixel(int pixels);
void oSetFillMode(int style, int colour);   /* 0 hollow, 1 solid, 2 horizontal, 3 vertical, 4, 5 diagonal, 6 cross lines */
void oMoveTo2D(double x, double y);
void oMoveBy2D(double dx, double dy);
void oDrawLineTo2D(double x, double y);
void oDrawLineBy2D(double dx, double dy);
void oDrawPolylineTo2D(int points, const OPOINT* point);
void oDrawPolylineBy2D(int points, const OPOINT* step);
void oFillPolygonTo2D(int points, const OPOINT* point);
void oDrawRect2D(double x1, double y1, double x2, double y2);
void oFillRect(double x1, double y1, double x2, double y2);
void oDrawCircle2D(double radius);          /* about the current position */
void oDrawArcTo2D(double xcentre, double ycentre, double xend, double yend); /* counterclockwise */
void oDrawArcBy2D(double dx, double dy, double degrees); /* centre by its distance, counterclockwise when positive */
void oDrawEllipse2D(double xradius, double yradius);
void oDrawMarker(int marker);               /* 0 dot, 1 plus, 2 cross, 3 square, 4 diamond, 5 triangle, 6 circle, 7 star */
void oDrawPolymarkerTo2D(int points, const OPOINT* point, int marker);
void oSetMarkerSize(double size);
void oDisplayStr(const char* text);         /* at the current position */
void oDisplayInteger(int value, int field);
void oDisplayRealFixed(double value, int field, int decimals);
void oSetCharSize(double width, double height);
void oSetCharFontName(const char* name);
void oSetStrAngle(double degrees);
void oSetStrJustify(int horizontal);        /* OLEFT, OCENTRE, ORIGHT */
void oSetWindow2D(const OLIMIT* limits);
void oSetViewport2D(const OLIMIT* limits);
void oClearViewport(int colour);
void oFlushGraphics(void);
int oSavePng(const char* file);             /* the active frame; 1 done */
void oTimeDelay(double seconds);

/* Calls of these routines may leave out the closing 0 of their lists, and owDrawWindow its second argument. */
#define owCreateToolBar(...) owCreateToolBar(__VA_ARGS__, 0)
#define owCreateToolBarButton(...) owCreateToolBarButton(__VA_ARGS__, 0)
#define owCreateToolBarSeparator(...) owCreateToolBarSeparator(__VA_ARGS__, 0)
#define owCreateDockingPane(...) owCreateDockingPane(__VA_ARGS__, 0)
#define owAddTableBoxColumn(...) owAddTableBoxColumn(__VA_ARGS__, 0)
#define owCreateMenuBar(...) owCreateMenuBar(__VA_ARGS__, 0)
#define owCreatePullDownMenu(...) owCreatePullDownMenu(__VA_ARGS__, 0)
#define owCreateMenuSeparator(...) owCreateMenuSeparator(__VA_ARGS__, 0)
#define owDrawWindow(...) owDrawWindow(__VA_ARGS__, 0)
#define oEnqDrawingLimits(paper, type) oEnqDrawingLimitsAt(&(paper), type)

#ifdef __cplusplus
}
#endif
#endif
