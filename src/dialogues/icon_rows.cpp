#include "dialogues/icon_rows.h"

#include "dialogues/choose_icon.h"
#include "project/bitmap_file.h"
#include "project/host.h"
#include "project/records.h"
#include "project/tree.h"
#include "properties/edits.h"
#include "surface/hooks.h"
#include "surface/state.h"

#include <algorithm>

namespace {

// Formats of a picture as records hold them.
enum PictureFormat : int { FORMAT_BITMAP = 1, FORMAT_ICON_FILE = 3, FORMAT_STOCK = 4 };

// Widgets whose `icon` is the one picture that they show, so that `format` and `iconId` tell of it. A panel's tell of
// its background.
bool ownsPicture(const WidgetNode& widget) {
    return widget.type == TYPE_FORM || widget.type == TYPE_ICON || widget.type == TYPE_GAUGE;
}

unsigned setsFor(const WidgetNode& widget, RowId row) {
    if (row == ROW_BACKGROUND_IMAGE) return BITMAP_FILE;
    if (row != ROW_ICON || widget.type == TYPE_TREE_VIEW) return ALL_ICONS;
    const unsigned bitmap = ownsPicture(widget) ? static_cast<unsigned>(BITMAP_FILE) : 0U;
    if (project.projectPlatform != 'w') return STOCK_LARGE | STOCK_SMALL | bitmap;
    return ALL_ICONS | bitmap;
}

struct Refusal {
    Bitmap result;
    const char *title, *text;
};
constexpr Refusal REFUSALS[] = {
    {Bitmap::Missing, "File not found", "The requested file could not be found"},
    {Bitmap::NotBitmap, "File format not valid", "File is not a BMP format bitmap"},
    {Bitmap::Compressed, "File not valid",
     "The file specified is compressed. Compressed bitmaps cannot be used in bitmap icons"},
    {Bitmap::TooLarge, "Bitmap too large", "Bitmaps more than 32x32 pixels in size cannot be used in bitmap icons"},
    {Bitmap::WrongDepth, "Wrong colour depth",
     "The bitmap you have chosen is not in 8-bit colour. Bitmap icons may only be in 8-bit colour"},
};

bool refused(const std::string& path) {
    const auto refusal = std::ranges::find(REFUSALS, checkBitmap(path), &Refusal::result);
    if (refusal == std::end(REFUSALS)) return false;
    host.errorBox(refusal->title, refusal->text);
    return true;
}

int formatOf(const IconChoice& choice) {
    if (choice.set == BITMAP_FILE) return FORMAT_BITMAP;
    return choice.set == ICON_FILE ? FORMAT_ICON_FILE : FORMAT_STOCK;
}

void store(WidgetNode& widget, const PropertyRow& row, const IconChoice& choice) {
    if (row.id == ROW_BACKGROUND_IMAGE) return row.edit(widget, row, {.text = choice.name});
    if (choice.set == BITMAP_FILE && refused(choice.name)) return;
    const PictureKind kind{formatOf(choice), choice.number};
    setIcon(widget, row, choice.name, row.id == ROW_ICON && ownsPicture(widget) ? &kind : nullptr);
}

std::string presentIcon(const WidgetNode& widget, const PropertyRow& row) {
    return row.text ? widget.*row.text : std::string();
}

// By its id: the record may be another one by the time that the chooser is closed. Default records have none.
struct Target {
    int id;
    WidgetNode* widget;

    WidgetNode* find() const { return id ? findRecord(id) : widget; }
};

} // namespace

void chooseRowIcon(WidgetNode& widget, RowId id) {
    const PropertyRow& row = propertyRow(id);
    const Target target{widget.id, &widget};
    chooseIcon(setsFor(widget, id), presentIcon(widget, row), [target, &row](const IconChoice& choice) {
        WidgetNode* found = target.find();
        if (!found) return;
        store(*found, row, choice);
        hooks.refreshProperties();
    });
}
