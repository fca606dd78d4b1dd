// Names: what may be one, which are free, and how new and copied records get theirs. One name space holds the forms,
// widgets and main panels, the status bars, and the entries, pull-downs and separators of menus and trees, for the
// generated source declares them all side by side. Fortran takes no notice of case, so in a Fortran project names that
// differ by case alone are the same.
#pragma once

#include "project/tree.h"

#include <string>
#include <string_view>
#include <unordered_map>

bool isIdentifier(std::string_view name); // a letter, then letters, digits and underscores; at most NAME_LIMIT

// What a name is for, and so whose present names are about to go and count as free.
enum class NameOf { Record, Entries, StatusBar };

// Whether `name` may be given: an identifier that nothing of the project bears. Passed over is what `owner` bears
// itself: the record's own name, the names of its entries, or that of its status bar. Null passes over nothing.
bool nameFree(std::string_view name, const WidgetNode* owner = nullptr, NameOf what = NameOf::Record);

// All names of the project, counted, as its language tells them apart; for those who ask for many.
struct NamesInUse {
    NamesInUse();
    int count(std::string_view name) const;
    void add(std::string_view name);
    void remove(std::string_view name);

    std::unordered_map<std::string, int> counts;
};

// `stem` with the first number from 1 on that makes a free name of it; the name counts as used from then on.
std::string firstFreeName(std::string_view stem, NamesInUse& names);

enum NameMode { NAME_NEW, NAME_PASTED };

// Names `node`, what is below it and, with `withSiblings`, what follows it; each adds 1 to widgetCount. NAME_NEW makes
// default names, passing over numbers whose names are taken; NAME_PASTED moves names of another form's widgets to the
// form that now holds them. The records must be linked into the tree.
void defaultName(WidgetNode* node, NameMode mode, bool withSiblings = true);

// NAME_PASTED for records that are copies or come from another form; names that something else bears already, those of
// their entries too, are changed.
void nameCopies(const Records& records);

// The first name that would stand twice if `form` took the name `to` and its family followed it: widgets and entries
// whose names begin with the form's. Empty when the form may be renamed.
std::string clashOfFormName(const WidgetNode& form, std::string_view to);
// `name` with `to` in the place of `from`, where it begins with `from` and an underscore; else as it stands.
std::string familyName(const std::string& name, std::string_view from, std::string_view to);

// Forms from a file, linked behind those of the project: names that are taken get a number, in the forms' own code too.
// Tells what was changed, a line for each name; empty for nothing.
std::string numberTakenNames(WidgetNode* first);

// `caption` with every character that cannot stand in an identifier turned into an underscore.
std::string identifierFrom(std::string_view caption);
