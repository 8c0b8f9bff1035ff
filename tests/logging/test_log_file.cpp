// The program's log: its folder and file, what stands in it at the start, and how it goes with the model.

#include "LogFixture.h"

#include "logging/LoggerObserver.h"
#include "logging/log_file.h"

#include <QDateTime>
#include <QDir>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <array>
#include <memory>
#include <sys/time.h>

using namespace log_fixture;

namespace {

using Level = LoggerModel::LoggerModelLogLevel;

constexpr unsigned long long ofNoKind = 1; // an id that leaves no number in the line

LoggerModel& model()
{
    return *LoggerModel::getInstance();
}

/// The time that this process is told, as the system's clock stood still.
timeval shownTime = {};

void showTime(const QDateTime& moment)
{
    shownTime.tv_sec = moment.toSecsSinceEpoch();
}

/// The lines without the thread's number.
QByteArray withoutItsNumber(const QByteArray& content)
{
    static const QRegularExpression number(QStringLiteral("PID \\d+"));
    return QString::fromUtf8(content).replace(number, QStringLiteral("NUMBER")).toUtf8();
}

} // namespace

// Takes the place of the system's.
extern "C" int gettimeofday(timeval* time, void*) noexcept
{
    *time = shownTime;
    return 0;
}

class TestLogFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void folderIsMadeWithAFileOfTheTime();
    void folderThatIsThereIsUsed();
    void levelIsErrorUnlessItIsGiven_data();
    void levelIsErrorUnlessItIsGiven();
    void startIsTheEntryOfThreeLines_data();
    void startIsTheEntryOfThreeLines();
    void debugLineTellsThePath();
    void folderThatCannotBeMadeIsOneWarning();
    void secondStartWithinASecondWritesTwice();
    void halfAMegabyteAndFiveBackupsAreKept();

private:
    QString home() const { return folder->filePath("home"); }
    QString logFolder() const { return home() + "/The Makers/Sorvane"; }
    /// The one file that is there, or "".
    QString logPath() const;

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<Messages> messages;
};

void TestLogFile::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    showTime(QDateTime(QDate(2031, 5, 7), QTime(4, 5, 6)));
    qputenv("XDG_DATA_HOME", QFile::encodeName(home()));
    QCoreApplication::setOrganizationName("The Makers");
    QCoreApplication::setApplicationName("Sorvane");
    messages = std::make_unique<Messages>();
}

void TestLogFile::cleanup()
{
    model().removeObserver(nullptr, true);
    messages.reset();
}

QString TestLogFile::logPath() const
{
    const QStringList names = namesIn(logFolder());
    return names.size() == 1 ? logFolder() + '/' + names.constFirst() : QString();
}

void TestLogFile::folderIsMadeWithAFileOfTheTime()
{
    initializeLogFile();
    QCOMPARE(namesIn(logFolder()), QStringList("Sorvane04_05_06.log"));
    QCOMPARE(namesIn(home()), QStringList("The Makers"));
    QCOMPARE(Messages::warnings().join("; "), QString());
}

void TestLogFile::folderThatIsThereIsUsed()
{
    QVERIFY(QDir().mkpath(logFolder()) && put(logFolder() + "/sorvane.svdb", "kept"));
    initializeLogFile();
    const QStringList names = namesIn(logFolder());
    QCOMPARE(names.size(), 2);
    QVERIFY(names.contains("sorvane.svdb"));
    QCOMPARE(contentOf(logFolder() + "/sorvane.svdb"), QByteArray("kept"));
}

void TestLogFile::levelIsErrorUnlessItIsGiven_data()
{
    QTest::addColumn<int>("given"); // -2: not given
    QTest::addColumn<int>("threshold");
    QTest::newRow("not given") << -2 << 5;
    for (int level = 0; level <= 6; ++level)
        QTest::addRow("level %d", level) << level << level;
}

void TestLogFile::levelIsErrorUnlessItIsGiven()
{
    QFETCH(int, given);
    QFETCH(int, threshold);
    if (given == -2)
        initializeLogFile();
    else
        initializeLogFile(Level(given));
    const QByteArray start = contentOf(logPath());
    QCOMPARE(start.isEmpty(), threshold > 3); // the entry of the start is of level info
    for (int level = 0; level <= 6; ++level) {
        const QString text = QStringLiteral("of level %1").arg(level);
        model().log(Level(level), text, ofNoKind);
        const bool isWritten = contentOf(logPath()).endsWith('\t' + text.toUtf8() + '\n');
        QCOMPARE(isWritten, level >= threshold);
    }
}

