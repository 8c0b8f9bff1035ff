#include "BrowserSnapshot.h"

namespace {

QString line(const char* name, const QString& value)
{
    return QLatin1String(name) + QStringLiteral(": ") + value;
}

QString line(const char* name, int value)
{
    return line(name, QString::number(value));
}

QString line(const char* name, const QStringList& values)
{
    return line(name, values.join(QStringLiteral(" | ")));
}

} // namespace

QStringList BrowserSnapshot::lines() const
{
    QStringList all{line("power", power),
                    line("dialog", dialog),
                    line("library open", open),
                    line("scale switch", scaleSwitch),
                    line("played", played),
                    line("active flag", activeFlag),
                    line("current category", current)};
    for (const Category& category : categories)
        all << QStringLiteral("category %1 at %2: %3")
                   .arg(category.name, QString::number(category.remembered),
                        category.words.join(QLatin1Char(' ')));
    for (auto record = records.begin(); record != records.end(); ++record)
        all << line(qPrintable(record.key()), record.value());
    if (!open)
        return all;
    return all + QStringList{line("category rows", categoryRows),
                             line("chosen category row", categoryRow),
                             line("scale rows", scaleRows),
                             line("chosen scale row", scaleRow),
                             line("page", page),
                             line("plate of the played scale", playedPlate),
                             line("plates of the short names", abbrPlates),
                             line("exclamation mark", mark),
                             line("ghosts", ghosts)};
}
