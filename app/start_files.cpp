// The files of the command line: looked at before the window is built, read behind it, written at the end.

#include "app/start.h"

#include "app/MainWnd.h"
#include "app/MidiService.h"
#include "app/moved_ports.h"
#include "library/SettingsStore.h"
#include "library/database_file.h"

#include <QFileInfo>

namespace start {
namespace {

QString line(const char* option, const QString& file, const QString& reason)
{
    const QString text = QStringLiteral("%1 %2: %3").arg(QLatin1String(option), file, reason);
    return QString(text).replace(QLatin1Char('\n'), QLatin1Char(' '));
}

using Reader = bool (*)(const QString& port, bool fallback);
using Writer = void (*)(const QString& port, bool selected);

/// A port that has another number than the file knew keeps its selection.
void followMoved(const QStringList& present, const QStringList& remembered, Reader isSelected, Writer select)
{
    const QMap<QString, QString> moved = movedPorts(present, remembered);
    for (auto port = moved.begin(); port != moved.end(); ++port)
        select(port.key(), isSelected(port.value(), false));
}

/// What a file that is to be read says of the ports, which are listed before the rest of it can be taken up.
QString rememberPorts(const char* option, const QString& file)
{
    const database_file::Content content = database_file::read(file);
    if (!content.error.isEmpty())
        return line(option, file, content.error);
    const SettingsStore::Ports remembered = SettingsStore::rememberPorts(content.root);
    MidiService& service = midiService();
    if (!service.isAvailable())
        return {};
    followMoved(service.inputNames(), remembered.inputs, &SettingsStore::getMidiInPortSelected,
                &SettingsStore::setMidiInPortSelected);
    followMoved(service.outputNames(), remembered.outputs, &SettingsStore::getMidiOutPortSelected,
                &SettingsStore::setMidiOutPortSelected);
    return {};
}

QString checkWritable(const char* option, const QString& file)
{
    const QString obstacle = file.isEmpty() ? QString() : database_file::whyNotWritable(file);
    return obstacle.isEmpty() ? QString() : line(option, file, obstacle);
}

QString read(const char* option, const QString& file, MainWnd& window)
{
    const QString error = window.importDatabase(file);
    return error.isEmpty() ? QString() : line(option, file, error);
}

QString write(const char* option, const QString& file, MainWnd& window)
{
    const QString error = file.isEmpty() ? QString() : window.exportDatabase(file);
    return error.isEmpty() ? QString() : line(option, file, error);
}

/// A session that does not exist yet begins from the factory state. A link that leads nowhere is one of
/// these.
bool hasSession(const CommandLine& wanted)
{
    return !wanted.sessionFile.isEmpty() && QFileInfo::exists(wanted.sessionFile);
}

} // namespace

QString openFiles(const CommandLine& wanted)
{
    QString error = checkWritable("--session", wanted.sessionFile);
    if (error.isEmpty())
        error = checkWritable("--export", wanted.exportFile);
    if (error.isEmpty() && hasSession(wanted))
        error = rememberPorts("--session", wanted.sessionFile);
    if (error.isEmpty() && !wanted.importFile.isEmpty())
        error = rememberPorts("--import", wanted.importFile);
    return error;
}

QString readFiles(const CommandLine& wanted, MainWnd& window)
{
    QString error;
    if (hasSession(wanted))
        error = read("--session", wanted.sessionFile, window);
    if (error.isEmpty() && !wanted.importFile.isEmpty())
        error = read("--import", wanted.importFile, window);
    return error;
}

QString writeSession(const CommandLine& wanted, MainWnd& window)
{
    return write("--session", wanted.sessionFile, window);
}

QString writeFiles(const CommandLine& wanted, MainWnd& window)
{
    QStringList errors = {writeSession(wanted, window), write("--export", wanted.exportFile, window)};
    errors.removeAll({});
    return errors.join(QLatin1Char('\n'));
}

} // namespace start
