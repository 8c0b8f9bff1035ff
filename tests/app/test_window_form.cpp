// The window as it opens: the places of the form, its bounds, its members, its tool tips.

#include "WindowFixture.h"
#include "screen/CenterScreen.h"

#include <QToolTip>

class TestWindowForm : public WindowFixture
{
    Q_OBJECT

private slots:
    void init() { openWindow(); }
    void cleanup() { window.reset(); }

    void formRectanglesStandAtTheFormsOwnWidth_data();
    void formRectanglesStandAtTheFormsOwnWidth();
    void opensAt952AndMovesItsChildren();
    void sizeStaysWithinItsBounds();
    void viewsHaveNoFrameAndNoScrollBars();
    void mainMembersStartAsDescribed();
    void toolTipsCanBeRead();
};

void TestWindowForm::formRectanglesStandAtTheFormsOwnWidth_data()
{
    QTest::addColumn<QRect>("rectangle");
    QTest::newRow("outKeyboardGraphicsView") << QRect(-263, 2, 930, 145);
    QTest::newRow("inKeyboardGraphicsView") << QRect(-263, 298, 930, 190);
    QTest::newRow("centerGraphicsView") << QRect(-116, 152, 900, 128);
    QTest::newRow("backgroundGraphicsView") << QRect(0, 0, 952, 480);
    QTest::newRow("outputSwitchGraphicsView") << QRect(926, 45, 25, 45);
    QTest::newRow("inputSwitchGraphicsView") << QRect(926, 427, 25, 45);
    QTest::newRow("newWinButtonGraphicsView") << QRect(920, 0, 32, 41);
    QTest::newRow("buttonMIDIinOut") << QRect(100, 185, 105, 23);
    QTest::newRow("buttonCredits") << QRect(100, 213, 105, 23);
    QTest::newRow("buttonManual") << QRect(100, 241, 105, 23);
    QTest::newRow("buttonExport") << QRect(470, 185, 105, 23);
    QTest::newRow("buttonImport") << QRect(470, 213, 105, 23);
    QTest::newRow("buttonReset") << QRect(470, 241, 105, 23);
    QTest::newRow("centerLogo") << QRect(208, 162, 258, 65);
    QTest::newRow("about") << QRect(202, 232, 271, 51);
    QTest::newRow("scene1Button") << QRect(206, 180, 267, 103);
    QTest::newRow("scene2Button") << QRect(70, 180, 532, 103);
    QTest::newRow("scene34TopButton") << QRect(70, 180, 532, 16);
    QTest::newRow("scene34LeftButton") << QRect(72, 202, 30, 80);
    QTest::newRow("scene4RightButton") << QRect(575, 195, 25, 85);
    QTest::newRow("scene3RightButton") << QRect(588, 195, 10, 85);
    QTest::newRow("hiddenLayer") << QRect(205, 217, 265, 7);
    QTest::newRow("labelBottom") << QRect(206, 274, 263, 6);
    QTest::newRow("versionLabel") << QRect(202, 171, 271, 46);
}

void TestWindowForm::formRectanglesStandAtTheFormsOwnWidth()
{
    QFETCH(QRect, rectangle);
    window->show();
    window->resize(677, 480);
    const auto* child = window->findChild<QWidget*>(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(child);
    QCOMPARE(child->geometry(), rectangle);
}

void TestWindowForm::opensAt952AndMovesItsChildren()
{
    QCOMPARE(window->size(), QSize(952, 480));
    QCOMPARE(window->ui.inKeyboardGraphicsView->x(), 12);
    QCOMPARE(window->ui.outKeyboardGraphicsView->x(), 12);
    QCOMPARE(window->ui.centerGraphicsView->x(), 21);
    QCOMPARE(window->ui.buttonMIDIinOut->x(), 237);
    QCOMPARE(window->ui.backgroundGraphicsView->x(), 0);
    QCOMPARE(window->ui.inputSwitchGraphicsView->x(), 926);
    QCOMPARE(window->centerScreen->inPortList->geometry(), QRect(351, 196, 185, 75));
    QCOMPARE(window->centerScreen->outPortList->geometry(), QRect(548, 196, 160, 75));
}

void TestWindowForm::sizeStaysWithinItsBounds()
{
    window->show();
    window->resize(2000, 900);
    QCOMPARE(window->size(), QSize(952, 480));
    window->resize(100, 100);
    QCOMPARE(window->size(), QSize(677, 480));
}

void TestWindowForm::viewsHaveNoFrameAndNoScrollBars()
{
    const auto views = window->findChildren<QGraphicsView*>();
    QCOMPARE(views.size(), 7);
    for (const QGraphicsView* view : views) {
        QCOMPARE(view->frameShape(), QFrame::NoFrame);
        QCOMPARE(view->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(view->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(view->alignment(), Qt::AlignLeft | Qt::AlignTop);
    }
}

void TestWindowForm::mainMembersStartAsDescribed()
{
    QCOMPARE(mainWnd, window.get());
    QCOMPARE(window->objectName(), QStringLiteral("mainDialog"));
    QCOMPARE(window->windowTitle(), QStringLiteral("Sorvane"));
    QCOMPARE(window->newWindowShortcut.key(), QKeySequence(QStringLiteral("Ctrl+N")));
    QCOMPARE(window->inNoteHeld, QList<int>::fromVector(QVector<int>(128, 0)));
    QVERIFY(!window->dialogOpen);
    QVERIFY(!window->learnTonic);
    QVERIFY(!window->learnScale);
    QVERIFY(!window->midiOutOpen);
    QVERIFY(QMetaType::type("IntList") != QMetaType::UnknownType);
    QVERIFY(window->ui.backgroundGraphicsView->testAttribute(Qt::WA_TransparentForMouseEvents));
}

// A style sheet without a selector is meant for one widget and reaches its tool tips too.
void TestWindowForm::toolTipsCanBeRead()
{
    window->show();
    QList<QWidget*> askers = {window->ui.inKeyboardGraphicsView->viewport()};
    for (QWidget* child : window->findChildren<QWidget*>())
        if (!child->toolTip().isEmpty())
            askers.append(child);
    QVERIFY(askers.size() > 6);
    for (QWidget* asker : qAsConst(askers)) {
        QToolTip::showText(window->mapToGlobal(QPoint(100, 100)), QStringLiteral("MMMM"), asker);
        QWidget* tip = nullptr;
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->inherits("QTipLabel") && top->isVisible())
                tip = top;
        QVERIFY(tip);
        const QImage image = tip->grab().toImage();
        const QPalette wanted = QToolTip::palette();
        QCOMPARE(image.pixelColor(2, image.height() / 2), wanted.color(QPalette::ToolTipBase));
        int lightest = 0;
        for (int x = 3; x < image.width() - 3; ++x)
            lightest = qMax(lightest, qGray(image.pixel(x, image.height() / 2)));
        QVERIFY2(lightest > 180, qPrintable(asker->objectName()));
        QToolTip::hideText();
        tip->close();
    }
}

QTEST_MAIN(TestWindowForm)
#include "test_window_form.moc"
