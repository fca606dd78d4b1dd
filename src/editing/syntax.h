// Attributes and keywords of the code's colours, kept in files whose format is the toolkit's.
#pragma once

// Loads the user's set, else the delivered one, each from the current folder or from where it belongs. False when there
// is neither; the code is then shown without colours.
bool loadSyntaxAttributes();
