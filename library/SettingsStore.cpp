#include "library/SettingsStore.h"

#include "library/settings_keys.h"

#include <QJsonObject>
#include <QPointF>
#include <QStandardPaths>

namespace {

const QString pointKeyX = QStringLiteral("%1-PointFX"), pointKeyY = QStringLiteral("%1-PointFY");

struct Default
{
    settings_key key;
    QVariant value;
};

QString portKey(settings_key prefix, const QString& port)
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
        {key_power_on, false},
        {key_tonic_on, false},
        {key_scale_on, false},
        {key_tonic_modifier, QString()},
        {key_scale_modifier, QString()},
        {key_active_header, QString()},
        {key_current_scene, 0},
        {key_library_opened, false},
        {key_anchor_x, 0},
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

QString SettingsStore::getDbFileName()
{
    return settingsProperty(defaultKeys.at(key_database_path), QString()).toString();
}

void SettingsStore::setDbFileName(const QString& file)
{
    setSettingsProperty(defaultKeys.at(key_database_path), file);
}

bool SettingsStore::getPowerState()
{
    return settingsProperty(defaultKeys.at(key_power_on), false).toBool();
}

void SettingsStore::setPowerState(bool on)
{
    setSettingsProperty(defaultKeys.at(key_power_on), on);
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

QPointF SettingsStore::getPointFProperty(const QString& name, const QPointF& fallback)
{
    return {settingsProperty(pointKeyX.arg(name), fallback.x()).toDouble(),
            settingsProperty(pointKeyY.arg(name), fallback.y()).toDouble()};
}

void SettingsStore::setPointFProperty(const QString& name, const QPointF& point)
{
    setSettingsProperty(pointKeyX.arg(name), point.x());
    setSettingsProperty(pointKeyY.arg(name), point.y());
}

SettingsStore::Ports SettingsStore::rememberPorts(const QJsonObject& root)
{
    Ports ports;
    for (auto member = root.begin(); member != root.end(); ++member) {
        const QString key = member.key();
        const bool input = key.startsWith(defaultKeys.at(key_midi_in_port));
        if (!input && !key.startsWith(defaultKeys.at(key_midi_out_port)))
            continue;
        const int prefix = defaultKeys.at(input ? key_midi_in_port : key_midi_out_port).size();
        (input ? ports.inputs : ports.outputs).append(key.mid(prefix));
        setSettingsProperty(key, member.value().toVariant());
    }
    return ports;
}
