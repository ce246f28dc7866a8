#include "editors/letters_editor.h"

#include "support/running_program.h"
#include "support/window.h"

namespace quillet {
namespace {

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
    const std::tuple<const char*, int, int, int> cases[] = {
        // its arrows, its display, and the highest
        {"value", ValueArrows('Q'), ValueDisplay('Q'), 10},
        {"value of the blank", ValueArrows(kBlank), ValueDisplay(kBlank), 10},
        {"count", CountArrows('E'), CountDisplay('E'), 50},
        {"count of the blank", CountArrows(kBlank), CountDisplay(kBlank), 5},
    };
    Edit([&](Dialog& dialog) {
        const auto number = [&](int display) { return std::stoi(ControlText(dialog, display)); };
        for (const auto& [name, arrows, display, highest] : cases) {
            SCOPED_TRACE(name);
            const int before = number(display);
            const int total = number(kTotal);
            EXPECT_EQ(BeepsOf(dialog, arrows, false, before + 2), 2);
            EXPECT_EQ(number(display), 0);
            EXPECT_EQ(BeepsOf(dialog, arrows, true, highest + 3), 3);
            EXPECT_EQ(number(display), highest);
            const bool isCount = display >= CountDisplay('A');
            EXPECT_EQ(number(kTotal), isCount ? total - before + highest : total);
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

TEST_F(LettersEditing, ABadBonusKeepsTheDialogOpen) {
    for (const std::string typed : {"1000", "", "-1", "5x", "12345678"}) {
        const bool saved = Edit([&](Dialog& dialog) {
            Retype(dialog, kBonus, typed);
            FocusControl(dialog, kSave);
            PressControl(dialog, kSave);
            EXPECT_EQ(dialog.focus, kBonus);
            EXPECT_EQ(EditText(dialog, kBonus), typed.empty() ? "" : "[" + typed + "]");
        });
        EXPECT_FALSE(saved);
        EXPECT_THAT(TakeMessages(), ElementsAre("7 letter bonus must be from 0 to 999."));
    }
    for (const char* typed : {"0", "999"}) {
        EXPECT_TRUE(Edit([&](Dialog& dialog) { Enter(dialog, kBonus, typed); }));
        EXPECT_EQ(game.settings.sevenLetterBonus, std::stoi(typed));
    }
}

TEST_F(LettersEditing, OnlySaveChangesTheScenario) {
    const auto items = [&] { return ReadItems("Scenarios/Classic", {300, 301, 350}); };
    std::string expected = items();
    for (const int button : {kCancelId, kSave}) {
        const bool saves = button == kSave;
        const bool saved = Edit([&](Dialog& dialog) {
            EXPECT_EQ(dialog.focus, kCancelId);
            EXPECT_EQ(ControlText(dialog, kBonus), "50");
            EXPECT_EQ(ControlText(dialog, kTotal), "100");
            StepArrows(dialog, ValueArrows('A'), true);
            StepArrows(dialog, CountArrows('A'), false);
            for (int i = 0; i < 2; ++i) StepArrows(dialog, CountArrows(kBlank), true);
            Retype(dialog, kBonus, "75");
            PressControl(dialog, button);
        });
        EXPECT_EQ(saved, saves);
        EXPECT_EQ(game.bag.totaltiles, saves ? 101 : 100);
        if (saves) {  // a character for each letter's value, then for its count
            ++expected[0];
            --expected[28];
            expected[54] += 2;
            expected.replace(56, std::string::npos, "75|");
        }
        EXPECT_EQ(items(), expected);
        EXPECT_EQ(TextFromLetterTable(game.settings.letterValues) + "|" +
                      TextFromLetterTable(game.settings.letterCounts) + "|" +
                      std::to_string(game.settings.sevenLetterBonus) + "|",
                  expected);
    }
}

}  // namespace
}  // namespace quillet
