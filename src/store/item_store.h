// Item stores: folders of very small files, one value in each. Item 402 of a store is its file "402.str",
// which holds the value's characters and nothing else.
//
// Owns the three stores. Each is used by one module: prefsStore by store/preferences, scenarioStore by
// data/scenarios and those who read a scenario's items, opponentStore by computer/opponents.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "base/text.h"
#include "resources/strings.h"
#include "store/files.h"

namespace quillet {

using ItemId = std::int16_t;

// How the stores differ.
struct ItemStore {
    StringId folder;
    std::string_view createFailure;     // what Fatal says when an item cannot be created
    std::string_view readFailure = {};  // what it says when one is missing; without it, that reads as empty
    Text<31> member = {};               // the subfolder in use; empty: the folder itself
    bool open = true;                   // a closed store reads as empty, and writing to it does nothing
    bool shared = false;                // looked at only: opening does not write the version anew
};

inline ItemStore prefsStore{.folder = StringId::PrefsFolder,
                            .createFailure = "Could not create prefs file: ",
                            .readFailure = "Could not read prefs file: ",
                            .open = false};
inline ItemStore scenarioStore{.folder = StringId::ScenariosFolder,
                               .createFailure = "Could not create scenario file: "};
inline ItemStore opponentStore{.folder = StringId::OpponentsFolder,
                               .createFailure = "Could not save opponent info: "};

// Every store but that of the opponents has a version: one character.
constexpr ItemId kVersionItem = 12345;

FilePath ItemPath(const ItemStore& store, ItemId id);

// Reads up to the buffer's size and returns what was read, up to its first NUL.
std::string_view ReadItem(const ItemStore& store, ItemId id, std::span<char> buffer);

// The item's text, cut at N characters.
template <std::size_t N>
Text<N> ReadItemText(const ItemStore& store, ItemId id) {
    std::array<char, N> buffer{};
    return ReadItem(store, id, buffer);
}

// Numbers; what is not a number, or does not fit, reads as 0.
std::int16_t ReadItemShort(const ItemStore& store, ItemId id);
std::int32_t ReadItemLong(const ItemStore& store, ItemId id);

bool ReadItemBoolean(const ItemStore& store, ItemId id);  // true only when the item begins with "T"

// Each replaces the item. When the file cannot be created: Fatal.
void WriteItemText(const ItemStore& store, ItemId id, std::string_view value);
void WriteItemNumber(const ItemStore& store, ItemId id, std::int32_t value);
void WriteItemBoolean(const ItemStore& store, ItemId id, bool value);

// Likewise, but it takes the item's place only when the file is closed (CloseFile).
FileRef BeginItem(const ItemStore& store, ItemId id, std::string_view value);

// To be asked before the current scenario's items are read or changed: does it exist (and may it be
// changed), in a version that we know? The version item is written anew each time. An unknown version is
// reported; a missing scenario is left to the caller.
enum class Purpose { Reading, Changing };
bool OpenScenario(Purpose purpose);

}  // namespace quillet
