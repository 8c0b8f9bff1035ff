#pragma once

#include "library/scale_word.h"

#include <QString>

#include <utility>

/// What a preset remembers of the selectors and of the pitch position. A plain value; default-built it is
/// empty, with both switches off.
struct header_data
{
    header_data() = default;
    /// Names, tonic and scale as given, without a pitch position.
    header_data(QString name1, QString name2, QString tonicName, bool tonicIsOn, QString tonic,
                bool scaleIsOn, QString scale)
        : nameScenic1(std::move(name1)), nameScenic2(std::move(name2)), nameTonic(std::move(tonicName)),
          tonicOn(tonicIsOn), tonicData(std::move(tonic)), scaleOn(scaleIsOn), scaleData(std::move(scale))
    {
    }

    // Three overwrites of all nine fields. Kept: what tells them apart.
    /// C Ionian, both switches on.
    void reset() { *this = {"ION", "Major", "C", true, "C", true, ionianWord}; }
    /// C and nothing above it, both switches on.
    void erase() { *this = {{}, {}, "C", true, "C", true, tonicAloneWord}; }
    /// C Ionian without names and, whatever the name of this says, with both switches off.
    void clearNames() { *this = {{}, {}, "C", false, "C", false, ionianWord}; }

    QString nameScenic1; ///< upper display name: the scale's abbr1
    QString nameScenic2; ///< lower display name: the scale's abbr2
    QString nameTonic;   ///< display name of the tonic
    bool tonicOn = false;
    QString tonicData; ///< a note name such as "C#"
    bool scaleOn = false;
    QString scaleData; ///< a twelve-letter scale word, the scale's key in the library
    bool anchorValid = false;
    int anchorPos = 0; ///< x of the main in anchor in the scene, whole pixels; counts only if anchorValid
};
