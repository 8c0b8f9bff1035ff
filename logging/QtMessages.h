#pragma once

/// Hands Qt's messages, and those of the program's logging categories, to the log as long as it lives, and to
/// whoever took them before. One at a time.
class QtMessages
{
public:
    QtMessages();
    ~QtMessages();
    QtMessages(const QtMessages&) = delete;
    QtMessages& operator=(const QtMessages&) = delete;
};
