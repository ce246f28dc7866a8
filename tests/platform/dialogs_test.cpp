// Dialogs and boxes.
#include "platform/dialog.h"

#include <stdexcept>

#include "platform/contract.h"
#include "platform/message_box.h"

namespace quillet {
namespace {

using EventKind = DialogEvent::Kind;
using Told = std::pair<EventKind, int>;  // with the control

constexpr int kOk = 1;
enum Control { kEdit = 10, kBox, kCheck, kFirst, kSecond, kList, kDropDown, kArrows, kLabel, kPlain };

constexpr std::array kControls{
    ControlTemplate{.text = "&Word:", .cell = {0, 0}},
    ControlTemplate{.id = kEdit, .kind = ControlKind::Edit, .cell = {0, 1}, .width = 15},
    ControlTemplate{.id = kBox, .kind = ControlKind::TextBox, .cell = {1, 0, 1, 2}, .width = 30, .height = 3},
    ControlTemplate{.id = kCheck, .kind = ControlKind::Check, .text = "&Enabled", .cell = {2, 0}},
    ControlTemplate{.id = kFirst, .kind = ControlKind::Radio, .text = "&1", .cell = {3, 0}},
    ControlTemplate{.id = kSecond, .kind = ControlKind::Radio, .text = "&2", .cell = {3, 1}},
    ControlTemplate{.id = kList, .kind = ControlKind::List, .cell = {4, 0, 1, 2}, .width = 15, .height = 5},
    ControlTemplate{.id = kDropDown, .kind = ControlKind::DropDown, .cell = {5, 0}, .width = 15},
    ControlTemplate{.id = kArrows, .kind = ControlKind::Arrows, .text = "A", .cell = {5, 1}},
    ControlTemplate{.id = kLabel, .text = "Total", .cell = {6, 0}},
    ControlTemplate{.id = kPlain, .kind = ControlKind::Button, .text = "&Find", .cell = {6, 1}},
    ControlTemplate{.id = kOk, .kind = ControlKind::DefaultButton, .text = "OK", .cell = {kButtonRow, 0}},
    ControlTemplate{.id = kCancelId, .kind = ControlKind::Button, .text = "Cancel", .cell = {kButtonRow, 1}},
};
constexpr DialogTemplate kTemplate{.title = "Test", .controls = kControls};

std::string Line(std::size_t i) { return "line " + std::to_string(i); }

const auto kNothing = [](Dialog&) {};

class DialogContract : public WindowContract {
  protected:
    // Runs the dialog; `open` fills it, `act` is the person's part. OK and Cancel close it.
    int Run(const std::function<void(Dialog&)>& open, const std::function<void(Dialog&)>& act) {
        Dialog* shown = nullptr;
        person::WhenOpen([&] { act(*shown); });
        return RunDialog(kTemplate, [&](Dialog& dialog, const DialogEvent& event) {
            shown = &dialog;
            if (event.kind == EventKind::Opened) return open(dialog);
            told.push_back({event.kind, event.control});
            if (hear) hear(dialog, event);
            const bool closes = event.control == kOk || event.control == kCancelId;
            if (closes && event.kind == EventKind::Pressed) CloseDialog(dialog, event.control);
        });
    }

    // The same, ended by OK; without what was told about that.
    void RunToOk(const std::function<void(Dialog&)>& open, const std::function<void(Dialog&)>& act) {
        const int result = Run(open, [&](Dialog& dialog) {
            act(dialog);
            person::PressControl(dialog, kOk);
        });
        EXPECT_EQ(result, kOk);
        EXPECT_EQ(told.back(), Told(EventKind::Pressed, kOk));
        told.pop_back();
        std::erase_if(told, [](const Told& one) { return one.first == EventKind::FocusLeft; });
    }

