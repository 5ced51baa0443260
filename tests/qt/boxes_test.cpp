// What the boxes say, give back and look like.
#include "qt/boxes/boxes.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

#include <gtest/gtest.h>

namespace quillor {

namespace {

class Boxes : public ::testing::Test {
  protected:
    Boxes() {
        style.font.setPixelSize(20);
        style.buttonFont.setPixelSize(22);
    }
    /// Once the next box is open; it is closed after that.
    void whenOpen(std::function<void(QDialog&)> look) {
        QTimer::singleShot(0, [this, look = std::move(look)] {
            auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            opened = box != nullptr && QTest::qWaitForWindowActive(box);
            if (opened)
                look(*box);
            if (opened && box->isVisible())
                box->close();
        });
    }
    static QPushButton* button(QDialog& box, const QString& caption) {
        for (QPushButton* each : box.findChildren<QPushButton*>())
            if (each->text() == caption)
                return each;
        return nullptr;
    }
    static QLabel* textOf(QDialog& box) {
        for (QLabel* each : box.findChildren<QLabel*>())
            if (!each->text().isEmpty())
                return each;
        return nullptr;
    }
    static void type(QDialog& box, Qt::Key key) { QTest::keyClick(box.focusWidget(), key); }

    BoxStyle style;
    bool opened = false;
};

TEST_F(Boxes, KeepTheirIconUnderASignOfTheFontsSize) {
    whenOpen([](QDialog& box) {
        const auto* sign = box.findChild<QLabel*>("picture");
        ASSERT_TRUE(sign);
        EXPECT_EQ(sign->pixmap().deviceIndependentSize(), QSizeF(60, 60));
    });
    showMessage(style, BoxSign::Critical, "text", "Accept");
    EXPECT_TRUE(opened);
}

TEST_F(Boxes, AreAlertsOnceTheySaySomething) {
    whenOpen([](QDialog& box) {
        const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&box);
        EXPECT_EQ(spoken->role(), QAccessible::AlertMessage);
        EXPECT_EQ(spoken->text(QAccessible::Name), "Quillor");
    });
    askQuestion(style, "text", "&Yes", "&No");
    EXPECT_TRUE(opened);
}

TEST_F(Boxes, NameTheButtonsOfAQuestion) {
    whenOpen([](QDialog& box) {
        EXPECT_EQ(box.windowTitle(), "Quillor");
        ASSERT_TRUE(button(box, "&Yes") && button(box, "&No"));
        EXPECT_TRUE(button(box, "&Yes")->isDefault());
        EXPECT_TRUE(button(box, "&Yes")->icon().isNull());
    });
    askQuestion(style, "text", "&Yes", "&No");
    EXPECT_TRUE(opened);
}

TEST_F(Boxes, TakeReturnForYesAndEscapeForNo) {
    whenOpen([](QDialog& box) { type(box, Qt::Key_Return); });
    EXPECT_TRUE(askQuestion(style, "text", "&Yes", "&No"));
    whenOpen([](QDialog& box) { type(box, Qt::Key_Escape); });
    EXPECT_FALSE(askQuestion(style, "text", "&Yes", "&No"));
}

TEST_F(Boxes, TakeReturnForNoWhereYesLosesSomething) {
    whenOpen([](QDialog& box) {
        EXPECT_TRUE(button(box, "&No")->isDefault());
        EXPECT_TRUE(button(box, "&No")->hasFocus());
        type(box, Qt::Key_Return);
    });
    EXPECT_FALSE(askQuestion(style, "text", "&Yes", "&No", true));
    EXPECT_TRUE(opened);
}

TEST_F(Boxes, StayBelowTheMiddleOfTheirWindowWhenTheyGrow) {
    QWidget window;
    window.setGeometry(0, 0, 700, 600);
    window.show();
    style.parent = &window;
    style.low = true;
    whenOpen([&](QDialog& box) {
        const int width = box.width();
        textOf(box)->setMinimumWidth(width + 100);
        ASSERT_TRUE(QTest::qWaitFor([&] { return box.width() > width; }));
        const QPoint middle = box.frameGeometry().center();
        EXPECT_NEAR(middle.x(), window.geometry().center().x(), 2);
        EXPECT_GT(middle.y(), window.geometry().center().y());
    });
    askQuestion(style, "Leave?", "&Yes", "&No");
    EXPECT_TRUE(opened);
}

/// Counts what happens to a box while it is on show.
class Watch : public QObject {
  public:
    explicit Watch(QEvent::Type type) : type_(type) { qApp->installEventFilter(this); }
    int count = 0;
    bool eventFilter(QObject* object, QEvent* event) override {
        const auto* box = qobject_cast<QDialog*>(object);
        count += box && box->isVisible() && event->type() == type_ ? 1 : 0;
        return false;
    }

