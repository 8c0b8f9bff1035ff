// A file that is opened while the player's hands are on the instrument, or the pointer is on the stage.

#include "FileFixture.h"
#include "keys/TonicKeyItem.h"
#include "library/SettingsStore.h"
#include "library/settings_keys.h"

#include <QFileDialog>
#include <QPushButton>
#include <QTimer>

class TestFileHands : public FileFixture
{
    Q_OBJECT

private slots:
    void heldNotesEndBeforeTheMapChanges();
    void heldNoteIsNotEndedTwice();
    void notesThatNobodyHoldsAreNotEnded();
    void fileThatCannotBeReadEndsNoNote();
    void selectorForgetsTheHandBehindTheFileDialog_data();
    void selectorForgetsTheHandBehindTheFileDialog();
    void buttonIsNotLeftPressedBehindTheFileDialog();
    void presetsWithoutSelectorsOutliveARecall_data();
    void presetsWithoutSelectorsOutliveARecall();
    void anchorsOfTheFileCountMoreThanThePresets();
    void selectorsOfTheFileCountMoreThanThePresets();
    void wordThatIsNoneIsNotTakenInPart();

private:
    using Messages = QList<QList<int>>;
    void play(int status, int note) const { window->receiveMessage({status, note, 90}); }
    QWidget* centre() const { return window->ui.centerGraphicsView->viewport(); }
    QPoint placeOf(const KeyControllerBase& selector, int index) const;
    /// Opens the file dialog; `meanwhile` runs while it is up, and it is left without a choice.
    void lookForAFile(const std::function<void()>& meanwhile);
    QJsonObject onePreset() const;
};

QPoint TestFileHands::placeOf(const KeyControllerBase& selector, int index) const
{
    const TonicKeyItem* key = selector.findKey(index);
    const QRectF rect = key->sceneBoundingRect(); // the lower end: there no black key lies above
    return window->ui.centerGraphicsView->mapFromScene(rect.center().x(), rect.bottom() - 2);
}

void TestFileHands::lookForAFile(const std::function<void()>& meanwhile)
{
    bool wasUp = false;
    QTimer::singleShot(0, this, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        wasUp = dialog;
        meanwhile();
        if (dialog)
            dialog->reject();
    });
    window->openDatabase();
    QVERIFY(wasUp);
}

/// The file of a friend: presets, and nothing about selectors. The active one has another tonic and scale
/// than they.
QJsonObject TestFileHands::onePreset() const
{
    QJsonArray records = exportedHeaders();
    header_data wanted = scaleRecord(wholeTone);
    wanted.anchorValid = true;
    wanted.anchorPos = 34;
    records[presets().headers.indexOf(header(firstActive))] = headerObject(wanted);
    return {{headersKey, records}};
}

void TestFileHands::heldNotesEndBeforeTheMapChanges()
{
    window->setPower(true);
    for (const int note : {36, 60, 62, 107})
        play(0x90, note);
    const Messages begun = port->takeLists();
    QCOMPARE(begun.size(), 4);
    import({{ QStringLiteral("ScaleModifier"), octaves }});
    const Messages ended = port->takeLists();
    QCOMPARE(ended.size(), 4);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(ended.at(i), (QList<int>{0x80, begun.at(i).at(1), 0}));
}

void TestFileHands::heldNoteIsNotEndedTwice()
{
    play(0x90, 60);
    import({});
    port->clear();
    play(0x80, 60);
    QCOMPARE(port->takeLists(), Messages());
    play(0x90, 60); // and the key is free again
    QCOMPARE(port->takeLists().size(), 1);
}

void TestFileHands::notesThatNobodyHoldsAreNotEnded()
{
    play(0x90, 60);
    play(0x80, 60);
    port->clear();
    import({});
    QCOMPARE(port->takeLists(), Messages());
}

