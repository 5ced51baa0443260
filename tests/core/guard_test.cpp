// The guard: errors end an operation, keep what it did, and are told of on wish.
#include "core/guard.h"

#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/environment.h"

namespace quillor {
namespace {

TEST(Guard, SaysThatTheBodyRanToItsEnd) {
    EXPECT_TRUE(quietly("eTest", [] {}));
}

TEST(Guard, KeepsWhatWasDoneBeforeTheError) {
    int done = 0;
    const bool ended = quietly("eTest", [&] {
        done = 1;
        throw std::runtime_error("broken");
    });
    EXPECT_FALSE(ended);
    EXPECT_EQ(done, 1);
}

TEST(Guard, SwallowsWhatIsNoException) {
    EXPECT_FALSE(quietly("eTest", [] { throw 1; }));
}

class GuardLog : public ::testing::Test {
  protected:
    void TearDown() override { clearVariable("QUILLOR_LOG"); }

    static std::string logOf(const char* error) {
        ::testing::internal::CaptureStderr();
        quietly("eTest", [&] { throw std::runtime_error(error); });
        return ::testing::internal::GetCapturedStderr();
    }
};

TEST_F(GuardLog, SaysNothingUnlessAsked) {
    clearVariable("QUILLOR_LOG");
    EXPECT_EQ(logOf("broken"), "");
}

TEST_F(GuardLog, WritesOneLineWithOperationAndErrorWhenAsked) {
    setVariable("QUILLOR_LOG", "1");
    EXPECT_EQ(logOf("broken"), "quillor: eTest ended: broken\n");
}

}  // namespace
}  // namespace quillor
