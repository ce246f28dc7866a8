// quillet-cli wordlist: making and examining word-list files.
#include <array>
#include <cstdio>

#include "command.h"
#include "data.h"
#include "words/word_list_builder.h"
#include "words/word_list_file.h"

namespace quillet {
namespace {

void Build(const std::string& textPath, const std::string& listPath) {
    Dict dict;
    const std::vector<Word> words = WordsOfText(ReadWholeFile(textPath));
    if (words.empty())
        throw CommandFailed{textPath + " holds no words (lower-case letters, one word a line)"};
    if (!BuildDict(dict, words)) throw CommandFailed{textPath + ": too many words"};
    if (!WriteDict(SystemPath(listPath), dict)) throw CommandFailed{"cannot write " + listPath};
    std::printf("%s: %d words, %d bytes\n", listPath.c_str(), dict.numwords,
                dict.triesize + static_cast<int>(sizeof(DictPreamble)));
}

void Dump(const std::string& list) {
    std::string text = TextOfWords(ReadWords(list));
    std::erase(text, '\r');
    std::fwrite(text.data(), 1, text.size(), stdout);
}

void Info(const std::string& list) {
    const Dict dict = ReadWords(list);
    std::array<int, kMaxGraphDepth + 1> ofLength{};
    for (const Word& word : WordsOfText(TextOfWords(dict))) ++ofLength[word.size()];
    std::printf("words: %d\nedges: %d\nbytes: %d\n", dict.numwords, dict.numedges,
                dict.triesize + static_cast<int>(sizeof(DictPreamble)));
    for (std::size_t length = 1; length < ofLength.size(); ++length) {
        if (ofLength[length] > 0) std::printf("%2zu letters: %d\n", length, ofLength[length]);
    }
    for (std::size_t i = 0; i < dict.sum.size(); ++i) {
        std::printf("%c: %d\n", static_cast<char>('A' + i), dict.sum[i]);
    }
}

void Check(const std::string& list) {
    const Dict dict = ReadWords(list);
    std::printf("%s is sound: %d words, %d edges\n", list.c_str(), dict.numwords, dict.numedges);
}

// Adds a subcommand that takes one word list.
void AddListCommand(CLI::App& group, const std::string& name, const std::string& description,
                    void (*run)(const std::string&)) {
    auto list = std::make_shared<std::string>();
    CLI::App* command = group.add_subcommand(name, description);
    command->add_option("list", *list, "Word list: its name, or a .qld file")->required();
    command->callback([list, run] { run(*list); });
}

}  // namespace

void AddWordListCommands(CLI::App& app) {
    CLI::App* group = app.add_subcommand("wordlist", "Make and examine word lists");
    group->require_subcommand(1);

    auto paths = std::make_shared<std::array<std::string, 2>>();
    CLI::App* build = group->add_subcommand(
        "build", "Make a word list of the lower-case words of 1 to 15 letters in a text file");
    build->add_option("text", (*paths)[0], "Text file: words between spaces, tabs and line ends")->required();
    build->add_option("file", (*paths)[1], "The .qld file to write")->required();
    build->callback([paths] { Build((*paths)[0], (*paths)[1]); });

    AddListCommand(*group, "dump", "Print all words, one a line", Dump);
    AddListCommand(*group, "info", "Print how many words there are, by length and first letter", Info);
    AddListCommand(*group, "check", "Look through the whole list and name the first thing wrong with it",
                   Check);
}

}  // namespace quillet
