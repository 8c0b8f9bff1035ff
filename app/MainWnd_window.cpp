// The window itself: keys of the computer keyboard, hit areas, and the places of its children.

#include "app/MainWnd.h"

#include "keys/pictures.h"
#include "screen/CenterScreen.h"

#include <QKeyEvent>

namespace {

constexpr int formWidth = 677;
constexpr int stageWidth = 952;
constexpr int stageHeight = 480;

bool isTouch(QEvent::Type type)
{
    return type == QEvent::TouchBegin || type == QEvent::TouchUpdate || type == QEvent::TouchEnd ||
           type == QEvent::TouchCancel;
}

} // namespace

bool MainWnd::eventFilter(QObject* object, QEvent* event)
{
    if (isTouch(event->type())) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::KeyPress && filterKeyPress(event))
        return true;
    return QDialog::eventFilter(object, event);
}

bool MainWnd::filterKeyPress(QEvent* event)
{
    const auto* press = static_cast<QKeyEvent*>(event);
    const int key = press->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape)
        emit specialKeyPressed(key);
    if (key == Qt::Key_Space) {
        // A space bar that is held down must not flutter the power.
        if (!press->isAutoRepeat())
            switchPower();
        return true;
    }
    // Kept: the main Return key is not among them.
    if (key != Qt::Key_Enter && key != Qt::Key_Escape)
        return false;
    event->ignore();
    return true;
}

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
    ui.about->setHtml(CenterScreen::getMainTextData(
        QStringLiteral(":/Resources/CenterScreen/MainCenterScreenTextData.html")));
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

void MainWnd::rememberPlaces()
{
    for (QWidget* child : {ui.outKeyboardGraphicsView, ui.inKeyboardGraphicsView})
        places.push_back({child, child->x(), 2});
    for (QWidget* child : std::initializer_list<QWidget*>{ui.centerGraphicsView,
                                                          ui.buttonMIDIinOut,
                                                          ui.buttonCredits,
                                                          ui.buttonManual,
                                                          ui.buttonExport,
                                                          ui.buttonImport,
                                                          ui.buttonReset,
                                                          ui.centerLogo,
                                                          ui.about,
                                                          ui.scene1Button,
                                                          ui.scene2Button,
                                                          ui.scene34TopButton,
                                                          ui.scene34LeftButton,
                                                          ui.scene4RightButton,
                                                          ui.scene3RightButton,
                                                          ui.hiddenLayer,
                                                          ui.labelBottom,
                                                          ui.versionLabel,
                                                          centerScreen->inPortList,
                                                          centerScreen->outPortList})
        places.push_back({child, child->x(), 1});
    setMinimumSize(formWidth, stageHeight);
    setMaximumSize(stageWidth, stageHeight);
    resize(stageWidth, stageHeight);
    placeChildren();
}

void MainWnd::placeChildren()
{
    const int beyond = width() - formWidth;
    for (const Place& place : places)
        place.child->move(place.formX + beyond * place.halves / 2, place.child->y());
}

void MainWnd::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    placeChildren();
}
