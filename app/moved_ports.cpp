#include "app/moved_ports.h"

#include <QRegularExpression>

namespace {

/// The names by what stands before their numbers; those that `known` holds are left out.
QMultiMap<QString, QString> byDevice(const QStringList& names, const QStringList& known)
{
    static const QRegularExpression numbers(QStringLiteral(" \\d+:\\d+$"));
    QMultiMap<QString, QString> devices;
    for (const QString& name : names)
        if (name.contains(numbers) && !known.contains(name))
            devices.insert(QString(name).remove(numbers), name);
    return devices;
}

} // namespace

QMap<QString, QString> movedPorts(const QStringList& present, const QStringList& remembered)
{
    const QMultiMap<QString, QString> unknown = byDevice(present, remembered);
    const QMultiMap<QString, QString> absent = byDevice(remembered, present);
    QMap<QString, QString> moved;
    const QList<QString> devices = unknown.uniqueKeys();
    for (const QString& device : devices)
        if (unknown.count(device) == 1 && absent.count(device) == 1)
            moved.insert(unknown.value(device), absent.value(device));
    return moved;
}
