// The two port lists: what is listed, opened, closed and remembered.

#include "app/MainWnd.h"

#include "app/MidiService.h"
#include "app/connecter.h"
#include "app/tell.h"
#include "library/SettingsStore.h"
#include "logging/categories.h"
#include "screen/AlertWidget.h"
#include "screen/CenterScreen.h"

#include <QThreadPool>

#include <algorithm>

namespace {

bool isRowSelected(const QListWidgetItem* item)
{
    return item && item->listWidget() && item->isSelected();
}

/// Two devices may bear one name: it is remembered if any of them is selected.
bool isNameSelected(const QListWidget& list, const QString& name)
{
    const QList<QListWidgetItem*> rows = list.selectedItems();
    return std::any_of(rows.begin(), rows.end(), [&](const auto* row) { return row->text() == name; });
}

int firstRowNamed(const QListWidget& list, const QString& name)
{
    for (int row = 0; row < list.count(); ++row)
        if (list.item(row)->text() == name)
            return row;
    return -1;
}

/// The row's index is the system's, as long as no port has come or gone since the rows were listed. Where one
/// has, the name decides: a click must never open another device.
template <typename Port>
unsigned systemIndex(Port& port, int row, const QString& name)
{
    const auto index = static_cast<unsigned>(row);
    const unsigned count = port.getPortCount();
    const auto isNamed = [&](unsigned i) { return QString::fromStdString(port.getPortName(i)) == name; };
    if (index < count && isNamed(index))
        return index;
    for (unsigned i = 0; i < count; ++i)
        if (isNamed(i))
            return i;
    throw RtMidiError(MainWnd::tr("The port is gone.").toStdString(), RtMidiError::INVALID_DEVICE);
}

template <typename Port>
void closeSlot(Port*& port)
{
    if (port)
        port->closePort();
    delete port;
    port = nullptr;
}

/// Closing a port of a dead server takes a second each: nobody on stage waits for that.
template <typename Port>
void giveUp(QList<Port*>& ports)
{
    for (Port*& port : ports)
        if (port) {
            QThreadPool::globalInstance()->start([dead = port] { delete dead; });
            port = nullptr;
        }
}

} // namespace

QString MainWnd::portErrorText(const QString& reason)
{
    return tr("There was an error with selected MIDI port:<br/>%1<br/>"
              "Please check if this port is not opened in some other software.")
        .arg(reason);
}

// Kept: the alert does not wait for its button and goes with this function. The row's tool tip and the log
// keep the reason.
void MainWnd::alertPortError(const RtMidiError& error)
{
    const QString text = portErrorText(QString::fromStdString(error.getMessage()));
    qCWarning(lcApp, "%s", qUtf8Printable(text));
    AlertWidget alert(QString(), text, tr("  OK  "), QString(), alert_error, this);
    alert.resize(size());
    alert.show();
}

void MainWnd::scanMIDIPorts()
{
    const bool service = midiService().isAvailable();
    qDeleteAll(inPorts);
    inPorts.clear();
    const QStringList inputs = service ? midiService().inputNames() : QStringList();
    for (const QString& name : inputs) {
        inPorts.append(nullptr);
        centerScreen->addInPort(name, SettingsStore::getMidiInPortSelected(name, name == virtualInName));
    }
    qDeleteAll(outPorts);
    outPorts.clear();
    const QStringList outputs = service ? midiService().outputNames() : QStringList();
    for (const QString& name : outputs) {
        outPorts.append(nullptr);
        centerScreen->addOutPort(name, SettingsStore::getMidiOutPortSelected(name, name == virtualOutName));
    }
    inPorts.append(nullptr);
    centerScreen->addInPort(virtualInName, SettingsStore::getMidiInPortSelected(virtualInName, true));
    outPorts.append(nullptr);
    centerScreen->addOutPort(virtualOutName, SettingsStore::getMidiOutPortSelected(virtualOutName, true));
}

