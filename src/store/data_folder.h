// Where the folder that holds the data folders is, when nobody says.
#pragma once

#include <string>

namespace quillet {

// Does that folder, in the file system's notation, hold data folders?
bool HoldsData(const std::string& folder);

// The same, and may the program write there, as it does when it is played?
bool MayBePlayedIn(const std::string& folder);

// For reading: the current folder, its "assets", or what belongs to the program's own place, and there the
// user's tree before the installed one; "." when none of these holds data.
std::string FindDataFolder();

// For playing, which writes: the data as it was shipped, and the tree that the user's own games, lists and
// edits are kept in (store/user_data brings it up to date). Both are the same folder where the data lies
// right beside the program, or in the current folder, and may be changed.
struct DataPlace {
    std::string shipped;
    std::string own;
};
DataPlace FindDataPlace();

}  // namespace quillet
