// A file that exceeds its size: which files are there after each entry, and what they hold. Expected is what
// the folder of the rule's own model holds.

#include "LogFixture.h"

#include "logging/LoggerFile.h"

#include <QDir>
#include <QMap>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <thread>
#include <vector>

using namespace log_fixture;

namespace {

using Folder = QMap<QString, QByteArray>; // names and contents

/// What the rule does to a folder.
struct Model
{
    QString name, backup; // "a.log", "a_#.log"
    qint64 size;          // bytes
    int backups;
    Folder folder;

    QString backupName(int number) const { return QString(backup).replace('#', QString::number(number)); }
    void write(const QByteArray& line)
    {
        renew();
        folder[name] += line;
    }
    void renew()
    {
        if (size <= 0 || folder[name].size() <= size)
            return;
        for (int number = backups; number > 1; --number)
            replace(backupName(number), backupName(number - 1));
        folder[name] += "------------------------------------------------\nMaximum file size reached (" +
                        QByteArray::number(size / 1024) + " kB).\n";
        replace(backupName(1), name);
        folder[name].clear();
    }
    void replace(const QString& target, const QString& source)
    {
        folder.remove(target);
        if (folder.contains(source))
            folder[target] = folder[source];
    }
};

Folder filesIn(const QString& path)
{
    Folder found;
    for (const QString& name : namesIn(path))
        if (QFileInfo(path + '/' + name).isFile())
            found[name] = contentOf(path + '/' + name);
    return found;
}

} // namespace

class TestLoggerRotation : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void everyFileHoldsWhatTheRuleSays_data();
    void everyFileHoldsWhatTheRuleSays();
    void existingFileRotatesAtTheFirstEntry();
    void existingBackupsMoveUpAndOthersStay();
    void entriesOfSeveralThreadsAreAllThereOnce();

private:
    QString path(const QString& name) const { return folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> folder;
};

void TestLoggerRotation::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

void TestLoggerRotation::everyFileHoldsWhatTheRuleSays_data()
{
    QTest::addColumn<QString>("subfolder");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("backup");
    QTest::addColumn<int>("backups");
    const QList<QPair<QString, QString>> names = {{"a.log", "a_#.log"},
                                                  {"log", "log_#."},
                                                  {"a.b.log", "a.b_#.log"},
                                                  {".log", "_#.log"},
                                                  {"a.tar.gz", "a.tar_#.gz"},
                                                  {"a.", "a_#."},
                                                  {"\u00e4 %1.\u00fc", "\u00e4 %1_#.\u00fc"}};
    // Each copy waits for the disk: not every count with every name.
    for (const QString subfolder : {".", "v1.2/.b.c"})
        for (const auto& [name, backup] : names)
            for (const int backups : {0, 1, 2, 5})
                if (backups == 2 || name == "a.log" || name == "log")
                    QTest::addRow("%d backups of %s/%s", backups, qUtf8Printable(subfolder),
                                  qUtf8Printable(name))
                        << subfolder << name << backup << backups;
}

void TestLoggerRotation::everyFileHoldsWhatTheRuleSays()
{
    QFETCH(QString, subfolder);
    QFETCH(QString, name);
    QFETCH(QString, backup);
    QFETCH(int, backups);
    QVERIFY(QDir(path({})).mkpath(subfolder));
    const auto log = openedLog(path(subfolder + '/' + name), 100, unsigned(backups));
    Model model = {name, backup, 100, backups, {{name, {}}}};
    for (int line = 0; line < 20; ++line) { // rotates eight times, more than there are backups
        const QString text = QStringLiteral("line %1 %2").arg(line).arg(QString(line % 7 * 5, 'x'));
        write(*log, text);
        model.write(errorLine(text));
        QCOMPARE(filesIn(path(subfolder)), model.folder);
    }
    QCOMPARE(model.folder.size(), qMax(backups, 1) + 1);
}

void TestLoggerRotation::existingFileRotatesAtTheFirstEntry()
{
    QVERIFY(put(path("a.log"), "too long\n"));
    const auto log = openedLog(path("a.log"), 5, 1);
    QCOMPARE(namesIn(path({})), QStringList("a.log"));
    write(*log, "x");
    QCOMPARE(contentOf(path("a.log")), errorLine("x"));
    QVERIFY(contentOf(path("a_1.log")).startsWith("too long\n-----"));
}

void TestLoggerRotation::existingBackupsMoveUpAndOthersStay()
{
    Model model = {"a.log", "a_#.log", 1, 5, {}};
    for (const char* name :
         {"a.log", "a_1.log", "a_3.log", "a_5.log", // a gap moves up too
          "a_0.log", "a_6.log", "a_1", "a_1.log.1", "b_1.log", "a_01.log", "A_1.log", "a1.log"})
        model.folder[name] = QByteArray("this was ") + name;
    for (auto file = model.folder.cbegin(); file != model.folder.cend(); ++file)
        QVERIFY(put(path(file.key()), file.value()));
    const auto log = openedLog(path("a.log"), 1, 5);
    for (const char* text : {"a", "b", "c"}) {
        write(*log, text);
        model.write(errorLine(text));
        QCOMPARE(filesIn(path({})), model.folder);
    }
}

void TestLoggerRotation::entriesOfSeveralThreadsAreAllThereOnce()
{
    constexpr int threads = 4, entries = 100, mostBackups = 20; // more than it takes
    const auto log = openedLog(path("a.log"), 4000, mostBackups);
    std::vector<std::thread> writers;
    QList<QByteArray> expected;
    for (int thread = 0; thread < threads; ++thread) {
        writers.emplace_back([&log, thread] {
            for (int number = 0; number < entries; ++number) {
                write(*log, QStringLiteral("%1 of %2").arg(number).arg(thread));
                log->mpSetBackupFileCount(mostBackups); // setters wait their turn too
            }
        });
        for (int number = 0; number < entries; ++number)
            expected.append(errorLine(QStringLiteral("%1 of %2").arg(number).arg(thread)).chopped(1));
    }
    for (std::thread& writer : writers)
        writer.join();
    QList<QByteArray> found;
    for (const QByteArray& content : filesIn(path({})))
        for (const QByteArray& line : content.split('\n'))
            if (!line.isEmpty() && !line.startsWith("---") && !line.startsWith("Maximum"))
                found.append(line);
    QVERIFY(QFile::exists(path("a_2.log")) && !QFile::exists(path("a_20.log")));
    std::sort(expected.begin(), expected.end());
    std::sort(found.begin(), found.end());
    QCOMPARE(found, expected);
}

QTEST_GUILESS_MAIN(TestLoggerRotation)
#include "test_logger_rotation.moc"