RtMidiIn* MainWnd::openIn(int row, const QString& name) const
{
    auto port = midiService().makeInput();
    if (name == virtualInName)
        port->openVirtualPort(name.toStdString());
    else
        port->openPort(systemIndex(*port, row, name), "RtMidi Input");
    port->setCallback(&connecter::mycallback, nullptr);
    port->ignoreTypes(false, false, false);
    return port.release();
}

RtMidiOut* MainWnd::openOut(int row, const QString& name) const
{
    auto port = midiService().makeOutput();
    if (name == virtualOutName)
        port->openVirtualPort(name.toStdString());
    else
        port->openPort(systemIndex(*port, row, name), "RtMidi Output");
    return port.release();
}

// False if the row's port was open already and stays so. A row that fails stays selected with a null slot, so
// the next change of the selection tries it again. Without any service there is nothing to try.
template <typename Port, typename Open>
bool MainWnd::followRow(QListWidgetItem* item, Port*& port, const Open& open)
{
    const bool selected = isRowSelected(item);
    if (selected && port)
        return false;
    if (!selected) {
        closeSlot(port);
    } else if (midiService().isAvailable()) {
        try {
            port = open();
            item->setToolTip(item->text());
        } catch (const RtMidiError& error) {
            alertPortError(error);
            port = nullptr;
            item->setToolTip(item->text() + QLatin1Char('\n') + QString::fromStdString(error.getMessage()));
        }
    }
    return true;
}

bool MainWnd::applyInRow(int row)
{
    QListWidgetItem* item = centerScreen->inPortList->item(row);
    const QString name = centerScreen->getInPort(row);
    if (!followRow(item, inPorts[row], [&] { return openIn(row, name); }))
        return false;
    SettingsStore::setMidiInPortSelected(name, isNameSelected(*centerScreen->inPortList, name));
    return true;
}

bool MainWnd::applyOutRow(int row)
{
    QListWidgetItem* item = centerScreen->outPortList->item(row);
    const QString name = centerScreen->getOutPort(row);
    if (!followRow(item, outPorts[row], [&] { return openOut(row, name); }))
        return false;
    midiOutOpen = checkActiveMidiOut();
    SettingsStore::setMidiOutPortSelected(name, isNameSelected(*centerScreen->outPortList, name));
    return true;
}

void MainWnd::storePortSelection() const
{
    const auto store = [](const QListWidget& list, void (*setSelected)(const QString&, bool)) {
        for (int row = 0; row < list.count(); ++row)
            setSelected(list.item(row)->text(), isNameSelected(list, list.item(row)->text()));
    };
    store(*centerScreen->inPortList, &SettingsStore::setMidiInPortSelected);
    store(*centerScreen->outPortList, &SettingsStore::setMidiOutPortSelected);
}

void MainWnd::inPortSelectionChange()
{
    for (int row = 0; row < inPorts.size(); ++row)
        static_cast<void>(applyInRow(row));
    focusInKeyboard();
}

void MainWnd::outPortSelectionChange()
{
    for (int row = 0; row < outPorts.size(); ++row)
        static_cast<void>(applyOutRow(row));
    focusInKeyboard();
}

void MainWnd::inPortChanged(QListWidgetItem* item)
{
    const int row = firstRowNamed(*centerScreen->inPortList, item->text());
    if (row == -1 || applyInRow(row))
        focusInKeyboard();
}

void MainWnd::outPortChanged(QListWidgetItem* item)
{
    const int row = firstRowNamed(*centerScreen->outPortList, item->text());
    if (row == -1 || applyOutRow(row))
        focusInKeyboard();
}

void MainWnd::midiServiceStopped()
{
    tell(tr("the MIDI service has stopped; its ports are closed. Start it again and select the ports anew."));
    giveUp(inPorts);
    giveUp(outPorts);
    midiOutOpen = checkActiveMidiOut();
}
