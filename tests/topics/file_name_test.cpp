// Names of topic files: what goes, what is marked, what is left alone.
#include <gtest/gtest.h>

#include "core/topic_library.h"

namespace quillor {
namespace {

TEST(FileName, LosesSignsThatSomeSystemDoesNotTake) {
    EXPECT_EQ(withoutForbidden(u"a\\b/c:d*e?f\"g<h>i|j"), u"abcdefghij");
    EXPECT_EQ(withoutForbidden(u"a\tb\r\nc\x7F"), u"abc");
}

TEST(FileName, KeepsStopsBlanksAndAnyLetter) {
    EXPECT_EQ(withoutForbidden(u" EE.UU. ñ Ω. "), u" EE.UU. ñ Ω. ");
}

TEST(FileName, IsMarkedWhereItIsADevice) {
    EXPECT_EQ(besideDevices(u"CON"), u"CON_");
    EXPECT_EQ(besideDevices(u"nul"), u"nul_");
    EXPECT_EQ(besideDevices(u"Lpt9"), u"Lpt9_");
    EXPECT_EQ(besideDevices(u"COM²"), u"COM²_");
    EXPECT_EQ(besideDevices(u"CONIN$"), u"CONIN$_");
}

TEST(FileName, IsMarkedBehindTheDeviceItself) {
    EXPECT_EQ(besideDevices(u"CON.1.2"), u"CON_.1.2");
    EXPECT_EQ(besideDevices(u"PRN "), u"PRN_ ");
    EXPECT_EQ(besideDevices(u"AUX ."), u"AUX_ .");
}

TEST(FileName, IsLeftWhereItOnlyLooksLikeADevice) {
    for (const TextView name : {u"", u".", u"CONE", u"COM", u"COM10", u"COMX", u"A.CON", u"CON_"})
        EXPECT_EQ(besideDevices(name), name);
}

}  // namespace
}  // namespace quillor
