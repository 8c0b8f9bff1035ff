// Every file that the program writes is one that the schema describes, and the schema refuses what is none.

#include "DocumentFixture.h"
#include "schema_check.h"
#include "wrong_documents.h"

#include "library/SettingsStore.h"

#include <QFile>
#include <QJsonArray>

namespace {

using Edit = std::function<void()>;

} // namespace

class TestSchema : public DocumentFixture
{
    Q_OBJECT

private slots:
    void initTestCase();

    void writtenStateIsValid_data();
    void writtenStateIsValid();
    void firstStepsAreValid();
    void wrongDocumentIsRefused_data();
    void wrongDocumentIsRefused();
    void whatIsNoDocumentIsRefused();

private:
    void addUserScale();
    void editLibrary();
    void playUserWord();

    std::vector<std::pair<const char*, Edit>> states();
    QStringList refusals; ///< one for each wrong document
};

void TestSchema::initTestCase()
{
    openWindow();
    const QJsonObject written = exportRoot();
    closeWindow();
    QStringList files;
    for (const WrongDocument& wrong : wrongDocuments()) {
        QJsonObject root = written;
        wrong.spoil(root);
        QVERIFY2(root != written, wrong.name);
        files << pathOf(QStringLiteral("wrong-%1.svdb").arg(files.size()));
        QVERIFY(writeRoot(files.last(), root));
    }
    const schema_check::Answer answer = schema_check::ask(files);
    QVERIFY2(answer.error.isEmpty(), qPrintable(answer.error));
    refusals = answer.verdicts;
}

void TestSchema::addUserScale()
{
    library().setScaleData(unknownWord,
                           {unknownWord, "Mine", "#1", "A scale of mine", "Line\nand \"line\", \u00e9"},
                           DatabaseLibrary::LibraryRole);
    QVERIFY(library().appendScaleToCategory("10 - User Scales", unknownWord) >= 0);
    QVERIFY(library().appendScaleToCategory("1 - Major Scale Modes", unknownWord) >= 0);
}

void TestSchema::editLibrary()
{
    addUserScale();
    library().insertCategory("11 - Empty");
    library().removeCategory("4 - Pentatonic Scales");
    library().clearScalesFromCategory("5 - Blues Scales");
    QVERIFY(library().renameCategory("6 - Bebop Scales", "\"6\" - \u00fcber"));
    presets().updateHeaderScenics({});
}

void TestSchema::playUserWord()
{
    window->setPower(true);
    setScale(otherUnknownWord);
    recall(61);
}

std::vector<std::pair<const char*, Edit>> TestSchema::states()
{
    return {
        {"fresh", [] {}},
        {"power on", [this] { window->setPower(true); }},
        {"tonic off", [this] { tonic().setSwitchOff(true); }},
        {"tonic off, power on, another tonic",
         [this] {
             window->setPower(true);
             tonic().setSwitchOff(true);
             setTonic("F#");
         }},
        {"scale off", [this] { scale().setSwitchOff(true); }},
        {"tonic off and on again",
         [this] {
             tonic().setSwitchOff(true);
             importRoot(exportRoot());
             tonic().setSwitchOn(true);
         }},
        {"library edited", [this] { editLibrary(); }},
        {"library emptied",
         [this] {
             importRoot({{"SorvaneDefaultScalesArray", QJsonArray()}});
         }},
        {"user words", [this] { playUserWord(); }},
        {"presets recalled",
         [this] {
             window->setPower(true);
             for (const int key : {58, 61, 75, 94, 106})
                 recall(key);
         }},
        {"presets erased",
         [this] {
             for (HeaderItem* item : qAsConst(presets().headers))
                 item->record.clearNames();
         }},
        {"anchors moved",
         [this] {
             window->setPower(true);
             placeAnchors(-34);
             presets().storePitchPosition(record(active()), true);
         }},
        {"power button moved",
         [this] {
             QVERIFY(window->findPowerItemPosition({50, 28}));
         }},
        {"credits", [this] { window->on_buttonCredits_clicked(true); }},
        {"library open",
         [this] {
             window->setPower(true);
             window->showLibraryScreen(true);
         }},
        {"ports and a path",
         [] {
             SettingsStore::setMidiInPortSelected("Keys: \"1\" MIDI", true);
             SettingsStore::setMidiOutPortSelected("Synth", false);
             SettingsStore::registerDefaultValues();
         }},
        {"a stranger's key and places out of reach",
         [this] {
             importRoot({{"Stranger", QJsonObject{{"a", 1}}},
                         {"AnchorPosX", 1e300},
                         {"SorvaneAnchorPosition", -1e300},
                         {"SorvanePowerButtonPosition", 1e300}});
         }},
    };
}

void TestSchema::writtenStateIsValid_data()
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const auto& state : states())
        QTest::newRow(state.first) << row++;
}

void TestSchema::writtenStateIsValid()
{
    QFETCH(int, row);
    states().at(static_cast<std::size_t>(row)).second();
    const QJsonObject root = exportRoot();
    QVERIFY(!root.isEmpty());
    const schema_check::Answer answer = schema_check::ask({pathOf("out.svdb")});
    QVERIFY2(answer.error.isEmpty(), qPrintable(answer.error));
    QCOMPARE(answer.verdicts, QStringList("valid"));
}

void TestSchema::firstStepsAreValid()
{
    const schema_check::Answer answer = schema_check::ask({SORVANE_DOCS "/examples/first-steps.svdb"});
    QVERIFY2(answer.error.isEmpty(), qPrintable(answer.error));
    QCOMPARE(answer.verdicts, QStringList("valid"));
}

void TestSchema::wrongDocumentIsRefused_data()
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const WrongDocument& wrong : wrongDocuments())
        QTest::newRow(wrong.name) << row++;
}

void TestSchema::wrongDocumentIsRefused()
{
    QFETCH(int, row);
    const QString complaint = wrongDocuments().at(static_cast<std::size_t>(row)).complaint;
    const QString refusal = refusals.at(row);
    QVERIFY2(refusal.startsWith("invalid: ") && refusal.contains(complaint),
             qPrintable(refusal + " lacks " + complaint));
}

void TestSchema::whatIsNoDocumentIsRefused()
{
    QStringList files;
    for (const char* text : {"[]", "null", "", "{", "{\"AnchorPosX\": NaN}", "{\"x\": \"\xff\"}"}) {
        files << pathOf(QStringLiteral("none-%1.svdb").arg(files.size()));
        QFile file(files.last());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) >= 0);
    }
    const schema_check::Answer answer = schema_check::ask(files);
    QVERIFY2(answer.error.isEmpty(), qPrintable(answer.error));
    QVERIFY2(answer.verdicts.at(0).startsWith("invalid: root: type"), qPrintable(answer.verdicts.at(0)));
    for (const QString& verdict : answer.verdicts)
        QVERIFY2(verdict.startsWith("invalid: "), qPrintable(verdict));
    QVERIFY(!schema_check::ask({pathOf("not there.svdb")}).error.isEmpty());
}

QTEST_MAIN(TestSchema)
#include "test_schema.moc"
