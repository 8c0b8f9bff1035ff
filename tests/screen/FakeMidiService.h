#pragma once

#include <QHash>
#include <QStringList>

#include <functional>
#include <vector>

/// What the system has, what of it fails, and what was asked of it.
struct Rig
{
    QStringList names; ///< of both directions
    QString failing;   ///< a port that cannot be opened; "*": no object can be made at all
    QStringList log;
    QHash<QString, std::function<void(std::vector<unsigned char>)>> plays; ///< of each open input
};

/// The one of this program.
extern Rig rig;
