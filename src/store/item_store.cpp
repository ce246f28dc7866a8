#include "store/item_store.h"

#include <cerrno>
#include <limits>
#include <string>

#include "base/messages.h"
#include "store/numbers.h"

namespace quillet {
namespace {

constexpr std::string_view kScenarioVersion = "1";

}  // namespace

FilePath ItemPath(const ItemStore& store, ItemId id) {
    FilePath path(ResourceString(store.folder));
    if (!store.member.empty()) {
        path.Append("\\");
        path.Append(store.member);
    }
    path.Append("\\");
    path.Append(std::to_string(id));
    path.Append(".str");
    return path;
}

std::string_view ReadItem(const ItemStore& store, ItemId id, std::span<char> buffer) {
    if (!store.open) return {};
    const FilePath path = ItemPath(store, id);
    FileRef file = OpenForReading(path);
    if (!file) {
        if (!store.readFailure.empty()) Fatal(store.readFailure, path);
        return {};
    }
    const std::size_t size = std::min<std::size_t>(buffer.size(), FileSize(*file));
    const bool complete = ReadBlock(*file, std::as_writable_bytes(buffer.first(size)));
    CloseFile(std::move(file));
    if (!complete) return {};
    const std::string_view text(buffer.data(), size);
    return text.substr(0, text.find('\0'));
}

std::int32_t ReadItemLong(const ItemStore& store, ItemId id) {
    return ParseInteger(ReadItemText<16>(store, id)).value_or(0);
}

std::int16_t ReadItemShort(const ItemStore& store, ItemId id) {
    using Limits = std::numeric_limits<std::int16_t>;
    const std::int32_t value = ReadItemLong(store, id);
    return value < Limits::min() || value > Limits::max() ? std::int16_t{0}
                                                          : static_cast<std::int16_t>(value);
}

bool ReadItemBoolean(const ItemStore& store, ItemId id) { return ReadItemText<1>(store, id) == "T"; }

FileRef BeginItem(const ItemStore& store, ItemId id, std::string_view value) {
    const FilePath path = ItemPath(store, id);
    FileRef file = CreateForWriting(path);
    if (!file) Fatal(store.createFailure, path, "  Error: ", std::to_string(errno));
    WriteBlock(*file, std::as_bytes(std::span(value.substr(0, value.find('\0')))));
    return file;
}

void WriteItemText(const ItemStore& store, ItemId id, std::string_view value) {
    if (store.open) CloseFile(BeginItem(store, id, value));
}

void WriteItemNumber(const ItemStore& store, ItemId id, std::int32_t value) {
    WriteItemText(store, id, std::to_string(value));
}

void WriteItemBoolean(const ItemStore& store, ItemId id, bool value) {
    WriteItemText(store, id, value ? "T" : "F");
}

bool OpenScenario(Purpose purpose) {
    const FilePath path = ItemPath(scenarioStore, kVersionItem);
    if (!FileExists(path) || (purpose == Purpose::Changing && !IsWritable(path))) return false;
    if (ReadItemText<1>(scenarioStore, kVersionItem) != kScenarioVersion) {
        Warning("Unexpected version in scenario!");
        return false;
    }
    if (!scenarioStore.shared) WriteItemText(scenarioStore, kVersionItem, kScenarioVersion);
    return true;
}

}  // namespace quillet
