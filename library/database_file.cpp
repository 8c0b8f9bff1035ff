#include "library/database_file.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace database_file {
namespace {

constexpr qint64 largest = 128 * 1024 * 1024; // a hundred thousand scales take a third of it

QString tr(const char* text)
{
    return QCoreApplication::translate("database_file", text);
}

} // namespace

Content read(const QString& file)
{
    const QFileInfo info(file);
    if (!info.exists())
        return {{}, tr("There is no such file.")};
    if (!info.isFile()) // opening a pipe would wait for its writer
        return {{}, tr("It is not a regular file.")};
    QFile in(file);
    if (!in.open(QIODevice::ReadOnly))
        return {{}, in.errorString()};
    const QByteArray text = in.read(largest + 1);
    if (in.error() != QFileDevice::NoError)
        return {{}, in.errorString()};
    if (text.size() > largest)
        return {{}, tr("It is too large to be a database.")};
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        return {{}, tr("It is not a database: %1 at byte %2.").arg(error.errorString()).arg(error.offset)};
    if (!document.isObject())
        return {{}, tr("It is not a database.")};
    return {document.object(), {}};
}

QString whyNotWritable(const QString& file)
{
    const QFileInfo named(file);
    const QFileInfo info(named.exists() ? named.canonicalFilePath() : named.absoluteFilePath());
    const QFileInfo folder(info.path());
    if (info.exists() && !info.isFile())
        return tr("It is not a regular file.");
    if (!folder.isDir())
        return tr("There is no such folder.");
    if (!folder.isWritable() || (info.exists() && !info.isWritable()))
        return tr("Permission denied.");
    return {};
}

} // namespace database_file
