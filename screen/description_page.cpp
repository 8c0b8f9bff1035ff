#include "screen/description_page.h"

#include "library/shown_text.h"

#include <QCoreApplication>

QString descriptionPage(const QString& sample, const scale_data& scale)
{
    constexpr int longest = 20000; // characters; a file's may be too long to be laid out
    QString body = scale.libBody.left(longest).toHtmlEscaped();
    if (scale.libBody.size() > longest)
        body += QLatin1String("...");
    body.replace(QLatin1String("\r\n"), QLatin1String("\n"))
        .replace(QLatin1Char('\n'), QLatin1String("<br/>"));
    if (body.isEmpty())
        body = QCoreApplication::translate("description_page", "(no description)");
    const auto line = [](const QString& text) { return shownText(text).toHtmlEscaped(); };
    return sample.arg(line(scale.title), line(scale.abbr1), line(scale.abbr2), body);
}
