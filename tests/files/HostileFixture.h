#pragma once

#include "HostileState.h"
#include "ScreenFixture.h"

#include <QTemporaryDir>

class QJsonObject;

/// A path as system calls take it.
class LocalPath
{
public:
    explicit LocalPath(const QString& path) : bytes(QFile::encodeName(path)) {}
    operator const char*() const { return bytes.constData(); } // NOLINT(google-explicit-constructor)

private:
    const QByteArray bytes;
};

/// One window for all rows of a test, brought back to the factory state before each, and files to offer to
/// it.
class HostileFixture : public ScreenFixture
{
    Q_OBJECT

private slots:
    void initTestCase() { openOnce(); }
    void init() { backToFactory(); }
    void cleanup() {}
    void cleanupTestCase() { closeWindow(); }

protected:
    struct Outcome
    {
        QString error;   ///< what the importer said
        qint64 ms = 0;   ///< how long the processor worked on it
        qint64 peak = 0; ///< MiB of memory that it took beyond what was there, where that can be told
    };

    void openOnce();

    // Files
    [[nodiscard]] QString pathOf(const QString& name) const { return folder.filePath(name); }
    [[nodiscard]] static bool write(const QString& path, const QByteArray& text);
    [[nodiscard]] static QByteArray contentOf(const QString& path);
    [[nodiscard]] static bool makeSocket(const QString& path);
    /// What the window would write now.
    [[nodiscard]] QByteArray exported() const;
    /// All that the window has, in few bytes: two categories, two presets, every key of a database.
    [[nodiscard]] static QJsonObject smallDatabase();

    // The importer
    /// Offers a file of that content, and measures.
    Outcome offer(const QByteArray& text) const;
    Outcome offerFile(const QString& path) const;
    void backToFactory() const;
    /// The state after it; "" if nothing is wrong. Plays notes last.
    [[nodiscard]] QString faultAfter() const;
    /// The same, and it was taken, in good time and within a gibibyte.
    [[nodiscard]] QString faultOfGood(const Outcome& outcome) const;

    /// How many times longer things may take in this build.
    [[nodiscard]] static int slowness();

    QTemporaryDir folder;

private:
    QByteArray factory;
};

/// Milliseconds that the processor has worked for this process: on a busy machine less than have passed.
[[nodiscard]] qint64 processorMs();

/// Memory that this process has had at most since the last call of resetPeak(), MiB; 0 if the system does not
/// tell or the build itself takes memory.
namespace memory {

void resetPeak();
[[nodiscard]] qint64 peak();

} // namespace memory
