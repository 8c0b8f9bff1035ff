#include "AccessFixture.h"

void AccessFixture::openAlone()
{
    openWindow();
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    window->focusInKeyboard();
    heard();
}

void AccessFixture::type(int key, Qt::KeyboardModifiers modifiers, int times)
{
    for (int i = 0; i < times; ++i) {
        QVERIFY(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }
}

void AccessFixture::hold(int key)
{
    QTest::keyPress(QApplication::focusWidget(), static_cast<Qt::Key>(key));
}

void AccessFixture::letUp(int key)
{
    QTest::keyRelease(QApplication::focusWidget(), static_cast<Qt::Key>(key));
}

QString AccessFixture::here() const
{
    if (const StageControl* control = walk().current())
        return control->name();
    const QWidget* focus = QApplication::focusWidget();
    if (!focus)
        return QStringLiteral("nothing");
    return focus->objectName().isEmpty() ? focus->accessibleName() : focus->objectName();
}

void AccessFixture::showScene(int number, bool powered) const
{
    window->setPower(powered);
    if (number <= CenterScreen::scene_credits)
        window->showScene(number);
    else
        window->showLibraryScreen(true);
    window->focusInKeyboard();
}

bool AccessFixture::tabTo(const QString& place) const
{
    type(Qt::Key_Tab); // at least, so that the keyboard counts as used
    for (int i = 0; i < 30 && here() != place; ++i)
        type(Qt::Key_Tab);
    return here() == place;
}
