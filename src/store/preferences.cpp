#include "store/preferences.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <variant>

#include "base/messages.h"

namespace quillet {
namespace {

using Flag = bool Preferences::*;
using Number = std::int32_t Preferences::*;
using Name = Text<31> Preferences::*;

// What an item is kept for: a member of Preferences, whose initial value is the item's default, or nothing
// in memory, and then its default stands here.
using Content = std::variant<Flag, Number, Name, std::string_view>;

struct PreferenceItem {
    ItemId id;
    std::string_view name;
    Content content;
};

constexpr ItemId kPlayerCountItem = 200;
constexpr ItemId kSmallBoardTopItem = 800;  // the item after it is the left
constexpr ItemId kLargeBoardTopItem = 802;  // likewise
constexpr std::size_t kMaxPlayerNames = 4;  // in the items that follow the count
constexpr char kVersion = '0';
constexpr std::int32_t kMostInNumber = 99;  // what the dialogs allow at most for any number

// In the order in which they are created and read.
constexpr std::array kItems{
    PreferenceItem{kPlayerCountItem, "Number of players", "1"},
    PreferenceItem{201, "Player 1", "?"},
    PreferenceItem{202, "Player 2", ""},
    PreferenceItem{203, "Player 3", ""},
    PreferenceItem{204, "Player 4", ""},
    PreferenceItem{kSmallBoardTopItem, "Small board top", "-1000"},
    PreferenceItem{kSmallBoardTopItem + 1, "Small board left", "-1000"},
    PreferenceItem{kLargeBoardTopItem, "Large board top", "-1000"},
    PreferenceItem{kLargeBoardTopItem + 1, "Large board left", "-1000"},
    PreferenceItem{1000, "Big board?", &Preferences::bigBoard},
    PreferenceItem{1002, "Show computer letters?", &Preferences::showComputerLetters},
    PreferenceItem{1003, "Show letter values?", &Preferences::showLetterValues},
    PreferenceItem{1004, "Save statistics?", &Preferences::saveStatistics},
    PreferenceItem{1005, "Blink computer moves?", &Preferences::blinkComputerMoves},
    PreferenceItem{1007, "Play sounds?", &Preferences::playSounds},
    PreferenceItem{1008, "Can we talk?", &Preferences::canWeTalk},
    PreferenceItem{1010, "Tell computer to move?", &Preferences::tellComputerToMove},
    PreferenceItem{1012, "Rack above?", &Preferences::rackAbove},
    PreferenceItem{1013, "Allow hints?", &Preferences::allowHints},
    PreferenceItem{1014, "Nice letter mix?", &Preferences::niceLetterMix},
    PreferenceItem{1015, "Play intro music?", &Preferences::playIntroMusic},
    PreferenceItem{1016, "Play tile clicks?", &Preferences::playTileClicks},
    PreferenceItem{1017, "Play mix/permute?", &Preferences::playMixPermute},
    PreferenceItem{1018, "Play bingo/bonus?", &Preferences::playBingoBonus},
    PreferenceItem{1019, "Play end game?", &Preferences::playEndGame},
    PreferenceItem{1020, "Play bye bye?", &Preferences::playByeBye},
    PreferenceItem{1021, "Show About Scenario?", &Preferences::showAboutScenario},
    PreferenceItem{2000, "Timer enabled?", &Preferences::timerEnabled},
    PreferenceItem{2001, "Time limit", &Preferences::timeLimit},
    PreferenceItem{2002, "Time penalty", &Preferences::timePenalty},
    PreferenceItem{3001, "Word list", &Preferences::wordList},
    PreferenceItem{4000, "Scenario", &Preferences::scenario},
};

// The store is open while one of these lives.
bool isDetached = false;

struct OpenedPrefs {
    OpenedPrefs() { OpenPrefs(); }
    ~OpenedPrefs() { ClosePrefs(); }
    OpenedPrefs(const OpenedPrefs&) = delete;
    OpenedPrefs& operator=(const OpenedPrefs&) = delete;
};

// Writes the item with the value it has in `values`, or with its default when it has no place there.
struct ItemWriter {
    ItemId id;
    const Preferences& values;

    void operator()(Flag flag) const { WriteItemBoolean(prefsStore, id, values.*flag); }
    void operator()(Number number) const { WriteItemNumber(prefsStore, id, values.*number); }
    void operator()(Name name) const { WriteItemText(prefsStore, id, values.*name); }
    void operator()(std::string_view text) const { WriteItemText(prefsStore, id, text); }
};

struct ItemReader {
    ItemId id;
    Preferences& values;

