// The busy cursor for as long as something takes its time.
#pragma once

#include "project/host.h"

class BusyCursor {
public:
    BusyCursor() { host.busyCursor(true); }
    ~BusyCursor() { end(); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;

    void end() { // ahead of a box
        if (busy_) host.busyCursor(false);
        busy_ = false;
    }

private:
    bool busy_ = true;
};
