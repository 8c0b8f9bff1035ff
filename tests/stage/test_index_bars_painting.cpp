// The pictures of the bars: what is painted on them, and how seldom.

#include "AnchorFixture.h"
#include "MappingRule.h"

#include <QGraphicsPixmapItem>
#include <QPainter>

namespace {

constexpr int inTop = 3, outTop = 9; // y of the numbers

QImage imageOf(const QPixmap& pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage resource(const char* name)
{
    return QImage(QStringLiteral(":/Resources/") + QLatin1String(name))
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// How many pixmaps this process has made: the upper half of a key counts them.
qint64 pixmapsMade()
{
    return QPixmap(1, 1).cacheKey() >> 32;
}

/// How many of them one picture that is painted on takes.
int pixmapsForAPainting()
{
    const QPixmap plain(1, 1);
    const qint64 before = pixmapsMade();
    QPixmap face = plain;
    QPainter(&face).fillRect(0, 0, 1, 1, Qt::red);
    return static_cast<int>(pixmapsMade() - before - 1);
}

/// The largest difference of a colour channel.
int difference(const QImage& a, const QImage& b)
{
    int most = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QColor left = a.pixelColor(x, y), right = b.pixelColor(x, y);
            most = qMax(most, qMax(qAbs(left.red() - right.red()), qAbs(left.green() - right.green())));
            most = qMax(most, qMax(qAbs(left.blue() - right.blue()), qAbs(left.alpha() - right.alpha())));
        }
    return most;
}

} // namespace

class TestIndexBarsPainting : public AnchorFixture
{
    Q_OBJECT

private slots:
    // What
    void barsShowTheirNumbers_data();
    void barsShowTheirNumbers();
    void barsAreBareWithThePowerOff();
    void inBarOfDIonianIsTheReferencePicture();
    void numbersLeaveNoTraceOfTheOldOnes();

