#include "dialogs/choose_file.h"

#include "platform/file_dialog.h"

namespace quillet {
namespace {

constexpr std::size_t kMostTitle = 220;

constexpr FileKind kSavedGames{"Open Game", "Save Game", "Quillet Game", "qlg"};
constexpr FileKind kTexts{"Add from Text File", "Dump to Text File", "Text files", "txt"};

std::string lastFolder;  // of the last file chosen; empty: the desktop decides

std::optional<std::string> Remembered(std::optional<std::string> path) {
    if (!path) return path;
    const std::size_t slash = path->rfind('/');
    if (slash != std::string::npos) lastFolder = path->substr(0, slash == 0 ? 1 : slash);
    return path;
}

FileRequest RequestFor(const FileKind& kind, std::string_view title, const std::string& proposed) {
    return {.title = title,
            .description = kind.description,
            .extension = kind.extension,
            .folder = lastFolder,
            .name = proposed};
}

}  // namespace

const FileKind& SavedGameFiles() { return kSavedGames; }
const FileKind& TextFiles() { return kTexts; }

std::optional<std::string> ChooseFileToOpen(const FileKind& kind, const std::string& proposed) {
    return Remembered(AskFileToOpen(RequestFor(kind, kind.titleToOpen, proposed)));
}

std::optional<std::string> ChooseFileToSave(const FileKind& kind, const std::string& proposed) {
    return Remembered(AskFileToSave(RequestFor(kind, kind.titleToSave, proposed)));
}

std::string FileTitle(std::string_view path) {
    return std::string(path.substr(path.rfind('/') + 1).substr(0, kMostTitle));
}

}  // namespace quillet
