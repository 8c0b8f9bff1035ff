// A held key under a system that tells each repeat as a release and a press at one instant.

#include "app/KeyRepeats.h"

#include <QtTest>

class TestKeyRepeats : public QObject
{
    Q_OBJECT

private slots:
    void init() { told.clear(); }

    void heldKeyIsOnePressAndItsRepeats();
    void releaseThatNothingTakesBackComesByItself();
    void nextKeyFindsTheLastOneReleased_data();
    void nextKeyFindsTheLastOneReleased();
    void repeatsThatTheSystemTellsPass();
    void windowThatIsGoneGetsNothing();

private:
    static constexpr int code = 36; // of Return
    bool send(QEvent::Type type, ulong time, int key = Qt::Key_Return, bool again = false);

    QWindow window;
    QStringList told;
    KeyRepeats repeats{[this](QObject*, QEvent* event) {
        const auto* key = static_cast<QKeyEvent*>(event);
        told << QStringLiteral("%1%2%3").arg(
            event->type() == QEvent::KeyPress ? QStringLiteral("+") : QStringLiteral("-"),
            QKeySequence(key->key()).toString(), key->isAutoRepeat() ? QStringLiteral(" again") : QString());
        return true;
    }};
};

bool TestKeyRepeats::send(QEvent::Type type, ulong time, int key, bool again)
{
    QKeyEvent event(type, key, Qt::NoModifier, key == Qt::Key_Return ? code : code + 1, 0, 0, QString(),
                    again);
    event.setTimestamp(time);
    return repeats.deliver(window, event);
}

void TestKeyRepeats::heldKeyIsOnePressAndItsRepeats()
{
    send(QEvent::KeyPress, 1000);
    for (ulong time = 1660; time < 2000; time += 40) {
        send(QEvent::KeyRelease, time);
        send(QEvent::KeyPress, time);
    }
    send(QEvent::KeyRelease, 2010);
    QTRY_COMPARE(told.last(), QStringLiteral("-Return"));
    QCOMPARE(told.count(QStringLiteral("+Return")), 1);
    QCOMPARE(told.count(QStringLiteral("+Return again")), 9);
    QCOMPARE(told.count(QStringLiteral("-Return")), 1);
}

void TestKeyRepeats::releaseThatNothingTakesBackComesByItself()
{
    send(QEvent::KeyPress, 1000);
    send(QEvent::KeyRelease, 1100);
    QCOMPARE(told, QStringList{QStringLiteral("+Return")});
    QTRY_COMPARE(told, (QStringList{QStringLiteral("+Return"), QStringLiteral("-Return")}));
}

void TestKeyRepeats::nextKeyFindsTheLastOneReleased_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<ulong>("time");
    QTest::addColumn<QString>("name");
    QTest::newRow("the same key, later") << int(Qt::Key_Return) << ulong(1101) << "+Return";
    QTest::newRow("another key at that instant") << int(Qt::Key_Space) << ulong(1100) << "+Space";
}

void TestKeyRepeats::nextKeyFindsTheLastOneReleased()
{
    QFETCH(int, key);
    QFETCH(ulong, time);
    QFETCH(QString, name);
    send(QEvent::KeyRelease, 1100);
    send(QEvent::KeyPress, time, key);
    QCOMPARE(told, (QStringList{QStringLiteral("-Return"), name}));
}

void TestKeyRepeats::repeatsThatTheSystemTellsPass()
{
    send(QEvent::KeyRelease, 1100, Qt::Key_Return, true);
    send(QEvent::KeyPress, 1100, Qt::Key_Return, true);
    QCOMPARE(told, (QStringList{QStringLiteral("-Return again"), QStringLiteral("+Return again")}));
}

void TestKeyRepeats::windowThatIsGoneGetsNothing()
{
    auto gone = std::make_unique<QWindow>();
    QKeyEvent event(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier);
    repeats.deliver(*gone, event);
    gone.reset();
    send(QEvent::KeyPress, 1200);
    QCOMPARE(told, QStringList{QStringLiteral("+Return")});
}

QTEST_MAIN(TestKeyRepeats)
#include "test_key_repeats.moc"
