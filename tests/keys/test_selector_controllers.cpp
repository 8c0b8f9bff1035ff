// The tonic and scale controllers and their keys: names, words, and what they refuse.

#include "KeyFixture.h"
#include "keys/tonic_names.h"

class TestSelectorControllers : public KeyFixture
{
    Q_OBJECT

private slots:
    // Keys
    void freshStartIsCMajorWithBothSwitchesOn();
    void everyKeyCarriesItsRolesAndOpacity();
    void extraScaleKeyStandsForTheTonicDegree();
    void itemListIsSortedByIndexWithTheExtraKeyLast();
    void keyWithoutControllerIsLogged();
    void baseControllerFindsKeysByIndex();
    void scaleControllerListsTheTonicDegreeOnce();

    // The tonic
    void tonicOffYieldsEmptyNameButKeepsTheKey();
    void setTonicModifierObeysSwitchAndForce();
    void setTonicModifierLeavesOneKeyOn();

    // The scale
    void scaleWordFollowsTheKeys();
    void setScaleModifierWithSwitchOffSaysNothing();
    void setScaleModifierRejectsBadWords_data();
    void setScaleModifierRejectsBadWords();
    void badLetterKeepsTheDegreesBeforeIt();
    void longWordIsReadToLetterEleven();
    void letterZeroIsNeverRead();
    void toggleKeyTakesTheNameAsPlainIndex();
    void toggleKeyRefusesTonicAndUnknownNames();
    void allOffAndIonicMajor();
    void squaresNumberTheScale();
};

void TestSelectorControllers::freshStartIsCMajorWithBothSwitchesOn()
{
    QVERIFY(tonic().switchOn);
    QVERIFY(scale().switchOn);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("C"));
    QCOMPARE(tonic().tonicModifierIndex(), 0);
    QCOMPARE(scale().scaleModifier(), ionian);
}

void TestSelectorControllers::everyKeyCarriesItsRolesAndOpacity()
{
    for (int index = 0; index < 12; ++index) {
        const TonicKeyItem* t = tonic().findKey(index);
        QCOMPARE(key_roles::side(t), QStringLiteral("tonic"));
        QCOMPARE(key_roles::pitch(t), index);
        QCOMPARE(key_roles::name(t), tonicModifierName[static_cast<std::size_t>(index)]);
        QCOMPARE(key_roles::isStateOn(t), index == 0);
        QCOMPARE(t->opacity(), index == 0 ? 1.0 : 0.01);

        const TonicKeyItem* s = scale().findKey(index);
        const bool member = ionian.at(index) == QLatin1Char('x');
        QCOMPARE(key_roles::side(s), QStringLiteral("scale"));
        QCOMPARE(key_roles::name(s), scaleModifierName[static_cast<std::size_t>(index)]);
        QCOMPARE(key_roles::isStateOn(s), member);
        QCOMPARE(s->opacity(), member ? 1.0 : 0.01);
    }
}

void TestSelectorControllers::extraScaleKeyStandsForTheTonicDegree()
{
    auto* extra = dynamic_cast<TonicKeyItem*>(window->listItemsTonic.last());
    QVERIFY(extra);
    QVERIFY(!extra->scene());
    QCOMPARE(extra->index, 0);
    QCOMPARE(extra->type, tonic_key_scale);
    QVERIFY(extra->on);
    QVERIFY(scale().keys.contains(extra));
    QCOMPARE(key_roles::side(extra), QStringLiteral("scale"));
    QCOMPARE(key_roles::name(extra), QStringLiteral("P1"));
    QCOMPARE(key_roles::pitch(extra), 0);
}

void TestSelectorControllers::itemListIsSortedByIndexWithTheExtraKeyLast()
{
    const auto& items = window->listItemsTonic;
    for (int i = 1; i + 1 < items.size(); ++i)
        QVERIFY(key_roles::pitch(items[i - 1]) <= key_roles::pitch(items[i]));
    QCOMPARE(window->powerItem->listItemsTonic, items);
}

void TestSelectorControllers::keyWithoutControllerIsLogged()
{
    QTest::ignoreMessage(QtWarningMsg, "cannot create TonicKeyItem with parentCtrl == NULL");
    const TonicKeyItem key(tonic_key_tonic, nullptr, 3);
    QVERIFY(!key.on);
}

void TestSelectorControllers::baseControllerFindsKeysByIndex()
{
    for (int index = 0; index < 12; ++index)
        QCOMPARE(tonic().findKey(index)->index, index);
    QVERIFY(!tonic().findKey(12));
    QVERIFY(!tonic().findKey(-1));
}

void TestSelectorControllers::scaleControllerListsTheTonicDegreeOnce()
{
    TonicKeyItem* first = scale().findKey(0);
    const int before = scale().keys.size();
    scale().addKey(first);
    QCOMPARE(scale().keys.size(), before);
    emit first->mousePressed(first); // connected to nothing
    QVERIFY(!scale().pressedKey);
}

