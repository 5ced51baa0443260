// What the screens look like as painted, whole or label by label.
#include <QImage>
#include <QPainter>
#include <cmath>

#include <gtest/gtest.h>

#include "qt/paint/label_painter.h"
#include "qt/windows/page_window.h"
#include "tests/support/game_test.h"
#include "topics/inventor.h"
#include "ui/colors.h"

namespace quillor::testing {

namespace {

const std::vector<double> kScales{1.0 / 30, 0.061, 0.0758, 0.121};

class ScreensLook : public GameTest {
  protected:
    FontBook fonts{{QUILLOR_FONT_FOLDER}};

    // The labels of a screen that have something to read.
    static std::vector<const Label*> captions(const Screen& screen) {
        std::vector<const Label*> found;
        for (const ControlRef& ref : screen.controls())
            if (auto* const* label = std::get_if<Label*>(&ref))
                if ((*label)->role != LabelRole::Notification && !(*label)->caption.empty())
                    found.push_back(*label);
        return found;
    }

    // How many pixels of a caption lie outside its label.
    int cutPixels(const Label& label, double scale) {
        constexpr int kMargin = 60;
        const QSize size(static_cast<int>(std::lround(label.width * scale)),
                         static_cast<int>(std::lround(label.height * scale)));
        const QRect place({kMargin, kMargin}, size);
        QImage image(size + QSize(2 * kMargin, 2 * kMargin), QImage::Format_RGB32);
        image.fill(Qt::white);
        LabelLook look = lookOf(label);
        look.opaque = false;
        look.textColor = 0;
        QPainter painter(&image);
        paintLabel(painter, QRectF(place), look, fonts, scale);
        painter.end();
        int cut = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (!place.contains(x, y) && qGray(image.pixel(x, y)) < 200)
                    ++cut;
        return cut;
    }
    void expectNothingCut(const Screen& screen) {
        for (const Label* label : captions(screen))
            for (const double scale : kScales)
                EXPECT_EQ(cutPixels(*label, scale), 0)
                    << screen.name << " " << label->id << " at " << scale;
    }
};

TEST_F(ScreensLook, CutsNoCaption) {
    english = false;
    run.show(ScreenId::Start);
    expectNothingCut(player.screen());
    desktop.advance(2000);
    expectNothingCut(player.screen());
    for (const ScreenId id : {ScreenId::Settings, ScreenId::Inventor})
        expectNothingCut(run.show(id));
}

TEST_F(ScreensLook, ShowsTheWholeOfEveryLetterOnTheBoard) {
    play(u"\u00c1\u00c9\u00cd\u00d3\u00da\u00d1\u00dcQJ");
    expectNothingCut(game());
    EXPECT_EQ(game().board.lblLetter(1).caption, u"\u00c1");
}

// The colours of a button's face and of the strongest ink on it.
std::pair<QColor, int> buttonLook(Page& page, const Control& control) {
    QWidget& widget = page.view(control)->widget();
    const QRect area(widget.mapTo(&page, QPoint()), widget.size());
    const QImage image = page.grab(area).toImage();
    int light = 0;
    for (int x = 0; x < image.width(); ++x)
        for (int y = 0; y < image.height(); ++y)
            light = std::max(light, qGray(image.pixel(x, y)));
    return {image.pixelColor(image.width() / 2, 3), light};
}

TEST_F(ScreensLook, GreysAButtonThatCannotBePressed) {
    start();
    auto& inventor = dynamic_cast<frmInventor&>(run.show(ScreenId::Inventor));
    Shell shell(fonts);
    shell.event([&] { shell.show(inventor); });
    Page& page = *shell.find(&inventor);
    const auto [grey, brightest] = buttonLook(page, inventor.lblSave(1));
    EXPECT_LT(grey.hslSaturation(), 10);
    EXPECT_LT(brightest, 230);  // no white words
    shell.event([&] {
        inventor.lstTopics.items.emplace_back(u"PHRASE");
        inventor.txtTheme.setText(u"topic");
    });
    const auto [red, white] = buttonLook(page, inventor.lblSave(1));
    EXPECT_GT(red.hslSaturation(), 200);
    EXPECT_GT(white, 245);
}

TEST_F(ScreensLook, KeepsItsColumns) {
    openArcade();
    const auto& settingsScreen = dynamic_cast<frmOptions&>(run.show(ScreenId::Settings));
    EXPECT_EQ(settingsScreen.shpBack.left, settingsScreen.shpCheck(1).left);
    EXPECT_EQ(settingsScreen.shpBack.right(), settingsScreen.shpCheck(1).right());
    const auto& topics = dynamic_cast<frmWord2&>(run.show(ScreenId::Word2));
    EXPECT_EQ(topics.shpChng(1).right(), topics.lstTopics.right());
}

// A window with one filled letter and the line under it.
class OneTile : public Screen {
  public:
    OneTile() : Screen("frmTile") {
        width = 1200;
        height = 1200;
        GameSettings settings;
        letter.place(300, 300, 495, 495);
        line.span(300, 780, 780, 780);
        paintLetter(letter, line, 2, settings);
        add(line);
        add(letter);
    }
    Label letter;
    Line line;
    void takePaper(const ImageRef&) override {}

  protected:
    void onLoad() override {}
    void onCloseRequest() override {}
};

TEST_F(ScreensLook, KeepTheLineUnderAFilledLetterWithinIt) {
    OneTile tile;
    Shell shell(fonts);
    shell.event([&] { shell.show(tile); });
    Page& page = *shell.find(&tile);
    for (int side = 60; side < 400; side += 7) {
        page.pageWindow().resize(side, side);
        const QImage image = page.grab().toImage();
        QRect black;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qGray(image.pixel(x, y)) < 150)
                    black |= QRect(x, y, 1, 1);
        EXPECT_EQ(black, page.view(tile.letter)->widget().geometry()) << page.width();
    }
}

}  // namespace

}  // namespace quillor::testing
