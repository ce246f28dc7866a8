// The program's way in, its loop and its way out.
#include "shell/main_loop.h"

#include <gmock/gmock.h>

#include "base/idle_pump.h"
#include "data/saved_game.h"
#include "editors/board_editor.h"
#include "play/turns.h"
#include "store/preferences.h"
#include "support/running_program.h"
#include "support/world.h"
#include "view/view_state.h"
#include "words/dict.h"

namespace quillet {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MainLoop : public RunningProgram {
  protected:
    static std::vector<std::string> Questions() {
        std::vector<std::string> texts;
        for (const AskedQuestion& question : headless.questions) texts.push_back(question.text);
        return texts;
    }
    // What the loop's computations do at each of their checkpoints, some time later.
    static bool Checkpoint() {
        headless.tick += 20;
        return TimeCheck();
    }
    std::string SoundFile(const std::string& name) { return root / "Data/Sounds" / name; }
};

TEST_F(MainLoop, OffersOnTheWayOutWhatWouldBeLost) {
    const struct {
        int moves;
        bool over;
        bool listChanged;
        std::vector<std::string> questions;
    } cases[] = {{0, false, false, {}},
                 {1, false, false, {"Save current game?"}},
                 {1, true, false, {}},
                 {0, false, true, {"Save changes to \"Words\"?"}},
                 {1, false, true, {"Save current game?", "Save changes to \"Words\"?"}}};
    for (const auto& c : cases) {
        StartGame({"Ann", "Bob"});
        game.history.movesCount = c.moves;
        game.gameOver = c.over;
        mainDict.numAdded = c.listChanged;
        headless.questions.clear();
        headless.answers = {false, false};
        ChooseMenuItem(9);
        Run();
        EXPECT_EQ(Questions(), c.questions);
        EXPECT_TRUE(hasEnded);
        EXPECT_FALSE(headlessWindow.exists);
        hasEnded = false;
        mainDict.numAdded = 0;
    }
}

TEST_F(MainLoop, SavesTheGameOnTheWayOutAndRemembersTheWindowsPlace) {
    StartGame({"Ann", "Bob"});
    GiveScore(1, 0);
    headlessWindow.place = {31, 47};
    headlessWindow.fileAnswers = {(root / "mine.qlg").string()};
    RequestClose();
    Run();
    EXPECT_TRUE(hasEnded);
    ASSERT_EQ(headlessWindow.fileRequests.size(), 1U);
    EXPECT_NE(ReadFile("mine.qlg"), "<none>");
    EXPECT_EQ(ReadItems("Data/Prefs", {802, 803}), "47|31|");
}

TEST_F(MainLoop, GreetsAndSaysGoodbye) {
    StartProgram({.savedGame = "", .zoom = 1});
    EXPECT_THAT(headlessWindow.sounds, ElementsAre(SoundFile("start.wav")));
    RequestClose();
    Run();
    EXPECT_THAT(headlessWindow.sounds, ElementsAre(SoundFile("start.wav"), SoundFile("quit.wav")));
    for (bool Preferences::*preference : {&Preferences::playIntroMusic, &Preferences::playByeBye})
        FlipPreference(preference);
    hasEnded = false;
    view = {};
    headlessWindow.sounds.clear();
    StartProgram({.savedGame = "", .zoom = 1});
    RequestClose();
    Run();
    EXPECT_THAT(headlessWindow.sounds, IsEmpty());
}

TEST_F(MainLoop, WithoutATimerThePersonMayTryAgain) {
    headlessWindow.timersFail = true;
    headlessWindow.retryAnswers = {true};
    RunProgram({.savedGame = "", .zoom = 1});
    EXPECT_THAT(headlessWindow.retryBoxes,
                ElementsAre("Too many clocks or timers!", "Too many clocks or timers!"));
    EXPECT_FALSE(headlessWindow.exists);
}

TEST_F(MainLoop, OpensTheGameItIsGiven) {
    StartGame({"Ann", "Bob"});
    ASSERT_TRUE(SaveGame((root / "Mine.QLG").string()));
    std::filesystem::copy_file(root / "Mine.QLG", root / "Mine.txt");
    WriteFile("Broken.qlg", "version = 2\r\nnothing = \r\n");
    const struct {
        const char* file;
        bool opens;
        std::size_t warnings;
    } cases[] = {
        {"Mine.QLG", true, 0}, {"Mine.txt", false, 0}, {"Broken.qlg", false, 1}, {"No.qlg", false, 1}};
    for (const auto& c : cases) {
        view = {};
        StartProgram({.savedGame = (root / c.file).string(), .zoom = 1});
        EXPECT_EQ(game.gameStarted, c.opens) << c.file;
        EXPECT_EQ(TakeMessages().size(), c.warnings) << c.file;
        EXPECT_GT(mainDict.numwords, 0) << c.file;
        Run(2);
    }
}

// While a computation goes on the window answers, but nothing may change the game.
TEST_F(MainLoop, AComputationIsNotDisturbed) {
    StartGame({"Ann", "Bob"});
    GiveScore(1, 0);
    headless.beeps = 0;
    const Rack rack = game.players[1].rack;
    BeginComputation();
    RequestClose();
    Click(MiddleOf(view.layout.mixButton));
    Click(MiddleOf(view.layout.doneButton));
    TypeText("0 .");
    while (HasInvalid() || headless.beeps == 0) ASSERT_FALSE(Checkpoint());
    for (int i = 0; i < 10; ++i) EXPECT_FALSE(Checkpoint());
    EXPECT_EQ(headless.beeps, 1) << "the request to close";
    EXPECT_TRUE(game.players[1].rack.positions == rack.positions);
    EXPECT_EQ(game.currentPlayer, 1);
    EXPECT_TRUE(headless.questions.empty());
    PressKey(Key::Escape);
    EXPECT_TRUE(Checkpoint());
    Run();
    EXPECT_FALSE(hasEnded);
}

TEST_F(MainLoop, TheBoardEditorIsNotClosedWithTheWindow) {
    Start();
    OpenBoardEditor();
    headless.beeps = 0;
    RequestClose();
    Run();
    EXPECT_EQ(headless.beeps, 1);
    EXPECT_FALSE(hasEnded);
}

TEST_F(MainLoop, NewColoursAreDrawnWhenTheWindowIsActiveAgain) {
    Start();
    PostEvent({.kind = Message::Kind::Deactivated});
    PostEvent({.kind = Message::Kind::ColoursChanged});
    Run();
    constexpr Colour kNothing = 0x123456;
    const Point corner{view.layout.client.width - 1, view.layout.client.height - 1};
    WindowCanvas().Fill(Rect::At(corner, {1, 1}), kNothing);
    PostEvent({.kind = Message::Kind::Activated});
    Run();
    EXPECT_NE(WindowCanvas().At(corner), kNothing);
    WindowCanvas().Fill(Rect::At(corner, {1, 1}), kNothing);
    PostEvent({.kind = Message::Kind::Deactivated});
    PostEvent({.kind = Message::Kind::Activated});
    Run();
    EXPECT_EQ(WindowCanvas().At(corner), kNothing) << "drawn again without need";
}

TEST_F(MainLoop, AnUndoneMoveOfAComputerWaitsToBeTold) {
    StartGame({"Ann", "Pip 3"});
    FlipPreference(&Preferences::tellComputerToMove);
    preferences.playSounds = false;
    TypeText("0");
    headless.answers = {true};  // to pass
    Run(3);
    ASSERT_GE(game.history.movesCount, 2);
    ASSERT_EQ(game.currentPlayer, 1);
    ChooseMenuItem(101);
    Run(3);
    EXPECT_EQ(game.history.movesCount, 1);
    EXPECT_TRUE(preferences.tellComputerToMove);
    EXPECT_EQ(ReadFile("Data/Prefs/1010.str"), "T");
}

}  // namespace
}  // namespace quillet
