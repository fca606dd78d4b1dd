// What every dialogue that edits rows has in common: the rows with the one that is edited, and the list that shows
// them.
#pragma once

#include "dialogues/frame.h"

#include <algorithm>
#include <string>
#include <vector>

// A button in the column beside the list.
constexpr Control rowButton(int id, const char* text, short y, char mnemonic, void (*pressed)()) {
    return {.field = Field::Button,
            .id = id,
            .text = text,
            .x = 242,
            .y = y,
            .width = 88,
            .mnemonic = mnemonic,
            .changed = pressed};
}

// There is always a row to edit.
template <class Row> struct Rows {
    std::vector<Row> rows = std::vector<Row>(1);
    std::size_t current = 0;

    Row& now() { return rows[current]; }
    const Row& now() const { return rows[current]; }
    bool atEnd() const { return current + 1 == rows.size(); }

    void start(std::vector<Row> all, const Row& blank) {
        rows = std::move(all);
        if (rows.empty()) rows.push_back(blank);
        current = 0;
    }
    // Rows count from 0; false for none.
    bool go(int row) {
        if (row < 0 || row >= static_cast<int>(rows.size())) return false;
        current = static_cast<std::size_t>(row);
        return true;
    }
    bool previous() { return go(static_cast<int>(current) - 1); }
    bool next() { return go(static_cast<int>(current) + 1); }
    void add(const Row& row) { // at the end, and edits it
        rows.push_back(row);
        current = rows.size() - 1;
    }
    void insert(const Row& row) {
        rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(current), row);
    }                                  // above, and edits it
    void insertAbove(const Row& row) { // and goes on editing the same one
        insert(row);
        ++current;
    }
    void remove(const Row& blank) {
        rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(current));
        if (rows.empty()) rows.push_back(blank);
        current = std::min(current, rows.size() - 1);
    }
    void clear(const Row& blank) {
        rows.assign(1, blank);
        current = 0;
    }
    // Takes a row elsewhere and edits it. False when it stays.
    bool move(std::size_t from, std::size_t to) {
        if (from >= rows.size() || to >= rows.size() || from == to) return false;
        const auto at = [&](std::size_t row) { return rows.begin() + static_cast<std::ptrdiff_t>(row); };
        if (from < to)
            std::rotate(at(from), at(from + 1), at(to + 1));
        else
            std::rotate(at(to), at(from), at(from + 1));
        current = to;
        return true;
    }
    bool up() { return current > 0 && move(current, current - 1); }
    bool down() { return move(current, current + 1); }
};

struct ShownRow {
    std::string text;
    std::string icon; // resource name, empty for none
    bool operator==(const ShownRow&) const = default;
};

// A list control and what it shows, so that only rows that have changed are written.
struct RowList {
    int control = 0; // id
    std::vector<ShownRow> shown;

    void open(int id) {
        control = id;
        shown.clear();
    }
    void show(std::vector<ShownRow> rows, std::size_t current);
};
