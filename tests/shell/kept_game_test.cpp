// Never lose a game: what stays of a run that did not end properly, and what the next start makes of it.
#include "shell/kept_game.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>

#include "editors/board_editor.h"
#include "play/history.h"
#include "play/turns.h"
#include "store/preferences.h"
#include "support/full_disk.h"
#include "support/running_program.h"
#include "support/world.h"

namespace quillet {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kGame = "Data/Prefs/Running.qlg";
constexpr const char* kSecondGame = "Data/Prefs/Running 2.qlg";
constexpr const char* kQuestion = "The last game was not ended properly.  Go on with it?";

class KeptGame : public RunningProgram {
  protected:
    ~KeptGame() override { EndKeepingGame(true); }

    // A game of two people in which so many passed; then the loop has run.
    void PlayPasses(int count) {
        StartGame({"Ann", "Bob", "Cy"});
        Pass(count);
    }
    void Pass(int count) {
        for (int i = 0; i < count; ++i) {
            headless.answers.push_back(true);
            TypeText("0");
            Run();
        }
        headless.answers.clear();
        headless.questions.clear();
        headless.messages.clear();
    }
    bool Holds(const std::string& path, const std::string& line) {
        return ReadFile(path).find("\r\n" + line + "\r\n") != std::string::npos;
    }
    // The program is killed and started again; what it then asked.
    std::vector<std::string> StartAgain(bool answer, const std::string& savedGame = "") {
        ResetHeadlessWindow();
        game = FreshGameState();
        headless.questions.clear();
        headless.answers = {answer};
        Start(savedGame);
        headless.answers.clear();
        std::vector<std::string> questions;
        for (const AskedQuestion& question : headless.questions) questions.push_back(question.text);
        return questions;
    }
};

TEST_F(KeptGame, EveryMoveIsKeptAndNothingBeforeTheFirst) {
    PlayPasses(0);
    EXPECT_EQ(ReadFile(kGame), "<none>");
    Pass(1);
    EXPECT_TRUE(Holds(kGame, "moves = 1")) << ReadFile(kGame);
    Pass(1);
    EXPECT_TRUE(Holds(kGame, "moves = 2"));
}

TEST_F(KeptGame, MovesTakenBackAreKeptUntilAnotherIsMade) {
    PlayPasses(2);
    const std::string kept = ReadFile(kGame);
    UndoMove();
    UndoMove();
    Run();
    EXPECT_EQ(game.history.movesCount, 0);
    EXPECT_EQ(ReadFile(kGame), kept);
    Pass(1);
    EXPECT_TRUE(Holds(kGame, "moves = 1"));
    UndoMove();
    Run();
    EXPECT_THAT(StartAgain(true), ElementsAre(kQuestion));
    EXPECT_EQ(game.history.movesCount, 1);
}

TEST_F(KeptGame, MoveThatIsBeingAnnouncedIsNotKeptBeforeItIsComplete) {
    StartGame({"Ann", "Bob"});
    std::string rack = RackOf(1);
    while (rack.find('?') != std::string::npos) {
        StartGame({"Ann", "Bob"});
        rack = RackOf(1);
    }
    PostEvent({.kind = Message::Kind::PointerMoved, .at = MiddleOfSquare(8, 8)});
    TypeText(rack);
    headless.answers = {true};  // add the word
    TypeText("0");
    // A dialog that is opened in the middle of the announcement looks at the file.
    std::string kept;
    headlessWindow.dialogScripts = {[&](Dialog&) {
        EXPECT_EQ(game.history.movesCount, 1);
        kept = ReadFile(kGame);
    }};
    PostEvent({.kind = Message::Kind::Command, .command = 311}, 500);
    Run(2);
    EXPECT_EQ(kept, "<none>");
    EXPECT_TRUE(Holds(kGame, "moves = 1"));
    StartAgain(true);
    EXPECT_TRUE(game.IsRunning());
    EXPECT_EQ(RackOf(1).size(), 7U);
}

TEST_F(KeptGame, StaysWhileTheBoardIsEditedBecauseCancelGoesBackToIt) {
    PlayPasses(2);
    OpenBoardEditor();
    Run();
    EXPECT_TRUE(Holds(kGame, "moves = 2"));
    HandleBoardEditorControl({.kind = Message::Kind::ControlEvent, .command = 2});  // Cancel
    Run();
    EXPECT_TRUE(Holds(kGame, "moves = 2"));
    OpenBoardEditor();
    HandleBoardEditorControl({.kind = Message::Kind::ControlEvent, .command = 1});  // Save
    Run();
    EXPECT_EQ(ReadFile(kGame), "<none>");
}

TEST_F(KeptGame, ComesBackWhenAnotherCannotBeOpened) {
    PlayPasses(2);
    const std::string rack = RackOf(1);
    std::string cut = ReadFile(kGame);
    cut.resize(cut.find("moves = "));
    WriteFile("cut.qlg", cut);
    headlessWindow.fileAnswers = {(root / "cut.qlg").string()};
    ChooseMenuItem(2);
    Run();
    EXPECT_THAT(TakeMessages(), ElementsAre(testing::HasSubstr("Unexpected end to file")));
    EXPECT_TRUE(game.IsRunning());
    EXPECT_EQ(game.history.movesCount, 2);
    EXPECT_EQ(RackOf(1), rack);
    EXPECT_TRUE(Holds(kGame, "moves = 2"));
}

TEST_F(KeptGame, ComputersOnlyAreKeptWhileTheyPlay) {
    StartGame({"Pip 3", "Strix 3"});
    ASSERT_EQ(game.history.movesCount, 0);
    if (preferences.tellComputerToMove) FlipPreference(&Preferences::tellComputerToMove);
    // A dialog that is opened in the middle of their game looks at the file.
    int moves = 0;
    std::string kept;
    headlessWindow.dialogScripts = {[&](Dialog&) {
        moves = game.history.movesCount;
        kept = ReadFile(kGame);
    }};
    PostEvent({.kind = Message::Kind::Command, .command = 311}, 5000);
    Run();
    EXPECT_GT(moves, 0);
    EXPECT_NE(kept.find("\r\nmoves = " + std::to_string(moves) + "\r\n"), std::string::npos) << kept;
}

TEST_F(KeptGame, UnchangedGameIsNotWrittenAgain) {
    PlayPasses(1);
    Remove(kGame);
    Run(3);
    EXPECT_EQ(ReadFile(kGame), "<none>");
}

TEST_F(KeptGame, GoesAtTheEndOfTheGameAndAtANewGame) {
    PlayPasses(2);
    ASSERT_NE(ReadFile(kGame), "<none>");
    Pass(1);
    ASSERT_TRUE(game.gameOver);
    EXPECT_EQ(ReadFile(kGame), "<none>");
    ChooseMenuItem(1);
    Run();
    Pass(1);
    ASSERT_NE(ReadFile(kGame), "<none>");
    headless.answers = {true};  // cancel the current game
    ChooseMenuItem(1);
    Run();
    EXPECT_EQ(ReadFile(kGame), "<none>");
}

TEST_F(KeptGame, GoesAtAProperEndUnlessItWasToBeSavedAndWasNot) {
    struct Case {
        bool save;
        std::optional<std::string> file;  // none: the person cancels
        bool stays;
    };
    for (const Case& each :
         {Case{false, {}, false}, Case{true, (root / "mine.qlg").string(), false}, Case{true, {}, true}}) {
        hasEnded = false;
        PlayPasses(1);
        headless.answers = {each.save};
        headlessWindow.fileAnswers = {each.file};
        PostEvent({.kind = Message::Kind::CloseRequest});
        Run();
        EXPECT_TRUE(hasEnded);
        EXPECT_EQ(ReadFile(kGame) != "<none>", each.stays);
    }
}

TEST_F(KeptGame, NextStartGoesOnWithIt) {
    PlayPasses(2);
    const std::string rack = RackOf(1);
    const std::string kept = ReadFile(kGame);
    EXPECT_THAT(StartAgain(true), ElementsAre(kQuestion));
    EXPECT_TRUE(game.IsRunning());
    EXPECT_EQ(game.history.movesCount, 2);
    EXPECT_EQ(RackOf(1), rack);
    EXPECT_EQ(ReadFile(kGame), kept);
    // It is no file of the person's: saving proposes another.
    ChooseMenuItem(3);
    Run();
    ASSERT_EQ(headlessWindow.fileRequests.size(), 1U);
    EXPECT_NE(headlessWindow.fileRequests[0].name, "Running.qlg");
    EXPECT_THAT(StartAgain(false), ElementsAre(kQuestion));
    EXPECT_FALSE(game.IsRunning());
    EXPECT_EQ(ReadFile(kGame), "<none>");
    EXPECT_THAT(StartAgain(true), IsEmpty());
}

TEST_F(KeptGame, StartWithANamedGameLeavesItForTheNext) {
    PlayPasses(2);
    WriteFile("named.qlg", ReadFile(kGame));
    EXPECT_THAT(StartAgain(true, (root / "named.qlg").string()), IsEmpty());
    Pass(1);
    EXPECT_TRUE(game.gameOver);
    EXPECT_TRUE(Holds(kGame, "moves = 2"));
    EXPECT_THAT(StartAgain(true, (root / "missing.qlg").string()), ElementsAre(kQuestion));
}

TEST_F(KeptGame, SecondProgramKeepsItsOwnAndStealsNone) {
    WriteFile(kGame, "the game of a program that is running");
    const int lock = open((root / "Data/Prefs/Running.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    ASSERT_EQ(flock(lock, LOCK_EX | LOCK_NB), 0);
    PlayPasses(1);
    EXPECT_THAT(headless.questions, IsEmpty());
    EXPECT_TRUE(Holds(kSecondGame, "moves = 1"));
    EXPECT_EQ(ReadFile(kGame), "the game of a program that is running");
    EXPECT_THAT(StartAgain(true), ElementsAre(kQuestion));
    EXPECT_EQ(game.history.movesCount, 1);
    close(lock);
}

TEST_F(KeptGame, DamagedFileIsToldAndLeftAndDoesNotStopTheStart) {
    WriteFile(kGame, "version = 2\r\nscenario = Nowhere\r\n");
    ResetHeadlessWindow();
    headless.answers = {true};
    PlayPasses(1);
    EXPECT_EQ(ReadFile(kGame), "version = 2\r\nscenario = Nowhere\r\n");
    EXPECT_TRUE(Holds(kSecondGame, "moves = 1"));
    ResetHeadlessWindow();
    headless.questions.clear();
    headless.answers = {true, true};
    Start();
    EXPECT_EQ(headless.questions.size(), 2U);
    EXPECT_EQ(game.history.movesCount, 1);
}

TEST_F(KeptGame, FullDiskIsToldOnce) {
    PlayPasses(1);
    const std::string kept = ReadFile(kGame);
    headless.answers = {true};
    {
        const FullDisk disk(300);
        TypeText("0");
        Run(3);
        EXPECT_EQ(TakeMessages().size(), 1U);
        EXPECT_EQ(ReadFile(kGame), kept);
    }
    Run();
    EXPECT_TRUE(Holds(kGame, "moves = 2"));
}

TEST_F(KeptGame, FailureIsToldOnceAndTheGameIsKeptAsSoonAsItCanBe) {
    PlayPasses(0);
    MakeFolder(kGame);  // nothing can be written there
    headless.answers = {true, true};
    TypeText("0");
    Run(3);
    TypeText("0");
    Run(3);
    EXPECT_THAT(TakeMessages(), ElementsAre("Couldn't create game file: Data\\Prefs\\Running.qlg"));
    Remove(kGame);
    Run();
    EXPECT_TRUE(Holds(kGame, "moves = 2"));
}

}  // namespace
}  // namespace quillet
