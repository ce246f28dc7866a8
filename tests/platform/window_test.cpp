// The window: its messages, its painting, its sleep and the pointer that it follows.
#include "platform/window.h"

#include "platform/contract.h"

namespace quillet {
namespace {

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
    for (int x : {10, 20, 30}) person::MovePointer({x, 12});
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
    for (char character : {'\xE9', '.', '\b'}) person::TypeCharacter(character);
    EXPECT_THAT(TakeMessages(), ElementsAre(IsCharacter('\xE9'), IsCharacter('.'), IsCharacter('\b')));
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
    EXPECT_FALSE(HasInvalid() || PeekMessage());
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
    for (int x : {20, 30}) person::MovePointer({x, 10});
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

}  // namespace
}  // namespace quillet
