#include "base/presentation.h"
#include "support/recording_presentation.h"

namespace quillet {

void PlaySoundFile(bool inSoundsFolder, std::string_view name) {
    Record("PlaySoundFile", inSoundsFolder ? "sounds" : "opponents", name);
}
void StartSoundFile(bool inSoundsFolder, std::string_view name) {
    Record("StartSoundFile", inSoundsFolder ? "sounds" : "opponents", name);
}

}  // namespace quillet
