#include <gmock/gmock.h>

#include "base/presentation.h"
#include "store/preferences.h"
#include "support/temp_folder.h"
#include "support/window.h"

namespace quillet {
namespace {

using testing::ElementsAre;

using Sounds = TempFolder;

TEST_F(Sounds, AreHeardWhileTheWindowIsActiveAndTheyAreOn) {
    const FreshWindow window;
    preferences = {};
    PlaySoundFile(true, "bingo.wav");
    StartSoundFile(true, "start.wav");
    PlaySoundFile(false, "Bo\\8001.wav");
    const std::vector<std::string> heard{root / "Data/Sounds/bingo.wav", root / "Data/Sounds/start.wav",
                                         root / "Opponents/Bo/8001.wav"};
    EXPECT_EQ(headlessWindow.sounds, heard);
    PlaySoundFile(false, "");
    PlaySoundFile(true, "..\\..\\secret.wav");
    headlessWindow.active = false;
    PlaySoundFile(true, "quit.wav");
    headlessWindow.active = true;
    preferences.playSounds = false;
    StartSoundFile(false, "Bo\\8001.wav");
    EXPECT_EQ(headlessWindow.sounds, heard);
}

}  // namespace
}  // namespace quillet
