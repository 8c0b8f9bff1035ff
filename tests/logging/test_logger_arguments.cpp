// What other arguments and another locale change in the log's lines. Started with "entries FILE FILE" the
// program writes some itself.

#include "LogFixture.h"

#include "logging/LoggerFile.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#include <memory>

using namespace log_fixture;

namespace {

using Level = LoggerModel::LoggerModelLogLevel;

const char* const childMark = "entries";

} // namespace

class TestLoggerArguments : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void argumentMakesLinesSimple_data();
    void argumentMakesLinesSimple();
    void localeChangesNoByte_data();
    void localeChangesNoByte();
    void systemsEncodingChangesNoByte_data();
    void systemsEncodingChangesNoByte();

private:
    QString path(const QString& name) const { return folder->filePath(name); }
    /// Starts this program with these arguments, to write to its files; true if it came to its end.
    bool start(const QStringList& arguments, const QString& locale = "C") const;

    std::unique_ptr<QTemporaryDir> folder;
};

void TestLoggerArguments::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

bool TestLoggerArguments::start(const QStringList& arguments, const QString& locale) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", locale);
    environment.insert("LANG", locale);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationFilePath(),
                  QStringList{childMark, path("named.log"), path("stream.log")} + arguments);
    return program.waitForFinished() && program.exitStatus() == QProcess::NormalExit &&
           program.exitCode() == 0;
}

void TestLoggerArguments::argumentMakesLinesSimple_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("isSimple");
    QTest::newRow("none") << QStringList() << false;
    QTest::newRow("the word") << QStringList("qv_simple_logging") << true;
    QTest::newRow("among others") << QStringList{"--debug", "qv_simple_logging", "x"} << true;
    QTest::newRow("an option of that name") << QStringList("--qv_simple_logging") << false;
    QTest::newRow("capitals") << QStringList("QV_SIMPLE_LOGGING") << false;
    QTest::newRow("longer") << QStringList("qv_simple_logging2") << false;
    QTest::newRow("shorter") << QStringList("qv_simple") << false;
}

void TestLoggerArguments::argumentMakesLinesSimple()
{
    QFETCH(QStringList, arguments);
    QFETCH(bool, isSimple);
    QVERIFY(start(arguments));
    QByteArray expected;
    for (const int level : levels)
        expected += wordOf(level) + (isSimple ? "\t: " : "\tPID 5 : 14:03:59.007\t") +
                    everyKindOfText.toUtf8() + '\n';
    QCOMPARE(contentOf(path("named.log")), expected);
    QCOMPARE(contentOf(path("stream.log")), expected);
}

void TestLoggerArguments::localeChangesNoByte_data()
{
    QTest::addColumn<QString>("locale");
    for (const char* locale : {"C", "C.UTF-8", "de_DE.ISO-8859-1", "ar_EG.UTF-8", "no such"})
        QTest::newRow(locale) << locale;
}

void TestLoggerArguments::localeChangesNoByte()
{
    QFETCH(QString, locale);
    QVERIFY(start({}, locale));
    const QByteArray content = contentOf(path("named.log"));
    QVERIFY(content.startsWith("Unknown\tPID 5 : 14:03:59.007\t" + everyKindOfText.toUtf8() + "\nAll\tPID"));
    QCOMPARE(contentOf(path("stream.log")), content);
}

void TestLoggerArguments::systemsEncodingChangesNoByte_data()
{
    QTest::addColumn<QByteArray>("encoding");
    for (const char* encoding : {"ISO-8859-1", "KOI8-R", "Shift_JIS", "UTF-8"})
        QTest::newRow(encoding) << QByteArray(encoding);
}

// As a locale that is installed has it; which ones are differs.
void TestLoggerArguments::systemsEncodingChangesNoByte()
{
    QFETCH(QByteArray, encoding);
    QTextCodec* codec = QTextCodec::codecForName(encoding);
    QVERIFY(codec);
    QTextCodec* before = QTextCodec::codecForLocale();
    const QString name = path("a.log");
    QTextCodec::setCodecForLocale(codec);
    LoggerFile log(name, LoggerModel::all, 0, 1, false);
    LoggerItem item = entry(everyKindOfText);
    log.mpLogEvent(item);
    QTextCodec::setCodecForLocale(before);
    QCOMPARE(contentOf(name), errorLine(everyKindOfText));
}

namespace {

/// An entry of every level, to a file by its name and to an open one.
int writeEntries(const char* name, const char* streamName)
{
    FILE* stream = fopen(streamName, "w");
    if (!stream)
        return 1;
    LoggerFile named(name, LoggerModel::all, 0, 1, false), given(stream, LoggerModel::all);
    for (const int level : levels) {
        LoggerItem item = entry(everyKindOfText, Level(level));
        item.id = 0x2000000000000005;
        named.mpLogEvent(item);
        given.mpLogEvent(item);
    }
    return fclose(stream);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc > 3 && qstrcmp(argv[1], childMark) == 0)
        return writeEntries(argv[2], argv[3]);
    TestLoggerArguments test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_logger_arguments.moc"
