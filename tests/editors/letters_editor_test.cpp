#include "editors/letters_editor.h"

#include <gmock/gmock.h>

#include "game/game_state.h"
#include "support/running_program.h"
#include "support/window.h"

namespace quillet {
namespace {

using testing::ElementsAre;

constexpr int kSave = 1;
constexpr int kTotal = 3;
constexpr int kBonus = 4;
constexpr int ValueArrows(LetterCode code) { return code - 55; }
constexpr int CountArrows(LetterCode code) { return code - 15; }
constexpr int ValueDisplay(LetterCode code) { return code + 89; }
constexpr int CountDisplay(LetterCode code) { return code + 116; }

class LettersEditing : public RunningProgram {
  protected:
    LettersEditing() { StartGame({"Ann", "Bob"}); }

    // Lets a person who knows what to do use the dialog; true when it was saved.
    static bool Edit(std::function<void(Dialog&)> script) {
        headless.beeps = 0;
        headlessWindow.dialogScripts.push_back(std::move(script));
        return EditLetterInfo();
    }
    static int BeepsOf(Dialog& dialog, int control, bool up, int times = 1) {
        headless.beeps = 0;
        for (int i = 0; i < times; ++i) StepArrows(dialog, control, up);
        return headless.beeps;
    }
    // A set of so many letters, all of them the same kinds and counts but for the "A".
    static void MakeTotal(int total) {
        game.settings.letterCounts = {};
        for (LetterCode code = 'B'; code <= 'F'; ++code)
            game.settings.letterCounts[code] = static_cast<std::int16_t>(total / 6);
        game.settings.letterCounts['A'] = static_cast<std::int16_t>(total - total / 6 * 5);
        game.bag.totaltiles = static_cast<std::uint16_t>(total);
    }
};

TEST_F(LettersEditing, ValuesAndCountsStopAtTheirLimits) {
    struct Case {
        const char* name;
        int arrows;
        int display;
        int lowest;
        int highest;
    };
    const Case cases[] = {
        {"value", ValueArrows('Q'), ValueDisplay('Q'), 0, 10},
        {"value of the blank", ValueArrows(kBlank), ValueDisplay(kBlank), 0, 10},
        {"count", CountArrows('E'), CountDisplay('E'), 0, 50},
        {"count of the blank", CountArrows(kBlank), CountDisplay(kBlank), 0, 5},
    };
    Edit([&](Dialog& dialog) {
        for (const Case& testCase : cases) {
            SCOPED_TRACE(testCase.name);
            const int before = std::stoi(ControlText(dialog, testCase.display));
            const int total = std::stoi(ControlText(dialog, kTotal));
            EXPECT_EQ(BeepsOf(dialog, testCase.arrows, false, before + 2), 2);
            EXPECT_EQ(ControlText(dialog, testCase.display), std::to_string(testCase.lowest));
            EXPECT_EQ(BeepsOf(dialog, testCase.arrows, true, testCase.highest + 3), 3);
            EXPECT_EQ(ControlText(dialog, testCase.display), std::to_string(testCase.highest));
            const bool counts = testCase.arrows >= 50;
            EXPECT_EQ(ControlText(dialog, kTotal),
                      std::to_string(counts ? total - before + testCase.highest : total));
        }
    });
}

TEST_F(LettersEditing, TheTotalStaysWithinItsLimits) {
    for (const auto& [total, up] : {std::pair{28, false}, {200, true}}) {
        SCOPED_TRACE(total);
        MakeTotal(total);
        Edit([total = total, up = up](Dialog& dialog) {
            for (LetterCode code = 'A'; code <= kBlank; ++code)
                EXPECT_EQ(BeepsOf(dialog, CountArrows(code), up), 1) << code;
            EXPECT_EQ(ControlText(dialog, kTotal), std::to_string(total));
            EXPECT_EQ(BeepsOf(dialog, CountArrows('B'), !up), 0);
            EXPECT_EQ(BeepsOf(dialog, CountArrows('B'), up), 0);
            EXPECT_EQ(BeepsOf(dialog, CountArrows('B'), up), 1);
        });
    }
}

TEST_F(LettersEditing, NumbersBeyondTheLimitsOnlyMoveBack) {
    game.settings.letterValues['J'] = 20;
    game.settings.letterCounts['J'] = 60;
    Edit([](Dialog& dialog) {
        for (const int arrows : {ValueArrows('J'), CountArrows('J')}) {
            EXPECT_EQ(BeepsOf(dialog, arrows, true), 1);
            EXPECT_EQ(BeepsOf(dialog, arrows, false), 0);
        }
        EXPECT_EQ(ControlText(dialog, ValueDisplay('J')), "19");
        EXPECT_EQ(ControlText(dialog, CountDisplay('J')), "59");
    });
}

TEST_F(LettersEditing, ABadBonusKeepsTheDialogOpen) {
    for (const char* typed : {"1000", "", "-1", "5x", "12345678"}) {
        SCOPED_TRACE(typed);
        EXPECT_FALSE(Edit([&](Dialog& dialog) {
            SelectText(dialog, kBonus);
            TypeText(dialog, kBonus, typed);
            FocusControl(dialog, kSave);
            PressControl(dialog, kSave);
            EXPECT_FALSE(dialog.result);
            EXPECT_EQ(dialog.focus, kBonus);
            EXPECT_EQ(EditText(dialog, kBonus), *typed == '\0' ? "" : "[" + std::string(typed) + "]");
        }));
        EXPECT_THAT(TakeMessages(), ElementsAre("7 letter bonus must be from 0 to 999."));
    }
    for (const char* typed : {"0", "999"}) {
        EXPECT_TRUE(Edit([&](Dialog& dialog) {
            SelectText(dialog, kBonus);
            TypeText(dialog, kBonus, typed);
            PressControl(dialog, kSave);
        }));
        EXPECT_EQ(game.settings.sevenLetterBonus, std::stoi(typed));
    }
    EXPECT_THAT(TakeMessages(), ElementsAre());
}

TEST_F(LettersEditing, OnlySaveChangesTheScenario) {
    const GameSettings before = game.settings;
    const auto items = [&] { return ReadItems("Scenarios/Classic", {300, 301, 350}); };
    const std::string itemsBefore = items();
    const auto change = [&](Dialog& dialog) {
        EXPECT_EQ(dialog.focus, kCancelId);
        EXPECT_EQ(ControlText(dialog, kBonus), std::to_string(before.sevenLetterBonus));
        EXPECT_EQ(ControlText(dialog, kTotal), "100");
        StepArrows(dialog, ValueArrows('A'), true);
        StepArrows(dialog, CountArrows('A'), false);
        StepArrows(dialog, CountArrows(kBlank), true);
        StepArrows(dialog, CountArrows(kBlank), true);
        SelectText(dialog, kBonus);
        TypeText(dialog, kBonus, "75");
    };
    EXPECT_FALSE(Edit([&](Dialog& dialog) {
        change(dialog);
        PressControl(dialog, kCancelId);
    }));
    EXPECT_EQ(items(), itemsBefore);
    EXPECT_EQ(game.settings.letterCounts['A'], before.letterCounts['A']);
    EXPECT_EQ(game.bag.totaltiles, 100);
    EXPECT_TRUE(Edit([&](Dialog& dialog) {
        change(dialog);
        PressControl(dialog, kSave);
    }));
    EXPECT_EQ(game.settings.letterValues['A'], before.letterValues['A'] + 1);
    EXPECT_EQ(game.settings.letterCounts['A'], before.letterCounts['A'] - 1);
    EXPECT_EQ(game.settings.letterCounts[kBlank], before.letterCounts[kBlank] + 2);
    EXPECT_EQ(game.bag.totaltiles, 101);
    std::string expected = itemsBefore;
    ++expected[0];
    --expected[28];
    expected[54] += 2;
    expected.replace(56, std::string::npos, "75|");
    EXPECT_EQ(items(), expected);
}

}  // namespace
}  // namespace quillet
