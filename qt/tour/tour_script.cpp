#include <array>
#include <string_view>
#include <system_error>

#include "core/files.h"
#include "core/settings_file.h"
#include "game/rules/round.h"
#include "qt/tour/tour.h"
#include "qt/windows/qt_values.h"

namespace quillor {

namespace fs = std::filesystem;

namespace {

/// What is typed on the way.
struct Words {
    const char* phrase;    // of the classic game: several Rs, and digits
    const char* restOfIt;  // its other letters
    const char* topic;     // of the classic game
    const char* answer;    // of the arcade games; has an L, but no kWrongLetters
    const char* letters;   // two of the answer's
    const char* ownTopic;
    std::array<const char*, 3> ownPhrases;
};
constexpr Words kSpanishWords{"ruta 66 al sur",
                              "arutls6",
                              "viajes",
                              "solo la luna",
                              "ln",
                              "frutas",
                              {"pera", "uva verde", "durazno"}};
constexpr Words kEnglishWords{"route 66 tour",
                              "oute6",
                              "journeys",
                              "a small cafe",
                              "lm",
                              "fruits",
                              {"pear", "green grape", "peach"}};
constexpr std::string_view kWrongLetters = "xyzwvk";
static_assert(kWrongLetters.size() >= kMostMistakes, "a game is to be lost");
constexpr Twips kHalfOfStart = 3860;  // where the start screen's line ends then
constexpr int kProgressEntry = 4;     // of the menu "View", from 1 on
constexpr int kDesignWithClock = 3;   // from this one on the games are against the clock

/// Adds steps to a list, one part of the tour at a time.
class Script {
  public:
    Script(Tour& tour, bool english)
        : tour_(tour), english_(english), words_(english ? kEnglishWords : kSpanishWords) {}

    std::vector<TourStep> write() {
        startAndMenu();
        classicGame();
        lostGame();
        wonGame();
        progress();
        hiddenLetters();
        inventor();
        settings();
        add(tour_.closeWindow());
        return std::move(steps_);
    }

  private:
    void add(TourStep step) { steps_.push_back(std::move(step)); }
    void picture(const QString& name) { add(tour_.picture(name)); }
    // Flashes of colour and moving points have come to their end.
    void pictureAtRest(const QString& name) {
        add(tour_.waitForRest({"tmrColor", "tmrDead", "tmrUp", "tmrScore"}));
        picture(name);
    }
    void key(int code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        add(tour_.key(code, modifiers));
    }
    void type(const QString& text) {
        for (const QChar character : text)
            add(tour_.type(character));
    }
    void click(const QString& id) {
        add(tour_.press(id));
        add(tour_.release(id));
    }
    void expect(const QString& id, const TextPair& pair) {
        const TextView text = english_ ? pair.english : pair.spanish;
        add(tour_.expect(id, toQt(text)));
    }

    void startAndMenu() {
        add(tour_.waitFor("frmStart"));
        add(tour_.waitForLine("lnGo", kHalfOfStart));
        picture("start");
        add(tour_.waitFor("frmMenu"));
        add(tour_.moveAway());
        picture("menu");
        add(tour_.moveTo("lblOption(5)"));
        picture("menu-hover");
        add(tour_.press("lblOption(5)"));
        picture("menu-pressed");
        add(tour_.moveTo("imgBack"));
        add(tour_.release("imgBack"));
    }

    void classicGame() {
        key(Qt::Key_C);
        add(tour_.waitFor("frmGame"));
        expect("lblMode", texts::kClassicMode);
        picture("game-idle");
        key(Qt::Key_Return);
        add(tour_.waitFor("frmWord1"));
        type(words_.phrase);
        key(Qt::Key_Return);
        type(words_.topic);
        picture("classic-entry");
        key(Qt::Key_Return);
        add(tour_.waitFor("frmGame"));
        pictureAtRest("game-with-first-letter");
        add(tour_.moveTo("lblKey(19)"));
        picture("key-hover");
        add(tour_.press("lblKey(19)"));
        picture("key-pressed");
        add(tour_.release("lblKey(19)"));
        click("lblKey(38)");
        pictureAtRest("game-digits");
        type(words_.restOfIt);
        expect("lblStatus", texts::kVictory);
        pictureAtRest("classic-victory");
        key(Qt::Key_F2);
        add(tour_.waitFor("frmMenu"));
    }

    void startArcadeGame() {
        key(Qt::Key_Return);
        add(tour_.waitFor("frmWord2"));
        key(Qt::Key_Up);
    }

