// The dialogs that the tests open, and how they are handled.

#include "DialogFixture.h"

#include "screen/AddWindow.h"
#include "screen/AlertWidget.h"
#include "screen/ChangeDialog.h"
#include "screen/EditWindow.h"

#include <QTimer>

void DialogFixture::addKinds()
{
    QTest::addColumn<QString>("kind");
    for (const char* kind : {"alert", "change", "add", "edit"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

std::unique_ptr<AbstractDialog> DialogFixture::make(const QString& kind) const
{
    if (kind == QLatin1String("alert"))
        return std::make_unique<AlertWidget>(QString(), QStringLiteral("Sure?"), QStringLiteral("Yes"),
                                             QStringLiteral("No"), alert_warning, window.get());
    if (kind == QLatin1String("change"))
        return std::make_unique<ChangeDialog>(window.get());
    if (kind == QLatin1String("edit")) {
        auto edit = std::make_unique<EditWindow>(1, window.get());
        edit->setName(QStringLiteral("Mine"));
        return edit;
    }
    auto add = std::make_unique<AddWindow>(1, window.get());
    add->setName(QStringLiteral("Mine"));
    add->setCategoryList({QStringLiteral("First"), QStringLiteral("Second"), QStringLiteral("Third")});
    return add;
}

int DialogFixture::run(AbstractDialog& dialog, const Acts& acts)
{
    QTimer::singleShot(0, &dialog, [&] {
        acts();
        if (!dialog.isHidden())
            dialog.reject();
    });
    return dialog.exec();
}

void DialogFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* focus = popup ? popup->focusWidget() : QApplication::focusWidget();
    QVERIFY(focus || popup);
    QTest::keyClick(focus ? focus : popup, key, modifiers);
}

void DialogFixture::type(const char* keys)
{
    for (const char* key = keys; *key; ++key)
        QTest::keyClick(QApplication::focusWidget(), *key);
}

void DialogFixture::click(QPoint place) const
{
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
}

void DialogFixture::clickOn(const QWidget* widget) const
{
    click(widget->mapTo(window.get(), widget->rect().center()));
}

QList<QList<int>> DialogFixture::tapKey(int note) const
{
    auto* view = window->ui.inKeyboardGraphicsView;
    const QRectF key = window->findInNote(note)->sceneBoundingRect();
    const QPoint place = view->mapFromScene(QPointF(key.center().x(), key.bottom() - 10));
    port->clear();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    return port->takeLists();
}
