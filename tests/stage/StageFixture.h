#pragma once

#include "Hand.h"
#include "HeaderFixture.h"

#include <QSet>

/// A shown window with a hand on each keyboard, for tests of what the pointer does on the stage.
class StageFixture : public HeaderFixture
{
    Q_OBJECT

private slots:
    void init() { openStage(); }

protected:
    void openStage();

    ResizableItem* in(int note) const { return window->findInNote(note); }
    ResizableItem* out(int note) const { return static_cast<ResizableItem*>(in(note)->pairedOutKey); }
    DiagramScene* outScene() const;

    // What was heard
    using Messages = QList<QList<int>>;
    /// The messages since the last call, as the program's own lists.
    Messages sent();
    /// The out pitches that were begun and not ended since the window opened.
    const QSet<int>& sounding();
    /// A note of the pointer, and the end of any note.
    static QList<int> noteOn(int pitch) { return {0x90, pitch, 75}; }
    static QList<int> noteOff(int pitch) { return {0x80, pitch, 0}; }

    // Places, in the scene
    /// The stem of a header at home; no other flag reaches it.
    QPointF stemOf(int key) const;
    /// The upper name box of a header, where it stands now.
    QPointF boxOf(int key) const;
    QPointF powerSquare() const { return power()->pos() + QPointF(9, 15); }
    QPointF powerSleeve() const { return power()->pos() + QPointF(9, 60); }
    /// Where the power button belongs over a black key.
    QPointF powerPlaceOn(int key) const { return in(key)->pos() + QPointF(-4, -18); }
    /// Below the keys and the flags; nothing to drop on.
    static QPointF nowhere() { return {500, 130}; }

    /// What does not stand as it must between two gestures, in words; empty if all does. `held` are the in
    /// keys that may be down.
    QString unrest(const QSet<int>& held = {}) const;

    std::unique_ptr<Hand> hand, outHand;

private:
    void checkHeaders(QStringList& faults) const;
    void checkPower(QStringList& faults) const;
    void checkKeys(QStringList& faults, const QSet<int>& held) const;

    QSet<int> soundingNow;
};
