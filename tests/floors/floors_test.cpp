// Keeps the house in order: reads the includes of the sources and finds what breaks the plan of
// docs/architecture.md.

#include <map>
#include <regex>
#include <set>

#include "support/temp_folder.h"

namespace quillet {
namespace {

namespace fs = std::filesystem;

struct Floor {
    std::string place;  // a folder or file, from the project's root
    int number;
};

// The house. A more particular place stands before the folder it lies in.
const Floor kFloors[] = {
    {"src/main.cpp", 12},
    {"src/shell/", 11},
    {"src/editors/", 10},
    {"src/dialogs/", 10},
    {"src/view/", 9},
    {"cli/", 9},
    {"src/play/", 8},
    {"src/data/", 7},
    {"src/computer/", 6},
    {"src/game/", 5},
    {"src/words/", 4},
    {"src/store/", 3},
    {"src/base/", 2},
    {"src/resources/", 2},
    {"src/platform/headless/", 2},
    {"src/platform/qt/", 2},
    {"src/platform/shared/", 1},
    {"src/platform/", 1},
};
constexpr int kTopOfCore = 8;  // above it is the window, of which the core and cli/ know nothing
const std::set<std::string> kPlatformOfCore{"src/platform/image.h", "src/platform/message_box.h",
                                            "src/platform/ticks.h"};
const std::set<std::string> kPlatformOfTables{"src/platform/dialog.h", "src/platform/menu.h"};

const Floor* FloorOf(const std::string& file) {
    const auto floor =
        std::ranges::find_if(kFloors, [&](const Floor& other) { return file.starts_with(other.place); });
    return floor == std::end(kFloors) ? nullptr : &*floor;
}

// Why a file may not include that other one; empty when it may.
std::string Objection(const std::string& file, const std::string& included) {
    const Floor& from = *FloorOf(file);
    const Floor* to = FloorOf(included);
    if (to == nullptr) return "nowhere in the house";
    const bool isCli = from.place == "cli/";
    if (from.place == to->place) return "";
    if (to->number > (isCli ? kTopOfCore : from.number)) return "on a higher floor";
    if (to->place == "cli/") return "the terminal companion's own";
    if (!to->place.starts_with("src/platform/") || from.place.starts_with("src/platform/")) return "";
    if (to->place != "src/platform/") {
        return isCli || from.place == "src/main.cpp" ? "" : "chosen by linking";
    }
    const bool isTable = from.place == "src/resources/" && kPlatformOfTables.contains(included);
    return from.number > kTopOfCore || isTable || kPlatformOfCore.contains(included) ? "" : "of the window";
}

// A project in a folder, and all that is wrong with it.
struct House {
    explicit House(const fs::path& folder) : project(folder) {
        for (const char* top : {"src", "cli"}) {
            if (!fs::exists(project / top)) continue;
            for (const auto& entry : fs::recursive_directory_iterator(project / top)) {
                const std::string file = entry.path().lexically_relative(project).string();
                if (entry.is_regular_file() && !file.ends_with("CMakeLists.txt")) CheckFile(file);
            }
        }
        if (includes.empty()) faults.push_back("there are no sources");
        // What includes nothing more is done; what is never done is in a loop or includes one.
        const auto isLeft = [&](const std::string& file) { return includes.contains(file); };
        while (std::erase_if(includes,
                             [&](const auto& file) { return std::ranges::none_of(file.second, isLeft); })) {
        }
        for (const auto& [file, included] : includes)
            faults.push_back(file + " is in a loop of includes, or leads to one");
    }

