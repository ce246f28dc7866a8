// Playing wave files, by their paths in the file system. A missing or broken file is silent, and so is a
// desktop without a sound device; neither costs time.
#pragma once

#include <string>

namespace quillet {

// Starts the sound and returns at once; it ends the one that was playing.
void StartSound(const std::string& path);

// Plays the sound to its end, with the window shown as it stands meanwhile. No message is taken.
void PlaySound(const std::string& path);

}  // namespace quillet
