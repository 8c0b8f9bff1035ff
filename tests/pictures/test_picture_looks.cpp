// What the stage needs of its pictures: outlines, clear parts, states that can be told apart.

#include "committed.h"
#include "picture_distance.h"

using picture_distance::between;

namespace {

/// How far two pixels are apart in the channel that tells most.
int difference(QRgb a, QRgb b)
{
    return std::max(
        {std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

int luminance(const QImage& image, int x, int y)
{
    return qGray(image.pixel(x, y));
}

/// True if nothing is drawn in an area, in pixels.
bool isClear(const QImage& image, const QRect& area)
{
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (qAlpha(image.pixel(x, y)) != 0)
                return false;
    return true;
}

bool isBlankColumn(const QImage& image, int x)
{
    for (int y = 0; y < image.height(); ++y)
        if (qAlpha(image.pixel(x, y)) != 0)
            return false;
    return true;
}

} // namespace

class TestPictureLooks : public QObject
{
    Q_OBJECT

private slots:
    // Keys
    void keySheetsShareTheirOutline();
    void whiteKeysAreOpaqueButForTheirNotches_data();
    void whiteKeysAreOpaqueButForTheirNotches();
    void keySheetsDifferInColour();
    void pressedCellsDifferFromIdleOnes();
    void cellsOfBlackKeysAreOpaque();
    void shineRunsOnFromKeyToKey();

    // Digits
    void digitsStandInTheirColumns_data();
    void digitsStandInTheirColumns();

    // The case and what stands on it
    void displayStaysFlatBehindTheLabels();
    void partsOfTheDisplayKeepClearOfTheLabels();
    void overlaysAreMostlyClear();
    void powerSquareShowsItsState();
    void selectorLightsLeaveTheOtherKeysFree();
    void switchesTellTheirStatesApart();
};

void TestPictureLooks::keySheetsShareTheirOutline()
{
    const QImage plain = committed("Keyboard/keyboardB.png");
    for (const char* other : {"_IN", "_OUT", "_deactive", "_LEARN"}) {
        const QImage sheet = committed(QStringLiteral("Keyboard/keyboardB%1.png").arg(QLatin1String(other)));
        for (int y = 0; y < plain.height(); ++y)
            for (int x = 0; x < plain.width(); ++x)
                QCOMPARE(qAlpha(sheet.pixel(x, y)), qAlpha(plain.pixel(x, y)));
    }
}

void TestPictureLooks::whiteKeysAreOpaqueButForTheirNotches_data()
{
    QTest::addColumn<int>("left");
    QTest::addColumn<bool>("leftNotch");
    QTest::addColumn<bool>("rightNotch");
    QTest::newRow("full idle") << 20 << false << false; // its first column also ends a black cell
    QTest::newRow("full pressed") << 36 << false << false;
    QTest::newRow("D G A idle") << 53 << true << true;
    QTest::newRow("D G A pressed") << 70 << true << true;
    QTest::newRow("C F idle") << 87 << false << true;
    QTest::newRow("C F pressed") << 104 << false << true;
    QTest::newRow("B E idle") << 121 << true << false;
    QTest::newRow("B E pressed") << 138 << true << false;
}

// A black key is 10 wide and 64 high, half of it over each white neighbour.
void TestPictureLooks::whiteKeysAreOpaqueButForTheirNotches()
{
    QFETCH(int, left);
    QFETCH(bool, leftNotch);
    QFETCH(bool, rightNotch);
    constexpr int width = 17, notch = 5, notchHeight = 64, height = 99;
    const int cells = left == 20 ? width - 1 : width;
    for (const int scale : {1, 2}) {
        const QString path = QStringLiteral("Keyboard/keyboardB.png");
        const QImage sheet = committed(scale == 1 ? path : denseName(path));
        for (int y = 0; y < height * scale; ++y)
            for (int x = 0; x < cells * scale; ++x) {
                const bool cut = y < notchHeight * scale && ((leftNotch && x < notch * scale) ||
                                                             (rightNotch && x >= (width - notch) * scale));
                QCOMPARE(qAlpha(sheet.pixel(left * scale + x, y)), cut ? 0 : 255);
            }
    }
}

void TestPictureLooks::keySheetsDifferInColour()
{
    QStringList names{"", "_IN", "_OUT", "_deactive", "_LEARN"};
    for (const int x : {60, 77, 5, 15}) { // a white key idle and pressed, a black one idle and pressed
        QList<QRgb> colors;
        for (const QString& name : qAsConst(names))
            colors.append(
                committed(QStringLiteral("Keyboard/keyboardB%1.png").arg(name)).pixel(x, x > 20 ? 80 : 40));
        for (int i = 0; i < colors.size(); ++i)
            for (int j = i + 1; j < colors.size(); ++j)
                QVERIFY2(difference(colors[i], colors[j]) > 12,
                         qPrintable(names[i] + QLatin1Char('/') + names[j]));
    }
}

void TestPictureLooks::pressedCellsDifferFromIdleOnes()
{
    for (const char* name : {"", "_IN", "_OUT", "_deactive", "_LEARN"}) {
        const QImage sheet = committed(QStringLiteral("Keyboard/keyboardB%1.png").arg(QLatin1String(name)));
        QVERIFY(between(sheet.copy(53, 0, 17, 99), sheet.copy(70, 0, 17, 99)).worst > 12);
        QVERIFY(between(sheet.copy(0, 0, 9, 64), sheet.copy(10, 0, 9, 64)).worst > 12);
    }
}

// A white key's notch is transparent: what shines there must be hidden by the black key.
void TestPictureLooks::cellsOfBlackKeysAreOpaque()
{
    const QImage sheet = committed("Keyboard/keyboardB.png");
    for (int x = 0; x < 20; ++x)
        for (int y = 0; y < 64; ++y)
            QCOMPARE(qAlpha(sheet.pixel(x, y)), 255);
}

void TestPictureLooks::shineRunsOnFromKeyToKey()
{
    for (const char* path : {"INPUTblueShine.png", "OUTPUTyellowShine.png"}) {
        const QImage shine = committed(QLatin1String(path));
        constexpr int brightest = 9; // above it the case's shadow
        for (int y = 0; y < shine.height(); ++y) {
            for (int x = 1; x < shine.width(); ++x)
                QCOMPARE(shine.pixel(x, y), shine.pixel(0, y));
            if (y > brightest)
                QVERIFY(qAlpha(shine.pixel(0, y)) <= qAlpha(shine.pixel(0, y - 1)));
        }
        QVERIFY(qAlpha(shine.pixel(0, brightest)) > 30);
        QVERIFY(qAlpha(shine.pixel(0, shine.height() - 1)) <= 2); // it ends without an edge
    }
}

void TestPictureLooks::digitsStandInTheirColumns_data()
{
    QTest::addColumn<int>("sheet");
    for (int sheet = 0; sheet < 4; ++sheet)
        QTest::addRow("Numb%d", sheet) << sheet;
}

void TestPictureLooks::digitsStandInTheirColumns()
{
    QFETCH(int, sheet);
    const QImage image = committed(QStringLiteral("Numb%1.png").arg(sheet));
    const int columns[][2] = {{0, 2},   {4, 6},   {8, 11},  {13, 17}, {19, 23}, {25, 28},
                              {30, 35}, {37, 41}, {43, 48}, {50, 55}, {57, 62}};
    QList<int> used;
    for (const auto& glyph : columns) {
        int inked = 0;
        for (int x = glyph[0]; x <= glyph[1]; ++x) {
            used.append(x);
            inked += isBlankColumn(image, x) ? 0 : 1;
        }
        QVERIFY(inked > 1); // those of the bars are narrower than their columns
    }
    for (int x = 0; x < image.width(); ++x)
        if (!used.contains(x))
            QVERIFY(isBlankColumn(image, x));
}

void TestPictureLooks::displayStaysFlatBehindTheLabels()
{
    const QImage back = committed("Background/BG_off.png");
    const QImage on = committed("Background/BG_t_on-CM.png"), off = committed("Background/BG_t_off.png");
    for (int x = 342; x < 607; ++x) {
        QCOMPARE(back.pixel(x, 220), qRgb(200, 203, 192));
        QCOMPARE(back.pixel(x, 277), qRgb(188, 184, 175));
        for (const QImage& sheet : {on, off}) {
            QCOMPARE(qAlpha(sheet.pixel(x, 220)), 0);
            QCOMPARE(qAlpha(sheet.pixel(x, 277)), 0);
        }
    }
}

// The form's labels lie flat over the middle of the display; what else is drawn there would stop at their
// edges.
void TestPictureLooks::partsOfTheDisplayKeepClearOfTheLabels()
{
    const QRect hiddenLayer(342 - 207, 217 - 167, 265, 7), labelBottom(343 - 207, 274 - 167, 263, 6);
    for (const int scale : {1, 2})
        for (const char* path : {"Background/GlareDisplaySilkscreen.png", "Background/smoke.gif"}) {
            const QImage part =
                committed(scale == 1 ? QString::fromLatin1(path) : denseName(QLatin1String(path)));
            for (const QRect& label : {hiddenLayer, labelBottom})
                QVERIFY2(isClear(part, QRect(label.topLeft() * scale, label.size() * scale)), path);
        }
    const QImage logo = committed("CenterScreen/Sorvane-Logo-CM.png");
    QVERIFY(isClear(logo, QRect(0, 217 - 162, logo.width(), 7)));
}

void TestPictureLooks::overlaysAreMostlyClear()
{
    for (const char* path : {"Background/BG_t_on-CM.png", "Background/BG_t_off.png"}) {
        const QImage sheet = committed(QLatin1String(path));
        QVERIFY2(isClear(sheet, QRect(207, 167, 532, 116)), path); // the display
        for (int y = 0; y < sheet.height(); ++y)
            for (int x = 0; x < sheet.width(); ++x)
                if (y >= 60 && (y < 340 || y >= 370))
                    QVERIFY2(qAlpha(sheet.pixel(x, y)) < 128 || y == 299, path); // all but the lit rod
    }
}

void TestPictureLooks::powerSquareShowsItsState()
{
    const QRect square(3, 3, 13, 25), lens(5, 20, 9, 5);
    const QImage off = committed("Power/POWERBUTTONOff.png"), on = committed("Power/POWERBUTTONOn.png");
    for (int y = lens.top(); y <= lens.bottom(); ++y)
        for (int x = lens.left(); x <= lens.right(); ++x)
            QVERIFY(luminance(on, x, y) > luminance(off, x, y));
    for (const char* path : {"Power/POWERBUTTONPress.png", "Power/POWERBUTTONHover.png"}) {
        const QImage look = committed(QLatin1String(path)); // drawn over On or Off
        QVERIFY(qAlpha(look.pixel(square.center())) > 0);
        QVERIFY2(isClear(look, QRect(0, square.bottom() + 1, look.width(), look.height() - 28)), path);
    }
}

void TestPictureLooks::selectorLightsLeaveTheOtherKeysFree()
{
    const QImage sheet = committed("KeyboardTonic.png");
    for (const int selector : {0, 180})
        for (const int left : {12, 29, 63, 80, 97}) {
            QCOMPARE(qAlpha(sheet.pixel(left + 5, selector + 60 + 20)), 0); // lit white keys, at a black one
            QCOMPARE(qAlpha(sheet.pixel(left + 5, selector + 120 + 20)), 255); // lit black keys
            QCOMPARE(qAlpha(sheet.pixel(left + 5, selector + 120 + 50)), 0);
        }
}

void TestPictureLooks::switchesTellTheirStatesApart()
{
    for (const char* which : {"Tonic", "Scale"}) {
        const auto state = [which](const char* name) {
            return committed(
                QStringLiteral("Switch/%1Switch%2.png").arg(QLatin1String(which), QLatin1String(name)));
        };
        const QImage neutral = state("Neutral"), off = state("Off"), on = state("On");
        QVERIFY(luminance(off, 10, 11) > luminance(off, 30, 11)); // the knob on the left
        QVERIFY(QColor(on.pixel(30, 11)).saturation() < 60);      // and on the right, of bare metal
        QVERIFY(luminance(neutral, 20, 11) < luminance(off, 10, 11));
        QVERIFY(QColor(on.pixel(10, 11)).saturation() > 120); // beside the lit track
    }
}

QTEST_MAIN(TestPictureLooks)
#include "test_picture_looks.moc"
