#include "platform/headless/headless_window.h"

#include <algorithm>
#include <utility>

#include "platform/clipboard.h"
#include "platform/shared/message_queue.h"
#include "platform/sound.h"

namespace quillet {
namespace {

struct LaterEvent {
    std::uint32_t at;
    Message message;
};
std::vector<LaterEvent> laterEvents;  // by their time

void Deliver(const Message& message) {
    switch (message.kind) {
        case Message::Kind::ButtonDown:
        case Message::Kind::ButtonUp:
        case Message::Kind::PointerMoved:
            headlessWindow.pointer = message.at;
            break;
        case Message::Kind::Activated:
            headlessWindow.active = true;
            break;
        case Message::Kind::Deactivated:
            headlessWindow.active = false;
            break;
        default:
            break;
    }
    PostMessage(message);
}

void DeliverDueEvents() {
    while (!laterEvents.empty() && laterEvents.front().at <= headless.tick) {
        const Message message = laterEvents.front().message;
        laterEvents.erase(laterEvents.begin());
        Deliver(message);
    }
}

// Moves the clock on to the next event, at most that far. False when there is none to come by then.
bool SleepUntilEvent(std::uint32_t maxMilliseconds) {
    const std::uint32_t start = headless.tick;
    const bool comes = !laterEvents.empty() && laterEvents.front().at - start <= maxMilliseconds;
    if (comes) {
        headless.tick = laterEvents.front().at;
    } else if (maxMilliseconds != kForever) {
        headless.tick += maxMilliseconds;
    }
    DeliverDueEvents();
    return comes;
}

}  // namespace

void ResetHeadlessWindow() {
    headlessWindow = {};
    laterEvents.clear();
    EmptyQueue();
}

void PostEvent(const Message& message, std::uint32_t delay) {
    const std::uint32_t at = headless.tick + delay;
    const auto place = std::ranges::upper_bound(laterEvents, at, {}, &LaterEvent::at);
    laterEvents.insert(place, {at, message});
    DeliverDueEvents();
}

// --- window.h ---

Display CurrentDisplay() { return headlessWindow.display; }

void CreateMainWindow(std::string_view title, Size client, int zoom, Point place) {
    headlessWindow.exists = true;
    headlessWindow.title = title;
    headlessWindow.zoom = zoom;
    ResizeMainWindow(client, place);
}

void DestroyMainWindow() { headlessWindow.exists = false; }

bool MainWindowExists() { return headlessWindow.exists; }

Canvas& WindowCanvas() { return headlessWindow.canvas; }

void ResizeMainWindow(Size client, Point place) {
    headlessWindow.canvas = Canvas(client, headlessWindow.zoom);
    headlessWindow.place = place;
    Invalidate(Rect::At({0, 0}, client));
}

Point ClientPlace() { return headlessWindow.place; }

bool WindowIsActive() { return headlessWindow.exists && headlessWindow.active; }

void SetCursor(Cursor cursor) { headlessWindow.cursor = cursor; }

void DescribeWindow(std::string_view description) { headlessWindow.description = description; }

std::optional<Message> PeekMessage() {
    DeliverDueEvents();
    headlessWindow.canvas.TakeChanged();
    return TakeMessage();
}

void WaitForMessage(std::uint32_t maxMilliseconds) {
    DeliverDueEvents();
    if (MessageWaits()) return;
    const std::uint32_t start = headless.tick;
    SleepUntilEvent(maxMilliseconds);
    headlessWindow.slept += headless.tick - start;
}

bool StartTimer(std::uint32_t milliseconds) {
    if (headlessWindow.timersFail) return false;
    PostEvent({.kind = Message::Kind::Timer}, milliseconds);
    return true;
}

Point PointerPosition() { return headlessWindow.pointer; }

void CapturePointer() { BeginFollowingPointer(); }

void ReleasePointer() {}

PointerState WaitForPointer(std::uint32_t maxMilliseconds) {
    if (headlessWindow.onPointerWait) headlessWindow.onPointerWait();
    DeliverDueEvents();
    if (const auto state = TakePointerEvent()) return *state;
    const bool comes = SleepUntilEvent(maxMilliseconds);
    PointerState state = TakePointerEvent().value_or(CurrentPointerState());
    // Nobody is left to move the pointer or to let the button go.
    if (!comes && laterEvents.empty()) state.active = false;
    return state;
}

// --- menu.h ---

void BuildMenuBar(std::span<const Menu> menus, std::span<const Accelerator> accelerators) {
    headlessWindow.menuItems.clear();
    headlessWindow.accelerators.assign(accelerators.begin(), accelerators.end());
    for (std::size_t menu = 0; menu < menus.size(); ++menu) {
        for (const MenuItem& item : menus[menu].items) {
            AppendMenuItem(static_cast<int>(menu), item.command, item.text);
            for (const MenuItem& inner : item.submenu) {
                AppendMenuItem(static_cast<int>(menu), inner.command, inner.text);
            }
        }
    }
}

void AppendMenuItem(int menu, int command, std::string_view text) {
    headlessWindow.menuItems.push_back({.menu = menu, .command = command, .text = std::string(text)});
}

bool RemoveMenuItem(int command) {
    return std::erase_if(headlessWindow.menuItems,
                         [&](const HeadlessMenuItem& item) { return item.command == command; }) > 0;
}

HeadlessMenuItem* FindMenuItem(int command) {
    const auto item = std::ranges::find(headlessWindow.menuItems, command, &HeadlessMenuItem::command);
    return item == headlessWindow.menuItems.end() ? nullptr : &*item;
}

void ChooseMenuItem(int command) {
    const HeadlessMenuItem* item = FindMenuItem(command);
    if (item != nullptr && item->enabled) PostEvent({.kind = Message::Kind::Command, .command = command});
}

void SetMenuText(int command, std::string_view text) {
    if (HeadlessMenuItem* item = FindMenuItem(command)) item->text = text;
}

void EnableMenuItem(int command, bool enabled) {
    if (HeadlessMenuItem* item = FindMenuItem(command)) item->enabled = enabled;
}

void CheckMenuItem(int command, bool checked) {
    if (HeadlessMenuItem* item = FindMenuItem(command)) item->checked = checked;
}

// --- window_controls.h ---

void ShowWindowControls(std::span<const WindowControl> controls) {
    headlessWindow.windowControls.clear();
    for (const WindowControl& control : controls) headlessWindow.windowControls[control.id] = 0;
}

void HideWindowControls() { headlessWindow.windowControls.clear(); }

int WindowControlChoice(int id) { return headlessWindow.windowControls.at(id); }

void SetWindowControlChoice(int id, int line) { headlessWindow.windowControls.at(id) = line; }

void PressWindowControl(int id) {
    if (!headlessWindow.windowControls.contains(id)) return;
    PostEvent({.kind = Message::Kind::ControlEvent, .command = id});
}

void ChooseWindowControlLine(int id, int line) {
    if (!headlessWindow.windowControls.contains(id)) return;
    SetWindowControlChoice(id, line);
    PressWindowControl(id);
}

// --- message_box.h, file_dialog.h, clipboard.h, sound.h ---

bool ShowRetryBox(std::string_view /*title*/, std::string_view text) {
    headlessWindow.retryBoxes.emplace_back(text);
    if (headlessWindow.retryAnswers.empty()) return false;
    const bool answer = headlessWindow.retryAnswers.front();
    headlessWindow.retryAnswers.pop_front();
    return answer;
}

namespace {

std::optional<std::string> AskFile(const FileRequest& request) {
    headlessWindow.fileRequests.push_back(request);
    if (headlessWindow.fileAnswers.empty()) return std::nullopt;
    const std::optional<std::string> answer = headlessWindow.fileAnswers.front();
    headlessWindow.fileAnswers.pop_front();
    return answer;
}

}  // namespace

std::optional<std::string> AskFileToOpen(const FileRequest& request) { return AskFile(request); }
std::optional<std::string> AskFileToSave(const FileRequest& request) { return AskFile(request); }

bool ClipboardHoldsPicture() { return headlessWindow.clipboard.has_value(); }
std::optional<Image> ClipboardPicture() { return headlessWindow.clipboard; }
void PutPictureOnClipboard(const Image& image) { headlessWindow.clipboard = image; }

void StartSound(const std::string& path) { headlessWindow.sounds.push_back(path); }
void PlaySound(const std::string& path) { headlessWindow.sounds.push_back(path); }

}  // namespace quillet
