#pragma once

#include <QMap>
#include <QObject>
#include <QStringList>
#include <QVariant>

/// Named values for the length of one run. Static only; main thread only; reports no errors.
class SettingsStore : public QObject
{
    Q_OBJECT

public:
    SettingsStore() = delete;

    /// Empty: every start comes up from the factory state. Kept as the place of a start-time load.
    static void loadAllSettings() {}
    /// Empty: nothing is written at exit. Kept as the place of a close-time save.
    static void saveAllSettings() {}

    static void registerDefaultValues();
    /// Stores a value unless the key is empty or has one already.
    static void registerSettingProperty(const QString& key, const QVariant& value);
    [[nodiscard]] static QVariant settingsProperty(const QString& key, const QVariant& fallback);
    static void setSettingsProperty(const QString& key, const QVariant& value);
    [[nodiscard]] static bool containsProperty(const QString& key);

    /// Whether the user has the port of that name selected.
    [[nodiscard]] static bool getMidiInPortSelected(const QString& port, bool fallback);
    static void setMidiInPortSelected(const QString& port, bool selected);
    [[nodiscard]] static bool getMidiOutPortSelected(const QString& port, bool fallback);
    static void setMidiOutPortSelected(const QString& port, bool selected);

private:
    static QMap<QString, QVariant> properties;
    static bool isLoaded;
};

/// The thirteen keys of the store; the last two are prefixes of one key for each port.
extern const QStringList defaultKeys;
