#pragma once

#include <QByteArray>
#include <QObject>

#include <memory>

/// A desktop's session manager, as small as one can be: it takes the program in, and asks it to save when the
/// desktop is about to end. Speaks XSMP with one client. start() points SESSION_MANAGER to it.
class SessionManager : public QObject
{
public:
    SessionManager();
    ~SessionManager() override;

    [[nodiscard]] bool start();
    /// The program has come and has done with its first saving.
    [[nodiscard]] bool waitForClient();
    /// What a desktop asks that ends; true once the program says that it has saved.
    [[nodiscard]] bool askToSave(bool mayAsk);
    /// Somebody else wants the desktop to stay.
    void stay();
    /// The desktop is gone: the program has to end.
    void end();

    struct Talk;

private:
    std::unique_ptr<Talk> talk;
};

/// Closes the program's window as a window manager's button does.
[[nodiscard]] bool closeWindowByItsButton(const QByteArray& title);
