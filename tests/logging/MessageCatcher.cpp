#include "MessageCatcher.h"

#include <mutex>
#include <unistd.h>

namespace {

constexpr unsigned watchdogSeconds = 60;

std::mutex lock;
QList<MessageCatcher::Message> kept;

} // namespace

MessageCatcher::MessageCatcher() : before(qInstallMessageHandler(keep))
{
    alarm(watchdogSeconds);
    kept.clear();
}

MessageCatcher::~MessageCatcher()
{
    qInstallMessageHandler(before);
    alarm(0);
}

const QList<MessageCatcher::Message>& MessageCatcher::messages() const
{
    return kept;
}

QStringList MessageCatcher::texts() const
{
    QStringList list;
    for (const Message& message : qAsConst(kept))
        list.append(message.text);
    return list;
}

void MessageCatcher::keep(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const std::lock_guard held(lock);
    kept.append({type, context.category, text});
}
