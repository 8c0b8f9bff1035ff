// The window of the golden pictures, and the hands that are laid on it.

#include "SceneBuilder.h"

#include "FakeMidiService.h"
#include "app/MidiService.h"
#include "app/vendor.h"
#include "keys/TonicKeyItem.h"
#include "library/SettingsStore.h"

#include <QPainter>
#include <QStyleFactory>
#include <QTimer>
#include <QToolTip>

void SceneBuilder::fixSurroundings()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("FONTCONFIG_FILE", SORVANE_FONTS); // no font settings of the user's or the machine's
    for (const char* name : {"QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE", "QT_SCREEN_SCALE_FACTORS"})
        qunsetenv(name);
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
}

// Bases stand before what is built on them.
const std::vector<SceneBuilder::Scene>& SceneBuilder::scenes()
{
    static const std::vector<Scene> all = {
        {"power-off", "", &SceneBuilder::powerOff},
        {"power-on", "", &SceneBuilder::powerOn},
        {"power-hovered", "power-on", &SceneBuilder::powerHovered},
        {"power-dragged", "power-on", &SceneBuilder::powerDragged},
        {"power-moved", "power-on", &SceneBuilder::powerMoved},
        {"power-pressed", "power-on", &SceneBuilder::powerPressed},
        {"power-target", "power-on", &SceneBuilder::powerTarget},
        {"preset-played", "power-on", &SceneBuilder::presetPlayed},
        {"preset-hovered", "power-on", &SceneBuilder::presetHovered},
        {"preset-menu", "power-on", &SceneBuilder::presetMenu},
        {"preset-dragged", "power-on", &SceneBuilder::presetDragged},
        {"selectors-edited", "power-on", &SceneBuilder::selectorsEdited},
        {"anchors-moved", "power-on", &SceneBuilder::anchorsMoved},
        {"clean-display", "power-off", &SceneBuilder::cleanDisplay},
        {"button-states", "power-off", &SceneBuilder::buttonStates},
        {"ports", "power-off", &SceneBuilder::ports},
        {"credits", "power-off", &SceneBuilder::credits},
        {"library", "power-on", &SceneBuilder::libraryOpen},
        {"library-ghosts", "power-on", &SceneBuilder::libraryGhosts},
        {"library-unknown-scale", "power-on", &SceneBuilder::libraryUnknownScale},
        {"library-menu", "power-on", &SceneBuilder::libraryMenu},
        {"game", "power-off", &SceneBuilder::game},
        {"rename-category", "", &SceneBuilder::renameCategory},
        {"add-window", "rename-category", &SceneBuilder::addWindow},
        {"add-window-error", "rename-category", &SceneBuilder::addWindowWithError},
        {"edit-window", "rename-category", &SceneBuilder::editWindow},
        {"alert-warning", "rename-category", &SceneBuilder::question},
        {"alert-information", "", &SceneBuilder::information},
        {"alert-error", "alert-information", &SceneBuilder::portError},
    };
    return all;
}

QStringList SceneBuilder::sceneNames()
{
    QStringList names;
    for (const Scene& scene : scenes())
        names << QLatin1String(scene.name);
    return names;
}

QString SceneBuilder::baseOf(const QString& scene)
{
    for (const Scene& each : scenes())
        if (scene == QLatin1String(each.name))
            return QLatin1String(each.base);
    return {};
}

// Rows that are selected at the start would take the focus a moment later.
void SceneBuilder::openScene()
{
    rig = {};
    SettingsStore::setMidiInPortSelected(virtualInName, false);
    SettingsStore::setMidiOutPortSelected(virtualOutName, false);
    window = std::make_unique<MainWnd>();
    window->ui.versionLabel->setText(
        QStringLiteral("Sorvane 1.0.0, <a style=\"color: #575450\" href=\"%1\">%1</a>")
            .arg(QLatin1String(vendor::site)));
    show();
    hand = std::make_unique<Hand>(window->ui.inKeyboardGraphicsView);
    picture = {};
    seen = 0;
}

void SceneBuilder::cleanup()
{
    QToolTip::hideText();
    closeWindow();
}

QImage SceneBuilder::pictureOf(const QString& scene)
{
    for (const Scene& each : scenes()) {
        if (scene != QLatin1String(each.name))
            continue;
        (this->*each.build)();
        if (picture.isNull())
            picture = take();
        return QTest::currentTestFailed() ? QImage() : picture;
    }
    return {};
}

QImage SceneBuilder::take() const
{
    settle();
    window->centerScreen->creditTimer->stop();
    QCoreApplication::sendPostedEvents();
    QImage image = window->grab().toImage().convertToFormat(QImage::Format_RGB32);
    image.setDevicePixelRatio(1);
    return image;
}

QImage SceneBuilder::takeWith(QWidget& popup, QPoint place) const
{
    QImage image = take();
    image.setDevicePixelRatio(ratio());
    QPainter painter(&image);
    const QPoint limit(window->width() - popup.width(), window->height() - popup.height());
    painter.drawPixmap(QPoint(qMin(place.x(), limit.x()), qMin(place.y(), limit.y())), popup.grab());
    painter.end();
    image.setDevicePixelRatio(1);
    return image;
}

void SceneBuilder::holdNote(int note) const
{
    sendNote(note, 100);
    QTRY_VERIFY(window->findInNote(note)->isPushed);
}

void SceneBuilder::playNote(int note) const
{
    holdNote(note);
    sendNote(note, 0);
    QTRY_VERIFY(!window->findInNote(note)->isPushed);
}

void SceneBuilder::pressSpace() const
{
    QTest::keyClick(window->ui.inKeyboardGraphicsView, Qt::Key_Space);
}

// Below the black keys.
void SceneBuilder::clickOn(const TonicKeyItem* key) const
{
    const QRectF area = key->sceneBoundingRect();
    Hand(key->scene()->views().first()).click({area.center().x(), area.bottom() - 8});
}

void SceneBuilder::clickOn(const QWidget* widget) const
{
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      inWindow(widget, widget->rect().center()));
}

QPointF SceneBuilder::boxOf(int key) const
{
    return header(key)->mapToScene(QRectF(header(key)->nameRect1).center());
}

QPointF SceneBuilder::stemOf(int key) const
{
    return header(key)->homePos + QRectF(header(key)->tonicRect).center();
}
