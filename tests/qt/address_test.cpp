// Addresses for the browser: what is encoded, and what stays as it is.
#include <gtest/gtest.h>

#include "qt/qt_desktop.h"

namespace quillor {

namespace {

constexpr TextView kSearch = u"http://find.example/search?q=";
constexpr TextView kArticle = u"http://es.wiki.example/wiki/";

TEST(Address, EncodesBlanksAndAccentsOfASearch) {
    EXPECT_EQ(encodedAddress(kSearch, u"pingüino feliz"),
              "http://find.example/search?q=ping%C3%BCino%20feliz");
}

TEST(Address, KeepsSignsOfThePhraseThatMeanSomethingInAnAddress) {
    EXPECT_EQ(encodedAddress(kSearch, u"a&b #1 50% c++ ¿qué?"),
              "http://find.example/search?q=a%26b%20%231%2050%25%20c%2B%2B%20%C2%BFqu%C3%A9%3F");
}

TEST(Address, EncodesAnArticlesName) {
    EXPECT_EQ(encodedAddress(kArticle, u"torre eiffel"),
              "http://es.wiki.example/wiki/torre%20eiffel");
    EXPECT_EQ(encodedAddress(kArticle, u"¿qué es #1?"),
              "http://es.wiki.example/wiki/%C2%BFqu%C3%A9%20es%20%231%3F");
}

TEST(Address, TakesNoSignOfAnArticlesNameForAQuery) {
    EXPECT_EQ(encodedAddress(kArticle, u"what?a=b"), "http://es.wiki.example/wiki/what%3Fa%3Db");
    EXPECT_EQ(encodedAddress(kArticle, u"http://x?y=z"),
              "http://es.wiki.example/wiki/http://x%3Fy%3Dz");
}

TEST(Address, MayBeThePageAlone) {
    EXPECT_EQ(encodedAddress(kSearch, u""), "http://find.example/search?q=");
}

}  // namespace

}  // namespace quillor
