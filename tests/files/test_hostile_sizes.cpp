// Databases that are far too large, in number, in length or on disk. The window must take them or refuse them
// in good time, within a gibibyte, and go on being usable.

#include "HostileFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScrollBar>

#include <unistd.h>

namespace {

constexpr qint64 mebibyte = 1024 * 1024;
constexpr qint64 patience = 1000;   // milliseconds
constexpr qint64 mostMemory = 1024; // MiB

QByteArray scaleText(const QByteArray& category, const QByteArray& title, const QByteArray& word)
{
    return R"({"Category":")" + category + R"(","Title":")" + title + R"(","Scale":")" + word + R"("},)";
}

QByteArray rootOf(QByteArray scales, QByteArray headers = {})
{
    scales.chop(1);
    headers.chop(1);
    QByteArray text = R"({"SorvaneDefaultScalesArray":[)" + scales + ']';
    if (!headers.isEmpty())
        text += R"(,"SorvaneDefaultHeadersArray":[)" + headers + ']';
    return text + R"(,"PowerOnState":true,"LibViewOpened":true,"CurrentScene":1})";
}

/// As many words as anybody wants: beyond 2048 they are no scales, and longer.
QByteArray wordOf(int number)
{
    QByteArray word = "x";
    for (int bit = 0; bit < 11 || (number >> bit) != 0; ++bit)
        word += number & (1 << bit) ? 'x' : 'o';
    return word;
}

const char* const lines[] = {"Category", "Title", "Abbr1", "Abbr2", "LibBody", "Scale"};

} // namespace

class TestHostileSizes : public HostileFixture
{
    Q_OBJECT

private slots:
    void cleanup() { window->hide(); }

    void hundredThousandScalesInOneCategory();
    void hundredThousandCategories();
    void hundredThousandHeaders();
    void oneMegabyteInAnyText_data();
    void oneMegabyteInAnyText();
    void hugeFileOfNothingIsRefused_data();
    void hugeFileOfNothingIsRefused();
    void fileOfManyThingsIsRefusedOrTakenInGoodTime_data();
    void fileOfManyThingsIsRefusedOrTakenInGoodTime();
    void deepAndWideValueDoesNotSwellTheExport_data();
    void deepAndWideValueDoesNotSwellTheExport();
    void manyUnknownKeys();

private:
    /// Opens the library, walks through it, paints, plays and exports. "" if all of it goes in good time.
    QString faultOfUse() const;
    QString timed(const char* what, const std::function<void()>& act) const;
    static void walk(QListWidget& list);
    /// A hundred thousand, or fewer where all is slow.
    static int many() { return slowness() > 1 ? 20000 : 100000; }
};

QString TestHostileSizes::timed(const char* what, const std::function<void()>& act) const
{
    memory::resetPeak();
    const qint64 before = memory::peak(), begin = processorMs();
    act();
    const qint64 took = processorMs() - begin, peak = memory::peak() - before;
    if (took <= patience * slowness() && peak <= mostMemory)
        return {};
    return QStringLiteral("%1 takes %2 ms and %3 MiB. ").arg(QLatin1String(what)).arg(took).arg(peak);
}

void TestHostileSizes::walk(QListWidget& list)
{
    const QListWidgetItem* middle = list.item(list.count() / 2);
    list.scrollToItem(middle);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(middle).center());
    list.verticalScrollBar()->setValue(list.verticalScrollBar()->maximum());
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Down, Qt::Key_End, Qt::Key_Up}) {
        QTest::keyClick(&list, key);
        QCoreApplication::processEvents();
    }
    static_cast<void>(list.grab());
}

QString TestHostileSizes::faultOfUse() const
{
    QString text;
    text += timed("showing", [&] {
        window->show();
        openLibrary();
        QCoreApplication::processEvents();
    });
    text += timed("painting", [&] { static_cast<void>(window->grab()); });
    text += timed("browsing the categories", [&] { walk(categoryList()); });
    text += timed("browsing the scales", [&] { walk(scaleList()); });
    text += timed("playing", [&] { text += hostile_state::faultOfNotes(*window, *port); });
    text += timed("opening the library again", [&] {
        window->showLibraryScreen(false);
        window->showLibraryScreen(true);
        QCoreApplication::processEvents();
    });
    text += timed("painting again", [&] { static_cast<void>(window->grab()); });
    text += timed("exporting", [&] { text += exported().isEmpty() ? "no export " : ""; });
    return text;
}

