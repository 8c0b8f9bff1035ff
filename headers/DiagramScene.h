#pragma once

#include <QGraphicsScene>

class PowerItem;

/// The scene of one keyboard and of what lies above it.
class DiagramScene : public QGraphicsScene
{
    Q_OBJECT

public:
    /// Neither is owned; both outlive the scene.
    DiagramScene(PowerItem* powerItem, QWidget* parentWidget);

    QWidget* const parentWidget;
    PowerItem* const powerItem;
};