void TestLogFile::startIsTheEntryOfThreeLines_data()
{
    QTest::addColumn<QDate>("day");
    QTest::addColumn<QByteArray>("words");
    const std::array<const char*, 12> months = {"January",   "February", "March",    "April",
                                                "May",       "June",     "July",     "August",
                                                "September", "October",  "November", "December"};
    for (int month = 1; month <= 12; ++month) {
        const QByteArray name = months.at(std::size_t(month - 1));
        QTest::addRow("first of %s", name.constData()) << QDate(2031, month, 1) << "01" + name + "2031";
        QTest::addRow("tenth of %s", name.constData()) << QDate(1999, month, 10) << "10" + name + "1999";
    }
}

void TestLogFile::startIsTheEntryOfThreeLines()
{
    QFETCH(QDate, day);
    QFETCH(QByteArray, words);
    showTime(QDateTime(day, QTime(12, 0)));
    initializeLogFile(LoggerModel::info);
    const QByteArray dashes(86, '-');
    QCOMPARE(withoutItsNumber(contentOf(logPath())), "Info\tNUMBER : 12:00:00.000\t" + dashes +
                                                         "\nSorvane app started : " + words + '\n' + dashes +
                                                         '\n');
}

void TestLogFile::debugLineTellsThePath()
{
    QLoggingCategory::setFilterRules("sorvane.logging.debug=true");
    initializeLogFile();
    QLoggingCategory::setFilterRules("");
    const QStringList lines = Messages::all().filter("Log file path ");
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.constFirst().startsWith("sorvane.logging: Log file path "),
             qPrintable(lines.constFirst()));
    QVERIFY2(lines.constFirst().contains(logFolder() + '/'), qPrintable(lines.constFirst()));
}

void TestLogFile::folderThatCannotBeMadeIsOneWarning()
{
    QVERIFY(put(home(), "a file in its place"));
    initializeLogFile(LoggerModel::all);
    model().log(LoggerModel::fatal, "to nowhere", 0);
    QCOMPARE(Messages::warnings().size(), 1);
    const QString warning = Messages::warnings().constFirst();
    QVERIFY2(warning.startsWith("sorvane.logging: ") && warning.contains(logFolder() + "/Sorvane"),
             qPrintable(warning));
    QCOMPARE(contentOf(home()), QByteArray("a file in its place"));
    QCOMPARE(namesIn(folder->path()), QStringList("home"));
}

void TestLogFile::secondStartWithinASecondWritesTwice()
{
    initializeLogFile();
    initializeLogFile();
    model().log(LoggerModel::error, "to both", ofNoKind);
    QCOMPARE(contentOf(logPath()).count("\tto both\n"), 2);
}

void TestLogFile::halfAMegabyteAndFiveBackupsAreKept()
{
    constexpr int limit = 512 * 1024, backups = 5;
    const auto log = [](int size) { model().log(LoggerModel::error, QString(size, 'x'), ofNoKind); };
    const int head = errorLine({}).size();
    initializeLogFile();
    const QString path = logPath();
    for (int round = 1; round <= backups + 2; ++round) {
        log(limit - head); // as much as there may be
        log(0);
        QCOMPARE(namesIn(logFolder()).size(), qMin(round, backups + 1)); // not before it is exceeded
    }
    QString pattern = path;
    pattern.chop(int(qstrlen(".log")));
    for (int number = 1; number <= backups; ++number) {
        const QByteArray content = contentOf(QStringLiteral("%1_%2.log").arg(pattern).arg(number));
        QVERIFY(content.size() > limit && content.endsWith("\nMaximum file size reached (512 kB).\n"));
    }
}

int main(int argc, char** argv)
{
    qputenv("LC_ALL", "ar_EG.UTF-8"); // months and digits of its own, none of which may show
    qputenv("TZ", "UTC");
    QCoreApplication application(argc, argv);
    TestLogFile test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_log_file.moc"
