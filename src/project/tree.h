// Operations on the tree of forms and widgets. Walks are pre-order: a record, its child chain, then its next. None of
// them recurses, so a tree may be as deep as a file makes it.
#pragma once

#include "project/records.h"

#include <memory>
#include <string_view>
#include <vector>

// The tree owns the records that hang in it. Records that hang in none, one or a chain of them along next with what is
// below, are owned by whoever holds this.
void deleteList(WidgetNode* node); // node and all that follows it along next, with what is below; null is allowed
void deleteNode(WidgetNode* node); // node, out of the tree, and what is below it; null is allowed
struct ListDeleter {
    void operator()(WidgetNode* first) const { deleteList(first); }
};
using OwnedList = std::unique_ptr<WidgetNode, ListDeleter>;

// Adds a form with its main panel behind the last of `project.forms` and returns it.
WidgetNode* newForm();

// A deep copy of the default record of `type`, placed at x, y given in pixels. TYPE_MAIN_PANEL has none.
OwnedList createFromDefaults(WidgetType type, int x, int y);

// Deep copy with the whole child chain; with `withSiblings` also what follows along next. Handles are copied as they
// are.
OwnedList copyNode(const WidgetNode* node, bool withSiblings);

// The live parent of `node` among `list` and below, as parentHandle names it; `node` itself when list is node; null
// when there is none. In the project's tree it holds without live widgets too: the record that holds `node`, or for a
// tool bar or pane its form.
WidgetNode* parentOf(const WidgetNode* node, WidgetNode* list);
WidgetNode* formOf(const WidgetNode* node, WidgetNode* list);

// The record named `name`, or whose status bar is. With `skipCurrent` the current widget and what is below it are
// passed over, and a record is also found by the name of one of its menu or tree entries.
WidgetNode* findName(WidgetNode* list, std::string_view name, bool skipCurrent);
WidgetNode* findForm(WidgetNode* list, std::string_view name);
WidgetNode* findSelected(WidgetNode* list);
WidgetNode* activeForm(WidgetNode* list);
WidgetNode* findActiveOnInit(WidgetNode* list);
WidgetNode* findHandle(int handle); // of project.forms, by the index; null for none
WidgetNode* findRecord(int id);     // the same by the record's id
void clearSelected(WidgetNode* list);

// Records one beside the other: a selection, what is pasted or moved together.
using Records = std::vector<WidgetNode*>;
Records chainOf(WidgetNode* first);                              // `first` and all that follows it along next
bool liesWithin(const WidgetNode* node, const WidgetNode* root); // `node` is `root` or below it

// Every change of the tree goes through these, so that lookups by name, by handle and of the parent stay current.
// Every change of who owns a record, too: what is linked is given to the tree and returned, what is unlinked comes out.
WidgetNode* appendForm(OwnedList form);
void adoptForms(OwnedList first);      // the same with a whole chain
void moveFormToHead(WidgetNode* form); // of project.forms
// Puts a form right behind another, or ahead of them all for null.
WidgetNode* linkFormAfter(WidgetNode* previous, OwnedList form);
WidgetNode* linkChild(WidgetNode& parent, OwnedList node); // behind the last child
// Puts `node` right behind `previous` among the children of `parent`, or ahead of them all for null.
WidgetNode* linkChildAfter(WidgetNode& parent, WidgetNode* previous, OwnedList node);
OwnedList unlinkNode(WidgetNode* node);         // with its subtree
std::vector<OwnedList> parted(OwnedList chain); // each record of a chain for itself
void setHandle(WidgetNode& node, int handle, int parentHandle);
void renameNode(WidgetNode& node, std::string_view name);
int newRecordId(); // for a record that is read straight into the project

// The next record in pre-order within `root` and what is below it, null at the end. Starts from `root` itself.
WidgetNode* walkBelow(const WidgetNode* node, const WidgetNode* root);
// The same over `node`, what is below it and all that follows it along next: a whole list of forms, or of children.
WidgetNode* walkList(const WidgetNode* node, const WidgetNode* list);

// Deletes the tree and leaves the empty project that a new project and a load start from. Language, platform and grid
// stay. host.closeForms runs first when there are forms.
void resetProject();

// Brings a damaged project into a shape that can be shown and edited: records of no type and records that hang where
// they cannot go, every form has a main panel, and there is a form. True when something had to be done.
bool mendProject();
bool mendForms(WidgetNode* behind); // the same with the forms behind one; null for all. May leave none

// Counters whose widgets are all gone start at 1 again.
void recountCounters();

// Resource name of a path: its last component, blanks as underscores, cut at the first point.
std::string resourceName(std::string_view path);

// The field width of a type where the user has none to choose is the length of its text.
void deriveFieldWidth(WidgetNode& node);

// Tells the host the project's grid and takes the pixels of a cell from it. While gridMode is 0 the default grid is in
// force.
void applyGrid();
