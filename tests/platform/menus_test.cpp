// Menus, and the controls that stand in the window.
#include "platform/contract.h"
#include "platform/window_controls.h"

namespace quillet {
namespace {

class MenuContract : public WindowContract {
  protected:
    MenuContract() {
        const std::array inner{MenuItem{.command = 1001, .text = "&All Off"}};
        const std::array file{MenuItem{.command = 1, .text = "&New Game\tCtrl+N"}, MenuItem{},
                              MenuItem{.command = 9, .text = "&Quit"}};
        const std::array options{MenuItem{.command = 0, .text = "&Sounds", .submenu = inner},
                                 MenuItem{.command = 303, .text = "&Rack Above Board"},
                                 MenuItem{.command = 403, .text = "&Return to Rack\tReturn"},
                                 MenuItem{.command = 404, .text = "&Permute\tPeriod"},
                                 MenuItem{.command = 601, .text = "&About\tF1"}};
        const std::array menus{Menu{"&File", file}, Menu{"&Options", options}};
        BuildMenuBar(menus, kAccelerators);
        TakeMessages();
    }

    static constexpr std::array kAccelerators{
        Accelerator{AcceleratorKey::ControlAnd, 'N', 1}, Accelerator{AcceleratorKey::Return, 0, 403},
        Accelerator{AcceleratorKey::KeypadPeriod, 0, 404}, Accelerator{AcceleratorKey::F1, 0, 601}};
};

TEST_F(MenuContract, ItemsOfMenusAndSubmenusMakeCommandsUnlessTheyAreDisabled) {
    EnableMenuItem(9, false);
    person::ChooseItem(9);
    person::ChooseItem(1001);
    EnableMenuItem(9, true);
    person::ChooseItem(9);
    EXPECT_THAT(TakeMessages(), ElementsAre(IsOf(Kind::Command, 1001), IsOf(Kind::Command, 9)));
}

TEST_F(MenuContract, AcceleratorsMakeCommandsAndNoCharacters) {
    for (const Accelerator& accelerator : kAccelerators) {
        person::PressAccelerator(accelerator);
        EXPECT_THAT(TakeMessages(), ElementsAre(IsOf(Kind::Command, accelerator.command)));
        EnableMenuItem(accelerator.command, false);
        person::PressAccelerator(accelerator);
        EXPECT_THAT(TakeMessages(), IsEmpty()) << accelerator.command;
    }
}

TEST_F(MenuContract, MarksAreTheProgramsAlone) {
    for (bool checked : {true, false}) {
        CheckMenuItem(303, checked);
        person::ChooseItem(303);
        EXPECT_EQ(person::ItemIsChecked(303), checked);
    }
}

TEST_F(MenuContract, ItemsAreAppendedRenamedAndRemoved) {
    AppendMenuItem(0, 0, "");
    AppendMenuItem(0, 205, "Classic");
    SetMenuText(9, "&Leave");
    EXPECT_EQ(person::MenuText(205), "Classic");
    EXPECT_EQ(person::MenuText(9), "&Leave");
    person::ChooseItem(205);
    EXPECT_THAT(TakeMessages(), ElementsAre(IsOf(Kind::Command, 205)));
    EXPECT_TRUE(RemoveMenuItem(205));
    EXPECT_FALSE(RemoveMenuItem(205));
    person::ChooseItem(205);
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_EQ(person::MenuText(205), "");
}

TEST_F(WindowContract, ControlsInTheWindowMakeMessagesUntilTheyAreHidden) {
    static constexpr std::array<std::string_view, 3> kLines{"5", "7", "9"};
    const WindowControl controls[] = {
        {2, ControlKind::Button, {15, 15, 75, 37}, "Cancel"},
        {3, ControlKind::DropDown, {15, 85, 75, 107}, "Rows", kLines},
    };
    ShowWindowControls(controls);
    SetWindowControlChoice(3, 1);
    EXPECT_EQ(WindowControlChoice(3), 1);
    EXPECT_THAT(TakeMessages(), IsEmpty());
    person::ChooseWindowControlLine(3, 2);
    EXPECT_EQ(WindowControlChoice(3), 2);
    person::PressWindowControl(2);
    EXPECT_THAT(TakeMessages(), ElementsAre(IsOf(Kind::ControlEvent, 3), IsOf(Kind::ControlEvent, 2)));
    HideWindowControls();
    person::PressWindowControl(2);
    person::PressButton({20, 20});
    person::TypeCharacter('a');
    EXPECT_THAT(TakeMessages(), ElementsAre(IsKind(Kind::ButtonDown), IsCharacter('a')));
}

}  // namespace
}  // namespace quillet
