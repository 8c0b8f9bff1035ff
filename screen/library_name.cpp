#include "screen/library_name.h"

#include <QFontMetrics>
#include <QRegularExpression>

namespace library_name {

QFont libraryFont()
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(10);
    return font;
}

bool fits(const QString& name)
{
    static const QRegularExpression allowed(
        QRegularExpression::anchoredPattern(QStringLiteral(R"([A-Za-z0-9\.\*\?\(\)\+\/\-\#]{0,7})")));
    return name.size() <= maxLength && allowed.match(name).hasMatch() &&
           QFontMetrics(libraryFont()).horizontalAdvance(name) < widthLimit;
}

} // namespace library_name
