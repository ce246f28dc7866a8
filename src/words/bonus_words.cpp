#include "words/bonus_words.h"

#include <limits>
#include <utility>

#include "base/messages.h"
#include "store/files.h"
#include "store/numbers.h"

namespace quillet {
namespace {

constexpr char kLineEnd = '\r';

FilePath BonusWordsPath(std::string_view scenarioFolder) {
    FilePath path(scenarioFolder);
    path.Append("\\602.str");
    return path;
}

}  // namespace

void BuildBonusDict(const BonusWordTable& table) {
    MakeBonusStore(bonusDict);
    for (const Word& word : table) {
        if (!IsProperWord(word) || !AddWord(bonusDict, word)) break;
    }
}

void TakeBonusWords() {
    bonusWords = {};
    for (std::int32_t n = 0; n < bonusDict.numwords; ++n) {
        bonusWords[static_cast<std::size_t>(n)] = GetWord(bonusDict, n);
    }
}

std::optional<std::int16_t> ReadBonusPoints(std::string_view typed) {
    using Limits = std::numeric_limits<std::int16_t>;
    const std::optional<std::int32_t> points = ParseInteger(typed);
    if (points && *points >= Limits::min() && *points <= Limits::max()) {
        return static_cast<std::int16_t>(*points);
    }
    Warning("Bad bonus points.");
    return std::nullopt;
}

void LoadBonusWords(std::string_view scenarioFolder) {
    bonusWords = {};
    if (FileRef file = OpenForReading(BonusWordsPath(scenarioFolder))) {
        std::size_t count = 0;
        for (char character = 0; count < kMaxBonusWords && ReadChar(*file, character);) {
            if (character == kLineEnd) {
                ++count;
            } else {
                bonusWords[count].Append(character);
            }
        }
        CloseFile(std::move(file));
    }
    for (Word& word : bonusWords) word.Shorten(word.View().find('\0'));
    BuildBonusDict(bonusWords);
}

bool WriteBonusWords(std::string_view scenarioFolder) {
    const FilePath path = BonusWordsPath(scenarioFolder);
    FileRef file = CreateForWriting(path);
    if (!file) {
        Warning("Couldn't create bonus words file: ", path);
        return false;
    }
    for (const Word& word : bonusWords) {
        if (word.empty()) break;
        WriteText(*file, word);
        WriteChar(*file, kLineEnd);
    }
    return CloseFile(std::move(file));
}

}  // namespace quillet
