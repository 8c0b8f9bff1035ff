// The buttons of the display and the hit areas around it: what a click on each does, and which lies above
// which.

#include "app/MainWnd.h"

#include "app/vendor.h"
#include "screen/CenterScreen.h"

#include <QDesktopServices>
#include <QUrl>

QList<QPushButton*> MainWnd::displayButtons() const
{
    return {ui.buttonMIDIinOut, ui.buttonCredits, ui.buttonManual,
            ui.buttonExport,    ui.buttonImport,  ui.buttonReset};
}

void MainWnd::dressButtons()
{
    const QString style =
        CenterScreen::getMainTextData(QStringLiteral(":/Resources/CenterScreen/button.qss"));
    const QList<QPushButton*> all = findChildren<QPushButton*>(), shown = displayButtons();
    for (QPushButton* button : all)
        button->setAutoDefault(false);
    for (QPushButton* button : shown)
        button->setStyleSheet(style);
    for (QPushButton* button : {ui.buttonExport, ui.buttonImport, ui.buttonReset})
        button->setEnabled(true);
}

QList<QWidget*> MainWnd::hitAreas() const
{
    return {ui.scene1Button,      ui.scene2Button,      ui.scene34TopButton,
            ui.scene34LeftButton, ui.scene4RightButton, ui.scene3RightButton};
}

void MainWnd::lowerHitAreas()
{
    const QList<QWidget*> areas = hitAreas();
    for (QWidget* area : areas)
        area->lower();
}

// The edges of the display lead back to the default scene.
void MainWnd::raiseWayBack()
{
    if (centerScreen->currentScene == CenterScreen::scene_ports)
        ui.scene3RightButton->raise();
    else if (centerScreen->currentScene == CenterScreen::scene_credits)
        ui.scene4RightButton->raise();
    else
        return;
    ui.scene34TopButton->raise();
    raiseButtons();
}

// A button that shows always means itself, whatever hit area reaches over it.
void MainWnd::raiseButtons()
{
    const QList<QPushButton*> buttons = displayButtons();
    for (QPushButton* button : buttons)
        button->raise();
}

void MainWnd::didCenterSceneChange()
{
    switch (centerScreen->currentScene) {
    case CenterScreen::scene_default:
        ui.scene1Button->raise();
        ui.scene2Button->lower();
        break;
    case CenterScreen::scene_clean:
        ui.scene1Button->raise();
        ui.scene2Button->raise();
        break;
    case CenterScreen::scene_ports:
    case CenterScreen::scene_credits:
        ui.scene1Button->lower();
        ui.scene2Button->lower();
        break;
    default:
        break;
    }
    raiseButtons();
}

// A hit area ends where the view ends that covers it when it is lowered, and leaves the game alone.
void MainWnd::maskHitAreas(const QPolygon& game)
{
    const QPoint view = ui.centerGraphicsView->pos();
    const QRegion covered = QRegion(ui.centerGraphicsView->geometry()) - QRegion(game.translated(view));
    const QList<QWidget*> areas = hitAreas();
    for (QWidget* area : areas)
        area->setMask(covered.translated(-area->pos()) & QRegion(area->rect()));
}

void MainWnd::leavePages()
{
    ui.buttonMIDIinOut->setChecked(false);
    ui.buttonCredits->setChecked(false);
    lowerHitAreas();
}

void MainWnd::backToDefaultScene()
{
    leavePages();
    centerScreen->setSceneDefault();
}

// A page's button is a switch: on it opens the page, off it leads to the default scene.
void MainWnd::turnPage(bool open, QPushButton* otherPage, void (CenterScreen::*enter)())
{
    otherPage->setChecked(false);
    ui.buttonExport->setChecked(false);
    lowerHitAreas();
    if (open) {
        (centerScreen->*enter)();
        raiseWayBack();
    } else {
        ui.scene1Button->raise();
        centerScreen->setSceneDefault();
    }
    focusInKeyboard();
}

void MainWnd::on_buttonMIDIinOut_clicked(bool checked)
{
    turnPage(checked, ui.buttonCredits, &CenterScreen::setSceneMIDIinOut);
}

void MainWnd::on_buttonCredits_clicked(bool checked)
{
    turnPage(checked, ui.buttonMIDIinOut, &CenterScreen::setSceneCredits);
}

void MainWnd::openPage(const char* address)
{
    backToDefaultScene();
    QDesktopServices::openUrl(QUrl(QString::fromLatin1(address)));
    focusInKeyboard();
}

void MainWnd::on_buttonManual_clicked()
{
    openPage(vendor::site);
}

void MainWnd::on_buttonExport_clicked()
{
    openPage(vendor::manual);
}

void MainWnd::on_buttonImport_clicked()
{
    openPage(vendor::facebook);
}

void MainWnd::on_buttonReset_clicked()
{
    openPage(vendor::youtube);
}

void MainWnd::on_scene1Button_clicked()
{
    centerScreen->setSceneClean();
}

void MainWnd::on_scene2Button_clicked()
{
    centerScreen->setSceneDefault();
}

void MainWnd::on_scene34TopButton_clicked()
{
    backToDefaultScene();
}

void MainWnd::on_scene34LeftButton_clicked()
{
    backToDefaultScene();
}

void MainWnd::on_scene3RightButton_clicked()
{
    backToDefaultScene();
}

void MainWnd::on_scene4RightButton_clicked()
{
    backToDefaultScene();
}

// The window's filter swallows Enter, and Return clicks no button that is not the default one.
void MainWnd::clickFocusedButton(int key)
{
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    if (key != Qt::Key_Escape && !isOccupied() && button && button->parent() == this && button->hasFocus())
        button->click();
}
