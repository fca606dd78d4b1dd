// Attributes and keywords of the code's colours, kept in files whose format is the toolkit's.
#pragma once

// Loads the user's set, else the delivered one, each from the current folder or from where it belongs; a damaged file
// gives way to the next, and a box says so. False when there is none, which a box says too: the caller then switches
// the colours off.
bool loadSyntaxAttributes();
