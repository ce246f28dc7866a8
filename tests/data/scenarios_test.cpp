#include "data/scenarios.h"

#include "play/turns.h"
#include "store/item_store.h"
#include "support/random_games.h"
#include "words/bonus_words.h"

namespace quillet {
namespace {

class Scenarios : public World {
  protected:
    Scenarios() { MakeFolder("Scenarios"); }

    static std::string PathOf(int id) { return "Scenarios/Mine/" + std::to_string(id) + ".str"; }
    void SetItem(int id, const std::string& value) { WriteFile(PathOf(id), value); }
    std::string Item(int id) { return ReadFile(PathOf(id)); }
    std::string Items(std::initializer_list<int> ids) { return ReadItems("Scenarios/Mine", ids); }
};

TEST_F(Scenarios, NewOneHasTheDefaultItemsAndPicturesAndCanBeLoaded) {
    const std::string picture("BM\0\r\n\x1A", 6);
    WriteFile("Data/Graphics/b203.bmp", picture);
    ASSERT_EQ(CreateScenario("Mine"), NewScenarioFault::None);
    EXPECT_EQ(Items({12345, 199, 300, 301, 350, 400, 401, 500, 501, 600, 601}),
              "1|Select \"Edit Scenario\" to change this text.|1332142418513113:11114484:0|"
              "9224<2329114268216464221212|50|15|15|8|8|0|F|");
    EXPECT_EQ(Item(402), std::string(225, '.'));
    EXPECT_EQ(ReadFile("Scenarios/Mine/b203.bmp"), picture);
    EXPECT_EQ(CountEntries("Scenarios/Mine"), 13U);
    LoadScenario();
    EXPECT_EQ(game.bag.tilesleft, 100);
    EXPECT_EQ(ReadFile("Data/Prefs/4000.str"), "Mine");
    EXPECT_EQ(recorded.Count("LoadSquarePictures Scenarios\\Mine"), 1);
}

TEST_F(Scenarios, NamesThatCannotBeAreRefusedAndTheOthersListed) {
    MakeFolder("Scenarios/Mine");
    SetCurrentScenario("Old");
    const std::string longest(31, 'x');
    using enum NewScenarioFault;
    const std::tuple<std::string, NewScenarioFault, const char*> cases[] = {
        {"", NoName, ""},
        {longest + "x", NameTooLong, "Sorry, but that name is too long."},
        {"mine", Exists, "Sorry, but that scenario already exists."},
        {"a/b", NotCreated, "Could not create the new scenario!"},
        {".hidden", NotCreated, "Could not create the new scenario!"},
    };
    for (const auto& [name, fault, text] : cases) {
        EXPECT_EQ(CreateScenario(name), fault) << name;
        EXPECT_EQ(TextOf(fault), text);
    }
    EXPECT_EQ(CurrentScenario(), "Old");
    EXPECT_EQ(CreateScenario(longest), None);
    MakeFolder("Scenarios/" + longest + "x");
    EXPECT_THAT(ListScenarios(), ElementsAre("Mine", longest));
    for (int i = 0; i < 100; ++i) MakeFolder("Scenarios/" + std::to_string(i));
    EXPECT_THAT(ListScenarios(), SizeIs(95));
    std::filesystem::remove_all(root / "Scenarios");
    EXPECT_FALSE(CheckScenariosFolder());
    EXPECT_THROW(ListScenarios(), ProgramEnd);
    MakeFolder("Scenarios");
    EXPECT_THROW(ListScenarios(), ProgramEnd);
    EXPECT_THAT(TakeMessages(),
                ElementsAre("The Scenarios folder is missing!", "Sorry, but the Scenarios folder is missing!",
                            "Sorry, but there are no scenarios!"));
}

TEST_F(Scenarios, OnlyOneOfOurVersionExists) {
    CreateScenario("Mine");
    WriteFile("Scenarios/New/12345.str", "2");
    for (const char* name : {"", "..", "Mine/", "Gone", "New"}) EXPECT_FALSE(ScenarioExists(name)) << name;
    EXPECT_THAT(TakeMessages(), ElementsAre("Unexpected version in scenario!"));
    SetItem(kVersionItem, "1 and more");
    EXPECT_TRUE(ScenarioExists("MINE"));
    EXPECT_EQ(Item(kVersionItem), "1") << "rewritten each time";
    EXPECT_EQ(CurrentScenario(), "Mine");
    SetCurrentScenario("Gone");
    EXPECT_THROW(LoadScenario(), ProgramEnd);
    EXPECT_FALSE(ReadAboutText());
    EXPECT_EQ(TakeMessages(), Strings(2, "Could not open scenario: \"Gone\""));
    EXPECT_FALSE(SaveScenarioLetters() || SaveScenarioBoard(true) || SaveBonusWords() || SaveAboutText(""));
    EXPECT_EQ(TakeMessages(), Strings(4, "Scenario changes could not be saved."));
}

TEST_F(Scenarios, WhatIsSavedIsLoaded) {
    CreateScenario("Mine");
    LoadScenario();
    GameSettings& settings = game.settings;
    settings.letterValues['A'] = 12;
    settings.letterCounts[kBlank] = 5;
    settings.sevenLetterBonus = 60;
    settings.bonusWordValue = -3;
    settings.bonusWordsEnabled = true;
    bonusWords = {"AXE"};
    InstallBoard({.rows = 11, .cols = 9, .startRow = 3, .startCol = 4, .squares = "dDtTqQpP123456."});
    EXPECT_TRUE(SaveScenarioLetters() && SaveScenarioBoard(false) && SaveBonusWords());
    EXPECT_EQ(recorded.Count("SaveSquarePictures"), 0);
    EXPECT_TRUE(SaveScenarioBoard(true) && SaveAboutText("It's\r\nme"));
    EXPECT_EQ(recorded.Count("SaveSquarePictures Scenarios\\Mine"), 1);
    const auto items = [&] { return Items({300, 301, 350, 400, 401, 500, 501, 600, 601, 602, 402}); };
    const std::string saved = items();
    EXPECT_EQ(saved, "<332142418513113:11114484:0|9224<2329114268216464221215|60|11|9|3|4|-3|T|AXE\r\n|" +
                         ("dDtTqQpP123456." + std::string(210, '.')) + "|");
    SetItem(700, "Common");
    game = FreshGameState();
    LoadScenario();
    EXPECT_EQ(game.bounds, (BoardBounds{3, 13, 4, 12}));
    EXPECT_EQ(scenario.requestedWordList, "Common");
    EXPECT_EQ(ReadAboutText(), "It's\r\nme");
    SetItem(199, std::string(256, 'x') + "y");
    EXPECT_EQ(ReadAboutText(), std::string(256, 'x'));
    EXPECT_TRUE(SaveAboutText(std::string(256, 'x')));
    EXPECT_EQ(Item(199), std::string(255, 'x'));
    EXPECT_TRUE(SaveScenarioLetters() && SaveScenarioBoard(false) && SaveBonusWords());
    EXPECT_EQ(items(), saved);
}

TEST_F(Scenarios, OddItemsMakeASoundBoard) {
    const std::string oneFree = std::string(100, '2') + "." + std::string(124, '3');
    const std::tuple<Strings, std::string, BoardBounds, BoardPosition> boards[] = {
        // rows, columns, start row, start column; the squares; the board that comes of them, and its start
        {{"", "", "", ""}, "", {1, 15, 1, 15}, {8, 8}},
        {{"14", "1", "1", "9"}, "", {1, 15, 8, 8}, {8, 8}},
        {{"11", "11", "2", "13"}, "", {3, 13, 3, 13}, {8, 8}},
        {{"-5", "32767", "-1", "30000"}, "", {1, 15, 1, 15}, {8, 8}},
        {{"17", "0", "16", "0"}, "", {1, 15, 1, 15}, {8, 8}},
        {{"15", "15", "1", "2"}, "111..", {1, 15, 1, 15}, {2, 2}},
        {{"15", "15", "1", "1"}, oneFree, {1, 15, 1, 15}, {7, 11}},
        {{"5", "5", "7", "7"}, std::string(225, '1'), {6, 10, 6, 10}, {7, 7}},
    };
    CreateScenario("Mine");
    for (const auto& [numbers, squares, bounds, start] : boards) {
        for (std::size_t i = 0; i < 4; ++i) SetItem(std::array{400, 401, 500, 501}.at(i), numbers[i]);
        SetItem(402, squares);
        LoadScenario();
        EXPECT_EQ(game.bounds, bounds) << numbers[0] << " x " << numbers[1];
        EXPECT_EQ((BoardPosition{game.settings.startRow, game.settings.startCol}), start);
    }
    for (const auto& [text, bonus] : {std::pair{"1500", 999}, {"-5", 0}, {"40000", 0}}) {
        SetItem(350, text);
        LoadScenario();
        EXPECT_EQ(game.settings.sevenLetterBonus, bonus) << text;
    }
}

TEST_F(Scenarios, ShippedOnesPlayToTheEnd) {
    CopyAssets("Scenarios");
    CopyAssets("Word Lists");
    const Strings names = ListScenarios();
    EXPECT_THAT(names, Contains("Classic"));
    EXPECT_GE(names.size(), 8U);
    for (const std::string& name : names) {
        SetCurrentScenario(name);
        LoadScenario();
        const WordListName list = scenario.requestedWordList;
        ASSERT_TRUE(LoadWordList(list.empty() ? "Words" : list.View()));
        StartGame({"Ada 9", "Bo 6"});
        while (!game.gameOver) FinishTurn();
        EXPECT_GT(game.players[1].score + game.players[2].score, 100) << name;
    }
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

}  // namespace
}  // namespace quillet
