// The record of a preset, and what a header makes of it at birth.

#include "HeaderFixture.h"
#include "LooseHeader.h"
#include "header_pictures.h"

#include <QtTest>

#include <utility>

class TestHeaderRecord : public HeaderFixture
{
    Q_OBJECT

private slots:
    // The record
    void defaultRecordIsEmpty();
    void constructorTakesSevenFieldsAndNoPosition();
    void overwritesSetAllNineFields_data();
    void overwritesSetAllNineFields();

    // Construction
    void freshHeaderIsDeactiveAndWithoutAKey();
    void libraryNamesWinOverGivenOnes();
    void libraryNamesWinEvenWithTheScaleOff();
    void unknownWordKeepsTheGivenNamesWithoutAController();
    void unknownWordMakesATemporaryRecordAtBirth();
    void headerIsBuiltWithoutAWindow();
};

void TestHeaderRecord::defaultRecordIsEmpty()
{
    QCOMPARE(fields(header_data()), (QStringList{"", "", "", "off", "", "off", "", "off", "0"}));
}

void TestHeaderRecord::constructorTakesSevenFieldsAndNoPosition()
{
    const header_data data("1", "2", "3", true, "4", false, "5");
    QCOMPARE(fields(data), (QStringList{"1", "2", "3", "on", "4", "off", "5", "off", "0"}));
    const header_data other("a", "b", "c", false, "d", true, "e");
    QCOMPARE(fields(other), (QStringList{"a", "b", "c", "off", "d", "on", "e", "off", "0"}));
}

using Overwrite = void (header_data::*)();
Q_DECLARE_METATYPE(Overwrite)

void TestHeaderRecord::overwritesSetAllNineFields_data()
{
    QTest::addColumn<Overwrite>("overwrite");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("reset") << &header_data::reset
                           << QStringList{"ION", "Major", "C", "on", "C", "on", ionian, "off", "0"};
    QTest::newRow("erase") << &header_data::erase
                           << QStringList{"", "", "C", "on", "C", "on", "xooooooooooo", "off", "0"};
    QTest::newRow("clearNames") << &header_data::clearNames
                                << QStringList{"", "", "C", "off", "C", "off", ionian, "off", "0"};
}

void TestHeaderRecord::overwritesSetAllNineFields()
{
    QFETCH(Overwrite, overwrite);
    QFETCH(QStringList, expected);
    for (const bool given : {true, false}) {
        header_data data("Old1", "Old2", "F#", given, "G", given, lydian);
        data.anchorValid = true;
        data.anchorPos = -34;
        (data.*overwrite)();
        QCOMPARE(fields(data), expected);
    }
}

void TestHeaderRecord::freshHeaderIsDeactiveAndWithoutAKey()
{
    header_data data = scaleRecord(ionian);
    data.anchorValid = true;
    data.anchorPos = 51;
    LooseHeader item(data, header_f_sharp);
    QCOMPARE(item.status(), header_deactive);
    QCOMPARE(item.type, header_f_sharp);
    QVERIFY(!item.controller);
    QCOMPARE(key_roles::pitch(&item), -1);
    QVERIFY(!item.isPushed && !item.mouseHeld);
    QCOMPARE(item.homePos, QPointF());
    QVERIFY(item.savedPixmap.isNull());
    QVERIFY(isSame(item.pixmap(), picture(2, "deactive")));
    QCOMPARE(fields(item.record).mid(2), fields(data).mid(2)); // all but the two names
    QCOMPARE(header(22)->controller, &presets());
}

void TestHeaderRecord::libraryNamesWinOverGivenOnes()
{
    const LooseHeader item(scaleRecord(lydian));
    QCOMPARE(names(&item), (QStringList{"MAJOR", "Lydian"}));
    QCOMPARE(names(&item), abbreviations(lydian));
}

// Without a controller the names are looked up once and not brought up to date afterwards.
void TestHeaderRecord::libraryNamesWinEvenWithTheScaleOff()
{
    HeaderController* const kept = std::exchange(window->headerController, nullptr);
    const LooseHeader early(scaleRecord(lydian, false));
    window->headerController = kept;
    QCOMPARE(names(&early), abbreviations(lydian));
    const LooseHeader late(scaleRecord(lydian, false));
    QCOMPARE(names(&late), (QStringList{"", ""}));
    QCOMPARE(late.record.scaleData, lydian);
}

void TestHeaderRecord::unknownWordKeepsTheGivenNamesWithoutAController()
{
    HeaderController* const kept = std::exchange(window->headerController, nullptr);
    const LooseHeader item(scaleRecord(unknownWord));
    window->headerController = kept;
    QCOMPARE(names(&item), (QStringList{"Old1", "Old2"}));
    QVERIFY(!library().containsScale(unknownWord, DatabaseLibrary::AnyRole));
}

void TestHeaderRecord::unknownWordMakesATemporaryRecordAtBirth()
{
    emptyHeaders();
    const LooseHeader item(scaleRecord(unknownWord));
    QCOMPARE(names(&item), (QStringList{"User", "1"}));
    QCOMPARE(library().customScales(), QList<QString>{unknownWord});
}

void TestHeaderRecord::headerIsBuiltWithoutAWindow()
{
    window.reset();
    mainWnd = nullptr;
    LooseHeader item(scaleRecord(ionian));
    item.setStatus(header_active);
    item.updateScenic();
    QCOMPARE(names(&item), (QStringList{"Old1", "Old2"}));
    QCOMPARE(item.status(), header_active);
}

QTEST_MAIN(TestHeaderRecord)
#include "test_header_record.moc"
