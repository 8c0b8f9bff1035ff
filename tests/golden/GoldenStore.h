#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

/// The committed pictures of one device pixel ratio, and what is left behind where a window differs.
///
/// A scene that looks like another one but for a part is kept as that part, which knows its place (the offset
/// of the PNG file); the other one is its base. All pictures that go in and out are whole.
class GoldenStore
{
public:
    /// `evidence` is a folder of the build tree.
    GoldenStore(const QString& pictures, const QString& evidence, int ratio);

    /// Null if there is none, or none of the base, or it cannot be read. `base` is "" for a scene without
    /// one.
    [[nodiscard]] QImage golden(const QString& scene, const QString& base) const;
    /// Writes it as small as it goes. The base must have been written before.
    [[nodiscard]] bool renew(const QString& scene, const QString& base, const QImage& picture) const;
    /// The committed pictures of this ratio that no scene has.
    [[nodiscard]] QStringList strangers(const QStringList& scenes) const;
    [[nodiscard]] bool remove(const QString& picture) const;

    /// Keeps what was seen, what was expected and where they differ. Gives the common beginning of their
    /// paths.
    [[nodiscard]] QString keepEvidence(const QString& scene, const QImage& seen,
                                       const QImage& expected) const;
    /// Keeps a whole picture for the eye.
    [[nodiscard]] bool show(const QString& scene, const QImage& picture) const;
    /// Takes the evidence of an earlier run away.
    void clearEvidence(const QString& scene) const;

private:
    [[nodiscard]] QImage file(const QString& scene) const;
    [[nodiscard]] QString nameOf(const QString& scene) const;
    [[nodiscard]] QString pathOf(const QString& scene) const;
    [[nodiscard]] QString evidencePath(const QString& scene, const char* kind) const;

    const QString folder, evidenceFolder, suffix;
};
