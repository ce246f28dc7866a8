// What every desktop keeps, in rooms of its own: *_test.cpp beside this file run on each platform, by the
// person's hand of desktop.h.
#pragma once

#include <ostream>

#include "platform/desktop.h"
#include "platform/ticks.h"
#include "support/testing.h"

namespace quillet {

using Kind = Message::Kind;

constexpr std::uint32_t kSoon = 30;  // milliseconds
constexpr std::uint32_t kMuchLater = 3000;

inline void PrintTo(const Message& message, std::ostream* out) {
    *out << "kind " << static_cast<int>(message.kind) << " at " << message.at.x << ',' << message.at.y
         << " key " << static_cast<int>(message.key) << " character " << static_cast<int>(message.character)
         << " command " << message.command;
}

MATCHER_P(IsKind, kind, "") { return arg.kind == kind; }
MATCHER_P2(IsPointer, kind, at, "") { return arg.kind == kind && arg.at == at; }
MATCHER_P(IsCharacter, character, "") {
    return arg.kind == Kind::Character && arg.character == static_cast<char>(character);
}
MATCHER_P2(IsOf, kind, command, "") { return arg.kind == kind && arg.command == command; }

inline std::vector<Message> TakeMessagesAndMoves() {
    std::vector<Message> messages;
    while (const auto message = PeekMessage()) {
        messages.push_back(*message);
        if (message->kind == Kind::Paint) TakeInvalid();
    }
    return messages;
}

// Without the moves: there may be one before a press.
inline std::vector<Message> TakeMessages() {
    std::vector<Message> messages = TakeMessagesAndMoves();
    std::erase_if(messages, [](const Message& message) { return message.kind == Kind::PointerMoved; });
    return messages;
}

// A window without menus, and no message on its way.
class WindowContract : public testing::Test {
  protected:
    WindowContract() {
        person::BeginAnew();
        CreateMainWindow("Quillet", {640, 414}, 1, {50, 60});
        TakeMessages();
    }
    ~WindowContract() override { person::BeginAnew(); }
};

}  // namespace quillet
