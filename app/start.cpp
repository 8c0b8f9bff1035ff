#include "app/start.h"

#include "app/MainWnd.h"
#include "app/tell.h"
#include "headers/selector_access.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyController.h"
#include "library/SettingsStore.h"

#include <cstdio>

namespace start {
namespace {

void print(const QString& line)
{
    std::printf("%s\n", qUtf8Printable(line));
}

void printPorts(const QString& title, const QStringList& names)
{
    print(title);
    for (const QString& name : names)
        print(QStringLiteral("  ") + name);
}

using Store = void (*)(const QString&, bool);

/// The own port of that direction is opened beside the named ones unless it is remembered as closed; named,
/// it is opened.
void markSelected(const QStringList& rows, const QString& virtualRow, const QStringList& wanted, Store store)
{
    if (wanted.isEmpty())
        return;
    for (const QString& row : rows)
        store(row, wanted.contains(row));
    if (wanted.contains(virtualRow))
        store(virtualRow, true);
}

template <typename Port>
void closePorts(const QList<Port*>& ports)
{
    for (Port* port : ports)
        if (port)
            port->closePort();
}

} // namespace

int listPorts()
{
    MidiService& service = midiService();
    print(QCoreApplication::translate("start", "MIDI back end: %1").arg(service.backEndName()));
    if (!service.isAvailable()) {
        reportMissingService();
        return 1;
    }
    printPorts(QCoreApplication::translate("start", "Inputs:"), service.inputNames() << virtualInName);
    printPorts(QCoreApplication::translate("start", "Outputs:"), service.outputNames() << virtualOutName);
    return 0;
}

QString selectPorts(CommandLine& wanted)
{
    const bool named = !wanted.inPorts.isEmpty() || !wanted.outPorts.isEmpty();
    const bool listed = named && midiService().isAvailable();
    const QStringList inputs = listed ? midiService().inputNames() : QStringList();
    const QStringList outputs = listed ? midiService().outputNames() : QStringList();
    QString error =
        wanted.resolvePorts(inputs + QStringList(virtualInName), outputs + QStringList(virtualOutName));
    if (!error.isEmpty())
        return error;
    markSelected(inputs, virtualInName, wanted.inPorts, &SettingsStore::setMidiInPortSelected);
    markSelected(outputs, virtualOutName, wanted.outPorts, &SettingsStore::setMidiOutPortSelected);
    if (wanted.noVirtual) {
        SettingsStore::setMidiInPortSelected(virtualInName, false);
        SettingsStore::setMidiOutPortSelected(virtualOutName, false);
    }
    return {};
}

void setSelectors(const CommandLine& wanted, MainWnd& window)
{
    if (!wanted.tonic.isEmpty())
        selector_access::tonicSelector().setTonicModifier(wanted.tonic, true, true);
    if (!wanted.scale.isEmpty())
        selector_access::scaleSelector().setScaleModifier(wanted.scale, true);
    // Also without a wish: a remap with the power off leaves the black keys in the colour of presets.
    window.setPower(wanted.power.value_or(window.powerItem->isSwitchOn()));
}

void reportMissingService()
{
    if (!midiService().isAvailable())
        tell(MidiService::missingText());
}

void stopMidiInput(MainWnd& window)
{
    closePorts(window.inPorts);
}

void stopNotes(MainWnd& window)
{
    window.endGestures();
    window.releaseHeldNotes();
}

void closeMidiOutput(MainWnd& window)
{
    closePorts(window.outPorts);
}

} // namespace start
