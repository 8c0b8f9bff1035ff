#include "ImportRig.h"

#include "RecordingPort.h"
#include "app/MainWnd.h"
#include "app/MidiService.h"
#include "invariants.h"
#include "keys/PowerItem.h"
#include "keys/pitch_mapping.h"
#include "library/SettingsStore.h"
#include "screen/CenterScreen.h"
#include "screen/LibraryView.h"
#include "screen/ScaleListWidget.h"

#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

// The store keeps what any file has brought for the length of the process; here each file must come to an
// empty one. An explicit instantiation may name a private member.
using Values = QMap<QString, QVariant>;
Values& storedValues();
template <Values* values>
struct StoreDoor
{
    friend Values& storedValues() { return *values; }
};
template struct StoreDoor<&SettingsStore::properties>;

/// The rig itself fails: nothing that it says about a file would count.
void require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "import rig: %s\n", what);
    std::abort();
}

/// A note of the keyboard that follows from the file and from nothing else.
int noteFor(const QByteArray& file)
{
    constexpr int keys = pitch_mapping::highestPitch - pitch_mapping::lowestPitch + 1;
    return pitch_mapping::lowestPitch +
           static_cast<int>(qChecksum(file.constData(), uint(file.size()))) % keys;
}

// Qt's parser takes one at the beginning of a text away.
const QByteArray byteOrderMark = QByteArrayLiteral("\xEF\xBB\xBF");

/// The first line that differs, in both forms.
QString difference(const QByteArray& before, const QByteArray& after)
{
    const QList<QByteArray> first = before.split('\n'), second = after.split('\n');
    int line = 0;
    while (line < first.size() && line < second.size() && first.at(line) == second.at(line))
        ++line;
    return QStringLiteral("line %1, \"%2\" and \"%3\"")
        .arg(line + 1)
        .arg(QString::fromUtf8(first.value(line).trimmed()), QString::fromUtf8(second.value(line).trimmed()));
}

QStringList prefixed(const char* when, const QStringList& lines)
{
    QStringList all;
    for (const QString& line : lines)
        all.append(QString::fromLatin1(when) + line);
    return all;
}

} // namespace

ImportRig::ImportRig()
{
    require(folder.isValid(), "no temporary folder");
    midiService().choose(MidiService::Wanted::none);
    window = std::make_unique<MainWnd>();
    port = new RecordingPort;
    window->outPorts[0] = port;
    window->midiOutOpen = true;
    window->setPower(false);
    reset(); // the current category follows the played scale from now on
    factory = exported();
    require(import(factory).isEmpty(), "the factory's own file is refused");
}

ImportRig::~ImportRig() = default;

QStringList ImportRig::run(const QByteArray& file, Depth depth)
{
    reset();
    const QString error = import(file);
    taken = error.isEmpty();
    QStringList wrong = afterImport();
    if (depth == Depth::thorough)
        wrong += goThroughFile();
    wrong += playNote(noteFor(file));
    wrong += prefixed("after a note: ", invariants::broken(*window));
    return depth == Depth::thorough ? wrong + showAll() + goBack() : wrong;
}

void ImportRig::reset()
{
    storedValues().clear();
    if (factory.isEmpty())
        window->library.loadDefault();
    else
        require(import(factory).isEmpty(), "the way back to the factory is closed");
    storedValues().clear();
    SettingsStore::registerDefaultValues();
    window->storePortSelection();
    for (const QString& category : window->library.categories())
        window->library.setCurrentScaleIndex(category, -1);
    window->checkScaleMatches(true);
    port->clear();
}

QString ImportRig::import(const QByteArray& text)
{
    const QString name = folder.filePath(QStringLiteral("in.svdb"));
    QFile file(name);
    require(file.open(QIODevice::WriteOnly | QIODevice::Truncate), "the file cannot be written");
    require(file.write(text) == text.size(), "the file is not written whole");
    file.close();
    return window->importDatabase(name);
}

QByteArray ImportRig::exported()
{
    const QString name = folder.filePath(QStringLiteral("out.svdb"));
    require(window->exportDatabase(name).isEmpty(), "the export fails");
    QFile file(name);
    require(file.open(QIODevice::ReadOnly), "the exported file cannot be read");
    return file.readAll();
}

QStringList ImportRig::afterImport()
{
    QStringList wrong = prefixed("after the import: ", invariants::broken(*window));
    return wrong + remapped();
}

/// What sounds is what is shown: mapping once more finds the same targets.
QStringList ImportRig::remapped() const
{
    const QList<int> before = invariants::targets(*window);
    window->powerItem->remap();
    return before == invariants::targets(*window) ? QStringList()
                                                  : QStringList(QStringLiteral("the import left an old map"));
}

/// What a key starts it also ends.
QStringList ImportRig::playNote(int note)
{
    port->clear();
    window->receiveMessage({0x90, note, 100});
    window->receiveMessage({0x80, note, 0});
    QCoreApplication::processEvents();
    const QList<QList<int>> sent = port->takeLists();
    QList<int> sounding;
    for (const QList<int>& message : sent) {
        if (message.size() != 3 || message.at(1) < 0 || message.at(1) > 127)
            return {QStringLiteral("a message that is no note was sent")};
        if (message.at(0) == 0x90 && message.at(2) > 0)
            sounding.append(message.at(1));
        else
            sounding.removeOne(message.at(1));
    }
    return sounding.isEmpty() ? QStringList() : QStringList(QStringLiteral("a note hangs"));
}

/// What is written can be taken up, and is the whole state.
QStringList ImportRig::goThroughFile()
{
    const QByteArray first = exported();
    const QString error = import(first);
    if (!error.isEmpty())
        return {QStringLiteral("the exported file is refused: ") + error};
    QStringList wrong;
    if (!taken && first != factory)
        wrong += QStringLiteral("a refused file has left traces");
    wrong += prefixed("after its own export: ", invariants::broken(*window));
    const QByteArray second = exported();
    if (second != first && !first.contains(byteOrderMark))
        wrong += QStringLiteral("the exported file changes by being taken up: ") + difference(first, second);
    return wrong;
}

/// The library as its lists have it, and a picture of it all.
QStringList ImportRig::showAll()
{
    window->setPower(true);
    window->showLibraryScreen(true);
    window->centerScreen->refreshBrowser();
    window->grab();
    const DatabaseLibrary& library = window->library;
    const LibraryView& view = *window->centerScreen->libraryView();
    const int rows = std::max(library.scalesCountFromCategory(library.currentCategory()), 1); // or a remark
    QStringList wrong;
    if (view.scales->count() != rows)
        wrong += QStringLiteral("the list of scales is not the category's");
    window->showLibraryScreen(false);
    return wrong + prefixed("after the library: ", invariants::broken(*window));
}

/// Whatever a file brought, another one takes it away again.
QStringList ImportRig::goBack()
{
    reset();
    const QByteArray again = exported();
    if (again == factory)
        return {};
    return {QStringLiteral("the factory's file does not bring all back: ") + difference(factory, again)};
}
