// The two blocks of the colour table: the project's colours grow upward from 20, those of the widget defaults downward
// from 255. The table itself is the host's.
#pragma once

inline constexpr int FIXED_COLOURS = 20;
inline constexpr int COLOURS = 256;

struct ColourMarks {
    int colourTop = FIXED_COLOURS - 1;  // last index of the project's colours
    int defaultsColourBottom = COLOURS; // first index of the colours of the defaults
};
extern ColourMarks colourMarks;

// Index of a colour, red, green and blue each 0 to 1: the first equal one of its block, else a new one. When the table
// is full the nearest of the block.
int projectColourIndex(float red, float green, float blue);
int defaultsColourIndex(float red, float green, float blue);

// Moves the colours of all default records into the project's block.
void mapDefaultColours();
