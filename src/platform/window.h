// The main window: its canvas, the messages that reach the program, the pointer, and where it stands.
//
// Everything a person does becomes a Message; messages wait in one queue, in the order of the events, until
// the program takes them. Nothing of the program runs behind its back. What is drawn on the canvas is shown,
// without the program's doing, whenever it waits: in PeekMessage, WaitForMessage, WaitForPointer, Pause and
// every dialog. The window keeps its size; when it was covered it repaints itself from the canvas.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/canvas.h"
#include "platform/geometry.h"
#include "platform/image.h"

namespace quillet {

// --- The display ---

struct Display {
    Size size;              // in the desktop's units, of the screen the window is on
    Rect workArea;          // of it, what panels and docks leave
    int bitsPerPixel = 32;  // 4 or fewer: draw in black and white; 8: draw in the palette's colours
    int frameWidth = 0;     // of the window's sizing border, on each side
    int captionHeight = 0;  // of the title bar
    int menuHeight = 0;     // of the menu bar
    // Of an 8-bit display; empty otherwise.
    std::array<Colour, 256> systemPalette{};
    int paletteEntries = 0;   // 256 on an 8-bit display
    int reservedEntries = 0;  // that the desktop keeps for itself
};
Display CurrentDisplay();

// --- The window ---

// Creates and shows the window: its client area has that size in units, each drawn with `zoom` times `zoom`
// of the desktop's units, and stands at that place on the screen, in the desktop's units. The canvas is
// black, and all of it is invalid.
void CreateMainWindow(std::string_view title, Size client, int zoom, Point place);
void DestroyMainWindow();
bool MainWindowExists();

// The client area: what stands on it is what the person sees.
Canvas& WindowCanvas();

// Gives the client area another size and place. Its picture is then black, and all of it invalid.
void ResizeMainWindow(Size client, Point place);
Point ClientPlace();  // of the client area's corner on the screen, in the desktop's units

bool WindowIsActive();

enum class Cursor : std::uint8_t { Arrow, Wait, Text };
void SetCursor(Cursor cursor);

// For assistive technology: what the window shows, as text.
void DescribeWindow(std::string_view description);

// --- Repainting ---

void Invalidate(const Rect& rect);
bool HasInvalid();
Region TakeInvalid();  // all that was invalidated since; what takes it draws it

// --- Messages ---

enum class Key : std::uint8_t { None, Left, Right, Up, Down, Escape };

struct Message {
    enum class Kind : std::uint8_t {
        None,
        Paint,       // the invalid region wants drawing; comes only when nothing else waits
        Character,   // typed, and no accelerator; Backspace is 8
        KeyDown,     // one of Key
        ButtonDown,  // left or right
        ButtonUp,
        PointerMoved,  // several in a row may come as the last of them
        Command,       // of a menu or an accelerator
        Activated,
        Deactivated,
        CloseRequest,
        Timer,           // StartTimer's time is up
        ColoursChanged,  // of the desktop
        ControlEvent,    // of a control in the window (platform/dialog.h)
    };
    Kind kind = Kind::None;
    Point at{};  // of the pointer, in units; may lie outside the client area
    bool rightButton = false;
    bool shift = false;
    bool control = false;
    Key key = Key::None;
    char character = 0;
    int command = 0;  // or the number of the control
};

// Takes one waiting message; none when none waits. While a menu is open it waits until that is closed.
std::optional<Message> PeekMessage();

// The same as the person's closing the window.
void RequestClose();

// Sleeps until a message waits, at most that long.
void WaitForMessage(std::uint32_t maxMilliseconds);
constexpr std::uint32_t kForever = 0xFFFFFFFF;

// One Timer message after that time; false when the desktop has no timer left.
bool StartTimer(std::uint32_t milliseconds);

// --- The pointer ---

// Where it is now, in units of the client area.
Point PointerPosition();

// From here on clicks, typed keys and commands make no messages, until the pointer is released: for loops
// that follow the pointer themselves. Other messages wait.
void CapturePointer();
void ReleasePointer();

struct PointerState {
    Point at;
    bool buttonDown = false;  // either of them
    bool active = true;       // false once the window is no longer active or is to be closed: a loop must end
};
// While captured: the pointer as it is after the next event of it, in their order and none of the clicks left
// out; moves that have come meanwhile count as one. When none comes in that time, as it is.
PointerState WaitForPointer(std::uint32_t maxMilliseconds);

}  // namespace quillet
