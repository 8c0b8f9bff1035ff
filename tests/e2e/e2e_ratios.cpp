// The window on a real screen of a device pixel ratio that CTest sets: what is clicked to its outermost
// pixels is hit and nothing else, and what is seen is the picture of ratio 2 in another size. Guards what
// only fractions of pixels meet: an edge that belongs to the neighbour, pixels that are picked or enlarged.

#include "RealWindow.h"
#include "StagePlaces.h"
#include "app/Application.h"
#include "headers/HeaderItem.h"
#include "in_real_window.h"
#include "keys/PowerItem.h"
#include "keys/key_roles.h"
#include "likeness.h"
#include "screen/AlertWidget.h"

#include <QDir>
#include <QtTest>

#include <algorithm>
#include <iterator>

namespace {

constexpr QRectF inKeyboard(35, 302, 884, 145), outKeyboard(35, 48, 884, 99), selectors(35, 150, 165, 130),
    logo(345, 162, 258, 65), inBar(35, 448, 884, 30), wholeStage(0, 0, 952, 480), alertRim(266, 135, 420, 20),
    alertSign(293, 203, 44, 42);
const QDir pictures(QStringLiteral(RATIO_PICTURES));

qreal ratio()
{
    return qApp->devicePixelRatio();
}

/// The pixels that show a rectangle of the stage: of two places that share one it shows the left or upper.
QRect pixelsOf(const QRectF& stage)
{
    const QPoint first(qRound(stage.left() * ratio()), qRound(stage.top() * ratio()));
    return {first, QPoint(qRound(stage.right() * ratio()) - 1, qRound(stage.bottom() * ratio()) - 1)};
}

QList<QPoint> corners(const QRect& pixels)
{
    return {pixels.topLeft(), pixels.topRight(), pixels.bottomLeft(), pixels.bottomRight()};
}

/// The pixels left and right of a rectangle, half way down.
QList<QPoint> beside(const QRect& pixels)
{
    const int y = pixels.center().y();
    return {{pixels.left() - 1, y}, {pixels.right() + 1, y}};
}

template <typename Value>
QByteArray told(const Value& value)
{
    QString text;
    QDebug(&text).nospace() << value;
    return text.toUtf8();
}

/// Of a key: all that is seen of a black one, the foot of a white one.
QRectF bareKey(stage::Keyboard keyboard, int note)
{
    constexpr int first = 35, whiteWidth = 17, blackHeight = 64, height = 99;
    const int top = keyboard == stage::Keyboard::in ? 348 : 48;
    int whites = 0;
    for (int n = 21; n < note; ++n)
        whites += "x.x.xx.x.x.x"[n % 12] == 'x';
    if ("x.x.xx.x.x.x"[note % 12] == '.')
        return QRectF(first + whites * whiteWidth - 5, top, 10, blackHeight);
    return QRectF(first + whites * whiteWidth, top + blackHeight, whiteWidth, height - blackHeight);
}

/// How far a picture may be from the dense one in another size; picked or enlarged pixels are farther.
struct Limit
{
    double ratio, difference;
};

constexpr Limit limits[] = {{1.25, 3.5}, {1.5, 2.6}, {3, 1.7}};
constexpr double leastSharp = 0.92, mostSharp = 1.33; // of a good change of size

double limitOfDifference()
{
    const auto* found = std::find_if(std::begin(limits), std::end(limits),
                                     [](const Limit& limit) { return limit.ratio == ratio(); });
    return found == std::end(limits) ? 0 : found->difference;
}

} // namespace

class EndToEndRatios : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(window.open()); }
    void cleanup();
    void cleanupTestCase() { window.close(); }

    void screenHasTheRatio();
    void pictureIsTheDenseOneInAnotherSize_data();
    void pictureIsTheDenseOneInAnotherSize();
    void keyIsHitToItsEdges_data();
    void keyIsHitToItsEdges();
    void pressedKeyLightsItsOwnPixels();
    void flagIsHitToItsEdges();
    void anchorIsHitToItsEdges();
    void buttonIsHitToItsEdges();
    void slidingPointerHasTheScreensPixels();

