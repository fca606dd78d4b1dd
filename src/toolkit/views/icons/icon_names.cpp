// The name table of the stock pictures. A row to add one: name, then a theme picture or a drawing of icon_drawings.cpp.
#include "toolkit/views/icons/icon_names.h"

#include <array>

namespace orba::icons {
namespace {

constexpr StockPicture namedPictures[] = {
    // Commands of files, text and programs.
    {"filenew", "document-new", {}},
    {"newform", "window-new", {}},
    {"fileopen", "document-open", {}},
    {"save", "document-save", {}},
    {"saveas", "document-save-as", {}},
    {"print", "document-print", {}},
    {"cut", "edit-cut", {}},
    {"copy", "edit-copy", {}},
    {"paste", "edit-paste", {}},
    {"undo", "edit-undo", {}},
    {"redo", "edit-redo", {}},
    {"delete", "edit-delete", {}},
    {"recycle", "trash-empty", {}},
    {"search", "edit-find", {}},
    {"back", "go-previous", {}},
    {"forward", "media-playback-start", {}},
    {"cancel", "dialog-cancel", {}},
    {"repeat", "media-playlist-repeat", {}},
    {"restart", "view-refresh", {}},
    {"gotonext", "go-down", {}},
    {"gotoprevious", "go-up", {}},
    {"error", "dialog-error", {}},
    {"warning", "dialog-warning", {}},
    {"info", "dialog-information", {}},
    {"help", "help-contents", {}},
    {"question", "dialog-question", {}},
    {"flag", "flag", {}},
    {"font", "preferences-desktop-font", {}},
    {"envelope", "mail-message", {}},
    {"function", "code-function", {}},
    {"preferences", "configure", {}},
    {"ruler", "measure", {}},
    {"showgrid", "view-grid", {}},
    {"symbol", "format-text-symbol", {}},
    {"calculator", "accessories-calculator", {}},
    {"calendar", "view-calendar", {}},
    {"indentin", "format-indent-more", {}},
    {"indentout", "format-indent-less", {}},
    {"colour", "preferences-desktop-color", {}},
    {"dotdotdot", {}, "ellipsis"},
    {"larrow", "arrow-left", {}},
    {"rarrow", "arrow-right", {}},
    {"uarrow", "arrow-up", {}},
    {"darrow", "arrow-down", {}},
    {"insertcode", "code-block", {}},
    {"generate", {}, "generate"},
    {"compile", "run-build", {}},
    {"formshow", "view-visible", {}},
    {"unadopt", {}, "unadopt"},
    {"deletewidg", {}, "deletewidget"},
    {"deletemenu", {}, "deletemenu"},
    {"insertwidg", {}, "insertwidget"},
    {"commentlines", {}, "comment"},
    {"uncommentlines", {}, "uncomment"},
    // Windows of the system.
    {"light", {}, "light"},
    {"gee", {}, "light"},
    {"icopick", "preferences-desktop-icons", {}},
    {"widget", {}, "widget"},
    {"called", "code-context", {}},
    {"crdfle1b", {}, "cardfile"},
    {"orbaf", {}, "library"},
    {"orbaplot", "office-chart-line", {}},
    {"orbamesh", {}, "mesh"},
    {"orbawidg", {}, "widget"},
    // Widgets.
    {"pointer", {}, "pointer"},
    {"tabdia", {}, "tabbox"},
    {"panel", {}, "panel"},
    {"toolbar", {}, "toolbar"},
    {"pane", {}, "pane"},
    {"listbox", {}, "listbox"},
    {"combo", {}, "combobox"},
    {"button", {}, "button"},
    {"icon", {}, "icon"},
    {"toolsep", {}, "separator"},
    {"check", {}, "checkbox"},
    {"radiobut", {}, "radio"},
    {"stext", {}, "label"},
    {"text", {}, "textentry"},
    {"textcel", {}, "textarray"},
    {"sval", {}, "valuelabel"},
    {"val", {}, "valueentry"},
    {"valuecel", {}, "valuearray"},
    {"table", {}, "tablebox"},
    {"gauge", {}, "gauge"},
    {"progress", {}, "progress"},
    {"treeview", {}, "treeview"},
    {"graph", {}, "graphics"},
    {"sliderh", {}, "slider"},
    {"tty", {}, "tty"},
    {"menu", {}, "menubar"},
    {"status", {}, "statusbar"},
    // Icon sets of tree views.
    {"folder", "folder", {}},
    {"folderopen", "folder-open", {}},
    {"document", {}, "page"},
    {"book", {}, "book"},
    {"bookopen", {}, "bookopen"},
    {"page", {}, "page"},
};

// The hundred pictures of the large and of the small set, from number 1001 up.
constexpr std::string_view hundred[] = {
    // 1001
    "document-new",
    "document-open",
    "document-save",
    "document-print",
    "document-preview",
    "document-properties",
    "document-edit",
    "document-import",
    "document-export",
    "document-close",
    // 1011
    "edit-cut",
    "edit-copy",
    "edit-paste",
    "edit-undo",
    "edit-redo",
    "edit-delete",
    "edit-find",
    "edit-select",
    "draw-freehand",
    "preferences-desktop-color",
    // 1021
    "go-previous",
    "go-next",
    "go-up",
    "go-down",
    "go-first",
    "go-last",
    "go-top",
    "go-bottom",
    "go-home",
    "go-jump",
    // 1031
    "dialog-ok",
    "dialog-cancel",
    "dialog-information",
    "dialog-warning",
    "dialog-error",
    "dialog-question",
    "help-about",
    "help-contents",
    "system-help",
    "dialog-password",
    // 1041
    "folder",
    "folder-open",
    "folder-documents",
    "folder-pictures",
    "folder-music",
    "folder-videos",
    "folder-download",
    "folder-favorites",
    "folder-network",
    "folder-temp",
    // 1051
    "text-x-generic",
    "image-x-generic",
    "audio-x-generic",
    "video-x-generic",
    "package-x-generic",
    "text-html",
    "application-pdf",
    "application-x-executable",
    "font-ttf",
    "unknown",
    // 1061
    "computer",
    "computer-laptop",
    "drive-harddisk",
    "drive-removable-media-usb",
    "media-optical",
    "printer",
    "input-keyboard",
    "input-mouse",
    "camera-photo",
    "smartphone",
    // 1071
    "network-server",
    "network-workgroup",
    "internet-web-browser",
    "user-home",
    "user-desktop",
    "user-trash",
    "user-trash-full",
    "security-high",
    "security-medium",
    "security-low",
    // 1081
    "media-playback-start",
    "media-playback-pause",
    "media-playback-stop",
    "media-record",
    "media-skip-backward",
    "media-skip-forward",
    "media-seek-backward",
    "media-seek-forward",
    "media-eject",
    "media-playlist-repeat",
    // 1091
    "accessories-calculator",
    "office-calendar",
    "utilities-terminal",
    "accessories-text-editor",
    "preferences-system-time",
    "preferences-desktop-font",
    "preferences-other",
    "system-file-manager",
    "applications-engineering",
    "applications-science",
};
static_assert(std::size(hundred) == 100);

// "mthumb01" to "mthumb08": kinds of content.
constexpr std::string_view thumbs[] = {
    "folder",          "text-x-generic", "image-x-generic",   "audio-x-generic",
    "video-x-generic", "text-html",      "package-x-generic", "application-x-executable"};
static_assert(std::size(thumbs) == 8);

// "mstd1001" to "mstd1027": the usual buttons of a tool bar.
constexpr std::string_view standards[] = {
    // 1001
    "document-new", "document-open", "document-save", "document-print", "edit-cut", "edit-copy", "edit-paste",
    "edit-undo",
    // 1009
    "format-text-bold", "format-text-italic", "format-text-underline", "format-justify-left", "format-justify-center",
    "format-justify-right", "format-justify-fill",
    // 1016
    "edit-redo", "edit-find", "edit-find-replace", "edit-delete", "document-print-preview", "zoom-in", "zoom-out",
    "go-previous", "go-next", "view-refresh", "configure", "help-contents"};
static_assert(std::size(standards) == 27);

// A set whose names are a word and a number.
struct NumberedSet {
    std::string_view prefix; // lower case
    int first;               // number of the first picture
    int digits;              // digits of the number as it is written
    const std::string_view* pictures;
    int count;
};
constexpr NumberedSet numberedSets[] = {
    {"mbig", 1001, 4, hundred, 100},
    {"msml", 1001, 4, hundred, 100},
    {"mthumb", 1, 2, thumbs, 8},
    {"mstd", 1001, 4, standards, 27},
};

QString toQString(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

StockPicture numberedPicture(const QString& name) {
    for (const NumberedSet& set : numberedSets) {
        const QString prefix = toQString(set.prefix);
        if (!name.startsWith(prefix)) continue;
        bool isNumber = false;
        const int index = name.mid(prefix.size()).toInt(&isNumber) - set.first;
        if (isNumber && index >= 0 && index < set.count) return {set.prefix, set.pictures[index], {}};
    }
    return {};
}

} // namespace

StockPicture stockPicture(const QString& name) {
    QString plain = name.trimmed().toLower();
    while (!plain.isEmpty() && QStringLiteral("&!#").contains(plain.back())) plain.chop(1);
    for (const StockPicture& row : namedPictures)
        if (plain == toQString(row.name)) return row;
    return numberedPicture(plain);
}

QStringList stockNames() {
    QStringList names;
    for (const StockPicture& row : namedPictures) names << toQString(row.name);
    for (const NumberedSet& set : numberedSets)
        for (int i = 0; i < set.count; ++i)
            names << toQString(set.prefix) +
                         QString::number(set.first + i).rightJustified(set.digits, QLatin1Char('0'));
    return names;
}

} // namespace orba::icons
