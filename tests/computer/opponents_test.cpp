#include "computer/opponents.h"

#include "store/bitmap_files.h"
#include "support/world.h"

namespace quillet {
namespace {

class Opponents : public World {
  protected:
    Opponents() { LoadPreferences(); }

    void WriteItem(const std::string& opponent, int id, const std::string& value) {
        WriteFile("Opponents/" + opponent + "/" + std::to_string(id) + ".str", value);
    }
    static Strings Listed() {
        Strings names;
        for (int i = 1; i <= opponentTable.numOpponents; ++i) {
            names.emplace_back(opponentTable.entries[static_cast<std::size_t>(i)].name.View());
        }
        return names;
    }
    static const Opponent& Entry(std::size_t i) { return opponentTable.entries[i]; }
};

TEST_F(Opponents, FoldersAreListedSortedAndCut) {
    for (const std::string name : {"strix", "Pip", "Grandmaster", ".hidden", "Zoe"})
        MakeFolder("Opponents/" + name);
    WriteFile("Opponents/.gitkeep", "");
    ListOpponents();
    EXPECT_THAT(Listed(), ElementsAre("Grandmaste", "Pip", "strix", "Zoe"));
    for (char letter = 'A'; letter <= 'Z'; ++letter) MakeFolder("Opponents/Q" + std::string(1, letter));
    ListOpponents();
    EXPECT_EQ(Listed().size(), 20U);
    EXPECT_EQ(Entry(0).name, "unknown");
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(Opponents, WithoutTheirFolderThePlayersAreStillRead) {
    SetPlayers({"Ann", "Bo 7"});
    SavePlayers();
    game = FreshGameState();
    game.players[1].rack.positions[1] = 'A';
    ListOpponents();
    EXPECT_EQ(RackOf(1), "");
    EXPECT_THAT(TakeMessages(), ElementsAre("The Opponents folder is missing!"));
    EXPECT_THAT(Listed(), IsEmpty());
    EXPECT_TRUE(game.numPlayers == 2 && game.players[1].name == "Ann" && game.players[2].skill == 7);
}

TEST_F(Opponents, OnlyThoseWhoPlayAreLoaded) {
    for (const char* name : {"Bo", "Pip"}) {
        WriteItem(name, 300, "Large");
        WriteItem(name, 203, "yellow");
        SavePicture(Image(2, 1, kBlue), "Opponents\\" + std::string(name) + "\\9004.bmp");
    }
    MakeFolder("Opponents/Strix");
    ListOpponents();
    SetPlayers({"Pip 4", "Ann", "Pip 9", "Strix 3"});
    EXPECT_EQ(Entry(1).lexicon, "") << "Bo does not play";
    EXPECT_EQ(Entry(2).lexicon, "Large");
    EXPECT_EQ(Entry(2).textColour, 0xFFFF00U);
    EXPECT_EQ(Entry(2).pictures[4]->image, Image(2, 1, kBlue));
    EXPECT_FALSE(Entry(2).pictures[1]);
    EXPECT_EQ(Entry(2).voices[6], "Pip\\8006.wav");
    EXPECT_EQ(Entry(3).textColour, kWhite) << "an opponent without a colour";

    std::filesystem::remove_all(root / "Opponents/Bo");
    SetPlayers({"Bo 4"});
    EXPECT_FALSE(Entry(2).pictures[4]) << "pictures of those who left are dropped";
    EXPECT_EQ(Entry(1).voices[1], "");
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(Opponents, ColoursGoByTheFirstLetter) {
    using Named = std::pair<const char*, Colour>;
    for (const auto& [name, colour] :
         {Named{"white", 0xFFFFFF}, Named{"Y", 0xFFFF00}, Named{"cyan", 0x00FFFF}, Named{"blue", 0x0000FF},
          Named{"black", 0}, Named{"bl", 0}, Named{"pink", 0}, Named{"", 0}}) {
        EXPECT_EQ(ColourNamed(name), colour) << name;
    }
}

TEST_F(Opponents, WordListChoicesOfferAllListsThatHaveAName) {
    for (const char* name : {"words", "Animals", "Large", "A name that is just one letter ov"}) {
        WriteFile("Word Lists/" + std::string(name) + ".qld", "");
    }
    EXPECT_THAT(WordListChoices(), ElementsAre("Current word list", "Animals", "Large", "words"));
    for (int i = 0; i < 100; ++i) WriteFile("Word Lists/n" + std::to_string(i) + ".qld", "");
    EXPECT_EQ(WordListChoices().size(), 101U);
}

TEST_F(Opponents, ChosenWordListIsKeptInTheFolder) {
    const Strings choices{"Current word list", "Animals", "Large"};
    WriteItem("Pip", 300, "large");
    ListOpponents();
    EXPECT_EQ(WordListChoiceOf(1, choices), 2U);
    SaveOpponentLexicon(1, choices, 2);
    EXPECT_EQ(ReadFile("Opponents/Pip/300.str"), "large") << "the same name: nothing to write";
    SaveOpponentLexicon(1, choices, 1);
    EXPECT_EQ(ReadFile("Opponents/Pip/300.str"), "Animals");
    SaveOpponentLexicon(1, choices, 0);
    EXPECT_EQ(ReadFile("Opponents/Pip/300.str"), "");
    EXPECT_EQ(WordListChoiceOf(1, choices), 0U);
    WriteItem("Pip", 300, "Gone");
    EXPECT_EQ(WordListChoiceOf(1, choices), 0U);

    SaveOpponentLexicon(0, choices, 1);
    EXPECT_THAT(TakeMessages(), IsEmpty());
    std::filesystem::remove_all(root / "Opponents/Pip");
    SaveOpponentLexicon(1, choices, 1);
    EXPECT_THAT(TakeMessages(), ElementsAre("Could not find opponent: Pip"));
}

}  // namespace
}  // namespace quillet