    void lostGame() {
        key(Qt::Key_A);
        add(tour_.waitFor("frmGame"));
        // Without sounds there is time to see the points.
        key(Qt::Key_S, Qt::ControlModifier);
        startArcadeGame();
        picture("topic-selection");
        key(Qt::Key_Return);
        add(tour_.waitFor("frmGame"));
        const QString wrong = QString::fromLatin1(kWrongLetters.data(), kMostMistakes);
        type("l" + wrong.left(3));
        pictureAtRest("game-three-mistakes");
        key(Qt::Key_Menu);
        add(tour_.waitForBox());
        picture("game-menu");
        key(Qt::Key_Escape);
        add(tour_.waitFor("frmGame"));
        type(wrong.mid(3));
        expect("lblStatus", texts::kDead);
        add(tour_.waitUntilShown("lblPoints"));
        picture("dead");
        pictureAtRest("low-score");
    }

    void wonGame() {
        startArcadeGame();
        key(Qt::Key_Return);
        add(tour_.waitFor("frmGame"));
        type("!");
        add(tour_.waitForBox());
        picture("answer-box");
        type(words_.answer);
        key(Qt::Key_Return);
        expect("lblStatus", texts::kVictory);
        add(tour_.waitUntilShown("lblBonus"));
        picture("victory-with-bonus");
        pictureAtRest("victory");
    }

    void progress() {
        click("lblView");
        add(tour_.waitForBox());
        picture("view-menu");
        for (int entry = 0; entry < kProgressEntry; ++entry)
            key(Qt::Key_Down);
        key(Qt::Key_Return);
        add(tour_.waitFor("frmProgress"));
        picture("progress");
        key(Qt::Key_Escape);
        add(tour_.waitFor("frmGame"));
    }

    void hiddenLetters() {
        key(Qt::Key_O, Qt::ControlModifier);
        startArcadeGame();
        key(Qt::Key_Return);
        add(tour_.waitFor("frmGame"));
        type(words_.letters);
        pictureAtRest("game-hidden-letters");
        key(Qt::Key_O, Qt::ControlModifier);
        askToLeave();
        picture("leave-question");
        agreeToLeave();
    }

    void inventor() {
        key(Qt::Key_I);
        add(tour_.waitFor("frmInventor"));
        click("lblOpen");
        add(tour_.waitFor("frmOpen"));
        picture("open-topic");
        key(Qt::Key_Escape);
        add(tour_.waitFor("frmInventor"));
        click("txtTheme");
        type(words_.ownTopic);
        key(Qt::Key_Return);
        for (const char* phrase : words_.ownPhrases) {
            type(phrase);
            key(Qt::Key_Return);
        }
        picture("inventor");
        click("lblBack");
        add(tour_.waitFor("frmMenu"));
    }

    void settings() {
        for (const int design : {1, 2, 3, 4}) {
            const QString name = "design-" + QString::number(design);
            key(Qt::Key_S);
            add(tour_.waitFor("frmOptions"));
            key(Qt::Key_0 + design);
            if (design == kDesignWithClock)
                key(Qt::Key_C);
            picture("settings-" + name);
            key(Qt::Key_Backspace);
            add(tour_.waitFor("frmMenu"));
            gameOf(name);
        }
    }

    void gameOf(const QString& design) {
        key(Qt::Key_A);
        add(tour_.waitFor("frmGame"));
        startArcadeGame();
        key(Qt::Key_Return);
        add(tour_.waitFor("frmGame"));
        type(words_.letters);
        pictureAtRest("game-" + design);
        askToLeave();
        agreeToLeave();
    }

    void askToLeave() {
        key(Qt::Key_F2);
        add(tour_.waitForBox());
    }

    void agreeToLeave() {
        key(Qt::Key_Tab);  // from No to Yes
        key(Qt::Key_Return);
        add(tour_.waitFor("frmMenu"));
    }

    Tour& tour_;
    bool english_;
    const Words& words_;
    std::vector<TourStep> steps_;
};

}  // namespace

void prepareTourFolder(const fs::path& folder, const fs::path& model) {
    std::error_code ignored;
    if (!model.empty())
        for (const char* name : {"English.txt", "Color.txt", "Pic.jpg"})
            fs::copy_file(model / name, folder / name, ignored);
    const bool english = speaksEnglish(folder);
    const fs::path topics = folder / (english ? "Topics" : "Temas");
    fs::create_directories(topics);
    // One answer, however it is dealt: the two spellings differ by an accent.
    if (english)
        writeLines(topics / "CORNER.txt", {u"ROUND THE CORNER", u"a small cafe", u"a small café"});
    else
        writeLines(topics / "LUNA.txt",
                   {u"EN EL CIELO [español]", u"solo la luna", u"sólo la luna"});
}

std::vector<TourStep> tourScript(Tour& tour, bool english) {
    return Script(tour, english).write();
}

}  // namespace quillor
