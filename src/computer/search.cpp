#include "computer/search.h"

namespace quillet {

RackCounts CountRack(std::string_view rack) {
    RackCounts counts;
    for (LetterCode code : rack) {
        ++counts.count[code];
        if (IsVowel(code)) ++counts.vowels;
    }
    return counts;
}

std::uint32_t SuppliedLetters(const RackCounts& counts) {
    if (counts.count[kBlank] > 0) return kAllLetters;
    std::uint32_t letters = 0;
    for (LetterCode letter = 'A'; letter <= 'Z'; ++letter) {
        if (counts.count[letter] > 0) letters |= LetterBit(letter);
    }
    return letters;
}

}  // namespace quillet
