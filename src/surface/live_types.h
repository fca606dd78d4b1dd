// How each type of widget comes to life: the creation call, the identifiers it answers to, and what follows the call.
#pragma once

#include "project/records.h"

struct LiveType {
    WidgetType type;
    int (*create)(const WidgetNode& node, int parent); // in the project's unit; returns the handle
    void (*finish)(WidgetNode& node);                  // what the creation call cannot carry; null for nothing
    int general;                                       // identifier of the general event and...
    int select;                                        // ...of the select event; 0 for none
    bool font;                                         // takes the font fields, see bearsFont

    static constexpr int BY_HANDLE = -1; // the event carries the handle, the select event handle + 50000
};

const LiveType* liveType(WidgetType type); // null for a type that is none or unknown

// A bordered box with the widget's name, for a type that the toolkit refused.
int createStandIn(const WidgetNode& node, int parent);

// The keyword by which the creation call tells a field, as a program's does; 0 for none.
int createdKeyword(WidgetType type, int WidgetNode::*field);

// A menu bar of a window from a chain, whose handles it writes; the handle of the bar, 0 for an empty chain.
int createLiveMenu(int window, std::vector<MenuEntryRec>& entries);
void buildLiveMenu(WidgetNode& form);                    // menu bar of a form
void eraseLiveMenu(WidgetNode& form);                    // before its entries change
void createLiveStatusBar(int window, StatusBarRec& bar); // writes its handle
void eraseLiveStatusBar(WidgetNode& form);               // the same
void keepClientSize(WidgetNode& form);     // a bar came or went: the form's own area is as large as before
void buildLiveStatusBar(WidgetNode& form); // status bar of a form
void buildLiveTree(WidgetNode& treeView);  // entries of a tree view
