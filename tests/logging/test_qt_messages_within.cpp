// Qt's messages that come at a bad moment: while an observer or the handler before is called, and right
// before an abort. None hangs, none is logged twice.

#include "MessageCatcher.h"
#include "RecordingObserver.h"

#include "logging/LoggerFile.h"
#include "logging/QtMessages.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <functional>
#include <memory>
#include <sys/resource.h>

namespace {

constexpr char fatalWord[] = "--fatal";

/// Has something to say whenever it is called.
struct TalkingObserver : RecordingObserver
{
    void mpLogEvent(LoggerItem& item) override
    {
        RecordingObserver::mpLogEvent(item);
        if (whenCalled)
            whenCalled();
    }

    std::function<void()> whenCalled;
};

void keepAndComplain(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    MessageCatcher::keep(type, context, text);
    qWarning("the handler complains");
}

/// Another life of this program: an end by Qt, with a log.
int dieByAMessage(const QString& fileName)
{
    const rlimit none = {0, 0};
    setrlimit(RLIMIT_CORE, &none);
    LoggerModel::getInstance()->registerObserver(new LoggerFile(fileName, LoggerModel::error, 0, 0, false));
    const QtMessages taken;
    qWarning("not so grave");
    qFatal("the last words");
    return 0;
}

} // namespace

class TestQtMessagesWithin : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void messageOfACalledObserverGoesToTheHandlerBefore();
    void messageOfAnObserverThatAMessageCalledIsNotLogged();
    void messageOfTheHandlerBeforeIsNotLogged();
    void fileThatCannotBeWrittenCausesNoMessages();
    void fatalMessageIsInTheFileBeforeTheAbort();

private:
    std::unique_ptr<MessageCatcher> caught;
    std::unique_ptr<TalkingObserver> listener;
};

void TestQtMessagesWithin::init()
{
    caught = std::make_unique<MessageCatcher>();
    listener = std::make_unique<TalkingObserver>();
    LoggerModel::getInstance()->registerObserver(listener.get());
}

void TestQtMessagesWithin::cleanup()
{
    LoggerModel::getInstance()->removeObserver(listener.get(), false);
    caught.reset();
}

void TestQtMessagesWithin::messageOfACalledObserverGoesToTheHandlerBefore()
{
    const QtMessages taken;
    listener->whenCalled = [] { qWarning("the observer complains"); };
    LoggerModel::getInstance()->log(LoggerModel::info, QStringLiteral("an entry"), 0);
    QCOMPARE(listener->texts(), QStringList("an entry"));
    QCOMPARE(caught->texts(), QStringList("the observer complains"));
    listener->whenCalled = {};
    qWarning("behind it");
    QCOMPARE(listener->texts(), QStringList({"an entry", "behind it"}));
}

// Qt itself keeps a message from the handler that is at work, and prints it.
void TestQtMessagesWithin::messageOfAnObserverThatAMessageCalledIsNotLogged()
{
    const QtMessages taken;
    listener->whenCalled = [] { qWarning("the observer complains"); };
    qInfo("a message");
    QCOMPARE(listener->texts(), QStringList("a message"));
    QCOMPARE(caught->texts(), QStringList("a message"));
    listener->whenCalled = {};
    qInfo("behind it");
    QCOMPARE(listener->texts(), QStringList({"a message", "behind it"}));
}

void TestQtMessagesWithin::messageOfTheHandlerBeforeIsNotLogged()
{
    qInstallMessageHandler(keepAndComplain);
    const QtMessages taken;
    qInfo("a message");
    QCOMPARE(listener->texts(), QStringList("a message"));
    QCOMPARE(caught->texts(), QStringList("a message"));
}

void TestQtMessagesWithin::fileThatCannotBeWrittenCausesNoMessages()
{
    const QTemporaryDir folder;
    const QtMessages taken;
    LoggerFile file(folder.path(), LoggerModel::all, 1, 2, false); // a folder is no file
    LoggerFile missing(folder.filePath("missing/a.log"), LoggerModel::all, 1, 2, false);
    for (LoggerFile* one : {&file, &missing})
        LoggerModel::getInstance()->registerObserver(one);
    QStringList expected;
    for (int i = 0; i < 50; ++i) {
        expected.append(QStringLiteral("message %1").arg(i));
        qWarning().noquote() << expected.last();
    }
    for (LoggerFile* one : {&file, &missing})
        LoggerModel::getInstance()->removeObserver(one, false);
    QCOMPARE(listener->texts(), expected);
    QCOMPARE(caught->texts(), expected);
}

void TestQtMessagesWithin::fatalMessageIsInTheFileBeforeTheAbort()
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("end.log");
    QProcess program;
    program.start(QCoreApplication::applicationFilePath(), {fatalWord, fileName});
    QVERIFY(program.waitForFinished(20000));
    QCOMPARE(program.exitStatus(), QProcess::CrashExit);
    QCOMPARE(program.exitCode(), SIGABRT);
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray line = file.readAll();
    QVERIFY2(line.startsWith("Fatal\tPID ") && line.endsWith("\tthe last words\n"), line.constData());
    QCOMPARE(line.count('\n'), 1);
    const QByteArray told = program.readAllStandardError(); // by Qt's own handler
    QVERIFY2(told.contains("not so grave") && told.contains("the last words"), told.constData());
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], fatalWord) == 0)
        return dieByAMessage(QFile::decodeName(argv[2]));
    TestQtMessagesWithin test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_qt_messages_within.moc"
