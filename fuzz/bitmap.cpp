// A picture: loaded, saved and loaded again as it was.
#include "store/bitmap_files.h"
#include "store/preferences.h"
#include "support.h"

namespace quillet::fuzz {
namespace {

constexpr std::size_t kMostPixelsToSave = 1 << 16;  // larger ones only cost time

}  // namespace

void SetUp() { DetachPreferences(); }

void TryInput(std::string_view input) {
    WriteFile("picture.bmp", input);
    const std::optional<Image> image = LoadBitmapFile("picture.bmp");
    if (!image || image->pixels.size() > kMostPixelsToSave) return;
    Require(SaveBitmapFile(*image, "saved.bmp"), "a picture cannot be saved");
    Require(LoadBitmapFile("saved.bmp") == image, "a picture is not what was saved");
}

}  // namespace quillet::fuzz
