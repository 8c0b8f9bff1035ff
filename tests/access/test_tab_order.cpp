// The order in which Tab goes through the window in each of its scenes, and back.

#include "AccessFixture.h"

class TestTabOrder : public AccessFixture
{
    Q_OBJECT

private slots:
    void tabFollowsTheEye_data();
    void tabFollowsTheEye();
    void whatHasTheFocusIsSeen_data();
    void whatHasTheFocusIsSeen();
    void tabLeavesWhatGoesAwayUnderIt();
    void portRowsKeepTheKeyboardFromAClick();
    void returnOnTheHitAreasWalksTheScenes();

private:
    static void addScenes();
};

void TestTabOrder::addScenes()
{
    QTest::addColumn<int>("scene");
    QTest::addColumn<bool>("powered");
    QTest::addColumn<QStringList>("middle");
    const QStringList left{"buttonMIDIinOut", "buttonCredits", "buttonManual"};
    const QStringList right{"buttonExport", "buttonImport", "buttonReset"};
    const QStringList ports{"MIDI input ports", "MIDI output ports"};
    const QStringList library{"New category (Insert)", "Scale categories", "Scales of the category"};
    struct Scene
    {
        const char* name;
        int number;
        QStringList middle;
    };
    const Scene scenes[] = {{"default", 1, left + right + QStringList("scene1Button")},
                            {"clean", 2, {"scene2Button"}},
                            {"ports", 3, left + ports + QStringList("scene34TopButton")},
                            {"credits", 4, left + right + QStringList("scene34TopButton")},
                            {"library", 5, library}};
    for (const Scene& scene : scenes)
        for (const bool powered : {false, true})
            if (powered || scene.number != 5)
                QTest::addRow("%s, power %s", scene.name, powered ? "on" : "off")
                    << scene.number << powered << scene.middle;
}

void TestTabOrder::tabFollowsTheEye_data()
{
    addScenes();
}

void TestTabOrder::tabFollowsTheEye()
{
    QFETCH(int, scene);
    QFETCH(bool, powered);
    QFETCH(QStringList, middle);
    showScene(scene, powered);
    const QString game = QStringLiteral("Game: row 1, column 1");
    QStringList round{QStringLiteral("C4 of the output")};
    round << (powered ? QStringList("Tonic C") : QStringList()) << middle << game;
    if (powered)
        round << QStringLiteral("Semitone 2 above the tonic, M2");
    round << QStringLiteral("C4, white key, plays C4");
    window->ui.inKeyboardGraphicsView->setFocus();
    for (int lap = 0; lap < 2; ++lap)
        for (const QString& stop : qAsConst(round)) {
            type(Qt::Key_Tab);
            QCOMPARE(here(), stop);
        }
    for (int i = round.size() - 2; i >= 0; --i) {
        type(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(here(), round.at(i));
    }
    type(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(here(), round.last());
}

void TestTabOrder::whatHasTheFocusIsSeen_data()
{
    addScenes();
}

void TestTabOrder::whatHasTheFocusIsSeen()
{
    QFETCH(int, scene);
    QFETCH(bool, powered);
    QFETCH(QStringList, middle);
    showScene(scene, powered);
    for (int i = 0; i < middle.size() + 5; ++i) {
        type(Qt::Key_Tab);
        QVERIFY(QApplication::focusWidget()->isVisible());
        QVERIFY(ring().isVisible());
        QVERIFY(window->rect().contains(ring().geometry()));
        const QImage with = window->grab().toImage();
        ring().hide();
        const QImage without = window->grab().toImage();
        QVERIFY2(with != without, qPrintable(here()));
    }
}

// The power takes the selectors away; the keyboard finds its way on.
void TestTabOrder::tabLeavesWhatGoesAwayUnderIt()
{
    showScene(1, true);
    QVERIFY(tabTo(QStringLiteral("Semitone 2 above the tonic, M2")));
    type(Qt::Key_Space);
    QVERIFY(!window->isPowerOn());
    QVERIFY(!ring().isVisible() || walk().current());
    type(Qt::Key_Tab);
    QVERIFY(ring().isVisible());
    for (int i = 0; i < 12; ++i) {
        type(Qt::Key_Tab);
        QVERIFY(!here().startsWith(QLatin1String("Semitone")));
    }
}

void TestTabOrder::portRowsKeepTheKeyboardFromAClick()
{
    showScene(3, false);
    QVERIFY(tabTo(QStringLiteral("MIDI input ports")));
    type(Qt::Key_Escape);
    QVERIFY(window->ui.inKeyboardGraphicsView->hasFocus());
    QCOMPARE(screen().inPortList->focusPolicy(), Qt::NoFocus);
}

void TestTabOrder::returnOnTheHitAreasWalksTheScenes()
{
    showScene(1, false);
    QVERIFY(tabTo(QStringLiteral("scene1Button")));
    type(Qt::Key_Return);
    QCOMPARE(screen().currentScene, 2);
    QVERIFY(tabTo(QStringLiteral("scene2Button")));
    type(Qt::Key_Enter);
    QCOMPARE(screen().currentScene, 1);
    showScene(4, false);
    QVERIFY(tabTo(QStringLiteral("scene34TopButton")));
    type(Qt::Key_Return);
    QCOMPARE(screen().currentScene, 1);
}

QTEST_MAIN(TestTabOrder)
#include "test_tab_order.moc"
