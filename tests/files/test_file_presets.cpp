// The presets as JSON: what is written, what is read, and what a wrong type reads as.

#include "json_values.h"
#include "library/HeaderInfo.h"

#include <QtTest>

#include <type_traits>

namespace {

const QStringList headerKeys = {
    QStringLiteral("NameScenic1"), QStringLiteral("NameScenic2"), QStringLiteral("NameTonic"),
    QStringLiteral("TonicOn"),     QStringLiteral("TonicData"),   QStringLiteral("ScaleOn"),
    QStringLiteral("ScaleData"),   QStringLiteral("AnchorValid"), QStringLiteral("AnchorPos"),
    QStringLiteral("XPos"),        QStringLiteral("YPos")};

header_data fullHeader()
{
    header_data data(QStringLiteral("n1"), QStringLiteral("n2"), QStringLiteral("nt"), true,
                     QStringLiteral("td"), false, QStringLiteral("sd"));
    data.anchorValid = true;
    data.anchorPos = -51;
    return data;
}

QJsonObject fullHeaderObject()
{
    return {{QStringLiteral("NameScenic1"), QStringLiteral("n1")},
            {QStringLiteral("NameScenic2"), QStringLiteral("n2")},
            {QStringLiteral("NameTonic"), QStringLiteral("nt")},
            {QStringLiteral("TonicOn"), true},
            {QStringLiteral("TonicData"), QStringLiteral("td")},
            {QStringLiteral("ScaleOn"), false},
            {QStringLiteral("ScaleData"), QStringLiteral("sd")},
            {QStringLiteral("AnchorValid"), true},
            {QStringLiteral("AnchorPos"), -51}};
}

QStringList fields(const header_data& data)
{
    return {data.nameScenic1,
            data.nameScenic2,
            data.nameTonic,
            QString::number(data.tonicOn),
            data.tonicData,
            QString::number(data.scaleOn),
            data.scaleData,
            QString::number(data.anchorValid),
            QString::number(data.anchorPos)};
}

QJsonArray written(const HeaderInfo& info)
{
    QJsonArray array;
    info.write(array);
    return array;
}

QList<header_data> records(const HeaderInfo& info)
{
    QList<header_data> data;
    info.getData(data);
    return data;
}

QList<QPointF> positions(const HeaderInfo& info)
{
    QList<QPointF> places{{1, 1}};
    info.getPositions(places);
    return places;
}

} // namespace

class TestFilePresets : public QObject
{
    Q_OBJECT

private slots:
    void presetsAreJsonInfo();
    void headerKeysStandInTheirOrder();
    void headerIsWrittenWithItsTypes();
    void headerIsWrittenWithItsPosition();
    void headerWithoutAPositionHasNoneInItsObject();
    void positionsAreNotWrittenUnlessWanted();
    void headerIsReadFieldByField();
    void missingMembersReadAsNothing();
    void headerReadsWrongTypesAsNothing_data();
    void headerReadsWrongTypesAsNothing();
    void anchorPositionIsAWholeNumber_data();
    void anchorPositionIsAWholeNumber();
    void elementThatIsNoObjectIsAPresetWithoutAnything();
    void readPositionsStandBehindThePresentOnes();
    void positionsAreNotReadUnlessWanted();
    void readingAppendsToTheRecords();
    void headerDataIsCopiedInAndOut();
};

void TestFilePresets::presetsAreJsonInfo()
{
    QVERIFY((std::is_base_of_v<JsonInfo, HeaderInfo>));
    QVERIFY(std::has_virtual_destructor_v<JsonInfo>);
}

void TestFilePresets::headerKeysStandInTheirOrder()
{
    QCOMPARE(HeaderInfo(true).keys, headerKeys);
    QCOMPARE(HeaderInfo(false).keys, headerKeys);
}

void TestFilePresets::headerIsWrittenWithItsTypes()
{
    HeaderInfo info(true);
    info.setData({fullHeader()});
    QCOMPARE(written(info), (QJsonArray{fullHeaderObject()}));
}

void TestFilePresets::headerIsWrittenWithItsPosition()
{
    HeaderInfo info(true);
    info.setData({fullHeader()});
    info.setPositions({{16.5, -1}});
    QJsonObject expected = fullHeaderObject();
    expected.insert(QStringLiteral("XPos"), 16.5);
    expected.insert(QStringLiteral("YPos"), -1);
    QCOMPARE(written(info), (QJsonArray{expected}));
}

void TestFilePresets::headerWithoutAPositionHasNoneInItsObject()
{
    HeaderInfo info(true);
    info.setData({fullHeader(), fullHeader()});
    info.setPositions({{3, 4}});
    const QJsonArray array = written(info);
    QCOMPARE(array.size(), 2);
    QCOMPARE(array.at(0).toObject().value(QStringLiteral("XPos")), QJsonValue(3));
    QCOMPARE(array.at(0).toObject().value(QStringLiteral("YPos")), QJsonValue(4));
    QCOMPARE(array.at(1).toObject(), fullHeaderObject());
}

