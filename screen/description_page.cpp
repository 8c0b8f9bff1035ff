#include "screen/description_page.h"

#include <QCoreApplication>

QString descriptionPage(const QString& sample, const scale_data& scale)
{
    QString body = scale.libBody.toHtmlEscaped();
    body.replace(QLatin1String("\r\n"), QLatin1String("\n"))
        .replace(QLatin1Char('\n'), QLatin1String("<br/>"));
    if (body.isEmpty())
        body = QCoreApplication::translate("description_page", "(no description)");
    return sample.arg(scale.title.toHtmlEscaped(), scale.abbr1.toHtmlEscaped(), scale.abbr2.toHtmlEscaped(),
                      body);
}
