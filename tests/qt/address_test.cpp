// Addresses for the browser: what is encoded, and what stays as it is.
#include "qt/system/address.h"

#include <gtest/gtest.h>

namespace quillor {

namespace {

TEST(Address, EncodesBlanksAndAccentsOfASearch) {
    EXPECT_EQ(encodedAddress(u"http://find.example/search?q=pingüino feliz"),
              "http://find.example/search?q=ping%C3%BCino%20feliz");
}

TEST(Address, KeepsSignsOfThePhraseThatMeanSomethingInAnAddress) {
    EXPECT_EQ(encodedAddress(u"http://find.example/search?q=a&b #1 50% c++ ¿qué?"),
              "http://find.example/search?q=a%26b%20%231%2050%25%20c%2B%2B%20%C2%BFqu%C3%A9%3F");
}

TEST(Address, EncodesAnArticlesName) {
    EXPECT_EQ(encodedAddress(u"http://es.wiki.example/wiki/torre eiffel"),
              "http://es.wiki.example/wiki/torre%20eiffel");
    EXPECT_EQ(encodedAddress(u"http://es.wiki.example/wiki/¿qué es #1?"),
              "http://es.wiki.example/wiki/%C2%BFqu%C3%A9%20es%20%231%3F");
}

TEST(Address, LeavesAPlainAddressAlone) {
    EXPECT_EQ(encodedAddress(u"https://maker.example/software"), "https://maker.example/software");
    EXPECT_EQ(encodedAddress(u"https://maker.example"), "https://maker.example");
}

}  // namespace

}  // namespace quillor