private:
    /// What holds the mouse while a pixel is pressed.
    [[nodiscard]] QGraphicsItem* heldAt(QPoint pixel, const QGraphicsView* view);
    [[nodiscard]] bool isDownAt(QPoint pixel, const QPushButton* button);

    RealWindow window;
};

void EndToEndRatios::cleanup()
{
    window->setPower(false);
    window->showScene(1);
    QVERIFY(window.hand().rest());
}

void EndToEndRatios::screenHasTheRatio()
{
    QCOMPARE(ratio(), qEnvironmentVariable("QT_SCALE_FACTOR").toDouble());
    QCOMPARE(window.picture().size(), RealWindow::screenSize());
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling));
    QCOMPARE(QGuiApplication::highDpiScaleFactorRoundingPolicy(),
             Qt::HighDpiScaleFactorRoundingPolicy::PassThrough); // else a screen of 1.25 would be one of 1
}

QGraphicsItem* EndToEndRatios::heldAt(QPoint pixel, const QGraphicsView* view)
{
    if (!window.hand().press(pixel))
        return nullptr;
    QGraphicsItem* held = view->scene()->mouseGrabberItem();
    return window.hand().letGo() ? held : nullptr;
}

void EndToEndRatios::keyIsHitToItsEdges_data()
{
    QTest::addColumn<bool>("input");
    QTest::addColumn<int>("note");
    for (const int note : {60, 61})
        QTest::addRow("in %d", note) << true << note;
    QTest::addRow("out 64") << false << 64;
}

void EndToEndRatios::keyIsHitToItsEdges()
{
    QFETCH(bool, input);
    QFETCH(int, note);
    const QGraphicsView* view =
        input ? window->ui.inKeyboardGraphicsView : window->ui.outKeyboardGraphicsView;
    const QRect pixels = pixelsOf(bareKey(input ? stage::Keyboard::in : stage::Keyboard::out, note));
    for (const QPoint& pixel : corners(pixels)) {
        const QGraphicsItem* held = heldAt(pixel, view);
        QVERIFY(held);
        QCOMPARE(key_roles::pitch(held), note);
    }
    for (const QPoint& pixel : beside(pixels)) {
        const QGraphicsItem* held = heldAt(pixel, view);
        QVERIFY(!held || key_roles::pitch(held) != note);
    }
}

// In the in keyboard; the out key that sounds lies above.
void EndToEndRatios::pressedKeyLightsItsOwnPixels()
{
    const QRect pixels = pixelsOf(bareKey(stage::Keyboard::in, 60));
    const QImage before = window.picture();
    QVERIFY(window.hand().press(pixels.center()));
    const QImage during = window.picture();
    QVERIFY(window.hand().letGo());
    QRect lit;
    for (int y = pixels.top() + 1; y < before.height(); ++y) // under the notches
        for (int x = 0; x < before.width(); ++x)
            if (before.pixel(x, y) != during.pixel(x, y))
                lit |= QRect(x, y, 1, 1);
    QVERIFY2(pixels.contains(lit), told(lit).constData());
    const int hair = qCeil(ratio());
    QVERIFY2(lit.contains(pixels.adjusted(hair, hair, -hair, -2 * hair)), told(lit).constData());
}

void EndToEndRatios::flagIsHitToItsEdges()
{
    constexpr int blackKey = 61;
    window->setPower(true);
    const QSizeF box(34, 24);
    const QPointF middle = stage::flagPlace(blackKey);
    const QRect pixels = pixelsOf({middle - QPointF(box.width() / 2, box.height() / 2), box});
    const auto isFlag = [&](QPoint pixel) {
        const QGraphicsItem* held = heldAt(pixel, window->ui.inKeyboardGraphicsView);
        return held && key_roles::isHeader(held) && key_roles::pitch(held) == blackKey;
    };
    for (const QPoint& pixel : corners(pixels))
        QVERIFY2(isFlag(pixel), told(pixel).constData());
    for (const QPoint& pixel : beside(pixels))
        QVERIFY2(!isFlag(pixel), told(pixel).constData());
}

