#include "base/messages.h"

#include "platform/message_box.h"

namespace quillet {
namespace {

using MessageText = Text<255>;

MessageText Joined(std::string_view piece1, std::string_view piece2, std::string_view piece3,
                   std::string_view piece4) {
    MessageText text(piece1);
    text.Append(piece2);
    text.Append(piece3);
    text.Append(piece4);
    return text;
}

}  // namespace

void Warning(std::string_view piece1, std::string_view piece2, std::string_view piece3,
             std::string_view piece4) {
    ShowMessageBox(BoxKind::Warning, ResourceString(StringId::ProgramTitle),
                   Joined(piece1, piece2, piece3, piece4));
}

void Fatal(std::string_view piece1, std::string_view piece2, std::string_view piece3,
           std::string_view piece4) {
    ShowMessageBox(BoxKind::Fatal, ResourceString(StringId::ProgramTitle),
                   Joined(piece1, piece2, piece3, piece4));
    throw ProgramEnd{};
}

bool AskYesNo(bool yesIsDefault, std::string_view piece1, std::string_view piece2, std::string_view piece3,
              std::string_view piece4) {
    return ShowQuestionBox(ResourceString(StringId::ProgramTitle), Joined(piece1, piece2, piece3, piece4),
                           yesIsDefault);
}

}  // namespace quillet
