// The committed pictures against the painter that draws them.

#include "committed.h"
#include "picture_distance.h"
#include "tools/pictures/gif_writer.h"
#include "tools/pictures/picture_table.h"

#include <QFile>
#include <QFileInfo>

using picture_distance::between;

class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void committedPictureIsThePaintersOwn_data();
    void committedPictureIsThePaintersOwn();
    void otherColourIsTold();
    void faintRoundingIsNotTold();
    void everyResourceIsPaintedOrText();
    void picturesStaySmall();
};

void TestPictures::committedPictureIsThePaintersOwn_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("scale");
    for (int i = 0; i < static_cast<int>(allPictures().size()); ++i)
        for (const int scale : {1, 2})
            QTest::addRow("%s at %dx", qPrintable(allPictures()[static_cast<std::size_t>(i)].path), scale)
                << i << scale;
}

void TestPictures::committedPictureIsThePaintersOwn()
{
    QFETCH(int, index);
    QFETCH(int, scale);
    const Picture& picture = allPictures()[static_cast<std::size_t>(index)];
    const QImage file = committed(scale == 1 ? picture.path : denseName(picture.path));
    QImage fresh = paintPicture(picture, scale);
    if (picture.path.endsWith(QStringLiteral(".gif"))) // one bit of transparency
        fresh = QImage::fromData(gifData(fresh)).convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(file.size(), picture.size * scale);
    const picture_distance::Distance apart = between(file, fresh);
    QVERIFY2(picture_distance::looksTheSame(apart),
             qPrintable(QStringLiteral("%1 at worst, %2 in the mean").arg(apart.worst).arg(apart.mean)));
}

// A colour of the palette that was changed without painting anew.
void TestPictures::otherColourIsTold()
{
    const QImage sheet = committed(QStringLiteral("Keyboard/keyboardB.png"));
    QImage other = sheet;
    for (int y = 0; y < other.height(); ++y)
        for (int x = 0; x < other.width(); ++x)
            if (const QRgb pixel = other.pixel(x, y); qAlpha(pixel) == 255 && qRed(pixel) > 200)
                other.setPixel(x, y, qRgb(qRed(pixel) - 3, qGreen(pixel) - 3, qBlue(pixel) - 3));
    QVERIFY(picture_distance::looksTheSame(between(sheet, sheet)));
    QVERIFY(!picture_distance::looksTheSame(between(sheet, other)));
}

void TestPictures::faintRoundingIsNotTold()
{
    QImage one(8, 8, QImage::Format_ARGB32);
    one.fill(Qt::black);
    QImage other = one;
    for (int x = 0; x < one.width(); ++x) { // twice the same to the eye
        one.setPixel(x, 0, qRgba(255, 128, 0, 2));
        other.setPixel(x, 0, qRgba(128, 255, 0, 2));
    }
    QVERIFY(picture_distance::looksTheSame(between(one, other)));
}

void TestPictures::everyResourceIsPaintedOrText()
{
    QFile list(QStringLiteral(SORVANE_RESOURCES "/Resources.qrc"));
    QVERIFY(list.open(QIODevice::ReadOnly));
    QStringList listed;
    const QStringList lines = QString::fromUtf8(list.readAll()).split(QLatin1Char('\n'));
    for (const QString& line : lines)
        if (line.contains(QStringLiteral("<file>")))
            listed.append(line.section(QStringLiteral("<file>"), 1).section(QStringLiteral("</file>"), 0, 0));
    for (const Picture& picture : allPictures()) {
        QVERIFY2(listed.removeOne(picture.path), qPrintable(picture.path));
        QVERIFY2(listed.removeOne(denseName(picture.path)), qPrintable(picture.path));
    }
    for (const int size : iconSizes)
        QVERIFY2(listed.removeOne(iconPath(size)), qPrintable(iconPath(size)));
    for (const QString& rest : qAsConst(listed))
        QVERIFY2(rest.endsWith(QStringLiteral(".qss")) || rest.endsWith(QStringLiteral(".html")) ||
                     rest.endsWith(QStringLiteral(".txt")),
                 qPrintable(rest));
}

void TestPictures::picturesStaySmall()
{
    qint64 bytes = 0;
    for (const Picture& picture : allPictures())
        for (const QString& path : {picture.path, denseName(picture.path)})
            bytes += QFileInfo(QStringLiteral(SORVANE_RESOURCES "/") + path).size();
    QVERIFY(bytes > 0);
    QVERIFY2(bytes < 1500000, qPrintable(QString::number(bytes)));
}

QTEST_MAIN(TestPictures)
#include "test_pictures.moc"
