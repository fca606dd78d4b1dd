#include "codegen/check.h"

#include "project/tree.h"

std::string complaintLine(const Complaint& complaint) {
    std::string line;
    for (const std::string* part : {&complaint.form, &complaint.widget, &complaint.property}) {
        if (!part->empty()) line += *part + ": ";
    }
    return line + complaint.message;
}

std::vector<Complaint> checkProject() {
    std::vector<Complaint> complaints;
    for (const WidgetNode* node = project.forms; node != nullptr; node = walkList(node, project.forms)) {
        if (project.projectLanguage != 99 && node->name.size() > 63) {
            complaints.push_back({formOf(node, project.forms)->name, node->name, "Name",
                                  "a Fortran name has at most 63 characters; shorten it"});
        }
    }
    return complaints;
}
