// The headers of a fresh window: their places, their roles and the factory rows that they start with.

#include "HeaderFixture.h"
#include "HeaderLog.h"

#include <QtTest>

#include <utility>
#include <vector>

class TestHeaderStage : public HeaderFixture
{
    Q_OBJECT

private slots:
    void factoryHeadersStandInKeyOrderWithTheirRoles();
    void thirtySixHeadersStandOnTheBlackKeys();
    void factoryHeadersCarryTheirRecords();
    void headersStartWithTheFactoryRows();
    void headerIsNotBuiltWithoutItsController();
    void headerWithoutControllerIsNotBuilt();

private:
    /// A call without a controller builds nothing and says so.
    void expectNotBuilt(int key, int index, header_type type, QPointF place, header_status status) const;
};

void TestHeaderStage::expectNotBuilt(int key, int index, header_type type, QPointF place,
                                     header_status status) const
{
    const int items = scene()->items().size();
    HeaderController* const kept = std::exchange(window->headerController, nullptr);
    {
        const HeaderLog log;
        expectLine("^HeaderController must be initialized before creating any Header$");
        window->createHeaderItem(QStringLiteral("header"), key, index, type, place, status);
    }
    window->headerController = kept;
    QCOMPARE(scene()->items().size(), items);
    QCOMPARE(presets().headers.size(), 36);
}

void TestHeaderStage::factoryHeadersStandInKeyOrderWithTheirRoles()
{
    static const QMap<int, header_type> types = {{1, header_c_sharp},
                                                 {3, header_d_sharp},
                                                 {6, header_f_sharp},
                                                 {8, header_g_sharp},
                                                 {10, header_a_sharp}};
    int index = 0;
    for (int note = 21; note <= 108; ++note) {
        if (!types.contains(note % 12))
            continue;
        const HeaderItem* item = presets().headers.at(index++);
        QCOMPARE(item->type, types.value(note % 12));
        QCOMPARE(key_roles::pitch(item), note);
        QCOMPARE(key_roles::headerSlot(item), note);
        QVERIFY(key_roles::isHeader(item) && key_roles::isBlack(item));
        QCOMPARE(item->status(), note == 63 ? header_active : header_deactive);
        QCOMPARE(item->pos(), item->homePos);
    }
    QCOMPARE(index, 36);
    QCOMPARE(presets().headers.size(), 36);
}

void TestHeaderStage::thirtySixHeadersStandOnTheBlackKeys()
{
    struct Flag
    {
        int key;
        header_type type;
        QPointF pos;
    };
    std::vector<Flag> flags{{22, header_a_sharp, {16, 1}}};
    for (int k = 0; k < 7; ++k)
        flags.insert(flags.end(), {{25 + 12 * k, header_c_sharp, QPointF(33 + 119 * k, 28)},
                                   {27 + 12 * k, header_d_sharp, QPointF(67 + 119 * k, 28)},
                                   {30 + 12 * k, header_f_sharp, QPointF(74 + 119 * k, 1)},
                                   {32 + 12 * k, header_g_sharp, QPointF(109 + 119 * k, 1)},
                                   {34 + 12 * k, header_a_sharp, QPointF(135 + 119 * k, 1)}});
    QCOMPARE(presets().headers.size(), 36);
    QCOMPARE(flags.size(), std::size_t(36));
    for (std::size_t i = 0; i < flags.size(); ++i) {
        const HeaderItem* item = presets().headers.at(static_cast<int>(i));
        QCOMPARE(item->type, flags[i].type);
        QCOMPARE(item->pos(), flags[i].pos);
        QCOMPARE(item->homePos, flags[i].pos);
        QCOMPARE(item->data(1).toString(), QStringLiteral("header"));
        QCOMPARE(item->data(2).toInt(), flags[i].key);
        QCOMPARE(item->data(3).toString(), QStringLiteral("#"));
        QCOMPARE(item->data(12).toInt(), flags[i].key);
        QCOMPARE(item->status(), flags[i].key == firstActive ? header_active : header_deactive);
        QCOMPARE(item->scene(), scene());
        QCOMPARE(item->controller, &presets());
        QVERIFY(key_roles::isBlack(window->findInNote(flags[i].key)));
    }
    QCOMPARE(active(), firstActive);
    QVERIFY(!presets().contextHeader);
    QVERIFY(!presets().hasCopy);
}

void TestHeaderStage::factoryHeadersCarryTheirRecords()
{
    for (int i = 0; i < 36; ++i) {
        const header_data row = factoryRow(i);
        const header_data& data = presets().headers.at(i)->record;
        QCOMPARE(fields(data).mid(2), fields(row).mid(2));
        const bool named = row.scaleOn && !row.scaleData.isEmpty();
        QCOMPARE(names(presets().headers.at(i)),
                 named ? abbreviations(row.scaleData) : (QStringList{"", ""}));
    }
}

// Two rows hold words that the library does not load: these get numbers.
void TestHeaderStage::headersStartWithTheFactoryRows()
{
    int users = 0;
    for (int i = 0; i < 36; ++i) {
        header_data wanted = factoryRow(i);
        scale_data names;
        const QString& word = wanted.scaleData;
        if (wanted.scaleOn && !library().getScaleData(word, names, DatabaseLibrary::LibraryRole)) {
            names.abbr1 = QStringLiteral("User");
            names.abbr2 = QString::number(++users);
        }
        wanted.nameScenic1 = names.abbr1;
        wanted.nameScenic2 = names.abbr2;
        QCOMPARE(asText(presets().headers.at(i)->record), asText(wanted));
    }
    QCOMPARE(users, 2);
}

void TestHeaderStage::headerIsNotBuiltWithoutItsController()
{
    expectNotBuilt(lowest, 0, header_a_sharp, {}, header_deactive);
}

void TestHeaderStage::headerWithoutControllerIsNotBuilt()
{
    expectNotBuilt(25, 1, header_c_sharp, {1, 2}, header_active);
}

QTEST_MAIN(TestHeaderStage)
#include "test_header_stage.moc"
