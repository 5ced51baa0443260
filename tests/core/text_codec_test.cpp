// Bytes outside, UTF-16 inside.
#include "core/text_codec.h"

#include <gtest/gtest.h>

#include "core/random.h"

namespace quillor {
namespace {

TEST(Decoding, ReadsWindows1252) {
    EXPECT_EQ(decodeText("jazm\xEDn \xD1 \x80 \x9F"), u"jazmín Ñ € Ÿ");
}

TEST(Decoding, KeepsBytesThatWindows1252DoesNotUse) {
    EXPECT_EQ(decodeText("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D");
}

TEST(Decoding, TakesEveryByteAsOneCharacter) {
    std::string bytes;
    for (int i = 0; i < 256; ++i)
        bytes.push_back(static_cast<char>(i));
    EXPECT_EQ(decodeText(bytes).size(), 256U);
    EXPECT_EQ(encodeText(decodeText(bytes)), bytes);
}

TEST(Decoding, ReadsUtf8WithoutItsMarkWhenItIsValid) {
    EXPECT_EQ(decodeText("jazm\xC3\xADn"), u"jazmín");
}

TEST(Decoding, DropsTheMarkOfUtf8) {
    EXPECT_EQ(decodeText("\xEF\xBB\xBFjazm\xC3\xADn"), u"jazmín");
    EXPECT_EQ(decodeText("\xEF\xBB\xBFplain"), u"plain");
    EXPECT_EQ(decodeText("\xEF\xBB\xBF"), u"");
}

TEST(Decoding, ReplacesWrongBytesBehindTheMarkOnly) {
    EXPECT_EQ(decodeText("\xEF\xBB\xBF"
                         "a\xFFz"),
              u"a\uFFFDz");
    EXPECT_EQ(decodeText("a\xC3\xADz\xFF"), u"aÃ\u00ADzÿ");
}

TEST(Decoding, TakesOverlongAndCutUtf8AsWindows1252) {
    EXPECT_EQ(decodeText("\xC0\xAF"), u"À¯");
    EXPECT_EQ(decodeText("\xE0\x80\xAF").size(), 3U);
    EXPECT_EQ(decodeText("\xED\xA0\x80").size(), 3U);  // a surrogate
    EXPECT_EQ(decodeText("\xF4\x90\x80\x80").size(), 4U);
    EXPECT_EQ(decodeText("ma\xC3"), u"maÃ");
}

TEST(Decoding, MakesPairsOfCharactersBeyondSixteenBits) {
    EXPECT_EQ(decodeText("\xF0\x9F\x98\x80"), u"\U0001F600");
}

TEST(Decoding, KeepsZeroBytes) {
    EXPECT_EQ(decodeText(std::string_view("a\0b", 3)), Text(u"a\0b", 3));
    EXPECT_EQ(decodeText(""), u"");
}

TEST(Encoding, WritesWindows1252) {
    EXPECT_EQ(encodeText(u"FRASES [español]\r\n"), "FRASES [espa\xF1ol]\r\n");
    EXPECT_EQ(encodeText(u"€"), "\x80");
}

TEST(Encoding, WritesMarkedUtf8WhenACharacterNeedsIt) {
    EXPECT_EQ(encodeText(u"Ω ñ"), "\xEF\xBB\xBF\xCE\xA9 \xC3\xB1");
}

TEST(Encoding, WritesMarkedUtf8WhenBytesWouldBeMistakenForIt) {
    EXPECT_EQ(decodeText(encodeText(u"Ã©")), u"Ã©");
    EXPECT_EQ(decodeText(encodeText(u"ï»¿x")), u"ï»¿x");
    EXPECT_EQ(decodeText(encodeText(u"\uFEFFx")), u"\uFEFFx");
}

TEST(Encoding, ReplacesLoneSurrogates) {
    EXPECT_EQ(toUtf8(Text{0xD83D}), "\xEF\xBF\xBD");
    EXPECT_EQ(toUtf8(Text{0xDE00, u'a'}),
              "\xEF\xBF\xBD"
              "a");
    EXPECT_EQ(toUtf8(u"\U0001F600"), "\xF0\x9F\x98\x80");
}

TEST(Encoding, IsReadBackAsItWas) {
    Random random(11);
    for (int round = 0; round < 2000; ++round) {
        const int characters = round % 2 * 0xD6FF + 0xFF;  // Latin alone, then nearly all
        Text text;
        for (int i = 0; i < 6; ++i)
            text.push_back(static_cast<char16_t>(1 + random.next() * characters));
        ASSERT_EQ(decodeText(encodeText(text)), text) << round;
    }
}

TEST(Decoding, TakesAnyBytes) {
    Random random(12);
    for (int round = 0; round < 5000; ++round) {
        std::string bytes;
        for (int i = 0; i < 12; ++i)
            bytes.push_back(static_cast<char>(static_cast<int>(random.next() * 256)));
        ASSERT_LE(decodeText(bytes).size(), bytes.size());
        ASSERT_LE(fromUtf8(bytes).size(), bytes.size());
    }
}

}  // namespace
}  // namespace quillor
