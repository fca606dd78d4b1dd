// Pictures by name: stock pictures, image files, and the icon resources that programs pass about as numbers.
#pragma once

#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>

namespace orba::icons {

// Formats of an icon, as owIconFormat names them.
enum class Format : int {
    none = -1,
    bitmap = 1,   // a bitmap file
    resource = 3, // an icon file, by path or by its resource name
    stock = 4,    // a stock name
};

// The icon of a stock name or of an image file. Never null: an unknown name gives the drawing for a missing picture. A
// trailing
// "#" asks for the greyed variant. Sharp at every size and on screens of high density.
QIcon iconByName(const QString& name);

// True when the name leads to a picture: a stock name, or an image file that can be read.
bool iconExists(const QString& name);

// What a stock name shows: the name of its picture in the theme, or of our own drawing; empty for other names.
QString pictureBehind(const QString& name);

// An image as large as its file says, for bitmaps and backgrounds; null when there is none.
QPixmap imageFromFile(const QString& path);

// A number for a name, from 1 up and the same for the same name; 0 for an empty name. Numbers live as long as the
// program.
int iconResource(const QString& name);

// The icon behind a number of iconResource; null for 0 and for numbers that were never given out.
QIcon iconOfResource(int resource);

// The name behind a number of iconResource; empty for 0 and for numbers that were never given out.
QString nameOfResource(int resource);

// Gives the desktop's own dialogues the icon theme where the desktop has set none.
void useTheme();

} // namespace orba::icons
