// The enquiry of the configuration under the name that generated C programs declare themselves: a text with its length,
// as Fortran passes it.
#include "menu-c.h"

#include <string>

extern "C" int orbcfg_(int* status, char* directory, int length) {
    *status = oEnqConfigStatus(std::string(directory, length > 0 ? static_cast<std::size_t>(length) : 0).c_str());
    return 0;
}
