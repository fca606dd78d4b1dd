// The adopted widget.
#pragma once

namespace orba {

// Ends the adoption of a widget that goes.
void adoptedErased(int handle);

} // namespace orba