void EndToEndRatios::anchorIsHitToItsEdges()
{
    // One more than is seen: where a hand just misses the handle nothing else is meant.
    const QRect pixels = pixelsOf({stage::anchorPlace(0) - QPointF(11, 10), QSizeF(23, 20)});
    const QGraphicsView* view = window->ui.inKeyboardGraphicsView;
    for (const QPoint& pixel : corners(pixels))
        QVERIFY2(heldAt(pixel, view), told(pixel).constData());
    for (const QPoint& pixel : beside(pixels))
        QVERIFY2(!heldAt(pixel, view), told(pixel).constData());
}

bool EndToEndRatios::isDownAt(QPoint pixel, const QPushButton* button)
{
    const bool pressed = window.hand().press(pixel);
    const bool down = button->isDown();
    return window.hand().letGo() && pressed && down;
}

void EndToEndRatios::buttonIsHitToItsEdges()
{
    const QPushButton* button = window->ui.buttonCredits;
    const QRect pixels = pixelsOf({237, 213, 105, 23});
    QCOMPARE(button->geometry(), QRect(237, 213, 105, 23));
    for (const QPoint& pixel : corners(pixels))
        QVERIFY2(isDownAt(pixel, button), told(pixel).constData());
    for (const QPoint& pixel : beside(pixels))
        QVERIFY2(!isDownAt(pixel, button), told(pixel).constData());
}

void EndToEndRatios::pictureIsTheDenseOneInAnotherSize_data()
{
    QTest::addColumn<bool>("power");
    QTest::addColumn<bool>("alert");
    QTest::newRow("off") << false << false;
    QTest::newRow("on") << true << false;
    QTest::newRow("alert") << false << true;
}

// Sharp is what has the contrasts of a good change of size: picked pixels have more, blurred ones less. Keys
// end at whole pixels, which a change of size blurs, and tell it less well than what lies flat. The logo
// stands at whole pixels, up to half of one from its place.
void EndToEndRatios::pictureIsTheDenseOneInAnotherSize()
{
    QFETCH(bool, power);
    QFETCH(bool, alert);
    window->setPower(power);
    AlertWidget question(QString(), QStringLiteral("?"), QStringLiteral("OK"), QString(), alert_warning,
                         &*window);
    question.resize(window->size());
    question.setVisible(alert);
    QVERIFY(window.hand().rest());
    const QImage shown = window.picture();
    const QString file = pictures.filePath(QLatin1String(QTest::currentDataTag()) + QLatin1String(".png"));
    if (ratio() == 2.0) { // what the other screens are held against
        QVERIFY(pictures.mkpath(QStringLiteral(".")) && shown.save(file));
        return;
    }
    const QImage dense(file);
    QVERIFY2(!dense.isNull(), "run at ratio 2 first");
    const QImage expected = likeness::inSize(dense, shown.size());
    for (const QRectF& part : {wholeStage, inKeyboard, outKeyboard, inBar, selectors}) {
        const QRect pixels = pixelsOf(part);
        const double difference = likeness::difference(shown.copy(pixels), expected.copy(pixels));
        QVERIFY2(difference <= limitOfDifference(), told(qMakePair(part, difference)).constData());
    }
    for (const QRectF& part :
         alert ? QList<QRectF>{alertRim, alertSign} : QList<QRectF>{inBar, selectors, logo}) {
        const QRect pixels = pixelsOf(part);
        const double sharpness =
            likeness::contrast(shown.copy(pixels)) / likeness::contrast(expected.copy(pixels));
        QVERIFY2(sharpness >= leastSharp && sharpness <= mostSharp,
                 told(qMakePair(part, sharpness)).constData());
    }
}

// The server shows a pointer's pixels as they come, and counts in them where it points.
void EndToEndRatios::slidingPointerHasTheScreensPixels()
{
    const auto anchors = window->powerItem->mainAnchorIn->childItems();
    QVERIFY(!anchors.isEmpty());
    for (const QGraphicsItem* part : anchors) {
        const QSize size = part->cursor().pixmap().size();
        QCOMPARE(size, (QSizeF(21, 15) * ratio()).toSize());
        QCOMPARE(part->cursor().hotSpot(), QPoint(size.width() / 2, size.height() / 2));
    }
}

int main(int argc, char** argv)
{
    return runInRealWindow<EndToEndRatios, Application>(argc, argv);
}

#include "e2e_ratios.moc"