void TestFilePresets::positionsAreNotWrittenUnlessWanted()
{
    HeaderInfo info(false);
    info.setData({fullHeader()});
    info.setPositions({{3, 4}});
    QCOMPARE(written(info), (QJsonArray{fullHeaderObject()}));
}

void TestFilePresets::headerIsReadFieldByField()
{
    HeaderInfo info(true);
    info.read({fullHeaderObject()});
    QCOMPARE(records(info).size(), 1);
    QCOMPARE(fields(records(info).first()), fields(fullHeader()));
}

void TestFilePresets::missingMembersReadAsNothing()
{
    HeaderInfo info(true);
    info.read({QJsonObject()});
    QCOMPARE(records(info).size(), 1);
    QCOMPARE(fields(records(info).first()), fields(header_data()));
    QCOMPARE(positions(info), (QList<QPointF>{{0, 0}}));
}

void TestFilePresets::headerReadsWrongTypesAsNothing_data()
{
    QTest::addColumn<QString>("key");
    for (const QString& key : headerKeys)
        QTest::newRow(qPrintable(key)) << key;
}

void TestFilePresets::headerReadsWrongTypesAsNothing()
{
    QFETCH(QString, key);
    const bool isBool = key.endsWith(QLatin1String("On")) || key == QLatin1String("AnchorValid");
    const bool isNumber = key.endsWith(QLatin1String("Pos"));
    const auto type = isBool ? QJsonValue::Bool : isNumber ? QJsonValue::Double : QJsonValue::String;
    for (const QJsonValue& value : oneOfEachType()) {
        HeaderInfo info(true);
        info.read({QJsonObject{{key, value}}});
        const bool same = fields(records(info).first()) == fields(header_data()) &&
                          positions(info).first() == QPointF(0, 0);
        // Half a pixel is no place of the anchors.
        QCOMPARE(same, value.type() != type || key == QLatin1String("AnchorPos"));
    }
}

void TestFilePresets::anchorPositionIsAWholeNumber_data()
{
    QTest::addColumn<double>("written");
    QTest::addColumn<int>("read");
    QTest::newRow("whole") << 51.0 << 51;
    QTest::newRow("negative") << -51.0 << -51;
    QTest::newRow("broken") << 51.5 << 0;
    QTest::newRow("largest") << 2147483647.0 << 2147483647;
    QTest::newRow("larger") << 2147483648.0 << 0;
    QTest::newRow("huge") << 1e300 << 0;
}

void TestFilePresets::anchorPositionIsAWholeNumber()
{
    QFETCH(double, written);
    QFETCH(int, read);
    HeaderInfo info(true);
    info.read({QJsonObject{{"AnchorPos", written}}});
    QCOMPARE(records(info).first().anchorPos, read);
}

void TestFilePresets::elementThatIsNoObjectIsAPresetWithoutAnything()
{
    for (const QJsonValue& value : oneOfEachType()) {
        HeaderInfo info(true);
        info.read({value});
        QCOMPARE(records(info).size(), 1);
        QCOMPARE(fields(records(info).first()), fields(header_data()));
    }
}

void TestFilePresets::readPositionsStandBehindThePresentOnes()
{
    HeaderInfo info(true);
    info.setPositions({{1, 2}});
    info.read({QJsonObject{{"XPos", 3.5}, {"YPos", 4.5}}, QJsonObject{{"YPos", 6}}});
    QCOMPARE(positions(info), (QList<QPointF>{{1, 2}, {3.5, 4.5}, {0, 6}}));
}

void TestFilePresets::positionsAreNotReadUnlessWanted()
{
    HeaderInfo info(false);
    info.setPositions({{1, 2}});
    info.read({QJsonObject{{"XPos", 3.5}, {"YPos", 4.5}}});
    QCOMPARE(positions(info), (QList<QPointF>{{1, 2}}));
    QCOMPARE(records(info).size(), 1);
}

void TestFilePresets::readingAppendsToTheRecords()
{
    HeaderInfo info(true);
    info.read({fullHeaderObject()});
    info.read({QJsonObject(), QJsonObject()});
    QCOMPARE(records(info).size(), 3);
    QCOMPARE(fields(records(info).first()), fields(fullHeader()));
}

void TestFilePresets::headerDataIsCopiedInAndOut()
{
    QList<header_data> data{fullHeader()};
    HeaderInfo info(false);
    info.setData(data);
    data.clear();
    QCOMPARE(records(info).size(), 1);
    data = {header_data(), header_data()};
    info.getData(data);
    QCOMPARE(data.size(), 1);
}

QTEST_APPLESS_MAIN(TestFilePresets)
#include "test_file_presets.moc"
