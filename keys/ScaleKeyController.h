#pragma once

#include "keys/KeyControllerBase.h"

/// The scale row: any set of degrees, the tonic degree always on.
class ScaleKeyController : public KeyControllerBase
{
    Q_OBJECT

public:
    using KeyControllerBase::KeyControllerBase;

    /// A key of index 0 is listed once and connected to nothing: the tonic degree does not answer to
    /// gestures.
    void addKey(TonicKeyItem* key) override;
    [[nodiscard]] bool shouldChangeState(TonicKeyItem* key) override;
    void setSwitchOff(bool toHeader) override;

    /// The twelve-letter word, "x" for a degree that is on; letter 0, the tonic, is always "x".
    [[nodiscard]] QString scaleModifier() const;
    /// Applies letters 1 to 11 of a word and remaps. False, with a log line, for a short word or a letter
    /// that is neither "x" nor "o": degrees before that letter stay applied. False in silence for an empty
    /// word, and with the switch off unless forced.
    bool setScaleModifier(const QString& word, bool force);
    /// Flips the degree whose index is that of the note name, whatever the tonic is. False for "C" and for
    /// names that are no notes.
    bool toggleKey(const QString& noteName);
    /// The tonic alone, and no names in the active header until the scale is named again.
    void setAllOff();
    void setIonicMajor();
    /// The number that the next "User" scale will carry.
    [[nodiscard]] int curScaleNumber() const;

protected:
    void switchWasSet(bool toHeader) override;

private:
    [[nodiscard]] bool applyLetters(const QString& word);
};
