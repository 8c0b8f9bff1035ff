#include "StageRun.h"

#include "XServer.h"

#include <QtTest>

namespace {

const QString virtualIn = QStringLiteral(":Sorvane MIDI In");
const QString virtualOut = QStringLiteral(":Sorvane MIDI Out");

} // namespace

bool StageRun::start(const QStringList& arguments)
{
    program = std::make_unique<ProgramUnderTest>(programPath);
    if (!program->start(
            QStringList{QStringLiteral("--midi-api"), QStringLiteral("jack"), QStringLiteral("--debug")} +
            arguments) ||
        !XServer::bringToOrigin(QStringLiteral("^Sorvane$")))
        return false;
    player = std::make_unique<JackPlayer>("player");
    return player->connectOutputTo(virtualIn) && player->connectInputTo(virtualOut) && player->waitForEcho();
}

int StageRun::stop()
{
    player.reset();
    const int status = program ? program->stop() : -1;
    program.reset();
    return status;
}

bool StageRun::waitForMoves(int count)
{
    const QString line = QStringLiteral("ResizableItem::mouseMoveEvent");
    return QTest::qWaitFor([&] { return program->errors().count(line) >= count; });
}
