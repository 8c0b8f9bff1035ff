// The scenes of the display between the keyboards.

#include "SceneBuilder.h"

#include "FakeMidiService.h"
#include "app/MidiService.h"
#include "app/version.h"
#include "keys/TonicKeyItem.h"
#include "library/SettingsStore.h"
#include "screen/TicTacToe.h"

#include <QGraphicsProxyWidget>

#include <algorithm>

void SceneBuilder::openLibraryByHand() const
{
    pressSpace();
    click(LibraryButton::open_library);
    QVERIFY(screen().libraryOpen);
    categoryList().clearFocus();
    window->focusInKeyboard();
}

void SceneBuilder::cleanDisplay()
{
    clickOn(window->ui.scene1Button);
    QCOMPARE(screen().currentScene, int(CenterScreen::scene_clean));
}

// Under the pointer, held down, with the keyboard's focus, and checked.
void SceneBuilder::buttonStates()
{
    const auto& ui = window->ui;
    ui.buttonMIDIinOut->setChecked(true);
    ui.buttonCredits->setDown(true);
    ui.buttonManual->setFocus(Qt::TabFocusReason);
    ui.buttonReset->setEnabled(false);
    QEvent enter(QEvent::Enter);
    ui.buttonExport->setAttribute(Qt::WA_UnderMouse); // no pointer is there to be asked for
    QCoreApplication::sendEvent(ui.buttonExport, &enter);
}

// A long name, a busy port that stays selected, and the keyboard's focus on a row.
void SceneBuilder::ports()
{
    closeWindow();
    rig.names = QStringList{QStringLiteral("Stage Piano"), QStringLiteral("Pads 2"),
                            QStringLiteral("A synthesizer whose name is far too long for its row"),
                            QStringLiteral("Organ")};
    rig.failing = rig.names.last();
    for (const QString& name : rig.names) {
        SettingsStore::setMidiInPortSelected(name, name == rig.names.at(0));
        SettingsStore::setMidiOutPortSelected(name, name == rig.names.at(1));
    }
    SettingsStore::setMidiOutPortSelected(virtualOutName, true);
    window = std::make_unique<MainWnd>();
    show();
    bool rowsAreThrough = false; // each has a timer of 200 milliseconds
    QTimer::singleShot(300, window.get(), [&rowsAreThrough] { rowsAreThrough = true; });
    QTRY_VERIFY(rowsAreThrough);
    QVERIFY(window->inPorts.at(0) && window->outPorts.at(1));
    clickOn(window->ui.buttonMIDIinOut);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("error with selected MIDI port")));
    clickRow(*screen().inPortList, 3);
    QTest::keyClick(window->ui.inKeyboardGraphicsView, Qt::Key_M, Qt::ControlModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QVERIFY(screen().inPortList->hasFocus());
    QVERIFY(screen().inPortList->item(3)->isSelected() && !window->inPorts.at(3));
}

// As far up as so many steps of its timer take it.
void SceneBuilder::credits()
{
    screen().creditLines.replaceInStrings(QLatin1String(sorvaneVersion), QStringLiteral("1.0.0"));
    clickOn(window->ui.buttonCredits);
    screen().creditTimer->stop();
    screen().resetCreditText();
    for (int step = 0; step < 46; ++step)
        screen().moveCreditsText();
    QCOMPARE(screen().currentScene, int(CenterScreen::scene_credits));
}

void SceneBuilder::libraryOpen()
{
    openLibraryByHand();
    clickRow(categoryList(), 1);
    settle();
    clickRow(scaleList(), 2);
    settle();
    QCOMPARE(library().currentCagetoryIndex(), 1);
    QCOMPARE(scaleList().currentRow(), 2);
}

// A new category holds nothing to copy, move or delete.
void SceneBuilder::libraryGhosts()
{
    openLibraryByHand();
    giveName(QStringLiteral("Mine"));
    click(LibraryButton::add_category);
    QTRY_COMPARE(seen, 1);
    settle();
    QCOMPARE(library().currentCategory(), QStringLiteral("Mine"));
}

void SceneBuilder::libraryUnknownScale()
{
    openLibraryByHand();
    for (const int degree : {4, 9})
        clickOn(scale().findKey(degree));
    settle();
    QVERIFY(!screen().isMatches());
}

// Half played, with a winning line.
void SceneBuilder::game()
{
    const QList<QGraphicsItem*> items = window->ui.centerGraphicsView->scene()->items();
    const auto proxy = std::find_if(items.begin(), items.end(), [](const QGraphicsItem* item) {
        return item->type() == QGraphicsProxyWidget::Type;
    });
    QVERIFY(proxy != items.end());
    Hand pointer(window->ui.centerGraphicsView);
    for (const int cell : {4, 0, 2, 1, 6, 3})
        pointer.click((*proxy)->mapToScene(66 * (cell % 3 + 0.5) / 3, 62 * (cell / 3 + 0.5) / 3));
    const auto* board = static_cast<QGraphicsProxyWidget*>(*proxy)->widget();
    QCOMPARE(board->property("state").toString(), QStringLiteral("OOXOX-X--"));
}
