// Pictures as BMP files (docs/formats/bitmap.md): reads what any program writes, writes 24-bit ones.
//
// Holds no state. A file in any condition is safe to read: at worst there is a warning and no picture, and
// no more memory is taken than kMaxBitmapPixels need.
#pragma once

#include <optional>
#include <string_view>

#include "platform/image.h"
#include "store/files.h"

namespace quillet {

constexpr int kMaxBitmapPixels = 1 << 24;

// A picture of the interface, by its file name. None, with a warning, when it cannot be read.
std::optional<Image> LoadGraphicsBitmap(std::string_view fileName);

// Likewise by its path; but a file that is not there is none without a word, for opponents and scenarios
// need not have all pictures.
std::optional<Image> LoadBitmapFile(std::string_view path);

// A picture NAME.bmp may have a twin of twice its size beside it, NAME@2x.bmp, for displays drawn at scale 2.
// One of any other size is left out.
std::optional<Picture> LoadGraphicsPicture(std::string_view fileName);  // as LoadGraphicsBitmap
std::optional<Picture> LoadPicture(std::string_view path);              // as LoadBitmapFile
FilePath PathOfTwin(std::string_view path);

// True when the picture now stands whole in the file; otherwise a warning has been shown and the old file is
// as it was.
bool SaveBitmapFile(const Image& image, std::string_view path);

// Likewise with its twin; without one, a twin that is there goes.
bool SavePicture(const Picture& picture, std::string_view path);

}  // namespace quillet
