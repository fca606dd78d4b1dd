// What on the screen the monkey can aim at, by names that last.
#pragma once

#define QT_NO_KEYWORDS // the records have a field of the name slots

#include "project/records.h"

#include <QPoint>
#include <QWidget>

#include <string>
#include <vector>

// The records with a live widget, in the order of the tree.
std::vector<WidgetNode*> liveRecords();
// Windows on the screen, menus and lists that are up among them. The same in every run.
std::vector<QWidget*> windowsShown();
// All parts of a window that are shown, itself the first.
std::vector<QWidget*> partsShown(QWidget* window);

// "=Form1_Button1" for the widget of a record, else the way from a window down: "1/QTreeView.0/QWidget.1".
std::string nameOfPart(QWidget* part);
std::string nameOfRecord(const WidgetNode& node);
QWidget* partOf(const std::string& name); // null when it is not on the screen
