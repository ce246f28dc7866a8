#include "computer/opponents.h"

#include <algorithm>
#include <array>
#include <span>

#include "base/messages.h"
#include "store/bitmap_files.h"
#include "store/files.h"
#include "store/item_store.h"
#include "store/preferences.h"

namespace quillet {
namespace {

constexpr ItemId kLexiconItem = 300;
constexpr ItemId kTextColourItem = 203;
constexpr int kVoices = 8000;  // voice k is the file of that number and k
constexpr int kPictures = 9000;
constexpr std::size_t kMaxWordListChoices = 100;  // besides the current one

// Entries 1 to count are compared in order; 0 when none has the name.
int OpponentNamed(std::string_view name) {
    for (int i = 1; i <= opponentTable.numOpponents; ++i) {
        if (EqualIgnoringCase(opponentTable.entries[static_cast<std::size_t>(i)].name, name)) return i;
    }
    return 0;
}

Opponent& OpponentAt(int index) { return opponentTable.entries[static_cast<std::size_t>(index)]; }

FilePath FolderOf(const Opponent& opponent) {
    FilePath path(ResourceString(StringId::OpponentsFolder));
    path.Append('\\');
    path.Append(opponent.name);
    return path;
}

WordListName ReadLexicon(const Opponent& opponent) {
    opponentStore.member = opponent.name.View();
    return ReadItemText<WordListName::capacity()>(opponentStore, kLexiconItem);
}

std::optional<Picture> LoadMood(const Opponent& opponent, int mood) {
    FilePath path = FolderOf(opponent);
    path.Append("\\" + std::to_string(kPictures + mood) + ".bmp");
    return LoadPicture(path);
}

void LoadOpponent(Opponent& opponent) {
    if (!FolderExists(FolderOf(opponent))) return;
    opponent.lexicon = ReadLexicon(opponent);
    const auto colour = ReadItemText<15>(opponentStore, kTextColourItem);
    opponent.textColour = colour.empty() ? kWhite : ColourNamed(colour);
    for (int mood = 1; mood <= kNumMoods; ++mood) opponent.pictures[mood] = LoadMood(opponent, mood);
    for (int k = 1; k <= kNumVoices; ++k) {
        opponent.voices[k] = opponent.name.View();
        opponent.voices[k].Append("\\" + std::to_string(kVoices + k) + ".wav");
    }
}

}  // namespace

void ListOpponents() {
    opponentTable = {};
    const std::string_view folder = ResourceString(StringId::OpponentsFolder);
    const auto names = ListSubfolders(folder);
    if (!FolderExists(folder)) {
        Warning("The ", folder, " folder is missing!");
    } else if (!names) {
        Warning("FindFirstFile failed!");
    }
    for (const std::string& name : names.value_or(std::vector<std::string>{})) {
        if (opponentTable.numOpponents == kMaxOpponents) break;
        OpponentAt(++opponentTable.numOpponents).name = std::string_view(name);
    }
    const std::span found =
        std::span(opponentTable.entries).subspan(1, static_cast<std::size_t>(opponentTable.numOpponents));
    std::ranges::stable_sort(
        found, [](const Opponent& a, const Opponent& b) { return CompareIgnoringCase(a.name, b.name) < 0; });
    ReadPlayerSetUp();
}

void PlayerKindFromName(int p) {
    Player& player = game.players[p];
    std::string_view name = player.name;
    const bool endsInDigit = !name.empty() && name.back() >= '0' && name.back() <= '9';
    player.isComputer = endsInDigit;
    player.skill = endsInDigit ? static_cast<std::uint16_t>(name.back() - '0') : std::uint16_t{0};
    player.opponent = 0;
    if (!endsInDigit) return;
    name.remove_suffix(1);
    while (name.ends_with(' ')) name.remove_suffix(1);
    player.opponent = OpponentNamed(name);
}

void ReadPlayerSetUp() {
    const std::vector<PlayerName> names = ReadPlayerNames();
    game.numPlayers = static_cast<std::uint16_t>(names.size());
    for (Player& player : game.players) player.rack = {};
    for (int p = 1; p <= game.numPlayers; ++p) {
        game.players[p].name = names[static_cast<std::size_t>(p) - 1];
        PlayerKindFromName(p);
    }
    game.currentPlayer = 1;
}

void SavePlayers() {
    std::array<PlayerName, kMaxPlayers> names;
    for (int p = 1; p <= game.numPlayers; ++p) names[static_cast<std::size_t>(p) - 1] = game.players[p].name;
    WritePlayerNames(std::span(names).first(game.numPlayers));
}

void LoadOpponentData() {
    for (Opponent& opponent : opponentTable.entries) opponent.pictures = {};
    std::array<bool, kMaxOpponents + 1> loaded{};
    for (int p = 1; p <= game.numPlayers; ++p) {
        const Player& player = game.players[p];
        if (!player.isComputer || player.opponent == 0) continue;
        bool& isLoaded = loaded[static_cast<std::size_t>(player.opponent)];
        if (!isLoaded) LoadOpponent(OpponentAt(player.opponent));
        isLoaded = true;
    }
}

std::optional<Picture> LoadOpponentPicture(int opponent, int mood) {
    return LoadMood(OpponentAt(opponent), mood);
}

std::vector<std::string> WordListChoices() {
    std::vector<std::string> choices = ListFiles(ResourceString(StringId::WordListsFolder), ".qld");
    std::erase_if(choices, [](const std::string& name) { return name.size() > WordListName::capacity(); });
    choices.resize(std::min(choices.size(), kMaxWordListChoices));
    choices.insert(choices.begin(), "Current word list");
    return choices;
}

std::size_t WordListChoiceOf(int opponent, const std::vector<std::string>& choices) {
    const WordListName lexicon = ReadLexicon(OpponentAt(opponent));
    const auto list = std::find_if(choices.begin() + 1, choices.end(),
                                   [&](const std::string& name) { return EqualIgnoringCase(name, lexicon); });
    return lexicon.empty() || list == choices.end() ? 0 : static_cast<std::size_t>(list - choices.begin());
}

void SaveOpponentLexicon(int opponent, const std::vector<std::string>& choices, std::size_t choice) {
    if (opponent < 1 || opponent > opponentTable.numOpponents) return;
    const Opponent& changed = OpponentAt(opponent);
    if (!FolderExists(FolderOf(changed))) {
        Warning("Could not find opponent: ", changed.name);
        return;
    }
    const std::string_view chosen = choice == 0 ? std::string_view{} : choices[choice];
    if (EqualIgnoringCase(ReadLexicon(changed), chosen)) return;
    if (!FolderExists(FolderOf(changed))) {
        Warning("Could not save changes to opponent: ", changed.name);
        return;
    }
    WriteItemText(opponentStore, kLexiconItem, chosen);
}

}  // namespace quillet
