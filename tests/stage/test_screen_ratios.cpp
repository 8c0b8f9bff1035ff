// Pictures on a screen of any device pixel ratio: which files are read, what a crop holds, and who is
// smoothed. Run once for each ratio.

#include "HeaderFixture.h"
#include "app/Application.h"
#include "keys/pictures.h"
#include "screen/CenterScreen.h"
#include "screen/LibraryView.h"
#include "screen/ScaleListWidget.h"

#include <QGraphicsPixmapItem>
#include <QPainter>
#include <QtTest>

namespace {

constexpr QSize cell(17, 9);
constexpr int cellCount = 3;
const QColor colours[cellCount] = {Qt::red, Qt::blue, Qt::green};

qreal ratio()
{
    return qApp->devicePixelRatio();
}

/// Cells of one colour each, without a pixel between them, to the right and below each other.
QPixmap sheetOfColours()
{
    QPixmap sheet = pictures::transparent(cell * cellCount);
    QPainter painter(&sheet);
    for (int row = 0; row < cellCount; ++row)
        for (int column = 0; column < cellCount; ++column)
            painter.fillRect(QRect(QPoint(column * cell.width(), row * cell.height()), cell),
                             colours[(row + column) % cellCount]);
    return sheet;
}

/// The blue cell, which has others on all its sides.
QPixmap blueCell()
{
    return pictures::crop(sheetOfColours(), QRect(QPoint(cell.width(), 0), cell));
}

/// As a view on this screen paints a scene.
QImage painted(QGraphicsScene& scene, QSize size)
{
    pictures::smooth(scene, ratio());
    const QSizeF pixels = QSizeF(size) * ratio();
    QImage image(qCeil(pixels.width()), qCeil(pixels.height()), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio());
    image.fill(Qt::black);
    QPainter painter(&image);
    scene.render(&painter, QRectF(QPointF(), QSizeF(size)), QRectF(QPointF(), QSizeF(size)));
    return image;
}

/// The pixels whose middles lie in a logical rectangle; of two that share one the left or upper has it.
QRect pixelsOf(const QRectF& logical)
{
    const QRectF exact(logical.topLeft() * ratio(), logical.size() * ratio());
    const QPoint first(qRound(exact.left()), qRound(exact.top()));
    return {first, QPoint(qRound(exact.right()) - 1, qRound(exact.bottom()) - 1)};
}

} // namespace

class TestScreenRatios : public HeaderFixture
{
    Q_OBJECT

private slots:
    void init() {} // most tests need no window
    void cleanup() {}

    void densityFollowsTheRatio_data();
    void densityFollowsTheRatio();
    void filesOfTheScreensDensityAreRead();
    void cropHoldsNothingOfItsNeighbours_data();
    void cropHoldsNothingOfItsNeighbours();
    void cropsSideBySideLeaveNoSeam();
    void stageIsSmoothedWhereItsPixelsAreNotTheScreens();
    void fittedPictureHasTheScreensPixels();
    void pictureOfADraggedScaleHasTheScreensPixels();
    void slidingPointerPointsWithItsMiddle();
    void pixelMeansWhatIsPaintedInIt_data();
    void pixelMeansWhatIsPaintedInIt();
};

void TestScreenRatios::densityFollowsTheRatio_data()
{
    QTest::addColumn<qreal>("screen");
    QTest::addColumn<int>("density");
    QTest::newRow("1") << 1.0 << 1;
    QTest::newRow("1.2") << 1.2 << 1;
    QTest::newRow("1.25") << 1.25 << 2;
    QTest::newRow("nearly 1.25") << 1.2492 << 2; // 120 dots an inch, in whole millimetres
    QTest::newRow("1.5") << 1.5 << 2;
    QTest::newRow("2") << 2.0 << 2;
    QTest::newRow("3") << 3.0 << 2;
}

void TestScreenRatios::densityFollowsTheRatio()
{
    QFETCH(qreal, screen);
    QTEST(pictures::densityFor(screen), "density");
    QCOMPARE(pictures::needsSmoothing(screen), qAbs(screen - pictures::density()) > 0.1);
    for (const qreal nearly : {0.9992, 1.0008}) // 96 dots an inch, in whole millimetres
        QVERIFY(!pictures::needsSmoothing(pictures::density() * nearly));
}

void TestScreenRatios::filesOfTheScreensDensityAreRead()
{
    const QPixmap sheet = pictures::load(QStringLiteral(":/Resources/Keyboard/keyboardB.png"));
    const int expected = ratio() < 1.25 ? 1 : 2;
    QCOMPARE(sheet.devicePixelRatio(), qreal(expected));
    QCOMPARE(sheet.size(), QSize(155, 99) * expected);
    QCOMPARE(pictures::transparent({10, 20}).size(), QSize(10, 20) * expected);
}

void TestScreenRatios::cropHoldsNothingOfItsNeighbours_data()
{
    QTest::addColumn<QPointF>("place");
    for (int x = 0; x < 4; ++x)
        for (const qreal beyond : {0.0, 0.3, 0.5})
            QTest::addRow("%d and %g", x, beyond) << QPointF(x + beyond, 4 - x + beyond);
}

// Wherever it stands: it is seen from edge to edge, and nothing else is.
void TestScreenRatios::cropHoldsNothingOfItsNeighbours()
{
    QFETCH(QPointF, place);
    QGraphicsScene scene;
    scene.addPixmap(blueCell())->setPos(place);
    const QImage image = painted(scene, {30, 20});
    const QRect inside = pixelsOf({place, QSizeF(cell)});
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE(image.pixelColor(x, y), QColor(inside.contains(x, y) ? Qt::blue : Qt::black));
}

