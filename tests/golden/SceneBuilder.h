#pragma once

#include "Hand.h"
#include "LibraryFixture.h"

#include <QImage>

#include <memory>

class TonicKeyItem;

/// A fresh window that is brought into the scenes of the golden pictures by what a user does: pointer, keys
/// and notes. Nothing in it follows a clock, and no port is a real one.
class SceneBuilder : public LibraryFixture
{
    Q_OBJECT

public:
    /// Before the application object: what would make pictures depend on the user or the machine.
    static void fixSurroundings();

private slots:
    void init() { openScene(); }
    void cleanup();

protected:
    struct Scene
    {
        const char* name; ///< of its pictures' files, too
        const char* base; ///< the scene that it looks like but for a part; "" for none
        void (SceneBuilder::*build)();
    };
    static const std::vector<Scene>& scenes();
    static QStringList sceneNames();
    static QString baseOf(const QString& scene);

    /// A shown window without a selected port.
    void openScene();
    /// Builds the scene of a name; gives its picture, null if it could not be built.
    QImage pictureOf(const QString& scene);
    /// What the window shows now, in device pixels; opaque.
    QImage take() const;
    int ratio() const { return qRound(window->devicePixelRatioF()); }

    // Scenes of the stage (SceneBuilder_stage.cpp); each takes `picture` or leaves that to the caller
    void powerOff() {}
    void powerOn();
    void powerHovered();
    void powerDragged();
    void powerMoved();
    void powerPressed();
    void powerTarget();
    void presetPlayed();
    void presetHovered();
    void presetMenu();
    void presetDragged();
    void selectorsEdited();
    void anchorsMoved();

    // Scenes of the display (SceneBuilder_display.cpp)
    void cleanDisplay();
    void buttonStates();
    void ports();
    void credits();
    void libraryOpen();
    void libraryGhosts();
    void libraryUnknownScale();
    void game();

    // Menus and dialogs (SceneBuilder_dialogs.cpp)
    void libraryMenu();
    void addWindow();
    void addWindowWithError();
    void editWindow();
    void renameCategory();
    void question();
    void information();
    void portError();

    // Hands
    void holdNote(int note) const;
    void playNote(int note) const;
    void pressSpace() const;
    void clickOn(const TonicKeyItem* key) const;
    void clickOn(const QWidget* widget) const;
    QPointF boxOf(int key) const;
    QPointF stemOf(int key) const;
    QPointF powerSleeve() const { return power()->pos() + QPointF(9, 60); }
    void openLibraryByHand() const;

    QImage picture;
    std::unique_ptr<Hand> hand;

private:
    /// The window with a popup of its own on it, whose corner lies at a place of the window, or higher up or
    /// further left where it would not be seen whole.
    QImage takeWith(QWidget& popup, QPoint place) const;
    /// Opens a dialog or menu and takes its picture once it is up.
    template <typename Dialog>
    void takeDialog(const std::function<void()>& open);
    void takeAlert(const QString& text, const QString& ok, const QString& cancel, int type);
    QPoint inWindow(const QWidget* child, QPoint place) const { return child->mapTo(window.get(), place); }
};
