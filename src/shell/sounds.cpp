// Plays the program's sounds, for those who ask through base/presentation.h.
#include <string>

#include "base/presentation.h"
#include "platform/sound.h"
#include "platform/window.h"
#include "store/files.h"
#include "store/preferences.h"

namespace quillet {
namespace {

// Where the sound lies in the file system; none when nothing is to be heard.
std::optional<std::string> SoundToPlay(bool inSoundsFolder, std::string_view name) {
    if (!preferences.playSounds || name.empty() || !WindowIsActive()) return std::nullopt;
    FilePath path(ResourceString(inSoundsFolder ? StringId::SoundsFolder : StringId::OpponentsFolder));
    path.Append('\\');
    path.Append(name);
    return SystemPath(path);
}

}  // namespace

void PlaySoundFile(bool inSoundsFolder, std::string_view name) {
    if (const auto path = SoundToPlay(inSoundsFolder, name)) PlaySound(*path);
}

void StartSoundFile(bool inSoundsFolder, std::string_view name) {
    if (const auto path = SoundToPlay(inSoundsFolder, name)) StartSound(*path);
}

}  // namespace quillet
