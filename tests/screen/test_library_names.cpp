// Which short names a scale may have: few characters, of the allowed ones, and narrow enough for a plate.

#include "LibraryFixture.h"

#include <QRawFont>
#include <QtTest>

#include <cmath>

namespace {

QFont plateFont()
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(10);
    return font;
}

/// The sum of what the font's own table says of each glyph, without the program's measure.
int widthOf(const QString& text)
{
    const QRawFont glyphs = QRawFont::fromFont(plateFont());
    const auto advances = glyphs.advancesForGlyphIndexes(glyphs.glyphIndexesForString(text));
    qreal width = 0;
    for (const QPointF& advance : advances)
        width += advance.x();
    return static_cast<int>(std::lround(width));
}

const QString allowedSigns =
    QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789.*?()+/-#");

/// A word of at most seven allowed signs that is exactly so wide.
QString wordOfWidth(int pixels)
{
    const QString signs = QStringLiteral("ilbmWM1");
    QList<QString> words{QString()};
    for (int length = 1; length <= 5; ++length) {
        QList<QString> longer;
        for (const QString& word : words)
            for (const QChar sign : signs) {
                const QString made = word + sign;
                if (widthOf(made) == pixels)
                    return made;
                if (widthOf(made) < pixels)
                    longer << made;
            }
        words = longer.mid(0, 2000);
    }
    return {};
}

} // namespace

class TestLibraryNames : public LibraryFixture
{
    Q_OBJECT

private slots:
    void sevenNarrowCharactersPass();
    void sevenWideCharactersFail();
    void eightNarrowCharactersFail();
    void emptyNamePasses();
    void thirtyTwoPixelsPassAndThirtyThreeFail();
    void eachAllowedCharacterPasses();
    void everyOtherCharacterFails();
    void wholeNameMustMatch_data();
    void wholeNameMustMatch();
    void withoutAViewNothingPasses();
};

void TestLibraryNames::sevenNarrowCharactersPass()
{
    for (const char* name : {"iiiiiii", "lllllll", ".......", "Ionian"})
        QVERIFY2(screen().canBeRightLibraryName(QLatin1String(name)), name);
    QVERIFY(widthOf(QStringLiteral("iiiiiii")) < 33);
}

void TestLibraryNames::sevenWideCharactersFail()
{
    for (const char* name : {"WWWWWWW", "MMMMMMM", "wwwwwww", "#######"})
        QVERIFY2(!screen().canBeRightLibraryName(QLatin1String(name)), name);
    QVERIFY(widthOf(QStringLiteral("WWWWWWW")) >= 33);
}

void TestLibraryNames::eightNarrowCharactersFail()
{
    const QString name = QStringLiteral("iiiiiiii");
    QVERIFY(widthOf(name) < 33); // the count alone is against it
    QVERIFY(!screen().canBeRightLibraryName(name));
}

void TestLibraryNames::emptyNamePasses()
{
    QVERIFY(screen().canBeRightLibraryName(QString()));
    QVERIFY(screen().canBeRightLibraryName(QStringLiteral("")));
}

void TestLibraryNames::thirtyTwoPixelsPassAndThirtyThreeFail()
{
    const QString narrow = wordOfWidth(32), wide = wordOfWidth(33);
    QVERIFY(!narrow.isEmpty() && !wide.isEmpty());
    QVERIFY2(screen().canBeRightLibraryName(narrow), qPrintable(narrow));
    QVERIFY2(!screen().canBeRightLibraryName(wide), qPrintable(wide));
}

void TestLibraryNames::eachAllowedCharacterPasses()
{
    QCOMPARE(allowedSigns.size(), 71);
    for (const QChar sign : allowedSigns)
        QVERIFY2(screen().canBeRightLibraryName(sign), qPrintable(QString(sign)));
}

void TestLibraryNames::everyOtherCharacterFails()
{
    for (ushort code = 0; code < 0x2100; ++code) {
        const QChar sign(code);
        if (!allowedSigns.contains(sign))
            QVERIFY2(!screen().canBeRightLibraryName(sign), QByteArray::number(code, 16).constData());
    }
}

void TestLibraryNames::wholeNameMustMatch_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"a b", " a", "a ", "a_b", "a,b", "a&b", "a<b", "a\"b", "a'b", "a\tb"})
        QTest::newRow(name) << QString::fromLatin1(name);
    QTest::newRow("line behind") << QStringLiteral("ab\n");
    QTest::newRow("lines") << QStringLiteral("a\nb");
    QTest::newRow("null") << QString(QChar(0));
    QTest::newRow("umlaut") << QStringLiteral("M\u00f6ll");
    QTest::newRow("digit of another script") << QStringLiteral("\u0663");
}

void TestLibraryNames::wholeNameMustMatch()
{
    QFETCH(QString, name);
    QVERIFY(!screen().canBeRightLibraryName(name));
}

void TestLibraryNames::withoutAViewNothingPasses()
{
    const CenterScreen bare(window->ui.centerGraphicsView->scene(), window->ui, window.get());
    QVERIFY(!bare.libraryView());
    QVERIFY(!bare.canBeRightLibraryName(QStringLiteral("a")));
    QVERIFY(!bare.canBeRightLibraryName(QString()));
    QVERIFY(!bare.isLibraryAccessible());
    QVERIFY(!bare.isMatches());
}

QTEST_MAIN(TestLibraryNames)
#include "test_library_names.moc"
