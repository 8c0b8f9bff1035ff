#include "library/SettingsStore.h"

#include <QStandardPaths>

namespace {

enum key_index { key_database_path = 0, key_midi_in_port = 11, key_midi_out_port = 12 };

struct Default
{
    int key;
    QVariant value;
};

QString portKey(key_index prefix, const QString& port)
{
    return defaultKeys.at(prefix) + port;
}

} // namespace

const QStringList defaultKeys = {
    QStringLiteral("DatabasePath"),  QStringLiteral("PowerOnState"), QStringLiteral("PowerPointX"),
    QStringLiteral("TonicOnState"),  QStringLiteral("ScaleOnState"), QStringLiteral("TonicModifier"),
    QStringLiteral("ScaleModifier"), QStringLiteral("ActiveHeader"), QStringLiteral("CurrentScene"),
    QStringLiteral("LibViewOpened"), QStringLiteral("AnchorPosX"),   QStringLiteral("MidiInPort-"),
    QStringLiteral("MidiOutPort-"),
};

QMap<QString, QVariant> SettingsStore::properties;
bool SettingsStore::isLoaded = false;

void SettingsStore::registerDefaultValues()
{
    isLoaded = false;
    const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    const Default defaults[] = {
        {key_database_path, QString(desktop + QStringLiteral("/sorvane.svdb"))},
        {1, false},
        {3, false},
        {4, false},
        {5, QString()},
        {6, QString()},
        {7, QString()},
        {8, 0},
        {9, false},
        {10, 0},
    };
    for (const Default& entry : defaults)
        registerSettingProperty(defaultKeys.at(entry.key), entry.value);
}

void SettingsStore::registerSettingProperty(const QString& key, const QVariant& value)
{
    if (!key.isEmpty() && !properties.contains(key))
        properties.insert(key, value);
}

QVariant SettingsStore::settingsProperty(const QString& key, const QVariant& fallback)
{
    return properties.value(key, fallback);
}

void SettingsStore::setSettingsProperty(const QString& key, const QVariant& value)
{
    properties.insert(key, value);
}

bool SettingsStore::containsProperty(const QString& key)
{
    return properties.contains(key);
}

bool SettingsStore::getMidiInPortSelected(const QString& port, bool fallback)
{
    return settingsProperty(portKey(key_midi_in_port, port), fallback).toBool();
}

void SettingsStore::setMidiInPortSelected(const QString& port, bool selected)
{
    setSettingsProperty(portKey(key_midi_in_port, port), selected);
}

bool SettingsStore::getMidiOutPortSelected(const QString& port, bool fallback)
{
    return settingsProperty(portKey(key_midi_out_port, port), fallback).toBool();
}

void SettingsStore::setMidiOutPortSelected(const QString& port, bool selected)
{
    setSettingsProperty(portKey(key_midi_out_port, port), selected);
}
