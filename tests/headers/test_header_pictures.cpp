// How a header looks: layout, picture, text and the overlay of the menu.

#include "HeaderFixture.h"
#include "LooseHeader.h"
#include "RepaintWatch.h"
#include "header_pictures.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QtTest>

namespace {

QImage blankImage()
{
    QImage image(RepaintWatch::canvas, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    return image;
}

QImage painted(HeaderItem& header)
{
    QImage image = blankImage();
    QPainter painter(&image);
    const QStyleOptionGraphicsItem option;
    header.paint(&painter, &option, nullptr);
    return image;
}

/// The picture with a text in the middle of a rectangle, drawn without the item.
QImage drawn(const QPixmap& picture, const QString& text, const QRect& place, QRgb colour)
{
    QImage image = blankImage();
    QPainter painter(&image);
    painter.drawPixmap(0, 0, picture);
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(8);
    painter.setFont(font);
    painter.setPen(QColor(colour));
    painter.drawText(place, Qt::AlignHCenter | Qt::AlignVCenter, text);
    return image;
}

} // namespace

class TestHeaderPictures : public HeaderFixture
{
    Q_OBJECT

private slots:
    // Layout, picture
    void layoutFollowsTheType_data();
    void layoutFollowsTheType();
    void pictureFollowsTypeAndStatus_data();
    void pictureFollowsTypeAndStatus();
    void sameStatusRepaintsNothing();

    // Paint
    void tonicIsPaintedInTheStatusColour_data();
    void tonicIsPaintedInTheStatusColour();
    void blankTonicPaintsThePictureAlone_data();
    void blankTonicPaintsThePictureAlone();
    void namesNeverShow();

    // Overlay
    void overlayLiesOnThePicture_data() { addTypes(); }
    void overlayLiesOnThePicture();
    void overlayOffTwiceRestoresTheSamePicture();
    void overlayOffAloneChangesNothing();
};

void TestHeaderPictures::layoutFollowsTheType_data()
{
    QTest::addColumn<QVector<int>>("edges"); // left, top, right, bottom of three rectangles, then the point
    QTest::newRow("0") << QVector<int>{2, 3, 31, 13, 2, 13, 31, 23, 19, 40, 32, 53, 25, 60};
    QTest::newRow("1") << QVector<int>{2, 3, 31, 13, 2, 13, 31, 23, 2, 40, 15, 53, 8, 60};
    QTest::newRow("2") << QVector<int>{2, 3, 33, 13, 2, 13, 33, 23, 29, 67, 42, 80, 35, 87};
    QTest::newRow("3") << QVector<int>{2, 3, 33, 13, 2, 13, 33, 23, 11, 67, 24, 80, 17, 87};
    QTest::newRow("4") << QVector<int>{11, 3, 41, 13, 11, 13, 41, 23, 2, 67, 15, 80, 8, 87};
}

void TestHeaderPictures::layoutFollowsTheType()
{
    QFETCH(QVector<int>, edges);
    LooseHeader item({}, static_cast<header_type>(QByteArray(QTest::currentDataTag()).toInt()));
    for (const header_status status : {header_active_shadow, header_switch, header_active}) {
        item.nameRect1 = item.nameRect2 = item.tonicRect = {}; // a change of status writes the row anew
        item.powerPoint = {};
        item.setStatus(status);
        QVector<int> found;
        for (const QRect& r : {item.nameRect1, item.nameRect2, item.tonicRect}) {
            QCOMPARE(r.width(), 1 + r.right() - r.left());
            found << r.left() << r.top() << r.right() << r.bottom();
        }
        found << qRound(item.powerPoint.x()) << qRound(item.powerPoint.y());
        QCOMPARE(found, edges);
    }
}

void TestHeaderPictures::pictureFollowsTypeAndStatus_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("suffix");
    QTest::newRow("deactive") << 0 << QByteArray("deactive");
    QTest::newRow("active") << 1 << QByteArray("active");
    QTest::newRow("active shadow") << 2 << QByteArray("ActiveDropShadow");
    QTest::newRow("switch") << 3 << QByteArray("Switch");
    QTest::newRow("switch active") << 4 << QByteArray("Switch");
}

void TestHeaderPictures::pictureFollowsTypeAndStatus()
{
    QFETCH(int, status);
    QFETCH(QByteArray, suffix);
    for (int type = 0; type < 5; ++type) {
        LooseHeader item({}, static_cast<header_type>(type));
        item.setStatus(status == header_active ? header_deactive : header_active); // away first, then there
        item.setStatus(static_cast<header_status>(status));
        QCOMPARE(item.status(), static_cast<header_status>(status));
        QVERIFY(isSame(item.pixmap(), picture(type, suffix.constData())));
    }
}

