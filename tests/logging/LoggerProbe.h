#pragma once

#include "logging/LoggerItem.h"
#include "logging/LoggerModel.h"
#include "logging/LoggerObserverThread.h"

#include <QStringList>
#include <QVector>

/// The tests' door into the model: its ring as copies, its thread, and the mode that no call reaches from
/// the start. Readers take the model's own locks, so observers must not call them.
struct LoggerProbe
{
    /// Puts the model into a mode, and does nothing else.
    static void setMode(LoggerModel::LoggerModelMode mode) { LoggerModel::getInstance()->mode = mode; }

    /// The entries, oldest first.
    static QVector<LoggerItem> items()
    {
        LoggerModel* model = LoggerModel::getInstance();
        const std::lock_guard round(model->firing);
        const std::shared_lock lock(model->itemsLock);
        QVector<LoggerItem> copies;
        for (const LoggerItem* item : qAsConst(model->items))
            copies.append(*item);
        return copies;
    }

    /// Their addresses: who is kept and who is made anew.
    static QVector<const LoggerItem*> addresses()
    {
        LoggerModel* model = LoggerModel::getInstance();
        const std::lock_guard round(model->firing);
        const std::shared_lock lock(model->itemsLock);
        return QVector<const LoggerItem*>(model->items.cbegin(), model->items.cend());
    }

    static QStringList texts()
    {
        QStringList texts;
        for (const LoggerItem& item : items())
            texts.append(item.text);
        return texts;
    }

    /// A letter an entry: 'f' for a fired one, '-' for one that is not.
    static QString fired()
    {
        QString letters;
        for (const LoggerItem& item : items())
            letters.append(QLatin1Char(item.fired ? 'f' : '-'));
        return letters;
    }

    static int observerCount()
    {
        LoggerModel* model = LoggerModel::getInstance();
        const std::shared_lock lock(model->observersLock);
        return model->observers.size();
    }

    /// Whether a writer could enter now; to be asked from a thread that holds neither.
    static bool locksAreFree()
    {
        LoggerModel* model = LoggerModel::getInstance();
        const std::unique_lock items(model->itemsLock, std::try_to_lock);
        const std::unique_lock observers(model->observersLock, std::try_to_lock);
        return items.owns_lock() || observers.owns_lock();
    }

    /// Deletes the model, not its observers; the next call makes a new one.
    static void freshModel()
    {
        LoggerModel::getInstance()->removeObserver(nullptr, false);
        LoggerModel::deleteInstance();
    }

    static LoggerObserverThread& thread() { return *LoggerModel::getInstance()->observerThread; }
};
