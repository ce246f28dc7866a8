// What every desktop keeps: run on each platform, by the person's hand of tests/platform/desktop.h.
#include <gmock/gmock.h>

#include <array>
#include <stdexcept>
#include <vector>

#include "platform/clipboard.h"
#include "platform/desktop.h"
#include "platform/fonts.h"
#include "platform/message_box.h"
#include "platform/sound.h"
#include "platform/ticks.h"

namespace quillet {

static void PrintTo(const Message& message, std::ostream* out) {
    *out << "kind " << static_cast<int>(message.kind) << " at " << message.at.x << ',' << message.at.y
         << (message.rightButton ? " right" : "") << (message.shift ? " shift" : "")
         << (message.control ? " control" : "") << " key " << static_cast<int>(message.key) << " character "
         << static_cast<int>(message.character) << " command " << message.command;
}

namespace {

using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using Kind = Message::Kind;
using EventKind = DialogEvent::Kind;

constexpr Size kClient{640, 414};
constexpr std::uint32_t kSoon = 30;  // milliseconds
constexpr std::uint32_t kMuchLater = 3000;

MATCHER_P(IsKind, kind, "") { return arg.kind == kind; }
MATCHER_P2(IsPointer, kind, at, "") { return arg.kind == kind && arg.at == at; }
MATCHER_P(IsCharacter, character, "") {
    return arg.kind == Kind::Character && arg.character == static_cast<char>(character);
}
MATCHER_P(IsCommand, command, "") { return arg.kind == Kind::Command && arg.command == command; }

std::vector<Message> TakeMessagesAndMoves() {
    std::vector<Message> messages;
    while (const auto message = PeekMessage()) {
        messages.push_back(*message);
        if (message->kind == Kind::Paint) TakeInvalid();
    }
    return messages;
}

// Without the moves: there may be one before a press.
std::vector<Message> TakeMessages() {
    std::vector<Message> messages = TakeMessagesAndMoves();
    std::erase_if(messages, [](const Message& message) { return message.kind == Kind::PointerMoved; });
    return messages;
}

class WindowContract : public testing::Test {
  protected:
    void SetUp() override {
        person::BeginAnew();
        CreateMainWindow("Quillet", kClient, 1, {50, 60});
        TakeMessages();
    }
    void TearDown() override { person::BeginAnew(); }
};

// --- Messages ---

TEST_F(WindowContract, MessagesComeInTheOrderOfTheEvents) {
    person::PressButton({10, 20});
    person::TypeCharacter('q');
    person::ReleaseButton({11, 21});
    person::PressKey(Key::Left);
    person::CloseWindow();
    EXPECT_THAT(TakeMessages(), ElementsAre(IsPointer(Kind::ButtonDown, Point{10, 20}), IsCharacter('q'),
                                            IsPointer(Kind::ButtonUp, Point{11, 21}), IsKind(Kind::KeyDown),
                                            IsKind(Kind::CloseRequest)));
}

TEST_F(WindowContract, PressesTellTheirButtonAndTheKeysHeld) {
    person::PressButton({1, 2}, {.right = true, .control = true});
    person::PressButton({3, 4}, {.shift = true});
    const std::vector<Message> messages = TakeMessages();
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_TRUE(messages[0].rightButton && messages[0].control && !messages[0].shift);
    EXPECT_TRUE(!messages[1].rightButton && !messages[1].control && messages[1].shift);
}

TEST_F(WindowContract, MovesInARowComeAsTheLastOfThem) {
    person::MovePointer({10, 10});
    person::MovePointer({20, 10});
    person::MovePointer({30, 12});
    person::PressButton({30, 12});
    person::MovePointer({31, 12});
    EXPECT_THAT(TakeMessagesAndMoves(), ElementsAre(IsPointer(Kind::PointerMoved, Point{30, 12}),
                                                    IsPointer(Kind::ButtonDown, Point{30, 12}),
                                                    IsPointer(Kind::PointerMoved, Point{31, 12})));
    EXPECT_EQ(PointerPosition(), (Point{31, 12}));
}

TEST_F(WindowContract, ADoubleClickIsTwoPresses) {
    person::DoubleClick({5, 5});
    EXPECT_THAT(TakeMessages(), ElementsAre(IsKind(Kind::ButtonDown), IsKind(Kind::ButtonUp),
                                            IsKind(Kind::ButtonDown), IsKind(Kind::ButtonUp)));
}

TEST_F(WindowContract, CharactersAreLatin1) {
    person::TypeCharacter('\xE9');
    person::TypeCharacter('.');
    person::TypeCharacter(8);
    EXPECT_THAT(TakeMessages(), ElementsAre(IsCharacter('\xE9'), IsCharacter('.'), IsCharacter(8)));
}

TEST_F(WindowContract, LosingAndGettingTheFocusIsTold) {
    EXPECT_TRUE(WindowIsActive());
    person::LoseFocus();
    EXPECT_FALSE(WindowIsActive());
    person::GetFocus();
    EXPECT_TRUE(WindowIsActive());
    EXPECT_THAT(TakeMessages(), ElementsAre(IsKind(Kind::Deactivated), IsKind(Kind::Activated)));
}

// --- Repainting ---

TEST_F(WindowContract, AFreshClientAreaIsBlackAndInvalid) {
    WindowCanvas().Fill({0, 0, 10, 10}, 0xFFFFFF);
    ResizeMainWindow({660, 470}, {40, 30});
    EXPECT_EQ(WindowCanvas().Extent(), (Size{660, 470}));
    EXPECT_EQ(WindowCanvas().At({5, 5}), 0U);
    EXPECT_EQ(TakeInvalid().Bounds(), (Rect{0, 0, 660, 470}));
    EXPECT_EQ(ClientPlace(), (Point{40, 30}));
}

TEST_F(WindowContract, PaintComesWhenNothingElseWaitsAndUntilItIsTaken) {
    Invalidate({-5, 10, 20, 30});
    person::TypeCharacter('a');
    EXPECT_THAT(*PeekMessage(), IsCharacter('a'));
    EXPECT_THAT(*PeekMessage(), IsKind(Kind::Paint));
    EXPECT_THAT(*PeekMessage(), IsKind(Kind::Paint));
    EXPECT_EQ(TakeInvalid().Bounds(), (Rect{0, 10, 20, 30}));
    EXPECT_FALSE(HasInvalid());
    EXPECT_FALSE(PeekMessage().has_value());
}

TEST_F(WindowContract, WhatWasDrawnIsShownWithoutFurtherAsking) {
    WindowCanvas().Fill({1, 2, 3, 4}, 0xFF0000);
    PeekMessage();
    EXPECT_TRUE(WindowCanvas().TakeChanged().IsEmpty());
}

// --- Waiting ---

TEST_F(WindowContract, SleepingEndsWhenTheTimeIsUp) {
    const std::uint32_t start = TickCount();
    WaitForMessage(2 * kSoon);
    EXPECT_GE(TickCount() - start, 2 * kSoon - 1);
    EXPECT_LT(TickCount() - start, kMuchLater);
}

TEST_F(WindowContract, SleepingEndsAtOnceWhenSomethingWaits) {
    const std::uint32_t start = TickCount();
    person::TypeCharacter('a');
    WaitForMessage(kForever);
    TakeMessages();
    Invalidate({0, 0, 1, 1});
    WaitForMessage(kForever);
    EXPECT_LT(TickCount() - start, kMuchLater);
}

TEST_F(WindowContract, ATimerWakesTheSleeperOnce) {
    const std::uint32_t start = TickCount();
    ASSERT_TRUE(StartTimer(kSoon));
    while (!PeekMessage()) WaitForMessage(kForever);
    EXPECT_GE(TickCount() - start, kSoon - 1);
    WaitForMessage(2 * kSoon);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(WindowContract, APauseTakesItsTimeAndNoMessages) {
    const std::uint32_t start = TickCount();
    person::TypeCharacter('a');
    Pause(kSoon);
    EXPECT_GE(TickCount() - start, kSoon - 1);
    EXPECT_THAT(TakeMessages(), ElementsAre(IsCharacter('a')));
}

// --- The captured pointer ---

TEST_F(WindowContract, ACapturedPointerIsFollowedClickByClick) {
    person::PressButton({10, 10});
    TakeMessages();
    CapturePointer();
    person::MovePointer({20, 10});
    person::MovePointer({30, 10});
    person::ReleaseButton({30, 10});
    person::PressButton({30, 10});
    person::ReleaseButton({30, 10});
    std::vector<bool> held;
    for (int i = 0; i < 4; ++i) held.push_back(WaitForPointer(kForever).buttonDown);
    EXPECT_THAT(held, ElementsAre(true, false, true, false));
    ReleasePointer();
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(WindowContract, MovesMeanwhileCountAsOneWhileCaptured) {
    CapturePointer();
    for (int x = 0; x < 50; ++x) person::MovePointer({x, 10});
    EXPECT_EQ(WaitForPointer(kForever).at, (Point{49, 10}));
    const std::uint32_t start = TickCount();
    EXPECT_EQ(WaitForPointer(kSoon).at, (Point{49, 10}));
    EXPECT_GE(TickCount() - start, kSoon - 1);
    ReleasePointer();
}

TEST_F(WindowContract, KeysAndCommandsAreDroppedWhileCaptured) {
    const std::array items{MenuItem{.command = 1, .text = "&New\tCtrl+N"}};
    const std::array menus{Menu{"&File", items}};
    const std::array accelerators{Accelerator{AcceleratorKey::ControlAnd, 'N', 1}};
    BuildMenuBar(menus, accelerators);
    CapturePointer();
    person::TypeCharacter('a');
    person::PressKey(Key::Escape);
    person::PressAccelerator(accelerators[0]);
    person::MovePointer({7, 7});
    EXPECT_EQ(WaitForPointer(kForever).at, (Point{7, 7}));
    ReleasePointer();
    EXPECT_THAT(TakeMessages(), IsEmpty());
    person::TypeCharacter('b');
    EXPECT_THAT(TakeMessages(), ElementsAre(IsCharacter('b')));
}

TEST_F(WindowContract, ClosingEndsFollowingAndIsNotLost) {
    person::PressButton({10, 10});
    TakeMessages();
    CapturePointer();
    person::CloseWindow();
    EXPECT_FALSE(WaitForPointer(kForever).active);
    ReleasePointer();
    EXPECT_THAT(TakeMessages(), ElementsAre(IsKind(Kind::CloseRequest)));
    CapturePointer();
    person::ReleaseButton({10, 10});
    EXPECT_TRUE(WaitForPointer(kForever).active);
    ReleasePointer();
}

TEST_F(WindowContract, LosingTheFocusEndsFollowing) {
    CapturePointer();
    person::LoseFocus();
    EXPECT_FALSE(WaitForPointer(kForever).active);
    ReleasePointer();
}

// --- Menus ---

class MenuContract : public WindowContract {
  protected:
    void SetUp() override {
        WindowContract::SetUp();
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

TEST_F(MenuContract, ItemsOfMenusAndSubmenusMakeCommands) {
    person::ChooseItem(9);
    person::ChooseItem(1001);
    EXPECT_THAT(TakeMessages(), ElementsAre(IsCommand(9), IsCommand(1001)));
}

TEST_F(MenuContract, AcceleratorsMakeCommandsAndNoCharacters) {
    for (const Accelerator& accelerator : kAccelerators) {
        person::PressAccelerator(accelerator);
        EXPECT_THAT(TakeMessages(), ElementsAre(IsCommand(accelerator.command)));
        EnableMenuItem(accelerator.command, false);
        person::PressAccelerator(accelerator);
        EXPECT_THAT(TakeMessages(), IsEmpty()) << accelerator.command;
    }
}

TEST_F(MenuContract, DisabledItemsAnswerNot) {
    EnableMenuItem(9, false);
    person::ChooseItem(9);
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EnableMenuItem(9, true);
    person::ChooseItem(9);
    EXPECT_THAT(TakeMessages(), ElementsAre(IsCommand(9)));
}

TEST_F(MenuContract, MarksAreTheProgramsAlone) {
    CheckMenuItem(303, true);
    person::ChooseItem(303);
    EXPECT_TRUE(person::ItemIsChecked(303));
    CheckMenuItem(303, false);
    EXPECT_FALSE(person::ItemIsChecked(303));
    person::ChooseItem(303);
    EXPECT_FALSE(person::ItemIsChecked(303));
}

TEST_F(MenuContract, ItemsAreAppendedRenamedAndRemoved) {
    AppendMenuItem(0, 0, "");
    AppendMenuItem(0, 205, "Classic");
    SetMenuText(9, "&Leave");
    EXPECT_EQ(person::MenuText(205), "Classic");
    EXPECT_EQ(person::MenuText(9), "&Leave");
    person::ChooseItem(205);
    EXPECT_THAT(TakeMessages(), ElementsAre(IsCommand(205)));
    EXPECT_TRUE(RemoveMenuItem(205));
    EXPECT_FALSE(RemoveMenuItem(205));
    person::ChooseItem(205);
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_EQ(person::MenuText(205), "");
}

// --- Dialogs ---

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

struct Told {
    EventKind kind;
    int control;
    friend bool operator==(const Told&, const Told&) = default;
};

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
        EXPECT_EQ(Run(open,
                      [&](Dialog& dialog) {
                          act(dialog);
                          person::PressControl(dialog, kOk);
                      }),
                  kOk);
        EXPECT_EQ(told.back(), (Told{EventKind::Pressed, kOk}));
        told.pop_back();
        std::erase_if(told, [](const Told& one) { return one.kind == EventKind::FocusLeft; });
    }

    std::vector<Told> told;  // after Opened
    std::function<void(Dialog&, const DialogEvent&)> hear;
};

const auto kNothing = [](Dialog&) {};

TEST_F(DialogContract, TheResultIsThatOfClosing) {
    EXPECT_EQ(Run(kNothing, [](Dialog& dialog) { person::PressControl(dialog, kOk); }), kOk);
}

TEST_F(DialogContract, ADialogClosedBeforeItShowsIsNotShown) {
    EXPECT_EQ(RunDialog(kTemplate, [](Dialog& dialog, const DialogEvent&) { CloseDialog(dialog, 77); }), 77);
}

TEST_F(DialogContract, EscapeAndTheCloseBoxPressCancel) {
    EXPECT_EQ(Run(kNothing, person::PressEscape), kCancelId);
    EXPECT_EQ(Run(kNothing, person::PressCloseBox), kCancelId);
    EXPECT_THAT(told, ElementsAre(Told{EventKind::Pressed, kCancelId}, Told{EventKind::Pressed, kCancelId}));
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
    EXPECT_THAT(told, ElementsAre(Told{EventKind::Changed, kEdit}, Told{EventKind::Changed, kEdit}));
}

TEST_F(DialogContract, TypingEndsAtTheLimit) {
    RunToOk(
        [](Dialog& dialog) {
            for (int control : {kEdit, kBox}) {
                LimitText(dialog, control, 4);
                SetControlText(dialog, control, "abc");
                SelectText(dialog, control, kAll);
            }
        },
        [](Dialog& dialog) {
            for (int control : {kEdit, kBox}) {
                for (std::string_view character : {"d", "e", "f"})
                    person::TypeInto(dialog, control, character);
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
    EXPECT_THAT(told, ElementsAre(Told{EventKind::Pressed, kCheck}, Told{EventKind::Pressed, kSecond}));
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
        EXPECT_THAT(told, ElementsAre(Told{EventKind::Changed, control})) << control;
    }
}

TEST_F(DialogContract, AHugeListAsksForTheLinesInViewOnly) {
    constexpr std::size_t kMany = 250000;
    std::size_t asked = 0;
    RunToOk(
        [&](Dialog& dialog) {
            SetLines(dialog, kList, kMany, [&](std::size_t i) {
                ++asked;
                EXPECT_LT(i, kMany);
                return Line(i);
            });
        },
        [&](Dialog& dialog) {
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
    std::erase(told, Told{EventKind::Changed, kList});
    EXPECT_THAT(told, ElementsAre(Told{EventKind::Chosen, kList}, Told{EventKind::SteppedUp, kArrows},
                                  Told{EventKind::SteppedDown, kArrows}));
}

TEST_F(DialogContract, LeavingAnEditIsTold) {
    Run(kNothing, [](Dialog& dialog) {
        person::LeaveEdit(dialog, kEdit);
        EXPECT_FALSE(person::HasFocus(dialog, kEdit));
        FocusControl(dialog, kEdit);
        EXPECT_TRUE(person::HasFocus(dialog, kEdit));
        person::PressEscape(dialog);
    });
    EXPECT_THAT(told, ElementsAre(Told{EventKind::FocusLeft, kEdit}, Told{EventKind::Pressed, kCancelId}));
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
    EXPECT_THAT(told, ElementsAre(Told{EventKind::Pressed, kPlain}));
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
    EXPECT_THAT(told, ElementsAre(Told{EventKind::Opened, 0}));
    SetProgress(dialog, kPlain, 50);
    SetControlText(dialog, kLabel, "/words & more/list.txt");
    EXPECT_EQ(ControlText(dialog, kLabel), "/words & more/list.txt");
    TakeMessages();
    person::PressControl(dialog, kCancelId);
    TakeMessages();
    EXPECT_THAT(told, ElementsAre(Told{EventKind::Opened, 0}, Told{EventKind::Pressed, kCancelId}));
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

// --- Clipboard, sound ---

TEST_F(WindowContract, APictureGoesThroughTheClipboardUnchanged) {
    Image image(26, 25);
    for (int y = 0; y < 25; ++y) {
        for (int x = 0; x < 26; ++x) image.At(x, y) = static_cast<Colour>(x * 9 + y * 0x0305 + 0xFF0000);
    }
    PutPictureOnClipboard(image);
    EXPECT_TRUE(ClipboardHoldsPicture());
    EXPECT_EQ(ClipboardPicture(), image);
}

TEST_F(WindowContract, ASoundThatIsMissingTakesNoTime) {
    const std::uint32_t start = TickCount();
    PlaySound("/no/such/sound.wav");
    PlaySound("/dev/zero");
    StartSound("");
    EXPECT_LT(TickCount() - start, kMuchLater / 3);
}

// --- Text ---

class FontContract : public testing::TestWithParam<Font> {};

constexpr std::string_view kSample = "Illinois Wight 1234567890 (Quizzify), fjord";

TEST_P(FontContract, MasksStayWithinTheMeasuresAtEveryScale) {
    const FontMetrics metrics = MetricsOf(GetParam());
    for (int scale : {1, 2, 3}) {
        const TextMask mask = MaskOfText(GetParam(), kSample, scale);
        EXPECT_EQ(mask.coverage.size(), static_cast<std::size_t>(mask.width * mask.height));
        EXPECT_GE(mask.left, -2 * scale);
        EXPECT_LE(mask.left + mask.width, (TextWidth(GetParam(), kSample) + 1) * scale);
        EXPECT_GE(mask.left + mask.width, (TextWidth(GetParam(), kSample) - 3) * scale);
        EXPECT_GE(mask.top, -(metrics.height - metrics.descent + 1) * scale);
        EXPECT_LE(mask.top + mask.height, (metrics.descent + 1) * scale);
        EXPECT_THAT(mask.coverage, testing::Contains(testing::Gt(200)));
    }
}

TEST_P(FontContract, NothingAndSpacesLeaveNoMark) {
    EXPECT_EQ(TextWidth(GetParam(), ""), 0);
    EXPECT_GT(TextWidth(GetParam(), " "), 0);
    for (std::string_view text : {"", "  "}) {
        EXPECT_THAT(MaskOfText(GetParam(), text, 1).coverage, testing::Each(0)) << text;
    }
}

INSTANTIATE_TEST_SUITE_P(Faces, FontContract,
                         testing::Values(Font{"Arial", 8}, Font{"Times New Roman Bold", 12},
                                         Font{"Courier New", 9}));

TEST(FixedPitch, EveryCharacterIsAsWideAsTheOthersAtEveryScale) {
    for (int points : {8, 9}) {
        const Font font{"Courier New", points};
        const int width = MetricsOf(font).averageWidth;
        EXPECT_EQ(TextWidth(font, "iiiiiiiiii"), 10 * width);
        EXPECT_EQ(TextWidth(font, "MMMMMMMMMM"), 10 * width);
        for (int scale : {1, 2, 3}) {
            // The tenth character stands where nine others end.
            const TextMask alone = MaskOfText(font, "|", scale);
            const TextMask tenth = MaskOfText(font, "|        |", scale);
            EXPECT_EQ(tenth.left, alone.left);
            EXPECT_EQ(tenth.width - alone.width, 9 * width * scale);
        }
    }
}

}  // namespace
}  // namespace quillet
