// Insert Widget Name: a popup of the families of widgets in the project, and the list of their names.
#pragma once

bool nameCommand(int identifier); // true when the identifier is one of the popup's or the chooser's and was handled
