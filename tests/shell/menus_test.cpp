// What the menus offer as the game goes on, and what their commands switch.
#include "shell/menus.h"

#include "base/idle_pump.h"
#include "data/scenarios.h"
#include "game/validation.h"
#include "shell/commands.h"
#include "support/running_program.h"
#include "words/dict.h"
#include "words/word_list_file.h"

namespace quillet {
namespace {

class Menus : public RunningProgram {
  protected:
    // Of the commands whose items depend on the game, those that can be chosen.
    static std::string Offered() {
        RefreshMenus();
        std::string text;
        for (int command : {1, 3, 101, 102, 104, 105, 202, 307, 401, 403, 406, 503, 504, 512, 601, 1001}) {
            if (FindMenuItem(command)->enabled) text += std::to_string(command) + " ";
        }
        return text;
    }
    static std::string TextOf(int command) { return FindMenuItem(command)->text; }
    // The ticked items of the scenarios or word lists.
    static Strings Ticked(int firstCommand) {
        Strings names;
        for (const HeadlessMenuItem& item : headlessWindow.menuItems) {
            if (item.checked && item.command >= firstCommand && item.command / 100 == firstCommand / 100)
                names.push_back(item.text);
        }
        return names;
    }
};

TEST_F(Menus, OfferWhatCanBeDoneNow) {
    Start();
    EXPECT_EQ(Offered(), "1 202 307 503 601 1001 ");
    StartGame({"Ann", "Bob"});
    const GameState begun = game;
    using Case = std::tuple<const char*, std::function<void()>, const char*>;
    const Case cases[] = {
        {"begun", [] {}, "1 3 202 307 401 403 406 503 601 1001 "},
        {"a move made", [] { game.history.movesCount = 1; }, "1 3 101 202 307 401 403 406 503 601 1001 "},
        {"a move undone", [] { game.history.redoCount = 1; }, "1 3 102 202 307 401 403 406 503 601 1001 "},
        {"few letters", [] { game.bag.tilesleft = 6; }, "1 3 202 307 403 406 503 601 1001 "},
        {"a computer", [] { game.players[1].isComputer = true; }, "1 3 202 307 503 601 1001 "},
        {"over", [] { game.gameOver = true, game.history.redoCount = 1; }, "1 3 202 307 503 601 1001 "},
        {"list changed", [] { mainDict.numDeleted = 1; }, "1 3 202 307 401 403 406 503 504 601 1001 "},
        {"word formed", [] { formedWords.remembered = "CAT"; }, "1 3 202 307 401 403 406 503 512 601 1001 "},
        {"searching", [] { DisableMenus(); }, "307 601 1001 "},
        {"reading a text", [] { SetTextOperation(true), DisableMenus(); }, "601 "},
        {"editing", [] { game.editorActive = true; }, "104 601 "},
        {"editing with a picture at hand",
         [] { game.editorActive = true, headlessWindow.clipboard = Image(1, 1); }, "104 105 601 "},
    };
    for (const auto& [state, make, offered] : cases) {
        make();
        EXPECT_EQ(Offered(), offered) << state;
        game = begun;
        mainDict.numDeleted = 0;
        formedWords = {};
        headlessWindow.clipboard.reset();
        SetTextOperation(false);
        EnableMenus();
    }
}

TEST_F(Menus, SwitchAndTickTheOptions) {
    Start();
    using Switch = std::tuple<int, bool Preferences::*, int>;  // a command, what it switches, and its item
    constexpr Switch kSwitches[] = {
        {303, &Preferences::rackAbove, 1012},           {304, &Preferences::niceLetterMix, 1014},
        {305, &Preferences::showComputerLetters, 1002}, {306, &Preferences::blinkComputerMoves, 1005},
        {307, &Preferences::tellComputerToMove, 1010},  {308, &Preferences::allowHints, 1013},
        {309, &Preferences::saveStatistics, 1004},      {1001, &Preferences::playSounds, 1007},
        {1002, &Preferences::playIntroMusic, 1015},     {1003, &Preferences::canWeTalk, 1008},
        {1004, &Preferences::playTileClicks, 1016},     {1005, &Preferences::playMixPermute, 1017},
        {1006, &Preferences::playBingoBonus, 1018},     {1007, &Preferences::playEndGame, 1019},
        {1008, &Preferences::playByeBye, 1020},
    };
    for (const auto& [command, preference, item] : kSwitches) {
        SCOPED_TRACE(command);
        const bool before = preferences.*preference;
        const bool tickedWhenOn = command != 1001;  // "All Off"
        for (bool expected : {!before, before}) {
            Choose(command);
            EXPECT_EQ(preferences.*preference, expected);
            EXPECT_EQ(ReadItems("Data/Prefs", {item}), expected ? "T|" : "F|");
            EXPECT_EQ(FindMenuItem(command)->checked, expected == tickedWhenOn);
        }
    }
}

TEST_F(Menus, NameTheListAndTheWord) {
    std::filesystem::rename(root / "Word Lists/Words.qld", root / "Word Lists/Nuts & Bolts.qld");
    WriteFile("Data/Help/HELPITEMS.txt", "Mix & match\r\n-\r\nTips\r\n");
    RememberWordList("Nuts & Bolts");
    Start();
    EXPECT_EQ(TextOf(503), "&Edit \"Nuts && Bolts\"...\tCtrl+E");
    EXPECT_EQ(TextOf(504), "&Revert \"Nuts && Bolts\"");
    EXPECT_EQ(TextOf(505), "&Save \"Nuts && Bolts\"");
    EXPECT_EQ(TextOf(512), "&Define ?\tCtrl+F");
    formedWords.remembered = "CAT";
    RefreshMenus();
    EXPECT_EQ(TextOf(512), "&Define \"CAT\"\tCtrl+F");
    EXPECT_THAT(Ticked(514), ElementsAre("Nuts && Bolts"));
    EXPECT_EQ(TextOf(603), "Mix && match");
    EXPECT_EQ(FindMenuItem(604), nullptr);
    EXPECT_EQ(TextOf(605), "Tips");
}

TEST_F(Menus, StartWithTheFirstNamesWhenThePreferredOnesAreGone) {
    Remove("Word Lists/Words.qld");
    RememberScenario("Gone");
    Start();
    EXPECT_THAT(TakeMessages(), ElementsAre());
    EXPECT_THAT(Ticked(205), ElementsAre("Classic"));
    EXPECT_THAT(Ticked(514), ElementsAre("Common"));
    EXPECT_EQ(wordList.current.View(), "Common");
    EXPECT_EQ(ReadFile("Data/Prefs/3001.str"), "Common");
}

TEST_F(Menus, ListTheWordListThatAScenarioAsksFor) {
    Start();
    std::filesystem::copy_file(root / "Word Lists/Common.qld", root / "Word Lists/Extra.qld");
    for (const auto& [wish, ticked] : {std::pair{"extra", "Extra"}, {"", "Words"}}) {
        scenario.requestedWordList = wish;
        FollowScenarioWordList();
        RefreshMenus();
        EXPECT_THAT(Ticked(514), ElementsAre(ticked));
    }
    EXPECT_EQ(ReadFile("Data/Prefs/3001.str"), "Words");
}

TEST_F(Menus, ChoosingWhatIsTickedDoesNothing) {
    StartGame({"Ann", "Bob"});
    game.history.movesCount = 1;
    headlessWindow.dialogsShown.clear();
    for (int command : {205, 515}) {
        ASSERT_TRUE(FindMenuItem(command)->checked);
        Choose(command);
    }
    EXPECT_TRUE(headless.questions.empty() && headlessWindow.dialogsShown.empty());
    EXPECT_EQ(game.history.movesCount, 1);
    Choose(206);
    EXPECT_EQ(headless.questions.at(0).text, "Cancel the current game?");
    EXPECT_FALSE(headless.questions[0].yesIsDefault);
    EXPECT_THAT(Ticked(205), ElementsAre("Classic"));
}

// A key pressed right after the click on DONE stands behind it in the queue; by then a computation goes on.
TEST_F(Menus, ACommandThatCameTooLateIsNotCarriedOut) {
    StartGame({"Ann", "Bob"});
    GiveRack(1, "READING");
    for (int slot = 1; slot <= 7; ++slot) Drag(MiddleOfSlot(slot), MiddleOfSquare(8, 4 + slot));
    Run();
    Click(MiddleOf(view.layout.doneButton));
    ChooseMenuItem(1);
    ChooseMenuItem(307);
    const bool before = preferences.tellComputerToMove;
    Run();
    EXPECT_EQ(game.history.movesCount, 1);
    EXPECT_GE(game.players[1].score, 50);
    EXPECT_TRUE(headless.questions.empty());
    EXPECT_NE(preferences.tellComputerToMove, before);
}

// The list that a computer player plays with for the moment is nobody's choice.
TEST_F(Menus, KeepTheirListWhileAComputerPlaysWithItsOwn) {
    StartGame({"Ann", "Pip 3"});
    RefreshMenus();
    DisableMenus();
    wordList.current = "Common";
    BeginComputation();
    PostEvent({.kind = Message::Kind::PointerMoved});
    ChooseMenuItem(308);
    for (int i = 0; i < 3; ++i) {
        headless.tick += 20;
        TimeCheck();
    }
    EXPECT_FALSE(FindMenuItem(308)->checked);
    EXPECT_THAT(Ticked(514), ElementsAre("Words"));
    EXPECT_EQ(TextOf(504), "&Revert \"Words\"");
    wordList.current = "Words";
    EnableMenus();
}

}  // namespace
}  // namespace quillet
