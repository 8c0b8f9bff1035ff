// What the lists make of a payload that is dropped: where a scale goes, what is refused, who is told.

#include "LibraryFixture.h"

#include <QDataStream>
#include <QMimeData>
#include <QtTest>

namespace {

const QString format = QStringLiteral("sorvane/scaleitemmodeldata");

QByteArray bytesOf(const QVariant& category, const QVariant& word, const QVariant& title, int index)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << category << word << title << index;
    return bytes;
}

std::unique_ptr<QMimeData> mimeOf(const QByteArray& bytes, const QString& type = format)
{
    auto mime = std::make_unique<QMimeData>();
    mime->setData(type, bytes);
    return mime;
}

} // namespace

class TestScaleListsDrop : public LibraryFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        openWindow();
        openLibrary();
        scale().setSwitchOff(true);
        play(ionian);
        settle();
    }

    // On the scales
    void dropReordersTheCategory_data();
    void dropReordersTheCategory();
    void dropWhereItWasDoesNothing_data();
    void dropWhereItWasDoesNothing();
    void dropFromAnotherCategoryInsertsACopy_data();
    void dropFromAnotherCategoryInsertsACopy();
    void dropOfAWordThatIsThereIsRefused();
    void dropIsFollowedByTheBrowser();
    void dropOfThePlayedScaleChecksTheMatch();

    // On the categories
    void dropOnACategoryMovesToItsEnd();
    void dropOnACategoryCopiesWhereThatIsOffered();
    void dropOnTheSourceOrAHolderIsRefused();
    void dropOnNoCategoryIsRefused();
    void onlyWhatIsTakenIsOffered();

    // Bad payloads
    void stalePayloadIsRefused_data();
    void stalePayloadIsRefused();
    void payloadCutAnywhereIsRefused();
    void payloadOfAnotherKindIsRefused_data();
    void payloadOfAnotherKindIsRefused();

private:
    std::unique_ptr<QMimeData> payload(int from, int index) const
    {
        const QString word = words(category(from)).value(index);
        return mimeOf(bytesOf(category(from), word, titleOf(word), index));
    }
    QStringList allWords() const
    {
        QStringList lines;
        for (const QString& name : library().categories())
            lines << name + QLatin1Char(':') + QStringList(words(name)).join(',');
        return lines << library().currentCategory();
    }
    bool refuse(const QMimeData* mime, int index, int row)
    {
        const QStringList before = allWords();
        const bool taken = scaleList().dropData(index, mime) || categoryList().dropData(row, mime);
        return !taken && !categoryList().takes(row, nullptr) && allWords() == before;
    }
};

void TestScaleListsDrop::dropReordersTheCategory_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("to");
    QTest::newRow("up") << 4 << 1 << 1;
    QTest::newRow("to the top") << 6 << 0 << 0;
    QTest::newRow("down") << 1 << 4 << 3;
    QTest::newRow("to the end") << 2 << 7 << 6;
    QTest::newRow("down by one") << 0 << 2 << 1;
    QTest::newRow("past the end") << 2 << 99 << 6;
}

void TestScaleListsDrop::dropReordersTheCategory()
{
    QFETCH(int, from);
    QFETCH(int, before);
    QFETCH(int, to);
    QList<QString> wanted = words(category(0));
    const QString word = wanted.takeAt(from);
    wanted.insert(to, word);
    QSignalSpy moved(&scaleList(), &ScaleListWidget::itemMoved);
    QSignalSpy inserted(&scaleList(), &ScaleListWidget::itemInserted);
    QVERIFY(scaleList().dropData(before, payload(0, from).get()));
    QCOMPARE(words(category(0)), wanted);
    QCOMPARE(moved.size(), 1);
    QCOMPARE(moved.first(), (QVariantList{from, to}));
    QCOMPARE(inserted.size(), 0);
    QCOMPARE(rows(scaleList()), titles(category(0)));
}

void TestScaleListsDrop::dropWhereItWasDoesNothing_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("before");
    QTest::newRow("on itself") << 2 << 2;
    QTest::newRow("behind itself") << 2 << 3;
    QTest::newRow("last to the end") << 6 << 7;
    QTest::newRow("nowhere") << 2 << -1;
}

void TestScaleListsDrop::dropWhereItWasDoesNothing()
{
    QFETCH(int, from);
    QFETCH(int, before);
    const QStringList whole = allWords();
    QSignalSpy moved(&scaleList(), &ScaleListWidget::itemMoved);
    QVERIFY(!scaleList().dropData(before, payload(0, from).get()));
    QCOMPARE(allWords(), whole);
    QCOMPARE(moved.size(), 0);
}

