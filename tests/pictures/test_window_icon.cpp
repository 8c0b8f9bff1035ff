// The windows that carry the icon, and the name by which the desktop finds it.

#include "app/MainWnd.h"
#include "app/window_icon.h"
#include "committed.h"

#include <QIcon>
#include <QWindow>

class TestWindowIcon : public QObject
{
    Q_OBJECT

private slots:
    void windowCarriesEverySize();
    void iconShowsThePictureOfTheSize_data() { eachIconSize(); }
    void iconShowsThePictureOfTheSize();
    void otherWindowsSendNoPictures();
    void desktopKnowsTheProgramByName();
};

void TestWindowIcon::windowCarriesEverySize()
{
    mainWnd = new MainWnd;
    const QScopedPointer<MainWnd> window(mainWnd);
    window->show();
    QVERIFY(window->windowHandle()->icon().isNull());
    giveIcon(*window->windowHandle());
    QList<QSize> sizes;
    for (const int size : iconSizes)
        sizes.append({size, size});
    QCOMPARE(window->windowHandle()->icon().availableSizes(), sizes);
}

void TestWindowIcon::iconShowsThePictureOfTheSize()
{
    QFETCH(int, size);
    QWindow window;
    giveIcon(window);
    const QImage shown = window.icon().pixmap(QSize(size, size)).toImage();
    QCOMPARE(shown.convertToFormat(QImage::Format_ARGB32), committedIcon(size));
}

void TestWindowIcon::otherWindowsSendNoPictures()
{
    QWindow window, toolTip;
    giveIcon(window);
    QVERIFY(!window.icon().isNull());
    QVERIFY(toolTip.icon().isNull());
    QVERIFY(QGuiApplication::windowIcon().isNull());
}

void TestWindowIcon::desktopKnowsTheProgramByName()
{
    QGuiApplication::setDesktopFileName({});
    nameDesktopEntry();
    QCOMPARE(QGuiApplication::desktopFileName(), QStringLiteral("sorvane"));
}

QTEST_MAIN(TestWindowIcon)
#include "test_window_icon.moc"
