#pragma once

#include <QObject>

class QSocketNotifier;

/// Turns SIGINT, SIGTERM and, unless it is ignored, SIGHUP into a clean end of the event loop. One instance a
/// process.
class EndSignals : public QObject
{
    Q_OBJECT

public:
    explicit EndSignals(QObject* parent);

private:
    QSocketNotifier* notifier = nullptr;
};