void TestScaleListsDrop::dropFromAnotherCategoryInsertsACopy_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("to");
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("middle") << 3 << 3;
    QTest::newRow("end") << 7 << 7;
    QTest::newRow("past the end") << 99 << 7;
}

void TestScaleListsDrop::dropFromAnotherCategoryInsertsACopy()
{
    QFETCH(int, before);
    QFETCH(int, to);
    const auto mime = payload(4, 0);
    const QString word = words(category(4)).first();
    QList<QString> wanted = words(category(0));
    wanted.insert(to, word);
    QSignalSpy moved(&scaleList(), &ScaleListWidget::itemMoved);
    QSignalSpy inserted(&scaleList(), &ScaleListWidget::itemInserted);
    QVERIFY(scaleList().dropData(before, mime.get()));
    QCOMPARE(words(category(0)), wanted);
    QCOMPARE(words(category(4)), QList<QString>{word});
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(inserted.first(), QVariantList{to});
    QCOMPARE(moved.size(), 0);
}

void TestScaleListsDrop::dropOfAWordThatIsThereIsRefused()
{
    library().appendScaleToCategory(category(4), ionian);
    const auto mime = payload(4, 1);
    const QStringList before = allWords();
    QSignalSpy inserted(&scaleList(), &ScaleListWidget::itemInserted);
    QVERIFY(!scaleList().dropData(0, mime.get()));
    QCOMPARE(allWords(), before);
    QCOMPARE(inserted.size(), 0);
}

// At once: the row that was dropped is the current one, before the played word takes it along.
void TestScaleListsDrop::dropIsFollowedByTheBrowser()
{
    QList<int> current;
    const auto lists =
        connect(&scaleList(), &QListWidget::currentRowChanged, this, [&](int row) { current << row; });
    const QString word = words(category(0)).at(5);
    QVERIFY(scaleList().dropData(1, payload(0, 5).get()));
    QCOMPARE(scaleList().keyAt(1), word);
    QVERIFY(!current.isEmpty());
    QCOMPARE(current.last(), 1);
    disconnect(lists);
    settle();
    QCOMPARE(scaleList().keyAt(scaleList().currentRow()), ionian);
}

void TestScaleListsDrop::dropOfThePlayedScaleChecksTheMatch()
{
    const int from = words(category(0)).indexOf(ionian);
    library().setCurrentScaleIndex(category(0), 5);
    QVERIFY(scaleList().dropData(7, payload(0, from).get()));
    QCOMPARE(library().currentScaleIndex(category(0)), 6);
    settle();
    QCOMPARE(scaleList().currentRow(), 6);
    QVERIFY(categoryList().dropData(4, payload(0, 6).get()));
    QCOMPARE(library().currentCategory(), category(4));
    QCOMPARE(library().currentScale(), ionian);
    QVERIFY(!view().mark->isVisible());
}

void TestScaleListsDrop::dropOnACategoryMovesToItsEnd()
{
    QList<QString> source = words(category(0)), target = words(category(2));
    const QString word = source.at(3);
    const auto mime = payload(0, 3);
    QVERIFY(categoryList().takes(2, mime.get()));
    QVERIFY(categoryList().dropData(2, mime.get()));
    source.removeAt(3);
    QCOMPARE(words(category(0)), source);
    QCOMPARE(words(category(2)), target + QList<QString>{word});
}

void TestScaleListsDrop::dropOnACategoryCopiesWhereThatIsOffered()
{
    const QList<QString> source = words(category(0)), target = words(category(2));
    const auto mime = payload(0, 3);
    categoryList().offer(mime.get(), Qt::CopyAction);
    QVERIFY(categoryList().dropData(2, mime.get()));
    QCOMPARE(words(category(0)), source);
    QCOMPARE(words(category(2)), target + QList<QString>{source.at(3)});
}

void TestScaleListsDrop::dropOnTheSourceOrAHolderIsRefused()
{
    const auto mime = payload(0, 3);
    library().appendScaleToCategory(category(2), words(category(0)).at(3));
    for (const int row : {0, 2}) {
        QVERIFY(!categoryList().takes(row, mime.get()));
        const QStringList before = allWords();
        QVERIFY(!categoryList().dropData(row, mime.get()));
        QCOMPARE(allWords(), before);
    }
    QVERIFY(categoryList().takes(1, mime.get()));
    library().removeScaleFromCategory(category(0), 3); // even then
    QVERIFY(!categoryList().takes(0, mime.get()));
}

