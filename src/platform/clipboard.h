// Pictures on the desktop's clipboard, shared with other programs.
#pragma once

#include <optional>

#include "platform/image.h"

namespace quillet {

bool ClipboardHoldsPicture();
std::optional<Image> ClipboardPicture();  // none when it holds none, or one that cannot be read
void PutPictureOnClipboard(const Image& image);

}  // namespace quillet
