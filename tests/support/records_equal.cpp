#include "support/records_equal.h"

#include "project/code_stores.h"
#include "project/field_table.h"
#include "project/widget_types.h"

#include <string_view>

namespace {

void note(std::string& out, const WidgetNode& node, std::string_view field, const std::string& left,
          const std::string& right) {
    if (left != right) out += node.name + "." + std::string(field) + ": " + left + " against " + right + "\n";
}

void compareRecord(std::string& out, const WidgetNode& left, const WidgetNode& right) {
    for (const FieldRow& row : recordFields()) {
        if (row.kind == FIELD_TYPE)
            note(out, left, row.name, std::to_string(codeOf(left)), std::to_string(codeOf(right)));
        if (row.number) note(out, left, row.name, std::to_string(left.*row.number), std::to_string(right.*row.number));
        if (row.real) note(out, left, row.name, std::to_string(left.*row.real), std::to_string(right.*row.real));
        if (row.string) note(out, left, row.name, left.*row.string, right.*row.string);
    }
    for (const SlotRow& row : slotTable) note(out, left, row.name, left.slots[row.slot], right.slots[row.slot]);
}

} // namespace

std::string differences(const WidgetNode* left, const WidgetNode* right) {
    std::string out;
    for (; left && right; left = left->next, right = right->next) {
        compareRecord(out, *left, *right);
        out += differences(left->child, right->child);
    }
    if (left) out += left->name + " stands in the first alone\n";
    if (right) out += right->name + " stands in the second alone\n";
    return out;
}
