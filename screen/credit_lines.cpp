#include "screen/credit_lines.h"

#include <utility>

namespace {

constexpr int widthLimit = 46; // characters; a line must be shorter

/// The parts between any of the separators, without the empty ones.
QStringList split(const QString& text, const QString& separators)
{
    QStringList parts;
    QString part;
    for (const QChar letter : text + separators.front()) {
        if (!separators.contains(letter))
            part += letter;
        else if (!part.isEmpty())
            parts << std::exchange(part, QString());
    }
    return parts;
}

QString withoutLeadingBlank(const QString& line)
{
    return line.startsWith(QLatin1Char(' ')) ? line.mid(1) : line;
}

QStringList rewrapped(const QString& line)
{
    const QStringList pieces = split(line, QStringLiteral(",.;"));
    QStringList result;
    QString gathered;
    for (int i = 0; i < pieces.size(); ++i) {
        const QString joined = gathered + pieces[i];
        const bool fits = joined.size() < widthLimit, last = i == pieces.size() - 1;
        if (fits && last) {
            result << joined;
        } else if (fits) {
            gathered = joined + QLatin1Char(',');
        } else {
            result << withoutLeadingBlank(gathered);
            gathered = pieces[i] + QLatin1Char(',');
        }
    }
    return result;
}

} // namespace

QStringList wrappedCreditLines(const QString& text)
{
    QStringList result;
    for (const QString& line : split(text, QStringLiteral("\r\n")))
        result += line.size() < widthLimit ? QStringList(line) : rewrapped(line);
    return result;
}
