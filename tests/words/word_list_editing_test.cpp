#include "words/word_list_editing.h"

#include <gmock/gmock.h>

#include "base/idle_pump.h"
#include "store/preferences.h"
#include "support/recording_presentation.h"
#include "support/temp_folder.h"
#include "words/bonus_words.h"
#include "words/graph_check.h"
#include "words/word_list_builder.h"

namespace quillet {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class WordListEditing : public TempFolder {
  protected:
    WordListEditing() {
        recorded = {};
        pump = {};
        mainDict = {};
        wordList = {.current = "Mine"};
        preferences = {};
        ClosePrefs();
        MakeFolder("Data/Prefs");
        LoadPreferences();
        MakeFolder("Word Lists");
    }
    ~WordListEditing() override { pump = {}; }

    static std::string Words() {
        std::string words = TextOfWords(mainDict);
        std::erase(words, '\r');
        std::ranges::replace(words, '\n', ' ');
        return words;
    }

    void Import(const std::string& text) {
        WriteFile("in.txt", text);
        AddFromTextFile("in.txt");
    }
};

TEST_F(WordListEditing, NamesOfNewListsAreChecked) {
    WriteFile("Word Lists/Words.qld", "");
    constexpr auto kAll = Objection::kToTheEnd;
    const std::string longest(31, 'n');
    struct Case {
        std::string typed, name;
        bool good;
        std::string warning = {};
        std::size_t selectFrom = 0;
    };
    for (const Case& c : {
             Case{"Animals", "Animals", true},
             Case{"Animals.QlD", "Animals", true},
             Case{"a.qld.qld", "a.qld", true},
             Case{"qld", "qld", true},
             Case{longest + ".qld", longest, true},
             Case{"", "", false},
             Case{".qld", "", false},
             Case{longest + "n", longest, false, "Sorry, but that name is too long.", 31},
             Case{"words.QLD", "words", false, "Sorry, but that word list already exists."},
         }) {
        const ListNameCheck check = CheckListName(c.typed);
        EXPECT_EQ(check.name, c.name);
        ASSERT_EQ(!check.objection, c.good) << c.typed;
        if (c.good) continue;
        EXPECT_EQ(check.objection->warning, c.warning);
        EXPECT_EQ(check.objection->selectFrom, c.selectFrom) << c.typed;
        EXPECT_EQ(check.objection->selectCount, kAll);
    }
    EXPECT_TRUE(WordListsFolderExists());
    std::filesystem::remove_all(root / "Word Lists");
    EXPECT_FALSE(WordListsFolderExists());
    EXPECT_THAT(TakeMessages(), ElementsAre("The Word Lists folder is missing!"));
}

TEST_F(WordListEditing, NewListIsEmptyCurrentAndRemembered) {
    AddWord(mainDict, "OLD");
    EXPECT_EQ(CreateWordList("no\\such")->warning, "Could not create the new word list!");
    EXPECT_TRUE(IsWord(mainDict, "OLD"));
    EXPECT_FALSE(CreateWordList("New"));
    EXPECT_EQ(ReadFile("Word Lists/New.qld"), "\x02" + std::string(299, '\0'));
    EXPECT_EQ(mainDict.numwords, 0);
    EXPECT_EQ(mainDict.spareEdges, 20000);
    EXPECT_FALSE(DictChanged(mainDict));
    EXPECT_EQ(wordList.current, "New");
    EXPECT_EQ(ReadFile("Data/Prefs/3001.str"), "New");
}

TEST_F(WordListEditing, SavingUnderAnotherNameKeepsListAndChanges) {
    AddWord(mainDict, "CAT");
    EXPECT_EQ(SaveWordListAs("no\\such")->warning, "Could not save that word list!");
    EXPECT_FALSE(SaveWordListAs("Other"));
    EXPECT_EQ(ReadFile("Word Lists/Other.qld").size(), 312U);
    EXPECT_EQ(wordList.current, "Mine");
    EXPECT_TRUE(DictChanged(mainDict));
    EXPECT_EQ(CountEntries("Word Lists"), 1U);
}

TEST_F(WordListEditing, ChangesAreSavedOrForgottenOnlyWhenThereAreSome) {
    AddWord(mainDict, "CAT");
    SaveCurrentWordList();
    EXPECT_FALSE(DictChanged(mainDict));
    Remove("Word Lists/Mine.qld");
    SaveCurrentWordList();
    RevertWordList();
    EXPECT_EQ(ReadFile("Word Lists/Mine.qld"), "<none>");
    EXPECT_THAT(headless.questions, IsEmpty());

    SaveWordList("Mine");
    AddWord(mainDict, "DOG");
    headless.answers = {false, true};
    RevertWordList();
    EXPECT_EQ(Words(), "cat dog ");
    RevertWordList();
    EXPECT_EQ(Words(), "cat ");
    EXPECT_FALSE(DictChanged(mainDict));
    EXPECT_EQ(headless.questions[0].text, "Do you really want all changes to be forgotten?");
    EXPECT_TRUE(headless.questions[0].yesIsDefault);
}

TEST_F(WordListEditing, EditorTakesOneToFifteenLetters) {
    struct Case {
        std::string typed, word, warning;
        std::size_t selectFrom, selectCount;
    };
    constexpr auto kAll = Objection::kToTheEnd;
    const std::string longest(15, 'Q');
    for (const Case& c : {
             Case{"", "", "", 0, kAll},
             Case{longest + "e1", "", "The word must have at most 15 letters.", 15, kAll},
             Case{"ab-c!", "", "Non-letter detected.", 2, 1},
             Case{"caf\xE9", "", "Non-letter detected.", 3, 1},
         }) {
        const WordCheck check = CheckEditorWord(c.typed);
        ASSERT_TRUE(check.objection) << c.typed;
        EXPECT_EQ(check.objection->warning, c.warning);
        EXPECT_EQ(check.objection->selectFrom, c.selectFrom) << c.typed;
        EXPECT_EQ(check.objection->selectCount, c.selectCount) << c.typed;
    }
    for (const std::string& good : {std::string("cAt"), longest})
        EXPECT_FALSE(CheckEditorWord(good).objection);
    EXPECT_EQ(CheckEditorWord("cAt").word, "CAT");
}

TEST_F(WordListEditing, EditorButtonsBeepWhereThereIsNothingToDo) {
    struct Case {
        EditorButton button;
        bool changed;
        int beeps;
    };
    using enum EditorButton;
    for (const Case& c :
         {Case{Find, false, 1}, Case{Delete, false, 1}, Case{Add, true, 0}, Case{Add, false, 1},
          Case{Find, false, 0}, Case{Delete, true, 0}, Case{Delete, false, 1}}) {
        headless.beeps = 0;
        EXPECT_EQ(EditorWordCommand(false, c.button, "CAT"), c.changed);
        EXPECT_EQ(headless.beeps, c.beeps);
    }
    MakeBonusStore(bonusDict);
    for (char i = 0; i < kMaxBonusWords; ++i) {
        const std::string word{static_cast<char>('A' + i / 10), static_cast<char>('A' + i % 10)};
        EXPECT_TRUE(EditorWordCommand(true, Add, word));
    }
    EXPECT_FALSE(EditorWordCommand(true, Add, "MORE"));
    EXPECT_THAT(TakeMessages(), ElementsAre("No more bonus words allowed."));
    EXPECT_EQ(bonusDict.numwords, 100);
}

TEST_F(WordListEditing, ImportTakesOnlyCleanLowerCaseWords) {
    const std::string longest(15, 'z');
    struct Case {
        std::string text, words;
    };
    for (const Case& c : {
             Case{"the Cat sat, on mat", "mat on the "},
             Case{"b\ta\rc\r\nd\r", "a b c d "},
             Case{"one\ntwo three\nfour five", "five "},  // LF alone: part of a word that is not clean
             Case{" x2 2x x-x xX x\xE9 x" + std::string(1, '\0') + " ok  ok ", "ok "},
             Case{longest + " " + longest + "y", longest + " "},
             Case{"", ""},
         }) {
        mainDict = {};
        Import(c.text);
        EXPECT_EQ(Words(), c.words);
        EXPECT_EQ(FindBrokenInvariant(mainDict), std::nullopt);
    }
}

TEST_F(WordListEditing, ImportCountsTheWordsThatAreNew) {
    BuildDict(mainDict, {"CAT", "DOG", "EMU"});
    AddWord(mainDict, "FOX");
    DeleteWord(mainDict, "EMU");
    Import("ant cat ant bee dog");
    EXPECT_EQ(Words(), "ant bee cat dog fox ");
    EXPECT_EQ(mainDict.numAdded, 3);
    EXPECT_EQ(mainDict.numDeleted, 1);
    EXPECT_THAT(recorded.calls,
                ElementsAre("ShowWaitCursor", "OpenStatus [Adding new words from] [in.txt] [] []",
                            "SetStatusProgress 0 19", "CloseStatus", "ShowArrowCursor"));
    AddFromTextFile("gone.txt");
    EXPECT_THAT(TakeMessages(), ElementsAre("Cannot open \"gone.txt\""));
}

TEST_F(WordListEditing, ImportShowsItsProgressAndStopsWithWhatItHas) {
    pump.idleHook = [] {
        headless.tick += 100;
        pump.abortRequested = recorded.Count("SetStatusProgress") >= 3;
    };
    std::string text;
    for (int i = 0; i < 1000; ++i)
        text += "w" + std::string(1 + static_cast<std::size_t>(i) % 14, 'o') + "\r\n";
    Import(text + "last");
    EXPECT_GT(mainDict.numwords, 5);
    EXPECT_FALSE(IsWord(mainDict, "LAST"));
    EXPECT_EQ(recorded.Count("SetStatusProgress"), 3);
    EXPECT_EQ(recorded.Count("SetStatusWindowLine 3 WO"), 2);
    EXPECT_EQ(recorded.calls.back(), "ShowArrowCursor");
}

TEST_F(WordListEditing, ImportIntoAFullListTakesWhatFits) {
    const auto word = [](int i) {  // each needs 12 edges of its own, and the list holds 4,194,304
        std::string letters;
        for (int rest = i; letters.size() < 4; rest /= 26) letters += static_cast<char>('a' + rest % 26);
        return letters + "qqqqqqqqqqq";
    };
    constexpr int kNearlyFull = 347980;
    std::vector<Word> words(kNearlyFull);
    for (int i = 0; i < kNearlyFull; ++i) {
        for (const char letter : word(i)) words[static_cast<std::size_t>(i)].Append(ToUpper(letter));
    }
    BuildDict(mainDict, words);
    std::string text;
    for (int i = 0; i < 100; ++i) text += word(kNearlyFull + i) + "\r\n";
    Import(text);
    EXPECT_THAT(TakeMessages(), ElementsAre("Too many words!"));
    EXPECT_GT(mainDict.numedges + 12, kMaxEdges) << "not even one word more";
    EXPECT_GT(mainDict.numAdded, 0);
    EXPECT_EQ(mainDict.numAdded, mainDict.numwords - kNearlyFull);
    EXPECT_EQ(FindBrokenInvariant(mainDict), std::nullopt);
}

TEST_F(WordListEditing, DumpWritesOneLowerCaseWordALine) {
    EXPECT_FALSE(HasWordsToDump());
    EXPECT_THAT(TakeMessages(), ElementsAre("There are no words."));
    BuildDict(mainDict, {"DOG", "CAT", "CATS"});
    EXPECT_TRUE(HasWordsToDump());
    DumpToTextFile("out.txt");
    EXPECT_EQ(ReadFile("out.txt"), "cat\r\ncats\r\ndog\r\n");
    EXPECT_THAT(recorded.calls, ElementsAre("ShowWaitCursor", "OpenStatus [Dumping words to] [out.txt] [] []",
                                            "SetStatusWindowLine 4 c", "SetStatusWindowLine 4 d",
                                            "CloseStatus", "ShowArrowCursor"));
    DumpToTextFile("no\\such.txt");
    EXPECT_THAT(TakeMessages(), ElementsAre("Cannot save \"no\\such.txt\""));
}

TEST_F(WordListEditing, DumpFillsBlockAfterBlockAndStopsOnAbort) {
    std::vector<Word> words;
    for (int i = 0; i < 26 * 26; ++i) {
        words.emplace_back(
            std::string{'W', static_cast<char>('A' + i / 26), static_cast<char>('A' + i % 26)});
    }
    BuildDict(mainDict, words);
    DumpToTextFile("all.txt");
    EXPECT_EQ(ReadFile("all.txt"), TextOfWords(mainDict));
    pump.idleHook = [] { pump.abortRequested = ++headless.tick >= 1300; };
    DumpToTextFile("some.txt");
    EXPECT_EQ(ReadFile("some.txt"), TextOfWords(mainDict).substr(0, 300 * 5));
}

}  // namespace
}  // namespace quillet
