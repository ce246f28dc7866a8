// The window without a screen: a test posts what a person does, moves the clock, and reads back pixels,
// texts, menus, dialogs and sounds.
//
// Events that come later are posted with their delay; whoever waits for a message or the pointer moves the
// clock on to the next of them, so no wait takes time. A loop that follows the pointer ends when nothing is
// left to come.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dialog.h"
#include "platform/file_dialog.h"
#include "platform/headless/headless.h"
#include "platform/menu.h"
#include "platform/window.h"
#include "platform/window_controls.h"

namespace quillet {

struct HeadlessMenuItem {
    int menu = 0;     // 0-based
    int command = 0;  // 0 for separators and submenus
    std::string text;
    bool enabled = true;
    bool checked = false;
};

struct HeadlessControl {
    ControlKind kind = ControlKind::Label;
    std::string text;
    bool shown = true;
    bool enabled = true;
    bool checked = false;
    std::size_t lineCount = 0;
    std::function<std::string(std::size_t)> lineText;
    int choice = -1;
    std::size_t selectFrom = 0;
    std::size_t selectCount = 0;
    std::size_t limit = kAll;
    int percent = 0;
    const Picture* picture = nullptr;
};

// An open dialog as data.
struct Dialog {
    std::string title;
    std::map<int, HeadlessControl> controls;  // by id; labels without one are left out
    int focus = 0;                            // the control that has it; 0 before the handler gives it to one
    DialogHandler handler{};
    std::optional<int> result{};  // set once it is closed
};

struct HeadlessWindow {
    Display display{.size = {1024, 768},
                    .workArea = {0, 0, 1024, 768},
                    .frameWidth = 4,
                    .captionHeight = 20,
                    .menuHeight = 20};
    bool exists = false;
    bool active = true;
    bool timersFail = false;
    std::string title;
    std::string description;
    Canvas canvas;
    int zoom = 1;
    Point place;
    Point pointer;
    Cursor cursor = Cursor::Arrow;
    std::vector<std::string> textsDrawn;
    std::vector<HeadlessMenuItem> menuItems;
    std::vector<Accelerator> accelerators;
    std::optional<Image> clipboard;
    std::vector<std::string> sounds;  // paths, in the order they were played
    std::vector<FileRequest> fileRequests;
    std::deque<std::optional<std::string>> fileAnswers;  // when they run out, the person cancels
    // What the person does in the dialogs to come, each when its turn has come; without one, or when it
    // leaves the dialog open, the person cancels.
    std::deque<std::function<void(Dialog&)>> dialogScripts;
    std::vector<std::string> dialogsShown;  // their titles
    Dialog* modeless = nullptr;
    std::map<int, int> windowControls;  // those shown, by id, with their choices
    std::vector<std::string> retryBoxes;
    std::deque<bool> retryAnswers;  // when they run out: Cancel
    std::uint32_t slept = 0;        // milliseconds in WaitForMessage
    // Looks on whenever a loop that follows the pointer waits for it.
    std::function<void()> onPointerWait;
};

inline HeadlessWindow headlessWindow;

// Everything as it was when the program started, with no window and an empty queue.
void ResetHeadlessWindow();

// What a person does, now or in so many milliseconds.
void PostEvent(const Message& message, std::uint32_t delay = 0);

HeadlessMenuItem* FindMenuItem(int command);  // none when the menus lack it
void ChooseMenuItem(int command);             // an enabled one; else nothing happens

// Presses a button in the window, or chooses a line of a list there.
void PressWindowControl(int id);
void ChooseWindowControlLine(int id, int line);

// The person's hand on an open dialog. Typing takes the place of what is selected.
void PressControl(Dialog& dialog, int control);
void TypeText(Dialog& dialog, int control, std::string_view text);
void ChooseLine(Dialog& dialog, int control, int line);
void StepArrows(Dialog& dialog, int control, bool up);

}  // namespace quillet
