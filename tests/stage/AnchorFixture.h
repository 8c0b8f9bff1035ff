#pragma once

#include "AnchorRule.h"
#include "Hand.h"
#include "HeaderFixture.h"

#include <memory>

/// A window on the screen with the power on, and a hand on its input keyboard.
class AnchorFixture : public HeaderFixture
{
    Q_OBJECT

private slots:
    void init();

protected:
    static constexpr qreal onBar = 170; ///< a y at which anchors are gripped

    [[nodiscard]] QGraphicsItem* anchor(int n) const;
    [[nodiscard]] qreal sceneX(int n) const { return anchor(n)->scenePos().x(); }
    /// The middle of an anchor's foot, where no neighbour reaches.
    [[nodiscard]] QPointF gripOf(int n) const;
    /// Puts the group there and remaps, as a recall would.
    void putGroup(qreal x) const;
    /// Takes an anchor at its foot, moves by scene pixels and holds on.
    void dragBy(int n, int dx) const;
    /// What the active preset remembers.
    [[nodiscard]] header_data& stored() const { return presets().activeHeader->record; }
    void choose(int tonicDegree, const QString& word) const;
    /// A scale of that many degrees.
    [[nodiscard]] static QString wordOf(int count);

    /// The numbers that a bar shows.
    [[nodiscard]] static AnchorRule::Numbers asNumbers(const degree_marks::Marks& marks);
    /// What the group's place asks for, by the selectors.
    [[nodiscard]] AnchorRule rule() const;
    /// The first thing on the stage that does not follow the group's place; empty if all does.
    [[nodiscard]] QString fault() const;

    std::unique_ptr<Hand> hand;

private:
    [[nodiscard]] QString faultOfKeys(const AnchorRule& wanted) const;
    [[nodiscard]] QString faultOfAnchors() const;
};
