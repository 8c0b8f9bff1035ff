#pragma once

#include <QApplication>

/// The application object. An error that a port raises while a message is sent ends that message, not the
/// program.
class Application : public QApplication
{
    Q_OBJECT

public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override;
};
