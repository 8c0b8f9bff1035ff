// When the buttons of the library act, and what each does.

#include "LibraryButtonFixture.h"
#include "screen/ChangeDialog.h"

#include <QTimer>

#include <QtTest>

using namespace library_button_table;

class TestLibraryButtonPresses : public LibraryButtonFixture
{
    Q_OBJECT

private slots:
    void init() { openForButtons(); }

    void showsThePressWhileThePointerIsInside_data() { addCodes(); }
    void showsThePressWhileThePointerIsInside();
    void releaseInsideActs_data() { addCodes(); }
    void releaseInsideActs();
    void releaseOutsideDoesNothing_data() { addCodes(); }
    void releaseOutsideDoesNothing();
    void otherMouseButtonsDoNothing_data() { addCodes(); }
    void otherMouseButtonsDoNothing();
    void anotherValueDoesNothing();
    void pressElsewhereAndReleaseInsideDoesNothing();
    void lostPointerLeavesItPlain();

    void doesNothingWhileADialogRuns_data() { addCodes(); }
    void doesNothingWhileADialogRuns();
    void pressBeforeADialogDoesNotAct_data() { addCodes(); }
    void pressBeforeADialogDoesNotAct();
    void flagOfADialogAloneStopsIt();

private:
    /// How many dialogs and menus there are besides one; they are closed.
    int closeOthers(const QWidget& own) const
    {
        int count = 0;
        if (QWidget* popup = QApplication::activePopupWidget())
            count += popup->close();
        for (auto* dialog : window->findChildren<AbstractDialog*>(QString(), Qt::FindDirectChildrenOnly))
            if (dialog != &own && !dialog->isHidden()) {
                ++count;
                dialog->reject();
            }
        return count;
    }
};

void TestLibraryButtonPresses::showsThePressWhileThePointerIsInside()
{
    const auto code = fetchedCode();
    reach(code);
    const QPixmap neutral = pictureOf(rowOf(code), "neutral"), active = pictureOf(rowOf(code), "active");
    const QPointF inside = button(code).sceneBoundingRect().center(), outside(560, 100);
    pressOn(code);
    QVERIFY(looksLike(button(code), active));
    QVERIFY(button(code).isPressed());
    pointer(QEvent::MouseMove, outside, Qt::NoButton, Qt::LeftButton);
    QVERIFY(looksLike(button(code), neutral));
    pointer(QEvent::MouseMove, inside, Qt::NoButton, Qt::LeftButton);
    QVERIFY(looksLike(button(code), active));
    pointer(QEvent::MouseMove, outside, Qt::NoButton, Qt::LeftButton);
    pointer(QEvent::MouseButtonRelease, outside, Qt::LeftButton, Qt::NoButton);
    QVERIFY(looksLike(button(code), neutral));
    QVERIFY(!button(code).isPressed());
}

void TestLibraryButtonPresses::releaseInsideActs()
{
    const auto code = fetchedCode();
    reach(code);
    const bool open = screen().libraryOpen;
    const QString opened = whatOpens([&] {
        pressOn(code);
        QCOMPARE(screen().libraryOpen, open); // not yet
        releaseOn(code);
    });
    QCOMPARE(opened, QString::fromLatin1(rowOf(code).opens));
    const bool access = code == LibraryButton::open_library || code == LibraryButton::close_library;
    QCOMPARE(screen().libraryOpen, access ? !open : open);
    QVERIFY(looksLike(button(code), pictureOf(rowOf(code), "neutral")));
}

void TestLibraryButtonPresses::releaseOutsideDoesNothing()
{
    const auto code = fetchedCode();
    reach(code);
    const bool open = screen().libraryOpen;
    const QString opened = whatOpens([&] {
        pressOn(code);
        pointer(QEvent::MouseMove, {560, 100}, Qt::NoButton, Qt::LeftButton);
        pointer(QEvent::MouseButtonRelease, {560, 100}, Qt::LeftButton, Qt::NoButton);
        pressOn(code);
        pointer(QEvent::MouseButtonRelease, {560, 100}, Qt::LeftButton, Qt::NoButton); // no move told
    });
    QCOMPARE(opened, QString());
    QCOMPARE(screen().libraryOpen, open);
    QVERIFY(!button(code).isPressed());
}