void TestHeaderPictures::sameStatusRepaintsNothing()
{
    LooseHeader item({});
    RepaintWatch watch(item);
    item.setStatus(header_deactive);
    QVERIFY(watch.take().isEmpty());
    item.setStatus(header_switch);
    QVERIFY(watch.take().contains(item.boundingRect().toRect()));
    item.setStatus(header_switch);
    QVERIFY(watch.take().isEmpty());
}

void TestHeaderPictures::tonicIsPaintedInTheStatusColour_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<uint>("colour");
    QTest::newRow("deactive") << 0 << 0xFF00C9FFu;
    QTest::newRow("active") << 1 << 0xFFFFFF00u;
    QTest::newRow("active shadow") << 2 << 0xFFFFFF00u;
    QTest::newRow("switch") << 3 << 0xFF00C9FFu;
    QTest::newRow("switch active") << 4 << 0xFFFFFF00u;
}

void TestHeaderPictures::tonicIsPaintedInTheStatusColour()
{
    QFETCH(int, status);
    QFETCH(uint, colour);
    for (int type = 0; type < 5; ++type) {
        for (const char* tonic : {"C", "G#", "M"}) {
            LooseHeader item(scaleRecord(ionian), static_cast<header_type>(type));
            item.setStatus(static_cast<header_status>(status));
            item.setNameTonic(QLatin1String(tonic));
            const QImage image = painted(item);
            QCOMPARE(image, drawn(item.pixmap(), QLatin1String(tonic), item.tonicRect, colour));
            QVERIFY(image != drawn(item.pixmap(), {}, item.tonicRect, colour));
        }
    }
}

void TestHeaderPictures::blankTonicPaintsThePictureAlone_data()
{
    QTest::addColumn<QString>("tonic");
    QTest::addColumn<bool>("tonicOn");
    QTest::addColumn<bool>("blank");
    QTest::newRow("empty, on") << QString() << true << true;
    QTest::newRow("empty, off") << QString() << false << true;
    QTest::newRow("named, off") << QStringLiteral("F#") << false << true;
    QTest::newRow("named, on") << QStringLiteral("F#") << true << false;
}

void TestHeaderPictures::blankTonicPaintsThePictureAlone()
{
    QFETCH(QString, tonic);
    QFETCH(bool, tonicOn);
    QFETCH(bool, blank);
    LooseHeader item(scaleRecord(ionian));
    item.record.tonicOn = tonicOn;
    item.record.nameTonic = tonic; // the stored note stays "F#": it is the name that shows
    QCOMPARE(painted(item) == drawn(item.pixmap(), {}, item.tonicRect, 0), blank);
}

void TestHeaderPictures::namesNeverShow()
{
    LooseHeader item(scaleRecord(ionian));
    const QImage before = painted(item);
    for (const char* name : {"", "MMMMM"}) {
        item.setNameScenic1(QLatin1String(name));
        item.setNameScenic2(QLatin1String(name));
        QCOMPARE(painted(item), before);
    }
}

void TestHeaderPictures::overlayLiesOnThePicture()
{
    QFETCH(int, type);
    LooseHeader item({}, static_cast<header_type>(type));
    for (const header_status status : {header_deactive, header_active}) {
        item.setStatus(status);
        const QPixmap before = item.pixmap();
        QImage expected = before.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QPainter(&expected).drawPixmap(0, 0, picture(type, "SwitchContextMenu"));
        item.overlayContextMenu(true);
        QVERIFY(isSame(item.savedPixmap, before));
        QCOMPARE(item.pixmap().toImage().convertToFormat(expected.format()), expected);
        QVERIFY(expected != before.toImage().convertToFormat(expected.format()));
        item.overlayContextMenu(false);
        QVERIFY(isSame(item.pixmap(), before));
    }
}

void TestHeaderPictures::overlayOffTwiceRestoresTheSamePicture()
{
    LooseHeader item({});
    const QPixmap before = item.pixmap();
    item.overlayContextMenu(true);
    item.overlayContextMenu(false);
    QVERIFY(isSame(item.savedPixmap, before)); // kept
    item.setStatus(header_switch);
    item.overlayContextMenu(false);
    QVERIFY(isSame(item.pixmap(), before));
}

void TestHeaderPictures::overlayOffAloneChangesNothing()
{
    LooseHeader item({});
    const QPixmap before = item.pixmap();
    item.overlayContextMenu(false);
    QVERIFY(isSame(item.pixmap(), before));
    QVERIFY(item.savedPixmap.isNull());
}

QTEST_MAIN(TestHeaderPictures)
#include "test_header_pictures.moc"