void TestScaleListsDrop::dropOnNoCategoryIsRefused()
{
    const auto mime = payload(0, 3);
    for (const int row : {-1, 10, 99}) {
        QVERIFY(!categoryList().takes(row, mime.get()));
        QVERIFY(!categoryList().dropData(row, mime.get()));
    }
    QVERIFY(!categoryList().dropData(2, nullptr));
    QVERIFY(!scaleList().dropData(2, nullptr));
}

void TestScaleListsDrop::onlyWhatIsTakenIsOffered()
{
    const QPoint onRow2 = categoryList().visualItemRect(categoryList().item(2)).center();
    QVERIFY(!categoryList().dropData(onRow2)); // nothing is
    const auto mime = payload(0, 3);
    categoryList().offer(mime.get(), Qt::MoveAction);
    categoryList().dragCancel();
    QVERIFY(!categoryList().dropData(onRow2));
    categoryList().offer(mime.get(), Qt::MoveAction);
    QVERIFY(categoryList().dropData(onRow2));
    QVERIFY(!scaleList().dropData(QPoint(5, 5))); // no drag is under way
}

void TestScaleListsDrop::stalePayloadIsRefused_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("category");
    QTest::addColumn<QString>("word");
    const QString first = QStringLiteral("1 - Major Scale Modes");
    QTest::newRow("index before") << -1 << first << ionian;
    QTest::newRow("far before") << -1000000 << first << ionian;
    QTest::newRow("other index") << 5 << first << ionian;
    QTest::newRow("past the end") << 7 << first << ionian;
    QTest::newRow("far past the end") << 2000000000 << first << ionian;
    QTest::newRow("unknown category") << 1 << "no such" << ionian;
    QTest::newRow("no category") << 1 << "" << ionian;
    QTest::newRow("unknown word") << 1 << first << unknownWord;
    QTest::newRow("no word") << 1 << first << "";
    QTest::newRow("no word past the end") << 99 << first << "";
    QTest::newRow("nothing") << 0 << ""
                             << "";
}

void TestScaleListsDrop::stalePayloadIsRefused()
{
    QFETCH(int, index);
    QFETCH(QString, category);
    QFETCH(QString, word);
    QCOMPARE(words(this->category(0)).indexOf(ionian), 1);
    const auto mime = mimeOf(bytesOf(category, word, QStringLiteral("T"), index));
    const QStringList before = allWords();
    for (const int to : {0, 3, 7}) {
        QVERIFY(!scaleList().dropData(to, mime.get()));
        QVERIFY(!categoryList().dropData(to, mime.get()));
    }
    QCOMPARE(allWords(), before);
}

void TestScaleListsDrop::payloadCutAnywhereIsRefused()
{
    const QByteArray whole = bytesOf(category(0), words(category(0)).first(), QStringLiteral("T"), 0);
    for (int length = 0; length < whole.size(); ++length)
        QVERIFY2(refuse(mimeOf(whole.left(length)).get(), 4, 2), QByteArray::number(length).constData());
    QVERIFY(scaleList().dropData(4, mimeOf(whole).get()));
}

void TestScaleListsDrop::payloadOfAnotherKindIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("type");
    const QString first = QStringLiteral("1 - Major Scale Modes");
    QTest::newRow("other format") << bytesOf(first, ionian, "T", 1) << QStringLiteral("text/plain");
    QTest::newRow("text") << QByteArray("some text that is no payload") << format;
    QTest::newRow("ones") << QByteArray(200, '\xff') << format;
    QTest::newRow("zeros") << QByteArray(200, '\0') << format;
    QTest::newRow("numbers") << bytesOf(1, 2, 3, 1) << format;
    QTest::newRow("list") << bytesOf(QStringList{first}, QVariantMap(), QVariant(), 1) << format;
    QTest::newRow("huge length") << QByteArray("\0\0\0\x0a\0\x7f\xff\xff\xf0", 9) << format;
}

void TestScaleListsDrop::payloadOfAnotherKindIsRefused()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, type);
    QVERIFY(refuse(mimeOf(bytes, type).get(), 0, 2));
}

QTEST_MAIN(TestScaleListsDrop)
#include "test_scale_lists_drop.moc"
