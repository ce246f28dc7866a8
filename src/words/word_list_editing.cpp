#include "words/word_list_editing.h"

#include <algorithm>
#include <array>
#include <new>
#include <span>
#include <utility>
#include <vector>

#include "base/idle_pump.h"
#include "base/messages.h"
#include "base/presentation.h"
#include "platform/message_box.h"
#include "platform/ticks.h"
#include "store/files.h"
#include "store/preferences.h"
#include "words/bonus_words.h"
#include "words/edge_path.h"
#include "words/word_list_builder.h"

namespace quillet {
namespace {

constexpr std::string_view kExtension = ".qld";

// Tries whether the list's file can be created; an existing one stays as it is.
bool CanCreate(std::string_view name) { return CreateForWriting(WordListPath(name)) != nullptr; }

// The Status window is open while one of these lives.
struct OpenedStatus {
    OpenedStatus(std::string_view line1, std::string_view line2) {
        ShowWaitCursor();
        BeginComputation();
        OpenStatus(line1, line2, "", "");
    }
    ~OpenedStatus() {
        CloseStatus();
        ShowArrowCursor();
    }
    OpenedStatus(const OpenedStatus&) = delete;
    OpenedStatus& operator=(const OpenedStatus&) = delete;
};

// --- Import ---

// Gathers new words and puts them into mainDict many at a time: a graph is built as a whole in the time in
// which a few dozen words are added one by one.
class WordGatherer {
  public:
    // False when the list is full or memory is short: a warning has been shown.
    bool Take(const Word& word) {
        if (IsWord(mainDict, word)) return true;
        added.push_back(word);
        return added.size() < kBatch || Merge();
    }

    // Puts what has been gathered into mainDict, as far as it has room; false, with a warning, when it has
    // not.
    bool Merge() {
        std::vector<Word> all;
        all.reserve(static_cast<std::size_t>(mainDict.numwords) + added.size());
        VisitWords(mainDict, [&](const EdgePath& path) {
            all.push_back(WordAt(mainDict, path));
            return true;
        });
        const std::size_t old = all.size();
        all.insert(all.end(), added.begin(), added.end());
        added.clear();
        if (all.size() == old || Rebuild(all)) return true;
        all.resize(FittingWords(all, old));
        Rebuild(all);
        return false;
    }

    // The word taken last that has not been merged yet; null when there is none.
    const Word* Latest() const { return added.empty() ? nullptr : &added.back(); }

  private:
    static constexpr std::size_t kBatch = 1 << 18;  // words, repeats among them: what memory they may take

    // Makes mainDict hold all these words. The change counters go on counting.
    static bool Rebuild(const std::vector<Word>& all) {
        const std::int32_t before = mainDict.numwords;
        const std::int32_t numAdded = mainDict.numAdded;
        const std::int32_t numDeleted = mainDict.numDeleted;
        if (!BuildDict(mainDict, all)) return false;
        mainDict.numAdded = numAdded + mainDict.numwords - before;
        mainDict.numDeleted = numDeleted;
        return true;
    }

    // How many of the words, from the first on, a graph has room for: those up to the one that adding word
    // by word would stop at. At least `fitting` of them.
    static std::size_t FittingWords(const std::vector<Word>& all, std::size_t fitting) {
        std::size_t tooMany = all.size();
        while (tooMany - fitting > 1) {
            const std::size_t middle = fitting + (tooMany - fitting) / 2;
            const std::vector<Word> first(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(middle));
            (CountEdges(first) <= static_cast<std::size_t>(kMaxEdges) ? fitting : tooMany) = middle;
        }
        return fitting;
    }

    std::vector<Word> added;
};

// Shows how far the import is, often enough for the eye and no more.
struct ImportProgress {
    static constexpr std::uint32_t kInterval = 50;  // milliseconds

    std::uint32_t size;  // of the file, in bytes
    std::uint32_t shownAt = TickCount() - kInterval;

    void Show(std::uint32_t bytesRead, const Word* latest) {
        const std::uint32_t now = TickCount();
        if (now - shownAt < kInterval) return;
        shownAt = now;
        SetStatusProgress(std::min(bytesRead, size), size);
        if (latest != nullptr) SetStatusWindowLine(*latest, 3);
    }
};

bool IsSeparator(char character) { return character == ' ' || character == '\t' || character == '\r'; }

// Reads the file to its end, or until the user or a full list stops it.
void GatherWords(File& file, WordGatherer& gatherer) {
    constexpr std::uint32_t kCharactersPerCheck = 512;
    ImportProgress progress{.size = FileSize(file)};
    Word word;  // the letters of the token being read; a 16th letter tells that it is too long
    bool lettersOnly = true;
    std::uint32_t bytesRead = 0;
    const auto takeWord = [&] {
        const bool taken = lettersOnly && !word.empty() && word.size() <= kMaxWordLength;
        const bool goOn = !taken || gatherer.Take(word);
        word.Clear();
        lettersOnly = true;
        return goOn;
    };
    char character = 0;
    for (std::uint32_t characters = 0; ReadChar(file, character); ++characters) {
        if (characters % kCharactersPerCheck == 0) {
            progress.Show(bytesRead, gatherer.Latest());
            if (TimeCheck()) return;
        }
        bytesRead += character == '\r' ? 2 : 1;
        if (IsSeparator(character)) {
            if (!takeWord()) return;
        } else if (character >= 'a' && character <= 'z') {
            word.Append(ToUpper(character));
        } else {
            lettersOnly = false;
        }
    }
    takeWord();
}

// --- Dump ---

class BlockWriter {
  public:
    explicit BlockWriter(File& written) : file(written) {}

