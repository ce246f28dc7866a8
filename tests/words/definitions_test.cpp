#include "words/definitions.h"

#include <sstream>

#include "support/temp_folder.h"

namespace quillet {
namespace {

using Definitions = TempFolder;

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
        WriteFile("Definitions/" + line.substr(0, 1) + ".txt", line + "  (noun) a thing\r\n");
        const Definition result = LookUpDefinition(typed);
        EXPECT_EQ(result.word, result.found ? shown : typed);
        EXPECT_EQ(result.found, !shown.empty()) << words;
        EXPECT_EQ(result.text == "(noun) a thing", result.found) << words;
    }
    EXPECT_EQ(headless.beeps, 0) << "a word that is not there is no fault";
}

TEST_F(Definitions, EveryLineIsFoundAndWordsBetweenAreNot) {
    const std::string whole(255, 'x');
    const std::string cut = std::string(254, 'y') + " ";
    WriteFile("Definitions/M.txt", "MA a1\r\nMACE b2\r\nmaces c3\r\nMAD   " + whole + "\r\nMADE\r\nMAP " +
                                       std::string(256, 'y') + "\r\n");
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
    WriteFile("Definitions/C.txt", "CAT  an animal\r\n");
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

TEST_F(Definitions, OddFilesAreSafeToLookInto) {
    WriteFile("Definitions/A.txt", "AB  one\nAC  two\nAD  three");  // line ends of other systems
    for (const char* word : {"AB", "AC", "AD"}) EXPECT_TRUE(LookUpDefinition(word).found) << word;
    std::filesystem::resize_file(root / "Definitions/A.txt", std::uintmax_t{6} << 30);
    EXPECT_EQ(LookUpDefinition("AB").text, "Not enough memory to load definitions!");
    EXPECT_EQ(headless.beeps, 1);
}

}  // namespace
}  // namespace quillet
