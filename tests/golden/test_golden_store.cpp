// Golden pictures come out of their files as they went in, whole or as a part of another one.

#include "GoldenStore.h"

#include <QDir>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

class TestGoldenStore : public QObject
{
    Q_OBJECT

private slots:
    void wholePictureComesBack_data();
    void wholePictureComesBack();
    void partComesBackWhole_data();
    void partComesBackWhole();
    void partIsKeptAlone();
    void partNeedsItsBase();
    void missingPictureIsNull();
    void ratiosHaveFilesOfTheirOwn();
    void strangersAreFound();
    void evidenceIsKeptAndCleared();

private:
    GoldenStore store(int ratio = 1) const { return {folder.path(), evidence.path(), ratio}; }
    static QImage ground();
    static QImage marked(const QRect& place);

    QTemporaryDir folder, evidence;
};

QImage TestGoldenStore::ground()
{
    QImage image(60, 40, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x, y, 2 * x + y));
    return image;
}

QImage TestGoldenStore::marked(const QRect& place)
{
    QImage image = ground();
    QPainter(&image).fillRect(place, Qt::white);
    return image;
}

void TestGoldenStore::wholePictureComesBack_data()
{
    QTest::addColumn<int>("ratio");
    QTest::newRow("1") << 1;
    QTest::newRow("2") << 2;
}

void TestGoldenStore::wholePictureComesBack()
{
    QFETCH(int, ratio);
    QImage dense = ground();
    dense.setDevicePixelRatio(ratio);
    QVERIFY(store(ratio).renew(QStringLiteral("whole"), QString(), dense));
    const QImage back = store(ratio).golden(QStringLiteral("whole"), QString());
    QCOMPARE(back, ground());
    QCOMPARE(back.devicePixelRatio(), 1.0);
}

void TestGoldenStore::partComesBackWhole_data()
{
    QTest::addColumn<QRect>("place");
    QTest::newRow("inside") << QRect(20, 10, 7, 5);
    QTest::newRow("first corner") << QRect(0, 0, 3, 3);
    QTest::newRow("last corner") << QRect(59, 39, 1, 1);
    QTest::newRow("all") << QRect(0, 0, 60, 40);
    QTest::newRow("nothing") << QRect();
}

void TestGoldenStore::partComesBackWhole()
{
    QFETCH(QRect, place);
    for (const int ratio : {1, 2}) {
        QVERIFY(store(ratio).renew(QStringLiteral("base"), QString(), ground()));
        QVERIFY(store(ratio).renew(QStringLiteral("part"), QStringLiteral("base"), marked(place)));
        QCOMPARE(store(ratio).golden(QStringLiteral("part"), QStringLiteral("base")), marked(place));
    }
}

void TestGoldenStore::partIsKeptAlone()
{
    QVERIFY(store().renew(QStringLiteral("base"), QString(), ground()));
    QVERIFY(store().renew(QStringLiteral("part"), QStringLiteral("base"), marked({20, 10, 7, 5})));
    QCOMPARE(QImage(folder.filePath(QStringLiteral("part.png"))).size(), QSize(7, 5));
}

void TestGoldenStore::partNeedsItsBase()
{
    QVERIFY(!store().renew(QStringLiteral("orphan"), QStringLiteral("nobody"), ground()));
    QVERIFY(store().renew(QStringLiteral("base"), QString(), ground().copy(0, 0, 60, 39)));
    QVERIFY(!store().renew(QStringLiteral("part"), QStringLiteral("base"), ground()));
    QVERIFY(store().renew(QStringLiteral("alone"), QString(), ground()));
    QVERIFY(store().golden(QStringLiteral("alone"), QStringLiteral("nobody")).isNull());
}

void TestGoldenStore::missingPictureIsNull()
{
    QVERIFY(store().golden(QStringLiteral("nobody"), QString()).isNull());
    QFile broken(folder.filePath(QStringLiteral("broken.png")));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("no picture");
    broken.close();
    QVERIFY(store().golden(QStringLiteral("broken"), QString()).isNull());
    QVERIFY(broken.remove());
}

void TestGoldenStore::ratiosHaveFilesOfTheirOwn()
{
    QVERIFY(store(1).renew(QStringLiteral("same"), QString(), ground()));
    QVERIFY(store(2).golden(QStringLiteral("same"), QString()).isNull());
    QVERIFY(store(2).renew(QStringLiteral("same"), QString(), marked({1, 1, 2, 2})));
    QCOMPARE(store(1).golden(QStringLiteral("same"), QString()), ground());
    QVERIFY(QFile::exists(folder.filePath(QStringLiteral("same@2x.png"))));
}

void TestGoldenStore::strangersAreFound()
{
    const QStringList files = QDir(folder.path()).entryList(QDir::Files);
    for (const QString& file : files)
        QVERIFY(QFile::remove(folder.filePath(file)));
    for (const char* name : {"one", "two", "three"})
        for (const int ratio : {1, 2})
            QVERIFY(store(ratio).renew(QLatin1String(name), QString(), ground()));
    const QStringList known{QStringLiteral("one"), QStringLiteral("three"), QStringLiteral("four")};
    QCOMPARE(store(1).strangers(known), QStringList(QStringLiteral("two.png")));
    QCOMPARE(store(2).strangers(known), QStringList(QStringLiteral("two@2x.png")));
    QVERIFY(store(2).remove(QStringLiteral("two@2x.png")));
    QCOMPARE(store(2).strangers(known), QStringList());
    QCOMPARE(store(1).strangers(known), QStringList(QStringLiteral("two.png")));
}

void TestGoldenStore::evidenceIsKeptAndCleared()
{
    const QString path = store(2).keepEvidence(QStringLiteral("scene"), marked({5, 5, 4, 4}), ground());
    QCOMPARE(path, evidence.filePath(QStringLiteral("scene@2x")));
    QCOMPARE(QImage(path + QStringLiteral(".seen.png")).pixel(6, 6), qRgb(255, 255, 255));
    QCOMPARE(QImage(path + QStringLiteral(".expected.png")).pixel(6, 6), ground().pixel(6, 6));
    QCOMPARE(QImage(path + QStringLiteral(".difference.png")).pixel(6, 6), qRgb(255, 0, 255));
    store(1).clearEvidence(QStringLiteral("scene"));
    QVERIFY(QFile::exists(path + QStringLiteral(".seen.png")));
    store(2).clearEvidence(QStringLiteral("scene"));
    QVERIFY(QDir(evidence.path()).isEmpty());
    // Where there was no golden picture, what was seen is kept all the same.
    static_cast<void>(store(1).keepEvidence(QStringLiteral("scene"), ground(), QImage()));
    QVERIFY(QFile::exists(evidence.filePath(QStringLiteral("scene.seen.png"))));
}

QTEST_APPLESS_MAIN(TestGoldenStore)

#include "test_golden_store.moc"
