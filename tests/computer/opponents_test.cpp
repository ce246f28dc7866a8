#include "computer/opponents.h"

#include <gmock/gmock.h>

#include "store/bitmap_files.h"
#include "store/preferences.h"
#include "support/temp_folder.h"

namespace quillet {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Opponents : public TempFolder {
  protected:
    Opponents() {
        game = FreshGameState();
        opponentTable = {};
        ClosePrefs();
        MakeFolder("Data/Prefs");
        LoadPreferences();
    }

    void WriteItem(const std::string& opponent, int id, const std::string& value) {
        WriteFile("Opponents/" + opponent + "/" + std::to_string(id) + ".str", value);
    }

    static void SetPlayers(const std::vector<std::string>& names) {
        game.numPlayers = static_cast<std::uint16_t>(names.size());
        for (int p = 1; p <= game.numPlayers; ++p) {
            game.players[p].name = std::string_view(names[static_cast<std::size_t>(p) - 1]);
            PlayerKindFromName(p);
        }
    }

    static std::vector<std::string> Listed() {
        std::vector<std::string> names;
        for (int i = 1; i <= opponentTable.numOpponents; ++i) {
            names.emplace_back(opponentTable.entries[static_cast<std::size_t>(i)].name.View());
        }
        return names;
    }
    static const Opponent& Entry(std::size_t i) { return opponentTable.entries[i]; }
};

TEST_F(Opponents, FoldersAreListedSortedAndCut) {
    for (const char* name : {"strix", "Pip", "Grandmaster", ".hidden", "Zoe"})
        MakeFolder("Opponents/" + std::string(name));
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
    for (Player& player : game.players) player.rack.positions[1] = 'A';
    ListOpponents();
    for (const Player& player : game.players) EXPECT_EQ(player.rack.EmptyPosition(), 1);
    EXPECT_THAT(TakeMessages(), ElementsAre("The Opponents folder is missing!"));
    EXPECT_THAT(Listed(), IsEmpty());
    EXPECT_TRUE(game.numPlayers == 2 && game.players[1].name == "Ann" && game.players[2].skill == 7);
}

TEST_F(Opponents, NameTellsSkillAndOpponent) {
    for (const char* name : {"Pip", "Strix"}) MakeFolder("Opponents/" + std::string(name));
    ListOpponents();
    struct Case {
        std::string name;
        bool isComputer;
        int skill, opponent;
    };
    for (const Case& c : {Case{"Strix 7", true, 7, 2}, Case{"Pip  0", true, 0, 1}, Case{"Pip9", true, 9, 1},
                          Case{"Bob 2", true, 2, 0}, Case{"Pip", false, 0, 0}}) {
        SetPlayers({c.name});
        const Player& player = game.players[1];
        EXPECT_TRUE(player.isComputer == c.isComputer && player.skill == c.skill &&
                    player.opponent == c.opponent)
            << c.name;
    }
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
    LoadOpponentData();
    EXPECT_EQ(Entry(1).lexicon, "") << "Bo does not play";
    EXPECT_EQ(Entry(2).lexicon, "Large");
    EXPECT_EQ(Entry(2).textColour, 0xFFFF00U);
    EXPECT_EQ(Entry(2).pictures[4]->image, Image(2, 1, kBlue));
    EXPECT_FALSE(Entry(2).pictures[1]);
    EXPECT_EQ(Entry(2).voices[6], "Pip\\8006.wav");
    EXPECT_EQ(Entry(3).textColour, kWhite) << "an opponent without a colour";

    std::filesystem::remove_all(root / "Opponents/Bo");
    SetPlayers({"Bo 4"});
    LoadOpponentData();
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
    const std::vector<std::string> choices{"Current word list", "Animals", "Large"};
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

TEST_F(Opponents, ShippedOnesAreWhole) {
    const auto assets = std::filesystem::path(__FILE__).parent_path() / "../../assets";
    std::filesystem::copy(assets / "Opponents", root / "Opponents", std::filesystem::copy_options::recursive);
    ListOpponents();
    EXPECT_GE(Listed().size(), 8U);
    SetPlayers({"Cogwell 1", "Pip 2", "Strix 3", "Octavia 4"});
    LoadOpponentData();
    std::string summary;
    for (int p = 1; p <= 4; ++p) {
        const Opponent& opponent = Entry(static_cast<std::size_t>(game.players[p].opponent));
        summary +=
            std::string(opponent.textColour == kWhite ? "white " : "yellow ").append(opponent.lexicon) + "/";
    }
    EXPECT_EQ(summary, "yellow /white Common/white Large/white /");
}

}  // namespace
}  // namespace quillet
