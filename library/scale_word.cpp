#include "library/scale_word.h"

#include <algorithm>

bool isScaleWord(const QString& text)
{
    const auto isLetter = [](QChar letter) {
        return letter == QLatin1Char('x') || letter == QLatin1Char('o');
    };
    return text.size() == scaleWordLength && text.startsWith(QLatin1Char('x')) &&
           std::all_of(text.begin(), text.end(), isLetter);
}
