#include "surface/state.h"

DesignState design;
