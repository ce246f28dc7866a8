#include "words/word_list_file.h"

#include "support/world.h"
#include "words/dict.h"

namespace quillet {
namespace {

// The list of AB, AC and B.
std::string SmallFile() {
    std::string file("\x02\0\0\0\x03\0\0\0\x04\0\0\0\x10\0\0\0\x02\0\0\0\x01\0\0\0", 24);
    file.append(300 - file.size(), '\0');
    return file.append("\x02\0\0\x41\0\0\xC0\x42\0\0\x40\x42\0\0\xC0\x43", 16);
}

std::string EmptyFile() { return "\x02" + std::string(299, '\0'); }

class WordListFile : public World {
  protected:
    WordListFile() {
        LoadPreferences();
        MakeFolder("Word Lists");
    }

    void WriteList(const std::string& name, const std::string& bytes) {
        WriteFile("Word Lists/" + name + ".qld", bytes);
    }
    std::string ListBytes(const std::string& name) { return ReadFile("Word Lists/" + name + ".qld"); }

    void LoadSmallList() {
        WriteList("Small", SmallFile());
        LoadWordList("Small");
    }
};

TEST_F(WordListFile, SavedAndLoadedBytesAreTheSame) {
    for (const char* word : {"AB", "AC", "B"}) AddWord(mainDict, word);
    SaveWordList("Small");
    EXPECT_EQ(ListBytes("Small"), SmallFile());
    EXPECT_TRUE(DictChanged(mainDict)) << "saving leaves the counters to the caller";

    const auto revision = mainDict.revision;
    ASSERT_TRUE(LoadWordList("small"));
    EXPECT_TRUE(mainDict.revision != revision && !DictChanged(mainDict) && IsWord(mainDict, "AC"));
    SaveWordList("Again");
    EXPECT_EQ(ListBytes("Again"), SmallFile());
    EXPECT_THAT(recorded.calls, ElementsAre("ShowWaitCursor", "ShowArrowCursor"));
    WriteList("Empty", EmptyFile());
    EXPECT_TRUE(LoadWordList("Empty") && AddWord(mainDict, "FIRST"));
}

TEST_F(WordListFile, EachFaultIsNamedAndTheFirstOneWins) {
    LoadSmallList();
    // From the last check to the first: each damage is added to those before it and is then the one reported.
    const std::tuple<std::size_t, int, const char*> damages[] = {
        {306, 0x80, "Bad edges in \"Small\"!"},
        {299, 1, "Bad reserved byte in \"Small\"!"},
        {119, 0x80, "Bad numwords or sum array in \"Small\"!"},
        {15, 0x80, "Bad numedges or triesize in \"Small\"!"},  // negative
        {11, 0x80, "Bad numedges or triesize in \"Small\"!"},  // both negative
        {11, 0x40, "Bad numedges or triesize in \"Small\"!"},  // 4 * numedges wraps to triesize
        {0, 1, "Bad format id in \"Small\"!"},
    };
    for (const auto& [offset, byte, fault] : damages) {
        SetByte("Word Lists/Small.qld", offset, static_cast<char>(byte));
        EXPECT_THROW(LoadWordList("Small"), ProgramEnd);
        EXPECT_THAT(TakeMessages(), ElementsAre(fault)) << offset;
        EXPECT_TRUE(mainDict.numwords == 3 && IsWord(mainDict, "AB")) << "the list in memory stays whole";
    }
}

TEST_F(WordListFile, CutOffAnywhereEndsUnexpectedly) {
    for (std::size_t size = 0; size < SmallFile().size(); ++size) {
        WriteList("Small", SmallFile().substr(0, size));
        EXPECT_THROW(LoadWordList("Small"), ProgramEnd);
        EXPECT_THAT(TakeMessages(), ElementsAre("\"Small\" ended unexpectedly!")) << size;
    }
}

TEST_F(WordListFile, MissingListKeepsTheOldOne) {
    LoadSmallList();
    EXPECT_FALSE(LoadWordList("Gone") || SelectWordList(true, "Gone"));
    EXPECT_THAT(TakeMessages(), ElementsAre("Cannot open word list: \"Word Lists\\Gone.qld\"",
                                            "\"Gone.qld\" not found in the Word Lists folder!"));
    EXPECT_TRUE(wordList.current == "Small" && preferences.wordList == "Words");
    EXPECT_TRUE(SelectWordList(true, wordList.current));
    EXPECT_EQ(ReadFile("Data/Prefs/3001.str"), "Small");
}

TEST_F(WordListFile, ChangesAreOfferedForSavingUntilTheyAreSaved) {
    LoadSmallList();
    OfferToSaveWordList();
    EXPECT_THAT(headless.questions, IsEmpty());
    AddWord(mainDict, "CAB");
    headless.answers = {false, true, true};
    OfferToSaveWordList();
    EXPECT_EQ(ListBytes("Small"), SmallFile());
    EXPECT_EQ(headless.questions.back().text, "Save changes to \"Small\"?");
    EXPECT_TRUE(headless.questions.back().yesIsDefault);
    std::filesystem::rename(root / "Word Lists", root / "Elsewhere");
    OfferToSaveWordList();
    EXPECT_THAT(TakeMessages(), ElementsAre("Cannot save word list: \"Word Lists\\Small.qld\""));
    MakeFolder("Word Lists");
    OfferToSaveWordList();
    EXPECT_FALSE(DictChanged(mainDict));
    EXPECT_GT(ListBytes("Small").size(), SmallFile().size());
}

TEST_F(WordListFile, OpponentPlaysWithItsOwnListAndTheOldOneComesBack) {
    LoadSmallList();
    WriteList("Own", EmptyFile());
    WordListName previous;
    for (const char* same : {"", "SMALL", "Gone"}) EXPECT_FALSE(UseOpponentWordList(same, previous)) << same;
    ASSERT_TRUE(UseOpponentWordList("Own", previous));
    EXPECT_EQ(mainDict.numwords, 0);
    RestoreWordList(previous);
    EXPECT_TRUE(mainDict.numwords == 3 && wordList.current == "Small" && preferences.wordList == "Words");
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(WordListFile, ListThatIsComeBackToIsReadAgainOnlyWhenItChanged) {
    LoadSmallList();
    WriteList("Own", EmptyFile());
    const std::uint32_t asRead = mainDict.revision;
    LoadWordList("Own");
    LoadWordList("Small");
    EXPECT_EQ(mainDict.revision, asRead);

    AddWord(mainDict, "NEW");  // not saved, so gone after the detour
    LoadWordList("Own");
    LoadWordList("Small");
    EXPECT_FALSE(IsWord(mainDict, "NEW"));

    LoadWordList("Own");
    WriteList("Small", EmptyFile());
    LoadWordList("Small");
    EXPECT_EQ(mainDict.numwords, 0);
}

TEST_F(WordListFile, ScenariosWishIsFollowedAndTakenBack) {
    LoadSmallList();
    WriteList("Own", EmptyFile());
    WriteList(std::string(32, 'x'), EmptyFile());
    EXPECT_THAT(ListWordLists(), ElementsAre("Own", "Small"));
    SetDataFolder((root / "Word Lists").string());
    EXPECT_THROW(ListWordLists(), ProgramEnd);
    EXPECT_THAT(TakeMessages(), ElementsAre("Sorry, but the Word Lists folder is missing!"));
    SetDataFolder(root.string());
    preferences.wordList = "Small";
    const std::tuple<const char*, bool, const char*> cases[] = {
        // the wish, whether a list is loaded, and which is in use then
        {"", false, "Small"},  {"SMALL", false, "Small"}, {"Gone", false, "Small"}, {"own", true, "Own"},
        {"OWN", false, "Own"}, {"", true, "Small"},       {"", false, "Small"},
    };
    for (const auto& [name, loads, current] : cases) {
        WordListName wish(name);
        EXPECT_EQ(ApplyScenarioWordList(wish), loads) << name;
        EXPECT_EQ(wordList.current, current);
        EXPECT_EQ(wish, std::string_view(name) == "Gone" ? "" : name);
    }
    EXPECT_THAT(TakeMessages(), ElementsAre("Scenario file asks for unknown word list: Gone"));

    AddWord(mainDict, "CAB");
    WordListName wish("Own");
    headless.answers = {true};
    ApplyScenarioWordList(wish);
    EXPECT_EQ(headless.questions.at(0).text, "Save changes to \"Small\"?");
    EXPECT_EQ(preferences.wordList, "Small");
}

TEST_F(WordListFile, ShippedListsAreSoundAndSensible) {
    SetDataFolder(QUILLET_ASSETS);
    for (const char* name : {"Common", "Words", "Large"}) {
        ASSERT_TRUE(LoadWordList(name));
        for (const char* word : {"CAT", "CATS", "PLAYED", "QUIZZES", "COLOR", "COLOURS", "OK"}) {
            EXPECT_TRUE(IsWord(mainDict, word)) << word << " in " << name;
        }
        for (const char* word : {"I", "KB", "CSC", "ASDF"}) EXPECT_FALSE(IsWord(mainDict, word)) << word;
    }
}

}  // namespace
}  // namespace quillet
