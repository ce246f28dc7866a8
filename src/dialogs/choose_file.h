// Asks for files, through the desktop's own dialogs.
//
// Owns the folder in which the last file was chosen: every such dialog starts there. Paths and names are the
// file system's.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillet {

// A kind of files, and what the dialogs for them are called.
struct FileKind {
    std::string_view titleToOpen;
    std::string_view titleToSave;
    std::string_view description;
    std::string_view extension;
};
const FileKind& SavedGameFiles();
const FileKind& TextFiles();

// The path of the file chosen; none when the person cancels. `proposed` is a name, or empty.
std::optional<std::string> ChooseFileToOpen(const FileKind& kind, const std::string& proposed);
std::optional<std::string> ChooseFileToSave(const FileKind& kind, const std::string& proposed);

// The file's name without its folder, at most 220 characters.
std::string FileTitle(std::string_view path);

}  // namespace quillet
