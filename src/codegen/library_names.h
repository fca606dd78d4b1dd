// Names that a generated program gets from the bindings of the toolkit; written at configuration from the bindings
// themselves.
#pragma once

#include <span>
#include <string_view>

std::span<const std::string_view> libraryNames();      // of C and Fortran 90
std::span<const std::string_view> fixedLibraryNames(); // of Fortran 77
