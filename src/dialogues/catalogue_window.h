// Add ORBA Command: the identifiers of its controls.
#pragma once

enum CatalogueId : int {
    CATALOGUE_CANCEL = 15080,
    CATALOGUE_OK = 15082,
    CATALOGUE_TREE = 15088,
    CATALOGUE_HELP = 15438,
    CATALOGUE_WINDOW = 15500,
    CATALOGUE_FILTER = 15945,
    CATALOGUE_SIGNATURE,
    CATALOGUE_ABOUT,
};

// The entry of a routine in the tree while the window is open, 0 for none.
int catalogueEntry(const char* name);
