// Compares trees of records by the table of their fields.
#pragma once

#include "project/records.h"

#include <string>

// One line for each difference of two chains of forms: record, field, both values. Live handles do not count.
std::string differences(const WidgetNode* left, const WidgetNode* right);
