// What labels look like, which fonts count as present, and what a face is drawn in.
#include "qt/paint/label_painter.h"

#include <QFontInfo>
#include <QImage>
#include <QStringList>
#include <algorithm>
#include <map>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "core/texts.h"
#include "qt/paint/font_book.h"
#include "qt/paint/symbol_painter.h"
#include "tests/support/temp_folder.h"
#include "toolkit/style.h"

namespace quillor {
namespace {

QImage blank(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

// The smallest rectangle that holds everything that is not white.
QRect inked(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != qRgb(255, 255, 255))
                ink |= QRect(x, y, 1, 1);
    return ink;
}

QRect inkOf(const LabelLook& look, const QRectF& rect) {
    QImage image = blank(400, 200);
    QPainter painter(&image);
    const FontBook fonts({});
    paintLabel(painter, rect, look, fonts, 0.1);
    painter.end();
    return inked(image);
}

LabelLook captioned(const Text& caption, float points) {
    LabelLook look;
    look.caption = caption;
    look.font.size = points;
    return look;
}

TEST(LabelPainter, DrawsEverySignOfACaptionThatIsData) {
    const QRectF space(100, 50, 200, 40);
    LabelLook look = captioned(u"R&B", 14);
    look.literal = true;
    EXPECT_EQ(inkOf(look, space).width(), inkOf(captioned(u"R&&B", 14), space).width());
    EXPECT_GT(inkOf(look, space).width(), inkOf(captioned(u"R&B", 14), space).width());
}

TEST(LabelPainter, ShrinksACaptionThatIsTooWide) {
    const QRectF space(100, 50, 120, 40);
    const QRect ink = inkOf(captioned(u"A caption much wider than its label", 14), space);
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_GE(ink.left(), 99);
    EXPECT_LE(ink.right(), 220);
}

TEST(LabelPainter, ShrinksWrappedTextThatIsTooHigh) {
    LabelLook look = captioned(u"Words that need several lines to be shown in here at all", 18);
    look.wordWrap = true;
    const QRect ink = inkOf(look, QRectF(100, 50, 120, 60));
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_GE(ink.top(), 49);
    EXPECT_LE(ink.bottom(), 111);
}

TEST(LabelPainter, FillsItsRectangleWhenOpaque) {
    LabelLook look;
    look.opaque = true;
    look.backColor = rgb(10, 20, 30);
    EXPECT_EQ(inkOf(look, QRectF(100, 50, 120, 40)), QRect(100, 50, 120, 40));
    look.opaque = false;
    EXPECT_TRUE(inkOf(look, QRectF(100, 50, 120, 40)).isEmpty());
}

// The darkest pixel of a text on its own ground, 0 to 255.
int darkest(Color text, Color ground) {
    LabelLook look = captioned(u"SCORE/ 454", 17);
    look.font.bold = true;
    look.textColor = text;
    look.backColor = ground;
    look.opaque = true;
    look.grounds = {ground, ground};
    QImage image = blank(400, 200);
    QPainter painter(&image);
    paintLabel(painter, QRectF(0, 0, 400, 200), look, FontBook({}), 0.1);
    painter.end();
    int darkest = 255;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            darkest = std::min(darkest, qGray(image.pixel(x, y)));
    return darkest;
}

TEST(LabelPainter, EdgesATextThatIsTooCloseToItsGround) {
    const Color red = rgb(250, 30, 30);
    const Color theme = rgb(20, 140, 220);
    EXPECT_LT(darkest(red, theme), qGray(20, 140, 220) / 2);
    EXPECT_LT(darkest(red, red), 10);
    EXPECT_LT(darkest(rgb(250, 250, 250), rgb(240, 210, 30)), qGray(240, 210, 30) / 2);
}

TEST(LabelPainter, LeavesATextThatCanBeReadWithoutAnEdge) {
    EXPECT_EQ(darkest(rgb(250, 250, 250), rgb(20, 140, 220)), qGray(20, 140, 220));
    EXPECT_EQ(darkest(rgb(250, 250, 250), rgb(250, 30, 30)), qGray(250, 30, 30));
}

TEST(SymbolPainter, DrawsADifferentPictureForEachSymbol) {
    using namespace symbols;
    const std::pair<Face, TextView> all[] = {
        {Face::Webdings, kTick},           {Face::Webdings, kLoudspeaker},
        {Face::Webdings, kLoudspeakerOff}, {Face::Webdings, kCross},
        {Face::Webdings, kQuestion},       {Face::Webdings, kTriangleLeft},
        {Face::Webdings, kTriangleRight},  {Face::Wingdings, kArrowLeft},
        {Face::Wingdings, kPlus},          {Face::Wingdings, kDelete}};
    std::map<QByteArray, Text> pictures;
    for (const auto& [face, letter] : all) {
        QImage image = blank(40, 40);
        QPainter painter(&image);
        drawSymbol(painter, QRectF(4, 4, 32, 32), face, letter[0], Qt::black);
        painter.end();
        EXPECT_TRUE(QRect(2, 2, 36, 36).contains(inked(image))) << static_cast<int>(letter[0]);
        EXPECT_FALSE(inked(image).isEmpty()) << static_cast<int>(letter[0]);
        pictures[QByteArray(reinterpret_cast<const char*>(image.bits()), image.sizeInBytes())] =
            letter;
    }
    EXPECT_EQ(pictures.size(), std::size(all));
}

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
