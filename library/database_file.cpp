#include "library/database_file.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace database_file {
namespace {

constexpr qint64 largest = qint64(16) * 1024 * 1024; // more than 20,000 scales like those of the factory
// Written text is indented by the depth of each value, so a small file of great depth would become a huge
// one.
constexpr int deepest = 8;
constexpr int mostLinks = 128;

/// How deep objects and arrays are nested in a JSON text.
int depthOf(const QByteArray& text)
{
    int depth = 0, most = 0;
    bool quoted = false, escaped = false;
    for (const char letter : text) {
        if (escaped)
            escaped = false;
        else if (quoted && letter == '\\')
            escaped = true;
        else if (letter == '"')
            quoted = !quoted;
        else if (!quoted && (letter == '{' || letter == '['))
            most = qMax(most, ++depth);
        else if (!quoted && (letter == '}' || letter == ']'))
            --depth;
    }
    return most;
}

Content failed(const QString& error)
{
    return {{}, error};
}

Content parse(const QByteArray& text)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        return failed(QCoreApplication::translate("database_file", "It is not a database: %1 at byte %2.")
                          .arg(error.errorString())
                          .arg(error.offset));
    if (!document.isObject() || depthOf(text) > deepest)
        return failed(QCoreApplication::translate("database_file", "It is not a database."));
    return {document.object(), {}};
}

/// Where a write to that name ends, whether it exists or not.
QFileInfo targetOf(const QString& file)
{
    QFileInfo info(file);
    for (int links = 0; info.isSymLink() && links < mostLinks; ++links)
        info.setFile(info.symLinkTarget());
    return QFileInfo(info.absoluteFilePath());
}

} // namespace

Content read(const QString& file)
{
    const QFileInfo info(file);
    if (!info.exists())
        return failed(QCoreApplication::translate("database_file", "There is no such file."));
    if (!info.isFile()) // opening a pipe would wait for its writer
        return failed(QCoreApplication::translate("database_file", "It is not a regular file."));
    QFile in(file);
    if (!in.open(QIODevice::ReadOnly))
        return failed(in.errorString());
    if (in.size() == 0) // also what the system makes up as it is read, which may block
        return failed(QCoreApplication::translate("database_file", "It is empty."));
    const QByteArray text = in.read(qMin(in.size(), largest) + 1);
    if (in.error() != QFileDevice::NoError)
        return failed(in.errorString());
    if (text.size() > largest)
        return failed(QCoreApplication::translate("database_file", "It is too large to be a database."));
    return parse(text);
}

QString whyNotWritable(const QString& file)
{
    const QFileInfo info = targetOf(file), folder(info.path());
    if (info.isSymLink() || (info.exists() && !info.isFile())) // links in a circle, or none of ours
        return QCoreApplication::translate("database_file", "It is not a regular file.");
    if (!folder.isDir())
        return QCoreApplication::translate("database_file", "There is no such folder.");
    if (!folder.isWritable() || (info.exists() && !info.isWritable()))
        return QCoreApplication::translate("database_file", "Permission denied.");
    return {};
}

} // namespace database_file
