// The queue behind platform/window.h: what both platforms do alike with messages, invalid areas and the
// captured pointer. A platform turns its events into messages and posts them here; it has to bring the events
// and to sleep, nothing more.
//
// Owns the queue, the invalid region and the pointer's state; changed only through these functions.
#pragma once

#include <optional>

#include "platform/window.h"

namespace quillet {

// At the end of the queue; a move of the pointer takes the place of one that is still the last.
void PostMessage(const Message& message);

// Waits anything for PeekMessage: a message or an invalid area?
bool MessageWaits();

// The oldest message; a paint message when there is none but something is invalid.
std::optional<Message> TakeMessage();

// The pointer is captured: what ended an earlier capture counts no longer.
void BeginFollowingPointer();

// While captured: the pointer after its next waiting event; none when none waits.
std::optional<PointerState> TakePointerEvent();
PointerState CurrentPointerState();

// As when the program starts.
void EmptyQueue();

}  // namespace quillet