void TestSelectorControllers::tonicOffYieldsEmptyNameButKeepsTheKey()
{
    QVERIFY(tonic().setTonicModifier(QStringLiteral("E"), true, false));
    tonic().setSwitchOff(false);
    QCOMPARE(tonic().tonicModifier(), QString());
    QCOMPARE(tonic().activeKey, tonic().findKey(4));
    QCOMPARE(window->powerItem->getCurTonicModifier(), 4);
}

void TestSelectorControllers::setTonicModifierObeysSwitchAndForce()
{
    tonic().setSwitchOff(false);
    QVERIFY(!tonic().setTonicModifier(QStringLiteral("D"), true, false));
    QCOMPARE(tonic().tonicModifierIndex(), 0);
    QVERIFY(tonic().setTonicModifier(QStringLiteral("D"), true, true));
    QCOMPARE(tonic().tonicModifierIndex(), 2);
    QVERIFY(!tonic().setTonicModifier(QString(), true, true));
    QVERIFY(!tonic().setTonicModifier(QStringLiteral("H"), true, true));
    QVERIFY(!tonic().setTonicModifier(QStringLiteral("d"), true, true));
    QCOMPARE(tonic().tonicModifierIndex(), 2);
}

void TestSelectorControllers::setTonicModifierLeavesOneKeyOn()
{
    for (const QString& name : tonicModifierName) {
        QVERIFY(tonic().setTonicModifier(name, true, false));
        int chosen = 0;
        for (const TonicKeyItem* key : qAsConst(tonic().keys))
            chosen += key->on ? 1 : 0;
        QCOMPARE(chosen, 1);
        QCOMPARE(tonic().tonicModifier(), name);
    }
}

void TestSelectorControllers::scaleWordFollowsTheKeys()
{
    scale().findKey(1)->changeState(true);
    scale().findKey(4)->changeState(true);
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xxxooxoxoxox"));
}

void TestSelectorControllers::setScaleModifierWithSwitchOffSaysNothing()
{
    scale().setSwitchOff(false);
    QVERIFY(!scale().setScaleModifier(QStringLiteral("xxxxxxxxxxxx"), false));
    QCOMPARE(scale().scaleModifier(), ionian);
    QVERIFY(scale().setScaleModifier(QStringLiteral("xxxxxxxxxxxx"), true));
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xxxxxxxxxxxx"));
}

void TestSelectorControllers::setScaleModifierRejectsBadWords_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("empty") << QString();
    QTest::newRow("eleven letters") << QStringLiteral("xoxoxxoxoxo");
    QTest::newRow("bad second letter") << QStringLiteral("x-xoxxoxoxox");
    QTest::newRow("capital") << QStringLiteral("xXxoxxoxoxox");
}

void TestSelectorControllers::setScaleModifierRejectsBadWords()
{
    QFETCH(QString, word);
    QVERIFY(!scale().setScaleModifier(word, true));
    QCOMPARE(scale().scaleModifier(), ionian);
}

void TestSelectorControllers::badLetterKeepsTheDegreesBeforeIt()
{
    QVERIFY(!scale().setScaleModifier(QStringLiteral("xxxxx?oooooo"), true));
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xxxxxxoxoxox"));
}

void TestSelectorControllers::longWordIsReadToLetterEleven()
{
    QVERIFY(scale().setScaleModifier(QStringLiteral("xooxoooxoooo??"), true));
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xooxoooxoooo"));
}

void TestSelectorControllers::letterZeroIsNeverRead()
{
    QVERIFY(scale().setScaleModifier(QStringLiteral("?ooooooxoooo"), true));
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xooooooxoooo"));
}

void TestSelectorControllers::toggleKeyTakesTheNameAsPlainIndex()
{
    tonic().setTonicModifier(QStringLiteral("A"), true, true);
    QVERIFY(scale().toggleKey(QStringLiteral("D")));
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xoooxxoxoxox"));
    QVERIFY(scale().toggleKey(QStringLiteral("F#")));
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xoooxxxxoxox"));
}

void TestSelectorControllers::toggleKeyRefusesTonicAndUnknownNames()
{
    for (const char* name : {"C", "", "H", "d", "D4"})
        QVERIFY(!scale().toggleKey(QLatin1String(name)));
    QCOMPARE(scale().scaleModifier(), ionian);
}

void TestSelectorControllers::allOffAndIonicMajor()
{
    scale().setAllOff();
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xooooooooooo"));
    scale().setIonicMajor();
    QCOMPARE(scale().scaleModifier(), ionian);
}

void TestSelectorControllers::squaresNumberTheScale()
{
    QCOMPARE(window->powerItem->getCurScaleCount(false), 7);
    scale().setScaleModifier(QStringLiteral("xxxxxxxxxxxx"), true);
    QCOMPARE(window->powerItem->getCurScaleCount(false), 12);
    scale().setAllOff();
    QCOMPARE(window->powerItem->getCurScaleCount(false), 1);
}

QTEST_MAIN(TestSelectorControllers)
#include "test_selector_controllers.moc"
