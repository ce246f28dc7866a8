// The user's own tree of data, where the program is installed for everybody: what the program may change is
// copied there from what was shipped, what it only reads is linked.
//
// A list in the tree (".shipped") tells what was last copied. By it a file that the user has not touched
// follows what is shipped, and everything else is left as it is: what was changed, added or thrown away.
//
// Owns nothing in memory. Paths are the file system's own.
#pragma once

#include <filesystem>
#include <string>

namespace quillet {

// Brings the tree up to date, and makes it when there is none yet. When that cannot be done for want of room,
// or for any other reason, the tree stays as it was; what is returned then tells why, and is empty otherwise.
//
// A file that was shipped for the first time is copied, unless the user has one of that name or has thrown
// the folder away that it belongs to. A file that is no longer shipped goes, if it is as it was copied;
// but a scenario or an opponent in which the user changed something stays whole.
// A folder like "Scenarios" that is gone as a whole is copied again.
// A real folder in the place of a link is the user's and stays.
std::string RefreshUserData(const std::filesystem::path& shipped, const std::filesystem::path& own);

}  // namespace quillet
