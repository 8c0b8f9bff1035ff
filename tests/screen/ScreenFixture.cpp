#include "ScreenFixture.h"

#include <QGraphicsView>

void ScreenFixture::openLibrary() const
{
    window->setPower(true);
    window->showLibraryScreen(true);
}

void ScreenFixture::click(LibraryButton::Code code) const
{
    const QGraphicsView* stage = window->ui.centerGraphicsView;
    const QPoint place = stage->mapFromScene(button(code).sceneBoundingRect().center());
    QTest::mouseClick(stage->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

QStringList ScreenFixture::rows(const QListWidget& list)
{
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts << list.item(row)->text();
    return texts;
}
