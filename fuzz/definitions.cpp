// A file of definitions: words of all endings looked up.
#include "words/definitions.h"

#include "store/preferences.h"
#include "support.h"

namespace quillet::fuzz {

void SetUp() {
    DetachPreferences();
    MakeFolder("Definitions");
}

void TryInput(std::string_view input) {
    WriteFile("Definitions/A.txt", input);
    // What the input begins with is looked up too: 31 characters of anything.
    LookUpDefinition("A" + std::string(input.substr(0, 40)));
    for (const char* word : {"A", "a", "ABLE", "abilities", "aged", "aces", "adding", "admitted", "ANGRIER",
                             "ANGRIEST", "aptly", "airy", "as", "azures", "A B"}) {
        const Definition definition = LookUpDefinition(word);
        Require(!definition.text.empty() || definition.found, "neither a definition nor why there is none");
    }
}

}  // namespace quillet::fuzz
