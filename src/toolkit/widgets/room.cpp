// The first file of this library goes here.
