// Word lists: looking words up, loading a list, building one from text.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

#include "computer/move_generator.h"
#include "positions.h"
#include "store/preferences.h"
#include "words/graph_check.h"
#include "words/word_index.h"
#include "words/word_list_builder.h"
#include "words/word_list_editing.h"
#include "words/word_list_file.h"

namespace quillet {
namespace {

const Dict& LargeList() {
    static const Dict dict = ReadLargeList();
    return dict;
}

void LookUpOneWord(benchmark::State& state) {
    const std::vector<Word> words = WordsOfText(TextOfWords(LargeList()));
    constexpr std::size_t kStep = 7919;  // a prime: walks all over the list
    std::size_t i = 0;
    for (auto _ : state) {
        i = (i + kStep) % words.size();
        benchmark::DoNotOptimize(IsWord(LargeList(), words[i]));
    }
}

// What the editor does for one word: adds or deletes it, finds its place and lists the lines from there.
void EditOneWord(benchmark::State& state) {
    constexpr std::string_view kWord = "QUILLETISH";
    constexpr int kLines = 12;
    Dict dict;
    InstallDict(dict, ReadLargeList());
    for (auto _ : state) {
        if (IsWord(dict, kWord)) {
            DeleteWord(dict, kWord);
        } else {
            AddWord(dict, kWord);
        }
        Word word = GetWord(dict, FindWordIndex(dict, kWord));
        for (int line = 1; line < kLines; ++line) StepWord(dict, +1, word);
        benchmark::DoNotOptimize(word);
    }
}

void LoadListWithChecksAndIndex(benchmark::State& state) {
    for (auto _ : state) {
        Dict dict;
        InstallDict(dict, ReadLargeList());
        if (FindBrokenInvariant(dict)) state.SkipWithError("the list is broken");
        WordIndex index;
        index.Update(dict);
        state.counters["index MB"] = static_cast<double>(index.MemoryBytes()) / 1e6;
    }
    state.counters["words"] = LargeList().numwords;
}

void CheckGraph(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(FindBrokenInvariant(LargeList()));
}

void BuildListFromText(benchmark::State& state) {
    const std::string text = TextOfWords(LargeList());
    for (auto _ : state) {
        Dict dict;
        BuildDict(dict, WordsOfText(text));
        benchmark::DoNotOptimize(dict);
    }
}

// The list's words in an order that is not theirs, into an empty list.
void ImportTextFile(benchmark::State& state) {
    const std::vector<Word> words = WordsOfText(TextOfWords(LargeList()));
    const std::string path = std::filesystem::temp_directory_path() / "quillet-bench.txt";
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i) {
        for (const char letter : words[i * 7919 % words.size()]) text += static_cast<char>(letter + 32);
        text += "\r\n";
    }
    std::ofstream(path, std::ios::binary) << text;
    for (auto _ : state) {
        mainDict = {};
        AddFromTextFile(path);
    }
    state.counters["words"] = mainDict.numAdded;
    mainDict = {};
    std::filesystem::remove(path);
}

// A computer player's turn with a list of its own: to the largest list and back, a search included in each.
// With range(0) = 1 the files are read afresh each time, as when they have just changed.
void SwitchListsAroundATurn(benchmark::State& state) {
    const PositionSet positions = ReadPositions();
    const Position& position = positions.byBlanks[0].front();
    game.board = position.board;
    preferences.showComputerLetters = false;
    LargeList();  // sets the data folder
    LoadWordList("Words");
    for (auto _ : state) {
        if (state.range(0) == 1) {
            AddWord(mainDict, "QQ");  // a changed list is not kept
            LoadWordList("Words");
        }
        WordListName previous;
        UseOpponentWordList("Large", previous);
        if (state.range(0) == 1) AddWord(mainDict, "QQ");
        GenerateMoves(position.rack, std::nullopt, false);
        RestoreWordList(previous);
        GenerateMoves(position.rack, std::nullopt, false);
    }
}

BENCHMARK(SwitchListsAroundATurn)->ArgName("afresh")->DenseRange(0, 1)->Unit(benchmark::kMillisecond);
BENCHMARK(LookUpOneWord);
BENCHMARK(EditOneWord)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadListWithChecksAndIndex)->Unit(benchmark::kMillisecond);
BENCHMARK(CheckGraph)->Unit(benchmark::kMillisecond);
BENCHMARK(BuildListFromText)->Unit(benchmark::kMillisecond);
BENCHMARK(ImportTextFile)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillet
