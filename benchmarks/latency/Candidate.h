#pragma once

#include <QStringList>
#include <QVector>

/// A way from a player's output back to its input: through a program, or none for the player's own loop.
struct Candidate
{
    QString name;
    QString program; ///< empty: none; a name without a path is looked for
    QStringList arguments;
    QString input, output; ///< how the names of its ports end; no output: the input is the player's
    bool maps;             ///< white keys play D Dorian; else they come back as they went

    /// What must come back for a white key.
    [[nodiscard]] int pitchOf(int key) const;
    /// False where the program is not installed.
    [[nodiscard]] bool isThere() const;
};

[[nodiscard]] bool isWhite(int key);

/// All candidates; the player's own ports begin with its name.
[[nodiscard]] QVector<Candidate> allCandidates(const QString& player);