void TestFileHands::fileThatCannotBeReadEndsNoNote()
{
    play(0x90, 60);
    port->clear();
    QVERIFY(!window->importDatabase(pathOf("nothing.svdb")).isEmpty());
    QCOMPARE(port->takeLists(), Messages());
    play(0x80, 60);
    QCOMPARE(port->takeLists(), (Messages{{0x80, 60, 0}}));
}

void TestFileHands::selectorForgetsTheHandBehindTheFileDialog_data()
{
    QTest::addColumn<bool>("inTonics");
    QTest::newRow("tonic") << true;
    QTest::newRow("scale") << false;
}

void TestFileHands::selectorForgetsTheHandBehindTheFileDialog()
{
    QFETCH(bool, inTonics);
    show();
    window->setPower(true);
    const KeyControllerBase& selector = inTonics ? static_cast<KeyControllerBase&>(tonic()) : scale();
    QTest::mousePress(centre(), Qt::LeftButton, {}, placeOf(selector, 2));
    QVERIFY(selector.pressedKey);
    lookForAFile([] {}); // the release is lost in it
    QVERIFY(!selector.pressedKey);
    const QStringList before = state();
    QTest::mouseMove(centre(), placeOf(selector, 5));
    QTest::mouseMove(centre(), placeOf(selector, 7));
    QCOMPARE(state(), before);
    QTest::mouseClick(centre(), Qt::LeftButton, {}, placeOf(selector, 4)); // and the next hand is heard
    QVERIFY(state() != before);
}

void TestFileHands::buttonIsNotLeftPressedBehindTheFileDialog()
{
    show();
    QPushButton* button = window->ui.buttonCredits;
    QTest::mousePress(button, Qt::LeftButton);
    QVERIFY(button->isDown());
    lookForAFile([] {});
    QVERIFY(!button->isDown());
}

void TestFileHands::presetsWithoutSelectorsOutliveARecall_data()
{
    QTest::addColumn<bool>("powerOn");
    QTest::newRow("on") << true;
    QTest::newRow("off") << false;
}

void TestFileHands::presetsWithoutSelectorsOutliveARecall()
{
    QFETCH(bool, powerOn);
    window->setPower(powerOn);
    const QJsonObject file = onePreset();
    import(file);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("F#"));
    QCOMPARE(scale().scaleModifier(), wholeTone);
    QCOMPARE(anchors()->x(), 34.0);
    window->setPower(true);
    recall(66);
    recall(firstActive);
    QCOMPARE(record(firstActive).tonicData, QStringLiteral("F#"));
    QCOMPARE(record(firstActive).scaleData, wholeTone);
    QCOMPARE(record(firstActive).anchorPos, 34);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("F#"));
}

void TestFileHands::anchorsOfTheFileCountMoreThanThePresets()
{
    for (const QString& key : {anchorsPlaceKey, defaultKeys.at(key_anchor_x)}) {
        QJsonObject file = onePreset();
        file.insert(key, 68);
        import(file);
        QCOMPARE(anchors()->x(), 68.0);
    }
}

void TestFileHands::selectorsOfTheFileCountMoreThanThePresets()
{
    QJsonObject file = onePreset();
    file.insert(defaultKeys.at(key_tonic_modifier), QStringLiteral("D"));
    import(file);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("D"));
    QCOMPARE(scale().scaleModifier(), ionian);
}

void TestFileHands::wordThatIsNoneIsNotTakenInPart()
{
    for (const char* word : {"xxxxxx?ooooo", "xxxxxxxxxxx", "", "xxxxxxxxxxxX"}) {
        import({{ QStringLiteral("ScaleModifier"), QLatin1String(word) }});
        QCOMPARE(scale().scaleModifier(), ionian);
    }
    import(
        {{ QStringLiteral("ScaleModifier"),
           QStringLiteral("?oxoxoxoxoxo and more") }}); // read to the twelfth
    QCOMPARE(scale().scaleModifier(), wholeTone);
}

QTEST_MAIN(TestFileHands)
#include "test_file_hands.moc"
