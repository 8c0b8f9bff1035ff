#pragma once

#include "HeaderFixture.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QTemporaryDir>

/// A fresh window for each test, and database files that it reads and writes.
class FileFixture : public HeaderFixture
{
    Q_OBJECT

protected:
    /// A file of the test's own folder, which need not exist.
    QString pathOf(const char* name) const { return folder.filePath(QLatin1String(name)); }
    static void write(const QString& file, const QByteArray& text);
    static QJsonObject read(const QString& file);

    /// What the window writes.
    QJsonObject exported() const;
    /// The window reads a file that holds just this.
    void import(const QJsonObject& root) const;

    /// The array of the scales in the library, and of the presets, as they are written.
    QJsonArray exportedScales() const { return exported().value(scalesKey).toArray(); }
    QJsonArray exportedHeaders() const { return exported().value(headersKey).toArray(); }
    /// Every category with its words, in the library's order.
    QStringList catalogue() const;
    /// All that a file may change, by its name: see FileFixture.cpp.
    using Facts = QMap<QString, QString>;
    Facts facts() const;
    /// The names of the facts that are not as they were.
    QStringList changesSince(const Facts& before) const;
    /// A state with nothing at its start: power on, presets, selectors, anchors and library changed.
    void leaveTheStart() const;

    static QJsonObject scaleObject(const QString& category, const QString& word, const QString& title);
    /// A preset as a file has it, without a position.
    static QJsonObject headerObject(const header_data& data);

    static const QString scalesKey, headersKey, powerPlaceKey, anchorsPlaceKey, hiddenTonicKey;

private:
    QTemporaryDir folder;
};
