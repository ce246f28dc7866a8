#include "store/item_store.h"

#include <cerrno>

#include "base/messages.h"
#include "support/temp_folder.h"

namespace quillet {
namespace {

class ItemStores : public TempFolder {
  protected:
    ItemStores() {
        scenarioStore.member = "Classic";
        prefsStore.open = false;
        MakeFolder("Scenarios/Classic");
        MakeFolder("Data/Prefs");
    }
    void SetItem(int id, const std::string& value) {
        WriteFile("Scenarios/Classic/" + std::to_string(id) + ".str", value);
    }
};

TEST_F(ItemStores, NumbersAreStrictAndFallBackToZero) {
    using Case = std::tuple<const char*, int, int>;  // as short, as long
    for (const auto& [stored, asShort, asLong] :
         {Case{"12", 12, 12}, Case{"12\r\n", 0, 0}, Case{"12 ", 0, 0}, Case{" 7", 7, 7}, Case{"+7", 7, 7},
          Case{"40000", 0, 40000}, Case{"-32768", -32768, -32768}, Case{"-32769", 0, -32769},
          Case{"2147483647", 0, 2147483647}, Case{"2147483648", 0, 0}, Case{"-2147483649", 0, 0},
          Case{"99999999999999999999", 0, 0}, Case{"", 0, 0}, Case{"-", 0, 0}, Case{"- 7", 0, 0},
          Case{"0x1", 0, 0}}) {
        SetItem(350, stored);
        EXPECT_EQ(ReadItemShort(scenarioStore, 350), asShort) << stored;
        EXPECT_EQ(ReadItemLong(scenarioStore, 350), asLong) << stored;
    }
    EXPECT_EQ(ReadItemLong(scenarioStore, 351), 0) << "a missing item";
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(ItemStores, TextsAreCutAtTheBufferAndBooleansLookAtOneCharacter) {
    SetItem(199, "twelve\r\n\xE9tc");
    EXPECT_EQ(ReadItemText<31>(scenarioStore, 199), "twelve\r\n\xE9tc");
    EXPECT_EQ(ReadItemText<4>(scenarioStore, 199), "twel");
    SetItem(199, std::string("ab\0cd", 5));
    EXPECT_EQ(ReadItemText<31>(scenarioStore, 199), "ab");
    for (const auto& [stored, read] :
         {std::pair{"T", true}, {"Tea", true}, {"t", false}, {" T", false}, {"", false}}) {
        SetItem(601, stored);
        EXPECT_EQ(ReadItemBoolean(scenarioStore, 601), read) << stored;
    }
}

TEST_F(ItemStores, EachStoreReportsInItsOwnWords) {
    prefsStore.open = true;
    opponentStore.member = "Bo";
    std::filesystem::remove_all(root / "Scenarios");
    std::filesystem::remove_all(root / "Data");
    const std::string error = "  Error: " + std::to_string(ENOENT);
    for (ItemStore* store : {&prefsStore, &scenarioStore, &opponentStore}) {
        EXPECT_THROW(WriteItemText(*store, 402, "x"), ProgramEnd);
    }
    EXPECT_THROW(ReadItemLong(prefsStore, 800), ProgramEnd);
    EXPECT_EQ(ReadItemText<31>(opponentStore, 100), "");
    EXPECT_THAT(TakeMessages(),
                ElementsAre("Could not create prefs file: Data\\Prefs\\402.str" + error,
                            "Could not create scenario file: Scenarios\\Classic\\402.str" + error,
                            "Could not save opponent info: Opponents\\Bo\\402.str" + error,
                            "Could not read prefs file: Data\\Prefs\\800.str"));
}

TEST_F(ItemStores, ClosedStoreReadsAsEmptyAndWritesNothing) {
    WriteFile("Data/Prefs/800.str", "5");
    WriteItemNumber(prefsStore, 800, 7);
    EXPECT_EQ(ReadItemLong(prefsStore, 800), 0);
    EXPECT_EQ(ReadItemLong(prefsStore, 801), 0) << "nor is a missing item fatal";
    EXPECT_EQ(ReadFile("Data/Prefs/800.str"), "5");
}

}  // namespace
}  // namespace quillet
