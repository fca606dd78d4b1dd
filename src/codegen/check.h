// What the compiler or the linker would reject in a generated program, found before they run.
#pragma once

#include <string>
#include <vector>

struct Complaint {
    std::string form;     // empty for one that concerns the whole project
    std::string widget;   // name of the widget, menu entry or status bar
    std::string property; // label of the property sheet's row, or of the field
    std::string message;  // what is wrong and what to do
};

// Every complaint about the open project in its language, in walking order. Generation itself never
// refuses.
std::vector<Complaint> checkProject();

// "form: widget: property: message", the parts that are empty left out.
std::string complaintLine(const Complaint& complaint);
