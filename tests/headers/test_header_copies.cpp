// What passes between two headers that are copied or swapped.

#include "HeaderFixture.h"
#include "HeaderLog.h"
#include "LooseHeader.h"
#include "RepaintWatch.h"
#include "header_pictures.h"

#include <QtTest>

class TestHeaderCopies : public HeaderFixture
{
    Q_OBJECT

private slots:
    // Copy
    void copyTakesNamesAlwaysAndTheRestIfOn_data() { addSwitchPairs(); }
    void copyTakesNamesAlwaysAndTheRestIfOn();
    void copyRepaintsTheThreeTexts();
    void copySaysSo();
    void copyFromItselfChangesNothing();

    // Swap
    void swapExchangesNineFieldsAndNamesThemAnew_data() { addSwitchPairs(); }
    void swapExchangesNineFieldsAndNamesThemAnew();
    void swapNamesThisHeaderFirst();
    void swapLeavesStatusAndPicture();
    void swapWithItselfDoesNothing();
    void swapStatusExchangesBareValues();
    void swapStatusWithItselfDoesNothing();

private:
    static void addSwitchPairs();
};

void TestHeaderCopies::addSwitchPairs()
{
    QTest::addColumn<bool>("sourceTonic");
    QTest::addColumn<bool>("sourceScale");
    QTest::addColumn<bool>("targetTonic");
    QTest::addColumn<bool>("targetScale");
    const auto word = [](int bit) { return bit ? "on" : "off"; };
    for (int bits = 0; bits < 16; ++bits)
        QTest::addRow("source %s %s, target %s %s", word(bits & 1), word(bits & 2), word(bits & 4),
                      word(bits & 8))
            << bool(bits & 1) << bool(bits & 2) << bool(bits & 4) << bool(bits & 8);
}

void TestHeaderCopies::copyTakesNamesAlwaysAndTheRestIfOn()
{
    QFETCH(bool, sourceTonic);
    QFETCH(bool, sourceScale);
    QFETCH(bool, targetTonic);
    QFETCH(bool, targetScale);
    LooseHeader source({}), target({});
    source.record = {"s1", "s2", "D", sourceTonic, "D", sourceScale, lydian};
    source.record.anchorValid = true;
    source.record.anchorPos = 17;
    target.record = {"t1", "t2", "A", targetTonic, "A", targetScale, unknownWord};
    target.record.anchorPos = -51;
    const QStringList before = fields(source.record);
    target.copyHeadersData(&source);

    QStringList tonic = {onOrOff(targetTonic), "A"}, scale = {onOrOff(targetScale), unknownWord},
                place = {"off", "-51"};
    if (sourceTonic) {
        tonic = QStringList{"on", "D"};
        place = QStringList{"on", "17"};
    }
    if (sourceScale)
        scale = QStringList{"on", lydian};
    QCOMPARE(fields(target.record), (QStringList{"s1", "s2", "D"} + tonic + scale + place));
    QCOMPARE(fields(source.record), before);
}

void TestHeaderCopies::copyRepaintsTheThreeTexts()
{
    LooseHeader source(scaleRecord(lydian)), target({});
    RepaintWatch watch(target);
    target.copyHeadersData(&source);
    QVERIFY(watch.tookOnly(target.nameRect1.united(target.nameRect2).united(target.tonicRect)));
}

void TestHeaderCopies::copySaysSo()
{
    const HeaderLog log;
    QTest::ignoreMessage(QtDebugMsg, "HeaderItem::copyHeaderData");
    header(22)->copyHeadersData(header(25));
}

void TestHeaderCopies::copyFromItselfChangesNothing()
{
    LooseHeader item({});
    item.record = scaleRecord(unknownWord);
    item.copyHeadersData(&item);
    QCOMPARE(fields(item.record), fields(scaleRecord(unknownWord)));
}

