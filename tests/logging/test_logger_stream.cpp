// The stream that becomes an entry: what can be written to it, and when the entry comes into being.

#include "LoggerProbe.h"
#include "RecordingObserver.h"
#include "logging/LoggerStream.h"
#include "the_model.h"

#include <QtTest>

#include <climits>
#include <thread>

namespace {

/// The text of the entry that these values make.
template <typename... Values>
QString written(const Values&... values)
{
    {
        LoggerStream stream = model()->log(LoggerModel::info, 1);
        (stream << ... << values);
    }
    return LoggerProbe::texts().last();
}

} // namespace

class TestLoggerStream : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { LoggerProbe::freshModel(); }

    void integersAreWritten();
    void realNumbersAreWritten();
    void charactersAreWritten();
    void stringsAreWritten();
    void utf8IsUnderstood();
    void plainCharactersAreLatin1();
    void pointersAreWritten();
    void manipulatorsAreObeyed();

    void entryHasLevelAndId();
    void entryIsMadeAtTheEndOfTheExpression();
    void entryIsMadeAtTheEndOfTheBlock();
    void emptyStreamMakesAnEmptyEntry();
    void linesAreOneEntry();
    void copyMakesAnEntryOfItsOwn();
    void copyOfAWrittenStreamHasItsOwnText();
    void idOfZeroIsTheThreadsThatEndsIt();
    void observerGetsItAtOnce();
    void otherEntriesMayComeMeanwhile();
};

void TestLoggerStream::integersAreWritten()
{
    QCOMPARE(written(short(SHRT_MIN)), QString("-32768"));
    QCOMPARE(written(static_cast<unsigned short>(USHRT_MAX)), QString("65535"));
    QCOMPARE(written(INT_MIN), QString("-2147483648"));
    QCOMPARE(written(UINT_MAX), QString("4294967295"));
    QCOMPARE(written(-9223372036854775807L - 1), QString("-9223372036854775808"));
    QCOMPARE(written(18446744073709551615UL), QString("18446744073709551615"));
    QCOMPARE(written(qint64(-9223372036854775807LL - 1)), QString("-9223372036854775808"));
    QCOMPARE(written(quint64(18446744073709551615ULL)), QString("18446744073709551615"));
    QCOMPARE(written(0), QString("0"));
    QCOMPARE(written(true), QString("1"));
}

void TestLoggerStream::realNumbersAreWritten()
{
    QCOMPARE(written(1.5), QString("1.5"));
    QCOMPARE(written(-2.25F), QString("-2.25"));
}

void TestLoggerStream::charactersAreWritten()
{
    QCOMPARE(written('a'), QString("a"));
    QCOMPARE(written(QChar(0x266a)), QString::fromUtf8("♪"));
    QCOMPARE(written(QLatin1Char('b')), QString("b"));
}

void TestLoggerStream::stringsAreWritten()
{
    const char array[] = "an array";
    const char* const pointer = "a pointer";
    QCOMPARE(written("literal"), QString("literal"));
    QCOMPARE(written(array), QString("an array"));
    QCOMPARE(written(pointer), QString("a pointer"));
    QCOMPARE(written(QString("string")), QString("string"));
    QCOMPARE(written(QLatin1String("latin")), QString("latin"));
    QCOMPARE(written(QStringView(u"view")), QString("view"));
    QCOMPARE(written(QStringLiteral("reference").midRef(0, 5)), QString("refer"));
    QCOMPARE(written(QByteArray("bytes")), QString("bytes"));
    QCOMPARE(written(QStringLiteral("a") + QStringLiteral("b")), QString("ab"));
    QCOMPARE(written("a ", 1, ' ', QString("b")), QString("a 1 b"));
}

void TestLoggerStream::utf8IsUnderstood()
{
    const QString text = QString::fromUtf8("Gerät ♪ 𝄞");
    QCOMPARE(written(text), text);
    QCOMPARE(written(QByteArray("Gerät ♪ 𝄞")), text);
}

/// As Qt's text streams have it; what is not Latin-1 goes by a QString.
void TestLoggerStream::plainCharactersAreLatin1()
{
    QCOMPARE(written("Ger\xe4t"), QString::fromUtf8("Gerät"));
    QCOMPARE(written('\xe4'), QString::fromUtf8("ä"));
}

void TestLoggerStream::pointersAreWritten()
{
    int value = 0;
    const QString address = QLatin1String("0x") + QString::number(quintptr(&value), 16);
    QCOMPARE(written(static_cast<const void*>(&value)), address);
    QCOMPARE(written(&value), address);
    QCOMPARE(written(static_cast<const void*>(nullptr)), QString("0x0"));
}

