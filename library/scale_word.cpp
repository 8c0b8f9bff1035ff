#include "library/scale_word.h"

#include <algorithm>

bool isScaleWord(const QString& text)
{
    constexpr int degrees = 12;
    const auto isLetter = [](QChar letter) {
        return letter == QLatin1Char('x') || letter == QLatin1Char('o');
    };
    return text.size() == degrees && text.startsWith(QLatin1Char('x')) &&
           std::all_of(text.begin(), text.end(), isLetter);
}
