#include "words/word_list_file.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <numeric>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "base/messages.h"
#include "base/presentation.h"
#include "store/files.h"
#include "store/preferences.h"
#include "words/graph_check.h"

namespace quillet {
namespace {

constexpr std::string_view kExtension = ".qld";
constexpr std::size_t kMostLists = 86;

std::string_view FolderName() { return ResourceString(StringId::WordListsFolder); }

// Values stand in the file as they stand in memory.
static_assert(std::endian::native == std::endian::little);

// Reads one list; every fault it meets is Fatal and names the list.
class Reader {
  public:
    Reader(File& listFile, std::string_view listName) : file(listFile), name(listName) {}

    Dict Read() {
        DictPreamble preamble;
        ReadPreamble(preamble);
        const auto rest = static_cast<std::int64_t>(FileSize(file)) - std::int64_t{sizeof preamble};
        if (rest < preamble.triesize) EndedUnexpectedly();  // before memory for it is asked for
        Dict dict;
        MakeStore(dict, preamble.triesize);
        static_cast<DictPreamble&>(dict) = preamble;
        Take(std::as_writable_bytes(std::span(dict.edges.data(), static_cast<std::size_t>(dict.numedges))));
        return dict;
    }

  private:
    // In the order of the file, each check as soon as its fields are there.
    void ReadPreamble(DictPreamble& preamble) {
        TakeValue(preamble.formatId);
        if (preamble.formatId != 2) Fatal("Bad format id in \"", name, "\"!");
        TakeValue(preamble.numwords);
        TakeValue(preamble.numedges);
        TakeValue(preamble.triesize);
        if (preamble.numedges < 0 || preamble.numedges > kMaxEdges ||
            preamble.triesize != 4 * preamble.numedges) {
            Fatal("Bad numedges or triesize in \"", name, "\"!");
        }
        TakeValue(preamble.sum);
        if (std::accumulate(preamble.sum.begin(), preamble.sum.end(), std::int64_t{0}) != preamble.numwords) {
            Fatal("Bad numwords or sum array in \"", name, "\"!");
        }
        TakeValue(preamble.reserved);
        if (std::ranges::any_of(preamble.reserved, [](std::uint8_t byte) { return byte != 0; })) {
            Fatal("Bad reserved byte in \"", name, "\"!");
        }
    }

    template <typename T>
    void TakeValue(T& value) {
        Take(std::as_writable_bytes(std::span(&value, 1)));
    }
    void Take(std::span<std::byte> bytes) {
        if (!ReadBlock(file, bytes)) EndedUnexpectedly();
    }

    [[noreturn]] void EndedUnexpectedly() { Fatal("\"", name, "\" ended unexpectedly!"); }

    File& file;
    std::string_view name;
};

// A file as it was when it was read.
struct ReadState {
    FilePath path;
    std::optional<FileStamp> stamp;

