// Numbers as pictures of their digits.

#include "HeaderFixture.h"
#include "keys/pictures.h"
#include "plain_image.h"

class TestDigits : public HeaderFixture
{
    Q_OBJECT

private slots:
    void oneGlyphUpToNineAndAPairFromTen();
    void negativeNumbersCarryTheSign();
    void thirdDigitIsNotDrawn();
    void unknownDigitTypeHasNoGlyphs();
    void degreesFromOneToTwelveHaveTheirDigits();
};

void TestDigits::oneGlyphUpToNineAndAPairFromTen()
{
    const int widths[] = {6, 3, 4, 5, 5, 4, 6, 5, 6, 6};
    for (int type = MainWnd::digit_anchor_in; type <= MainWnd::digit_bar; ++type)
        for (int number = 0; number <= 9; ++number)
            QCOMPARE(window->getDigitalPix(static_cast<MainWnd::digit_type>(type), number).size(),
                     QSize(widths[number], 8));
    QCOMPARE(window->getDigitalPix(MainWnd::digit_square, 10).size(), QSize(13, 8));
    const QImage twelve = imageOf(window->getDigitalPix(MainWnd::digit_square, 12));
    QCOMPARE(twelve.copy(0, 0, 3, 8), imageOf(window->getDigitalPix(MainWnd::digit_square, 1)));
    QCOMPARE(twelve.copy(3, 0, 4, 8), imageOf(window->getDigitalPix(MainWnd::digit_square, 2)));
}

void TestDigits::negativeNumbersCarryTheSign()
{
    const QPixmap minusFour = window->getDigitalPix(MainWnd::digit_anchor_in, -4);
    QCOMPARE(minusFour.size(), QSize(16, 8));
    QCOMPARE(imageOf(minusFour).copy(3, 0, 5, 8),
             imageOf(window->getDigitalPix(MainWnd::digit_anchor_in, 4)));
    const QPixmap sheet = pictures::load(QStringLiteral(":/Resources/Numb0.png")); // the sign comes first
    QCOMPARE(imageOf(minusFour).copy(0, 0, 3, 8), imageOf(sheet).copy(0, 0, 3, 8));
}

void TestDigits::thirdDigitIsNotDrawn()
{
    QCOMPARE(imageOf(window->getDigitalPix(MainWnd::digit_bar, 123)),
             imageOf(window->getDigitalPix(MainWnd::digit_bar, 12)));
}

void TestDigits::unknownDigitTypeHasNoGlyphs()
{
    QVERIFY(window->getDigitalPix(static_cast<MainWnd::digit_type>(4), 3).isNull());
}

void TestDigits::degreesFromOneToTwelveHaveTheirDigits()
{
    for (int degree = 1; degree <= 12; ++degree)
        QCOMPARE(imageOf(window->degreeDigits(degree)),
                 imageOf(window->getDigitalPix(MainWnd::digit_bar, degree)));
    for (const int none : {-1, 0, 13})
        QVERIFY(window->degreeDigits(none).isNull());
}

QTEST_MAIN(TestDigits)
#include "test_digits.moc"