  private:
    QEvent::Type type_;
};

TEST_F(Boxes, OpenWhereTheyStay) {
    QWidget window;
    window.setGeometry(0, 0, 700, 600);
    window.show();
    style.parent = &window;
    style.low = true;
    Watch moves(QEvent::Move);
    whenOpen([&](QDialog& box) {
        EXPECT_GT(box.frameGeometry().center().y(), window.geometry().center().y());
        EXPECT_EQ(moves.count, 0);
    });
    askQuestion(style, "Leave?", "&Yes", "&No");
    EXPECT_TRUE(opened);
}

TEST_F(Boxes, RestWhileTheyWaitForTheirAnswer) {
    Watch layouts(QEvent::LayoutRequest);
    whenOpen([&](QDialog&) {
        bool rests = false;
        for (int i = 0; i < 50 && !rests; ++i) {
            layouts.count = 0;
            QTest::qWait(100);
            rests = layouts.count == 0;
        }
        EXPECT_TRUE(rests);
    });
    askQuestion(style, "Leave?", "&Yes", "&No");
    EXPECT_TRUE(opened);
}

TEST_F(Boxes, LetReturnPressTheButtonThatHasTheFocus) {
    whenOpen([](QDialog& box) {
        type(box, Qt::Key_Tab);
        EXPECT_TRUE(button(box, "&No")->hasFocus());
        type(box, Qt::Key_Return);
    });
    EXPECT_FALSE(askQuestion(style, "text", "&Yes", "&No"));
    EXPECT_TRUE(opened);
}

TEST_F(Boxes, ShowTheFocusOnceItIsMovedByKey) {
    QImage before;
    QImage after;
    whenOpen([&](QDialog& box) {
        before = button(box, "&Yes")->grab().toImage();
        type(box, Qt::Key_Tab);
        type(box, Qt::Key_Tab);
        after = button(box, "&Yes")->grab().toImage();
    });
    askQuestion(style, "text", "&Yes", "&No");
    ASSERT_FALSE(before.isNull());
    EXPECT_NE(before, after);
    EXPECT_GT(before.pixelColor(before.rect().center().x(), 1).lightness(), 240);
    EXPECT_LT(after.pixelColor(after.rect().center().x(), 1).lightness(), 100);
}

TEST_F(Boxes, GiveBackWhatWasTypedUnlessCancelled) {
    const auto answer = [](Qt::Key last) {
        return [last](QDialog& box) {
            QTest::keyClicks(box.focusWidget(), "hola");
            type(box, last);
        };
    };
    whenOpen(answer(Qt::Key_Return));
    EXPECT_EQ(askText(style, "prompt", "Accept", "Cancel"), "hola");
    whenOpen(answer(Qt::Key_Escape));
    EXPECT_EQ(askText(style, "prompt", "Accept", "Cancel"), "");
}

TEST_F(Boxes, GiveBackWhatWasPastedInOneLine) {
    whenOpen([](QDialog& box) {
        box.findChild<QLineEdit*>()->setText("el\r\nsol\n");
        type(box, Qt::Key_Return);
    });
    EXPECT_EQ(askText(style, "prompt", "Accept", "Cancel"), "el sol");
}

TEST_F(Boxes, SpeakThePromptAsTheFieldsName) {
    whenOpen([](QDialog& box) {
        const auto* field = box.findChild<QLineEdit*>();
        ASSERT_TRUE(field);
        EXPECT_EQ(field->accessibleName(), "one\ntwo");
        EXPECT_GE(field->height(), 2 * 20);
    });
    askText(style, "one\r\ntwo", "Accept", "Cancel");
    EXPECT_TRUE(opened);
}

TEST_F(Boxes, ShowTheFocusOfTheirField) {
    whenOpen([](QDialog& box) {
        QLineEdit& field = *box.findChild<QLineEdit*>();
        const QColor accent = box.palette().color(QPalette::Highlight);
        EXPECT_EQ(field.grab().toImage().pixelColor(field.width() / 2, 1), accent);
    });
    askText(style, "prompt", "Accept", "Cancel");
    EXPECT_TRUE(opened);
}

TEST_F(Boxes, HaveTheSameMarginAtBothSidesOfTheirField) {
    whenOpen([](QDialog& box) {
        const auto* field = box.findChild<QLineEdit*>();
        ASSERT_TRUE(field);
        EXPECT_EQ(field->x(), box.width() - field->x() - field->width());
    });
    askText(style, "prompt", "Accept", "Cancel");
    EXPECT_TRUE(opened);
}

TEST_F(Boxes, GrowWithTheFont) {
    QSize small;
    QSize large;
    whenOpen([&](QDialog& box) { small = button(box, "&Yes")->size(); });
    askQuestion(style, "text", "&Yes", "&No");
    style.font.setPixelSize(40);
    style.buttonFont.setPixelSize(44);
    whenOpen([&](QDialog& box) { large = button(box, "&Yes")->size(); });
    askQuestion(style, "text", "&Yes", "&No");
    EXPECT_NEAR(large.width(), 2 * small.width(), 4);
    EXPECT_NEAR(large.height(), 2 * small.height(), 4);
}

TEST_F(Boxes, ShowAllOfALongTextInALargeFont) {
    style.font.setPixelSize(44);
    whenOpen([](QDialog& box) {
        const auto* text = textOf(box);
        ASSERT_TRUE(text);
        EXPECT_GE(text->height(), text->heightForWidth(text->width()));
        EXPECT_TRUE(box.rect().contains(text->geometry()));
    });
    const QString text = QString("word ").repeated(40);
    showMessage(style, BoxSign::Information, text, "Accept");
    EXPECT_TRUE(opened);
}

TEST_F(Boxes, ShowTheFocusFromTheStartWhenAskedTo) {
    style.ringShown = true;
    whenOpen([](QDialog& box) {
        const QImage yes = button(box, "&Yes")->grab().toImage();
        EXPECT_LT(yes.pixelColor(yes.rect().center().x(), 1).lightness(), 100);
    });
    askQuestion(style, "text", "&Yes", "&No");
    EXPECT_TRUE(opened);
}

}  // namespace

}  // namespace quillor
