// What keys are painted with: cells of the sheets, the shine laid over them, crops of any density.

#include "HeaderFixture.h"
#include "keys/key_pictures.h"
#include "keys/pictures.h"
#include "plain_image.h"

class TestKeyPictures : public HeaderFixture
{
    Q_OBJECT

private slots:
    void everyShapeHasItsCells();
    void highestWhiteKeyHasItsOwnPlainShape();
    void idleKeysCarryTheShineOfTheirSide();
    void addShineDrawsTheLightAtTheOrigin();
    void overlayDrawsTheGivenPart();
    void cropsAreSharedAndRightAtTwiceTheDensity();
};

void TestKeyPictures::everyShapeHasItsCells()
{
    struct Row
    {
        const char* name;
        int idle, pressed, width, height;
    };
    const Row rows[] = {{"B3", 121, 138, 17, 99}, {"E4", 121, 138, 17, 99}, {"C4", 87, 104, 17, 99},
                        {"F2", 87, 104, 17, 99},  {"D1", 53, 70, 17, 99},   {"G5", 53, 70, 17, 99},
                        {"A4", 53, 70, 17, 99},   {"C8", 19, 36, 17, 99},   {"A0", 87, 104, 17, 99},
                        {"#", 0, 10, 10, 64}};
    for (const Row& row : rows) {
        const KeyShape shape = key_pictures::shapeOf(QLatin1String(row.name));
        QCOMPARE(key_pictures::cellOf(shape, KeyCell::idle), QRect(row.idle, 0, row.width, row.height));
        QCOMPARE(key_pictures::cellOf(shape, KeyCell::pressed), QRect(row.pressed, 0, row.width, row.height));
    }
    for (const char* name : {"", "power", "header", "##"})
        QCOMPARE(key_pictures::shapeOf(QLatin1String(name)), KeyShape::none);
}

void TestKeyPictures::highestWhiteKeyHasItsOwnPlainShape()
{
    QCOMPARE(key_roles::name(window->findInNote(108)), QStringLiteral("C8"));
    QCOMPARE(key_pictures::shapeOf(QStringLiteral("C8")), KeyShape::full);
    for (const char* other : {"C1", "C7"})
        QCOMPARE(key_pictures::shapeOf(QLatin1String(other)), KeyShape::cAndF);
}

void TestKeyPictures::idleKeysCarryTheShineOfTheirSide()
{
    const QPixmap sheet = pictures::load(QStringLiteral(":/Resources/Keyboard/keyboardB.png"));
    QVERIFY(!sheet.isNull());
    const QPixmap bare = pictures::crop(sheet, QRect(87, 0, 17, 99)); // a C
    const ResizableItem* in = window->findInNote(60);
    QCOMPARE(imageOf(in->pixmap()), imageOf(window->addBlueShine(bare)));
    QCOMPARE(imageOf(static_cast<ResizableItem*>(in->pairedOutKey)->pixmap()),
             imageOf(window->addYellowShine(bare)));
    QVERIFY(imageOf(in->pixmap()) != imageOf(bare));
}

void TestKeyPictures::addShineDrawsTheLightAtTheOrigin()
{
    QPixmap base(60, 60);
    base.fill(Qt::black);
    const QImage lit = imageOf(window->addYellowShine(base));
    QVERIFY(lit.pixelColor(0, 0) != QColor(Qt::black));
    QCOMPARE(lit.pixelColor(40, 0), QColor(Qt::black));
    QCOMPARE(lit.pixelColor(0, 50), QColor(Qt::black));
}

void TestKeyPictures::overlayDrawsTheGivenPart()
{
    QPixmap base(20, 20), top(20, 20);
    base.fill(Qt::white);
    top.fill(Qt::red);
    QPixmap copy = base;
    const QImage result = imageOf(window->overlayTwoPixmaps(copy, top, QRect(10, 10, 4, 6)));
    QCOMPARE(result.pixelColor(3, 5), QColor(Qt::red));
    QCOMPARE(result.pixelColor(4, 5), QColor(Qt::white));
    QCOMPARE(result.pixelColor(3, 6), QColor(Qt::white));
    QCOMPARE(imageOf(copy).pixelColor(0, 0), QColor(Qt::white)); // the base itself stays
}

void TestKeyPictures::cropsAreSharedAndRightAtTwiceTheDensity()
{
    QCOMPARE(window->findInNote(60)->pixmap().cacheKey(), window->findInNote(72)->pixmap().cacheKey());
    QPixmap dense(40, 20);
    dense.setDevicePixelRatio(2.0);
    const QPixmap part = pictures::crop(dense, QRect(5, 2, 10, 6));
    QCOMPARE(part.size(), QSize(20, 12));
    QCOMPARE(part.devicePixelRatio(), 2.0);
}

QTEST_MAIN(TestKeyPictures)
#include "test_key_pictures.moc"
