// The whole program on the headless desktop, as a person would use it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "platform/headless/headless_window.h"
#include "platform/window.h"
#include "support/temp_folder.h"

namespace quillet {

// The program in a data folder of its own, with the shipped pictures and scenarios, a small word list and
// preferences as they are at the very first start.
class RunningProgram : public TempFolder {
  protected:
    RunningProgram();
    ~RunningProgram() override;

    void Start(const std::string& savedGame = "");
    void StartGame(std::string_view player1, std::string_view player2 = "");  // past the splash, board and racks as dealt

    // Lets the program handle everything that waits, and sleep so many times.
    void Run(int times = 1);

    bool HasEnded() const { return ended; }

  private:
    bool ended = false;
};

// The person's hand. Points are in units of the client area.
enum Held { kNothing = 0, kShift = 1, kControl = 2 };
void Click(Point at, int held = kNothing, bool rightButton = false);
void Drag(Point from, Point to, int held = kNothing);
void TypeCharacters(std::string_view text);
void PressKey(Key key);
void Choose(int command);  // from the menus

Point MiddleOf(const Rect& rect);
Point MiddleOfSquare(int row, int col);
Point MiddleOfSlot(int slot);

// Was that text drawn since the list was last cleared?
bool WasDrawn(std::string_view text);

}  // namespace quillet
