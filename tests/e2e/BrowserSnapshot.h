#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/// The library and what its browser shows, at one moment, in a form that compares and can be read.
struct BrowserSnapshot
{
    struct Category
    {
        QString name;
        QStringList words;
        int remembered;
    };

    // What is
    bool power = false, dialog = false, open = false, scaleSwitch = true;
    QString played;
    QStringList activeFlag; ///< its two short names
    QList<Category> categories;
    int current = -1;
    /// By word: both short names, the title, the description, and whose it is.
    QMap<QString, QStringList> records;

    // What shows while the library is open
    QStringList categoryRows, scaleRows;
    int categoryRow = -1, scaleRow = -1; ///< -1 for none
    QString page, playedPlate;
    QStringList abbrPlates;
    bool mark = false, ghosts = false;

    [[nodiscard]] QStringList lines() const;
};
