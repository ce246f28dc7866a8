#include "platform/file_dialog.h"

#include <QFile>
#include <QFileDialog>

#include "platform/qt/desktop.h"

namespace quillet {
namespace {

QString ToPath(const std::string& path) { return QFile::decodeName(QByteArray::fromStdString(path)); }

std::optional<std::string> Ask(const FileRequest& request, QFileDialog::AcceptMode mode) {
    InTheMiddle<QFileDialog> dialog(DialogParent(), ToQString(request.title));
    const bool isSaving = mode == QFileDialog::AcceptSave;
    dialog.setAcceptMode(mode);
    dialog.setFileMode(isSaving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    const QString extension = ToQString(request.extension);
    if (!extension.isEmpty()) {
        const QString description = ToQString(request.description);
        dialog.setNameFilters(
            {QStringLiteral("%1 (*.%2)").arg(description, extension), QStringLiteral("All files (*)")});
        dialog.setDefaultSuffix(extension);
    }
    if (!request.folder.empty()) dialog.setDirectory(ToPath(request.folder));
    if (!request.name.empty()) dialog.selectFile(ToPath(request.name));
    if (RunModal(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString();
}

}  // namespace

std::optional<std::string> AskFileToOpen(const FileRequest& request) {
    return Ask(request, QFileDialog::AcceptOpen);
}

std::optional<std::string> AskFileToSave(const FileRequest& request) {
    return Ask(request, QFileDialog::AcceptSave);
}

}  // namespace quillet
