// The first file of this room goes here.
