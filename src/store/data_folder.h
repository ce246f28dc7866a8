// Where the folder that holds the data folders is, when nobody says.
#pragma once

#include <string>

namespace quillet {

// Does that folder, in the file system's notation, hold data folders?
bool HoldsData(const std::string& folder);

// The current folder, its "assets", or what belongs to the program's own place; "." when none of these holds
// data.
std::string FindDataFolder();

}  // namespace quillet
