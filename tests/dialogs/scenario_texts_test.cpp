#include "dialogs/scenario_texts.h"

#include "data/scenarios.h"
#include "dialogs/about.h"
#include "store/bitmap_files.h"
#include "support/dialog_test.h"

namespace quillet {
namespace {

class ScenarioTexts : public DialogTest {
  protected:
    ScenarioTexts() {
        MakeFolder("Scenarios");
        CreateScenario("Mine");
        WriteFile("Scenarios/Mine/199.str", "Two\r\nlines.");
    }
};

TEST_F(ScenarioTexts, NewOneNeedsANameThatIsFree) {
    InDialog([](Dialog& dialog) {
        EXPECT_EQ(dialog.title, "New Scenario");
        PressControl(dialog, kOkId);
        EXPECT_EQ(headless.beeps, 1);
        Enter(dialog, NameControls::kName, "mine");
        EXPECT_EQ(EditText(dialog, NameControls::kName), "[mine]");
        Enter(dialog, NameControls::kName, std::string(33, 'x'));
        EXPECT_EQ(EditText(dialog, NameControls::kName), std::string(31, 'x') + "[xx]");
        TypeText(dialog, NameControls::kName, "");
        PressControl(dialog, kOkId);
    });
    EXPECT_TRUE(NewScenarioDialog());
    EXPECT_EQ(CurrentScenario(), std::string(31, 'x'));
    EXPECT_THAT(TakeMessages(),
                ElementsAre("Sorry, but that scenario already exists.", "Sorry, but that name is too long."));
    EXPECT_FALSE(NewScenarioDialog());
    std::filesystem::remove_all(root / "Scenarios");
    EXPECT_FALSE(NewScenarioDialog());
}

TEST_F(ScenarioTexts, AboutTextIsEditedFromItsEnd) {
    static constexpr int kText = EditAboutTextControls::kText;
    InDialog([](Dialog& dialog) {
        EXPECT_EQ(dialog.focus, kText);
        TypeText(dialog, kText, " More.");
        EXPECT_EQ(ControlText(dialog, kText), "Two\r\nlines. More.");
    });
    EditAboutText();
    EXPECT_EQ(ReadFile("Scenarios/Mine/199.str"), "Two\r\nlines.");
    InDialog([](Dialog& dialog) {
        TypeText(dialog, kText, std::string(300, '!'));
        PressControl(dialog, kOkId);
    });
    EditAboutText();
    EXPECT_EQ(ReadFile("Scenarios/Mine/199.str"), "Two\r\nlines." + std::string(244, '!'));
}

TEST_F(ScenarioTexts, AboutBoxSwitchesItsOwnShowing) {
    using Controls = AboutScenarioControls;
    InDialog([](Dialog& dialog) {
        EXPECT_EQ(ControlText(dialog, Controls::kText), "Two\r\nlines.");
        EXPECT_TRUE(IsChecked(dialog, Controls::kAutoShow));
        PressControl(dialog, Controls::kAutoShow);
        EXPECT_FALSE(preferences.showAboutScenario);
        EXPECT_EQ(dialog.result, std::nullopt);
        PressControl(dialog, kOkId);
        EXPECT_TRUE(dialog.result);
    });
    ShowAboutScenario();
    EXPECT_EQ(ReadFile("Data/Prefs/1021.str"), "F");
    SetCurrentScenario("Gone");
    ShowAboutScenario();
    EditAboutText();
    EXPECT_EQ(TakeMessages(), Strings(2, "Could not open scenario: \"Gone\""));
}

TEST_F(ScenarioTexts, AboutTheProgramWithItsIconWhereThereIsOne) {
    for (const bool hasIcon : {false, true}) {
        InDialog([hasIcon](Dialog& dialog) {
            EXPECT_EQ(dialog.title, "About Quillet");
            EXPECT_EQ(dialog.controls.at(AboutControls::kIcon).picture != nullptr, hasIcon);
            PressControl(dialog, kOkId);
        });
        ShowAboutBox();
        MakeFolder("Data/Graphics");
        SavePicture(Image(64, 64), "Data\\Graphics\\icon.bmp");
    }
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

}  // namespace
}  // namespace quillet
