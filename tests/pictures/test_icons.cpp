// The application's icon in each size, as it was rendered from its drawing.

#include "committed.h"
#include "contrast.h"
#include "palette_colors.h"
#include "picture_distance.h"

#include <algorithm>
#include <cmath>

using picture_distance::between;
using picture_distance::onGround;

namespace {

constexpr int tolerance = 6; // of 255: another version of the renderer may smooth an edge otherwise

int difference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

/// The strongest contrast with the ground that is met in a line's first tenth, from a side to the middle.
double edgeContrast(const QImage& image, const QColor& ground, const QPoint& start, const QPoint& step)
{
    double best = 1;
    for (int i = 0; i < std::max(2, image.width() / 10); ++i)
        best = std::max(best, contrast::ratio(image.pixel(start + i * step), ground.rgb()));
    return best;
}

/// Where a light shines in an icon, and how bright it looks where there are no colours.
struct Lit
{
    QPointF centre;
    int pixels = 0;
    double grey = 0;
};

Lit findLight(const QImage& icon, const QColor& light)
{
    Lit lit;
    for (int y = 0; y < icon.height(); ++y)
        for (int x = 0; x < icon.width(); ++x)
            if (difference(icon.pixel(x, y), light.rgb()) <= 24) {
                ++lit.pixels;
                lit.centre += QPointF(x, y);
                lit.grey += qGray(icon.pixel(x, y));
            }
    lit.centre /= std::max(1, lit.pixels);
    lit.grey /= std::max(1, lit.pixels);
    return lit;
}

} // namespace

class TestIcons : public QObject
{
    Q_OBJECT

private slots:
    void everySizeIsAResource_data() { eachIconSize(); }
    void everySizeIsAResource();
    void committedIconIsRenderedFromItsDrawing_data() { eachIconSize(); }
    void committedIconIsRenderedFromItsDrawing();
    void cornersAreTransparent_data() { eachIconSize(); }
    void cornersAreTransparent();
    void outlineStandsOutOnBlackAndWhite_data() { eachIconSize(); }
    void outlineStandsOutOnBlackAndWhite();
    void amberStandsAboveBlueAndBothDifferInGrey_data() { eachIconSize(); }
    void amberStandsAboveBlueAndBothDifferInGrey();
    void smallestIconIsDrawnOnItsPixels();
};

void TestIcons::everySizeIsAResource()
{
    QFETCH(int, size);
    QCOMPARE(committedIcon(size).size(), QSize(size, size));
}

void TestIcons::committedIconIsRenderedFromItsDrawing()
{
    QFETCH(int, size);
    const QImage file = committedIcon(size), fresh = paintIcon(size);
    QCOMPARE(file.size(), fresh.size());
    QVERIFY(between(file, fresh).worst <= tolerance);
}

void TestIcons::cornersAreTransparent()
{
    QFETCH(int, size);
    const QImage icon = committedIcon(size);
    QCOMPARE(icon.size(), QSize(size, size));
    const int last = size - 1;
    for (const QPoint& corner : {QPoint(0, 0), QPoint(last, 0), QPoint(0, last), QPoint(last, last)})
        QCOMPARE(qAlpha(icon.pixel(corner)), 0);
    QCOMPARE(qAlpha(icon.pixel(size / 2, size / 2)), 255);
}

// A task bar may be of any lightness: three to one is what a sign needs to be seen.
void TestIcons::outlineStandsOutOnBlackAndWhite()
{
    QFETCH(int, size);
    const int middle = size / 2, last = size - 1;
    for (const QColor& ground : {QColor(Qt::black), QColor(Qt::white)}) {
        const QImage image = onGround(committedIcon(size), ground);
        for (int along = middle - size / 4; along <= middle + size / 4; ++along) {
            QVERIFY(edgeContrast(image, ground, {along, 0}, {0, 1}) >= 3);
            QVERIFY(edgeContrast(image, ground, {along, last}, {0, -1}) >= 3);
            QVERIFY(edgeContrast(image, ground, {0, along}, {1, 0}) >= 3);
            QVERIFY(edgeContrast(image, ground, {last, along}, {-1, 0}) >= 3);
        }
    }
}

void TestIcons::amberStandsAboveBlueAndBothDifferInGrey()
{
    QFETCH(int, size);
    const QImage icon = committedIcon(size);
    const Lit out = findLight(icon, palette::amber), in = findLight(icon, palette::blue);
    const Lit plain = findLight(icon, palette::ivory);
    const int enough = size * size / 40;
    QVERIFY2(out.pixels >= enough && in.pixels >= enough && plain.pixels >= enough,
             qPrintable(QStringLiteral("%1 %2 %3").arg(out.pixels).arg(in.pixels).arg(plain.pixels)));
    QVERIFY(out.centre.y() < in.centre.y() - size / 4.0);
    QVERIFY(out.centre.x() > in.centre.x() + size / 4.0);
    QVERIFY(out.grey - in.grey > 32);
    QVERIFY(plain.grey - out.grey > 48);
}

// Nothing but the rounded corners is smoothed.
void TestIcons::smallestIconIsDrawnOnItsPixels()
{
    const QImage icon = committedIcon(16);
    int pure = 0;
    for (int y = 0; y < icon.height(); ++y)
        for (int x = 0; x < icon.width(); ++x)
            pure += paletteColors().contains(QColor::fromRgba(icon.pixel(x, y))) ? 1 : 0;
    QVERIFY2(pure >= 216, qPrintable(QString::number(pure)));
}

QTEST_MAIN(TestIcons)
#include "test_icons.moc"
