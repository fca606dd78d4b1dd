// Tells what the user does from what the program does.
#pragma once

#include <QElapsedTimer>

namespace orba {

// Whether what Qt tells now is the program's doing. Whatever reports what its user does has one, and is silent while it
// holds.
class ProgramDoing {
public:
    // While one lives what happens is the program's doing. Marks nest.
    class Mark {
    public:
        explicit Mark(ProgramDoing& doing) : doing_(doing) { ++doing_.depth_; }
        ~Mark() { --doing_.depth_; }
        Mark(const Mark&) = delete;
        Mark& operator=(const Mark&) = delete;

    private:
        ProgramDoing& doing_;
    };

    // While one lives the program stands in for its user: what happens is told as the user's doing.
    class StandIn {
    public:
        explicit StandIn(ProgramDoing& doing) : doing_(doing), depth_(doing.depth_) { doing_.depth_ = 0; }
        ~StandIn() { doing_.depth_ = depth_; }
        StandIn(const StandIn&) = delete;
        StandIn& operator=(const StandIn&) = delete;

    private:
        ProgramDoing& doing_;
        int depth_;
    };

    explicit operator bool() const { return depth_ > 0; }
    void forGood() { ++depth_; } // the view goes

    // The window manager answers a change by the program later: for a while that is the program's doing as well.
    void settle() { sinceChange_.start(); }
    bool settling() const { return sinceChange_.isValid() && sinceChange_.elapsed() < SETTLING_MILLISECONDS; }
    bool settled() const { return sinceChange_.isValid() && !settling(); } // after a change
    void userCame() { sinceChange_.invalidate(); }

private:
    static constexpr int SETTLING_MILLISECONDS = 500;

    int depth_ = 0;
    QElapsedTimer sinceChange_;
};

} // namespace orba
