#pragma once

/// Hands Qt's messages, and those of the program's logging categories, to the log as long as one of these
/// lives and the process does not exit, and always to whoever took them before.
class QtMessages
{
public:
    QtMessages();
    ~QtMessages();
    QtMessages(const QtMessages&) = delete;
    QtMessages& operator=(const QtMessages&) = delete;
};
