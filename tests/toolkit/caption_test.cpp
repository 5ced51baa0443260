// What a caption says, and which key presses it.
#include <gtest/gtest.h>

#include "toolkit/controls.h"

namespace quillor {
namespace {

TEST(Caption, NamesTheAccessKey) {
    EXPECT_EQ(accessKey(u"AJU&STES"), u'S');
    EXPECT_EQ(accessKey(u"&ábaco"), u'Á');
    EXPECT_EQ(accessKey(u"¿QUÉ ES ESO&?"), u'?');
    EXPECT_EQ(accessKey(u"SAVE && CREATE"), 0);
    EXPECT_EQ(accessKey(u"A && &B"), u'B');
    EXPECT_EQ(accessKey(u"END&"), 0);
}

TEST(Caption, IsReadWithoutItsMarks) {
    EXPECT_EQ(plainCaption(u"MODO &ARCADE"), u"MODO ARCADE");
    EXPECT_EQ(plainCaption(u"SAVE && CREATE"), u"SAVE & CREATE");
    EXPECT_EQ(plainCaption(u"END&"), u"END");
    EXPECT_EQ(plainCaption(u""), u"");
}

TEST(Caption, HasNoMarksWhereItIsData) {
    Label label;
    label.caption = u"R&B && 100%S";
    EXPECT_EQ(accessKey(label), u'B');
    EXPECT_EQ(plainCaption(label), u"RB & 100%S");
    label.literal = true;
    EXPECT_EQ(accessKey(label), 0);
    EXPECT_EQ(plainCaption(label), u"R&B && 100%S");
}

}  // namespace
}  // namespace quillor
