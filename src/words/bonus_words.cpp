#include "words/bonus_words.h"

#include <utility>

#include "base/messages.h"
#include "store/files.h"

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
