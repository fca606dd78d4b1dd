// The first half of the check: identifiers.
#pragma once

#include "codegen/check.h"

// Complains about each name of the project's declarations that the compiler would reject, in walking order.
void checkNames(std::vector<Complaint>& complaints);
