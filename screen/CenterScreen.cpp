// The scenes: what is shown in which.

#include "screen/CenterScreen.h"

#include "app/MainWnd.h"
#include "screen/LibraryView.h"

#include <QFile>
#include <QTimer>

namespace {

constexpr int creditIntervalMs = 50;
constexpr int browserDelayMs = 40; // longer than a chord takes to arrive, too short for the eye

} // namespace

CenterScreen::CenterScreen(QGraphicsScene* centreScene, const Ui_SorvaneClass& ui, QWidget* mainWindow)
    : QWidget(mainWindow), creditTimer(new QTimer(this)), scene(centreScene), form(ui), window(mainWindow),
      browserTimer(new QTimer(this))
{
    hide();
    creditTimer->setInterval(creditIntervalMs);
    connect(creditTimer, &QTimer::timeout, this, &CenterScreen::moveCreditsText);
    browserTimer->setSingleShot(true);
    browserTimer->setInterval(browserDelayMs);
    connect(browserTimer, &QTimer::timeout, this, [this] {
        if (mainWnd->isRecalling())
            browserTimer->start(); // notes wait behind the recall
        else
            refreshBrowser();
    });
}

CenterScreen::~CenterScreen() = default;

QString CenterScreen::getMainTextData(const QString& file)
{
    QFile text(file);
    return text.open(QIODevice::ReadOnly) ? QString::fromUtf8(text.readAll()) : QString();
}

void CenterScreen::showButtons(bool left, bool right)
{
    for (QWidget* button : {form.buttonMIDIinOut, form.buttonCredits, form.buttonManual})
        button->setVisible(left);
    for (QWidget* button : {form.buttonExport, form.buttonImport, form.buttonReset})
        button->setVisible(right);
}

void CenterScreen::showTexts(bool show)
{
    form.centerLogo->setVisible(show);
    form.about->setVisible(show);
}

void CenterScreen::leaveScene()
{
    hideCreditText();
    creditTimer->stop();
    form.versionLabel->hide();
    showMIDIPortsListView(false);
    showLibraryView(false);
}

void CenterScreen::enterScene(scene_number number)
{
    currentScene = number;
    mainWnd->didCenterSceneChange();
}

void CenterScreen::setSceneDefault()
{
    leaveScene();
    showTexts(true);
    showButtons(true, true);
    form.hiddenLayer->hide();
    form.buttonMIDIinOut->setChecked(false);
    form.buttonCredits->setChecked(false);
    if (view)
        view->setPlain();
    describedWord.clear();
    enterScene(scene_default);
}

void CenterScreen::setSceneClean()
{
    leaveScene();
    showTexts(true);
    showButtons(false, false);
    form.centerLogo->setFocus();
    enterScene(scene_clean);
}

void CenterScreen::setSceneMIDIinOut()
{
    leaveScene();
    showMIDIPortsListView(true);
    showTexts(false);
    showButtons(true, false);
    form.hiddenLayer->hide();
    form.buttonMIDIinOut->setChecked(true);
    form.buttonCredits->setChecked(false);
    enterScene(scene_ports);
}

void CenterScreen::setSceneLibrary()
{
    leaveScene();
    showTexts(false);
    showButtons(false, false);
    form.hiddenLayer->hide();
    showLibraryView(true);
}

void CenterScreen::setScenePrevious()
{
    switch (currentScene) {
    case scene_default:
        return setSceneDefault();
    case scene_clean:
        return setSceneClean();
    case scene_ports:
        return setSceneMIDIinOut();
    case scene_credits:
        return setSceneCredits();
    default:
        return;
    }
}
