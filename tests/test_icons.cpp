// The application's icon: its drawings, the pictures rendered from them, and the windows that carry it.

#include "app/MainWnd.h"
#include "app/window_icon.h"
#include "tests/picture_distance.h"
#include "tools/pictures/icons.h"
#include "tools/pictures/palette.h"

#include <QFile>
#include <QIcon>
#include <QRegularExpression>
#include <QWindow>
#include <QXmlStreamReader>
#include <QtTest>

#include <cmath>

using picture_distance::between;
using picture_distance::onGround;

namespace {

constexpr int tolerance = 6; // of 255: another version of the renderer may smooth an edge otherwise

const QList<QColor>& paletteColors()
{
    using namespace palette;
    static const QList<QColor> colors{metal,     metalLight, metalDark, metalEdge,    well,
                                      wellLight, engraving,  ivory,     ivoryShade,   ivoryLip,
                                      gap,       graphite,   blue,      blueLight,    blueDark,
                                      amber,     amberLight, amberDark, graphiteLight};
    return colors;
}

QImage committed(int size)
{
    return QImage(QStringLiteral(":/Resources/") + iconPath(size)).convertToFormat(QImage::Format_ARGB32);
}

int difference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

double linear(int channel)
{
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminance(QRgb pixel)
{
    return 0.2126 * linear(qRed(pixel)) + 0.7152 * linear(qGreen(pixel)) + 0.0722 * linear(qBlue(pixel));
}

double contrast(QRgb a, QRgb b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// The strongest contrast with the ground that is met in a line's first tenth, from a side to the middle.
double edgeContrast(const QImage& image, const QColor& ground, const QPoint& start, const QPoint& step)
{
    double best = 1;
    for (int i = 0; i < std::max(2, image.width() / 10); ++i)
        best = std::max(best, contrast(image.pixel(start + i * step), ground.rgb()));
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

struct Attribute
{
    QString element, name, value;
};

struct Drawing
{
    QString error, title;
    QStringList others; ///< what is neither element nor text nor remark
    QList<Attribute> attributes;
    QSet<QString> elements;
};

QString addToken(QXmlStreamReader& xml, Drawing& drawing)
{
    const QString element = xml.name().toString();
    if (xml.isStartElement()) {
        drawing.elements.insert(xml.prefix().toString() + element);
        for (const QXmlStreamAttribute& attribute : xml.attributes())
            drawing.attributes.append(
                {element, attribute.qualifiedName().toString(), attribute.value().toString()});
    } else if (xml.isDTD() || xml.isEntityReference() || xml.isProcessingInstruction()) {
        drawing.others.append(xml.tokenString());
    }
    return element;
}

Drawing readDrawing(const QString& path)
{
    Drawing drawing;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Drawing{file.errorString(), {}, {}, {}, {}};
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
        if (addToken(xml, drawing) == QStringLiteral("title") && xml.isStartElement())
            drawing.title = xml.readElementText();
    }
    drawing.error = xml.errorString();
    return drawing;
}

void eachSize()
{
    QTest::addColumn<int>("size");
    for (const int size : iconSizes)
        QTest::addRow("%d", size) << size;
}

void eachDrawing()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("small") << iconSource(16);
    QTest::newRow("large") << iconSource(512);
}

} // namespace

class TestIcons : public QObject
{
    Q_OBJECT

private slots:
    // The drawings
    void drawingIsPlain_data() { eachDrawing(); }
    void drawingIsPlain();
    void drawingRefersToItselfOnly_data() { eachDrawing(); }
    void drawingRefersToItselfOnly();
    void drawingKeepsToThePalette_data() { eachDrawing(); }
    void drawingKeepsToThePalette();
    void smallSizesHaveTheirOwnDrawing();

    // The pictures
    void everySizeIsAResource_data() { eachSize(); }
    void everySizeIsAResource();
    void committedIconIsRenderedFromItsDrawing_data() { eachSize(); }
    void committedIconIsRenderedFromItsDrawing();
    void cornersAreTransparent_data() { eachSize(); }
    void cornersAreTransparent();
    void outlineStandsOutOnBlackAndWhite_data() { eachSize(); }
    void outlineStandsOutOnBlackAndWhite();
    void amberStandsAboveBlueAndBothDifferInGrey_data() { eachSize(); }
    void amberStandsAboveBlueAndBothDifferInGrey();
    void smallestIconIsDrawnOnItsPixels();

