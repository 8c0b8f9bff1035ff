// The presets, the selectors and what they play under random use, against a model.

#include "FactoryPresets.h"
#include "HeaderFixture.h"
#include "keys/tonic_names.h"

#include <QRandomGenerator>
#include <QtTest>

namespace {

using Record = PresetModel::Record;

Record recordOf(const header_data& data)
{
    return {{data.nameScenic1.toStdString(), data.nameScenic2.toStdString()},
            data.nameTonic.toStdString(),
            data.tonicOn,
            data.tonicData.toStdString(),
            data.scaleOn,
            data.scaleData.toStdString(),
            data.anchorValid};
}

QString asText(const Record& r)
{
    return QStringLiteral("'%1 %2' '%3' tonic %4 '%5' scale %6 '%7' pitch %8")
        .arg(QString::fromStdString(r.names.first), QString::fromStdString(r.names.second),
             QString::fromStdString(r.tonicName))
        .arg(r.tonicOn)
        .arg(QString::fromStdString(r.tonic))
        .arg(r.scaleOn)
        .arg(QString::fromStdString(r.word))
        .arg(r.anchorValid);
}

bool operator==(const Record& a, const Record& b)
{
    return a.names == b.names && a.tonicName == b.tonicName && a.tonicOn == b.tonicOn && a.tonic == b.tonic &&
           a.scaleOn == b.scaleOn && a.word == b.word && a.anchorValid == b.anchorValid;
}

/// Flips the switch of a selector; whether it must be on then.
bool flip(KeyControllerBase& selector)
{
    const bool wanted = !selector.switchOn;
    if (wanted)
        selector.setSwitchOn(true);
    else
        selector.setSwitchOff(true);
    return wanted;
}

} // namespace

class TestPresets : public HeaderFixture
{
    Q_OBJECT

private slots:
    void init();

    void freshStartIsTheModels() { QCOMPARE(difference(), QString()); }
    void randomUse_data();
    void randomUse();

private:
    /// One thing that a player does, done to the program and to the model.
    struct Operation
    {
        const char* name;
        void (TestPresets::*run)();
    };
    static const Operation operations[];

    int below(int end) { return random.bounded(end); }
    int anyPreset() { return below(3) ? below(PresetModel::count) : model->active; }
    /// The menu's target, in both.
    int openMenu();

    void blackKey() { playNote(PresetModel::keyOf(below(PresetModel::count))); }
    void recall();
    void previous();
    void next();
    /// An entry of the menu that locks or unlocks the tonic, the scale or both.
    template <void (HeaderController::*entry)(), bool ofTonic, bool ofScale, bool locked>
    void lock();
    void copy();
    void paste();
    void erase();
    void reset();
    void chooseTonic();
    void clickDegree();
    void switchTonic();
    void switchScale();
    void switchPower();

    void playNote(int note);
    void modelPower();
    /// What differs from the model, "" for nothing.
    QString difference() const;
    QString recordDifference() const;

    std::unique_ptr<PresetModel> model;
    QRandomGenerator random;
    std::vector<RecordingPort::Message> expected;
};

template <void (HeaderController::*entry)(), bool ofTonic, bool ofScale, bool locked>
void TestPresets::lock()
{
    const int index = openMenu();
    (presets().*entry)();
    if constexpr (ofTonic)
        model->lockTonic(index, locked);
    if constexpr (ofScale)
        model->lockScale(index, locked);
}

const TestPresets::Operation TestPresets::operations[] = {
    {"black key", &TestPresets::blackKey},
    {"recall", &TestPresets::recall},
    {"previous", &TestPresets::previous},
    {"next", &TestPresets::next},
    {"lock tonic", &TestPresets::lock<&HeaderController::lockTonic, on, off, on>},
    {"unlock tonic", &TestPresets::lock<&HeaderController::unlockTonic, on, off, off>},
    {"lock scale", &TestPresets::lock<&HeaderController::lockScale, off, on, on>},
    {"unlock scale", &TestPresets::lock<&HeaderController::unlockScale, off, on, off>},
    {"lock both", &TestPresets::lock<&HeaderController::lockBoth, on, on, on>},
    {"unlock both", &TestPresets::lock<&HeaderController::unlockBoth, on, on, off>},
    {"copy", &TestPresets::copy},
    {"paste", &TestPresets::paste},
    {"erase", &TestPresets::erase},
    {"reset", &TestPresets::reset},
    {"choose tonic", &TestPresets::chooseTonic},
    {"click degree", &TestPresets::clickDegree},
    {"switch tonic", &TestPresets::switchTonic},
    {"switch scale", &TestPresets::switchScale},
    {"switch power", &TestPresets::switchPower},
};

void TestPresets::init()
{
    openWindow();
    model = std::make_unique<PresetModel>(factoryPresets());
    expected.clear();
}

int TestPresets::openMenu()
{
    const int index = anyPreset();
    presets().contextHeader = presets().headers.at(index);
    return index;
}

void TestPresets::recall()
{
    const int index = anyPreset();
    const bool store = below(4) != 0;
    presets().setActiveHeader(presets().headers.at(index), store);
    model->recall(index, store);
}