void TestLibraryButtonPresses::otherMouseButtonsDoNothing()
{
    const auto code = fetchedCode();
    reach(code);
    const bool open = screen().libraryOpen;
    const QString opened = whatOpens([&] {
        for (const auto which : {Qt::RightButton, Qt::MiddleButton}) {
            pressOn(code, which);
            QVERIFY(!button(code).isPressed());
            releaseOn(code, which);
        }
    });
    QCOMPARE(opened, QString());
    QCOMPARE(screen().libraryOpen, open);
}

void TestLibraryButtonPresses::anotherValueDoesNothing()
{
    const QString opened = whatOpens([&] {
        for (const int code : {-1, 0, 14, 99})
            screen().carryOut(static_cast<LibraryButton::Code>(code));
    });
    QCOMPARE(opened, QString());
    QVERIFY(screen().libraryOpen);
}

void TestLibraryButtonPresses::pressElsewhereAndReleaseInsideDoesNothing()
{
    const QString opened = whatOpens([&] {
        pressOn(LibraryButton::add_category);
        releaseOn(LibraryButton::rename_category);
        pointer(QEvent::MouseButtonPress, {400, 126}, Qt::LeftButton, Qt::LeftButton);
        releaseOn(LibraryButton::add_category);
    });
    QCOMPARE(opened, QString());
}

void TestLibraryButtonPresses::lostPointerLeavesItPlain()
{
    auto& plus = button(LibraryButton::add_category);
    const QString opened = whatOpens([&] {
        pressOn(LibraryButton::add_category);
        plus.ungrabMouse();
        QVERIFY(looksLike(plus, pictureOf(rowOf(1), "neutral")));
        QVERIFY(!plus.isPressed());
        releaseOn(LibraryButton::add_category);
    });
    QCOMPARE(opened, QString());
}

void TestLibraryButtonPresses::doesNothingWhileADialogRuns()
{
    const auto code = fetchedCode();
    reach(code);
    const bool open = screen().libraryOpen;
    QString opened;
    whenOpen<ChangeDialog>([&](ChangeDialog& dialog) {
        QVERIFY(window->dialogOpen);
        pressOn(code);
        QVERIFY(!button(code).isPressed());
        releaseOn(code);
        QCOMPARE(window->findChildren<AbstractDialog*>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
        dialog.reject();
    });
    ChangeDialog(window.get()).exec();
    QCOMPARE(seen, 1);
    QCOMPARE(screen().libraryOpen, open);
}

// A shortcut may open a dialog while the hand holds the button.
void TestLibraryButtonPresses::pressBeforeADialogDoesNotAct()
{
    const auto code = fetchedCode();
    reach(code);
    const bool open = screen().libraryOpen;
    pressOn(code);
    whenOpen<ChangeDialog>([&](ChangeDialog& dialog) {
        int others = 0;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] { others += closeOthers(dialog); });
        watch.start(0);
        releaseOn(code);
        QCOMPARE(others, 0);
        dialog.reject();
    });
    ChangeDialog(window.get()).exec();
    QCOMPARE(seen, 1);
    QCOMPARE(screen().libraryOpen, open);
    QVERIFY(!button(code).isPressed());
}

void TestLibraryButtonPresses::flagOfADialogAloneStopsIt()
{
    pressOn(LibraryButton::close_library);
    window->dialogOpen = true;
    releaseOn(LibraryButton::close_library);
    QVERIFY(screen().libraryOpen);
    window->dialogOpen = false;
    QVERIFY(!button(LibraryButton::close_library).isPressed());
}

QTEST_MAIN(TestLibraryButtonPresses)
#include "test_library_button_presses.moc"