void TestScreenRatios::cropsSideBySideLeaveNoSeam()
{
    QGraphicsScene scene;
    constexpr int columns = 8, rows = 5;
    for (int i = 0; i < columns * rows; ++i)
        scene.addPixmap(blueCell())->setPos(cell.width() * (i % columns), cell.height() * (i / columns));
    const QSize size(cell.width() * columns, cell.height() * rows);
    const QImage image = painted(scene, size);
    const QRect inside = pixelsOf(QRectF(QPointF(), QSizeF(size)));
    for (int y = 0; y < inside.height(); ++y)
        for (int x = 0; x < inside.width(); ++x)
            QCOMPARE(image.pixelColor(x, y), QColor(Qt::blue));
}

void TestScreenRatios::stageIsSmoothedWhereItsPixelsAreNotTheScreens()
{
    openWindow();
    const bool smooth = ratio() != 1.0 && ratio() != 2.0;
    int count = 0;
    for (const QGraphicsView* view : window->findChildren<QGraphicsView*>()) {
        const QList<QGraphicsItem*> items = view->scene() ? view->scene()->items() : QList<QGraphicsItem*>();
        for (QGraphicsItem* item : items)
            if (const auto* picture = dynamic_cast<QGraphicsPixmapItem*>(item)) {
                QCOMPARE(picture->transformationMode() == Qt::SmoothTransformation, smooth);
                ++count;
            }
    }
    QVERIFY(count > 300); // keys, flags, selectors, anchors
    QPixmap canvas(10, 10);
    canvas.setDevicePixelRatio(ratio());
    QPainter painter(&canvas);
    pictures::smooth(painter);
    QCOMPARE(painter.testRenderHint(QPainter::SmoothPixmapTransform), smooth);
    const QPixmap logo = window->ui.centerLogo->pixmap(Qt::ReturnByValue);
    QCOMPARE(logo.devicePixelRatio(), window->devicePixelRatioF());
    closeWindow();
}

void TestScreenRatios::fittedPictureHasTheScreensPixels()
{
    const QPixmap blue = blueCell();
    const QPixmap fitted = pictures::fitted(blue, ratio());
    QCOMPARE(fitted.devicePixelRatio(), ratio());
    QCOMPARE(fitted.width(), qRound(cell.width() * ratio()));
    QCOMPARE(fitted.height(), qRound(cell.height() * ratio()));
    QCOMPARE(fitted.toImage().pixelColor(fitted.width() / 2, fitted.height() / 2), QColor(Qt::blue));
    QCOMPARE(fitted.cacheKey() == blue.cacheKey(), ratio() == 1.0 || ratio() == 2.0); // none is made twice
    QVERIFY(pictures::fitted(QPixmap(), ratio()).isNull());
}

void TestScreenRatios::pictureOfADraggedScaleHasTheScreensPixels()
{
    openWindow();
    window->setPower(true);
    window->showLibraryScreen(true);
    const QSize size(100, 13);
    const QPixmap row = window->centerScreen->libraryView()->scales->pixmapForDragging(0, size);
    QCOMPARE(row.devicePixelRatio(), window->devicePixelRatioF());
    QCOMPARE(row.width(), qRound(size.width() * ratio()));
    QCOMPARE(row.height(), qRound(size.height() * ratio()));
    closeWindow();
}

void TestScreenRatios::slidingPointerPointsWithItsMiddle()
{
    const QPixmap picture = pictures::load(QStringLiteral(":/Resources/Cursor/cursorHr.png"));
    const QCursor cursor = pictures::cursor(picture, ratio());
    const QPixmap shown = cursor.pixmap();
    QCOMPARE(shown.width(), qRound(21 * ratio()));
    QCOMPARE(shown.height(), qRound(15 * ratio()));
    const QSizeF half = QSizeF(shown.size()) / shown.devicePixelRatio() / 2;
    QVERIFY(qAbs(cursor.hotSpot().x() - half.width()) <= 1 &&
            qAbs(cursor.hotSpot().y() - half.height()) <= 1);
}

void TestScreenRatios::pixelMeansWhatIsPaintedInIt_data()
{
    QTest::addColumn<qreal>("screen");
    for (const qreal screen : {1.0, 1.2, 1.25, 1.5, 1.75, 2.0, 3.0})
        QTest::addRow("%g", screen) << screen;
}

// Columns of one logical pixel each are painted in as many colours; each pixel of the screen must then mean
// the column that is seen in it.
void TestScreenRatios::pixelMeansWhatIsPaintedInIt()
{
    QFETCH(qreal, screen);
    constexpr int columns = 200;
    QImage image(qCeil(columns * screen), 1, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setDevicePixelRatio(screen);
    QPainter painter(&image);
    QPixmap pixel(1, 1);
    for (int column = 0; column < columns; ++column) {
        pixel.fill(QColor(column, 0, 0));
        painter.drawPixmap(QRectF(column, 0, 1, 1), pixel, QRectF(0, 0, 1, 1));
    }
    for (int x = 0; x < qRound(columns * screen); ++x)
        QCOMPARE(Application::shownAt(QPointF(x, 0) / screen, screen),
                 QPoint(image.pixelColor(x, 0).red(), 0));
}

QTEST_MAIN(TestScreenRatios)
#include "test_screen_ratios.moc"
