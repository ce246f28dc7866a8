// The whole program on the headless desktop, as a person would use it. The window's state and the verbs that
// set up a game come with it.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/headless/headless_window.h"
#include "platform/window.h"
#include "support/temp_folder.h"
#include "support/world.h"
#include "view/view_state.h"

namespace quillet {

// The program in a data folder of its own: the shipped pictures, the scenarios "Classic" and "Quick Nine",
// the word lists "Words" and "Common" (both the shipped Common list), the opponents Pip and Strix, and
// preferences as they are at the very first start, but for tile clicks, which are off.
class RunningProgram : public TempFolder {
  protected:
    RunningProgram();
    ~RunningProgram() override;

    // Up to the loop, the splash gone.
    void Start(const std::string& savedGame = "");
    // Starts the program and a game of these players; player 1 begins.
    void StartGame(std::initializer_list<std::string_view> names);

    // Lets the program handle everything that waits and then sleep, so many times.
    void Run(int times = 1);

    // The person's hand, and what the program makes of it at once.
    void ClickAt(Point at, int held = 0, bool rightButton = false);
    void DragTo(Point from, Point to, int held = 0);
    void Type(std::string_view characters);
    void Choose(int command);

    bool hasEnded = false;
};

// The person's hand. Points are in units of the client area; what is done waits until the program runs.
enum Held { kNothing = 0, kShift = 1, kControl = 2 };
void Press(Point at, int held = kNothing, bool rightButton = false);
void Release(Point at, std::uint32_t delay = 0);
void Click(Point at, int held = kNothing, bool rightButton = false);
void Drag(Point from, Point to, int held = kNothing);
void TypeText(std::string_view characters);
void PressKey(Key key);

Point MiddleOf(const Rect& rect);
Point MiddleOfSquare(int row, int col);
Point MiddleOfSlot(int slot);

// Was that text drawn since the list was last cleared?
bool WasDrawn(std::string_view text);

}  // namespace quillet
