// The centre screen's side of the window: what it is given, and the ways to its scenes. Its buttons stand in
// MainWnd_buttons.cpp.

#include "app/MainWnd.h"

#include "app/version.h"
#include "headers/selector_access.h"
#include "keys/ScaleKeyController.h"
#include "screen/CategoryListWidget.h"
#include "screen/CenterScreen.h"
#include "screen/LibraryView.h"
#include "screen/TicTacToe.h"
#include "screen/scale_field.h"

#include <QGraphicsProxyWidget>
#include <QPropertyAnimation>

namespace {

const QRectF gamePlace(700, 32, 66, 62); // in the scene
constexpr int gameAngle = 8;             // degrees, about the top left corner

} // namespace

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
    dressButtons();
    centerScreen->addMidiPortsListView();
    centerScreen->addLibraryView();
    rememberPlaces();
    backToDefaultScene();
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

void MainWnd::showLibraryScreen(bool show)
{
    leavePages();
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
    leavePages();
    ui.hiddenLayer->hide();
    centerScreen->currentScene = number;
    centerScreen->setScenePrevious();
    raiseWayBack();
}

void MainWnd::editPlayedScale()
{
    centerScreen->openEditSceneDlg(selector_access::scaleSelector().scaleModifier(), title_field);
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

void MainWnd::focusInKeyboard()
{
    ui.inKeyboardGraphicsView->setFocus(Qt::OtherFocusReason);
}
