// The program's way in, its loop and its way out.
#include "shell/main_loop.h"

#include "base/idle_pump.h"
#include "data/saved_game.h"
#include "support/running_program.h"
#include "words/dict.h"

namespace quillet {
namespace {

class MainLoop : public RunningProgram {
  protected:
    static Strings Questions() {
        Strings texts;
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
    const std::tuple<int, bool, bool, Strings> cases[] = {
        // moves made, is the game over, was the word list changed; and the questions
        {0, false, false, {}},
        {1, false, false, {"Save current game?"}},
        {1, true, false, {}},
        {0, false, true, {"Save changes to \"Words\"?"}},
        {1, false, true, {"Save current game?", "Save changes to \"Words\"?"}}};
    for (const auto& [moves, over, listChanged, questions] : cases) {
        hasEnded = false;
        StartGame({"Ann", "Bob"});
        game.history.movesCount = moves;
        game.gameOver = over;
        mainDict.numAdded = listChanged;
        headless.questions.clear();
        headless.answers = {false, false};
        Choose(9);
        EXPECT_EQ(Questions(), questions);
        EXPECT_TRUE(hasEnded && !headlessWindow.exists);
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

TEST_F(MainLoop, GreetsAndSaysGoodbyeUnlessItShallNot) {
    for (bool wanted : {true, false}) {
        hasEnded = false;
        view = {};
        headlessWindow.sounds.clear();
        StartProgram({.savedGame = "", .zoom = 1});
        RequestClose();
        Run();
        EXPECT_EQ(headlessWindow.sounds,
                  wanted ? Strings({SoundFile("start.wav"), SoundFile("quit.wav")}) : Strings());
        for (auto preference : {&Preferences::playIntroMusic, &Preferences::playByeBye})
            FlipPreference(preference);
    }
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
    const std::tuple<std::string, bool, std::size_t> cases[] = {
        // the file, whether it opens, and how many warnings there are
        {"Mine.QLG", true, 0},
        {"Mine.txt", false, 0},
        {"Broken.qlg", false, 1},
        {"No.qlg", false, 1}};
    for (const auto& [file, opens, warnings] : cases) {
        view = {};
        StartProgram({.savedGame = root / file, .zoom = 1});
        EXPECT_EQ(game.gameStarted, opens) << file;
        EXPECT_THAT(TakeMessages(), SizeIs(warnings)) << file;
        EXPECT_GT(mainDict.numwords, 0) << file;
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

TEST_F(MainLoop, NewColoursAreDrawnWhenTheWindowIsActiveAgain) {
    Start();
    constexpr Colour kNothing = 0x123456;
    const Point corner{view.layout.client.width - 1, view.layout.client.height - 1};
    for (bool coloursChange : {true, false}) {
        WindowCanvas().Fill(Rect::At(corner, {1, 1}), kNothing);
        PostEvent({.kind = Message::Kind::Deactivated});
        if (coloursChange) PostEvent({.kind = Message::Kind::ColoursChanged});
        Run();
        EXPECT_EQ(WindowCanvas().At(corner), kNothing);
        PostEvent({.kind = Message::Kind::Activated});
        Run();
        EXPECT_EQ(WindowCanvas().At(corner) != kNothing, coloursChange);
    }
}

}  // namespace
}  // namespace quillet
