// Every message there is, and long streams of made-up ones, against a model of the road.

#include "RoadFixture.h"
#include "RoadModel.h"
#include "keys/tonic_names.h"

#include <QRandomGenerator>

class TestMessageStreams : public RoadFixture
{
    Q_OBJECT

private slots:
    void everyThreeByteMessage_data();
    void everyThreeByteMessage();
    void otherLengthsReachNothing();
    void randomStreams_data();
    void randomStreams();

private:
    void setPower(bool wanted) const;
};

void TestMessageStreams::setPower(bool wanted) const
{
    if (window->powerItem->isSwitchOn() != wanted)
        window->setPower(wanted);
}

void TestMessageStreams::everyThreeByteMessage_data()
{
    QTest::addColumn<bool>("power");
    QTest::addColumn<bool>("held");
    QTest::newRow("off, free") << false << false;
    QTest::newRow("off, held") << false << true;
    QTest::newRow("on, free") << true << false;
    QTest::newRow("on, held") << true << true;
}

void TestMessageStreams::everyThreeByteMessage()
{
    QFETCH(bool, power);
    QFETCH(bool, held);
    RoadModel model;
    model.setTonic(2);
    tonic().setTonicModifier("D", true, true);
    for (int status = 0x80; status <= 0xFF; ++status)
        for (int note = 0; note < 128; ++note)
            for (const int velocity : {0, 1, 64, 127}) {
                setPower(power);
                if (model.presets.power != power)
                    model.setPower(power);
                model.held[static_cast<std::size_t>(note)] = held;
                window->inNoteHeld[note] = held ? 1 : 0;
                model.receive({status, note, velocity});
                play({status, note, velocity});
                const auto got = port->take();
                if (got != model.sent ||
                    (window->inNoteHeld.at(note) == 1) != model.held[static_cast<std::size_t>(note)] ||
                    window->powerItem->isSwitchOn() != model.presets.power)
                    QFAIL(qPrintable(QStringLiteral("%1 %2 %3").arg(status).arg(note).arg(velocity)));
                model.sent.clear();
            }
}

void TestMessageStreams::otherLengthsReachNothing()
{
    for (int status = 0x80; status <= 0xFF; ++status)
        for (const int length : {0, 1, 2, 4, 5, 1000}) {
            QList<int> message;
            for (int i = 0; i < length; ++i)
                message.append(i == 0 ? status : 60);
            play(message);
        }
    QVERIFY(sent().isEmpty());
    QVERIFY(!window->inNoteHeld.contains(1));
}

void TestMessageStreams::randomStreams_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1U, 20U, 300U, 4000U, 50000U})
        QTest::newRow(QByteArray::number(seed).constData()) << seed;
}

// 50,000 messages in all, with the power, the tonic and the scale changed between them.
void TestMessageStreams::randomStreams()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    RoadModel model;
    const auto byte = [&random](int from, int to) { return random.bounded(from, to + 1); };
    for (int i = 0; i < 10000; ++i) {
        if (byte(0, 199) == 0) {
            const int key = byte(0, 11);
            QByteArray word("x");
            for (int n = 1; n < 12; ++n)
                word.append(byte(0, 1) ? 'x' : 'o');
            const bool power = byte(0, 1);
            tonic().setTonicModifier(tonicModifierName.at(static_cast<std::size_t>(key)), true, true);
            scale().setScaleModifier(QLatin1String(word), true);
            window->setPower(power);
            model.setTonic(key);
            model.setScale(word.constData());
            model.setPower(power);
        }
        std::vector<int> message;
        const int length = byte(0, 9) == 0 ? byte(0, 5) : 3;
        for (int n = 0; n < length; ++n)
            message.push_back(byte(0, 255));
        if (length == 3 && byte(0, 3) != 0) // mostly notes, mostly of the first channel
            message = {byte(0, 1) ? 0x90 : byte(0x80, 0x9F), byte(15, 112), byte(0, 2) ? byte(0, 127) : 0};
        model.receive(message);
        play(QList<int>(message.begin(), message.end()));
        QCOMPARE(port->take(), model.sent);
        QCOMPARE(window->powerItem->isSwitchOn(), model.presets.power);
        model.sent.clear();
    }
}

QTEST_MAIN(TestMessageStreams)
#include "test_message_streams.moc"
