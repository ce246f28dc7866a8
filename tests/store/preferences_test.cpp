#include "store/preferences.h"

#include "support/world.h"

namespace quillet {
namespace {

class PreferenceItems : public World {
  protected:
    void SetItem(int id, const std::string& value) {
        WriteFile("Data/Prefs/" + std::to_string(id) + ".str", value);
    }
    std::string Items(std::initializer_list<int> ids) { return ReadItems("Data/Prefs", ids); }
};

TEST_F(PreferenceItems, StoreWithoutVersionIsMadeAnewWithDefaults) {
    SetItem(1000, "F");
    LoadPreferences();
    EXPECT_TRUE(preferences.bigBoard);
    EXPECT_EQ(CountEntries("Data/Prefs"), 33U);
    EXPECT_EQ(Items({200, 201, 204, 803, 1000, 1004, 1014, 1021, 2000, 2001, 2002, 3001, 4000, 12345}),
              "1|?||-1000|T|F|F|T|F|25|10|Words||0|");
    EXPECT_THAT(ReadPlayerNames(), ElementsAre("?"));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(PreferenceItems, ChangesAreWrittenAtOnceAndLoaded) {
    LoadPreferences();
    FlipPreference(&Preferences::niceLetterMix);
    FlipPreference(&Preferences::playSounds);
    RememberWordList("Large");
    RememberScenario("Small board");
    RememberTimer(true, 5, 20);
    EXPECT_FALSE(prefsStore.open);
    EXPECT_EQ(Items({1014, 1007, 3001, 4000, 2000, 2001, 2002}), "T|F|Large|Small board|T|5|20|");
    preferences = {};
    SetItem(1021, "t");
    SetItem(2001, "soon");
    SetItem(2002, "-3");
    SetItem(3001, std::string(40, 'w'));
    LoadPreferences();
    EXPECT_TRUE(preferences.niceLetterMix && !preferences.playSounds && !preferences.showAboutScenario);
    EXPECT_TRUE(preferences.timerEnabled && preferences.timeLimit == 0 && preferences.timePenalty == -3);
    EXPECT_EQ(preferences.wordList, std::string(31, 'w'));
}

TEST_F(PreferenceItems, OnlyANewerVersionIsWorthAWarning) {
    LoadPreferences();
    for (const auto& [version, warnings] : {std::pair{"1", 1U}, {"/", 0U}, {"", 0U}, {"\xFF", 1U}}) {
        SetItem(kVersionItem, version);
        for (int i = 0; i < 2; ++i) {
            OpenPrefs();
            ClosePrefs();
        }
        EXPECT_EQ(TakeMessages(), Strings(warnings, "Unexpected prefs version!")) << version;
        EXPECT_EQ(Items({kVersionItem}), "0|");
    }
}

TEST_F(PreferenceItems, FirstStartThatIsStoppedHalfWayIsMadeUpFor) {
    MakeFolder("Data/Prefs/1013.str");  // cannot be written
    EXPECT_THROW(LoadPreferences(), ProgramEnd);
    TakeMessages();
    Remove("Data/Prefs/1013.str");
    LoadPreferences();
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_TRUE(preferences.allowHints);
}

TEST_F(PreferenceItems, PlayerNamesBeyondTheCountStay) {
    WritePlayerNames(std::vector<Text<12>>{"Ada 9", "Bo 5", "Cy"});
    WritePlayerNames(std::vector<Text<12>>{"Solo"});
    EXPECT_THAT(ReadPlayerNames(), ElementsAre("Solo"));
    EXPECT_EQ(Items({202, 203}), "Bo 5|Cy|");
    for (const auto& [stored, count] : {std::pair{"3", 3U}, {"9", 4U}, {"-1", 1U}, {"many", 1U}}) {
        SetItem(200, stored);
        EXPECT_EQ(ReadPlayerNames().size(), count) << stored;
    }
}

}  // namespace
}  // namespace quillet
