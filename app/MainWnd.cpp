// Construction, in its order, and the power.

#include "app/MainWnd.h"

#include "app/KeyboardWalk.h"
#include "app/MidiService.h"
#include "app/accessibility.h"
#include "app/connecter.h"
#include "headers/HeaderController.h"
#include "keys/PowerItem.h"
#include "keys/SwitchItem.h"
#include "keys/TonicKeyController.h"
#include "keys/key_roles.h"
#include "library/SettingsStore.h"
#include "logging/categories.h"
#include "screen/CenterScreen.h"

#include <QCloseEvent>
#include <QGraphicsScene>
#include <QToolTip>

MainWnd* mainWnd = nullptr;
QApplication* app = nullptr;

namespace {

const QPointF powerButtonStart(288, 28);
constexpr int powerPitch = 49;
constexpr int midiNotes = 128;

/// Tool tips look like the presets' menu.
void dressToolTips()
{
    QPalette palette = QToolTip::palette();
    palette.setColor(QPalette::ToolTipBase, QColor(0x3a, 0x38, 0x35));
    palette.setColor(QPalette::ToolTipText, QColor(0xeb, 0xe7, 0xdc));
    QToolTip::setPalette(palette);
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(11);
    QToolTip::setFont(font);
}

} // namespace

// The order matters throughout: builders read what the ones before them made, and items read `mainWnd`.
MainWnd::MainWnd() : newWindowShortcut(QKeySequence(QStringLiteral("Ctrl+N")), this)
{
    mainWnd = this;
    accessibility::install();
    ui.setupUi(this);
    setUpWindow();
    createPowerItem();
    createDigits();
    createSceneOut();
    createSceneIn();
    createSceneBack();
    createSceneTonic();
    createSceneCenter();
    connecter::setPtr(this);
    qRegisterMetaType<QList<int>>("IntList");
    for (int note = 0; note < midiNotes; ++note)
        inNoteHeld.append(0);
    connectSignals();
    midiOutOpen = false;
    takeItemLists();
    addTonicDegreeKey();
    powerItem->listItemsIN = listItemsIN;
    powerItem->listItemsOUT = listItemsOUT;
    wireKeys();
    fillSceneIn();
    createHeaders();
    ui.inKeyboardGraphicsView->scene()->addItem(powerItem);
    powerItem->listItemsTonic = listItemsTonic;
    fillSceneOut();
    createAnchorIN();
    createAnchorOUT();
    setBackgroundSwitches(false);
    headerController->setHeadersStatus(false);
    powerItem->changeScaleByTonic();
    keyboardWalk = new KeyboardWalk(*this);
    installFilters();
    createShortcuts();
    SettingsStore::loadAllSettings();
    scanMIDIPorts();
    matchScreen();
}

// A key that the pointer holds must not sound on, and its end reads what the members hold.
MainWnd::~MainWnd()
{
    endGestures();
    hide(); // what the children do then needs the members too
}

void MainWnd::setUpWindow()
{
    setObjectName(QStringLiteral("mainDialog"));
    setStyleSheet(QStringLiteral(
        "QDialog#mainDialog {background-image: url(:/Resources/Background/BG_off.png);background-position: "
        "bottom left; background-repeat: no-repeat;}QGraphicsView {background: transparent}"));
    setWindowFlags(Qt::Window);
    dressToolTips();
}

void MainWnd::createPowerItem()
{
    powerItem = new PowerItem;
    powerItem->showSwitch(false);
    powerItem->setFlag(QGraphicsItem::ItemIsMovable);
    powerItem->setLastPos(powerButtonStart);
    key_roles::setSide(powerItem, QStringLiteral("power"));
    key_roles::setPitch(powerItem, powerPitch);
    key_roles::setName(powerItem, QStringLiteral("power"));
    powerItem->setAcceptHoverEvents(true);
    powerItem->setToolTip(tr("Power: click the button, or press Space. Drag its sleeve to another flag."));
}

void MainWnd::connectSignals()
{
    connect(this, &MainWnd::signalKey, this, &MainWnd::receiveMessage);
    connect(centerScreen->inPortList, &QListWidget::itemSelectionChanged, this,
            &MainWnd::inPortSelectionChange);
    connect(centerScreen->outPortList, &QListWidget::itemSelectionChanged, this,
            &MainWnd::outPortSelectionChange);
    connect(this, &MainWnd::specialKeyPressed, this, &MainWnd::clickFocusedButton);
    connect(&midiService(), &MidiService::stopped, this, &MainWnd::midiServiceStopped);
}

void MainWnd::installFilters()
{
    const QObjectList children = QCoreApplication::instance()->children();
    for (QObject* child : children)
        child->installEventFilter(this);
    QCoreApplication::instance()->installEventFilter(this);
}

bool MainWnd::isPowerOn() const
{
    return powerItem->isSwitchOn();
}

void MainWnd::setPower(bool on)
{
    powerItem->showSwitch(on);
    powerItem->setSwithOn(on);
    powerItem->changeScaleByTonic();
    powerItem->setAllBlackBlue(on);
    setBackgroundSwitches(on);
    headerController->setHeadersStatus(on);
    setLibraryPower(on);
}

void MainWnd::switchPower()
{
    if (!dialogOpen)
        setPower(!powerItem->isSwitchOn());
}

void MainWnd::setBackgroundSwitches(bool on)
{
    backgroundOn->setVisible(on);
    backgroundOff->setVisible(!on);
    for (const KeyControllerBase* controller : {tonicController, scaleController}) {
        if (on)
            controller->switchItem->setStatusCtrl();
        else
            controller->switchItem->setStatus(SwitchItem::status_neutral, false);
    }
    for (QGraphicsItem* item : qAsConst(selectorItems))
        item->setVisible(on);
}

// What is remembered is taken when the power goes off, not while it stays off.
void MainWnd::setLibraryPower(bool on)
{
    const bool wasOn = centerScreen->isLibraryAccessible();
    centerScreen->setLibraryAccess(on);
    if (!on && wasOn)
        centerScreen->libraryRemembered = centerScreen->libraryOpen;
    showLibraryScreen(on && centerScreen->libraryRemembered);
}

void MainWnd::done(int result)
{
    qCDebug(lcApp) << "MainWnd::done" << result;
    SettingsStore::saveAllSettings();
    QDialog::done(result);
}

void MainWnd::accept()
{
    qCDebug(lcApp) << "MainWnd::accept";
    SettingsStore::saveAllSettings();
    QDialog::accept();
}

void MainWnd::reject()
{
    qCDebug(lcApp) << "MainWnd::reject";
    SettingsStore::saveAllSettings();
    QDialog::reject();
}

void MainWnd::closeEvent(QCloseEvent* event)
{
    SettingsStore::saveAllSettings();
    QDialog::closeEvent(event);
}
