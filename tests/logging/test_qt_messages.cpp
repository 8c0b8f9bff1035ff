// Qt's messages on their way into the log: level, text, thread, and whoever took them before.

#include "MessageCatcher.h"
#include "RecordingObserver.h"

#include "logging/QtMessages.h"

#include <QtTest>

#include <memory>
#include <thread>
#include <vector>

Q_LOGGING_CATEGORY(lcTest, "test.log")

namespace {

const RecordingObserver* watched = nullptr;
QStringList seen; ///< what the log had when the handler was called

void lookIntoTheLog(QtMsgType, const QMessageLogContext&, const QString&)
{
    seen = watched->texts();
}

QtMessageHandler passOnTo = nullptr;
int passedOn = 0;

/// A handler that, as most do, leaves the message to the one before as well.
void passOn(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    ++passedOn;
    passOnTo(type, context, text);
}

} // namespace

class TestQtMessages : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void typeGivesTheLevel_data();
    void typeGivesTheLevel();
    void textIsAsQtFormatsIt();
    void textIsNoPattern();
    void handlerBeforeGetsTheMessageAsItWas();
    void handlerBeforeIsBackBehindIt();
    void logHasItBeforeTheHandlerBefore();
    void secondOneHandsNothingOverTwice();
    void handlerThatCameLaterStays();
    void secondOneOverALaterHandlerEndsInNoCircle();
    void messageOfADisabledCategoryIsNotLogged();
    void threadsAreToldApart();

private:
    std::unique_ptr<MessageCatcher> caught;
    std::unique_ptr<RecordingObserver> listener;
};

void TestQtMessages::init()
{
    caught = std::make_unique<MessageCatcher>();
    listener = std::make_unique<RecordingObserver>();
    passedOn = 0;
    LoggerModel::getInstance()->registerObserver(listener.get());
}

void TestQtMessages::cleanup()
{
    LoggerModel::getInstance()->removeObserver(listener.get(), false);
    caught.reset();
}

void TestQtMessages::typeGivesTheLevel_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("level");
    QTest::newRow("debug") << int(QtDebugMsg) << int(LoggerModel::debug);
    QTest::newRow("info") << int(QtInfoMsg) << int(LoggerModel::info);
    QTest::newRow("warning") << int(QtWarningMsg) << int(LoggerModel::warn);
    QTest::newRow("critical") << int(QtCriticalMsg) << int(LoggerModel::error);
}

void TestQtMessages::typeGivesTheLevel()
{
    QFETCH(int, type);
    QFETCH(int, level);
    const QtMessages taken;
    qt_message_output(QtMsgType(type), QMessageLogContext(), QStringLiteral("words"));
    QCOMPARE(listener->entries().size(), 1);
    QCOMPARE(int(listener->entries()[0].level), level);
    QCOMPARE(listener->entries()[0].text, QStringLiteral("words"));
    QVERIFY(listener->entries()[0].id & log_id::number);
}

void TestQtMessages::textIsAsQtFormatsIt()
{
    const QtMessages taken;
    qWarning("plain");
    qCWarning(lcTest) << "of a category" << 7;
    qWarning("two\nlines");
    qWarning("%s", "");
    qSetMessagePattern(QStringLiteral("<%{type}> %{message}"));
    qCInfo(lcTest) << "in a pattern";
    qSetMessagePattern(QStringLiteral("%{if-category}%{category}: %{endif}%{message}")); // Qt's own
    QCOMPARE(listener->texts(),
             QStringList({"plain", "test.log: of a category 7", "two\nlines", "", "<info> in a pattern"}));
}

void TestQtMessages::textIsNoPattern()
{
    const QString text = QStringLiteral("100 % of %1, %{message} and %s: \u00fc \u266d");
    const QtMessages taken;
    qWarning().noquote() << text;
    QCOMPARE(listener->texts(), QStringList(text));
}

void TestQtMessages::handlerBeforeGetsTheMessageAsItWas()
{
    const QtMessages taken;
    qCCritical(lcTest) << "words";
    QCOMPARE(caught->messages().size(), 1);
    QCOMPARE(caught->messages()[0].type, QtCriticalMsg);
    QCOMPARE(caught->messages()[0].category, QByteArray("test.log"));
    QCOMPARE(caught->messages()[0].text, QStringLiteral("words"));
}

