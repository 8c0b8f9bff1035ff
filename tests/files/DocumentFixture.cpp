#include "DocumentFixture.h"

#include <QFile>
#include <QJsonDocument>

bool DocumentFixture::writeRoot(const QString& path, const QJsonObject& root) const
{
    const QByteArray text = QJsonDocument(root).toJson();
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

QJsonObject DocumentFixture::rootOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

void DocumentFixture::importRoot(const QJsonObject& root) const
{
    const QString path = pathOf(QStringLiteral("in.svdb"));
    QVERIFY(writeRoot(path, root));
    QCOMPARE(window->importDatabase(path), QString());
}

QJsonObject DocumentFixture::exportRoot() const
{
    const QString path = pathOf(QStringLiteral("out.svdb"));
    const QString error = window->exportDatabase(path);
    return error.isEmpty() ? rootOf(path) : QJsonObject();
}
