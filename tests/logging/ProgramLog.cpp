#include "ProgramLog.h"

#include <QDirIterator>
#include <QtTest>

namespace {

constexpr int patienceMs = 20000;

/// A place without a flag: its reader says so in a debug line.
constexpr char talkative[] = R"({"SorvanePowerButtonPosition": 100000})";

QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

ProgramLog::ProgramLog()
{
    for (const char* name : {"QT_LOGGING_RULES", "QT_MESSAGE_PATTERN"})
        qunsetenv(name);
    qputenv("XDG_DATA_HOME", QFile::encodeName(data())); // the program inherits it
}

bool ProgramLog::put(const QString& name, const QByteArray& text) const
{
    QFile file(path(name));
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

QByteArray ProgramLog::contentOf(const QString& name) const
{
    return read(path(name));
}

QStringList ProgramLog::files() const
{
    QStringList found;
    QDirIterator walk(data(), QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (walk.hasNext())
        found.append(QDir(data()).relativeFilePath(walk.next()));
    return found;
}

QByteArray ProgramLog::log() const
{
    static const QRegularExpression name(
        QStringLiteral("^Sorvane/Sorvane/Sorvane\\d\\d_\\d\\d_\\d\\d\\.log$"));
    const QStringList all = files();
    if (all.size() != 1 || !name.match(all.first()).hasMatch())
        return {};
    const QByteArray content = read(data() + '/' + all.first());
    return content.isEmpty() ? QByteArray("") : content; // that of an empty log is not null
}

QStringList ProgramLog::lines() const
{
    const QString text = QString::fromUtf8(log());
    return text.endsWith('\n') ? text.chopped(1).split('\n') : QStringList();
}

QStringList ProgramLog::headless(const QStringList& more) const
{
    const bool written = put(QStringLiteral("start.svdb"), talkative);
    return QStringList({"--headless", "--no-virtual", "--import", written ? path("start.svdb") : QString()}) +
           more;
}

int ProgramLog::runSession(ProgramUnderTest& program, const QStringList& options) const
{
    if (!program.start(headless(options) + QStringList{"--session", path("s.svdb")}))
        return -1;
    // Who ends the program in order is there before the log is.
    return QTest::qWaitFor([this] { return !files().isEmpty(); }, patienceMs) ? program.stop() : -1;
}

QStringList ProgramLog::ofTheRun(const QStringList& lines)
{
    QStringList kept;
    for (const QString& line : lines)
        if (!line.contains(QLatin1String("MIDI service")))
            kept.append(line);
    return kept;
}
