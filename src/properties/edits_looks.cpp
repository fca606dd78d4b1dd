// Colours, fonts, icons and pictures.
#include "properties/edits.h"

#include "menu-c.h"
#include "platform/letters.h"
#include "project/bitmap_file.h"
#include "project/host.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "surface/live.h"
#include "surface/state.h"

#include <cstdlib>

namespace {

constexpr int IMAGE_FILE = 3; // `format` of an icon that is a file of its own
constexpr char IMAGE_EXTENSION[] = ".bmp";

// The record that holds the picture and colour behind a form: its main panel, but for the default record.
WidgetNode& behind(WidgetNode& widget) {
    return widget.type == TYPE_FORM && !design.defaultsMode && widget.child ? *widget.child : widget;
}

void removeImage(WidgetNode& painted) {
    painted.icon.clear();
    painted.backgroundImage.clear();
    painted.format = 0;
}

bool refusesImage(const std::string& path) {
    switch (checkBitmap(path)) {
    case Bitmap::Missing: host.errorBox("File not found", "The requested file could not be found"); return true;
    case Bitmap::NotBitmap: host.errorBox("File format not valid", "File is not a BMP format bitmap"); return true;
    default: return false;
    }
}

// An icon of a tree entry by its position, counted from 1.
constexpr std::string MenuEntryRec::*ICONS[] = {&MenuEntryRec::icon1, &MenuEntryRec::icon2, &MenuEntryRec::icon3};

// Position of a tree view's icon row among the icons of its entries.
int iconPosition(RowId row) { return row == ROW_ICON ? 1 : row == ROW_CLOSE_ICON ? 2 : 3; }

// The icons of a tree view are those of its entries: they are what the program shows.
void storeEntryIcons(WidgetNode& treeView, int position, const std::string& name) {
    for (MenuEntryRec& entry : treeView.entries)
        if (entry.kind == MENU_ENTRY) entry.*ICONS[position - 1] = name;
}

void storeIcon(WidgetNode& target, const PropertyRow& row, const std::string& name) {
    target.*row.text = name;
    if (target.type == TYPE_TREE_VIEW) storeEntryIcons(target, iconPosition(row.id), name);
    if (row.id != ROW_ICON) return;
    target.backgroundImage = name.empty() ? "" : resourceName(name);
    if (name.empty())
        target.format = -1;
    else if (name.find('.') != std::string::npos)
        target.format = IMAGE_FILE;
}

} // namespace

bool mayReplaceEntryIcons(const WidgetNode& treeView, int position) {
    for (const MenuEntryRec& entry : treeView.entries) {
        if (entry.kind != MENU_ENTRY || (entry.*ICONS[position - 1]).empty()) continue;
        return host.messageBox("Overwriting existing icons",
                               "The Treeview already has entries containing icons|This will replace all the icons with "
                               "the icon chosen",
                               BOX_WARNING, BOX_OK_CANCEL) == ANSWER_OK;
    }
    return true;
}

void editColour(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    WidgetNode& painted = row.id == ROW_FORM_COLOUR ? behind(target) : target;
    painted.*row.whole = input.value;
    const bool framesImage = row.id == ROW_FORM_COLOUR || row.id == ROW_FILL_COLOUR;
    const bool hadImage = framesImage && !painted.icon.empty();
    if (hadImage) removeImage(painted);
    if (row.id == ROW_FORM_COLOUR && design.defaultsMode) target.backgroundImage.clear();
    setLive(painted, liveKeyword(painted, row), input.value);
    const bool lines = isText(target) && row.id == ROW_TEXT_COLOUR && !isSingleLine(target);
    if (hadImage || lines)
        rebuildLive(target);
    else
        redrawLive(target);
    markEdited();
}

void editFontFace(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    target.fontFace = cutBetweenLetters(input.text, NAME_LIMIT);
    if (target.handle > 0 && bearsFont(target)) owSetFontAttribs(target.handle, owFontFace, target.fontFace.c_str(), 0);
    storeAndFollow(target, row, {.text = target.fontFace});
}

void editPointSize(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    const int points = std::atoi(input.text.c_str());
    if (points < 1) return;
    storeAndFollow(target, row, {.text = {}, .value = points});
}

void editIcon(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    if (target.type == TYPE_TREE_VIEW && !mayReplaceEntryIcons(target, iconPosition(row.id))) return;
    setIcon(target, row, input.text, nullptr);
}

void setIcon(WidgetNode& target, const PropertyRow& row, const std::string& name, const PictureKind* kind) {
    storeIcon(target, row, name);
    if (kind) {
        target.format = kind->format;
        target.iconId = kind->number;
    }
    if (target.onToolbar)
        rebuildFormOf(target);
    else
        rebuildLive(target);
    markEdited();
}

void editBackgroundImage(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    WidgetNode& painted = behind(target);
    const bool sample = target.type == TYPE_FORM && design.defaultsMode;
    std::string path = input.text;
    if (path.empty()) {
        if (sample)
            target.backgroundImage.clear();
        else
            removeImage(painted);
        if (!sample && target.type == TYPE_FORM) painted.colour3 = 0;
    } else {
        if (path.find('.') == std::string::npos) path += IMAGE_EXTENSION;
        if (refusesImage(path)) return;
        if (sample) {
            target.backgroundImage = path;
        } else {
            painted.icon = path;
            painted.backgroundImage = resourceName(path);
            painted.format = 1;
            painted.colour3 = 0;
        }
    }
    rebuildLive(target);
    markEdited();
}
