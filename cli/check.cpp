// quillet-cli check: looks through a whole data folder for whatever the program would stumble over.
#include <algorithm>
#include <cstdio>
#include <functional>
#include <utility>

#include "base/messages.h"
#include "command.h"
#include "computer/opponents.h"
#include "data.h"
#include "data/help_topics.h"
#include "data/scenarios.h"
#include "platform/headless/headless.h"
#include "store/bitmap_files.h"
#include "store/files.h"
#include "store/item_store.h"
#include "words/bonus_words.h"
#include "words/graph_check.h"
#include "words/word_list_file.h"

namespace quillet {
namespace {

constexpr std::size_t kMaxDefinitionLength = 255;

struct Problems {
    int count = 0;

    void Add(const std::string& where, const std::string& what) {
        ++count;
        std::printf("%s: %s\n", where.c_str(), what.c_str());
    }

    // Does it as the program would; every message it would show is a problem.
    void Try(const std::string& where, const std::function<void()>& work) {
        headless.messages.clear();
        try {
            work();
        } catch (const ProgramEnd&) {  // its message is among the others
        } catch (const CommandFailed& failure) {
            Add(where, failure.message);
        }
        for (const ShownMessage& message : headless.messages) Add(where, message.text);
    }
};

std::string FolderPath(StringId folder, const std::string& name) {
    return std::string(ResourceString(folder)) + "\\" + name;
}

// The lines of a text file of the data folder, without their line ends; none when it is not there.
std::optional<std::vector<std::string>> LinesOf(const std::string& path) {
    FileRef file = OpenForReading(path);
    if (!file) return std::nullopt;
    std::vector<std::string> lines;
    std::string line;
    for (char character = 0; ReadChar(*file, character);) {
        if (character != '\r') {
            line += character;
            continue;
        }
        lines.push_back(line);
        line.clear();
    }
    if (!line.empty()) lines.push_back(line);
    CloseFile(std::move(file));
    return lines;
}

void CheckWordLists(Problems& problems) {
    std::vector<std::string> names;
    problems.Try("Word Lists", [&] {
        names = ListWordLists();
        if (names.empty()) problems.Add("Word Lists", "there are no word lists");
    });
    for (const std::string& name : names) {
        problems.Try("Word Lists\\" + name, [&] { ReadWords(name); });
    }
}

bool IsKnownWordList(std::string_view list) { return FileExists(WordListPath(list)); }

// Reads the picture and its twin, if they are there.
std::optional<Image> CheckPicture(Problems& problems, const std::string& path) {
    std::optional<Image> image = LoadBitmapFile(path);
    const std::optional<Image> twin = LoadBitmapFile(PathOfTwin(path));
    if (!image || !twin) return image;
    if (twin->width != 2 * image->width || twin->height != 2 * image->height) {
        problems.Add(std::string(PathOfTwin(path)), "is not twice the size of " + path);
    }
    return image;
}

// An item that must have exactly that many characters.
struct SizedItem {
    ItemId id;
    std::size_t size;
    const char* what;
};
constexpr SizedItem kSizedItems[]{
    {300, kNumLetterCodes, "letter values"},
    {301, kNumLetterCodes, "letter counts"},
    {402, kBoardSize* kBoardSize, "board squares"},
};

void CheckScenario(Problems& problems, const std::string& name) {
    const std::string where = "Scenarios\\" + name;
    problems.Try(where, [&] {
        LoadScenarioNamed(name);
        for (const SizedItem& item : kSizedItems) {
            const std::size_t size = ReadItemText<255>(scenarioStore, item.id).size();
            if (size == item.size) continue;
            problems.Add(where, std::string(item.what) + " (" + std::to_string(item.id) +
                                    ".str): " + std::to_string(size) + " characters instead of " +
                                    std::to_string(item.size));
        }
        const bool startStands = ReadItemShort(scenarioStore, 500) == game.settings.startRow &&
                                 ReadItemShort(scenarioStore, 501) == game.settings.startCol;
        if (!startStands) problems.Add(where, "the start square is not on the board, or blocked");
        if (ReadItemShort(scenarioStore, 400) != game.settings.boardRows ||
            ReadItemShort(scenarioStore, 401) != game.settings.boardCols) {
            problems.Add(where, "rows and columns must be 1 to 15");
        }
        if (!scenario.requestedWordList.empty() && !IsKnownWordList(scenario.requestedWordList)) {
            problems.Add(where,
                         "asks for the unknown word list " + std::string(scenario.requestedWordList.View()));
        }
        const auto words = std::ranges::find_if(bonusWords, [](const Word& word) { return word.empty(); });
        if (bonusDict.numwords < words - bonusWords.begin()) {
            problems.Add(where, "a bonus word (602.str) has other characters than A to Z, or stands twice");
        }
        if (ReadAboutText().value_or(std::string()).empty())
            problems.Add(where, "there is no about text (199.str)");
        for (SquareKind kind = 0; kind < kSquareKinds.size(); ++kind) {
            CheckPicture(problems, where + "\\" + SquarePictureName(kind));
        }
    });
}

void CheckOpponents(Problems& problems) {
    const auto names = ListSubfolders(ResourceString(StringId::OpponentsFolder));
    for (const std::string& name : names.value_or(std::vector<std::string>{})) {
        const std::string where = FolderPath(StringId::OpponentsFolder, name);
        if (name.size() > Text<10>::capacity()) problems.Add(where, "the name has more than 10 characters");
        problems.Try(where, [&] {
            opponentStore.member = Text<31>(name);
            const auto list = ReadItemText<31>(opponentStore, 300);
            if (!list.empty() && !IsKnownWordList(list)) {
                problems.Add(where, "has the unknown word list " + std::string(list.View()));
            }
            for (int mood = 1; mood <= kNumMoods; ++mood) {
                CheckPicture(problems, where + "\\" + std::to_string(9000 + mood) + ".bmp");
            }
        });
    }
}

void CheckDefinitions(Problems& problems) {
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const std::string path = FolderPath(StringId::DefinitionsFolder, std::string{letter} + ".txt");
        const auto lines = LinesOf(path);
        if (!lines) continue;
        std::string before;
        for (std::size_t i = 0; i < lines->size(); ++i) {
            const std::string where = path + ", line " + std::to_string(i + 1);
            const std::string& line = (*lines)[i];
            const std::string word = line.substr(0, line.find(' '));
            const std::size_t text = line.find_first_not_of(' ', word.size());
            if (word.empty() || text == std::string::npos) {
                problems.Add(where, "must be a word, a space and its definition");
                continue;
            }
            if (ToUpper(word.front()) != letter) problems.Add(where, word + " begins with another letter");
            if (CompareIgnoringCase(before, word) >= 0)
                problems.Add(where, word + " must come before " + before);
            if (line.size() - text > kMaxDefinitionLength) problems.Add(where, "more than 255 characters");
            before = word;
        }
    }
}

void CheckHelp(Problems& problems) {
    if (!FolderExists(ResourceString(StringId::HelpFolder))) return;
    const std::string list = FolderPath(StringId::HelpFolder, "HELPITEMS.txt");
    problems.Try(list, LoadHelpTopics);
    const auto lines = LinesOf(list).value_or(std::vector<std::string>{});
    if (lines.size() > helpTopics.size()) problems.Add(list, "more than 97 topics, or no CR LF at its end");
    for (const std::string& topic : lines) {
        if (topic.size() > HelpTopic::capacity()) problems.Add(list, topic + ": more than 63 characters");
    }
    for (const HelpTopic& topic : helpTopics) {
        if (IsSeparator(topic)) continue;
        const std::string path = FolderPath(StringId::HelpFolder, std::string(topic) + ".txt");
        FileRef file = OpenForReading(path);
        if (!file) {
            problems.Add(path, "is missing");
            continue;
        }
        if (FileSize(*file) > kMostHelpBytes) problems.Add(path, "has more than 32,000 bytes");
        CloseFile(std::move(file));
    }
}

struct SheetSize {
    const char* file;
    int width;
    int height;
};
constexpr SheetSize kSheets[]{
    {"sqbig", 244, 136}, {"sqsmall", 217, 121}, {"valbig", 298, 28}, {"valsmall", 265, 25}};

void CheckGraphics(Problems& problems) {
    for (const std::string& name : ListFiles(ResourceString(StringId::GraphicsFolder), ".bmp")) {
        const std::string where = FolderPath(StringId::GraphicsFolder, name + ".bmp");
        problems.Try(where, [&] {
            const std::optional<Image> image = CheckPicture(problems, where);
            const auto sheet = std::ranges::find_if(
                kSheets, [&](const SheetSize& size) { return EqualIgnoringCase(size.file, name); });
            if (!image || sheet == std::end(kSheets)) return;
            if (image->width == sheet->width && image->height == sheet->height) return;
            problems.Add(where,
                         "is not " + std::to_string(sheet->width) + " by " + std::to_string(sheet->height));
        });
    }
}

void Check(const std::string& folder) {
    SetDataFolder(folder);
    game = FreshGameState();
    Problems problems;
    CheckWordLists(problems);
    problems.Try("Scenarios", [&] {
        for (const std::string& name : ListScenarios()) CheckScenario(problems, name);
        headless.messages.clear();  // they were told with their scenarios
    });
    CheckOpponents(problems);
    CheckDefinitions(problems);
    CheckHelp(problems);
    CheckGraphics(problems);
    if (problems.count > 0) {
        throw CommandFailed{std::to_string(problems.count) +
                            (problems.count == 1 ? " problem" : " problems") + " in " + folder};
    }
    std::printf("%s: nothing wrong\n", folder.c_str());
}

}  // namespace

void AddCheckCommand(CLI::App& app) {
    auto folder = std::make_shared<std::string>();
    CLI::App* command = app.add_subcommand(
        "check",
        "Look through a whole data folder (word lists, scenarios, opponents, definitions, help,\n"
        "pictures) and list whatever the program would stumble over");
    command->add_option("folder", *folder, "The folder that holds \"Word Lists\", \"Scenarios\" …")
        ->check(CLI::ExistingDirectory)
        ->required();
    command->callback([folder] { Check(*folder); });
}

}  // namespace quillet
