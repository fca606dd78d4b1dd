// The constants of the toolkit that stand for the values of a record's fields, the same in every language.
#pragma once

#include <array>
#include <string_view>

struct NamedValue {
    int value;
    std::string_view name;
};

// The name of `value`, or `other` when the table does not hold it.
template <class Table>
constexpr std::string_view nameOf(const Table& table, int value, std::string_view other = std::string_view()) {
    for (const NamedValue& row : table) {
        if (row.value == value) return row.name;
    }
    return other;
}

// A title bar of one or two flags.
struct TitleFlags {
    int value;
    std::string_view first;
    std::string_view second; // empty for a single flag
};

inline constexpr TitleFlags TITLE_FLAGS[] = {
    {0, "ONONE", ""},           {1, "OTITLE", ""},
    {2, "OQUIT", ""},           {3, "OQUIT", ""},
    {4, "OMAXIMIZE", ""},       {5, "OMAXIMIZE", ""},
    {6, "OMAXIMIZE", "OQUIT"},  {8, "OMINIMIZE", ""},
    {10, "OMINIMIZE", "OQUIT"}, {12, "OMINIMIZE", "OMAXIMIZE"},
    {16, "OTOOL", ""},          {17, "OTOOL", ""},
    {18, "OTOOL", "OQUIT"},
};
inline constexpr TitleFlags FULL_TITLE = {-1, "OALL", ""};

constexpr const TitleFlags& titleFlags(int value) {
    for (const TitleFlags& row : TITLE_FLAGS) {
        if (row.value == value) return row;
    }
    return FULL_TITLE;
}

inline constexpr NamedValue HORIZONTAL_ORIGIN[] = {{0, "OCENTRE"}, {1, "ORIGHT"}};
inline constexpr NamedValue VERTICAL_ORIGIN[] = {{0, "OMIDDLE"}, {1, "OTOP"}};
inline constexpr NamedValue QUIT_MODE[] = {{0, "OHIDE"}, {1, "OREMOVE"}, {2, "OLEAVE"}};
inline constexpr NamedValue INITIAL_STATE[] = {{1, "OTOP"}, {4, "OMAXIMIZE"}, {8, "OMINIMIZE"}, {32, "OCENTRED"}};
inline constexpr NamedValue WIDGET_STATUS[] = {{-1, "OHIDDEN"}, {0, "OUNSELECTABLE"}, {2, "OCHECKED"}};
inline constexpr NamedValue HELP_SIDE[] = {{-1, "OLEFT"}, {1, "ORIGHT"}};
inline constexpr NamedValue OFF_ON[] = {{0, "OOFF"}, {1, "OON"}};
inline constexpr NamedValue SCROLL_BARS[] = {
    {0, "OBOTHBARS"}, {32763, "OVERTICAL"}, {32764, "OHORIZONTAL"}}; // else ONOBARS
inline constexpr NamedValue LEFT_RIGHT[] = {{-1, "OLEFT"}, {1, "ORIGHT"}};
inline constexpr NamedValue CENTRE_RIGHT[] = {{0, "OCENTRE"}, {1, "ORIGHT"}};
inline constexpr NamedValue LEFT_CENTRE_RIGHT[] = {{-1, "OLEFT"}, {0, "OCENTRE"}, {1, "ORIGHT"}};

inline constexpr NamedValue BOUNDARY[] = {{1, "OSINGLE"},    {2, "ODOUBLE"}, {3, "OPRESSED"},
                                          {4, "OPROJECTED"}, {5, "OCHISEL"}, {6, "OINVERSECHISEL"}};
inline constexpr std::string_view NO_BOUNDARY = "ONOBOUNDARY";
inline constexpr NamedValue CONTENTS[] = {{0, "ONONE"},  {1, "OFILES"}, {2, "ODIRECTORIES"}, {3, "ODRIVES"},
                                          {4, "OFONTS"}, {5, "ODOW"},   {6, "OMOY"},         {7, "OPRINTERS"}};