void TestHostileSizes::hundredThousandScalesInOneCategory()
{
    QByteArray scales;
    for (int i = 0; i < many(); ++i)
        scales += scaleText("All", "Scale " + QByteArray::number(i), wordOf(i));
    const Outcome outcome = offer(rootOf(scales));
    QCOMPARE(library().scalesCountFromCategory("All"), many());
    QCOMPARE(faultOfUse(), QString());
    QCOMPARE(faultOfGood(outcome), QString());
}

void TestHostileSizes::hundredThousandCategories()
{
    QByteArray scales;
    for (int i = 0; i < many(); ++i)
        scales += scaleText("Category " + QByteArray::number(i), "Scale", wordOf(i % 2048));
    const Outcome outcome = offer(rootOf(scales));
    QCOMPARE(library().categoryCount(), many());
    QCOMPARE(faultOfUse(), QString());
    QCOMPARE(faultOfGood(outcome), QString());
}

void TestHostileSizes::hundredThousandHeaders()
{
    QByteArray headers;
    for (int i = 0; i < many(); ++i)
        headers += R"({"NameScenic1":"User","NameScenic2":")" + QByteArray::number(i % 200) +
                   R"(","ScaleOn":true,"TonicOn":true,"TonicData":"D","ScaleData":")" + wordOf(i) + R"("},)";
    const Outcome outcome = offer(rootOf(scaleText("All", "One", wordOf(5)), headers));
    QCOMPARE(faultOfUse(), QString());
    QCOMPARE(faultOfGood(outcome), QString());
}

void TestHostileSizes::oneMegabyteInAnyText_data()
{
    QTest::addColumn<QString>("array");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    const std::pair<const char*, QString> kinds[] = {
        {"letters", QStringLiteral("m").repeated(mebibyte)},
        {"words", QStringLiteral("word ").repeated(mebibyte / 5)},
        {"lines", QStringLiteral("a\n").repeated(mebibyte / 2)}};
    for (const auto& [kind, text] : kinds) {
        for (const char* key : lines)
            QTest::addRow("%s of %s", kind, key) << "SorvaneDefaultScalesArray" << key << text;
        for (const char* key : {"NameTonic", "NameScenic1", "TonicData", "ScaleData"})
            QTest::addRow("%s of %s", kind, key) << "SorvaneDefaultHeadersArray" << key << text;
        QTest::addRow("%s of TonicModifier", kind) << ""
                                                   << "TonicModifier" << text;
        QTest::addRow("%s of ScaleModifier", kind) << ""
                                                   << "ScaleModifier" << text;
    }
}

void TestHostileSizes::oneMegabyteInAnyText()
{
    QFETCH(QString, array);
    QFETCH(QString, key);
    QFETCH(QString, text);
    QJsonObject root = smallDatabase();
    root.insert("CurrentScene", 1);
    if (array.isEmpty())
        root.insert(key, text);
    QJsonArray records = root.value(array).toArray();
    for (int i = 0; i < records.size(); ++i) {
        QJsonObject record = records.at(i).toObject();
        record.insert(key, text);
        records.replace(i, record);
    }
    if (!array.isEmpty())
        root.insert(array, records);
    const Outcome outcome = offer(QJsonDocument(root).toJson());
    QCOMPARE(faultOfUse(), QString());
    QCOMPARE(faultOfGood(outcome), QString());
}

void TestHostileSizes::hugeFileOfNothingIsRefused_data()
{
    QTest::addColumn<int>("letter");
    QTest::addColumn<qint64>("size");
    QTest::newRow("blanks") << int(' ') << 200 * mebibyte;
    QTest::newRow("as many blanks as are read") << int(' ') << 128 * mebibyte;
    QTest::newRow("brackets") << int('[') << 128 * mebibyte;
    QTest::newRow("sparse") << -1 << 200 * mebibyte;
    QTest::newRow("sparse, of the size that is read") << -1 << 128 * mebibyte;
    QTest::newRow("sparse, larger than memory") << -1 << 100 * 1024 * mebibyte;
}

