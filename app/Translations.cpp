#include "app/Translations.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>

namespace {

const QString english = QStringLiteral("en"); // the language of the sources has no file

QString fileOf(const QString& language)
{
    return QStringLiteral(":/i18n/sorvane_%1.qm").arg(language);
}

/// Languages behind English are no better to a user who put it before them.
QString firstSpoken(const QStringList& languages)
{
    for (const QString& language : languages) {
        QString code = language.section(QLatin1Char('-'), 0, 0);
        if (code == english || QFile::exists(fileOf(code)))
            return code;
    }
    return english;
}

} // namespace

Translations::Translations(const QStringList& languages) : chosen(firstSpoken(languages))
{
    if (chosen == english || !own.load(fileOf(chosen)))
        return;
    // Qt's own come with the system, or not; without them its few words stay English.
    if (ofQt.load(QStringLiteral("qtbase_") + chosen, QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&ofQt);
    QCoreApplication::installTranslator(&own);
}

QStringList Translations::wantedLanguages()
{
    const QLocale locale;
    return locale.language() == QLocale::C ? QStringList() : locale.uiLanguages();
}