inline constexpr NamedValue CHARACTER_SET[] = {
    {1, "OANSISET"},     {2, "OSYMBOLSET"},     {3, "OOEMSET"},      {4, "OGREEKSET"},       {5, "OBALTICSET"},
    {6, "OCHINESESET"},  {7, "OEASTEUROPESET"}, {8, "OGB2312SET"},   {9, "OHANGULSET"},      {10, "OMACSET"},
    {11, "ORUSSIANSET"}, {12, "OJAPANESESET"},  {13, "OTURKISHSET"}, {14, "OVIETNAMESESET"}, {15, "OJOHABSET"},
    {16, "OARABICSET"},  {17, "OHEBREWSET"},    {18, "OTHAISET"}};

inline constexpr NamedValue BUTTON_TYPE[] = {{1, "OUSERDEFINED"}, {2, "ODEFAULTBUTTON"}};
inline constexpr NamedValue TOGGLE_TYPE[] = {{1, "OBEVELDIAMOND"}, {2, "OSIMPLESQUARE"}, {3, "OTICKBOX"},
                                             {4, "OSIMPLECIRCLE"}, {5, "OCHECKBOX"},     {6, "O3DRADIO"},
                                             {7, "O3DCHECKBOX"}}; // else OBEVELSQUARE
inline constexpr NamedValue ENTRY_TYPE[] = {{-1, "OSECURITY"}, {1, "ORICHEDIT"}};
inline constexpr NamedValue ENTRY_BORDER[] = {{1, "OBLACK3D"}, {2, "OBLACK2D"}, {3, "ONOBORDER"}};
inline constexpr NamedValue VALUE_TYPE[] = {{1, "OSCIENTIFIC"}, {2, "OBINARY"},   {3, "OOCTAL"},      {4, "OHEX"},
                                            {5, "ODEGREES"},    {6, "OMPERCENT"}, {7, "OFAHRENHEIT"}, {8, "OCELCIUS"},
                                            {9, "OKELVIN"},     {10, "OPOUND"},   {11, "ODOLLAR"},    {12, "ODM"},
                                            {13, "OFRANC"},     {14, "OYEN"},     {15, "OEURO"}}; // else ODECIMAL
inline constexpr NamedValue VALUE_SIGN[] = {{1, "OCREDIT1"}, {2, "OCREDIT2"}, {3, "OREDCREDIT"}};
inline constexpr NamedValue ICON_TYPE[] = {{1, "OPICTOGRAM"}, {2, "OMOUSESENSITIVE"}, {7, "OBUTTON"}};
inline constexpr NamedValue LIST_TYPE[] = {{0, "OSINGLECHOICE"}, {1, "OMULTIPLECHOICE"}, {2, "OMULTIPLECHOICE2"}};
inline constexpr NamedValue LIST_STYLE[] = {{0, "OEXACT"}, {1, "OAPPROX"}};
inline constexpr NamedValue LIST_SORT[] = {{0, "OUNSORTED"}, {1, "OSORTED"}};
inline constexpr NamedValue SLIDER_TYPE[] = {
    {2, "OREVERSEHORIZONTAL"}, {3, "OREVERSEVERTICAL"}, {32763, "OVERTICAL"}}; // else OHORIZONTAL
inline constexpr NamedValue TAB_ACTION[] = {{0, "OOFF"}, {1, "OON"}, {2, "OCYCLE"}};
inline constexpr NamedValue DOCK_SIDE[] = {{-1, "OBOTTOM"}, {2, "OLEFTSIDE"}, {3, "ORIGHTSIDE"}}; // else OTOP
inline constexpr NamedValue DOCK_TITLE[] = {{1, "OTITLE"}, {2, "OQUIT"}};
inline constexpr NamedValue GAUGE_ACCESS[] = {{0, "OEDIT"}, {1, "ODISPLAY"}};
inline constexpr NamedValue PROGRESS_TYPE[] = {{0, "ODEFAULT"}, {32745, "OSMOOTH"}};
inline constexpr NamedValue TREE_ICONS[] = {{1, "OFOLDERS"}, {2, "OBOOKS"}, {3, "ORESOURCEICONS"}};
inline constexpr NamedValue SEPARATOR_TYPE[] = {
    {0, "ONONE"}, {1, "OSINGLE"}, {2, "ODOUBLE"}, {5, "OCHISEL"}, {6, "OINVERSECHISEL"}};

inline constexpr int FLOATING = 4;       // initialPosition of a tool bar or pane
inline constexpr int TREE_OWN_ICONS = 3; // subType of a tree view whose entries bring their icons
inline constexpr int FRAME_OPENGL = 40;  // subType of a graphics frame