void TestPresets::previous()
{
    presets().setActiveHeaderPrev();
    model->neighbour(-1);
}

void TestPresets::next()
{
    presets().setActiveHeaderNext();
    model->neighbour(1);
}

void TestPresets::copy()
{
    model->copy(openMenu());
    presets().copyHdr();
}

// The menu offers it only once something was copied.
void TestPresets::paste()
{
    if (!presets().hasCopy)
        return;
    model->paste(openMenu());
    presets().pasteHdr();
}

void TestPresets::erase()
{
    model->erase(openMenu());
    presets().eraseHdr();
}

void TestPresets::reset()
{
    model->reset(openMenu());
    presets().resetHdr();
}

void TestPresets::chooseTonic()
{
    const int semitones = below(12);
    tonic().setTonicModifier(tonicModifierName.at(static_cast<std::size_t>(semitones)), true, true);
    model->chooseTonic(semitones);
}

void TestPresets::clickDegree()
{
    const int degree = 1 + below(11);
    scale().findKey(degree)->changeState(true);
    model->clickDegree(degree);
}

void TestPresets::switchTonic()
{
    model->switchTonic(flip(tonic()));
}

void TestPresets::switchScale()
{
    model->switchScale(flip(scale()));
}

void TestPresets::switchPower()
{
    window->switchPower();
    modelPower();
}

// The selectors wake with the power, and the scale's looks its word up.
void TestPresets::modelPower()
{
    model->power = !model->power;
    if (model->power)
        model->match();
}

void TestPresets::playNote(int note)
{
    const int velocity = 1 + below(127);
    window->pushKeySlot({0x90, note, velocity});
    window->pushKeySlot({0x80, note, 0});
    if (note == model->powerKey) {
        modelPower();
        return;
    }
    const int target = model->mapping().at(note);
    const auto byte = [](int value) { return static_cast<unsigned char>(value); };
    if (target != -1) {
        expected.push_back({0x90, byte(target), byte(velocity)});
        expected.push_back({0x80, byte(target), 0});
    }
    if (model->power && !isWhite(note))
        model->recall(PresetModel::indexOf(note));
    model->match();
}

QString TestPresets::recordDifference() const
{
    for (int i = 0; i < PresetModel::count; ++i) {
        const Record got = recordOf(presets().headers.at(i)->record);
        const Record& wanted = model->records[static_cast<std::size_t>(i)];
        if (!(got == wanted))
            return QStringLiteral("preset %1: got %2, wanted %3").arg(i).arg(asText(got), asText(wanted));
    }
    return {};
}

QString TestPresets::difference() const
{
    const QString records = recordDifference();
    if (!records.isEmpty())
        return records;
    for (int i = 0; i < PresetModel::count; ++i)
        if ((presets().headers.at(i)->status() == header_active) != (i == model->active))
            return QStringLiteral("status of preset %1, active is %2").arg(i).arg(model->active);
    if (presets().activeHeader != presets().headers.at(model->active))
        return QStringLiteral("active preset, wanted %1").arg(model->active);
    if (tonic().tonicModifierIndex() != model->tonic)
        return QStringLiteral("tonic: got %1, wanted %2").arg(tonic().tonicModifierIndex()).arg(model->tonic);
    if (scale().scaleModifier() != QString::fromStdString(model->word))
        return QStringLiteral("word: got %1, wanted %2")
            .arg(scale().scaleModifier(), QString::fromStdString(model->word));
    if (tonic().switchOn != model->tonicSwitch || scale().switchOn != model->scaleSwitch)
        return QStringLiteral("switches: wanted %1 %2").arg(model->tonicSwitch).arg(model->scaleSwitch);
    if (window->powerItem->isSwitchOn() != model->power)
        return QStringLiteral("power: wanted %1").arg(model->power);
    return port->messages() == expected ? QString() : QStringLiteral("bytes");
}

void TestPresets::randomUse_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1U, 22U, 333U, 4444U, 55555U, 666666U, 7777777U, 88888888U})
        QTest::newRow(QByteArray::number(seed).constData()) << seed;
}

// 20,000 steps over all rows, five notes after each.
void TestPresets::randomUse()
{
    QFETCH(quint32, seed);
    random.seed(seed);
    for (int step = 0; step < 2500; ++step) {
        const Operation& operation = operations[below(static_cast<int>(std::size(operations)))];
        (this->*operation.run)();
        QString wrong = difference();
        for (int i = 0; i < 5 && wrong.isEmpty(); ++i) {
            const int note = 21 + below(88);
            playNote(note);
            wrong = difference();
            if (!wrong.isEmpty())
                wrong += QStringLiteral(" after note %1").arg(note);
        }
        if (!wrong.isEmpty())
            QFAIL(qPrintable(QStringLiteral("seed %1, step %2, %3: %4")
                                 .arg(seed)
                                 .arg(step)
                                 .arg(QLatin1String(operation.name), wrong)));
        expected.clear();
        port->clear();
    }
}

QTEST_MAIN(TestPresets)
#include "test_presets.moc"
