// The names of a header, which follow the library, and the temporary records of unknown scales.

#include "HeaderFixture.h"
#include "LooseHeader.h"
#include "RepaintWatch.h"

#include <QtTest>

#include <utility>

class TestHeaderNames : public HeaderFixture
{
    Q_OBJECT

private slots:
    // Repainting
    void namesRepaintTheirRectangleOnly();
    void newNamesRepaintTheirRectangles();

    // Names and the library
    void scenicWaitsForTheController();
    void scaleOffEmptiesBothNames();
    void emptyScaleEmptiesBothNames();
    void knownScaleTakesItsAbbreviations();
    void scenicNeverTouchesTheTonic();

    // Temporary records
    void unknownScaleMakesATemporaryRecord_data();
    void unknownScaleMakesATemporaryRecord();
    void userNumbersCountUpAndFillGaps();
    void ownNumberDoesNotCountAsTaken();
    void twoHeadersShareOneTemporaryRecord();
    void temporaryRecordGoesWithItsLastHolder();
};

void TestHeaderNames::namesRepaintTheirRectangleOnly()
{
    LooseHeader item({}, header_a_sharp);
    RepaintWatch watch(item);
    item.setNameScenic1(QStringLiteral("one"));
    QVERIFY(watch.tookOnly(item.nameRect1));
    item.setNameScenic2(QStringLiteral("two"));
    QVERIFY(watch.tookOnly(item.nameRect2));
    item.setNameTonic(QStringLiteral("D"));
    QVERIFY(watch.tookOnly(item.tonicRect));
    QCOMPARE(fields(item.record), (QStringList{"one", "two", "D", "off", "", "off", "", "off", "0"}));
}

void TestHeaderNames::newNamesRepaintTheirRectangles()
{
    LooseHeader item({});
    RepaintWatch watch(item);
    item.record = scaleRecord(lydian);
    item.updateScenic();
    QVERIFY(watch.tookOnly(item.nameRect1.united(item.nameRect2)));
    item.record.scaleOn = false;
    item.updateScenic();
    QVERIFY(watch.tookOnly(item.nameRect1.united(item.nameRect2)));
}

void TestHeaderNames::scenicWaitsForTheController()
{
    emptyHeaders();
    setRecord(22, scaleRecord(unknownWord));
    record(22) = scaleRecord(ionian); // the temporary scale has lost its holder
    HeaderController* const kept = std::exchange(window->headerController, nullptr);
    HeaderItem* const item = kept->headers.first();
    item->updateScenic();
    window->headerController = kept;
    QCOMPARE(names(item), (QStringList{"Old1", "Old2"}));
    QCOMPARE(library().customScales(), QList<QString>{unknownWord});
    item->updateScenic();
    QCOMPARE(names(item), abbreviations(ionian));
    QVERIFY(library().customScales().isEmpty());
}

void TestHeaderNames::scaleOffEmptiesBothNames()
{
    emptyHeaders();
    for (const QString& word : {ionian, unknownWord}) {
        setRecord(22, scaleRecord(word, false));
        QCOMPARE(names(header(22)), (QStringList{"", ""}));
        QCOMPARE(record(22).scaleData, word);
        QVERIFY(library().customScales().isEmpty());
    }
    record(22).scaleData = ionian;
    record(22).scaleOn = true; // the names come back with the switch, not the old ones
    header(22)->updateScenic();
    QCOMPARE(names(header(22)), abbreviations(ionian));
}

void TestHeaderNames::emptyScaleEmptiesBothNames()
{
    emptyHeaders();
    setRecord(22, scaleRecord({}));
    QCOMPARE(names(header(22)), (QStringList{"", ""}));
    QVERIFY(record(22).scaleOn);
    QVERIFY(!library().containsScale({}, DatabaseLibrary::AnyRole));
}