void TestHostileSizes::hugeFileOfNothingIsRefused()
{
    QFETCH(int, letter);
    QFETCH(qint64, size);
    const QString path = pathOf(QStringLiteral("huge.svdb"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    const QByteArray block(static_cast<int>(mebibyte), static_cast<char>(letter));
    for (qint64 done = 0; letter >= 0 && done < size; done += mebibyte)
        QCOMPARE(file.write(block), mebibyte);
    file.close();
    QCOMPARE(::truncate(QFile::encodeName(path).constData(), size), 0);
    const QString before = hostile_state::summary(*window);
    const Outcome outcome = offerFile(path);
    QVERIFY(QFile::remove(path));
    QVERIFY(!outcome.error.isEmpty());
    QVERIFY2(outcome.ms <= patience * slowness(), qPrintable(QString::number(outcome.ms)));
    QVERIFY2(outcome.peak <= 300, qPrintable(QString::number(outcome.peak)));
    QCOMPARE(hostile_state::summary(*window), before);
    QCOMPARE(faultAfter(), QString());
}

void TestHostileSizes::fileOfManyThingsIsRefusedOrTakenInGoodTime_data()
{
    QTest::addColumn<int>("mebibytes");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("thing");
    for (const int mebibytes : {4, 127})
        for (const char* key : {"Unknown", "SorvaneDefaultScalesArray", "SorvaneDefaultHeadersArray"})
            for (const char* thing : {"1,", "[1],", "{\"\":1},", "\"\","})
                QTest::addRow("%d MiB of %s in %s", mebibytes, thing, key)
                    << mebibytes << QByteArray(key) << QByteArray(thing);
}

void TestHostileSizes::fileOfManyThingsIsRefusedOrTakenInGoodTime()
{
    QFETCH(int, mebibytes);
    QFETCH(QByteArray, key);
    QFETCH(QByteArray, thing);
    const int things = mebibytes * static_cast<int>(mebibyte) / thing.size();
    QByteArray text =
        "{\"" + key + "\":[" + thing.repeated(slowness() > 1 && mebibytes < 10 ? things / 8 : things);
    text.chop(1);
    text += "]}";
    const Outcome outcome = offer(text);
    text = QByteArray();
    QVERIFY2(outcome.ms <= 2 * patience * slowness(), qPrintable(QString::number(outcome.ms)));
    QVERIFY2(outcome.peak <= mostMemory, qPrintable(QString::number(outcome.peak)));
    QCOMPARE(timed("exporting", [&] { QVERIFY(!exported().isEmpty()); }), QString());
    QCOMPARE(offer("{\"" + key + "\":0}").error, QString());
    QCOMPARE(faultAfter(), QString());
}

void TestHostileSizes::deepAndWideValueDoesNotSwellTheExport_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<int>("depth");
    QTest::addColumn<int>("width");
    for (const char* key :
         {"Unknown", "DatabasePath", "MidiInPort-x", "SorvaneDefaultScalesArray", "ScaleModifier"})
        for (const int depth : {10, 100, 1000})
            QTest::addRow("%s, %d levels", key, depth) << QByteArray(key) << depth << 20000;
    QTest::newRow("more than can be written") << QByteArray("Unknown") << 1000 << 1000000;
}

// The written form puts each number on a line of its own, as far right as it is deep.
void TestHostileSizes::deepAndWideValueDoesNotSwellTheExport()
{
    QFETCH(QByteArray, key);
    QFETCH(int, depth);
    QFETCH(int, width);
    const QByteArray text = "{\"" + key + "\":" + QByteArray(depth, '[') + QByteArray("1,").repeated(width) +
                            '1' + QByteArray(depth, ']') + '}';
    static_cast<void>(offer(text));
    QByteArray written;
    const QString slow = timed("exporting", [&] { written = exported(); });
    QCOMPARE(offer("{\"" + key + "\":0}").error, QString());
    QVERIFY(!written.isEmpty());
    QVERIFY2(written.size() < 64 * text.size() + 100000, qPrintable(QString::number(written.size())));
    QCOMPARE(slow, QString());
    QCOMPARE(faultAfter(), QString());
}

void TestHostileSizes::manyUnknownKeys()
{
    QByteArray text = "{";
    for (int i = 0; i < many(); ++i)
        text += "\"key" + QByteArray::number(i) + "\":1,";
    text += "\"PowerOnState\":true}";
    QCOMPARE(faultOfGood(offer(text)), QString());
    QCOMPARE(faultOfUse(), QString());
}

QTEST_MAIN(TestHostileSizes)
#include "test_hostile_sizes.moc"
