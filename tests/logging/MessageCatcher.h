#pragma once

#include <QList>
#include <QStringList>

/// Takes Qt's messages and keeps them, as long as it lives: whoever had them before the log. One at a time.
/// Who waits for itself meanwhile is ended by an alarm.
class MessageCatcher
{
public:
    struct Message
    {
        QtMsgType type;
        QByteArray category;
        QString text;
    };

    MessageCatcher();
    ~MessageCatcher();

    /// When no other thread writes any.
    [[nodiscard]] const QList<Message>& messages() const;
    [[nodiscard]] QStringList texts() const;
    /// What it takes them by.
    static void keep(QtMsgType type, const QMessageLogContext& context, const QString& text);

private:
    QtMessageHandler before;
};
