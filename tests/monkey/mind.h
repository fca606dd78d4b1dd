// Chooses the next act from what is on the screen. The same seed on the same screen chooses the same.
#pragma once

#include "event.h"

#include <cstdint>

// The act number `index` of the run `seed`.
Event nextEvent(std::uint64_t seed, int index);
