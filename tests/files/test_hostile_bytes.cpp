// Files that were cut short, or damaged in one byte.

#include "HostileFixture.h"

#include <QJsonDocument>
#include <QJsonObject>

class TestHostileBytes : public HostileFixture
{
    Q_OBJECT

private slots:
    void wholeSampleIsTaken();
    void cutAtAnyByteNothingIsTaken();
    void realFileCutAnywhereIsRefused();
    void oneDamagedByteLeavesASoundState_data();
    void oneDamagedByteLeavesASoundState();
    void oneMissingOrDoubledByteLeavesASoundState();
    void fileThatGrowsOrShrinksBetweenTwoReadingsIsTakenAsItIs();

private:
    static QByteArray small() { return QJsonDocument(smallDatabase()).toJson(QJsonDocument::Compact); }
    /// Offers the file; the sound state after it is the importer's whole duty.
    QString faultOf(const QByteArray& text) const
    {
        const Outcome outcome = offer(text);
        if (outcome.ms > 500 * slowness())
            return QStringLiteral("it took %1 ms").arg(outcome.ms);
        return hostile_state::fault(*window);
    }
};

void TestHostileBytes::wholeSampleIsTaken()
{
    QCOMPARE(faultOfGood(offer(small())), QString());
    backToFactory();
    QCOMPARE(offer(small()).error, QString());
    QCOMPARE(library().categories(), (QVector<QString>{"Mine", "Other"}));
    QCOMPARE(library().scalesFromCategory("Mine"), (QList<QString>{"xxooxxooxxoo", "xoxoxxoxoxox"}));
    QVERIFY(!library().containsScale(lydian, DatabaseLibrary::LibraryRole)); // of the library before
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("F#"));
    QCOMPARE(active(), 66);
    QVERIFY(window->isPowerOn() && screen().libraryOpen);
}

void TestHostileBytes::cutAtAnyByteNothingIsTaken()
{
    const QByteArray text = small();
    const QString before = hostile_state::summary(*window);
    for (int size = 0; size < text.size(); ++size) {
        const Outcome outcome = offer(text.left(size));
        QVERIFY2(!outcome.error.isEmpty(), qPrintable(QString::number(size)));
        QVERIFY2(outcome.ms <= 500 * slowness(), qPrintable(QString::number(outcome.ms)));
        QVERIFY2(hostile_state::summary(*window) == before, qPrintable(QString::number(size)));
    }
    QCOMPARE(faultAfter(), QString());
}

// The factory state, as the program writes it. All of its places are tried in some runs of many.
void TestHostileBytes::realFileCutAnywhereIsRefused()
{
    const QByteArray text = exported();
    QVERIFY(text.endsWith("}\n"));
    const QString before = hostile_state::summary(*window);
    for (int size = 0; size < text.size() - 1; size += 7 * slowness()) {
        QVERIFY2(!offer(text.left(size)).error.isEmpty(), qPrintable(QString::number(size)));
        if (size % 35 == 0)
            QVERIFY2(hostile_state::summary(*window) == before, qPrintable(QString::number(size)));
    }
    QCOMPARE(hostile_state::summary(*window), before);
    QCOMPARE(faultAfter(), QString());
    QCOMPARE(offer(text.left(text.size() - 1)).error, QString()); // but for the end of its last line
}

void TestHostileBytes::oneDamagedByteLeavesASoundState_data()
{
    QTest::addColumn<int>("byte");
    QTest::addColumn<bool>("text"); // may stand in a name
    QTest::newRow("no bit at all") << 0x00 << true;
    QTest::newRow("all bits") << 0xFF << false;
    QTest::newRow("a quote") << int('"') << true;
    QTest::newRow("a digit") << int('9') << true;
    QTest::newRow("an exponent") << int('e') << true;
    QTest::newRow("a minus") << int('-') << true;
    QTest::newRow("a bracket") << int('[') << true;
    QTest::newRow("the highest bit turned") << -0x80 << false;
    QTest::newRow("the lowest bit turned") << -0x01 << true;
}

void TestHostileBytes::oneDamagedByteLeavesASoundState()
{
    QFETCH(int, byte);
    QFETCH(bool, text);
    const QByteArray whole = small();
    int taken = 0;
    for (int at = 0; at < whole.size(); at += slowness() / 2 + 1) {
        QByteArray damaged = whole;
        damaged[at] = static_cast<char>(byte < 0 ? damaged.at(at) ^ -byte : byte);
        const Outcome outcome = offer(damaged);
        taken += outcome.error.isEmpty() ? 1 : 0;
        QCOMPARE(hostile_state::fault(*window) + QString::number(at), QString::number(at));
        QVERIFY2(outcome.ms <= 500 * slowness(), qPrintable(QString::number(outcome.ms)));
    }
    QCOMPARE(taken > 0, text);
    QCOMPARE(faultAfter(), QString());
}

void TestHostileBytes::oneMissingOrDoubledByteLeavesASoundState()
{
    const QByteArray text = small();
    for (int at = 0; at < text.size(); at += slowness() / 2 + 1) {
        QByteArray damaged = text;
        damaged.remove(at, 1);
        QCOMPARE(faultOf(damaged) + QString::number(at), QString::number(at));
        damaged = text;
        damaged.insert(at, text.at(at));
        QCOMPARE(faultOf(damaged) + QString::number(at), QString::number(at));
    }
    QCOMPARE(faultAfter(), QString());
}

void TestHostileBytes::fileThatGrowsOrShrinksBetweenTwoReadingsIsTakenAsItIs()
{
    const QString path = pathOf(QStringLiteral("living.svdb"));
    const QByteArray text = small();
    for (const int size : {text.size(), 0, text.size(), 1, text.size() + 3, text.size() - 1}) {
        backToFactory();
        QByteArray now = text.leftJustified(size, ' ', true);
        QVERIFY(write(path, now));
        QCOMPARE(offerFile(path).error.isEmpty(), size >= text.size());
        QCOMPARE(library().categories().contains("Mine"), size >= text.size());
        QCOMPARE(faultAfter(), QString());
    }
}

QTEST_MAIN(TestHostileBytes)
#include "test_hostile_bytes.moc"