    friend bool operator==(const ReadState&, const ReadState&) = default;
};

// Lists lately left, unchanged since they were read, latest first. While their files stay the same too, a
// computer player's change to its own list and back reads nothing, and search indexes stay good.
struct KeptList {
    ReadState state;
    Dict dict;
};
constexpr std::size_t kMaxKept = 3;
std::vector<KeptList> keptLists;

// What mainDict was read from, and its revision then.
ReadState mainState;
std::uint32_t mainRevision = 0;

std::optional<Dict> TakeKept(const ReadState& state) {
    const auto kept = std::ranges::find(keptLists, state, &KeptList::state);
    if (!state.stamp || kept == keptLists.end()) return std::nullopt;
    Dict dict = std::move(kept->dict);
    keptLists.erase(kept);
    return dict;
}

void ReplaceMainDict(Dict&& dict, const ReadState& state) {
    std::erase_if(keptLists, [](const KeptList& kept) { return kept.state.path == mainState.path; });
    const bool isUnchanged = mainRevision != 0 && mainDict.revision == mainRevision;
    if (isUnchanged && mainState.path != state.path) {
        keptLists.insert(keptLists.begin(), {mainState, std::move(mainDict)});
        if (keptLists.size() > kMaxKept) keptLists.pop_back();
    }
    mainDict = std::move(dict);
    mainState = state;
    mainRevision = mainDict.revision;
}

std::vector<std::string> NamesOfLists() {
    std::vector<std::string> names = ListFiles(FolderName(), kExtension);
    std::erase_if(names, [](const std::string& name) { return name.size() > WordListName::capacity(); });
    if (names.size() > kMostLists) names.resize(kMostLists);
    return names;
}

}  // namespace

std::vector<std::string> ListWordLists() {
    if (!FolderExists(FolderName())) Fatal("Sorry, but the ", FolderName(), " folder is missing!");
    return NamesOfLists();
}

FilePath WordListPath(std::string_view name) {
    FilePath path(FolderName());
    path.Append('\\');
    path.Append(name);
    path.Append(kExtension);
    return path;
}

std::optional<Dict> ReadDict(std::string_view path, std::string_view name) {
    FileRef file = OpenForReading(path);
    if (!file) return std::nullopt;
    Dict dict = Reader(*file, name).Read();
    CloseFile(std::move(file));
    return dict;
}

bool WriteDict(std::string_view path, const Dict& dict) {
    FileRef file = CreateForWriting(path);
    if (!file) {
        Warning("Cannot save word list: \"", path, "\"");
        return false;
    }
    const DictPreamble& preamble = dict;
    WriteBlock(*file, std::as_bytes(std::span(&preamble, 1)));
    WriteBlock(*file, std::as_bytes(std::span(dict.edges.data(), static_cast<std::size_t>(dict.numedges))));
    return CloseFile(std::move(file));
}

bool LoadWordList(std::string_view name) {
    const WordListName loaded(name);  // `name` may be a view of wordList.current
    const FilePath path = WordListPath(name);
    const ReadState state{path, StampOf(path)};
    if (std::optional<Dict> kept = TakeKept(state)) {
        ReplaceMainDict(*std::move(kept), state);
    } else {
        ShowWaitCursor();
        std::optional<Dict> dict = ReadDict(path, loaded);
        ShowArrowCursor();
        if (!dict) {
            Warning("Cannot open word list: \"", path, "\"");
            return false;
        }
        if (FindBrokenInvariant(*dict)) Fatal("Bad edges in \"", loaded, "\"!");
        Dict fresh;
        InstallDict(fresh, *std::move(dict));
        ReplaceMainDict(std::move(fresh), state);
    }
    wordList.current = loaded;
    wordList.loaded = true;
    return true;
}

bool SaveWordList(std::string_view name) { return WriteDict(WordListPath(name), mainDict); }

bool SelectWordList(bool remember, std::string_view name) {
    if (!FileExists(WordListPath(name))) {
        FilePath file("\"");
        file.Append(name);
        file.Append(kExtension);
        file.Append('"');
        Warning(file, " not found in the ", FolderName(), " folder!");
        return false;
    }
    if (!LoadWordList(name)) return false;
    if (remember) RememberWordList(wordList.current);
    return true;
}

void OfferToSaveWordList() {
    if (!DictChanged(mainDict)) return;
    if (!AskYesNo(true, "Save changes to \"", wordList.current, "\"?")) return;
    if (SaveWordList(wordList.current)) mainDict.numAdded = mainDict.numDeleted = 0;
}

bool ApplyScenarioWordList(WordListName& requested) {
    if (requested.empty()) {
        if (!wordList.fromScenario) return false;
        OfferToSaveWordList();
        if (!SelectWordList(true, preferences.wordList)) return false;
        wordList.fromScenario = false;
        return true;
    }
    if (EqualIgnoringCase(requested, wordList.current)) return false;
    const std::vector<std::string> names = NamesOfLists();
    const auto found = std::ranges::find_if(
        names, [&](const std::string& name) { return EqualIgnoringCase(name, requested); });
    if (found == names.end()) {
        Warning("Scenario file asks for unknown word list: ", requested);
        requested.Clear();
        return false;
    }
    OfferToSaveWordList();
    if (!SelectWordList(false, *found)) return false;
    wordList.fromScenario = true;
    return true;
}

bool UseOpponentWordList(std::string_view opponentList, WordListName& previous) {
    if (opponentList.empty() || EqualIgnoringCase(opponentList, wordList.current)) return false;
    previous = wordList.current;
    return FileExists(WordListPath(opponentList)) && SelectWordList(false, opponentList);
}

void RestoreWordList(std::string_view previous) {
    wordList.current = WordListName(previous);
    if (FileExists(WordListPath(previous))) SelectWordList(false, previous);
}

}  // namespace quillet
