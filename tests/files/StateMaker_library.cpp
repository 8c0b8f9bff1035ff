// What a player does to the library, without the dialogs that ask for the words.

#include "StateMaker.h"

#include "headers/HeaderController.h"
#include "keys/ScaleKeyController.h"

QString StateMaker::anyText()
{
    static const QStringList texts = {QStringLiteral("1"),
                                      QStringLiteral("01"),
                                      QStringLiteral("11 - Mine"),
                                      QStringLiteral(" "),
                                      QStringLiteral("a"),
                                      QStringLiteral("A"),
                                      QStringLiteral("a\nb\tc"),
                                      QStringLiteral("\"\\/\" 'x'"),
                                      QStringLiteral("<b>&amp;</b>"),
                                      QStringLiteral("%1 %2"),
                                      QStringLiteral("User"),
                                      QString::fromUtf8("\xc3\xa9"),
                                      QString::fromUtf8("e\xcc\x81"),
                                      QString::fromUtf8("\xc3\x9f\xe2\x88\x82\xce\xa9"),
                                      QString::fromUtf8("\xe6\x97\xa5\xe6\x9c\xac\xe8\xaa\x9e"),
                                      QString::fromUtf8("\xf0\x9f\x8e\xb9 \xf0\x9f\x8e\xb6"),
                                      QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d"),
                                      QString::fromUtf8("\xe2\x80\xa8\xef\xbb\xbf"),
                                      QString(QChar(1)) + QChar(0) + QChar(0x7f),
                                      QString(300, QLatin1Char('w'))};
    const QString text = texts.at(number(texts.size()));
    return chance(30) ? text + QString::number(number(20)) : text;
}

QString StateMaker::anyCategory()
{
    const QVector<QString> names = library.categories();
    return names.isEmpty() ? QString() : names.at(number(names.size()));
}

QString StateMaker::anyWordOf(const QString& category)
{
    const int count = library.scalesCountFromCategory(category);
    return count ? library.scaleFromCategory(category, number(count)) : QString();
}

void StateMaker::libraryChanged(const QString& word)
{
    window.headerController->updateHeaderScenics(word);
    window.checkScaleMatches(true);
}

void StateMaker::addACategory()
{
    library.insertCategory(chance(10) ? QString() : anyText());
    window.checkScaleMatches(true);
}

void StateMaker::renameACategory()
{
    const QString old = anyCategory();
    library.renameCategory(old, anyText());
}

void StateMaker::deleteACategory()
{
    if (library.categoryCount() < 2)
        return;
    library.removeCategory(anyCategory());
    libraryChanged({});
}

void StateMaker::addThePlayedScale()
{
    const QString word = static_cast<ScaleKeyController*>(window.scaleController)->scaleModifier();
    scale_data record{word, anyText(), anyText(), anyText() + QLatin1Char('.'), anyText()};
    if (chance(50)) // the names that the dialog comes up with
        static_cast<void>(library.getScaleData(word, record, DatabaseLibrary::AnyRole));
    if (library.isCustomScale(word))
        library.removeScale(word);
    library.setScaleData(word, record, DatabaseLibrary::LibraryRole);
    library.appendScaleToCategory(anyCategory(), word);
    libraryChanged(word);
}

void StateMaker::editAScale()
{
    const QString word = anyWordOf(anyCategory());
    if (word.isEmpty())
        return;
    library.setScaleData(word, {word, anyText(), anyText(), anyText() + QLatin1Char('!'), anyText()},
                         DatabaseLibrary::LibraryRole);
    libraryChanged(word);
}

void StateMaker::copyAScale()
{
    const QString word = anyWordOf(anyCategory());
    library.appendScaleToCategory(anyCategory(), word);
    window.checkScaleMatches(true);
}

void StateMaker::moveAScale()
{
    const QString from = anyCategory(), to = anyCategory();
    const QString word = anyWordOf(from);
    // The menu offers no category that holds the scale already.
    if (word.isEmpty() || (from != to && library.indexOfScaleFromCategory(to, word, 0) >= 0))
        return;
    library.moveScale(library.indexOfScaleFromCategory(from, word, 0), library.scalesCountFromCategory(to),
                      from, to);
    window.checkScaleMatches(true);
}

void StateMaker::moveAScaleWithin()
{
    const QString category = anyCategory();
    const int count = library.scalesCountFromCategory(category);
    if (count)
        library.moveScale(number(count), number(count), category);
}

void StateMaker::deleteAScale()
{
    const QString category = anyCategory();
    const QString word = anyWordOf(category);
    if (word.isEmpty())
        return;
    library.removeScaleFromCategory(category, library.indexOfScaleFromCategory(category, word, 0));
    libraryChanged(word);
}

void StateMaker::standInACategory()
{
    library.setCurrentCategory(anyCategory());
    window.checkScaleMatches(true);
}
