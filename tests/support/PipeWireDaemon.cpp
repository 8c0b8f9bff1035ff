#include "PipeWireDaemon.h"

#include "JackPlayer.h"

#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QtTest>

namespace {

constexpr char configuration[] = R"(
context.properties = {
    core.daemon = true
    core.name = pipewire-0
    default.clock.rate = 48000
    default.clock.quantum = %FRAMES%
    default.clock.min-quantum = %FRAMES%
    default.clock.max-quantum = %FRAMES%
}
context.spa-libs = { support.* = support/libspa-support }
context.modules = [
    { name = libpipewire-module-rt flags = [ ifexists nofail ] }
    { name = libpipewire-module-protocol-native }
    { name = libpipewire-module-spa-node-factory }
    { name = libpipewire-module-client-node }
    { name = libpipewire-module-access args = {} }
    { name = libpipewire-module-adapter }
    { name = libpipewire-module-metadata }
    { name = libpipewire-module-link-factory }
]
context.objects = [
    { factory = spa-node-factory
      args = { factory.name = support.node.driver node.name = Dummy-Driver node.group = pipewire.dummy
               priority.driver = 20000 } }
]
)";

constexpr int startMs = 10000;

} // namespace

PipeWireDaemon::~PipeWireDaemon()
{
    kill();
}

bool PipeWireDaemon::writeConfiguration() const
{
    const QByteArray text = QByteArray(configuration).replace("%FRAMES%", QByteArray::number(frames));
    QFile file(folder.filePath(QStringLiteral("private.conf")));
    return file.open(QIODevice::WriteOnly) && file.write(text) > 0;
}

bool PipeWireDaemon::start()
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("pipewire"));
    if (program.isEmpty() || !folder.isValid() || !writeConfiguration()) {
        why = QStringLiteral("no pipewire program, or no temporary folder");
        return false;
    }
    qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(program, {QStringLiteral("-c"), folder.filePath(QStringLiteral("private.conf"))});
    const bool answers = QTest::qWaitFor(
        [this] {
            QLocalSocket socket;
            socket.connectToServer(folder.filePath(QStringLiteral("pipewire-0")));
            return socket.waitForConnected(100);
        },
        startMs);
    if (!answers)
        why = QStringLiteral("pipewire does not answer: ") + process.errorString();
    return answers;
}

bool PipeWireDaemon::startForJack()
{
    if (!start()) {
        why.prepend(QStringLiteral("NO PIPEWIRE DAEMON: "));
        return false;
    }
    if (JackPlayer("probe").isOpen())
        return true;
    why = QStringLiteral("NO JACK INTERFACE on the private PipeWire daemon (is pw-jack there?)");
    return false;
}

void PipeWireDaemon::kill()
{
    process.kill();
    process.waitForFinished();
}
