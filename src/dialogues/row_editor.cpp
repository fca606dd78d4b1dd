#include "dialogues/row_editor.h"

namespace {

void insertRow(int list, std::size_t at, const ShownRow& row) {
    const int entry = static_cast<int>(at) + 1;
    if (row.icon.empty())
        owSetListEntry(list, OINSERT, owEntry, entry, owString, row.text.c_str(), 0);
    else
        owSetListEntry(list, OINSERT, owEntry, entry, owString, row.text.c_str(), owIcon,
                       owGetIconResource(row.icon.c_str()), 0);
}

} // namespace

void RowList::show(std::vector<ShownRow> rows, std::size_t current) {
    const int list = dialogue::widget(control);
    std::size_t same = 0, sameBehind = 0;
    const std::size_t fewest = std::min(rows.size(), shown.size());
    while (same < fewest && rows[same] == shown[same]) ++same;
    while (same + sameBehind < fewest && rows[rows.size() - 1 - sameBehind] == shown[shown.size() - 1 - sameBehind])
        ++sameBehind;
    for (std::size_t row = same; row + sameBehind < shown.size(); ++row)
        owSetListEntry(list, ODELETE, owEntry, static_cast<int>(same) + 1, 0);
    for (std::size_t row = same; row + sameBehind < rows.size(); ++row) insertRow(list, row, rows[row]);
    shown = std::move(rows);
    if (dialogue::choice(control) != static_cast<int>(current) + 1)
        dialogue::choose(control, static_cast<int>(current) + 1);
}
