// The desktop's own dialogs for choosing a file. Paths are the file system's.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillet {

struct FileRequest {
    std::string_view title;
    std::string_view description;  // of the files: "Saved games"
    std::string_view extension;    // "qlg"; added to a name that is typed without one
    std::string folder;            // to start in; empty: where the desktop likes
    std::string name;              // proposed; may be empty
};

// A file that exists; none when the person cancels.
std::optional<std::string> AskFileToOpen(const FileRequest& request);
// A file to write; the dialog asks before an existing one is taken. None when the person cancels.
std::optional<std::string> AskFileToSave(const FileRequest& request);

}  // namespace quillet
