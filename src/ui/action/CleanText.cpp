#include "ui/action/CleanText.h"

namespace kinesta {
namespace {

constexpr qsizetype kMostShown = 1'000;

bool isBlankedOut(QChar character, Lines lines) {
    if (lines == Lines::many && (character == QLatin1Char('\n') || character == QLatin1Char('\t')))
        return false;
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

/// They let a text look other than it is.
bool turnsDirection(QChar character) {
    const char16_t code = character.unicode();
    return (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

}  // namespace

QString cleanText(QString text, Lines lines) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (character.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            ++i;
        else if (character.isSurrogate() || (lines == Lines::many && turnsDirection(character)))
            text[i] = QChar::ReplacementCharacter;
        else if (isBlankedOut(character, lines))
            text[i] = QLatin1Char(' ');
    }
    return text;
}

QString shownText(const std::string& stored) {
    return cleanText(QString::fromStdString(stored).left(kMostShown), Lines::one);
}

}  // namespace kinesta
