// Keeps the house in order: reads the includes of the sources and finds what breaks the plan of
// docs/architecture.md.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quillet {

// Everything wrong with the project in that folder, one line each; empty when all is well. Looked for: an
// include of a higher floor, of a platform header that the floor has no business with, of a toolkit header
// outside platform/qt or of nothing that exists; a loop of includes; a file of src/ on no floor; a .cpp
// file that src/CMakeLists.txt does not name.
std::vector<std::string> FindFloorFaults(const std::filesystem::path& project);

}  // namespace quillet
