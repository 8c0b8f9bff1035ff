// The drawings of the application's icon: plain, self-contained, and of the palette.

#include "palette_colors.h"
#include "picture_distance.h"
#include "tools/pictures/icons.h"

#include <QFile>
#include <QSet>
#include <QXmlStreamReader>
#include <QtTest>

#include <algorithm>

namespace {

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

void eachDrawing()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("small") << iconSource(16);
    QTest::newRow("large") << iconSource(512);
}

} // namespace

class TestIconDrawings : public QObject
{
    Q_OBJECT

private slots:
    void drawingIsPlain_data() { eachDrawing(); }
    void drawingIsPlain();
    void drawingRefersToItselfOnly_data() { eachDrawing(); }
    void drawingRefersToItselfOnly();
    void drawingKeepsToThePalette_data() { eachDrawing(); }
    void drawingKeepsToThePalette();
    void smallSizesHaveTheirOwnDrawing();
};

void TestIconDrawings::drawingIsPlain()
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

void TestIconDrawings::drawingRefersToItselfOnly()
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

void TestIconDrawings::drawingKeepsToThePalette()
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

void TestIconDrawings::smallSizesHaveTheirOwnDrawing()
{
    QStringList small;
    for (const int size : iconSizes)
        if (iconSource(size).endsWith(QStringLiteral("/sorvane-small.svg")))
            small.append(QString::number(size));
    QCOMPARE(small, QStringList({"16", "22", "24"}));
    QVERIFY(picture_distance::between(paintIcon(24), paintIcon(32).scaled(24, 24)).worst > 100);
}

QTEST_MAIN(TestIconDrawings)
#include "test_icon_drawings.moc"
