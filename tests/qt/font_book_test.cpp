// Which fonts count as present, and what a face is drawn in.
#include "qt/paint/font_book.h"

#include <QFontInfo>
#include <QStringList>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "core/texts.h"
#include "tests/support/temp_folder.h"

namespace quillor {

namespace {

TEST(FontBook, CountsALoadedRoundedFontAsTheDisplayFont) {
    const FontBook fonts({QUILLOR_FONT_FOLDER});
    EXPECT_TRUE(fonts.present(texts::kDisplayFont));
    const QStringList rounded{"Quicksand", "Comfortaa", "Nunito"};  // each of some system
    EXPECT_TRUE(rounded.contains(fonts.font({Face::Display, 12, true}, 0.1).family()));
    EXPECT_EQ(fonts.font({Face::Comic, 12, true}, 0.1).family(), "Comic Neue");
}

TEST(FontBook, MissesTheDisplayFontWithoutFontFiles) {
    const FontBook fonts({"/no/such/folder"});
    EXPECT_FALSE(fonts.present(texts::kDisplayFont));
    EXPECT_FALSE(fonts.present(u"No Such Font At All"));
}

TEST(FontBook, WaitsForNoPipeThatIsNamedLikeAFont) {
    const testing::TempFolder folder;
    ASSERT_EQ(mkfifo((folder / "a.ttf").c_str(), 0600), 0);
    std::filesystem::create_symlink("a.ttf", folder / "b.ttf");
    const FontBook fonts({folder.path()});
    EXPECT_FALSE(fonts.present(texts::kDisplayFont));
}

TEST(FontBook, ScalesPointsWithTheWindow) {
    const FontBook fonts({});
    // 12 points are 240 twips.
    EXPECT_EQ(fonts.font({Face::Plain, 12, false}, 0.1).pixelSize(), 24);
    EXPECT_EQ(fonts.font({Face::Plain, 12, false}, 0.05).pixelSize(), 12);
    EXPECT_GE(fonts.font({Face::Plain, 1, false}, 0.0001).pixelSize(), 1);
}

}  // namespace

}  // namespace quillor
