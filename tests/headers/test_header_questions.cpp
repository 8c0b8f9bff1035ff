// The two questions, erase all and reset all, their answers and what follows.

#include "HeaderFixture.h"
#include "PresetModel.h"
#include "header_pictures.h"
#include "screen/AlertWidget.h"

#include <QtTest>

#include <functional>

class TestHeaderQuestions : public HeaderFixture
{
    Q_OBJECT

private slots:
    // Asking
    void eraseAllAsks();
    void resetAllAsks();
    void keysAnswer_data();
    void keysAnswer();
    void buttonsAnswer_data();
    void buttonsAnswer();
    void spaceIsNoAnswer();

    // What follows
    void eraseAllClearsEverything();
    void controlRResets();
    void resetAllWritesTheFactoryRows();
    void resetAllPlacesThePowerButton();
    void resetAllLoadsTheActiveHeader_data();
    void resetAllLoadsTheActiveHeader();
    void resetAllWithoutAnActiveHeader();
    void resetAllKeepsThePower_data();
    void resetAllKeepsThePower();

private:
    /// `ask` opens the question once; it is answered with no.
    void expectQuestion(const QString& text, const QString& acceptLabel, const std::function<void()>& ask);
    /// Moves the power button; the active preset and the power stay.
    void movePower(int key) const { QVERIFY(scene()->swapHeader(header(key), power())); }
};

void TestHeaderQuestions::expectQuestion(const QString& text, const QString& acceptLabel,
                                         const std::function<void()>& ask)
{
    whenAsked([this, text, acceptLabel](AlertWidget& alert) {
        QVERIFY(window->dialogOpen);
        QCOMPARE(alert.box->title, QString());
        QCOMPARE(alert.box->message, text);
        QCOMPARE(alert.box->okText, acceptLabel);
        QCOMPARE(alert.box->cancelText, QStringLiteral("Cancel"));
        QCOMPARE(alert.box->type, alert_warning);
        QCOMPARE(alert.parentWidget(), window.get());
        alert.reject();
    });
    ask();
    QCOMPARE(seen, 1);
    QVERIFY(!window->dialogOpen);
}

void TestHeaderQuestions::eraseAllAsks()
{
    expectQuestion(QStringLiteral("<h4>Are you sure you want to permanently erase the settings in all "
                                  "Headers?</h4><h6>You can't undo this operation.</h6>"),
                   QStringLiteral("Erase All"), [this] { presets().eraseAll(); });
}

void TestHeaderQuestions::resetAllAsks()
{
    expectQuestion(QStringLiteral("<h4>Are you sure you want to reset Sorvane?</h4><h6>You can't undo "
                                  "this operation.</h6>"),
                   QStringLiteral("Reset to Default"), [this] { presets().resetAll(); });
}

void TestHeaderQuestions::keysAnswer_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("Return") << Qt::Key_Return << true;
    QTest::newRow("Enter") << Qt::Key_Enter << true;
    QTest::newRow("Escape") << Qt::Key_Escape << false;
}

void TestHeaderQuestions::keysAnswer()
{
    QFETCH(Qt::Key, key);
    QFETCH(bool, accepted);
    show();
    record(25) = fullRecord();
    whenAsked([key](AlertWidget& alert) {
        QTest::keyClick(QApplication::focusWidget(), key);
        QVERIFY(alert.isHidden());
    });
    presets().eraseAll();
    QCOMPARE(seen, 1);
    QCOMPARE(record(25).scaleOn, !accepted);
    QVERIFY(!window->dialogOpen);
    QVERIFY(window->isVisible()); // the key did not reach it
}

void TestHeaderQuestions::buttonsAnswer_data()
{
    QTest::addColumn<bool>("accepted");
    QTest::newRow("accepting") << true;
    QTest::newRow("cancelling") << false;
}

void TestHeaderQuestions::buttonsAnswer()
{
    QFETCH(bool, accepted);
    record(25) = fullRecord();
    answer(accepted);
    presets().eraseAll();
    QCOMPARE(seen, 1);
    QCOMPARE(record(25).scaleOn, !accepted);
}

void TestHeaderQuestions::spaceIsNoAnswer()
{
    show();
    record(25) = fullRecord();
    whenAsked([this](AlertWidget& alert) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QVERIFY(!power()->isSwitchOn());
        QVERIFY(alert.isVisible());
        alert.reject();
    });
    presets().eraseAll();
    QCOMPARE(seen, 1);
    QVERIFY(record(25).scaleOn);
    QTest::keyClick(window.get(), Qt::Key_Space);
    QVERIFY(power()->isSwitchOn());
}

void TestHeaderQuestions::eraseAllClearsEverything()
{
    window->setPower(true);
    setScale(lydian);
    record(25) = fullRecord();
    answer(on);
    presets().eraseAll(); // needs no context header
    QVERIFY(!tonic().switchOn && !scale().switchOn);
    QCOMPARE(scale().scaleModifier(), lydian);
    header_data cleared;
    cleared.clearNames();
    for (const HeaderItem* item : qAsConst(presets().headers))
        QCOMPARE(asText(item->record), asText(cleared));
    QCOMPARE(active(), firstActive);
}

