#include <algorithm>
#include <array>

#include "platform/qt/desktop.h"

namespace quillet {
namespace {

// What texts from elsewhere bring that Latin-1 lacks.
struct LookAlike {
    char16_t character;
    char latin1;
};
constexpr std::array kLookAlikes{
    LookAlike{u'\u2010', '-'},  LookAlike{u'\u2011', '-'},  LookAlike{u'\u2012', '-'},
    LookAlike{u'\u2013', '-'},  LookAlike{u'\u2014', '-'},  LookAlike{u'\u2018', '\''},
    LookAlike{u'\u2019', '\''}, LookAlike{u'\u201A', ','},  LookAlike{u'\u201C', '"'},
    LookAlike{u'\u201D', '"'},  LookAlike{u'\u201E', '"'},  LookAlike{u'\u2022', '*'},
    LookAlike{u'\u2002', ' '},  LookAlike{u'\u2003', ' '},  LookAlike{u'\u2009', ' '},
    LookAlike{u'\u202F', ' '},  LookAlike{u'\u2032', '\''}, LookAlike{u'\u2033', '"'},
    LookAlike{u'\u2212', '-'},
};
constexpr char16_t kLastOfLatin1 = 0xFF;

}  // namespace

QString ToQString(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

QString InLatin1(const QString& text) {
    // Letters that are written as a letter and an accent become one character where there is one.
    QString result = text.normalized(QString::NormalizationForm_C);
    qsizetype length = 0;
    for (QChar& character : result) {
        if (character.isLowSurrogate()) continue;  // the high one has become "?"
        const auto* found = std::ranges::find(kLookAlikes, character.unicode(), &LookAlike::character);
        if (found != kLookAlikes.end()) {
            character = QLatin1Char(found->latin1);
        } else if (character.unicode() > kLastOfLatin1) {
            character = QLatin1Char('?');
        }
        result[length++] = character;
    }
    result.truncate(length);
    return result;
}

std::string FromQString(const QString& text) { return InLatin1(text).toLatin1().toStdString(); }

}  // namespace quillet
