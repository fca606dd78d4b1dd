// Names of the stock pictures: which picture of the freedesktop theme, or which drawing of our own, stands behind each.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <string_view>

namespace orba::icons {

// One stock name. Exactly one of theme and drawing is set.
struct StockPicture {
    std::string_view name;    // lower case, without the trailing mark
    std::string_view theme;   // name of a picture of the icon theme, empty for a drawing
    std::string_view drawing; // name of a drawing of our own, empty for a theme picture
};

// The picture behind a stock name, whatever its case and with or without the trailing "&", "!" or "#" that picks a
// variant. Numbered sets ("MBIG1001" to "MBIG1100", "MSML1001" to "MSML1100", "mthumb01" to "mthumb08", "mstd1001" to
// "mstd1027") are known too. Both fields are empty for a name that is not stock.
StockPicture stockPicture(const QString& name);

// Every stock name there is, in the order of the tables; for tests and for choosers.
QStringList stockNames();

// SVG text of one of our own drawings, on a grid of 22 by 22 units; empty for an unknown name. Its line colour is
// written #232629 like the theme's, so that one rule recolours both.
QByteArray drawingSvg(std::string_view drawing);

} // namespace orba::icons
