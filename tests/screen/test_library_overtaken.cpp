// What a hand has begun in the library stays its own, whatever is played meanwhile.

#include "LibraryFixture.h"
#include "screen/AddWindow.h"
#include "screen/EditWindow.h"

#include <QMenu>
#include <QScrollBar>
#include <QTextEdit>
#include <QtTest>

class TestLibraryOvertaken : public LibraryFixture
{
    Q_OBJECT

private slots:
    // A note behind the dialog once stored the texts under the scale that was played.
    void noteBehindTheEditDialogChangesNoOtherScale_data();
    void noteBehindTheEditDialogChangesNoOtherScale();
    void noteBehindTheAddDialogAddsWhatWasPlayedThen();
    void addingAKnownScaleKeepsTheNamesThatNobodyTouched();
    // A refilled list once handed another row to the drag.
    void noteBetweenPressAndMoveEndsTheDragBeforeItBegins();
    void clickBeforeTheListsFollowMeansWhatTheHandSaw();
    void menuGoesWithTheLibrary_data();
    void menuGoesWithTheLibrary();
    void returnInAMenuReachesNothingBelow();
    void noMenuWithoutAnotherCategory();
    void pointerThatPassesRowsChoosesNone();
    void otherButtonsDoubleClickPlaysNothing();
    void libraryThatOpensAgainShowsWhatIsPlayed_data();
    void libraryThatOpensAgainShowsWhatIsPlayed();
    void wordThatIsNoScaleIsNotPlayed_data();
    void wordThatIsNoScaleIsNotPlayed();
    void listStaysScrolledWhileItsCategoriesAreTheSame();
    void dialogGetsTheFieldBackThatHadTheKeyboard();
    void powerLeavesNoButtonOfTheCreditsWithTheKeyboard();

private:
    /// Shows a scale of another category than the played one's, which stays Ionian.
    QString selectAnotherScale() const;
    void note() const
    {
        sendNote(60, 90);
        sendNote(60, 0);
    }
};

QString TestLibraryOvertaken::selectAnotherScale() const
{
    scale().setSwitchOff(true);
    showCategory(3);
    const QString word = words(category(3)).at(2);
    screen().scaleListItemClicked(scaleList().item(2));
    return word;
}

void TestLibraryOvertaken::noteBehindTheEditDialogChangesNoOtherScale_data()
{
    QTest::addColumn<int>("code");
    QTest::newRow("pencil") << int(LibraryButton::edit_description);
    QTest::newRow("first short name") << int(LibraryButton::edit_abbr1);
    QTest::newRow("second short name") << int(LibraryButton::edit_abbr2);
    QTest::newRow("page") << 0;
}

void TestLibraryOvertaken::noteBehindTheEditDialogChangesNoOtherScale()
{
    QFETCH(int, code);
    const QString word = selectAnotherScale();
    const QString title = titleOf(word);
    whenOpen<EditWindow>([this](EditWindow& dialog) {
        note();
        dialog.setDescription(QStringLiteral("typed"));
        dialog.accept();
    });
    if (code)
        screen().carryOut(static_cast<LibraryButton::Code>(code));
    else
        screen().descrButtonClicked();
    QCOMPARE(seen, 1);
    scale_data edited, played;
    QVERIFY(library().getScaleData(word, edited, DatabaseLibrary::LibraryRole));
    QVERIFY(library().getScaleData(ionian, played, DatabaseLibrary::LibraryRole));
    QCOMPARE(edited.libBody, QStringLiteral("typed"));
    QCOMPARE(edited.title, title);
    QCOMPARE(played.title, QStringLiteral("Ionian"));
    QVERIFY(played.libBody != edited.libBody);
}

void TestLibraryOvertaken::noteBehindTheAddDialogAddsWhatWasPlayedThen()
{
    play(unknownWord);
    settle();
    whenOpen<AddWindow>([this](AddWindow& dialog) {
        play(ionian);
        note();
        dialog.setName(QStringLiteral("mine"));
        dialog.accept();
    });
    screen().carryOut(LibraryButton::add_scale);
    QCOMPARE(seen, 1);
    QCOMPARE(titleOf(unknownWord), QStringLiteral("mine"));
    QCOMPARE(titleOf(ionian), QStringLiteral("Ionian"));
}

