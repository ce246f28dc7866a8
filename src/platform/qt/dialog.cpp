#include "platform/dialog.h"
#include "platform/qt/desktop.h"
namespace quillet {
bool ModelessEventsWait() { return false; }
void DeliverModelessEvents() {}
}  // namespace quillet
