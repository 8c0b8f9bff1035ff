#pragma once

class QJsonObject;

/// The root object of a database file, to and from the window's library, presets, power button and anchors.
/// Needs the window. Static only; main thread only; what a file lacks stays as it is.
class DbReadWriter
{
public:
    DbReadWriter() = delete;

    static void importJsonDatabase(const QJsonObject& root);
    /// Sets four keys in the root; others stay.
    static void exportJsonDatabase(QJsonObject& root);
    /// Writes the presets of the file once more: taking up the rest of its state writes into some of them.
    static void restoreHeaders(const QJsonObject& root);
    /// How many presets a root holds; it may be more than there are.
    [[nodiscard]] static int headerCount(const QJsonObject& root);
    [[nodiscard]] static bool placesAnchors(const QJsonObject& root);
};