// The dialog shows "MAJO", which is what fits; the factory's "MAJOR" is not to be lost by it.
void TestLibraryOvertaken::addingAKnownScaleKeepsTheNamesThatNobodyTouched()
{
    scale_data before;
    scale_data after;
    QVERIFY(library().getScaleData(ionian, before, DatabaseLibrary::LibraryRole));
    QVERIFY(!screen().canBeRightLibraryName(before.abbr1));
    whenOpen<AddWindow>([this](AddWindow& dialog) {
        dialog.setCurrentCategory(category(9));
        dialog.setAbbr2(QStringLiteral("mine"));
        dialog.accept();
    });
    screen().carryOut(LibraryButton::add_scale);
    QCOMPARE(seen, 1);
    QVERIFY(library().getScaleData(ionian, after, DatabaseLibrary::LibraryRole));
    QCOMPARE(after.abbr1, before.abbr1);
    QCOMPARE(after.abbr2, QStringLiteral("mine"));
    QCOMPARE(words(category(9)), QList<QString>{ionian});
}

void TestLibraryOvertaken::noteBetweenPressAndMoveEndsTheDragBeforeItBegins()
{
    show();
    scale().setSwitchOff(true);
    showCategory(3);
    const QPoint place = placeOfRow(scaleList(), 2);
    press(place);
    note();
    settle(); // the rows are those of the played scale's category now
    QCOMPARE(library().currentCagetoryIndex(), 0);
    move(place + QPoint(0, 30));
    QVERIFY(!scaleList().isDragging());
    release(place + QPoint(0, 30));
}

void TestLibraryOvertaken::clickBeforeTheListsFollowMeansWhatTheHandSaw()
{
    scale().setSwitchOff(true);
    showCategory(3);
    const QString word = words(category(3)).at(2);
    note();
    QCOMPARE(library().currentCagetoryIndex(), 0);
    screen().scaleListItemClicked(scaleList().item(2));
    QCOMPARE(library().currentCagetoryIndex(), 3);
    QCOMPARE(library().currentScale(), word);
    QCOMPARE(scaleList().keyAt(scaleList().currentRow()), word);
}

void TestLibraryOvertaken::menuGoesWithTheLibrary_data()
{
    QTest::addColumn<int>("code");
    QTest::newRow("copy") << int(LibraryButton::copy_scale);
    QTest::newRow("move") << int(LibraryButton::move_scale);
}

void TestLibraryOvertaken::menuGoesWithTheLibrary()
{
    QFETCH(int, code);
    const QList<QString> before = words(category(0));
    bool stillUp = true;
    whenMenu([&](QMenu& menu) {
        sendNote(key_roles::pitch(power()), 90);
        stillUp = menu.isVisible();
    });
    screen().carryOut(static_cast<LibraryButton::Code>(code));
    QCOMPARE(seen, 1);
    QVERIFY(!stillUp);
    QVERIFY(!screen().libraryOpen);
    QCOMPARE(words(category(0)), before);
}

void TestLibraryOvertaken::returnInAMenuReachesNothingBelow()
{
    show();
    scale().setSwitchOff(true);
    scaleList().setFocus();
    scaleList().setCurrentRow(3);
    whenMenu([](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_Return); });
    screen().carryOut(LibraryButton::copy_scale);
    QCOMPARE(seen, 1);
    QVERIFY(!scale().switchOn);
    QCOMPARE(scale().scaleModifier(), ionian);
}

void TestLibraryOvertaken::noMenuWithoutAnotherCategory()
{
    for (int i = library().categoryCount() - 1; i > 0; --i)
        library().removeCategory(category(i));
    screen().refreshBrowser();
    bool opened = false;
    QTimer::singleShot(50, window.get(), [&] {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            opened = true;
            popup->close();
        }
    });
    screen().carryOut(LibraryButton::copy_scale);
    screen().carryOut(LibraryButton::move_scale);
    QVERIFY(!opened);
}

void TestLibraryOvertaken::pointerThatPassesRowsChoosesNone()
{
    show();
    press(placeOfRow(categoryList(), 1));
    move(placeOfRow(categoryList(), 2));
    move(placeOfRow(categoryList(), 4));
    release(placeOfRow(categoryList(), 4));
    QCOMPARE(categoryList().currentRow(), 1);
    QCOMPARE(library().currentCagetoryIndex(), 1);
    QCOMPARE(categoryList().selectedItems().size(), 1);
}

