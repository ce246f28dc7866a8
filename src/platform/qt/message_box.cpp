#include "platform/message_box.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "platform/qt/desktop.h"

namespace quillet {
namespace {

using Box = InTheMiddle<QMessageBox>;

// Shows the box; the toolkit chooses what Escape and the close box press. The result is a standard button's.
int Run(Box& box) {
    box.setTextFormat(Qt::PlainText);
    return RunModal(box);
}

}  // namespace

void ShowMessageBox(BoxKind kind, std::string_view title, std::string_view text) {
    const bool isFatal = kind == BoxKind::Fatal;
    const auto icon = isFatal                    ? QMessageBox::Critical
                      : kind == BoxKind::Warning ? QMessageBox::Warning
                                                 : QMessageBox::Information;
    Box box(icon, ToQString(title), ToQString(text), isFatal ? QMessageBox::NoButton : QMessageBox::Ok,
            DialogParent());
    if (isFatal) box.addButton(QStringLiteral("Quit"), QMessageBox::AcceptRole);
    if (kind != BoxKind::Information) Beep();
    Run(box);
}

bool ShowQuestionBox(std::string_view title, std::string_view text, bool yesIsDefault) {
    Box box(QMessageBox::Question, ToQString(title), ToQString(text), QMessageBox::Yes | QMessageBox::No,
            DialogParent());
    box.setDefaultButton(yesIsDefault ? QMessageBox::Yes : QMessageBox::No);
    return Run(box) == QMessageBox::Yes;
}

bool ShowRetryBox(std::string_view title, std::string_view text) {
    Box box(QMessageBox::Warning, ToQString(title), ToQString(text), QMessageBox::Retry | QMessageBox::Cancel,
            DialogParent());
    return Run(box) == QMessageBox::Retry;
}

void Beep() { QApplication::beep(); }

}  // namespace quillet
