#pragma once

#include "HeaderFixture.h"

#include <QJsonObject>
#include <QTemporaryDir>

/// A fresh window for each test, and database files on disk.
class DocumentFixture : public HeaderFixture
{
    Q_OBJECT

protected:
    /// A path in the folder of the test program.
    [[nodiscard]] QString pathOf(const QString& name) const { return folder.filePath(name); }
    /// Writes a document as the program would; false if it cannot be written.
    [[nodiscard]] bool writeRoot(const QString& path, const QJsonObject& root) const;
    /// The root object of a file; empty if it is none.
    [[nodiscard]] static QJsonObject rootOf(const QString& path);
    /// Lets the window take up a document, and leave one.
    void importRoot(const QJsonObject& root) const;
    [[nodiscard]] QJsonObject exportRoot() const;

    QTemporaryDir folder;
};
