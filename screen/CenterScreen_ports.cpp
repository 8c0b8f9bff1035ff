// The two port lists. What a selection does to the ports is the main window's.

#include "screen/CenterScreen.h"

#include "app/MainWnd.h"
#include "keys/pictures.h"
#include "screen/PortListWidget.h"
#include "screen/scroll_style.h"

#include <QGraphicsScene>
#include <QSignalBlocker>
#include <QTimer>

namespace {

constexpr int selectDelayMs = 200;
const QPointF portBackgroundPos(320, 15);    // in the scene
const QRect inListPlace(214, 196, 185, 75);  // in the form; five whole rows
const QRect outListPlace(411, 196, 160, 75); // as far as the paper note

} // namespace

void CenterScreen::showMIDIPortsListView(bool show)
{
    portBackground->setVisible(show);
    inPortList->setVisible(show);
    outPortList->setVisible(show);
}

PortListWidget* CenterScreen::createPortList(const QRect& place, const QString& name, const QString& style)
{
    auto* list = new PortListWidget(window);
    list->setGeometry(place);
    list->setAccessibleName(name);
    list->setToolTip(tr("Click a port to open or close it; several can be open at once"));
    setStyleWithBars(*list, style);
    connect(mainWnd, &MainWnd::specialKeyPressed, list, &PortListWidget::specialKeyPress);
    connect(list, &PortListWidget::left, mainWnd, &MainWnd::focusInKeyboard);
    return list;
}

void CenterScreen::addMidiPortsListView()
{
    portBackground =
        scene->addPixmap(pictures::load(QStringLiteral(":/Resources/MidiIoScreen/MIDI_IO_portBG.png")));
    portBackground->setPos(portBackgroundPos);
    const QString style = getMainTextData(QStringLiteral(":/Resources/MidiIoScreen/MIDI_Ports_list-mac.qss"));
    PortListWidget* in = createPortList(inListPlace, tr("MIDI input ports"), style);
    PortListWidget* out = createPortList(outListPlace, tr("MIDI output ports"), style);
    in->neighbour = out;
    out->neighbour = in;
    inPortList = in;
    outPortList = out;
}

void CenterScreen::addPort(PortListWidget& list, const QString& name, bool selected)
{
    {
        // The port is opened by the timer, not by the row that comes into being.
        const QSignalBlocker blocker(&list);
        list.addRow(name)->setSelected(selected);
    }
    QTimer::singleShot(selectDelayMs, this, &CenterScreen::delayedSelect);
}

void CenterScreen::addInPort(const QString& name, bool selected)
{
    addPort(*static_cast<PortListWidget*>(inPortList), name, selected);
}

void CenterScreen::addOutPort(const QString& name, bool selected)
{
    addPort(*static_cast<PortListWidget*>(outPortList), name, selected);
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
