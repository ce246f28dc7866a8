#include "data/help_topics.h"

#include <algorithm>
#include <new>
#include <span>

#include "base/messages.h"
#include "store/files.h"

namespace quillet {
namespace {

FilePath PathOf(std::string_view name, std::string_view extension) {
    FilePath path(ResourceString(StringId::HelpFolder));
    path.Append('\\');
    path.Append(name);
    path.Append(extension);
    return path;
}

}  // namespace

void LoadHelpTopics() {
    helpTopics.clear();
    const FilePath path = PathOf("HELPITEMS", ".txt");
    FileRef file = OpenForReading(path);
    if (!file) {
        Warning("Could not open help items: ", path);
        return;
    }
    HelpTopic topic;
    char character = 0;
    for (std::size_t bytes = 0; bytes < kMostHelpBytes && ReadChar(*file, character); ++bytes) {
        if (character != '\r') {
            topic.Append(character);
            continue;
        }
        helpTopics.push_back(topic);
        topic.Clear();
        if (helpTopics.size() == kMostHelpTopics) break;
    }
    CloseFile(std::move(file));
}

std::string HelpText(std::string_view topic) {
    constexpr std::string_view kNotFound = "Help file not found!";
    FileRef file = OpenForReading(PathOf(topic, ".txt"));
    if (!file) return std::string(kNotFound);
    std::string text;
    try {
        text.resize(std::min<std::size_t>(FileSize(*file), kMostHelpBytes));
    } catch (const std::bad_alloc&) {
        return "Not enough memory!";
    }
    const bool complete = ReadBlock(*file, std::as_writable_bytes(std::span(text)));
    CloseFile(std::move(file));
    if (!complete) return std::string(kNotFound);
    if (text.size() >= 2 && text[text.size() - 2] == '\r') text.resize(text.size() - 2);
    return text;
}

}  // namespace quillet
