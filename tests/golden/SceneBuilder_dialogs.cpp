// The scenes of menus and dialogs. They run loops of their own, in which their pictures are taken.

#include "SceneBuilder.h"

#include "screen/AddWindow.h"
#include "screen/AlertWidget.h"
#include "screen/ChangeDialog.h"
#include "screen/EditWindow.h"

#include <QMenu>

template <typename Dialog>
void SceneBuilder::takeDialog(const std::function<void()>& open)
{
    whenOpen<Dialog>([this](Dialog& dialog) {
        picture = take();
        dialog.reject();
    });
    open();
    QTRY_VERIFY(!picture.isNull());
    QTRY_VERIFY(!window->dialogOpen);
}

void SceneBuilder::libraryMenu()
{
    openLibraryByHand();
    const QGraphicsView* stage = window->ui.centerGraphicsView;
    const QRectF copy = button(LibraryButton::copy_scale).sceneBoundingRect();
    const QPoint below = inWindow(stage->viewport(), stage->mapFromScene(copy.bottomLeft()));
    whenMenu([&](QMenu& menu) { picture = takeWith(menu, below); });
    click(LibraryButton::copy_scale);
    QVERIFY(!picture.isNull());
}

void SceneBuilder::addWindow()
{
    openLibraryByHand();
    takeDialog<AddWindow>([this] { click(LibraryButton::add_scale); });
}

void SceneBuilder::addWindowWithError()
{
    openLibraryByHand();
    whenOpen<AddWindow>([this](AddWindow& dialog) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), '_');
        picture = take();
        dialog.reject();
    });
    click(LibraryButton::add_scale);
    QVERIFY(!picture.isNull());
}

void SceneBuilder::editWindow()
{
    openLibraryByHand();
    takeDialog<EditWindow>([this] { click(LibraryButton::edit_description); });
}

void SceneBuilder::renameCategory()
{
    openLibraryByHand();
    takeDialog<ChangeDialog>([this] { click(LibraryButton::rename_category); });
}

void SceneBuilder::question()
{
    openLibraryByHand();
    takeDialog<AlertWidget>([this] { click(LibraryButton::delete_scale); });
}

void SceneBuilder::takeAlert(const QString& text, const QString& ok, const QString& cancel, int type)
{
    AlertWidget alert(QString(), text, ok, cancel, static_cast<alert_type>(type), window.get());
    alert.resize(window->size());
    alert.show();
    picture = take();
    alert.reject();
}

// Nothing in the program tells something of this kind yet.
void SceneBuilder::information()
{
    takeAlert(QStringLiteral("<h4>All presets are written.</h4><h6>They come back with the next start.</h6>"),
              QStringLiteral("Ok"), QString(), alert_information);
}

void SceneBuilder::portError()
{
    takeAlert(MainWnd::portErrorText(QStringLiteral("The port is gone.")), QStringLiteral("  OK  "),
              QString(), alert_error);
}
