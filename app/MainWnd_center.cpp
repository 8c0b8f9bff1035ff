// The centre screen's side of the window: what it is given, its buttons, and the hit areas around it.

#include "app/MainWnd.h"

#include "app/vendor.h"
#include "app/version.h"
#include "keys/ScaleKeyController.h"
#include "keys/pictures.h"
#include "screen/CategoryListWidget.h"
#include "screen/CenterScreen.h"
#include "screen/LibraryView.h"
#include "screen/TicTacToe.h"

#include <QDesktopServices>
#include <QGraphicsProxyWidget>
#include <QPropertyAnimation>
#include <QUrl>

namespace {

const QRectF gamePlace(700, 32, 66, 62); // in the scene
constexpr int gameAngle = 8;             // degrees, about the top left corner

} // namespace

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
    for (QWidget* button : {ui.buttonMIDIinOut, ui.buttonCredits, ui.buttonManual, ui.buttonExport,
                            ui.buttonImport, ui.buttonReset})
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

void MainWnd::createSceneCenter()
{
    centerScreen = new CenterScreen(ui.centerGraphicsView->scene(), ui, this);
    ui.versionLabel->setContentsMargins(0, 20, 0, 0);
    ui.versionLabel->setOpenExternalLinks(true);
    ui.about->document()->setDocumentMargin(1); // three lines end above the shade of the display
    // A line break behind the last tag would count as text, in a larger font.
    //: The page in the display: a language has a file of its own, beside its other texts.
    const QString page = tr(":/Resources/CenterScreen/MainCenterScreenTextData.html");
    ui.about->setHtml(CenterScreen::getMainTextData(page).trimmed());
    centerScreen->creditLines =
        CenterScreen::parseCreditFile(QStringLiteral(":/Resources/CreditsScreen/CreditsData.txt"));
    centerScreen->creditLines.replaceInStrings(QStringLiteral("@VERSION@"), QLatin1String(sorvaneVersion));
    const QString style =
        CenterScreen::getMainTextData(QStringLiteral(":/Resources/CenterScreen/button.qss"));
    const QList<QPushButton*> pushButtons = findChildren<QPushButton*>();
    for (QPushButton* button : pushButtons)
        button->setAutoDefault(false);
    for (QPushButton* button : {ui.buttonMIDIinOut, ui.buttonCredits, ui.buttonManual, ui.buttonExport,
                                ui.buttonImport, ui.buttonReset})
        button->setStyleSheet(style);
    for (QPushButton* button : {ui.buttonExport, ui.buttonImport, ui.buttonReset})
        button->setEnabled(true);
    centerScreen->addMidiPortsListView();
    centerScreen->addLibraryView();
    rememberPlaces();
    ui.buttonMIDIinOut->setChecked(false);
    ui.buttonCredits->setChecked(false);
    lowerHitAreas();
    centerScreen->setSceneDefault();
    createGame();
}

void MainWnd::createGame()
{
    auto* game = new TicTacToe; // the proxy's, which is the scene's
    game->setState(QStringLiteral("---------"));
    game->setStyleSheet(QStringLiteral("background-color: transparent"));
    QGraphicsProxyWidget* proxy = ui.centerGraphicsView->scene()->addWidget(game);
    proxy->setToolTip(game->toolTip()); // the proxy does not ask for it
    proxy->setGeometry(gamePlace);
    auto* turn = new QPropertyAnimation(proxy, "rotation");
    turn->setDuration(0);
    turn->setStartValue(0);
    turn->setEndValue(gameAngle);
    turn->setEasingCurve(QEasingCurve::Linear);
    turn->start(QAbstractAnimation::DeleteWhenStopped);
    maskHitAreas(proxy->mapToScene(proxy->rect()).toPolygon());
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

void MainWnd::showLibraryScreen(bool show)
{
    ui.buttonMIDIinOut->setChecked(false);
    ui.buttonCredits->setChecked(false);
    lowerHitAreas();
    if (show) {
        centerScreen->setSceneLibrary();
        return;
    }
    ui.scene1Button->raise();
    ui.scene2Button->raise();
    centerScreen->setScenePrevious();
    raiseWayBack();
    if (centerScreen->currentScene != CenterScreen::scene_clean) // it has its own focus
        focusInKeyboard();
}

void MainWnd::showScene(int number)
{
    if (number < CenterScreen::scene_default || number > CenterScreen::scene_credits)
        return;
    ui.buttonMIDIinOut->setChecked(false);
    ui.buttonCredits->setChecked(false);
    ui.hiddenLayer->hide();
    lowerHitAreas();
    centerScreen->currentScene = number;
    centerScreen->setScenePrevious();
    raiseWayBack();
}

void MainWnd::editPlayedScale()
{
    constexpr int titleField = 1;
    const auto* selector = static_cast<ScaleKeyController*>(scaleController);
    centerScreen->openEditSceneDlg(selector->scaleModifier(), titleField);
}

void MainWnd::backToDefaultScene()
{
    ui.buttonMIDIinOut->setChecked(false);
    ui.buttonCredits->setChecked(false);
    lowerHitAreas();
    centerScreen->setSceneDefault();
}

void MainWnd::on_buttonMIDIinOut_clicked(bool checked)
{
    ui.buttonCredits->setChecked(false);
    ui.buttonExport->setChecked(false);
    lowerHitAreas();
    if (checked) {
        centerScreen->setSceneMIDIinOut();
        raiseWayBack();
    } else {
        ui.scene1Button->raise();
        centerScreen->setSceneDefault();
    }
    focusInKeyboard();
}

void MainWnd::on_buttonCredits_clicked(bool checked)
{
    ui.buttonMIDIinOut->setChecked(false);
    ui.buttonExport->setChecked(false);
    lowerHitAreas();
    if (checked) {
        centerScreen->setSceneCredits();
        raiseWayBack();
    } else {
        ui.scene1Button->raise();
        centerScreen->setSceneDefault();
    }
    focusInKeyboard();
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

void MainWnd::openPorts()
{
    if (centerScreen->currentScene != CenterScreen::scene_ports || centerScreen->libraryOpen) {
        ui.buttonMIDIinOut->setChecked(false);
        ui.buttonMIDIinOut->click();
    }
    centerScreen->inPortList->setFocus(Qt::ShortcutFocusReason);
}

void MainWnd::toggleLibrary()
{
    if (!isPowerOn())
        return;
    showLibraryScreen(!centerScreen->libraryOpen);
    if (centerScreen->libraryOpen)
        centerScreen->libraryView()->categories->setFocus(Qt::ShortcutFocusReason);
    else
        focusInKeyboard();
}
