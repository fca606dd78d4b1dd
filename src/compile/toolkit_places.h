// Where the toolkit that generated programs are compiled against is found.
#pragma once

#include <string>
#include <vector>

// Empty fields were not found; the commands then leave the switch out and the compiler says what it misses.
struct ToolkitPlaces {
    std::vector<std::string> includeDirs;   // of menu-c.h and whatever it includes
    std::vector<std::string> moduleDirs;    // of menu_f90.mod and menu_f77.mod
    std::vector<std::string> modulesDouble; // of the modules for double precision; empty when there are none
    std::vector<std::string> libraryDirs;   // of liborbawidg.so, the Fortran archive; also put into the run path
    bool fortranDouble = false;             // liborbawidg_fd.a is there beside liborbawidg_f.a
};

// Looks, in this order, at
//   1. the file "wdesign.places" beside the running program, which a build tree carries: lines "include=DIR",
//   "module=DIR",
//      "module_dbl=DIR", "library=DIR", each as often as needed, in the order of the search; passed over while its
//      library is not built;
//   2. an installation below `installDir`: include/orbawidg with menu-c.h; the modules there or in
//      lib*/orbawidg/finclude, those for double precision in the folder dbl below; the library in lib, lib64 or
//      lib/<multiarch name>.
ToolkitPlaces toolkitPlaces(const std::string& installDir);

// The second of them alone.
ToolkitPlaces toolkitBelow(const std::string& installDir);
