#pragma once

#include <QByteArray>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

class MainWnd;
class RecordingPort;

/// One window that takes up any number of files, each from the factory's state, so that what a file does
/// wrong depends on that file alone. Needs the application object; one at a time.
class ImportRig
{
public:
    ImportRig();
    ~ImportRig();

    enum class Depth {
        quick,   ///< the rules of the state and one note
        thorough ///< also what takes longer: the way through another file, the library's lists, painting
    };

    /// Takes up a file and tells, a line each, what is wrong then. None is as it should be.
    [[nodiscard]] QStringList run(const QByteArray& file, Depth depth);

    /// A file as the window writes it when nothing was done yet.
    [[nodiscard]] const QByteArray& factoryFile() const { return factory; }
    /// Whether run() got past reading the last file.
    [[nodiscard]] bool wasTakenUp() const { return taken; }

private:
    void reset();
    [[nodiscard]] QString import(const QByteArray& text);
    [[nodiscard]] QByteArray exported();
    [[nodiscard]] QStringList afterImport();
    [[nodiscard]] QStringList remapped() const;
    [[nodiscard]] QStringList playNote(int note);
    [[nodiscard]] QStringList goThroughFile();
    [[nodiscard]] QStringList showAll();
    [[nodiscard]] QStringList goBack();

    QTemporaryDir folder;
    std::unique_ptr<MainWnd> window;
    RecordingPort* port = nullptr; // owned by the window
    QByteArray factory;
    bool taken = false;
};
