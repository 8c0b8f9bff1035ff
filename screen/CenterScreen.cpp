#include "screen/CenterScreen.h"

#include "app/MainWnd.h"
#include "keys/pictures.h"

#include <QFile>
#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QSignalBlocker>
#include <QTimer>

namespace {

constexpr int selectDelayMs = 200;
const QPointF portBackgroundPos(320, 15);   // in the scene
const QRect inListPlace(214, 196, 185, 80); // in the form
const QRect outListPlace(411, 196, 175, 80);

} // namespace

CenterScreen::CenterScreen(QGraphicsScene* centreScene, const Ui_SorvaneClass& ui, QWidget* mainWindow)
    : QWidget(mainWindow), scene(centreScene), form(ui), window(mainWindow)
{
    hide();
}

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

void CenterScreen::enterScene(scene_number number)
{
    form.versionLabel->hide();
    currentScene = number;
    mainWnd->didCenterSceneChange();
}

void CenterScreen::setSceneDefault()
{
    showMIDIPortsListView(false);
    showTexts(true);
    showButtons(true, true);
    form.hiddenLayer->hide();
    form.buttonMIDIinOut->setChecked(false);
    form.buttonCredits->setChecked(false);
    enterScene(scene_default);
}

void CenterScreen::setSceneClean()
{
    showMIDIPortsListView(false);
    showTexts(true);
    showButtons(false, false);
    form.centerLogo->setFocus();
    enterScene(scene_clean);
}

void CenterScreen::setSceneMIDIinOut()
{
    showMIDIPortsListView(true);
    showTexts(false);
    showButtons(true, false);
    form.hiddenLayer->hide();
    form.buttonMIDIinOut->setChecked(true);
    form.buttonCredits->setChecked(false);
    enterScene(scene_ports);
}

void CenterScreen::showMIDIPortsListView(bool show)
{
    portBackground->setVisible(show);
    inPortList->setVisible(show);
    outPortList->setVisible(show);
}

QListWidget* CenterScreen::createPortList(const QRect& place, const QString& name, const QString& style)
{
    auto* list = new QListWidget(window);
    list->setGeometry(place);
    list->setAccessibleName(name);
    list->setToolTip(tr("Click a port to open or close it; several can be open at once"));
    list->setSelectionMode(QAbstractItemView::MultiSelection);
    list->setFocusPolicy(Qt::NoFocus);
    list->setFrameShape(QFrame::NoFrame);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setStyleSheet(style);
    return list;
}

void CenterScreen::addMidiPortsListView()
{
    portBackground =
        scene->addPixmap(pictures::load(QStringLiteral(":/Resources/MidiIoScreen/MIDI_IO_portBG.png")));
    portBackground->setPos(portBackgroundPos);
    const QString style = getMainTextData(QStringLiteral(":/Resources/MidiIoScreen/MIDI_Ports_list-mac.qss"));
    inPortList = createPortList(inListPlace, tr("MIDI input ports"), style);
    outPortList = createPortList(outListPlace, tr("MIDI output ports"), style);
}

void CenterScreen::addPort(QListWidget& list, const QString& name, bool selected)
{
    {
        // The port is opened by the timer, not by the row that comes into being.
        const QSignalBlocker blocker(&list);
        auto* row = new QListWidgetItem(name, &list);
        row->setToolTip(name);
        row->setSelected(selected);
    }
    QTimer::singleShot(selectDelayMs, this, &CenterScreen::delayedSelect);
}

void CenterScreen::addInPort(const QString& name, bool selected)
{
    addPort(*inPortList, name, selected);
}

void CenterScreen::addOutPort(const QString& name, bool selected)
{
    addPort(*outPortList, name, selected);
}

QString CenterScreen::getInPort(int row) const
{
    const QListWidgetItem* item = inPortList->item(row);
    return item ? item->text() : QString();
}

QString CenterScreen::getOutPort(int row) const
{
    const QListWidgetItem* item = outPortList->item(row);
    return item ? item->text() : QString();
}

void CenterScreen::delayedSelect()
{
    for (int row = 0; row < inPortList->count(); ++row)
        if (inPortList->item(row)->isSelected())
            mainWnd->inPortChanged(inPortList->item(row));
    for (int row = 0; row < outPortList->count(); ++row)
        if (outPortList->item(row)->isSelected())
            mainWnd->outPortChanged(outPortList->item(row));
}
