#include "floors/floors.h"

#include <gmock/gmock.h>

#include "support/temp_folder.h"

namespace quillet {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Floors = TempFolder;

TEST(House, IsInOrder) { EXPECT_THAT(FindFloorFaults(QUILLET_PROJECT_FOLDER), IsEmpty()); }

// A small house in good order; each case adds one file that breaks a rule.
TEST_F(Floors, EachBrokenRuleIsFound) {
    WriteFile("src/CMakeLists.txt", "floor(x\n  SOURCES store/a.cpp main.cpp) # store/old.cpp\n");
    WriteFile("src/main.cpp", "#include \"platform/qt/start.h\"\n#include \"shell/loop.h\"\n");
    WriteFile("src/shell/loop.h", "#include \"platform/window.h\"\n#include \"store/a.h\"\n");
    WriteFile("src/store/a.cpp", "#include \"store/a.h\"\n#include \"platform/ticks.h\"\n");
    WriteFile("src/store/a.h", "#include <string>\n");
    WriteFile("src/platform/ticks.h", "");
    WriteFile("src/platform/window.h", "");
    WriteFile("src/platform/qt/start.h", "#include <QWidget>\n#include \"platform/window.h\"\n");
    WriteFile("src/platform/headless/headless.h", "#include \"platform/ticks.h\"\n");
    WriteFile("cli/own.h", "#include \"platform/headless/headless.h\"\n");
    WriteFile("cli/main.cpp", "#include \"own.h\"\n#include \"store/a.h\"\n");
    ASSERT_THAT(FindFloorFaults(root), IsEmpty());

    struct Case {
        std::string file, contents, fault;
    };
    for (const Case& c : {
             Case{"src/store/b.h", "  #  include \"shell/loop.h\"",
                  "src/store/b.h includes shell/loop.h, which is on a higher floor"},
             Case{"cli/b.h", "#include \"shell/loop.h\"",
                  "cli/b.h includes shell/loop.h, which is on a higher floor"},
             Case{"src/platform/b.h", "#include \"store/a.h\"",
                  "src/platform/b.h includes store/a.h, which is on a higher floor"},
             Case{"src/platform/headless/b.h", "#include \"store/a.h\"",
                  "src/platform/headless/b.h includes store/a.h, which is on a higher floor"},
             Case{"src/store/b.h", "#include \"platform/window.h\"",
                  "src/store/b.h includes platform/window.h, which is of the window"},
             Case{"src/shell/b.h", "#include \"platform/qt/start.h\"",
                  "src/shell/b.h includes platform/qt/start.h, which is chosen by linking"},
             Case{"src/shell/b.h", "#include \"../../cli/own.h\"",
                  "src/shell/b.h includes ../../cli/own.h, which is the terminal companion's own"},
             Case{"src/view/b.h", "#include <QtCore/QString>",
                  "src/view/b.h includes QtCore/QString, which is of the toolkit"},
             Case{"src/store/b.h", "#include \"store/none.h\"",
                  "src/store/b.h includes store/none.h, which is nowhere in the house"},
             Case{"src/attic/b.h", "", "src/attic/b.h is on no floor"},
             Case{"src/b.h", "", "src/b.h is on no floor"},
             Case{"src/store/old.cpp", "", "src/store/old.cpp is not named in src/CMakeLists.txt"},
         }) {
        WriteFile(c.file, c.contents);
        EXPECT_THAT(FindFloorFaults(root), ElementsAre(c.fault));
        Remove(c.file);
    }
}

TEST_F(Floors, LoopThroughAThirdFileIsFound) {
    WriteFile("src/game/a.h", "#include \"game/b.h\"\n");
    WriteFile("src/game/b.h", "#include \"game/c.h\"\n");
    WriteFile("src/game/c.h", "#include \"game/b.h\"\n");
    EXPECT_THAT(FindFloorFaults(root), ElementsAre("loop: src/game/b.h -> src/game/c.h -> src/game/b.h"));
}

TEST_F(Floors, EmptyTreeIsNotTakenForAGoodOne) { EXPECT_EQ(FindFloorFaults(root).size(), 1U); }

}  // namespace
}  // namespace quillet