    // How seldom
    void notesPaintNoBar();
    void receivedNotesPaintNoBar();
    void recallOfTheSamePresetPaintsNoBar();
    void recallOfAnEqualPresetPaintsNoBar();
    void remapWithoutAChangePaintsNothing();
    void slideByAKeyPaintsTheInBarOnce();
    void slideByAKeyLeavesTheOutBar();
    void changeOfTonicPaintsEachBarOnce();
    void changeOfScalePaintsEachBarOnce();
    void switchingOffPaintsEachBarOnce();
    void dragWithinAKeyPaintsNoBar();

private:
    static QGraphicsPixmapItem* bar(QGraphicsItem* item)
    {
        return qgraphicsitem_cast<QGraphicsPixmapItem*>(item);
    }
    QPixmap inPicture() const { return bar(power()->anchorBarIn)->pixmap(); }
    QPixmap outPicture() const { return bar(power()->anchorBarOut)->pixmap(); }
    QList<qint64> keys() const { return {inPicture().cacheKey(), outPicture().cacheKey()}; }
    QImage composed(const char* plain, const degree_marks::Marks& marks, int top) const;
    /// The bars that `change` left with another picture, and how many pictures it painted in all.
    QList<int> painted(const std::function<void()>& change) const;
};

QImage TestIndexBarsPainting::composed(const char* plain, const degree_marks::Marks& marks, int top) const
{
    QImage image = resource(plain);
    QPainter painter(&image);
    for (const degree_marks::Mark& mark : marks)
        painter.drawPixmap(mark.x, top, window->getDigitalPix(MainWnd::digit_bar, mark.number));
    return image;
}

QList<int> TestIndexBarsPainting::painted(const std::function<void()>& change) const
{
    const QList<qint64> before = keys();
    const qint64 made = pixmapsMade();
    change();
    const auto inAll = static_cast<int>(pixmapsMade() - made - 1); // less the counter's own
    int bars = 0;
    for (int i = 0; i < before.size(); ++i)
        bars += keys()[i] != before[i] ? 1 : 0;
    return {bars, inAll / pixmapsForAPainting()};
}

void TestIndexBarsPainting::barsShowTheirNumbers_data()
{
    QTest::addColumn<int>("tonicDegree");
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("group");
    QTest::newRow("C Ionian") << 0 << ionian << 0;
    QTest::newRow("F# whole tone, slid") << 6 << wholeTone << 51;
    QTest::newRow("E chromatic") << 4 << QString(12, QLatin1Char('x')) << 0;
    QTest::newRow("B alone, far") << 11 << octaves << -340;
}

void TestIndexBarsPainting::barsShowTheirNumbers()
{
    QFETCH(int, tonicDegree);
    QFETCH(QString, word);
    QFETCH(int, group);
    QCOMPARE(window->devicePixelRatioF(), 1.0);
    choose(tonicDegree, word);
    putGroup(group);
    QVERIFY(!power()->marksIn().empty());
    QVERIFY(!power()->marksOut().empty());
    QCOMPARE(imageOf(inPicture()), composed("INPUTanchorbar.png", power()->marksIn(), inTop));
    QCOMPARE(imageOf(outPicture()), composed("OUTPUTanchorbar.png", power()->marksOut(), outTop));
}

void TestIndexBarsPainting::barsAreBareWithThePowerOff()
{
    QVERIFY(imageOf(inPicture()) != resource("INPUTanchorbar.png"));
    QVERIFY(imageOf(outPicture()) != resource("OUTPUTanchorbar.png"));
    window->setPower(false);
    QCOMPARE(imageOf(inPicture()), resource("INPUTanchorbar.png"));
    QCOMPARE(imageOf(outPicture()), resource("OUTPUTanchorbar.png"));
}

// The reference was put together from the bar and the columns of its digit sheet, not taken from the program.
void TestIndexBarsPainting::inBarOfDIonianIsTheReferencePicture()
{
    choose(2, ionian);
    const QImage reference(QStringLiteral(SORVANE_STAGE_PICTURES "/reference_in_bar.png"));
    const QImage shown = inPicture().toImage();
    QVERIFY(!reference.isNull());
    QCOMPARE(shown.size(), reference.size());
    const int most = difference(shown, reference);
    QVERIFY2(most <= 3, qPrintable(QStringLiteral("channels differ by up to %1").arg(most)));
    // The tolerance tells a slid bar from this one.
    putGroup(17);
    QVERIFY(difference(inPicture().toImage(), reference) > 30);
}

void TestIndexBarsPainting::numbersLeaveNoTraceOfTheOldOnes()
{
    const QImage in = imageOf(inPicture()), out = imageOf(outPicture());
    choose(5, QString(12, QLatin1Char('x')));
    putGroup(34);
    choose(0, ionian);
    putGroup(0);
    QCOMPARE(imageOf(inPicture()), in);
    QCOMPARE(imageOf(outPicture()), out);
}

void TestIndexBarsPainting::notesPaintNoBar()
{
    const QList<qint64> before = keys();
    for (int key = 21; key <= 108; ++key) {
        if (!isWhite(key))
            continue;
        window->findInNote(key)->pushKey();
        QCOMPARE(keys(), before);
        window->findInNote(key)->releaseKey();
        QCOMPARE(keys(), before);
    }
    QVERIFY(!port->takeLists().isEmpty());
}

void TestIndexBarsPainting::receivedNotesPaintNoBar()
{
    const QList<qint64> before = keys();
    for (const int key : {21, 60, 64, 67, 108})
        for (const int status : {0x90, 0x80}) {
            window->receiveMessage({status, key, 100});
            QCOMPARE(keys(), before);
        }
    QCOMPARE(port->takeLists().size(), 10);
}

void TestIndexBarsPainting::recallOfTheSamePresetPaintsNoBar()
{
    recall(25);
    const QList<qint64> before = keys();
    recall(25);
    QCOMPARE(keys(), before);
    window->receiveMessage({0x90, 25, 100}); // by its black key
    window->receiveMessage({0x80, 25, 0});
    QCOMPARE(active(), 25);
    QCOMPARE(keys(), before);
}

void TestIndexBarsPainting::recallOfAnEqualPresetPaintsNoBar()
{
    for (const int key : {25, 27})
        setRecord(key, scaleRecord(wholeTone));
    for (const int key : {25, 27}) {
        record(key).tonicOn = true;
        record(key).tonicData = QStringLiteral("D");
    }
    recall(25);
    QCOMPARE(tonic().tonicModifierIndex(), 2);
    QCOMPARE(scale().scaleModifier(), wholeTone);
    const QList<qint64> before = keys();
    recall(27);
    QCOMPARE(active(), 27);
    QCOMPARE(keys(), before);
}

void TestIndexBarsPainting::remapWithoutAChangePaintsNothing()
{
    for (int i = 0; i < 3; ++i)
        QCOMPARE(painted([this] { power()->remap(); }), (QList<int>{0, 0}));
}

void TestIndexBarsPainting::slideByAKeyPaintsTheInBarOnce()
{
    for (const int x : {17, 34, 17, 0, -17})
        QCOMPARE(painted([this, x] { putGroup(x); }), (QList<int>{1, 1}));
}

void TestIndexBarsPainting::slideByAKeyLeavesTheOutBar()
{
    const qint64 before = outPicture().cacheKey();
    for (const int x : {17, 34, -340})
        putGroup(x);
    QCOMPARE(outPicture().cacheKey(), before);
}

void TestIndexBarsPainting::changeOfTonicPaintsEachBarOnce()
{
    tonic().setActiveKey(tonic().findKey(3));
    QCOMPARE(painted([this] { power()->remap(); }), (QList<int>{2, 2}));
}

void TestIndexBarsPainting::changeOfScalePaintsEachBarOnce()
{
    for (const QString& next : {wholeTone, octaves, lydian}) {
        QCOMPARE(painted([this, &next] { setScale(next); }), (QList<int>{2, 2}));
    }
}

void TestIndexBarsPainting::switchingOffPaintsEachBarOnce()
{
    power()->setSwithOn(false);
    QCOMPARE(painted([this] { power()->remap(); }), (QList<int>{2, 2}));
    QCOMPARE(painted([this] { power()->remap(); }), (QList<int>{0, 0}));
}

void TestIndexBarsPainting::dragWithinAKeyPaintsNoBar()
{
    const QPointF grip = gripOf(0);
    hand->press(grip);
    hand->move(grip + QPointF(30, 0));
    const QList<qint64> before = keys();
    for (const int dx : {26, 34, 28, 42})
        hand->move(grip + QPointF(dx, 0));
    QCOMPARE(anchors()->x(), 34.0);
    QCOMPARE(keys(), before);
    hand->release();
    QCOMPARE(keys(), before);
}

QTEST_MAIN(TestIndexBarsPainting)
#include "test_index_bars_painting.moc"
