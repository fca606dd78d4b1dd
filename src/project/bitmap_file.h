// What kind of bitmap a file holds.
#pragma once

#include <string>

enum class Bitmap { Fine, Missing, NotBitmap, Compressed, WrongDepth, TooLarge };

// Of the first rule that a file breaks as the picture of an icon: at most 32 by 32 pixels of 8 bits, not compressed.
// For a background only Missing and NotBitmap count.
Bitmap checkBitmap(const std::string& path);
