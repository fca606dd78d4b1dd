// Our own drawings, for what an icon theme has no picture of: above all the widgets of the tool box. Each is the body
// of an SVG on a grid of 22 by 22 units with 3 units of air around. Classes: l line, t thin line, f face, a accent, w
// paper, r refusal, g go, s solid in the line colour. The line colour is the theme's, so dark desktops recolour both
// alike.
#include "toolkit/views/icons/icon_names.h"

namespace orba::icons {
namespace {

struct Drawing {
    std::string_view name;
    std::string_view body;
};

constexpr Drawing drawings[] = {
    // Widgets of the tool box.
    {"pointer", R"(<path class="w" d="M6.5 3.5v14l3.6-3.4 2.3 5 2.2-1-2.3-4.9h4.7z"/>)"},
    {"tabbox", R"(<path class="w" d="M3.5 8.5h15v10h-15z"/><path class="a" d="M3.5 4.5h5v4h-5z"/>
      <path class="f" d="M8.5 5.5h5v3h-5zM13.5 5.5h5v3h-5z"/>)"},
    {"panel", R"(<path class="f" d="M3.5 4.5h15v14h-15z"/><path class="t" d="M5.5 16.5v-10h11"/>)"},
    {"toolbar", R"(<path class="f" d="M2.5 6.5h17v9h-17z"/><path class="t" d="M4.5 8.5v5"/>
      <path class="a" d="M6.5 9.5h3v3h-3z"/><path class="w" d="M11.5 9.5h3v3h-3z"/><path class="w" d="M15.5 9.5h2v3h-2z"/>)"},
    {"pane",
     R"(<path class="w" d="M3.5 3.5h15v15h-15z"/><path class="f" d="M3.5 3.5h6v15h-6z"/><path class="a" d="M3.5 3.5h6v3h-6z"/>)"},
    {"listbox", R"(<path class="w" d="M3.5 3.5h15v15h-15z"/><path class="b" d="M4 8h14v4H4z"/>
      <path class="t" d="M6 6.5h8M6 13.5h8M6 16.5h6"/><path class="p" d="M6 10.5h8"/>)"},
    {"combobox", R"(<path class="w" d="M2.5 7.5h17v7h-17z"/><path class="f" d="M13.5 7.5h6v7h-6z"/>
      <path class="s" d="M14.6 9.6h4L16.6 12.4z"/><path class="t" d="M5 11h6"/>)"},
    {"button", R"(<rect class="f" x="2.5" y="6.5" width="17" height="9" rx="2"/><path class="l" d="M7 11h8"/>)"},
    {"icon",
     R"(<path class="w" d="M3.5 3.5h15v15h-15z"/><path class="g" d="M4 18l5-7 3 4 2-2 4 5z"/><circle class="y" cx="14" cy="7.5" r="2"/>)"},
    {"separator", R"(<path class="f" d="M2.5 6.5h5v9h-5zM14.5 6.5h5v9h-5z"/><path class="l" d="M11 4v14"/>)"},
    {"checkbox",
     R"(<rect class="w" x="4.5" y="4.5" width="13" height="13" rx="1"/><path class="k" d="M7 11l3 3 5.5-6.5"/>)"},
    {"radio", R"(<circle class="w" cx="11" cy="11" r="7"/><circle class="b" cx="11" cy="11" r="3.6"/>)"},
    {"label", R"(<path class="s" d="M5 17L10 4h2l5 13h-2l-1.3-3.5H8.3L7 17zM8.9 12h4.2L11 6.2z"/>)"},
    {"textentry",
     R"(<path class="w" d="M2.5 6.5h17v9h-17z"/><path class="t" d="M4.5 11h4"/><path class="l" d="M11 8.5v5M10 8.5h2M10 13.5h2"/>)"},
    {"textarray", R"(<path class="w" d="M3.5 3.5h15v15h-15z"/><path class="f" d="M3.5 3.5h15v3h-15z"/>
      <path class="t" d="M3.5 10.5h15M3.5 14.5h15M8.5 3.5v15M13.5 3.5v15"/><path class="b" d="M9 7h4v3H9z"/>)"},
    {"valuelabel",
     R"(<path class="l" d="M4.5 7l2-1.5v11M10 7.5c0-3 4-3 4 0 0 2-4 5.5-4 9h4.5"/><circle class="s" cx="17" cy="16" r="1"/>)"},
    {"valueentry",
     R"(<path class="w" d="M2.5 6.5h17v9h-17z"/><path class="t" d="M5 9.5l1-.8v4.8M8.5 9.7c0-1.7 2.3-1.7 2.3 0 0 1.2-2.3 2.3-2.3 3.8h2.5"/>
      <path class="l" d="M14.5 8.5v5M13.5 8.5h2M13.5 13.5h2"/>)"},
    {"valuearray", R"(<path class="w" d="M3.5 3.5h15v15h-15z"/><path class="f" d="M3.5 3.5h3v15h-3z"/>
      <path class="t" d="M3.5 8.5h15M3.5 13.5h15M6.5 3.5v15M12.5 3.5v15"/><path class="p2" d="M9.5 4.8v2.7M15.5 9.8v2.7M9.5 14.8v2.7"/>)"},
    {"tablebox", R"(<path class="w" d="M3.5 4.5h15v13h-15z"/><path class="a" d="M3.5 4.5h15v3h-15z"/>
      <path class="t" d="M9.5 4.5v13M14.5 4.5v13"/>)"},
    {"gauge",
     R"(<path class="f" d="M3.5 15.5a7.5 7.5 0 0 1 15 0z"/><path class="k" d="M11 15l4-5"/><path class="t" d="M5.5 12l1 .5M11 8v1.2M16.5 12l-1 .5"/>)"},
    {"progress",
     R"(<path class="w" d="M2.5 7.5h17v7h-17z"/><path class="b" d="M4 9h2.5v4H4zM7.5 9H10v4H7.5zM11 9h2.5v4H11z"/>)"},
    {"treeview", R"(<path class="t" d="M5.5 7v9.5h4M5.5 11.5h4"/><path class="a" d="M3.5 3.5h4v4h-4z"/>
      <path class="w" d="M10.5 9.5h4v4h-4zM10.5 14.5h4v4h-4z"/><path class="t" d="M9.5 5.5h8M16.5 11.5h2M16.5 16.5h2"/>)"},
    {"graphics",
     R"(<path class="w" d="M3.5 3.5h15v15h-15z"/><path class="c" d="M5 14c3-11 5-9 6-4s3 5 6-4"/><path class="t" d="M5.5 5v11.5H17"/>)"},
    {"slider", R"(<path class="t" d="M2.5 11.5h17"/><path class="t" d="M4.5 16v1.5M8.5 16v1.5M12.5 16v1.5M16.5 16v1.5"/>
      <path class="a" d="M10.5 6.5h4v7l-2 2-2-2z"/>)"},
    {"tty", R"(<path class="s" d="M2 4h18v14H2z"/><path class="n" d="M4.5 8l3 2.5-3 2.5M9.5 14h5"/>)"},
    {"menubar",
     R"(<path class="f" d="M2.5 3.5h17v4h-17z"/><path class="w" d="M5.5 7.5h9v11h-9z"/><path class="b" d="M6 11h8v3H6z"/>
      <path class="t" d="M4.5 5.5h4M10.5 5.5h3M7.5 9.5h5M7.5 16.5h5"/><path class="p" d="M7.5 12.5h5"/>)"},
    {"statusbar",
     R"(<path class="w" d="M3.5 3.5h15v15h-15z"/><path class="f" d="M3.5 14.5h15v4h-15z"/><path class="t" d="M9.5 14.5v4M14.5 14.5v4"/>
      <path class="b" d="M5 16h3v1H5z"/>)"},
    // Commands on widgets and code.
    {"ellipsis",
     R"(<circle class="s" cx="5.5" cy="11" r="1.6"/><circle class="s" cx="11" cy="11" r="1.6"/><circle class="s" cx="16.5" cy="11" r="1.6"/>)"},
    {"unadopt",
     R"(<path class="f" d="M5.5 6.5h11v9h-11z"/><path class="b" d="M4 5h3v3H4zM15 5h3v3h-3zM4 14h3v3H4zM15 14h3v3h-3z"/>
      <path class="x" d="M3 19L19 3"/>)"},
    {"deletewidget",
     R"(<rect class="f" x="2.5" y="5.5" width="14" height="8" rx="2"/><path class="t" d="M6 9.5h7"/><path class="x" d="M12 12l7 7M19 12l-7 7"/>)"},
    {"deletemenu",
     R"(<path class="f" d="M2.5 3.5h15v4h-15z"/><path class="w" d="M4.5 7.5h8v9h-8z"/><path class="t" d="M4.5 5.5h3M9.5 5.5h3M6.5 10.5h4M6.5 13.5h3"/>
      <path class="x" d="M12 12l7 7M19 12l-7 7"/>)"},
    {"insertwidget",
     R"(<rect class="f" x="2.5" y="4.5" width="14" height="8" rx="2"/><path class="t" d="M6 8.5h7"/><path class="k" d="M15 12v7M11.5 15.5h7"/>)"},
    {"comment",
     R"(<path class="t" d="M9.5 5.5h9M9.5 11h9M9.5 16.5h9"/><path class="k" d="M5 4v8"/><circle class="b" cx="5" cy="16" r="1.3"/>)"},
    {"uncomment",
     R"(<path class="t" d="M9.5 5.5h9M9.5 11h9M9.5 16.5h9"/><path class="k" d="M5 4v8"/><circle class="b" cx="5" cy="16" r="1.3"/><path class="x" d="M2 18L9 4"/>)"},
    {"generate",
     R"(<path class="w" d="M4.5 2.5h7l4 4v6M4.5 2.5v16h5"/><path class="t" d="M11.5 2.5v4h4M7 10.5h5M7 13.5h3"/>
      <path class="k" d="M11 16h7M15 12.5l3.5 3.5-3.5 3.5"/>)"},
    {"widget",
     R"(<path class="w" d="M3.5 3.5h15v15h-15z"/><path class="a" d="M3.5 3.5h15v3h-15z"/><path class="f" d="M5.5 14.5h5v2h-5z"/>
      <path class="t" d="M5.5 9.5h8"/><rect class="f" x="12.5" y="12.5" width="4" height="4" rx="1"/>)"},
    {"light",
     R"(<path class="y" d="M11 2.5a6 6 0 0 1 3.5 10.8V15h-7v-1.7A6 6 0 0 1 11 2.5z"/><path class="l" d="M8 16.5h6M8.5 18.5h5"/>
      <path class="t" d="M9 9l2 1.5L13 9M11 10.5V15"/>)"},
    {"cardfile",
     R"(<path class="f" d="M5.5 3.5h13v11h-13z"/><path class="w" d="M3.5 6.5h13v11h-13z"/><path class="a" d="M3.5 6.5h6v3h-6z"/>
      <path class="t" d="M6 12.5h8M6 15h6"/>)"},
    {"library",
     R"(<path class="a" d="M4.5 3.5h4v15h-4z"/><path class="g" d="M8.5 5.5h4v13h-4z"/><path class="y" d="M12.7 6.3l3.5-1 3.2 12.7-3.5 1z"/>)"},
    {"mesh",
     R"(<path class="f" d="M2.5 14.5l5-9 6 3 6-4v10l-7 4z"/><path class="t" d="M2.5 14.5l11-6 6 6M7.5 5.5l5 13M13.5 8.5l-1 10"/>)"},
    {"book", R"(<path class="a" d="M5.5 3.5h11v12h-11a1.5 1.5 0 0 0 0 3h11v-3"/><path class="t" d="M5.5 15.5h11"/>)"},
    {"bookopen",
     R"(<path class="w" d="M11 6c-2-2-5-2-8.5-1.5v12C6 16 9 16 11 18c2-2 5-2 8.5-1.5v-12C16 4 13 4 11 6z"/><path class="l" d="M11 6v12"/>
      <path class="t" d="M4.5 8c2-.3 3.5 0 4.5.6M4.5 11c2-.3 3.5 0 4.5.6M17.5 8c-2-.3-3.5 0-4.5.6M17.5 11c-2-.3-3.5 0-4.5.6"/>)"},
    {"page",
     R"(<path class="w" d="M5.5 2.5h7l4 4v13h-11z"/><path class="f" d="M12.5 2.5v4h4z"/><path class="t" d="M8 10.5h6M8 13.5h6M8 16.5h4"/>)"},
    {"missing",
     R"(<path class="w" d="M4.5 3.5h13v15h-13z"/><path class="l" d="M8.5 8c0-3.5 5-3.5 5 0 0 2-2.5 2-2.5 4.5"/><circle class="s" cx="11" cy="15.5" r="1"/>)"},
};

// What the classes of the drawings mean. #232629 is the line colour that the theme's pictures use.
constexpr char head[] =
    R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 22 22"><style type="text/css">)"
    R"(.l{fill:none;stroke:#232629;stroke-width:1.4}.t{fill:none;stroke:#232629;stroke-width:1}.s{fill:#232629;stroke:none})"
    R"(.f{fill:#8c9bab;fill-opacity:0.35;stroke:#232629}.w{fill:#8c9bab;fill-opacity:0.08;stroke:#232629})"
    R"(.a{fill:#3daee9;stroke:#232629}.b{fill:#3daee9;stroke:none}.g{fill:#27ae60;stroke:none}.y{fill:#f9c22e;stroke:#232629})"
    R"(.k{fill:none;stroke:#1d80b8;stroke-width:2}.c{fill:none;stroke:#3daee9;stroke-width:1.6}.x{fill:none;stroke:#da4453;stroke-width:2})"
    R"(.p{fill:none;stroke:#ffffff;stroke-width:1}.p2{fill:none;stroke:#1d80b8;stroke-width:1.4}.n{fill:none;stroke:#2ecc71;stroke-width:1.4})"
    R"(</style>)";

} // namespace

QByteArray drawingSvg(std::string_view drawing) {
    for (const Drawing& row : drawings)
        if (row.name == drawing)
            return QByteArray(head) + QByteArray(row.body.data(), static_cast<qsizetype>(row.body.size())) + "</svg>";
    return {};
}

} // namespace orba::icons
