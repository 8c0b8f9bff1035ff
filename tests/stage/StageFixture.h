#pragma once

#include "Hand.h"
#include "HeaderFixture.h"

#include <QSet>

#include <initializer_list>

/// A shown window with a hand on each keyboard, for tests of what the pointer does on the stage.
class StageFixture : public HeaderFixture
{
    Q_OBJECT

private slots:
    void init() { openStage(); }

protected:
    void openStage();

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

    // What a test does to it, and reads from it
    /// One data row for each state of the power, in the column "switchedOn".
    static void addPowers();
    void chooseMap(bool switchedOn, const QString& word) const;
    /// From now on the dialogs that a double click on a flag brings up are sent away at once.
    void sendDialogsAway();
    int dialogsSeen = 0;
    /// Every preset's record, by the order of the black keys.
    QStringList records() const;
    /// Whether the power button wears the pictures of these states, each laid upon the one before.
    bool powerShows(std::initializer_list<const char*> states) const;
    /// Takes the button by its sleeve, or a header by its name box, drags it to a place and holds on.
    void dragPowerTo(QPointF place) const { hand->drag(powerSleeve(), place, 25); }
    void dragHeaderTo(int key, QPointF place) const { hand->drag(boxOf(key), place, 25); }

    // Places, in the scene
    /// A white in key below the black ones, and any in key among them.
    QPointF low(int note) const { return {onKey(in(note)).x(), 130}; }
    QPointF high(int note) const { return {in(note)->sceneBoundingRect().center().x(), 100}; }
    /// The stem of a header at home; no other flag reaches it.
    QPointF stemOf(int key) const;
    /// The upper name box of a header, where it stands now.
    QPointF boxOf(int key) const;
    QPointF powerSquare() const { return power()->pos() + QPointF(9, 15); }
    QPointF powerSleeve() const { return power()->pos() + QPointF(9, 60); }
    /// The sleeve as it stands, out of reach of other flags.
    QPointF powerTarget() const { return powerSleeve() + QPointF(0, 14); }
    /// Where the power button belongs over a black key.
    QPointF powerPlaceOn(int key) const { return in(key)->pos() + QPointF(-4, -18); }
    /// As far from a place as a drag looks for something to drop on.
    static QRectF around(QPointF place) { return {place - QPointF(3, 3), QSizeF(6, 6)}; }
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
