// Dialogs, described as data and run by the desktop in its own look, font and language direction.
//
// A template is a grid of controls. A handler hears what the person does and moves texts and choices between
// the controls and the modules below; it is called only while the dialog is open. Dialogs open in the middle
// of the main window's client area (of the screen before there is one), moved if need be to lie on the
// screen.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/geometry.h"
#include "platform/image.h"

namespace quillet {

enum class ControlKind : std::uint8_t {
    Label,         // "&" in its text is the access key of the control that follows in the template
    Edit,          // one line
    TextBox,       // many lines
    ReadOnlyText,  // many lines to read, with a scroll bar
    Check,
    Radio,
    Button,
    DefaultButton,  // Enter presses it
    DropDown,       // a list of which one line shows
    List,           // a list of which many lines show
    Picture,        // stretched to the control's size
    Arrows,         // two small buttons, less and more; its text is for assistive technology alone
    Progress,       // a bar
};

// Where a control stands in the dialog's grid, 0-based. The last row of buttons stands in a grid of its own,
// at the right.
struct GridCell {
    int row = 0;
    int column = 0;
    int rows = 1;
    int columns = 1;
};
constexpr int kButtonRow = -1;  // `row` of a control in the row of buttons at the bottom

struct ControlTemplate {
    int id = 0;  // 0: never asked for (labels)
    ControlKind kind = ControlKind::Label;
    std::string_view text{};
    GridCell cell;
    int width = 0;   // of edits and lists: characters; of pictures: units; 0 as it comes
    int height = 0;  // of boxes and lists: lines; of pictures: units; 0 as it comes
    bool fixedPitch = false;
};

struct DialogTemplate {
    std::string_view title;
    std::span<const ControlTemplate> controls;
    // Where its middle stands, in units of the client area, when it is not that area's own middle.
    std::optional<Point> middle{};
};

// The id that Escape and the close box press.
constexpr int kCancelId = 2;

struct Dialog;  // an open one; owned by the platform

struct DialogEvent {
    enum class Kind : std::uint8_t {
        Opened,       // before it shows: time to fill the controls
        Pressed,      // a button, a check or a radio button; kCancelId also for Escape and the close box
        Changed,      // the text of an edit, the choice of a list or drop-down, by the person
        Chosen,       // a line of a list, by a double click or Enter
        SteppedDown,  // arrows: less
        SteppedUp,    // more
        FocusLeft,    // an edit
    };
    Kind kind = Kind::Opened;
    int control = 0;
};
using DialogHandler = std::function<void(Dialog&, const DialogEvent&)>;

// Runs a modal dialog until CloseDialog; the result is that call's. The main window's queue stands still.
int RunDialog(const DialogTemplate& dialogTemplate, const DialogHandler& handler);
void CloseDialog(Dialog& dialog, int result);

// Shows a dialog beside the main window, which goes on; its events reach the handler whenever the program
// takes messages. It stays until CloseModeless.
Dialog& OpenModeless(const DialogTemplate& dialogTemplate, DialogHandler handler);
void CloseModeless(Dialog& dialog);

// The controls of an open dialog. Setting tells the handler nothing. A text set here is shown as it stands,
// "&" too. In boxes of many lines CR, LF or CR LF ends a line; what is read from them has CR LF.
std::string ControlText(Dialog& dialog, int control);
void SetControlText(Dialog& dialog, int control, std::string_view text);
void SetProgress(Dialog& dialog, int control, int percent);
bool IsChecked(Dialog& dialog, int control);
void SetChecked(Dialog& dialog, int control, bool checked);
void SetPicture(Dialog& dialog, int control, const Picture* picture);  // none: an empty area

// Lists and drop-downs: line i (0-based) shows textOf(i), which is asked for as lines come into view. Filling
// chooses line 0, or none (-1) of an empty list.
void SetLines(Dialog& dialog, int control, std::size_t count, std::function<std::string(std::size_t)> textOf);
int Choice(Dialog& dialog, int control);
void SetChoice(Dialog& dialog, int control, int line);  // scrolled into view

// Hidden ones keep their place; of several in one cell at most one is shown.
void ShowControl(Dialog& dialog, int control, bool shown);
void EnableControl(Dialog& dialog, int control, bool enabled);
void FocusControl(Dialog& dialog, int control);
// `count` characters of an edit from the 0-based `from`; at most all that there are.
constexpr std::size_t kAll = static_cast<std::size_t>(-1);
void SelectText(Dialog& dialog, int control, std::size_t from = 0, std::size_t count = kAll);
void LimitText(Dialog& dialog, int control, std::size_t characters);

}  // namespace quillet
