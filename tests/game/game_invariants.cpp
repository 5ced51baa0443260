// What is on show is compared with the record and with a model of the guesses.
#include "tests/game/game_invariants.h"

#include <algorithm>
#include <sstream>
#include <vector>

#include "core/files.h"
#include "core/numbers.h"
#include "core/settings_file.h"
#include "tests/support/game_test.h"
#include "toolkit/style.h"

namespace quillor::testing {

namespace {

bool isGuessKey(char16_t key) {
    return TextView(u"ABCDEFGHIJKLMNÑOPQRSTUVWXYZ1234567890").find(key) != TextView::npos;
}

// The eleven lines that the record means; the settings screen leaves the last empty.
std::string expectedFile(const GameSettings& settings, bool bySettingsScreen) {
    std::ostringstream lines;
    const auto line = [&lines](auto value) { lines << value << "\r\n"; };
    line(settings.giDesign);
    for (const bool flag : {settings.gbUseSounds, settings.gbUseWikipedia, settings.gbHiddenLetters,
                            settings.gbHardScore, settings.gbInfiniteScore, settings.gbAgainstClock,
                            settings.gbFirstLetter})
        line(flag);
    line(settings.giWay);
    line(settings.gbColorTransition);
    if (bySettingsScreen)
        lines << "\r\n";
    else
        line(settings.giSavedTopic);
    return lines.str();
}

Text clockText(int seconds) {
    const Text two = inDigits(seconds % 60);
    return inDigits(seconds / 60) + (two.size() < 2 ? u":0" : u":") + two;
}

}  // namespace

void GameInvariants::require(bool holds, const char* what) {
    if (!holds && problem_.empty())
        problem_ = what;
}

void GameInvariants::beforeEvent() {
    before_.state = program_.settings.giGameState;
    before_.gameOpen = program_.find(ScreenId::Game) != nullptr;
    before_.optionsOpen = program_.find(ScreenId::Settings) != nullptr;
    before_.lastPhrase = program_.settings.gsLastPhrase;
    before_.gamesPlayed = program_.settings.giGamesPlayed;
}

void GameInvariants::willGuess(char16_t key) {
    key = upperCase(key);
    if (before_.state != kPlaying || !isGuessKey(key))
        return;
    uncovered_.insert(key);
    ++guesses_;
}

void GameInvariants::afterEvent(bool mayHaveSaved) {
    const auto* game = dynamic_cast<const frmGame*>(program_.find(ScreenId::Game));
    newGame_ = false;
    if (game) {
        followGame(*game);
        checkScreen(*game);
    }
    checkScore();
    if (mayHaveSaved || newGame_)
        checkFile(game != nullptr);
}

// A new game starts from idle, or with another phrase.
void GameInvariants::followGame(const frmGame& game) {
    const GameSettings& settings = program_.settings;
    const bool over = settings.giGameState >= kDead;
    const bool wasIdle = !before_.gameOpen || before_.state == kIdle;
    newGame_ =
        settings.giGameState != kIdle && (wasIdle || settings.gsLastPhrase != before_.lastPhrase);
    if (newGame_)
        startModel();
    const bool ends = over && (newGame_ || before_.state == kPlaying);
    gamesEnded_ += ends ? 1 : 0;
    const int counted = settings.giGamesPlayed - before_.gamesPlayed;
    require(counted == (ends && !settings.gbClassicMode ? 1 : 0),
            "a game ended unseen, or more than once");
    if (over && !ends)
        require(ended(game) == ended_, "something happened after the end");
    ended_ = ended(game);
}

GameInvariants::Ended GameInvariants::ended(const frmGame& game) const {
    const GameSettings& settings = program_.settings;
    return {settings.giGameState,    settings.giStrikes,    settings.giGamesPlayed,
            settings.giLettersFound, settings.giScoreShown, game.round.secondsLeft};
}

void GameInvariants::startModel() {
    const GameSettings& settings = program_.settings;
    uncovered_.clear();
    if (!settings.gbFirstLetter || settings.gsPhrase.size() < 3)
        return;
    const Text letters = replaceAll(eFoldAccents(settings.gsShownPhrase), u" ", u"");
    for (const char16_t letter : letters) {
        if (std::count(letters.begin(), letters.end(), letter) > 1)
            continue;
        uncovered_.insert(letter);
        return;
    }
}

void GameInvariants::checkScreen(const frmGame& game) {
    const bool covered =
        program_.find(ScreenId::Word1) != nullptr || program_.find(ScreenId::Word2) != nullptr;
    require(game.enabled == !covered, "the game takes input under another screen, or never");
    switch (program_.settings.giGameState) {
        case kIdle:
            checkIdle(game);
            break;
        case kPlaying:
            checkPlaying(game);
            break;
        default:
            checkEnded(game);
            break;
    }
    checkStrikes(game);
    checkFigure(game);
    checkWays(game);
}

void GameInvariants::checkIdle(const frmGame& game) {
    for (int cell = 1; cell <= kBoardCells; ++cell)
        require(!isLetter(game, cell) && !isFound(game, cell), "a cell shows while idle");
    for (const Timer* timer :
         {&game.clock.tmrTime, &game.score.tmrUp, &game.score.tmrScore, &game.figure.tmrDead})
        require(!timer->enabled, "a game's timer runs while idle");
    require(program_.settings.giStrikes == 0, "mistakes while idle");
    require(game.round.secondsLeft == 0, "time is left while idle");
    require(game.imgBack(0).drawing == style::kIdleDrawing, "the idle page is empty");
    require(!game.keyboard.frmeBoard.visible && !game.board.lblCont.visible &&
                !game.clock.lblTime.visible && !game.webSearch.lblFinder(0).visible,
            "something of a game shows while idle");
}

void GameInvariants::checkPlaying(const frmGame& game) {
    checkBoard(game);
    checkKeys(game);
    require(game.menu.mWrite.enabled, "no answer can be written");
    require(!game.webSearch.lblFinder(0).visible, "the search is offered while playing");
    for (const Picture& page : game.imgBack)
        require(page.drawing.empty(), "a drawing behind the board or the keys");
    const bool clock = program_.settings.gbAgainstClock;
    require(game.clock.tmrTime.enabled == clock && game.clock.lblTime.visible == clock,
            "the clock does not run as wished");
    const int left = game.round.secondsLeft;
    require(clock == (left > 0), "playing without time");
    require(!clock || game.clock.lblTime.caption == clockText(left), "the clock shows wrong");
    require(
        !game.score.tmrUp.enabled && !game.score.tmrScore.enabled && !game.figure.tmrDead.enabled,
        "an ending's timer runs in the next game");
}

void GameInvariants::checkBoard(const frmGame& game) {
    const Text folded = eFoldAccents(program_.settings.gsShownPhrase);
    int found = 0;
    int letters = 0;
    for (int cell = 1; cell <= static_cast<int>(game.round.cells.size()); ++cell) {
        const char16_t letter = folded.at(static_cast<std::size_t>(cell - 1));
        require(isLetter(game, cell) == (letter != u' '), "an underline is wrong");
        require(isFound(game, cell) == uncovered_.contains(letter),
                "the visible cells do not match the guessed letters");
        found += isFound(game, cell) ? 1 : 0;
        letters += letter != u' ' ? 1 : 0;
    }
    require(game.board.lblCont.visible, "no counter");
    require(game.board.lblCont.caption == inDigits(found) + u"/" + inDigits(letters),
            "the counter does not count the found cells");
}

void GameInvariants::checkKeys(const frmGame& game) {
    for (int key = 1; key <= Keyboard::kLastGuessKey; ++key) {
        const Label& label = game.keyboard.lblKey(key);
        const bool used = uncovered_.contains(label.caption.front());
        require(label.visible == !used, "a used key is offered, or an unused one is not");
        require(game.keyboard.shpKey(key).visible == label.visible, "a key and its face differ");
    }
}

void GameInvariants::checkEnded(const frmGame& game) {
    const GameSettings& settings = program_.settings;
    for (int cell = 1; cell <= static_cast<int>(game.round.cells.size()); ++cell) {
        const char16_t letter = settings.gsCutPhrase.at(static_cast<std::size_t>(cell - 1));
        require(isFound(game, cell) == (letter != u' '), "not all is uncovered at the end");
        require(game.board.lblLetter(cell).caption == Text(1, letter),
                "a cell does not show its character at the end");
    }
    require(game.status.lblStatus.caption ==
                program_.lang(settings.giGameState == kDead ? texts::kDead : texts::kVictory),
            "the status does not tell the end");
    require(!game.clock.tmrTime.enabled && !game.clock.lblTime.visible,
            "the clock runs after the end");
    require(!game.board.lblCont.visible && !game.menu.mWrite.enabled,
            "the game goes on after the end");
    require(game.webSearch.lblFinder(0).visible && game.webSearch.lblFinder(1).visible,
            "no search is offered");
    require(settings.giGameState != kWon || settings.giStrikes < kMostMistakes,
            "won with six mistakes");
    require(!game.score.tmrScore.enabled ||
                (settings.giGameState == kWon ? settings.giScoreShown >= settings.giScore
                                              : settings.giScoreShown <= settings.giScore),
            "the score can never reach what it counts to");
}

void GameInvariants::checkStrikes(const frmGame& game) {
    std::set<Text> keys;
    int filled = 0;
    for (int box = 0; box < kMostMistakes; ++box) {
        const Text& caption = game.strikes.lblStrike(box).caption;
        if (caption.empty())
            continue;
        require(filled == box, "a strike box is left out");
        ++filled;
        require(keys.insert(caption).second, "one letter is two mistakes");
        require(program_.settings.giGameState != kPlaying || uncovered_.contains(caption.front()),
                "a mistake nobody made");
    }
    require(filled == program_.settings.giStrikes, "giStrikes does not count the strike boxes");
}

void GameInvariants::checkFigure(const frmGame& game) {
    const Figure& figure = game.figure;
    const int strikes = program_.settings.giStrikes;
    const bool dropped = figure.shpPrt0.caption == u"x x";
    const bool dead = program_.settings.giGameState == kDead;
    require(!dropped || dead, "dropped alive");
    require(!dead || dropped != figure.tmrDead.enabled, "dead without a drop, or with two");
    const std::vector<std::pair<const Control*, int>> pieces{
        {&figure.shpPrt0, 1}, {&figure.shpPrt1, 1}, {&figure.lnNeck, 1},  {&figure.shpPrt2, 2},
        {&figure.shpPrt3, 3}, {&figure.shpPrt4, 4}, {&figure.shpPrt5, 5}, {&figure.shpPrt6, 6}};
    for (const auto& [piece, mistake] : pieces)
        require(piece->visible == (dropped || strikes >= mistake),
                "the figure does not agree with the mistakes");
    require(figure.shpPrt7.top == (dropped ? 3720.0F : 3360.0F),
            "the platform is in no right place");
}

void GameInvariants::checkScore() {
    const GameSettings& settings = program_.settings;
    for (const int score : {settings.giScore, settings.giScoreShown, settings.giScoreKept})
        require(score >= 0 && score <= 32767, "a score out of its range");
}

void GameInvariants::checkWays(const frmGame& game) {
    int way = -1;
    int checked = 0;
    const auto look = [&](const MenuItem& item, int value) {
        checked += item.checked ? 1 : 0;
        way = item.checked ? value : way;
    };
    for (int i = 0; i <= 2; ++i)
        look(game.menu.mDoWay(i), i);
    for (int i = 0; i <= 1; ++i)
        look(game.menu.mDoWayAll(i), kAnyTopic + i);
    require(checked == 1, "not exactly one way is checked");
    require(way == program_.settings.giWay, "another way is checked than is gone");
    require(game.menu.mHide.checked == program_.settings.gbHiddenLetters &&
                game.menu.mHelpy.checked == program_.settings.gbFirstLetter &&
                game.menu.mWave.checked == program_.settings.gbUseSounds &&
                game.menu.mColor.checked == program_.settings.gbColorTransition,
            "a check of the menu is not its setting");
}

void GameInvariants::checkFile(bool gameIsOpen) {
    const std::string bytes = readFile(settingsFile(program_.folder), 1000).value();
    require(std::count(bytes.begin(), bytes.end(), '\n') == 11, "not eleven lines of settings");
    const bool written = bytes != file_ && !file_.empty();
    if (written || (newGame_ && gameIsOpen))
        require(bytes == expectedFile(program_.settings, before_.optionsOpen),
                "the settings file is not the record");
    file_ = bytes;
}

}  // namespace quillor::testing
