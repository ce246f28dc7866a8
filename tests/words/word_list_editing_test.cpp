#include "words/word_list_editing.h"

#include "base/idle_pump.h"
#include "support/world.h"
#include "words/bonus_words.h"
#include "words/graph_check.h"
#include "words/word_list_builder.h"

namespace quillet {
namespace {

class WordListEditing : public World {
  protected:
    WordListEditing() {
        wordList.current = "Mine";
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

// "ok", or what the objection says and selects.
std::string Verdict(const std::optional<Objection>& objection) {
    if (!objection) return "ok";
    const bool toTheEnd = objection->selectCount == Objection::kToTheEnd;
    return std::string(objection->warning) + " from " + std::to_string(objection->selectFrom) +
           (toTheEnd ? "" : " count " + std::to_string(objection->selectCount));
}

TEST_F(WordListEditing, NamesOfNewListsAreChecked) {
    WriteFile("Word Lists/Words.qld", "");
    const std::string longest(31, 'n');
    struct Case {
        std::string typed, name, verdict;
    };
    for (const Case& c :
         {Case{"Animals", "Animals", "ok"}, Case{"Animals.QlD", "Animals", "ok"},
          Case{"a.qld.qld", "a.qld", "ok"}, Case{"qld", "qld", "ok"}, Case{longest + ".qld", longest, "ok"},
          Case{"", "", " from 0"}, Case{".qld", "", " from 0"},
          Case{longest + "n", longest, "Sorry, but that name is too long. from 31"},
          Case{"words.QLD", "words", "Sorry, but that word list already exists. from 0"}}) {
        const ListNameCheck check = CheckListName(c.typed);
        EXPECT_EQ(check.name, c.name);
        EXPECT_EQ(Verdict(check.objection), c.verdict) << c.typed;
    }
    EXPECT_TRUE(WordListsFolderExists());
    std::filesystem::remove_all(root / "Word Lists");
    EXPECT_FALSE(WordListsFolderExists());
    EXPECT_THAT(TakeMessages(), ElementsAre("The Word Lists folder is missing!"));
}

TEST_F(WordListEditing, NewListIsEmptyCurrentAndRemembered) {
    AddWord(mainDict, "OLD");
    EXPECT_EQ(Verdict(CreateWordList("no\\such")), "Could not create the new word list! from 0");
    EXPECT_EQ(Verdict(SaveWordListAs("no\\such")), "Could not save that word list! from 0");
    EXPECT_EQ(Words(), "old ");
    EXPECT_EQ(Verdict(CreateWordList("New")), "ok");
    EXPECT_EQ(ReadFile("Word Lists/New.qld"), "\x02" + std::string(299, '\0'));
    EXPECT_TRUE(mainDict.numwords == 0 && mainDict.spareEdges == 20000 && !DictChanged(mainDict));
    EXPECT_EQ(wordList.current, "New");
    EXPECT_EQ(ReadFile("Data/Prefs/3001.str"), "New");
}

TEST_F(WordListEditing, ChangesAreSavedOrForgottenOnlyWhenThereAreSome) {
    SaveCurrentWordList();
    RevertWordList();
    EXPECT_TRUE(headless.questions.empty() && CountEntries("Word Lists") == 0);
    AddWord(mainDict, "CAT");
    SaveCurrentWordList();
    EXPECT_FALSE(DictChanged(mainDict));
    AddWord(mainDict, "DOG");
    headless.answers = {false, true};
    RevertWordList();
    EXPECT_EQ(Words(), "cat dog ");
    RevertWordList();
    EXPECT_EQ(Words(), "cat ");
    EXPECT_EQ(headless.questions[0].text, "Do you really want all changes to be forgotten?");
}

TEST_F(WordListEditing, EditorTakesOneToFifteenLetters) {
    const std::string longest(15, 'Q');
    for (const auto& [typed, verdict] : {std::pair<std::string, std::string>{"", " from 0"},
                                         {"cAt", "ok"},
                                         {longest, "ok"},
                                         {longest + "e1", "The word must have at most 15 letters. from 15"},
                                         {"ab-c!", "Non-letter detected. from 2 count 1"},
                                         {"caf\xE9", "Non-letter detected. from 3 count 1"}}) {
        EXPECT_EQ(Verdict(CheckEditorWord(typed).objection), verdict);
    }
    EXPECT_EQ(CheckEditorWord("cAt").word, "CAT");
}

TEST_F(WordListEditing, EditorButtonsBeepWhereThereIsNothingToDo) {
    using enum EditorButton;
    std::string story;
    for (const EditorButton button : {Find, Delete, Add, Add, Find, Delete, Delete}) {
        headless.beeps = 0;
        story += EditorWordCommand(false, button, "CAT") ? "changed " : "";
        story += headless.beeps > 0 ? "beep " : "quiet ";
    }
    EXPECT_EQ(story, "beep beep changed quiet beep quiet changed quiet beep ");
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
    for (const Case& c :
         {Case{"the Cat sat, on mat", "mat on the "}, Case{"b\ta\rc\r\nd\r", "a b c d "},
          Case{"one\ntwo three\nfour five", "five "},  // LF alone: part of a word that is not clean
          Case{" x2 2x x-x xX x\xE9 x" + std::string(1, '\0') + " ok  ok ", "ok "},
          Case{longest + " " + longest + "y", longest + " "}, Case{"", ""}}) {
        mainDict = {};
        Import(c.text);
        EXPECT_EQ(Words(), c.words);
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
    EXPECT_TRUE(mainDict.numAdded > 0 && mainDict.numAdded == mainDict.numwords - kNearlyFull);
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

TEST_F(WordListEditing, DumpStopsOnAbortWithTheWordsSoFar) {
    for (char letter = 'A'; letter <= 'Z'; ++letter) {  // more than the 512 bytes of its buffer
        for (const std::size_t length : {15, 14}) AddWord(mainDict, std::string(length, letter));
    }
    DumpToTextFile("all.txt");
    EXPECT_EQ(ReadFile("all.txt"), TextOfWords(mainDict));
    headless.tick = 0;
    pump.idleHook = [] {
        pump.abortRequested = headless.tick == 40;
    };  // at the first word of the 10th letter
    recorded.whenCalled["SetStatusWindowLine"] = [] { headless.tick += 4; };
    DumpToTextFile("some.txt");
    EXPECT_EQ(ReadFile("some.txt"), TextOfWords(mainDict).substr(0, 9 * (17 + 16) + 16));
}

}  // namespace
}  // namespace quillet
