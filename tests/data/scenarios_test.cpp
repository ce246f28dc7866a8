#include "data/scenarios.h"

#include <gmock/gmock.h>

#include <map>
#include <random>

#include "base/messages.h"
#include "game/consistency.h"
#include "play/turns.h"
#include "store/preferences.h"
#include "support/random_games.h"
#include "support/recording_presentation.h"
#include "support/temp_folder.h"
#include "words/bonus_words.h"

namespace quillet {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Scenarios : public TempFolder {
  protected:
    Scenarios() {
        recorded = {};
        game = FreshGameState();
        MakeFolder("Data/Prefs");
        MakeFolder("Scenarios");
        preferences = {};
        ClosePrefs();
        LoadPreferences();
    }

    std::string Item(int id) { return ReadFile("Scenarios/Mine/" + std::to_string(id) + ".str"); }
    void SetItem(int id, const std::string& value) {
        WriteFile("Scenarios/Mine/" + std::to_string(id) + ".str", value);
    }
};

TEST_F(Scenarios, NewOneHasTheDefaultItemsAndPicturesAndCanBeLoaded) {
    const std::string picture("BM\0\r\n\x1A", 6);
    WriteFile("Data/Graphics/b203.bmp", picture);
    WriteFile("Data/Graphics/b306.bmp", "last");
    ASSERT_EQ(CreateScenario("Mine"), NewScenarioFault::None);
    const std::map<int, std::string> items{{12345, "1"},
                                           {199, "Select \"Edit Scenario\" to change this text."},
                                           {300, "1332142418513113:11114484:0"},
                                           {301, "9224<2329114268216464221212"},
                                           {350, "50"},
                                           {400, "15"},
                                           {401, "15"},
                                           {402, std::string(225, '.')},
                                           {500, "8"},
                                           {501, "8"},
                                           {600, "0"},
                                           {601, "F"}};
    for (const auto& [id, value] : items) EXPECT_EQ(Item(id), value) << id;
    EXPECT_EQ(ReadFile("Scenarios/Mine/b203.bmp"), picture);
    EXPECT_EQ(ReadFile("Scenarios/Mine/b306.bmp"), "last");
    EXPECT_EQ(CountEntries("Scenarios/Mine"), items.size() + 2);
    LoadScenario();
    EXPECT_EQ(game.bag.tilesleft, 100);
    EXPECT_EQ(ReadFile("Data/Prefs/4000.str"), "Mine");
    EXPECT_EQ(recorded.Count("LoadSquarePictures Scenarios\\Mine"), 1);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(Scenarios, NamesThatCannotBeAreRefused) {
    MakeFolder("Scenarios/Mine");
    SetCurrentScenario("Old");
    WriteFile("Scenarios/File", "");
    const std::string longest(31, 'x');
    const std::tuple<std::string, NewScenarioFault, const char*> cases[] = {
        {"", NewScenarioFault::NoName, ""},
        {longest + "x", NewScenarioFault::NameTooLong, "Sorry, but that name is too long."},
        {"mine", NewScenarioFault::Exists, "Sorry, but that scenario already exists."},
        {"File", NewScenarioFault::NotCreated, "Could not create the new scenario!"},
        {"a/b", NewScenarioFault::NotCreated, "Could not create the new scenario!"},
        {"..", NewScenarioFault::NotCreated, "Could not create the new scenario!"},
        {".hidden", NewScenarioFault::NotCreated, "Could not create the new scenario!"},
    };
    for (const auto& [name, fault, text] : cases) {
        EXPECT_EQ(CreateScenario(name), fault) << name;
        EXPECT_EQ(TextOf(fault), text);
        EXPECT_EQ(CurrentScenario(), "Old");
    }
    EXPECT_EQ(CreateScenario(longest), NewScenarioFault::None);
    EXPECT_TRUE(CheckScenariosFolder());
    std::filesystem::remove_all(root / "Scenarios");
    EXPECT_FALSE(CheckScenariosFolder());
    EXPECT_THAT(TakeMessages(), ElementsAre("The Scenarios folder is missing!"));
}

TEST_F(Scenarios, AreListedByName) {
    EXPECT_THROW(ListScenarios(), ProgramEnd);
    EXPECT_THAT(TakeMessages(), ElementsAre("Sorry, but there are no scenarios!"));
    for (const char* name : {"beta", "Alpha", "Gamma"}) MakeFolder(std::string("Scenarios/") + name);
    MakeFolder("Scenarios/" + std::string(32, 'x'));
    EXPECT_THAT(ListScenarios(), ElementsAre("Alpha", "beta", "Gamma"));
    for (int i = 0; i < 100; ++i) MakeFolder("Scenarios/" + std::to_string(i));
    EXPECT_EQ(ListScenarios().size(), 95U);
}

TEST_F(Scenarios, OnlyOneOfOurVersionExists) {
    CreateScenario("Mine");
    WriteFile("Scenarios/New/12345.str", "2");
    MakeFolder("Scenarios/Other");
    WriteFile("12345.str", "1");
    for (const char* name : {"", "..", "Mine/", "Other", "Gone"}) EXPECT_FALSE(ScenarioExists(name)) << name;
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_FALSE(ScenarioExists("New"));
    EXPECT_THAT(TakeMessages(), ElementsAre("Unexpected version in scenario!"));
    EXPECT_TRUE(ScenarioExists("MINE"));
    EXPECT_EQ(CurrentScenario(), "Mine");
    SetCurrentScenario("Gone");
    EXPECT_THROW(LoadScenario(), ProgramEnd);
    EXPECT_FALSE(ReadAboutText());
    for (const bool saved :
         {SaveScenarioLetters(), SaveScenarioBoard(true), SaveBonusWords(), SaveAboutText("")}) {
        EXPECT_FALSE(saved);
    }
    const std::string refused = "Scenario changes could not be saved.";
    EXPECT_THAT(TakeMessages(),
                ElementsAre("Could not open scenario: \"Gone\"", "Could not open scenario: \"Gone\"", refused,
                            refused, refused, refused));
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
    EXPECT_EQ(Item(300), "<332142418513113:11114484:0");
    EXPECT_EQ(Item(301), "9224<2329114268216464221215");
    EXPECT_EQ(Item(402), "dDtTqQpP123456." + std::string(210, '.'));
    EXPECT_EQ(Item(350) + Item(400) + Item(401) + Item(500) + Item(501), "6011934");
    EXPECT_EQ(Item(600) + Item(601) + Item(602), "-3TAXE\r\n");
    EXPECT_EQ(*ReadAboutText(), "It's\r\nme");
    SetItem(700, "Common");
    game = FreshGameState();
    LoadScenario();
    EXPECT_EQ(TextFromLetterTable(settings.letterValues), Item(300));
    EXPECT_EQ(SquaresText(), Item(402));
    EXPECT_EQ(game.bounds, (BoardBounds{3, 13, 4, 12}));
    EXPECT_EQ(settings.startRow * 100 + settings.startCol, 304);
    EXPECT_EQ(settings.sevenLetterBonus + settings.bonusWordValue, 57);
    EXPECT_TRUE(settings.bonusWordsEnabled && IsBonusWord("AXE"));
    EXPECT_EQ(scenario.requestedWordList, "Common");
}

TEST_F(Scenarios, OddItemsMakeASoundBoard) {
    struct Case {
        std::string rows, cols, startRow, startCol, squares, found;
    };
    const std::string blocked(225, '1');
    const std::string oneFree = std::string(100, '2') + "." + std::string(124, '3');
    for (const Case& c : {
             Case{"15", "15", "8", "8", "", "1-15 1-15 8 8"},
             Case{"", "", "", "", "", "1-15 1-15 8 8"},
             Case{"14", "1", "1", "9", "", "1-15 8-8 8 8"},
             Case{"11", "11", "3", "13", "", "3-13 3-13 3 13"},
             Case{"11", "11", "2", "13", "", "3-13 3-13 8 8"},
             Case{"-5", "32767", "-1", "30000", "", "1-15 1-15 8 8"},
             Case{"17", "0", "16", "0", "", "1-15 1-15 8 8"},
             Case{"40000", "9 ", "x", "8", "d", "1-15 1-15 8 8"},
             Case{"15", "15", "1", "2", "111..", "1-15 1-15 2 2"},
             Case{"15", "15", "1", "1", oneFree, "1-15 1-15 7 11"},
             Case{"5", "5", "7", "7", blocked, "6-10 6-10 7 7"},
         }) {
        CreateScenario("Mine");
        SetItem(400, c.rows);
        SetItem(401, c.cols);
        SetItem(500, c.startRow);
        SetItem(501, c.startCol);
        SetItem(402, c.squares);
        LoadScenario();
        const BoardBounds& at = game.bounds;
        EXPECT_EQ(std::to_string(at.firstRow) + "-" + std::to_string(at.lastRow) + " " +
                      std::to_string(at.firstCol) + "-" + std::to_string(at.lastCol) + " " +
                      std::to_string(game.settings.startRow) + " " + std::to_string(game.settings.startCol),
                  c.found)
            << c.rows << " " << c.cols << " " << c.startRow << " " << c.startCol;
    }
    for (const auto& [text, bonus] : {std::pair{"1500", 999}, {"-5", 0}, {"40000", 0}, {"x", 0}, {" 7", 7}}) {
        SetItem(350, text);
        LoadScenario();
        EXPECT_EQ(game.settings.sevenLetterBonus, bonus) << text;
    }
    SetItem(300, "12");
    LoadScenario();
    EXPECT_EQ(game.settings.letterValues['B'], 2);
    EXPECT_EQ(game.settings.letterValues['C'], 0);
}

TEST_F(Scenarios, LettersThatMakeNoSetEndTheProgram) {
    CreateScenario("Mine");
    for (const auto& [counts, message] : {std::pair{"", "Too few letters!"},
                                          {"9224<2329114268216464221216", "Too many blanks!"},
                                          {"zzzz", "Too many letters!"},
                                          {"z\"\"", "Bug: tilesleft <> totaltiles!"}}) {
        SetItem(301, counts);
        EXPECT_THROW(LoadScenario(), ProgramEnd);
        EXPECT_THAT(TakeMessages(), ElementsAre(message));
    }
}

// Whatever the items hold, the game that follows runs to its end or the program ends with a message.
TEST_F(Scenarios, DamagedItemsNeverHarmTheGame) {
    std::mt19937 random(5);
    for (int round = 0; round < 60; ++round) {
        CreateScenario("Mine");
        for (int damage = 0; damage < 3; ++damage) {
            static constexpr std::array kIds{300, 301, 350, 400, 401, 402, 500, 501, 600, 601, 602, 700};
            const int id = kIds.at(random() % kIds.size());
            std::string value = Item(id);
            if (id == 602 || value == "<none>") value = "AA\r\nSEA\r\n";
            for (auto byte = random() % 9; byte > 0 && !value.empty(); --byte) {
                value[random() % value.size()] = "1.TP0-\r\n\0~\xFF"[random() % 11];
            }
            if (random() % 3 == 0) value.resize(random() % (value.size() + 1));
            SetItem(id, value);
        }
        headless.messages.clear();
        try {
            LoadScenario();
            game.settings.bonusWordsEnabled = true;
            StartSmallGame({"Ada 9", "Bo 4"}, static_cast<std::uint32_t>(round));
            for (int moves = 0; moves < 12; ++moves) FinishTurn();
            EXPECT_EQ(FindInconsistency(game).value_or(""), "");
        } catch (const ProgramEnd&) {
            EXPECT_EQ(headless.messages.size(), 1U);
        }
        std::filesystem::remove_all(root / "Scenarios/Mine");
    }
}

}  // namespace
}  // namespace quillet
