// What list boxes and combo boxes have in common: entries that are added, selected, deleted and asked.
#pragma once

#include "toolkit/frame/core.h"

#include <QIcon>

namespace orba {

// One owSetListEntry.
struct ListEntry {
    int action = OADD;
    int entry = 0; // from 1; meanings of 0 and below by action
    QString text;
    QIcon icon;
};

struct ListStatus {
    int count, selected, current; // current from 1, 0 for none
};

void listEntry(Widget& widget, const ListEntry& entry); // of either kind

void listBoxEntry(Widget& widget, const ListEntry& entry);
QString listBoxText(Widget& widget,
                    int& entry); // the row at `entry`, below 1 the current one; `entry` becomes the row, 0 for none
ListStatus listBoxStatus(Widget& widget);

void comboBoxEntry(Widget& widget, const ListEntry& entry);
QString comboBoxText(Widget& widget, int& entry);
ListStatus comboBoxStatus(Widget& widget);

} // namespace orba
