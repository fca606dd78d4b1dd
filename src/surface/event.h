// The event that is being handled: the action loop fills it before it runs the command and before designEvent.
#pragma once

#include "menu-c.h"

inline OACTION action = {};
