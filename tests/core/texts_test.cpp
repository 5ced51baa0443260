// What all texts of the program have in common.
#include "core/texts.h"

#include <set>
#include <string>

#include <gtest/gtest.h>

#include "core/text_codec.h"
#include "core/text_rules.h"

namespace quillor {
namespace {

using texts::kMenuOptions;
using texts::kSettingsOptions;

bool betweenBlanks(TextView text) {
    return text.size() > 2 && text.front() == u' ' && text.back() == u' ' &&
           trimmed(text).size() == text.size() - 2;
}

// The letters behind a single "&".
std::string accessKeys(TextView caption) {
    std::string keys;
    for (std::size_t i = 0; i + 1 < caption.size(); ++i)
        if (caption[i] == u'&' && caption[++i] != u'&')
            keys += static_cast<char>(caption[i]);
    return keys;
}

template <typename Options>
std::pair<std::string, std::string> keysOf(const Options& options) {
    std::pair<std::string, std::string> keys;
    for (const auto& option : options) {
        keys.first += accessKeys(option.caption.spanish);
        keys.second += accessKeys(option.caption.english);
    }
    return keys;
}

TEST(Language, ChoosesTheTextWhenItIsShown) {
    GameSettings settings;
    EXPECT_EQ(eLang(settings, u"sí", u"yes"), u"sí");
    settings.gbEnglish = true;
    EXPECT_EQ(eLang(settings, u"sí", u"yes"), u"yes");
    EXPECT_EQ(eLang(settings, texts::kPhraseCut),
              u"Up to the top! The phrase has been very long and was cut.");
}

// "Una letra ya usada", but "un número ya usado".
TEST(Texts, SpeakOfAKeyThatMayBeALetterOrANumber) {
    for (const TextPair& text :
         {texts::kSpokenFound, texts::kSpokenRepeated, texts::kSpokenMistake}) {
        EXPECT_EQ(text.spanish.find(u"ada"), TextView::npos) << toUtf8(text.spanish);
        EXPECT_EQ(text.spanish.find(u"ado"), TextView::npos) << toUtf8(text.spanish);
    }
}

TEST(Texts, TipsStandBetweenBlanks) {
    for (const TextPair& tip :
         {texts::kCloseTip,       texts::kModeTip,   texts::kScoreTip,        texts::kFinderTip,
          texts::kStatusTip,      texts::kTopicTip,  texts::kTimeTip,         texts::kPlayTip,
          texts::kNumbersTip,     texts::kWriteTip,  texts::kSoundsOnTip,     texts::kSoundsOffTip,
          texts::kBackTip,        texts::kPhraseTip, texts::kInventorHelpTip, texts::kCounterTip,
          texts::kPhraseToAddTip, texts::kAddTip,    texts::kDeleteTip,       texts::kPhrasesTip}) {
        EXPECT_TRUE(betweenBlanks(tip.spanish)) << toUtf8(tip.spanish);
        EXPECT_TRUE(betweenBlanks(tip.english)) << toUtf8(tip.english);
    }
}

TEST(Texts, TipsOfRowsStandBetweenBlanks) {
    std::vector<TextPair> tips(texts::kMistakeTips.begin(), texts::kMistakeTips.end());
    tips.insert(tips.end(), texts::kDesignTips.begin(), texts::kDesignTips.end());
    for (const auto& option : kMenuOptions)
        tips.push_back(option.tip);
    for (const auto& option : kSettingsOptions)
        tips.push_back(option.tip);
    for (const TextPair& tip : tips) {
        EXPECT_TRUE(betweenBlanks(tip.spanish)) << toUtf8(tip.spanish);
        EXPECT_TRUE(betweenBlanks(tip.english)) << toUtf8(tip.english);
    }
}

TEST(Texts, OneEnglishTipHasNoBlanksAroundIt) {
    EXPECT_TRUE(betweenBlanks(texts::kTopicsTip.spanish));
    EXPECT_EQ(texts::kTopicsTip.english, u"Topics loaded into the game");
}

TEST(Texts, MenuOptionsHaveTheAccessKeysThatTheScreenTakes) {
    EXPECT_EQ(keysOf(kMenuOptions).first, "ACIS");
    EXPECT_EQ(keysOf(kMenuOptions).second, "ACIS");
}

TEST(Texts, SettingsHaveTheAccessKeysThatTheScreenTakes) {
    EXPECT_EQ(keysOf(kSettingsOptions).first, "WDIC");
    EXPECT_EQ(keysOf(kSettingsOptions).second, "WDIC");
}

TEST(Texts, FontPanelHasTheAccessKeysThatTheScreenTakes) {
    EXPECT_EQ(accessKeys(texts::kSearchFont.spanish), "F");
    EXPECT_EQ(accessKeys(texts::kSearchFont.english), "F");
    EXPECT_EQ(accessKeys(texts::kOpenFont.english), "F");
    EXPECT_EQ(accessKeys(texts::kRebootGame.spanish), "R");
    EXPECT_EQ(accessKeys(texts::kRebootGame.english), "R");
}

TEST(Texts, ADoubledMarkIsNoAccessKey) {
    EXPECT_EQ(accessKeys(texts::kSave.english), "");
    EXPECT_EQ(texts::kSave.english, u"SAVE && CREATE");
}

TEST(Texts, TipsForPlayersAreTenOfEachLanguage) {
    std::set<TextView> seen;
    for (const TextPair& tip : texts::kTips) {
        seen.insert(tip.spanish);
        seen.insert(tip.english);
    }
    EXPECT_EQ(seen.size(), 20U);
    EXPECT_EQ(seen.count(u""), 0U);
}

TEST(Texts, SettingsTilesHaveOneLetterForEachOfSeven) {
    EXPECT_EQ(texts::kSettingsTiles.spanish.size(), 7U);
    EXPECT_EQ(texts::kSettingsTiles.english.size(), 7U);
}

}  // namespace
}  // namespace quillor