void TestQtMessages::handlerBeforeIsBackBehindIt()
{
    for (const char* round : {"first", "second"}) {
        {
            const QtMessages taken;
            qWarning("%s, logged", round);
        }
        qWarning("%s, not logged", round);
    }
    QCOMPARE(listener->texts(), QStringList({"first, logged", "second, logged"}));
    QCOMPARE(caught->texts(),
             QStringList({"first, logged", "first, not logged", "second, logged", "second, not logged"}));
    QVERIFY(qInstallMessageHandler(MessageCatcher::keep) == &MessageCatcher::keep);
}

// Which may end the process, or be all that is seen of it before it is killed.
void TestQtMessages::logHasItBeforeTheHandlerBefore()
{
    watched = listener.get();
    seen.clear();
    qInstallMessageHandler(lookIntoTheLog);
    const QtMessages taken;
    qWarning("words");
    QCOMPARE(seen, QStringList("words"));
}

void TestQtMessages::secondOneHandsNothingOverTwice()
{
    {
        const QtMessages taken;
        {
            const QtMessages again;
            qWarning("both");
        }
        qWarning("one");
    }
    qWarning("none");
    QCOMPARE(listener->texts(), QStringList({"both", "one"}));
    QCOMPARE(caught->texts(), QStringList({"both", "one", "none"}));
}

void TestQtMessages::handlerThatCameLaterStays()
{
    auto taken = std::make_unique<QtMessages>();
    passOnTo = qInstallMessageHandler(passOn);
    qWarning("logged");
    taken.reset();
    qWarning("not logged");
    QCOMPARE(passedOn, 2);
    QCOMPARE(listener->texts(), QStringList("logged"));
    QCOMPARE(caught->texts(), QStringList({"logged", "not logged"}));
    QVERIFY(qInstallMessageHandler(passOnTo) == &passOn);
    const QtMessages again;
    qWarning("logged again");
    QCOMPARE(listener->texts(), QStringList({"logged", "logged again"}));
    QCOMPARE(caught->texts(), QStringList({"logged", "not logged", "logged again"}));
}

// The later handler passes on to the first one, which the second one passes on to again.
void TestQtMessages::secondOneOverALaterHandlerEndsInNoCircle()
{
    auto first = std::make_unique<QtMessages>();
    passOnTo = qInstallMessageHandler(passOn);
    first.reset();
    const QtMessages second;
    qWarning("logged");
    QCOMPARE(listener->texts(), QStringList("logged"));
    QCOMPARE(passedOn, 1);
}

void TestQtMessages::messageOfADisabledCategoryIsNotLogged()
{
    const QtMessages taken;
    QLoggingCategory::setFilterRules(QStringLiteral("test.log.debug=false"));
    qCDebug(lcTest) << "silent";
    QLoggingCategory::setFilterRules(QString());
    qCDebug(lcTest) << "heard";
    QCOMPARE(listener->texts(), QStringList("test.log: heard"));
}

void TestQtMessages::threadsAreToldApart()
{
    constexpr int threadCount = 4, rounds = 200;
    const QtMessages taken;
    std::vector<std::thread> threads; // no race detector sees through those of Qt
    for (int number = 0; number < threadCount; ++number)
        threads.emplace_back([number] {
            for (int round = 0; round < rounds; ++round)
                qInfo("%d %d", number, round);
        });
    for (std::thread& thread : threads)
        thread.join();
    QMap<QString, QStringList> byThread;
    QSet<QPair<QString, unsigned long long>> pairs;
    QSet<unsigned long long> ids;
    for (const LoggerItem& item : listener->entries()) {
        const QStringList words = item.text.split(' ');
        byThread[words[0]].append(words.value(1));
        pairs.insert({words[0], item.id});
        ids.insert(item.id);
    }
    QStringList inOrder;
    for (int round = 0; round < rounds; ++round)
        inOrder.append(QString::number(round));
    QCOMPARE(byThread.size(), threadCount);
    for (const QStringList& heard : qAsConst(byThread))
        QCOMPARE(heard, inOrder);
    QCOMPARE(pairs.size(), threadCount); // each has one id
    QCOMPARE(ids.size(), threadCount);   // of its own
    QCOMPARE(caught->messages().size(), threadCount * rounds);
}

int main(int argc, char** argv)
{
    qunsetenv("QT_MESSAGE_PATTERN"); // it would have the last word
    QCoreApplication application(argc, argv);
    TestQtMessages test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_qt_messages.moc"
