// The records of all headers: user numbers, temporary scales, reading and writing in bulk.

#include "HeaderFixture.h"

#include <QtTest>

#include <memory>
#include <vector>

class TestHeaderRecords : public HeaderFixture
{
    Q_OBJECT

private slots:
    // User numbers
    void freeUserNumberIsTheSmallest();
    void onlyWholeUserNamesTakeANumber();
    void numbersEndAt108();

    // Temporary scales
    void temporaryRecordLivesWithItsHeaders();
    void switchedOffScaleLetsItsRecordGo();
    void libraryRecordsNeverGo();
    void removalStepsOverMissingHeaders();

    // In bulk
    void positionsAreReadAndWrittenInOrder();
    void recordsAreReadAndWrittenInOrder();
    void scenicsOfOneWordOrOfAll();
};

void TestHeaderRecords::freeUserNumberIsTheSmallest()
{
    emptyHeaders();
    QCOMPARE(presets().findMinUserNum(), 1);
    const auto take = [this](int key, int number) {
        record(key).nameScenic1 = QStringLiteral("User");
        record(key).nameScenic2 = QString::number(number);
    };
    take(25, 2);
    QCOMPARE(presets().findMinUserNum(), 1);
    take(106, 1);
    QCOMPARE(presets().findMinUserNum(), 3);
    take(27, 4);
    take(30, 3);
    QCOMPARE(presets().findMinUserNum(), 5);
    take(106, 200);
    QCOMPARE(presets().findMinUserNum(), 1);
}

void TestHeaderRecords::onlyWholeUserNamesTakeANumber()
{
    emptyHeaders();
    for (const char* name : {"user", "USER", "User ", "", "Users"}) {
        record(25).nameScenic1 = QLatin1String(name);
        record(25).nameScenic2 = QStringLiteral("1");
        QCOMPARE(presets().findMinUserNum(), 1);
    }
    record(25).nameScenic1 = QStringLiteral("User");
    for (const char* number : {"", "one", "0x1", "1a", "1.0", "-1", "99999999999"}) {
        record(25).nameScenic2 = QLatin1String(number);
        QCOMPARE(presets().findMinUserNum(), 1);
    }
    record(25).nameScenic2 = QStringLiteral("1");
    QCOMPARE(presets().findMinUserNum(), 2);
}

// More headers than the stage has: 108 with a name each, and one that asks for one.
void TestHeaderRecords::numbersEndAt108()
{
    emptyHeaders();
    std::vector<std::unique_ptr<HeaderItem>> more;
    const QList<HeaderItem*> onStage = presets().headers;
    while (presets().headers.size() < 109) {
        more.push_back(std::make_unique<HeaderItem>(&presets(), header_c_sharp, header_data()));
        presets().headers.append(more.back().get());
    }
    for (int n = 1; n <= 108; ++n) {
        presets().headers.at(n - 1)->record.nameScenic1 = QStringLiteral("User");
        presets().headers.at(n - 1)->record.nameScenic2 = QString::number(n);
    }
    const int whenFull = presets().findMinUserNum();
    HeaderItem& last = *more.back();
    last.record.scaleOn = true;
    last.record.scaleData = unknownWord;
    last.updateScenic();
    presets().headers.at(107)->record.nameScenic2.clear();
    const int whenOneLeft = presets().findMinUserNum();
    presets().headers = onStage;
    QCOMPARE(whenFull, 0);
    QCOMPARE(whenOneLeft, 108);
    QCOMPARE(last.record.nameScenic1, QStringLiteral("User"));
    QCOMPARE(last.record.nameScenic2, QStringLiteral("0"));
}

void TestHeaderRecords::temporaryRecordLivesWithItsHeaders()
{
    emptyHeaders();
    for (const int key : {25, 27}) {
        record(key) = {QString(), QString(), QString(), off, QString(), on, unknownWord};
        header(key)->updateScenic();
        QCOMPARE(record(key).nameScenic2, QStringLiteral("1")); // they share the record
    }
    QCOMPARE(library().customScales(), QList<QString>{unknownWord});
    scale_data made;
    QVERIFY(library().getScaleData(unknownWord, made, DatabaseLibrary::CustomRole));
    QCOMPARE(made.title, QStringLiteral("User 1"));
    record(25) = {};
    header(highest)->updateScenic();
    QVERIFY(library().isCustomScale(unknownWord)); // 27 still holds it
    record(27) = {};
    header(highest)->updateScenic();
    QVERIFY(!library().containsScale(unknownWord, DatabaseLibrary::AnyRole));
}

