// Operations on the tree of forms and widgets. Walks are pre-order: a record, its child chain, then its next.
#pragma once

#include "project/records.h"

#include <string_view>

// Adds a form with its main panel behind the last of `project.forms` and returns it.
WidgetNode* newForm();

// A deep copy of the default record of `type`, placed at x, y given in pixels. TYPE_MAIN_PANEL has none.
// The caller owns it until it is linked into the tree.
WidgetNode* createFromDefaults(int type, int x, int y);

// Deep copy with the whole child chain; with `withSiblings` also what follows along next. Handles are copied as they are.
WidgetNode* copyNode(const WidgetNode* node, bool withSiblings);

// The record in `list` or below whose live handle is node's parentHandle; `node` itself when list is node; else null.
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
void clearSelected(WidgetNode* list);

void deleteList(WidgetNode* node); // node and all that follows it along next, with what is below
void deleteNode(WidgetNode* node); // node and what is below it; node->next is left alone
void freeRecord(WidgetNode* node); // one record and what it owns

// Every change of the tree goes through these, so that lookups by name, by handle and of the parent stay current.
void appendForm(WidgetNode* form);
void linkChild(WidgetNode& parent, WidgetNode* node);     // behind the last child
void unlinkNode(WidgetNode* node);                        // out of the tree, with its subtree; the caller owns it
void setHandle(WidgetNode& node, int handle, int parentHandle);
void renameNode(WidgetNode& node, std::string_view name);

void resetProject();
