// What the window shares with the desktop around it: the clipboard and the loudspeaker.
#include "platform/clipboard.h"
#include "platform/contract.h"
#include "platform/sound.h"

namespace quillet {
namespace {

TEST_F(WindowContract, APictureGoesThroughTheClipboardUnchanged) {
    Image image(26, 25);
    for (int y = 0; y < 25; ++y) {
        for (int x = 0; x < 26; ++x) image.At(x, y) = static_cast<Colour>(x * 9 + y * 0x0305 + 0xFF0000);
    }
    PutPictureOnClipboard(image);
    EXPECT_TRUE(ClipboardHoldsPicture());
    EXPECT_EQ(ClipboardPicture(), image);
}

TEST_F(WindowContract, ASoundThatIsMissingTakesNoTime) {
    const std::uint32_t start = TickCount();
    PlaySound("/no/such/sound.wav");
    PlaySound("/dev/zero");
    StartSound("");
    EXPECT_LT(TickCount() - start, kMuchLater / 3);
}

}  // namespace
}  // namespace quillet
