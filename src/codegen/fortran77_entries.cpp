// The rows of trees and lists in Fortran 77, their icons, and bubble help.

#include "codegen/fortran77.h"
#include "codegen/quotes.h"

void writeHelpStatement(Generation& g, std::string_view name, std::string_view help) {
    if (!help.empty()) writeSplit(g, "      CALL WIDHLP(%s,2,'%s')\n", name, fortranText(help));
}

void writeFetchIcon(Generation& g, std::string_view variable, std::string_view icon) {
    writeSplit(g, "      CALL GUIESC(850,0,0,0,0,0,0,%s,iret4,'%s')\n", variable, iconResourceName(icon));
}

// Only a tree whose icons are the user's own takes them from its entries.
void writeFixedTreeEntry(Generation& g, const WidgetNode& tree, const MenuEntryRec& entry, std::string_view parent) {
    const bool ownIcons = tree.subType == TREE_OWN_ICONS;
    if (!ownIcons || (entry.icon1.empty() && entry.icon2.empty() && entry.icon3.empty())) {
        write(g, "      CALL TREENT(%s,1,'%s',%s)\n", parent, fortranText(entry.label), entry.name);
        return;
    }
    if (!entry.icon1.empty()) writeFetchIcon(g, "icon1", entry.icon1);
    if (!entry.icon2.empty()) writeFetchIcon(g, "icon2", entry.icon2);
    if (!entry.icon3.empty()) writeFetchIcon(g, "icon3", entry.icon3);
    const auto argument = [](const std::string& icon, std::string_view variable) {
        return icon.empty() ? std::string_view("0") : variable;
    };
    writeSplit(g, "      CALL GUIESC(880,%s,1,%s,%s,%s,0,%s,iret2,'%s')\n", parent, argument(entry.icon1, "icon1"),
               argument(entry.icon2, "icon2"), argument(entry.icon3, "icon3"), entry.name, fortranText(entry.label));
}

void writeFixedListEntry(Generation& g, const WidgetNode& list, const ListEntryRec& entry) {
    if (entry.icon.empty()) {
        writeSplit(g, "      CALL LISSET(%s,0,'%s',0)\n", list.name, fortranText(entry.text));
        return;
    }
    writeFetchIcon(g, "icon1", entry.icon);
    writeSplit(g, "      CALL GUIESC(890,%s,0,0,icon1,0,0,iret1,iret2,'%s')\n", list.name, fortranText(entry.text));
}