void TestHeaderQuestions::controlRResets()
{
    show();
    record(lowest) = fullRecord();
    answer(on);
    QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(seen, 1);
    QCOMPARE(asText(record(lowest)), asText(factoryRow(0)));
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    answer(off);
    record(lowest) = fullRecord();
    QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(seen, 2);
    QCOMPARE(asText(record(lowest)), asText(fullRecord()));
}

void TestHeaderQuestions::resetAllWritesTheFactoryRows()
{
    QStringList fresh;
    for (const HeaderItem* item : qAsConst(presets().headers))
        fresh << asText(item->record);
    const auto categories = library().categories();
    movePower(61);
    library().clear();
    for (HeaderItem* item : qAsConst(presets().headers))
        item->record = fullRecord();
    answer(on);
    presets().resetAll();
    for (int i = 0; i < 36; ++i)
        QCOMPARE(asText(presets().headers.at(i)->record), fresh.at(i));
    QCOMPARE(library().categories(), categories);
}

// The button is placed as if the preset had been dropped on it: that turns the power on.
void TestHeaderQuestions::resetAllPlacesThePowerButton()
{
    for (int i = 0; i < 2; ++i) { // the second time it is there already
        power()->setPos(0, 0);
        answer(on);
        presets().resetAll();
        QCOMPARE(key_roles::pitch(power()), 61); // the key below the point (407, 28)
        QCOMPARE(power()->pos(), window->findInNote(61)->pos() + QPointF(-4, -18));
        QCOMPARE(active(), powerKey);
        QVERIFY(power()->isSwitchOn());
    }
}

void TestHeaderQuestions::resetAllLoadsTheActiveHeader_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("both") << 75;        // D sharp, Iwato
    QTest::newRow("tonic alone") << 51; // D sharp
    QTest::newRow("scale alone") << 66; // Aeolian
    QTest::newRow("neither") << 63;
}

void TestHeaderQuestions::resetAllLoadsTheActiveHeader()
{
    QFETCH(int, key);
    const header_data row = factoryRow(PresetModel::indexOf(key));
    window->setPower(true);
    movePower(61);
    placeAnchors(34.5);
    power()->mainAnchorIn->setOpacity(0.01);
    recall(key, false);
    setTonic("D");
    setScale(wholeTone);
    answer(on);
    presets().resetAll();
    QCOMPARE(active(), key);
    QCOMPARE(tonic().switchOn, row.tonicOn);
    QCOMPARE(scale().switchOn, row.scaleOn);
    QCOMPARE(tonic().tonicModifierIndex(), row.tonicOn ? 3 : 2);
    QCOMPARE(scale().scaleModifier(), row.scaleOn ? row.scaleData : wholeTone);
    QCOMPARE(target(60), row.tonicOn ? 63 : 62);
    QCOMPARE(library().currentScale(), scale().scaleModifier());
    QCOMPARE(anchors()->pos(), QPointF(0, 7));
    QCOMPARE(power()->mainAnchorIn->opacity(), 1.0); // refreshed
}

void TestHeaderQuestions::resetAllWithoutAnActiveHeader()
{
    window->setPower(true);
    movePower(61);
    placeAnchors(34);
    setTonic("D");
    setScale(wholeTone);
    header(firstActive)->setStatus(header_deactive);
    presets().activeHeader = nullptr;
    record(lowest) = fullRecord();
    answer(on);
    presets().resetAll();
    QCOMPARE(asText(record(lowest)), asText(factoryRow(0)));
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("D"));
    QCOMPARE(scale().scaleModifier(), wholeTone);
    QCOMPARE(anchors()->x(), 0.0);
}

void TestHeaderQuestions::resetAllKeepsThePower_data()
{
    QTest::addColumn<bool>("powered");
    QTest::newRow("off") << false;
    QTest::newRow("on") << true;
}

void TestHeaderQuestions::resetAllKeepsThePower()
{
    QFETCH(bool, powered);
    window->setPower(powered);
    movePower(61); // shows the button as on
    placeAnchors(-34);
    answer(on);
    presets().resetAll();
    QCOMPARE(power()->isSwitchOn(), powered);
    QVERIFY(shows(power(), powered ? QStringLiteral(":/Resources/Power/POWERBUTTONOn.png")
                                   : QStringLiteral(":/Resources/Power/POWERBUTTONOff.png")));
    for (const HeaderItem* item : qAsConst(presets().headers))
        QCOMPARE(item->isVisible(), powered && item != header(61));
    QCOMPARE(target(60), 60);
    QCOMPARE(target(61), powered ? -1 : 61);
}

QTEST_MAIN(TestHeaderQuestions)
#include "test_header_questions.moc"
