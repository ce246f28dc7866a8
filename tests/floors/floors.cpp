#include "floors/floors.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <sstream>
#include <string_view>

namespace quillet {
namespace {

namespace fs = std::filesystem;

struct Floor {
    std::string_view place;  // a folder or file, from the project's root
    int number;
};

// The house. A more particular place stands before the folder it lies in.
constexpr std::array kFloors{
    Floor{"src/main.cpp", 12},    Floor{"src/shell/", 11},    Floor{"src/editors/", 10},
    Floor{"src/dialogs/", 9},     Floor{"src/view/", 9},      Floor{"cli/", 9},
    Floor{"src/play/", 8},        Floor{"src/data/", 7},      Floor{"src/computer/", 6},
    Floor{"src/game/", 5},        Floor{"src/words/", 4},     Floor{"src/store/", 3},
    Floor{"src/base/", 2},        Floor{"src/resources/", 2}, Floor{"src/platform/headless/", 2},
    Floor{"src/platform/qt/", 2}, Floor{"src/platform/", 1},
};
constexpr int kTopOfCore = 8;  // above it is the window, of which the core and cli/ know nothing
constexpr std::array<std::string_view, 3> kPlatformOfCore{
    "src/platform/image.h", "src/platform/message_box.h", "src/platform/ticks.h"};
constexpr std::string_view kToolkitFolder = "src/platform/qt/";

struct Include {
    std::string name;
    bool angled = false;  // <name>
};

using Paths = std::vector<std::string>;

struct Tree {
    fs::path project;
    std::map<std::string, Paths> includes;  // of each file, those that are our own
    Paths faults;
};

const Floor* FloorOf(std::string_view file) {
    const auto floor =
        std::ranges::find_if(kFloors, [&](const Floor& other) { return file.starts_with(other.place); });
    return floor == kFloors.end() ? nullptr : &*floor;
}

std::string ReadText(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::optional<Include> ParseInclude(std::string_view line) {
    const auto skipBlanks = [&] { line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size())); };
    for (const std::string_view word : {"#", "include"}) {
        skipBlanks();
        if (!line.starts_with(word)) return std::nullopt;
        line.remove_prefix(word.size());
    }
    skipBlanks();
    if (!line.starts_with('<') && !line.starts_with('"')) return std::nullopt;
    const bool angled = line.front() == '<';
    line.remove_prefix(1);
    return Include{std::string(line.substr(0, line.find(angled ? '>' : '"'))), angled};
}

// Why a file may not include that other one; empty when it may.
std::string_view Objection(std::string_view file, std::string_view included) {
    const Floor& from = *FloorOf(file);
    const Floor& to = *FloorOf(included);
    const bool isCli = from.place == "cli/";
    const bool fromPlatform = from.place.starts_with("src/platform/");
    const bool toPlatform = to.place.starts_with("src/platform/");
    if (from.place == to.place) return {};
    if (to.number > (isCli ? kTopOfCore : from.number)) return "which is on a higher floor";
    if (to.place == "cli/") return "which is the terminal companion's own";
    if (!toPlatform || fromPlatform) return {};
    if (to.place != "src/platform/") {
        return isCli || from.place == "src/main.cpp" ? "" : "which is chosen by linking";
    }
    const bool allowed = from.number > kTopOfCore || std::ranges::count(kPlatformOfCore, included) > 0;
    return allowed ? "" : "which is of the window";
}

// Where a quoted include leads, from the project's root; none when there is no such file.
std::optional<std::string> Resolve(const fs::path& project, const std::string& file,
                                   const std::string& name) {
    for (const fs::path& base : {fs::path("src"), fs::path(file).parent_path()}) {
        const fs::path path = (base / name).lexically_normal();
        if (fs::exists(project / path)) return path.string();
    }
    return std::nullopt;
}

void CheckInclude(Tree& tree, const std::string& file, const Include& include) {
    const auto fault = [&](std::string_view why) {
        tree.faults.push_back(file + " includes " + include.name + ", " + std::string(why));
    };
    const bool isToolkit = include.angled && (include.name.starts_with('Q') || include.name.starts_with('q'));
    if (isToolkit && !file.starts_with(kToolkitFolder)) fault("which is of the toolkit");
    if (include.angled) return;
    const std::optional<std::string> included = Resolve(tree.project, file, include.name);
    if (!included || FloorOf(*included) == nullptr) return fault("which is nowhere in the house");
    tree.includes[file].push_back(*included);
    if (const std::string_view objection = Objection(file, *included); !objection.empty()) fault(objection);
}

void CheckFile(Tree& tree, const std::string& file) {
    if (FloorOf(file) == nullptr) return tree.faults.push_back(file + " is on no floor");
    std::istringstream lines(ReadText(tree.project / file));
    for (std::string line; std::getline(lines, line);) {
        if (const auto include = ParseInclude(line)) CheckInclude(tree, file, *include);
    }
}

// Follows the includes of the last file of `way`, which lists how one got there.
void FindLoops(Tree& tree, Paths& way, Paths& finished) {
    const std::string file = way.back();
    for (const std::string& included : tree.includes[file]) {
        const auto again = std::ranges::find(way, included);
        if (again != way.end()) {
            std::string fault = "loop: ";
            for (auto step = again; step != way.end(); ++step) fault += *step + " -> ";
            tree.faults.push_back(fault + included);
        } else if (std::ranges::count(finished, included) == 0) {
            way.push_back(included);
            FindLoops(tree, way, finished);
            way.pop_back();
        }
    }
    finished.push_back(file);
}

Paths FilesUnder(const fs::path& project, const std::string& folder) {
    Paths files;
    if (!fs::exists(project / folder)) return files;
    for (const auto& entry : fs::recursive_directory_iterator(project / folder)) {
        if (!entry.is_regular_file() || entry.path().filename() == "CMakeLists.txt") continue;
        files.push_back(entry.path().lexically_relative(project).string());
    }
    std::ranges::sort(files);
    return files;
}

void CheckBuildList(Tree& tree, const Paths& files) {
    Paths listed;
    std::istringstream lines(ReadText(tree.project / "src/CMakeLists.txt"));
    for (std::string line; std::getline(lines, line);) {
        line.resize(std::min(line.find('#'), line.size()));
        std::ranges::replace_if(
            line, [](char c) { return c == '(' || c == ')' || c == '"'; }, ' ');
        std::istringstream words(line);
        for (std::string word; words >> word;) listed.push_back("src/" + word);
    }
    for (const std::string& file : files) {
        if (file.starts_with("src/") && file.ends_with(".cpp") && std::ranges::count(listed, file) == 0) {
            tree.faults.push_back(file + " is not named in src/CMakeLists.txt");
        }
    }
}

}  // namespace

std::vector<std::string> FindFloorFaults(const fs::path& project) {
    Tree tree{.project = project, .includes = {}, .faults = {}};
    Paths files = FilesUnder(project, "src");
    std::ranges::copy(FilesUnder(project, "cli"), std::back_inserter(files));
    if (files.empty()) return {"there are no sources in " + project.string()};
    for (const std::string& file : files) CheckFile(tree, file);
    Paths finished;
    for (const std::string& file : files) {
        Paths way{file};
        if (std::ranges::count(finished, file) == 0) FindLoops(tree, way, finished);
    }
    CheckBuildList(tree, files);
    return tree.faults;
}

}  // namespace quillet
