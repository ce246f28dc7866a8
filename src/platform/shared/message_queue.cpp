#include "platform/shared/message_queue.h"

#include <algorithm>
#include <deque>
#include <utility>

namespace quillet {
namespace {

using Kind = Message::Kind;

struct Queue {
    std::deque<Message> messages;
    Region invalid;
    PointerState pointer;  // as of the last event that was taken
    int buttonsDown = 0;
};
Queue queue;

bool IsPointerEvent(Kind kind) {
    return kind == Kind::ButtonDown || kind == Kind::ButtonUp || kind == Kind::PointerMoved;
}

// What a captured pointer keeps from the program.
bool IsInput(Kind kind) {
    return IsPointerEvent(kind) || kind == Kind::Character || kind == Kind::KeyDown ||
           kind == Kind::Command || kind == Kind::ControlEvent;
}

void FollowPointer(const Message& message) {
    queue.pointer.at = message.at;
    if (message.kind == Kind::ButtonDown) ++queue.buttonsDown;
    if (message.kind == Kind::ButtonUp) queue.buttonsDown = std::max(queue.buttonsDown - 1, 0);
    queue.pointer.buttonDown = queue.buttonsDown > 0;
}

}  // namespace

void PostMessage(const Message& message) {
    if (message.kind == Kind::PointerMoved && !queue.messages.empty() &&
        queue.messages.back().kind == Kind::PointerMoved) {
        queue.messages.back() = message;
        return;
    }
    queue.messages.push_back(message);
}

void RequestClose() { PostMessage({.kind = Kind::CloseRequest}); }

bool MessageWaits() { return !queue.messages.empty() || !queue.invalid.IsEmpty(); }

std::optional<Message> TakeMessage() {
    if (queue.messages.empty()) {
        if (queue.invalid.IsEmpty()) return std::nullopt;
        return Message{.kind = Kind::Paint};
    }
    const Message message = queue.messages.front();
    queue.messages.pop_front();
    if (IsPointerEvent(message.kind)) FollowPointer(message);
    return message;
}

std::optional<PointerState> TakePointerEvent() {
    bool found = false;
    for (auto at = queue.messages.begin(); at != queue.messages.end() && !found;) {
        const Message message = *at;
        if (message.kind == Kind::Deactivated || message.kind == Kind::CloseRequest) {
            found = queue.pointer.active;
            queue.pointer.active = false;
        }
        if (!IsInput(message.kind)) {
            ++at;
            continue;
        }
        at = queue.messages.erase(at);
        if (!IsPointerEvent(message.kind)) continue;
        FollowPointer(message);
        found = true;
    }
    if (!found) return std::nullopt;
    return queue.pointer;
}

PointerState CurrentPointerState() { return queue.pointer; }

void BeginFollowingPointer() { queue.pointer.active = WindowIsActive(); }

void EmptyQueue() { queue = {}; }

void Invalidate(const Rect& rect) {
    queue.invalid.Add(rect.Intersection(Rect::At({0, 0}, WindowCanvas().Extent())));
}

bool HasInvalid() { return !queue.invalid.IsEmpty(); }

Region TakeInvalid() { return std::exchange(queue.invalid, {}); }

}  // namespace quillet
