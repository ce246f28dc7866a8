#include "store/data_folder.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

namespace quillet {

namespace fs = std::filesystem;

bool HoldsData(const std::string& folder) {
    std::error_code ignored;
    return fs::is_directory(fs::path(folder) / "Word Lists", ignored);
}

std::string FindDataFolder() {
    std::error_code ignored;
    const fs::path program = fs::read_symlink("/proc/self/exe", ignored).parent_path();
    const std::array candidates{fs::path("."),
                                fs::path("assets"),
                                program,
                                program / "../../../assets",
                                program / "../../assets",
                                program / "../share/quillet"};
    const auto found =
        std::ranges::find_if(candidates, [](const fs::path& folder) { return HoldsData(folder); });
    return found == candidates.end() ? "." : found->string();
}

}  // namespace quillet
