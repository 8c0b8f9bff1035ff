#include "repeated_keys.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

int membersOf(const QJsonValue& value)
{
    int count = 0;
    for (const QJsonValue& element : value.toArray())
        count += membersOf(element);
    const QJsonObject object = value.toObject();
    for (const QJsonValue& member : object)
        count += 1 + membersOf(member);
    return count;
}

/// Outside of texts a colon stands in each member of an object and nowhere else.
int colonsOf(const QByteArray& text)
{
    int count = 0;
    bool inText = false;
    for (int i = 0; i < text.size(); ++i) {
        if (inText && text.at(i) == '\\')
            ++i; // and what it escapes
        else if (text.at(i) == '"')
            inText = !inText;
        else if (!inText && text.at(i) == ':')
            ++count;
    }
    return count;
}

} // namespace

// A text that does not parse has no members: with a colon in it it counts as one that repeats a key.
bool repeatsKey(const QByteArray& text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    const QJsonValue root = document.isArray() ? QJsonValue(document.array()) : document.object();
    return membersOf(root) != colonsOf(text);
}
