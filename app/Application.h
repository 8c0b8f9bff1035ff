#pragma once

#include <QApplication>

/// The application object. An error that a port raises where nobody waits for one ends that event, not the
/// program.
class Application : public QApplication
{
    Q_OBJECT

public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override;
};
