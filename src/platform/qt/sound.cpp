#include "platform/sound.h"
#include "platform/qt/desktop.h"
namespace quillet {
void StartSound(const std::string&) {}
void PlaySound(const std::string&) {}
void EndSounds() {}
}  // namespace quillet
