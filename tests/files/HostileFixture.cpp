#include "HostileFixture.h"

#include "library/SettingsStore.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <ctime>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr qint64 second = 1000, mostMemory = 1024; // MiB

#if defined(__SANITIZE_ADDRESS__)
constexpr bool sanitized = true;
#else
constexpr bool sanitized = false;
#endif

QJsonObject scaleObject(const char* category, const char* title, const char* word)
{
    return {{"Category", category}, {"Title", title}, {"Abbr1", "A1"},
            {"Abbr2", "A2"},        {"Scale", word},  {"LibBody", "About it"}};
}

QJsonObject presetObject(const char* tonic, const char* word, int place)
{
    return {{"NameScenic1", "User"}, {"NameScenic2", "3"}, {"NameTonic", tonic}, {"TonicOn", true},
            {"TonicData", tonic},    {"ScaleOn", true},    {"ScaleData", word},  {"AnchorValid", true},
            {"AnchorPos", place},    {"XPos", 12.5},       {"YPos", 3}};
}

} // namespace

qint64 processorMs()
{
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return qint64(now.tv_sec) * 1000 + now.tv_nsec / 1000000;
}

void memory::resetPeak()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly))
        file.write("5");
}

qint64 memory::peak()
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (sanitized || !file.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray& line : lines)
        if (line.startsWith("VmHWM:"))
            return line.simplified().split(' ').value(1).toLongLong() / 1024;
    return 0;
}

void HostileFixture::openOnce()
{
    openWindow();
    QVERIFY(folder.isValid());
    factory = exported();
    QVERIFY(factory.size() > 20000);
}

int HostileFixture::slowness()
{
    return sanitized ? 10 : 1;
}

bool HostileFixture::write(const QString& path, const QByteArray& text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(text) == text.size();
}

QByteArray HostileFixture::contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool HostileFixture::makeSocket(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (name.size() >= static_cast<int>(sizeof address.sun_path))
        return false;
    std::copy(name.begin(), name.end(), address.sun_path);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const bool made = bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    close(socket);
    return made;
}

QByteArray HostileFixture::exported() const
{
    const QString path = pathOf(QStringLiteral("exported.svdb"));
    const QString error = window->exportDatabase(path);
    return error.isEmpty() ? contentOf(path) : QByteArray();
}

QJsonObject HostileFixture::smallDatabase()
{
    return {{"SorvaneDefaultScalesArray",
             QJsonArray{scaleObject("Mine", "One", "xoxoxxoxoxox"),
                        scaleObject("Mine", "Two", "xxooxxooxxoo"), scaleObject("Other", "", "")}},
            {"SorvaneDefaultHeadersArray",
             QJsonArray{presetObject("D", "xoxoxxoxoxox", 17), presetObject("E", "xxxoooooooox", -34)}},
            {"SorvanePowerButtonPosition", 407},
            {"SorvaneAnchorPosition", 34},
            {"PowerOnState", true},
            {"TonicOnState", true},
            {"ScaleOnState", true},
            {"TonicModifier", "F#"},
            {"TonicKeyBehindSwitch", "F#"},
            {"ScaleModifier", "xxooxxooxxoo"},
            {"ActiveHeader", 66},
            {"CurrentScene", 2},
            {"LibViewOpened", true},
            {"AnchorPosX", 34}};
}

HostileFixture::Outcome HostileFixture::offer(const QByteArray& text) const
{
    const QString path = pathOf(QStringLiteral("offered.svdb"));
    if (!write(path, text))
        return {QStringLiteral("the test could not write its file"), 0, 0};
    return offerFile(path);
}

HostileFixture::Outcome HostileFixture::offerFile(const QString& path) const
{
    memory::resetPeak();
    const qint64 before = memory::peak();
    const qint64 begin = processorMs();
    const QString error = window->importDatabase(path);
    return {error, processorMs() - begin, memory::peak() - before};
}

void HostileFixture::backToFactory() const
{
    QCOMPARE(offer(factory).error, QString());
    QCOMPARE(hostile_state::fault(*window), QString());
}

QString HostileFixture::faultAfter() const
{
    const QString text = hostile_state::fault(*window);
    return text.isEmpty() ? hostile_state::faultOfNotes(*window, *port) : text;
}

QString HostileFixture::faultOfGood(const Outcome& outcome) const
{
    if (!outcome.error.isEmpty())
        return outcome.error;
    if (outcome.ms > second * slowness())
        return QStringLiteral("it took %1 ms").arg(outcome.ms);
    if (outcome.peak > mostMemory)
        return QStringLiteral("it took %1 MiB").arg(outcome.peak);
    return faultAfter();
}
