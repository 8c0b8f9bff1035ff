#pragma once

#include <QList>
#include <QPair>
#include <QString>

#include <bitset>
#include <map>

/// Where anchors and numbers stand and what the keys play under them, told independently of the program: with
/// white keys counted from middle C and scale notes counted from the tonic, without walking.
struct AnchorRule
{
    using Numbers = QList<QPair<int, int>>; ///< x on the bar and number, from left to right

    static constexpr int white = 17;                     ///< width of a white key
    static constexpr int leftEnd = -374, rightEnd = 476; ///< of the bar, for an anchor's scene x
    static constexpr int hidden = 1, shown = 100;        ///< opacity, in hundredths

    /// `shift` in white keys, positive to the left as the group goes: keys play higher notes then.
    AnchorRule(int tonic, const QString& word, int shift = 0);

    /// Semitones above the tonic of each degree.
    [[nodiscard]] QList<int> degrees() const;
    [[nodiscard]] int count() const { return static_cast<int>(on.count()); }
    /// The target of each white in key, -1 for none.
    [[nodiscard]] std::map<int, int> targets() const;
    /// The number above each live white in key, by key.
    [[nodiscard]] std::map<int, int> numbers() const;
    /// The same as the bar shows it.
    [[nodiscard]] Numbers inBar() const;
    /// Without the corrections by eye, which the caller adds.
    [[nodiscard]] Numbers outBar() const;
    /// The degree number of a played note, 0 for a note outside the scale.
    [[nodiscard]] int numberOfNote(int note) const;
    /// In hundredths.
    [[nodiscard]] static int opacityAt(int sceneX)
    {
        return sceneX > rightEnd || sceneX < leftEnd ? hidden : shown;
    }
    /// Width of a number's digits, by the columns of their sheet.
    [[nodiscard]] static int widthOf(int number);
    /// Scene x of the middle of an out key, less the bar's own x; whole pixels.
    [[nodiscard]] static int outMiddle(int note);

private:
    int tonicDegree; ///< semitones above C
    std::bitset<12> on;
    int shiftKeys;
};
