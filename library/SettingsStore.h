#pragma once

#include <QMap>
#include <QObject>
#include <QStringList>
#include <QVariant>

class QJsonObject;
class QPointF;

/// Named values of one run, and the two doors to the database file, in which they stand beside the library
/// and the presets. Static only; main thread only; silent: what goes wrong with a file is returned, in the
/// user's words.
class SettingsStore : public QObject
{
    Q_OBJECT

public:
    SettingsStore() = delete;

    // The file (SettingsStore_file.cpp). Both need the window.
    /// Takes up the state in a file. What the file does not name stays as it is, and so does everything if
    /// the file cannot be read or is no database. Returns the reason then, else "".
    static QString importDatabase(const QString& file);
    /// Writes the whole state. A file that cannot be written whole keeps what it holds. Returns the reason
    /// then, else "".
    static QString exportDatabase(const QString& file);
    /// Empty: every start comes up from the factory state. Kept as the place of a start-time load.
    static void loadAllSettings() {}
    /// Empty: nothing is written at exit. Kept as the place of a close-time save.
    static void saveAllSettings() {}

    // The values (SettingsStore.cpp)
    static void registerDefaultValues();
    /// Stores a value unless the key is empty or has one already.
    static void registerSettingProperty(const QString& key, const QVariant& value);
    [[nodiscard]] static QVariant settingsProperty(const QString& key, const QVariant& fallback);
    static void setSettingsProperty(const QString& key, const QVariant& value);
    [[nodiscard]] static bool containsProperty(const QString& key);

    /// The file that the user is asked to open or save.
    [[nodiscard]] static QString getDbFileName();
    static void setDbFileName(const QString& file);
    [[nodiscard]] static bool getPowerState();
    static void setPowerState(bool on);
    /// Whether the user has the port of that name selected.
    [[nodiscard]] static bool getMidiInPortSelected(const QString& port, bool fallback);
    static void setMidiInPortSelected(const QString& port, bool selected);
    [[nodiscard]] static bool getMidiOutPortSelected(const QString& port, bool fallback);
    static void setMidiOutPortSelected(const QString& port, bool selected);
    /// A point, kept as two numbers.
    [[nodiscard]] static QPointF getPointFProperty(const QString& name, const QPointF& fallback);
    static void setPointFProperty(const QString& name, const QPointF& point);
    struct Ports
    {
        QStringList inputs, outputs; ///< by name
    };
    /// Takes the port selections of a file's root, and nothing else of it. Returns the ports that it names.
    static Ports rememberPorts(const QJsonObject& root);

private:
    [[nodiscard]] static QString load(const QString& file, QJsonObject& root);
    [[nodiscard]] static QString save(const QString& file);
    static void processAfterLoad(const QJsonObject& loaded);
    static void processBeforeSave();

    static QMap<QString, QVariant> properties;
    static bool isLoaded; ///< no reader: kept beside the values
};

/// The thirteen keys of the store; the last two are prefixes of one key for each port.
extern const QStringList defaultKeys;