    void operator()(Flag flag) const { values.*flag = ReadItemBoolean(prefsStore, id); }
    void operator()(Number number) const {
        values.*number = std::clamp(ReadItemLong(prefsStore, id), -kMostInNumber, kMostInNumber);
    }
    void operator()(Name name) const { values.*name = ReadItemText<31>(prefsStore, id); }
    void operator()(std::string_view /*text*/) const {}
};

void WriteItem(const PreferenceItem& item, const Preferences& values) {
    std::visit(ItemWriter{item.id, values}, item.content);
}

// Writes the item of that member as it now stands in `preferences`.
void WritePreference(const Content& member) {
    const auto item = std::ranges::find(kItems, member, &PreferenceItem::content);
    WriteItem(*item, preferences);
}

void WriteVersion() { WriteItemText(prefsStore, kVersionItem, std::string_view(&kVersion, 1)); }

}  // namespace

void DetachPreferences() { isDetached = true; }

void OpenPrefs() {
    if (isDetached) return;
    const bool exists = FileExists(ItemPath(prefsStore, kVersionItem));
    prefsStore.open = true;
    if (!exists) {
        // The version stands there when all else does: a start that is stopped in between begins anew.
        FileRef version = BeginItem(prefsStore, kVersionItem, std::string_view(&kVersion, 1));
        for (const PreferenceItem& item : kItems) WriteItem(item, Preferences{});
        CloseFile(std::move(version));
        return;
    }
    const Text<1> version = ReadItemText<1>(prefsStore, kVersionItem);
    if (!version.empty() && version[0] == kVersion) return;
    if (!version.empty() && static_cast<unsigned char>(version[0]) > kVersion) {
        Warning("Unexpected prefs version!");
    }
    WriteVersion();
}

void ClosePrefs() { prefsStore.open = false; }

void LoadPreferences() {
    const OpenedPrefs opened;
    for (const PreferenceItem& item : kItems) std::visit(ItemReader{item.id, preferences}, item.content);
}

void FlipPreference(bool Preferences::*preference) {
    const OpenedPrefs opened;
    preferences.*preference = !(preferences.*preference);
    WritePreference(preference);
}

void RememberWordList(std::string_view name) {
    const OpenedPrefs opened;
    preferences.wordList = name;
    WritePreference(&Preferences::wordList);
}

void RememberScenario(std::string_view name) {
    const OpenedPrefs opened;
    preferences.scenario = name;
    WritePreference(&Preferences::scenario);
}

void RememberTimer(bool enabled, std::int32_t timeLimit, std::int32_t timePenalty) {
    const OpenedPrefs opened;
    preferences.timerEnabled = enabled;
    preferences.timeLimit = timeLimit;
    preferences.timePenalty = timePenalty;
    WritePreference(&Preferences::timerEnabled);
    WritePreference(&Preferences::timeLimit);
    WritePreference(&Preferences::timePenalty);
}

WindowPlace ReadWindowPlace(bool bigBoard) {
    const OpenedPrefs opened;
    const ItemId top = bigBoard ? kLargeBoardTopItem : kSmallBoardTopItem;
    return {ReadItemLong(prefsStore, top), ReadItemLong(prefsStore, static_cast<ItemId>(top + 1))};
}

void WriteWindowPlace(bool bigBoard, const WindowPlace& place) {
    const OpenedPrefs opened;
    const ItemId top = bigBoard ? kLargeBoardTopItem : kSmallBoardTopItem;
    WriteItemNumber(prefsStore, top, place.top);
    WriteItemNumber(prefsStore, static_cast<ItemId>(top + 1), place.left);
}

std::vector<Text<12>> ReadPlayerNames() {
    const OpenedPrefs opened;
    const int count = std::clamp<int>(ReadItemShort(prefsStore, kPlayerCountItem), 1, kMaxPlayerNames);
    std::vector<Text<12>> names;
    for (int player = 1; player <= count; ++player) {
        names.push_back(ReadItemText<12>(prefsStore, static_cast<ItemId>(kPlayerCountItem + player)));
    }
    return names;
}

void WritePlayerNames(std::span<const Text<12>> names) {
    const OpenedPrefs opened;
    WriteItemNumber(prefsStore, kPlayerCountItem, static_cast<std::int32_t>(names.size()));
    ItemId item = kPlayerCountItem;
    for (const Text<12>& name : names) WriteItemText(prefsStore, ++item, name);
}

}  // namespace quillet