    void Put(char character) {
        block[used++] = static_cast<std::byte>(character);
        if (used == block.size()) WriteOut();
    }
    void WriteOut() {
        WriteBlock(file, std::span(block).first(used));
        used = 0;
    }

  private:
    File& file;
    std::array<std::byte, 512> block;
    std::size_t used = 0;
};

void DumpWords(BlockWriter& output) {
    const auto lower = [](char letter) { return static_cast<char>(letter + 32); };
    char firstLetter = 0;
    VisitWords(mainDict, [&](const EdgePath& path) {
        const Word word = WordAt(mainDict, path);
        if (std::exchange(firstLetter, lower(word[0])) != lower(word[0])) {
            SetStatusWindowLine(std::string_view(&firstLetter, 1), 4);
        }
        for (const char letter : word) output.Put(lower(letter));
        output.Put('\r');
        output.Put('\n');
        return !TimeCheck();
    });
}

}  // namespace

bool WordListsFolderExists() {
    const std::string_view folder = ResourceString(StringId::WordListsFolder);
    if (FolderExists(folder)) return true;
    Warning("The ", folder, " folder is missing!");
    return false;
}

ListNameCheck CheckListName(std::string_view typed) {
    std::string_view name = typed;
    const std::size_t stem = name.size() - std::min(name.size(), kExtension.size());
    if (EqualIgnoringCase(name.substr(stem), kExtension)) name = name.substr(0, stem);
    if (name.empty()) return {{}, Objection{}};
    if (name.size() > WordListName::capacity()) {
        return {name, Objection{"Sorry, but that name is too long.", WordListName::capacity()}};
    }
    if (FileExists(WordListPath(name))) {
        return {name, Objection{"Sorry, but that word list already exists."}};
    }
    return {name, std::nullopt};
}

std::optional<Objection> CreateWordList(std::string_view name) {
    if (!CanCreate(name)) return Objection{"Could not create the new word list!"};
    Dict empty;
    MakeStore(empty, 0);
    // A disk that is full has been reported by now; the objection only keeps the dialog open.
    if (!WriteDict(WordListPath(name), empty)) return Objection{};
    InstallDict(mainDict, std::move(empty));
    wordList.current = name;
    RememberWordList(wordList.current);
    return std::nullopt;
}

std::optional<Objection> SaveWordListAs(std::string_view name) {
    if (!CanCreate(name)) return Objection{"Could not save that word list!"};
    if (!SaveWordList(name)) return Objection{};
    return std::nullopt;
}

void RevertWordList() {
    if (!DictChanged(mainDict)) return;
    if (AskYesNo(true, "Do you really want all changes to be forgotten?")) LoadWordList(wordList.current);
}

void SaveCurrentWordList() {
    if (!DictChanged(mainDict)) return;
    if (SaveWordList(wordList.current)) mainDict.numAdded = mainDict.numDeleted = 0;
}

WordCheck CheckEditorWord(std::string_view typed) {
    if (typed.empty()) return {{}, Objection{}};
    if (typed.size() > kMaxWordLength) {
        return {{}, Objection{"The word must have at most 15 letters.", kMaxWordLength}};
    }
    Word word;
    for (const char character : typed) word.Append(ToUpper(character));
    const auto stranger =
        std::ranges::find_if(word, [](char letter) { return letter < 'A' || letter > 'Z'; });
    if (stranger == word.end()) return {word, std::nullopt};
    return {{}, Objection{"Non-letter detected.", static_cast<std::size_t>(stranger - word.begin()), 1}};
}

bool EditorWordCommand(bool bonus, EditorButton button, std::string_view word) {
    Dict& dict = bonus ? bonusDict : mainDict;
    const bool present = IsWord(dict, word);
    if (present == (button == EditorButton::Add)) {
        Beep();
        return false;
    }
    switch (button) {
        case EditorButton::Find:
            return false;
        case EditorButton::Add:
            if (bonus && dict.numwords >= kMaxBonusWords) {
                Warning("No more bonus words allowed.");
                return false;
            }
            return AddWord(dict, word);
        case EditorButton::Delete:
            DeleteWord(dict, word);
            return true;
    }
    return false;
}

void AddFromTextFile(std::string_view path) {
    FileRef file = OpenForReading(path);
    if (!file) {
        Warning("Cannot open \"", path, "\"");
        return;
    }
    try {
        const OpenedStatus status("Adding new words from", path);
        WordGatherer gatherer;
        GatherWords(*file, gatherer);
        gatherer.Merge();
    } catch (const std::bad_alloc&) {
        Warning("Not enough memory to add new word.");
    }
    CloseFile(std::move(file));
}

bool HasWordsToDump() {
    if (mainDict.numwords > 0) return true;
    Warning("There are no words.");
    return false;
}

void DumpToTextFile(std::string_view path) {
    FileRef file = CreateForWriting(path);
    if (!file) {
        Warning("Cannot save \"", path, "\"");
        return;
    }
    BlockWriter output(*file);
    {
        const OpenedStatus status("Dumping words to", path);
        DumpWords(output);
    }
    output.WriteOut();
    CloseFile(std::move(file));
}

}  // namespace quillet
