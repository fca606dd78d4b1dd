// The name of a step, from what it changed.
#pragma once

#include "project/timeline.h"

std::string labelOfStep(const TimelineStep& step);
