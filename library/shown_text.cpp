#include "library/shown_text.h"

#include <algorithm>

QString shownText(const QString& text, int most)
{
    const auto breaks = [](QChar letter) {
        const QChar::Category category = letter.category();
        return category == QChar::Other_Control || category == QChar::Separator_Line ||
               category == QChar::Separator_Paragraph;
    };
    QString line = text.left(most);
    std::replace_if(line.begin(), line.end(), breaks, QLatin1Char(' '));
    return text.size() > most ? line + QLatin1String("...") : line;
}