void TestHeaderCopies::swapExchangesNineFieldsAndNamesThemAnew()
{
    QFETCH(bool, sourceTonic);
    QFETCH(bool, sourceScale);
    QFETCH(bool, targetTonic);
    QFETCH(bool, targetScale);
    emptyHeaders();
    header_data known("s1", "s2", "D", sourceTonic, "E", sourceScale, lydian);
    known.anchorValid = true;
    known.anchorPos = 17;
    header_data foreign("t1", "t2", "A", targetTonic, "B", targetScale, unknownWord);
    foreign.anchorPos = -51;
    record(30) = known;
    record(42) = foreign;
    header(30)->swapHeadersData(header(42));

    const QStringList none = {"", ""};
    QCOMPARE(names(header(30)), targetScale ? (QStringList{"User", "1"}) : none);
    QCOMPARE(names(header(42)), sourceScale ? (QStringList{"MAJOR", "Lydian"}) : none);
    QCOMPARE(fields(record(30)).mid(2), fields(foreign).mid(2));
    QCOMPARE(fields(record(42)).mid(2), fields(known).mid(2));
    QCOMPARE(library().isCustomScale(unknownWord), targetScale);
}

void TestHeaderCopies::swapNamesThisHeaderFirst()
{
    emptyHeaders();
    record(30) = {{}, {}, {}, false, {}, true, unknownWord};
    record(42) = {{}, {}, {}, false, {}, true, otherUnknownWord};
    header(42)->swapHeadersData(header(30));
    QCOMPARE(record(42).scaleData, unknownWord);
    QCOMPARE(names(header(42)), (QStringList{"User", "1"}));
    QCOMPARE(names(header(30)), (QStringList{"User", "2"}));
}

void TestHeaderCopies::swapLeavesStatusAndPicture()
{
    HeaderItem* const active = presets().activeHeader;
    const QPixmap face = active->pixmap(), other = header(22)->pixmap();
    header(22)->swapHeadersData(active);
    QCOMPARE(presets().activeHeader, active);
    QCOMPARE(active->status(), header_active);
    QCOMPARE(header(22)->status(), header_deactive);
    QVERIFY(isSame(active->pixmap(), face) && isSame(header(22)->pixmap(), other));
}

void TestHeaderCopies::swapWithItselfDoesNothing()
{
    emptyHeaders();
    for (const header_data& data :
         {scaleRecord(lydian), scaleRecord(unknownWord), scaleRecord(ionian, false)}) {
        record(30) = data; // stale names: an update would change them
        header(30)->swapHeadersData(header(30));
        QCOMPARE(fields(record(30)), fields(data));
        QVERIFY(library().customScales().isEmpty());
    }
}

void TestHeaderCopies::swapStatusExchangesBareValues()
{
    HeaderItem* const active = presets().activeHeader;
    const QPixmap face = active->pixmap(), other = header(22)->pixmap();
    active->record = scaleRecord(lydian);
    record(22) = scaleRecord(ionian, false);
    header(22)->swapHeadersStatus(active);
    QCOMPARE(header(22)->status(), header_active);
    QCOMPARE(active->status(), header_deactive);
    QCOMPARE(presets().activeHeader, active);
    QVERIFY(isSame(active->pixmap(), face) && isSame(header(22)->pixmap(), other));
    QCOMPARE(names(active), abbreviations(lydian)); // both were brought up to date
    QCOMPARE(names(header(22)), (QStringList{"", ""}));
    QCOMPARE(fields(active->record).mid(2), fields(scaleRecord(lydian)).mid(2));
}

void TestHeaderCopies::swapStatusWithItselfDoesNothing()
{
    record(30) = scaleRecord(lydian);
    header(30)->swapHeadersStatus(header(30));
    QCOMPARE(header(30)->status(), header_deactive);
    QCOMPARE(fields(record(30)), fields(scaleRecord(lydian)));
}

QTEST_MAIN(TestHeaderCopies)
#include "test_header_copies.moc"
