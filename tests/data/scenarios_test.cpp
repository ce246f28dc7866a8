#include "data/scenarios.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <random>
#include <sstream>

#include "base/messages.h"
#include "play/turns.h"
#include "store/item_store.h"
#include "support/random_games.h"
#include "words/bonus_words.h"

namespace quillet {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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
    WriteFile("Data/Graphics/b306.bmp", "last");
    ASSERT_EQ(CreateScenario("Mine"), NewScenarioFault::None);
    EXPECT_EQ(Items({12345, 199, 300, 301, 350, 400, 401, 500, 501, 600, 601}),
              "1|Select \"Edit Scenario\" to change this text.|1332142418513113:11114484:0|"
              "9224<2329114268216464221212|50|15|15|8|8|0|F|");
    EXPECT_EQ(Item(402), std::string(225, '.'));
    EXPECT_EQ(ReadFile("Scenarios/Mine/b203.bmp") + ReadFile("Scenarios/Mine/b306.bmp"), picture + "last");
    EXPECT_EQ(CountEntries("Scenarios/Mine"), 14U);
    LoadScenario();
    EXPECT_EQ(game.bag.tilesleft, 100);
    EXPECT_EQ(ReadFile("Data/Prefs/4000.str"), "Mine");
    EXPECT_EQ(recorded.Count("LoadSquarePictures Scenarios\\Mine"), 1);
}

TEST_F(Scenarios, NamesThatCannotBeAreRefusedAndTheOthersListed) {
    MakeFolder("Scenarios/Mine");
    SetCurrentScenario("Old");
    const std::string longest(31, 'x');
    const std::tuple<std::string, NewScenarioFault, const char*> cases[] = {
        {"", NewScenarioFault::NoName, ""},
        {longest + "x", NewScenarioFault::NameTooLong, "Sorry, but that name is too long."},
        {"mine", NewScenarioFault::Exists, "Sorry, but that scenario already exists."},
        {"a/b", NewScenarioFault::NotCreated, "Could not create the new scenario!"},
        {".hidden", NewScenarioFault::NotCreated, "Could not create the new scenario!"},
    };
    for (const auto& [name, fault, text] : cases) {
        EXPECT_EQ(CreateScenario(name), fault) << name;
        EXPECT_EQ(TextOf(fault), text);
        EXPECT_EQ(CurrentScenario(), "Old");
    }
    EXPECT_EQ(CreateScenario(longest), NewScenarioFault::None);
    MakeFolder("Scenarios/" + longest + "x");
    EXPECT_THAT(ListScenarios(), ElementsAre("Mine", longest));
    for (int i = 0; i < 100; ++i) MakeFolder("Scenarios/" + std::to_string(i));
    EXPECT_EQ(ListScenarios().size(), 95U);
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
    EXPECT_EQ(TakeMessages(), std::vector<std::string>(2, "Could not open scenario: \"Gone\""));
    EXPECT_FALSE(SaveScenarioLetters() || SaveScenarioBoard(true) || SaveBonusWords() || SaveAboutText(""));
    EXPECT_EQ(TakeMessages(), std::vector<std::string>(4, "Scenario changes could not be saved."));
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
    const std::tuple<std::array<const char*, 4>, std::string, std::string> boards[] = {
        // rows, columns, start row, start column; the squares; what comes of them
        {{"", "", "", ""}, "", "1-15 1-15 8 8"},
        {{"14", "1", "1", "9"}, "", "1-15 8-8 8 8"},
        {{"11", "11", "2", "13"}, "", "3-13 3-13 8 8"},
        {{"-5", "32767", "-1", "30000"}, "", "1-15 1-15 8 8"},
        {{"17", "0", "16", "0"}, "", "1-15 1-15 8 8"},
        {{"15", "15", "1", "2"}, "111..", "1-15 1-15 2 2"},
        {{"15", "15", "1", "1"}, oneFree, "1-15 1-15 7 11"},
        {{"5", "5", "7", "7"}, std::string(225, '1'), "6-10 6-10 7 7"},
    };
    CreateScenario("Mine");
    for (const auto& [numbers, squares, found] : boards) {
        for (std::size_t i = 0; i < 4; ++i) SetItem(std::array{400, 401, 500, 501}.at(i), numbers.at(i));
        SetItem(402, squares);
        LoadScenario();
        const BoardBounds& at = game.bounds;
        std::ostringstream text;
        text << at.firstRow << '-' << at.lastRow << ' ' << at.firstCol << '-' << at.lastCol << ' '
             << game.settings.startRow << ' ' << game.settings.startCol;
        EXPECT_EQ(text.str(), found);
    }
    for (const auto& [text, bonus] : {std::pair{"1500", 999}, {"-5", 0}, {"40000", 0}}) {
        SetItem(350, text);
        LoadScenario();
        EXPECT_EQ(game.settings.sevenLetterBonus, bonus) << text;
    }
}

// Whatever the items hold, a game can be played on them or the program ends with a message.
TEST_F(Scenarios, DamagedItemsNeverHarmTheGame) {
    std::mt19937 random(5);
    for (int round = 0; round < 40; ++round) {
        CreateScenario("Mine");
        for (int damage = 0; damage < 3; ++damage) {
            const int id = std::array{300, 301, 350, 400, 401, 402, 500, 501, 600, 602}.at(random() % 10);
            std::string value = id == 602 ? "AA\r\nSEA\r\n" : Item(id);
            for (int i = 0; i < 4; ++i) value[random() % value.size()] = "1.TP0-\r\n\0~\xFF"[random() % 11];
            SetItem(id, value.substr(0, 1 + random() % value.size()));
        }
        try {
            LoadScenario();
            game.settings.bonusWordsEnabled = true;
            RandomGame(static_cast<std::uint32_t>(round)).Play(12);
            ExpectConsistent();
        } catch (const ProgramEnd&) {
            EXPECT_EQ(TakeMessages().size(), 1U);
        }
        std::filesystem::remove_all(root / "Scenarios/Mine");
    }
}

TEST_F(Scenarios, ShippedOnesAreSoundAndPlayToTheEnd) {
    const auto assets = std::filesystem::path(__FILE__).parent_path() / "../../assets";
    for (const char* folder : {"Scenarios", "Word Lists"}) {
        std::filesystem::copy(assets / folder, root / folder, std::filesystem::copy_options::recursive);
    }
    const std::vector<std::string> names = ListScenarios();
    EXPECT_EQ(std::ranges::count(names, "Classic"), 1);
    EXPECT_GE(names.size(), 8U);
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        SetCurrentScenario(name);
        LoadScenario();
        const std::string folder = "Scenarios/" + name + "/";
        EXPECT_EQ(std::to_string(game.settings.startRow), ReadFile(folder + "500.str"));
        EXPECT_EQ(SquaresText(), ReadFile(folder + "402.str"));
        EXPECT_LE(ReadFile(folder + "199.str").size(), 255U);
        const WordListName list = scenario.requestedWordList;
        ASSERT_TRUE(LoadWordList(list.empty() ? "Words" : list.View()));
        for (const Word& word : bonusWords) EXPECT_TRUE(word.empty() || IsWord(mainDict, word));
        StartGame({"Ada 9", "Bo 6"});
        while (!game.gameOver) FinishTurn();
        EXPECT_GT(game.players[1].score + game.players[2].score, 100);
    }
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

}  // namespace
}  // namespace quillet