void TestHeaderRecords::switchedOffScaleLetsItsRecordGo()
{
    setScale(unknownWord);
    scale().setSwitchOn(true);
    QVERIFY(library().isCustomScale(unknownWord));
    scale().setSwitchOff(true);
    QCOMPARE(record(firstActive).scaleData, unknownWord); // still held, but off
    header(highest)->updateScenic();
    QVERIFY(!library().isCustomScale(unknownWord));
}

void TestHeaderRecords::libraryRecordsNeverGo()
{
    for (HeaderItem* item : qAsConst(presets().headers))
        item->record = {};
    const auto categories = library().categories();
    QList<QString> words;
    for (const QString& category : categories)
        words += library().scalesFromCategory(category);
    presets().removeUnusedTempRecords();
    for (const QString& word : qAsConst(words))
        QVERIFY(library().containsScale(word, DatabaseLibrary::LibraryRole));
    QVERIFY(words.contains(lydian));
}

void TestHeaderRecords::removalStepsOverMissingHeaders()
{
    record(25) = {QString(), QString(), QString(), off, QString(), on, unknownWord};
    header(25)->updateScenic();
    presets().headers.prepend(nullptr);
    presets().removeUnusedTempRecords();
    const bool kept = library().isCustomScale(unknownWord);
    presets().headers.removeFirst();
    QVERIFY(kept);
}

void TestHeaderRecords::positionsAreReadAndWrittenInOrder()
{
    QList<QPointF> homes, moved;
    presets().getHeadersPosition(homes);
    QCOMPARE(homes.size(), 36);
    QCOMPARE(homes.first(), QPointF(16, 1));
    for (int i = 0; i < 40; ++i)
        moved << QPointF(i, 2 * i);
    presets().updatePostions(moved.mid(0, 3));
    for (int i = 0; i < 36; ++i)
        QCOMPARE(presets().headers.at(i)->pos(), i < 3 ? moved.at(i) : homes.at(i));
    presets().updatePostions({});
    QCOMPARE(presets().headers.first()->pos(), moved.first());
    presets().updatePostions(moved); // four too many
    QCOMPARE(presets().headers.last()->pos(), moved.at(35));
}

void TestHeaderRecords::recordsAreReadAndWrittenInOrder()
{
    QList<header_data> before, after;
    presets().getHeadersData(before);
    QCOMPARE(before.size(), 36);
    header_data wanted = fullRecord();
    presets().reloadHeaders({wanted, wanted});
    wanted.nameScenic1 = QStringLiteral("MAJOR"); // the library's names win
    wanted.nameScenic2 = QStringLiteral("Lydian");
    presets().getHeadersData(after);
    for (int i = 0; i < 36; ++i)
        QCOMPARE(asText(after.at(i)), asText(i < 2 ? wanted : before.at(i)));
    presets().reloadHeaders({});
    QCOMPARE(asText(presets().headers.first()->record), asText(wanted));
    presets().reloadHeaders(after + before); // twice too many
    QCOMPARE(asText(presets().headers.last()->record), asText(before.last()));
}

void TestHeaderRecords::scenicsOfOneWordOrOfAll()
{
    emptyHeaders();
    for (const int key : {25, 27, 30})
        record(key) = {QStringLiteral("old"), QStringLiteral("old"), QString(), off, QString(), on, lydian};
    record(30).scaleData = wholeTone;
    presets().updateHeaderScenics(lydian);
    QCOMPARE(record(25).nameScenic2, QStringLiteral("Lydian"));
    QCOMPARE(record(27).nameScenic2, QStringLiteral("Lydian"));
    QCOMPARE(record(30).nameScenic2, QStringLiteral("old"));
    presets().updateHeaderScenics(unknownWord);
    QCOMPARE(record(30).nameScenic2, QStringLiteral("old"));
    record(30).scaleData = unknownWord;
    presets().updateHeaderScenics(unknownWord); // that the library lacks it does not matter
    QCOMPARE(record(30).nameScenic2, QStringLiteral("1"));
    for (HeaderItem* item : qAsConst(presets().headers)) {
        item->record.scaleOn = false;
        item->setNameScenic1(QStringLiteral("old"));
    }
    presets().updateHeaderScenics({});
    for (const HeaderItem* item : qAsConst(presets().headers))
        QCOMPARE(item->record.nameScenic1, QString());
}

QTEST_MAIN(TestHeaderRecords)
#include "test_header_records.moc"
