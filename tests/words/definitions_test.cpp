#include "words/definitions.h"

#include <gmock/gmock.h>

#include <random>

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
    struct Case {
        std::string line, typed, shown;  // shown is empty when nothing is to be found
    };
    for (const Case& c : {
             Case{"CAT", "cat", "cat"},
             Case{"CAT", "cats", "cat"},
             Case{"AS", "AS", "AS"},
             Case{"A", "AS", ""},  // too short to be a plural
             Case{"BERRY", "Berries", "Berry"},
             Case{"BERR", "BERRIES", ""},
             Case{"BOX", "BOXES", "BOX"},
             Case{"FLY", "FLIES", ""},
             Case{"FLI", "FLIES", "FLI"},
             Case{"STOP", "STOPPED", "STOP"},
             Case{"BAKE", "BAKED", "BAKE"},
             Case{"CARRY", "CARRIED", "CARRY"},
             Case{"OW", "OWED", "OW"},
             Case{"A", "AAED", ""},
             Case{"HAPPY", "HAPPIER", "HAPPY"},
             Case{"HAPPI", "HAPPIER", ""},
             Case{"LARGE", "LARGER", "LARGE"},
             Case{"COLD", "COLDER", "COLD"},
             Case{"HAPPY", "HAPPIEST", "HAPPY"},
             Case{"LARGE", "LARGEST", "LARGE"},
             Case{"COLD", "COLDEST", "COLD"},
             Case{"RUN", "RUNNING", "RUN"},
             Case{"MAKE", "making", "make"},
             Case{"SEE", "SEEING", "SEE"},
             Case{"TASTE", "TASTING", ""},  // only a vowel before the last letter asks for an E
             Case{"RAIN", "RAINY", "RAIN"},
             Case{"QUICK", "QUICKLY", "QUICK"},
             Case{"HAPPY", "HAPPILY", ""},
         }) {
        WriteLines(c.line.substr(0, 1), {c.line + "  (noun) a thing"});
        const Definition result = LookUpDefinition(c.typed);
        EXPECT_EQ(result.found, !c.shown.empty()) << c.typed;
        EXPECT_EQ(result.word, result.found ? c.shown : c.typed);
        EXPECT_EQ(result.text == "(noun) a thing", result.found) << c.typed;
    }
    EXPECT_EQ(headless.beeps, 0) << "a word that is not there is no fault";
}

TEST_F(Definitions, EveryLineIsFoundAndWordsBetweenAreNot) {
    WriteLines("M", {"MA a1", "MACE b2", "maces c3", "MAD   d4", "MADE", "MAP e5"});
    for (const auto& [word, text] :
         {std::pair{"MA", "a1"}, {"MACE", "b2"}, {"MACES", "c3"}, {"MAD", "d4"}, {"MAP", "e5"}}) {
        EXPECT_EQ(LookUpDefinition(word).text, text);
    }
    for (const char* word : {"M", "MAC", "MADE", "MADEN", "MAPS1", "MZ"}) {
        EXPECT_FALSE(LookUpDefinition(word).found) << word;
    }
}

TEST_F(Definitions, LongTextIsCutAndEndsInASpace) {
    WriteLines("A", {"AX " + std::string(255, 'x'), "AY " + std::string(256, 'y')});
    EXPECT_EQ(LookUpDefinition("AX").text, std::string(255, 'x'));
    EXPECT_EQ(LookUpDefinition("AY").text, std::string(254, 'y') + " ");
}

TEST_F(Definitions, WithoutADefinitionTheTextSaysWhy) {
    WriteLines("C", {"CAT  an animal"});
    struct Case {
        std::string word, text;
        int beeps;
    };
    for (const Case& c : {
             Case{"", "Type in a word and click on the Define button.", 0},
             Case{"dogs", "No definitions for any words starting with \"D\".", 1},
             Case{"3", "No definitions for any words starting with \"3\".", 1},
             Case{"\\..", "No definitions for any words starting with \"\\\".", 1},
             Case{"cows",
                  "Sorry, no definition found.\r\rNote:  This does not mean the word doesn't exist.  The "
                  "Definitions folder only has about 20,000 words and some of the word lists available for "
                  "Quillet have many more words than that.",
                  0},
         }) {
        headless.beeps = 0;
        const Definition result = LookUpDefinition(c.word);
        EXPECT_FALSE(result.found);
        EXPECT_EQ(result.text, c.text);
        EXPECT_EQ(result.word, c.word);
        EXPECT_EQ(headless.beeps, c.beeps) << c.word;
    }
}

// Line ends of other systems still work; damage of any kind ends the search, at worst without a result.
TEST_F(Definitions, AnyFileIsSafeToLookInto) {
    WriteFile("Definitions/A.txt", "AB  one\nAC  two\nAD  three");
    for (const char* word : {"AB", "AC", "AD"}) EXPECT_TRUE(LookUpDefinition(word).found) << word;
    for (const char* odd : {"", "\r", "\n\n\n", "A", "AC", "AC ", "ZZ\rAC x\rAB y\rA", "AC  \n\r\n\r"}) {
        WriteFile("Definitions/A.txt", odd);
        EXPECT_LE(LookUpDefinition("AC").text.size(), 255U);
    }
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
