
#include "base/idle_pump.h"
#include "base/presentation.h"
#include "data/scenarios.h"
#include "dialogs/define_word.h"
#include "dialogs/edit_bonus_words.h"
#include "dialogs/edit_word_list.h"
#include "dialogs/new_word_list.h"
#include "game/validation.h"
#include "support/dialog_test.h"
#include "words/bonus_words.h"
#include "words/word_list_editing.h"

namespace quillet {
namespace {

class WordDialogs : public DialogTest {
  protected:
    WordDialogs() {
        MakeFolder("Word Lists");
        wordList.current = "Words";
    }

    // "total, chosen word, word box".
    static std::string Shown(Dialog& dialog) {
        using Controls = WordEditorControls;
        return ControlText(dialog, Controls::kTotal) + ", " + LineText(dialog, Controls::kList) + ", " +
               EditText(dialog, Controls::kWord);
    }
    static void Press(Dialog& dialog, int button, const std::string& word) {
        Retype(dialog, WordEditorControls::kWord, word);
        PressControl(dialog, button);
    }
};

using WordLists = WordDialogs;
using Editor = WordEditorControls;

TEST_F(WordLists, NewOnesNeedANameThatIsFree) {
    SetWords({"CAT"});
    SaveWordList("Words");
    InDialog([](Dialog& dialog) {
        EXPECT_EQ(dialog.title, "New Word List");
        EXPECT_EQ(dialog.focus, NameControls::kName);
        PressControl(dialog, kOkId);
        EXPECT_EQ(headless.beeps, 1);
        Enter(dialog, NameControls::kName, std::string(32, 'x'));
        EXPECT_EQ(EditText(dialog, NameControls::kName), std::string(31, 'x') + "[x]");
        for (const char* name : {"a/b/c", "Mine.qld"}) Enter(dialog, NameControls::kName, name);
    });
    headless.answers = {false};
    EXPECT_TRUE(NewWordListDialog());
    EXPECT_EQ(headless.questions.at(0).text, "Save changes to \"Words\"?");
    EXPECT_EQ(wordList.current, "Mine");
    EXPECT_EQ(mainDict.numwords, 0);
    EXPECT_THAT(TakeMessages(),
                ElementsAre("Sorry, but that name is too long.", "Could not create the new word list!"));
    EXPECT_FALSE(NewWordListDialog());
    std::filesystem::remove_all(root / "Word Lists");
    EXPECT_FALSE(NewWordListDialog());
    SaveWordListAsDialog();
    EXPECT_THAT(TakeMessages(), SizeIs(2)) << "the folder is missing";
}

TEST_F(WordLists, SavedUnderAnotherNameStayWhatTheyAre) {
    SetWords({"CAT"});
    InDialog([](Dialog& dialog) { Enter(dialog, NameControls::kName, "Copy"); });
    SaveWordListAsDialog();
    EXPECT_TRUE(FileExists("Word Lists\\Copy.qld") && DictChanged(mainDict));
    EXPECT_EQ(wordList.current, "Words");
}

TEST_F(WordLists, EditorAddsFindsAndDeletesWords) {
    SetWords({"ANT", "BEE", "CAT", "DOG"});
    SaveWordList("Words");
    mainDict.numAdded = 0;
    InDialog([](Dialog& dialog) {
        EXPECT_EQ(dialog.title, "Edit \"Words\"");
        EXPECT_EQ(Shown(dialog), "4, ANT, [ANT]");
        Press(dialog, Editor::kAdd, "cow");
        EXPECT_EQ(Shown(dialog), "5, COW, [cow]");
        Press(dialog, Editor::kAdd, "Bee");
        EXPECT_EQ(Shown(dialog), "5, BEE, [Bee]");
        Press(dialog, Editor::kFind, "DOG");
        EXPECT_EQ(Shown(dialog), "5, DOG, [DOG]");
        Press(dialog, Editor::kDelete, "ANT");
        EXPECT_EQ(Shown(dialog), "4, BEE, [ANT]");
        EXPECT_EQ(headless.beeps, 1) << "for the word that was there";
        ChooseLine(dialog, Editor::kList, 2);
        EXPECT_EQ(Shown(dialog), "4, COW, [COW]");
        ChooseLine(dialog, Editor::kList, -1);
        EXPECT_EQ(headless.beeps, 2);
        Press(dialog, Editor::kAdd, "a-b");
        EXPECT_EQ(EditText(dialog, Editor::kWord), "a[-]b");
        for (const char* word : {"DOG", "COW", "CAT", "BEE", "BEE"}) Press(dialog, Editor::kDelete, word);
        EXPECT_EQ(Shown(dialog), "0, <none>, [BEE]");
        PressControl(dialog, kCancelId);
    });
    headless.answers = {true};
    EditWordList();
    EXPECT_EQ(headless.questions.at(0).text, "Do you really want all changes to be forgotten?");
    EXPECT_EQ(mainDict.numwords, 4);
    EXPECT_THAT(TakeMessages(), ElementsAre("Non-letter detected."));
    EXPECT_EQ(recorded.Count("ShowWaitCursor"), recorded.Count("ShowArrowCursor"));
    InDialog([](Dialog& dialog) {
        Press(dialog, Editor::kAdd, "EEL");
        PressControl(dialog, kOkId);
    });
    EditWordList();
    EXPECT_TRUE(IsWord(mainDict, "EEL") && DictChanged(mainDict));
    EXPECT_EQ(headless.questions.size(), 1U) << "OK keeps the changes, and Cancel without any asks nothing";
}

TEST_F(WordLists, EditorOpensAtTheLatestMovesWord) {
    Strings words;
    for (char letter = 'A'; letter <= 'T'; ++letter) words.push_back({letter, 'A'});
    SetWords(words);
    const std::tuple<const char*, std::string> cases[] = {
        {"CA", "20, CA, [CA]"}, {"TA", "20, IA, [IA]"}, {"ZA", "20, AA, [AA]"}};
    for (const auto& [latest, shown] : cases) {
        formedWords.count = 1;
        formedWords.words[0] = latest;
        InDialog([&shown](Dialog& dialog) { EXPECT_EQ(Shown(dialog), shown); });
        EditWordList();
    }
    InDialog([](Dialog& dialog) {
        const auto& line = dialog.controls.at(Editor::kList).lineText;
        for (const auto& [number, word] :
             {std::pair{3U, "DA"}, {4U, "EA"}, {4U, "EA"}, {19U, "TA"}, {0U, "AA"}}) {
            EXPECT_EQ(line(number), word);
        }
    });
    EditWordList();
}

using Define = WordDialogs;

TEST_F(Define, LooksUpOneWordAfterTheOther) {
    using Controls = DefineWordControls;
    DefineWord("cat");
    EXPECT_THAT(TakeMessages(), ElementsAre("Sorry, the Definitions folder is missing."));
    WriteFile("Definitions/C.txt", "CAT  a small animal\r\n");
    InDialog([](Dialog& dialog) {
        EXPECT_EQ(EditText(dialog, Controls::kWord), "");
        EXPECT_EQ(ControlText(dialog, Controls::kText), "Type in a word and click on the Define button.");
        Enter(dialog, Controls::kWord, "cows");
        EXPECT_EQ(EditText(dialog, Controls::kWord), "cows");
        EXPECT_TRUE(ControlText(dialog, Controls::kText).starts_with("Sorry, no definition found."));
        EXPECT_FALSE(dialog.result);
    });
    DefineWord("");
    InDialog([](Dialog& dialog) { Press(dialog, Editor::kDefine, "Cats"); });
    InDialog([](Dialog& dialog) {
        EXPECT_EQ(EditText(dialog, Controls::kWord), "[Cat]");
        EXPECT_EQ(ControlText(dialog, Controls::kText), "a small animal");
    });
    EditWordList();
}

using BonusWords = WordDialogs;

TEST_F(BonusWords, AreSavedInTheScenarioOrForgotten) {
    WriteFile("Scenarios/Mine/12345.str", "1");
    SetCurrentScenario("Mine");
    SetBonusWords({"QUIZ"}, 25);
    game.settings.bonusWordsEnabled = false;
    InDialog([](Dialog& dialog) {
        EXPECT_EQ(Shown(dialog), "1, QUIZ, [QUIZ]");
        EXPECT_EQ(EditText(dialog, Editor::kPoints), "25");
        Press(dialog, Editor::kAdd, "axe");
        Press(dialog, Editor::kDelete, "quiz");
        PressControl(dialog, Editor::kEnabled);
    });
    EditBonusWords();
    EXPECT_TRUE(IsBonusWord("QUIZ") && !IsBonusWord("AXE") && !game.settings.bonusWordsEnabled);
    EXPECT_EQ(ReadFile("Scenarios/Mine/602.str"), "<none>");
    InDialog([](Dialog& dialog) {
        EXPECT_FALSE(IsChecked(dialog, Editor::kEnabled));
        PressControl(dialog, Editor::kEnabled);
        Press(dialog, Editor::kAdd, "axe");
        for (const char* points : {"32768", "-32769", "", "x", "-32768"}) {
            EXPECT_FALSE(dialog.result);
            Enter(dialog, Editor::kPoints, points);
        }
    });
    EditBonusWords();
    EXPECT_EQ(TakeMessages(), Strings(4, "Bad bonus points."));
    EXPECT_EQ(ReadItems("Scenarios/Mine", {600, 601, 602}), "-32768|T|AXE\r\nQUIZ\r\n|");
    EXPECT_TRUE(bonusWords[1] == "QUIZ" && IsBonusWord("AXE"));
}

using Status = WordDialogs;

TEST_F(Status, ShowsAnImportAndStopsItOnCancel) {
    SetWords({});
    WriteFile("in.txt", std::string(3000, ' ') + "cat\r\n" + std::string(3000, ' ') + "dog\r\n");
    pump.idleHook = [] {
        headless.tick += 60;
        pump.nextPumpTick = headless.tick - 1;
        Dialog& status = *headlessWindow.modeless;
        const int percent = status.controls.at(StatusControls::kProgress).percent;
        Record("Status", ControlText(status, StatusControls::kLine1),
               ControlText(status, StatusControls::kLine1 + 1),
               ControlText(status, StatusControls::kLine1 + 2), percent >= 50);
        if (percent >= 80) PressControl(status, kCancelId);
    };
    AddFromTextFile("in.txt");
    EXPECT_EQ(headlessWindow.modeless, nullptr);
    EXPECT_THAT(Calls("Status"), testing::IsSupersetOf({"Status Adding new words from in.txt  0",
                                                        "Status Adding new words from in.txt CAT 1"}));
    EXPECT_TRUE(IsWord(mainDict, "CAT") && !IsWord(mainDict, "DOG"));
    SetStatusWindowLine("late", 1);  // to no window
    CloseStatus();
}

TEST_F(Status, ShowsTheLineUntilThereIsProgress) {
    OpenStatus("one", "two", std::string(200, 'x'), "four");
    const auto& controls = headlessWindow.modeless->controls;
    EXPECT_EQ(controls.at(StatusControls::kLine1 + 2).text, std::string(127, 'x'));
    EXPECT_TRUE(controls.at(StatusControls::kLine1 + 3).shown &&
                !controls.at(StatusControls::kProgress).shown);
    SetStatusProgress(0xFFFF'FFF0, 0xFFFF'FFFF);
    EXPECT_TRUE(controls.at(StatusControls::kProgress).shown &&
                !controls.at(StatusControls::kLine1 + 3).shown);
    EXPECT_EQ(controls.at(StatusControls::kProgress).percent, 99);
    SetStatusProgress(1, 0);
    CloseStatus();
    EXPECT_EQ(headlessWindow.modeless, nullptr);
}

}  // namespace
}  // namespace quillet
