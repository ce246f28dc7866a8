#include "words/definitions.h"

#include <gmock/gmock.h>

#include <random>
#include <sstream>

#include "support/temp_folder.h"

namespace quillet {
namespace {

class Definitions : public TempFolder {
  protected:
    // The lines in the order given, each ended by CR LF.
    void WriteLines(const std::string& letter, const std::vector<std::string>& lines) {
        std::string contents;
        for (const std::string& line : lines) contents += line + "\r\n";
        WriteFile("Definitions/" + letter + ".txt", contents);
    }
};

TEST_F(Definitions, BaseFormIsFoundUnderTheFirstRuleThatFits) {
    // The line that there is, the word looked up, and the word it is found as.
    std::istringstream cases(
        "CAT cat cat;CAT cats cat;AS AS AS;A AS;BERRY Berries Berry;BERR BERRIES;BOX BOXES BOX;FLY FLIES;"
        "FLI FLIES FLI;STOP STOPPED STOP;BAKE BAKED BAKE;CARRY CARRIED CARRY;OW OWED OW;A AAED;"
        "HAPPY HAPPIER HAPPY;HAPPI HAPPIER;LARGE LARGER LARGE;COLD COLDER COLD;HAPPY HAPPIEST HAPPY;"
        "LARGE LARGEST LARGE;COLD COLDEST COLD;RUN RUNNING RUN;MAKE making make;SEE SEEING SEE;"
        "TASTE TASTING;RAIN RAINY RAIN;QUICK QUICKLY QUICK;HAPPY HAPPILY");
    for (std::string words; std::getline(cases, words, ';');) {
        std::string line, typed, shown;
        std::istringstream(words) >> line >> typed >> shown;
        WriteLines(line.substr(0, 1), {line + "  (noun) a thing"});
        const Definition result = LookUpDefinition(typed);
        EXPECT_EQ(result.word, result.found ? shown : typed);
        EXPECT_EQ(result.found, !shown.empty()) << words;
        EXPECT_EQ(result.text == "(noun) a thing", result.found) << words;
    }
    EXPECT_EQ(headless.beeps, 0) << "a word that is not there is no fault";
}

TEST_F(Definitions, EveryLineIsFoundAndWordsBetweenAreNot) {
    WriteLines("M", {"MA a1", "MACE b2", "maces c3", "MAD   " + std::string(255, 'x'), "MADE",
                     "MAP " + std::string(256, 'y')});
    const std::string cut = std::string(254, 'y') + " ", whole(255, 'x');
    using Found = std::pair<const char*, std::string>;
    for (const auto& [word, text] : {Found{"MA", "a1"}, Found{"MACE", "b2"}, Found{"MACES", "c3"},
                                     Found{"MAD", whole}, Found{"MAP", cut}}) {
        EXPECT_EQ(LookUpDefinition(word).text, text);
    }
    for (const char* word : {"M", "MAC", "MADE", "MAPS1", "MZ"}) {
        EXPECT_FALSE(LookUpDefinition(word).found) << word;
    }
}

TEST_F(Definitions, WithoutADefinitionTheTextSaysWhy) {
    WriteLines("C", {"CAT  an animal"});
    const std::string none = "No definitions for any words starting with ";
    for (const auto& [word, text] :
         {std::pair<std::string, std::string>{"", "Type in a word and click on the Define button."},
          {"dogs", none + "\"D\"."},
          {"3", none + "\"3\"."},
          {"cows",
           "Sorry, no definition found.\r\rNote:  This does not mean the word doesn't exist.  The "
           "Definitions folder only has about 20,000 words and some of the word lists available for "
           "Quillet have many more words than that."}}) {
        headless.beeps = 0;
        const Definition result = LookUpDefinition(word);
        EXPECT_FALSE(result.found);
        EXPECT_EQ(result.text, text);
        EXPECT_EQ(result.word, word);
        EXPECT_EQ(headless.beeps, text.starts_with(none) ? 1 : 0) << word;
    }
}

// Line ends of other systems still work; damage of any kind ends the search, at worst without a result.
TEST_F(Definitions, AnyFileIsSafeToLookInto) {
    WriteFile("Definitions/A.txt", "AB  one\nAC  two\nAD  three");
    for (const char* word : {"AB", "AC", "AD"}) EXPECT_TRUE(LookUpDefinition(word).found) << word;
    std::filesystem::resize_file(root / "Definitions/A.txt", std::uintmax_t{6} << 30);
    EXPECT_EQ(LookUpDefinition("AB").text, "Not enough memory to load definitions!");
    EXPECT_EQ(headless.beeps, 1);
    std::mt19937 random(5);
    for (int round = 0; round < 300; ++round) {
        std::string contents;
        for (auto size = random() % 300; size > 0; --size) {
            contents += std::string_view("AABC  \r\n\r\n\0\xFF", 12)[random() % 12];
        }
        WriteFile("Definitions/A.txt", contents);
        for (const char* word : {"A", "ABBED", "ACING", "ABC\r\n", "A\xFF"}) LookUpDefinition(word);
    }
}

// Every line of the shipped files can be reached, and nothing of it is cut.
TEST(ShippedDefinitions, EveryHeadwordIsFoundWithItsWholeText) {
    const auto assets = std::filesystem::path(__FILE__).parent_path() / "../../assets";
    SetDataFolder(assets.string());
    int words = 0;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        std::ifstream file(assets / "Definitions" / (std::string(1, letter) + ".txt"), std::ios::binary);
        ASSERT_TRUE(file) << letter;
        for (std::string line; std::getline(file, line); ++words) {
            ASSERT_TRUE(line.ends_with('\r')) << line;
            line.pop_back();
            const std::size_t gap = line.find("  ");
            const Definition result = LookUpDefinition(line.substr(0, gap));
            EXPECT_TRUE(result.found && result.word == line.substr(0, gap)) << line;
            EXPECT_EQ(result.text, line.substr(gap + 2));
        }
    }
    EXPECT_GT(words, 18000);
    SetDataFolder(".");
}

}  // namespace
}  // namespace quillet
