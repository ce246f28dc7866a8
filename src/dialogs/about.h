// What the program is.
#pragma once

namespace quillet {

void ShowAboutBox();

}  // namespace quillet