    std::string Text(const std::string& file) const {
        std::ifstream stream(project / file);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    void CheckFile(const std::string& file) {
        includes[file];
        if (FloorOf(file) == nullptr) return faults.push_back(file + " is on no floor");
        static const std::regex kInclude("(?:^|\n)[ \t]*#[ \t]*include[ \t]*([<\"])([^>\"\n]+)");
        const std::string text = Text(file);
        for (std::sregex_iterator at(text.begin(), text.end(), kInclude), end; at != end; ++at) {
            const std::string why = CheckInclude(file, at->str(2), at->str(1) == "<");
            if (!why.empty()) faults.push_back(file + " includes " + at->str(2) + ", which is " + why);
        }
        static const std::regex kWord("#.*|[^\\s()\"]+");
        const std::string list = Text("src/CMakeLists.txt");
        const Strings listed(std::sregex_token_iterator(list.begin(), list.end(), kWord), {});
        if (file.starts_with("src/") && file.ends_with(".cpp") &&
            !std::ranges::count(listed, file.substr(4))) {
            faults.push_back(file + " is not named in src/CMakeLists.txt");
        }
    }

    std::string CheckInclude(const std::string& file, const std::string& name, bool angled) {
        const bool isToolkit = angled && (name.starts_with('Q') || name.starts_with('q'));
        if (isToolkit && !file.starts_with("src/platform/qt/")) return "of the toolkit";
        if (angled) return "";
        for (const fs::path& base : {fs::path("src"), fs::path(file).parent_path()}) {
            const std::string included = (base / name).lexically_normal().string();
            if (!fs::exists(project / included)) continue;
            includes[file].push_back(included);
            return Objection(file, included);
        }
        return "nowhere in the house";
    }

    fs::path project;
    std::map<std::string, Strings> includes;  // of each file, those that are our own
    Strings faults;
};

TEST(House, IsInOrder) { EXPECT_THAT(House(QUILLET_PROJECT_FOLDER).faults, IsEmpty()); }

using Floors = TempFolder;

// A small house that is in order, but for a file that breaks each rule.
TEST_F(Floors, EachBrokenRuleIsFound) {
    EXPECT_THAT(House(root).faults, ElementsAre("there are no sources"));
    for (const char* file : {"store/a.cpp", "shell/loop.h", "platform/window.h", "platform/ticks.h",
                             "platform/qt/start.h", "game/loop.h", "attic/b.h"})
        WriteFile(std::string("src/") + file, "");
    WriteFile("src/CMakeLists.txt", "SOURCES # store/a.cpp\n");
    WriteFile("src/main.cpp", "#include \"platform/qt/start.h\"\n#include \"shell/loop.h\"\n");
    WriteFile("src/store/b.h", "#include \"platform/ticks.h\"\n  #  include \"shell/loop.h\"\n");
    WriteFile("src/store/c.h", "#include \"platform/window.h\"\n#include \"none.h\"\n");
    WriteFile("src/view/b.h", "#include <QtCore/QString>\n#include \"platform/qt/start.h\"\n");
    WriteFile("src/game/loop.h", "#include \"loop.h\"\n");
    WriteFile("cli/own.h", "#include \"platform/headless/headless.h\"\n#include \"shell/loop.h\"\n");
    WriteFile("src/platform/headless/headless.h", "#include \"store/b.h\"\n");
    EXPECT_THAT(House(root).faults,
                testing::UnorderedElementsAre(
                    "src/attic/b.h is on no floor", "src/main.cpp is not named in src/CMakeLists.txt",
                    "src/store/a.cpp is not named in src/CMakeLists.txt",
                    "src/store/b.h includes shell/loop.h, which is on a higher floor",
                    "src/store/c.h includes platform/window.h, which is of the window",
                    "src/store/c.h includes none.h, which is nowhere in the house",
                    "src/view/b.h includes QtCore/QString, which is of the toolkit",
                    "src/view/b.h includes platform/qt/start.h, which is chosen by linking",
                    "src/platform/headless/headless.h includes store/b.h, which is on a higher floor",
                    "cli/own.h includes shell/loop.h, which is on a higher floor",
                    "src/game/loop.h is in a loop of includes, or leads to one"));
}

}  // namespace
}  // namespace quillet
