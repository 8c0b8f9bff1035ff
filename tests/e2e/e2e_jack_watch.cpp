// The watch over the JACK server on a private PipeWire daemon: false cries and the true one.

#include "PipeWireDaemon.h"
#include "app/JackWatch.h"

#include <QSignalSpy>
#include <QtTest>

class E2eJackWatch : public QObject
{
    Q_OBJECT

private slots:
    void believesOnlyTheTrueCry();
};

void E2eJackWatch::believesOnlyTheTrueCry()
{
    PipeWireDaemon daemon;
    if (!daemon.startForJack())
        QSKIP(qPrintable(daemon.reason()));
    JackWatch watch;
    QVERIFY(watch.isAlive());
    QSignalSpy stops(&watch, &JackWatch::stopped);

    watch.doubt();
    QVERIFY2(!stops.wait(2000), "the server lives");
    QVERIFY(watch.isAlive());

    watch.doubt(); // what follows at once must not be taken for it
    daemon.kill();
    QTRY_COMPARE_WITH_TIMEOUT(stops.count(), 1, 15000);
    QVERIFY(!watch.isAlive());
}

QTEST_GUILESS_MAIN(E2eJackWatch)
#include "e2e_jack_watch.moc"
