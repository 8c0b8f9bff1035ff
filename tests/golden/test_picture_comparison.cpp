// What counts as the same picture. That the real pictures tell a digit, a key and a pixel apart stands in
// test_golden_scenes.cpp.

#include "picture_comparison.h"

#include <QPainter>
#include <QtTest>

using namespace picture_comparison;

namespace {

constexpr QSize logical(400, 300);

QImage ground(int ratio, const QColor& color = QColor(90, 90, 90))
{
    QImage image(logical * ratio, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

/// Fills a rectangle of logical pixels.
QImage with(QImage image, const QRect& logicalPlace, const QColor& color, int ratio)
{
    QPainter painter(&image);
    painter.fillRect(QRect(logicalPlace.topLeft() * ratio, logicalPlace.size() * ratio), color);
    return image;
}

} // namespace

class TestPictureComparison : public QObject
{
    Q_OBJECT

private slots:
    void samePictureIsTheSame_data();
    void samePictureIsTheSame();
    void alphaAndFormatDoNotCount();
    void sizesMustAgree();
    void nullIsNoPicture();
    void everyChannelCounts_data();
    void everyChannelCounts();
    void spotOfAFewPixelsIsSeenWhereverItLies_data();
    void spotOfAFewPixelsIsSeenWhereverItLies();
    void specklesAreLeftAlone();
    void tooManySpecklesAreSeen();
    void paleVeilOverAllIsSeen();
    void numbersAreExact();
    void differencePictureShowsWhere();
    void wordsNameTheNumbers();
};

void TestPictureComparison::samePictureIsTheSame_data()
{
    QTest::addColumn<int>("ratio");
    QTest::newRow("1") << 1;
    QTest::newRow("2") << 2;
}

void TestPictureComparison::samePictureIsTheSame()
{
    QFETCH(int, ratio);
    const Difference difference = compare(ground(ratio), ground(ratio), ratio);
    QVERIFY(difference.isSmall());
    QCOMPARE(difference.share, 0.0);
    QCOMPARE(difference.mean, 0.0);
    QCOMPARE(difference.spot, 0.0);
}

void TestPictureComparison::alphaAndFormatDoNotCount()
{
    const QImage image = ground(1);
    QVERIFY(compare(image, image.convertToFormat(QImage::Format_RGB888), 1).isSmall());
    QVERIFY(compare(image.convertToFormat(QImage::Format_ARGB32_Premultiplied), image, 1).isSmall());
}

void TestPictureComparison::sizesMustAgree()
{
    const QImage image = ground(1);
    QVERIFY(!compare(image, ground(2), 1).isSmall());
    QVERIFY(!compare(image.copy(0, 0, 400, 299), image, 1).isSmall());
    QVERIFY(!compare(image, image.copy(0, 0, 399, 300), 1).isSmall());
    QVERIFY(!compare(image, ground(2), 1).sameSize);
}

void TestPictureComparison::nullIsNoPicture()
{
    QVERIFY(!compare(QImage(), QImage(), 1).isSmall());
    QVERIFY(!compare(QImage(), ground(1), 1).isSmall());
    QVERIFY(!compare(ground(1), QImage(), 1).isSmall());
}

void TestPictureComparison::everyChannelCounts_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<bool>("differs");
    QTest::newRow("red within") << QColor(90 + channelTolerance, 90, 90) << false;
    QTest::newRow("red beyond") << QColor(91 + channelTolerance, 90, 90) << true;
    QTest::newRow("green within") << QColor(90, 90 - channelTolerance, 90) << false;
    QTest::newRow("green beyond") << QColor(90, 89 - channelTolerance, 90) << true;
    QTest::newRow("blue within") << QColor(90, 90, 90 + channelTolerance) << false;
    QTest::newRow("blue beyond") << QColor(90, 90, 91 + channelTolerance) << true;
}

void TestPictureComparison::everyChannelCounts()
{
    QFETCH(QColor, color);
    QFETCH(bool, differs);
    const QImage seen = with(ground(1), {40, 40, 4, 1}, color, 1);
    QCOMPARE(!compare(seen, ground(1), 1).isSmall(), differs);
    QCOMPARE(!compare(ground(1), seen, 1).isSmall(), differs);
}

void TestPictureComparison::spotOfAFewPixelsIsSeenWhereverItLies_data()
{
    QTest::addColumn<QRect>("place");
    QTest::addColumn<int>("ratio");
    for (const int ratio : {1, 2})
        for (const QPoint corner :
             {QPoint(0, 0), QPoint(398, 298), QPoint(7, 7), QPoint(15, 15), QPoint(23, 8)})
            QTest::addRow("%d,%d at %d", corner.x(), corner.y(), ratio)
                << QRect(corner, QSize(2, 2)) << ratio;
}

void TestPictureComparison::spotOfAFewPixelsIsSeenWhereverItLies()
{
    QFETCH(QRect, place);
    QFETCH(int, ratio);
    const Difference difference = compare(with(ground(ratio), place, Qt::white, ratio), ground(ratio), ratio);
    QVERIFY(difference.share <= largestShare); // the whole window would not show it
    QVERIFY(!difference.isSmall());
}

void TestPictureComparison::specklesAreLeftAlone()
{
    QImage seen = ground(1);
    for (int i = 0; i < 100; ++i) // of 120,000
        seen.setPixel(37 * i % 400, 3 * i, 0xFFFFFFFF);
    QVERIFY(compare(seen, ground(1), 1).isSmall());
}

void TestPictureComparison::tooManySpecklesAreSeen()
{
    QImage seen = ground(1);
    for (int i = 0; i < 150; ++i)
        seen.setPixel(37 * i % 400, 2 * i, 0xFFFFFFFF);
    const Difference difference = compare(seen, ground(1), 1);
    QVERIFY(difference.spot <= largestSpot && difference.mean <= largestMean);
    QVERIFY(!difference.isSmall());
}

void TestPictureComparison::paleVeilOverAllIsSeen()
{
    const Difference difference = compare(ground(1, QColor(91, 91, 91)), ground(1), 1);
    QCOMPARE(difference.share, 0.0);
    QCOMPARE(difference.mean, 1.0);
    QVERIFY(!difference.isSmall());
}

void TestPictureComparison::numbersAreExact()
{
    const Difference difference =
        compare(with(ground(1), {0, 0, 8, 8}, QColor(120, 90, 90), 1), ground(1), 1);
    QCOMPARE(difference.share, 64 / 120000.0);
    QCOMPARE(difference.mean, 64 * 30 / 3 / 120000.0);
    QCOMPARE(difference.spot, 0.25);
}

void TestPictureComparison::differencePictureShowsWhere()
{
    const QImage picture = pictureOf(with(ground(1), {10, 20, 1, 1}, Qt::white, 1), ground(1));
    QCOMPARE(picture.size(), logical);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            QCOMPARE(picture.pixel(x, y), x == 10 && y == 20 ? qRgb(255, 0, 255) : qRgb(173, 173, 173));
    const QImage larger = pictureOf(ground(1), ground(1).copy(0, 0, 400, 299));
    QCOMPARE(larger.size(), logical);
    QCOMPARE(larger.pixel(0, 299), qRgb(255, 0, 255));
    QCOMPARE(larger.pixel(0, 298), qRgb(173, 173, 173));
}

void TestPictureComparison::wordsNameTheNumbers()
{
    QCOMPARE(compare(ground(1), ground(2), 1).inWords(), QStringLiteral("the sizes differ"));
    const QString words =
        compare(with(ground(1), {0, 0, 8, 8}, QColor(120, 90, 90), 1), ground(1), 1).inWords();
    for (const char* number : {"0.053 %", "25.0 %", "0.005 in the mean"})
        QVERIFY2(words.contains(QLatin1String(number)), qPrintable(words));
}

QTEST_APPLESS_MAIN(TestPictureComparison)

#include "test_picture_comparison.moc"
