// Pictures as the tests of the headers ask for them.

#include "header_pictures.h"

#include "keys/pictures.h"

#include <QGraphicsPixmapItem>
#include <QtTest>

void addTypes()
{
    QTest::addColumn<int>("type");
    for (const int type : {0, 1, 2, 3, 4})
        QTest::addRow("type %d", type) << type;
}

QPixmap picture(int type, const char* suffix)
{
    return pictures::load(
        QStringLiteral(":/Resources/Headers/Header%1sharp_%2.png").arg(type + 1).arg(QLatin1String(suffix)));
}

bool isSame(const QPixmap& a, const QPixmap& b)
{
    return !a.isNull() && a.cacheKey() == b.cacheKey();
}

bool shows(const QGraphicsPixmapItem* item, const QString& path)
{
    return item->pixmap().toImage() == pictures::load(path).toImage();
}