void TestLoggerStream::manipulatorsAreObeyed()
{
    QCOMPARE(written(Qt::hex, 255, ' ', Qt::oct, 8, ' ', Qt::dec, 10), QString("ff 10 10"));
    QCOMPARE(written(Qt::showbase, Qt::uppercasedigits, Qt::hex, 255), QString("0xFF"));
    QCOMPARE(written("a", Qt::endl, "b"), QString("a\nb"));
    QCOMPARE(written(qSetFieldWidth(5), 3, qSetFieldWidth(0), "|"), QString("    3|"));
    QCOMPARE(written(qSetFieldWidth(3), qSetPadChar('*'), Qt::left, 'a'), QString("a**"));
    QCOMPARE(written(Qt::fixed, qSetRealNumberPrecision(2), 1.0), QString("1.00"));
    QCOMPARE(written("a", Qt::flush, "b"), QString("ab"));
}

void TestLoggerStream::entryHasLevelAndId()
{
    model()->log(LoggerModel::warn, 12) << "text";
    const LoggerItem item = LoggerProbe::items().constFirst();
    QCOMPARE(item.level, LoggerModel::warn);
    QCOMPARE(item.id, 12ULL);
    QCOMPARE(item.text, QString("text"));
}

void TestLoggerStream::entryIsMadeAtTheEndOfTheExpression()
{
    model()->log(LoggerModel::info, 1) << "before it: " << LoggerProbe::texts().size();
    QCOMPARE(LoggerProbe::texts(), QStringList{"before it: 0"});
}

void TestLoggerStream::entryIsMadeAtTheEndOfTheBlock()
{
    {
        LoggerStream stream = model()->log(LoggerModel::info, 1);
        stream << "a" << Qt::flush;
        QCOMPARE(LoggerProbe::texts(), QStringList());
        stream << "b";
    }
    QCOMPARE(LoggerProbe::texts(), QStringList{"ab"});
}

void TestLoggerStream::emptyStreamMakesAnEmptyEntry()
{
    model()->log(LoggerModel::info, 1);
    QCOMPARE(LoggerProbe::texts(), QStringList{""});
}

void TestLoggerStream::linesAreOneEntry()
{
    model()->log(LoggerModel::info, 1) << "one\n"
                                       << "two" << Qt::endl;
    QCOMPARE(LoggerProbe::texts(), QStringList{"one\ntwo\n"});
}

void TestLoggerStream::copyMakesAnEntryOfItsOwn()
{
    {
        LoggerStream stream = model()->log(LoggerModel::warn, 12);
        LoggerStream copy(stream);
        stream << "of the stream";
        copy << "of the copy";
    }
    const QVector<LoggerItem> items = LoggerProbe::items();
    QCOMPARE(LoggerProbe::texts(), QStringList({"of the copy", "of the stream"})); // the last made ends first
    for (const LoggerItem& item : items) {
        QCOMPARE(item.level, LoggerModel::warn);
        QCOMPARE(item.id, 12ULL);
    }
}

void TestLoggerStream::copyOfAWrittenStreamHasItsOwnText()
{
    {
        LoggerStream stream = model()->log(LoggerModel::info, 1);
        stream << "a";
        LoggerStream copy(stream);
        copy << "b";
        stream << "c";
    }
    QCOMPARE(LoggerProbe::texts(), QStringList({"b", "ac"}));
}

void TestLoggerStream::idOfZeroIsTheThreadsThatEndsIt()
{
    model()->log(LoggerModel::info, 0) << "here";
    std::thread([] { model()->log(LoggerModel::info, 0) << "there"; }).join();
    model()->log(LoggerModel::info, "plain", 0);
    const QVector<LoggerItem> items = LoggerProbe::items();
    QCOMPARE(items[0].id, items[2].id);
    QVERIFY(items[1].id != items[0].id);
    QCOMPARE(items[1].id >> 60, 2ULL);
}

void TestLoggerStream::observerGetsItAtOnce()
{
    RecordingObserver observer;
    model()->registerObserver(&observer);
    model()->log(LoggerModel::info, 1) << "text";
    QCOMPARE(observer.texts(), QStringList{"text"});
    QCOMPARE(observer.entries().constFirst().level, LoggerModel::info);
}

void TestLoggerStream::otherEntriesMayComeMeanwhile()
{
    {
        LoggerStream stream = model()->log(LoggerModel::info, 1);
        stream << "begun first";
        model()->log(LoggerModel::info, "between", 1);
    }
    QCOMPARE(LoggerProbe::texts(), QStringList({"between", "begun first"}));
}

QTEST_GUILESS_MAIN(TestLoggerStream)
#include "test_logger_stream.moc"
