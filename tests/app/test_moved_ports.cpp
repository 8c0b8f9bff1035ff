// Remembered ports that ALSA has given other numbers.

#include "app/moved_ports.h"

#include <QtTest>

using Moved = QMap<QString, QString>;

class TestMovedPorts : public QObject
{
    Q_OBJECT

private slots:
    void findsADeviceUnderANewNumber();
    void leavesKnownNamesAlone();
    void leavesNamesWithoutNumbersAlone();
    void doesNotGuessBetweenTwins_data();
    void doesNotGuessBetweenTwins();
};

void TestMovedPorts::findsADeviceUnderANewNumber()
{
    QCOMPARE(movedPorts({"Keys:Keys MIDI 1 28:0", "Organ 24:0"}, {"Organ 20:0", "Keys:Keys MIDI 1 24:0"}),
             (Moved{{"Keys:Keys MIDI 1 28:0", "Keys:Keys MIDI 1 24:0"}, {"Organ 24:0", "Organ 20:0"}}));
}

void TestMovedPorts::leavesKnownNamesAlone()
{
    QCOMPARE(movedPorts({"Keys 24:0"}, {"Keys 24:0", "Keys 28:0"}), Moved());
    QCOMPARE(movedPorts({"Keys 24:0", "Keys 28:0"}, {"Keys 28:0"}), Moved()); // a second one has come
    QCOMPARE(movedPorts({"Keys 24:0", "Keys 28:0"}, {"Keys 24:0", "Keys 20:0"}),
             (Moved{{"Keys 28:0", "Keys 20:0"}})); // one of two has moved
}

void TestMovedPorts::leavesNamesWithoutNumbersAlone()
{
    QCOMPARE(movedPorts({"Keys", "Keys 2", "Keys 24:0 out"}, {"Keys 24:0", "Keys 3", "Keys 28:0 out"}),
             Moved());
}

void TestMovedPorts::doesNotGuessBetweenTwins_data()
{
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QStringList>("remembered");
    QTest::newRow("present") << QStringList{"Keys 24:0", "Keys 28:0"} << QStringList{"Keys 20:0"};
    QTest::newRow("remembered") << QStringList{"Keys 24:0"} << QStringList{"Keys 20:0", "Keys 28:0"};
}

void TestMovedPorts::doesNotGuessBetweenTwins()
{
    QFETCH(QStringList, present);
    QFETCH(QStringList, remembered);
    QCOMPARE(movedPorts(present, remembered), Moved());
}

QTEST_APPLESS_MAIN(TestMovedPorts)
#include "test_moved_ports.moc"
