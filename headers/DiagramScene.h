#pragma once

#include <QGraphicsScene>

class HeaderItem;
class PowerItem;
class ResizableItem;

/// The scene of one keyboard and of what lies above it.
class DiagramScene : public QGraphicsScene
{
    Q_OBJECT

public:
    /// Neither is owned; both outlive the scene.
    DiagramScene(PowerItem* powerItem, QWidget* parentWidget);

    /// Settles a drop: `cur` was dropped on `prev`, either may be null. Presets swap their records, and the
    /// power button moves to the key of the header that it changes places with, so the preset under the
    /// button stays the active one. False if nothing was swapped.
    bool swapHeader(ResizableItem* prev, ResizableItem* cur);

    QWidget* const parentWidget;
    PowerItem* const powerItem;
    bool headerCopyMode = false; ///< set by nobody: a drop of a header on a header copies instead

private:
    bool dropPower(ResizableItem* prev, PowerItem* power) const;
    bool dropHeader(ResizableItem* prev, HeaderItem* header) const;
    static void movePowerTo(const QGraphicsItem* header, PowerItem* power);
};
