#include "store/data_folder.h"

#include <pwd.h>
#include <sys/auxv.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace quillet {
namespace {

namespace fs = std::filesystem;

fs::path ProgramFolder() {
    std::error_code error;
    fs::path program = fs::read_symlink("/proc/self/exe", error);
    if (error) {  // there may be no /proc
        const auto* started = reinterpret_cast<const char*>(getauxval(AT_EXECFN));
        if (started != nullptr) program = fs::weakly_canonical(started, error);
    }
    return program.parent_path();
}

fs::path InstalledData(const fs::path& program) { return program / QUILLET_DATA_FROM_PROGRAM; }

// The user's tree of an installed program.
fs::path UserTree() {
    const char* dataHome = std::getenv("XDG_DATA_HOME");
    if (dataHome != nullptr && dataHome[0] == '/') return fs::path(dataHome) / "quillet";
    const char* home = std::getenv("HOME");
    if (home == nullptr || home[0] != '/') {
        const passwd* user = getpwuid(getuid());
        home = user == nullptr ? "/" : user->pw_dir;
    }
    return fs::path(home) / ".local/share/quillet";
}

}  // namespace

bool HoldsData(const std::string& folder) {
    std::error_code ignored;
    return fs::is_directory(fs::path(folder) / "Word Lists", ignored);
}

bool MayBePlayedIn(const std::string& folder) {
    const fs::path preferences = fs::path(folder) / "Data/Prefs";
    std::error_code ignored;
    return HoldsData(folder) && fs::is_directory(preferences, ignored) &&
           access(preferences.c_str(), W_OK) == 0 && access(folder.c_str(), W_OK) == 0;
}

std::string FindDataFolder() {
    const fs::path program = ProgramFolder();
    const fs::path installed = InstalledData(program);
    const std::array candidates{fs::path("."),
                                fs::path("assets"),
                                program,
                                program / "../../../assets",
                                program / "../../assets",
                                HoldsData(installed) ? UserTree() : installed,
                                installed};
    const auto found =
        std::ranges::find_if(candidates, [](const fs::path& folder) { return HoldsData(folder); });
    return found == candidates.end() ? "." : found->string();
}

DataPlace FindDataPlace() {
    const fs::path program = ProgramFolder();
    // A build within a checkout keeps the player's tree among what is built.
    const std::array ofTheProgram{DataPlace{InstalledData(program), UserTree()},
                                  DataPlace{program / "../../../assets", program / "../../data"},
                                  DataPlace{program / "../../assets", program / "../data"}};
    const auto place = std::ranges::find_if(ofTheProgram, HoldsData, &DataPlace::shipped);
    const bool hasPlace = place != ofTheProgram.end();
    std::error_code ignored;
    if (MayBePlayedIn(".") && !(hasPlace && fs::equivalent(".", place->shipped, ignored))) return {".", "."};
    if (hasPlace) return *place;
    if (MayBePlayedIn(program)) return {program, program};
    for (const fs::path& shipped : {program, fs::path("assets"), fs::path(".")}) {
        if (HoldsData(shipped)) return {shipped, UserTree()};
    }
    // What is missing will be told when it is wanted.
    return {".", "."};
}

}  // namespace quillet
