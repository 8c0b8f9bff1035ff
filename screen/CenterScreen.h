#pragma once

#include <QListWidget>
#include <QWidget>

class Ui_SorvaneClass;
class QGraphicsPixmapItem;
class QGraphicsScene;

/// Decides what the panel between the keyboards shows. It is never shown itself.
class CenterScreen : public QWidget
{
    Q_OBJECT

public:
    /// Works on the widgets of the form, which it does not own, and on the scene below them.
    CenterScreen(QGraphicsScene* centreScene, const Ui_SorvaneClass& ui, QWidget* mainWindow);

    // What is shown
    enum scene_number {
        scene_none = 0,
        scene_default = 1,
        scene_clean = 2,
        scene_ports = 3,
        scene_credits = 4
    };
    void setSceneDefault();
    void setSceneClean();
    void setSceneMIDIinOut();
    void showMIDIPortsListView(bool show);

    // Ports
    void addMidiPortsListView();
    /// Appends a row, selected or not, and asks for delayedSelect() in 200 milliseconds.
    void addInPort(const QString& name, bool selected);
    void addOutPort(const QString& name, bool selected);
    /// The row's text; "" for a row that does not exist.
    [[nodiscard]] QString getInPort(int row) const;
    [[nodiscard]] QString getOutPort(int row) const;

    /// A file's text, read as UTF-8; "" if it cannot be read.
    [[nodiscard]] static QString getMainTextData(const QString& file);

    QListWidget* inPortList = nullptr;
    QListWidget* outPortList = nullptr;
    int currentScene = scene_none;

public slots:
    /// Opens the ports of the selected rows: the event loop runs by then and the rows are complete.
    void delayedSelect();

private:
    [[nodiscard]] QListWidget* createPortList(const QRect& place, const QString& name, const QString& style);
    void addPort(QListWidget& list, const QString& name, bool selected);
    void showButtons(bool left, bool right);
    void showTexts(bool show);
    void enterScene(scene_number number);

    QGraphicsScene* const scene;
    const Ui_SorvaneClass& form;
    QWidget* const window;
    QGraphicsPixmapItem* portBackground = nullptr;
};