    std::vector<Told> told;  // after Opened
    std::function<void(Dialog&, const DialogEvent&)> hear;
};

TEST_F(DialogContract, ADialogClosedBeforeItShowsIsNotShown) {
    EXPECT_EQ(RunDialog(kTemplate, [](Dialog& dialog, const DialogEvent&) { CloseDialog(dialog, 77); }), 77);
}

TEST_F(DialogContract, EscapeAndTheCloseBoxPressCancel) {
    for (const auto& press : {person::PressEscape, person::PressCloseBox}) {
        EXPECT_EQ(Run(kNothing, press), kCancelId);
    }
    EXPECT_THAT(told, ElementsAre(Told(EventKind::Pressed, kCancelId), Told(EventKind::Pressed, kCancelId)));
}

TEST_F(DialogContract, EnterPressesTheDefaultButton) {
    EXPECT_EQ(Run([](Dialog& dialog) { FocusControl(dialog, kEdit); }, person::PressEnter), kOk);
}

TEST_F(DialogContract, TypingIsToldAndSettingIsNot) {
    RunToOk([](Dialog& dialog) { SetControlText(dialog, kEdit, "caf\xE9"); },
            [](Dialog& dialog) {
                EXPECT_EQ(ControlText(dialog, kEdit), "caf\xE9");
                SelectText(dialog, kEdit);
                person::TypeInto(dialog, kEdit, "Q");
                EXPECT_EQ(ControlText(dialog, kEdit), "Q");
                SetControlText(dialog, kEdit, "QUIZ");
                SelectText(dialog, kEdit, 1, 2);
                person::TypeInto(dialog, kEdit, "\xD6");
                EXPECT_EQ(ControlText(dialog, kEdit), "Q\xD6Z");
            });
    EXPECT_THAT(told, ElementsAre(Told(EventKind::Changed, kEdit), Told(EventKind::Changed, kEdit)));
}

TEST_F(DialogContract, TypingEndsAtTheLimit) {
    RunToOk(kNothing, [](Dialog& dialog) {
        for (int control : {kEdit, kBox}) {
            LimitText(dialog, control, 4);
            SetControlText(dialog, control, "abc");
            SelectText(dialog, control, kAll);
            for (const char* character : {"d", "e", "f"}) person::TypeInto(dialog, control, character);
            EXPECT_EQ(ControlText(dialog, control), "abcd") << control;
        }
    });
}

TEST_F(DialogContract, LinesOfABoxEndWithCrLf) {
    RunToOk([](Dialog& dialog) { SetControlText(dialog, kBox, "one\ntwo\rthree\r\nfour"); },
            [](Dialog& dialog) {
                EXPECT_EQ(ControlText(dialog, kBox), "one\r\ntwo\r\nthree\r\nfour");
                SelectText(dialog, kBox, 5, 3);  // "two"
                person::TypeInto(dialog, kBox, "2");
                EXPECT_EQ(ControlText(dialog, kBox), "one\r\n2\r\nthree\r\nfour");
            });
}

TEST_F(DialogContract, TextsThatAreSetAreShownAsTheyStand) {
    RunToOk(kNothing, [](Dialog& dialog) {
        for (int control : {kLabel, kPlain, kCheck, kEdit}) {
            SetControlText(dialog, control, "Fish & Chips");
            EXPECT_EQ(ControlText(dialog, control), "Fish & Chips") << control;
        }
    });
}

TEST_F(DialogContract, ChecksAndRadiosFollowThePerson) {
    RunToOk(
        [](Dialog& dialog) {
            SetChecked(dialog, kCheck, true);
            SetChecked(dialog, kFirst, true);
        },
        [](Dialog& dialog) {
            EXPECT_TRUE(IsChecked(dialog, kCheck));
            person::PressControl(dialog, kCheck);
            person::PressControl(dialog, kSecond);
            EXPECT_FALSE(IsChecked(dialog, kCheck));
            EXPECT_FALSE(IsChecked(dialog, kFirst));
            EXPECT_TRUE(IsChecked(dialog, kSecond));
        });
    EXPECT_THAT(told, ElementsAre(Told(EventKind::Pressed, kCheck), Told(EventKind::Pressed, kSecond)));
}

TEST_F(DialogContract, ListsStartWithTheirFirstLineAndTellWhatThePersonChooses) {
    for (int control : {kList, kDropDown}) {
        told.clear();
        RunToOk(
            [=](Dialog& dialog) {
                SetLines(dialog, control, 0, Line);
                EXPECT_EQ(Choice(dialog, control), -1);
                SetLines(dialog, control, 9, Line);
                EXPECT_EQ(Choice(dialog, control), 0);
            },
            [=](Dialog& dialog) {
                SetChoice(dialog, control, 2);
                EXPECT_EQ(Choice(dialog, control), 2);
                person::ChooseLine(dialog, control, 3);
                EXPECT_EQ(Choice(dialog, control), 3);
            });
        EXPECT_THAT(told, ElementsAre(Told(EventKind::Changed, control))) << control;
    }
}

TEST_F(DialogContract, AHugeListAsksForTheLinesInViewOnly) {
    constexpr std::size_t kMany = 250000;
    std::size_t asked = 0;
    const auto askedLine = [&](std::size_t i) {
        ++asked;
        EXPECT_LT(i, kMany);
        return Line(i);
    };
    RunToOk([&](Dialog& dialog) { SetLines(dialog, kList, kMany, askedLine); },
            [](Dialog& dialog) {
                for (int line : {249999, 125000, 0, 77777}) SetChoice(dialog, kList, line);
                EXPECT_EQ(Choice(dialog, kList), 77777);
                person::ChooseLine(dialog, kList, 77779);
                EXPECT_EQ(Choice(dialog, kList), 77779);
            });
    EXPECT_LT(asked, 2000U);
}

TEST_F(DialogContract, DoubleClicksOnLinesAndStepsOfArrowsAreTold) {
    RunToOk([](Dialog& dialog) { SetLines(dialog, kList, 9, Line); },
            [](Dialog& dialog) {
                person::DoubleClickLine(dialog, kList, 2);
                person::Step(dialog, kArrows, true);
                person::Step(dialog, kArrows, false);
            });
    std::erase(told, Told(EventKind::Changed, kList));
    EXPECT_THAT(told, ElementsAre(Told(EventKind::Chosen, kList), Told(EventKind::SteppedUp, kArrows),
                                  Told(EventKind::SteppedDown, kArrows)));
}

TEST_F(DialogContract, LeavingAnEditIsTold) {
    Run(kNothing, [](Dialog& dialog) {
        person::LeaveEdit(dialog, kEdit);
        EXPECT_FALSE(person::HasFocus(dialog, kEdit));
        FocusControl(dialog, kEdit);
        EXPECT_TRUE(person::HasFocus(dialog, kEdit));
        person::PressEscape(dialog);
    });
    EXPECT_THAT(told, ElementsAre(Told(EventKind::FocusLeft, kEdit), Told(EventKind::Pressed, kCancelId)));
}

TEST_F(DialogContract, WhatIsDisabledOrHiddenCannotBePressed) {
    RunToOk(kNothing, [](Dialog& dialog) {
        EnableControl(dialog, kPlain, false);
        ShowControl(dialog, kCheck, false);
        person::PressControl(dialog, kPlain);
        person::PressControl(dialog, kCheck);
        EnableControl(dialog, kCancelId, false);
        person::PressEscape(dialog);
        EnableControl(dialog, kPlain, true);
        person::PressControl(dialog, kPlain);
    });
    EXPECT_THAT(told, ElementsAre(Told(EventKind::Pressed, kPlain)));
}

TEST_F(DialogContract, WhatAHandlerThrowsComesOutOfTheDialog) {
    hear = [](Dialog&, const DialogEvent& event) {
        if (event.control == kPlain) throw std::runtime_error("thrown");
    };
    const auto press = [](Dialog& dialog) { person::PressControl(dialog, kPlain); };
    EXPECT_THROW(Run(kNothing, press), std::runtime_error);
    const auto failToOpen = [](Dialog&, const DialogEvent&) { throw std::runtime_error("thrown"); };
    EXPECT_THROW(RunDialog(kTemplate, failToOpen), std::runtime_error);
}

TEST_F(DialogContract, ADialogMayOpenAnother) {
    hear = [this](Dialog&, const DialogEvent& event) {
        if (event.control != kPlain) return;
        hear = nullptr;
        EXPECT_EQ(Run(kNothing, person::PressEscape), kCancelId);
    };
    RunToOk(kNothing, [](Dialog& dialog) { person::PressControl(dialog, kPlain); });
}

TEST_F(DialogContract, TheWindowsMessagesWaitUntilADialogIsClosed) {
    person::TypeCharacter('a');
    RunToOk(kNothing, kNothing);
    EXPECT_TRUE(WindowIsActive());
    ASSERT_THAT(*PeekMessage(), IsCharacter('a'));
}

TEST_F(DialogContract, AModelessDialogIsHeardWhenMessagesAreTaken) {
    const std::array controls{
        ControlTemplate{.id = kLabel, .text = "Adding new words", .cell = {0, 0}, .width = 40},
        ControlTemplate{.id = kPlain, .kind = ControlKind::Progress, .cell = {1, 0}},
        ControlTemplate{
            .id = kCancelId, .kind = ControlKind::Button, .text = "Cancel", .cell = {kButtonRow, 0}},
    };
    Dialog& dialog =
        OpenModeless({.title = "Status", .controls = controls}, [&](Dialog&, const DialogEvent& event) {
            told.push_back({event.kind, event.control});
        });
    EXPECT_THAT(told, ElementsAre(Told(EventKind::Opened, 0)));
    SetProgress(dialog, kPlain, 50);
    SetControlText(dialog, kLabel, "/words & more/list.txt");
    EXPECT_EQ(ControlText(dialog, kLabel), "/words & more/list.txt");
    TakeMessages();
    person::PressControl(dialog, kCancelId);
    TakeMessages();
    EXPECT_THAT(told, ElementsAre(Told(EventKind::Opened, 0), Told(EventKind::Pressed, kCancelId)));
    CloseModeless(dialog);
    TakeMessages();
}

// --- Boxes ---

TEST_F(WindowContract, EnterPressesTheDefaultButtonOfAQuestion) {
    for (bool yesIsDefault : {true, false}) {
        person::WillPressEnter();
        EXPECT_EQ(ShowQuestionBox("Quillet", "Save current game?", yesIsDefault), yesIsDefault);
    }
}

TEST_F(WindowContract, EscapeSaysNo) {
    person::WillPressEscape();
    EXPECT_FALSE(ShowQuestionBox("Quillet", "Save current game?", true));
    person::WillPressEscape();
    EXPECT_FALSE(ShowRetryBox("Quillet", "Too many clocks or timers!"));
    for (BoxKind kind : {BoxKind::Warning, BoxKind::Fatal}) {
        person::WillPressEscape();
        ShowMessageBox(kind, "Quillet", "Added letters must be in a straight line.");
    }
}

}  // namespace
}  // namespace quillet
