// Icons and pictures of the rows of the property sheet.
#pragma once

#include "properties/rows.h"

// Lets the user choose one, and stores it as the row does a typed name.
void chooseRowIcon(WidgetNode& widget, RowId row);