void TestHeaderNames::knownScaleTakesItsAbbreviations()
{
    emptyHeaders();
    setRecord(22, scaleRecord(lydian));
    QCOMPARE(names(header(22)), (QStringList{"MAJOR", "Lydian"}));
    scale_data renamed;
    QVERIFY(library().getScaleData(lydian, renamed, DatabaseLibrary::LibraryRole));
    renamed.abbr1 = QStringLiteral("new");
    library().setScaleData(lydian, renamed, DatabaseLibrary::LibraryRole);
    header(22)->updateScenic();
    QCOMPARE(names(header(22)), (QStringList{"new", "Lydian"}));
    QVERIFY(library().customScales().isEmpty());
}

void TestHeaderNames::scenicNeverTouchesTheTonic()
{
    emptyHeaders();
    for (const QString& word : {ionian, unknownWord, QString()}) {
        for (const bool scaleOn : {true, false}) {
            setRecord(22, scaleRecord(word, scaleOn));
            QCOMPARE(fields(record(22)).mid(2), fields(scaleRecord(word, scaleOn)).mid(2));
        }
    }
}

void TestHeaderNames::unknownScaleMakesATemporaryRecord_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("a scale") << unknownWord;
    QTest::newRow("no scale") << QStringLiteral("x");
    QTest::newRow("other letters") << QString::fromUtf8("%1 \xC3\xA9 <b>");
    QTest::newRow("long") << QString(5000, QLatin1Char('x'));
}

void TestHeaderNames::unknownScaleMakesATemporaryRecord()
{
    QFETCH(QString, word);
    emptyHeaders();
    setRecord(22, scaleRecord(word));
    QCOMPARE(names(header(22)), (QStringList{"User", "1"}));
    scale_data scale;
    QVERIFY(library().getScaleData(word, scale, DatabaseLibrary::CustomRole));
    QCOMPARE((QStringList{scale.scale, scale.abbr1, scale.abbr2, scale.title, scale.libBody}),
             (QStringList{word, "User", "1", "User 1", ""}));
    QVERIFY(library().findCategoriesWithScale(word).isEmpty());
}

void TestHeaderNames::userNumbersCountUpAndFillGaps()
{
    emptyHeaders();
    setRecord(32, scaleRecord(unknownWord));
    setRecord(27, scaleRecord(otherUnknownWord));
    QCOMPARE(names(header(32)), (QStringList{"User", "1"}));
    QCOMPARE(names(header(27)), (QStringList{"User", "2"}));
    setRecord(32, scaleRecord(ionian));
    setRecord(39, scaleRecord(unknownWord));
    QCOMPARE(names(header(39)), (QStringList{"User", "1"}));
    QCOMPARE(names(header(27)), (QStringList{"User", "2"}));
}

void TestHeaderNames::ownNumberDoesNotCountAsTaken()
{
    emptyHeaders();
    setRecord(22, scaleRecord(unknownWord));
    record(22).scaleData = otherUnknownWord; // as the selector plays it, key by key
    header(22)->updateScenic();
    QCOMPARE(names(header(22)), (QStringList{"User", "1"}));
    QCOMPARE(library().customScales(), QList<QString>{otherUnknownWord});
}

void TestHeaderNames::twoHeadersShareOneTemporaryRecord()
{
    emptyHeaders();
    setRecord(34, scaleRecord(unknownWord));
    setRecord(44, scaleRecord(unknownWord));
    QCOMPARE(names(header(34)), (QStringList{"User", "1"}));
    QCOMPARE(names(header(44)), names(header(34)));
    QCOMPARE(library().customScales(), QList<QString>{unknownWord});
}

void TestHeaderNames::temporaryRecordGoesWithItsLastHolder()
{
    emptyHeaders();
    setRecord(34, scaleRecord(unknownWord));
    setRecord(44, scaleRecord(unknownWord));
    record(34).scaleOn = false;
    header(34)->updateScenic();
    QVERIFY(library().isCustomScale(unknownWord));
    record(44).scaleOn = false; // both keep the word, but neither plays it
    header(70)->updateScenic();
    QVERIFY(!library().containsScale(unknownWord, DatabaseLibrary::AnyRole));
}

QTEST_MAIN(TestHeaderNames)
#include "test_header_names.moc"