    // The windows
    void windowCarriesEverySize();
    void iconShowsThePictureOfTheSize_data() { eachSize(); }
    void iconShowsThePictureOfTheSize();
    void otherWindowsSendNoPictures();
    void desktopKnowsTheProgramByName();
};

void TestIcons::drawingIsPlain()
{
    QFETCH(QString, path);
    const QSet<QString> plain{"svg",  "title", "defs", "linearGradient", "radialGradient",
                              "stop", "g",     "rect", "path",           "ellipse"};
    const Drawing drawing = readDrawing(path);
    QCOMPARE(drawing.error, QString());
    QVERIFY(drawing.title.startsWith(QStringLiteral("Sorvane")));
    QCOMPARE(drawing.others, QStringList());
    QCOMPARE(drawing.elements - plain, QSet<QString>());
    const bool scalable = std::any_of(drawing.attributes.cbegin(), drawing.attributes.cend(),
                                      [](const Attribute& a) { return a.name == QStringLiteral("viewBox"); });
    QVERIFY(scalable);
}

void TestIcons::drawingRefersToItselfOnly()
{
    QFETCH(QString, path);
    const Drawing drawing = readDrawing(path);
    QVERIFY(!drawing.attributes.isEmpty());
    QSet<QString> own;
    for (const Attribute& attribute : drawing.attributes)
        if (attribute.name == QStringLiteral("id"))
            own.insert(QStringLiteral("url(#%1)").arg(attribute.value));
    for (const Attribute& attribute : drawing.attributes) {
        QVERIFY2(!attribute.name.contains(QStringLiteral("href")), qPrintable(attribute.value));
        QVERIFY2(!attribute.name.startsWith(QStringLiteral("on")), qPrintable(attribute.name));
        QVERIFY2(attribute.name != QStringLiteral("style"), qPrintable(attribute.value));
        if (attribute.value.contains(QStringLiteral("url")))
            QVERIFY2(own.contains(attribute.value), qPrintable(attribute.value));
    }
}

void TestIcons::drawingKeepsToThePalette()
{
    QFETCH(QString, path);
    const QSet<QString> paints{"fill", "stroke", "color", "stop-color"};
    int colors = 0;
    const Drawing drawing = readDrawing(path);
    for (const Attribute& attribute : drawing.attributes) {
        if (!paints.contains(attribute.name) || attribute.value.startsWith(QStringLiteral("url(")))
            continue;
        ++colors;
        const QColor color(attribute.value);
        QVERIFY2(color.isValid() && paletteColors().contains(color), qPrintable(attribute.value));
    }
    QVERIFY(colors > 4);
}

void TestIcons::smallSizesHaveTheirOwnDrawing()
{
    QStringList small;
    for (const int size : iconSizes)
        if (iconSource(size).endsWith(QStringLiteral("/sorvane-small.svg")))
            small.append(QString::number(size));
    QCOMPARE(small, QStringList({"16", "22", "24"}));
    QVERIFY(between(paintIcon(24), paintIcon(32).scaled(24, 24)).worst > 100);
}

void TestIcons::everySizeIsAResource()
{
    QFETCH(int, size);
    QCOMPARE(committed(size).size(), QSize(size, size));
}

void TestIcons::committedIconIsRenderedFromItsDrawing()
{
    QFETCH(int, size);
    const QImage file = committed(size), fresh = paintIcon(size);
    QCOMPARE(file.size(), fresh.size());
    QVERIFY(between(file, fresh).worst <= tolerance);
}

void TestIcons::cornersAreTransparent()
{
    QFETCH(int, size);
    const QImage icon = committed(size);
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
        const QImage image = onGround(committed(size), ground);
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
    const QImage icon = committed(size);
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
    const QImage icon = committed(16);
    int pure = 0;
    for (int y = 0; y < icon.height(); ++y)
        for (int x = 0; x < icon.width(); ++x)
            pure += paletteColors().contains(QColor::fromRgba(icon.pixel(x, y))) ? 1 : 0;
    QVERIFY2(pure >= 216, qPrintable(QString::number(pure)));
}

void TestIcons::windowCarriesEverySize()
{
    mainWnd = new MainWnd;
    const QScopedPointer<MainWnd> window(mainWnd);
    window->show();
    QVERIFY(window->windowHandle()->icon().isNull());
    giveIcon(*window->windowHandle());
    QList<QSize> sizes;
    for (const int size : iconSizes)
        sizes.append({size, size});
    QCOMPARE(window->windowHandle()->icon().availableSizes(), sizes);
}

void TestIcons::iconShowsThePictureOfTheSize()
{
    QFETCH(int, size);
    QWindow window;
    giveIcon(window);
    const QImage shown = window.icon().pixmap(QSize(size, size)).toImage();
    QCOMPARE(shown.convertToFormat(QImage::Format_ARGB32), committed(size));
}

void TestIcons::otherWindowsSendNoPictures()
{
    QWindow window, toolTip;
    giveIcon(window);
    QVERIFY(!window.icon().isNull());
    QVERIFY(toolTip.icon().isNull());
    QVERIFY(QGuiApplication::windowIcon().isNull());
}

void TestIcons::desktopKnowsTheProgramByName()
{
    QGuiApplication::setDesktopFileName({});
    nameDesktopEntry();
    QCOMPARE(QGuiApplication::desktopFileName(), QStringLiteral("sorvane"));
}

QTEST_MAIN(TestIcons)
#include "test_icons.moc"
