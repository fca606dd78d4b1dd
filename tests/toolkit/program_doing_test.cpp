// What the program does and what its user does are told apart, however the two lie in one another.
#include "toolkit/views/program_doing.h"

#include <QTest>

#include <gtest/gtest.h>

using orba::ProgramDoing;

namespace {

TEST(ProgramDoing, MarksNestAndAStandInHoldsThemAll) {
    ProgramDoing doing;
    EXPECT_FALSE(doing);
    {
        const ProgramDoing::Mark outer(doing);
        { const ProgramDoing::Mark inner(doing); }
        EXPECT_TRUE(doing) << "the outer mark is still there";
        {
            const ProgramDoing::StandIn user(doing);
            EXPECT_FALSE(doing);
            const ProgramDoing::Mark within(doing);
            EXPECT_TRUE(doing);
        }
        EXPECT_TRUE(doing);
    }
    EXPECT_FALSE(doing);
}

TEST(ProgramDoing, AChangeSettlesUnlessTheUserComes) {
    ProgramDoing doing;
    EXPECT_FALSE(doing.settling());
    EXPECT_FALSE(doing.settled()) << "nothing has changed yet";
    doing.settle();
    EXPECT_TRUE(doing.settling());
    EXPECT_FALSE(doing.settled());
    doing.userCame();
    EXPECT_FALSE(doing.settling());
    doing.settle();
    EXPECT_TRUE(QTest::qWaitFor([&doing] { return doing.settled(); }, 5000));
    EXPECT_FALSE(doing.settling());
}

} // namespace
