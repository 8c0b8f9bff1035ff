// The centre screen's side of the window: what it is given, its buttons, and the hit areas around it.

#include "app/MainWnd.h"

#include "keys/pictures.h"
#include "screen/CenterScreen.h"

void MainWnd::lowerHitAreas()
{
    for (QWidget* area : {ui.scene1Button, ui.scene2Button, ui.scene34TopButton, ui.scene34LeftButton,
                          ui.scene4RightButton, ui.scene3RightButton})
        area->lower();
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
}

void MainWnd::createSceneCenter()
{
    centerScreen = new CenterScreen(ui.centerGraphicsView->scene(), ui, this);
    ui.versionLabel->setContentsMargins(0, 20, 0, 0);
    ui.versionLabel->setOpenExternalLinks(true);
    ui.about->document()->setDocumentMargin(1); // three lines end above the shade of the display
    // A line break behind the last tag would count as text, in a larger font.
    ui.about->setHtml(CenterScreen::getMainTextData(
                          QStringLiteral(":/Resources/CenterScreen/MainCenterScreenTextData.html"))
                          .trimmed());
    ui.centerLogo->setPixmap(pictures::load(QStringLiteral(":/Resources/CenterScreen/Sorvane-Logo-CM.png")));
    const QString style =
        CenterScreen::getMainTextData(QStringLiteral(":/Resources/CenterScreen/button.qss"));
    for (QPushButton* button : {ui.buttonMIDIinOut, ui.buttonCredits, ui.buttonManual, ui.buttonExport,
                                ui.buttonImport, ui.buttonReset}) {
        button->setStyleSheet(style);
        // Only the ports have a page so far.
        button->setEnabled(button == ui.buttonMIDIinOut);
    }
    centerScreen->addMidiPortsListView();
    rememberPlaces();
    lowerHitAreas();
    centerScreen->setSceneDefault();
}

void MainWnd::backToDefaultScene()
{
    ui.buttonMIDIinOut->setChecked(false);
    ui.buttonCredits->setChecked(false);
    centerScreen->setSceneDefault();
}

void MainWnd::on_buttonMIDIinOut_clicked(bool checked)
{
    ui.buttonCredits->setChecked(false);
    ui.buttonExport->setChecked(false);
    lowerHitAreas();
    if (checked) {
        ui.scene3RightButton->raise();
        ui.scene34TopButton->raise();
        centerScreen->setSceneMIDIinOut();
    } else {
        ui.scene1Button->raise();
        centerScreen->setSceneDefault();
    }
    focusInKeyboard();
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