void TestLibraryOvertaken::otherButtonsDoubleClickPlaysNothing()
{
    show();
    scale().setSwitchOff(true);
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton})
        QTest::mouseDClick(scaleList().viewport(), button, Qt::NoModifier,
                           scaleList().visualItemRect(scaleList().item(4)).center());
    QVERIFY(!scale().switchOn);
    QCOMPARE(scale().scaleModifier(), ionian);
}

void TestLibraryOvertaken::libraryThatOpensAgainShowsWhatIsPlayed_data()
{
    QTest::addColumn<int>("number");
    for (int number = CenterScreen::scene_default; number <= CenterScreen::scene_credits; ++number)
        QTest::addRow("over scene %d", number) << number;
}

void TestLibraryOvertaken::libraryThatOpensAgainShowsWhatIsPlayed()
{
    QFETCH(int, number);
    window->showLibraryScreen(false);
    screen().currentScene = number;
    window->showLibraryScreen(true);
    selectAnotherScale();
    window->showLibraryScreen(false);
    scale().setSwitchOn(true);
    play(unknownWord);
    window->showLibraryScreen(true);
    scale_data record;
    QVERIFY(library().getScaleData(unknownWord, record, DatabaseLibrary::AnyRole));
    QVERIFY(view().description->toPlainText().startsWith(record.title));
    QCOMPARE(button(LibraryButton::edit_abbr1).text(), record.abbr1);
    QCOMPARE(button(LibraryButton::edit_abbr2).text(), record.abbr2);
}

void TestLibraryOvertaken::wordThatIsNoScaleIsNotPlayed_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("foreign letter") << QStringLiteral("xxxxxx?ooooo");
    QTest::newRow("too long") << QStringLiteral("xxxxxxxxxxxxZZ");
    QTest::newRow("too short") << QStringLiteral("xxx");
    QTest::newRow("without its tonic") << QStringLiteral("ooxoxxoxoxox");
}

void TestLibraryOvertaken::wordThatIsNoScaleIsNotPlayed()
{
    QFETCH(QString, word);
    addWord(word, QStringLiteral("from a file"), category(9));
    const QString stored = record(firstActive).scaleData;
    showCategory(9);
    screen().scaleListItemClicked(scaleList().item(0));
    QCOMPARE(scale().scaleModifier(), ionian);
    QCOMPARE(record(firstActive).scaleData, stored);
    QVERIFY(view().description->toPlainText().startsWith(QStringLiteral("from a file"))); // it is shown
}

void TestLibraryOvertaken::listStaysScrolledWhileItsCategoriesAreTheSame()
{
    show();
    categoryList().verticalScrollBar()->setValue(3);
    const QString top = categoryList().itemAt(2, 2)->text();
    play(unknownWord); // a record comes
    settle();
    QCOMPARE(categoryList().itemAt(2, 2)->text(), top);
}

void TestLibraryOvertaken::dialogGetsTheFieldBackThatHadTheKeyboard()
{
    show();
    bool back = false;
    whenOpen<EditWindow>([&](EditWindow& dialog) {
        auto* text = dialog.findChild<QTextEdit*>();
        text->setFocus();
        EditWindow above(1, window.get());
        QTimer::singleShot(0, &above, [&above] { above.reject(); });
        above.exec();
        back = text->hasFocus();
        dialog.reject();
    });
    screen().carryOut(LibraryButton::scale_label);
    QCOMPARE(seen, 1);
    QVERIFY(back);
}

void TestLibraryOvertaken::powerLeavesNoButtonOfTheCreditsWithTheKeyboard()
{
    show();
    window->showLibraryScreen(false);
    screen().setSceneCredits();
    for (int i = 0; i < 2; ++i) {
        window->switchPower();
        QVERIFY(window->ui.inKeyboardGraphicsView->hasFocus());
        QCOMPARE(screen().currentScene, int(CenterScreen::scene_credits));
    }
}

QTEST_MAIN(TestLibraryOvertaken)
#include "test_library_overtaken.moc"
