
#include "base/presentation.h"
#include "computer/opponents.h"
#include "store/bitmap_files.h"
#include "support/dialog_test.h"

namespace quillet {
namespace {

using Controls = PlayersControls;

class Players : public DialogTest {
  protected:
    Players() {
        for (const char* list : {"Animals.qld", "Large.qld"}) {
            WriteFile("Word Lists/" + std::string(list), "");
        }
        MakeOpponent("Bo", "Large");
        MakeOpponent("Pip");
        SavePicture(Image(2, 1, kBlue), "Opponents\\Bo\\9001.bmp");
    }

    static int Id(int row, Controls::Id control) { return Controls::InRow(control, row); }

    // What a row shows: "Human [Ada]", "Bo 7 Large (picture)".
    static std::string Row(Dialog& dialog, int row) {
        const auto isShown = [&](Controls::Id control) { return dialog.controls.at(Id(row, control)).shown; };
        std::string text = LineText(dialog, Id(row, Controls::kKind));
        if (isShown(Controls::kName)) text += " " + EditText(dialog, Id(row, Controls::kName));
        EXPECT_EQ(isShown(Controls::kName), isShown(Controls::kNameLabel));
        if (isShown(Controls::kSkill)) {
            text += " " + LineText(dialog, Id(row, Controls::kSkill)) + " " +
                    LineText(dialog, Id(row, Controls::kWordList));
        }
        for (const auto control : {Controls::kSkillLabel, Controls::kWordListLabel, Controls::kWordList}) {
            EXPECT_EQ(isShown(control), isShown(Controls::kSkill));
        }
        const bool hasPicture = dialog.controls.at(Id(row, Controls::kPicture)).picture != nullptr;
        return hasPicture && isShown(Controls::kPicture) ? text + " (picture)" : text;
    }
    static Strings Rows(Dialog& dialog) {
        return {Row(dialog, 1), Row(dialog, 2), Row(dialog, 3), Row(dialog, 4)};
    }
    static void Choose(Dialog& dialog, int row, Controls::Id control, int line) {
        ChooseLine(dialog, Id(row, control), line);
    }
    static void TypeName(Dialog& dialog, int row, const std::string& name) {
        Retype(dialog, Id(row, Controls::kName), name);
    }
    static void EnterName(Dialog& dialog, int row, const std::string& name) {
        Enter(dialog, Id(row, Controls::kName), name);
    }
    static Strings Names() {
        Strings names;
        for (int p = 1; p <= game.numPlayers; ++p) names.emplace_back(game.players[p].name);
        return names;
    }
};

TEST_F(Players, AreShownAsTheyPlayAndNothingChangesOnCancel) {
    SetPlayers({"Ada", "Bo 7", "Gone 0"});
    InDialog([](Dialog& dialog) {
        EXPECT_EQ(dialog.title, "Choose Players");
        EXPECT_THAT(Rows(dialog),
                    ElementsAre("Human [Ada]", "Bo 7 Large (picture)", "Bo 0 Large (picture)", "No player"));
        EXPECT_EQ(dialog.focus, Id(1, Controls::kName));
        Choose(dialog, 1, Controls::kKind, 0);
        Choose(dialog, 2, Controls::kWordList, 1);
        PressControl(dialog, kCancelId);
    });
    EXPECT_FALSE(ChoosePlayers());
    EXPECT_THAT(Names(), ElementsAre("Ada", "Bo 7", "Gone 0"));
    EXPECT_EQ(ReadFile("Opponents/Bo/300.str"), "Large");
}

TEST_F(Players, FirstStartAsksForAName) {
    SetPlayers({"?"});
    InDialog([](Dialog& dialog) {
        EXPECT_EQ(Row(dialog, 1), "Human [type name here]");
        EnterName(dialog, 1, "Ada");
    });
    EXPECT_TRUE(ChoosePlayers());
    EXPECT_EQ(ReadItems("Data/Prefs", {200, 201}), "1|Ada|");
}

TEST_F(Players, ChosenRowsCloseUpAndEachOpponentHasOneWordList) {
    SetPlayers({"Ada"});
    game.players[2].score = 7;
    game.players[2].turns = 2;
    InDialog([](Dialog& dialog) {
        Choose(dialog, 1, Controls::kKind, 2);  // the heading
        EXPECT_EQ(Row(dialog, 1), "Human [Ada]");
        EXPECT_EQ(headless.beeps, 1);
        Choose(dialog, 1, Controls::kKind, 0);
        Choose(dialog, 2, Controls::kKind, 3);
        Choose(dialog, 2, Controls::kWordList, 1);
        Choose(dialog, 2, Controls::kSkill, 0);
        Choose(dialog, 3, Controls::kKind, 4);
        Choose(dialog, 4, Controls::kKind, 1);
        EXPECT_EQ(dialog.focus, Id(4, Controls::kName));
        TypeName(dialog, 4, "Cy");
        Choose(dialog, 3, Controls::kKind, 3);
        EXPECT_THAT(Rows(dialog),
                    ElementsAre("No player", "Bo 9 Animals (picture)", "Bo 4 Animals (picture)", "Human Cy"));
        Choose(dialog, 3, Controls::kWordList, 0);
        Choose(dialog, 3, Controls::kSkill, 9);
        EXPECT_EQ(Row(dialog, 2), "Bo 9 Current word list (picture)");
        PressControl(dialog, kOkId);
    });
    EXPECT_TRUE(ChoosePlayers());
    EXPECT_THAT(Names(), ElementsAre("Bo 9", "Bo 0", "Cy"));
    EXPECT_TRUE(game.players[1].isComputer && game.players[1].opponent == 1 && !game.players[3].isComputer);
    EXPECT_EQ(game.players[2].score + game.players[2].turns, 0);
    EXPECT_EQ(ReadItems("Data/Prefs", {200, 201, 202, 203}), "3|Bo 9|Bo 0|Cy|");
    EXPECT_EQ(ReadFile("Opponents/Bo/300.str"), "");
    EXPECT_TRUE(opponentTable.entries[1].pictures[1]);
}

TEST_F(Players, WhatIsWrongIsToldInItsOrder) {
    SetPlayers({"Ada"});
    InDialog([](Dialog& dialog) {
        Choose(dialog, 1, Controls::kKind, 0);
        PressControl(dialog, kOkId);
        for (int row : {2, 3}) Choose(dialog, row, Controls::kKind, 1);
        EnterName(dialog, 2, "Thirteen char");
        EXPECT_EQ(dialog.focus, Id(3, Controls::kName));
        EnterName(dialog, 3, "Cy");
        EXPECT_EQ(dialog.focus, Id(2, Controls::kName));
        EXPECT_EQ(Row(dialog, 2), "Human Thirteen cha[r]");
    });
    EXPECT_FALSE(ChoosePlayers());
    EXPECT_THAT(TakeMessages(),
                ElementsAre("There must be at least one player.", "Type in name of human player.",
                            "Sorry, but that name is too long."));
}

TEST_F(Players, OneIsChangedInTheRunningGame) {
    StartGame({"Ada", "Bo 4"});
    InDialog([](Dialog& dialog) {
        EXPECT_EQ(dialog.title, "Change One Player");
        EXPECT_EQ(Row(dialog, 1), "Bo 4 Large (picture)");
        for (const int refused : {0, 2}) Choose(dialog, 1, Controls::kKind, refused);
        EXPECT_EQ(Row(dialog, 1), "Bo 4 Large (picture)");
        EXPECT_EQ(headless.beeps, 2);
        Choose(dialog, 1, Controls::kKind, 1);
        PressControl(dialog, kOkId);
        EXPECT_EQ(headless.beeps, 3) << "no name";
        EnterName(dialog, 1, "Thirteen char");
        EXPECT_EQ(Row(dialog, 1), "Human Thirteen cha[r]");
        EnterName(dialog, 1, "Cy");
    });
    EXPECT_TRUE(ChangeOnePlayer(2));
    EXPECT_THAT(Names(), ElementsAre("Ada", "Cy"));
    EXPECT_FALSE(game.players[2].isComputer);
    EXPECT_EQ(ReadItems("Data/Prefs", {200, 202}), "2|Cy|");
    EXPECT_THAT(TakeMessages(), ElementsAre("Sorry, but that name is too long."));
    InDialog([](Dialog& dialog) {
        Choose(dialog, 1, Controls::kKind, 4);
        Choose(dialog, 1, Controls::kWordList, 2);
        PressControl(dialog, kOkId);
    });
    EXPECT_TRUE(ChangeOnePlayer(2));
    EXPECT_THAT(Names(), ElementsAre("Ada", "Pip 4"));
    EXPECT_EQ(ReadFile("Opponents/Pip/300.str"), "Large");
    EXPECT_FALSE(ChangeOnePlayer(1));
    EXPECT_THAT(Names(), ElementsAre("Ada", "Pip 4"));
    ExpectConsistent();
}

}  // namespace
}  // namespace quillet
