#include "store/preferences.h"

#include <gmock/gmock.h>

#include "base/messages.h"
#include "support/temp_folder.h"

namespace quillet {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PreferenceItems : public TempFolder {
  protected:
    PreferenceItems() {
        preferences = {};
        ClosePrefs();
        MakeFolder("Data/Prefs");
    }
    void SetItem(int id, const std::string& value) {
        WriteFile("Data/Prefs/" + std::to_string(id) + ".str", value);
    }
    std::string Item(int id) { return ReadFile("Data/Prefs/" + std::to_string(id) + ".str"); }
};

TEST_F(PreferenceItems, StoreWithoutVersionIsMadeAnewWithDefaults) {
    SetItem(1000, "F");
    LoadPreferences();
    EXPECT_TRUE(preferences.bigBoard);
    EXPECT_EQ(CountEntries("Data/Prefs"), 33U);
    for (const auto& [id, value] : {std::pair{200, "1"},
                                    {201, "?"},
                                    {204, ""},
                                    {803, "-1000"},
                                    {1000, "T"},
                                    {1004, "F"},
                                    {1014, "F"},
                                    {1021, "T"},
                                    {2000, "F"},
                                    {2001, "25"},
                                    {2002, "10"},
                                    {3001, "Words"},
                                    {4000, ""},
                                    {12345, "0"}}) {
        EXPECT_EQ(Item(id), value) << id;
    }
    EXPECT_THAT(ReadPlayerNames(), ElementsAre("?"));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(PreferenceItems, LoadReadsWhatIsStored) {
    LoadPreferences();
    SetItem(1000, "F");
    SetItem(1021, "t");
    SetItem(2001, "soon");
    SetItem(2002, "-3");
    SetItem(3001, std::string(40, 'w'));
    LoadPreferences();
    EXPECT_FALSE(preferences.bigBoard);
    EXPECT_FALSE(preferences.showAboutScenario);
    EXPECT_EQ(preferences.timeLimit, 0);
    EXPECT_EQ(preferences.timePenalty, -3);
    EXPECT_EQ(preferences.wordList, std::string(31, 'w'));
}

TEST_F(PreferenceItems, ChangesAreWrittenAtOnceAndCloseTheStore) {
    LoadPreferences();
    FlipPreference(&Preferences::niceLetterMix);
    FlipPreference(&Preferences::playSounds);
    RememberWordList("Large");
    RememberScenario("Small board");
    RememberTimer(true, 5, 20);
    EXPECT_TRUE(preferences.niceLetterMix);
    for (const auto& [id, value] : {std::pair{1014, "T"},
                                    {1007, "F"},
                                    {3001, "Large"},
                                    {4000, "Small board"},
                                    {2000, "T"},
                                    {2001, "5"},
                                    {2002, "20"}}) {
        EXPECT_EQ(Item(id), value) << id;
    }
    EXPECT_FALSE(prefsStore.open);
}

TEST_F(PreferenceItems, OnlyANewerVersionIsWorthAWarning) {
    LoadPreferences();
    for (const auto& [version, warnings] : {std::pair{"1", 1U}, {"/", 0U}, {"", 0U}, {"\xFF", 1U}}) {
        SetItem(kVersionItem, version);
        OpenPrefs();
        ClosePrefs();
        OpenPrefs();
        ClosePrefs();
        EXPECT_EQ(TakeMessages(), std::vector<std::string>(warnings, "Unexpected prefs version!")) << version;
        EXPECT_EQ(Item(kVersionItem), "0");
    }
}

TEST_F(PreferenceItems, MissingItemOrFolderEndsTheProgram) {
    LoadPreferences();
    Remove("Data/Prefs/1013.str");
    EXPECT_THROW(LoadPreferences(), ProgramEnd);
    EXPECT_THAT(TakeMessages(), ElementsAre("Could not read prefs file: Data\\Prefs\\1013.str"));
    std::filesystem::remove_all(root / "Data");
    EXPECT_THROW(LoadPreferences(), ProgramEnd);
    EXPECT_THAT(TakeMessages(), ElementsAre("Could not create prefs file: Data\\Prefs\\12345.str  Error: 2"));
}

TEST_F(PreferenceItems, PlayerNamesBeyondTheCountStay) {
    WritePlayerNames(std::vector<Text<12>>{"Ada 9", "Bo 5", "Cy"});
    WritePlayerNames(std::vector<Text<12>>{"Solo"});
    EXPECT_THAT(ReadPlayerNames(), ElementsAre("Solo"));
    EXPECT_EQ(Item(202), "Bo 5");
    for (const auto& [stored, count] : {std::pair{"3", 3U}, {"9", 4U}, {"-1", 1U}, {"many", 1U}}) {
        SetItem(200, stored);
        EXPECT_EQ(ReadPlayerNames().size(), count) << stored;
    }
}

}  // namespace
}  // namespace quillet
